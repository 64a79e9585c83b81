// The record files of a network installation: the two rosters, which this tool writes, and the two
// files of results, which must be there before the first student logs in.
#pragma once

#include <string>
#include <vector>

#include "roster_tool/entries.h"

namespace roster_tool {

// The bytes of the roster files, a string a record.  Every field is valid, every number known.
std::vector<std::string> ClassRecords(const Rosters& rosters);
std::vector<std::string> StudentRecords(const Rosters& rosters);

// What the roster files of a folder hold; missing ones hold nothing.  Throws platform::FileError.
Rosters ReadRosters(const std::string& folder);

// The numbers in the records and results of a folder.  Throws platform::FileError.
UsedNumbers ReadUsedNumbers(const std::string& folder);

struct Writing {
  std::string folder;
  bool overwrite = false;
  std::string group;  // that gets the folder, "" for the one that has it
};

// What keeps the rosters from being written: rosters that hold something and are not to be
// overwritten, a folder or file that cannot be written, a planted link, rights.  Nothing is
// changed. Throws platform::FileError.
Complaints WhatKeepsFromWriting(const Writing& writing);
// Puts the rosters in the place of those in the folder, each file in one step, and makes the files
// of results where they are missing; these are never changed.  What is wrong with rights is
// returned.  Throws platform::FileError, whose text tells which files are new already.
Complaints WriteInstallation(const Writing& writing, const Rosters& rosters);

// Whether the course can work with the files of a folder.
struct Inspection {
  Complaints complaints;
  long classes = 0;
  long students = 0;
  long activityRecords = 0;
  long diagnosticResults = 0;
};
Inspection InspectInstallation(const std::string& folder);

}  // namespace roster_tool
