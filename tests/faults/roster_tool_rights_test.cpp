// A folder that root has set up is used by students, each a person of the system of his own.
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <sstream>

#include "platform/record_file.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/rosters.h"
#include "roster_tool/commands.h"
#include "support/child_process.h"
#include "support/faulty_calls.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

constexpr gid_t kStudents = 100;  // Debian's group "users"
constexpr uid_t kSomebody = 54321;

class RosterToolRights : public RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    if (geteuid() != 0) GTEST_SKIP() << "only root can be somebody else";
    chmod(folder.Path().c_str(), 0755);
    folder.Put("c.csv", "class\nPeriod 1\n");
    folder.Put("s.csv", "class,student,password\nPeriod 1,Ada,ab1\n");
    session.gversion = 3;
    session.gClassNum = 1;
  }
  int Make() {
    std::ostringstream out;
    std::ostringstream err;
    const int status = roster_tool::Make({.classesCsv = folder.Path() + "c.csv",
                                          .studentsCsv = folder.Path() + "s.csv",
                                          .folder = folder.Path(),
                                          .group = getgrgid(kStudents)->gr_name,
                                          .overwrite = true},
                                         out, err);
    complaints = err.str();
    return status;
  }
  // The work's exit status as somebody of the group.
  template <class Work>
  static int As(gid_t group, Work work) {
    ChildProcess child([&] {
      if (setgroups(0, nullptr) != 0 || setgid(group) != 0 || setuid(kSomebody) != 0) return 99;
      return work();
    });
    return child.Wait();
  }
  std::string complaints;
};

TEST_F(RosterToolRights, StudentsWorkInAFolderThatRootHasMade) {
  ASSERT_EQ(Make(), 0) << complaints;
  // Somebody's results are there already, and the rosters are made anew.
  const auto work = [] {
    SaveActivityRecord("C201010115260101005005001");
    const std::string result = "C20101011526" + std::string(60, 'A');
    WriteDiagnosticRecord(result, FindDiagnosticRecord(1, 1));
    ReadStudentProgress(1, 1);
    return ReadClasses().size() == 1 && ReadStudents(1).size() == 1 ? 0 : 1;
  };
  EXPECT_EQ(As(kStudents, work), 0);
  ASSERT_EQ(Make(), 0) << complaints;
  EXPECT_EQ(As(kStudents, work), 0);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT").size(), 50U);
  EXPECT_EQ(folder.Bytes("Diag.dat").size(), 72U);
  // Passwords are nobody else's business.
  EXPECT_EQ(
      As(kSomebody, [this] { return access((folder.Path() + "STUDENTS.DAT").c_str(), R_OK); }),
      255);
}

TEST_F(RosterToolRights, LinksOfOthersAreNotFollowed) {
  folder.Put("victim", std::string(32, 'v'));
  for (const char* name : {"STUDENTS.DAT", "RECORDS.DAT"}) {
    const std::string link = folder.Path() + name;
    ASSERT_EQ(symlink("victim", link.c_str()), 0);
    ASSERT_EQ(lchown(link.c_str(), kSomebody, kStudents), 0);
    EXPECT_EQ(Make(), 1) << name;
    EXPECT_EQ(complaints, std::string(name) +
                              " is a link that 54321 has made\n"
                              "Nothing was changed.\n");
    std::filesystem::remove(link);
  }
  EXPECT_EQ(folder.Bytes("victim"), std::string(32, 'v'));
  struct stat status {};
  ASSERT_EQ(stat((folder.Path() + "victim").c_str(), &status), 0);
  EXPECT_EQ(status.st_gid, 0U);
}

// The second rename fails.
class FullAtTheEnd final : public platform::FileCalls {
 public:
  int Rename(const std::string& from, const std::string& to) override {
    return ++renames_ == 2 ? -ENOSPC : FileCalls::Rename(from, to);
  }

 private:
  int renames_ = 0;
};

TEST_F(RosterToolRights, HalfDoneRunSaysWhichFilesAreNew) {
  folder.Put("RECORDS.DAT", "");
  FullAtTheEnd calls;
  const InstalledCalls installed(calls);
  EXPECT_EQ(Make(), 1);
  EXPECT_EQ(complaints, folder.Path() +
                            ": CLASSES.DAT: No space left on device\nThe work is half done, and "
                            "has to be done again; new are Diag.dat, STUDENTS.DAT\n");
}

}  // namespace
}  // namespace course::testing
