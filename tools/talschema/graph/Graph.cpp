#include "tools/talschema/graph/Graph.h"

#include <memory>

#include "TalAttributeSchemaHost/text/NearNames.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/graph/GraphDot.h"
#include "tools/talschema/graph/SchemaGraph.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"

namespace {

struct Arguments
{
    std::string file;
    std::string stdinName;
    std::string only;
    bool allowExternal = false;
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
    const std::string nearest = tal::NearestName(type, types);
    const std::string message = "no entity of the type \"" + type + "\"" +
                                (nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?");
    throw Trouble(ErrorMessage(file, message));
}

int Graph(const Arguments& arguments, bool onlyOne)
{
    const Input input = OpenInput(arguments.file, arguments.stdinName);
    SchemaGraph graph = GraphOf(*Load(input, {arguments.allowExternal, false}).schema);
    if (onlyOne)
        graph = Neighbourhood(graph, FindEntity(graph, arguments.only, input.name));
    Print(GraphAsDot(graph, input.name));
    return kExitFine;
}

} // namespace

Command AddGraphCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("graph", "Draw what refers to what in a document, for Graphviz");
    command->add_option("FILE", arguments->file, "The document to read; - is the standard input")->required();
    const CLI::Option* only =
        command
            ->add_option("--only", arguments->only, "Draw the entity of this type and all that it refers to")
            ->type_name("TYPE");
    AddStdinName(*command, arguments->stdinName);
    AddAllowExternal(*command, arguments->allowExternal);
    return {command, [arguments, only] { return Graph(*arguments, only->count() > 0); }};
}
