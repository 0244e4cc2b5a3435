// What parsing and saving costs in other XML libraries.
#include "Contender.h"

#include <stdexcept>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <pugixml.hpp>

namespace {

class Libxml2 : public Contender
{
public:
    Libxml2() : Contender("libxml2") {}

    void Read(const std::string& document) override
    {
        Load(document);
        Unload();
    }

    void Load(const std::string& document) override
    {
        m_document.reset(xmlReadFile(document.c_str(), nullptr, XML_PARSE_HUGE));
        if (!m_document)
            throw std::runtime_error("libxml2 could not read " + document);
    }

    void Write(const std::string& document) override
    {
        if (xmlSaveFile(document.c_str(), m_document.get()) < 0)
            throw std::runtime_error("libxml2 could not write " + document);
    }

    void Unload() override { m_document.reset(); }

private:
    struct Free
    {
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };

    std::unique_ptr<xmlDoc, Free> m_document;
};

class Pugixml : public Contender
{
public:
    Pugixml() : Contender("pugixml") {}

    void Read(const std::string& document) override
    {
        Load(document);
        Unload();
    }

    void Load(const std::string& document) override
    {
        if (!m_document.load_file(document.c_str()))
            throw std::runtime_error("pugixml could not read " + document);
    }

    void Write(const std::string& document) override
    {
        if (!m_document.save_file(document.c_str(), "", pugi::format_raw))
            throw std::runtime_error("pugixml could not write " + document);
    }

    void Unload() override { m_document.reset(); }

private:
    pugi::xml_document m_document;
};

} // namespace

std::unique_ptr<Contender> MakeLibxml2()
{
    return std::make_unique<Libxml2>();
}

std::unique_ptr<Contender> MakePugixml()
{
    return std::make_unique<Pugixml>();
}
