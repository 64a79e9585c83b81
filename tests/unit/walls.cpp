#include "unit/walls.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <regex>
#include <sstream>

namespace walls {
namespace {

bool IsWordChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool StartsWith(const std::string& text, const std::string& start) {
  return text.starts_with(start);
}

// Length of the comment, string or character that begins at a place; 0 when none does.
std::size_t SkippedLength(const std::string& text, std::size_t at) {
  const auto upTo = [&](const std::string& end, std::size_t from) {
    const std::size_t found = text.find(end, from);
    return (found == std::string::npos ? text.size() : found + end.size()) - at;
  };
  if (text.compare(at, 2, "//") == 0) {
    return std::min(text.find('\n', at), text.size()) - at;
  }
  if (text.compare(at, 2, "/*") == 0) return upTo("*/", at + 2);
  if (text.compare(at, 2, "R\"") == 0 && (at == 0 || !IsWordChar(text[at - 1]))) {
    const std::size_t open = text.find('(', at);
    if (open == std::string::npos) return text.size() - at;
    return upTo(")" + text.substr(at + 2, open - at - 2) + "\"", open);
  }
  const char quote = text[at];
  const bool digitSeparator = quote == '\'' && at > 0 && IsWordChar(text[at - 1]);
  if ((quote != '"' && quote != '\'') || digitSeparator) return 0;
  std::size_t end = at + 1;
  while (end < text.size() && text[end] != quote && text[end] != '\n') {
    end += text[end] == '\\' ? 2 : 1;
  }
  return std::min(end + 1, text.size()) - at;
}

struct Word {
  std::string text;
  std::size_t at = 0;
};

std::vector<Word> Words(const std::string& text) {
  std::vector<Word> words;
  for (std::size_t i = 0; i < text.size();) {
    if (!IsWordChar(text[i])) {
      ++i;
      continue;
    }
    const std::size_t start = i;
    while (i < text.size() && IsWordChar(text[i])) ++i;
    words.push_back({text.substr(start, i - start), start});
  }
  return words;
}

// Comments, strings and characters blanked.
std::string Blanked(const std::string& text) {
  std::string code = text;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t skipped = SkippedLength(text, i);
    for (std::size_t k = i; k < i + skipped; ++k) {
      if (code[k] != '\n') code[k] = ' ';
    }
    i += skipped == 0 ? 1 : skipped;
  }
  return code;
}

// Where the names of the includes begin.
std::vector<std::size_t> IncludePlaces(const std::string& code) {
  std::vector<std::size_t> places;
  for (const Word& word : Words(code)) {
    if (word.text != "include") continue;
    const std::size_t lineStart = word.at == 0 ? 0 : code.rfind('\n', word.at) + 1;
    const std::size_t hash = code.find_first_not_of(" \t", lineStart);
    if (code[hash] != '#' || code.find_first_not_of(" \t", hash + 1) != word.at) continue;
    places.push_back(word.at + word.text.size());
  }
  return places;
}

std::string Place(const SourceFile& file, std::size_t at) {
  const auto end = file.text.begin() + static_cast<std::ptrdiff_t>(at);
  return file.path + ":" + std::to_string(1 + std::count(file.text.begin(), end, '\n'));
}

bool IsSource(const SourceFile& file) {
  return file.path.ends_with(".cpp");
}
bool IsHeader(const SourceFile& file) {
  return file.path.ends_with(".h");
}
bool IsCode(const SourceFile& file) {
  return IsSource(file) || IsHeader(file);
}

// The folder under src/ in which a file stands; "main" for the program itself, none outside of
// src/.
std::optional<std::string> FolderOf(const std::string& path) {
  if (!StartsWith(path, "src/")) return std::nullopt;
  const std::size_t slash = path.find('/', 4);
  return slash == std::string::npos ? "main" : path.substr(4, slash - 4);
}

std::optional<int> FloorOf(const std::string& folder) {
  static const std::map<std::string, int> floors = {
      {"platform", 1}, {"session", 1},    {"records", 2}, {"mathkit", 2},
      {"guidance", 2}, {"display", 3},    {"engine", 4},  {"lessons", 5},
      {"shell", 6},    {"assessment", 5}, {"main", 7}};
  const auto found = floors.find(folder);
  if (found == floors.end()) return std::nullopt;
  return found->second;
}

std::set<std::string> Paths(const Files& files) {
  std::set<std::string> paths;
  for (const SourceFile& file : files) paths.insert(file.path);
  return paths;
}

// The file of the repository that an include means, as the build's search path finds it.
std::optional<std::string> Resolved(const SourceFile& from, const std::string& name,
                                    const std::set<std::string>& paths) {
  const std::string besides = from.path.substr(0, from.path.rfind('/') + 1);
  for (const std::string& folder :
       {besides, std::string("src/"), std::string("tests/"), std::string("tools/")}) {
    if (paths.contains(folder + name)) return folder + name;
  }
  return std::nullopt;
}

using Graph = std::map<std::string, std::vector<std::string>>;

Graph IncludeGraph(const Files& files) {
  const std::set<std::string> paths = Paths(files);
  Graph graph;
  for (const SourceFile& file : files) {
    if (!IsCode(file)) continue;
    std::vector<std::string>& targets = graph[file.path];
    for (const std::string& name : Includes(file)) {
      if (const auto target = Resolved(file, name, paths)) targets.push_back(*target);
    }
  }
  return graph;
}

// What the sources of platform/ share among themselves, the toolkit's types included.
bool IsInnerHeader(const std::string& name) {
  return name.ends_with("_impl.h") && name.find("platform/") != std::string::npos;
}

bool IsToolkitInclude(const std::string& name) {
  return name.size() > 1 && (StartsWith(name, "Qt") || StartsWith(name, "qt") ||
                             (name[0] == 'Q' && std::isupper(static_cast<unsigned char>(name[1]))));
}

// QString, Qt, Q_OBJECT, but neither QUESTION nor Quotient.
bool IsToolkitName(const std::string& word) {
  if (word == "Qt" || StartsWith(word, "Q_")) return true;
  return word.size() > 2 && word[0] == 'Q' && std::isupper(static_cast<unsigned char>(word[1])) &&
         std::any_of(word.begin(), word.end(), [](unsigned char c) { return std::islower(c); });
}

// A call of a free function: not of a member, nor of a function in another namespace than std.
bool IsFreeCall(const std::string& code, const Word& word) {
  const std::size_t next = code.find_first_not_of(" \t\n", word.at + word.text.size());
  if (next == std::string::npos || code[next] != '(') return false;
  std::size_t before = word.at;
  while (before > 0 && std::isspace(static_cast<unsigned char>(code[before - 1]))) --before;
  const std::string lead =
      code.substr(before > 7 ? before - 7 : 0, std::min<std::size_t>(before, 7));
  if (lead.ends_with(".") || lead.ends_with("->")) return false;
  if (!lead.ends_with("::")) return true;
  return lead.ends_with("std::") || lead.size() == 2 || !IsWordChar(lead[lead.size() - 3]);
}

bool IsMachineHeader(const std::string& name) {
  static const std::set<std::string> headers = {"fstream", "filesystem", "random",   "chrono",
                                                "ctime",   "time.h",     "unistd.h", "fcntl.h",
                                                "thread",  "csignal",    "signal.h", "dirent.h"};
  return headers.contains(name) || StartsWith(name, "sys/");
}

bool IsMachineName(const std::string& word) {
  static const std::set<std::string> names = {"fopen",
                                              "freopen",
                                              "ofstream",
                                              "ifstream",
                                              "fstream",
                                              "filesystem",
                                              "tmpfile",
                                              "getenv",
                                              "setenv",
                                              "popen",
                                              "fork",
                                              "execl",
                                              "execv",
                                              "execvp",
                                              "quick_exit",
                                              "_Exit",
                                              "_exit",
                                              "random_device",
                                              "mt19937",
                                              "mt19937_64",
                                              "system_clock",
                                              "localtime",
                                              "gmtime",
                                              "steady_clock",
                                              "gettimeofday",
                                              "clock_gettime",
                                              "high_resolution_clock",
                                              "default_random_engine",
                                              "uniform_int_distribution",
                                              "uniform_real_distribution"};
  return names.contains(word);
}

bool IsMachineCall(const std::string& word) {
  static const std::set<std::string> calls = {"time",   "clock",  "rand",  "srand",
                                              "exit",   "system", "abort", "signal",
                                              "rename", "unlink", "sleep"};
  return calls.contains(word);
}

// A script may compile a source of its own folder by itself, and names it then.
bool IsNamedByScript(const Files& files, const std::string& source) {
  return StartsWith(source, "scripts/") &&
         std::any_of(files.begin(), files.end(), [&](const SourceFile& file) {
           return file.path.ends_with(".sh") && file.text.find(source) != std::string::npos;
         });
}

}  // namespace

