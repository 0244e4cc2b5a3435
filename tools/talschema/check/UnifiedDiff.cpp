#include "tools/talschema/check/UnifiedDiff.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>
#include <vector>

#include "tools/talschema/TextFile.h"
#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

constexpr std::size_t kContext = 3; // lines

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        lines.push_back(text.substr(begin, end - begin));
        begin = end;
    }
    return lines;
}

/// As git has it: in quotes when there is anything but plain characters in it.
std::string PatchName(const std::string& prefix, const std::string& name)
{
    const std::string whole = prefix + name;
    std::string quoted;
    for (const char character : whole) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            quoted += {'\\', character};
        } else if (byte < 0x20 || byte == 0x7F) {
            quoted += {'\\', static_cast<char>('0' + byte / 64), static_cast<char>('0' + byte / 8 % 8),
                       static_cast<char>('0' + byte % 8)};
        } else {
            quoted += character;
        }
    }
    if (quoted != whole)
        return '"' + quoted + '"';
    return whole + (whole.find(' ') != std::string::npos ? "\t" : "");
}

void AppendLine(std::string& text, char mark, const std::string& line)
{
    text += mark + line;
    if (line.back() != '\n')
        text += "\n\\ No newline at end of file\n";
}

std::string RangeOf(std::size_t begin, std::size_t end)
{
    const std::size_t count = end - begin;
    return std::to_string(count > 0 ? begin + 1 : begin) + (count == 1 ? "" : "," + std::to_string(count));
}

/// A part in which everything differs.
struct Change
{
    std::size_t begin; // in both versions, as long as they have the same number of lines
    std::size_t oldEnd;
    std::size_t newEnd;
};

std::vector<Change> ChangesOf(const std::vector<std::string>& before, const std::vector<std::string>& after)
{
    std::vector<Change> changes;
    if (before.size() != after.size()) { // no fix does that; one part is always right
        std::size_t begin = 0;
        while (begin < std::min(before.size(), after.size()) && before[begin] == after[begin])
            ++begin;
        std::size_t rest = 0;
        while (rest + begin < std::min(before.size(), after.size()) &&
               before[before.size() - 1 - rest] == after[after.size() - 1 - rest])
            ++rest;
        return {{begin, before.size() - rest, after.size() - rest}};
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i])
            continue;
        if (changes.empty() || changes.back().oldEnd < i)
            changes.push_back({i, i, i});
        changes.back().oldEnd = changes.back().newEnd = i + 1;
    }
    return changes;
}

/// The changes from `first` on whose contexts meet, up to `last`.
void AppendHunk(std::string& text, const std::vector<std::string>& before,
                const std::vector<std::string>& after, const Change* first, const Change* last)
{
    const std::size_t begin = first->begin - std::min(first->begin, kContext);
    const std::size_t behind = std::min(before.size() - (last - 1)->oldEnd, kContext);
    const std::size_t oldEnd = (last - 1)->oldEnd + behind;
    const std::size_t newEnd = (last - 1)->newEnd + behind;
    text += "@@ -" + RangeOf(begin, oldEnd) + " +" + RangeOf(begin, newEnd) + " @@\n";
    std::size_t position = begin;
    for (const Change* change = first; change != last; ++change) {
        for (; position < change->begin; ++position)
            AppendLine(text, ' ', before[position]);
        for (; position < change->oldEnd; ++position)
            AppendLine(text, '-', before[position]);
        for (std::size_t i = change->begin; i < change->newEnd; ++i)
            AppendLine(text, '+', after[i]);
    }
    for (; position < oldEnd; ++position)
        AppendLine(text, ' ', before[position]);
}

} // namespace

std::string UnifiedDiff(const std::string& name, const std::string& before, const std::string& after)
{
    if (before == after)
        return {};
    std::error_code error;
    std::string shown = NameFrom(std::filesystem::current_path(error), name);
    shown.erase(0, shown.find_first_not_of('/'));
    std::string text = "--- " + PatchName("a/", shown) + "\n+++ " + PatchName("b/", shown) + "\n";
    const std::vector<std::string> oldLines = LinesOf(before);
    const std::vector<std::string> newLines = LinesOf(after);
    const std::vector<Change> changes = ChangesOf(oldLines, newLines);
    const Change* const end = changes.data() + changes.size();
    for (const Change* first = changes.data(); first != end;) {
        const Change* last = first + 1;
        while (last != end && last->begin - (last - 1)->oldEnd <= 2 * kContext)
            ++last;
        AppendHunk(text, oldLines, newLines, first, last);
        first = last;
    }
    return text;
}

void PrintDiff(const std::string& diff, bool coloured)
{
    if (!IsTerminal()) {
        Print(diff);
        return;
    }
    std::string shown;
    for (std::string line : LinesOf(diff)) {
        if (line.back() == '\n')
            line.pop_back();
        const Style style = line[0] == '+'   ? Style::Green
                            : line[0] == '-' ? Style::Red
                            : line[0] == '@' ? Style::Cyan
                                             : Style::Plain;
        shown += (style == Style::Plain ? Printable(line) : Paint(Printable(line), style, coloured)) + "\n";
    }
    Print(shown);
}
