// The host library as a host uses it.
#include "Contender.h"

#include <optional>
#include <stdexcept>
#include <utility>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"

namespace {

class Host : public Contender
{
public:
    Host(std::string name, bool findings, bool readAgain = true)
        : Contender(std::move(name)), m_findings(findings)
    {
        m_options.flush = false; // nobody else waits for the disk either
        m_options.readAgain = readAgain;
    }

    void Read(const std::string& document) override
    {
        Load(document);
        Unload();
    }

    void Load(const std::string& document) override
    {
        m_loaded = tal::LoadSchema(document, {false, m_findings});
        if (!m_loaded)
            throw std::runtime_error("the host library read nothing from " + document);
    }

    void Write(const std::string& document) override
    {
        const tal::SaveResult saved = tal::SaveSchema(document, *m_loaded.schema, m_options);
        if (!saved)
            throw std::runtime_error(document + ": " + saved.error);
    }

    void Unload() override { m_loaded = {}; }

private:
    bool m_findings;
    tal::SaveOptions m_options;
    tal::LoadResult m_loaded;
};

class HostInSession : public Host
{
public:
    HostInSession() : Host(kHostInSession, false) {}

    void Begin() override { m_session.emplace(); }
    void End() override { m_session.reset(); }

private:
    std::optional<tal::XmlSession> m_session;
};

} // namespace

std::unique_ptr<Contender> MakeHostInSession()
{
    return std::make_unique<HostInSession>();
}

std::unique_ptr<Contender> MakeHostNotReadingAgain()
{
    return std::make_unique<Host>(kHostNotReadingAgain, false, false);
}

std::unique_ptr<Contender> MakeHost()
{
    return std::make_unique<Host>(kHost, false);
}

std::unique_ptr<Contender> MakeHostWithFindings()
{
    return std::make_unique<Host>(kHostWithFindings, true);
}
