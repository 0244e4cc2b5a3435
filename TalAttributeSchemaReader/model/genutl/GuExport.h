// Which symbols the libraries show to their users.
#pragma once

#ifdef TAL_STATIC // libraries that become part of their user show nothing
#define GU_SYMBOL_EXPORT
#define GU_SYMBOL_IMPORT
#elif defined(_WIN32)
#define GU_SYMBOL_EXPORT __declspec(dllexport)
#define GU_SYMBOL_IMPORT __declspec(dllimport)
#else
#define GU_SYMBOL_EXPORT __attribute__((visibility("default")))
#define GU_SYMBOL_IMPORT __attribute__((visibility("default")))
#endif

#ifdef CAESchemaSCM_EXPORTS
#define CAESCHEMASCM_API GU_SYMBOL_EXPORT
#else
#define CAESCHEMASCM_API GU_SYMBOL_IMPORT
#endif

#ifdef TalAttributeSchemaReader_EXPORTS
#define TALATTRIBUTE_API GU_SYMBOL_EXPORT
#else
#define TALATTRIBUTE_API GU_SYMBOL_IMPORT
#endif
