#include "TalAttributeSchemaHost/findings/ElementPath.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "TalAttributeSchemaHost/text/Utf8.h"

namespace tal {

namespace {

constexpr std::size_t kMaxSteps = 24;

// What a step takes as a rule.
constexpr std::size_t kUsualStep = 24;

const char* EscapeOf(char character)
{
    switch (character) {
    case '/':
        return "%2F";
    case '[':
        return "%5B";
    case ']':
        return "%5D";
    case '%':
        return "%25";
    default:
        return nullptr;
    }
}

void AppendNumber(std::string& path, std::size_t number)
{
    std::array<char, 20> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    path.append(1, '[').append(digits.begin(), end).append(1, ']');
}

void AppendKey(std::string& path, const std::string& key)
{
    path += '[';
    for (const char character : key) {
        if (const char* const escape = EscapeOf(character))
            path += escape;
        else
            path += character;
    }
    path += ']';
}

} // namespace

std::string ElementPath::Text(bool withKeys) const
{
    std::string path;
    path.reserve(std::min(m_depth, kMaxSteps + 1) * kUsualStep);
    for (std::size_t i = 0; i < m_depth; ++i) {
        if (m_depth > kMaxSteps && i == kMaxSteps / 2) {
            path += "/...";
            i = m_depth - kMaxSteps / 2;
        }
        path.append(1, '/').append(m_steps[i].name);
        if (withKeys && !m_steps[i].key.empty())
            AppendKey(path, ToUtf8(m_steps[i].key.c_str()));
        else if (m_steps[i].number > 0)
            AppendNumber(path, m_steps[i].number);
    }
    return path;
}

} // namespace tal
