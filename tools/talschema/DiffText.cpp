// Differences as text for people.
#include "tools/talschema/Diff.h"

#include <utility>

#include "tools/talschema/Terminal.h"
#include "tools/talschema/Text.h"

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
    return '"' + Printable(text.c_str()) + '"';
}

std::string Shown(const ordered_json& value);

// The fields of an object from the first on that say something, or nothing.
std::string Summary(const ordered_json& object, std::size_t first = 0)
{
    std::string fields;
    std::size_t index = 0;
    for (const auto& [key, value] : object.items()) {
        const bool saysNothing = value.empty() || value == "" || value == false;
        if (index++ >= first && !saysNothing)
            fields += (fields.empty() ? "" : ", ") + Words(key) + ": " + Shown(value);
    }
    return fields.empty() ? fields : "(" + fields + ")";
}

std::string Shown(const ordered_json& value)
{
    if (value.is_string())
        return Quoted(value.get_ref<const std::string&>());
    if (value.is_boolean())
        return value.get<bool>() ? "yes" : "no";
    if (value.is_array())
        return std::to_string(value.size());
    return Summary(value);
}

std::string Label(const Difference& place)
{
    if (!place.isEntry)
        return Words(place.name.front());
    std::string label = Quoted(place.name.front());
    for (std::size_t i = 1; i < place.name.size(); ++i)
        label += " = " + Quoted(place.name[i]);
    return label;
}

// What an added or removed value holds besides its label.
std::string Content(const Difference& place, const ordered_json& value)
{
    const std::string summary =
        value.is_object() ? Summary(value, place.isEntry ? place.name.size() : 0) : std::string();
    return summary.empty() ? summary : " " + summary;
}

// People count from one.
std::string Movement(const Difference& place)
{
    return "moved from " + std::to_string(place.before.index + 1) + " to " +
           std::to_string(place.after.index + 1);
}

std::string Counts(const std::vector<Difference>& places)
{
    std::size_t added = 0;
    std::size_t removed = 0;
    std::size_t changed = 0;
    std::size_t moved = 0;
    for (const Difference& place : places) {
        added += place.IsAdded() ? 1 : 0;
        removed += place.IsRemoved() ? 1 : 0;
        moved += place.isMoved ? 1 : 0;
        changed += place.IsChanged() ? 1 : 0;
    }
    std::string counts;
    for (const auto& [count, what] : {std::pair(added, " added"), std::pair(removed, " removed"),
                                      std::pair(changed, " changed"), std::pair(moved, " moved")}) {
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
                WriteOne(section, "  ");
            else
                WriteAll(section.parts, "  ");
        }
        return m_text;
    }

private:
    void WriteAll(const std::vector<Difference>& places, const std::string& indent)
    {
        for (const Difference& place : places)
            WriteOne(place, indent);
    }

    void WriteOne(const Difference& place, const std::string& indent)
    {
        const std::string label = Label(place);
        m_text += indent;
        if (place.IsAdded())
            m_text += Paint("+ " + label, Style::Green) + Content(place, *place.after.value);
        else if (place.IsRemoved())
            m_text += Paint("- " + label, Style::Red) + Content(place, *place.before.value);
        else if (place.isMoved && place.parts.empty())
            m_text += Paint("> " + label, Style::Cyan) + " " + Movement(place);
        else if (place.isEntry)
            m_text += Paint("~ " + label, Style::Yellow) + (place.isMoved ? ", " + Movement(place) : "");
        else if (!place.parts.empty())
            m_text += label + ":";
        else
            m_text += label + ": " + Paint(Shown(*place.before.value), Style::Red) + " -> " +
                      Paint(Shown(*place.after.value), Style::Green);
        m_text += "\n";
        WriteAll(place.parts, indent + (place.isEntry ? "    " : "  "));
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
