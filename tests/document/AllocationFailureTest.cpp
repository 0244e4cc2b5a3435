// Memory that runs out: what a failed call leaves behind, and what works after it.
#include <cstdlib>
#include <new>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "TalAttributeSchemaReader/dom/XercesGuards.h"
#include "tests/FailingNew.h"
#include "tests/TestSupport.h"

namespace {

class AllocationFailure : public testing::Test
{
protected:
    void SetUp() override
    {
        WriteFile(m_directory / "in.xml", FileContent(TEST_DOCUMENTS "/written-form.in.xml"));
        m_schema =
            ReadSchema(m_directory / "in.xml"); // with it, what the libraries allocate once in a process
        m_expected = WriteSchemaText(m_schema.get());
        ASSERT_GT(m_expected.size(), 1000u);
    }

    /// Those of a read, without those of the XML library when it goes down.
    static long AllocationsUpToTheEnd(const GuString& path)
    {
        const allocations::Window window;
        CDASchema* schema = nullptr;
        ReadStorageTalAttributeSchema(path, &schema, nullptr);
        const long read = window.Made();
        delete schema;
        xercesc::XMLPlatformUtils::Initialize();
        const long up = window.Made();
        xercesc::XMLPlatformUtils::Terminate();
        return read - (window.Made() - up);
    }

    long AllocationsOfAWrite(CDASchema* schema) const
    {
        const allocations::Window window;
        WriteStorageTalAttributeSchema(m_path, schema, nullptr);
        return window.Made();
    }

    TemporaryDirectory m_directory;
    const GuString m_path{(m_directory / "out.xml").c_str()};
    std::unique_ptr<CDASchema> m_schema;
    std::string m_expected;
};

TEST_F(AllocationFailure, OutOfTheWalkLeavesNothingBehind)
{
    const GuString path((m_directory / "in.xml").c_str());
    const GuString empty((m_directory / "empty.xml").c_str());
    WriteFile(m_directory / "empty.xml", "<Model/>");
    // The XML library allocates while it comes and goes and does not survive a failure there.
    const long first = AllocationsUpToTheEnd(empty) + 1;
    const long last = AllocationsUpToTheEnd(path);
    ASSERT_GT(last, first + 50);
    for (long failing = first; failing <= last; ++failing) {
        CDASchema* schema = m_schema.get();
        const long before = allocations::live;
        {
            const allocations::Window window(failing);
            ASSERT_THROW(ReadStorageTalAttributeSchema(path, &schema, nullptr), std::bad_alloc);
        }
        ASSERT_EQ(schema, m_schema.get());
        ASSERT_EQ(allocations::live, before) << "allocation " << failing;
    }
    EXPECT_EQ(WriteSchemaText(ReadSchema(m_directory / "in.xml").get()), m_expected);
}

TEST_F(AllocationFailure, OfAWriteIsSilentAndLeavesNothingBehind)
{
    long first = 0;
    {
        const allocations::Window window;
        const GuString path = m_path;
        const XercesSession session;
        session.GetLoadAndSave()->createDocument(u"", u"Model", nullptr)->release();
        first = window.Made() + 1;
    }
    // The builders' share: constructors of the XML library leak when memory runs out in the middle of them.
    const long behindLast = first + AllocationsOfAWrite(m_schema.get()) - AllocationsOfAWrite(nullptr);
    ASSERT_GT(behindLast, first + 40);
    for (long failing = first; failing < behindLast; ++failing) {
        const long before = allocations::live;
        {
            const allocations::Window window(failing);
            ASSERT_EQ(WriteStorageTalAttributeSchema(m_path, m_schema.get(), nullptr), 1);
        }
        ASSERT_EQ(allocations::live, before) << "allocation " << failing;
    }
    EXPECT_EQ(WriteSchemaText(m_schema.get()), m_expected);
}

/// Calls an exported function often, each time with another of its allocations failing, and expects nothing
/// but `std::bad_alloc` to leave it. The XML library does not survive a failure while it is initialised, so
/// every call has a process of its own. Returns how often the exception left.
template <class Call>
long ExpectNothingButBadAlloc(Call call)
{
    long thrown = 0;
#ifdef __SANITIZE_ADDRESS__
    constexpr long some = 29; // each takes long there
#else
    constexpr long some = 7;
#endif
    const long step = std::getenv("TAL_EVERY_ALLOCATION") ? 1 : some; // most are the same
    for (long failing = 1;; failing += step) {
        const pid_t child = fork();
        if (child == 0) {
            const allocations::Window window(failing);
            try {
                call();
            } catch (const std::bad_alloc&) {
                _exit(2);
            } catch (...) {
                _exit(3);
            }
            _exit(window.Made() < failing ? 1 : 0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) <= 2)
            << "allocation " << failing << ": status " << status;
        thrown += WIFEXITED(status) && WEXITSTATUS(status) == 2 ? 1 : 0;
        if ((WIFEXITED(status) && WEXITSTATUS(status) == 1) || testing::Test::HasFailure())
            return thrown;
    }
}

TEST_F(AllocationFailure, LeavesTheExportsAsBadAllocWhereverItHappens)
{
    WriteFile(m_directory / "small.xml", "<Model><Entities><Entity Type='Fan'/></Entities></Model>");
    const GuString path((m_directory / "small.xml").c_str());
    const std::unique_ptr<CDASchema> small = ReadSchema(m_directory / "small.xml");
    for (const bool initialised : {false, true}) {
        SCOPED_TRACE(initialised);
        if (initialised) // by the host itself
            xercesc::XMLPlatformUtils::Initialize();
        EXPECT_GT(ExpectNothingButBadAlloc([&] {
                      CDASchema* schema = nullptr;
                      ReadStorageTalAttributeSchema(path, &schema, nullptr);
                  }),
                  0);
        ExpectNothingButBadAlloc([&] { WriteStorageTalAttributeSchema(m_path, small.get(), nullptr); });
        if (initialised)
            xercesc::XMLPlatformUtils::Terminate();
    }
}

} // namespace
