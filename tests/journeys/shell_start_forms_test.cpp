#include "shell/start_forms.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

class StartFormsTest : public CourseTest {};

TEST_F(StartFormsTest, TheLogoClosesByItsButtonAndByEsc) {
  user.At("frmLogo").Click("Command1");
  ShowLogo();
  user.At("frmLogo").Press(27);
  ShowLogo();
}

TEST_F(StartFormsTest, TheWelcomeNamesTheCourseAndCloses) {
  user.At("frmWelcome").Do("read", [] {
    EXPECT_EQ(dynamic_cast<platform::Label&>(FindControl("lblWelcome")).Caption(),
              "Welcome to ALGEBRA 1");
  });
  user.CloseBox();
  ShowWelcome();
}

}  // namespace
}  // namespace course::testing
