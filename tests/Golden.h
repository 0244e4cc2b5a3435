// Expected output that lies in a file of its own, and a way to accept a new one.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

/// Expects `actual` to be what the file holds. With `TAL_ACCEPT` set in the environment a file that differs
/// is rewritten, or made; the test fails even so, because nobody has looked at the change yet.
inline void ExpectGolden(const std::filesystem::path& file, const std::string& actual)
{
    const std::string expected = FileContent(file);
    const char* const accept = std::getenv("TAL_ACCEPT");
    if (!accept || !*accept) {
        EXPECT_TRUE(exists(file)) << file;
        EXPECT_EQ(actual, expected) << file << ": TAL_ACCEPT=1 in the environment accepts the new content";
    } else if (actual != expected || !exists(file)) {
        WriteFile(file, actual);
        ADD_FAILURE() << file << ": accepted; look at the difference before you commit it";
    }
}

/// The cases of a folder: the names of its files up to the first dot.
inline std::set<std::string> NamesIn(const std::filesystem::path& folder)
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string file = entry.path().filename().string();
        names.insert(file.substr(0, file.find('.')));
    }
    return names;
}

/// The name of a case as a test's.
inline std::string TestName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}
