// The texts in the DLL's version resource are those that the module gives.
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/TestSupport.h"

namespace {

TEST(VersionResource, HoldsTheTextsOfTheModule)
{
    std::vector<char> resource(GetFileVersionInfoSizeA(LIBRARY_PATH, nullptr));
    ASSERT_TRUE(GetFileVersionInfoA(LIBRARY_PATH, 0, static_cast<DWORD>(resource.size()), resource.data()));
    const auto text = [&](const std::string& name) -> std::string {
        void* value = nullptr;
        UINT length = 0;
        return VerQueryValueA(resource.data(), ("\\StringFileInfo\\040904B0\\" + name).c_str(), &value,
                              &length)
                   ? static_cast<const char*>(value)
                   : "no " + name;
    };
    const std::string version = TalAttributeSchemaReader_get_module_info(1);
    EXPECT_EQ(text("FileDescription"), TalAttributeSchemaReader_get_module_info(0));
    EXPECT_EQ(text("FileVersion"), version);
    EXPECT_EQ(text("ProductVersion"), version);
    EXPECT_EQ(text("OriginalFilename"), "TalAttributeSchemaReader.dll");
    const std::string line = TalAttributeSchemaReader_get_module_info(2);
    const std::string notice = text("LegalCopyright");
    EXPECT_EQ(line.substr(line.size() - notice.size()), notice);
    const std::string comments = text("Comments"); // "More informations on SITE; built on MACHINE"
    EXPECT_NE(line.find(comments.substr(0, comments.find(';'))), std::string::npos) << comments;
    EXPECT_NE(line.find(comments.substr(comments.find("built on"))), std::string::npos) << comments;

    void* value = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(resource.data(), "\\", &value, &length));
    const auto* fixed = static_cast<const VS_FIXEDFILEINFO*>(value);
    EXPECT_EQ(version.rfind(std::to_string(HIWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(LOWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(HIWORD(fixed->dwFileVersionLS)) + ".",
                            0),
              0u);
}

} // namespace
