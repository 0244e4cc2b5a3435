// `talschema rewrite`: reads a document and writes it as the library does, whole or not at all.
#include <iostream>
#include <memory>
#include <string>
#include <system_error>

#include "TalAttributeSchemaReader/module/Exports.h"
#include "tools/talschema/Commands.h"
#include "tools/talschema/Diagnosis.h"
#include "tools/talschema/DocumentChecker.h"
#include "tools/talschema/Files.h"
#include "tools/talschema/FindingFormats.h"
#include "tools/talschema/Loading.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/ReplacementFile.h"

namespace {

struct Arguments
{
    std::string input;
    std::string output;
    bool quiet = false;
};

int Rewrite(const Arguments& arguments)
{
    const std::unique_ptr<CDASchema> schema = LoadSchema(arguments.input);
    RefuseSpecialFile(arguments.output);
    // The output may be the input, so this is the last moment to look at it.
    const std::string losses =
        arguments.quiet ? "" : LossesAsText({arguments.input, CheckFile(AbsolutePath(arguments.input))});
    try {
        ReplacementFile replacement(arguments.output);
        const GuString path = AbsolutePath(replacement.GetPath().string());
        WriteStorageTalAttributeSchema(path, schema.get(), nullptr);
        // The library does not tell that a disk is full, but a document that was cut off does not parse.
        const GuString shownName(arguments.output.c_str());
        const std::string reports = Diagnose(path, shownName).reports;
        if (!reports.empty())
            throw Trouble(reports + ErrorMessage(shownName,
                                                 "the new document could not be written completely; "
                                                 "the file is left as it was"));
        replacement.Commit();
    } catch (const std::system_error& failure) {
        throw Trouble(arguments.output, failure.code());
    }
    std::cerr << losses;
    return kExitFine;
}

} // namespace

Command AddRewriteCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("rewrite", "Read a document and write what the library keeps of it");
    command->add_option("INPUT", arguments->input, "The document to read")->required();
    command->add_option("OUTPUT", arguments->output, "The file to write; may be INPUT")->required();
    command->add_flag("-q,--quiet", arguments->quiet, "Do not tell what was not kept");
    return {command, [arguments] { return Rewrite(*arguments); }};
}
