#include "tools/talschema/diff/Diff.h"

#include <cstdlib>
#include <memory>

#include "tools/talschema/Loading.h"
#include "tools/talschema/diff/DiffCompare.h"
#include "tools/talschema/diff/DiffJson.h"
#include "tools/talschema/diff/DiffLines.h"
#include "tools/talschema/diff/DiffRenames.h"
#include "tools/talschema/diff/DiffText.h"
#include "tools/talschema/show/SchemaJson.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

struct Arguments
{
    std::vector<std::string> files;
    std::string format = "text";
    std::string stdinName;
    bool git = false;
    bool allowExternal = false;
};

/// What git calls the side that does not exist.
constexpr char kNoDocument[] = "/dev/null";

/// A document, or the empty schema in the place of one that does not exist.
nlohmann::ordered_json Model(const Input& input, bool allowExternal)
{
    if (input.name == kNoDocument)
        return SchemaToJson(CDASchema());
    return SchemaToJson(*Load(input, {allowExternal, false}).schema);
}

std::string Compare(const Input& oldInput, const Input& newInput, const Arguments& arguments, bool coloured,
                    bool& same)
{
    const nlohmann::ordered_json original = Model(oldInput, arguments.allowExternal);
    const nlohmann::ordered_json after = Model(newInput, arguments.allowExternal);
    const FollowedRenames followed = FollowRenames(original, after);
    std::vector<Difference> differences =
        CompareSchemas(followed.before ? *followed.before : original, after, followed.renames);
    same = differences.empty();
    if (!same)
        PutLines(differences, LinesOfObjects(oldInput, arguments.allowExternal),
                 LinesOfObjects(newInput, arguments.allowExternal));
    return arguments.format == "json" ? JsonAsText(DifferencesAsJson(differences, original))
                                      : DifferencesAsText(differences, coloured);
}

int Diff(const Arguments& arguments)
{
    if (arguments.files.size() != 2)
        throw Trouble("talschema: error: diff takes two documents, the old one and the new one\n");
    ExpectOneStandardInput(arguments.files);
    bool same = false;
    Print(Compare(OpenInput(arguments.files[0], arguments.stdinName),
                  OpenInput(arguments.files[1], arguments.stdinName), arguments, ColoursWanted(), same));
    return same ? kExitFine : kExitFindings;
}

/// One side as git gives it: content in `file`, from a document called `path`.
Input SideOfGit(const std::string& file, const std::string& path)
{
    Input input;
    input.name = file;
    if (file != kNoDocument) {
        input = ReadInput(file);
        input.name = path;
    }
    return input;
}

/// Called by git once for each document. Whatever the outcome, git must go on to the next one.
int DiffForGit(const Arguments& arguments)
{
    const std::vector<std::string>& given = arguments.files;
    const std::string& path = given.front();
    // path old-file old-hex old-mode new-file new-hex new-mode, and when it was renamed: new-path what
    if (given.size() != 1 && given.size() < 7)
        throw Trouble("talschema: error: diff --git takes what git gives to an external diff\n");
    const bool coloured = ColoursWanted() || PagerColoursWanted();
    const std::string newPath = given.size() > 7 ? given[7] : path;
    std::string text = Paint("diff --talschema " + Printable("a/" + path) + " " + Printable("b/" + newPath),
                             Style::Bold, coloured) +
                       "\n";
    if (given.size() == 1) {
        Print(text + "unmerged\n");
        return kExitFine;
    }
    try {
        bool same = false;
        text += Compare(SideOfGit(given[1], path), SideOfGit(given[4], newPath), arguments, coloured, same);
        if (same)
            text += "nothing that is read differs\n";
    } catch (const Trouble& trouble) {
        text += trouble.what();
    }
    Print(text);
    return kExitFine;
}

} // namespace

Command AddDiffCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("diff", "Show what differs between two documents as they are read");
    command
        ->add_option("A B", arguments->files,
                     "The old document and the new one; - is the standard input, /dev/null no document")
        ->required();
    command->add_option("--format", arguments->format, "text for people, json for programs")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    command->add_flag("--git", arguments->git,
                      "Take the seven arguments of git's external diff, and end with 0 so that git goes on");
    AddStdinName(*command, arguments->stdinName);
    AddAllowExternal(*command, arguments->allowExternal);
    return {command, [arguments] { return arguments->git ? DiffForGit(*arguments) : Diff(*arguments); }};
}
