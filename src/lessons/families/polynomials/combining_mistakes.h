// What goes wrong when like terms are combined, and the choices that come of it.
//
// A slip goes wrong before the terms are combined: a sign that is not taken along, a factor that is
// not carried to each term.  Combining goes wrong afterwards, with slip or without.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "mathkit/random_stream.h"

namespace course::polynomials {

struct Slip {
  std::string mistake;
  Sum terms;  // that are combined after it
};
// How the mistake of a letter alone is called: among several terms it is said which one.
enum class LoneName { Letter, Term };
// Of someone who reads the sum's terms: a letter alone not counted, a minus sign not taken along.
// Where nothing can slip the terms are those of the sum.
std::vector<Slip> ReadingSlips(const Sum& sum, LoneName name = LoneName::Letter);

struct WrongSum {
  std::string mistake;
  Sum sum;  // combined
};
struct ChoiceRules {
  int slots = 5;                 // that are filled, with the right one
  bool termsMayVanish = false;   // in the right sum and in wrong ones
  int aboutUnlike = 3;           // one problem in so many has terms combined that are unlike
  bool lastSignsDiffer = false;  // a sign is mistaken only where the last two numbers' signs differ
};
// Unlike terms combined, exponents added, signs mistaken.  Wrong sums in which a term vanishes or
// passes two digits are left out; some may be equal.
std::vector<WrongSum> CombiningMistakes(const Sum& sum, const ChoiceRules& rules = {});
// The name of the single mistake that leads to a wrong sum, that of a filler where there is none.
std::string MistakeLeadingTo(const Sum& wrong, const Sum& sum, const std::vector<Slip>& slips,
                             const ChoiceRules& rules);
// Five shuffled choices for a sum whose terms are to be combined, the right one among them.  Most
// of the problems have two choices that go wrong twice, first by the same slip: if each wrong
// choice were a single step from the right one, that would be the one most like the others.
void FillCombinedChoices(Problem& problem, const Sum& sum, std::vector<Slip> slips,
                         RandomStream& random, const ChoiceRules& rules = {});

}  // namespace course::polynomials
