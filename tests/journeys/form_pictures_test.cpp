// Authors take pictures of all forms; what stops the program on the way is told, and leaves
// nothing.
#include <cstdio>

#include "lesson_lab/form_camera.h"
#include "platform/stop.h"
#include "support/child_process.h"
#include "support/course_fixture.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

class FormPicturesTest : public CourseTest {
 protected:
  // The exit status of a process that is stopped at a form; its complaints stand in "told".
  int StopAtAForm(const std::string& temporary) {
    ChildProcess child([&] {
      setenv("TMPDIR", temporary.c_str(), 1);
      if (std::freopen((folder.Path() + "told").c_str(), "w", stderr) == nullptr) return 99;
      const int status =
          lesson_lab::TakePictures(folder.Path() + "pictures", [](auto& camera, const auto&) {
            camera.nextName = "frmBad";
            platform::Stop("Rows: 7");
          });
      std::fflush(stderr);
      return status;
    });
    return child.Wait();
  }
  ScratchFolder folder;
};

TEST_F(FormPicturesTest, AStopNamesTheFormAndLeavesNothing) {
  std::filesystem::create_directory(folder.Path() + "temporary");
  EXPECT_EQ(StopAtAForm(folder.Path() + "temporary"), 1);
  EXPECT_EQ(folder.Bytes("told"), "frmBad: Rows: 7\n");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path() + "temporary"));
}

TEST_F(FormPicturesTest, WithoutATemporaryFolderNothingIsDone) {
  EXPECT_EQ(StopAtAForm(folder.Path() + "missing"), 1);
  EXPECT_EQ(folder.Bytes("told"), "There is no folder for temporary files; TMPDIR names one.\n");
}

}  // namespace
}  // namespace course::testing
