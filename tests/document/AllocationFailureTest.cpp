// Memory that runs out: what a failed call leaves behind, and what works after it.
#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "tests/TestSupport.h"

namespace {

bool counting = false;
long allocations = 0;
long failAt = 0; // the allocation that fails, counted from 1; 0 for none
long live = 0;

struct AllocationWindow
{
    explicit AllocationWindow(long failing)
    {
        allocations = live = 0;
        failAt = failing;
        counting = true;
    }
    ~AllocationWindow() { counting = false; }
};

} // namespace

void* operator new(std::size_t size)
{
    if (counting && ++allocations == failAt)
        throw std::bad_alloc();
    void* memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    live += counting;
    return memory;
}

void operator delete(void* memory) noexcept
{
    live -= counting && memory;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

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

    long AllocationsOfAWrite(CDASchema* schema) const
    {
        const AllocationWindow window(0);
        WriteStorageTalAttributeSchema(m_path, schema, nullptr);
        return allocations;
    }

    TemporaryDirectory m_directory;
    const GuString m_path{(m_directory / "out.xml").c_str()};
    std::unique_ptr<CDASchema> m_schema;
    std::string m_expected;
};

TEST_F(AllocationFailure, OutOfTheWalkLeavesNothingBehind)
{
    const GuString path((m_directory / "in.xml").c_str());
    long last = 0;
    {
        const AllocationWindow window(0);
        CDASchema* schema = nullptr;
        ReadStorageTalAttributeSchema(path, &schema, nullptr);
        last = allocations;
        delete schema;
        // The XML library allocates while it goes down and does not survive a failure there.
        xercesc::XMLPlatformUtils::Initialize();
        const long up = allocations;
        xercesc::XMLPlatformUtils::Terminate();
        last -= allocations - up;
    }
    // The walk follows the parse, so it has the last allocations; the first failure that is caught is the
    // parser's.
    int thrown = 0;
    for (bool inWalk = true; inWalk; --last) {
        CDASchema* const untouched = m_schema.get();
        CDASchema* schema = untouched;
        {
            const AllocationWindow window(last);
            try {
                ReadStorageTalAttributeSchema(path, &schema, nullptr);
                inWalk = false;
            } catch (const std::bad_alloc&) {
                ++thrown;
            }
        }
        if (schema != untouched)
            delete schema;
        else
            ASSERT_EQ(live, 0) << "allocation " << last;
    }
    EXPECT_GT(thrown, 50);
    EXPECT_EQ(WriteSchemaText(ReadSchema(m_directory / "in.xml").get()), m_expected);
}

TEST_F(AllocationFailure, OfAWriteIsSilentAndLeavesNothingBehind)
{
    long first = 0;
    {
        const AllocationWindow window(0);
        const GuString path = m_path;
        xercesc::XMLPlatformUtils::Initialize();
        auto* implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
        implementation->createDocument(u"", u"Model", nullptr)->release();
        first = allocations + 1;
        xercesc::XMLPlatformUtils::Terminate();
    }
    // The builders' share: constructors of the XML library leak when memory runs out in the middle of them.
    const long behindLast = first + AllocationsOfAWrite(m_schema.get()) - AllocationsOfAWrite(nullptr);
    ASSERT_GT(behindLast, first + 100);
    for (long failing = first; failing < behindLast; ++failing) {
        {
            const AllocationWindow window(failing);
            ASSERT_EQ(WriteStorageTalAttributeSchema(m_path, m_schema.get(), nullptr), 1);
        }
        ASSERT_EQ(live, 0) << "allocation " << failing;
    }
    EXPECT_EQ(WriteSchemaText(m_schema.get()), m_expected);
}

} // namespace
