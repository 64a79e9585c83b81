#include "lessons/families/graphs/scale_question.h"

#include <algorithm>

#include "engine/choices.h"
#include "mathkit/expressions.h"

namespace course::graphs {
namespace {

constexpr int kKinds = 8;
constexpr std::size_t kPoints = 5;  // of a problem that asks for a letter
constexpr int kTicksForOrder = 7;   // on a side, so that five distances differ

}  // namespace

std::string InBars(const std::string& text) {
  return "|" + text + "|";
}

// A number at every 2 to 8.  Ticks that are worth more than 1 where the spaces come out.
void ScaleQuestion::DrawScale(RandomStream& random) {
  scale_.numbers = random.Rand(0, 3);
  scale_.numbers += random.Rand(0, 3) + 2;
  const bool wide = random.Rand(0, 1) == 1;
  switch (scale_.numbers) {
    case 4:
      scale_.ticks = 2;
      break;
    case 6:
      scale_.ticks = wide ? 3 : 2;
      break;
    case 8:
      scale_.ticks = wide ? 4 : 2;
      break;
    default:
      scale_.ticks = 1;
  }
}

int ScaleQuestion::DrawTick(RandomStream& random) const {
  int number = 0;
  do {
    number = random.Rand(1, scale_.End());
  } while (number % scale_.ticks != 0);  // between two ticks it could not be read
  return random.Sign() * number;
}

// A third of the numbers drawn is accepted.
int ScaleQuestion::DrawBetweenNumbers(RandomStream& random) const {
  int number = 0;
  do {
    number = DrawTick(random);
  } while (number % scale_.numbers == 0);  // it is printed there
  return number;
}

std::vector<std::string> ScaleQuestion::DrawLetters(RandomStream& random, std::size_t count) {
  std::vector<std::string> letters;
  while (letters.size() < count) {
    const std::string letter = random.Letter();
    if (letter == "I" || letter == "O") continue;  // a tick, a zero
    if (std::ranges::find(letters, letter) == letters.end()) letters.push_back(letter);
  }
  return letters;
}

int ScaleQuestion::Target(int number) const {
  if (kind_ == ScaleKind::LetterOfAbsolute || kind_ == ScaleKind::AbsoluteOfLetter)
    return std::abs(number);
  if (kind_ == ScaleKind::LetterOfOpposite || kind_ == ScaleKind::OppositeOfLetter) return -number;
  return number;
}

ScaleQuestion::NamedValue ScaleQuestion::MistakeOfKind() const {
  const int other = -Target(number_);
  switch (kind_) {
    case ScaleKind::LetterOfAbsolute:
    case ScaleKind::AbsoluteOfLetter:
      return {number_ < 0 ? "leaves the absolute value negative" : "takes the opposite", other};
    case ScaleKind::LetterOfOpposite:
    case ScaleKind::OppositeOfLetter:
      return {"forgets to take the opposite", other};
    default:
      return {"takes the wrong side of 0", other};
  }
}

// What the number asked about is taken for, or the places where it is looked for, in random order.
std::vector<ScaleQuestion::NamedValue> ScaleQuestion::DrawMisreadings(RandomStream& random) const {
  const ScalePlace place = {AsksForNumber() ? number_ : Target(number_), scale_};
  const int way = place.Way();
  const int rest = place.Rest();
  const std::vector<NamedValue> all = {
      {"counts one tick too many", place.number + way * scale_.ticks},
      {"counts one tick too few", place.number - way * scale_.ticks},
      {"counts the ticks the wrong way", place.Start() - way * rest},
      {"counts the ticks from the wrong end", place.Start() + way * (scale_.numbers - rest)}};
  std::vector<NamedValue> values;
  // The scale is what the lesson is about, so this one comes first where it can be made.
  const int asOne = AsksForNumber() ? place.Ticks() : rest * scale_.ticks;
  if (scale_.ticks > 1 && asOne < scale_.numbers)
    values.push_back({"counts each tick as 1", place.Start() + way * asOne});
  const int count = static_cast<int>(all.size());
  for (const int i : random.RandSeq(count, count))
    values.push_back(all[static_cast<std::size_t>(i) - 1]);
  return values;
}

void ScaleQuestion::Draw(RandomStream& random, Problem& problem) {
  kind_ = static_cast<ScaleKind>(random.Rand(1, kKinds));
  greatest_ = random.Rand(0, 1) == 1;
  DrawScale(random);
  if (AsksForOrder())
    DrawOrderProblem(random, problem);
  else if (AsksForNumber())
    DrawNumberProblem(random, problem);
  else
    DrawPlaceProblem(random, problem);
}

std::string ScaleQuestion::AskedText(const std::string& number) const {
  switch (kind_) {
    case ScaleKind::LetterOfAbsolute:
    case ScaleKind::AbsoluteOfLetter:
      return InBars(number);
    case ScaleKind::LetterOfOpposite:
      return "the opposite of " + number;
    case ScaleKind::OppositeOfLetter:
      return "-" + number;
    default:
      return number;
  }
}

void ScaleQuestion::DrawNumberProblem(RandomStream& random, Problem& problem) {
  const std::string letter = DrawLetters(random, 1)[0];
  number_ = DrawBetweenNumbers(random);
  const std::vector<NamedValue> misreadings = DrawMisreadings(random);
  const bool alsoOtherSide = random.Rand(0, 1) == 1;

  problem.question = {"Which number does " + AskedText(letter) + " represent?"};
  problem.figure = {ScaleItem(scale_), PointOnLineItem(number_, letter)};
  const NamedValue ofKind = MistakeOfKind();
  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(Target(number_));
  choices.Wrong(ofKind.mistake, ofKind.value);
  // As many with the sign of the right one as with the other: it would be the box most like them.
  for (const NamedValue& misread : misreadings) {
    const bool isFirst = &misread == &misreadings.front();
    const int value = Target(misread.value);
    if (isFirst || !alsoOtherSide) choices.Wrong(misread.mistake, value);
    if (isFirst || alsoOtherSide) choices.Wrong(ofKind.mistake + " and " + misread.mistake, -value);
  }
  choices.Fill([&] { return Target(DrawTick(random)); });
}

void ScaleQuestion::DrawPlaceProblem(RandomStream& random, Problem& problem) {
  number_ = DrawBetweenNumbers(random);
  problem.question = {"Which letter represents " + AskedText(NumStr(number_)) + "?"};
  std::vector<NamedValue> values = {{"", Target(number_)}, MistakeOfKind()};
  for (const NamedValue& misread : DrawMisreadings(random)) values.push_back(misread);
  FillWithLetters(values, random, problem);
}

// The first value is right.  Each gets a point with a letter.
void ScaleQuestion::FillWithLetters(const std::vector<NamedValue>& values, RandomStream& random,
                                    Problem& problem) const {
  std::vector<NamedValue> points;
  const auto add = [&](const NamedValue& one) {
    const bool taken =
        std::ranges::any_of(points, [&](const NamedValue& p) { return p.value == one.value; });
    if (!taken && points.size() < kPoints) points.push_back(one);
  };
  for (const NamedValue& one : values) add(one);
  while (points.size() < kPoints) add({kFiller, DrawTick(random)});

  const std::vector<std::string> letters = DrawLetters(random, kPoints);
  problem.kind = choice_kind::FiveShuffled;
  problem.figure = {ScaleItem(scale_)};
  for (std::size_t i = 0; i < kPoints; ++i) {
    problem.figure.push_back(PointOnLineItem(points[i].value, letters[i]));
    if (i == 0)
      problem.Right(1, letters[i]);
    else
      problem.Wrong(static_cast<int>(i) + 1, points[i].mistake, letters[i]);
  }
}

bool ScaleQuestion::IsGoodOrder(const std::vector<int>& numbers) const {
  std::vector<int> sizes;
  for (const int n : numbers) sizes.push_back(std::abs(n));
  std::ranges::sort(sizes);
  if (std::ranges::adjacent_find(sizes) != sizes.end()) return false;  // equally far from 0
  const auto negative = std::ranges::count_if(numbers, [](int n) { return n < 0; });
  // With three negative numbers each of the others is a mistake.
  return kind_ == ScaleKind::LetterByOrder ? negative == 3 : negative == 2 || negative == 3;
}

// One draw of five points in eight is accepted for an order, one in four for distances.
void ScaleQuestion::DrawOrderProblem(RandomStream& random, Problem& problem) {
  std::vector<int> numbers;
  do {
    while (scale_.End() / scale_.ticks < kTicksForOrder) DrawScale(random);
    numbers.clear();
    for (std::size_t i = 0; i < kPoints; ++i) numbers.push_back(DrawTick(random));
  } while (!IsGoodOrder(numbers));
  std::ranges::sort(numbers);

  const std::string which = greatest_ ? "greatest " : "least ";
  if (kind_ == ScaleKind::LetterByOrder) {
    problem.question = {std::string("Which letter represents the ") +
                        (greatest_ ? "greatest negative" : "least") + " number?"};
    FillWithLetters(OrderMistakes(numbers), random, problem);
  } else {
    problem.question = {"Which letter represents the number with the " + which + "absolute value?"};
    FillWithLetters(DistanceMistakes(numbers), random, problem);
  }
  number_ = static_cast<int>(problem.figure[1].Value("x"));
}

std::vector<ScaleQuestion::NamedValue> ScaleQuestion::OrderMistakes(
    const std::vector<int>& sorted) const {
  const int least = sorted[0];
  const int greatestNegative = sorted[2];
  if (greatest_)
    return {{"", greatestNegative},
            {"compares without the minus signs", least},
            {"overlooks a point", sorted[1]},
            {"takes the least positive number", sorted[3]},
            {"takes the greatest number of all", sorted[4]}};
  return {{"", least},
          {"compares without the minus signs", greatestNegative},
          {"overlooks a point", sorted[1]},
          {"leaves out the negative numbers", sorted[3]},
          {"takes the greatest number of all", sorted[4]}};
}

std::vector<ScaleQuestion::NamedValue> ScaleQuestion::DistanceMistakes(
    const std::vector<int>& sorted) const {
  std::vector<int> byDistance = sorted;
  std::ranges::sort(byDistance, {}, [](int n) { return std::abs(n); });
  if (greatest_) std::ranges::reverse(byDistance);
  std::vector<NamedValue> values = {{"", byDistance[0]},
                                    {"takes the greatest number of all", sorted.back()},
                                    {"takes the least number of all", sorted.front()}};
  if (greatest_) {
    values.push_back({"takes the least absolute value", byDistance.back()});
  } else {
    const auto positive = std::ranges::find_if(sorted, [](int n) { return n > 0; });
    values.push_back({"leaves out the negative numbers", *positive});
    values.push_back({"leaves out the positive numbers", *(positive - 1)});
  }
  values.push_back({"overlooks a point", byDistance[1]});
  values.push_back({"overlooks two points", byDistance[2]});
  for (const int n : byDistance) values.push_back({kFiller, n});
  return values;
}

}  // namespace course::graphs
