// The "Rules" element of an entity or of an assembly.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Joins a "Rules" element and the creation rules of a `CustomEntity` or a `CChildrenCreation`. Owns none of
/// them.
class TALATTRIBUTE_API CTalAttributeEntityRulesBuilder
{
public:
    /// For `ConstructRulesForChildren` and `PersistForChildren`: `node` is an assembly's "Rules" element.
    CTalAttributeEntityRulesBuilder(GuString path, CChildrenCreation* childrenCreation,
                                    xercesc::DOMNode* node);
    /// For `Construct` and `Persist`: `node` is an entity's "Rules" element.
    CTalAttributeEntityRulesBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityRulesBuilder(const CTalAttributeEntityRulesBuilder& other);
    CTalAttributeEntityRulesBuilder& operator=(const CTalAttributeEntityRulesBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityRulesBuilder();

    /// Reads an entity's rules. Always returns true.
    bool Construct();
    /// Appends an entity's rules to the element. Always returns true.
    bool Persist();
    /// Reads an assembly's rules. Always returns true.
    bool ConstructRulesForChildren();
    /// Appends an assembly's rules to the element. Always returns true.
    bool PersistForChildren();

    /// Does nothing unless `node` is an element "Rules".
    void TraverseEntityRulesElements(xercesc::DOMNode* node);
    /// Does nothing unless `node` is an element "Rules".
    void TraverseChildrenRulesElements(xercesc::DOMNode* node);
    /// Takes the XML attributes "Name" and "Value"; an absent one leaves its string as it is.
    void GetNameAndValueOfAttribute(xercesc::DOMNode* node, GuString& name, GuString& value);

private:
    // What the two kinds of rules share below "Create".
    void ReadCommonElement(xercesc::DOMNode* node, CCreationRules* rules);
    void WriteOptions(xercesc::DOMNode* create, CCreationRules* rules);

    CustomEntity* m_entity;
    CChildrenCreation* m_childrenCreation;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
