// A check, and what the tool makes of it.
#include "fuzz/Fuzz.h"
#include "tools/talschema/check/FindingReports.h"
#include "tools/talschema/check/FindingSarif.h"
#include "tools/talschema/check/FindingText.h"

namespace {

void ExpectSafe(const std::string& text)
{
    const bool safe = std::all_of(text.begin(), text.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte == '\n' || (byte >= 0x20 && byte != 0x7F);
    });
    fuzz::Expect(safe, "a terminal is not driven by a document");
}

void ExpectInside(const tal::Finding& finding, std::size_t size)
{
    const auto& [begin, end] = finding.range;
    fuzz::Expect(begin.offset <= end.offset && end.offset <= size, "a range is in the document");
    for (const tal::Finding::Value& value : finding.values)
        fuzz::Expect(value.begin + value.length <= finding.message.size(), "a value is in its message");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tal::CheckOptions options;
    options.keepLines = true;
    options.codePage = size % 4 == 1 ? 1252 : 0; // no byte is taken for it: the seeds are whole documents
    options.maxFindings = size % 4 == 2 ? 3 : tal::kMaxFindings;
    const std::string_view document = fuzz::AsText(data, size);
    const std::vector<CheckedFile> files = {{"in.xml", tal::CheckText(document, "in.xml", options)}};
    for (const tal::Finding& finding : files[0].result.findings)
        ExpectInside(finding, document.size());
    FindingStyle style;
    style.source = true;
    ExpectSafe(FindingsAsText(files[0], style) + Summary(files, style));
    const std::string json = FindingsAsJson(files, style);
    const std::string sarif = FindingsAsSarif(files, style, {});
    ExpectSafe(json + sarif);
    fuzz::Expect(nlohmann::json::accept(json) && nlohmann::json::accept(sarif), "reports are JSON");
    return 0;
}
