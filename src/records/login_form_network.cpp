#include "records/login_form_network.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/form_parts.h"
#include "records/login_form_password.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

using namespace grid;

constexpr int kUsualPercent = 60;

// In pixels: two lists side by side, each with its heading above and what to do below.
constexpr int kColumnWidth = 384;
constexpr int kRightColumn = kMargin + kColumnWidth + kMargin;
constexpr int kListRows = 11;
constexpr int kAdviceTop = kListTop + ListHeight(kListRows) + 8;
constexpr int kAdviceHeight = 22;
constexpr int kButtonTop = kAdviceTop + kAdviceHeight + 20;
constexpr int kButtonWidth = (kColumnWidth - kGap) / 2;
constexpr int kWidth = kRightColumn + kColumnWidth + kMargin;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

}  // namespace

NetworkLoginForm::NetworkLoginForm(const std::vector<std::string>& classItems)
    : form("frmNetworkLogin", kWidth * kPixel, kHeight * kPixel),
      lblHeading_(form, "lblHeading", "Student Login"),
      lblClasses_(form, "lblClasses", "CLASSES"),
      lstClasses_(form, "lstClasses"),
      lblSelectClass_(form, "lblSelectClass", "First Select Your Class From The List Above"),
      lblStudents_(form, "lblStudents", "STUDENTS"),
      lstStudents_(form, "lstStudents"),
      lblSelectStudent_(form, "lblSelectStudent",
                        "Then Select Your Name in the Student List Above"),
      cmdLogin_(form, "cmdLogin", "&Login"),
      cmdSkip_(form, "cmdSkip", "&Skip Login") {
  form.SetCaption("Student Login");
  Place();
  ListNames(lstClasses_, classItems);
  lstClasses_.OnClick = [this] { lstClasses_Click(); };
  cmdLogin_.OnClick = [this] { cmdLogin_Click(); };
  cmdSkip_.OnClick = [this] { cmdSkip_Click(); };
  form.SetDefaultButton(cmdLogin_);
  form.SetNeutralButton(cmdSkip_);
  lstClasses_.SetFocus();
}

void NetworkLoginForm::Place() {
  PlaceHeading(lblHeading_, kWidth);
  const auto placeColumn = [](int left, platform::Label& caption, platform::ListBox& list,
                              platform::Label& advice) {
    PlaceNames(caption, list, left, kColumnWidth, kListRows);
    platform::look::MovePixels(advice, left, kAdviceTop, kColumnWidth, kAdviceHeight);
    platform::look::SetType(advice, 11);
  };
  placeColumn(kMargin, lblClasses_, lstClasses_, lblSelectClass_);
  placeColumn(kRightColumn, lblStudents_, lstStudents_, lblSelectStudent_);
  lstClasses_.SetAccessibleName("Classes");
  lstStudents_.SetAccessibleName("Students");
  PlaceButton(cmdLogin_, kRightColumn, kButtonTop, kButtonWidth);
  PlaceButton(cmdSkip_, kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth);
}

void NetworkLoginForm::lstClasses_Click() {
  session.gClassNum = ClassNumberOf(lstClasses_.Text());
  session.gTestPassPercent = ClassPercentOf(lstClasses_.Text());
  ListNames(lstStudents_, ReadStudents(session.gClassNum));
}

// The button is enabled without a selection, too: it tells what is missing.
void NetworkLoginForm::cmdLogin_Click() {
  const std::string student = lstStudents_.Text();
  if (student.empty()) {
    platform::MessageBox({.text = "You must first select a class and then\rselect your name",
                          .title = "Login Warning",
                          .icon = platform::Icon::Warning});
    return;
  }
  session.gClassName = ClassNameOf(lstClasses_.Text());
  session.gStudentName = StudentNameOf(student);
  session.gStudentNum = StudentNumberOf(student);
  if (!KnowsPassword(PasswordOf(student))) return;
  session.gRecordKeepingEnabled = 1;
  form.Close();
}

void NetworkLoginForm::cmdSkip_Click() {
  session.gClassName.clear();
  session.gStudentName.clear();
  session.gClassNum = 0;
  session.gStudentNum = 0;
  session.gRecordKeepingEnabled = 0;
  session.gTestPassPercent = kUsualPercent;  // not that of a class which was looked at
  form.Close();
}

}  // namespace course
