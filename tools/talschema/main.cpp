// `talschema`: the command line, and the one place where failures end.
#include <clocale>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <new>
#include <sstream>
#include <string>

#include <CLI/CLI.hpp>

#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/Commands.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/Terminal.h"

namespace {

int Run(int argc, char** argv)
{
    CLI::App app("Shows, checks, rewrites, compares and draws attribute schema documents.", "talschema");
    app.require_subcommand(1);
    app.footer("Exit codes: 0 fine, 1 findings or differences, 2 trouble.");
    const std::initializer_list<Command> commands = {AddShowCommand(app), AddCheckCommand(app),
                                                     AddRewriteCommand(app), AddDiffCommand(app),
                                                     AddGraphCommand(app)};

    const std::string version = std::string("talschema ") + TalAttributeSchemaReader_get_module_info(1);
    app.set_version_flag("--version", version);
    for (const Command& command : commands)
        command.app->set_version_flag("--version", version);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& outcome) { // also help and version
        std::ostringstream out;
        const bool fine = app.exit(outcome, out, std::cerr) == 0;
        Print(out.str());
        return fine ? kExitFine : kExitTrouble;
    }
    for (const Command& command : commands) {
        if (command.app->parsed())
            return command.run();
    }
    return kExitTrouble;
}

} // namespace

int main(int argc, char** argv)
{
    // The XML library opens files by names in the locale's code page, and column widths depend on it.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    try {
        return Run(argc, argv);
    } catch (const Trouble& trouble) {
        std::cerr << trouble.what();
    } catch (const std::bad_alloc&) {
        std::cerr << "talschema: error: not enough memory\n";
    } catch (const std::exception& exception) {
        std::cerr << "talschema: error: " << exception.what() << "\n";
    } catch (...) { // the XML library has exceptions of its own
        std::cerr << "talschema: error: the XML library failed, probably for lack of memory\n";
    }
    return kExitTrouble;
}
