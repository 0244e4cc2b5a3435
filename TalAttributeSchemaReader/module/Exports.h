// The functions that the library exports, under undecorated names.
#pragma once

#include "TalAttributeSchemaReader/model/CDASchema.h"

extern "C" {

/// Reads the document at `path` (a file path or a URI) into a new schema and stores it in `*schema`; the
/// caller owns it from then on and deletes it. A null `schema` is accepted: what was read is deleted. A file
/// that cannot be read, that the parser has anything to say about, or whose root is not "Model" gives an
/// empty schema, and so do memory that runs out during the parse and a document that expands more than 50,000
/// entities or needs more than 64 MiB and 128 times its size; `LoadSchema` of `TalAttributeSchemaHost.h` says
/// which it was. Always returns 1.
///
/// What is thrown while the XML library is set up or the parsed document is turned into the model reaches the
/// caller, and `*schema` is then not set. When memory runs out, that is `std::bad_alloc`.
///
/// The library holds no locks: storage calls must not overlap. `reserved` is not used.
TALATTRIBUTE_API int ReadStorageTalAttributeSchema(GuString path, CDASchema** schema, void* reserved);

/// Writes `schema` to the file `path`; a null `schema` is accepted and gives an empty root "Model". The
/// schema stays the caller's and is not changed. Always returns 1, also when nothing could be written.
///
/// An existing file is truncated and written in place: on a full disk, or when the process ends meanwhile,
/// the old document is lost and the new one is incomplete, and nobody is told. A host that must not lose a
/// document calls `SaveSchema` of `TalAttributeSchemaHost.h` instead.
///
/// Exceptions as for a read can be thrown while the XML library is set up; the file is then untouched.
/// Storage calls must not overlap. `reserved` is not used.
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
