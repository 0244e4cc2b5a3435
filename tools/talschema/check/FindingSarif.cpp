#include "tools/talschema/check/FindingSarif.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <tuple>
#include <utility>

#include <nlohmann/json.hpp>

#include "TalAttributeSchemaHost/findings/FindingExplanations.h"
#include "TalAttributeSchemaHost/findings/FindingRules.h"
#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/check/FindingKey.h"
#include "tools/talschema/terminal/Text.h"

using nlohmann::ordered_json;
using tal::Finding;
using tal::FindingKind;

namespace {

/// A relative or absolute URI reference for a file, which is the document or one that it brings in.
std::string UriOf(const std::string& document, const std::string& file)
{
    // What a document brings in by a URI has that name already.
    if (file != document && file.find("://") != std::string::npos)
        return file;
    std::filesystem::path path = std::filesystem::u8path(file);
    std::string uri;
    if (path.has_root_directory()) {
        path = std::filesystem::absolute(path);
        const std::string root =
            path.root_name().generic_u8string(); // a drive, "//" and a server, or nothing
        uri = (root.empty() ? "file://" : root.front() == '/' ? "file:" : "file:///") + root;
        path = path.root_directory() / path.relative_path();
    }
    const std::string kept = "/-._~";
    for (const char character : path.generic_u8string()) {
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

/// One line, safe for a terminal. Names of files need not be UTF-8.
std::string AsLine(const ordered_json& json)
{
    return Printable(json.dump(-1, ' ', false, ordered_json::error_handler_t::replace));
}

std::string MeaningOf(const tal::FindingRule& rule)
{
    const tal::FindingExplanation* const explanation = tal::ExplanationOf(rule.id);
    return explanation ? explanation->meaning : rule.summary;
}

/// What to do, and how not to be told again.
std::string HelpFor(const tal::FindingRule& rule)
{
    const tal::FindingExplanation* const explanation = tal::ExplanationOf(rule.id);
    std::string help = explanation ? explanation->repair : rule.summary;
    const bool suppressible =
        SeverityOf(rule.kind) != tal::Severity::Error && rule.kind != FindingKind::Suppression;
    if (suppressible) {
        const std::string identifier = rule.identifier;
        help += " If it is meant to be so, put <!-- talschema-disable-next-line " + identifier +
                ": reason --> in the line before, or say " + identifier +
                " = \"off\" under [severity] in .talschema.toml.";
    }
    return help;
}

ordered_json Rules()
{
    ordered_json rules = ordered_json::array();
    for (const tal::FindingRule& rule : tal::AllFindingRules())
        rules.push_back({{"id", rule.identifier},
                         {"shortDescription", {{"text", rule.summary}}},
                         {"fullDescription", {{"text", MeaningOf(rule)}}},
                         {"help", {{"text", HelpFor(rule)}}},
                         {"defaultConfiguration", {{"level", NameOf(SeverityOf(rule.kind))}}},
                         {"properties", {{"kind", NameOf(rule.kind)}}}});
    return rules;
}

std::size_t IndexOf(tal::FindingId id)
{
    return static_cast<std::size_t>(&RuleOf(id) - tal::AllFindingRules().data());
}

ordered_json Region(const tal::Range& range)
{
    return {{"startLine", range.begin.line},
            {"startColumn", range.begin.utf16Column},
            {"endLine", range.end.line},
            {"endColumn", range.end.utf16Column}};
}

ordered_json LocationOf(const CheckedFile& file, const Finding& finding)
{
    ordered_json physical = {{"artifactLocation", {{"uri", UriOf(file.name, finding.file)}}}};
    if (finding.range.begin.line > 0)
        physical["region"] = Region(finding.range);
    ordered_json location = {{"physicalLocation", physical}};
    if (!finding.path.empty())
        location["logicalLocations"] = {{{"fullyQualifiedName", finding.path}, {"kind", "element"}}};
    return location;
}

/// Not empty.
ordered_json FixesOf(const CheckedFile& file, const Finding& finding)
{
    ordered_json replacements = ordered_json::array();
    for (const tal::Edit& edit : finding.fix)
        replacements.push_back(
            {{"deletedRegion", Region(edit.range)}, {"insertedContent", {{"text", edit.replacement}}}});
    const ordered_json change = {{"artifactLocation", {{"uri", UriOf(file.name, finding.file)}}},
                                 {"replacements", replacements}};
    return {{{"description", {{"text", "Put \"" + finding.fix.front().replacement + "\" here."}}},
             {"artifactChanges", {change}}}};
}

/// How a finding is told.
struct Standing
{
    const char* baselineState = nullptr;
    const tal::SuppressedFinding* suppressed = nullptr;
};

ordered_json ResultOf(const CheckedFile& file, const Finding& finding, const FindingStyle& style,
                      const Standing& standing, Fingerprints& fingerprints)
{
    ordered_json result = {{"ruleId", RuleOf(finding.id).identifier},
                           {"ruleIndex", IndexOf(finding.id)},
                           {"level", NameOf(style.SeverityOf(finding))},
                           {"message", {{"text", finding.message}}},
                           {"locations", {LocationOf(file, finding)}},
                           {"partialFingerprints", {{"talschemaFinding/v1", fingerprints.Next(finding)}}}};
    if (standing.baselineState)
        result["baselineState"] = standing.baselineState;
    if (standing.suppressed) {
        ordered_json suppression = {{"kind", "inSource"}};
        if (!standing.suppressed->reason.empty())
            suppression["justification"] = standing.suppressed->reason;
        result["suppressions"] = {suppression};
    }
    if (!finding.fix.empty())
        result["fixes"] = FixesOf(file, finding);
    for (const Finding& consequence : finding.consequences) {
        ordered_json related = LocationOf(file, consequence);
        related["message"] = {{"text", consequence.message}};
        result["relatedLocations"].push_back(std::move(related));
    }
    return result;
}

/// All findings of a file in the order of their places, however they are told: what is known or suppressed
/// must not change the fingerprints of what is not.
std::vector<std::pair<const Finding*, Standing>> InOrder(const CheckedFile& file, bool withBaseline)
{
    std::vector<std::pair<const Finding*, Standing>> all;
    for (const Finding& finding : file.result.findings)
        all.push_back({&finding, {withBaseline ? "new" : nullptr, nullptr}});
    for (const Finding& finding : file.known)
        all.push_back({&finding, {"unchanged", nullptr}});
    for (const tal::SuppressedFinding& suppressed : file.result.suppressed)
        all.push_back({&suppressed.finding, {nullptr, &suppressed}});
    std::sort(all.begin(), all.end(), [](const auto& left, const auto& right) {
        const auto key = [](const Finding& finding) {
            return std::tuple(finding.range.begin.line, finding.range.begin.column, finding.id,
                              std::string_view(finding.subject), std::string_view(finding.path));
        };
        return key(*left.first) < key(*right.first);
    });
    return all;
}

ordered_json AbsentResult(const AbsentEntry& absent)
{
    const auto& rules = tal::AllFindingRules();
    const BaselineEntry& entry = absent.entry;
    ordered_json result = {
        {"ruleId", entry.identifier},
        {"level", "none"},
        {"message", {{"text", entry.identifier + " \"" + entry.subject + "\" does not occur any more"}}},
        {"baselineState", "absent"}};
    const auto* const rule = std::find_if(rules.begin(), rules.end(), [&](const tal::FindingRule& candidate) {
        return entry.identifier == candidate.identifier;
    });
    if (rule != rules.end())
        result["ruleIndex"] = rule - rules.data();
    ordered_json location = {
        {"physicalLocation", {{"artifactLocation", {{"uri", UriOf(absent.document, absent.document)}}}}}};
    if (!entry.path.empty())
        location["logicalLocations"] = {{{"fullyQualifiedName", entry.path}, {"kind", "element"}}};
    result["locations"] = {location};
    return result;
}

ordered_json Invocation(const std::vector<CheckedFile>& files, const FindingStyle& style, const RunFacts& run)
{
    ordered_json notifications = ordered_json::array();
    for (const CheckedFile& file : files) {
        for (const Finding& finding : file.result.findings) {
            if (finding.kind == FindingKind::System)
                notifications.push_back(
                    {{"level", "error"},
                     {"message", {{"text", finding.message}}},
                     {"locations", {LocationOf(file, finding)}},
                     {"associatedRule",
                      {{"id", RuleOf(finding.id).identifier}, {"index", IndexOf(finding.id)}}}});
        }
    }
    for (const std::string& failure : run.failures)
        notifications.push_back({{"level", "error"}, {"message", {{"text", failure}}}});
    const bool successful = notifications.empty();
    const FindingCount count = Count(files, style);
    if (count.omitted > 0)
        notifications.push_back({{"level", "warning"}, {"message", {{"text", OmittedAsText(count)}}}});
    return {{"executionSuccessful", successful}, {"toolExecutionNotifications", notifications}};
}

} // namespace

std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const FindingStyle& style,
                            const RunFacts& run)
{
    const ordered_json driver = {
        {"name", "talschema"}, {"version", TalAttributeSchemaReader_get_module_info(1)}, {"rules", Rules()}};
    std::string results; // a tree of a million findings takes gigabytes
    const auto add = [&](const ordered_json& result) {
        results += (results.empty() ? "\n" : ",\n") + AsLine(result);
    };
    for (const CheckedFile& file : files) {
        Fingerprints fingerprints;
        for (const auto& [finding, standing] : InOrder(file, run.withBaseline)) {
            if (finding->kind != FindingKind::System)
                add(ResultOf(file, *finding, style, standing, fingerprints));
        }
    }
    for (const AbsentEntry& absent : run.absent)
        add(AbsentResult(absent));
    return "{\"$schema\":\"https://json.schemastore.org/"
           "sarif-2.1.0.json\",\"version\":\"2.1.0\",\"runs\":[{\n"
           "\"tool\":{\"driver\":" +
           driver.dump() + "},\n\"columnKind\":\"utf16CodeUnits\",\n\"invocations\":[" +
           AsLine(Invocation(files, style, run)) + "],\n\"results\":[" + results + "]}]}\n";
}
