#include "engine/mistakes_page.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "display/exponents.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "display/stacked_text.h"
#include "display/wrap_modes.h"
#include "engine/header.h"
#include "engine/mistakes.h"
#include "engine/page.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr double kFirstRow = 5;  // below the banner
constexpr double kLastRow = 23;
constexpr double kRoom = kLastRow - kFirstRow + 1;
constexpr int kScreenColumns = 40;
constexpr int kMathCol = 3;
constexpr int kWidestBeside = 18;  // cells of a value that leaves room for a sentence beside it
constexpr int kLastValueCol = 29;
constexpr int kColumnGap = 3;
constexpr std::size_t kLongestInLine = 26;  // cells of a value within a sentence

bool IsBuiltUp(const std::string& text) {
  return text.find_first_of("/`" + tutor::SquareRoot) != std::string::npos;
}

double RowsOfMath(const std::string& text) {
  return text.find('/') != std::string::npos ? 3 : 1;
}

// In cells; a fraction keeps off the sign before it by a part of one, twice at most.
int WidthBeside(const std::string& text) {
  const bool signs = text.find('-') != std::string::npos && text.find('/') != std::string::npos;
  return StackedTextWidth(text) + (signs ? 1 : 0);
}

// Between a built-up line, or the bar of a radical, and the text before or behind it.
double AirAt(const std::string& text) {
  return IsBuiltUp(text) ? 0.5 : 0;
}

// "There are no solutions.", as against "5 or 7": it begins with a capital and has a second word.
bool IsSentence(const std::string& text) {
  return !text.empty() && std::isupper(static_cast<unsigned char>(text[0])) != 0 &&
         text.size() > 1 && std::islower(static_cast<unsigned char>(text[1])) != 0 &&
         text.find(' ') != std::string::npos;
}

bool HasWord(const std::string& text) {
  int letters = 0;
  for (const char c : text) {
    letters = std::isalpha(static_cast<unsigned char>(c)) != 0 ? letters + 1 : 0;
    if (letters == 3) return true;
  }
  return false;
}

// Prints a paragraph in columns 1 to lastCol, or measures it.
void Wrap(double row, const std::string& text, int lastCol = kScreenColumns, double col = 1) {
  Locate(row, col);
  const NarrowWidth narrow(lastCol);
  WordWrap(text);
}
double RowsOf(const std::string& text, int lastCol = kScreenColumns) {
  Locate(2, 1);
  const NarrowWidth narrow(lastCol);
  return WordWrapRows(text);
}

// What "gets" leads to stands in the sentence, beside it, or on lines of its own below it.
enum class Place { InLine, Beside, Below };

enum class Shown { Question, Mathematics, Nothing };

struct Told {
  std::string before;
  std::string value;
  std::string after;  // behind the value; may be empty
  Place place = Place::InLine;
};

class MistakesPage {
 public:
  MistakesPage(const Problem& problem, const std::vector<NamedMistake>& mistakes,
               const MistakesFigure& figure, bool choicesAreWords)
      : figure_(figure), choicesAreWords_(choicesAreWords) {
    for (const NamedMistake& mistake : mistakes) Add(mistake);
    SetPlaces();
    for (const std::string& line : problem.question)
      question_.push_back(ExponentCharsToCarets(line));
    // Without its figure a question says nothing.
    if (!problem.figure.empty()) question_.clear();
  }

  // Without question and figure.
  bool Fits() const { return Rows(0) - figure_.rows - RowsOfQuestions() <= kRoom; }

  // The question stands above the sentences, and a row between them, if there is room for it;
  // otherwise its mathematics alone, or nothing of it; and the figure goes at last.
  void Draw() {
    const auto words = [](const std::string& line) { return !IsMath(line); };
    for (const Shown shown : {Shown::Question, Shown::Mathematics, Shown::Nothing}) {
      if (shown == Shown::Mathematics) std::erase_if(question_, words);
      if (shown == Shown::Nothing) question_.clear();
      for (const bool onLastLine : {true, false}) {
        onLastLine_ = onLastLine;
        for (const double air : {1.0, 0.5})
          if (Rows(air) <= kRoom) return DrawWith(air);
      }
    }
    // A figure is worth more than air.
    if (figure_.rows > 0 && Rows(0) <= kRoom) return DrawWith(0);
    figure_ = {};
    if (Rows(0) <= kRoom) return DrawWith(Rows(0.5) <= kRoom ? 0.5 : 0);
    platform::Stop("TellMistakes: no room for \"" + told_[0].before + "\" and what follows");
  }

 private:
  void Add(const NamedMistake& mistake) {
    const std::string value =
        choicesAreWords_ ? "~" + mistake.text + "~" : ExponentCharsToCarets(mistake.text);
    const std::string about = mistake.rounded ? " about" : "";
    const std::string verb = choicesAreWords_ ? " chooses" : " gets" + about;
    if (mistake.own)
      told_.push_back(
          {"You chose", value,
           "That is" + about + " what we get when we " + InOurWords(mistake.name) + "."});
    else
      told_.push_back({"Someone who " + mistake.name + verb, value, ""});
  }

  // "gets" alone on a line would be lost.
  static void BindLastWord(std::string& words) { words.replace(words.rfind(' '), 1, tutor::Gap); }

