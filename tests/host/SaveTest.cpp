// Whose a saved file is, who may read it, and which files are not replaced.
#include <filesystem>
#include <string>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/TestSupport.h"

namespace fs = std::filesystem;

namespace {

constexpr uid_t kSomebody = 1234;
constexpr uid_t kSomebodyElse = 4321;
const std::string kOld = "the old content";

struct Access
{
    uid_t owner;
    gid_t group;
    mode_t mode;
};

class Save : public testing::Test
{
protected:
    Save() { WriteFile(m_file, kOld); }

    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can be several users";
    }

    void Set(const fs::path& file, const Access& access) const
    {
        ASSERT_EQ(lchown(file.c_str(), access.owner, access.group), 0);
        ASSERT_EQ(chmod(file.c_str(), access.mode), 0);
    }
    void ExpectAccess(const Access& expected) const
    {
        struct stat status = {};
        ASSERT_EQ(lstat(m_file.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, expected.owner);
        EXPECT_EQ(status.st_gid, expected.group);
        EXPECT_EQ(status.st_mode & 07777, expected.mode);
    }
    bool IsOld() const { return FileContent(m_file) == kOld; }

    /// Saves as the user.
    tal::SaveResult SaveAs(uid_t user, const fs::path& file, bool force = false) const
    {
        EXPECT_EQ(setegid(user), 0);
        EXPECT_EQ(seteuid(user), 0);
        CDASchema schema;
        tal::SaveOptions options;
        options.force = force;
        tal::SaveResult result = tal::SaveSchema(file, schema, options);
        EXPECT_EQ(seteuid(0), 0);
        EXPECT_EQ(setegid(0), 0);
        return result;
    }

    const TemporaryDirectory m_folder;
    const fs::path m_file = m_folder / "document.xml";
};

TEST_F(Save, KeepsOwnerGroupAndPermissions)
{
    for (const Access access :
         {Access{0, 0, 0640}, Access{kSomebody, kSomebodyElse, 0604}, Access{kSomebody, kSomebody, 06750}}) {
        Set(m_file, access);
        const tal::SaveResult result = SaveAs(0, m_file);
        EXPECT_TRUE(result) << result.error;
        EXPECT_EQ(result.note, "");
        ExpectAccess(access);
    }
}

TEST_F(Save, TellsWhatItCannotKeepAndGivesNobodyMore)
{
    Set(m_folder.Path(), {0, 0, 0777});
    const std::string note = "of the old file, these could not be kept: ";
    Set(m_file, {0, 0, 07666});
    EXPECT_EQ(SaveAs(kSomebody, m_file).note, note + "owner, group");
    ExpectAccess({kSomebody, kSomebody, 0666});

    Set(m_file, {0, kSomebody, 02664});
    EXPECT_EQ(SaveAs(kSomebody, m_file).note, note + "owner");
    ExpectAccess({kSomebody, kSomebody, 0664});

    Set(m_file, {kSomebody, 0, 06640});
    EXPECT_EQ(SaveAs(kSomebody, m_file).note, note + "group");
    ExpectAccess({kSomebody, kSomebody, 0600});
}

TEST_F(Save, ReplacesAReadOnlyFileOnlyWhenForced)
{
    Set(m_folder.Path(), {0, 0, 0777});
    Set(m_file, {0, 0, 0644});
    const tal::SaveResult refused = SaveAs(kSomebody, m_file);
    EXPECT_FALSE(refused);
    EXPECT_TRUE(refused.readOnly);
    EXPECT_EQ(refused.error, "the file is read-only");
    Set(m_file, {0, 0, 0444});
    EXPECT_TRUE(SaveAs(0, m_file).readOnly);
    EXPECT_TRUE(IsOld());

    const tal::SaveResult forced = SaveAs(0, m_file, true);
    EXPECT_TRUE(forced && !forced.readOnly && forced.note.empty());
    EXPECT_FALSE(IsOld());
    ExpectAccess({0, 0, 0444});
    EXPECT_TRUE(SaveAs(kSomebody, m_file, true));
    ExpectAccess({kSomebody, kSomebody, 0444});
}

// In the form in which the kernel takes it: version 2, then tag, permissions and number of each entry.
std::string AccessList(char permissionsOfSomebody)
{
    const auto entry = [](char tag, char permissions, uid_t user) {
        return std::string{tag, '\0', permissions, '\0'} +
               std::string(reinterpret_cast<const char*>(&user), sizeof user);
    };
    constexpr uid_t none = uid_t(-1);
    return std::string("\2\0\0\0", 4) + entry(1, 6, none) + entry(2, permissionsOfSomebody, kSomebody) +
           entry(4, 0, none) + entry(16, 6, none) + entry(32, 0, none);
}

TEST_F(Save, KeepsTheAccessListAndTakesNoneFromTheFolder)
{
    const auto set = [](const fs::path& file, const char* name, const std::string& list) {
        return setxattr(file.c_str(), name, list.data(), list.size(), 0) == 0;
    };
    const auto current = [&] {
        std::string list(1000, '\0');
        const ssize_t size = getxattr(m_file.c_str(), "system.posix_acl_access", list.data(), list.size());
        return size < 0 ? std::string() : list.substr(0, static_cast<std::size_t>(size));
    };
    if (!set(m_folder.Path(), "system.posix_acl_default", AccessList(7)))
        GTEST_SKIP() << "no access lists here";
    ASSERT_EQ(chmod(m_file.c_str(), 0640), 0);
    EXPECT_TRUE(SaveAs(0, m_file));
    EXPECT_FALSE(IsOld());
    EXPECT_EQ(current(), "");

    ASSERT_TRUE(set(m_file, "system.posix_acl_access", AccessList(4)));
    const tal::SaveResult result = SaveAs(0, m_file);
    EXPECT_EQ(result.note, "");
    EXPECT_EQ(current(), AccessList(4));
}

TEST_F(Save, FollowsALinkUnlessSomebodyElseMayHavePutItThere)
{
    Set(m_folder.Path(), {0, 0, 01777});
    const fs::path link = m_folder / "link.xml";
    fs::create_symlink(m_file, link);
    ASSERT_EQ(lchown(link.c_str(), kSomebodyElse, kSomebodyElse), 0);
    EXPECT_EQ(SaveAs(0, link).error, "Permission denied");
    EXPECT_TRUE(IsOld());
    ASSERT_EQ(lchown(link.c_str(), 0, 0), 0);
    EXPECT_TRUE(SaveAs(0, link));
    EXPECT_FALSE(IsOld());
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(Save, LeavesOtherNamesOfTheOldFileAlone)
{
    fs::create_hard_link(m_file, m_folder / "other.xml");
    EXPECT_TRUE(SaveAs(0, m_file));
    EXPECT_FALSE(IsOld());
    EXPECT_EQ(FileContent(m_folder / "other.xml"), kOld);
}

TEST_F(Save, AsksAtTheLastMoment)
{
    const TemporaryDirectory folder;
    WriteFile(folder / "a.xml", "old");
    tal::SaveOptions options;
    options.onlyIf = [&] { return FileContent(folder / "a.xml") == "old"; };
    EXPECT_TRUE(tal::SaveBytes(folder / "a.xml", std::string_view("n\0w", 3), options));
    const tal::SaveResult changed = tal::SaveBytes(folder / "a.xml", "newer", options);
    EXPECT_EQ(changed.error, "the file has changed meanwhile");
    EXPECT_EQ(FileContent(folder / "a.xml"), std::string("n\0w", 3));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

} // namespace
