#include "tools/talschema/check/ProjectFile.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string_view>

#include <toml++/toml.h>

#include "TalAttributeSchemaHost/text/NearNames.h"
#include "tools/talschema/TextFile.h"
#include "tools/talschema/input/Glob.h"
#include "tools/talschema/terminal/Messages.h"

namespace fs = std::filesystem;

namespace {

using tal::FindingId;
using tal::Severity;

constexpr const char* kName = ".talschema.toml";
constexpr const char* kOff = "off";

std::string Quoted(const std::string& text)
{
    return '"' + text + '"';
}

std::string DidYouMean(const std::string& name, const std::vector<std::string>& known)
{
    const std::string near = tal::NearestName(name, known);
    return near.empty() ? "" : "; did you mean " + Quoted(near) + "?";
}

/// Reads one project file. Every mistake is told at its place.
class Reader
{
public:
    explicit Reader(std::string file) : m_file(std::move(file)) {}

    toml::table Parse() const
    {
        const std::string text = ReadTextFile(m_file);
        try {
            return toml::parse(text);
        } catch (const toml::parse_error& error) {
            throw Fault(error.source(), std::string(error.description()));
        }
    }

    /// Calls the member of `handlers` for every key.
    template <class Handlers>
    void ForEachKey(const toml::table& table, const Handlers& handlers) const
    {
        for (const auto& [key, node] : table) {
            const std::string name(key.str());
            const auto handler = handlers.find(name);
            if (handler == handlers.end()) {
                std::vector<std::string> known;
                known.reserve(handlers.size());
                for (const auto& candidate : handlers)
                    known.push_back(candidate.first);
                throw Fault(key.source(), "unknown key " + Quoted(name) + DidYouMean(name, known));
            }
            handler->second(node);
        }
    }

    const toml::table& Table(const toml::node& node, const char* what) const
    {
        if (!node.is_table())
            throw Fault(node.source(), std::string(what) + " is a table");
        return *node.as_table();
    }

    std::string Text(const toml::node& node, const char* what) const
    {
        if (!node.is_string())
            throw Fault(node.source(), std::string(what) + " is a text in quotes");
        return node.as_string()->get();
    }

    Severity ReadSeverity(const toml::node& node, const char* what) const
    {
        const std::string name = Text(node, what);
        const std::optional<Severity> severity = SeverityNamed(name);
        if (!severity)
            throw Fault(node.source(), Quoted(name) + " is no severity: error, warning or note");
        return *severity;
    }

    Severities ReadSeverities(const toml::node& node) const
    {
        Severities severities;
        for (const auto& [key, value] : Table(node, "severity")) {
            const FindingId id = ReadIdentifier(key);
            const std::string name = Text(value, "a severity");
            const std::optional<Severity> severity = SeverityNamed(name);
            if (!severity && name != kOff)
                throw Fault(value.source(), Quoted(name) + " is no severity: error, warning, note or off");
            severities[id] = severity;
        }
        return severities;
    }

    Trouble Fault(const toml::source_region& source, const std::string& text) const
    {
        return Trouble(ErrorAt(m_file, source.begin.line, source.begin.column, text));
    }

private:
    FindingId ReadIdentifier(const toml::key& key) const
    {
        const std::string name(key.str());
        const tal::FindingRules& rules = tal::AllFindingRules();
        const auto* const rule =
            std::find_if(rules.begin(), rules.end(),
                         [&](const tal::FindingRule& candidate) { return name == candidate.identifier; });
        if (rule == rules.end())
            throw Fault(key.source(),
                        "unknown identifier " + Quoted(name) + DidYouMean(name, ChangeableIdentifiers()));
        if (SeverityOf(rule->kind) == Severity::Error)
            throw Fault(key.source(),
                        Quoted(name) + " is always an error: nothing of such a document is read");
        return rule->id;
    }

    std::string m_file;
};

} // namespace

