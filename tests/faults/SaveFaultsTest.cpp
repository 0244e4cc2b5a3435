// What is left of a document when a rewrite is killed, interrupted or attacked, or a call to the system
// fails.
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <map>
#include <random>
#include <system_error>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

#include "tests/tools/ToolProcess.h"
#include "tools/talschema/terminal/Messages.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {

constexpr uid_t kSomebody = 1234;
constexpr uid_t kAttacker = 4321;
const std::vector<std::string> kOnlyTheDocument = {"document.xml"};

/// How a rewrite goes: the new file has a name from the start, or others may write to the folder.
struct Way
{
    const char* name;
    bool named;
    bool shared;
    int mostHidden; // moments at which a kill leaves something hidden
    int signal;     // that is tried besides it
    int error;      // that calls fail with, besides EINTR
};

constexpr Way kWays[] = {{"without a name", false, false, 1, SIGINT, EIO},
                         {"without a name, shared folder", false, true, 6, SIGTERM, ENOSPC},
                         {"named", true, false, 100, SIGTERM, EIO},
                         {"named, shared folder", true, true, 100, SIGHUP, ENOSPC}};

class SaveFaults : public Talschema
{
protected:
    /// The document that is rewritten in place. Its rewrite differs, by white space at least.
    void Use(const std::string& document)
    {
        m_old = document;
        Reset();
        ASSERT_EQ(Wait(Start()), 0);
        m_new = Content("document.xml");
        ASSERT_NE(m_new, m_old);
    }

    /// A document that takes a while.
    void UseLargeDocument(int attributes)
    {
        std::string document = "<Model><AttributeDefinition><Attributes>";
        for (int i = 0; i < attributes; ++i)
            document += "<Attribute ID='A_" + std::to_string(i) + "' Label='Peak temperature'/>";
        Use(document + "</Attributes></AttributeDefinition></Model>");
    }

    void Reset() const
    {
        for (const std::string& name : Names())
            fs::remove_all(m_directory / name);
        Write("document.xml", m_old);
        fs::permissions(m_directory / "document.xml", fs::perms(0640));
        // So that there is an owner to keep.
        ASSERT_TRUE(geteuid() != 0 ||
                    chown((m_directory / "document.xml").c_str(), kSomebody, kSomebody) == 0);
    }

    /// Rewrites the document in a process.
    pid_t Start(const std::vector<std::string>& environment = {}) const
    {
        const pid_t process = fork();
        if (process < 0) // which is everybody to whoever sends a signal
            throw std::system_error(errno, std::generic_category());
        if (process > 0)
            return process;
        for (const std::string& variable : environment)
            putenv(const_cast<char*>(variable.c_str()));
        if (chdir(m_directory.Path().c_str()) == 0 && freopen((m_reports / "err").c_str(), "w", stderr))
            execl(TALSCHEMA_PATH, TALSCHEMA_PATH, "rewrite", "-q", "document.xml", "document.xml", nullptr);
        _exit(127);
    }

    /// The same with something happening at a call to the system.
    pid_t StartWithFault(const std::string& fault, int call, const Way& way) const
    {
        fs::permissions(m_directory.Path(), fs::perms(way.shared ? 0777 : 0755));
        fs::remove(m_reports / "call");
        Reset();
        std::vector<std::string> environment = {
            "LD_PRELOAD=" FAILING_CALLS_PATH, "ASAN_OPTIONS=verify_asan_link_order=0",
            "FAULT_REPORT=" + (m_reports / "call").string(), "FAULT_CALL=" + std::to_string(call), fault};
        if (way.named)
            environment.push_back("FAULT_NO_TMPFILE=1");
        return Start(environment);
    }

    /// The name of the call at which it happened, or nothing when there were fewer calls.
    std::string Call() const { return FileContent(m_reports / "call"); }
    std::string Message() const { return FileContent(m_reports / "err"); }

    static int Wait(pid_t process)
    {
        int status = 0;
        EXPECT_EQ(waitpid(process, &status, WUNTRACED), process);
        return status;
    }

    bool IsOld() const { return Content("document.xml") == m_old; }
    bool IsNew() const { return Content("document.xml") == m_new; }
    bool IsAlone() const { return Names() == kOnlyTheDocument; }

private:
    std::string m_old;
    std::string m_new;
    const TemporaryDirectory m_reports;
};

