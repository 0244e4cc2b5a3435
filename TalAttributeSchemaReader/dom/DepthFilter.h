// Keeps the document shallow while it is parsed.
#pragma once

#include <xercesc/dom/DOMLSParserFilter.hpp>

/// Leaves out the elements that stand deeper than any element of the format: the XML library recurses over
/// what an entity holds, and a hostile document would overflow the stack.
class DepthFilter : public xercesc::DOMLSParserFilter
{
public:
    FilterAction startElement(xercesc::DOMElement*) override;
    FilterAction acceptNode(xercesc::DOMNode*) override;
    xercesc::DOMNodeFilter::ShowType getWhatToShow() const override
    {
        return xercesc::DOMNodeFilter::SHOW_ELEMENT;
    }

private:
    int m_depth = 0;
};
