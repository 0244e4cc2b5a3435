// What parser and serializer report their problems to.
#pragma once

#include <xercesc/dom/DOMErrorHandler.hpp>

/// Remembers whether anything was reported, warnings included, and lets the XML library go on. Silent.
class CCAEErrorHandler : public xercesc::DOMErrorHandler
{
public:
    CCAEErrorHandler();
    ~CCAEErrorHandler() override;

    bool handleError(const xercesc::DOMError& error) override;

    void ClearFailure() { m_failed = false; }
    bool HasFailed() const { return m_failed; }

private:
    bool m_failed;
};
