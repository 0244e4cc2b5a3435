// `talschema show`: what the library reads from a document, for people or for programs.
#include "tools/talschema/Show.h"

#include <memory>

#include "tools/talschema/Commands.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/SchemaJson.h"
#include "tools/talschema/Terminal.h"

namespace {

struct Arguments
{
    std::string file;
    std::string format = "tree";
};

int Show(const Arguments& arguments)
{
    const std::unique_ptr<CDASchema> schema = LoadSchema(arguments.file);
    Print(arguments.format == "json" ? JsonAsText(SchemaToJson(*schema))
                                     : SchemaAsTree(*schema, arguments.file, ColoursWanted()));
    return kExitFine;
}

} // namespace

Command AddShowCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("show", "Show what the library reads from a document");
    command->add_option("FILE", arguments->file, "The document to read")->required();
    command->add_option("--format", arguments->format, "tree for people, json for programs")
        ->check(CLI::IsMember({"tree", "json"}))
        ->capture_default_str();
    return {command, [arguments] { return Show(*arguments); }};
}
