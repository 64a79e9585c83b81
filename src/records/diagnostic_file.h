// Diag.dat, one record of 72 characters for each student's diagnostic test:
//
//   offset  0  2  program code, "C2"         6   6  date, mmddyy
//           2  2  class                     12  30  the student's letters, "A" to "E"
//           4  2  student                   42  30  the correct letters
#pragma once

#include <string>
#include <vector>

namespace course {

inline constexpr int kDiagnosticRecordLength = 72;
inline constexpr int kNoDiagnosticRecord = -1;

// Builds the record of the finished test from session.gDiagnosticData, writes it if records are
// kept for somebody, and zeroes the tally.  A record of another length stops the program.
namespace records {
void SaveDiagnosticRecord(int recordNum);
}

// Writes a record: at the end for -1, otherwise in the place of record recordNum, from 1.  Waits up
// to 45 seconds for the file, then shows a message with the system's error and ends the program.
void WriteDiagnosticRecord(const std::string& record, int recordNum);

// Makes an empty file where there is none: reading needs one.  A folder that takes no file is no
// error.
void MakeDiagnosticFile();

// The number, from 1, of this course's record of a student; -1 for none.  A missing or busy file
// stops the program.
int FindDiagnosticRecord(int classNum, int studentNum);

// All records in file order.  A missing or busy file stops the program.
std::vector<std::string> ReadDiagnosticRecords();

// Removes a student's records of every class and course; -1 removes all.  Diag.TMP stays behind.  A
// number neither -1 nor positive stops the program.
void EraseDiagnosticResults(int studentNum);

}  // namespace course
