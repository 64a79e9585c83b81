#include "lessons/families/principles/step_explanation.h"

#include <cstdlib>

#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_sheet.h"
#include "lessons/families/formulas/solution_lines.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::principles {
namespace {

using enum Operation;
using page::SayInBox;
using page::SayInBoxAnew;
using page::Text;
using page::Words;

constexpr double kQuestionRow = 4;
constexpr double kEquationRow = 7;
constexpr double kFoundRow = 10.5;  // below both equations and the question
constexpr double kSheetBottom = 16;
constexpr double kEquationCol = 18;  // beside "Second equation:"

// "5 + 3", "5 - (-3)", "5 times 3", "15 divided by 3", worked out.
std::string WorkedText(const Step& step, int value) {
  const std::string dot = tutor::Gap + tutor::Dot + tutor::Gap;
  const std::string signs[] = {" + ", " - ", dot, " " + tutor::Divided + " "};
  return NumStr(value) + signs[static_cast<std::size_t>(step.operation)] +
         InParentheses(step.number) + " = " + NumStr(Done(step, {0, value}).number);
}

// The same of a term with x, multiplied or divided.
std::string WorkedTermText(const Step& step, int coef) {
  const std::string term = equations::TermText(coef, "x");
  const std::string result = equations::TermText(Done(step, {coef, 0}).coef, "x");
  const std::string sign = step.operation == Multiply ? tutor::Gap + tutor::Dot + tutor::Gap
                                                      : " " + tutor::Divided + " ";
  return term + sign + InParentheses(step.number) + " = " + result;
}

class Explanation {
 public:
  Explanation(const StepProblem& drawn, const Problem& problem) : p_(drawn), problem_(problem) {}

  void Run() {
    ProblemBanner();
    if (p_.asksForStep)
      FindStep();
    else
      TakeStep();
    CheckSolution(Given(), "Check:  the given holds for x =");
    CheckSolution(Second(), "So does the second one for x =");
    SayInBoxAnew(ConclusionText(problem_, 'b'));
  }

 private:
  bool IsSum() const { return p_.step.operation == Add || p_.step.operation == Subtract; }
  int Number() const { return p_.step.number; }

  LinearStatement StatementOf(const LinearSide& side, int number) const {
    if (p_.xOnTheRight) return {"x", {0, number}, "=", side};
    return {"x", side, "=", {0, number}};
  }
  LinearStatement Given() const { return StatementOf(p_.given, p_.givenNumber); }
  LinearStatement Second() const { return StatementOf(p_.After(), p_.AfterNumber()); }

  const char* SideOfX() const { return p_.xOnTheRight ? "right" : "left"; }
  const char* OtherSide() const { return p_.xOnTheRight ? "left" : "right"; }

  // --- The second equation is asked for ----------------------------------------------------------

  void TakeStep() {
    page::SayAt(kQuestionRow, problem_.question.back());
    if (IsSum())
      TakeSum();
    else
      TakeProduct();
  }

  void TellPrinciple() {
    static const char* const kDone[] = {"added to", "subtracted from", "multiplied by",
                                        "divided by"};
    const char* const done = kDone[static_cast<std::size_t>(p_.step.operation)];
    const std::string rule =
        IsSum() ? Text("the same number may be {} both sides.", Words{done})
                : Text("both sides may be {} the same number, which is not 0.", Words{done});
    SayInBoxAnew(Text("{}:  {}", Words{PrincipleOf(p_.step.operation)}, Words{rule}));
    PageEnd();
  }

  // What is written under both sides: "- 3" also stands for adding -3.
  int AddedNumber() const { return p_.step.operation == Add ? Number() : -Number(); }

  equations::SheetRow Addend() const { return equations::AddendRow({0, AddedNumber()}, "x"); }
  equations::EquationSheet SheetAt(double row) const {
    return {row, kSheetBottom, {equations::RowOf(Given()), equations::RowOf(Second()), Addend()}};
  }

  void TakeSum() {
    equations::EquationSheet sheet = SheetAt(kEquationRow);
    equations::WriteStatement(sheet, Given());
    equations::OpenWordBox();
    SayInBox("Which principle do we use?");
    PageEnd();
    TellPrinciple();
    SayInBoxAnew(Text("We {}.", Words{RequestText(p_.step)}));
    TellNegativeNumber();
    sheet.AddUnder(Addend());
    PageEnd();
    sheet.WriteSum(equations::RowOf(Second()), "=");
    SayInBoxAnew(SumBesideX());
    SayInBox(Text("On the {} side:  {}.", OtherSide(), WorkedText(p_.step, p_.givenNumber)));
    PageEnd();
  }

  void TellNegativeNumber() const {
    if (Number() > 0) return;
    const bool adds = p_.step.operation == Add;
    SayInBox(Text("{} is the same as {}.",
                  Words{Text("{} {}", Words{adds ? "Adding" : "Subtracting"}, Number())},
                  Text("{} {}", Words{adds ? "subtracting" : "adding"}, -Number())));
  }

  std::string SumBesideX() const {
    const std::string term = equations::TermText(p_.given.coef, "x");
    if (p_.given.number == 0)
      return Text("On the {} side the number stands beside {}.", SideOfX(), term);
    return Text("On the {} side:  {}.  {} stays as it is.", SideOfX(),
                WorkedText(p_.step, p_.given.number), term);
  }

