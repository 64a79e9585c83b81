// The exact readers: what the judges of the lessons stand on.
#include <gtest/gtest.h>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

namespace tutor = course::tutor;

std::string Number(const std::string& text) {
  return ValueOf(text).Number().get_str();
}

TEST(ExactNotation, OperationsKeepTheirOrder) {
  EXPECT_EQ(Number("2 + 3" + tutor::Dot + "4"), "14");
  EXPECT_EQ(Number("3(4 + 5)"), "27");
  EXPECT_EQ(Number("12 " + tutor::Divided + " 3 " + tutor::Times + " 2"), "8");
  EXPECT_EQ(Number("10 - 4 - 3"), "3");
  EXPECT_EQ(Number("-3^2^"), "-9");
  EXPECT_EQ(Number("(-3)^2^"), "9");
  EXPECT_EQ(Number("2" + tutor::Dot + "-3"), "-6");
  EXPECT_EQ(Number("[2(1 + 2) - {3 - 1}]^2^"), "16");
}

TEST(ExactNotation, FractionsAndMixedNumbers) {
  EXPECT_EQ(Number("2/4"), Number("1/2"));
  EXPECT_EQ(Number("3" + tutor::Gap + "1/2"), "7/2");
  EXPECT_EQ(Number("-3 1/2"), "-7/2");
  EXPECT_EQ(Number("5 - 1 1/3"), "11/3");
  EXPECT_EQ(Number(".25"), "1/4");
  EXPECT_EQ(Number("1.50"), "3/2");
}

TEST(ExactNotation, ExponentsInMarksAndAsSingleCharacters) {
  EXPECT_EQ(ValueOf("x^2^x^3^"), ValueOf("x^5^"));
  EXPECT_EQ(ValueOf("x" + course::Chr(145)), ValueOf("x^2^"));
  EXPECT_EQ(ValueOf("x" + tutor::RaisedMinus + course::Chr(145)), ValueOf("1/x^2^"));
  EXPECT_EQ(ValueOf(tutor::RaisedMinus + "3"), ValueOf("-3"));
  EXPECT_EQ(ValueOf("x^" + tutor::RaisedMinus + "2^"), ValueOf("1/x^2^"));
  EXPECT_EQ(ValueOf("(x" + tutor::Gap + "+" + tutor::Gap + "2)(x - 3)"), ValueOf("x^2^ - x - 6"));
  EXPECT_FALSE(ValueOf("(x + 2)(x + 3)") == ValueOf("(x + 1)(x + 6)"));
  EXPECT_EQ(ValueOf("(x + s)(x + q)").Text(), ValueOf("(x + q)(x + s)").Text());
}

TEST(ExactNotation, Radicals) {
  EXPECT_EQ(ValueOf("`12`"), ValueOf("2`3`"));
  EXPECT_EQ(ValueOf("`1/2`"), ValueOf("`2`/2"));
  EXPECT_EQ(ValueOf("(4 + `8`)/2"), ValueOf("2 + `2`"));
  EXPECT_EQ(ValueOf("1/(3 - `5`)"), ValueOf("(3 + `5`)/4"));
  EXPECT_EQ(ValueOf("`x^4^`"), ValueOf("x^2^"));
  EXPECT_FALSE(ValueOf("`5`") == ValueOf("`6`"));
  const Expression both = ParseExpression("3 " + tutor::PlusOrMinus + " `5`");
  EXPECT_EQ(ValueOf(both, 1), ValueOf("3 + `5`"));
  EXPECT_EQ(ValueOf(both, -1), ValueOf("3 - `5`"));
  EXPECT_THROW(ValueOf("`" + tutor::RaisedMinus + "4`"), Unreadable);
}

TEST(ExactNotation, WhatIsNoExpressionIsNotRead) {
  for (const char* text :
       {"", "3 +", "2 3", "x^2", "(x + 1", "x + 1)", "None of the above?", "1/0"})
    EXPECT_THROW(ValueOf(text), Unreadable) << text;
}

TEST(ExactNotation, AnExpressionIsFoundInASentence) {
  EXPECT_EQ(ExpressionIn("What is the value of 3(4 + 5)?"), "3(4 + 5)");
  EXPECT_EQ(ExpressionIn("Solve -2 + 7 now."), "-2 + 7");
  EXPECT_THROW(ExpressionIn("Find the value."), Unreadable);
}

TEST(ExactRelations, SetsAreEqualHoweverTheyAreWritten) {
  const auto set = [](const std::string& text) { return SolutionOf(text).Text(); };
  EXPECT_EQ(set("x < 3"), "(-inf,3)");
  EXPECT_EQ(set("3 > x"), set("x < 3"));
  EXPECT_EQ(set("-2x + 1 < 7"), set("x > -3"));
  EXPECT_EQ(set("-2 < x " + tutor::LessOrEqual + " 5"), "(-2,5]");
  EXPECT_EQ(set("x " + tutor::LessOrEqual + " 5 and x > -2"), "(-2,5]");
  EXPECT_EQ(set("x > 2 or x " + tutor::LessOrEqual + " -1"), "(-inf,-1] u (2,inf)");
  EXPECT_EQ(set("x < 2 or x > 1"), "(-inf,inf)");
  EXPECT_EQ(set("x < 2 or x > 2"), "(-inf,2) u (2,inf)");
  EXPECT_EQ(set("x " + tutor::NotEqual + " 2"), set("x < 2 or x > 2"));
  EXPECT_EQ(set("5 < x < 1"), "{}");
  EXPECT_EQ(set("x/2 = 3 1/2"), "[7,7]");
  EXPECT_NE(set("x < 3"), set("x " + tutor::LessOrEqual + " 3"));
}

}  // namespace
}  // namespace lesson_check
