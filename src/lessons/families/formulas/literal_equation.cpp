#include "lessons/families/formulas/literal_equation.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "engine/choices.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::formulas {
namespace {

using enum LiteralForm;

constexpr double kAllSingle = 0.15;  // share of problems without a kept sign
constexpr const char* kKeepsSign = " and keeps the sign of the other term";

// --- Drawing -------------------------------------------------------------------------------------

std::string DrawLetters(RandomStream& random, int count) {
  std::string letters;
  const auto repeats = [&](char c) { return std::ranges::count(letters, c) > 1; };
  do {
    letters.clear();
    for (int i = 0; i < count; ++i) letters += random.OneOf(kVariableLetters);
  } while (std::ranges::any_of(letters, repeats));
  return letters;
}

int DrawNumber(RandomStream& random) {
  return random.Rand(-9, 9);
}

LiteralForm DrawFirstType(RandomStream& random) {
  const double form = random.Rnd();
  return form < 0.33 ? LeftSide : form < 0.66 ? RightSide : LetterCoefficient;
}

bool IsOne(int n) {
  return std::abs(n) == 1;
}

// Four fifths of the pairs are accepted, and 23 % of the fractions.
void DrawNumbers(LiteralEquation& equation, RandomStream& random) {
  int& p = equation.p;
  int& q = equation.q;
  int& r = equation.r;
  const bool fraction = equation.form == FractionFormula;
  const auto fits = [&] {
    if (p * q == 0 || std::abs(p) == std::abs(q)) return false;  // a term is lacking, or cancels
    if (!fraction) return true;
    ReduceFraction(p, q);
    return !IsOne(p) && !IsOne(q) &&  // no fraction when it is solved, or before
           Sgn(r) == Sgn(p);          // else the solved formula subtracts a negative term
  };
  do {
    p = DrawNumber(random);
    q = DrawNumber(random);
    if (fraction) r = DrawNumber(random);
  } while (!fits());
}

// --- Texts of solutions --------------------------------------------------------------------------

// "z - qy" divided by what stands at x, with the added term as it is given.
std::string SolvedWith(const LiteralEquation& equation, const LetterTerm& added) {
  const LetterSum rest = {equation.Alone(), -added};
  const Fraction coef = equation.Coefficient();
  switch (equation.form) {
    case LeftSide:
    case RightSide:
      return QuotientText(rest, coef.num);
    case LetterCoefficient:
      return QuotientText(rest, equation.w);
    case SumOfLetters:
      return SumText({{rest.first.coef / coef, rest.first.letter}, rest.second});
    case FractionFormula:
      break;
  }
  return ProductText(Fraction{1, 1} / coef, rest);
}

// --- Mistakes ------------------------------------------------------------------------------------

LiteralEquation WithLettersExchanged(LiteralEquation equation) {
  std::swap(equation.z, equation.form == LetterCoefficient ? equation.w : equation.y);
  return equation;
}

// Both have a coefficient of 1 or -1, and nothing but signs tells them apart.
bool LettersAreAlike(const LiteralEquation& equation) {
  return equation.form != SumOfLetters && equation.form != LetterCoefficient &&
         std::abs(equation.Added().coef.num) == 1;
}

// It multiplies by what should divide.
std::string UpsideDown(const LiteralEquation& equation, const LetterTerm& added) {
  const LetterTerm alone = equation.Alone();
  const LetterSum rest = {alone, -added};
  const Fraction coef = equation.Coefficient();
  if (equation.form == LetterCoefficient) return ProductText(equation.w, rest);
  if (equation.form == SumOfLetters)
    return SumText({{coef / alone.coef, alone.letter}, rest.second});
  return ProductText(coef, rest);
}

// z - y exchanged is y - z; but z + y would be right.
bool KeepsSignInExchange(const LiteralEquation& equation, bool wanted) {
  return LettersAreAlike(equation) ? equation.Added().coef.num < 0 : wanted;
}

// -3x, of one letter and not of a sum.
bool HasNegativeCoefficient(const LiteralEquation& equation) {
  return (equation.form == LeftSide || equation.form == RightSide) && equation.p < 0;
}

// The division, or what else is done to the whole side, reaches its first term alone.
std::string FirstTermOnly(const LiteralEquation& equation) {
  const LetterTerm alone = equation.Alone();
  const LetterTerm added = equation.Added();
  const Fraction coef = equation.Coefficient();
  if (equation.form == LetterCoefficient)
    return SumText({{alone.coef, alone.letter + "/" + equation.w}, -added});
  if (equation.form == SumOfLetters) return QuotientText({alone, -added}, coef.num);
  return SumText({{alone.coef / coef, alone.letter}, -added});
}

// The term beside x is taken from its own side, and not from the other one.
std::string OneSideOnly(const LiteralEquation& equation) {
  const LetterTerm alone = equation.Alone();
  if (equation.form == LetterCoefficient)
    return TermText({alone.coef, alone.letter + "/" + equation.w});
  return TermText({alone.coef / equation.Coefficient(), alone.letter});
}

const char* NameOfUpsideDown(const LiteralEquation& equation) {
  if (equation.form == SumOfLetters)
    return IsOne(equation.p) ? "divides by what should multiply" : "turns the fraction upside down";
  return equation.form == FractionFormula ? "multiplies by the fraction itself"
                                          : "multiplies by what should divide";
}

const char* NameOfFirstTermOnly(LiteralForm form) {
  if (form == SumOfLetters) return "multiplies only the first letter in the parentheses";
  return form == FractionFormula ? "multiplies only the first term" : "divides only the first term";
}

// Of x + y = qz.
std::string SolvedInWrongOrder(const LiteralEquation& equation) {
  const LetterTerm alone = equation.Alone();
  return SumText(
      {{Fraction{-1, 1} * alone.coef / equation.Coefficient(), alone.letter}, equation.Added()});
}

// The coefficient of x is 1 or -1: nothing is divided.
bool NeedsNoDivision(const LiteralEquation& equation) {
  return (equation.form == LeftSide || equation.form == RightSide) &&
         IsOne(equation.Coefficient().num);
}

void AddMistakesWithoutDivision(Choices<std::string>& choices, const LiteralEquation& equation) {
  const LetterTerm alone = equation.Alone();
  const LetterTerm added = equation.Added();
  if (equation.Coefficient().num < 0) {
    choices.Wrong("forgets the minus sign in front of the letter", SumText({alone, -added}));
    choices.Wrong("changes no sign at all", SumText({alone, added}));
    return;
  }
  choices.Wrong("subtracts in the wrong order", SumText({-alone, added}));
  choices.Wrong("divides by the term that is added",
                (added.coef.num < 0 ? "-" : "") + alone.letter + "/(" +
                    TermText(added.coef.num < 0 ? -added : added) + ")");
}

void AddSingleMistake(Choices<std::string>& choices, const LiteralEquation& equation,
                      bool firstTermOnly) {
  if (equation.form == SumOfLetters && IsOne(equation.p))  // no parentheses to multiply out
    choices.Wrong(equation.p > 0 ? "subtracts in the wrong order"
                                 : "forgets the minus sign before the letter",
                  SolvedInWrongOrder(equation));
  else if (firstTermOnly)
    choices.Wrong(NameOfFirstTermOnly(equation.form), FirstTermOnly(equation));
  else if (HasNegativeCoefficient(equation) && !LettersAreAlike(equation))
    choices.Wrong("overlooks the minus sign of the coefficient",
                  QuotientText({equation.Alone(), -equation.Added()}, -equation.p));
  else
    choices.Wrong("removes a term from one side only", OneSideOnly(equation));
}

}  // namespace

