#include "records/student_form_add.h"

#include <algorithm>

#include "platform/dialogs.h"
#include "records/name_order.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {

std::string gNewStudentName;

namespace {

constexpr int kWidth = 520;  // pixels

}  // namespace

bool NameIsTaken(const std::string& name, const std::vector<std::string>& items) {
  const std::string wanted = NameInUpperCase(Trimmed(name));
  return std::any_of(items.begin(), items.end(), [&](const std::string& item) {
    return NameInUpperCase(Trimmed(StudentNameOf(item))) == wanted;
  });
}

AddStudentForm::AddStudentForm(const std::string& caption, const std::string& prompt,
                               const std::string& name, std::vector<std::string> takenItems)
    : takenItems_(std::move(takenItems)),
      dialog_("frmAddStudent", "txtName", kWidth, caption, prompt) {
  dialog_.textBox.SetAccessibleName(prompt);
  dialog_.textBox.SetText(name);
  dialog_.AskAgain();
  dialog_.cmdOK.OnClick = [this] { cmdOK_Click(); };
  dialog_.cmdCancel.OnClick = [this] { cmdCancel_Click(); };
}

void AddStudentForm::cmdOK_Click() {
  gNewStudentName = Trimmed(dialog_.textBox.Text());
  if (NameIsTaken(gNewStudentName, takenItems_)) {
    platform::MessageBox({.text = "Another student already has the name \"" + gNewStudentName +
                                  "\".\n\nPlease try another name.",
                          .title = dialog_.form.Caption(),
                          .icon = platform::Icon::Warning});
    dialog_.AskAgain();
    return;
  }
  session.gDialogResult = kTrue;
  dialog_.form.Close();
}

void AddStudentForm::cmdCancel_Click() {
  session.gDialogResult = 0;
  dialog_.form.Close();
}

}  // namespace course
