// What a subcommand is.
#pragma once

#include <functional>

#include <CLI/CLI.hpp>

/// A subcommand on the command line and what it does. `run` returns the exit code or throws `Trouble`.
struct Command
{
    CLI::App* app;
    std::function<int()> run;
};

/// The option of every command that reads documents.
inline void AddAllowExternal(CLI::App& command, bool& allowExternal)
{
    command.add_flag("--allow-external", allowExternal,
                     "Read external document types and entities wherever they are, the network included");
}
