// A judge reads a question as a student does, works it out by itself, and says of any text whether
// it answers the question.  It knows nothing of the generator that drew the problem.
//
// A lesson without a judge is a fault.  Each judge's file ends with the line that enters it here.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/problem.h"
#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

struct Reading {
  // The right answer's value in a canonical text.
  std::string answer;
  // The value of a choice; equal values are the same answer, however they are written.  Throws
  // Unreadable.
  std::function<std::string(const std::string& choice)> value;
  // What is wrong with the form of a choice, such as a fraction that can be reduced; "" when
  // nothing is.  Absent, every fraction has to be in lowest terms and less than one.
  std::function<std::string(const std::string& choice)> flaw;
  // Names of FormFaults that are no fault here, since the lesson is about them.
  std::set<std::string> excused;
  // Complaints about the question, such as a number outside of the lesson's range.
  std::vector<std::string> faults;
  // What kind of problem this is, for the summary.  Absent, the form of the question tells.
  std::string kind;
  // What the figures of the explanation's last page have to show.  Absent, problem.figure.
  std::optional<std::vector<course::FigureItem>> figureAtEnd;
  // Name of a mistake, and the values to which it can lead here.
  std::map<std::string, std::vector<std::string>> mistakes;

  // Complains when the number lies outside low to high, both included.
  void Within(const char* what, const Rational& number, long low, long high) {
    if (number < low || number > high)
      faults.push_back(std::string(what) + " is " + number.get_str() + ", not " +
                       std::to_string(low) + " to " + std::to_string(high));
  }
};

// Throws Unreadable when the question is not one of the family's.
using Judge = Reading (*)(const course::Problem& problem);

// The judge of a lesson by its title in any case; nullptr for a title without one.
Judge JudgeOf(std::string_view title);

// const JudgeRegistration kRegistration(ReadIntervalFigure, {"Simple Inequalities", ...});
struct JudgeRegistration {
  JudgeRegistration(Judge judge, std::initializer_list<std::string_view> titles);
};

}  // namespace lesson_check
