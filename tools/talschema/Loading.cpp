#include "tools/talschema/Loading.h"

#include <filesystem>
#include <iostream>

#include "tools/talschema/check/FindingText.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Progress.h"

tal::LoadResult Load(const Input& input, const tal::LoadOptions& options)
{
    if (!input.failure.empty())
        throw Trouble(ErrorMessage(input.name, input.failure));
    Progress progress;
    progress.Next(input.name, input.bytes ? input.bytes->size() : SizeOfDocument(input.name));
    tal::LoadResult result = input.bytes ? tal::LoadText(*input.bytes, input.name, options)
                                         : tal::LoadSchema(std::filesystem::u8path(input.name), options);
    progress.Clear();
    if (!result)
        throw Trouble(ErrorsAsText(result.findings));
    for (const tal::Finding& finding : result.findings) {
        if (finding.kind == tal::FindingKind::External)
            std::cerr << FindingAsLine(finding, {});
    }
    return result;
}
