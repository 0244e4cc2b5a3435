// One way to read and to write a schema document.
#pragma once

#include <memory>
#include <string>
#include <utility>

/// Everything throws when a document cannot be read or written: a contender that fails fast must not win.
class Contender
{
public:
    explicit Contender(std::string name) : m_name(std::move(name)) {}
    virtual ~Contender() = default;
    Contender(const Contender&) = delete;
    Contender& operator=(const Contender&) = delete;

    const std::string& Name() const { return m_name; }

    /// Before and after a number of measured reads or writes; not measured.
    virtual void Begin() {}
    virtual void End() {}
    /// Reads the document and lets go of everything again. What a measured read does.
    virtual void Read(const std::string& document) = 0;
    /// Reads the document and keeps it for `Write`.
    virtual void Load(const std::string& document) = 0;
    /// Writes what was loaded. What a measured write does.
    virtual void Write(const std::string& document) = 0;
    /// Lets go of what was loaded.
    virtual void Unload() = 0;

private:
    std::string m_name;
};

constexpr char kLibrary[] = "library";
constexpr char kFloor[] = "floor";
constexpr char kHost[] = "host library";
constexpr char kHostWithFindings[] = "with findings";
constexpr char kHostInSession[] = "session held";
constexpr char kHostNotReadingAgain[] = "not read again";
constexpr char kBinding[] = "XSD binding";

std::unique_ptr<Contender> MakeLibrary();
/// Load and save; with findings; while the XML library is held; without a second look at what is saved.
std::unique_ptr<Contender> MakeHost();
std::unique_ptr<Contender> MakeHostWithFindings();
std::unique_ptr<Contender> MakeHostInSession();
std::unique_ptr<Contender> MakeHostNotReadingAgain();
/// The XML library alone: the same calls with nothing around them.
std::unique_ptr<Contender> MakeFloor();
/// Classes that a data binding compiler made from the schema of the format. On the same XML library.
std::unique_ptr<Contender> MakeBinding();
/// Other XML libraries, which parse and save and know nothing of the model.
std::unique_ptr<Contender> MakeLibxml2();
std::unique_ptr<Contender> MakePugixml();
