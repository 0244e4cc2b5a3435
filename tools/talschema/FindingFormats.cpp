// Findings for people, for programs and for code hosts.
#include "tools/talschema/FindingFormats.h"

#include <filesystem>
#include <map>
#include <utility>

#include <nlohmann/json.hpp>

#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/Terminal.h"
#include "tools/talschema/Text.h"

using nlohmann::ordered_json;

namespace {

Style StyleOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return Style::Red;
    case Severity::Warning:
        return Style::Yellow;
    case Severity::Note:
        break;
    }
    return Style::Cyan;
}

const std::string& FileOf(const CheckedFile& file, const Finding& finding)
{
    return finding.place.file.empty() ? file.name : finding.place.file;
}

std::string Location(const CheckedFile& file, const Finding& finding)
{
    std::string location = Printable(FileOf(file, finding).c_str());
    if (finding.place.line > 0)
        location += ":" + std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column);
    return location + ":";
}

std::string Number(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// A relative or absolute URI reference for the file in which a finding stands.
std::string UriOf(const CheckedFile& checked, const Finding& finding)
{
    const std::string& file = FileOf(checked, finding);
    // What a document brings in by a URI has that name already.
    if (!finding.place.file.empty() && file.find("://") != std::string::npos)
        return file;
    const std::string kept = "/-._~";
    const bool absolute = std::filesystem::path(file).is_absolute();
    std::string uri = absolute ? "file://" : "";
    for (const char character : file) {
        const auto byte = static_cast<unsigned char>(character);
        const bool alphanumeric =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        if (alphanumeric || kept.find(character) != std::string::npos) {
            uri += character;
        } else {
            const char* const digits = "0123456789ABCDEF";
            uri += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return uri;
}

/// Array elements. They are put together as text because a tree of a million findings takes gigabytes.
template <class ToJson>
std::string OnePerLine(const std::vector<CheckedFile>& files, ToJson toJson)
{
    std::string lines;
    for (const CheckedFile& file : files) {
        for (const Finding& finding : file.findings)
            lines += (lines.empty() ? "\n" : ",\n") + toJson(file, finding).dump();
    }
    return lines;
}

ordered_json SarifRules()
{
    ordered_json rules = ordered_json::array();
    for (const FindingRule& rule : kFindingRules)
        rules.push_back({{"id", rule.identifier},
                         {"shortDescription", {{"text", rule.summary}}},
                         {"defaultConfiguration", {{"level", NameOf(SeverityOf(rule.kind))}}},
                         {"properties", {{"kind", NameOf(rule.kind)}}}});
    return rules;
}

ordered_json SarifResult(const CheckedFile& file, const Finding& finding, Severity severity)
{
    ordered_json physical = {{"artifactLocation", {{"uri", UriOf(file, finding)}}}};
    if (finding.place.line > 0)
        physical["region"] = {{"startLine", finding.place.line}, {"startColumn", finding.place.column}};
    ordered_json location = {{"physicalLocation", physical}};
    if (!finding.path.empty())
        location["logicalLocations"] = {{{"fullyQualifiedName", finding.path}, {"kind", "element"}}};
    return {{"ruleId", RuleOf(finding.id).identifier},
            {"ruleIndex", static_cast<std::size_t>(&RuleOf(finding.id) - kFindingRules.data())},
            {"level", NameOf(severity)},
            {"message", {{"text", finding.message}}},
            {"locations", {location}}};
}

} // namespace

Severity FindingStyle::SeverityOf(const Finding& finding) const
{
    const Severity severity = ::SeverityOf(RuleOf(finding.id).kind);
    return warningsAsErrors && severity == Severity::Warning ? Severity::Error : severity;
}

FindingCount Count(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    FindingCount count;
    for (const CheckedFile& file : files) {
        for (const Finding& finding : file.findings) {
            const Severity severity = style.SeverityOf(finding);
            ++(severity == Severity::Error     ? count.errors
               : severity == Severity::Warning ? count.warnings
                                               : count.notes);
        }
    }
    return count;
}

std::string FindingsAsText(const CheckedFile& file, const FindingStyle& style)
{
    std::string text;
    for (const Finding& finding : file.findings) {
        const Severity severity = style.SeverityOf(finding);
        text += Paint(Location(file, finding), Style::Bold, style.coloured) + " " +
                Paint(std::string(NameOf(severity)) + ":", StyleOf(severity), style.coloured) + " " +
                (finding.path.empty() ? "" : finding.path + ": ") + finding.message + " [" +
                RuleOf(finding.id).identifier + "]\n";
    }
    return text;
}

std::string LossesAsText(const CheckedFile& file)
{
    std::map<FindingId, std::size_t> numbers;
    for (const Finding& finding : file.findings)
        ++numbers[finding.id];
    std::string text;
    for (const Finding& finding : file.findings) {
        const FindingRule& rule = RuleOf(finding.id);
        const std::size_t number = std::exchange(numbers[finding.id], 0);
        if (number == 0 || (rule.kind != FindingKind::Skipped && rule.kind != FindingKind::Lost))
            continue;
        text += Location(file, finding) + " note: not kept: " + rule.summary +
                (number > 1 ? ", here and in " + Number(number - 1, "more place") : "") + " [" +
                rule.identifier + "]\n";
    }
    return text;
}

std::string Summary(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    const FindingCount count = Count(files, style);
    return Number(count.errors, "error") + ", " + Number(count.warnings, "warning") + " and " +
           Number(count.notes, "note") + " in " + Number(files.size(), "document") + "\n";
}

std::string FindingsAsJson(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    const FindingCount count = Count(files, style);
    const ordered_json summary = {{"documents", files.size()},
                                  {"errors", count.errors},
                                  {"warnings", count.warnings},
                                  {"notes", count.notes}};
    return "{\"summary\":" + summary.dump() + ",\n\"findings\":[" +
           OnePerLine(files,
                      [&](const CheckedFile& file, const Finding& finding) -> ordered_json {
                          const FindingRule& rule = RuleOf(finding.id);
                          return {{"file", FileOf(file, finding)},
                                  {"line", finding.place.line},
                                  {"column", finding.place.column},
                                  {"path", finding.path},
                                  {"severity", NameOf(style.SeverityOf(finding))},
                                  {"kind", NameOf(rule.kind)},
                                  {"identifier", rule.identifier},
                                  {"message", finding.message}};
                      }) +
           "]}\n";
}

std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    const ordered_json driver = {{"name", "talschema"},
                                 {"version", TalAttributeSchemaReader_get_module_info(1)},
                                 {"rules", SarifRules()}};
    return "{\"$schema\":\"https://json.schemastore.org/"
           "sarif-2.1.0.json\",\"version\":\"2.1.0\",\"runs\":[{\n"
           "\"tool\":{\"driver\":" +
           driver.dump() + "},\n\"columnKind\":\"utf16CodeUnits\",\n\"results\":[" +
           OnePerLine(files,
                      [&](const CheckedFile& file, const Finding& finding) {
                          return SarifResult(file, finding, style.SeverityOf(finding));
                      }) +
           "]}]}\n";
}
