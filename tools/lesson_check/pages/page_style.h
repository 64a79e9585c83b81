// How a page of teaching or explanation is written: how much it adds, its colours, its prose.
#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "display/lesson_window.h"

namespace lesson_check {

// Each fault of style begins with one of these.
namespace style {
inline constexpr const char* kNewLines = "more than four new lines";
inline constexpr const char* kColours = "more than two colours in a line";
inline constexpr const char* kRed = "red on blue";
inline constexpr const char* kOneBlank = "one blank behind a full stop";
inline constexpr const char* kExclamation = "an exclamation mark";
inline constexpr const char* kDot = "a dot between two digits";
}  // namespace style

inline constexpr std::array kStyleFaults = {style::kNewLines, style::kColours,     style::kRed,
                                            style::kOneBlank, style::kExclamation, style::kDot};

// The pages of one run after another.
class PageStyle {
 public:
  // What stands in one line, a fraction as it is typed.
  struct Line {
    double lastRow = 0;
    std::string text;
    std::vector<platform::Colour> colours;  // each once
  };

  // The next page is the first of its run, on the way to a problem with this question.
  void Begin(const std::vector<std::string>& question);
  // The faults of the page that the window shows now.  Lines of the page before and of the question
  // are not new.
  std::vector<std::string> FaultsOf(course::LessonWindow& window);

 private:
  struct Verdict {
    std::string text;  // without blanks
    std::vector<std::string> faults;
  };
  bool IsOfQuestion(const std::string& line) const;
  const Verdict& Judge(const Line& line, bool onBlue);

  std::vector<std::string> question_;                  // its lines, without blanks
  std::vector<std::string> before_;                    // lines of the last page, without blanks
  std::unordered_map<std::string, Verdict> verdicts_;  // most lines come again and again
};

}  // namespace lesson_check
