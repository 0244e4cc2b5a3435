// The "LoadCaseTemplates" element: the load case templates of an entity.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/format/FolderDepth.h"
#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Reads a "LoadCaseTemplates" element into new templates of a `CustomEntity`, or writes one template into
/// such an element. Owns none of them.
class TALATTRIBUTE_API CTalAttributeEntityLoadCaseBuilder
{
public:
    /// For writing: `node` is the "LoadCaseTemplates" element that gets the template.
    CTalAttributeEntityLoadCaseBuilder(GuString path, CLoadCaseTemplate* loadCaseTemplate,
                                       xercesc::DOMNode* node);
    /// For reading: `node` is the "LoadCaseTemplates" element.
    CTalAttributeEntityLoadCaseBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityLoadCaseBuilder(const CTalAttributeEntityLoadCaseBuilder& other);
    CTalAttributeEntityLoadCaseBuilder& operator=(const CTalAttributeEntityLoadCaseBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityLoadCaseBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Condition" element; nothing for a null template. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "LoadCaseTemplates".
    void TraverseEntityLoadCaseElements(xercesc::DOMNode* node);
    /// Reads "AttributeRef" and "Value" of a "Condition" element.
    void ReadAttributesCondition(xercesc::DOMNode* node, CLoadCaseTemplate* loadCaseTemplate);
    /// Reads an "AttributeFolder" with the `kMaxFolderDepth` levels from it downwards. Without XML attributes
    /// its children are not read.
    void ReadAttributesFolder(xercesc::DOMNode* node, CAttributeFolders* folder);
    /// Reads one "Attribute" child of a folder.
    void ReadAttributes(xercesc::DOMNode* node, CAttributeFolders* folder);
    /// Writes "AttributeRef" and "Value" of a "Condition" element.
    void WriteConditionAttribute(xercesc::DOMNode* element, CLoadCaseTemplate* loadCaseTemplate);
    /// Appends the sub-folders of `folder`, which counts as level 1 of `kMaxFolderDepth`. Does nothing when
    /// an argument is null.
    void WriteAttributeFoldersRecursive(xercesc::DOMNode* element, CAttributeFolders* folder);

private:
    void ReadFolder(xercesc::DOMNode* node, CAttributeFolders* folder, int level);

    CLoadCaseTemplate* m_loadCaseTemplate;
    GuString m_path;
    xercesc::DOMNode* m_node;
    CustomEntity* m_entity;
};
