// Each judge with a question made by hand: it must know the answer, tell it from others however
// they are written, and refuse what it cannot read.
#include <gtest/gtest.h>

#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

namespace tutor = course::tutor;

// What the judge of a lesson reads.
Reading Read(std::string_view title, std::vector<std::string> question,
             std::vector<course::FigureItem> figure = {}) {
  course::Problem problem;
  problem.question = std::move(question);
  problem.figure = std::move(figure);
  return JudgeOf(title)(problem);
}

bool IsRight(const Reading& reading, const std::string& choice) {
  return reading.value(choice) == reading.answer;
}

// The mistake leads to this choice, and to no other.
void ExpectMistake(const Reading& reading, const std::string& name, const std::string& choice) {
  const auto recipe = reading.mistakes.find(name);
  ASSERT_NE(recipe, reading.mistakes.end()) << name;
  EXPECT_EQ(recipe->second, std::vector<std::string>{reading.value(choice)}) << name;
}

TEST(Judges, LinearEquation) {
  const Reading reading = Read("Solving Linear Equations With 2 Operations",
                               {"Solve the following equation for y.", "8y - 5  =  3y + 11"});
  EXPECT_TRUE(IsRight(reading, "3 1/5"));
  EXPECT_TRUE(IsRight(reading, "y = 16/5"));
  EXPECT_FALSE(IsRight(reading, "-3 1/5"));
  ExpectMistake(reading, "moves the number on the right to the left without changing its sign",
                "-1 1/5");
  ExpectMistake(reading, "moves the right side to the left without changing its signs", "-6/11");
  EXPECT_EQ(reading.flaw("3 2/10"), "can be reduced");
  EXPECT_EQ(reading.flaw("16/5"), "hides a whole number");
  EXPECT_THROW(reading.value("3.2"), Unreadable);
  EXPECT_THROW(reading.value("x = 3"), Unreadable);
  EXPECT_THROW(Read("Solving Linear Equations With 2 Operations", {"Solve.", "2x + 1 = 2x + 3"}),
               Unreadable);
}

TEST(Judges, LinearInequality) {
  const Reading reading =
      Read("Solving Inequalities", {"Solve the inequality.", "-6z - 8  >  5z + 14"});
  EXPECT_TRUE(IsRight(reading, "z < -2"));
  EXPECT_TRUE(IsRight(reading, "-2 > z"));
  EXPECT_FALSE(IsRight(reading, "z > -2"));
  EXPECT_FALSE(IsRight(reading, "z " + tutor::LessOrEqual + " -2"));
  ExpectMistake(reading, "forgets to reverse the inequality symbol", "z > -2");
  const std::string overdone =
      "reverses the inequality symbol without dividing by a negative number";
  EXPECT_FALSE(reading.mistakes.contains(overdone));  // it has to be reversed
  // -6z + 5z - 8 + 14 > 0
  const std::string moved = "moves the right side to the left without changing its signs";
  ExpectMistake(reading, moved, "z < 6");
  ExpectMistake(reading, moved + " and keeps the symbol", "z > 6");
  ExpectMistake(Read("Solving Inequalities", {"Solve the inequality.", "4z  >  8"}),
                "gives the quotient the wrong sign", "z > -2");
}

TEST(Judges, IntervalFigures) {
  const Reading segment =
      Read("Simple Inequalities", {"Which?"},
           {{"segment", {{"from", -1}, {"to", 4}, {"fromClosed", 1}, {"toClosed", 0}}}});
  EXPECT_TRUE(IsRight(segment, "-1 " + tutor::LessOrEqual + " x < 4"));
  EXPECT_TRUE(IsRight(segment, "x < 4 and x " + tutor::GreaterOrEqual + " -1"));
  EXPECT_FALSE(IsRight(segment, "-1 < x < 4"));
  ExpectMistake(segment, "reverses both symbols", "-1 " + tutor::GreaterOrEqual + " x > 4");
  const Reading rays = Read("Simple Inequalities", {"Which?"},
                            {{"ray", {{"from", 3}, {"closed", 0}, {"direction", 1}}},
                             {"ray", {{"from", -2}, {"closed", 1}, {"direction", -1}}}});
  EXPECT_TRUE(IsRight(rays, "x " + tutor::LessOrEqual + " -2 or x > 3"));
  ExpectMistake(rays, "takes the numbers between the arrows",
                "-2 " + tutor::LessOrEqual + " x < 3");
  EXPECT_THROW(Read("Simple Inequalities", {"Which?"}, {{"line", {}}}), Unreadable);
}

