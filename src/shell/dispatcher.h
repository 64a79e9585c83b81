// The loop in which the whole lesson side of the course happens.
//
// A script draws one run of one activity, then ends; what the student wants next stands in the
// session, and the loop runs a script again for as long as gRunAgain is raised.  Teaching,
// examples, practice and tests are successive runs of one script; a unit test and the diagnostic
// test are runs of different scripts, one a problem.
#pragma once

#include <functional>
#include <string>

namespace course {

// What stands selected in the menu.
struct LessonChoice {
  std::string title;  // as the menu lists it
  int unit = 0;       // from 1, 0 for none
  int row = 0;        // from 1, 0 for none
};

// What the loop calls.  A routine that is not set does nothing.
struct LessonCalls {
  std::function<void(bool enabled)> EnableMenu;
  std::function<void()> RefreshProgress;  // the menu's marks of session.gUnitNum
  std::function<void(const std::string& title)> RunScript;
  std::function<void()> Chapter_Test;  // start form and results of a unit test
  std::function<void()> Docs;          // the guide for the writers of lessons
};

// Runs the script of a title once; a title without one does nothing.
void RunScriptOf(const std::string& title);

// Runs the chosen lesson, or the diagnostic test when gDiagnosticTest is 1, or the writers' guide
// when gShowDocumentation is True, from its first run to its last.  The menu is disabled meanwhile.
void RunLesson(const LessonChoice& choice, const LessonCalls& calls);

}  // namespace course
