#include "lesson_lab/new_lesson_texts.h"

#include <cctype>
#include <cstdio>

namespace lesson_lab {
namespace {

constexpr const char* kLesson = R"text(// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/lesson.h"

namespace course {
namespace {

// --- Teaching screens --------------------------------------------------------

{SCREENS}// --- The lesson --------------------------------------------------------------

class {CLASS} final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{SCREEN_NAMES}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // The numbers of one problem.
  int first_ = 0;  // 2 to 9
};

// --- Generator ---------------------------------------------------------------

void {CLASS}::DrawProblem(RandomStream& random) {
  first_ = random.Rand(2, 9);

  problem.question = {"Not written yet: what is " + NumStr(first_) + " + 1?"};
  Choices choices(problem, choice_kind::FourShuffled, NumStr);
  choices.Right(first_ + 1);
  choices.Wrong("forgets to add", first_);
  choices.Wrong("subtracts", first_ - 1);
  choices.Wrong("adds twice", first_ + 2);
}

// --- Problem page ------------------------------------------------------------

void {CLASS}::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void {CLASS}::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<{CLASS}> kRegistration("{TITLE}");

}  // namespace
}  // namespace course
)text";

constexpr const char* kScreen = R"text(void Screen{NUMBER}() {
  NewScreen();
  Say("Screen {NUMBER} is not written yet.");
  PageEnd();
}

)text";

constexpr const char* kJudge = R"text(// What is asked in "...", and how it is worked out here.
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

Reading Read{CLASS}(const course::Problem& problem) {
  throw Unreadable("the judge of \"" + problem.question.front() + "\" is not written yet");
}

const JudgeRegistration kRegistration(Read{CLASS}, {"{TITLE}"});

}  // namespace
}  // namespace lesson_check
)text";

std::string Replaced(std::string text, const std::string& mark, const std::string& by) {
  for (std::size_t at = text.find(mark); at != std::string::npos;
       at = text.find(mark, at + by.size()))
    text.replace(at, mark.size(), by);
  return text;
}

// As it stands between quotes: a byte beyond ASCII is an escape, which a digit behind it would
// prolong.
std::string Quoted(const std::string& title) {
  std::string quoted;
  bool escaped = false;
  for (const char c : title) {
    char escape[5];
    std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned>(c));
    if (escaped && std::isxdigit(c) != 0) quoted += "\" \"";
    escaped = c > '~';
    quoted += escaped ? escape : std::string(1, c);
  }
  return quoted;
}

std::string Filled(const std::string& text, const NewLesson& lesson) {
  return Replaced(Replaced(text, "{CLASS}", lesson.className), "{TITLE}", Quoted(lesson.title));
}

}  // namespace

std::string LessonText(const NewLesson& lesson) {
  std::string screens;
  std::string names;
  for (int i = 1; i <= lesson.screens; ++i) {
    screens += Replaced(kScreen, "{NUMBER}", std::to_string(i));
    names += (i == 1 ? "{Screen" : ", {Screen") + std::to_string(i) + "}";
  }
  return Filled(Replaced(Replaced(kLesson, "{SCREENS}", screens), "{SCREEN_NAMES}", names), lesson);
}

std::string JudgeText(const NewLesson& lesson) {
  return Filled(kJudge, lesson);
}

}  // namespace lesson_lab
