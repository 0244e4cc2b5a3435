#include "TalAttributeSchemaHost/file/FixDocument.h"

#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"

namespace tal {

namespace {

bool IsUnchanged(const std::filesystem::path& file, const std::string& bytes)
{
    std::error_code error;
    return ReadFile(file, error) == bytes && !error;
}

void Store(const std::filesystem::path& file, const FixOptions& options, FixFileResult& result)
{
    SaveOptions save = options.save;
    save.onlyIf = [&] { return IsUnchanged(file, result.original); };
    SaveResult saved = SaveBytes(file, result.text, save);
    result.note = std::move(saved.note);
    if (saved)
        return;
    result.error = std::move(saved.error);
    result.text = result.original;
    result.fixed.clear();
    result.check = CheckText(result.original, file.u8string(), options.check);
}

} // namespace

FixFileResult FixDocument(const std::filesystem::path& file, const FixOptions& options)
{
    const std::string name = file.u8string();
    FixFileResult result;
    UseFile(
        file, name,
        [&](const std::string& bytes) {
            static_cast<FixResult&>(result) = FixText(bytes, name, options.check, options.wanted);
            result.original = bytes;
            if (!result.fixed.empty() && !options.dryRun)
                Store(file, options, result);
        },
        [&](Finding finding) { result.check.findings = {std::move(finding)}; });
    return result;
}

} // namespace tal
