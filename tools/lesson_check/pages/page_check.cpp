#include "lesson_check/pages/page_check.h"

#include <algorithm>
#include <bit>
#include <set>
#include <string_view>
#include <utility>

#include "display/panel_views.h"
#include "engine/figure_words.h"
#include "engine/header.h"
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/pages/entry.h"
#include "lesson_check/pages/figure_check.h"
#include "lesson_check/pages/mistakes_check.h"
#include "lesson_check/pages/page_layout.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_check {
namespace {

using course::frmPR;
using course::Problem;
namespace mode = course::mode;

constexpr int kTurns = 24;  // what seeds of every kind have in common is looked at in one of these

std::string NameOf(int entry) {
  switch (entry) {
    case mode::SameProblem:
      return "problem";
    case mode::Explanation:
      return "explanation";
    case mode::Example:
      return "example";
    case mode::Lesson:
      return "teaching";
    case mode::LessonTestReview:
      return "review in a lesson test";
    case mode::LessonTestExplanation:
      return "explanation in a lesson test";
    case mode::UnitTestReview:
      return "review in a unit test";
    case mode::DiagnosticProblem:
      return "problem of the diagnostic test";
    case mode::UnitTestExplanation:
      return "explanation in a unit test";
    default:
      return "mode " + std::to_string(entry);
  }
}

std::string Quoted(const std::string& text) {
  return "\"" + course::ToUtf8(text) + "\"";
}

// A number for everything that the checks of a page read.
class Look {
 public:
  void Add(const course::PanelView& view) {
    const platform::PictureBox& box = *view.control;
    Add(box.Name());
    Add(box.AccessibleText());
    if (view.items != nullptr)
      for (const course::FigureItem& item : *view.items) Add(item);
    for (const int twips : {box.Left(), box.Top(), box.Width(), box.Height()}) Add(twips);
    if (view.text == nullptr) return;
    for (const course::Fragment& fragment : view.text->Transcript()) {
      for (const double place :
           {fragment.row, fragment.col, fragment.width, fragment.rise, fragment.height})
        Add(place);
      Add(fragment.level);
      Add(fragment.text);
    }
  }
  void Add(const std::string& text) { Mix(std::hash<std::string>{}(text)); }
  std::uint64_t Value() const { return value_; }

 private:
  void Add(const course::FigureItem& item) {
    Add(item.shape);
    Add(item.label);
    for (const auto& [name, value] : item.values) {
      Add(name);
      Add(value);
    }
  }
  void Add(double place) { Mix(std::bit_cast<std::uint64_t>(place)); }
  void Add(int number) { Mix(static_cast<std::uint64_t>(number)); }
  // The multiplier is 2^64 divided by the golden ratio, odd and without a pattern.
  void Mix(std::uint64_t bits) {
    value_ = (std::rotl(value_, 27) ^ bits) * 0x9E3779B97F4A7C15u;
    value_ ^= value_ >> 29;
  }

  std::uint64_t value_ = 0;
};

std::uint64_t LookOf(course::LessonWindow& window) {
  Look look;
  for (const course::PanelView& view : course::ShownPanels(window)) look.Add(view);
  look.Add(course::BannerText());
  return look.Value();
}

// Pages of prose, as against a problem's.
bool IsWritten(int entry) {
  return entry == mode::Lesson || entry == mode::Example || entry == mode::Explanation ||
         entry == mode::LessonTestExplanation || entry == mode::UnitTestExplanation;
}

// The banner alone tells a practice problem from its review.
PageText WithoutBanner(PageText page) {
  constexpr std::string_view kBanners[] = {"Try the following problem", "Lesson Test Problem",
                                           "Unit Test Problem", "Diagnostic Test Problem"};
  std::erase_if(page.lines, [&](const std::string& line) {
    const std::string text = Trimmed(line);
    return std::ranges::any_of(kBanners,
                               [&](std::string_view banner) { return text.starts_with(banner); });
  });
  return page;
}

bool ShowsNumbers(const std::vector<std::string>& shown, const std::string& line,
                  std::string& missing) {
  for (const std::string& number : NumbersIn(line)) {
    if (std::ranges::find(shown, number) != shown.end()) continue;
    missing = number;
    return false;
  }
  return true;
}

// What the last page that says something new says.
std::string LastWords(const std::vector<PageText>& pages) {
  for (std::size_t i = pages.size(); i-- > 0;) {
    const PageText added = i == 0 ? pages[0] : NewOn(pages[i], pages[i - 1]);
    std::string words = added.Whole();
    if (!words.empty()) return words;
  }
  return "";
}

}  // namespace

