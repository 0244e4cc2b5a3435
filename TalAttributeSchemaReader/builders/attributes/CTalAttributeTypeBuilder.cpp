#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeTypeBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

namespace {

using Setter = void (CDataGenerator::*)(GuString);

} // namespace

CTalAttributeTypeBuilder::CTalAttributeTypeBuilder(GuString path, CDataGenerator* dataGenerator,
                                                   DOMNode* node)
    : m_dataGenerator(dataGenerator), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeTypeBuilder::CTalAttributeTypeBuilder(const CTalAttributeTypeBuilder&) = default;
CTalAttributeTypeBuilder& CTalAttributeTypeBuilder::operator=(const CTalAttributeTypeBuilder&) = default;
CTalAttributeTypeBuilder::~CTalAttributeTypeBuilder() = default;

bool CTalAttributeTypeBuilder::Construct()
{
    TraverseAttributeTypeElements(m_node, m_dataGenerator);
    return true;
}

void CTalAttributeTypeBuilder::TraverseAttributeTypeElements(DOMNode* node, CDataGenerator* dataGenerator)
{
    if (!IsElementNamed(node, "Type"))
        return;
    const auto read = [&](DOMNode* element, const char* key, Setter set) {
        GuString value;
        GetAttributeValueForKey(element, key, value);
        if (!value.IsEmpty())
            (dataGenerator->*set)(std::move(value));
    };
    read(node, "Name", &CDataGenerator::SetTypeName);
    ForEachChildElement(node, [&](NodeName name, DOMNode* child) {
        if (name == "ModuleName")
            read(child, "Name", &CDataGenerator::SetModuleName);
        else if (name == "FunctionName")
            read(child, "Name", &CDataGenerator::SetFunctionName);
        else if (name == "EntityId")
            read(child, "Id", &CDataGenerator::SetEntityID);
        else if (name == "EntityName")
            read(child, "Name", &CDataGenerator::SetEntityName);
        else if (name == "ClassName")
            read(child, "Name", &CDataGenerator::SetClassName);
        else if (name == "CreationType")
            read(child, "Name", &CDataGenerator::SetCreationType); // not the name that is written
        else if (name == "Resources")
            ForEachChildElement(child, "Resource", [&](DOMNode* resource) {
                read(resource, "Name", &CDataGenerator::SetResources);
            });
    });
}

void CTalAttributeTypeBuilder::GetAttributeValueForKey(DOMNode* node, GuString key, GuString& value)
{
    bool found = false;
    ForEachAttribute(node, [&](NodeName name, AttributeValue attributeValue) {
        if (found || GuString(name).CompareNoCase(key) != 0)
            return;
        value = attributeValue;
        found = true;
    });
}

bool CTalAttributeTypeBuilder::Persist()
{
    const auto write = [&](const char* element, const char* attribute, const GuString& value) {
        AppendElementWithAttribute(m_node, element, attribute, value);
    };
    const GuString& kind = m_dataGenerator->GetTypeName();
    if (kind.CompareNoCase("Python") == 0) {
        write("ModuleName", "Name", m_dataGenerator->GetModuleName());
        write("FunctionName", "Name", m_dataGenerator->GetFunctionName());
    } else if (kind.CompareNoCase("VistaDb") == 0) {
        write("EntityId", "Id", m_dataGenerator->GetEntityID());
        write("EntityName", "Name", m_dataGenerator->GetEntityName());
        write("ClassName", "Name", m_dataGenerator->GetClassName());
        write("CreationType", "CreationType", m_dataGenerator->GetCreationType());
        DOMElement* resources = AppendChildElement(m_node, "Resources");
        for (const GuString& resource : m_dataGenerator->GetResources())
            AppendElementWithAttribute(resources, "Resource", "Name", resource);
    }
    return true;
}
