// Good problems, and the same with one thing spoiled: the checker must see each of them.
#include "lesson_check/problem_check.h"

#include <gtest/gtest.h>

#include <numeric>

#include "lesson_check/lesson_check.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Problem;
namespace choice_kind = course::choice_kind;
using Order = std::vector<int>;

const Order kInOrder = {0, 1, 2, 3, 4, 5};

struct Case {
  const char* title;  // whose judge reads it
  Problem problem;
  Order order = kInOrder;
};

Case Make(const char* title, int kind, std::vector<std::string> question, const char* right,
          std::vector<std::pair<const char*, const char*>> wrong) {
  Case made{.title = title, .problem = {}};
  made.problem.question = std::move(question);
  made.problem.kind = kind;
  made.problem.Right(1, right);
  int slot = 2;
  for (const auto& [mistake, text] : wrong) made.problem.Wrong(slot++, mistake, text);
  return made;
}

Case Product() {
  return Make("Blank Lesson", choice_kind::FourShuffled, {"What is the value of 3(4 + 5)?"}, "27",
              {{"multiplies the first number only", "17"},
               {"adds the number in front", "12"},
               {"multiplies all three numbers", "60"}});
}
Case Fractions() {
  return Make("Adding Fractions", choice_kind::FourShuffledAndNone,
              {"Add the fractions below.", "1/2 + 1/4"}, "3/4",
              {{"adds the denominators too", "1/3"}, {"filler", "1/8"}, {"filler", "1 1/4"}});
}
Case Equation() {
  return Make("Solving Linear Equations With 2 Operations", choice_kind::FourShuffledAndNone,
              {"Solve the following equation for y.", "8y - 5 = 11"}, "2",
              {{"moves the number on the right to the left without changing its sign", "-3/4"},
               {"filler", "7"},
               {"filler", "-12"}});
}
Case Motion() {
  return Make("Distance-Rate-Time Problems", choice_kind::FourShuffled,
              {"A car travels at a rate of 40 mph.", "How long does it take to go 50 miles?"},
              "1 hour & 15 minutes",
              {{"counts the minutes to the next full hour", "1 hour & 45 minutes"},
               {"leaves the part of an hour out", "1 hour"},
               {"filler", "2 hours & 5 minutes"}});
}
Case Powers() {
  return Make("Multiplying with Exponents", choice_kind::FourShuffled,
              {"Simplify the following expression:",
               "4z"
               "^3^" +
                   course::tutor::Dot + "z^9^"},
              "4z^12^",
              {{"multiplies the exponents", "4z^27^"},
               {"keeps the first exponent", "4z^3^"},
               {"filler", "4z^6^"}});
}
Case System() {
  return Make("Solving Systems by Graphing", choice_kind::FourShuffled,
              {"Find the solution of the following", "system of linear equations:", "2x - y = 1",
               "2x + y = -5"},
              "(-1,-3)",
              {{"exchanges the coordinates", "(-3,-1)"}, {"filler", "(1,5)"}, {"filler", "(2,0)"}});
}
Case Quadratic() {
  return Make("The Quadratic Formula", choice_kind::FourShuffled,
              {"Solve the quadratic equation below.", "x^2^ - 7x + 6 = 0"}, "1 or 6",
              {{"puts b where -b belongs", "-6 or -1"},
               {"forgets to divide by 2a", "2 or 12"},
               {"gets a negative discriminant by a sign mistake", "No real roots"}});
}

std::vector<std::string> FaultsOf(const Case& checked) {
  std::vector<std::string> faults;
  Tally tally;
  CheckProblem(
      JudgeOf(checked.title), {checked.problem, checked.order, 0},
      [&](const std::string& fault) { faults.push_back(fault); }, tally);
  return faults;
}

std::string Listed(const std::vector<std::string>& faults) {
  return std::accumulate(faults.begin(), faults.end(), std::string(),
                         [](const std::string& all, const auto& one) { return all + one + "\n"; });
}

TEST(ProblemCheck, GoodProblemsPass) {
  for (auto* make : {Product, Fractions, Equation, Motion, Powers, System, Quadratic}) {
    const Case good = make();
    EXPECT_EQ(Listed(FaultsOf(good)), "") << good.title;
  }
  Case none = Fractions();
  none.problem.Wrong(1, "filler", "7/8");
  none.problem.Right(5, "3/4");
  EXPECT_EQ(Listed(FaultsOf(none)), "");
  Case shuffled = Product();
  shuffled.order = {0, 3, 1, 4, 2, 5};
  EXPECT_EQ(Listed(FaultsOf(shuffled)), "");
}

