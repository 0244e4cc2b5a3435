#include "tools/talschema/rewrite/Rewrite.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "TalAttributeSchemaHost/file/Save.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/check/FindingText.h"
#include "tools/talschema/terminal/Messages.h"

namespace {

struct Arguments
{
    std::string input;
    std::string stdinName;
    std::string output;
    bool quiet = false;
    bool force = false;
    bool allowExternal = false;
};

/// True for comments and indentation, which the library never writes. Of a document in UTF-16 there may be.
bool HasOwnLayout(const std::string& bytes)
{
    return bytes.find('\0') != std::string::npos || bytes.find("<!--") != std::string::npos ||
           bytes.find("\n ") != std::string::npos || bytes.find("\n\t") != std::string::npos;
}

int Rewrite(const Arguments& arguments)
{
    if (arguments.output == "-")
        throw Trouble("talschema: error: OUTPUT is a file; ./- is one of that name\n");
    const Input document = OpenInput(arguments.input, arguments.stdinName);
    const std::optional<std::string> before =
        document.bytes || arguments.quiet ? document.bytes : ReadInput(document.name).bytes;
    const tal::LoadResult input = Load(document, {arguments.allowExternal, !arguments.quiet});
    // Whatever fails, memory included, fails before the document is replaced.
    std::string losses;
    if (!arguments.quiet && HasOwnLayout(before.value_or("")))
        losses += NoteMessage(document.name, "not kept: comments and layout");
    if (!arguments.quiet)
        losses += LossesAsText(document.name, input.findings, input.omitted);
    tal::SaveOptions options;
    options.force = arguments.force;
    const tal::SaveResult output =
        tal::SaveSchema(std::filesystem::u8path(arguments.output), *input.schema, options);
    if (!output)
        throw Trouble(
            ErrorMessage(arguments.output, output.error + (output.readOnly ? "; --force replaces it" : "")));
    if (!output.note.empty())
        std::cerr << NoteMessage(arguments.output, output.note);
    std::cerr << losses;
    return kExitFine;
}

} // namespace

Command AddRewriteCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("rewrite", "Read a document and write what the library keeps of it");
    command->add_option("INPUT", arguments->input, "The document to read; - is the standard input")
        ->required();
    command->add_option("OUTPUT", arguments->output, "The file to write; may be INPUT")->required();
    command->add_flag("-q,--quiet", arguments->quiet, "Do not tell what was not kept");
    command->add_flag("-f,--force", arguments->force, "Replace OUTPUT even if it is read-only");
    AddStdinName(*command, arguments->stdinName);
    AddAllowExternal(*command, arguments->allowExternal);
    return {command, [arguments] { return Rewrite(*arguments); }};
}
