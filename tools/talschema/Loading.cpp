// Reading a document through the library, and saying why when nothing was read.
#include "tools/talschema/Loading.h"

#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/Diagnosis.h"
#include "tools/talschema/Files.h"
#include "tools/talschema/Messages.h"

namespace {

bool IsEmpty(const CDASchema& schema)
{
    return !schema.GetStorage() && !schema.GetAttributeList().GetHead() && !schema.GetFileList().GetHead() &&
           !schema.GetAttributeGroupList().GetHead() && !schema.GetCustomEntityList()->GetHead();
}

} // namespace

std::unique_ptr<CDASchema> LoadSchema(const std::string& file)
{
    ExpectReadable(file);
    const GuString path = AbsolutePath(file);
    CDASchema* read = nullptr;
    ReadStorageTalAttributeSchema(path, &read, nullptr);
    std::unique_ptr<CDASchema> schema(read);
    if (IsEmpty(*schema)) {
        const Diagnosis diagnosis = Diagnose(path, file.c_str());
        if (!diagnosis.reports.empty())
            throw Trouble(diagnosis.reports);
        // When memory runs out while the library parses, it reads nothing, too.
        if (diagnosis.hasContent)
            throw Trouble(
                ErrorMessage(file.c_str(), "the document was not read, probably for lack of memory"));
    }
    return schema;
}