Fraction LiteralEquation::Coefficient() const {
  return form == FractionFormula ? Fraction{p, q} : Fraction{p, 1};
}

LetterTerm LiteralEquation::Added() const {
  switch (form) {
    case LeftSide:
    case RightSide:
      return {{q, 1}, y};
    case LetterCoefficient:
      return {{p, 1}, y};
    case SumOfLetters:
      return {{1, 1}, y};
    case FractionFormula:
      break;
  }
  return {{r, 1}, z};
}

LetterTerm LiteralEquation::Alone() const {
  if (form == FractionFormula) return {{1, 1}, y};
  const bool bare = form == LeftSide || form == RightSide;
  return {{bare ? 1 : q, 1}, z};
}

std::string LeftText(const LiteralEquation& equation) {
  const LetterTerm unknown = {{equation.p, 1}, equation.x};
  switch (equation.form) {
    case LeftSide:
      return TermText(unknown) + SignedTermText(equation.Added());
    case LetterCoefficient:
      return equation.w + equation.x + SignedTermText(equation.Added());
    case SumOfLetters: {
      const std::string sum = equation.x + SignedTermText(equation.Added());
      return equation.p == 1 ? sum : CoefText(equation.p) + "(" + sum + ")";
    }
    case RightSide:
    case FractionFormula:
      break;
  }
  return TermText(equation.Alone());
}

