// Why the library reads nothing from a document.
#pragma once

#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

struct Diagnosis
{
    std::string
        reports; // lines of `ErrorMessage`: all that the parser has to say, and a root other than "Model"
    bool hasContent = false; // there are elements that the library makes objects from
};

/// Parses the document at the absolute path `path` exactly as the library does. With any report, the parser's
/// warnings included, the library reads nothing. Messages call the document `shownName`.
Diagnosis Diagnose(const GuString& path, const GuString& shownName);
