#include "tools/talschema/explain/Explain.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/FindingExplanations.h"
#include "TalAttributeSchemaHost/text/NearNames.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

constexpr std::size_t kWidth = 78;

/// In lines of a terminal's width.
std::string Wrapped(const std::string& text, const std::string& indent)
{
    std::string lines;
    std::string line;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        const std::string word = text.substr(begin, end - begin);
        if (!line.empty() && indent.size() + line.size() + 1 + word.size() > kWidth) {
            lines += indent + line + "\n";
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
        begin = end + 1;
    }
    return lines + indent + line + "\n";
}

std::string Indented(std::string text)
{
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1))
        text.insert(end + 1, "    ");
    return "    " + text + "\n";
}

const char* MeaningOf(tal::FindingKind kind)
{
    switch (kind) {
    case tal::FindingKind::System:
        return "the document could not be looked at";
    case tal::FindingKind::Unreadable:
        return "nothing of the document is read";
    case tal::FindingKind::Skipped:
        return "the reader passes over it";
    case tal::FindingKind::Value:
        return "the reader takes it for something else";
    case tal::FindingKind::Reference:
        return "the reader does not check it";
    case tal::FindingKind::External:
        return "reading reaches outside of the document";
    case tal::FindingKind::Lost:
        return "read, but not there any more after a rewrite";
    case tal::FindingKind::Suppression:
        return "the comment has no effect";
    }
    return "";
}

std::string Explanation(const tal::FindingRule& rule, bool coloured)
{
    std::string text = Paint(rule.identifier, Style::Bold, coloured) + ": " + rule.summary + "\n" +
                       NameOf(SeverityOf(rule.kind)) + ", " + MeaningOf(rule.kind) + "\n";
    const tal::FindingExplanation* const explanation = tal::ExplanationOf(rule.id);
    if (!explanation)
        return text;
    text += "\n" + Wrapped(explanation->meaning, "");
    if (explanation->example)
        text += "\n" + Paint("Example", Style::Bold, coloured) + "\n" + Indented(explanation->example);
    return text + "\n" + Paint("Repair", Style::Bold, coloured) + "\n" + Wrapped(explanation->repair, "    ");
}

const tal::FindingRule& RuleNamed(const std::string& identifier)
{
    std::vector<std::string> identifiers;
    for (const tal::FindingRule& rule : tal::AllFindingRules()) {
        if (identifier == rule.identifier)
            return rule;
        identifiers.emplace_back(rule.identifier);
    }
    const std::string nearest = tal::NearestName(identifier, identifiers);
    throw Trouble(
        "talschema: error: there is no finding \"" + Printable(identifier) + "\"" +
        (nearest.empty() ? "; \"talschema explain\" lists them" : "; did you mean \"" + nearest + "\"?") +
        "\n");
}

int Explain(const std::vector<std::string>& identifiers)
{
    std::string text;
    for (const std::string& identifier : identifiers)
        text += (text.empty() ? "" : "\n") + Explanation(RuleNamed(identifier), ColoursWanted());
    if (identifiers.empty()) {
        for (const tal::FindingRule& rule : tal::AllFindingRules()) {
            std::string name = rule.identifier;
            name.resize(28, ' ');
            text += name + NameOf(SeverityOf(rule.kind)) + ": " + rule.summary + "\n";
        }
    }
    Print(text);
    return kExitFine;
}

} // namespace

Command AddExplainCommand(CLI::App& app)
{
    const auto identifiers = std::make_shared<std::vector<std::string>>();
    CLI::App* command = app.add_subcommand("explain", "Tell what a finding means, and what to do about it");
    command->add_option("ID", *identifiers,
                        "The identifier that stands at the end of a finding; without, all");
    command->footer("Findings:" + [] {
        std::string list;
        for (const tal::FindingRule& rule : tal::AllFindingRules())
            list += std::string("\n  ") + rule.identifier;
        return list;
    }());
    return {command, [identifiers] { return Explain(*identifiers); }};
}
