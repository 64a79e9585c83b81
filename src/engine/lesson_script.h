// The contract of a lesson.
//
// A script draws one run of one activity from top to bottom, then ends.  The base owns the order of
// a run, the entry branch and the standard subroutines; a lesson adds its teaching screens, its
// generator, its problem page and its explanation.  Nothing of a script outlives a run but what
// stands in the session.
//
// A run is abandoned by an exception that a wait throws after its events were served and that Run
// catches (engine/run_exit.h): at WaitForClick, at the wait for an answer, and where a run is about
// to open a form, never inside a delay or an animation.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "engine/mistakes_page.h"
#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course {

class LessonScript {
 public:
  // The title in proper case, as the window's caption shows it.
  explicit LessonScript(std::string title);
  virtual ~LessonScript();
  LessonScript(const LessonScript&) = delete;
  LessonScript& operator=(const LessonScript&) = delete;

  // One run, as session.gActivity and its companions want it.  The lesson window is loaded.
  void Run();

  const std::string& Title() const { return title_; }
  int ScreenCount();

  // Whether the recipe of the wrong choices is laid down: then the author's tools tell how easily
  // the right one is guessed, and do not complain of it.
  virtual bool ChoicesAreLaidDown() const { return false; }

  // Whether a page behind the explanation tells which mistakes lead to the wrong choices.
  virtual bool TellsMistakes() const { return true; }
  // Whether the choices are words, which that page quotes, and not values.
  virtual bool ChoicesAreWords() const { return false; }

  // The problem of a seed, drawn without a window; a run of the seed shows and grades the same.
  struct DrawnProblem {
    Problem problem;
    std::vector<int> order;   // order[i] is the choice in box i, from 1
    std::uint64_t draws = 0;  // random numbers that the problem took, the order's aside
    int CorrectBox() const;   // 1 to 5
  };
  DrawnProblem Draw(int seed);

 protected:
  // --- What a lesson adds ------------------------------------------------------------------------
  // A numbered teaching screen: the routines that draw it, one after the other.
  using Screen = std::vector<std::function<void()>>;
  // 1 to 10 of them, in their order.  Each begins with NewScreen (engine/page.h) and ends each of
  // its pages with PageEnd.
  virtual std::vector<Screen> Screens() = 0;
  // Draws numbers from this stream alone, and fills problem, which is empty before.
  virtual void DrawProblem(RandomStream& random) = 0;
  // Prints the question under the banner and calls picAnswerSetParameters.
  virtual void ShowProblem() = 0;
  // The worked explanation of the drawn problem, from a cleared screen on, page by page.  Most
  // lessons begin it with ProblemBanner.  Behind its last line the base waits.
  virtual void ExplainProblem() = 0;
  // The figure that stays in view where the mistakes are told.
  virtual MistakesFigure FigureOfMistakes() { return {}; }
  // The type of the drawn problem, from 1, where no two new problems running, in practice or among
  // examples, may be of one type; 0 where they may.
  virtual int TypeOfProblem() const { return 0; }
  // Whether practice offers a picture of the rules.
  virtual bool OffersRules() const { return false; }

  // --- What it draws -----------------------------------------------------------------------------
  Problem problem;

  // The letter's number, typed in place of a click.  No present lesson asks for it.
  int LetterEntryHere();

 private:
  void SetDefaults();
  void Enter();
  void LessonEntry();
  void ExampleEntry();
  void ExplainMistakes(const DrawnProblem& drawn);
  void ExampleEnd();
  void AfterExample();
  void ProblemEntry();
  DrawnProblem DrawFrom(RandomStream& random);
  DrawnProblem DrawForRun();
  bool RepeatsType();
  void AskProblem(const DrawnProblem& drawn);
  void AfterProblem();
  void AfterPractice();

  std::string title_;
};

}  // namespace course
