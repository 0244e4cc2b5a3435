#include "TalAttributeSchemaHost/findings/Sentence.h"

#include <algorithm>

namespace tal {

Sentence& Sentence::Say(std::string_view words)
{
    text += words;
    return *this;
}

Sentence& Sentence::Name(std::string_view value)
{
    values.push_back({text.size() + 1, value.size()});
    text.append(1, '"').append(value).append(1, '"');
    return *this;
}

Sentence& Sentence::LineToCome()
{
    m_lineAt = text.size();
    return *this;
}

void Sentence::PutLine(std::size_t line)
{
    Insert(m_lineAt, std::to_string(line));
}

Sentence& Sentence::MoreToCome()
{
    m_moreAt = text.size();
    return *this;
}

void Sentence::PutMore(std::string_view words)
{
    Insert(std::min(m_moreAt, text.size()), words);
}

void Sentence::Insert(std::size_t position, std::string_view words)
{
    text.insert(position, words);
    for (Finding::Value& value : values)
        value.begin += value.begin >= position ? words.size() : 0;
}

} // namespace tal
