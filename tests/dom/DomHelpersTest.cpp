// The DOM helpers on null and on odd text, and the section builders that are not exported.
#include <string>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include "TalAttributeSchemaReader/builders/CTalAttributeStorageBuilder.h"
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

using namespace xercesc;

namespace {

class DomHelpers : public testing::Test
{
protected:
    XercesSession m_session;
    XercesPtr<DOMDocument> m_document{
        m_session.GetLoadAndSave()->createDocument(nullptr, GuString("Model").c_str(), nullptr)};
    DOMElement* m_root = m_document->getDocumentElement();
};

TEST_F(DomHelpers, DoNothingOnNull)
{
    EXPECT_EQ(AppendChildElement(nullptr, "Storage"), nullptr);
    EXPECT_EQ(AppendChildElement(m_document.get(), "Storage"), nullptr) << "a document is in no document";
    SetElementAttribute(nullptr, "ID", "1");
    EXPECT_TRUE(GuStringFromXMLCh(nullptr).IsEmpty());
    EXPECT_FALSE(IsElementNamed(nullptr, "Model"));
    EXPECT_EQ(AsElement(nullptr), nullptr);
    CTalAttributeModelBuilder("", nullptr, nullptr).TraverseModelElements(nullptr);
    EXPECT_TRUE(CTalAttributeStorageBuilder("", nullptr, m_root).Persist());
    EXPECT_FALSE(m_root->hasChildNodes());
}

TEST_F(DomHelpers, ElementsFollowALineFeedAndAttributesAreReplaced)
{
    AppendChildElement(m_root, "First");
    DOMElement* second = AppendChildElement(m_root, "Second");
    EXPECT_EQ(second, m_root->getLastChild());
    EXPECT_EQ(GuString(second->getPreviousSibling()->getNodeValue()), GuString("\n"));
    EXPECT_EQ(m_root->getChildNodes()->getLength(), 4u);
    SetElementAttribute(second, "ID", "1");
    SetElementAttribute(second, "ID", "2");
    EXPECT_EQ(NamedAttribute(second, "ID"), GuString("2"));
    EXPECT_EQ(NamedAttribute(second, "id"), std::nullopt);
    EXPECT_THROW(AppendChildElement(m_root, "no name"), DOMException);
}

TEST_F(DomHelpers, TheShortWayOfATextGivesWhatTheLongWayGives)
{
    for (char32_t codePoint = 1; codePoint <= 0x10FFFF; codePoint += codePoint < 0x11000 ? 1 : 97) {
        std::basic_string<GuChar> units(1, u'a');
        AppendCodePoint(units, codePoint);
        const GuString text(units.c_str());
        GuConversionAllocator allocator;
        ASSERT_EQ(ThroughNarrowCodePage(text), GuString(allocator.UnicodeToAnsi(text.c_str())))
            << std::hex << codePoint;
    }
}

TEST_F(DomHelpers, TheNameTestGivesWhatTranscodedNamesGive)
{
    for (const GuString name :
         {u"Attribute", u"attribute", u"Attribut", u"Attributes", u"", u"\u0410ttribute", u"Attribute\u00e9",
          u"Attrib\uFF55te", u"\u0141ttribute"}) {
        char* transcoded = XMLString::transcode(name.c_str());
        EXPECT_EQ(NodeName(name.c_str()) == "Attribute", std::string(transcoded) == "Attribute")
            << transcoded;
        XMLString::release(&transcoded);
    }
}

TEST_F(DomHelpers, AValueIsWhatItsAttributeSaysHoweverTheDomHoldsIt)
{
    const auto value = [&] { return NamedAttribute(m_root, "Value").value(); };
    DOMAttr* attribute = m_document->createAttribute(GuString("Value").c_str());
    m_root->setAttributeNode(attribute);
    EXPECT_TRUE(value().IsEmpty()) << "no text node";
    for (const GuString text : {"", "blade"}) {
        attribute->setValue(text.c_str());
        EXPECT_EQ(value(), text);
    }
    attribute->appendChild(m_document->createTextNode(GuString(" and hub").c_str()));
    EXPECT_EQ(value(), GuString("blade and hub"));
    attribute->removeChild(attribute->getFirstChild());
    attribute->removeChild(attribute->getFirstChild());
    attribute->appendChild(m_document->createEntityReference(GuString("hub").c_str()));
    EXPECT_EQ(value(), GuString(attribute->getValue()));
}

} // namespace
