#include "TalAttributeSchemaReader/module/Exports.h"

#include <memory>
#include <utility>

#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

int ReadStorageTalAttributeSchema(GuString path, CDASchema** schema, void* reserved)
{
    CTalAttributeModelBuilder builder(std::move(path), reserved);
    std::unique_ptr<CDASchema> result(builder.GetSchema());
    builder.ReadDocument();
    if (schema)
        *schema = result.release();
    return 1;
}

int WriteStorageTalAttributeSchema(GuString path, CDASchema* schema, void* reserved)
{
    CTalAttributeModelBuilder(std::move(path), schema, reserved).WriteDocument();
    return 1;
}

void TalAttributeSchemaReaderInitialize() {}

void TalAttributeSchemaReaderTerminate() {}

void __localFnToKeepTalAttributeSchemaReaderDllLoaded() {}
