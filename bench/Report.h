// The figures of a benchmark run, as tables for people and as JSON for programs.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

/// What one contender took for one operation on one document.
struct Measurement
{
    std::string operation;
    std::string size;
    std::string contender;
    double peakMemory = 0; // MiB
    // Medians, in milliseconds.
    double cpuTime = 0;
    double wallTime = 0;

    /// The name of its benchmark.
    std::string Name() const { return operation + '/' + size + '/' + contender; }
};

/// Takes the times of the benchmarks that its measurements name.
class Report : public benchmark::BenchmarkReporter
{
public:
    std::vector<Measurement> measurements;

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    void PrintTables(std::ostream& stream) const;
    void WriteJson(std::ostream& stream) const;

private:
    using Figure = double Measurement::*;

    double Get(const std::string& operation, const std::string& size, const std::string& contender,
               Figure figure) const;
    void PrintTable(std::ostream& stream, const std::string& title, const std::string& operation,
                    Figure figure) const;
    void PrintGoals(std::ostream& stream) const;
};
