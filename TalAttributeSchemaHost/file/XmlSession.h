// The XML library, kept ready for many calls.
#pragma once

#include <memory>

#include "TalAttributeSchemaHost/HostExport.h"

namespace tal {

/// Keeps the XML library initialised until the last of these objects goes. Every call of the host library
/// works without one; but then it initialises the XML library and terminates it again, which takes as long as
/// a small document.
///
/// May be made and destroyed by any thread at any time, as the other functions may be called. As to the
/// exported functions, it is not in their way.
class TALHOST_API XmlSession
{
public:
    /// Throws `std::bad_alloc` when memory runs out.
    XmlSession();
    ~XmlSession();
    XmlSession(const XmlSession&) = delete;
    XmlSession& operator=(const XmlSession&) = delete;

    /// False when the XML library could not be initialised; calls of the host library then say so.
    explicit operator bool() const;

private:
    struct State;

    std::unique_ptr<State> m_state;
};

} // namespace tal
