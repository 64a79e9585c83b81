#include "lessons/families/stories/two_ages.h"

#include <array>
#include <cstdlib>
#include <string_view>

#include "engine/choices.h"
#include "lessons/families/stories/word_table.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"

namespace course::stories {
namespace {

using page::Text;
using page::Words;

constexpr std::string_view kNames[] = {"Suzy", "Mary", "Jill", "Dave", "Paul", "Bill"};
constexpr std::string_view kRelations[] = {"times", "years"};
constexpr std::string_view kDirections[] = {"younger", "older"};
constexpr std::string_view kLetters = "kmnpxy";  // that are no words, and look like no digits
constexpr std::string_view kMixedUp = "mixes up who is older";

void DrawPeople(TwoAges& ages, RandomStream& random) {
  WordTable names(kNames);
  constexpr int kCount = static_cast<int>(std::size(kNames));
  const int first = random.Index(kCount);
  int second = 0;
  do {
    second = random.Index(kCount);
  } while (second == first);
  names.GoTo(first);
  ages.first = names.Next();
  names.GoTo(second);
  ages.second = names.Next();
}

void DrawNumbers(TwoAges& ages, RandomStream& random) {
  if (!ages.asksForNumber) {
    ages.number = ages.inTimes ? random.Rand(5, 9) : random.Rand(1, 9);
  } else if (ages.inTimes) {  // whole ages of at most 60 years, both ways
    ages.number = random.Rand(2, 6);
    ages.age = ages.number * random.Rand(5, 10);
    if (ages.firstIsOlder) ages.age /= ages.number;
  } else {
    ages.number = random.Rand(2, 9);
    ages.age = ages.number + random.Rand(2, 9);
    if (ages.firstIsOlder) ages.age = random.Rand(1, 9);
  }
}

// "0.833": cut behind three decimals, with a digit before the point.
std::string CutQuotient(int dividend, int divisor) {
  const std::string text = NumStr(dividend * 1000 / divisor / 1000.0);
  return text.starts_with('.') ? "0" + text : text;
}

// The mistake behind another operation than the right one.
std::string NameOf(const TwoAges& ages, AgeOperation operation) {
  const bool asTimes = operation == AgeOperation::Multiply || operation == AgeOperation::Divide;
  const bool asOlder = operation == AgeOperation::Multiply || operation == AgeOperation::Add;
  // Nobody is less than 0 years old: the number comes first in such a difference.
  if (ages.asksForNumber && operation == AgeOperation::Subtract && ages.age < ages.number)
    return "subtracts the smaller number from the larger one";
  if (asTimes == ages.inTimes) return std::string(kMixedUp);
  const std::string word = ages.inTimes ? "reads times as years" : "reads years as times";
  return asOlder == ages.AskedIsOlder() ? word : word + " and " + std::string(kMixedUp);
}

std::string DrawFiller(const TwoAges& ages, RandomStream& random) {
  if (ages.asksForNumber) return NumStr(random.Rand(1, 100));
  const int digit = random.Rand(2, 9);  // nobody divides by 1
  const std::string sign = random.OneOf("/+-");
  return sign == "/" ? FractionOfTexts(ages.letter, NumStr(digit))
                     : ages.letter + " " + sign + " " + NumStr(digit);
}

// What was right in the slot stays what is right, behind "None of the above".
void Overwrite(int slot, const TwoAges& ages, Problem& problem, RandomStream& random) {
  const std::string right = ages.AgeBy(ages.RightOperation());
  std::string filler;
  do {
    filler = DrawFiller(ages, random);
  } while (filler == right);
  if (slot == problem.correct) problem.Right(5, right);
  problem.Wrong(slot, kFiller, filler);
}

// Also from the right one, when that is hidden.
bool ChoicesDiffer(const Problem& problem) {
  const int last = problem.correct == 5 ? 5 : 4;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(last); ++i)
    for (std::size_t j = i + 1; j <= static_cast<std::size_t>(last); ++j)
      if (problem.choices[i].text == problem.choices[j].text) return false;
  return true;
}

}  // namespace

TwoAges TwoAges::Draw(RandomStream& random) {
  constexpr int kKinds = 8;
  TwoAges ages;
  DrawPeople(ages, random);
  // Odd kinds are told with "older"; of four there are two in times, then two in years.
  const int kind = random.Rand(0, kKinds - 1);
  ages.asksForNumber = kind >= kKinds / 2;
  ages.inTimes = kind % 4 < 2;
  ages.firstIsOlder = kind % 2 == 1;
  DrawNumbers(ages, random);
  ages.letter = random.OneOf(kLetters);
  return ages;
}

std::string TwoAges::Difference() const {
  std::string word(kRelations[inTimes ? 0 : 1]);
  if (number == 1) word = DropLastChars(word, 1);
  return NumStr(number) + " " + word + " " + std::string(kDirections[firstIsOlder ? 1 : 0]);
}

std::vector<std::string> TwoAges::Question() const {
  const std::string fact = first + " is " + Difference() + " than " + second + ".";
  if (asksForNumber)
    return {fact, Text("If {} is {} year{} old, how old is {}?", second, age,
                       Words{PluralSuffix(age)}, first)};
  return {fact,
          Text("If {} is {} years old, which expression tells {}'s age?", first, letter, second)};
}

std::string TwoAges::KnownAge() const {
  return asksForNumber ? NumStr(age) : letter;
}

AgeOperation TwoAges::RightOperation() const {
  if (inTimes) return AskedIsOlder() ? AgeOperation::Multiply : AgeOperation::Divide;
  return AskedIsOlder() ? AgeOperation::Add : AgeOperation::Subtract;
}

std::string TwoAges::AgeBy(AgeOperation operation) const {
  switch (operation) {
    case AgeOperation::Multiply:
      return asksForNumber ? NumStr(age * number) : CoefText(number) + letter;
    case AgeOperation::Divide:
      if (asksForNumber) return CutQuotient(age, number);
      return number == 1 ? letter : FractionOfTexts(letter, NumStr(number));
    case AgeOperation::Add:
      return asksForNumber ? NumStr(age + number) : letter + " + " + NumStr(number);
    case AgeOperation::Subtract:
      return asksForNumber ? NumStr(std::abs(age - number)) : letter + " - " + NumStr(number);
  }
  return "";
}

void FillChoices(const TwoAges& ages, Problem& problem, RandomStream& random) {
  using enum AgeOperation;
  constexpr std::array kForExpression = {Multiply, Divide, Add, Subtract};
  constexpr std::array kForNumber = {Divide, Multiply, Subtract, Add};
  problem.kind = choice_kind::FourShuffledAndNone;
  for (int slot = 1;
       const AgeOperation operation : ages.asksForNumber ? kForNumber : kForExpression) {
    if (operation == ages.RightOperation())
      problem.Right(slot, ages.AgeBy(operation));
    else
      problem.Wrong(slot, NameOf(ages, operation), ages.AgeBy(operation));
    ++slot;
  }
  do {
    const int slot = random.Rand(1, 5);
    // Who is older is the question of the lesson: this mistake stays.
    const bool stays = slot == 5 || MistakeOf(problem, slot) == kMixedUp;
    if (!stays) Overwrite(slot, ages, problem, random);
  } while (!ChoicesDiffer(problem));
}

}  // namespace course::stories
