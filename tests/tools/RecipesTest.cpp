// The examples of docs/pre-commit.md that are no commands of git: shells, project file, comments, editors,
// pre-commit.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/tools/Repository.h"
#include "tools/talschema/input/Glob.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

const std::string kShared = "/usr/share/TalAttributeSchemaReader";

/// Findings behind characters of two, three and four bytes in UTF-8.
const std::vector<std::string> kWideLines = {
    "<Model><AttributeDefinition>",
    "\t<Attributes><Attribute ID='Größe' Label='風車😀' Unit='K'/><Lüfter/></Attributes>",
    "</AttributeDefinition><!-- 😀 --><Fan/></Model>"};
const std::vector<std::string> kWideSubjects = {"Unit", "Lüfter", "Fan"}; // in their order

std::string WideDocument()
{
    std::string text;
    for (const std::string& line : kWideLines)
        text += line + "\n";
    return text;
}

std::size_t Utf16Units(const std::string& text)
{
    std::size_t units = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        units += (byte & 0xC0) == 0x80 ? 0 : byte >= 0xF0 ? 2 : 1;
    }
    return units;
}

std::string Replaced(const std::string& text, const std::string& from, const std::string& to)
{
    EXPECT_NE(text.find(from), std::string::npos) << from << "\nin\n" << text;
    std::string replaced = text;
    for (std::size_t at = 0; (at = replaced.find(from, at)) != std::string::npos; at += to.size())
        replaced.replace(at, from.size(), to);
    return replaced;
}

/// What the text of the document has between backticks, as far as the pattern fits.
std::vector<std::string> Inline(const std::string& pattern)
{
    const std::string text = FileContent(kRoot / "docs/pre-commit.md");
    const std::regex expression("`(" + pattern + ")`");
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
        found.push_back((*at)[1]);
    return found;
}

class Recipes : public Repository
{
protected:
    /// As the document takes it, with this test's folder in the place of the root.
    void Install() const
    {
        const Result installed = Run("'" CMAKE_PATH "' --install '" BUILD_DIRECTORY
                                     "' --component tal_tool --prefix \"$PWD/usr\"");
        ASSERT_EQ(installed.exitCode, 0) << installed.err;
    }
    std::string Installed(const std::string& text) const
    {
        return Replaced(text, kShared, m_directory.Path().string() + kShared);
    }
    Result RunInstalled(const std::string& commands) const
    {
        return Git("export LD_LIBRARY_PATH=\"$(dirname \"$TALSCHEMA\")/../lib\" "
                   "TALSCHEMA=\"$PWD/usr/bin/talschema\"\n" +
                   commands);
    }

    /// Skips without the program, unless somebody wants the recipes tried.
    bool Lacks(const std::string& program) const
    {
        const bool lacks = Run("command -v " + program).exitCode != 0;
        EXPECT_FALSE(lacks && std::getenv("TALSCHEMA_RECIPES")) << program;
        return lacks;
    }
};

TEST_F(Recipes, AreAllTried)
{
    std::map<std::string, std::size_t> numbers;
    for (const auto& [language, recipes] : kRecipes)
        numbers[language] = recipes.size();
    // The tests run whatever there is in these languages.
    for (const char* language : {"sh", "toml", "xml"})
        EXPECT_EQ(numbers.erase(language), 1U) << language;
    EXPECT_EQ(numbers, (std::map<std::string, std::size_t>{{"", 2}, {"json", 2}, {"vim", 1}, {"yaml", 1}}));
}

TEST_F(Recipes, ForAShellRun)
{
    Install();
    Write(".gitattributes", RecipeWith("", "diff="));
    std::string all;
    for (const std::string& recipe : kRecipes.at("sh")) {
        if (recipe.rfind("#!", 0) == 0)
            continue; // a hook
        const bool installed = recipe.find(kShared) != std::string::npos;
        const Result result = RunInstalled(installed ? Installed(recipe) : recipe);
        EXPECT_LE(result.exitCode, 1) << recipe << result.err;
        EXPECT_EQ(result.err.find(" error: "), std::string::npos) << recipe << result.err;
        all += result.out;
    }
    EXPECT_NE(all.find(m_directory.Path().string() + kShared + "/attribute-schema.xsd\n"), std::string::npos)
        << all;
    EXPECT_EQ(Content("attribute-schema.xsd"), FileContent(kRoot / "schema/attribute-schema.xsd"));
    EXPECT_NE(Git("git diff").out.find("Attributes: 1 added, 1 changed\n"), std::string::npos);

    const std::string validate = Installed(RecipeWith("sh", "xmllint"));
    EXPECT_EQ(RunInstalled(validate).exitCode, 0);
    Write("schemas/turbine.xml", "<Model><Storag/></Model>");
    const Result invalid = RunInstalled(validate);
    EXPECT_EQ(invalid.exitCode, 3);
    EXPECT_NE(invalid.err.find("'Storag': This element is not expected"), std::string::npos) << invalid.err;
    const std::vector<std::string> forAll = Inline("<nextCatalog [^`]*>");
    ASSERT_EQ(forAll.size(), 1U);
    Write("system.xml", "<catalog xmlns='urn:oasis:names:tc:entity:xmlns:xml:catalog'>" +
                            Installed(forAll[0]) + "</catalog>");
    EXPECT_EQ(Run("XML_CATALOG_FILES=system.xml xmllint --nonet --noout --schema urn:tal:attribute-schema "
                  "schema.xml")
                  .exitCode,
              0);
}