std::string CodeOnly(const std::string& text) {
  std::string code = Blanked(text);
  for (const std::size_t at : IncludePlaces(code)) {
    for (std::size_t k = at; k < code.size() && code[k] != '\n'; ++k) code[k] = ' ';
  }
  return code;
}

std::vector<std::string> Includes(const SourceFile& file) {
  std::vector<std::string> names;
  for (const std::size_t at : IncludePlaces(Blanked(file.text))) {
    const std::size_t open = file.text.find_first_of("\"<", at);
    const std::size_t close = file.text.find_first_of("\">", open + 1);
    if (close != std::string::npos) names.push_back(file.text.substr(open + 1, close - open - 1));
  }
  return names;
}

Complaints ClimbingIncludes(const Files& files) {
  Complaints complaints;
  for (const auto& [path, targets] : IncludeGraph(files)) {
    const auto folder = FolderOf(path);
    if (!folder) continue;
    const auto floor = FloorOf(*folder);
    if (!floor) complaints.push_back(path + ": the folder " + *folder + " stands on no floor");
    for (const std::string& target : targets) {
      const auto targetFolder = FolderOf(target);
      const auto targetFloor = targetFolder ? FloorOf(*targetFolder) : std::nullopt;
      const bool down = floor && targetFloor && *targetFloor < *floor;
      if (targetFolder != folder && !down) complaints.push_back(path + " includes " + target);
    }
  }
  return complaints;
}

