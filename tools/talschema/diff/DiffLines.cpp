#include "tools/talschema/diff/DiffLines.h"

#include <filesystem>

#include "TalAttributeSchemaHost/check/Check.h"

ObjectLines LinesOfObjects(const Input& input, bool allowExternal)
{
    tal::CheckOptions options;
    options.allowExternal = allowExternal;
    options.keepPlaces = true;
    options.maxFindings = 0; // nobody asks for them
    options.suppressions = false;
    const tal::ObjectPlaces places =
        (input.bytes ? tal::CheckText(*input.bytes, input.name, options)
                     : tal::CheckDocument(std::filesystem::u8path(input.name), options))
            .places;
    ObjectLines lines;
    const auto take = [&](const char* section, const std::vector<tal::Range>& ranges) {
        for (const tal::Range& range : ranges)
            lines[section].push_back(range.begin.line);
    };
    take("attributes", places.attributes);
    take("files", places.files);
    take("attributeGroups", places.attributeGroups);
    take("entities", places.entities);
    return lines;
}

void PutLines(std::vector<Difference>& sections, const ObjectLines& before, const ObjectLines& after)
{
    const auto put = [](Difference::Side& side, const ObjectLines& lines, const std::string& section) {
        const auto found = lines.find(section);
        if (side.value && found != lines.end() && side.index < found->second.size())
            side.line = found->second[side.index];
    };
    for (Difference& section : sections) {
        for (Difference& entry : section.parts) {
            if (!entry.isEntry)
                continue;
            put(entry.before, before, section.name.front());
            put(entry.after, after, section.name.front());
        }
    }
}
