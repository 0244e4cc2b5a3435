// The references of a schema, collected from its model.
#include "tools/talschema/SchemaGraph.h"

#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "TalAttributeSchemaReader/builders/ModelWalk.h"
#include "tools/talschema/Text.h"

namespace {

class GraphBuilder
{
public:
    /// Returns the node's index, from which it refers to others.
    std::size_t Define(NodeKind kind, const GuString& id, const GuString& name)
    {
        const std::size_t index = IndexOf(kind, id);
        GraphNode& node = m_graph.nodes[index];
        node.isDefined = true;
        if (!name.IsEmpty())
            node.names.push_back(ToUtf8(name));
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
        const std::string text = ToUtf8(id);
        const auto [known, isNew] = m_indices.try_emplace({kind, text}, m_graph.nodes.size());
        if (isNew)
            m_graph.nodes.push_back({kind, text});
        return known->second;
    }

    SchemaGraph m_graph;
    std::map<std::pair<NodeKind, std::string>, std::size_t> m_indices;
    std::set<std::tuple<std::size_t, std::size_t, std::string>> m_known;
};

void AddFolders(GraphBuilder& builder, std::size_t entity, const GuList& folders)
{
    ForEachObject<const CAttributeFolders>(folders, [&](const CAttributeFolders* folder) {
        builder.Refer(entity, NodeKind::Attribute, folder->GetAllAttributeReferences(), "folder");
        AddFolders(builder, entity, folder->GetSubFolderList());
    });
}

void AddEntity(GraphBuilder& builder, const CustomEntity& entity)
{
    const std::size_t index = builder.Define(NodeKind::Entity, entity.GetTypeName(), GuString());
    builder.Refer(index, NodeKind::File, entity.GetAllFileReferenceId());
    builder.Refer(index, NodeKind::Attribute, entity.GetAllAttributeReferenceId());
    ForEachObject<const CChildrenCreation>(
        entity.GetChildrenCreationList(), [&](const CChildrenCreation* assembly) {
            builder.Refer(index, NodeKind::Attribute, assembly->GetAssemblyName(), "assembly");
        });
    ForEachObject<const CLoadCaseTemplate>(
        entity.GetLoadCaseTemplateList(), [&](const CLoadCaseTemplate* loadCaseTemplate) {
            builder.Refer(index, NodeKind::Attribute, loadCaseTemplate->GetConditionName(), "condition");
            AddFolders(builder, index, loadCaseTemplate->GetAttributeFolderList());
        });
}

} // namespace

SchemaGraph GraphOf(const CDASchema& schema)
{
    GraphBuilder builder;
    ForEachObject<const CustomEntity>(schema.GetCustomEntityList(),
                                      [&](const CustomEntity* entity) { AddEntity(builder, *entity); });
    ForEachObject<const CSingleFile>(schema.GetFileList(), [&](const CSingleFile* file) {
        const std::size_t index = builder.Define(NodeKind::File, file->GetUniqueId(), file->GetName());
        builder.Refer(index, NodeKind::Attribute, file->getAllAttributeReferenceId());
    });
    ForEachObject<const CAttributeGroup>(schema.GetAttributeGroupList(), [&](const CAttributeGroup* group) {
        const std::size_t index =
            builder.Define(NodeKind::AttributeGroup, group->GetAttributeId(), group->GetAttributeLabel());
        builder.Refer(index, NodeKind::Attribute, group->GetAllAttributeReferences());
    });
    ForEachObject<const FileAttribute>(schema.GetAttributeList(), [&](const FileAttribute* attribute) {
        builder.Define(NodeKind::Attribute, attribute->GetID(), attribute->GetName());
    });
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
