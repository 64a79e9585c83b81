// The contract of a lesson.
//
// A script draws one run of one activity from top to bottom, then ends.  The base owns the order of a run,
// the entry branch and the standard subroutines; a lesson adds its teaching screens, its generator, its
// problem page and its explanation.  Nothing of a script outlives a run but what stands in the session.
//
// A run is abandoned by an exception that a wait throws after its events were served and that Run catches:
// at WaitForClick, at the wait for an answer, and after modal forms, never inside a delay or an animation.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course {

class LessonScript {
 public:
  virtual ~LessonScript();

  // One run, as session.gActivity and its companions want it.  The lesson window is loaded.
  void Run();

  const std::string& Title() const { return title_; }
  int ScreenCount();
  // The problem of a seed, drawn without a window: the order of the boxes is that of the screen.
  struct DrawnProblem {
    Problem problem;
    std::vector<int> order;  // order[i] is the choice in box i, from 1
    int CorrectBox() const;
  };
  DrawnProblem Draw(int seed);

 protected:
  explicit LessonScript(std::string title);

  // --- What a lesson adds ----------------------------------------------------------------------------
  using Screen = std::function<void()>;
  virtual std::vector<Screen> Screens() = 0;
  // Draws numbers from this stream alone, and fills problem.
  virtual void DrawProblem(RandomStream& random) = 0;
  // Prints the question and calls picAnswerSetParameters; sets answerRow.
  virtual void ShowProblem() = 0;
  virtual void ExplainProblem() = 0;

  // --- What it draws and sets ------------------------------------------------------------------------
  Problem problem;
  double answerRow = 0;  // the cursor's row at the answers

  // --- Standard subroutines --------------------------------------------------------------------------
  void NewScreen();
  void WaitForClick();
  // The wait at the end of a page.
  void PageEnd();
  // Anim; with a negative distance the reverse move.
  void AnimHere(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er);
  // A problem page (modes 1, 2, 6, 7, 10, 11), as against an example or explanation.
  static bool OnProblemPage();
  // Typing a letter in place of a click; no present lesson asks for it.
  int LetterEntryHere();

 private:
  void SetDefaults();
  void LessonEntry();
  void ExampleEntry();
  void ExampleEnd();
  void ProblemEntry();
  void AskProblem();
  void AfterProblem();
  void AfterPractice();
  bool AskAnotherExample();
  [[noreturn]] void ScriptExit();

  std::string title_;
  int pickedBox_ = 0;
  int answered_ = 0;
  std::vector<int> choiceOrder_;
};

}  // namespace course
