// The "DataGenerator" element, which attribute definitions and attribute groups read alike.
#pragma once

#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeTypeBuilder.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"

/// Every child element asks the model for the owner's generator; only a "Type" fills it. `Owner` is
/// `FileAttribute` or `CAttributeGroup`.
template <class Owner>
void ReadDataGenerator(const GuString& path, Owner* owner, xercesc::DOMNode* node)
{
    ForEachChildElement(node, [&](NodeName name, xercesc::DOMNode* child) {
        CDataGenerator* generator = CMemoryAllocator::CreateDataGenerator(owner);
        if (name == "Type")
            CTalAttributeTypeBuilder(path, generator, child).Construct();
    });
}
