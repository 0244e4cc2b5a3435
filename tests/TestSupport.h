// What the tests and the benchmark share: files, and schemas from and to text.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>

#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"

/// A new, empty directory that goes with its content.
class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        std::random_device random;
        do
            m_path = std::filesystem::temp_directory_path() / ("talschema-test-" + std::to_string(random()));
        while (!create_directory(m_path));
    }
    ~TemporaryDirectory() { std::filesystem::remove_all(m_path); }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

inline std::string FileContent(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteFile(const std::filesystem::path& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

/// The path, which is absolute, as a URI in which nothing is escaped.
inline std::string FileUri(const std::filesystem::path& path)
{
    const std::string text = path.generic_u8string();
    return (text[0] == '/' ? "file://" : "file:///") + text;
}

inline std::string Repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

inline std::unique_ptr<CDASchema> ReadSchema(const std::filesystem::path& path)
{
    CDASchema* schema = nullptr;
    ReadStorageTalAttributeSchema(path.c_str(), &schema, nullptr);
    return std::unique_ptr<CDASchema>(schema);
}

inline std::unique_ptr<CDASchema> ReadSchemaText(const std::string& document)
{
    const TemporaryDirectory directory;
    WriteFile(directory / "in.xml", document);
    return ReadSchema(directory / "in.xml");
}

/// What a write makes of the schema, without the XML declaration.
inline std::string WriteSchemaText(CDASchema* schema)
{
    const TemporaryDirectory directory;
    WriteStorageTalAttributeSchema((directory / "out.xml").c_str(), schema, nullptr);
    const std::string content = FileContent(directory / "out.xml");
    const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)";
    return content.rfind(declaration, 0) == 0 ? content.substr(declaration.size())
                                              : "no declaration: " + content;
}

constexpr char kEmptySchemaText[] = "<Model>\n<Storage/>\n<AttributeDefinition>\n<Attributes/>\n<Files/>\n"
                                    "<AttributeGroups/></AttributeDefinition>\n<Entities/></Model>";
