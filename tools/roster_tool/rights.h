// Who may use the files of a network installation.  The course needs to read the rosters and to
// write the results; it does so as the student who sits at the workstation.
#pragma once

#include <string>

#include "roster_tool/entries.h"

namespace roster_tool {

// A file of the folder that is a link which neither this person nor the folder's owner has made: a
// student may have turned it to a file of another's.  A line for each.
Complaints ForeignLinks(const std::string& folder);

// Gives folder and files to the group: it may write the folder, whose new files get the group
// (setgid), and the results, and may read the rosters, which others may not.  With "" the group is
// that of the folder when the folder is set up so already, and else nothing is done.  What cannot
// be done is told with the commands that do it.  Missing files are left out.
Complaints GiveToGroup(const std::string& folder, const std::string& group);
// What keeps that from being done, before anything is changed.
Complaints WhatKeepsFromGiving(const std::string& folder, const std::string& group);

// Who cannot use what: nobody but the owner, or different groups.  Empty when a group or everybody
// can work with the folder.
Complaints CheckRights(const std::string& folder);

}  // namespace roster_tool
