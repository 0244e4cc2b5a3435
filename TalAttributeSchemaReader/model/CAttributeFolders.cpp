// One attribute folder of a load case template.
#include "TalAttributeSchemaReader/model/CAttributeFolders.h"

CAttributeFolders::CAttributeFolders() = default;

CAttributeFolders::~CAttributeFolders()
{
    // Every folder below moves up into this list, so each is destroyed without sub-folders of its own.
    GuList& folders = m_subFolders.Get();
    for (const auto* node = folders.GetHead(); node; node = node->GetNext())
        folders.Splice(static_cast<CAttributeFolders*>(node->GetObject())->m_subFolders.Get());
}
