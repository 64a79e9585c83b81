// The commands of lesson-lab.  Each prints its result and returns the program's exit status.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/lesson_script.h"

namespace lesson_lab {

// A line a lesson: unit, title, numbered screens.
int List();

// Problems of seeds first, first + 1 ... as JSON, a line each.  Seeds go round after 32766.
int PrintProblems(const std::string& title, int first, int count);

// Every page of one run in a folder, as NN.png and NN.txt, and contact.png with all of them.
struct PagesRequest {
  std::string title;
  std::string mode = "lesson";  // number or name of an entry mode
  int seed = 0;
  std::string folder;
};
int WritePages(const PagesRequest& request);

// Draws the problems of the seeds, shows them and explains them, and tells every fault as
// "Title#seed: fault".  All lessons without a title.  1 when there was a fault.
// To be called before the toolkit is up.
struct CheckRequest {
  std::string title;
  int first = 0;
  int last = 32766;
  bool drawOnly = false;  // no pages
  bool teaching = true;   // with the teaching screens, when there are pages
  std::string state;   // file that keeps what is done, so that a stopped check goes on; may be ""
  std::string notYet;  // file of known faults, see lesson_check/not_yet.h; may be ""
};
int Check(const CheckRequest& request);

// What a lesson, or every lesson, says: its teaching screens page by page, and three problems with
// their explanations.
int PrintProse(const std::string& title);

// All lessons, or one, to be read in a browser: index.html in a folder, with contact sheets, prose
// and three problems a lesson.
int WriteBook(const std::string& title, const std::string& folder);

// Source, judge and kept files of a lesson that the catalogue lists and that has none yet, in a
// copy of the repository.
int WriteNewLesson(const std::string& title, const std::string& root);

// Every form of the course in a folder, as NAME.png.  What stops the program ends this one, too,
// and is told with the name of the form.
int WriteForms(const std::string& folder);

// The script of a title; nullptr, and a message, when there is none.
std::unique_ptr<course::LessonScript> FindLesson(const std::string& title);

// The title as its lesson spells it, all titles for ""; none, and a message, when there is no such
// lesson.
std::vector<std::string> TitlesOf(const std::string& title);

// The unit of the menu that lists a title, in single bytes; 0 for a lesson outside of the units.
int UnitOf(const std::string& title);

}  // namespace lesson_lab