struct Spoiled {
  Case (*make)();
  void (*spoil)(Case&);
  const char* fault;  // a part of the complaint
};

#define QUESTION(LINE, TEXT) [](Case& c) { c.problem.question[LINE] = TEXT; }
#define TEXT_OF(SLOT, TEXT) [](Case& c) { c.problem.choices[SLOT].text = TEXT; }
#define MISTAKE(SLOT, NAME) [](Case& c) { c.problem.choices[SLOT].mistake = NAME; }

const Spoiled kSpoiled[] = {
    // What is right, and what differs.
    {Product, TEXT_OF(1, "28"), "\"28\" is not right"},
    {Product, TEXT_OF(4, "12"), "two choices read \"12\""},
    {Fractions, TEXT_OF(4, "2/6"), "\"1/3\" and \"2/6\" are equal"},
    {Fractions, TEXT_OF(4, "6/8"), "\"6/8\" is right, too"},
    {Fractions, [](Case& c) { c.problem.Right(5, "1/4"); }, "\"1/4\" behind the last box"},
    {Fractions,
     [](Case& c) {
       c.problem.correct = 5;
       c.problem.choices[5].text = "3/4";
     },
     "\"3/4\" is right, too"},
    {Product, TEXT_OF(4, " "), "choice 4 is empty"},
    // Mistakes.
    {Product, MISTAKE(2, ""), "no mistake leads to \"17\""},
    {Product, MISTAKE(2, "counts on the fingers"), "the judge derives no mistake \"counts on"},
    {Product, TEXT_OF(3, "13"), "does not come to \"13\" but to 12"},
    {Product, MISTAKE(1, "filler"), "the right choice is named a mistake"},
    // Order and kind.
    {Product, [](Case& c) { c.order = {0, 1, 1, 3, 4, 5}; }, "the boxes do not hold each choice"},
    {Product,
     [](Case& c) {
       c.problem.kind = choice_kind::FourInOrder;
       c.order = {0, 2, 1, 3, 4};
     },
     "box 1 was shuffled"},
    {Product, [](Case& c) { c.problem.kind = 7; }, "there is no kind 7"},
    {Product, [](Case& c) { c.problem.correct = 5; }, "choice 5 cannot be right"},
    {Product, QUESTION(0, "What is it?"), "cannot be read"},
    // Form.
    {Fractions, TEXT_OF(3, "6/4"), "the choice \"6/4\" hides a whole number"},
    {Fractions, TEXT_OF(3, "2/8"), "the choice \"2/8\" can be reduced"},
    {Product, TEXT_OF(4, "3/1"), "\"3/1\" has a denominator of 1"},
    {Equation, TEXT_OF(3, "-0"), "\"-0\" has a zero with a minus sign"},
    {Powers, TEXT_OF(4, "4z^1^"), "\"4z^1^\" has an exponent of 1"},
    {Powers, TEXT_OF(4, "1z^6^"), "\"1z^6^\" has a factor of 1"},
    {Powers, TEXT_OF(4, "4z^6"), "\"4z^6\""},
    {Quadratic, TEXT_OF(3, "5 or 5"), "\"5 or 5\" has the same twice"},
    {System, TEXT_OF(3, "(1, 5)"), "\"(1, 5)\" has a blank in a pair"},
    {System, TEXT_OF(3, "(1,5"), "\"(1,5\""},
    {Product, TEXT_OF(4, "060"), "\"060\" has a number that begins with 0"},
    {Equation, QUESTION(1, "8y + -5 = 11"), "\"8y + -5 = 11\" has a sign behind a sign"},
    {System, QUESTION(2, "2x + 0y = 1"), "\"2x + 0y = 1\" has a factor of 0"},
    {Equation, QUESTION(0, "Solve the following equation for x."),
     "the question asks for x, which does not occur"},
    {Equation, QUESTION(1, "12y - 5 = 11"), "a coefficient is 12, not -9 to 9"},
    // Units.
    {Motion, TEXT_OF(4, "3 hour"), "\"3 hour\" has 3 hour, which is not the right number"},
    {Motion, TEXT_OF(4, "1 hours & 5 minutes"), "has 1 hours, which is not the right number"},
    {Motion, TEXT_OF(4, "-3 hours"), "has -3 hours, less than nothing"},
    {Motion, TEXT_OF(4, "2 hours & 0 minutes"), "has 0 minutes"},
    {Motion, TEXT_OF(4, "90 minutes"), "another an hour and more in minutes"},
    {Motion, TEXT_OF(4, "1 hour & 90 minutes"), "an hour of minutes beside hours"},
    {Motion, TEXT_OF(4, "30 miles"), "differ in what they measure: length, time"},
};

