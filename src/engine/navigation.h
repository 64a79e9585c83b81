// The student's side of the lesson window: buttons, tabs, numbers, menu and keys.
//
// Handlers run nested in the wait of a script.  They draw nothing: they write fields of the session
// and release the wait, and the script unwinds or goes on by what it finds there.  All but Esc and
// the close box ignore the student during a delay or an animation.
#pragma once

namespace course {

// Loads the lesson window, binds its handlers and shows it; the other way round at the end.
void LoadLessonWindow();
void UnloadLessonWindow();

// The buttons that belong to a wait at a page's end, by gMode.
void ShowNavButtons();

// Handlers that scripts call as plain routines, too.  Buttons and numbers count only 0.1 seconds
// after the wait began, so that a double click on CONTINUE skips no page.
void cmdNavigate_Click(int index);
void picNav_Click(int index);
void picScreenNum_Click(int index);

// Asks when a test is running, and may refuse.  True when the lesson will be left.
bool LeaveLesson();

}  // namespace course
