// Where findings stand: documents with marks around what each finding is about, in several shapes.
#include <algorithm>
#include <functional>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/TestSupport.h"

#if __has_include(<iconv.h>)
#include <iconv.h>
#endif

namespace fs = std::filesystem;

namespace {

const fs::path kPlaces = fs::path(PROJECT_ROOT) / "tests/host/places";

/// Bytes of a document from its UTF-8 text.
using Encoder = std::function<std::string(const std::string&)>;

struct Mark
{
    std::string identifier;
    std::size_t begin; // in the text
    std::size_t end;
};

struct MarkedText
{
    std::string text;
    std::vector<Mark> marks;
};

/// Takes out the marks: `{{identifier,identifier|what it is about}}`. They do not nest.
MarkedText TakeMarks(const std::string& marked)
{
    MarkedText result;
    const std::regex mark(R"(\{\{([a-z,-]+)\|([^]*?)\}\})");
    std::size_t taken = 0;
    for (std::sregex_iterator found(marked.begin(), marked.end(), mark), end; found != end; ++found) {
        const auto begin = static_cast<std::size_t>(found->position());
        result.text.append(marked, taken, begin - taken);
        taken = begin + static_cast<std::size_t>(found->length());
        const std::string about = (*found)[2];
        std::istringstream identifiers((*found)[1]);
        for (std::string identifier; std::getline(identifiers, identifier, ',');)
            result.marks.push_back({identifier, result.text.size(), result.text.size() + about.size()});
        result.text += about;
    }
    result.text.append(marked, taken);
    return result;
}

std::string Shown(const tal::Position& position)
{
    return std::to_string(position.line) + ":" + std::to_string(position.column) + "/" +
           std::to_string(position.utf16Column) + "/" + std::to_string(position.utf8Column) + "@" +
           std::to_string(position.offset);
}

std::string Shown(const std::string& identifier, const tal::Range& range)
{
    return identifier + " " + Shown(range.begin) + "-" + Shown(range.end);
}

/// Counted here once more, in the simplest way.
tal::Position PositionOf(const std::string& text, std::size_t index, const Encoder& encode, bool isUtf8)
{
    const std::string before = text.substr(0, index);
    const std::regex lineEnd("\r\n|\r|\n");
    tal::Position position{1, 1, 1, 1, encode(before).size()};
    std::size_t line = 0;
    for (std::sregex_iterator found(before.begin(), before.end(), lineEnd), end; found != end; ++found) {
        line = static_cast<std::size_t>(found->position() + found->length());
        ++position.line;
    }
    for (const char character : before.substr(line)) {
        const auto byte = static_cast<unsigned char>(character);
        const bool begins = !isUtf8 || (byte & 0xC0) != 0x80;
        position.column += begins ? 1 : 0;
        position.utf16Column += !begins ? 0 : isUtf8 && byte >= 0xF0 ? 2 : 1;
        position.utf8Column += isUtf8 || byte < 0x80 ? 1 : 2;
    }
    return position;
}

std::string Replaced(const std::string& text, const std::string& pattern, const std::string& with)
{
    return std::regex_replace(text, std::regex(pattern), with);
}

std::string Utf16(const std::string& text, bool bigEndian)
{
    const GuString units = tal::FromUtf8("\uFEFF" + text);
    std::string bytes;
    for (std::size_t i = 0; i < units.GetLength(); ++i) {
        const auto high = static_cast<char>(units.c_str()[i] >> 8);
        const auto low = static_cast<char>(units.c_str()[i] & 0xFF);
        bytes += {bigEndian ? high : low, bigEndian ? low : high};
    }
    return bytes;
}

#if __has_include(<iconv.h>)
std::string Gb18030(std::string text)
{
    std::string bytes(4 * text.size(), '\0');
    const iconv_t converter = iconv_open("GB18030", "UTF-8");
    char* in = text.data();
    char* out = bytes.data();
    std::size_t left = text.size();
    std::size_t room = bytes.size();
    EXPECT_EQ(iconv(converter, &in, &left, &out, &room), 0U);
    iconv_close(converter);
    bytes.resize(bytes.size() - room);
    return bytes;
}
#endif

/// One way to store a document: what is done to its text, and how the text becomes bytes.
struct Shape
{
    const char* name;
    std::string (*change)(const std::string&);
    Encoder encode;
    bool keepsBytes = false;
};

std::string Same(const std::string& text)
{
    return text;
}

std::vector<Shape> Shapes()
{
    return
    {
        {"LF", Same, Same, true},
            {"CRLF", [](const std::string& text) { return Replaced(text, "\n", "\r\n"); }, Same, true},
            {"CR", [](const std::string& text) { return Replaced(text, "\n", "\r"); }, Same},
            {"tabs", [](const std::string& text) { return Replaced(text, "  ", "\t"); }, Same, true},
            {"BOM", Same, [](const std::string& text) { return "\xEF\xBB\xBF" + text; }},
            {"UTF-16 LE", Same, [](const std::string& text) { return Utf16(text, false); }},
            {"UTF-16 BE", Same, [](const std::string& text) { return Utf16(text, true); }},
#if __has_include(<iconv.h>)
            {"GB18030",
             [](const std::string& text) {
                 const std::string declaration = " encoding='GB18030'?>";
                 const std::size_t end = text.rfind("<?xml ", 0) == 0 ? text.find("?>") : std::string::npos;
                 return end == std::string::npos ? "<?xml version='1.0'" + declaration + text
                                                 : text.substr(0, end) + declaration + text.substr(end + 2);
             },
             Gb18030},
#endif
    };
}

/// What only the first set has, a line each.
std::string Difference(const std::multiset<std::string>& first, const std::multiset<std::string>& second)
{
    std::vector<std::string> difference;
    std::set_difference(first.begin(), first.end(), second.begin(), second.end(),
                        std::back_inserter(difference));
    std::string lines;
    for (const std::string& line : difference)
        lines += line + "\n";
    return lines;
}

/// Checks one document in one shape; returns the identifiers that were found.
std::set<std::string> CheckShape(const std::string& name, const std::string& marked, const Shape& shape,
                                 bool isUtf8)
{
    SCOPED_TRACE(name + ", " + shape.name);
    const MarkedText document = TakeMarks(shape.change(marked));
    std::multiset<std::string> expected;
    std::set<std::string> identifiers;
    for (const Mark& mark : document.marks) {
        identifiers.insert(mark.identifier);
        const auto position = [&](std::size_t index) {
            return PositionOf(document.text, index, shape.encode, isUtf8);
        };
        tal::Range range{position(mark.begin), position(mark.end)};
        if (mark.identifier == "invalid-byte") // no character, so it counts as one of everything
            range.end = {range.begin.line, range.begin.column + 1, range.begin.utf16Column + 1,
                         range.begin.utf8Column + 1, range.begin.offset + 1};
        expected.insert(Shown(mark.identifier, range));
    }
    std::multiset<std::string> found;
    const std::string file = (kPlaces / name).string();
    tal::CheckOptions options;
    options.codePage = name == "code-page.xml" ? 1252 : 0;
    for (const tal::Finding& finding : tal::CheckText(shape.encode(document.text), file, options).findings) {
        EXPECT_EQ(finding.file, file);
        found.insert(Shown(RuleOf(finding.id).identifier, finding.range));
    }
    EXPECT_EQ(Difference(found, expected), "") << "found, but not marked";
    EXPECT_EQ(Difference(expected, found), "") << "marked, but not found";
    // A document is fixed in the same way however it is stored.
    const std::string fixed = tal::FixText(TakeMarks(marked).text, file, options).text;
    EXPECT_EQ(tal::FixText(shape.encode(document.text), file, options).text,
              shape.encode(shape.change(fixed)));
    return identifiers;
}

TEST(Places, AreExactInEveryShapeOfADocument)
{
    std::set<std::string> found = {"unreadable-file", "system-failure", "expansion"}; // these have no place
    const auto take = [&](const std::set<std::string>& identifiers) {
        found.insert(identifiers.begin(), identifiers.end());
    };
    for (const fs::directory_entry& entry : fs::directory_iterator(kPlaces)) {
        if (entry.path().extension() != ".xml")
            continue;
        // What is not UTF-8 stays the bytes that it is; of some, every byte is a character.
        const std::string kind = entry.path().stem().extension().string();
        const bool isUtf8 = kind != ".single";
        for (const Shape& shape : Shapes()) {
            if (kind.empty() || shape.keepsBytes)
                take(CheckShape(entry.path().filename().string(), FileContent(entry.path()), shape, isUtf8));
        }
    }
    take(CheckShape(
        "deep.xml",
        "<Model><Entities><Entity Type='Iteration'><Rules><Create><LoadCaseTemplates><Condition>" +
            Repeated("<AttributeFolder Name='風'>\n", 1000) +
            "<{{folder-too-deep|AttributeFolder}} Name='x'/>" + Repeated("</AttributeFolder>", 1000) +
            "</Condition></LoadCaseTemplates></Create></Rules></Entity></Entities></Model>",
        Shapes().front(), true));

    std::set<std::string> all;
    for (const tal::FindingRule& rule : tal::AllFindingRules())
        all.insert(rule.identifier);
    EXPECT_EQ(found, all);
}

TEST(Places, HaveTheirLines)
{
    const auto lines =
        tal::CheckText("<Model>\r\n\t<Fan/>\r\n<Fan/> 🌀</Model>", "in.xml", {false, true}).lines;
    const std::map<std::size_t, std::string> expected = {{2, "\t<Fan/>"}, {3, "<Fan/> 🌀</Model>"}};
    EXPECT_EQ(lines, expected);
    EXPECT_TRUE(tal::CheckText("<Model><Fan/></Model>", "in.xml").lines.empty());
}

} // namespace
