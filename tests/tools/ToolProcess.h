// The built talschema as a process in a directory of its own.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/wait.h>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

struct Result
{
    int exitCode;
    std::string out;
    std::string err;
};

/// The environment may name another tool, which then is the one for Windows; it runs under Wine, which knows
/// nothing of POSIX's links, permissions, limits and terminals.
inline bool ToolIsForWindows()
{
    return std::getenv("TALSCHEMA") != nullptr;
}

class Talschema : public testing::Test
{
protected:
    /// Runs a shell command in the test's directory; `talschema` and `$TALSCHEMA` in it are the tool.
    Result Run(const std::string& command) const
    {
        const std::string script = "cd '" + m_directory.Path().string() +
                                   "' && export TALSCHEMA=\"${TALSCHEMA:-" TALSCHEMA_PATH
                                   "}\" && talschema() { \"$TALSCHEMA\" \"$@\"; } && exec 2>'" +
                                   (m_output / "err").string() + "' && (" + command + ") >'" +
                                   (m_output / "out").string() + "'";
        const int status = std::system(script.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileContent(m_output / "out"),
                FileContent(m_output / "err")};
    }

    void Write(const std::string& name, const std::string& content) const
    {
        WriteFile(m_directory / name, content);
    }
    std::string Content(const std::string& name) const { return FileContent(m_directory / name); }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const std::filesystem::directory_entry& entry :
             std::filesystem::directory_iterator(m_directory.Path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    const TemporaryDirectory m_directory;

private:
    const TemporaryDirectory m_output;
};