Complaints IncludeCycles(const Files& files) {
  const Graph graph = IncludeGraph(files);
  Complaints complaints;
  std::set<std::string> done;
  std::vector<std::string> way;
  const std::function<void(const std::string&)> visit = [&](const std::string& path) {
    const auto met = std::find(way.begin(), way.end(), path);
    if (met != way.end()) {
      std::string circle;
      for (auto step = met; step != way.end(); ++step) circle += *step + " -> ";
      complaints.push_back(circle + path);
      return;
    }
    if (done.contains(path) || !graph.contains(path)) return;
    way.push_back(path);
    for (const std::string& target : graph.at(path)) visit(target);
    way.pop_back();
    done.insert(path);
  };
  for (const auto& [path, targets] : graph) visit(path);
  return complaints;
}

Complaints ToolkitOutsidePlatform(const Files& files) {
  Complaints complaints;
  for (const SourceFile& file : files) {
    const bool inside =
        StartsWith(file.path, "src/platform/") && (IsSource(file) || IsInnerHeader(file.path));
    const bool measures = StartsWith(file.path, "bench/");
    const bool drives = StartsWith(file.path, "tests/driver/");
    if (!IsCode(file) || inside || measures || drives) continue;
    for (const std::string& name : Includes(file)) {
      if (IsToolkitInclude(name) || IsInnerHeader(name))
        complaints.push_back(file.path + " includes " + name);
    }
    for (const Word& word : Words(CodeOnly(file.text))) {
      if (IsToolkitName(word.text)) complaints.push_back(Place(file, word.at) + ": " + word.text);
    }
  }
  return complaints;
}

