// What the entry routine does for each reason, and that a loaded module stays.
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/module/EntryRoutine.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"
#include "TalAttributeSchemaReader/platform/TalGenUtil.h"
#include "tests/TestPlatform.h"

namespace {

constexpr char kWarningSwitch[] = "TAL_DLL_UNLOAD_WARNING";
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
    SetEnvironment(kWarningSwitch, "");
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), "");
    SetEnvironment(kWarningSwitch, "0");
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), "");
    SetEnvironment(kWarningSwitch, "1");
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, nullptr), kWarning);
    EXPECT_EQ(ConsoleOutput(EntryReason::ProcessDetach, &processEnds), "");
    for (EntryReason reason :
         {EntryReason::ProcessAttach, EntryReason::ThreadAttach, EntryReason::ThreadDetach})
        EXPECT_EQ(ConsoleOutput(reason, nullptr), "");
    SetEnvironment(kWarningSwitch, "");
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

// What the console shows while a host lets the module go.
std::string UnloadOutput(LoadedModule module, int times)
{
    testing::internal::CaptureStderr();
    SetEnvironment(kWarningSwitch, "1");
    for (int i = 0; i < times; ++i)
        UnloadModule(module);
    SetEnvironment(kWarningSwitch, "");
    return testing::internal::GetCapturedStderr();
}

TEST(EntryRoutine, ALoadedModuleStaysUntilTheProcessEnds)
{
    const LoadedModule module = LoadModule(LIBRARY_PATH);
    ASSERT_NE(module, nullptr);
    const auto info = ModuleFunction<const char*(int)>(module, "TalAttributeSchemaReader_get_module_info");
    EXPECT_EQ(UnloadOutput(module, 5), "") << "more often than it took it in";
    EXPECT_TRUE(IsModuleLoaded(LIBRARY_PATH));
    EXPECT_STREQ(info(0), "Dynamic linked library");
    EXPECT_FALSE(PinModule(nullptr)) << "no module holds it";
}

TEST(EntryRoutine, AModuleThatCouldNotBePinnedIsUnloadedWithAWarning)
{
    const LoadedModule module = LoadModule(UNPINNABLE_MODULE_PATH);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(UnloadOutput(module, 1), kWarning);
    EXPECT_FALSE(IsModuleLoaded(UNPINNABLE_MODULE_PATH));
}

TEST(EntryRoutine, AModuleThatCouldNotBePinnedLeavesWithItsProcessInSilence)
{
    const auto leave = [](bool unload) {
        SetEnvironment(kWarningSwitch, "1");
        const LoadedModule module = LoadModule(UNPINNABLE_MODULE_PATH);
        if (unload)
            UnloadModule(module);
        std::exit(module ? 0 : 1);
    };
    EXPECT_EXIT(leave(false), testing::ExitedWithCode(0), "^$");
    EXPECT_EXIT(leave(true), testing::ExitedWithCode(0), "getting unloaded");
}

} // namespace
