#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// The console's table, which also keeps each real time for the ratios at the end.
class Rapports : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& mesures) override;

    /// Prints how often the time of one measure goes into another's, beside what is wanted.
    void Compare(const char* quoi, const std::string& mesure, const std::string& plancher,
                 double voulu) const;

    /// Prints a time in milliseconds beside what is wanted.
    void Temps(const char* quoi, const std::string& mesure, double voulu) const;

  private:
    std::map<std::string, double> Secondes;
};
