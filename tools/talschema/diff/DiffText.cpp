#include "tools/talschema/diff/DiffText.h"

#include <cstddef>
#include <map>
#include <utility>

#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

using nlohmann::ordered_json;

namespace {

// "dataGenerator" as "data generator".
std::string Words(const std::string& key)
{
    std::string words;
    for (const char letter : key) {
        const bool capital = letter >= 'A' && letter <= 'Z';
        words += capital ? std::string(" ") + static_cast<char>(letter - 'A' + 'a') : std::string(1, letter);
    }
    return words;
}

std::string Title(const std::string& key)
{
    std::string title = Words(key);
    title[0] = static_cast<char>(title[0] - 'a' + 'A');
    return title;
}

std::string Quoted(const std::string& text)
{
    return '"' + Printable(text) + '"';
}

// What the document calls a value of `owner`, the key of an object or of a list of objects.
std::string NameInDocument(const std::string& owner, const std::string& key)
{
    static const std::map<std::pair<std::string, std::string>, std::string> names = {
        {{"attributes", "id"}, "ID"},
        {{"attributes", "name"}, "Label"},
        {{"attributes", "min"}, "min"},
        {{"attributes", "max"}, "max"},
        {{"attributes", "useInComparison"}, "UseInComparision"},
        {{"dataGenerator", "typeName"}, "Type"},
        {{"files", "id"}, "ID"},
        {{"attributeGroups", "id"}, "ID"},
        {{"entities", "typeName"}, "Type"},
        {{"children", "name"}, "AttributeIDRef"},
        {{"loadCaseTemplates", "conditionName"}, "AttributeRef"},
        {{"loadCaseTemplates", "conditionValue"}, "Value"},
    };
    const auto found = names.find({owner, key});
    if (found != names.end())
        return found->second;
    std::string name = key;
    name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name;
}

// Values have the names of the document, what holds others is told in words.
std::string FieldName(const std::string& owner, const std::string& key, const ordered_json& value)
{
    return value.is_structured() || owner.empty() ? Words(key) : NameInDocument(owner, key);
}

std::string Shown(const std::string& key, const ordered_json& value);

// The fields of an object from the first on that say something, or nothing.
std::string Summary(const std::string& owner, const ordered_json& object, std::size_t first = 0)
{
    std::string fields;
    std::size_t index = 0;
    for (const auto& [key, value] : object.items()) {
        const bool saysNothing = value.empty() || value == "" || value == false;
        if (index++ >= first && !saysNothing)
            fields += (fields.empty() ? "" : ", ") + FieldName(owner, key, value) + ": " + Shown(key, value);
    }
    return fields.empty() ? fields : "(" + fields + ")";
}

std::string Shown(const std::string& key, const ordered_json& value)
{
    if (value.is_string())
        return Quoted(value.get_ref<const std::string&>());
    if (value.is_boolean())
        return value.get<bool>() ? "yes" : "no";
    if (value.is_array())
        return std::to_string(value.size());
    return Summary(key, value);
}

std::string Label(const std::vector<std::string>& name)
{
    std::string label = Quoted(name.front());
    for (std::size_t i = 1; i < name.size(); ++i)
        label += " = " + Quoted(name[i]);
    return label;
}

std::string Label(const std::string& owner, const Difference& place)
{
    if (!place.isEntry) {
        const ordered_json& value = place.before.value ? *place.before.value : *place.after.value;
        return FieldName(owner, place.name.front(), value);
    }
    return Label(place.name);
}

// What an added or removed value holds besides its label.
std::string Content(const std::string& owner, const Difference& place, const ordered_json& value)
{
    const std::string kind = place.isEntry ? owner : place.name.front();
    const std::string summary =
        value.is_object() ? Summary(kind, value, place.isEntry ? place.name.size() : 0) : std::string();
    return summary.empty() ? summary : " " + summary;
}

// People count from one. Behind what came and went, an entry may have its old number in a new place.
std::string Movement(const Difference& place)
{
    if (place.before.index == place.after.index)
        return place.behind.empty() ? "moved to the front" : "moved behind " + Label(place.behind);
    return "moved from " + std::to_string(place.before.index + 1) + " to " +
           std::to_string(place.after.index + 1);
}

std::string Renaming(const Difference& place)
{
    const std::size_t references = place.rename->references;
    return "renamed from " + Quoted(place.rename->oldName) +
           (references == 0   ? ""
            : references == 1 ? ", and 1 reference with it"
                              : ", and " + std::to_string(references) + " references with it");
}

// Of an object of a section; nothing for what is in it.
std::string Lines(const Difference& place)
{
    const std::size_t oldLine = place.before.line;
    const std::size_t newLine = place.after.line;
    if (oldLine == 0 && newLine == 0)
        return {};
    if (oldLine == newLine || newLine == 0)
        return ", line " + std::to_string(oldLine);
    return ", line " + (oldLine == 0 ? "" : std::to_string(oldLine) + " -> ") + std::to_string(newLine);
}

std::string Counts(const std::vector<Difference>& places)
{
    std::size_t added = 0;
    std::size_t removed = 0;
    std::size_t changed = 0;
    std::size_t moved = 0;
    std::size_t renamed = 0;
    for (const Difference& place : places) {
        added += place.IsAdded() ? 1 : 0;
        removed += place.IsRemoved() ? 1 : 0;
        moved += place.isMoved ? 1 : 0;
        changed += place.IsChanged() ? 1 : 0;
        renamed += place.rename ? 1 : 0;
    }
    std::string counts;
    for (const auto& [count, what] :
         {std::pair(added, " added"), std::pair(removed, " removed"), std::pair(changed, " changed"),
          std::pair(moved, " moved"), std::pair(renamed, " renamed")}) {
        if (count > 0)
            counts += (counts.empty() ? "" : ", ") + std::to_string(count) + what;
    }
    return counts;
}

class DifferenceWriter
{
public:
    explicit DifferenceWriter(bool coloured) : m_coloured(coloured) {}

