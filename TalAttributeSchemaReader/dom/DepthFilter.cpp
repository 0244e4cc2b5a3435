#include "TalAttributeSchemaReader/dom/DepthFilter.h"

#include "TalAttributeSchemaReader/format/FolderDepth.h"

using namespace xercesc;

DOMLSParserFilter::FilterAction DepthFilter::startElement(DOMElement*)
{
    if (m_depth == kMaxElementDepth)
        return FILTER_REJECT;
    ++m_depth;
    return FILTER_ACCEPT;
}

DOMLSParserFilter::FilterAction DepthFilter::acceptNode(DOMNode*)
{
    --m_depth;
    return FILTER_ACCEPT;
}
