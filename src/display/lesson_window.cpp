#include "display/lesson_window.h"

#include <string_view>

#include "platform/look.h"

namespace course {

std::unique_ptr<LessonWindow> frmPR;

namespace {

using platform::colour::AnswerBox;
using platform::colour::Black;
using platform::colour::Blue;
using platform::colour::White;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kFormWidth = 13380;  // twips
constexpr int kFormHeight = 9900;  // twips, below the menu bar
constexpr int kPanelLeft = 1500;   // twips
constexpr int kPanelTop = 60;
constexpr int kPanelWidth = 10080;
constexpr int kPanelHeight = 8835;
constexpr int kPixel = platform::TwipsPerPixelX;

const TextPanel::Layout kLessonLayout = {.leftMargin = gLeftMargin,
                                         .topMargin = gTopMargin,
                                         .firstRow = 2,
                                         .characters = CharacterSet::LessonWindow,
                                         .restoredColour = White};
const TextPanel::Layout kWiperLayout = {.leftMargin = gWbLeftMargin,
                                        .topMargin = gWbTopMargin,
                                        .firstRow = 1,
                                        .characters = CharacterSet::WiperBox,
                                        .restoredColour = Black};
const TextPanel::Layout kCommentLayout = {.characters = CharacterSet::CommentBox};
// Cells and notes hold one text anywhere, in a face with widths of its own.
const TextPanel::Layout kLabelLayout = {.characters = CharacterSet::CommentBox};
const TextPanel::Layout kAnswerLayout = {.characters = CharacterSet::AnswerBox};

constexpr std::string_view kTabPictures[] = {"", "lesson", "examples", "practice", "test"};
constexpr const char* kTabNames[] = {"", "Lesson concept", "See examples", "Practice problems",
                                     "Lesson test"};

// Slots of the navigation row under the panel, in twips.
constexpr int kNavTop = 9060;
constexpr int kNavWidth = 1980;
constexpr int kNavHeight = 660;
constexpr int kBeginLeft = 3600;
constexpr int kContinueLeft = 5805;
constexpr int kEndLeft = 8010;

struct NavButton {
  const char* picture;  // "" : the caption is shown
  const char* name;     // the caption, or what a screen reader says of the picture
  int left;
};
constexpr NavButton kNavButtons[] = {
    {"nav_previous_screen", "Previous screen", kBeginLeft},
    {"nav_next_screen", "Next screen", kEndLeft},
    {"nav_continue", "Continue", kContinueLeft},
    {"", "Return to Menu", 11400},
    {"nav_first_screen", "First screen", 1500},
    {"nav_end_example", "End example", kEndLeft},
    {"nav_end_explanation", "End explanation", kEndLeft},
    {"nav_end_explanation", "End explanation", kEndLeft},
    {"nav_begin_example", "Begin example", kBeginLeft},
    {"nav_begin_explanation", "Begin explanation", kBeginLeft},
    {"nav_begin_explanation", "Begin explanation", kBeginLeft},
};

}  // namespace

LessonWindow::LessonWindow()
    : form("frmPR", kFormWidth, kFormHeight),
      pnlLesson(form, "pnlLesson"),
      picWiperBox(form, "picWiperBox"),
      picWiperBox2(form, "picWiperBox2"),
      picTextWidth(form, "picTextWidth"),
      picPrintCellBox(form, "picPrintCellBox"),
      lessonText(pnlLesson, kLessonLayout),
      wiperText(picWiperBox, kWiperLayout),
      wiperText2(picWiperBox2, kWiperLayout),
      lblSelect(form, "lblSelect"),
      fraNav(form, "fraNav"),
      picScreenBox(form, "picScreenBox"),
      fraAnimSpeed(form, "fraAnimSpeed", "Animation"),
      cmdShowRulesandReminders(form, "cmdShowRulesandReminders"),
      cmdShowRulesAndHints(form, "cmdShowRulesAndHints", "    Show         Hints"),
      picRules1(form, "picRules1"),
      lblRules1(picRules1, "lblRules1"),
      lstRules1(picRules1, "lstRules1"),
      cmdHidden(picRules1, "cmdHidden"),
      lblScreenNumber(form, "lblScreenNumber"),
      lblPracticeResults(form, "lblPracticeResults"),
      lblTestProbNo1(form, "lblTestProbNo1"),
      lblTestProbNo2(form, "lblTestProbNo2"),
      lblStudent(form, "lblStudent") {
  PlacePanels();
  PlaceBoxes();
  PlaceAnswers();
  PlaceNavigation();
  PlaceRules();
  PlaceStatus();
  MakeMenus();
}

LessonWindow::~LessonWindow() = default;

void LessonWindow::PlacePanels() {
  pnlLesson.BackColor = Blue;
  pnlLesson.Move(kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight);
  pnlLesson.SetAccessibleName("Lesson");
  pnlLesson.Cls();
  lessonText.erases = true;
  lessonText.eraseColour = Blue;
  for (TextPanel* wiper : {&wiperText, &wiperText2}) {
    wiper->erases = true;
    wiper->eraseColour = White;
    wiper->surface.SetVisible(false);
  }
  picTextWidth.SetVisible(false);
  picTextWidth.FontName = "Times New Roman";
  picTextWidth.FontSize = 18;
  picTextWidth.FontBold = true;
}

// Each kind lies over the ones made before it: comments over figures, notes over comments.
void LessonWindow::PlaceBoxes() {
  picWiperBox.SetAccessibleName("Explanation");
  PlaceTable();
  picGraph2D.Make("picGraph2D", form);
  picGalleryImage.Make("picGalleryImage", form);
  picCommentBox.Make("picCommentBox", form);
  picNotes.Make("picNotes", form);
  for (int i = 1; i <= 5; ++i) {
    picGraph2D[i].SetVisible(false);
    picGraph2D[i].SetAccessibleName("Figure " + std::to_string(i));
    picGalleryImage[i].SetVisible(false);
    picGalleryImage[i].SetAccessibleName("Picture");
    picCommentBox[i].SetVisible(false);
    picCommentBox[i].SetAccessibleName("Comment");
    commentText[i] = std::make_unique<TextPanel>(picCommentBox[i], kCommentLayout);
    noteText[i] = std::make_unique<TextPanel>(picNotes[i], kLabelLayout);
    picNotes[i].SetVisible(false);
    lblNotes.MakeOne(i, "lblNotes", picNotes[i]);
  }
}

void LessonWindow::PlaceTable() {
  picPrintCellBox.SetVisible(false);
  picPrintCellBox.SetAccessibleName("Table");
  picPrintCell.Make("picPrintCell", picPrintCellBox);
  lblPrintCell.Make("lblPrintCell", picPrintCellBox);
  for (int i = 1; i <= picPrintCell.Last(); ++i) {
    picPrintCell[i].SetAccessibleName("Cell " + std::to_string(i));
    cellText[i] = std::make_unique<TextPanel>(picPrintCell[i], kLabelLayout);
  }
}

void LessonWindow::PlaceAnswers() {
  picAnswer.Make("picAnswer", form);
  for (int i = 1; i <= 5; ++i) {
    picAnswer[i].BackColor = AnswerBox;
    picAnswer[i].SetVisible(false);
    picAnswer[i].SetTabStop(true);
    answerText[i] = std::make_unique<TextPanel>(picAnswer[i], kAnswerLayout);
  }
  cmdAnswer.Make("cmdAnswer", form);
  for (int i = 0; i <= 4; ++i) {
    const std::string letter(1, static_cast<char>('A' + i));
    cmdAnswer[i].SetCaption(letter);
    cmdAnswer[i].SetAccessibleName("Answer " + letter);
    cmdAnswer[i].SetVisible(false);
  }
  MovePixels(lblSelect, 776, 370, 108, 130);
  SetType(lblSelect, 11, true);
  lblSelect.SetAlignment(platform::Label::Align::Centre);
  lblSelect.SetVisible(false);
}

void LessonWindow::PlaceNavigation() {
  MovePixels(fraNav, 8, 4, 84, 436);
  picNav.Make("picNav", fraNav);
  for (int i = 1; i <= 4; ++i) {
    MovePixels(picNav[i], 0, (i - 1) * 112, 84, 100);
    picNav[i].BackColor = platform::colour::FormGrey;
    picNav[i].SetAccessibleName(kTabNames[i]);
    picNav[i].SetTabStop(true);
  }
  cmdNavigate.Make("cmdNavigate", form);
  for (int i = 0; i <= 10; ++i) {
    const NavButton& nav = kNavButtons[i];
    cmdNavigate[i].Move(nav.left, kNavTop, i == 3 ? 1860 : kNavWidth, kNavHeight);
    if (*nav.picture == '\0') {
      cmdNavigate[i].SetCaption(nav.name);  // read out as it stands, even when it changes
    } else {
      cmdNavigate[i].SetPicture(nav.picture);
      cmdNavigate[i].SetAccessibleName(nav.name);
    }
    cmdNavigate[i].SetVisible(i == 3);
  }
  MovePixels(picScreenBox, 100, 604, 322, 44);
  picScreenBox.BackColor = platform::colour::FormGrey;
  picScreenBox.Cls();
  picScreenBox.SetVisible(false);
  picScreenNum.Make("picScreenNum", picScreenBox);
  for (int i = 1; i <= 9; ++i) {
    MovePixels(picScreenNum[i], 0, 8, 27, 27);
    picScreenNum[i].SetVisible(false);
    picScreenNum[i].SetTabStop(true);
  }
  MovePixels(fraAnimSpeed, 780, 124, 104, 112);
  fraAnimSpeed.SetAccessibleName("Animation");
  for (int i = 1; i <= 3; ++i) {
    static constexpr const char* kCaptions[] = {"", "Slower", "Faster", "Turbo"};
    optAnimSpeed.MakeOne(i, "optAnimSpeed", fraAnimSpeed, kCaptions[i]);
    MovePixels(optAnimSpeed[i], 10, 22 + (i - 1) * 28, 90, 24);
  }
}

void LessonWindow::PlaceStatus() {
  MovePixels(lblScreenNumber, 774, 8, 112, 100);
  MovePixels(lblPracticeResults, 100, 604, 470, 44);
  MovePixels(lblTestProbNo1, 8, 476, 78, 44);
  MovePixels(lblTestProbNo2, 8, 522, 78, 36);
  MovePixels(lblStudent, 774, 330, 112, 36);
  lblTestProbNo1.SetCaption("   Test    Problem #");
  for (platform::Label* label :
       {&lblScreenNumber, &lblPracticeResults, &lblTestProbNo1, &lblTestProbNo2, &lblStudent}) {
    SetType(*label, 11, true);
    label->SetVisible(false);
  }
  for (platform::Label* label : {&lblScreenNumber, &lblTestProbNo1, &lblTestProbNo2})
    label->SetAlignment(platform::Label::Align::Centre);
  SetType(lblTestProbNo2, 18, true);
}

void LessonWindow::PlaceRules() {
  MovePixels(cmdShowRulesandReminders, 774, 252, 112, 60);
  MovePixels(cmdShowRulesAndHints, 774, 520, 112, 60);
  MovePixels(picRules1, 420, 40, 340, 240);
  picRules1.BackColor = platform::colour::FormGrey;
  picRules1.Cls();
  MovePixels(lblRules1, 10, 8, 320, 24);
  MovePixels(lstRules1, 10, 36, 320, 194);
  cmdHidden.Move(0, 0, 0, 0);
  SetType(lblRules1, 11, true);
  cmdShowRulesandReminders.SetVisible(false);
  cmdShowRulesAndHints.SetVisible(false);
  picRules1.SetVisible(false);
}

void LessonWindow::MakeMenus() {
  platform::Menu& file = form.AddMenu("&File");
  mnuFileRestart = &file.AddItem("mnuFileRestart", "&Restart Lesson");
  mnuFileReturn = &file.AddItem("mnuFileReturn", "Return to &Menu");
  mnuFileExit = &file.AddItem("mnuFileExit", "E&xit");
  platform::Menu& help = form.AddMenu("&Help");
  mnuHelpProgramOverview = &help.AddItem("mnuHelpProgramOverview", "&Program Overview");
  mnuHelpTechSupport = &help.AddItem("mnuHelpTechSupport", "&Technical Support");
  mnuHelpAbout = &help.AddItem("mnuHelpAbout", "&About");
}

void LessonWindow::ShowTab(int index, bool selected) {
  const std::string look = selected ? "_selected" : "_plain";
  picNav[index].Cls();
  picNav[index].DrawPicture("tab_" + std::string(kTabPictures[index]) + look, 0, 0);
  picNav[index].Refresh();
}

}  // namespace course
