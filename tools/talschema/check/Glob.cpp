#include "tools/talschema/check/Glob.h"

#include <cstddef>
#include <sstream>
#include <string_view>
#include <vector>

#include "tools/talschema/terminal/Text.h"

namespace {

std::vector<std::string> NamesOf(const std::string& path)
{
    std::vector<std::string> names;
    std::istringstream stream(path);
    for (std::string name; std::getline(stream, name, '/');) {
        if (!name.empty() && name != ".")
            names.push_back(name);
    }
    return names;
}

bool NameFits(std::string_view pattern, std::string_view name)
{
    std::size_t star = std::string_view::npos; // the last one so far
    std::size_t taken = 0;                     // up to where it stands for the name
    std::size_t at = 0;
    std::size_t position = 0;
    while (position < name.size()) {
        const std::size_t next = position + IndexOfCharacter(name.substr(position), 1);
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            taken = position;
        } else if (at < pattern.size() && pattern[at] == '?') {
            ++at;
            position = next;
        } else if (at < pattern.size() && pattern[at] == name[position]) {
            ++at;
            ++position;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            taken += IndexOfCharacter(name.substr(taken), 1);
            position = taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

} // namespace

bool FitsGlob(const std::string& pattern, const std::string& path)
{
    const std::vector<std::string> parts = NamesOf(pattern);
    const std::vector<std::string> names = NamesOf(path);
    // Which beginnings of the pattern fit the names so far.
    std::vector<bool> fits(parts.size() + 1);
    fits[0] = true;
    const auto passStars = [&] {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (fits[i] && parts[i] == "**")
                fits[i + 1] = true;
        }
    };
    passStars();
    for (const std::string& name : names) {
        if (fits[parts.size()])
            return true;
        std::vector<bool> next(parts.size() + 1);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (fits[i] && parts[i] == "**")
                next[i] = true;
            else if (fits[i] && NameFits(parts[i], name))
                next[i + 1] = true;
        }
        fits = next;
        passStars();
    }
    return fits[parts.size()];
}