TEST_F(Recipes, ForAProjectFileCount)
{
    const std::string document =
        "<Model><Fan/><AttributeDefinition><Attributes>\n<Attribute ID='A'/>\n"
        "<Attribute ID='A' Unit='K'/></Attributes></AttributeDefinition><Entities><Entity>"
        "<Rules><Create><Filters><Filter/></Filters></Create></Rules></Entity></Entities></Model>";
    fs::create_directory(m_directory / "schemas/old");
    for (const char* folder : {"schemas/", "schemas/old/"})
        Write(folder + std::string("in.xml"), document);
    for (const std::string& recipe : kRecipes.at("toml")) {
        Write(".talschema.toml", recipe);
        for (const auto& [file, severity] : std::map<std::string, std::string>{
                 {"schemas/in.xml", "warning"}, {"schemas/old/in.xml", "note"}}) {
            const Result result = Run("talschema check " + file);
            EXPECT_EQ(result.exitCode, 1) << result.err;
            EXPECT_NE(result.out.find(file + ":3:16: error: "), std::string::npos) << result.out;
            EXPECT_NE(result.out.find(file + ":3:19: " + severity + ": "), std::string::npos) << result.out;
            EXPECT_NE(result.out.find(file + ":1:9: " + severity + ": "), std::string::npos) << result.out;
            EXPECT_EQ(result.out.find("[filters]"), std::string::npos) << result.out;
            EXPECT_NE(Run("talschema check --no-config " + file).out.find("[filters]"), std::string::npos);
        }
    }
}

TEST_F(Recipes, InADocumentAreReadAndCount)
{
    std::vector<std::string> comments = Inline("<!-- talschema-disable [^`]*>");
    EXPECT_EQ(comments.size(), 1U);
    for (std::string& comment : comments)
        comment += "\n<Attribute ID='A_PEAK' Unit='K' label='Peak'/>\n";
    for (const std::string& recipe : kRecipes.at("xml")) {
        if (recipe.rfind("<!--", 0) == 0)
            comments.push_back(recipe);
        else
            EXPECT_EQ(recipe.rfind("<?xml-model ", 0), 0U) << recipe;
    }
    EXPECT_GE(comments.size(), 3U);
    const std::regex definition(" ID=[\"']([^\"']*)");
    for (const std::string& comment : comments) {
        std::string references;
        for (std::sregex_iterator at(comment.begin(), comment.end(), definition), end; at != end; ++at)
            references += "<Attribute IDRef='" + (*at)[1].str() + "'/>\n";
        const auto checked = [&](const std::string& definitions) {
            Write("in.xml", "<Model><AttributeDefinition><Attributes>\n" + definitions +
                                "</Attributes><AttributeGroups><AttributeGroup ID='G'>\n" + references +
                                "</AttributeGroup></AttributeGroups></AttributeDefinition></Model>\n");
            return Run("talschema check in.xml");
        };
        EXPECT_EQ(checked(comment).out, "") << comment;
        EXPECT_EQ(checked(comment.substr(comment.find("-->") + 3)).exitCode, 1) << comment;
    }

    // The schema is where the line says, and nobody minds the line.
    const std::string line = RecipeWith("xml", "<?xml-model");
    ASSERT_EQ(Git(RecipeWith("sh", "talschema xsd >")).exitCode, 0);
    Write("schemas/turbine.xml", line + kNewDocument);
    std::smatch href;
    ASSERT_TRUE(std::regex_search(line, href, std::regex("href=\"([^\"]*)\"")));
    EXPECT_EQ(FileContent(m_directory / "schemas" / href[1].str()),
              FileContent(kRoot / "schema/attribute-schema.xsd"));
    EXPECT_EQ(Run("talschema check schemas/turbine.xml").out, "");
    EXPECT_EQ(Run("talschema diff schema.xml schemas/turbine.xml").out, "");
    EXPECT_EQ(Run("talschema rewrite schemas/turbine.xml out.xml && ! grep xml-model out.xml").exitCode, 0);
}

