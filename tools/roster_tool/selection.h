// Whose records and results are meant: everybody's, a class's, or a student's.
#pragma once

#include <optional>
#include <string>

#include "roster_tool/entries.h"

namespace roster_tool {

// As the teacher types it, in UTF-8: a name in any case, or a number, by which those are reached
// who stand in no roster any more.  "" for all.
struct Whose {
  std::string className;
  std::string student;
};

struct Selection {
  std::optional<int> classNumber;  // none for all
  std::optional<int> studentNumber;
  bool Has(const std::string& record) const;  // of RECORDS.DAT or of Diag.dat
};
// A complaint, and an empty selection, when nobody or more than one is meant.
Selection Select(const Rosters& rosters, const Whose& whose, Complaints& complaints);

// Those of records and results, which have class and student in one place.
int ClassOfRecord(const std::string& record);
// The name in the roster; "(number 7)" for a student who stands there no more.
std::string StudentName(const Rosters& rosters, int classNumber, int studentNumber);
std::string ClassName(const Rosters& rosters, int classNumber);
// Percent of right answers by which a class passes a test.
int PassPercent(const Rosters& rosters, int classNumber);

}  // namespace roster_tool
