// Questions to a number line with a scale: the letter of a number, the number of a letter, each
// also of an absolute value or an opposite, and letters by their order or their distance from 0.
//
//   question.Draw(random, problem);   // fills question, choices and figure of the problem
#pragma once

#include <cstddef>
#include <cstdlib>
#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/graphs/scale_line.h"
#include "mathkit/random_stream.h"

namespace course::graphs {

enum class ScaleKind {
  LetterOfNumber = 1,  // Which letter represents -6?
  LetterOfAbsolute,    // ... |-6|?
  LetterOfOpposite,    // ... the opposite of -6?
  LetterByOrder,       // ... the least number?  The greatest negative number?
  LetterByDistance,    // ... the number with the least, the greatest absolute value?
  NumberOfLetter,      // Which number does K represent?
  AbsoluteOfLetter,    // ... |K| ...
  OppositeOfLetter,    // ... -K ...
};

// A place on the line, seen from the printed number before it when one comes from 0.
struct ScalePlace {
  int number;  // not 0
  LineScale scale;

  int Way() const { return number < 0 ? -1 : 1; }
  int Start() const { return number / scale.numbers * scale.numbers; }
  int Rest() const { return std::abs(number - Start()); }
  int Ticks() const { return Rest() / scale.ticks; }
};

// "|-6|".
std::string InBars(const std::string& text);

class ScaleQuestion {
 public:
  void Draw(RandomStream& random, Problem& problem);

  ScaleKind Kind() const { return kind_; }
  const LineScale& Scale() const { return scale_; }
  // That is asked about, or stands at the letter that is asked about or that is the answer.
  int Number() const { return number_; }
  // What is asked of the number: itself, its absolute value, its opposite.
  int Target() const { return Target(number_); }
  bool AsksForNumber() const { return kind_ >= ScaleKind::NumberOfLetter; }
  bool AsksForOrder() const {
    return kind_ == ScaleKind::LetterByOrder || kind_ == ScaleKind::LetterByDistance;
  }
  // Of orders and distances: the greatest, or the least.
  bool Greatest() const { return greatest_; }

 private:
  // The first of a list is the right one and has no name.
  struct NamedValue {
    std::string mistake;
    int value;
  };
  void DrawScale(RandomStream& random);
  int DrawTick(RandomStream& random) const;
  int DrawBetweenNumbers(RandomStream& random) const;
  static std::vector<std::string> DrawLetters(RandomStream& random, std::size_t count);

  int Target(int number) const;
  std::string AskedText(const std::string& number) const;
  NamedValue MistakeOfKind() const;
  std::vector<NamedValue> DrawMisreadings(RandomStream& random) const;

  void DrawNumberProblem(RandomStream& random, Problem& problem);
  void DrawPlaceProblem(RandomStream& random, Problem& problem);
  void DrawOrderProblem(RandomStream& random, Problem& problem);
  bool IsGoodOrder(const std::vector<int>& numbers) const;
  std::vector<NamedValue> OrderMistakes(const std::vector<int>& sorted) const;
  std::vector<NamedValue> DistanceMistakes(const std::vector<int>& sorted) const;
  void FillWithLetters(const std::vector<NamedValue>& values, RandomStream& random,
                       Problem& problem) const;

  ScaleKind kind_ = ScaleKind::LetterOfNumber;
  LineScale scale_;
  int number_ = 0;
  bool greatest_ = false;
};

}  // namespace course::graphs
