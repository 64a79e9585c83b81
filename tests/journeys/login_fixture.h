// The course's start with its real login, in a fresh folder of record files.
#pragma once

#include <string>
#include <vector>

#include "records/activity_records.h"
#include "records/record_text.h"
#include "shell/login_binding.h"
#include "shell/record_hooks.h"
#include "shell_fixture.h"
#include "support/record_fixture.h"

namespace course::testing {

class LoginTest : public MenuTest {
 protected:
  void SetUp() override {
    MenuTest::SetUp();
    BindRecords(startUp);
    BindLogin(startUp);
    settings.gDataPath = folder.Path();
  }
  void TearDown() override {
    recordHooks = {};
    MenuTest::TearDown();
  }

  // A roster of this machine: the names get the numbers from 1 on.
  void PutStudents(const std::vector<std::string>& names) {
    std::string bytes;
    for (std::size_t i = 0; i < names.size(); ++i)
      bytes += Padded(names[i], 21) + Padded(std::to_string(i + 1), 2) + "99";
    folder.Put("STUDENTS.DAT", bytes);
  }
  // The program stands in a folder of its own below that of the records.
  void LoadOnNetwork() {
    std::filesystem::create_directory(folder.Path() + "station");
    settings.gDataPath = folder.Path() + "station";
    Load(3);
  }
  void PassLogo() { user.At("frmLogo").Click("Command1"); }
  void AddStudent(const std::string& name) {
    user.At("frmStudents").Click("cmdStudent(1)");
    user.At("frmAddStudent").TypeIn("txtName", name);
    user.At("frmAddStudent").Click("cmdOK");
  }

  // The names of a list, without their blanks.
  static std::vector<std::string> Names(const std::string& list) {
    const auto& box = dynamic_cast<platform::ListBox&>(FindControl(list));
    std::vector<std::string> names;
    for (int i = 0; i < box.ListCount(); ++i) names.push_back(Trimmed(box.List(i).substr(0, 25)));
    return names;
  }
  static std::string LabelText(const std::string& name) {
    return dynamic_cast<platform::Label&>(FindControl(name)).Caption();
  }

  ScratchFolder folder;
};

using Strings = std::vector<std::string>;

}  // namespace course::testing
