#include "guidance/help_texts.h"

#include "session/course_name.h"

namespace course {

std::string OverviewText() {
  const std::string course = kCourseName;
  return "Welcome to " + course + ".\n\n" + course +
         " is a complete and self-contained "
         "course designed for students and others engaged in self-study.  "
         "The lessons in the course teach the fundamentals of "
         "algebra 1.  The program provides a wealth of examples and practice problems for the "
         "student.  Students can also measure their progress with lesson tests.\n\n"
         "A good way to work through a lesson:\n\n"
         "   1.  Read the lesson, page by page.  Go back as often as you like.\n"
         "   2.  Look at a few examples, worked step by step.\n"
         "   3.  Practice until the problems feel easy.  A problem that you miss is explained.\n"
         "   4.  Take the lesson test.\n\n"
         "No two practice problems are likely to be the same, so you cannot run out of them.\n\n"
         "The other tabs tell you about the menu, the lessons and the records.";
}

std::string MenuText() {
  return "The menu lists the units of the course on the left, and the lessons of the selected "
         "unit on the right.\n\n"
         "TO START A LESSON, click a unit, click a lesson, then click Start Lesson.  A double "
         "click on the lesson does the same.  With the keyboard, move by the Tab key and the "
         "arrow keys, and press Enter.\n\n"
         "TO TAKE A UNIT TEST, select Unit Test, the last row of a unit.  You choose how "
         "many problems it has.\n\n"
         "PROGRESS CODES appear beside the lessons when your records are kept: W means that the "
         "lesson has been worked on, T that its test was taken but not passed, and a check mark "
         "that it was passed.  The Records menu hides them and shows them again.\n\n"
         "THE MENUS AT THE TOP hold the records, the diagnostic test with its results, and this "
         "help.  The diagnostic test finds the lessons that you should study, and prints a "
         "plan of study for you.\n\n"
         "File, Exit ends the program.";
}

std::string LessonText() {
  return "A lesson has four sections, a tab for each at the top of its window.  Click a tab to go "
         "there.\n\n"
         "LESSON CONCEPT.  Each click on CONTINUE, or anywhere on the blue page, adds a "
         "little to it.  The numbers show how many screens there are; click one to jump there.\n\n"
         "SEE EXAMPLES.  A problem is solved for you step by step.  Ask for another one as often "
         "as you like.\n\n"
         "PRACTICE PROBLEMS.  Click the box of your answer.  You are told at once whether it is "
         "right.  After a miss you can try again, or see the problem explained with its own "
         "numbers.\n\n"
         "LESSON TEST.  Five problems, without help on the way.  At the end you see your "
         "score, and you can review each problem together with its explanation.\n\n"
         "Things that move can move slower or faster: choose under Animation.  Return to Menu "
         "ends the lesson.";
}

std::string RecordsText() {
  return "The program keeps records for each student whose name is in the student file.  "
         "The student selects his or her name when the program starts.  Without a name "
         "everything works in the same way, but nothing is recorded.\n\n"
         "THE RECORDS MENU of a single PC lets you\n\n"
         "   -  add, change and remove the names of students;\n"
         "   -  look at records, sort them, print them, and erase them after use;\n"
         "   -  set the percent of correct answers that passes a test;\n"
         "   -  see what was done since the program was started.\n\n"
         "A record tells the lesson, the kind of work (lesson practice, lesson test or unit "
         "test), the date, how many problems were tried, and how many were correct.\n\n"
         "THE DIAGNOSTICS MENU shows the results of diagnostic tests, with an analysis of "
         "skills and a plan of study for each student.\n\n"
         "ON A NETWORK students also choose their class, and type their password if they have one. "
         " Names, records and results are then managed with the program roster-tool, which comes "
         "with the course: it makes the lists of names, and shows and erases what the students "
         "did.";
}

}  // namespace course
