#include "records/student_form.h"

#include "platform/dialogs.h"
#include "records/activity_records.h"
#include "records/form_parts.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "records/student_form_add.h"
#include "session/session.h"

namespace course {
namespace {

using namespace grid;

constexpr const char* kTitle = "Manage Student Names";

// In pixels: the list on the left, a column of buttons on the right.
constexpr int kListWidth = 336;
constexpr int kListRows = 12;
constexpr int kButtonLeft = kMargin + kListWidth + kMargin;
constexpr int kButtonWidth = 220;
constexpr int kWidth = kButtonLeft + kButtonWidth + kMargin;
constexpr int kHeight = kListTop + ListHeight(kListRows) + kMargin;

void Tell(const std::string& text) {
  platform::MessageBox({.text = text, .title = kTitle});
}

}  // namespace

StudentsForm::StudentsForm()
    : form("frmStudents", kWidth * kPixel, kHeight * kPixel),
      lblHeading_(form, "lblHeading", kTitle),
      lblStudents_(form, "lblStudents", "Students"),
      lstStudents_(form, "lstStudents"),
      cmdAdd_(form, "cmdStudent(1)", "&Add Student"),
      cmdEdit_(form, "cmdStudent(2)", "&Edit Student Name"),
      cmdDelete_(form, "cmdStudent(3)", "&Delete Student"),
      cmdEraseAll_(form, "cmdStudent(4)", "E&rase All Students"),
      cmdMenu_(form, "cmdMenu", "Return to &Menu") {
  form.SetCaption(kTitle);
  Place();
  Bind();
  UpdateStudentList();
}

void StudentsForm::Place() {
  PlaceHeading(lblHeading_, kWidth);
  PlaceNames(lblStudents_, lstStudents_, kMargin, kListWidth, kListRows);
  lstStudents_.SetAccessibleName("Students");
  int top = kListTop;
  for (platform::Button* button : {&cmdAdd_, &cmdEdit_, &cmdDelete_, &cmdEraseAll_}) {
    PlaceButton(*button, kButtonLeft, top, kButtonWidth);
    top += kButtonHeight + kGap;
  }
  PlaceButton(cmdMenu_, kButtonLeft, kHeight - kMargin - kButtonHeight, kButtonWidth);
}

void StudentsForm::Bind() {
  lstStudents_.OnClick = [this] { OfferAll(); };
  cmdAdd_.OnClick = [this] { AddStudent(); };
  cmdEdit_.OnClick = [this] { EditStudent(); };
  cmdDelete_.OnClick = [this] { DeleteStudent(); };
  cmdEraseAll_.OnClick = [this] { EraseAllStudents(); };
  cmdMenu_.OnClick = [this] { Menu(); };
  form.SetDefaultButton(cmdAdd_);
  form.SetNeutralButton(cmdMenu_);
}

void StudentsForm::AddStudent() {
  AddStudentForm dialog("Add Student", "In the box below, enter name of student to add", "",
                        AllItems());
  dialog.ShowModal();
  if (session.gDialogResult != kTrue || gNewStudentName.empty()) return;
  FileAddStudent(gNewStudentName);
  UpdateStudentList();
}

void StudentsForm::EditStudent() {
  if (lstStudents_.ListIndex() < 0) return Tell("You must select a student from the class roster.");
  const std::string oldName = SelectedName();
  const int number = SelectedNumber();
  AddStudentForm dialog("Edit Student Name",
                        "In the box below, enter new name of student: " + oldName, oldName,
                        AllItems());
  dialog.ShowModal();
  if (session.gDialogResult != kTrue || gNewStudentName.empty()) return;
  FileEditStudent(number, gNewStudentName);
  UpdateStudentList();
}

void StudentsForm::DeleteStudent() {
  if (lstStudents_.ListIndex() < 0)
    return Tell("You must select a student to delete from the class roster.");
  const int number = SelectedNumber();
  if (!IsSure(kTitle, SelectedName() + "\n\nAre you sure you want to delete this student?")) {
    lstStudents_.SetListIndex(-1);
    return OfferWithoutSelection();
  }
  EraseStudentRecords(number, EraseMode::OneStudent);
  FileDeleteStudent(number, DeleteMode::OneStudent);
  UpdateStudentList();
}

void StudentsForm::EraseAllStudents() {
  if (!IsSure(kTitle, "Are you sure you want to clear ALL student names?")) return;
  EraseStudentRecords(0, EraseMode::All);
  FileDeleteStudent(0, DeleteMode::All);
  UpdateStudentList();
}

void StudentsForm::Menu() {
  form.Close();
}

void StudentsForm::UpdateStudentList() {
  ListNames(lstStudents_, StudentListItems());
  OfferWithoutSelection();
}

void StudentsForm::OfferWithoutSelection() {
  cmdEdit_.SetEnabled(false);
  cmdDelete_.SetEnabled(false);
  cmdEraseAll_.SetEnabled(lstStudents_.ListCount() > 0);
}

void StudentsForm::OfferAll() {
  for (platform::Button* button : {&cmdEdit_, &cmdDelete_, &cmdEraseAll_}) button->SetEnabled(true);
}

std::vector<std::string> StudentsForm::AllItems() const {
  std::vector<std::string> items;
  for (int i = 0; i < lstStudents_.ListCount(); ++i) items.push_back(lstStudents_.List(i));
  return items;
}

std::string StudentsForm::SelectedName() const {
  return Trimmed(StudentNameOf(lstStudents_.Text()));
}

int StudentsForm::SelectedNumber() const {
  return StudentNumberOf(lstStudents_.Text());
}

void ShowStudents() {
  StudentsForm().form.ShowModal();
}

}  // namespace course
