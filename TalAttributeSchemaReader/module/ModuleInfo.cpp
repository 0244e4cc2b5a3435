// The texts by which a build of the library identifies itself.
#include "BuildIdentification.h"
#include "TalAttributeSchemaReader/module/Exports.h"

#define MODULE_NAME "TalAttributeSchemaReader"
#define IDENTIFICATION_MARKER "@(#)TAL "

namespace {

const char* const kModuleKind = "Dynamic linked library";
const char* const kVersion = TAL_MODULE_VERSION;

// Tools that look for the marker find the line in the binary; callers get it without the marker.
const char* buildIdentification = IDENTIFICATION_MARKER MODULE_NAME
    " version " TAL_MODULE_VERSION " (More informations on " TAL_WEB_SITE "), built on " TAL_BUILD_MACHINE
    " (" TAL_BUILD_DATE " at " TAL_BUILD_TIME ")" TAL_LEGAL_NOTICE;

} // namespace

const char* TalAttributeSchemaReader_get_module_info(int which)
{
    switch (which) {
    case 0:
        return kModuleKind;
    case 1:
        return kVersion;
    default:
        return buildIdentification + sizeof IDENTIFICATION_MARKER - 1;
    }
}
