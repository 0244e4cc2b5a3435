#include "tools/talschema/show/Show.h"

#include <memory>

#include "tools/talschema/Loading.h"
#include "tools/talschema/show/SchemaJson.h"
#include "tools/talschema/show/ShowTree.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"

namespace {

struct Arguments
{
    std::string file;
    std::string stdinName;
    std::string format = "tree";
    bool allowExternal = false;
};

int Show(const Arguments& arguments)
{
    const Input input = OpenInput(arguments.file, arguments.stdinName);
    const nlohmann::ordered_json schema = SchemaToJson(*Load(input, {arguments.allowExternal, false}).schema);
    Print(arguments.format == "json" ? JsonAsText(schema)
                                     : SchemaAsTree(schema, input.name, ColoursWanted()));
    return kExitFine;
}

} // namespace

Command AddShowCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("show", "Show what the library reads from a document");
    command->add_option("FILE", arguments->file, "The document to read; - is the standard input")->required();
    command->add_option("--format", arguments->format, "tree for people, json for programs")
        ->check(CLI::IsMember({"tree", "json"}))
        ->capture_default_str();
    AddStdinName(*command, arguments->stdinName);
    AddAllowExternal(*command, arguments->allowExternal);
    return {command, [arguments] { return Show(*arguments); }};
}
