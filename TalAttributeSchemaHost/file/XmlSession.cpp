#include "TalAttributeSchemaHost/file/XmlSession.h"

#include "TalAttributeSchemaHost/scan/HostSession.h"

namespace tal {

struct XmlSession::State
{
    HostSession session;
};

XmlSession::XmlSession()
try : m_state(std::make_unique<State>()) {
} catch (const xercesc::OutOfMemoryException&) { // which is no std::exception
    throw std::bad_alloc();
}

XmlSession::~XmlSession() = default;

XmlSession::operator bool() const
{
    return m_state->session.IsOpen();
}

} // namespace tal
