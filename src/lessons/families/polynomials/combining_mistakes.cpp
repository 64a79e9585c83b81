#include "lessons/families/polynomials/combining_mistakes.h"

#include <algorithm>
#include <cstdlib>

#include "engine/choices.h"
#include "lessons/page/say.h"

namespace course::polynomials {
namespace {

constexpr int kLargestByHand = 99;

constexpr const char* kUnlike = "combines unlike terms";
constexpr const char* kExponents = "adds the exponents too";
constexpr const char* kMinusLeft = "leaves a minus sign behind";
constexpr const char* kEarlierMinusLeft = "leaves an earlier minus sign behind";
constexpr const char* kUnlikeAndExponents = "combines unlike terms and adds the exponents too";

// The terms that are like a term, in their order.
Sum LikeOnes(const Sum& sum, const Term& term) {
  Sum like;
  std::ranges::copy_if(sum, std::back_inserter(like),
                       [&](const Term& other) { return other.IsLike(term); });
  return like;
}

// Two of at least two kinds of terms made one: a number is taken for the kind above it, else the
// two highest ones are joined.
Sum UnlikeCombined(const Sum& sum) {
  Sum wrong = Combined(sum);
  const auto first = wrong.back().letters.empty() ? wrong.end() - 2 : wrong.begin();
  const Term& second = *(first + 1);
  *first = Product({1, ""}, {first->coef + second.coef, first->letters + second.letters});
  wrong.erase(first + 1);
  return wrong;
}

// x + x as if it were x times x, in every kind of terms.
Sum ExponentsAdded(const Sum& sum) {
  Sum wrong = Combined(sum);
  for (Term& term : wrong) {
    const std::string letters = term.letters;
    for (std::size_t i = LikeOnes(sum, term).size(); i > 1; --i) term = Product(term, {1, letters});
  }
  return Combined(wrong);
}

// The first kind of at least two terms that meets a condition gets the other sign.
template <class Condition>
Sum SignTurned(const Sum& sum, Condition condition) {
  Sum wrong = Combined(sum);
  for (Term& term : wrong) {
    const Sum like = LikeOnes(sum, term);
    if (like.size() < 2 || !condition(like)) continue;
    term.coef = -term.coef;
    break;
  }
  return wrong;
}

// Whether terms that are added from left to right end with two numbers of different signs.
bool LastSignsDiffer(const Sum& like) {
  int before = 0;
  for (std::size_t i = 0; i + 1 < like.size(); ++i) before += like[i].coef;
  return (before < 0 && like.back().coef > 0) || (before > 0 && like.back().coef < 0);
}

Sum SignTurnedOfUnlikeSigns(const Sum& sum, const ChoiceRules& rules) {
  return SignTurned(sum, rules.lastSignsDiffer ? LastSignsDiffer : HasBothSigns);
}

Sum SignTurnedOfNegatives(const Sum& sum) {
  return SignTurned(sum, AllNegative);
}

Slip LoneLetterDropped(const Sum& sum, LoneName name) {
  Slip slip = {"counts a letter alone as 0", sum};
  const auto lone = std::ranges::find_if(slip.terms, [](const Term& term) {
    return !term.letters.empty() && std::abs(term.coef) == 1;
  });
  if (lone == slip.terms.end()) return slip;
  if (name == LoneName::Term)
    slip.mistake =
        page::Text("counts {}", TermText(*lone) + " as 0" + TermText({1, lone->letters}));
  slip.terms.erase(lone);
  return slip;
}

Sum LastMinusLost(const Sum& sum) {
  Sum wrong = sum;
  for (std::size_t i = sum.size(); --i > 0;) {
    if (wrong[i].coef > 0) continue;
    wrong[i].coef = -wrong[i].coef;
    break;
  }
  return wrong;
}

bool IsSmall(const Sum& sum) {
  return std::ranges::all_of(sum, [](const Term& term) {
    return term.coef != 0 && std::abs(term.coef) <= kLargestByHand;
  });
}

// Whether it can stand beside the right sum: as many terms, none of them 0 or large.
bool IsBelievable(const Sum& wrong, const Sum& right, bool termsMayVanish = false) {
  const bool hasTerms = termsMayVanish ? !wrong.empty() : wrong.size() == right.size();
  return IsSmall(wrong) && hasTerms && wrong != right;
}

template <class T>
void StartAnywhere(std::vector<T>& list, RandomStream& random) {
  if (list.empty()) return;
  std::ranges::rotate(list, list.begin() + random.Index(static_cast<int>(list.size())) - 1);
}

const WrongSum* Find(const std::vector<WrongSum>& list, const std::string& mistake) {
  const auto found = std::ranges::find(list, mistake, &WrongSum::mistake);
  return found == list.end() ? nullptr : &*found;
}

// Unlike terms combined, also with added exponents and behind two slips.
void AddAroundUnlike(Choices<Sum>& choices, const std::vector<WrongSum>& mistakes,
                     const std::vector<Slip>& slips, const ChoiceRules& rules) {
  constexpr int kTwice = 2;
  for (const char* name : {kUnlike, kUnlikeAndExponents})
    if (const WrongSum* wrong = Find(mistakes, name)) choices.Wrong(wrong->mistake, wrong->sum);
  int behindSlips = 0;
  for (const Slip& slip : slips) {
    const std::vector<WrongSum> second = CombiningMistakes(slip.terms, rules);
    const WrongSum* wrong = Find(second, kUnlike);
    if (wrong == nullptr || ++behindSlips > kTwice) continue;
    choices.Wrong(slip.mistake + " and " + kUnlike, wrong->sum);
  }
}

Slip LastLeftOut(const Sum& sum) {
  return {"leaves out the last term", {sum.begin(), sum.end() - 1}};
}

// Of someone who goes wrong once; it need not be the last minus sign that is left behind.
std::vector<WrongSum> SingleMistakes(const Sum& sum, const std::vector<Slip>& slips,
                                     const ChoiceRules& rules) {
  std::vector<WrongSum> singles = CombiningMistakes(sum, rules);
  for (const Slip& slip : slips) singles.push_back({slip.mistake, Combined(slip.terms)});
  for (std::size_t i = 1; i < sum.size(); ++i) {
    Sum positive = sum;
    positive[i].coef = std::abs(positive[i].coef);
    if (positive != sum) singles.push_back({kEarlierMinusLeft, Combined(positive)});
  }
  return singles;
}

// The first slip, another mistake, both of them, and one more behind the slip: they lie around the
// slip.  Another slip comes at times in place of the last one.  What a single mistake
// leads to bears its name alone.
void AddAroundSlip(Choices<Sum>& choices, const Sum& sum, const std::vector<Slip>& slips,
                   RandomStream& random, const ChoiceRules& rules) {
  const std::vector<WrongSum> singles = SingleMistakes(sum, slips, rules);
  std::vector<WrongSum> mistakes = CombiningMistakes(sum, rules);
  const Slip& slip = slips[0];
  const bool manySlips = slips.size() > 2;
  std::vector<WrongSum> second = CombiningMistakes(slip.terms, rules);
  for (std::vector<WrongSum>* list : {&mistakes, &second})
    std::erase_if(*list, [&](const WrongSum& wrong) {
      // One term among sums of two is seen to be wrong: not where there are others.
      return wrong.mistake == kUnlikeAndExponents || (manySlips && wrong.mistake == kUnlike);
    });
  StartAnywhere(mistakes, random);
  StartAnywhere(second, random);
  choices.Wrong(slip.mistake, Combined(slip.terms));
  const auto addBehindSlip = [&](const WrongSum& wrong) {
    const auto single = std::ranges::find(singles, wrong.sum, &WrongSum::sum);
    choices.Wrong(
        single == singles.end() ? slip.mistake + " and " + wrong.mistake : single->mistake,
        wrong.sum);
  };
  if (!mistakes.empty()) {
    choices.Wrong(mistakes[0].mistake, mistakes[0].sum);
    if (const WrongSum* both = Find(second, mistakes[0].mistake)) addBehindSlip(*both);
  }
  const bool otherSlip = random.Index(2) == 1 && slips.size() > 1;
  if (otherSlip) choices.Wrong(slips[1].mistake, Combined(slips[1].terms));
  for (const WrongSum& wrong : second) addBehindSlip(wrong);
}

}  // namespace

std::vector<Slip> ReadingSlips(const Sum& sum, LoneName name) {
  return {LoneLetterDropped(sum, name), {kMinusLeft, LastMinusLost(sum)}};
}

std::string MistakeLeadingTo(const Sum& wrong, const Sum& sum, const std::vector<Slip>& slips,
                             const ChoiceRules& rules) {
  std::vector<Slip> all = slips;
  all.push_back(LastLeftOut(sum));
  const std::vector<WrongSum> singles = SingleMistakes(sum, all, rules);
  const auto found = std::ranges::find(singles, wrong, &WrongSum::sum);
  return found == singles.end() ? kFiller : found->mistake;
}

std::vector<WrongSum> CombiningMistakes(const Sum& sum, const ChoiceRules& rules) {
  const Sum right = Combined(sum);
  const Sum exponentsAdded = ExponentsAdded(sum);  // terms may come together, and vanish
  std::vector<WrongSum> mistakes;
  const auto addUnlike = [&](const char* mistake, const Sum& apart) {
    if (apart.size() < 2) return;
    const Sum wrong = UnlikeCombined(apart);
    if (IsSmall(wrong)) mistakes.push_back({mistake, wrong});
  };
  addUnlike(kUnlike, right);
  addUnlike(kUnlikeAndExponents, exponentsAdded);
  const std::vector<WrongSum> others = {
      {kExponents, exponentsAdded},
      {"makes two negatives a positive", SignTurnedOfNegatives(sum)},
      {"takes the wrong sign in a sum of unlike signs", SignTurnedOfUnlikeSigns(sum, rules)}};
  for (const WrongSum& wrong : others)
    if (IsBelievable(wrong.sum, right)) mistakes.push_back(wrong);
  return mistakes;
}

void FillCombinedChoices(Problem& problem, const Sum& sum, std::vector<Slip> slips,
                         RandomStream& random, const ChoiceRules& rules) {
  Choices<Sum> choices(problem, choice_kind::FiveShuffled, SumText, rules.slots);
  const Sum right = Combined(sum);
  const std::vector<WrongSum> mistakes = CombiningMistakes(sum, rules);
  choices.Right(right);
  for (Slip& slip : slips)
    std::erase_if(slip.terms, [](const Term& term) { return term.coef == 0; });
  const auto isBelievable = [&](const Slip& slip) {
    return IsBelievable(Combined(slip.terms), right, rules.termsMayVanish);
  };
  std::erase_if(slips, [&](const Slip& slip) { return !isBelievable(slip); });
  StartAnywhere(slips, random);
  const bool aroundUnlike = random.Index(rules.aboutUnlike) == 1 && right.size() > 1;
  if (!slips.empty() && !aroundUnlike) AddAroundSlip(choices, sum, slips, random, rules);
  slips.push_back(LastLeftOut(sum));
  if (aroundUnlike) AddAroundUnlike(choices, mistakes, slips, rules);
  for (const WrongSum& wrong : mistakes) choices.Wrong(wrong.mistake, wrong.sum);
  for (const Slip& slip : slips)
    if (isBelievable(slip)) choices.Wrong(slip.mistake, Combined(slip.terms));
  choices.Fill([&] {
    Sum near = right;
    for (Term& term : near) {
      const int step = random.Sign() * random.Rand(1, 3);
      term.coef += term.coef == -step ? 2 * step : step;  // no term vanishes
    }
    return near;
  });
}

}  // namespace course::polynomials
