// Owners for what the XML library hands out, so that no path leaves anything behind.
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMImplementationRegistry.hpp>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

/// Where the XML library gets its memory from, with a block for the time while it goes down: one of its
/// destructors asks for a little then, which would end the process when there is none.
class SessionMemory : public xercesc::MemoryManager
{
public:
    void* allocate(XMLSize_t size) override
    {
        if (void* const memory = ::operator new(size, std::nothrow))
            return memory;
        if (size <= sizeof m_reserve && m_goesDown.exchange(false))
            return m_reserve;
        throw xercesc::OutOfMemoryException();
    }
    void deallocate(void* memory) override
    {
        if (memory != m_reserve)
            ::operator delete(memory);
    }
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }

    void GoesDown(bool goesDown) { m_goesDown = goesDown; }

private:
    std::atomic<bool> m_goesDown{false}; // and nobody has the reserve
    alignas(std::max_align_t) std::byte m_reserve[256];
};

/// The XML library, initialised until this object is closed or goes. The library counts, so a host may have
/// it initialised itself.
class XercesSession
{
public:
    /// Throws when memory runs out; the XML library does not survive that, so no session opens afterwards.
    XercesSession() { Open(); }

    struct Closed
    {
    };
    explicit XercesSession(Closed) {}

    ~XercesSession() { Close(); }
    XercesSession(const XercesSession&) = delete;
    XercesSession& operator=(const XercesSession&) = delete;

    void Open()
    {
        using namespace xercesc;
        Shared& shared = State();
        if (std::exchange(shared.broken, true))
            return;
        try {
            XMLPlatformUtils::Initialize(XMLUni::fgXercescDefaultLocale, nullptr, &shared.panic,
                                         &shared.memory);
            m_open = true;
            shared.broken = false;
        } catch (const XMLException&) {
        }
    }
    void Close()
    {
        if (!std::exchange(m_open, false))
            return;
        State().memory.GoesDown(true);
        xercesc::XMLPlatformUtils::Terminate();
        State().memory.GoesDown(false);
    }

    /// False when the XML library could not be initialised.
    bool IsOpen() const { return m_open; }

    /// What makes parsers, serializers and documents; null when there is none or the session is not open.
    xercesc::DOMImplementation* GetLoadAndSave() const
    {
        constexpr XMLCh loadAndSave[] = {'L', 'S', 0};
        return m_open ? xercesc::DOMImplementationRegistry::getDOMImplementation(loadAndSave) : nullptr;
    }

private:
    /// Memory that runs out is an exception, not the end of the process.
    class Panic : public xercesc::PanicHandler
    {
    public:
        void panic(const PanicReasons) override { throw std::bad_alloc(); }
    };

    struct Shared
    {
        bool broken = false; // the XML library failed while it was initialised
        Panic panic;
        SessionMemory memory;
    };

    static Shared& State()
    {
        static Shared state;
        return state;
    }

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
