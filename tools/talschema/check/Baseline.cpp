#include "tools/talschema/check/Baseline.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include <nlohmann/json.hpp>

#include "tools/talschema/TextFile.h"
#include "tools/talschema/check/FindingKey.h"
#include "tools/talschema/check/Severities.h"
#include "tools/talschema/terminal/Messages.h"

namespace fs = std::filesystem;
using nlohmann::json;
using nlohmann::ordered_json;
using tal::Finding;

namespace {

constexpr int kVersion = 1;

using Key = std::tuple<std::string, std::string, std::string>; // path, identifier, subject

bool IsKeepable(const Finding& finding)
{
    return finding.kind != tal::FindingKind::System;
}

/// Those that are told with another one as well.
template <class Call>
void ForEach(const std::vector<Finding>& findings, Call call)
{
    for (const Finding& finding : findings) {
        call(finding);
        ForEach(finding.consequences, call);
    }
}

/// The entries that are left, to be found by paths with or without what tells siblings apart.
class Pool
{
public:
    Pool(std::vector<BaselineEntry>& entries, bool withKeys) : m_withKeys(withKeys)
    {
        for (BaselineEntry& entry : entries) {
            if (entry.count > 0)
                m_entries[KeyOf(entry.path, entry.identifier, entry.subject)].push_back(&entry);
        }
    }

    bool Take(const Finding& finding)
    {
        const auto found =
            m_entries.find(KeyOf(finding.identity, RuleOf(finding.id).identifier, finding.subject));
        if (found == m_entries.end() || found->second.empty())
            return false;
        BaselineEntry& entry = *found->second.back();
        if (--entry.count == 0)
            found->second.pop_back();
        return true;
    }

private:
    Key KeyOf(const std::string& path, const std::string& identifier, const std::string& subject) const
    {
        return {m_withKeys ? path : PathOfNames(path), identifier, subject};
    }

    bool m_withKeys;
    std::map<Key, std::vector<BaselineEntry*>> m_entries;
};

json Parsed(const std::string& file)
{
    const std::string text = ReadTextFile(file);
    try {
        return json::parse(text);
    } catch (const json::parse_error& error) {
        const std::string before = text.substr(0, error.byte > 0 ? error.byte - 1 : 0);
        const auto line = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
        const std::size_t column = before.size() - (before.rfind('\n') + 1);
        throw Trouble(ErrorAt(file, line + 1, column + 1, "not a baseline: not JSON"));
    }
}

std::string LineOf(const ordered_json& value)
{
    return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

} // namespace

Baseline::Baseline(const std::string& file) : m_folder(FolderOf(file))
{
    const json root = Parsed(file);
    try {
        if (root.at("version") != kVersion)
            throw Trouble(ErrorMessage(file, "a baseline of another version"));
        for (const auto& [document, entries] : root.at("documents").items()) {
            for (const json& entry : entries)
                m_entries[document].push_back(
                    {entry.at("identifier"), entry.at("path"), entry.at("subject"), entry.at("count")});
        }
    } catch (const json::exception&) {
        throw Trouble(ErrorMessage(file, "not a baseline"));
    }
}

void Baseline::Apply(CheckedFile& file)
{
    const std::string name = NameFrom(m_folder, file.name);
    const auto known = m_entries.find(name);
    if (known == m_entries.end())
        return;
    std::vector<BaselineEntry>& entries = m_absent[name] = known->second;
    std::vector<Finding>& findings = file.result.findings;
    std::set<const Finding*> taken;
    for (const bool withKeys : {true, false}) {
        Pool pool(entries, withKeys);
        ForEach(findings, [&](const Finding& finding) {
            if (IsKeepable(finding) && taken.count(&finding) == 0 && pool.Take(finding))
                taken.insert(&finding);
        });
    }
    std::vector<Finding> fresh;
    std::vector<Finding> unfolded; // new, but told with what is known
    for (Finding& finding : findings) {
        if (taken.count(&finding) == 0) {
            fresh.push_back(std::move(finding));
            continue;
        }
        std::vector<Finding> following;
        for (Finding& consequence : finding.consequences)
            (taken.count(&consequence) > 0 ? following : unfolded).push_back(std::move(consequence));
        finding.consequences = std::move(following);
        file.known.push_back(std::move(finding));
    }
    findings = WithUnfolded(std::move(fresh), std::move(unfolded));
}

std::vector<AbsentEntry> Baseline::Absent() const
{
    std::vector<AbsentEntry> absent;
    for (const auto& [document, entries] : m_entries) {
        const fs::path path = (m_folder / fs::u8path(document)).lexically_normal();
        std::error_code error;
        const std::string name = NameFrom(fs::current_path(error), path.u8string());
        const auto checked = m_absent.find(document);
        if (checked == m_absent.end() && fs::exists(path, error))
            continue;
        for (const BaselineEntry& entry : checked == m_absent.end() ? entries : checked->second) {
            if (entry.count > 0)
                absent.push_back({name, entry});
        }
    }
    return absent;
}

std::string AbsentAsText(const std::string& file, const std::vector<AbsentEntry>& absent)
{
    std::string text;
    for (const auto& [document, entry] : absent)
        text += NoteMessage(file, "does not occur any more: " + document + ": " + entry.path + ": " +
                                      entry.identifier + " \"" + entry.subject + "\"" +
                                      (entry.count > 1 ? ", " + std::to_string(entry.count) + " times" : ""));
    return text;
}

std::string BaselineOf(const std::vector<CheckedFile>& files, const std::string& file)
{
    const fs::path folder = FolderOf(file);
    std::map<std::string, std::map<Key, std::size_t>> documents;
    for (const CheckedFile& checked : files) {
        std::map<Key, std::size_t> entries;
        for (const std::vector<Finding>* findings : {&checked.result.findings, &checked.known}) {
            ForEach(*findings, [&](const Finding& finding) {
                if (IsKeepable(finding))
                    ++entries[{finding.identity, RuleOf(finding.id).identifier, finding.subject}];
            });
        }
        if (!entries.empty())
            documents[NameFrom(folder, checked.name)] = std::move(entries);
    }
    std::string text = "{\"version\":" + std::to_string(kVersion) + ",\n\"documents\":{";
    const char* separator = "\n";
    for (const auto& [document, entries] : documents) {
        text += separator + LineOf(document) + ":[";
        separator = "\n";
        for (const auto& [key, count] : entries) {
            const auto& [path, identifier, subject] = key;
            text +=
                separator +
                LineOf({{"identifier", identifier}, {"path", path}, {"subject", subject}, {"count", count}});
            separator = ",\n";
        }
        text += "]";
    }
    return text + "}}\n";
}
