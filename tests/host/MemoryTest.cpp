// Memory that runs out, at every allocation of every call.
#include <cstdlib>
#include <functional>
#include <new>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/FailingNew.h"
#include "tests/TestSupport.h"

namespace {

/// One call of the host library. True when it did what it should, false when it said that it did not.
using Call = std::function<bool()>;

class Memory : public testing::Test
{
protected:
    void SetUp() override
    {
        WriteFile(m_folder / "in.xml",
                  "<Model><Fan/><Storage><StorageType Value='Local'/></Storage><Entities><Entity Type='Fan'/>"
                  "</Entities></Model>");
        WriteFile(m_folder / "out.xml", kOld);
        m_schema = tal::LoadSchema(m_folder / "in.xml").schema;
    }

    std::vector<std::pair<std::string, Call>> Calls()
    {
        return {{"load", [this] { return tal::LoadSchema(m_folder / "in.xml").read; }},
                {"check",
                 [this] {
                     const auto findings = tal::CheckDocument(m_folder / "in.xml").findings;
                     return !tal::IsUnreadable(findings);
                 }},
                {"save", [this] { return tal::SaveSchema(m_folder / "out.xml", *m_schema, {false}).saved; }}};
    }

    static long AllocationsOf(const Call& call)
    {
        call(); // what is made once in a process
        const allocations::Window window;
        EXPECT_TRUE(call());
        return window.Made();
    }

    /// True for the outcome that a call may have when one of its allocations failed.
    static bool Fails(const Call& call, long allocation)
    {
        const allocations::Window window(allocation);
        try {
            return !call();
        } catch (const std::bad_alloc&) { // there was no memory to say so
            return true;
        }
    }

    static inline const std::string kOld = "the old content";
    const TemporaryDirectory m_folder;
    std::unique_ptr<CDASchema> m_schema;
};

TEST_F(Memory, ThatRunsOutIsAnErrorLikeAnyOther)
{
    xercesc::XMLPlatformUtils::Initialize(); // so that what fails is not the initialisation
    for (const auto& [name, call] : Calls()) {
        const long last = AllocationsOf(call);
        int failed = 0;
        int leaks = 0;
        for (long allocation = 1; allocation <= last; ++allocation) {
            const long before = allocations::live;
            failed += Fails(call, allocation) ? 1 : 0;
            leaks += allocations::live == before ? 0 : 1;
        }
        // The XML library leaves something behind when it meets the failure in one of its constructors.
        EXPECT_LE(leaks, 8) << name << ", of " << last;
        EXPECT_GT(failed, 20) << name;
        EXPECT_TRUE(call()) << name;
        RecordProperty(name, failed);
    }
    xercesc::XMLPlatformUtils::Terminate();
}

TEST_F(Memory, ThatRunsOutWhileTheXmlLibraryIsSetUpEndsNoProcess)
{
    const bool all = std::getenv("TAL_EVERY_ALLOCATION") != nullptr;
    long step = all ? 1 : 5;
    for (const auto& [name, call] : Calls()) {
        const long last = AllocationsOf(call);
        for (long allocation = 1; allocation <= last; allocation += step) {
            const pid_t child = fork(); // the XML library does not survive it
            if (child == 0) {
                const bool failed = Fails(call, allocation);
                const bool content = FileContent(m_folder / "out.xml") != "";
                _exit(failed && !content ? 1 : 0);
            }
            int status = 0;
            waitpid(child, &status, 0);
            ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
                << name << ", allocation " << allocation << ": status " << status;
        }
        step = all ? 1 : 23; // of the others, most are the same
    }
}

} // namespace
