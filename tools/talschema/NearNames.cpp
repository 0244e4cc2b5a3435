// Guessing which name somebody meant.
#include "tools/talschema/NearNames.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace {

constexpr std::size_t kMostEdits = 2;

std::string SmallLetters(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return text;
}

// The number of letters to insert, remove or replace.
std::size_t Edits(const std::string& from, const std::string& to)
{
    std::vector<std::size_t> edits(to.size() + 1); // from the letters so far to the first letters of `to`
    std::iota(edits.begin(), edits.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = edits[0]++;
        for (std::size_t i = 0; i < to.size(); ++i) {
            const std::size_t replaced = diagonal + (letter == to[i] ? 0 : 1);
            diagonal = edits[i + 1];
            edits[i + 1] = std::min({replaced, edits[i] + 1, diagonal + 1});
        }
    }
    return edits.back();
}

} // namespace

bool EqualIgnoringCase(const std::string& left, const std::string& right)
{
    return left.size() == right.size() && SmallLetters(left) == SmallLetters(right);
}

std::string NearestName(const std::string& name, const std::vector<std::string>& known)
{
    const std::string wanted = SmallLetters(name);
    std::string nearest;
    std::size_t fewest = std::min(kMostEdits + 1, wanted.size()); // no name is near when all of it changes
    for (const std::string& candidate : known) {
        const auto [shorter, longer] = std::minmax({wanted.size(), candidate.size()});
        if (longer - shorter >= fewest)
            continue;
        const std::size_t edits = Edits(wanted, SmallLetters(candidate));
        if (edits < fewest) {
            fewest = edits;
            nearest = candidate;
        }
    }
    return nearest;
}