    std::string Write(const std::vector<Difference>& sections)
    {
        for (const Difference& section : sections) {
            if (!m_text.empty())
                m_text += "\n";
            // A section that is no list can come and go as a whole.
            const bool whole = section.parts.empty();
            const std::string counts = !whole              ? Counts(section.parts)
                                       : section.IsAdded() ? "1 added"
                                                           : "1 removed";
            m_text += Paint(Title(section.name.front()) + ": " + counts, Style::Bold) + "\n";
            if (whole)
                WriteOne(section, "  ", "");
            else
                WriteAll(section.parts, "  ", section.name.front());
        }
        return m_text;
    }

private:
    void WriteAll(const std::vector<Difference>& places, const std::string& indent, const std::string& owner)
    {
        for (const Difference& place : places)
            WriteOne(place, indent, owner);
    }

    /// `owner` is the key of the object or of the list that the place is in.
    void WriteOne(const Difference& place, const std::string& indent, const std::string& owner)
    {
        m_text += indent + (place.isEntry ? Entry(place, owner) + Lines(place) : Field(place, owner)) + "\n";
        WriteAll(place.parts, indent + (place.isEntry ? "    " : "  "),
                 place.isEntry ? owner : place.name.front());
    }

    std::string Entry(const Difference& place, const std::string& owner) const
    {
        if (place.IsAdded() || place.IsRemoved())
            return Field(place, owner);
        const std::string label = Label(owner, place);
        if (place.isMoved && !place.rename && place.parts.empty())
            return Paint("> " + label, Style::Cyan) + " " + Movement(place);
        return Paint("~ " + label, Style::Yellow) + (place.rename ? " " + Renaming(place) : "") +
               (place.isMoved ? ", " + Movement(place) : "");
    }

    std::string Field(const Difference& place, const std::string& owner) const
    {
        const std::string label = Label(owner, place);
        if (place.IsAdded())
            return Paint("+ " + label, Style::Green) + Content(owner, place, *place.after.value);
        if (place.IsRemoved())
            return Paint("- " + label, Style::Red) + Content(owner, place, *place.before.value);
        if (!place.parts.empty())
            return label + ":";
        const std::string& key = place.name.front();
        return label + ": " + Paint(Shown(key, *place.before.value), Style::Red) + " -> " +
               Paint(Shown(key, *place.after.value), Style::Green);
    }

    std::string Paint(const std::string& text, Style style) const { return ::Paint(text, style, m_coloured); }

    bool m_coloured;
    std::string m_text;
};

} // namespace

std::string DifferencesAsText(const std::vector<Difference>& sections, bool coloured)
{
    return DifferenceWriter(coloured).Write(sections);
}
