#include "display/graphs.h"
#include "display/print_cells.h"
#include "engine/answers.h"
#include "engine/choices.h"
#include "engine/page.h"
#include "lessons/docs/docs_topics.h"
#include "lessons/page/answer_boxes.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "lessons/registry.h"
#include "mathkit/fraction.h"
#include "mathkit/tutor_codes.h"

namespace course {
namespace {

using namespace page;

constexpr int kFour = choice_kind::FourShuffled;
constexpr int kFourAndNone = choice_kind::FourShuffledAndNone;

// A problem with four choices whose right one is 3/4.
Problem FractionProblem(int kind) {
  Problem problem;
  Choices choices(problem, kind, ValueText, 4);
  choices.Right({3, 4});
  choices.Wrong("adds the denominators too", {3, 6});
  choices.Wrong("turns it", {4, 3});
  choices.Wrong("forgets to add", {1, 4});
  return problem;
}
Problem WholeProblem(int kind) {
  Problem problem;
  Choices choices(problem, kind, NumStr, 5);
  choices.Right(7);
  choices.Fill([n = 7]() mutable { return ++n; });
  return problem;
}

Topic SayTopic() {
  return {
      "lessons/page/say.h",
      "A page is said from top to bottom.  Say leaves a blank row, AddLine does not, SayAt "
      "names its row.",
      {DOCS_SAMPLE(Say("We want the value of 3(4 + 5)."); Say("What comes first?");
                   AddLine("The parentheses.")),
       DOCS_SAMPLE(Say(Text("The sum of {} and {} is {}.", 4, 5, "4 + 5"))),
       DOCS_SAMPLE(SayAt(14, "This stands beside a figure.", {.col = 22, .lastCol = 38})),
       DOCS_SAMPLE(Say("1. Work inside parentheses, the innermost pair first.", {.indent = 4}))}};
}

Topic ShowTopic() {
  return {"lessons/page/show.h",
          "Show prints mathematics as it is typed, built up.  It leaves the rows that it needs.",
          {DOCS_SAMPLE(Say("We square it:"); Show("(x + 1)^2^ = x^2^ + 2x + 1")),
           DOCS_SAMPLE(Show("3/7 + 2/7 = (3 + 2)/7"); Show("= 5/7"); Say("Half a row is free.")),
           DOCS_SAMPLE(ShowAt(15, "x = (-3 + " + tutor::SquareRoot + "17)/4", 10)),
           DOCS_SAMPLE(Conclude(WholeProblem(choice_kind::FiveShuffled))),
           DOCS_SAMPLE(Problem problem = WholeProblem(kFourAndNone); HideRight(problem);
                       Conclude(problem))}};
}

Topic BoxTopic() {
  return {"lessons/page/boxes.h",
          "A box stands half a row under all that is on the page, and the next text under it.  A "
          "row puts it elsewhere.",
          {DOCS_SAMPLE(Say("The base may be a number:");
                       PaperBox({R"(5^2^ times 5^4^ = 5^6^,  \rnot 25^6^\z)"});
                       Say("The text goes on.")),
           DOCS_SAMPLE(RuleBox("Powers of One Base", {"b^m^ times b^n^ = b^m+n^"})),
           DOCS_SAMPLE(CommentBox("The solution is the point where both lines cross.",
                                  {.row = 15, .col = 3, .width = 20});
                       Note(15, 28, "a note")),
           DOCS_SAMPLE(WhiteBox({.row = 16}); SayInBox("We add 3."); SayInBox("Then we divide.")),
           DOCS_SAMPLE(PaperBox({"goes"}, 14); SayAt(17, "goes too"); ClearBelow(14);
                       Say("This is left."))}};
}

Topic AnswerBoxTopic() {
  return {
      "lessons/page/answer_boxes.h",
      "A problem page says in how many columns its answer boxes stand.  Fractions get high "
      "ones.",
      {DOCS_SAMPLE(const Problem problem = WholeProblem(choice_kind::FiveShuffled);
                   ShowAnswersInTwoColumns(problem, {.row = 15}); AnswerChoicesShow(problem)),
       DOCS_SAMPLE(const Problem problem = FractionProblem(kFour);
                   ShowAnswersInTwoColumns(problem, {.row = 15, .width = 18});
                   AnswerChoicesShow(problem)),
       DOCS_SAMPLE(const Problem problem = FractionProblem(kFourAndNone);
                   ShowAnswersInThreeColumns(problem, {.row = 15}); AnswerChoicesShow(problem))}};
}

Topic SlideTopic() {
  return {"lessons/page/slides.h",
          "What moves in the mathematics moves on the screen: so many cells, so many rows or "
          "columns.",
          {DOCS_SAMPLE(ShowAt(14, "x + 4 = 9"); SlideDown({14, 5, 3}, 3)),
           DOCS_SAMPLE(ShowAt(14, "x + 4 = 9"); SlideRight({14, 3, 1}, 20, Leaving::Copy)),
           DOCS_SAMPLE(SayAt(18, "So x is 5.");
                       SlideUp(WholeRows(18, 1), 4, Leaving::Nothing, Pace::Brisk))}};
}

Topic ChoicesTopic() {
  return {"engine/choices.h",
          "The right choice, what mistakes lead to, then fillers.  A value or text that is there "
          "already is passed over.",
          {DOCS_SAMPLE(Problem problem; Choices some(problem, kFour, NumStr); some.Right(5);
                       some.Wrong("gives 5 too", 5); some.Wrong("adds", 9);
                       Show(problem.choices[2].text)),
           DOCS_SAMPLE(Problem problem = WholeProblem(kFourAndNone); HideRight(problem);
                       Say(ChoiceText(problem, 5)); Say(RightText(problem)))}};
}

Topic ScriptTopic() {
  return {"engine/lesson_script.h",
          "A lesson gives its screens, DrawProblem, ShowProblem and ExplainProblem; the base runs "
          "them.  All of a problem follows from its seed.",
          {DOCS_SAMPLE(const auto lesson = MakeLesson("Blank Lesson");
                       Say(Text("{} has {} screen.", lesson->Title(), lesson->ScreenCount()))),
           DOCS_SAMPLE(const auto lesson = MakeLesson("Blank Lesson");
                       Say(lesson->Draw(17).problem.question[0])),
           DOCS_SAMPLE(Say(OnProblemPage() ? "A problem is asked here." : "Nothing is asked."))}};
}

}  // namespace

std::vector<Topic> PageTopics() {
  return {ScriptTopic(),    SayTopic(),   ShowTopic(),   BoxTopic(),
          AnswerBoxTopic(), SlideTopic(), ChoicesTopic()};
}

}  // namespace course
