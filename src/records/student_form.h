// The roster of this machine, frmStudents: its students are added, renamed and deleted here.
#pragma once

#include <string>
#include <vector>

#include "platform/form.h"

namespace course {

class StudentsForm {
 public:
  StudentsForm();
  platform::Form form;  // frmStudents

 private:
  void Place();
  void Bind();

  void AddStudent();
  void EditStudent();
  void DeleteStudent();
  void EraseAllStudents();
  void Menu();
  void UpdateStudentList();
  // Add and erase-all, as far as there is something to erase.
  void OfferWithoutSelection();
  void OfferAll();
  std::vector<std::string> AllItems() const;
  std::string SelectedName() const;  // without its blanks
  int SelectedNumber() const;

  platform::Label lblHeading_;
  platform::Label lblStudents_;
  platform::ListBox lstStudents_;
  platform::Button cmdAdd_;
  platform::Button cmdEdit_;
  platform::Button cmdDelete_;
  platform::Button cmdEraseAll_;
  platform::Button cmdMenu_;
};

// Modal.
void ShowStudents();

}  // namespace course
