// Two versions of a file as a patch.
#pragma once

#include <string>

/// A unified diff that `git apply` and `patch -p1` take in the folder in which the tool runs; empty when
/// nothing differs. The bytes are those of the file, whatever they are.
std::string UnifiedDiff(const std::string& name, const std::string& before, const std::string& after);

/// The bytes as they are, or, on a terminal, lines that are safe there.
void PrintDiff(const std::string& diff, bool coloured);
