#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileExtensionBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeSequenceBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/format/YesNo.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

CTalAttributeFileBuilder::CTalAttributeFileBuilder(GuString path, CSingleFile* file, DOMNode* node)
    : m_path(std::move(path)), m_node(node), m_file(file)
{
}

CTalAttributeFileBuilder::CTalAttributeFileBuilder(const CTalAttributeFileBuilder&) = default;
CTalAttributeFileBuilder& CTalAttributeFileBuilder::operator=(const CTalAttributeFileBuilder&) = default;
CTalAttributeFileBuilder::~CTalAttributeFileBuilder() = default;

bool CTalAttributeFileBuilder::Construct()
{
    TraverseAttributeFilesElements(m_node, m_file);
    return true;
}

void CTalAttributeFileBuilder::TraverseAttributeFilesElements(DOMNode* node, CSingleFile* file)
{
    if (!IsElementNamed(node, "File"))
        return;
    ReadAttributes(node, file);
    ForEachChildElement(node, [&](NodeName name, DOMNode* child) {
        if (name == "FileExtension")
            CTalAttributeFileExtensionBuilder(m_path, CMemoryAllocator::GetNewFileExtensions(file), child)
                .Construct();
        else if (name == "AttributeSequence")
            ForEachChildElement(child, "Attribute", [&](DOMNode* reference) {
                CTalAttributeSequenceBuilder(m_path, reference, file).Construct();
            });
    });
}

void CTalAttributeFileBuilder::ReadAttributes(DOMNode* node, CSingleFile* file)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "ID")
            file->SetUniqueId(value);
        else if (name == "Name")
            file->SetName(value);
        else if (name == "FileType")
            file->SetFileType(value);
        else if (name == "OnChangeCreateVersion")
            file->SetOnChangeCreateVersionValue(IsYesIgnoringCase(value));
    });
}

bool CTalAttributeFileBuilder::Persist()
{
    DOMElement* element = AppendChildElement(m_node, "File");
    WriteAttribute(element, m_file);
    for (FileExtensions& extension : tal::Extensions(*m_file))
        CTalAttributeFileExtensionBuilder(m_path, &extension, element).Persist();
    CTalAttributeSequenceBuilder(m_path, AppendChildElement(element, "AttributeSequence"), m_file).Persist();
    return true;
}

void CTalAttributeFileBuilder::WriteAttribute(DOMNode* node, CSingleFile* file)
{
    if (!file)
        return;
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "ID", file->GetUniqueId());
    SetElementAttribute(element, "Name", file->GetName());
    SetElementAttribute(element, "FileType", file->GetFileType());
    SetElementAttribute(element, "OnChangeCreateVersion", YesNo(file->GetOnChangeCreateVersionValue()));
}
