#include "tools/talschema/check/Check.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/file/FixDocument.h"
#include "tools/talschema/check/Baseline.h"
#include "tools/talschema/check/FindingReports.h"
#include "tools/talschema/check/FindingSarif.h"
#include "tools/talschema/check/FindingText.h"
#include "tools/talschema/check/ProjectFile.h"
#include "tools/talschema/check/UnifiedDiff.h"
#include "tools/talschema/input/Folders.h"
#include "tools/talschema/input/Input.h"
#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Progress.h"
#include "tools/talschema/terminal/Terminal.h"

namespace {

using tal::Finding;

struct Arguments
{
    std::vector<std::string> files;
    FolderFilter folders;
    std::string stdinName;
    std::string format = "text";
    std::string columns = "characters";
    bool quiet = false;
    std::optional<bool> source;
    bool allowExternal = false;
    unsigned codePage = 0;
    std::vector<std::string> disabled;
    bool warningsAsErrors = false;
    std::size_t maxFindings = tal::kMaxFindings;
    std::string failOn;
    std::string config;
    bool noConfig = false;
    bool fix = false;
    bool dryRun = false;
    std::string baseline;
    std::string writtenBaseline;
};

const std::map<std::string, ColumnUnit> kColumnUnits = {
    {"characters", ColumnUnit::Characters}, {"utf16", ColumnUnit::Utf16}, {"bytes", ColumnUnit::Bytes}};

/// One run over all files.
class CheckRun
{
public:
    explicit CheckRun(const Arguments& arguments) : m_arguments(arguments)
    {
        m_style.warningsAsErrors = arguments.warningsAsErrors;
        m_style.dryRun = arguments.dryRun;
        m_style.coloured = ColoursWanted();
        m_style.source = arguments.source.value_or(IsTerminal());
        m_style.columns = kColumnUnits.at(arguments.columns);
        m_asText = arguments.format == "text" && !arguments.quiet && !arguments.dryRun &&
                   arguments.writtenBaseline.empty();
        m_options.allowExternal = arguments.allowExternal;
        m_options.keepLines = m_asText && m_style.source;
        m_options.codePage = arguments.codePage;
        m_options.maxFindings = arguments.maxFindings;
        if (!arguments.baseline.empty())
            m_baseline.emplace(arguments.baseline);
    }

    int Run()
    {
        ExpectOneStandardInput(m_arguments.files);
        const std::vector<FoundFile> found = FilesOf(m_arguments.files, m_arguments.folders);
        m_progress.emplace(found.size());
        for (const DocumentRules& rules :
             AllRules(found)) // mistakes in them are told before anything is done
            Check(found[m_files.size()], rules);
        if (m_baseline)
            m_facts.absent = m_baseline->Absent();
        WriteBaseline();
        Report();
        const bool fails = m_arguments.writtenBaseline.empty() &&
                           std::any_of(m_files.begin(), m_files.end(),
                                       [&](const CheckedFile& file) { return Fails(file, m_style); });
        return m_trouble ? kExitTrouble : fails ? kExitFindings : kExitFine;
    }

private:
    std::vector<DocumentRules> AllRules(const std::vector<FoundFile>& files) const
    {
        ProjectFiles projects(m_arguments.config, !m_arguments.noConfig);
        std::vector<DocumentRules> all;
        all.reserve(files.size());
        for (const FoundFile& file : files) {
            all.push_back(projects.RulesFor(file.name));
            for (const tal::FindingRule& rule : tal::AllFindingRules()) {
                const auto& disabled = m_arguments.disabled;
                if (std::find(disabled.begin(), disabled.end(), rule.identifier) != disabled.end())
                    all.back().severities[rule.id] = std::nullopt;
            }
        }
        return all;
    }

    void Check(const FoundFile& found, const DocumentRules& rules)
    {
        m_progress->Next(found.name, SizeOfDocument(found.name));
        m_files.push_back(m_arguments.fix ? FixOne(found, rules) : CheckOne(found));
        m_progress->Clear();
        CheckedFile& file = m_files.back();
        file.failOn =
            SeverityNamed(m_arguments.failOn).value_or(rules.failOn.value_or(tal::Severity::Warning));
        if (m_baseline)
            m_baseline->Apply(file);
        ApplySeverities(rules.severities, file.result.findings);
        ApplySeverities(rules.severities, file.known);
        file.omitted = OmittedOf(rules.severities, file.result.omitted);
        if (CouldNotBeLookedAt(file)) { // the other files are worth a look all the same
            m_trouble = true;
            std::cerr << ErrorsAsText(file.result.findings);
        } else if (m_asText) {
            Print(FindingsAsText(file, m_style));
        }
        file.result.lines.clear();
    }

