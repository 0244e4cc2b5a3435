#include "TalAttributeSchemaHost/text/NearNames.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace tal {

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

/// No name is near when all of it changes.
std::size_t EditsThatAreFar(const std::string& name)
{
    return std::min(kMostEdits + 1, name.size());
}

/// The edits from `wanted`, in small letters, to `candidate`, or `limit` when there are as many or more.
std::size_t EditsBelow(std::size_t limit, const std::string& wanted, const std::string& candidate)
{
    const auto [shorter, longer] = std::minmax({wanted.size(), candidate.size()});
    return longer - shorter >= limit ? limit : std::min(limit, Edits(wanted, SmallLetters(candidate)));
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
    std::size_t fewest = EditsThatAreFar(name);
    for (const std::string& candidate : known) {
        const std::size_t edits = EditsBelow(fewest, wanted, candidate);
        if (edits < fewest) {
            fewest = edits;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string CertainName(const std::string& name, const std::vector<std::string>& known)
{
    const auto hasSameLetters = [&](const std::string& candidate) {
        return EqualIgnoringCase(name, candidate);
    };
    const auto onlyOne = [&](auto isMeant) {
        std::string only;
        for (const std::string& candidate : known) {
            if (candidate == only || !isMeant(candidate))
                continue;
            if (!only.empty())
                return std::string();
            only = candidate;
        }
        return only;
    };
    if (std::any_of(known.begin(), known.end(), hasSameLetters))
        return onlyOne(hasSameLetters);
    const std::size_t far = EditsThatAreFar(name);
    const std::string wanted = SmallLetters(name);
    const std::string only =
        onlyOne([&](const std::string& candidate) { return EditsBelow(far, wanted, candidate) < far; });
    const std::size_t edits = EditsBelow(far, wanted, only);
    return 2 * edits < std::min(name.size(), only.size()) ? only : std::string();
}

} // namespace tal
