// The dialog that asks for a student's name, frmAddStudent: for a new student and for a new name.
#pragma once

#include <string>
#include <vector>

#include "records/form_parts.h"

namespace course {

// What the dialog leaves: the name without outer blanks.  Whether it is wanted stands in
// session.gDialogResult, kTrue for OK and 0 for Cancel.
extern std::string gNewStudentName;

class AddStudentForm {
 public:
  // What the person is asked, the name that stands in the box at first, and the items of the names
  // that are taken.
  AddStudentForm(const std::string& caption, const std::string& prompt, const std::string& name,
                 std::vector<std::string> takenItems);
  void ShowModal() { dialog_.form.ShowModal(); }

 private:
  void cmdOK_Click();
  void cmdCancel_Click();

  std::vector<std::string> takenItems_;
  TextDialog dialog_;  // frmAddStudent
};

// Whether a student of these items bears the name, outer blanks and case aside.  The name counts at
// its full length while an item holds 21 characters of its own: a longer name is never taken.
bool NameIsTaken(const std::string& name, const std::vector<std::string>& items);

}  // namespace course
