// What the fuzz targets share.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/TestSupport.h"
#include "tools/talschema/show/SchemaJson.h"

/// Called by the fuzzer for each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// To initialise the XML library for each input takes most of the time.
inline const tal::XmlSession xmlLibrary;

inline std::string_view AsText(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process, which the fuzzer takes for a fault of the input, unless `fact` is true.
inline void Expect(bool fact, const char* what)
{
    if (fact)
        return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

/// The exported functions fetch what a document names, and the fuzzer shall not.
inline bool NamesOtherFiles(std::string_view document)
{
    std::string ascii(document);
    ascii.erase(std::remove(ascii.begin(), ascii.end(), '\0'), ascii.end()); // of UTF-16
    return ascii.find("SYSTEM") != std::string::npos || ascii.find("PUBLIC") != std::string::npos;
}

/// A folder for the process.
inline std::filesystem::path InFolder(const char* name)
{
    static const TemporaryDirectory folder;
    return folder / name;
}

} // namespace fuzz
