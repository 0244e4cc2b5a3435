// Gathers the comments of a document that ask not to be told of something.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/FindingLog.h"
#include "TalAttributeSchemaHost/check/Suppressions.h"
#include "TalAttributeSchemaHost/findings/ElementPath.h"

namespace tal {

class SuppressionComments
{
public:
    /// `path` is that of the element at which the check stands. It and the log must outlive the object.
    SuppressionComments(const ElementPath& path, FindingLog& log) : m_path(path), m_log(log) {}

    /// `depth` is the number of elements around the comment.
    void Read(std::string_view comment, std::size_t markup, std::uint64_t depth);
    /// An element at this depth, itself included, ends with the tag `markup`.
    void EndElement(std::uint64_t depth, std::size_t markup)
    {
        for (; !m_open.empty() && m_open.back().depth == depth; m_open.pop_back())
            m_suppressions[m_open.back().index].parentEnd = markup;
    }

    std::vector<Suppression> Take() { return std::move(m_suppressions); }

private:
    struct Open
    {
        std::size_t index;
        std::uint64_t depth;
    };

    void ReportUnknown(const ParsedSuppression& parsed, std::size_t markup);

    const ElementPath& m_path;
    FindingLog& m_log;
    std::vector<Suppression> m_suppressions;
    std::vector<Open> m_open;
};

} // namespace tal
