// lesson-lab: the authors' bench beside the course.  It draws problems and pages without a student.
#include <CLI/CLI.hpp>
#include <cstdlib>

#include "lesson_lab/commands.h"
#include "platform/program.h"
#include "session/catalogue.h"

namespace {

// "17" or "0-999".
void ReadSeeds(const std::string& text, lesson_lab::CheckRequest& request) {
  const std::size_t dash = text.find('-');
  const auto number = [](const std::string& digits) {
    const bool all = !digits.empty() && digits.size() <= 5 &&
                     digits.find_first_not_of("0123456789") == std::string::npos;
    return all ? std::stoi(digits) : -1;
  };
  request.first = number(text.substr(0, dash));
  request.last = dash == std::string::npos ? request.first : number(text.substr(dash + 1));
  if (request.first < 0 || request.last < request.first || request.last > 32766)
    throw CLI::ValidationError("--seeds", "\"" + text + "\" is no range A-B within 0-32766");
}

}  // namespace

int main(int argc, char** argv) {
  // Without a display the pages are drawn all the same.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  course::FillCourseTables();

  CLI::App app("Draws the problems and pages of the course's lessons.");
  app.require_subcommand(1);
  std::string title;
  int seed = 0;
  int count = 1;
  lesson_lab::PagesRequest pages;

  app.add_subcommand("list", "A line a lesson: unit, title, screens");

  CLI::App* problem = app.add_subcommand("problem", "Problems as JSON, a line each");
  problem->add_option("title", title, "The lesson's title, in any case")->required();
  problem->add_option("--seed", seed, "First seed")->required()->check(CLI::Range(0, 32766));
  problem->add_option("--count", count, "How many seeds")->check(CLI::Range(1, 32767));

  CLI::App* draw = app.add_subcommand("pages", "Every page of one run as pictures and text");
  draw->add_option("title", pages.title, "The lesson's title, in any case")->required();
  draw->add_option("--mode", pages.mode, "Entry mode: 1 to 13, or lesson, example, practice ...")
      ->required();
  draw->add_option("--seed", pages.seed, "Seed of the problem")->check(CLI::Range(0, 32766));
  draw->add_option("--out", pages.folder, "Folder for the pages")->required();

  std::string folder;
  CLI::App* forms = app.add_subcommand("forms", "Every form of the course as a picture");
  forms->add_option("--out", folder, "Folder for the pictures")->required();

  std::string root = ".";
  CLI::App* created = app.add_subcommand("new", "The files of a lesson that is to be written");
  created->add_option("title", title, "The title, as the catalogue lists it, in any case")
      ->required();
  created->add_option("--root", root, "The repository's folder, this one without it");

  CLI::App* prose = app.add_subcommand("prose", "What a lesson, or every lesson, says, as text");
  prose->add_option("title", title, "The lesson's title, in any case; all without one");

  CLI::App* book = app.add_subcommand("book", "All lessons to be read in a browser");
  book->add_option("title", title, "The lesson's title, in any case; all without one");
  book->add_option("--out", folder, "Folder for index.html and its pictures")->required();

  lesson_lab::CheckRequest checked;
  CLI::App* check = app.add_subcommand("check", "All problems and pages of a lesson, or of all");
  check->add_option("title", checked.title, "The lesson's title, in any case; all without one");
  check->add_option_function<std::string>(
      "--seeds", [&checked](const std::string& text) { ReadSeeds(text, checked); },
      "Seeds A-B, all without it");
  check->add_flag("--draw-only", checked.drawOnly, "No pages: problems alone");
  check->add_option("--state", checked.state, "File from which a stopped check goes on");
  check->add_option("--not-yet", checked.notYet, "File of faults known of lessons to be reworked");

  CLI11_PARSE(app, argc, argv);
  if (created->parsed()) return lesson_lab::WriteNewLesson(title, root);
  // Each of the processes of a check brings up the toolkit for itself.
  if (check->parsed()) return lesson_lab::Check(checked);
  platform::Application application(argc, argv);
  if (problem->parsed()) return lesson_lab::PrintProblems(title, seed, count);
  if (draw->parsed()) return lesson_lab::WritePages(pages);
  if (prose->parsed()) return lesson_lab::PrintProse(title);
  if (book->parsed()) return lesson_lab::WriteBook(title, folder);
  if (forms->parsed()) return lesson_lab::WriteForms(folder);
  return lesson_lab::List();
}