bool Succeeded(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == kExitFine;
}

bool Failed(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == kExitTrouble;
}

int Sum(const std::map<std::string, int>& counts)
{
    int sum = 0;
    for (const auto& [name, count] : counts)
        sum += count;
    return sum;
}

TEST_F(SaveFaults, AnyFailureOfACallLeavesTheOldDocumentOrTheNewOne)
{
    Use(FileContent(fs::path(PROJECT_ROOT) / "examples/bracket.xml"));
    std::map<std::string, int> failures;
    std::map<std::string, int> kept;
    for (const Way& way : kWays) {
        for (const int error : {way.error, EINTR}) {
            for (int call = 1;; ++call) {
                const int status = Wait(StartWithFault("FAULT_ERRNO=" + std::to_string(error), call, way));
                const std::string name = Call();
                SCOPED_TRACE(name + ", call " + std::to_string(call) + ", error " + std::to_string(error) +
                             ", " + way.name + ": " + Message());
                EXPECT_TRUE((Succeeded(status) && IsNew()) || (Failed(status) && IsOld()));
                EXPECT_TRUE(Succeeded(status) || Message().find(": error: ") != std::string::npos);
                EXPECT_TRUE(IsAlone() || name == "rmdir");
                if (name.empty())
                    break;
                for (const char* retried : {"write", "pread", "fsync", "fchown", "fchmod"})
                    EXPECT_TRUE(error != EINTR || name != retried || Succeeded(status));
                ++failures[name];
                kept[name] += Failed(status);
            }
        }
    }
    for (const auto& [name, count] : failures)
        std::cout << name << " " << count << "/" << kept[name] << ", ";
    std::cout << "in all " << Sum(failures) << " failures, the old document " << Sum(kept) << " times\n";
    for (const char* name : {"open", "write", "pread", "fchmod", "fsync", "mkdir", "renameat"})
        EXPECT_GT(kept[name], 0) << name;
    EXPECT_GT(failures["linkat"], 0);
}

TEST_F(SaveFaults, ASignalAtAnyCallLeavesTheOldDocumentOrTheNewOne)
{
    Use(FileContent(fs::path(PROJECT_ROOT) / "examples/bracket.xml"));
    for (const Way& way : kWays) {
        for (const int signal : {SIGKILL, way.signal}) {
            int hidden = 0;
            int call = 1;
            for (;; ++call) {
                const int status = Wait(StartWithFault("FAULT_SIGNAL=" + std::to_string(signal), call, way));
                SCOPED_TRACE(Call() + ", call " + std::to_string(call) + ", signal " +
                             std::to_string(signal));
                EXPECT_TRUE(IsOld() || IsNew());
                EXPECT_TRUE(IsAlone() || signal == SIGKILL);
                hidden += !IsAlone();
                if (Call().empty())
                    break;
                EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal);
            }
            std::cout << way.name << ", signal " << signal << ": " << call - 1
                      << " moments, something hidden at " << hidden << "\n";
            EXPECT_LE(hidden, way.mostHidden);
        }
    }
}

