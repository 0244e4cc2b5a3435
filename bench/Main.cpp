// Measures the library beside the XML library alone and its peers.
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Contender.h"
#include "DocumentGenerator.h"
#include "Report.h"
#include "tests/TestSupport.h"

namespace {

struct Size
{
    const char* name;
    std::size_t bytes;
    int repetitions;
    int iterations; // of one repetition
};

constexpr Size kSizes[] = {
    {"small", 80'000, 81, 10}, {"medium", 8'000'000, 61, 1}, {"large", 80'000'000, 9, 1}};

struct Options
{
    std::string sizes = "small,medium,large";
    std::string json;
    int repetitions = 0; // 0: what the size says
    // Everything else is for the benchmark library, such as --benchmark_filter=REGEX.
    std::vector<char*> rest;
};

// What is read and written at one size.
struct Documents
{
    std::string read;  // with everything that the library reads
    std::string write; // as the library writes it, again and again
};

std::vector<std::shared_ptr<Contender>> MakeContenders()
{
    return {
        MakeLibrary(), MakeHost(),    MakeHostWithFindings(), MakeHostInSession(), MakeHostNotReadingAgain(),
        MakeFloor(),   MakeBinding(), MakeLibxml2(),          MakePugixml()};
}

void Rewrite(Contender& contender, const std::string& input, const std::string& output)
{
    contender.Load(input);
    contender.Write(output);
    contender.Unload();
}

void MakeDocuments(const Documents& documents, std::size_t bytes)
{
    std::ofstream file(documents.read, std::ios::binary);
    GenerateDocument(file, bytes);
    file.close();
    // The first rewrite drops what is read only, the second what the first wrote and nothing reads.
    Rewrite(*MakeLibrary(), documents.read, documents.write);
    Rewrite(*MakeLibrary(), documents.write, documents.write);
}

// Only contenders that do the same work can be compared. The library is the judge: read by it, a document
// that another one has read and written must still be the same model.
void CheckContenders(const Documents& documents, const TemporaryDirectory& directory)
{
    const std::string written = directory / "check.xml";
    const std::string rewritten = directory / "check.rewritten.xml";
    Rewrite(*MakeLibrary(), documents.read, rewritten);
    const std::string expected = FileContent(rewritten);
    for (const auto& contender : MakeContenders()) {
        if (contender->Name() == kLibrary)
            continue;
        Rewrite(*contender, documents.read, written);
        if (FileContent(written) ==
            expected) // as the library itself, to which reading it again would do more
            continue;
        Rewrite(*MakeLibrary(), written, rewritten);
        if (FileContent(rewritten) != expected)
            throw std::runtime_error(contender->Name() + " changes the model");
    }
    for (const auto& contender : {MakeLibrary(), MakeHost(), MakeFloor()}) {
        Rewrite(*contender, documents.write, written);
        if (FileContent(written) != FileContent(documents.write))
            throw std::runtime_error(contender->Name() + " writes another document");
    }
}

// Works in a child process and returns its peak in MiB. What this process has in memory counts too, so it
// reads no document itself before the last child is gone.
template <class Work>
double PeakMemoryOf(Work&& work)
{
    const pid_t child = fork();
    if (child == 0) {
        try {
            work();
            _exit(EXIT_SUCCESS);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
            _exit(EXIT_FAILURE);
        }
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
        throw std::runtime_error("a child process failed");
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

template <class Run>
void Register(const Measurement& measurement, const Size& size, const Options& options, Run&& run)
{
    benchmark::RegisterBenchmark(measurement.Name().c_str(), run)
        ->Iterations(size.iterations)
        ->Repetitions(options.repetitions ? options.repetitions : size.repetitions);
}

Options ParseOptions(int argc, char** argv)
{
    Options options;
    options.rest = {argv[0]};
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const std::size_t end = argument.find('=') + 1;
        const std::string name = argument.substr(0, end);
        const std::string value = argument.substr(end);
        if (name == "--sizes=")
            options.sizes = value;
        else if (name == "--json=")
            options.json = value;
        else if (name == "--repetitions=")
            options.repetitions = std::stoi(value);
        else
            options.rest.push_back(argv[i]);
    }
    return options;
}

void Run(const Options& options)
{
    const TemporaryDirectory directory;
    const std::string output = directory / "output.xml";
    const auto contenders = MakeContenders();
    Report report;
    bool checked = false;
    for (const Size& size : kSizes) {
        if (options.sizes.find(size.name) == std::string::npos)
            continue;
        const std::string stem = directory / size.name;
        const Documents documents{stem + ".xml", stem + ".written.xml"};
        PeakMemoryOf([&] {
            MakeDocuments(documents, size.bytes);
            if (!checked)
                CheckContenders(documents, directory);
        });
        checked = true;
        for (const auto& contender : contenders) {
            std::cerr << size.name << ", " << contender->Name() << ": peak memory\n";
            Measurement read{"read", size.name, contender->Name()};
            read.peakMemory = PeakMemoryOf([&] {
                contender->Begin();
                contender->Read(documents.read);
                contender->End();
            });
            Register(read, size, options, [=](benchmark::State& state) {
                contender->Begin();
                for ([[maybe_unused]] auto _ : state)
                    contender->Read(documents.read);
                contender->End();
            });
            report.measurements.push_back(read);

            Measurement write{"write", size.name, contender->Name()};
            write.peakMemory = PeakMemoryOf([&] { Rewrite(*contender, documents.write, output); });
            Register(write, size, options, [=](benchmark::State& state) {
                contender->Load(documents.write);
                contender->Begin();
                for ([[maybe_unused]] auto _ : state)
                    contender->Write(output);
                contender->End();
                contender->Unload();
            });
            report.measurements.push_back(write);
        }
    }

    std::cerr << "times\n";
    benchmark::RunSpecifiedBenchmarks(&report);
    report.PrintTables(std::cout);
    if (!options.json.empty()) {
        std::ofstream file(options.json);
        report.WriteJson(file);
        if (!file.flush())
            throw std::runtime_error("cannot write " + options.json);
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        Options options = ParseOptions(argc, argv);
        std::string interleaving = "--benchmark_enable_random_interleaving=true";
        options.rest.insert(options.rest.begin() + 1, interleaving.data());
        int count = static_cast<int>(options.rest.size());
        benchmark::Initialize(&count, options.rest.data());
        if (benchmark::ReportUnrecognizedArguments(count, options.rest.data()))
            return EXIT_FAILURE;
        Run(options);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
