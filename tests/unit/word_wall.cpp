#include "unit/word_wall.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <memory>
#include <regex>
#include <sstream>

namespace walls {
namespace {

// What a line in small letters must not match.  Only a line that holds the stem is searched, which
// spares nearly every line the slow search.  The brackets keep this file from complaining of
// itself.
struct Pointer {
  std::string stem;
  std::regex pattern;
};

const std::vector<Pointer>& Pointers() {
  static const std::vector<Pointer> pointers = [] {
    constexpr std::pair<const char*, const char*> kPatterns[] = {
        // papers
        {"pec", R"(\b[s]pec(s|ifications?)?\b)"},
        {"uling", R"(\b[r]ulings?\b)"},
        {"ssue", R"(\b[i]ssues? #?\d)"},
        {"art", R"(\b[p]arts? \d+\.\d)"},
        // places: folders of one machine
        {"ork/", R"((^|[^a-z0-9_.])/[w]ork/)"},
        {"oot/", R"((^|[^a-z0-9_.])/[r]oot/)"},
        {"ome/", R"((^|[^a-z0-9_.])/[h]ome/)"},
        {"sers", R"([\\/][u]sers[\\/])"},
        // tools of a workplace
        {"orktree", R"(\b[w]orktrees?\b)"},
        {"ssistant", R"(\b[a]ssistants?\b)"},
        {"uthored-by", R"(\bco-[a]uthored-by\b)"},
    };
    std::vector<Pointer> made;
    for (const auto& [stem, pattern] : kPatterns)
      made.push_back({stem, std::regex(pattern, std::regex::optimize)});
    return made;
  }();
  return pointers;
}

std::string LowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// The word that the line must not hold; "" when there is none.
std::string PointerIn(const std::string& line, bool picture) {
  static const std::regex numbers(R"(\b[C]\d\d\b)", std::regex::optimize);  // numbered papers
  const std::string lower = LowerCase(line);
  std::smatch match;
  for (const Pointer& pointer : Pointers())
    if (lower.find(pointer.stem) != std::string::npos &&
        std::regex_search(lower, match, pointer.pattern))
      return match.str();
  // The curves of a picture look like such numbers.
  if (!picture && line.find('C') != std::string::npos && std::regex_search(line, match, numbers))
    return match.str();
  return "";
}

struct ClosePipe {
  void operator()(std::FILE* pipe) const { pclose(pipe); }
};

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<std::FILE, ClosePipe> pipe(popen(command.c_str(), "r"));
  std::string output;
  char bytes[4096];
  while (pipe) {
    const std::size_t count = std::fread(bytes, 1, sizeof bytes, pipe.get());
    if (count == 0) break;
    output.append(bytes, count);
  }
  return output;
}

}  // namespace

Complaints PointersOutside(const Files& files) {
  Complaints complaints;
  for (const SourceFile& file : files) {
    std::istringstream lines(file.path + "\n" + file.text);
    for (std::string line; std::getline(lines, line);) {
      const std::string pointer = PointerIn(line, file.path.ends_with(".svg"));
      if (!pointer.empty()) complaints.push_back(file.path + ": " + pointer);
    }
  }
  return complaints;
}

Files CommitMessages(const std::filesystem::path& root) {
  if (!std::filesystem::exists(root / ".git")) return {};
  // Whoever owns the folder may have it checked by another user.
  const std::string log = OutputOf("git -c safe.directory='*' -C '" + root.string() +
                                   "' log --format=%h%n%B%x01 2>/dev/null");
  Files messages;
  std::istringstream commits(log);
  for (std::string commit; std::getline(commits >> std::ws, commit, '\x01');) {
    const std::size_t end = commit.find('\n');
    if (end != std::string::npos)
      messages.push_back({"commit " + commit.substr(0, end), commit.substr(end + 1)});
  }
  return messages;
}

}  // namespace walls
