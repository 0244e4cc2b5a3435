// What the entry routine does for each reason, and that a loaded module stays.
#include <cstdlib>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/module/EntryRoutine.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"
#include "TalAttributeSchemaReader/platform/TalGenUtil.h"

namespace {

constexpr char kWarning[] =
    "'TalAttributeSchemaReader' dll is getting unloaded with application still running!\n";

std::string ConsoleOutput(EntryReason reason, void* reserved)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(TalAttributeSchemaReaderEntry(nullptr, reason, reserved), 1);
    return testing::internal::GetCapturedStderr();
}

TEST(EntryRoutine, WarnsOnlyWhenUnloadedFromARunningProcessAndOnlyIfAsked)
{
    int processEnds = 0;
    unsetenv("TAL_DLL_UNLOAD_WARNING");
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), "");
    setenv("TAL_DLL_UNLOAD_WARNING", "0", 1);
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), "");
    setenv("TAL_DLL_UNLOAD_WARNING", "1", 1);
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), kWarning);
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, &processEnds), "");
    for (EntryReason reason :
         {EntryReason::ProcessAttach, EntryReason::ThreadAttach, EntryReason::ThreadDetach})
        EXPECT_EQ(ConsoleOutput(reason, nullptr), "");
    unsetenv("TAL_DLL_UNLOAD_WARNING");
}

TEST(EntryRoutine, ConsoleMessagesTakeWideTextAndAreCut)
{
    testing::internal::CaptureStderr();
    TalGenWriteConsoleMessage(TalGenWarningMessage, L"100%% %d %s", 7, L"Gr\u00f6\u00dfe");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "100% 7 Gr\xC3\xB6\xC3\x9F"
                                                      "e\n");
    testing::internal::CaptureStderr();
    TalGenWriteConsoleMessage(TalGenWarningMessage, L"%s", std::wstring(5000, L'x').c_str());
    EXPECT_EQ(testing::internal::GetCapturedStderr().size(), 1024u);
}

TEST(EntryRoutine, ALoadedModuleStaysUntilTheProcessEnds)
{
    void* handle = dlopen(LIBRARY_PATH, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << dlerror();
    const auto info =
        reinterpret_cast<const char* (*)(int)>(dlsym(handle, "TalAttributeSchemaReader_get_module_info"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(dlclose(handle), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_NE(dlopen(LIBRARY_PATH, RTLD_NOW | RTLD_NOLOAD), nullptr);
    EXPECT_STREQ(info(0), "Dynamic linked library");
    EXPECT_FALSE(PinModule(nullptr)) << "no module holds it";
}

} // namespace
