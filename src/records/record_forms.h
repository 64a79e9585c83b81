// The records of this machine's students, frmRecords: looked at, printed and erased for one student
// or for all; and the percent at which a test is passed.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "platform/form.h"

namespace course {

class RecordsForm {
 public:
  // Loading sets the sort order back to names, and the passing percent to the first option's.
  // showPassPercent is called after every change of session.gTestPassPercent.
  explicit RecordsForm(std::function<void()> showPassPercent);
  platform::Form form;  // frmRecords

 private:
  enum Command { Display = 0, Print = 1, Erase = 2 };
  using Buttons = std::array<std::unique_ptr<platform::Button>, 3>;

  void PlaceList();
  void PlaceButtons(platform::Frame& frame, Buttons& buttons, const char* name,
                    const std::array<const char*, 3>& captions, const char* whose);
  void PlacePercents();
  void PlaceMenu();
  void Bind();

  void DisplayAll();
  void DisplayRecords();
  void EraseAll();
  void EraseRecords();
  void PrintAll();
  void PrintRecords();
  void optTestPassingPercent_Click(int index);
  void ListStudents();
  void OfferSelected(bool offered);

  std::function<void()> showPassPercent_;
  platform::Label lblHeading_;
  platform::Label lblStudents_;
  platform::ListBox lstStudents_;
  platform::Frame fraAll_;
  platform::Frame fraSelected_;
  Buttons cmdAll_;
  Buttons cmdSelected_;
  platform::Frame fraTestPassingPercent_;
  std::array<std::unique_ptr<platform::OptionButton>, 5> optTestPassingPercent_;
  std::unique_ptr<platform::Button> cmdMenu_;
};

// Modal.
void ShowRecords(std::function<void()> showPassPercent);

}  // namespace course
