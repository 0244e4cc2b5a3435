// The exported read, and the host library's load, which makes the same model of every document.
#include "fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (fuzz::NamesOtherFiles(fuzz::AsText(data, size)))
        return 0;
    const std::filesystem::path file = fuzz::InFolder("in.xml");
    WriteFile(file, std::string(fuzz::AsText(data, size)));
    const nlohmann::ordered_json read = SchemaToJson(*ReadSchema(file));
    for (const bool check : {true, false}) {
        const tal::LoadResult loaded = tal::LoadSchema(file, {false, check});
        fuzz::Expect(SchemaToJson(*loaded.schema) == read, "load and read make the same model");
        fuzz::Expect(loaded.read != tal::IsUnreadable(loaded.findings), "errors say why nothing is read");
    }
    return 0;
}