TEST_F(Recipes, ForVisualStudioCodeFindThePlaces)
{
    Write("schemas/größe.xml", WideDocument());
    const json task = json::parse(RecipeWith("json", "problemMatcher")).at("tasks").at(0);
    std::string command = task.at("command");
    for (const std::string argument : task.at("args"))
        command += " '" + (argument == "${relativeFile}" ? "schemas/größe.xml" : argument) + "'";
    std::istringstream lines(Run(command).out);
    const json& pattern = task.at("problemMatcher").at("pattern");
    const std::regex expression(pattern.at("regexp").get<std::string>());
    std::vector<std::string> subjects;
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, expression)) << line;
        const auto part = [&](const char* name) { return match[pattern.at(name).get<std::size_t>()].str(); };
        EXPECT_TRUE(fs::exists(m_directory / part("file"))) << line;
        EXPECT_EQ(part("severity"), "warning") << line;
        ASSERT_LT(subjects.size(), kWideSubjects.size()) << line;
        subjects.push_back(kWideSubjects[subjects.size()]);
        const std::string& text = kWideLines.at(std::stoul(part("line")) - 1);
        EXPECT_EQ(std::stoul(part("column")), Utf16Units(text.substr(0, text.find(subjects.back()))) + 1)
            << line;
        EXPECT_NE(part("message").find('"' + subjects.back() + '"'), std::string::npos) << line;
    }
    EXPECT_EQ(subjects, kWideSubjects);

    Install();
    const json association =
        json::parse(RecipeWith("json", "xml.fileAssociations")).at("xml.fileAssociations").at(0);
    EXPECT_TRUE(fs::exists(Installed(association.at("systemId"))));
    EXPECT_TRUE(FileGlobMatches(association.at("pattern").get<std::string>(), "schemas/turbine.xml"));
}

TEST_F(Recipes, ForVimFindThePlaces)
{
    if (Lacks("vim"))
        GTEST_SKIP() << "no vim";
    fs::create_directories(m_directory / ".vim/ftplugin");
    Write(".vim/ftplugin/xml.vim", RecipeWith("vim", "makeprg"));
    Write("vimrc", "set nocompatible\nfiletype plugin on\n");
    Write("schemas/größe a.xml", WideDocument());
    Write("schemas/broken.xml", "<Model>\n<!-- 😀 --></Mode>\n");
    Write("run.vim", R"(silent make
let places = []
silent! cfirst
try
    while !empty(filter(getqflist(), 'v:val.valid'))
        call add(places, expand('%') . '|' . line('.') . '|' . strpart(getline('.'), col('.') - 1))
        cnext
    endwhile
catch /E553:/
endtry
call writefile(['checked'] + places, 'places')
qall!
)");
    const auto places = [&](const std::string& file) {
        fs::remove(m_directory / "places");
        Git("LC_ALL=C.UTF-8 timeout 60 vim -u vimrc -es '" + file + "' -S run.vim </dev/null");
        return Content("places");
    };
    std::string expected = "checked\n";
    for (const std::string& subject : kWideSubjects) {
        const auto line = std::find_if(kWideLines.begin(), kWideLines.end(), [&](const std::string& text) {
            return text.find(subject) != std::string::npos;
        });
        expected += "schemas/größe a.xml|" + std::to_string(line - kWideLines.begin() + 1) + "|" +
                    line->substr(line->find(subject)) + "\n";
    }
    EXPECT_EQ(places("schemas/größe a.xml"), expected);
    EXPECT_EQ(places("schemas/broken.xml"), "checked\nschemas/broken.xml|2|Mode>\n");
    EXPECT_EQ(places("schemas/turbine.xml"), "checked\n");
}

TEST_F(Recipes, ForPreCommitStopACommit)
{
    if (Lacks("pre-commit"))
        GTEST_SKIP() << "no pre-commit";
    const std::string recipe = RecipeWith("yaml", "repo: local");
    const auto commit = [&](const std::string& configuration) {
        Write(".pre-commit-config.yaml", configuration);
        const Result result = Git("git add .pre-commit-config.yaml schemas other.xml && git commit -m more");
        return std::to_string(result.exitCode) + result.out + result.err;
    };
    const auto variant = [&](const std::string& option) {
        const std::vector<std::string> entries = Inline("entry: talschema check --" + option + "[^`]*");
        EXPECT_EQ(entries.size(), 1U) << option;
        return std::regex_replace(recipe, std::regex("entry: .*"), entries.at(0));
    };
    Write("other.xml", "<Model><Storag/></Model>");
    ASSERT_EQ(Git("pre-commit install").exitCode, 0);
    EXPECT_EQ(commit(recipe).front(), '0'); // nothing of it is a mistake in schemas/
    Write("schemas/in.xml", "<Model><Storage/>\n<entities/></Model>");
    const std::string stopped = commit(recipe);
    EXPECT_EQ(stopped.front(), '1');
    EXPECT_NE(stopped.find("schemas/in.xml:2:2: warning: "), std::string::npos) << stopped;
    const std::string fixed = commit(variant("fix"));
    EXPECT_EQ(fixed.front(), '1'); // it is for the user to look at
    EXPECT_NE(fixed.find("files were modified by this hook"), std::string::npos) << fixed;
    EXPECT_EQ(Content("schemas/in.xml"), "<Model><Storage/>\n<Entities/></Model>");
    EXPECT_EQ(commit(recipe).front(), '0');
    Write("schemas/in.xml", "<Model><AttributeDefinition><Attributes><Attribute ID='A'/>\n<Attribute ID='A'/>"
                            "</Attributes></AttributeDefinition></Model>");
    EXPECT_EQ(commit(recipe).front(), '1');
    EXPECT_EQ(commit(variant("disable")).front(), '0');
}

} // namespace
