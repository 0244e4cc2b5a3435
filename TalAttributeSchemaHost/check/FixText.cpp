#include "TalAttributeSchemaHost/check/FixText.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/scan/HostSession.h"
#include "TalAttributeSchemaHost/scan/SourceText.h"
#include "TalAttributeSchemaReader/format/FolderDepth.h"

namespace tal {

namespace {

// A pass may bring to light what the next one fixes: the attributes of an element, or its content.
constexpr int kMostPasses = 2 * kMaxElementDepth;

/// Edits in the order of their places. None overlaps another one.
using Edits = std::map<std::size_t, const Edit*>;

bool Overlaps(const Edits& edits, const Edit& edit)
{
    const auto next = edits.lower_bound(edit.range.begin.offset);
    return (next != edits.end() &&
            next->first < std::max(edit.range.end.offset, edit.range.begin.offset + 1)) ||
           (next != edits.begin() && std::prev(next)->second->range.end.offset > edit.range.begin.offset);
}

/// Takes the fixes of the findings that are wanted, each whole or not at all.
std::vector<const Finding*> Take(const std::vector<Finding>& findings, const FixFilter& wanted, Edits& edits)
{
    std::vector<const Finding*> taken;
    for (const Finding& finding : findings) {
        const auto overlaps = [&](const Edit& edit) { return Overlaps(edits, edit); };
        if (finding.fix.empty() || (wanted && !wanted(finding)) ||
            std::any_of(finding.fix.begin(), finding.fix.end(), overlaps))
            continue;
        taken.push_back(&finding);
        for (const Edit& edit : finding.fix)
            edits.emplace(edit.range.begin.offset, &edit);
    }
    return taken;
}

/// `replace` gives what comes in the place of an edit; `begin` and `end` where it is in the text.
template <class Replace, class Begin, class End>
std::string Edited(std::string_view text, const Edits& edits, Replace replace, Begin begin, End end)
{
    std::string edited;
    std::size_t position = 0;
    for (const auto& [offset, edit] : edits) {
        edited.append(text.substr(position, begin(*edit) - position)).append(replace(*edit));
        position = end(*edit);
    }
    return edited.append(text.substr(position));
}

/// The document with the edits, or nothing when its encoding does not allow them.
std::optional<std::string> Apply(std::string_view bytes, const Edits& edits)
{
    const SourceText source(bytes);
    bool encoded = true;
    std::string edited = Edited(
        bytes, edits,
        [&](const Edit& edit) {
            const std::optional<std::string> replacement = source.Encode(edit.replacement);
            encoded = encoded && replacement;
            return replacement.value_or("");
        },
        [](const Edit& edit) { return edit.range.begin.offset; },
        [](const Edit& edit) { return edit.range.end.offset; });
    return encoded ? std::optional(std::move(edited)) : std::nullopt;
}

/// True when the edits changed the text as they should have, and nothing else of it.
bool IsEdited(std::string_view before, const std::string& after, const Edits& edits)
{
    const SourceText source(before);
    const std::string_view text = source.Utf8();
    std::map<std::size_t, std::size_t> indices; // in the text, by offsets in the document
    for (const auto& [offset, edit] : edits) {
        indices[edit->range.begin.offset] = 0;
        indices[edit->range.end.offset] = 0;
    }
    std::size_t offset = source.FirstByte();
    std::size_t index = 0;
    std::size_t character = 0;
    for (auto& [wanted, found] : indices) {
        for (; offset < wanted && index < text.size(); index += Utf8Length(text[index]))
            offset += source.BytesOfCharacter(index, character++);
        found = index;
    }
    const std::string expected = Edited(
        text, edits, [](const Edit& edit) { return edit.replacement; },
        [&](const Edit& edit) { return indices[edit.range.begin.offset]; },
        [&](const Edit& edit) { return indices[edit.range.end.offset]; });
    return SourceText(after).Utf8() == expected;
}

/// One pass. Returns false when there is nothing to fix or, with the reason in `result`, when it cannot be
/// fixed.
bool FixOnce(const std::string& name, const CheckOptions& options, const FixFilter& wanted, FixResult& result)
{
    Edits edits;
    const std::vector<const Finding*> taken = Take(result.check.findings, wanted, edits);
    if (taken.empty())
        return false;
    std::optional<std::string> text = Apply(result.text, edits);
    if (!text || !IsEdited(result.text, *text, edits)) {
        result.error = "names in the encoding " + SourceText(result.text).Encoding() + " cannot be changed";
        return false;
    }
    CheckResult check = CheckText(*text, name, options);
    if (IsUnreadable(check.findings)) {
        const auto reason =
            std::find_if(check.findings.begin(), check.findings.end(),
                         [](const Finding& finding) { return finding.severity == Severity::Error; });
        result.error = "with what there is to fix, the document would not be read: " + reason->message;
        return false;
    }
    for (const Finding* finding : taken)
        result.fixed.push_back(*finding);
    result.text = std::move(*text);
    result.check = std::move(check);
    return true;
}

} // namespace

FixResult FixText(std::string_view bytes, const std::string& name, const CheckOptions& options,
                  const FixFilter& wanted)
{
    FixResult result;
    result.text = bytes;
    result.check = CheckText(bytes, name, options);
    const bool fixable = std::any_of(result.check.findings.begin(), result.check.findings.end(),
                                     [](const Finding& finding) { return !finding.fix.empty(); });
    if (!fixable)
        return result;
    const CheckResult before = result.check;
    SayWhenMemoryRunsOut(
        name,
        [&] {
            const HostSession session;
            for (int pass = 0; pass < kMostPasses && FixOnce(name, options, wanted, result); ++pass) {
            }
        },
        [&](const Finding& finding) { result.error = finding.message; });
    if (!result.error.empty()) {
        result.text = bytes;
        result.fixed.clear();
        result.check = before;
    }
    return result;
}

} // namespace tal
