// The XML library, initialised by calls that may overlap.
#pragma once

#include <mutex>

#include <xercesc/dom/DOMDocument.hpp>

#include "TalAttributeSchemaReader/dom/XercesGuards.h"

namespace tal {

/// As `XercesSession`, for any number of threads: the XML library's count of initialisations is not safe
/// against itself. Nothing else of a call is under the lock.
class HostSession
{
public:
    /// Throws when memory runs out.
    HostSession()
    {
        const std::lock_guard<std::mutex> lock(State().mutex);
        m_session.Open();
        try {
            FillTable();
        } catch (...) {
            m_session.Close();
            throw;
        }
    }
    ~HostSession()
    {
        const std::lock_guard<std::mutex> lock(State().mutex);
        m_session.Close();
    }
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    /// False when the XML library could not be initialised.
    bool IsOpen() const { return m_session.IsOpen(); }
    const XercesSession& Get() const { return m_session; }

private:
    struct Shared
    {
        std::mutex mutex;
        bool tableFilled = false;
    };

    static Shared& State()
    {
        static Shared state;
        return state;
    }

    /// The XML library fills its table of which node may stand in which when the first document of the
    /// process gets its root, and nothing guards that.
    void FillTable() const
    {
        xercesc::DOMImplementation* const implementation =
            State().tableFilled ? nullptr : m_session.GetLoadAndSave();
        if (!implementation)
            return;
        constexpr XMLCh root[] = {'r', 0};
        const XercesPtr<xercesc::DOMDocument> document(
            implementation->createDocument(nullptr, root, nullptr));
        State().tableFilled = true;
    }

    XercesSession m_session{XercesSession::Closed()};
};

} // namespace tal
