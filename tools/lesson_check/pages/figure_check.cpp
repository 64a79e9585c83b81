#include "lesson_check/pages/figure_check.h"

#include <algorithm>
#include <cmath>

#include "engine/figure_words.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::FigureItem;
using Items = std::vector<FigureItem>;

std::string Words(const FigureItem& item) {
  return course::ToUtf8(course::WordsOf(item));
}

// A thing without a label of its own may have got any.
bool Shows(const FigureItem& shown, const FigureItem& wanted) {
  return SamePlace(shown, wanted) && (wanted.label.empty() || wanted.label == shown.label);
}

FigureItem Solid(FigureItem line) {
  std::erase_if(line.values, [](const auto& value) { return value.first == "broken"; });
  return line;
}

// An explanation need not name what it shows again, and may break a line to tell it from another.
bool ShowsAgain(const FigureItem& shown, const FigureItem& judged) {
  const bool same = SamePlace(judged.IsBroken() ? shown : Solid(shown), judged);
  return same && (judged.label.empty() || shown.label.empty() || judged.label == shown.label);
}

bool LiesOn(const FigureItem& point, const FigureItem& line) {
  const double x = point.Value("x");
  if (const auto upright = line.Find("x")) return x == *upright;
  return std::abs(line.Value("slope") * x + line.Value("intercept") - point.Value("y")) < 1e-9;
}

bool IsPointOfAPlane(const FigureItem& item) {
  return item.shape == "point" && item.Find("y");
}

// Shapes of which none is judged are the explanation's own.
bool IsJudged(const FigureItem& shown, const Items& judged) {
  bool ruled = false;
  for (const FigureItem& item : judged) {
    if (ShowsAgain(shown, item)) return true;
    const bool onLine = IsPointOfAPlane(shown) && item.shape == "line";
    if (onLine && LiesOn(shown, item)) return true;
    ruled = ruled || onLine || shown.shape == item.shape;
  }
  return !ruled;
}

std::string Missing(const Items& shown, const Items& wanted) {
  for (const FigureItem& item : wanted)
    if (std::ranges::none_of(shown, [&](const FigureItem& one) { return ShowsAgain(one, item); }))
      return Words(item);
  return "";
}

}  // namespace

std::string FigureFault(const PageText& page, const course::Problem& problem) {
  const Items& shown = page.figure;
  const Items& wanted = problem.figure;
  for (std::size_t i = 0; i < std::max(shown.size(), wanted.size()); ++i) {
    if (i >= wanted.size()) return "the figure shows more than is judged: " + Words(shown[i]);
    if (i >= shown.size()) return "the figure does not show " + Words(wanted[i]);
    if (!Shows(shown[i], wanted[i]))
      return "the figure shows " + Words(shown[i]) + " for " + Words(wanted[i]);
  }
  return "";
}

std::vector<std::string> FigureFaultsOfExplanation(const std::vector<PageText>& pages,
                                                   const course::Problem& problem,
                                                   const Items& atEnd) {
  std::vector<std::string> faults;
  Items judged = problem.figure;
  judged.insert(judged.end(), atEnd.begin(), atEnd.end());
  for (std::size_t i = 0; i < pages.size(); ++i) {
    for (const FigureItem& shown : pages[i].figure)
      if (!IsJudged(shown, judged))
        faults.push_back("page " + std::to_string(i + 1) + " shows " + Words(shown) +
                         ", which is not of this problem");
  }
  const std::string missing = pages.empty() ? "" : Missing(pages.back().figure, atEnd);
  if (!missing.empty()) faults.push_back("the last page does not show " + missing);
  return faults;
}

}  // namespace lesson_check
