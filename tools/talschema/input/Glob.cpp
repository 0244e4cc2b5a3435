#include "tools/talschema/input/Glob.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace {

/// The places of the text that the pattern so far can lead to.
using Places = std::vector<bool>;

std::size_t NextCharacter(std::string_view text, std::size_t at)
{
    do
        ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

/// What one `*` or `**` adds: everything behind a place, up to the next `/` or across it.
void Spread(Places& places, std::string_view text, bool acrossFolders)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (places[at] && (acrossFolders || text[at] != '/'))
            places[at + 1] = true;
    }
}

/// `**/` stands for any number of folders, for none as well.
void SpreadOverFolders(Places& places, std::string_view text)
{
    bool reached = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        reached = reached || places[at];
        if (reached && text[at] == '/')
            places[at + 1] = true;
    }
}

/// The end of the set that begins at `[`; `npos` where it has none, and `[` is a character like any other.
std::size_t EndOfSet(std::string_view pattern, std::size_t begin)
{
    const bool negated = begin + 1 < pattern.size() && pattern[begin + 1] == '!';
    return pattern.find(']', begin + (negated ? 3 : 2)); // one that comes first is a member
}

bool IsInSet(std::string_view set, char character)
{
    for (std::size_t i = 0; i < set.size(); ++i) {
        const bool range = i + 2 < set.size() && set[i + 1] == '-';
        if (range ? set[i] <= character && character <= set[i + 2] : set[i] == character)
            return true;
        i += range ? 2 : 0;
    }
    return false;
}

template <class Test>
Places Advance(const Places& places, std::string_view text, Test isMatch)
{
    Places next(places.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (places[at] && isMatch(text[at]))
            next[NextCharacter(text, at)] = true;
    }
    return next;
}

std::string WithoutEmptyNames(std::string_view pattern)
{
    std::string names;
    while (!pattern.empty()) {
        const std::size_t end = std::min(pattern.find('/'), pattern.size());
        const std::string_view name = pattern.substr(0, end);
        pattern.remove_prefix(std::min(end + 1, pattern.size()));
        if (!name.empty() && name != ".")
            names.append(names.empty() ? "" : "/").append(name);
    }
    return names;
}

/// Where in the path the whole pattern can end.
Places EndsOf(std::string_view pattern, std::string_view path)
{
    Places places(path.size() + 1);
    places[0] = true;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const std::size_t setEnd = pattern[i] == '[' ? EndOfSet(pattern, i) : std::string_view::npos;
        const bool beginsName = i == 0 || pattern[i - 1] == '/';
        if (beginsName && pattern.substr(i, 3) == "**/") {
            SpreadOverFolders(places, path);
            i += 2;
        } else if (pattern.substr(i, 2) == "**") {
            Spread(places, path, true);
            ++i;
        } else if (pattern[i] == '*') {
            Spread(places, path, false);
        } else if (pattern[i] == '?') {
            places = Advance(places, path, [](char character) { return character != '/'; });
        } else if (setEnd != std::string_view::npos) {
            const bool negated = pattern[i + 1] == '!';
            const std::size_t first = i + (negated ? 2 : 1);
            const std::string_view set = pattern.substr(first, setEnd - first);
            places = Advance(places, path, [&](char character) {
                return character != '/' && IsInSet(set, character) != negated;
            });
            i = setEnd;
        } else {
            Places next(places.size());
            for (std::size_t at = 0; at < path.size(); ++at)
                next[at + 1] = places[at] && path[at] == pattern[i];
            places = std::move(next);
        }
    }
    return places;
}

} // namespace

bool FileGlobMatches(std::string_view pattern, std::string_view path)
{
    if (pattern.find('/') == std::string_view::npos)
        path.remove_prefix(path.find('/') == std::string_view::npos ? 0 : path.rfind('/') + 1);
    return EndsOf(WithoutEmptyNames(pattern), path).back();
}

bool FolderGlobMatches(std::string_view pattern, std::string_view path)
{
    const Places ends = EndsOf(WithoutEmptyNames(pattern), path);
    for (std::size_t at = 0; at < path.size(); ++at) {
        if (ends[at] && (at == 0 || path[at] == '/'))
            return true;
    }
    return ends.back();
}
