#include "rapports.h"

#include <algorithm>
#include <cstdio>

void Rapports::ReportRuns(const std::vector<Run>& mesures) {
    for (const Run& mesure : mesures)
        if (mesure.iterations > 0)
            Secondes[mesure.run_name.function_name +
                     (mesure.run_name.args.empty() ? "" : "/" + mesure.run_name.args)] =
                mesure.real_accumulated_time / static_cast<double>(mesure.iterations);
    ConsoleReporter::ReportRuns(mesures);
}

void Rapports::Compare(const char* quoi, const std::string& mesure, const std::string& plancher,
                       double voulu) const {
    const auto a = Secondes.find(mesure), b = Secondes.find(plancher);
    if (a == Secondes.end() || b == Secondes.end()) return;
    std::printf("%-52s %8.3f   (at most %g)\n", quoi, a->second / b->second, voulu);
}

void Rapports::Temps(const char* quoi, const std::string& mesure, double voulu) const {
    const auto a = Secondes.find(mesure);
    if (a == Secondes.end()) return;
    std::printf("%-52s %8.3f ms (at most %g)\n", quoi, a->second * 1e3, voulu);
}

void Rapports::Part(const char* quoi, const std::string& mesure, double secondes,
                    double fois) const {
    const auto a = Secondes.find(mesure);
    if (a == Secondes.end()) return;
    const double attente = std::max(secondes, fois * a->second);
    std::printf("%-52s %8.3f %%  (at most %g)\n", quoi, 100.0 * a->second / (attente + a->second),
                100.0 / fois);
}
