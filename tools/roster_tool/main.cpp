// roster-tool: makes and checks the record files of an installation on a network, and shows and
// erases what its students have done.
#include <CLI/CLI.hpp>
#include <functional>
#include <iostream>

#include "roster_tool/commands.h"

namespace {

using roster_tool::EraseRequest;
using roster_tool::ListRequest;
using roster_tool::MakeRequest;
using roster_tool::Whose;

void AddFolder(CLI::App& command, std::string& folder) {
  command.add_option("folder", folder, "Folder that all workstations share")
      ->required()
      ->check(CLI::ExistingDirectory);
}

void AddWhose(CLI::App& command, Whose& whose) {
  command.add_option("--class", whose.className, "Name or number of a class");
  command.add_option("--student", whose.student, "Name of a student; or, with a class, number");
}

void AddMake(CLI::App& command, MakeRequest& request) {
  command.add_option("--classes", request.classesCsv, "CSV file of the classes")
      ->required()
      ->check(CLI::ExistingFile);
  command.add_option("--students", request.studentsCsv, "CSV file of the students")
      ->required()
      ->check(CLI::ExistingFile);
  command.add_option("--group", request.group,
                     "Group of the students, which gets the rights that they need");
  command.add_flag("--overwrite", request.overwrite, "Take the place of rosters that are there");
  command.add_flag("--dry-run", request.dryRun, "Check all that the work needs, and write nothing");
  AddFolder(command, request.folder);
}

void AddErase(CLI::App& command, EraseRequest& request) {
  AddWhose(command, request.whose);
  command.add_flag("--everybody", request.everybody, "All classes");
  command.add_flag("--records", request.records, "Erase activity records");
  command.add_flag("--results", request.results, "Erase diagnostic results");
  command.add_flag("--yes", request.yes, "Really; else their number is told");
  AddFolder(command, request.folder);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Makes and checks the rosters of a network installation of the course.");
  app.require_subcommand(1);
  app.footer(
      "CSV files are UTF-8 text with the columns' names in the first line:\n"
      "  classes:   class, percent (that passes a test; 60 when empty), number\n"
      "  students:  class, student, password (letters and digits, 6 at most), number\n"
      "Percent, password and number may be left out.  Without a number a name keeps the one it "
      "has\n"
      "in the rosters that are overwritten, and a new name gets one that nobody had there, and "
      "that\n"
      "stands in no record.");

  MakeRequest made;
  AddMake(*app.add_subcommand("make", "Make the record files from two CSV files"), made);
  std::string checked;
  AddFolder(*app.add_subcommand("check", "Check the record files, and who may use them"), checked);
  ListRequest listed;
  CLI::App* records = app.add_subcommand("records", "List the records of students");
  AddWhose(*records, listed.whose);
  records->add_flag("--csv", listed.csv, "As CSV, for a spreadsheet");
  AddFolder(*records, listed.folder);
  CLI::App* results = app.add_subcommand("results", "Show the diagnostic results of students");
  AddWhose(*results, listed.whose);
  AddFolder(*results, listed.folder);
  EraseRequest erased;
  AddErase(*app.add_subcommand("erase", "Erase records or diagnostic results"), erased);

  CLI11_PARSE(app, argc, argv);
  const std::string command = app.get_subcommands().front()->get_name();
  if (command == "make") return Make(made, std::cout, std::cerr);
  if (command == "check") return roster_tool::Check(checked, std::cout, std::cerr);
  if (command == "records") return ListRecords(listed, std::cout, std::cerr);
  if (command == "results") return ListResults(listed, std::cout, std::cerr);
  return EraseFrom(erased, std::cout, std::cerr);
}
