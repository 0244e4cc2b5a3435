#include "tools/talschema/graph/SchemaGraph.h"

#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

namespace {

class GraphBuilder
{
public:
    /// Returns the node's index, from which it refers to others.
    std::size_t Define(NodeKind kind, const GuString& id, const GuString& name)
    {
        const std::size_t index = IndexOf(kind, id);
        GraphNode& node = m_graph.nodes[index];
        ++node.definitions;
        if (!name.IsEmpty())
            node.names.push_back(tal::ToUtf8(name));
        return index;
    }

    // The same reference twice says nothing more.
    void Refer(std::size_t from, NodeKind kind, const GuString& id, const char* label = "")
    {
        const GraphEdge edge = {from, IndexOf(kind, id), label};
        if (m_known.emplace(edge.from, edge.to, edge.label).second)
            m_graph.edges.push_back(edge);
    }

    void Refer(std::size_t from, NodeKind kind, const GuStringArray& ids, const char* label = "")
    {
        for (const GuString& id : ids)
            Refer(from, kind, id, label);
    }

    SchemaGraph Take() { return std::move(m_graph); }

private:
    std::size_t IndexOf(NodeKind kind, const GuString& id)
    {
        const std::string text = tal::ToUtf8(id);
        const auto [known, isNew] = m_indices.try_emplace({kind, text}, m_graph.nodes.size());
        if (isNew)
            m_graph.nodes.push_back({kind, text, m_graph.nodes.size() + 1});
        return known->second;
    }

    SchemaGraph m_graph;
    std::map<std::pair<NodeKind, std::string>, std::size_t> m_indices;
    std::set<std::tuple<std::size_t, std::size_t, std::string>> m_known;
};

template <class Folders>
void AddFolders(GraphBuilder& builder, std::size_t entity, const Folders& folders)
{
    for (const CAttributeFolders& folder : folders) {
        builder.Refer(entity, NodeKind::Attribute, folder.GetAllAttributeReferences(), "folder");
        AddFolders(builder, entity, tal::SubFolders(folder));
    }
}

void AddEntity(GraphBuilder& builder, const CustomEntity& entity)
{
    const std::size_t index = builder.Define(NodeKind::Entity, entity.GetTypeName(), GuString());
    builder.Refer(index, NodeKind::File, entity.GetAllFileReferenceId());
    builder.Refer(index, NodeKind::Attribute, entity.GetAllAttributeReferenceId());
    for (const CChildrenCreation& assembly : tal::Assemblies(entity))
        builder.Refer(index, NodeKind::Attribute, assembly.GetAssemblyName(), "assembly");
    for (const CLoadCaseTemplate& loadCaseTemplate : tal::LoadCaseTemplates(entity)) {
        builder.Refer(index, NodeKind::Attribute, loadCaseTemplate.GetConditionName(), "condition");
        AddFolders(builder, index, tal::Folders(loadCaseTemplate));
    }
}

} // namespace

SchemaGraph GraphOf(const CDASchema& schema)
{
    GraphBuilder builder;
    for (const CustomEntity& entity : tal::Entities(schema))
        AddEntity(builder, entity);
    for (const CSingleFile& file : tal::Files(schema)) {
        const std::size_t index = builder.Define(NodeKind::File, file.GetUniqueId(), file.GetName());
        builder.Refer(index, NodeKind::Attribute, file.getAllAttributeReferenceId());
    }
    for (const CAttributeGroup& group : tal::AttributeGroups(schema)) {
        const std::size_t index =
            builder.Define(NodeKind::AttributeGroup, group.GetAttributeId(), group.GetAttributeLabel());
        builder.Refer(index, NodeKind::Attribute, group.GetAllAttributeReferences());
    }
    for (const FileAttribute& attribute : tal::Attributes(schema))
        builder.Define(NodeKind::Attribute, attribute.GetID(), attribute.GetName());
    return builder.Take();
}

SchemaGraph Neighbourhood(const SchemaGraph& graph, std::size_t start)
{
    std::vector<std::vector<const GraphEdge*>> edgesFrom(graph.nodes.size());
    for (const GraphEdge& edge : graph.edges)
        edgesFrom[edge.from].push_back(&edge);

    SchemaGraph reached;
    std::map<std::size_t, std::size_t> newIndices;
    std::vector<std::size_t> waiting; // reached, their references not yet followed
    const auto reach = [&](std::size_t index) {
        const auto [known, isNew] = newIndices.try_emplace(index, reached.nodes.size());
        if (isNew) {
            reached.nodes.push_back(graph.nodes[index]);
            waiting.push_back(index);
        }
        return known->second;
    };
    reach(start);
    while (!waiting.empty()) {
        const std::size_t index = waiting.back();
        waiting.pop_back();
        for (const GraphEdge* edge : edgesFrom[index])
            reached.edges.push_back({newIndices.at(index), reach(edge->to), edge->label});
    }
    return reached;
}
