// Keeps the document shallow while it is parsed.
#include "TalAttributeSchemaReader/document/DepthFilter.h"

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"

using namespace xercesc;

namespace {

// "Condition" is the seventh element from the root on; a reference stands in the deepest folder.
constexpr int kMaxDepth = 7 + kMaxFolderDepth + 1;

} // namespace

DOMLSParserFilter::FilterAction DepthFilter::startElement(DOMElement*)
{
    if (m_depth == kMaxDepth)
        return FILTER_REJECT;
    ++m_depth;
    return FILTER_ACCEPT;
}

DOMLSParserFilter::FilterAction DepthFilter::acceptNode(DOMNode*)
{
    --m_depth;
    return FILTER_ACCEPT;
}
