// Memory that runs out in the tool.
#include <cstdlib>
#include <string>

#include "tests/tools/ToolProcess.h"
#include "tools/talschema/terminal/Messages.h"

namespace fs = std::filesystem;

namespace {

class MemoryFaults : public Talschema
{
protected:
    void SetUp() override { Write("in.xml", FileContent(fs::path(PROJECT_ROOT) / "examples/bracket.xml")); }

    Result RunWithFault(const std::string& command, long allocation) const
    {
        fs::remove(m_reports / "failed");
        return Run("export FAULT_ALLOCATION=" + std::to_string(allocation) + " FAULT_REPORT='" +
                   (m_reports / "failed").string() +
                   "' LD_PRELOAD=" FAILING_MEMORY_PATH "; exec \"$TALSCHEMA\" " + command);
    }

    bool HasFailed() const { return fs::exists(m_reports / "failed"); }

    static inline const std::string kOld = "the old content";

private:
    const TemporaryDirectory m_reports;
};

TEST_F(MemoryFaults, EndEveryCommandWithAMessage)
{
    const long step = std::getenv("TAL_EVERY_ALLOCATION") ? 1 : 199; // most are the same
    for (const std::string command :
         {"rewrite in.xml out.xml", "show in.xml", "show --format json in.xml", "diff in.xml in.xml",
          "graph in.xml", "check in.xml", "check --format sarif in.xml"}) {
        int failed = 0;
        long allocation = 1;
        for (;; allocation += step) {
            Write("out.xml", kOld);
            const Result result = RunWithFault(command, allocation);
            SCOPED_TRACE(command + ", allocation " + std::to_string(allocation) + ": " + result.err);
            if (!HasFailed())
                break;
            // The standard library and the XML library can do without some of it.
            ASSERT_TRUE(result.exitCode == kExitFine || result.exitCode == kExitTrouble) << result.exitCode;
            EXPECT_EQ(result.exitCode == kExitTrouble,
                      result.err.find(": error: not enough memory\n") != std::string::npos);
            EXPECT_TRUE(result.exitCode == kExitFine || Content("out.xml") == kOld);
            EXPECT_EQ(Names(), (std::vector<std::string>{"in.xml", "out.xml"}));
            failed += result.exitCode == kExitTrouble ? 1 : 0;
        }
        EXPECT_GT(failed, 10) << command;
        EXPECT_GT(allocation, 3000) << command;
    }
}

} // namespace
