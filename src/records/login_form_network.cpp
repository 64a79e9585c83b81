#include "records/login_form_network.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/login_form_password.h"
#include "records/name_order.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kUsualPercent = 60;

// All in pixels: two lists side by side, each with its heading above and what to do below.
constexpr int kMargin = 24;
constexpr int kColumnWidth = 384;
constexpr int kColumnGap = 24;
constexpr int kRightColumn = kMargin + kColumnWidth + kColumnGap;
constexpr int kHeadingHeight = 30;
constexpr int kCaptionTop = kMargin + kHeadingHeight + 14;
constexpr int kListTop = kCaptionTop + 24;
constexpr int kListHeight = 11 * 27 + 4;
constexpr int kAdviceTop = kListTop + kListHeight + 8;
constexpr int kAdviceHeight = 22;
constexpr int kButtonTop = kAdviceTop + kAdviceHeight + 20;
constexpr int kButtonWidth = 200;
constexpr int kButtonHeight = 46;
constexpr int kWidth = kRightColumn + kColumnWidth + kMargin;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

void Fill(platform::ListBox& list, const std::vector<std::string>& items) {
  list.Clear();
  for (const std::string& item : InAlphabeticalOrder(items)) list.AddItem(item);
  list.SetListIndex(-1);
}

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
  PlaceButtons();
  Fill(lstClasses_, classItems);
  lstClasses_.OnClick = [this] { lstClasses_Click(); };
  cmdLogin_.OnClick = [this] { cmdLogin_Click(); };
  cmdSkip_.OnClick = [this] { cmdSkip_Click(); };
  form.SetDefaultButton(cmdLogin_);
  form.SetNeutralButton(cmdSkip_);
  lstClasses_.SetFocus();
}

void NetworkLoginForm::Place() {
  MovePixels(lblHeading_, kMargin, kMargin, kWidth - 2 * kMargin, kHeadingHeight);
  SetType(lblHeading_, 16, true);
  const auto placeColumn = [](int left, platform::Label& heading, platform::ListBox& list,
                              platform::Label& advice) {
    MovePixels(heading, left, kCaptionTop, kColumnWidth, 20);
    SetType(heading, 10);
    MovePixels(list, left, kListTop, kColumnWidth, kListHeight);
    list.SetFont("MS Sans Serif", 11);
    MovePixels(advice, left, kAdviceTop, kColumnWidth, kAdviceHeight);
    SetType(advice, 11);
  };
  placeColumn(kMargin, lblClasses_, lstClasses_, lblSelectClass_);
  placeColumn(kRightColumn, lblStudents_, lstStudents_, lblSelectStudent_);
  lstClasses_.SetAccessibleName("Classes");
  lstStudents_.SetAccessibleName("Students");
}

void NetworkLoginForm::PlaceButtons() {
  const int left = kWidth - kMargin - 2 * kButtonWidth - 12;
  MovePixels(cmdLogin_, left, kButtonTop, kButtonWidth, kButtonHeight);
  MovePixels(cmdSkip_, left + kButtonWidth + 12, kButtonTop, kButtonWidth, kButtonHeight);
  for (platform::Button* button : {&cmdLogin_, &cmdSkip_})
    button->SetFont("MS Sans Serif", 11, true);
}

void NetworkLoginForm::lstClasses_Click() {
  session.gClassNum = ClassNumberOf(lstClasses_.Text());
  session.gTestPassPercent = ClassPercentOf(lstClasses_.Text());
  Fill(lstStudents_, ReadStudents(session.gClassNum));
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
