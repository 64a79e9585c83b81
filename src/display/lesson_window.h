// The lesson window with all its controls, and the cell grid's constants.
//
// One exists at a time: RunLesson loads it and unloads it at the end.  This class places the
// controls and gives them their looks; what they do when clicked is bound by the engine.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "display/figure_item.h"
#include "display/text_panel.h"
#include "platform/form.h"
#include "platform/picture_box.h"

namespace course {

inline constexpr int gCellWidth = 16;     // pixels a column
inline constexpr int gCellHeight = 25;    // pixels a row
inline constexpr int gLeftMargin = 16;    // pixel X of column 1 on pnlLesson
inline constexpr int gTopMargin = 5;      // pixel Y of row 2 on pnlLesson
inline constexpr int gWbLeftMargin = 16;  // pixel X of column 1 in picWiperBox
inline constexpr int gWbTopMargin = 5;    // pixel Y of row 1 in picWiperBox

// Controls of one name, numbered from first to last.
template <class T, int first, int last>
class ControlArray {
 public:
  T& operator[](int i) { return *items_.at(i - first); }
  const T& operator[](int i) const { return *items_.at(i - first); }
  static constexpr int First() { return first; }
  static constexpr int Last() { return last; }
  void Make(const std::string& name, platform::Control& parent) {
    for (int i = first; i <= last; ++i) MakeOne(i, name, parent);
  }
  template <class... Args>
  void MakeOne(int i, const std::string& name, platform::Control& parent, const Args&... args) {
    items_.at(i - first) =
        std::make_unique<T>(parent, name + "(" + std::to_string(i) + ")", args...);
  }

 private:
  std::array<std::unique_ptr<T>, last - first + 1> items_;
};

// The texts of such controls by their numbers, which begin at 1.
template <int last>
using TextPanels = std::array<std::unique_ptr<TextPanel>, last + 1>;

class LessonWindow {
 public:
  LessonWindow();
  ~LessonWindow();
  LessonWindow(const LessonWindow&) = delete;
  LessonWindow& operator=(const LessonWindow&) = delete;

  platform::Form form;

  // Surfaces.
  platform::PictureBox pnlLesson;
  platform::PictureBox picWiperBox;
  platform::PictureBox picWiperBox2;
  platform::PictureBox picTextWidth;     // hidden: measures headings
  platform::PictureBox picPrintCellBox;  // print cell table, with cells and labels on it
  ControlArray<platform::PictureBox, 1, 12> picPrintCell;
  ControlArray<platform::Label, 1, 6> lblPrintCell;
  ControlArray<platform::PictureBox, 1, 5> picGraph2D;
  ControlArray<platform::PictureBox, 1, 5> picGalleryImage;
  ControlArray<platform::PictureBox, 1, 5> picCommentBox;
  // A note is a label in a picture box of its size, which keeps it from flashing while the panel
  // moves below.
  ControlArray<platform::PictureBox, 1, 5> picNotes;
  ControlArray<platform::Label, 1, 5> lblNotes;
  ControlArray<platform::PictureBox, 1, 5> picAnswer;

  // Text on them.
  TextPanel lessonText;
  TextPanel wiperText;
  TextPanel wiperText2;
  TextPanels<12> cellText;
  TextPanels<5> commentText;
  TextPanels<5> noteText;  // where the label shows it
  TextPanels<5> answerText;
  // What picGraph2D(1) to (5) show.
  std::array<std::vector<FigureItem>, 6> figureItems;

  // Answers.
  platform::Label lblSelect;
  ControlArray<platform::Button, 0, 4> cmdAnswer;  // hidden: the boxes are the way to choose

  // Navigation.
  platform::Frame fraNav;
  ControlArray<platform::PictureBox, 1, 4> picNav;
  ControlArray<platform::Button, 0, 10> cmdNavigate;
  platform::PictureBox picScreenBox;
  ControlArray<platform::PictureBox, 1, 9> picScreenNum;
  platform::Frame fraAnimSpeed;
  ControlArray<platform::OptionButton, 1, 3> optAnimSpeed;

  // Rules and hints.
  platform::Button cmdShowRulesandReminders;
  platform::Button cmdShowRulesAndHints;
  platform::PictureBox picRules1;  // a list of rules that a script may fill and show
  platform::Label lblRules1;
  platform::ListBox lstRules1;
  platform::Button cmdHidden;  // where the keyboard goes when it comes to the list

  // Status.
  platform::Label lblScreenNumber;
  platform::Label lblPracticeResults;
  platform::Label lblTestProbNo1;
  platform::Label lblTestProbNo2;
  platform::Label lblStudent;

  // Menu.
  platform::MenuItem* mnuFileRestart = nullptr;
  platform::MenuItem* mnuFileReturn = nullptr;
  platform::MenuItem* mnuFileExit = nullptr;
  platform::MenuItem* mnuHelpProgramOverview = nullptr;
  platform::MenuItem* mnuHelpTechSupport = nullptr;
  platform::MenuItem* mnuHelpAbout = nullptr;

  int ready = 0;  // flag: the window is shown

  // The lesson panel as it was under the last transparent image; empty before the first one.
  struct PanelCopy {
    platform::Surface picture;
    std::vector<Fragment> transcript;
  };
  std::unique_ptr<PanelCopy> pnlLessonCopy;

  std::unique_ptr<platform::Form> frmRulesAndHints;  // empty while it is closed

  // Gives tab 1 to 4 its selected or its plain look.
  void ShowTab(int index, bool selected);

 private:
  void PlacePanels();
  void PlaceAnswers();
  void PlaceTable();
  void PlaceBoxes();
  void PlaceNavigation();
  void PlaceRules();
  void PlaceStatus();
  void MakeMenus();
};

// The loaded window; empty between lessons.
extern std::unique_ptr<LessonWindow> frmPR;

}  // namespace course
