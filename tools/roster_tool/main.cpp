// roster-tool: makes and checks the record files of an installation on a network.
#include <CLI/CLI.hpp>
#include <iostream>

#include "roster_tool/commands.h"

int main(int argc, char** argv) {
  CLI::App app("Makes and checks the rosters of a network installation of the course.");
  app.require_subcommand(1);
  app.footer(
      "CSV files are UTF-8 text with the columns' names in the first line:\n"
      "  classes:   class, percent (that passes a test; 60 when empty), number\n"
      "  students:  class, student, password (letters and digits, 6 at most), number\n"
      "Percent, password and number may be left out.  Without a number a name keeps the one it "
      "has\n"
      "in the rosters that are overwritten, and a new name gets one that nobody had there.");

  roster_tool::MakeRequest request;
  CLI::App* make = app.add_subcommand("make", "Make the record files from two CSV files");
  make->add_option("--classes", request.classesCsv, "CSV file of the classes")
      ->required()
      ->check(CLI::ExistingFile);
  make->add_option("--students", request.studentsCsv, "CSV file of the students")
      ->required()
      ->check(CLI::ExistingFile);
  make->add_flag("--overwrite", request.overwrite, "Take the place of rosters that are there");
  make->add_flag("--dry-run", request.dryRun, "Check the CSV files and write nothing");
  make->add_option("folder", request.folder, "Folder that all workstations share")
      ->required()
      ->check(CLI::ExistingDirectory);

  std::string folder;
  CLI::App* check = app.add_subcommand("check", "Check the record files of an installation");
  check->add_option("folder", folder, "Folder that all workstations share")
      ->required()
      ->check(CLI::ExistingDirectory);

  CLI11_PARSE(app, argc, argv);
  if (make->parsed()) return roster_tool::Make(request, std::cout, std::cerr);
  return roster_tool::Check(folder, std::cout, std::cerr);
}
