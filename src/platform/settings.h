// The installation settings: one small text file beside the program.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

struct InstallationSettings {
  int gversion = 2;                // 1 no records, 2 records on this machine, 3 records on a network
  std::filesystem::path gDataPath; // folder of the record files
};

// Reads settings from "sumwright-algebra1.settings" in the program's folder, or else in the user's
// configuration folder.  When neither exists, writes one with the defaults where it can.  A bad value
// stops the program with a message that names file, line and what is allowed.
InstallationSettings ReadInstallationSettings();

// The same for the text of a file; the name and the defaults are told by the caller.  Pure.
// On a bad line error holds the message, and the returned settings mean nothing.
InstallationSettings ParseInstallationSettings(const std::string& text, const std::string& fileName,
                                               const InstallationSettings& defaults,
                                               std::string& error);

}  // namespace platform
