#include "Report.h"

#include <algorithm>
#include <cstddef>
#include <iomanip>

#include <nlohmann/json.hpp>

#include "Contender.h"

namespace {

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::vector<std::string> Distinct(const std::vector<Measurement>& measurements,
                                  std::string Measurement::*member)
{
    std::vector<std::string> names;
    for (const Measurement& measurement : measurements) {
        if (std::find(names.begin(), names.end(), measurement.*member) == names.end())
            names.push_back(measurement.*member);
    }
    return names;
}

} // namespace

void Report::ReportRuns(const std::vector<Run>& runs)
{
    std::vector<double> cpuTimes;
    std::vector<double> wallTimes;
    std::string name;
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double milliseconds = 1e3 / static_cast<double>(run.iterations);
        cpuTimes.push_back(run.cpu_accumulated_time * milliseconds);
        wallTimes.push_back(run.real_accumulated_time * milliseconds);
        name = run.run_name.function_name;
    }
    for (Measurement& measurement : measurements) {
        if (measurement.Name() == name) {
            measurement.cpuTime = Median(cpuTimes);
            measurement.wallTime = Median(wallTimes);
        }
    }
}

double Report::Get(const std::string& operation, const std::string& size, const std::string& contender,
                   Figure figure) const
{
    for (const Measurement& measurement : measurements) {
        if (measurement.operation == operation && measurement.size == size &&
            measurement.contender == contender)
            return measurement.*figure;
    }
    return 0;
}

void Report::PrintTables(std::ostream& stream) const
{
    PrintTable(stream, "read, ms", "read", &Measurement::cpuTime);
    PrintTable(stream, "write, ms", "write", &Measurement::cpuTime);
    PrintTable(stream, "peak memory of a read, MiB", "read", &Measurement::peakMemory);
    PrintTable(stream, "peak memory of a read and a write, MiB", "write", &Measurement::peakMemory);
    PrintGoals(stream);
}

// What one figure may be at most, as a multiple of another one.
void Report::PrintGoals(std::ostream& stream) const
{
    struct Goal
    {
        const char* title;
        const char* operation;
        const char* size;
        const char* contender;
        const char* base;
        const char* baseSize;
        Figure figure;
        double atMost;
    };
    constexpr Figure time = &Measurement::cpuTime;
    constexpr Figure memory = &Measurement::peakMemory;
    constexpr Goal goals[] = {
        {"load, small", "read", "small", kHost, kFloor, "small", time, 0.65},
        {"load, medium", "read", "medium", kHost, kFloor, "medium", time, 0.42},
        {"load, large", "read", "large", kHost, kFloor, "large", time, 0.45},
        {"load with findings, medium", "read", "medium", kHostWithFindings, kFloor, "medium", time, 0.75},
        {"load, small, session held, to one without", "read", "small", kHostInSession, kHost, "small", time,
         0.5},
        {"save, small", "write", "small", kHost, kFloor, "small", time, 0.65},
        {"save, medium", "write", "medium", kHost, kFloor, "medium", time, 0.42},
        {"save, large", "write", "large", kHost, kFloor, "large", time, 0.42},
        {"save, not read again, small", "write", "small", kHostNotReadingAgain, kFloor, "small", time, 0.65},
        {"save, not read again, medium", "write", "medium", kHostNotReadingAgain, kFloor, "medium", time,
         0.42},
        {"save, not read again, large", "write", "large", kHostNotReadingAgain, kFloor, "large", time, 0.42},
        {"load, medium, to the XSD binding", "read", "medium", kHost, kBinding, "medium", time, 0.28},
        {"save, medium, to the XSD binding", "write", "medium", kHost, kBinding, "medium", time, 0.40},
        {"save, not read again, medium, to the XSD binding", "write", "medium", kHostNotReadingAgain,
         kBinding, "medium", time, 0.40},
        {"peak memory of a load, medium", "read", "medium", kHost, kFloor, "medium", memory, 0.40},
        {"peak memory of a load, large", "read", "large", kHost, kFloor, "large", memory, 0.40},
        {"load, large to medium", "read", "large", kHost, kHost, "medium", time, 11},
        {"save, large to medium", "write", "large", kHost, kHost, "medium", time, 11},
        {"read of the exports, medium", "read", "medium", kLibrary, kFloor, "medium", time, 1.20},
        {"write of the exports, medium", "write", "medium", kLibrary, kFloor, "medium", time, 1.10},
    };
    stream << "\n| goal, to the floor where nothing else is said | at most | measured |\n|---|---:|---:|\n";
    for (const Goal& goal : goals) {
        const double value = Get(goal.operation, goal.size, goal.contender, goal.figure);
        const double base = Get(goal.operation, goal.baseSize, goal.base, goal.figure);
        if (!(value > 0) || !(base > 0))
            continue;
        stream << "| " << goal.title << " | " << goal.atMost << " | " << value / base
               << (value / base > goal.atMost ? ", not met" : "") << " |\n";
    }
}

// Behind each figure its ratio to the floor.
void Report::PrintTable(std::ostream& stream, const std::string& title, const std::string& operation,
                        Figure figure) const
{
    const auto sizes = Distinct(measurements, &Measurement::size);
    stream << "\n| " << title;
    for (const std::string& size : sizes)
        stream << " | " << size;
    stream << " | large / medium |\n|---";
    for (std::size_t i = 0; i <= sizes.size(); ++i)
        stream << "|---:";
    stream << "|\n" << std::fixed << std::setprecision(2);
    for (const std::string& contender : Distinct(measurements, &Measurement::contender)) {
        stream << "| " << contender;
        for (const std::string& size : sizes) {
            const double value = Get(operation, size, contender, figure);
            stream << " | ";
            if (value > 0)
                stream << value << " (" << value / Get(operation, size, kFloor, figure) << ')';
        }
        const double medium = Get(operation, "medium", contender, figure);
        const double large = Get(operation, "large", contender, figure);
        stream << " | ";
        if (medium > 0 && large > 0)
            stream << large / medium;
        stream << " |\n";
    }
}

void Report::WriteJson(std::ostream& stream) const
{
    auto json = nlohmann::ordered_json::array();
    for (const Measurement& measurement : measurements) {
        const auto toFloor = [&](Figure figure) {
            return measurement.*figure / Get(measurement.operation, measurement.size, kFloor, figure);
        };
        json.push_back({{"operation", measurement.operation},
                        {"size", measurement.size},
                        {"contender", measurement.contender},
                        {"cpuMilliseconds", measurement.cpuTime},
                        {"cpuToFloor", toFloor(&Measurement::cpuTime)},
                        {"wallMilliseconds", measurement.wallTime},
                        {"wallToFloor", toFloor(&Measurement::wallTime)},
                        {"peakMebibytes", measurement.peakMemory},
                        {"peakToFloor", toFloor(&Measurement::peakMemory)}});
    }
    stream << json.dump(2) << '\n';
}