Complaints MachineOutsidePlatform(const Files& files) {
  Complaints complaints;
  for (const SourceFile& file : files) {
    const auto folder = FolderOf(file.path);
    if (!IsCode(file) || !folder || *folder == "platform") continue;
    for (const std::string& name : Includes(file)) {
      if (IsMachineHeader(name)) complaints.push_back(file.path + " includes " + name);
    }
    const std::string code = CodeOnly(file.text);
    for (const Word& word : Words(code)) {
      if (IsMachineName(word.text) || (IsMachineCall(word.text) && IsFreeCall(code, word))) {
        complaints.push_back(Place(file, word.at) + ": " + word.text);
      }
    }
  }
  return complaints;
}

Complaints LeftOutOfBuild(const Files& files, const std::set<std::string>& compiled) {
  const Graph graph = IncludeGraph(files);
  std::set<std::string> reached;
  const std::function<void(const std::string&)> reach = [&](const std::string& path) {
    if (!graph.contains(path) || !reached.insert(path).second) return;
    for (const std::string& target : graph.at(path)) reach(target);
  };
  for (const std::string& source : compiled) reach(source);
  // Benchmarks may be switched off as a whole.
  const bool benchmarks =
      std::any_of(compiled.begin(), compiled.end(),
                  [](const std::string& path) { return StartsWith(path, "bench/"); });
  Complaints complaints;
  for (const SourceFile& file : files) {
    if (StartsWith(file.path, "bench/") && !benchmarks) continue;
    if (IsSource(file) && !compiled.contains(file.path) && !IsNamedByScript(files, file.path)) {
      complaints.push_back(file.path + " is not compiled");
    } else if (IsHeader(file) && !reached.contains(file.path)) {
      complaints.push_back(file.path + " is included by no compiled source");
    }
  }
  return complaints;
}

Complaints RoomsNotDescribed(const Files& files) {
  std::set<std::string> rooms;
  std::string description;
  for (const SourceFile& file : files) {
    if (file.path == "ARCHITECTURE.md") description = file.text;
    const std::size_t end = file.path.find('/', 4);
    if (file.path.starts_with("src/") && end != std::string::npos)
      rooms.insert(file.path.substr(4, end - 4));
  }
  Complaints complaints;
  for (const std::string& room : rooms)
    for (const std::string& mention : {"   " + room + "/  ", "- `" + room + "/`: "})
      if (description.find(mention) == std::string::npos)
        complaints.push_back("ARCHITECTURE.md: \"" + mention + "\" is missing");
  return complaints;
}

Files ReadTree(const std::filesystem::path& root) {
  namespace fs = std::filesystem;
  Files files;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    const std::string name = entry->path().filename().string();
    const bool skipped = name == ".git" || (entry->is_directory() && StartsWith(name, "build"));
    if (entry->is_directory() && skipped) entry.disable_recursion_pending();
    if (!entry->is_regular_file() || skipped) continue;
    std::ifstream in(entry->path(), std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (text.find('\0') != std::string::npos) continue;  // a picture or the like
    files.push_back({fs::relative(entry->path(), root).generic_string(), std::move(text)});
  }
  return files;
}

std::set<std::string> CompiledSources(const std::filesystem::path& commands,
                                      const std::filesystem::path& root) {
  std::ifstream in(commands);
  std::set<std::string> sources;
  const std::regex file("\"file\": \"(.*)\"");
  for (std::string line; std::getline(in, line);) {
    std::smatch match;
    if (!std::regex_search(line, match, file)) continue;
    sources.insert(std::filesystem::path(match[1].str()).lexically_relative(root).generic_string());
  }
  return sources;
}

}  // namespace walls
