// The student's side of the lesson window: buttons, tabs, numbers, menu and keys.
#pragma once

namespace course {

// Loads the lesson window, binds its handlers and shows it; the other way round at the end.
void LoadLessonWindow();
void UnloadLessonWindow();

// The buttons that belong to a wait at a page's end, by gMode.
void ShowNavButtons();

// Handlers that scripts call as plain routines, too.
void cmdNavigate_Click(int index);
void picNav_Click(int index);
void picScreenNum_Click(int index);

// Asks when a test is running, and may refuse.  True when the lesson will be left.
bool LeaveLesson();

}  // namespace course