TEST(Judges, OrderOfOperations) {
  const Reading reading = Read("Order of Operations",
                               {"What is its value?", "46 - [9 + 3 " + tutor::Times + " (8 - 6)]"});
  EXPECT_TRUE(IsRight(reading, "31"));
  ExpectMistake(reading, "works from left to right", "22");
  ExpectMistake(reading, "forgets the parentheses", "19");
  ExpectMistake(reading, "forgets the brackets", "43");
  ExpectMistake(reading, "works out only a part", "15");
  ExpectMistake(reading, "adds instead of multiplying", "32");
}

TEST(Judges, Motion) {
  const Reading far =
      Read("Distance-Rate-Time Problems",
           {"A boat sails at a rate of 12 mph in still water.",
            "How far does it go in 1 hour & 15 minutes against a current of 4 mph?"});
  EXPECT_TRUE(IsRight(far, "10 miles"));
  EXPECT_FALSE(IsRight(far, "10 mph"));
  ExpectMistake(far, "ignores the current", "15 miles");
  ExpectMistake(far, "reads the minutes as hundredths of an hour", "9 1/5 miles");
  const Reading fast = Read("Distance-Rate-Time Problems",
                            {"A bird flies 33 miles in 45 minutes with a wind of 4 mph.",
                             "What is the rate of the bird in still air?"});
  EXPECT_TRUE(IsRight(fast, "40 mph"));
  ExpectMistake(fast, "adds the wind in place of subtracting it", "48 mph");
  ExpectMistake(fast, "takes the smaller digit from the larger in each column", "40 mph");
  const Reading late =
      Read("Distance-Rate-Time Problems",
           {"A car travels at a rate of 40 mph.", "How long does it take to go 50 miles?"});
  EXPECT_TRUE(IsRight(late, "1 hour & 15 minutes"));
  EXPECT_TRUE(IsRight(late, "75 minutes"));
  EXPECT_TRUE(IsRight(late, "1 1/4 hours"));
  ExpectMistake(late, "counts the minutes to the next full hour", "1 hour & 45 minutes");
  EXPECT_THROW(Read("Distance-Rate-Time Problems", {"A car travels.", "How far does it go?"}),
               Unreadable);
}

TEST(Judges, ProductOfPowers) {
  const Reading reading = Read("Multiplying with Exponents",
                               {"Simplify:", "4x^6^" + tutor::Dot + "p" + tutor::Dot + "x^9^"});
  EXPECT_TRUE(IsRight(reading, "4px^15^"));
  EXPECT_TRUE(IsRight(reading, "4x^15^p"));
  ExpectMistake(reading, "multiplies the exponents", "4px^54^");
  ExpectMistake(reading, "gives the product to both letters", "4p^54^x^54^");
  ExpectMistake(reading, "gives the sum of all exponents to both letters", "4p^16^x^16^");
  EXPECT_EQ(reading.flaw("4px^15^"), "");
  EXPECT_EQ(reading.flaw("4px^6^x^9^"), "can be simplified");
  EXPECT_EQ(reading.flaw("1px^15^"), "has a factor of 1");
}

