// `talschema`: the command line, and the one place where failures end.
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <new>
#include <sstream>
#include <string>

#include <CLI/CLI.hpp>

#include "TalAttributeSchemaHost/file/XmlSession.h"
#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/Command.h"
#include "tools/talschema/check/Check.h"
#include "tools/talschema/diff/Diff.h"
#include "tools/talschema/explain/Explain.h"
#include "tools/talschema/graph/Graph.h"
#include "tools/talschema/help/Help.h"
#include "tools/talschema/rewrite/Rewrite.h"
#include "tools/talschema/show/Show.h"
#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"
#include "tools/talschema/xsd/Xsd.h"

namespace {

constexpr char kNoMemory[] = "talschema: error: not enough memory\n";

int Run(int argc, char** argv)
{
    CLI::App app("Shows, checks, rewrites, compares and draws attribute schema documents.", "talschema");
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // a path may begin with "/"
    app.footer("Exit codes: 0 fine, 1 findings or differences, 2 trouble.");
    const std::initializer_list<Command> commands = {
        AddShowCommand(app),  AddCheckCommand(app),   AddRewriteCommand(app), AddDiffCommand(app),
        AddGraphCommand(app), AddExplainCommand(app), AddXsdCommand(app),     AddHelpCommand(app)};
    ExpectCommand(app, argc, argv);

    const std::string version = std::string("talschema ") + TalAttributeSchemaReader_get_module_info(1);
    app.set_version_flag("--version", version);
    for (const Command& command : commands)
        command.app->set_version_flag("--version", version);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& outcome) { // also help and version
        std::ostringstream out;
        std::ostringstream err; // which repeats what was given
        const bool fine = app.exit(outcome, out, err) == 0;
        Print(out.str());
        std::istringstream lines(err.str());
        for (std::string line; std::getline(lines, line);)
            std::cerr << Printable(line) << "\n";
        return fine ? kExitFine : kExitTrouble;
    }
    const tal::XmlSession session; // one for the whole run
    for (const Command& command : commands) {
        if (command.app->parsed())
            return command.run();
    }
    return kExitTrouble;
}

/// The JSON library asks for memory in its destructors, out of which no exception can come.
[[noreturn]] void EndWithoutMemory()
{
    try {
        if (const std::exception_ptr reason = std::current_exception())
            std::rethrow_exception(reason);
    } catch (const std::bad_alloc&) {
        std::fputs(kNoMemory, stderr);
        std::_Exit(kExitTrouble);
    } catch (...) {
    }
    std::abort();
}

} // namespace

int main(int argc, char** argv)
{
    const Console console;
    // The XML library opens other files by names in the locale's code page.
    std::setlocale(LC_CTYPE, "C.UTF-8");
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow is an error like any other
#endif
    std::set_terminate(EndWithoutMemory);
    try {
        return Run(argc, argv);
    } catch (const Trouble& trouble) {
        std::cerr << trouble.what();
    } catch (const std::bad_alloc&) {
        std::fputs(kNoMemory, stderr);
    } catch (const std::exception& exception) {
        std::cerr << "talschema: error: " << exception.what() << "\n";
    }
    return kExitTrouble;
}
