// What the lesson on differences of two squares asks for and offers: a^2x^2 - b^2, bare or behind a
// common factor, and fourth powers, where one of the factors is such a difference again.
#pragma once

#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::polynomials {

enum class DifferenceForm {
  Bare,          // 4x^2 - 25
  CommonFactor,  // 12x^2 - 75
  CommonSquare,  // 4x^2 - 36
  FourthPowers,  // 16x^4 - 81
};

struct SquareDifference {
  DifferenceForm form = DifferenceForm::Bare;
  std::string letter = "x";
  int a = 1;  // 1 to 8, different and without a common factor; of fourth powers 1 to 3
  int b = 2;
  int common = 1;      // a prime or a square with a common factor, else 1
  int commonRoot = 1;  // of a common square: 2 of 4x^2 - 36

  // "12x^2^ - 75" as it is asked for, and "4x^2^ - 25" without the common factor.
  std::string Asked() const;
  std::string WithoutCommon() const;
  // "4x^2^" and "25", and what they are the squares of: "2x" and "5".
  std::string FirstSquare() const;
  std::string FirstRoot() const;
  int LastSquare() const { return LastRoot() * LastRoot(); }
  int LastRoot() const;
  // "(2x + 5)(2x - 5)".
  std::string SumTimesDifference() const;
  // "3(2x + 5)(2x - 5)", "(4x^2^ + 9)(2x + 3)(2x - 3)".
  std::string Factored() const;
  // What is left without the common factor, and of fourth powers: 4x^2 - 9.
  SquareDifference Bared() const;
};

// "8x^2^", "x".
std::string PowerTerm(int coefficient, const std::string& letter, int exponent);
// "(8x^2^ + 5)".
std::string FactorOf(const std::string& term, int number);

SquareDifference DrawSquareDifference(RandomStream& random);

// A wrong factoring, and how a student comes to it.
struct WrongFactors {
  std::string mistake;
  std::string text;
};
// Four that differ from each other and from the right one.
std::vector<WrongFactors> WrongFactorings(const SquareDifference& asked, RandomStream& random);

}  // namespace course::polynomials
