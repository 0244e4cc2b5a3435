// The library as a host uses it.
#include "Contender.h"

#include <stdexcept>

#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"

namespace {

class Library : public Contender
{
public:
    Library() : Contender(kLibrary) {}

    void Read(const std::string& document) override
    {
        Load(document);
        Unload();
    }

    void Load(const std::string& document) override
    {
        CDASchema* schema = nullptr;
        ReadStorageTalAttributeSchema(document.c_str(), &schema, nullptr);
        m_schema.reset(schema);
        if (!m_schema->GetStorage())
            throw std::runtime_error("the library read nothing from " + document);
    }

    void Write(const std::string& document) override
    {
        WriteStorageTalAttributeSchema(document.c_str(), m_schema.get(), nullptr);
    }

    void Unload() override { m_schema.reset(); }

private:
    std::unique_ptr<CDASchema> m_schema;
};

} // namespace

std::unique_ptr<Contender> MakeLibrary()
{
    return std::make_unique<Library>();
}
