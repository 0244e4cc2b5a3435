// Walks a document beside the format table and says what the reader will do with it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "tools/talschema/DocumentScan.h"
#include "tools/talschema/Findings.h"
#include "tools/talschema/FormatTable.h"

/// Memory grows with the findings, the definitions and the references that come before their definitions,
/// never with the depth of a document: below an element that is skipped, nothing is kept.
class DocumentChecker final : public DocumentVisitor
{
public:
    void OnProblem(Problem problem, const GuString& text, const Place& place) override;
    void OnExternalReference(const std::string& subject, const GuString& target, const Place& place) override;
    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                        const Place& place) override;
    void OnEndElement() override;
    void OnText(const Place& place) override;
    void OnStartEntity(const XMLCh* name, const Place& place) override;
    void OnEndEntity() override;

    /// Call once, after the scan.
    std::vector<Finding> TakeFindings();

private:
    struct OpenElement
    {
        const ElementRule* rule;
        Place place;
        std::size_t number = 1;      // among the siblings of its name
        bool written = true;         // a rewrite keeps it
        int level = 0;               // of nested folders
        std::size_t selector = 0;    // the open element whose attribute selects what is written
        GuString selected;           // if it is this one: the attribute's value
        Match selects = Match::None; // and how it is compared
        FindingId contentFinding = FindingId::None; // to be reported once, when there is content
        bool contentRead = true;
        bool hasElements = false;
        bool hasText = false;
        std::map<std::string, std::size_t> numbers; // of elements so far, by name
    };

    struct PendingReference
    {
        Definition kind;
        GuString id;
        const char* attribute;
        Place place;
        std::string path;
    };

    struct Sooner
    {
        bool operator()(const GuString& left, const GuString& right) const { return left.Compare(right) < 0; }
    };

    bool Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes, const Place& place);
    bool CheckElement();
    bool CheckAttributes(const std::vector<XmlAttribute>& attributes);
    bool CheckAttribute(const AttributeRule& rule, const XmlAttribute& attribute,
                        const std::vector<XmlAttribute>& attributes);
    void CheckValue(const AttributeRule& rule, const GuString& value);
    void CheckUnreadValue(const AttributeRule& rule, const GuString& value,
                          const std::vector<XmlAttribute>& attributes);
    void CheckUnreadAttribute(const XmlAttribute& attribute);
    bool CheckContent();
    void ReportUnknownElement(const XMLCh* name, std::size_t number, const Place& place);

    void Define(Definition kind, const GuString& id);
    void Refer(const AttributeRule& rule, const GuString& id);
    void Report(const PendingReference& reference);

    std::string Path() const;
    void Report(FindingId id, const Place& place, std::string path, std::string message);
    /// About the innermost open element.
    void Report(FindingId id, std::string message);
    /// As `Report`, unless the element is lost anyway.
    void ReportLost(FindingId id, std::string message);

    std::vector<OpenElement> m_open;
    std::uint64_t m_skipped = 0; // levels below the last open element that nobody reads
    std::uint64_t m_entities = 0;
    std::string m_entityName;
    Place m_entityPlace;
    std::map<Definition, std::map<GuString, Place, Sooner>> m_definitions;
    std::vector<PendingReference> m_pending;
    bool m_complete = true;
    std::vector<Finding> m_findings;
};

/// Checks the file at the absolute path `path`. The findings come in the order of their places.
std::vector<Finding> CheckFile(const GuString& path);
/// As `CheckFile`.
std::vector<Finding> CheckStandardInput();
