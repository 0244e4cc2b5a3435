// The sentence in which a finding is told.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/findings/Finding.h"

namespace tal {

/// A sentence that knows where it names values of the document.
class Sentence
{
public:
    Sentence() = default;
    Sentence(const char* words) : text(words) {}

    Sentence& Say(std::string_view words);
    /// Appends the value in quotes.
    Sentence& Name(std::string_view value);
    /// Leaves room for the number of a line that is not known yet.
    Sentence& LineToCome();
    void PutLine(std::size_t line);
    /// Leaves room for what turns out later.
    Sentence& MoreToCome();
    void PutMore(std::string_view words);

    std::string text;
    std::vector<Finding::Value> values;

private:
    void Insert(std::size_t position, std::string_view words);

    std::size_t m_lineAt = 0;
    std::size_t m_moreAt = std::string::npos;
};

} // namespace tal
