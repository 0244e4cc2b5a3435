#include "tools/talschema/check/FindingText.h"

#include <algorithm>
#include <utility>

#include "TalAttributeSchemaHost/findings/FindingRules.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

using tal::Finding;
using tal::Severity;

constexpr std::size_t kLongestValue = 60; // in characters
constexpr std::size_t kMostNames = 6;
constexpr std::size_t kLongestSource = 100;      // likewise
constexpr std::size_t kLongestSourceBefore = 60; // in front of what is marked

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

std::string Number(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// Safe for a terminal, and cut short where it is long.
std::string Shown(std::string_view value)
{
    const std::size_t end = IndexOfCharacter(value, kLongestValue);
    return Printable(value.substr(0, end)) + (end < value.size() ? "..." : "");
}

std::string ShownMessage(const Finding& finding)
{
    const std::string_view message = finding.message;
    std::string shown;
    std::size_t position = 0;
    for (const Finding::Value& value : finding.values) {
        shown += Printable(message.substr(position, value.begin - position)) +
                 Shown(message.substr(value.begin, value.length));
        position = value.begin + value.length;
    }
    return shown + Printable(message.substr(position));
}

/// The names in a path may be as long as they like.
std::string ShownPath(const std::string& path)
{
    std::string shown;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin + 1), path.size());
        shown += Shown(std::string_view(path).substr(begin, end - begin));
        begin = end;
    }
    return shown;
}

std::string Location(const Finding& finding, const FindingStyle& style)
{
    const tal::Position& begin = finding.range.begin;
    std::string location = Printable(finding.file);
    if (begin.line > 0)
        location += ":" + std::to_string(begin.line) + ":" + std::to_string(style.ColumnOf(begin));
    return location + ":";
}

/// A tab is as wide as a blank, so that marks stand below what they mark.
std::string SourcePart(std::string_view text)
{
    std::string part(text);
    std::replace(part.begin(), part.end(), '\t', ' ');
    return Printable(part);
}

/// The line and the marks below it; a long line is cut around the marks.
std::string Source(const Finding& finding, const std::string& line, bool coloured)
{
    const auto& [begin, end] = finding.range;
    const std::string_view text = line;
    const std::size_t markBegin = std::min(begin.utf8Column - 1, text.size());
    const std::size_t markEnd =
        end.line == begin.line ? std::min(end.utf8Column - 1, text.size()) : text.size();

    std::size_t first = 0;
    if (begin.column > kLongestSourceBefore)
        first = IndexOfCharacter(text, begin.column - kLongestSourceBefore);
    const std::size_t last = first + IndexOfCharacter(text.substr(first), kLongestSource);
    const std::string before = (first > 0 ? "..." : "") + SourcePart(text.substr(first, markBegin - first));
    const std::string marked =
        SourcePart(text.substr(markBegin, std::max(std::min(markEnd, last), markBegin) - markBegin));
    const std::string after = SourcePart(text.substr(std::min(std::max(markEnd, markBegin), last),
                                                     last - std::min(std::max(markEnd, markBegin), last))) +
                              (last < text.size() ? "..." : "");

    std::string number = std::to_string(begin.line);
    number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
    const std::size_t width = DisplayWidth(marked);
    const std::string marks = "^" + std::string(width > 1 ? width - 1 : 0, '~');
    return number + " | " + before + marked + after + "\n" + std::string(number.size(), ' ') + " | " +
           std::string(DisplayWidth(before), ' ') + Paint(marks, Style::Green, coloured) + "\n";
}

/// What the findings are about, and in which lines the second and the following ones stand; `further` are
/// only counted.
std::string NamesOf(const std::vector<const Finding*>& findings, std::size_t further)
{
    std::string names;
    const std::size_t named = std::min(findings.size(), kMostNames);
    for (std::size_t i = 0; i < named; ++i) {
        names += (i == 0 ? "\"" : ", \"") + Shown(findings[i]->subject) + '"';
        if (i > 0)
            names += " in line " + std::to_string(findings[i]->range.begin.line);
    }
    further += findings.size() - named;
    return names + (further > 0 ? " and " + std::to_string(further) + " more" : "");
}

} // namespace

Severity FindingStyle::SeverityOf(Severity severity) const
{
    return warningsAsErrors && severity == Severity::Warning ? Severity::Error : severity;
}

std::size_t FindingStyle::ColumnOf(const tal::Position& position) const
{
    switch (columns) {
    case ColumnUnit::Utf16:
        return position.utf16Column;
    case ColumnUnit::Bytes:
        return position.utf8Column;
    case ColumnUnit::Characters:
        break;
    }
    return position.column;
}

