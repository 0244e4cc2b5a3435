// What a command reads: a file, a pipe, or the standard input.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "TalAttributeSchemaHost/findings/Finding.h"

/// A document on the command line.
struct Input
{
    std::string name;                 // as messages call it
    std::optional<std::string> bytes; // of a pipe or a device; the host library opens every other file itself
    std::string failure;              // why there are no bytes; otherwise empty
};

/// Reads `argument` to its end if it is `-`, the standard input, or something that can be read only once.
Input OpenInput(const std::string& argument, const std::string& stdinName);

/// As `OpenInput`, but the bytes of every file are there, unless it cannot be read.
Input ReadInput(const std::string& file);

/// The option that names the standard input.
void AddStdinName(CLI::App& command, std::string& name);

/// Throws `Trouble` when the standard input is to be read more than once.
void ExpectOneStandardInput(const std::vector<std::string>& arguments);

/// A file that cannot be read, as a finding.
tal::Finding UnreadableFile(const std::string& name, const std::string& reason);
