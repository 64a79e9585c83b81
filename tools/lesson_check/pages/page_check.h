// Checks the pages of one problem: question and boxes, worked explanation and example as the
// student sees them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "engine/lesson_script.h"
#include "lesson_check/judge.h"
#include "lesson_check/pages/page_layout.h"
#include "lesson_check/pages/page_reader.h"
#include "lesson_check/pages/page_style.h"
#include "lesson_check/pages/page_text.h"
#include "session/session.h"

namespace lesson_check {

using Complain = std::function<void(const std::string& fault)>;

class PageChecker {
 public:
  explicit PageChecker(course::LessonScript& lesson);

  // The teaching screens, once a lesson.
  void CheckTeaching(const Complain& complain);
  // Problem and explanation, and for every fourth seed one more of the ways in which a student
  // meets the same problem: the seed tells which.
  void CheckProblem(int seed, const Complain& complain);

  long PagesRead() const { return pagesRead_; }

 private:
  struct SeenPage {
    PageText text;
    std::vector<std::string> faults;  // of its layout
  };
  // The page that the window shows now.
  const SeenPage& See();
  std::vector<PageText> Read(int entry, int seed, const Complain& complain);
  void CheckQuestion(const PageText& page, const Complain& complain);
  // What the judge says of the last page's figures.  A problem that it cannot read has no such
  // page, and is a fault of the drawing.  A lesson that draws nothing where the judge wants a
  // figure does so for many seeds, so that the judge is not asked again for each.
  std::vector<course::FigureItem> FigureAtEnd(int seed,
                                              const std::vector<PageText>& explanation) const;
  void CheckEnd(int entry, int seed, std::vector<PageText> pages, const Complain& complain);
  void CheckSameProblem(const std::vector<PageText>& pages, const Complain& complain);
  void CheckReview(int entry, int seed, const PageText& practice, const Complain& complain);

  course::LessonScript& lesson_;
  Judge judge_;
  course::LessonScript::DrawnProblem drawn_;
  PageReader reader_;
  PageStyle style_;
  PageLayout layout_;
  // Pages by a number for all that is looked at: of ten million pages two share one with a chance
  // of one in 300,000.
  std::unordered_map<std::uint64_t, SeenPage> seen_;
  std::unordered_set<std::uint64_t> faultless_;  // of pages without a fault of layout
  long pagesRead_ = 0;
};

// Whether the last pages before the page of mistakes end at the right choice's text, in an example
// without a word of boxes.  "" when they do, what is missing when not.
std::string MissingAtEnd(const std::vector<PageText>& pages, const course::Problem& problem,
                         int entry = course::mode::Explanation);

}  // namespace lesson_check
