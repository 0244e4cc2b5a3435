// The subcommands, one source file each.
#pragma once

#include <functional>

#include <CLI/App.hpp>

/// A subcommand on the command line and what it does. `run` returns the exit code or throws `Trouble`.
struct Command
{
    CLI::App* app;
    std::function<int()> run;
};

/// `talschema check FILE...`.
Command AddCheckCommand(CLI::App& app);
/// `talschema diff A B`.
Command AddDiffCommand(CLI::App& app);
/// `talschema graph FILE`.
Command AddGraphCommand(CLI::App& app);
/// `talschema rewrite INPUT OUTPUT`.
Command AddRewriteCommand(CLI::App& app);
/// `talschema show FILE`.
Command AddShowCommand(CLI::App& app);