    CheckedFile CheckOne(const FoundFile& file) const
    {
        if (!file.failure.empty())
            return Unreadable(file.name, file.failure);
        const Input input = OpenInput(file.name, m_arguments.stdinName);
        if (!input.failure.empty())
            return Unreadable(input.name, input.failure);
        return {input.name, input.bytes ? tal::CheckText(*input.bytes, input.name, m_options)
                                        : tal::CheckDocument(std::filesystem::u8path(input.name), m_options)};
    }

    static CheckedFile Unreadable(const std::string& name, const std::string& reason)
    {
        tal::CheckResult result;
        result.findings = {UnreadableFile(name, reason)};
        return {name, std::move(result)};
    }

    CheckedFile FixOne(const FoundFile& found, const DocumentRules& rules)
    {
        if (!found.failure.empty())
            return Unreadable(found.name, found.failure);
        const std::string& file = found.name;
        if (file == "-")
            throw Trouble(
                ErrorMessage(m_arguments.stdinName, "the standard input cannot be fixed, only files"));
        tal::FixOptions options;
        options.check = m_options;
        options.dryRun = m_arguments.dryRun;
        options.wanted = [&](const Finding& finding) {
            const auto rule = rules.severities.find(finding.id);
            return rule == rules.severities.end() || rule->second;
        };
        tal::FixFileResult fixed = tal::FixDocument(std::filesystem::u8path(file), options);
        if (!fixed)
            Fail(file, fixed.error);
        if (!fixed.note.empty())
            std::cerr << NoteMessage(file, fixed.note);
        if (m_arguments.dryRun && !fixed.fixed.empty()) {
            PrintDiff(UnifiedDiff(file, fixed.original, fixed.text), m_style.coloured);
            fixed.check = tal::CheckText(fixed.original, file, m_options);
        }
        return {file, std::move(fixed.check), fixed.fixed.size()};
    }

    void WriteBaseline()
    {
        const std::string& file = m_arguments.writtenBaseline;
        if (file.empty())
            return;
        if (m_trouble) {
            Fail(file, "not written, for not every document could be looked at");
            return;
        }
        const tal::SaveResult saved =
            tal::SaveBytes(std::filesystem::u8path(file), BaselineOf(m_files, file));
        if (!saved)
            Fail(file, saved.error);
        else if (!saved.note.empty())
            std::cerr << NoteMessage(file, saved.note);
    }

    void Report()
    {
        if (m_arguments.quiet)
            return;
        if (m_arguments.format == "text") {
            std::cerr << AbsentAsText(m_arguments.baseline, m_facts.absent) << Summary(m_files, m_style);
            return;
        }
        m_facts.withBaseline = m_baseline.has_value();
        Print(m_arguments.format == "json" ? FindingsAsJson(m_files, m_style)
                                           : FindingsAsSarif(m_files, m_style, m_facts));
    }

    void Fail(const std::string& file, const std::string& reason)
    {
        m_trouble = true;
        if (m_progress)
            m_progress->Clear();
        m_facts.failures.push_back(file + ": " + reason);
        std::cerr << ErrorMessage(file, reason);
    }

    static bool CouldNotBeLookedAt(const CheckedFile& file)
    {
        return std::any_of(file.result.findings.begin(), file.result.findings.end(),
                           [](const Finding& finding) { return finding.kind == tal::FindingKind::System; });
    }