FindingCount Count(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    FindingCount count;
    const auto add = [&](Severity severity, std::size_t number) {
        (severity == Severity::Error     ? count.errors
         : severity == Severity::Warning ? count.warnings
                                         : count.notes) += number;
    };
    for (const CheckedFile& file : files) {
        bool looked = true;
        count.fixed += file.fixed;
        count.known += file.known.size();
        count.suppressed += file.result.suppressed.size();
        for (const Finding& finding : file.result.findings) {
            if (finding.kind == tal::FindingKind::System) {
                looked = false;
                continue;
            }
            add(style.SeverityOf(finding), 1);
        }
        for (const auto& [severity, number] : file.omitted) {
            add(style.SeverityOf(severity), number);
            count.omitted += number;
        }
        ++(looked ? count.documents : count.unreadable);
    }
    return count;
}

std::string FindingAsLine(const Finding& finding, const FindingStyle& style)
{
    const Severity severity = style.SeverityOf(finding);
    return Paint(Location(finding, style), Style::Bold, style.coloured) + " " +
           Paint(std::string(NameOf(severity)) + ":", StyleOf(severity), style.coloured) + " " +
           (finding.path.empty() ? "" : ShownPath(finding.path) + ": ") + ShownMessage(finding) + " [" +
           RuleOf(finding.id).identifier + "]\n";
}

std::string FindingsAsText(const CheckedFile& file, const FindingStyle& style)
{
    std::string text;
    for (const Finding& finding : file.result.findings) {
        text += FindingAsLine(finding, style);
        const auto line = file.result.lines.find(finding.range.begin.line);
        if (style.source && line != file.result.lines.end() && finding.file == file.name)
            text += Source(finding, line->second, style.coloured);
    }
    return text;
}

std::string ErrorsAsText(const std::vector<Finding>& findings)
{
    std::string text;
    for (const Finding& finding : findings) {
        if (finding.severity == Severity::Error)
            text += Location(finding, {}) + " error: " + ShownMessage(finding) + "\n";
    }
    return text;
}

std::string LossesAsText(const std::string& file, const std::vector<Finding>& findings,
                         const std::map<tal::FindingId, std::size_t>& omitted)
{
    std::map<tal::FindingId, std::vector<const Finding*>> losses;
    for (const Finding& finding : findings)
        losses[finding.id].push_back(&finding);
    std::map<tal::FindingId, std::size_t> further = omitted;
    std::string text;
    const auto say = [&](tal::FindingId id, const std::string& location, const std::string& places) {
        const tal::FindingRule& rule = RuleOf(id);
        if (rule.kind == tal::FindingKind::Skipped || rule.kind == tal::FindingKind::Lost)
            text += location + " note: not kept: " + rule.summary + places + " [" + rule.identifier + "]\n";
    };
    for (const Finding& finding : findings) {
        const std::vector<const Finding*>& ofOneKind = losses[finding.id];
        if (ofOneKind.front() == &finding)
            say(finding.id, Location(finding, {}),
                ": " + NamesOf(ofOneKind, std::exchange(further[finding.id], 0)));
    }
    for (const auto& [id, number] : further) { // only counted
        if (number > 0)
            say(id, Printable(file) + ":", ", in " + Number(number, "place"));
    }
    return text;
}

std::string OmittedAsText(const FindingCount& count)
{
    return std::to_string(count.omitted) + " of " +
           std::to_string(count.errors + count.warnings + count.notes) +
           " findings left out (--max-findings)";
}

bool Fails(const CheckedFile& file, const FindingStyle& style)
{
    // The worst severity comes first.
    const auto fails = [&](Severity severity) { return style.SeverityOf(severity) <= file.failOn; };
    return std::any_of(file.result.findings.begin(), file.result.findings.end(),
                       [&](const Finding& finding) { return fails(finding.severity); }) ||
           std::any_of(file.omitted.begin(), file.omitted.end(),
                       [&](const auto& omitted) { return fails(omitted.first); });
}

std::string Summary(const std::vector<CheckedFile>& files, const FindingStyle& style)
{
    const FindingCount count = Count(files, style);
    std::string more;
    for (const auto& [number, what] :
         {std::pair(count.fixed, style.dryRun ? " to be fixed" : " fixed"), std::pair(count.known, " known"),
          std::pair(count.suppressed, " suppressed")}) {
        if (number > 0)
            more += (more.empty() ? "; " : ", ") + std::to_string(number) + what;
    }
    return Number(count.errors, "error") + ", " + Number(count.warnings, "warning") + " and " +
           Number(count.notes, "note") + " in " + Number(count.documents, "document") + more +
           (count.omitted > 0 ? "; " + OmittedAsText(count) : "") + "\n";
}
