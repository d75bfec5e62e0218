#pragma once
// Prints what the program takes beside the bare limit of the same work, as a table for the
// documents.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace lorvo::bench {

/// Reads benchmarks named "measure/size/program" and "measure/size/bare" (repetitions count by
/// their median) and prints a row for each measure and size. Names with other ends are rows without
/// a bare limit.
class PairTable : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    struct Row {
        double program = 0;
        double bare = 0;
        std::map<std::string, double> counters;
    };
    std::vector<std::string> order_;
    std::map<std::string, Row> rows_;
};

/// Runs all registered benchmarks and prints the table.
int RunAndPrint(int argc, char** argv);

} // namespace lorvo::bench
