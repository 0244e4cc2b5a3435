// Why the library reads nothing from a document.
#include "tools/talschema/Diagnosis.h"

#include <algorithm>
#include <iterator>

#include "tools/talschema/DocumentScan.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/Text.h"

namespace {

// The outermost elements that become objects of the model.
constexpr const char* kContent[] = {"/Model/Storage", "/Model/AttributeDefinition/Attributes/Attribute",
                                    "/Model/AttributeDefinition/Files/File",
                                    "/Model/AttributeDefinition/AttributeGroups/AttributeGroup",
                                    "/Model/Entities/Entity"};

class DiagnosingVisitor : public DocumentVisitor
{
public:
    explicit DiagnosingVisitor(const GuString& shownName) : m_shownName(shownName) {}

    const Diagnosis& GetDiagnosis() const { return m_diagnosis; }

    void OnProblem(Problem, const GuString& text, const Place& place) override
    {
        const GuString file = place.file.empty() ? m_shownName : GuString(place.file.c_str());
        m_diagnosis.reports += ErrorMessage(file, text, place.line, place.column);
    }

    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>&, const Place&) override
    {
        if (m_entityDepth > 0)
            return;
        m_path += "/" + ToUtf8(name);
        if (std::find(std::begin(kContent), std::end(kContent), m_path) != std::end(kContent))
            m_diagnosis.hasContent = true;
    }
    void OnEndElement() override
    {
        if (m_entityDepth == 0)
            m_path.erase(m_path.rfind('/'));
    }

    // The library does not look into references to entities.
    void OnStartEntity(const XMLCh*, const Place&) override { ++m_entityDepth; }
    void OnEndEntity() override { --m_entityDepth; }

private:
    const GuString& m_shownName;
    std::string m_path; // of the current element
    int m_entityDepth = 0;
    Diagnosis m_diagnosis;
};

} // namespace

Diagnosis Diagnose(const GuString& path, const GuString& shownName)
{
    DiagnosingVisitor visitor(shownName);
    ScanFile(path, visitor);
    return visitor.GetDiagnosis();
}