  void TakeProduct() {
    formulas::SolutionLines lines(kEquationRow);
    const LinearStatement given = Given();
    const LinearStatement second = Second();
    const auto write = [&](const std::string& left, const std::string& right) {
      lines.Write(left, right);
    };
    const auto side = [](const LinearSide& s) { return equations::SideText(s, "x"); };
    write(side(given.left), side(given.right));
    equations::OpenWordBox();
    SayInBox("Which principle do we use?");
    PageEnd();
    TellPrinciple();
    SayInBoxAnew(Text("We {}.", Words{RequestText(p_.step)}));
    if (p_.given.number != 0)
      SayInBox(p_.step.operation == Multiply ? "Two terms on a side go into parentheses."
                                             : "Both terms of a side are divided.");
    write(StepOn(given.left), StepOn(given.right));
    PageEnd();
    write(side(second.left), side(second.right));
    SayInBoxAnew(
        Text("On the {} side:  {}{}.", SideOfX(), WorkedTermText(p_.step, p_.given.coef),
             p_.given.number == 0
                 ? ""
                 : Words{" and " + WithoutBreaks(WorkedText(p_.step, p_.given.number))}.text));
    SayInBox(Text("On the {} side:  {}.", OtherSide(), WorkedText(p_.step, p_.givenNumber)));
    PageEnd();
  }

  // "3(2x + 5)", "3 times 11"; or both over a divisor.
  std::string StepOn(const LinearSide& side) const {
    const std::string text = equations::SideText(side, "x");
    const std::string number = NumStr(Number());
    if (p_.step.operation == Divide) return "(" + text + ")/(" + number + ")";
    const bool bare = text.front() != '-' && (side.coef == 0 || side.number == 0);
    return bare ? number + tutor::Gap + tutor::Dot + tutor::Gap + text : number + "(" + text + ")";
  }

  // --- The step is asked for ---------------------------------------------------------------------

  void FindStep() {
    page::SayAt(kQuestionRow, problem_.question[0]);
    page::ShowAt(kQuestionRow, problem_.question[1], kEquationCol);
    page::SayAt(kQuestionRow + 1.5, problem_.question[2]);
    page::ShowAt(kQuestionRow + 1.5, problem_.question[3], kEquationCol);
    page::SayAt(kQuestionRow + 3, problem_.question[4]);
    PageEnd();
    equations::OpenWordBox();
    const std::string before = equations::TermText(p_.given.coef, "x");
    SayInBox("First we compare the terms with x.");
    if (IsSum())
      SayInBox(Text("Both have {}.  So something was added or subtracted.", before));
    else
      SayInBox(Text("{} became {}.  So something was multiplied or divided.", before,
                    equations::TermText(p_.After().coef, "x")));
    PageEnd();
    if (IsSum())
      FindSum();
    else
      FindProduct();
    SayInBoxAnew(Text("This is the {}.", Words{PrincipleOf(p_.step.operation)}));
    PageEnd();
  }

  void FindSum() {
    const int change = p_.AfterNumber() - p_.givenNumber;
    SayInBoxAnew(Text("Now the side without x:  {} became {}.", p_.givenNumber, p_.AfterNumber()));
    SayInBox(Text("It is {} {}.", std::abs(change), Words{change > 0 ? "more" : "less"}));
    SayInBox("Which of the choices does that?");
    PageEnd();
    SayInBoxAnew(Text("This one:  {}.", WorkedText(p_.step, p_.givenNumber)));
    TellNegativeNumber();
    PageEnd();
    equations::EquationSheet sheet = SheetAt(kFoundRow);
    equations::WriteStatement(sheet, Given());
    sheet.AddUnder(Addend());
    sheet.WriteSum(equations::RowOf(Second()), "=");
    SayInBoxAnew("On both sides it gives the second one.");
    PageEnd();
  }

  void FindProduct() {
    SayInBoxAnew(Text("How do we get from {} to {}?", equations::TermText(p_.given.coef, "x"),
                      equations::TermText(p_.After().coef, "x")));
    PageEnd();
    SayInBoxAnew(Text("In this way:  {}.", WorkedTermText(p_.step, p_.given.coef)));
    const LinearStatement given = Given();
    const LinearStatement second = Second();
    formulas::SolutionLines lines(p_.step.operation == Divide ? kFoundRow + 0.5 : kFoundRow);
    lines.Write(StepOn(given.left), StepOn(given.right));
    lines.Write(equations::SideText(second.left, "x"), equations::SideText(second.right, "x"));
    SayInBox("On both sides it gives the second one.");
    PageEnd();
  }

  // --- The check ---------------------------------------------------------------------------------

  void CheckSolution(const LinearStatement& statement, const char* words) {
    SayInBoxAnew(Text("{} {}:", words, p_.solution));
    equations::SaySubstituted(statement, p_.solution);
    PageEnd();
  }

  const StepProblem& p_;
  const Problem& problem_;
};

}  // namespace

void ExplainStep(const StepProblem& drawn, const Problem& problem) {
  Explanation(drawn, problem).Run();
}

}  // namespace course::principles
