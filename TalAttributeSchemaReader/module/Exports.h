// The functions that the library exports, under undecorated names.
#pragma once

#include "TalAttributeSchemaReader/model/CDASchema.h"

extern "C" {

/// Reads the document at `path` (a file path or a URI) into a new schema and stores it in `*schema`; the
/// caller owns it from then on and deletes it. A file that cannot be read, that the parser has anything to
/// say about, or whose root is not "Model" gives an empty schema. Always returns 1. An exception raised while
/// the parsed document is turned into the model (such as `std::bad_alloc`) reaches the caller; `*schema` is
/// then not set.
///
/// The library holds no locks: storage calls must not overlap. `reserved` is not used.
TALATTRIBUTE_API int ReadStorageTalAttributeSchema(GuString path, CDASchema** schema, void* reserved);

/// Writes `schema`, which may be null, to the file `path`; an existing file is replaced. The schema stays the
/// caller's and is not changed. Always returns 1, also when nothing could be written. `reserved` is not used.
TALATTRIBUTE_API int WriteStorageTalAttributeSchema(GuString path, CDASchema* schema, void* reserved);

/// Does nothing: every storage call initialises and terminates the XML library by itself.
TALATTRIBUTE_API void TalAttributeSchemaReaderInitialize(void);
/// Does nothing.
TALATTRIBUTE_API void TalAttributeSchemaReaderTerminate(void);

/// Constant 8-bit texts, null-terminated: 0 the kind of module, 1 the version, any other the build
/// identification.
TALATTRIBUTE_API const char* TalAttributeSchemaReader_get_module_info(int which);

/// Does nothing: its address tells the system which module to pin.
TALATTRIBUTE_API void __localFnToKeepTalAttributeSchemaReaderDllLoaded(void);
}