std::string MissingAtEnd(const std::vector<PageText>& pages, const Problem& problem, int entry) {
  if (pages.empty()) return "it has no page";
  const bool hidden = problem.correct == 5 && course::HasNoneOfTheAbove(problem.kind);
  const bool none = hidden && entry != mode::Example;
  const std::string truth =
      Comparable(problem.choices.at(static_cast<std::size_t>(problem.correct)).text);
  const std::string last = LastWords(pages);
  if (hidden && !none && last.find(course::kNoneOfTheAbove) != std::string::npos)
    return "it speaks of " + Quoted(course::kNoneOfTheAbove) + ", and an example has no boxes";
  const std::string whole = pages.back().Whole();
  // With "None of the above" the true answer stands before the last words.
  if (!ContainsAsWords(none ? whole : last, truth))
    return "it does not end at " + Quoted(truth) + " but at " + Quoted(last);
  if (none && last.find(course::kNoneOfTheAbove) == std::string::npos)
    return "it does not tell that " + Quoted(truth) + " is not among the choices";
  return "";
}

PageChecker::PageChecker(course::LessonScript& lesson)
    : lesson_(lesson), judge_(JudgeOf(lesson.Title())) {}

// A problem's explanation comes again as an example and in tests, and small lessons have few
// problems.
const PageChecker::SeenPage& PageChecker::See() {
  constexpr std::size_t kMostSeen = 2000;
  if (seen_.size() > kMostSeen) seen_.clear();
  const auto [page, isNew] = seen_.try_emplace(LookOf(*frmPR));
  if (!isNew) return page->second;
  page->second.text = ReadPage(*frmPR);
  if (faultless_.contains(page->first)) return page->second;
  page->second.faults = layout_.FaultsOf(*frmPR);
  if (page->second.faults.empty()) faultless_.insert(page->first);
  return page->second;
}

std::vector<PageText> PageChecker::Read(int entry, int seed, const Complain& complain) {
  std::vector<PageText> pages;
  std::set<std::string> told;  // a fault that stands on several pages is told once
  style_.Begin(drawn_.problem.question);
  const auto look = [&] {
    ++pagesRead_;
    const SeenPage& page = See();
    pages.push_back(page.text);
    std::vector<std::string> faults = page.faults;
    if (IsWritten(entry))
      for (std::string& fault : style_.FaultsOf(*frmPR))
        // The frame's sentences need no page each.
        if (!fault.starts_with(style::kNewLines) || !IsMistakesPage(page.text))
          faults.push_back(std::move(fault));
    for (const std::string& fault : faults)
      if (told.insert(fault).second)
        complain(NameOf(entry) + ", page " + std::to_string(pages.size()) + ": " + fault);
  };
  try {
    reader_.Read(lesson_, entry, seed, look);
  } catch (const StoppedRun& stopped) {
    complain(NameOf(entry) + ", page " + std::to_string(pages.size() + 1) +
             " stops the program: " + stopped.what());
  }
  return pages;
}

void PageChecker::CheckTeaching(const Complain& complain) {
  if (Read(mode::Lesson, 0, complain).empty()) complain("teaching: there is no page");
}

void PageChecker::CheckQuestion(const PageText& page, const Complain& complain) {
  const std::string whole = WithoutBlanks(page.Whole());
  for (const std::string& line : drawn_.problem.question)
    if (whole.find(WithoutBlanks(Comparable(line))) == std::string::npos)
      complain("problem: the page does not show " + Quoted(line));
  const int count = course::ChoiceCountOf(drawn_.problem.kind);
  if (page.answers.size() != static_cast<std::size_t>(count)) {
    complain("problem: the page shows " + std::to_string(page.answers.size()) + " boxes");
    return;
  }
  for (int box = 1; box <= count; ++box) {
    const auto place = static_cast<std::size_t>(box);
    const std::string text = Comparable(ChoiceText(drawn_.problem, drawn_.order.at(place)));
    if (page.answers[place - 1] != text)
      complain("problem: box " + std::to_string(box) + " shows " + Quoted(page.answers[place - 1]) +
               " for " + Quoted(text));
  }
}

