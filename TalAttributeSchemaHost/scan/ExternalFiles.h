// Which files outside of itself a document may bring in.
#pragma once

#include <filesystem>

#include <xercesc/util/XMLEntityResolver.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

namespace tal {

/// A document needs something that is not to be read; `target` is what it wrote.
struct OutsideFolder
{
    GuString target;
};

/// Finds the external document types and entities of a document: regular files in or below the document's own
/// folder, links followed, and nothing else.
class ExternalFiles : public xercesc::XMLEntityResolver
{
public:
    /// `document` is an absolute path. With `allowAll` everything is left to the parser.
    ExternalFiles(const std::filesystem::path& document, bool allowAll);

    /// The parser deletes the result. Throws `OutsideFolder`.
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;

private:
    std::filesystem::path m_folder;
    bool m_allowAll;
};

} // namespace tal
