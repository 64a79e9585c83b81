// What was done in this run of the program, frmDisplaySession: also without a login, and on a
// network.
#pragma once

namespace course {

// Modal.  The passing percent is 70 from then on.
void ShowSession();

// Empties the session's entries when the person is sure.
void ClearSession();

}  // namespace course
