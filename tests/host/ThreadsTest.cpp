// Calls of the host library that overlap, on good documents and on bad ones. scripts/test-threads.sh runs
// them under ThreadSanitizer.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/TestSupport.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kThreads = 8;
constexpr int kRounds = 6;

/// What a document gives: what the check says of it, and what is saved of it.
struct Outcome
{
    std::string findings;
    std::string saved;

    bool operator==(const Outcome& other) const { return findings == other.findings && saved == other.saved; }
};

std::string Said(const std::vector<tal::Finding>& findings)
{
    std::string text;
    for (const tal::Finding& finding : findings)
        text += std::to_string(finding.range.begin.line) + ": " + finding.message + "\n";
    return text;
}

Outcome OutcomeOf(const fs::path& document, const fs::path& output)
{
    const tal::LoadResult loaded = tal::LoadSchema(document);
    Outcome outcome = {Said(tal::CheckDocument(document).findings) + Said(loaded.findings), ""};
    tal::SaveOptions options;
    options.flush = false;
    if (loaded && tal::SaveSchema(output, *loaded.schema, options))
        outcome.saved = FileContent(output);
    return outcome;
}

TEST(Threads, GiveWhatOneThreadGives)
{
    const TemporaryDirectory folder;
    std::vector<fs::path> documents;
    const fs::path findings = fs::path(PROJECT_ROOT) / "tests/tools/findings";
    for (const char* name : {"clean", "not-well-formed", "not-valid", "wrong-root", "invalid-byte",
                             "outside-folder", "entities-of-xml", "unsupported-version", "external"})
        documents.push_back(findings / (std::string(name) + ".xml"));
    documents.push_back(fs::path(PROJECT_ROOT) / "examples/bracket.xml");
    documents.push_back(folder / "gone.xml");

    std::atomic<int> different = 0;
    std::vector<std::vector<Outcome>> outcomes(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < kThreads; ++number) {
        threads.emplace_back([&, number] {
            const fs::path output = folder / std::to_string(number);
            std::vector<Outcome>& first = outcomes[number];
            for (const fs::path& document : documents)
                first.push_back(OutcomeOf(document, output));
            for (int round = 1; round < kRounds; ++round) {
                // Everybody begins somewhere else.
                const std::size_t i = (number * 3 + static_cast<std::size_t>(round)) % documents.size();
                different += OutcomeOf(documents[i], output) == first[i] ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(different, 0);
    for (std::size_t i = 0; i < documents.size(); ++i) {
        const Outcome alone = OutcomeOf(documents[i], folder / "alone");
        for (const std::vector<Outcome>& threaded : outcomes)
            EXPECT_TRUE(threaded[i] == alone) << documents[i];
    }
}

} // namespace
