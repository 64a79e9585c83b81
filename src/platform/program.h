// The running program: its toolkit, its folder, other programs.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

// Brings up the toolkit with the course's own style, palette and fonts.  One instance, in main,
// before anything else of this folder is used.  A missing font stops the program with the package
// to install.
class Application {
 public:
  Application(int& argc, char** argv);
  ~Application();
  // Serves events until no form is shown any more; returns the exit status.
  int Run();
};

std::filesystem::path ProgramFolder();
// Where the user's own data and settings go when the program's folder cannot be written.
std::filesystem::path UserDataFolder();
std::filesystem::path UserConfigFolder();
// Whether a file could be created in the folder.
bool IsWritable(const std::filesystem::path& folder);
bool FileExists(const std::filesystem::path& file);
// Starts another program and does not wait for it.  False when it could not be started.
bool StartProgram(const std::filesystem::path& file);

}  // namespace platform
