// How a page of a script begins and ends, for lessons and for what lessons share.
//
// The waits throw when the student wants to go elsewhere: LessonScript::Run catches it, so that
// nothing behind a wait is drawn any more.
#pragma once

namespace course {

// A cleared screen under the script's title.
void NewScreen();
// The wait at the end of a page, with the buttons that belong to it.
void PageEnd();
// The same behind the last line of an explanation or example, unless its own PageEnd came behind
// that line already.
void FinishPages();
// Waits for CONTINUE.
void WaitForClick();
// Whether a problem is asked on this page (modes 1, 2, 6, 7, 10, 11), as against an example or an
// explanation.  The diagnostic test counts with the latter.
bool OnProblemPage();

// Anim; with a negative distance the reverse move.  A direction dr other than 1 to 4 stops the
// program.
void AnimHere(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er);

}  // namespace course
