#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileExtensionBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeFileExtensionBuilder::CTalAttributeFileExtensionBuilder(GuString path, FileExtensions* extension,
                                                                     DOMNode* node)
    : m_extension(extension), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeFileExtensionBuilder::CTalAttributeFileExtensionBuilder(
    const CTalAttributeFileExtensionBuilder&) = default;
CTalAttributeFileExtensionBuilder&
CTalAttributeFileExtensionBuilder::operator=(const CTalAttributeFileExtensionBuilder&) = default;
CTalAttributeFileExtensionBuilder::~CTalAttributeFileExtensionBuilder() = default;

bool CTalAttributeFileExtensionBuilder::Construct()
{
    TraverseAttributeFileExtensionElements(m_node, m_extension);
    return true;
}

void CTalAttributeFileExtensionBuilder::TraverseAttributeFileExtensionElements(DOMNode* node,
                                                                               FileExtensions* extension)
{
    if (IsElementNamed(node, "FileExtension"))
        ReadAttributes(node, extension);
}

void CTalAttributeFileExtensionBuilder::ReadAttributes(DOMNode* node, FileExtensions* extension)
{
    ForEachAttribute(node, "Extension", [&](AttributeValue value) {
        GuString text = value;
        extension->SetExtension(text);
    });
}

bool CTalAttributeFileExtensionBuilder::Persist()
{
    WriteAttribute(AppendChildElement(m_node, "FileExtension"), m_extension);
    return true;
}

void CTalAttributeFileExtensionBuilder::WriteAttribute(DOMNode* element, FileExtensions* extension)
{
    if (extension)
        SetElementAttribute(AsElement(element), "Extension", extension->GetExtension());
}
