#include "tools/talschema/TextFile.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#include "TalAttributeSchemaHost/text/Utf8.h"
#include "tools/talschema/terminal/Messages.h"
#include "tools/talschema/terminal/Text.h"

namespace fs = std::filesystem;

std::string ReadTextFile(const std::string& name)
{
    const fs::path path = fs::u8path(name);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status))
        throw Trouble(name, std::make_error_code(std::errc::is_a_directory));
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw Trouble(ErrorMessage(name, "not a regular file"));
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(file), {});
    if (!file.is_open() || file.bad())
        throw Trouble(name, std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
    return content;
}

std::string ErrorAt(const std::string& file, std::size_t line, std::size_t column, const std::string& text)
{
    const std::string place =
        line > 0 ? ":" + std::to_string(line) + ":" + std::to_string(column) : std::string();
    return Printable(file) + place + ": error: " + Printable(text) + "\n";
}

std::string NameFrom(const fs::path& folder, const std::string& file)
{
    const fs::path path = fs::absolute(fs::u8path(file)).lexically_normal();
    const fs::path relative = path.lexically_relative(folder);
    return tal::ToUtf8(tal::FromUtf8((relative.empty() ? path : relative).generic_u8string()));
}

fs::path FolderOf(const std::string& file)
{
    return fs::absolute(fs::u8path(file)).lexically_normal().parent_path();
}
