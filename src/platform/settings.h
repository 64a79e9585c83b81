// The installation settings: one small text file beside the program.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

struct InstallationSettings {
  int gversion = 2;  // 1 no records, 2 records on this machine, 3 records on a network
  std::filesystem::path gDataPath;  // folder of the record files
  int gDataPathLine = 0;            // line of the file that names it, 0 for none
};

// Where the settings are looked for, in this order, and where records are kept by default: in the
// program's folder, or in the data folder when the program's cannot be written.
struct SettingsFolders {
  std::filesystem::path program;
  std::filesystem::path config;
  std::filesystem::path data;
};
SettingsFolders OwnSettingsFolders();

// Reads settings from "sumwright-algebra1.settings" in the program's folder, or else in the user's
// configuration folder.  When neither exists, writes one with the defaults where it can.  A bad
// value, such as a data folder that does not exist, and a file that cannot be read stop the program
// with a message that names file and line, and what is allowed or what the system refused.
InstallationSettings ReadInstallationSettings();
InstallationSettings ReadSettingsIn(const SettingsFolders& folders);

// The same for the text of a file; the name and the defaults are told by the caller.  Pure.
// On a bad line error holds the message, and the returned settings mean nothing.
InstallationSettings ParseInstallationSettings(const std::string& text, const std::string& fileName,
                                               const InstallationSettings& defaults,
                                               std::string& error);

}  // namespace platform
