// Checks of the sources as texts: who may include whom, who may touch the toolkit and the machine,
// and what is left out of the build.
//
// Each check is a function from files in memory to complaints, one line each; none means all is
// well.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace walls {

struct SourceFile {
  std::string path;  // from the repository's root, with "/"
  std::string text;
  bool operator==(const SourceFile&) const = default;
};

using Files = std::vector<SourceFile>;
using Complaints = std::vector<std::string>;

// The text with comments, strings, characters and the names of includes blanked; every other
// character keeps its place.
std::string CodeOnly(const std::string& text);
// Names between the quotes or brackets of the file's includes.
std::vector<std::string> Includes(const SourceFile& file);

// Folders of src/ stand on floors: an include goes to a lower floor or stays in its folder.
Complaints ClimbingIncludes(const Files& files);
// Files of src/ that include each other in a circle.
Complaints IncludeCycles(const Files& files);
// The toolkit's headers and types, anywhere but in the sources of src/platform/, in the headers
// "..._impl.h" which these alone include, in the benchmarks, which measure against the toolkit, and
// in the driver of the built program, which knows nothing else of it.
Complaints ToolkitOutsidePlatform(const Files& files);
// Files, clocks, random devices, processes and the environment, in src/ outside of platform/.
Complaints MachineOutsidePlatform(const Files& files);
// Sources that are not among the compiled ones, and headers that no compiled source includes.
Complaints LeftOutOfBuild(const Files& files, const std::set<std::string>& compiled);
// Folders of src/ that ARCHITECTURE.md leaves out of its picture or of its list of rooms.
Complaints RoomsNotDescribed(const Files& files);

// All text files of the tree but those of builds and of the version control.
Files ReadTree(const std::filesystem::path& root);
// Paths, from the root, that a compile_commands.json names.
std::set<std::string> CompiledSources(const std::filesystem::path& commands,
                                      const std::filesystem::path& root);

}  // namespace walls
