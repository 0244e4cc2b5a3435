// The small DOM of the host library, beside the XML library's own.
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "TalAttributeSchemaHost/compact/CompactDocument.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

using namespace xercesc;

namespace {

class Compact : public testing::Test
{
protected:
    Compact() { m_document.SetRoot(m_document.MakeElement(GuString("Model").c_str())); }

    /// The code of the exception that `action` raises, or 0.
    template <class Action>
    static int CodeOf(Action&& action)
    {
        try {
            action();
        } catch (const DOMException& exception) {
            return exception.code;
        }
        return 0;
    }

    const XercesSession m_session;
    tal::CompactDocument m_document;
};

TEST_F(Compact, SortsAndReplacesAttributesAsTheOtherDom)
{
    const XercesPtr<DOMDocument> other(
        m_session.GetLoadAndSave()->createDocument(nullptr, GuString("Model").c_str(), nullptr));
    unsigned random = 1;
    for (int i = 0; i < 200; ++i) {
        random = random * 1664525 + 1013904223;
        const std::string name = (random >> 16) % 3 == 0 ? "Id" : "a" + std::to_string((random >> 16) % 70);
        const GuString value(std::to_string(i).c_str());
        for (DOMDocument* document : {other.get(), static_cast<DOMDocument*>(&m_document)})
            SetElementAttribute(document->getDocumentElement(), name.c_str(), value);
        if (i % 3 == 0) // so that not all attributes of the root can stand behind each other
            m_document.createElement(GuString("Entity").c_str());
    }
    const DOMNamedNodeMap* const expected = other->getDocumentElement()->getAttributes();
    const DOMNamedNodeMap* const actual = m_document.getDocumentElement()->getAttributes();
    ASSERT_GT(expected->getLength(), 32U);
    ASSERT_EQ(actual->getLength(), expected->getLength());
    for (XMLSize_t i = 0; i < expected->getLength(); ++i) {
        const XMLCh* const name = expected->item(i)->getNodeName();
        EXPECT_EQ(GuString(actual->item(i)->getNodeName()), name);
        EXPECT_EQ(GuString(actual->getNamedItem(name)->getNodeValue()), expected->item(i)->getNodeValue());
    }
    EXPECT_EQ(actual->item(expected->getLength()), nullptr);
    EXPECT_EQ(actual->getNamedItem(GuString("b").c_str()), nullptr);
}

TEST_F(Compact, KeepsChildrenInOrderAndTakesNoneTwice)
{
    DOMElement* const root = m_document.getDocumentElement();
    std::vector<DOMNode*> children;
    for (int i = 0; i < 3; ++i) {
        children.push_back(root->appendChild(m_document.createTextNode(GuString("\n").c_str())));
        children.push_back(root->appendChild(m_document.createElement(GuString("Entity").c_str())));
    }
    const DOMNode* child = root->getFirstChild();
    for (const DOMNode* expected : children) {
        ASSERT_EQ(child, expected);
        child = child->getNextSibling();
    }
    EXPECT_EQ(child, nullptr);
    for (DOMNode* again : {children.front(), children.back(), static_cast<DOMNode*>(root)})
        EXPECT_NE(CodeOf([&] { root->appendChild(again); }), 0);
}

TEST_F(Compact, RefusesWhatItDoesNotDo)
{
    DOMElement* const root = m_document.getDocumentElement();
    tal::CompactDocument other;
    const GuString name("Entity");
    EXPECT_EQ(CodeOf([&] { root->appendChild(other.createElement(name.c_str())); }),
              DOMException::WRONG_DOCUMENT_ERR);
    for (const char* wrong : {"", "1st", "a b", "<"}) {
        const GuString text(wrong);
        EXPECT_EQ(CodeOf([&] { m_document.createElement(text.c_str()); }),
                  DOMException::INVALID_CHARACTER_ERR)
            << wrong;
        EXPECT_EQ(CodeOf([&] { root->setAttribute(text.c_str(), name.c_str()); }),
                  DOMException::INVALID_CHARACTER_ERR)
            << wrong;
    }
    EXPECT_EQ(CodeOf([&] { root->getParentNode(); }), DOMException::NOT_SUPPORTED_ERR);
    EXPECT_EQ(CodeOf([&] { root->getAttributes()->setNamedItem(nullptr); }), DOMException::NOT_SUPPORTED_ERR);
    EXPECT_EQ(CodeOf([&] { m_document.createComment(name.c_str()); }), DOMException::NOT_SUPPORTED_ERR);
}

} // namespace
