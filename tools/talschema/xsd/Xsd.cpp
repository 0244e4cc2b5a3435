#include "tools/talschema/xsd/Xsd.h"

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/xsd/Program.h"
#include "tools/talschema/xsd/XsdText.h"

namespace fs = std::filesystem;

namespace {

/// The schema that was installed together with this program.
std::string InstalledSchema()
{
    const fs::path program = ProgramPath();
    const fs::path schema =
        (program.parent_path() / fs::u8path(TAL_SHARED_FILES) / "attribute-schema.xsd").lexically_normal();
    std::error_code error;
    if (program.empty() || !fs::is_regular_file(schema, error))
        throw Trouble(
            "talschema: error: no schema is installed beside this program; \"talschema xsd\" prints "
            "it\n");
    return schema.u8string();
}

int Xsd(bool path)
{
    Print(path ? InstalledSchema() + "\n" : std::string(reinterpret_cast<const char*>(kXsdText), kXsdSize));
    return kExitFine;
}

} // namespace

Command AddXsdCommand(CLI::App& app)
{
    const auto path = std::make_shared<bool>(false);
    CLI::App* command = app.add_subcommand("xsd", "Print the format as an XML Schema, for editors");
    command->add_flag("--path", *path,
                      "Print where the installed schema is; an XML catalog stands beside it");
    return {command, [path] { return Xsd(*path); }};
}
