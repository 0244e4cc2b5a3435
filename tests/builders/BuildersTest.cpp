// The exported builders as a host uses them: on a DOM of its own.
#include <string>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include "TalAttributeSchemaReader/TalAttributeBuilders.h"
#include "tests/TestSupport.h"

using namespace xercesc;

namespace {

class Builders : public testing::Test
{
protected:
    Builders() { XMLPlatformUtils::Initialize(); }
    ~Builders() override { XMLPlatformUtils::Terminate(); }

    void SetUp() override
    {
        m_document = DOMImplementationRegistry::getDOMImplementation(GuString("LS").c_str())
                         ->createDocument(nullptr, GuString("Root").c_str(), nullptr);
        m_root = m_document->getDocumentElement();
    }
    void TearDown() override { m_document->release(); }

    // Names of all elements in document order, each with its depth.
    static std::string Shape(const DOMNode* node, int depth = 0)
    {
        std::string shape;
        for (const DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
            if (child->getNodeType() == DOMNode::ELEMENT_NODE) {
                GuConversionAllocator allocator;
                shape += std::to_string(depth) + allocator.UnicodeToAnsi(child->getNodeName()) + " ";
            }
            shape += Shape(child, depth + 1);
        }
        return shape;
    }

    DOMDocument* m_document = nullptr;
    DOMElement* m_root = nullptr;
};

TEST_F(Builders, PersistOfAnAttributeTellsWhetherItHasAGenerator)
{
    CDASchema schema;
    FileAttribute* attribute = CMemoryAllocator::CreateAttributeObject(&schema);
    EXPECT_FALSE(CTalAttributeBuilder("", attribute, m_root).Persist());
    CMemoryAllocator::CreateDataGenerator(attribute);
    EXPECT_TRUE(CTalAttributeBuilder("", attribute, m_root).Persist());
    EXPECT_EQ(Shape(m_root), "0Attribute 0Attribute 1DataGenerator 2Type ");
    EXPECT_EQ(m_root->getFirstElementChild()->getAttributes()->getLength(), 10u);
}

TEST_F(Builders, TheFilterBuilderWritesItsSkeleton)
{
    EXPECT_TRUE(CTalAttributeEntityFilterBuilder("", m_root).Persist());
    EXPECT_EQ(Shape(m_root), "0Filter 1criteria 1SubFilter 2criteria ");
    EXPECT_FALSE(m_root->getFirstElementChild()->hasAttributes());
}

TEST_F(Builders, CopiesShareTheModelObjectAndFreeNothing)
{
    CDASchema schema;
    CustomEntity* entity = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    {
        const CTalAttributeEntityFileBuilder original("path", entity, m_root, "rotor");
        CTalAttributeEntityFileBuilder copy(original);
        EXPECT_TRUE(copy.Persist());
        CTalAttributeEntityFileBuilder assigned("", nullptr, nullptr);
        assigned = copy;
        EXPECT_TRUE(assigned.Persist());
    }
    EXPECT_EQ(Shape(m_root), "0File 0File ");
    EXPECT_EQ(GuString(m_root->getLastElementChild()->getAttribute(GuString("IDRef").c_str())),
              GuString("rotor"));
    EXPECT_TRUE(entity->GetTypeName().IsEmpty());
}

TEST_F(Builders, DoNothingOnNullOrForeignNodes)
{
    CDASchema schema;
    for (DOMNode* node : {static_cast<DOMNode*>(nullptr), static_cast<DOMNode*>(m_root)}) {
        EXPECT_TRUE(CTalAttributeDefinationBuilder("", node, &schema).Construct());
        EXPECT_TRUE(CTalAttributeEntitiesBuilder("", &schema, node).Construct());
        EXPECT_TRUE(CTalAttributeEntityFilterBuilder("", node).Construct());
    }
    EXPECT_TRUE(CTalAttributeEntitiesBuilder("", &schema, nullptr).Persist());
    EXPECT_TRUE(CTalAttributeDefinationBuilder("", nullptr, &schema).Persist());
    EXPECT_EQ(WriteSchemaText(&schema), kEmptySchemaText);

    // With a null model object an element is still appended, without attributes.
    CTalAttributeEntityFileBuilder("", nullptr, m_root, "rotor").Persist();
    EXPECT_FALSE(m_root->getFirstElementChild()->hasAttributes());
    EXPECT_TRUE(
        CTalAttributeEntityLoadCaseBuilder("", static_cast<CLoadCaseTemplate*>(nullptr), m_root).Persist());
    EXPECT_EQ(Shape(m_root), "0File ");
}

} // namespace
