// The manual page and the shell completion keep up with the tool.
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;

namespace {

const fs::path kRoot = PROJECT_ROOT;

class Manual : public Talschema
{
protected:
    /// What bash offers for the last word of a command line.
    std::string Completed(const std::string& words, int last) const
    {
        Write("complete.sh", ". '" + (kRoot / "tools/talschema/talschema.bash-completion").string() +
                                 "'\nCOMP_WORDS=(" + words + ")\nCOMP_CWORD=" + std::to_string(last) +
                                 "\n_talschema \"$TALSCHEMA\"\necho \"${COMPREPLY[*]}\"\n");
        const Result result = Run("bash complete.sh");
        EXPECT_EQ(result.err, "");
        return result.out;
    }
};

TEST_F(Manual, HasEveryCommandAndOption)
{
    const std::string manual = FileContent(kRoot / "docs/talschema.1");
    const auto section = [&](const std::string& heading) {
        const std::size_t begin = manual.find(heading + "\n");
        EXPECT_NE(begin, std::string::npos) << heading;
        return begin == std::string::npos ? "" : manual.substr(begin, manual.find("\n.S", begin) - begin);
    };
    std::istringstream commands(Completed("talschema ''", 1));
    int count = 0;
    for (std::string command; commands >> command; ++count) {
        const std::string described = section(".SS " + command) + section(".SH OPTIONS");
        std::istringstream options(Completed("talschema " + command + " --", 2));
        for (std::string option; options >> option;) {
            std::string inRoff;
            for (const char character : option)
                inRoff += character == '-' ? "\\-" : std::string(1, character);
            EXPECT_NE(described.find(inRoff), std::string::npos) << command << " " << option;
        }
    }
    EXPECT_GE(count, 8);
}

TEST_F(Manual, IsHelpedByCompletion)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"talschema gr", "graph\n"},
        {"talschema --ver", "--version\n"},
        {"talschema diff --fo", "--format\n"},
        {"talschema diff --format ''", "text json\n"},
        {"talschema diff a.xml --format = j", "json\n"},
        {"talschema show --format =", "tree json\n"},
        {"talschema graph --o", "--only\n"},
        {"talschema check --disable du", "duplicate-id duplicate-type\n"},
        {"talschema check --disable not", "\n"},
        {"talschema check --disable filters,duplicate-i", "filters,duplicate-id\n"},
        {"talschema check --fail-on ''", "error warning note\n"},
        {"talschema show in", "\n"},
        {"talschema explain duplicate", "duplicate-id duplicate-type\n"},
        {"talschema help gr", "graph\n"},
        {"talschema xsd --pa", "--path\n"},
        {"talschema check --stdin", "--stdin-name\n"},
    };
    for (const auto& [words, offered] : cases) {
        std::istringstream stream(words);
        int count = -1;
        for (std::string word; stream >> word;)
            ++count;
        EXPECT_EQ(Completed(words, count), offered) << words;
    }
}

} // namespace
