// The check of a document in memory.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include <xercesc/util/OutOfMemoryException.hpp>

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/findings/Sentence.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

namespace tal {

/// Findings call the document `name`. What `options` says of external files counts in `document`. Throws
/// `std::system_error` when the system does not know the code page. `listener` is told what the check is
/// told, in the same pass; it may be null.
CheckResult CheckBytes(const XercesSession& session, const Document& document, const std::string& name,
                       const CheckOptions& options, DocumentVisitor* listener = nullptr);

/// One pass over the document; `visitor` is also told when the document costs the library's own parse more
/// than it may.
void ScanAsRead(const XercesSession& session, const Document& document, DocumentVisitor& visitor);

/// About a document as a whole.
Finding WholeDocument(FindingId id, const std::string& name, Sentence sentence);
Finding FileFailure(const std::string& name, const std::error_code& error);

/// Calls `run`. When memory runs out in it, `failed` gets the finding that says so.
template <class Run, class Failed>
void SayWhenMemoryRunsOut(const std::string& name, Run&& run, Failed&& failed)
{
    const auto fail = [&] { failed(WholeDocument(FindingId::SystemFailure, name, "not enough memory")); };
    try {
        run();
    } catch (const std::bad_alloc&) {
        fail();
    } catch (const xercesc::OutOfMemoryException&) {
        fail();
    }
}

/// Calls `use` with the content of the file, or `failed` with the finding that says why there is none.
template <class Use, class Failed>
void UseFile(const std::filesystem::path& file, const std::string& name, Use&& use, Failed&& failed)
{
    const auto run = [&] {
        std::error_code error;
        std::string bytes = ReadFile(file, error);
        if (error)
            failed(FileFailure(name, error));
        else
            use(std::move(bytes));
    };
    SayWhenMemoryRunsOut(name, run, failed);
}

} // namespace tal