TEST(ProblemCheck, EachSpoiledProblemIsSeen) {
  for (const Spoiled& spoiled : kSpoiled) {
    Case made = spoiled.make();
    spoiled.spoil(made);
    const std::string faults = Listed(FaultsOf(made));
    EXPECT_NE(faults.find(spoiled.fault), std::string::npos)
        << made.title << " lacks: " << spoiled.fault << "\nfound: " << faults;
  }
  Case without = Product();
  without.title = "A Lesson That Is Not There";
  EXPECT_EQ(Listed(FaultsOf(without)), "no judge reads this lesson\n");
}

TEST(ProblemCheck, ALastBoxOfNoneHasNoMistake) {
  Case none = Fractions();
  none.problem.Wrong(5, "filler", "7/8");  // hidden behind the box
  EXPECT_EQ(course::MistakeOf(none.problem, 5), "");
  EXPECT_EQ(course::MistakeOf(none.problem, 4), "filler");
}

// --- What many problems tell ---------------------------------------------------------------------

double WinsWith(std::size_t habit, const std::vector<std::string>& texts, int right) {
  Habits habits;
  habits.Add(texts, texts, right, static_cast<int>(texts.size()));
  return habits.wins.at(habit);
}

TEST(Habits, AnAnswerThatStandsOutIsWonByItsLook) {
  EXPECT_EQ(WinsWith(0, {"3 1/2", "3", "4", "5"}, 0), 1);
  EXPECT_EQ(WinsWith(0, {"3 1/2", "3", "4", "5"}, 1), 0);
  EXPECT_EQ(WinsWith(0, {"2", "3", "4", "5"}, 1), 0.25);  // nothing to see: a guess
  EXPECT_EQ(WinsWith(1, {"-9", "3/4", "1/2", "-1"}, 1), 1);
  EXPECT_EQ(WinsWith(1, {"x^15^", "x^54^", "x^6^", "x^9^"}, 1), 1);
  EXPECT_EQ(WinsWith(2,
                     {"(x + 2)(x - 5)", "(x - 2)(x - 5)", "(x + 2)(x + 5)", "(x - 2)(x + 5)",
                      "(x + 1)(x - 5)"},
                     0),
            1);
  EXPECT_EQ(WinsWith(3, {"2x", "2x^2^", "2x^3^", "no solution"}, 3), 1);
  EXPECT_EQ(WinsWith(4, {"5", "6", "7", "8 1/2"}, 3), 1);
  EXPECT_EQ(WinsWith(4, {"5", "6", "7 1/3", "8 1/2"}, 3), 0.25);
  EXPECT_EQ(WinsWith(1, {"5", "6", "7"}, -1), 0);  // the answer is none of them
}

TEST(Habits, OnlyOverTwiceTheChanceIsAFaultAndOnlyWhereChoicesAreTheLessonsOwn) {
  for (const int won : {50, 51}) {
    Report report;
    for (int i = 0; i < 100; ++i)
      report.tally.habits.Add({"10", "2", "3", "4"}, {"10", "2", "3", "4"}, i < won ? 0 : 1, 4);
    Report laidDown = report;
    CheckHabits(report, false);
    CheckHabits(laidDown, true);
    EXPECT_EQ(report.faults > 0, won == 51) << won;
    EXPECT_EQ(laidDown.faults, 0);
  }
}

TEST(Recipes, AMistakeThatNoProblemOffersIsAFault) {
  Report report;
  CheckProblem(
      JudgeOf("Blank Lesson"), {Product().problem, kInOrder, 0}, [](const std::string&) {},
      report.tally);
  Case other = Product();
  other.problem.Wrong(4, kFiller, "61");
  Report lacking;
  CheckProblem(
      JudgeOf("Blank Lesson"), {other.problem, kInOrder, 0}, [](const std::string&) {},
      lacking.tally);
  CheckRecipes(report.tally, report);
  EXPECT_EQ(report.faults, 0);
  CheckRecipes(lacking.tally, lacking);
  ASSERT_EQ(lacking.faults, 1);
  EXPECT_EQ(lacking.findings[0].fault,
            "no problem offers the mistake \"multiplies all three numbers\"");
  lacking.tally.Add(report.tally);  // another lesson of the same judge does
  Report both;
  CheckRecipes(lacking.tally, both);
  EXPECT_EQ(both.faults, 0);
}

}  // namespace
}  // namespace lesson_check
