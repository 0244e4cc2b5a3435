// `talschema check`: what the reader will do with a document.
#include <algorithm>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tools/talschema/Commands.h"
#include "tools/talschema/DocumentChecker.h"
#include "tools/talschema/Files.h"
#include "tools/talschema/FindingFormats.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/Terminal.h"

namespace {

struct Arguments
{
    std::vector<std::string> files;
    std::string format = "text";
    bool quiet = false;
    std::vector<std::string> disabled;
    bool warningsAsErrors = false;
};

CheckedFile CheckOne(const std::string& file)
{
    if (file == "-") {
        ExpectReadableInput();
        return {"<stdin>", CheckStandardInput()};
    }
    ExpectReadable(file);
    return {file, CheckFile(AbsolutePath(file))};
}

void Disable(std::vector<Finding>& findings, const std::set<std::string>& identifiers)
{
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&](const Finding& finding) {
                                      return identifiers.count(RuleOf(finding.id).identifier) > 0;
                                  }),
                   findings.end());
}

int Check(const Arguments& arguments)
{
    const std::set<std::string> disabled(arguments.disabled.begin(), arguments.disabled.end());
    const FindingStyle style{arguments.warningsAsErrors, ColoursWanted()};
    const bool asText = arguments.format == "text" && !arguments.quiet;

    std::vector<CheckedFile> files;
    bool trouble = false;
    for (const std::string& name : arguments.files) {
        try {
            files.push_back(CheckOne(name));
            Disable(files.back().findings, disabled);
            if (asText)
                Print(FindingsAsText(files.back(), style));
        } catch (const Trouble& unreadable) { // the other files are worth a look all the same
            std::cerr << unreadable.what();
            trouble = true;
        }
    }
    if (asText)
        std::cerr << Summary(files, style);
    else if (!arguments.quiet)
        Print(arguments.format == "json" ? FindingsAsJson(files, style) : FindingsAsSarif(files, style));
    const FindingCount count = Count(files, style);
    return trouble ? kExitTrouble : count.errors + count.warnings > 0 ? kExitFindings : kExitFine;
}

/// Unreadable documents cannot be declared readable.
std::vector<std::string> DisablableIdentifiers()
{
    std::vector<std::string> identifiers;
    for (const FindingRule& rule : kFindingRules) {
        if (rule.kind != FindingKind::Unreadable)
            identifiers.emplace_back(rule.identifier);
    }
    return identifiers;
}

std::string ListOfRules()
{
    std::string list = "Findings:";
    for (const FindingRule& rule : kFindingRules) {
        std::string identifier = rule.identifier;
        identifier.resize(28, ' ');
        list += "\n  " + identifier + NameOf(SeverityOf(rule.kind)) + ": " + rule.summary;
    }
    return list;
}

} // namespace

Command AddCheckCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("check", "Say what the library will do with documents");
    command->add_option("FILE", arguments->files, "The documents to check; - is the standard input")
        ->required();
    command
        ->add_option("--format", arguments->format,
                     "text for people and editors, json for programs, sarif for code hosts")
        ->check(CLI::IsMember({"text", "json", "sarif"}))
        ->capture_default_str();
    command->add_flag("-q,--quiet", arguments->quiet, "Print no findings; the exit code tells");
    command
        ->add_option("--disable", arguments->disabled,
                     "Leave a warning or note out; may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->check(CLI::IsMember(DisablableIdentifiers()).description(""));
    command->add_flag("--warnings-as-errors", arguments->warningsAsErrors, "Call every warning an error");
    command->footer(ListOfRules());
    return {command, [arguments] { return Check(*arguments); }};
}
