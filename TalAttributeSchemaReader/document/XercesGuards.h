// Owners for what the XML library hands out, so that no path leaves anything behind.
#pragma once

#include <memory>

#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMImplementationRegistry.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

/// The XML library, initialised for the lifetime of this object. The library counts, so a host may have it
/// initialised itself.
class XercesSession
{
public:
    XercesSession()
    {
        using namespace xercesc;
        try {
            XMLPlatformUtils::Initialize(XMLUni::fgXercescDefaultLocale, nullptr, nullptr, nullptr);
            m_open = true;
        } catch (const XMLException&) {
        }
    }
    ~XercesSession()
    {
        if (m_open)
            xercesc::XMLPlatformUtils::Terminate();
    }
    XercesSession(const XercesSession&) = delete;
    XercesSession& operator=(const XercesSession&) = delete;

    /// False when the XML library could not be initialised.
    bool IsOpen() const { return m_open; }

    /// What makes parsers, serializers and documents; null when there is none or the session is not open.
    xercesc::DOMImplementation* GetLoadAndSave() const
    {
        constexpr XMLCh loadAndSave[] = {'L', 'S', 0};
        return m_open ? xercesc::DOMImplementationRegistry::getDOMImplementation(loadAndSave) : nullptr;
    }

private:
    bool m_open = false;
};

struct XercesRelease
{
    template <class T>
    void operator()(T* object) const
    {
        object->release();
    }
};

/// Owns a parser, serializer, output or document.
template <class T>
using XercesPtr = std::unique_ptr<T, XercesRelease>;
