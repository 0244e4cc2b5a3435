// Load and save, three times over. The first save may lose what the format writes under another name than it
// reads; what is kept twice is kept for ever.
#include "fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::filesystem::path file = fuzz::InFolder("in.xml");
    WriteFile(file, std::string(fuzz::AsText(data, size)));
    tal::SaveOptions options;
    options.flush = false;
    std::string saved;
    for (int round = 0; round < 3; ++round) {
        const tal::LoadResult loaded = tal::LoadSchema(file, {false, false});
        if (!loaded) {
            fuzz::Expect(round == 0, "what was saved can be loaded");
            return 0;
        }
        fuzz::Expect(tal::SaveSchema(file, *loaded.schema, options).saved, "what was loaded can be saved");
        const std::string content = FileContent(file);
        fuzz::Expect(round < 2 || content == saved, "the third save is as the second");
        saved = content;
    }
    return 0;
}
