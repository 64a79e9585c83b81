#include "roster_tool/commands.h"

#include <fstream>
#include <iterator>
#include <ostream>

#include "roster_tool/files.h"
#include "roster_tool/installation.h"
#include "roster_tool/results.h"
#include "roster_tool/rights.h"
#include "roster_tool/roster_csv.h"
#include "roster_tool/terminal_text.h"
#include "session/catalogue.h"

namespace roster_tool {
namespace {

// A file of another kind has a fault in every line; the first ones tell.
int Tell(const Complaints& lines, std::ostream& complaints) {
  constexpr std::size_t kMost = 20;
  for (std::size_t i = 0; i < lines.size() && i < kMost; ++i) complaints << lines[i] << "\n";
  if (lines.size() > kMost) complaints << "and " << lines.size() - kMost << " more\n";
  return lines.empty() ? 0 : 1;
}

int TellUnchanged(const Complaints& lines, std::ostream& complaints) {
  if (Tell(lines, complaints) == 0) return 0;
  complaints << "Nothing was changed.\n";
  return 1;
}

using ReadCsv = Complaints (&)(const std::string&, const std::string&, Rosters&);

Complaints ReadFile(const std::string& name, ReadCsv read, Rosters& rosters) {
  std::ifstream file(name, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file.good() && !file.eof()) return {ShownPath(name) + ": the file cannot be read"};
  return read(name, text, rosters);
}

// Everything that is wrong with both files, so that it can be mended at once; but nothing that may
// follow from what was told.
Complaints ReadBoth(const MakeRequest& request, Rosters& rosters) {
  Complaints complaints = ReadFile(request.classesCsv, ReadClassesCsv, rosters);
  const Complaints more = ReadFile(request.studentsCsv, ReadStudentsCsv, rosters);
  complaints.insert(complaints.end(), more.begin(), more.end());
  if (complaints.empty()) complaints = CheckFields(rosters);
  if (!complaints.empty()) return complaints;
  if (rosters.classes.empty()) return {ShownPath(request.classesCsv) + ": there is no class"};
  return CheckTogether(rosters);
}

std::string Several(std::size_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Sizes(std::size_t classes, std::size_t students) {
  return Several(classes, "class", "classes") + " and " + Several(students, "student", "students");
}

int MakeFiles(const MakeRequest& request, std::ostream& out, std::ostream& complaints) {
  Rosters rosters;
  if (TellUnchanged(ReadBoth(request, rosters), complaints) != 0) return 1;
  const Writing writing = {request.folder, request.overwrite, request.group};
  if (TellUnchanged(WhatKeepsFromWriting(writing), complaints) != 0) return 1;
  const Complaints numbers =
      AssignNumbers(rosters, ReadRosters(request.folder), ReadUsedNumbers(request.folder));
  if (TellUnchanged(numbers, complaints) != 0) return 1;
  const std::string sizes = Sizes(rosters.classes.size(), rosters.students.size());
  if (request.dryRun) {
    out << "Nothing is wrong with " << sizes << ".\n";
    return 0;
  }
  Complaints rights = WriteInstallation(writing, rosters);
  out << ShownPath(request.folder) << " now holds " << sizes << ".\n";
  if (rights.empty()) rights = CheckRights(request.folder);
  return Tell(rights, complaints);
}

int CheckFiles(const std::string& folder, std::ostream& out, std::ostream& complaints) {
  const Inspection found = InspectInstallation(folder);
  out << ShownPath(folder) << " holds "
      << Sizes(static_cast<std::size_t>(found.classes), static_cast<std::size_t>(found.students))
      << ", " << found.activityRecords << " activity records, " << found.diagnosticResults
      << " diagnostic results.\n";
  return Tell(found.complaints, complaints);
}

using MakeListing = Listing (&)(const Rosters&, const std::vector<std::string>&, const Selection&);

int List(const ListRequest& request, const KindOfFile& kind, MakeListing makeListing,
         std::ostream& out, std::ostream& complaints) {
  course::FillCourseTables();  // the titles of the lessons
  const Rosters rosters = ReadRosters(request.folder);
  Complaints refused;
  const Selection selection = Select(rosters, request.whose, refused);
  if (Tell(refused, complaints) != 0) return 1;
  const Listing listing = makeListing(rosters, RecordsIn(request.folder, kind), selection);
  for (const std::string& line : listing.lines) out << Shown(line) << "\n";
  if (listing.lines.empty() && listing.complaints.empty()) out << "No records found.\n";
  return Tell(listing.complaints, complaints);
}

Complaints WhatKeepsFromErasing(const EraseRequest& request) {
  const bool names = !request.whose.className.empty() || !request.whose.student.empty();
  if (names == request.everybody) return {"either --everybody, or --class, --student or both"};
  if (!request.records && !request.results) return {"--records, --results or both"};
  return ForeignLinks(request.folder);
}

int EraseFiles(const EraseRequest& request, std::ostream& out, std::ostream& complaints) {
  Complaints refused = WhatKeepsFromErasing(request);
  Selection selection;
  if (refused.empty()) selection = Select(ReadRosters(request.folder), request.whose, refused);
  if (TellUnchanged(refused, complaints) != 0) return 1;
  const char* done = request.yes ? " erased.\n" : " would be erased.\n";
  if (request.records)
    out << Several(Erase(request.folder, kRecords, selection, request.yes), "activity record",
                   "activity records")
        << done;
  if (request.results)
    out << Several(Erase(request.folder, kDiagnostics, selection, request.yes), "diagnostic result",
                   "diagnostic results")
        << done;
  if (request.yes) return 0;
  return TellUnchanged({"--yes erases them; there is no way back"}, complaints);
}

// A file that cannot be used ends the command.
template <class Command>
int WithFiles(const std::string& folder, std::ostream& complaints, Command command) {
  try {
    return command();
  } catch (const platform::FileError& error) {
    complaints << ShownPath(folder) << ": " << error.what() << "\n";
    return 1;
  }
}

}  // namespace

int Make(const MakeRequest& request, std::ostream& out, std::ostream& complaints) {
  return WithFiles(request.folder, complaints, [&] { return MakeFiles(request, out, complaints); });
}

int Check(const std::string& folder, std::ostream& out, std::ostream& complaints) {
  return WithFiles(folder, complaints, [&] { return CheckFiles(folder, out, complaints); });
}

int ListRecords(const ListRequest& request, std::ostream& out, std::ostream& complaints) {
  return WithFiles(request.folder, complaints, [&] {
    return List(request, kRecords, request.csv ? RecordCsv : RecordLines, out, complaints);
  });
}

int ListResults(const ListRequest& request, std::ostream& out, std::ostream& complaints) {
  return WithFiles(request.folder, complaints,
                   [&] { return List(request, kDiagnostics, ResultLines, out, complaints); });
}

int EraseFrom(const EraseRequest& request, std::ostream& out, std::ostream& complaints) {
  return WithFiles(request.folder, complaints,
                   [&] { return EraseFiles(request, out, complaints); });
}

}  // namespace roster_tool
