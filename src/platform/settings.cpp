#include "platform/settings.h"

#include <cstring>
#include <optional>
#include <sstream>

#include "platform/file_calls.h"
#include "platform/program.h"
#include "platform/record_file.h"
#include "platform/stop.h"

namespace platform {
namespace {

constexpr const char* kFileName = "sumwright-algebra1.settings";

constexpr const char* kBlanks = " \t\r";
constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

std::string Trim(const std::string& s) {
  const std::size_t first = s.find_first_not_of(kBlanks);
  if (first == std::string::npos) return "";
  return s.substr(first, s.find_last_not_of(kBlanks) - first + 1);
}

// A comment begins the line or follows a blank: a folder's name may hold the sign.
std::string WithoutComment(const std::string& line) {
  for (std::size_t at = line.find('#'); at != std::string::npos; at = line.find('#', at + 1))
    if (at == 0 || std::strchr(kBlanks, line[at - 1]) != nullptr) return line.substr(0, at);
  return line;
}

// Messages must stay on the screen, whatever the file holds.
constexpr std::size_t kMostQuoted = 60;

std::string Quoted(std::string text) {
  if (text.size() > kMostQuoted) text.replace(kMostQuoted, std::string::npos, "...");
  for (char& c : text)
    if (c < ' ' || c == 127) c = '?';
  return "\"" + text + "\"";
}

// Of a long path the end.
std::string Shown(const std::string& path) {
  return path.size() <= kMostQuoted ? path : "..." + path.substr(path.size() - kMostQuoted);
}

constexpr const char* kVersionAllowed =
    "gversion is 1 (no records), 2 (records on this machine) or 3 (records on a network)";
constexpr const char* kPathAllowed = "gDataPath is the path of a folder that exists";

// The lines that gave the values, 0 for none.
struct GivenLines {
  int gversion = 0;
  int gDataPath = 0;
};

// "" when the line is good, else what is allowed.
std::string TakeLine(const std::string& line, int number, InstallationSettings& settings,
                     GivenLines& given) {
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) return "\"name = value\" is expected, or a comment after #";
  const std::string name = Trim(line.substr(0, equals));
  const std::string value = Trim(line.substr(equals + 1));
  if (name != "gversion" && name != "gDataPath")
    return Quoted(name) + " is no setting: gversion and gDataPath are";
  int& givenIn = name == "gversion" ? given.gversion : given.gDataPath;
  if (givenIn != 0)
    return name + " is given once, and line " + std::to_string(givenIn) + " gives it already";
  givenIn = number;
  if (name == "gDataPath") {
    settings.gDataPath = value;
    return value.empty() ? kPathAllowed : "";
  }
  if (value != "1" && value != "2" && value != "3") return kVersionAllowed;
  settings.gversion = value[0] - '0';
  return "";
}

std::string Complaint(const std::string& fileName, int line, const std::string& text,
                      const std::string& allowed) {
  return Shown(fileName) + ", line " + std::to_string(line) + ":\n" + Quoted(text) + ".\n" +
         allowed + ".";
}

// The text of a settings file; nothing when none stands there.  What stands there and cannot be
// read stops the program: without its settings it would be another kind of installation.
std::optional<std::string> TextOf(const std::filesystem::path& file) {
  std::error_code error;
  const auto found = std::filesystem::symlink_status(file, error);
  if (found.type() == std::filesystem::file_type::not_found) return std::nullopt;
  const std::string complaint = Shown(file.string()) + " cannot be read.\n";
  const auto behindLinks = std::filesystem::status(file, error);
  if (std::filesystem::exists(behindLinks) && !std::filesystem::is_regular_file(behindLinks))
    Stop(complaint + "It is not a file.");
  try {
    return RecordFile(file.string(), 1, Access::Read, Sharing::Plain).ReadBytes();
  } catch (const FileError& refused) {
    Stop(complaint + refused.what() + ".");
  }
}

// Writes the settings, or nothing: a file that holds only a part would stand for all of them.
void WriteSettings(const std::filesystem::path& folder, const std::string& dataPath) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const std::string text =
      "# How records are kept: 1 not at all, 2 on this machine, 3 on a network.\n"
      "gversion = 2\n\n"
      "# Folder of the record files; one that does not begin with / is looked for beside this "
      "file.\n"
      "gDataPath = " +
      dataPath + "\n";
  FileCalls& calls = TheFileCalls();
  const std::string file = (folder / kFileName).string();
  const int descriptor = calls.Open(file, {.write = true, .create = true});
  if (descriptor < 0) return;
  const long written = calls.Write(descriptor, text.data(), text.size(), 0);
  const bool whole = written == static_cast<long>(text.size()) && calls.Sync(descriptor) >= 0;
  calls.Close(descriptor);
  if (!whole) calls.Remove(file);
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
  GivenLines given;
  std::istringstream lines(text.starts_with(kByteOrderMark) ? text.substr(3) : text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    line = Trim(WithoutComment(line));
    if (line.empty()) continue;
    const std::string allowed = TakeLine(line, number, settings, given);
    if (!allowed.empty()) {
      error = Complaint(fileName, number, line, allowed);
      break;
    }
  }
  settings.gDataPathLine = given.gDataPath;
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
    if (const auto text = TextOf(file)) return Checked(file, *text, defaults);
  }
  // The program's folder may be moved as a whole.
  WriteSettings(ownFolder ? folders.program : folders.config,
                ownFolder ? "." : defaults.gDataPath.string());
  return defaults;
}

}  // namespace platform
