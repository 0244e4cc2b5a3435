// A complete host: reads a schema document, changes it through the model, writes it.
#include <cstdio>
#include <memory>

#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s INPUT OUTPUT\n", argv[0]);
        return 2;
    }

    // The schema is ours from here on. A file that cannot be read gives an empty one.
    CDASchema* result = nullptr;
    ReadStorageTalAttributeSchema(argv[1], &result, nullptr);
    const std::unique_ptr<CDASchema> schema(result);

    GuConversionAllocator narrow;
    for (const CustomEntity* entity : *schema->GetCustomEntityList())
        std::printf("entity type %s\n", narrow.UnicodeToAnsi(entity->GetTypeName().c_str()));

    // New objects come from the factories and belong to the schema.
    FileAttribute* attribute = CMemoryAllocator::CreateAttributeObject(schema.get());
    attribute->SetID("HubHeight");
    attribute->SetName("Hub height");
    attribute->SetDataType("Double");
    attribute->SetValue("120");
    attribute->SetEditable(true);
    CMemoryAllocator::GetStorageObject(schema.get())->SetStorageType("Local");

    WriteStorageTalAttributeSchema(argv[2], schema.get(), nullptr);
    return 0;
}