TEST_F(SaveFaults, KillsLeaveTheOldDocumentOrTheNewOne)
{
    UseLargeDocument(4000);
    const char* const wanted = std::getenv("TALSCHEMA_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 60;
    Reset();
    const Clock::time_point begin = Clock::now();
    ASSERT_TRUE(Succeeded(Wait(Start())));
    std::mt19937 random(1);
    std::uniform_int_distribution<Clock::rep> moment(0, (Clock::now() - begin).count());
    for (const int signal : {SIGKILL, SIGINT, SIGTERM, SIGHUP}) {
        int killed = 0;
        int replaced = 0;
        int hidden = 0;
        const int number = signal == SIGKILL ? kills : kills / 6;
        for (int i = 0; i < number; ++i) {
            Reset();
            const pid_t process = Start();
            std::this_thread::sleep_for(Clock::duration(moment(random)));
            kill(process, signal);
            const int status = Wait(process);
            ASSERT_TRUE(IsOld() || IsNew());
            EXPECT_TRUE(IsAlone() || signal == SIGKILL);
            EXPECT_TRUE(WIFSIGNALED(status) || (Succeeded(status) && IsNew()));
            killed += WIFSIGNALED(status);
            replaced += IsNew();
            hidden += !IsAlone();
        }
        std::cout << "signal " << signal << ": " << killed << " of " << number
                  << " rewrites ended by it; the new document " << replaced << " times, something hidden "
                  << hidden << " times\n";
        EXPECT_GT(killed, 0);
    }
}

/// Somebody else's file, and what somebody does who wants it written or read.
class Attack
{
public:
    enum Kind
    {
        Link,
        OwnFolder,
        FolderOfTheVictim,
        Kinds
    };

    Attack()
    {
        WriteFile(m_victim, "private");
        fs::permissions(m_victim, fs::perms(0600));
        EXPECT_EQ(lstat(m_victim.c_str(), &m_before), 0);
    }

    /// Puts something in the place of everything hidden in the folder, which nobody else can read. Returns
    /// how often that worked.
    int Swap(const fs::path& folder, Kind kind) const
    {
        std::vector<fs::path> hidden;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            if (entry.path().filename().string()[0] == '.')
                hidden.push_back(entry.path());
        }
        EXPECT_EQ(seteuid(kAttacker), 0);
        int swaps = 0;
        for (const fs::path& path : hidden) {
            // A file in the hidden folder has the name of the folder.
            const fs::path inside = path / path.filename();
            EXPECT_FALSE(fs::is_regular_file(fs::symlink_status(path)) && std::ifstream(path).is_open());
            swaps += unlink(inside.c_str()) == 0 && symlink(m_victim.c_str(), inside.c_str()) == 0;
            const fs::path stolen = folder / "stolen";
            if (fs::exists(stolen) || rename(path.c_str(), stolen.c_str()) != 0)
                continue;
            if (kind == Link)
                swaps += symlink(m_home.Path().c_str(), path.c_str()) == 0;
            else if (kind == OwnFolder)
                swaps += mkdir(path.c_str(), 0700) == 0 && chmod(path.c_str(), 0777) == 0;
            else
                swaps += rename((folder / "shared").c_str(), path.c_str()) == 0;
        }
        EXPECT_EQ(seteuid(0), 0);
        return swaps;
    }

    void ExpectNothingDone() const
    {
        struct stat after = {};
        ASSERT_EQ(lstat(m_victim.c_str(), &after), 0);
        EXPECT_EQ(FileContent(m_victim), "private");
        EXPECT_EQ(after.st_ino, m_before.st_ino);
        EXPECT_EQ(after.st_mode, m_before.st_mode);
        EXPECT_EQ(after.st_uid, m_before.st_uid);
    }

private:
    const TemporaryDirectory m_home;
    const fs::path m_victim = m_home / "victim";
    struct stat m_before = {};
};

TEST_F(SaveFaults, WhoeverSwapsNamesAtAnyCallGetsNothing)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can be somebody else, too";
    Use(FileContent(fs::path(PROJECT_ROOT) / "examples/bracket.xml"));
    const Attack attack;
    for (const Way& way : kWays) {
        int swaps = 0;
        int refused = 0;
        int all = 0;
        for (int kind = 0; kind < (way.shared ? Attack::Kinds : 1); ++kind) {
            for (int call = 1;; ++call, ++all) {
                const pid_t process = StartWithFault("FAULT_SIGNAL=" + std::to_string(SIGSTOP), call, way);
                fs::create_directory(m_directory / "shared");
                fs::permissions(m_directory / "shared", fs::perms(0777));
                int status = Wait(process);
                if (!WIFSTOPPED(status))
                    break;
                for (; WIFSTOPPED(status); status = Wait(process)) {
                    swaps += attack.Swap(m_directory.Path(), static_cast<Attack::Kind>(kind));
                    kill(process, SIGCONT);
                }
                SCOPED_TRACE(Call() + ", call " + std::to_string(call) + ", attack " + std::to_string(kind));
                EXPECT_TRUE((Succeeded(status) && IsNew()) || (Failed(status) && IsOld())) << Message();
                EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(m_directory / "document.xml")));
                refused += Failed(status);
                attack.ExpectNothingDone();
            }
        }
        std::cout << way.name << ": " << all << " attacks, " << swaps << " names swapped, " << refused
                  << " rewrites refused\n";
        EXPECT_TRUE((swaps > 0 && refused > 0) || !way.shared);
    }
}

} // namespace
