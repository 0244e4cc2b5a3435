#include "TalAttributeSchemaHost/check/ElementPath.h"

#include "TalAttributeSchemaHost/text/Utf8.h"

namespace tal {

namespace {

constexpr std::size_t kMaxSteps = 24;

std::string Escaped(const std::string& key)
{
    std::string escaped;
    for (const char character : key) {
        switch (character) {
        case '/':
            escaped += "%2F";
            break;
        case '[':
            escaped += "%5B";
            break;
        case ']':
            escaped += "%5D";
            break;
        case '%':
            escaped += "%25";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

} // namespace

std::string ElementPath::Text(bool withKeys) const
{
    std::string path;
    for (std::size_t i = 0; i < m_depth; ++i) {
        if (m_depth > kMaxSteps && i == kMaxSteps / 2) {
            path += "/...";
            i = m_depth - kMaxSteps / 2;
        }
        path.append(1, '/').append(m_steps[i].name);
        if (withKeys && !m_steps[i].key.empty())
            path += '[' + Escaped(ToUtf8(m_steps[i].key.c_str())) + ']';
        else if (m_steps[i].number > 0)
            path += '[' + std::to_string(m_steps[i].number) + ']';
    }
    return path;
}

} // namespace tal
