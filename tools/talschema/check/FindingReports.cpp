#include "tools/talschema/check/FindingReports.h"

#include <nlohmann/json.hpp>

#include "TalAttributeSchemaHost/findings/FindingExplanations.h"
#include "TalAttributeSchemaHost/findings/FindingRules.h"
#include "tools/talschema/terminal/Text.h"

using nlohmann::ordered_json;
using tal::Finding;

namespace {

/// One line, safe for a terminal. Names of files need not be UTF-8.
std::string AsLine(const ordered_json& json)
{
    return Printable(json.dump(-1, ' ', false, ordered_json::error_handler_t::replace));
}

ordered_json JsonEdits(const Finding& finding, const FindingStyle& style)
{
    ordered_json edits = ordered_json::array();
    for (const tal::Edit& edit : finding.fix) {
        const auto& [begin, end] = edit.range;
        edits.push_back({{"line", begin.line},
                         {"column", style.ColumnOf(begin)},
                         {"endLine", end.line},
                         {"endColumn", style.ColumnOf(end)},
                         {"offset", begin.offset},
                         {"endOffset", end.offset},
                         {"replacement", edit.replacement}});
    }
    return edits;
}

ordered_json JsonFinding(const Finding& finding, const FindingStyle& style)
{
    const auto& [begin, end] = finding.range;
    ordered_json json = {{"file", finding.file},
                         {"line", begin.line},
                         {"column", style.ColumnOf(begin)},
                         {"endLine", end.line},
                         {"endColumn", style.ColumnOf(end)},
                         {"offset", begin.offset},
                         {"endOffset", end.offset},
                         {"path", finding.path},
                         {"severity", NameOf(style.SeverityOf(finding))},
                         {"kind", NameOf(finding.kind)},
                         {"identifier", RuleOf(finding.id).identifier},
                         {"subject", finding.subject},
                         {"suggestion", finding.suggestion},
                         {"message", finding.message},
                         {"fix", JsonEdits(finding, style)}};
    for (const Finding& consequence : finding.consequences)
        json["consequences"].push_back(JsonFinding(consequence, style));
    return json;
}

} // namespace

std::string FindingsAsJson(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    const FindingCount count = Count(files, style);
    const ordered_json summary = {
        {"documents", count.documents}, {"errors", count.errors},   {"warnings", count.warnings},
        {"notes", count.notes},         {"omitted", count.omitted}, {"unreadable", count.unreadable},
        {"fixed", count.fixed},         {"known", count.known},     {"suppressed", count.suppressed}};
    std::string lines; // a tree of a million findings takes gigabytes
    for (const CheckedFile& file : files) {
        for (const Finding& finding : file.result.findings)
            lines += (lines.empty() ? "\n" : ",\n") + AsLine(JsonFinding(finding, style));
    }
    return "{\"summary\":" + summary.dump() + ",\n\"findings\":[" + lines + "]}\n";
}
