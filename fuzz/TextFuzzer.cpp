// Conversions of text: nothing fails, and what is valid comes back.
#include <cstring>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "fuzz/Fuzz.h"
#include "tools/talschema/terminal/Text.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = fuzz::AsText(data, size);
    const GuString decoded = tal::FromUtf8(bytes);
    const std::string valid = tal::ToUtf8(decoded);
    fuzz::Expect(tal::ToUtf8(tal::FromUtf8(valid)) == valid, "valid UTF-8 comes back");

    std::u16string units(size / 2, u'\0');
    std::memcpy(units.data(), data, units.size() * 2);
    const GuString text(units.c_str());
    GuConversionAllocator allocator;
    const std::string narrow = allocator.UnicodeToAnsi(text);
    fuzz::Expect(tal::ToUtf8(tal::FromUtf8(narrow)) == narrow, "narrow text is valid");
    fuzz::Expect(!GuConversionAllocator::HoldsUnchanged(text) || tal::FromUtf8(narrow) == text,
                 "text that is held unchanged comes back");

    const std::string printable = Printable(bytes);
    fuzz::Expect(Printable(printable) == printable, "printable text is printable");
    DisplayWidth(printable);
    fuzz::Expect(IndexOfCharacter(bytes, size + 1) == size, "there are no more characters than bytes");
    tal::NearestName(valid, {"Attribute", "AttributeGroup"});
    return 0;
}