TEST(Judges, MonicTrinomial) {
  const Reading reading =
      Read("Trinomials of the Form x\xB2+bx+c", {"Find the factors:", "x^2^ - 3x - 10"});
  EXPECT_TRUE(IsRight(reading, "(x + 2)(x - 5)"));
  EXPECT_TRUE(IsRight(reading, "(x - 5)(x + 2)"));
  EXPECT_FALSE(IsRight(reading, "(x - 2)(x + 5)"));
  ExpectMistake(reading, "reverses both signs", "(x - 2)(x + 5)");
  EXPECT_EQ(reading.mistakes.at("takes a pair with the right product and the wrong sum").size(),
            6u);                                              // each pair twice
  EXPECT_THROW(reading.value("x^2^ - 3x - 10"), Unreadable);  // true, but not factored
}

TEST(Judges, SumOfFractions) {
  const Reading reading = Read("Adding Fractions", {"Add.", "5/6 + (-3)/4"});
  EXPECT_TRUE(IsRight(reading, "1/12"));
  EXPECT_TRUE(IsRight(reading, "2/24"));
  EXPECT_EQ(reading.flaw("2/24"), "can be reduced");
  ExpectMistake(reading, "adds the denominators too", "1/5");
  ExpectMistake(reading, "leaves out the minus sign", "1 7/12");
  const Reading above = Read("Adding Fractions", {"Add.", "5/6 + 7/10"});  // 46/30
  ExpectMistake(above, "divides only the denominator by the common factor", "3 1/15");
  ExpectMistake(above, "divides only the numerator by the common factor", "23/30");
  ExpectMistake(above, "puts the remainder over the numerator", "1 8/23");
}

TEST(Judges, LinearSystem) {
  const Reading one =
      Read("Solving Systems by Graphing", {"Solve", "the system:", "2x - y = 1", "2x + y = -5"});
  EXPECT_TRUE(IsRight(one, "(-1,-3)"));
  EXPECT_TRUE(IsRight(one, "(" + tutor::RaisedMinus + "1," + tutor::RaisedMinus + "3)"));
  ExpectMistake(one, "exchanges the coordinates", "(-3,-1)");
  EXPECT_TRUE(IsRight(Read("Solving Systems by Graphing", {"x + y = 2", "2x + 2y = 4"}),
                      "There are infinite solutions."));
  EXPECT_TRUE(IsRight(Read("Solving Systems by Graphing", {"x + y = 2", "x + y = 3"}),
                      "There are zero solutions."));
}

TEST(Judges, QuadraticEquation) {
  const std::string root = tutor::SquareRoot;
  const std::string sign = " " + tutor::PlusOrMinus + " ";
  const Reading surds = Read("The Quadratic Formula", {"Solve.", "-4x^2^ + 8x + 2 = 0"});
  EXPECT_TRUE(IsRight(surds, "(2" + sign + root + "6)/2"));
  EXPECT_TRUE(IsRight(surds, "(4" + sign + root + "24)/4"));
  EXPECT_EQ(surds.flaw("(2" + sign + root + "6)/2"), "");
  EXPECT_EQ(surds.flaw("(4" + sign + "2" + root + "6)/4"), "can be reduced");
  EXPECT_EQ(surds.flaw("1" + sign + root + "24"), "has a square under the radical");
  ExpectMistake(surds, "adds 4ac", "(2" + sign + root + "2)/2");
  const Reading whole = Read("The Quadratic Formula", {"Solve.", "x^2^ - 7x + 6 = 0"});
  EXPECT_TRUE(IsRight(whole, "1 or 6"));
  EXPECT_TRUE(IsRight(whole, "6 or 1"));
  EXPECT_FALSE(IsRight(whole, "6"));
  const Reading twice = Read("The Quadratic Formula", {"Solve.", "x^2^ - 6x + 9 = 0"});
  EXPECT_TRUE(IsRight(twice, "3"));
  const Reading none = Read("The Quadratic Formula", {"Solve.", "x^2^ + x + 1 = 0"});
  EXPECT_TRUE(IsRight(none, "No real roots"));
  ExpectMistake(none, "loses the minus sign under the radical", "(-1" + sign + root + "3)/2");
}

}  // namespace
}  // namespace lesson_check
