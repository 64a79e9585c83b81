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

constexpr const char* kVersionAllowed =
    "gversion is 1 (no records), 2 (records on this machine) or 3 (records on a network)";
constexpr const char* kPathAllowed = "gDataPath is the path of a folder that exists";

// "" when the line is good, else what is allowed.
std::string TakeLine(const std::string& line, InstallationSettings& settings) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return "\"name = value\" is expected, or a comment after #";
  const std::string name = Trim(line.substr(0, equals));
  const std::string value = Trim(line.substr(equals + 1));
  if (name == "gversion") {
    if (value != "1" && value != "2" && value != "3") return kVersionAllowed;
    settings.gversion = value[0] - '0';
    return "";
  }
  if (name == "gDataPath") {
    settings.gDataPath = value;
    return value.empty() ? kPathAllowed : "";
  }
  return "\"" + name + "\" is no setting: gversion and gDataPath are";
}

std::string Complaint(const std::string& fileName, int line, const std::string& text,
                      const std::string& allowed) {
  return fileName + ", line " + std::to_string(line) + ": \"" + text + "\".\n" + allowed + ".";
}

void WriteSettings(const std::filesystem::path& folder, const std::string& dataPath) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  std::ofstream(folder / kFileName)
      << "# How records are kept: 1 not at all, 2 on this machine, 3 on a network.\n"
         "gversion = 2\n\n"
         "# Folder of the record files; one that does not begin with / is looked for beside this "
         "file.\n"
         "gDataPath = "
      << dataPath << "\n";
}

// The settings of a file that can be read.
InstallationSettings Checked(const std::filesystem::path& file, const std::string& text,
                             const InstallationSettings& defaults) {
  std::string error;
  InstallationSettings settings = ParseInstallationSettings(text, file.string(), defaults, error);
  if (!error.empty()) Stop(error);
  if (settings.gDataPathLine == 0) return settings;
  const std::string given = settings.gDataPath.string();
  settings.gDataPath = (file.parent_path() / settings.gDataPath).lexically_normal();
  std::error_code ignored;
  const bool keepsRecords = settings.gversion != 1;
  if (keepsRecords && !std::filesystem::is_directory(settings.gDataPath, ignored))
    Stop(Complaint(file.string(), settings.gDataPathLine, "gDataPath = " + given, kPathAllowed));
  return settings;
}

}  // namespace

SettingsFolders OwnSettingsFolders() {
  return {ProgramFolder(), UserConfigFolder(), UserDataFolder()};
}

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
    if (!allowed.empty()) {
      error = Complaint(fileName, number, line, allowed);
      break;
    }
    if (line.starts_with("gDataPath")) settings.gDataPathLine = number;
  }
  return settings;
}

InstallationSettings ReadInstallationSettings() {
  return ReadSettingsIn(OwnSettingsFolders());
}

InstallationSettings ReadSettingsIn(const SettingsFolders& folders) {
  const bool ownFolder = IsWritable(folders.program);
  InstallationSettings defaults;
  defaults.gDataPath = ownFolder ? folders.program : folders.data;
  std::error_code ignored;
  if (!ownFolder) std::filesystem::create_directories(folders.data, ignored);
  for (const auto& folder : {folders.program, folders.config}) {
    const std::filesystem::path file = folder / kFileName;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) continue;
    std::stringstream text;
    text << stream.rdbuf();
    return Checked(file, text.str(), defaults);
  }
  // The program's folder may be moved as a whole.
  WriteSettings(ownFolder ? folders.program : folders.config,
                ownFolder ? "." : defaults.gDataPath.string());
  return defaults;
}

}  // namespace platform