std::vector<course::FigureItem> PageChecker::FigureAtEnd(
    int seed, const std::vector<PageText>& explanation) const {
  const bool isDrawn =
      std::ranges::any_of(explanation, [](const PageText& page) { return !page.figure.empty(); });
  try {
    if (judge_ != nullptr && (isDrawn || seed % kTurns == 0))
      if (const auto figure = judge_(drawn_.problem).figureAtEnd) return *figure;
  } catch (const Unreadable&) {
  }
  return drawn_.problem.figure;
}

void PageChecker::CheckEnd(int entry, int seed, std::vector<PageText> pages,
                           const Complain& complain) {
  const PageText mistakes = TakeMistakesPage(pages);
  if (entry != mode::Example && lesson_.TellsMistakes()) {
    const std::string fault =
        FaultOfMistakesPage(mistakes, drawn_, PickedBox(seed), lesson_.ChoicesAreWords());
    if (!fault.empty()) complain("page of mistakes: " + fault);
  } else if (!mistakes.lines.empty()) {
    complain("page of mistakes: there is to be none");
  }
  const std::string missing = MissingAtEnd(pages, drawn_.problem, entry);
  if (!missing.empty()) complain("explanation: " + missing);
  for (const std::string& fault :
       FigureFaultsOfExplanation(pages, drawn_.problem, FigureAtEnd(seed, pages)))
    complain("explanation: " + fault);
}

void PageChecker::CheckSameProblem(const std::vector<PageText>& pages, const Complain& complain) {
  std::vector<std::string> numbers;
  for (const PageText& page : pages) {
    const std::vector<std::string> more = NumbersIn(page.Whole());
    numbers.insert(numbers.end(), more.begin(), more.end());
  }
  for (const std::string& line : drawn_.problem.question) {
    std::string missing;
    if (!ShowsNumbers(numbers, line, missing))
      complain("explanation: the question's number " + missing + " does not occur");
  }
}

void PageChecker::CheckReview(int entry, int seed, const PageText& practice,
                              const Complain& complain) {
  const std::vector<PageText> review = Read(entry, seed, complain);
  if (review.empty() || WithoutBanner(review[0]).lines != WithoutBanner(practice).lines ||
      review[0].answers != practice.answers ||
      course::WordsOf(review[0].figure) != course::WordsOf(practice.figure))
    complain(NameOf(entry) + ": it is not the page of the practice problem");
}

void PageChecker::CheckProblem(int seed, const Complain& complain) {
  drawn_ = lesson_.Draw(seed);
  const std::vector<PageText> problem = Read(mode::SameProblem, seed, complain);
  if (problem.empty()) return complain("problem: there is no page");
  CheckQuestion(problem[0], complain);
  const std::string figure = FigureFault(problem[0], drawn_.problem);
  if (!figure.empty()) complain("problem: " + figure);
  std::vector<PageText> explanation = Read(mode::Explanation, seed, complain);
  CheckSameProblem(explanation, complain);
  CheckEnd(mode::Explanation, seed, std::move(explanation), complain);
  // The other ways lead through the same routines; six of each turn's seeds walk one of them.
  constexpr int kOtherWays[] = {
      mode::Example,        mode::LessonTestReview,    mode::LessonTestExplanation,
      mode::UnitTestReview, mode::UnitTestExplanation, mode::DiagnosticProblem};
  const auto turn = static_cast<std::size_t>(seed % kTurns);
  if (turn >= std::size(kOtherWays)) return;
  const int way = kOtherWays[turn];
  if (!IsWritten(way))
    CheckReview(way, seed, problem[0], complain);
  else
    CheckEnd(way, seed, Read(way, seed, complain), complain);
}

}  // namespace lesson_check