std::string RightText(const LiteralEquation& equation) {
  const LetterTerm unknown = {equation.Coefficient(), equation.x};
  if (equation.form == RightSide) return TermText(equation.Added()) + SignedTermText(unknown);
  if (equation.form == FractionFormula)
    return ValueText(unknown.coef) + tutor::Gap + unknown.letter + SignedTermText(equation.Added());
  return TermText(equation.Alone());
}

std::string SolvedText(const LiteralEquation& equation) {
  return SolvedWith(equation, equation.Added());
}

LiteralEquation DrawLiteralEquation(RandomStream& random) {
  LiteralEquation equation;
  const int type = random.Index(3);
  // The first type has forms with up to six letters in its recipe; four are the most that it uses.
  const std::string letters = DrawLetters(random, type == 1 ? 6 : 3);
  equation.x = letters[0];
  equation.y = letters[1];
  equation.z = letters[2];
  if (type == 1) equation.w = letters[3];
  equation.form = type == 2 ? SumOfLetters : type == 3 ? FractionFormula : LeftSide;
  DrawNumbers(equation, random);
  if (type == 1) equation.form = DrawFirstType(random);
  return equation;
}

// Every mistake by itself is nearest to the right choice, which would so be the box most like the
// others.  In most problems the exchanged letters keep a sign, too, and in some what is upside
// down; the last mistake is always a single one.
void SetLiteralProblem(Problem& problem, const LiteralEquation& equation, RandomStream& random) {
  problem.question = {"Solve for " + equation.x + ".",
                      LeftText(equation) + " = " + RightText(equation)};
  const double variant = random.Rnd();
  const bool firstTermOnly = variant < 0.5;
  const bool exchangeKeepsSign = KeepsSignInExchange(equation, variant >= kAllSingle);
  const bool upsideDownKeepsSign = variant >= kAllSingle && firstTermOnly;
  const LiteralEquation exchanged = WithLettersExchanged(equation);
  const auto also = [](bool keeps) { return keeps ? kKeepsSign : ""; };
  const auto added = [](const LiteralEquation& e, bool keeps) {
    return keeps ? -e.Added() : e.Added();
  };

  Choices<std::string> choices(problem, choice_kind::FiveShuffled, [&](const std::string& solved) {
    return equation.x + " = " + solved;
  });
  choices.Right(SolvedText(equation));
  choices.Wrong("carries a term across without changing its sign",
                SolvedWith(equation, -equation.Added()));
  choices.Wrong(std::string("exchanges the other two letters") + also(exchangeKeepsSign),
                SolvedWith(exchanged, added(exchanged, exchangeKeepsSign)));
  if (NeedsNoDivision(equation)) return AddMistakesWithoutDivision(choices, equation);
  choices.Wrong(std::string(NameOfUpsideDown(equation)) + also(upsideDownKeepsSign),
                UpsideDown(equation, added(equation, upsideDownKeepsSign)));
  AddSingleMistake(choices, equation, firstTermOnly);
}

}  // namespace course::formulas
