#include "pair_table.h"

#include <algorithm>
#include <cstdio>

namespace lorvo::bench {

namespace {

/// "measure/size" of a benchmark's name, and what stands behind it.
std::pair<std::string, std::string> Split(const std::string& name) {
    const std::size_t first = name.find('/');
    const std::size_t second = name.find('/', first + 1);
    const std::size_t third = std::min(name.find('/', second + 1), name.size());
    return {name.substr(0, second), name.substr(second + 1, third - second - 1)};
}

std::string Milliseconds(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value < 10 ? "%.2f" : "%.0f", value);
    return text;
}

} // namespace

bool PairTable::ReportContext(const Context&) {
    return true;
}

void PairTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred)
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                         run.error_message.c_str());
        const bool repeated = run.repetitions > 1;
        if (run.error_occurred || (repeated && run.aggregate_name != "median"))
            continue;
        const auto [measure, side] = Split(run.run_name.function_name);
        if (!rows_.contains(measure))
            order_.push_back(measure);
        Row& row = rows_[measure];
        (side == "bare" ? row.bare : row.program) = run.GetAdjustedRealTime();
        for (const auto& [name, counter] : run.counters)
            row.counters[side == "bare" ? "bare " + name : name] = counter.value;
    }
}

void PairTable::Finalize() {
    std::printf("| measure | ms | bare ms | ratio | |\n|---|---|---|---|---|\n");
    for (const std::string& measure : order_) {
        const Row& row = rows_[measure];
        std::string notes;
        for (const auto& [name, value] : row.counters)
            notes += (notes.empty() ? "" : ", ") + name + " " + Milliseconds(value);
        std::printf(
            "| %s | %s | %s | %s | %s |\n", measure.c_str(), Milliseconds(row.program).c_str(),
            row.bare > 0 ? Milliseconds(row.bare).c_str() : "",
            row.bare > 0 ? Milliseconds(row.program / row.bare).c_str() : "", notes.c_str());
    }
}

int RunAndPrint(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    PairTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}

} // namespace lorvo::bench
