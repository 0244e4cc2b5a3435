// Classes that a data binding compiler made from the schema of the format, on the same XML library.
#include "Contender.h"

#include <fstream>
#include <stdexcept>

#include "attribute-schema.hxx"

namespace {

class Binding : public Contender
{
public:
    Binding() : Contender(kBinding) {}

    void Read(const std::string& document) override
    {
        Load(document);
        Unload();
    }

    void Load(const std::string& document) override
    {
        m_model = binding::Model(document, xml_schema::flags::dont_validate);
    }

    void Write(const std::string& document) override
    {
        std::ofstream stream(document, std::ios::binary);
        binding::Model(stream, *m_model, {}, "UTF-8", xml_schema::flags::dont_pretty_print);
        if (!stream.flush())
            throw std::runtime_error("the binding could not write " + document);
    }

    void Unload() override { m_model.reset(); }

private:
    std::unique_ptr<binding::ModelContent> m_model;
};

} // namespace

std::unique_ptr<Contender> MakeBinding()
{
    return std::make_unique<Binding>();
}
