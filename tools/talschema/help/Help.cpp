#include "tools/talschema/help/Help.h"

#include <memory>
#include <vector>

#include "TalAttributeSchemaHost/text/NearNames.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

/// Throws `Trouble` when there is no such command.
const CLI::App& CommandNamed(const CLI::App& app, const std::string& name)
{
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands({})) {
        if (command->get_name() == name)
            return *command;
        names.push_back(command->get_name());
    }
    const std::string nearest = tal::NearestName(name, names);
    throw Trouble(
        "talschema: error: there is no command \"" + Printable(name) + "\"" +
        (nearest.empty() ? "; \"talschema help\" lists them" : "; did you mean \"" + nearest + "\"?") + "\n");
}

} // namespace

Command AddHelpCommand(CLI::App& app)
{
    const auto name = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("help", "Show the usage of talschema or of a command");
    command->add_option("COMMAND", *name, "Without, the usage of talschema");
    return {command, [&app, name] {
                Print(name->empty()
                          ? app.get_formatter()->make_help(&app, "talschema", CLI::AppFormatMode::Normal)
                          : CommandNamed(app, *name).help("talschema"));
                return static_cast<int>(kExitFine);
            }};
}

void ExpectCommand(const CLI::App& app, int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.empty() || argument.front() != '-') {
            CommandNamed(app, argument);
            return;
        }
    }
}
