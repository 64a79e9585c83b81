// The small forms of the menu's Help: what the course is, where help is found, and who made it.
// All are modal.
#pragma once

namespace course {

// frmHelp, "Program Overview": how the menu, the lessons and the records work.
void ShowHelp();

// frmTechSupport.
void ShowTechSupportForm();

// frmAbout.
void ShowAboutForm();

}  // namespace course
