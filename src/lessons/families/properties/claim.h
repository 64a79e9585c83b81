// Equations between a product and a sum, "3(2x + 5) = 6x + 15", as the distributive property makes
// them, and altered ones.
#pragma once

#include <string>

#include "mathkit/random_stream.h"
#include "mathkit/tutor_codes.h"

namespace course::properties {

// Multiplication between hard blanks: a dot, which is no decimal point there and looks like no
// letter.
inline const std::string kDot = tutor::Gap + tutor::Dot + tutor::Gap;

enum class Form { Numbers, Letter, Coefficient, Backwards };
inline constexpr int kForms = 4;

// What is wrong with the second term of the sum: it stays as it is, its sign changes, or factor and
// term are added.
enum class Alteration { None, SecondTerm, Sign, Sum };

struct Claim {
  Form form = Form::Numbers;
  int factor = 0;  // 2 to 9
  int first = 1;   // 2 to 9 as a number or coefficient, 1 where the letter stands alone
  int second = 0;  // 2 to 9
  bool minus = false;
  std::string letter;  // "" with numbers alone
  Alteration alteration = Alteration::None;

  std::string Product() const;     // "3(2x + 5)"
  std::string Spread() const;      // "3 . 2x + 3 . 5"
  std::string RightSum() const;    // "6x + 15"
  std::string ClaimedSum() const;  // the same when it is not altered
  std::string Text() const;        // the equation; backwards the sum stands first
};

// A true one.
Claim DrawClaim(Form form, int factor, const std::string& letter, RandomStream& random);

}  // namespace course::properties
