#include "TalAttributeSchemaReader/model/CAttributeFolders.h"

#include "TalAttributeSchemaReader/model/ModelWalk.h"

CAttributeFolders::CAttributeFolders() = default;

CAttributeFolders::~CAttributeFolders()
{
    // Every folder below moves up into this list, so each is destroyed without sub-folders of its own.
    for (CAttributeFolders& folder : tal::SubFolders(*this))
        m_subFolders.Get().Splice(folder.m_subFolders.Get());
}
