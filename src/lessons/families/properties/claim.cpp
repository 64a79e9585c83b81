#include "lessons/families/properties/claim.h"

#include "mathkit/expressions.h"

namespace course::properties {
namespace {

std::string SignText(bool minus) {
  return minus ? " - " : " + ";
}

std::string TermText(int coefficient, const std::string& letter) {
  return letter.empty() ? NumStr(coefficient) : CoefText(coefficient) + letter;
}

}  // namespace

std::string Claim::Product() const {
  return NumStr(factor) + "(" + TermText(first, letter) + SignText(minus) + NumStr(second) + ")";
}
std::string Claim::Spread() const {
  return NumStr(factor) + kDot + TermText(first, letter) + SignText(minus) + NumStr(factor) + kDot +
         NumStr(second);
}
std::string Claim::RightSum() const {
  return TermText(factor * first, letter) + SignText(minus) + NumStr(factor * second);
}
std::string Claim::ClaimedSum() const {
  const std::string start = TermText(factor * first, letter);
  switch (alteration) {
    case Alteration::None:
      break;
    case Alteration::SecondTerm:
      return start + SignText(minus) + NumStr(second);
    case Alteration::Sign:
      return start + SignText(!minus) + NumStr(factor * second);
    case Alteration::Sum:
      return start + SignText(minus) + NumStr(factor + second);
  }
  return RightSum();
}
std::string Claim::Text() const {
  return form == Form::Backwards ? ClaimedSum() + " = " + Product()
                                 : Product() + " = " + ClaimedSum();
}

Claim DrawClaim(Form form, int factor, const std::string& letter, RandomStream& random) {
  Claim claim;
  claim.form = form;
  claim.factor = factor;
  claim.minus = random.Rand(0, 1) == 1;
  if (form != Form::Numbers) claim.letter = letter;
  int first = 0;
  do {  // 4 draws in 10 are accepted with two numbers and minus, 3 in 4 otherwise
    first = random.Rand(2, 9);
    claim.second = random.Rand(2, 9);
  } while (first == claim.second || claim.second == factor ||  // told apart when one is altered
           (form == Form::Numbers && claim.minus && first < claim.second));  // below zero
  claim.first = form == Form::Numbers || form == Form::Coefficient ? first : 1;
  return claim;
}

}  // namespace course::properties
