// Arrows point one way: which part of the tree may include which.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct Room
{
    const char* name;
    const char* path; // a folder and what is below it, unless that is a room of its own; or a single file
    const char* uses; // what its files may include besides each other
};

// From top to bottom: a room uses only rooms that stand below it here.
constexpr Room kRooms[] = {
    {"tool", "tools/talschema", "host file check findings scan text hostExport module model genutl"},

    {"host", "TalAttributeSchemaHost/TalAttributeSchemaHost.h",
     "file check findings scan text hostExport model"},
    {"file", "TalAttributeSchemaHost/file",
     "check findings compact scan text files hostExport document dom format model genutl xerces"},
    {"compact", "TalAttributeSchemaHost/compact", "scan format genutl xerces"},
    {"check", "TalAttributeSchemaHost/check",
     "messages table findings scan text files hostExport document dom format model genutl xerces"},
    {"messages", "TalAttributeSchemaHost/messages", "table findings scan format"},
    {"generator", "TalAttributeSchemaHost/table/generator", "xerces"},
    {"table", "TalAttributeSchemaHost/table", "findings scan text format model genutl xerces"},
    {"findings", "TalAttributeSchemaHost/findings", "scan text hostExport"},
    {"scan", "TalAttributeSchemaHost/scan", "text files hostExport dom format model genutl xerces"},
    {"text", "TalAttributeSchemaHost/text", "hostExport model genutl"},
    {"files", "TalAttributeSchemaHost/platform", ""},
    {"hostExport", "TalAttributeSchemaHost/HostExport.h", "genutl"},

    {"reader", "TalAttributeSchemaReader/TalAttributeSchemaReader.h", "module model genutl"},
    {"exportedBuilders", "TalAttributeSchemaReader/TalAttributeBuilders.h", "builders"},
    {"module", "TalAttributeSchemaReader/module", "platform document model genutl identification"},
    {"platform", "TalAttributeSchemaReader/platform", "genutl"},
    {"document", "TalAttributeSchemaReader/document", "builders dom format model genutl xerces"},
    {"builders", "TalAttributeSchemaReader/builders", "dom format model genutl xerces"},
    {"dom", "TalAttributeSchemaReader/dom", "format model genutl xerces"},
    {"format", "TalAttributeSchemaReader/format", "model genutl"},
    {"model", "TalAttributeSchemaReader/model", "genutl"},
    {"genutl", "TalAttributeSchemaReader/model/genutl", ""},

    {"identification", "BuildIdentification.h", ""}, // made at configuration time
    {"xerces", "xercesc", ""},
};

const Room* RoomOf(const std::string& path)
{
    const Room* innermost = nullptr;
    for (const Room& room : kRooms) {
        const std::string start = room.path;
        const bool inside = path == start || path.rfind(start + "/", 0) == 0;
        if (inside && (!innermost || start.size() > std::string(innermost->path).size()))
            innermost = &room;
    }
    return innermost;
}

std::set<std::string> NamesIn(const char* words)
{
    std::istringstream stream(words);
    return {std::istream_iterator<std::string>(stream), {}};
}

TEST(Layers, ThePlanPointsDownwards)
{
    std::set<std::string> above;
    for (const Room& room : kRooms) {
        above.insert(room.name);
        for (const std::string& used : NamesIn(room.uses))
            EXPECT_EQ(above.count(used), 0u) << room.name << " uses " << used << ", which is above it";
    }
    for (const Room& room : kRooms) {
        for (const std::string& used : NamesIn(room.uses))
            EXPECT_EQ(above.count(used), 1u) << room.name << " uses " << used << ", which is no room";
    }
}

void CheckIncludes(const std::filesystem::path& file, const std::string& name, int& includes)
{
    const Room* room = RoomOf(name);
    ASSERT_TRUE(room) << name << " stands in no room";
    const std::set<std::string> used = NamesIn(room->uses);
    const std::regex include(R"(\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
    std::ifstream lines(file);
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        if (!std::regex_match(line, match, include))
            continue;
        ++includes;
        const Room* target = RoomOf(match[2]);
        const bool known = target || match[1] == "<";
        EXPECT_TRUE(known) << name << " includes " << match[2] << ", which stands in no room";
        const bool allowed = !target || target == room || used.count(target->name);
        EXPECT_TRUE(allowed) << name << " includes " << match[2] << ", but " << room->name
                             << " uses only: " << room->uses;
    }
}

TEST(Layers, NoFileIncludesUpwards)
{
    const std::filesystem::path root = PROJECT_ROOT;
    int includes = 0;
    for (const char* folder : {"TalAttributeSchemaReader", "TalAttributeSchemaHost", "tools"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            const std::string extension = entry.path().extension().string();
            if (extension == ".h" || extension == ".cpp")
                CheckIncludes(entry.path(), entry.path().lexically_relative(root).generic_string(), includes);
        }
    }
    EXPECT_GT(includes, 500);
}

} // namespace
