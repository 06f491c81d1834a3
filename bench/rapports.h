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

    /// Prints the share of the time, in percent, that something takes which is done again each time
    /// that so many seconds, and so many times its own time, have gone by.
    void Part(const char* quoi, const std::string& mesure, double secondes, double fois) const;

  private:
    std::map<std::string, double> Secondes;
};
