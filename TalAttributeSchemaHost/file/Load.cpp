#include "TalAttributeSchemaHost/file/Load.h"

#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/compact/CompactReader.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaHost/scan/HostSession.h"
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

namespace tal {

namespace {

/// What a document holds against being told of a finding is for those who check it.
CheckOptions OptionsOf(const LoadOptions& options)
{
    CheckOptions checkOptions;
    checkOptions.maxFindings = options.maxFindings;
    checkOptions.suppressions = false;
    return checkOptions;
}

void Take(CheckResult checked, LoadResult& result)
{
    result.findings = std::move(checked.findings);
    result.omitted = std::move(checked.omitted);
}

/// Of a document that was read without a look for findings: why it was not, or what it refers to outside of
/// itself. As a rule there is neither, and one pass is enough.
CheckResult FindingsOfRead(const XercesSession& session, const Document& document, const std::string& name,
                           const LoadOptions& options, const CompactReader& reader)
{
    if (reader.Root() && !reader.HasExternalReferences())
        return {};
    CheckResult checked = CheckBytes(session, document, name, OptionsOf(options));
    if (!reader.Root())
        return checked;
    CheckResult external;
    for (Finding& finding : checked.findings) {
        if (finding.kind == FindingKind::External)
            external.findings.push_back(std::move(finding));
    }
    return external;
}

void Load(std::string bytes, const std::filesystem::path& path, const std::string& name,
          const LoadOptions& options, LoadResult& result)
{
    const HostSession session;
    if (!session.IsOpen()) {
        result.findings.push_back(
            WholeDocument(FindingId::SystemFailure, name, "the XML library cannot be initialised"));
        return;
    }
    const Document document{bytes, path, options.allowExternal};
    CompactReader reader;
    if (options.check) {
        Take(CheckBytes(session.Get(), document, name, OptionsOf(options), &reader), result);
    } else {
        ScanAsRead(session.Get(), document, reader);
        Take(FindingsOfRead(session.Get(), document, name, options, reader), result);
    }
    if (!reader.Root())
        return;
    bytes = {}; // not needed while the schema grows
    auto schema = std::make_unique<CDASchema>();
    CTalAttributeModelBuilder({}, schema.get(), nullptr).TraverseModelElements(reader.Root());
    result.schema = std::move(schema);
    result.read = true;
}

LoadResult NothingRead()
{
    LoadResult result;
    result.schema = std::make_unique<CDASchema>();
    return result;
}

} // namespace

LoadResult LoadSchema(const std::filesystem::path& file, const LoadOptions& options)
{
    const std::string name = file.u8string();
    LoadResult result = NothingRead();
    UseFile(
        file, name,
        [&](std::string bytes) { Load(std::move(bytes), AbsolutePath(file), name, options, result); },
        [&](Finding finding) {
            result = NothingRead();
            result.findings = {std::move(finding)};
        });
    return result;
}

LoadResult LoadText(std::string_view bytes, const std::string& name, const LoadOptions& options)
{
    LoadResult result = NothingRead();
    SayWhenMemoryRunsOut(
        name,
        [&] { Load(std::string(bytes), AbsolutePath(std::filesystem::u8path(name)), name, options, result); },
        [&](Finding finding) {
            result = NothingRead();
            result.findings = {std::move(finding)};
        });
    return result;
}

} // namespace tal
