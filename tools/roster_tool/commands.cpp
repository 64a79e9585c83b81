#include "roster_tool/commands.h"

#include <fstream>
#include <iterator>
#include <ostream>

#include "platform/record_file.h"
#include "roster_tool/entries.h"
#include "roster_tool/installation.h"
#include "roster_tool/roster_csv.h"

namespace roster_tool {
namespace {

int Tell(const Complaints& lines, std::ostream& complaints) {
  for (const std::string& line : lines) complaints << line << "\n";
  return lines.empty() ? 0 : 1;
}

using ReadCsv = Complaints (&)(const std::string&, const std::string&, Rosters&);

Complaints ReadFile(const std::string& name, ReadCsv read, Rosters& rosters) {
  std::ifstream file(name, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file.good() && !file.eof()) return {name + ": the file cannot be read"};
  return read(name, text, rosters);
}

void Append(Complaints& complaints, const Complaints& more) {
  complaints.insert(complaints.end(), more.begin(), more.end());
}

// Everything that is wrong with both files, so that it can be mended at once.
Complaints ReadBoth(const MakeRequest& request, Rosters& rosters) {
  Complaints complaints = ReadFile(request.classesCsv, ReadClassesCsv, rosters);
  Append(complaints, ReadFile(request.studentsCsv, ReadStudentsCsv, rosters));
  if (!complaints.empty()) return complaints;
  complaints = CheckFields(rosters);
  Append(complaints, CheckTogether(rosters));
  if (rosters.classes.empty()) complaints.push_back(request.classesCsv + ": there is no class");
  return complaints;
}

std::string Several(std::size_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Sizes(std::size_t classes, std::size_t students) {
  return Several(classes, "class", "classes") + " and " + Several(students, "student", "students");
}

int MakeFiles(const MakeRequest& request, std::ostream& out, std::ostream& complaints) {
  Rosters rosters;
  if (Tell(ReadBoth(request, rosters), complaints) != 0) return 1;
  const Rosters old = request.overwrite ? ReadRosters(request.folder) : Rosters{};
  if (Tell(AssignNumbers(rosters, old), complaints) != 0) return 1;
  const std::string sizes = Sizes(rosters.classes.size(), rosters.students.size());
  if (request.dryRun) {
    out << "Nothing is wrong with " << sizes << ".\n";
    return 0;
  }
  const Complaints refused = WriteInstallation(request.folder, rosters, request.overwrite);
  if (Tell(refused, complaints) != 0) {
    complaints << "Nothing was changed.  With --overwrite the new rosters take their place.\n";
    return 1;
  }
  out << request.folder << " now holds " << sizes << ".\n";
  return 0;
}

int CheckFiles(const std::string& folder, std::ostream& out, std::ostream& complaints) {
  const Inspection found = InspectInstallation(folder);
  out << folder << " holds "
      << Sizes(static_cast<std::size_t>(found.classes), static_cast<std::size_t>(found.students))
      << ", " << found.activityRecords << " activity records, " << found.diagnosticResults
      << " diagnostic results.\n";
  return Tell(found.complaints, complaints);
}

// A file that cannot be used ends the command.
template <class Command>
int WithFiles(const std::string& folder, std::ostream& complaints, Command command) {
  try {
    return command();
  } catch (const platform::FileError& error) {
    complaints << folder << ": " << error.what() << "\n";
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

}  // namespace roster_tool