class ProjectFiles::Project
{
public:
    explicit Project(const std::string& file) : m_folder(FolderOf(file))
    {
        const Reader reader(file);
        using Handlers = std::map<std::string, std::function<void(const toml::node&)>>;
        const toml::table table = reader.Parse();
        reader.ForEachKey(
            table,
            Handlers{{"fail-on",
                      [&](const toml::node& node) { m_rules.failOn = reader.ReadSeverity(node, "fail-on"); }},
                     {"severity",
                      [&](const toml::node& node) { m_rules.severities = reader.ReadSeverities(node); }},
                     {"folder", [&](const toml::node& node) { ReadFolders(reader, node); }}});
    }

    DocumentRules RulesFor(const std::string& document) const
    {
        DocumentRules rules = m_rules;
        const std::string name = NameFrom(m_folder, document);
        for (const Folder& folder : m_folders) {
            if (!FolderGlobMatches(folder.path, name))
                continue;
            for (const auto& [id, severity] : folder.severities)
                rules.severities[id] = severity;
        }
        return rules;
    }

private:
    struct Folder
    {
        std::string path;
        Severities severities;
    };

    void ReadFolders(const Reader& reader, const toml::node& node)
    {
        if (!node.is_array_of_tables())
            throw reader.Fault(node.source(), "folder is a list of tables: [[folder]]");
        for (const toml::node& element : *node.as_array()) {
            Folder folder;
            using Handlers = std::map<std::string, std::function<void(const toml::node&)>>;
            reader.ForEachKey(
                *element.as_table(),
                Handlers{{"path", [&](const toml::node& path) { folder.path = ReadPath(reader, path); }},
                         {"severity", [&](const toml::node& severities) {
                              folder.severities = reader.ReadSeverities(severities);
                          }}});
            if (folder.path.empty())
                throw reader.Fault(element.source(), "the folder has no path");
            m_folders.push_back(std::move(folder));
        }
    }

    static std::string ReadPath(const Reader& reader, const toml::node& node)
    {
        std::string path = reader.Text(node, "path");
        if (path.empty() || fs::u8path(path).has_root_path() || path.rfind("..", 0) == 0)
            throw reader.Fault(node.source(),
                               "path is a pattern for folders below this file's, such as \"old/**\"");
        return path;
    }

    fs::path m_folder;
    DocumentRules m_rules;
    std::vector<Folder> m_folders; // the last one that fits counts
};

ProjectFiles::ProjectFiles(const std::string& given, bool search) : m_search(search)
{
    if (!given.empty())
        m_given = Read(given);
}

ProjectFiles::~ProjectFiles() = default;

DocumentRules ProjectFiles::RulesFor(const std::string& document)
{
    const Project* const project = m_given || !m_search ? m_given : ProjectOf(document);
    return project ? project->RulesFor(document) : DocumentRules{};
}

const ProjectFiles::Project* ProjectFiles::ProjectOf(const std::string& document)
{
    for (fs::path folder = FolderOf(document);; folder = folder.parent_path()) {
        const fs::path file = folder / kName;
        std::error_code error;
        if (fs::exists(file, error)) {
            const fs::path shown = file.lexically_relative(fs::current_path(error));
            return Read((shown.empty() ? file : shown).u8string());
        }
        if (folder == folder.parent_path())
            return nullptr;
    }
}

const ProjectFiles::Project* ProjectFiles::Read(const std::string& file)
{
    std::unique_ptr<Project>& project = m_projects[file];
    if (!project)
        project = std::make_unique<Project>(file);
    return project.get();
}

std::vector<std::string> ChangeableIdentifiers()
{
    std::vector<std::string> identifiers;
    for (const tal::FindingRule& rule : tal::AllFindingRules()) {
        if (SeverityOf(rule.kind) != Severity::Error)
            identifiers.emplace_back(rule.identifier);
    }
    return identifiers;
}
