// `talschema graph`: what refers to what in a document, for Graphviz.
#include <memory>

#include "tools/talschema/Commands.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/NearNames.h"
#include "tools/talschema/SchemaGraph.h"
#include "tools/talschema/Terminal.h"

namespace {

struct Arguments
{
    std::string file;
    std::string only;
};

std::size_t FindEntity(const SchemaGraph& graph, const std::string& type, const std::string& file)
{
    std::vector<std::string> types;
    for (std::size_t i = 0; i < graph.nodes.size(); ++i) {
        if (graph.nodes[i].kind != NodeKind::Entity)
            continue;
        if (graph.nodes[i].id == type)
            return i;
        types.push_back(graph.nodes[i].id);
    }
    const std::string nearest = NearestName(type, types);
    const std::string message = "no entity of the type \"" + type + "\"" +
                                (nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?");
    throw Trouble(ErrorMessage(file.c_str(), message.c_str()));
}

int Graph(const Arguments& arguments, bool onlyOne)
{
    SchemaGraph graph = GraphOf(*LoadSchema(arguments.file));
    if (onlyOne)
        graph = Neighbourhood(graph, FindEntity(graph, arguments.only, arguments.file));
    Print(GraphAsDot(graph, arguments.file));
    return kExitFine;
}

} // namespace

Command AddGraphCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("graph", "Draw what refers to what in a document, for Graphviz");
    command->add_option("FILE", arguments->file, "The document to read")->required();
    const CLI::Option* only =
        command
            ->add_option("--only", arguments->only, "Draw the entity of this type and all that it refers to")
            ->type_name("TYPE");
    return {command, [arguments, only] { return Graph(*arguments, only->count() > 0); }};
}