  // One built-up value puts all of them in a column of their own.
  void SetPlaces() {
    const bool builtUp =
        std::ranges::any_of(told_, [](const Told& told) { return IsBuiltUp(told.value); });
    for (Told& told : told_) {
      if (choicesAreWords_) {
        told.before += " " + told.value + ".";
        if (!told.after.empty()) told.before += "  " + told.after;
        continue;
      }
      const int width = WidthBeside(told.value);
      if (builtUp && width <= kWidestBeside) {
        told.place = Place::Beside;
        if (told.after.empty()) BindLastWord(told.before);
        valueWidth_ = std::max(valueWidth_, width);
      } else if (builtUp || IsSentence(told.value) || told.value.size() > kLongestInLine) {
        told.place = Place::Below;
        told.before += ":";
      } else {
        told.before += tutor::Gap + WithoutBreaks(told.value) + ".";
        if (!told.after.empty()) told.before += "  " + told.after;
      }
    }
  }

  int ValueColumn() const { return std::min(kLastValueCol, kScreenColumns + 1 - valueWidth_); }
  // A value with words behind it follows its own ones, all others stand in their column.
  int ValueCol(const Told& told) const {
    if (!told.after.empty()) return static_cast<int>(told.before.size()) + 2;
    return ValueColumn();
  }
  int LastColBeside() const { return ValueColumn() - kColumnGap; }

  double RowsOfQuestions() const {
    double rows = question_.empty() ? 0 : 1;
    for (const std::string& line : question_) rows += RowsOfQuestion(line);
    return rows;
  }
  double Rows(double air) const {
    double rows = air * static_cast<double>(told_.size() - 1) + figure_.rows + RowsOfQuestions();
    for (const Told& told : told_) rows += RowsOfTold(told);
    return rows;
  }

  static bool IsMath(const std::string& line) {
    return !HasWord(line) && StackedTextWidth(line) <= kScreenColumns + 1 - kMathCol;
  }
  static double RowsOfQuestion(const std::string& line) {
    return IsMath(line) ? AirAt(line) + RowsOfMath(line) : RowsOf(line);
  }

  // Words and value side by side: the rows above either of them, and those of both together.
  struct Block {
    double words;
    double value;
    double rows;
  };
  // The value's middle row is that of "gets", the last one of the words, or that of them all.
  Block BlockOf(const Told& told) const {
    const double words = RowsOf(told.before, LastColBeside());
    const double value = RowsOfMath(told.value);
    const double toMiddle = onLastLine_ ? words - 1 : (words - 1) / 2;
    const double down = toMiddle - (value - 1) / 2;
    const double top = std::min(0.0, down);
    return {-top, down - top, std::max(words, down + value) - top};
  }
  static double RowsOfValueBelow(const std::string& value) {
    return IsBuiltUp(value) ? RowsOfMath(value) : RowsOf(value, kScreenColumns - kMathCol + 1);
  }
  double RowsOfTold(const Told& told) const {
    if (told.place == Place::InLine) return RowsOf(told.before);
    const double after = told.after.empty() ? 0 : AirAt(told.value) + RowsOf(told.after);
    if (told.place == Place::Beside) return BlockOf(told).rows + after;
    return RowsOf(told.before) + RowsOfValueBelow(told.value) + after;
  }

  void DrawWith(double air) const {
    NewScreen();
    ProblemBanner();
    double row = kFirstRow + figure_.rows;
    if (figure_.rows > 0) figure_.draw(kFirstRow);
    for (const std::string& line : question_) {
      if (IsMath(line))
        PrintMath(row + AirAt(line), kMathCol, line);
      else
        Wrap(row, line);
      row += RowsOfQuestion(line);
    }
    if (!question_.empty()) row += 1;
    for (const Told& told : told_) {
      DrawTold(row, told);
      row += RowsOfTold(told) + air;
    }
  }

  // The row is the first one that the line takes.
  static void PrintMath(double row, double col, const std::string& text) {
    Locate(row + (RowsOfMath(text) - 1) / 2, col);
    isPrintStackedText(text);
  }

  void DrawTold(double row, const Told& told) const {
    if (told.place == Place::InLine) return Wrap(row, told.before);
    double next = row;
    if (told.place == Place::Beside) {
      const Block block = BlockOf(told);
      Wrap(row + block.words, told.before, LastColBeside());
      PrintMath(row + block.value, ValueCol(told), told.value);
      next += block.rows;
    } else {
      Wrap(row, told.before);
      next += RowsOf(told.before);
      if (IsBuiltUp(told.value))
        PrintMath(next, kMathCol, told.value);
      else
        WrapBelow(next, told.value);
      next += RowsOfValueBelow(told.value);
    }
    if (!told.after.empty()) Wrap(next + AirAt(told.value), told.after);
  }

  static void WrapBelow(double row, const std::string& value) {
    const HangingIndent indent(frmPR->lessonText, kMathCol);
    Wrap(row, value, kScreenColumns, kMathCol);
  }

  MistakesFigure figure_;
  bool choicesAreWords_;
  std::vector<std::string> question_;
  std::vector<Told> told_;
  bool onLastLine_ = true;  // of its words stands a value beside them, not in their middle
  int valueWidth_ = 0;      // cells of the widest value beside a sentence
};

void TellOn(MistakesPage page) {
  page.Draw();
  PageEnd();
}

}  // namespace

void TellMistakes(const Problem& problem, const std::vector<int>& order, int studentsBox,
                  const MistakesFigure& figure, bool choicesAreWords) {
  const std::vector<NamedMistake> mistakes = NamedMistakes(problem, order, studentsBox);
  if (mistakes.empty()) return;
  const MistakesPage whole(problem, mistakes, figure, choicesAreWords);
  if (whole.Fits()) return TellOn(whole);
  const auto middle = mistakes.begin() + static_cast<std::ptrdiff_t>((mistakes.size() + 1) / 2);
  TellOn({problem, {mistakes.begin(), middle}, figure, choicesAreWords});
  TellOn({problem, {middle, mistakes.end()}, figure, choicesAreWords});
}

}  // namespace course
