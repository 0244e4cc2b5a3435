// Checks the attributes of an element beside the format table.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/FindingLog.h"
#include "TalAttributeSchemaHost/check/FixProposals.h"
#include "TalAttributeSchemaHost/check/OpenElements.h"
#include "TalAttributeSchemaHost/check/ReferenceChecker.h"
#include "TalAttributeSchemaHost/platform/CodePage.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"
#include "TalAttributeSchemaHost/table/KnownAttributes.h"

namespace tal {

class AttributeChecker
{
public:
    /// `codePage` may be null. All of them must outlive the object.
    AttributeChecker(const CodePage* codePage, OpenElements& open, ReferenceChecker& references,
                     FindingLog& log)
        : m_codePage(codePage), m_open(open), m_references(references), m_log(log)
    {
    }

    /// Checks the attributes of the innermost open element. Returns false when they keep it from being read.
    bool Check(const KnownAttributes& attributes);

private:
    bool CheckNone();
    bool CheckKnown(const AttributeRule& rule, const XmlAttribute& attribute,
                    const KnownAttributes& attributes);
    void CheckValue(const AttributeRule& rule, const XmlAttribute& attribute);
    void CheckFlag(const AttributeRule& rule, const XmlAttribute& attribute);
    void CheckUnreadValue(const AttributeRule& rule, const XmlAttribute& unread,
                          const KnownAttributes& attributes);
    void CheckCodePage(const XmlAttribute& attribute);
    void CheckUnread(const XmlAttribute& attribute);
    void ReportUnknown(const std::string& name, const XmlAttribute& attribute);

    const CodePage* m_codePage;
    OpenElements& m_open;
    ReferenceChecker& m_references;
    FindingLog& m_log;
    AttributeRenames m_renames; // in the element that is checked
};

} // namespace tal
