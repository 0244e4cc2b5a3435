// What a document defines and refers to, and the findings about it.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "TalAttributeSchemaHost/check/FindingLog.h"
#include "TalAttributeSchemaHost/check/References.h"
#include "TalAttributeSchemaHost/findings/ElementPath.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal {

class ReferenceChecker
{
public:
    /// `path` is that of the element at which the check stands. It and the log must outlive the object.
    ReferenceChecker(std::size_t mostFindings, const ElementPath& path, FindingLog& log);

    /// Takes the value that `rule` defines something by, in the tag `markup`.
    void Define(const AttributeRule& rule, XmlView id, std::size_t markup);
    /// Takes the value that `rule` refers to something by.
    void Refer(const AttributeRule& rule, XmlView id, std::size_t markup);
    /// Takes what an element that is skipped would define. `cause` is the number of the finding about it, or
    /// about the one around it.
    void Hide(const XMLCh* name, const std::vector<XmlAttribute>& attributes, std::size_t markup,
              std::optional<std::size_t> cause);

    /// Reports what names nothing. Call once, when all is defined.
    void ReportDangling();

private:
    const ElementPath& m_path;
    FindingLog& m_log;
    References m_references;
};

} // namespace tal
