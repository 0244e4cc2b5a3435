// The figures of a benchmark run, as tables for people and as JSON for programs.
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
