// Schema documents of any size for the benchmark.
#pragma once

#include <cstddef>
#include <ostream>

/// Writes a document of roughly `bytes` bytes with every element of the format, laid out as the library
/// writes it. The same size always gives the same document.
void GenerateDocument(std::ostream& stream, std::size_t bytes);
