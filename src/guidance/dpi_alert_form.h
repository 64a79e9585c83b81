// The alert at start when the screen has so many dots an inch that the lessons' characters may
// overlap, frmDPIAlert: what to do about it, on the screen and on paper.
#pragma once

namespace course {

// Modal.  The option of session.gWindowsVersionName is chosen, none for another system.
void ShowDpiAlert();

}  // namespace course
