// The start of a page: a cleared screen and its heading.
#pragma once

#include <string>

namespace course {

// Clears and resets the lesson window; the title becomes its caption.
void Header(const std::string& title);
// The heading of a problem or example page, chosen by gMode, rowOffset rows further down.  Restores
// the print font, and with it the text colour.
void ProblemBanner(double rowOffset = 0);
// Its words; "" for a mode without one.
std::string BannerText();

}  // namespace course
