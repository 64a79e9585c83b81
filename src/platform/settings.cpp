#include "platform/settings.h"

#include <fstream>
#include <sstream>

#include "platform/program.h"
#include "platform/stop.h"

namespace platform {
namespace {

constexpr const char* kFileName = "sumwright-algebra1.settings";

std::string Trim(const std::string& s) {
  const std::size_t first = s.find_first_not_of(" \t\r");
  if (first == std::string::npos) return "";
  return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// "" when the line is good, else what is allowed.
std::string TakeLine(const std::string& line, InstallationSettings& settings) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return "\"name = value\" is expected, or a comment after #";
  const std::string name = Trim(line.substr(0, equals));
  const std::string value = Trim(line.substr(equals + 1));
  if (name == "gversion") {
    if (value != "1" && value != "2" && value != "3")
      return "gversion is 1 (no records), 2 (records on this machine) or 3 (records on a network)";
    settings.gversion = value[0] - '0';
    return "";
  }
  if (name == "gDataPath") {
    if (value.empty()) return "gDataPath is the path of a folder";
    settings.gDataPath = value;
    return "";
  }
  return "\"" + name + "\" is no setting: gversion and gDataPath are";
}

std::string TextOf(const InstallationSettings& settings) {
  return "# Where and how records are kept: 1 none, 2 on this machine, 3 on a network.\n"
         "gversion = " +
         std::to_string(settings.gversion) +
         "\n\n# Folder of the record files.\n"
         "gDataPath = " +
         settings.gDataPath.string() + "\n";
}

InstallationSettings DefaultSettings() {
  return {2, IsWritable(ProgramFolder()) ? ProgramFolder() : UserDataFolder()};
}

void WriteSettings(const std::filesystem::path& folder, const InstallationSettings& settings) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  std::ofstream(folder / kFileName) << TextOf(settings);
}

}  // namespace

InstallationSettings ParseInstallationSettings(const std::string& text, const std::string& fileName,
                                               const InstallationSettings& defaults,
                                               std::string& error) {
  InstallationSettings settings = defaults;
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    line = Trim(line);
    if (line.empty() || line[0] == '#') continue;
    const std::string allowed = TakeLine(line, settings);
    if (allowed.empty()) continue;
    error = fileName + ", line " + std::to_string(number) + ": \"" + line + "\".\n" + allowed + ".";
    break;
  }
  return settings;
}

InstallationSettings ReadInstallationSettings() {
  const InstallationSettings defaults = DefaultSettings();
  for (const auto& folder : {ProgramFolder(), UserConfigFolder()}) {
    const std::filesystem::path file = folder / kFileName;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) continue;
    std::stringstream text;
    text << stream.rdbuf();
    std::string error;
    const auto settings = ParseInstallationSettings(text.str(), file.string(), defaults, error);
    if (!error.empty()) Stop(error);
    return settings;
  }
  WriteSettings(IsWritable(ProgramFolder()) ? ProgramFolder() : UserConfigFolder(), defaults);
  return defaults;
}

}  // namespace platform