    const Arguments& m_arguments;
    FindingStyle m_style;
    tal::CheckOptions m_options;
    bool m_asText = false;
    std::optional<Progress> m_progress;
    std::optional<Baseline> m_baseline;
    std::vector<CheckedFile> m_files;
    RunFacts m_facts;
    bool m_trouble = false;
};

std::string Footer()
{
    std::string text =
        "Exit codes: 0 no errors or warnings, 1 errors or warnings (--fail-on changes that), 2 a document "
        "could not "
        "be looked at, or wrong usage.\n\nLines end with LF, CR or both. A column counts characters from 1, "
        "a tab as one, "
        "as editors "
        "do;\n--columns changes that for programs that count otherwise. SARIF counts UTF-16 units.\n\n"
        "Findings, of which \"talschema explain ID\" tells more:";
    for (const tal::FindingRule& rule : tal::AllFindingRules()) {
        std::string identifier = rule.identifier;
        identifier.resize(28, ' ');
        text += "\n  " + identifier + NameOf(SeverityOf(rule.kind)) + ": " + rule.summary;
    }
    return text;
}

void AddReportOptions(CLI::App& command, Arguments& arguments)
{
    command.add_flag("-q,--quiet", arguments.quiet, "Print no findings; the exit code tells");
    command.add_flag("--source,!--no-source", arguments.source,
                     "Show the lines with the findings, or not; the default on a terminal");
    command
        .add_option("--columns", arguments.columns,
                    "What a column counts in text and json: characters, UTF-16 units, or bytes of UTF-8")
        ->check(CLI::IsMember({"characters", "utf16", "bytes"}))
        ->capture_default_str();
}

void AddSeverityOptions(CLI::App& command, Arguments& arguments)
{
    command
        .add_option("--disable", arguments.disabled,
                    "Leave warnings or notes out; ID,ID for several, and it may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->delimiter(',')
        ->check(CLI::IsMember(ChangeableIdentifiers()).description(""));
    command.add_flag("--warnings-as-errors", arguments.warningsAsErrors, "Call every warning an error");
    command
        .add_option(
            "--fail-on", arguments.failOn,
            "The least severity that ends with exit code 1; the default is that of the project file, or "
            "warning")
        ->check(CLI::IsMember({"error", "warning", "note"}));
    CLI::Option* const config =
        command
            .add_option("--config", arguments.config,
                        "The project file, instead of the nearest .talschema.toml above each document")
            ->type_name("FILE");
    command.add_flag("--no-config", arguments.noConfig, "Read no project file")->excludes(config);
}

void AddBaselineOptions(CLI::App& command, Arguments& arguments)
{
    command
        .add_option("--baseline", arguments.baseline,
                    "Count the findings that FILE knows, and show the others")
        ->type_name("FILE");
    command
        .add_option("--write-baseline", arguments.writtenBaseline,
                    "Write what is found to FILE, for --baseline, instead of showing it")
        ->type_name("FILE");
}

} // namespace

Command AddCheckCommand(CLI::App& app)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("check", "Say what the library will do with documents");
    command
        ->add_option("FILE", arguments->files,
                     "The documents to check, or folders of them; - is the standard input")
        ->required();
    CLI::Option* const format =
        command
            ->add_option("--format", arguments->format,
                         "text for people and editors, json for programs, sarif for code hosts")
            ->check(CLI::IsMember({"text", "json", "sarif"}))
            ->capture_default_str();
    AddReportOptions(*command, *arguments);
    AddSeverityOptions(*command, *arguments);
    AddBaselineOptions(*command, *arguments);
    CLI::Option* const fix = command->add_flag("--fix", arguments->fix,
                                               "Put right in the documents what is certain; tell the rest");
    command
        ->add_flag("--dry-run", arguments->dryRun,
                   "With --fix: change nothing, print what would change as a patch")
        ->needs(fix)
        ->excludes(format);
    command
        ->add_option("--code-page", arguments->codePage,
                     "Also find what a host on Windows with this ANSI code page, such as 1252, cannot write")
        ->type_name("NUMBER")
        ->check(CLI::PositiveNumber.description(""));
    command
        ->add_option("--max-findings", arguments->maxFindings,
                     "Of more findings in a document show the first ones, and count the others")
        ->type_name("NUMBER")
        ->check(CLI::NonNegativeNumber.description(""))
        ->capture_default_str();
    AddFolderFilter(*command, arguments->folders);
    AddStdinName(*command, arguments->stdinName);
    AddAllowExternal(*command, arguments->allowExternal);
    command->footer(Footer());
    return {command, [arguments] { return CheckRun(*arguments).Run(); }};
}
