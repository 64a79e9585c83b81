// frmGeoUtility: lays out a proof in two columns, statements and reasons, on a panel of its own.
#pragma once

namespace course {

// Modal.
void ShowGeoUtility();

}  // namespace course
