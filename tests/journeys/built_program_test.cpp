// The built program itself, in a process and a folder of its own: what its main function ties
// together no other test sees.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "support/child_process.h"
#include "support/scratch_folder.h"

namespace course::testing {
namespace {

// A first user enters her name and logs in, looks at all forms that other rooms hand to the menu,
// does a lesson test with its results, practises, and is logged out by the machine.  No press may
// do harm when it is repeated: a second one on the tab of the test that runs would ask a question.
constexpr const char* kFirstVisit = R"(press Command1 until cmdOK
press cmdOK until cmdStudent(1)
press cmdStudent(1) until txtName
type txtName Ada
press cmdOK until cmdStudent(1)
press cmdMenu until cmdLogin
select lstStudents 0
press cmdLogin until cmdStart
choose Manage Student Names until cmdStudent(1)
press cmdMenu until cmdStart
choose Manage Student Records until cmdMenu
press cmdMenu until cmdStart
choose See Session Records until cmdOK
press cmdOK until cmdStart
choose Manage Diagnostic Test Results until cmdMenu
press cmdMenu until cmdStart
choose Technical Support until cmdOK
press cmdOK until cmdStart
select lstChapter 9
press cmdStart until picNav(4)
press picNav(4) until lblTestProbNo1
press picAnswer(1) until cmdContinue
press cmdContinue until picNav(3)
press picNav(3) until picAnswer(1)
press picAnswer(1) until cmdOption(1)
press cmdOption(1) until picAnswer(1)
terminate
)";

// Wide enough for the lesson window, with a usual number of dots.
constexpr const char* kScreen = R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 1280,
  "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

class BuiltProgram : public ::testing::Test {
 protected:
  // Exit status, or the negated number of the signal that ended it.
  int Run(const std::string& script) {
    std::filesystem::create_directory(folder.Path() + "program");
    std::filesystem::copy_file(COURSE_PROGRAM, folder.Path() + "program/course");
    folder.Put("script", script);
    folder.Put("screen", kScreen);
    const std::string path = folder.Path() + "program/course";
    const std::string plugin = "coursedriver:" + folder.Path() + "script";
    const std::string platform = "offscreen:configfile=" + folder.Path() + "screen";
    ChildProcess program([&] {
      const int log = open((folder.Path() + "log").c_str(), O_WRONLY | O_CREAT, 0600);
      dup2(log, STDOUT_FILENO);
      dup2(log, STDERR_FILENO);
      clearenv();
      setenv("QT_QPA_PLATFORM", platform.c_str(), 1);
      setenv("QT_PLUGIN_PATH", COURSE_DRIVER, 1);
      setenv("QT_QPA_GENERIC_PLUGINS", plugin.c_str(), 1);
      setenv("HOME", folder.Path().c_str(), 1);
      execl(path.c_str(), path.c_str(), nullptr);
      return ChildProcess::kThrew;
    });
    return program.Wait();
  }
  // The fields of a record behind the date.
  std::string Work(std::size_t number) const {
    return folder.Bytes("program/RECORDS.DAT").substr((number - 1) * 25 + 12, 7);
  }

  ScratchFolder folder;
};

TEST_F(BuiltProgram, TiesTheRoomsTogetherAndSavesWhenTheMachineEndsIt) {
  EXPECT_EQ(Run(kFirstVisit), 0) << folder.Bytes("log");
  EXPECT_EQ(folder.Bytes("program/STUDENTS.DAT"), "Ada                  1 99");
  EXPECT_EQ(folder.Bytes("program/Diag.dat"), "");
  EXPECT_NE(folder.Bytes("program/sumwright-algebra1.settings"), "(none)");
  ASSERT_EQ(folder.Bytes("program/RECORDS.DAT").size(), 50u);
  EXPECT_EQ(Work(1), "1051005") << "the lesson test";
  EXPECT_EQ(Work(2), "1001001") << "the practice";
}

}  // namespace
}  // namespace course::testing
