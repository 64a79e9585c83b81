#include "lessons/families/stories/mixture.h"

#include <algorithm>

#include "engine/choices.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/word_table.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

constexpr std::string_view kWords[] = {
    "copper",  "gold",
    "silver",  "tin",
    "gold",    "cesium",
    "uranium", "alloy",  // metals
    "acid",    "acid solution",
    "salt",    "salt water solution",  //
    "alcohol", "alcohol solution",     //
};
constexpr int kMetals = 7;
constexpr int kAlloy = 8;        // entries
constexpr int kFirstLiquid = 9;  // kind 2; two entries a kind

enum Kind { kMetal = 1, kAcid, kSalt, kAlcohol };

constexpr int kWater = 0;  // percent
constexpr int kPure = 100;

double Rounded(const Fraction& value) {
  return RoundHundredths(static_cast<double>(value.num) / value.den);
}

void DrawWords(int kind, int material, Mixture& mixture) {
  WordTable table(kWords);
  if (kind == kMetal) {
    table.GoTo(std::min(material, kMetals));
    mixture.substance = table.Next();
    table.GoTo(kAlloy);
    mixture.name = mixture.substance + " " + table.Next();
  } else {
    table.GoTo(kFirstLiquid + 2 * (kind - kAcid));
    mixture.substance = table.Next();
    mixture.name = table.Next();
  }
  const bool weighed = kind == kMetal || kind == kSalt;
  mixture.unit = weighed ? "g" : "mL";
  mixture.unitName = weighed ? "grams" : "milliliters";
}

// Less than a tenth of a gram or milliliter is a speck.
bool CanBeMeasured(double value) {
  constexpr double kLeast = .1;
  return value >= kLeast;
}

bool CanBeMade(int kind, const Mixture& m) {
  constexpr int kLeast = 10;  // a weaker solution makes for long decimals
  if (m.final < kLeast || (m.added > kWater && m.added < kLeast)) return false;
  if (kind == kMetal && m.added == kWater) return false;  // no water in an alloy
  if ((m.original - m.final) * (m.final - m.added) <= 0) return false;
  return CanBeMeasured(m.Answer());
}

}  // namespace

// A third of the percents is accepted; half of them where salt or water is added.
Mixture Mixture::Draw(RandomStream& random) {
  constexpr int kKinds = 5;
  constexpr int kMaterials = 8;
  constexpr int kThreshold = 20;  // percent: below it the salt is left out
  Mixture m;
  int kind = random.Index(kKinds);
  if (kind == kKinds) kind = kMetal;  // twice as often as the others
  const int material = random.Index(kMaterials);
  DrawWords(kind, material, m);
  do {
    m.added = random.Index(100) - 1;
    m.original = random.Index(80) + 10;
    m.final = random.Index(91) + 4;
    m.quantity = random.Index(49) + 1;
    if (kind == kSalt) m.added = m.added < kThreshold ? kWater : kPure;
  } while (!CanBeMade(kind, m));
  return m;
}

double Mixture::Answer() const {
  return Rounded(Exact());
}

bool Mixture::IsRounded() const {
  return 100 % Exact().den != 0;
}

std::string Mixture::ValueText(double value) const {
  return NumStr(value) + tutor::Gap + unit;
}

std::string Mixture::SolutionText(int percent) const {
  if (percent == kWater) return "water";
  if (percent == kPure) return "pure " + substance;
  return ArticleOfNumber(percent) + tutor::Gap + NumStr(percent) + "% " + name;
}

std::vector<std::string> Mixture::Question() const {
  std::vector<std::string> lines;
  lines.push_back("A scientist has " + ValueText(quantity) + " of " + SolutionText(original) + ".");
  lines.push_back("How many " + unitName + " of " + SolutionText(added) +
                  " must be added to make " + SolutionText(final) + "?");
  if (IsRounded()) lines.push_back("Round to the nearest hundredth.");
  return lines;
}

std::string AsDecimal(int percent) {
  return NumStr(percent / 100.0);
}

std::string AmountText(int percent, int quantity) {
  return NumStr(percent * quantity / 100.0);
}

std::string TermText(int percent) {
  return CoefText(percent / 100.0) + "x";
}

std::string PercentText(int percent) {
  return NumStr(percent) + "%";
}

std::string TimesText(const std::string& a, const std::string& b) {
  return WithoutBreaks(a + " " + tutor::Times + " " + b);
}

void FillChoices(const Mixture& mixture, Problem& problem, RandomStream& random) {
  Choices<double> choices(problem, choice_kind::FiveShuffled,
                          [&mixture](double value) { return mixture.ValueText(value); });
  const auto wrong = [&choices](const std::string& mistake, const Fraction& value) {
    if (CanBeMeasured(Rounded(value))) choices.Wrong(mistake, Rounded(value));
  };
  const int a = mixture.quantity;
  const int down = mixture.original - mixture.final;  // both positive, or both negative
  const int up = mixture.final - mixture.added;
  choices.Right(mixture.Answer());
  wrong("uses the two distances the wrong way around", Reduced(a * up, down));
  wrong("takes the same quantity of both", {a, 1});
  if (mixture.added == kWater || mixture.added == kPure)
    wrong("gives the quantity of the whole mixture", mixture.Exact() + Fraction{a, 1});
  else if (down > 0)
    wrong("takes the additive for water", Reduced(a * down, mixture.final));
  else
    wrong("takes the additive for the pure substance", Reduced(a * -down, kPure - mixture.final));
  choices.Fill([&random] {
    double value = 0;
    do {
      value = random.Index(10000) / 100.0;
    } while (!CanBeMeasured(value));
    return value;
  });
}

}  // namespace course::stories
