#include "tools/talschema/input/Input.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <istream>
#include <system_error>
#include <vector>

#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Messages.h"

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kMostBytes = std::uint64_t{1024} * 1024 * 1024;
constexpr std::size_t kBlock = std::size_t{64} * 1024;

std::string Text(int error)
{
    return std::error_code(error, std::generic_category()).message();
}

void ReadAll(std::istream& stream, Input& input)
{
    std::string bytes;
    std::vector<char> block(kBlock);
    errno = 0;
    while (stream.read(block.data(), static_cast<std::streamsize>(block.size())) || stream.gcount() > 0) {
        bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > kMostBytes) { // a device may never end
            input.failure = "more than 1 GiB";
            return;
        }
    }
    if (stream.bad())
        input.failure = Text(errno != 0 ? errno : EIO);
    else
        input.bytes = std::move(bytes);
}

/// Pipes that a shell names, and devices: what cannot be opened twice, or is no file.
bool IsStream(const fs::path& file)
{
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (error)
        return false;
    return fs::is_fifo(status) || (fs::is_character_file(status) && file.u8string().rfind("/dev/", 0) == 0);
}

} // namespace

Input OpenInput(const std::string& argument, const std::string& stdinName)
{
    Input input;
    input.name = argument;
    if (argument == "-") {
        input.name = stdinName;
        if (const std::error_code state = StateOfInput())
            input.failure = state.message();
        else
            ReadAll(std::cin, input);
        return input;
    }
    return IsStream(fs::u8path(argument)) ? ReadInput(argument) : input;
}

Input ReadInput(const std::string& file)
{
    Input input;
    input.name = file;
    errno = 0;
    std::ifstream stream(fs::u8path(file), std::ios::binary);
    if (stream)
        ReadAll(stream, input);
    else
        input.failure = Text(errno != 0 ? errno : EIO);
    return input;
}

void AddStdinName(CLI::App& command, std::string& name)
{
    name = "<stdin>";
    command
        .add_option("--stdin-name", name,
                    "What to call the standard input; its document stands beside a file of that name")
        ->type_name("NAME");
}

void ExpectOneStandardInput(const std::vector<std::string>& arguments)
{
    if (std::count(arguments.begin(), arguments.end(), "-") > 1)
        throw Trouble("talschema: error: the standard input can be read once only\n");
}

tal::Finding UnreadableFile(const std::string& name, const std::string& reason)
{
    tal::Finding finding;
    finding.id = tal::FindingId::UnreadableFile;
    finding.file = name;
    finding.subject = name;
    finding.message = reason;
    return finding;
}
