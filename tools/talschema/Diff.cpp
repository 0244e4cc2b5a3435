// `talschema diff`: what differs between two documents as the library reads them.
#include "tools/talschema/Diff.h"

#include <memory>

#include "tools/talschema/Commands.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/SchemaJson.h"
#include "tools/talschema/Terminal.h"

namespace {

struct Arguments
{
    std::string before;
    std::string after;
    std::string format = "text";
};

int Diff(const Arguments& arguments)
{
    const nlohmann::ordered_json before = SchemaToJson(*LoadSchema(arguments.before));
    const nlohmann::ordered_json after = SchemaToJson(*LoadSchema(arguments.after));
    const std::vector<Difference> differences = CompareSchemas(before, after);
    Print(arguments.format == "json" ? JsonAsText(DifferencesAsJson(differences))
                                     : DifferencesAsText(differences, ColoursWanted()));
    return differences.empty() ? kExitFine : kExitFindings;
}

} // namespace

Command AddDiffCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("diff", "Show what differs between two documents as they are read");
    command->add_option("A", arguments->before, "The old document")->required();
    command->add_option("B", arguments->after, "The new document")->required();
    command->add_option("--format", arguments->format, "text for people, json for programs")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    return {command, [arguments] { return Diff(*arguments); }};
}
