// A complete host: loads a schema document, changes it through the model, saves it, and says what went wrong.
#include <algorithm>
#include <iostream>
#include <string>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"

namespace {

/// What a document says is raw, control characters included, and a terminal would obey them.
std::string Printable(std::string text)
{
    const auto isControl = [](char character) {
        return (character >= 0 && character < ' ') || character == 127;
    };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return text;
}

/// In the form of compilers, so that editors can jump to the place.
void Print(const tal::Finding& finding)
{
    const tal::Position& begin = finding.range.begin;
    std::cerr << Printable(finding.file) << ":";
    if (begin.line > 0) // 0 is the document as a whole
        std::cerr << begin.line << ":" << begin.column << ":";
    std::cerr << " " << tal::NameOf(finding.severity) << ": " << Printable(finding.message) << "\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: schema-host INPUT OUTPUT\n";
        return 2;
    }

    const tal::LoadResult loaded = tal::LoadSchema(argv[1]);
    for (const tal::Finding& finding : loaded.findings)
        Print(finding);
    if (!loaded) // the schema is empty, and saving it would cost the user the document
        return 2;

    CDASchema& schema = *loaded.schema;
    for (const CustomEntity& entity : tal::Entities(schema))
        std::cout << "entity type " << Printable(tal::ToUtf8(entity.GetTypeName())) << "\n";

    // New objects come from the factories and belong to the schema.
    FileAttribute* attribute = CMemoryAllocator::CreateAttributeObject(&schema);
    attribute->SetID("HubHeight");
    attribute->SetName("Hub height");
    attribute->SetDataType("Double");
    attribute->SetValue("120");
    attribute->SetEditable(true);

    const tal::SaveResult saved = tal::SaveSchema(argv[2], schema);
    if (!saved) { // whatever OUTPUT was, it still is
        std::cerr << argv[2] << ": error: not saved: " << saved.error << "\n";
        return 2;
    }
    return 0;
}
