// Lessons that are not yet written as the checks of style ask: what is known of them is no fault
// until they are brought over.
#pragma once

#include <map>
#include <set>
#include <string>

#include "lesson_check/report.h"

namespace lesson_check {

// By title in UTF-8: beginnings of faults, behind the name of their page.
using NotYet = std::map<std::string, std::set<std::string>>;

// Lines "TITLE: FAULT"; a line that begins with "#" is a remark.  Throws when there is no such
// file.
NotYet ReadNotYet(const std::string& path);

// Takes the findings that are listed for the title out of the report, and adds one for each listed
// fault that the lesson does not have, which only a check of problems and pages can tell.
void Pardon(const NotYet& notYet, const std::string& title, bool withPages, Report& report);

}  // namespace lesson_check
