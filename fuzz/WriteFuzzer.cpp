// Any model can be written, another parser can read what is written, and so can the library.
#include <fuzzer/FuzzedDataProvider.h>
#include <libxml/parser.h>

#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "fuzz/Fuzz.h"

namespace {

GuString Text(FuzzedDataProvider& bytes)
{
    std::u16string text;
    for (std::size_t i = bytes.ConsumeIntegralInRange<std::size_t>(0, 6); i > 0; --i)
        text += static_cast<char16_t>(bytes.ConsumeBool() ? bytes.ConsumeIntegral<std::uint16_t>()
                                                          : bytes.ConsumeIntegralInRange<int>(0, 0x7F));
    return {text.c_str()};
}

void AddAttribute(CDASchema& schema, FuzzedDataProvider& bytes)
{
    FileAttribute* const attribute = CMemoryAllocator::CreateAttributeObject(&schema);
    attribute->SetID(Text(bytes));
    attribute->SetName(Text(bytes));
    attribute->SetValue(Text(bytes));
    attribute->SetEditable(bytes.ConsumeBool());
    if (bytes.ConsumeBool()) {
        CDataGenerator* const generator = CMemoryAllocator::CreateDataGenerator(attribute);
        generator->SetTypeName(Text(bytes));
        generator->SetResources(Text(bytes));
    }
}

void AddFile(CDASchema& schema, FuzzedDataProvider& bytes)
{
    CSingleFile* const file = CMemoryAllocator::CreateFileObject(&schema);
    file->SetName(Text(bytes));
    file->SetAttributeReferenceId(Text(bytes));
    GuString extension = Text(bytes);
    CMemoryAllocator::GetNewFileExtensions(file)->SetExtension(extension);
}

void FillRules(CCreationRules* rules, FuzzedDataProvider& bytes)
{
    rules->SetRule(Text(bytes), Text(bytes));
    CCreationOption* const option = CMemoryAllocator::CreateOptionObject(rules);
    option->SetOptionName(Text(bytes));
    option->SetReader(Text(bytes), Text(bytes), Text(bytes));
}

void AddEntity(CDASchema& schema, FuzzedDataProvider& bytes)
{
    CustomEntity* const entity = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    entity->SetTypeName(bytes.ConsumeBool() ? GuString("LoadCase") : Text(bytes));
    entity->SetAttributeReferenceId(Text(bytes));
    if (bytes.ConsumeBool())
        FillRules(CMemoryAllocator::CreateCreationRules(entity), bytes);
    CChildrenCreation* const child = CMemoryAllocator::CreateChildrenCreation(entity);
    child->SetAssemblyName(Text(bytes));
    if (bytes.ConsumeBool())
        FillRules(CMemoryAllocator::CreateCreationRulesForChildren(child), bytes);
    CLoadCaseTemplate* const condition = CMemoryAllocator::CreateLoadCaseTemplateObject(entity);
    condition->SetConditionName(Text(bytes));
    CAttributeFolders* folder = CMemoryAllocator::CreateAttributeFolderObject(condition);
    for (int level = bytes.ConsumeIntegralInRange<int>(0, 4); level > 0; --level) {
        folder->SetAttributeFolderName(Text(bytes));
        folder->SetAttributeReferences(Text(bytes));
        folder = CMemoryAllocator::CreateAttributeFolderObject(folder);
    }
}

void Fill(CDASchema& schema, FuzzedDataProvider& bytes)
{
    if (bytes.ConsumeBool())
        CMemoryAllocator::GetStorageObject(&schema)->SetWorkingDirectory(Text(bytes));
    while (bytes.remaining_bytes() > 0) {
        switch (bytes.ConsumeIntegralInRange<int>(0, 3)) {
        case 0:
            AddAttribute(schema, bytes);
            break;
        case 1:
            AddFile(schema, bytes);
            break;
        case 2:
            CMemoryAllocator::CreateAttributeGroupObject(&schema)->SetAttributeLabel(Text(bytes));
            break;
        default:
            AddEntity(schema, bytes);
        }
    }
}

xmlNode* Child(xmlNode* parent, const char* name)
{
    xmlNode* child = parent ? parent->children : nullptr;
    while (child && !xmlStrEqual(child->name, BAD_CAST name))
        child = child->next;
    return child;
}

/// The other parser finds the identifiers of the attributes as they are in the narrow code page.
void ExpectAttributes(xmlDoc* document, CDASchema& schema)
{
    xmlNode* node = Child(Child(Child(reinterpret_cast<xmlNode*>(document), "Model"), "AttributeDefinition"),
                          "Attributes");
    node = Child(node, "Attribute");
    GuConversionAllocator allocator;
    for (const FileAttribute& attribute : tal::Attributes(schema)) {
        while (node && node->type != XML_ELEMENT_NODE)
            node = node->next;
        fuzz::Expect(node, "every attribute is written");
        xmlChar* const id = xmlGetProp(node, BAD_CAST "ID");
        const std::string expected = allocator.UnicodeToAnsi(attribute.GetID().c_str());
        fuzz::Expect(id && expected == reinterpret_cast<const char*>(id), "identifiers are written whole");
        xmlFree(id);
        node = node->next;
    }
}

std::string Written(CDASchema& schema)
{
    const std::filesystem::path file = fuzz::InFolder("out.xml");
    WriteStorageTalAttributeSchema(file.c_str(), &schema, nullptr);
    return FileContent(file);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    CDASchema schema;
    Fill(schema, bytes);
    const std::string written = Written(schema);
    xmlDoc* const document =
        xmlReadMemory(written.data(), static_cast<int>(written.size()), "out.xml", nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    fuzz::Expect(document, "another parser reads what is written");
    ExpectAttributes(document, schema);
    xmlFreeDoc(document);
    const auto rewritten = [] { return Written(*ReadSchema(fuzz::InFolder("out.xml"))); };
    const std::string again = rewritten();
    fuzz::Expect(rewritten() == again, "what is kept once is kept for ever");
    return 0;
}
