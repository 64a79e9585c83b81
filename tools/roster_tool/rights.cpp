#include "roster_tool/rights.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>

#include "roster_tool/files.h"
#include "roster_tool/terminal_text.h"

namespace roster_tool {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kGroupShift = 8;    // a right of the group is eight times that of others
constexpr mode_t kFolderNeeds = 07;  // list, pass, and write
constexpr mode_t kRosterNeeds = 04;
constexpr mode_t kResultNeeds = 06;

bool IsRoster(const KindOfFile& kind) {
  return kind.name == std::string(kClasses.name) || kind.name == std::string(kStudents.name);
}

mode_t NeedsOf(const KindOfFile& kind) {
  return IsRoster(kind) ? kRosterNeeds : kResultNeeds;
}

// The file of this kind; none when it is missing.
std::optional<std::string> PathOf(const std::string& folder, const KindOfFile& kind) {
  return platform::PathOnDisk(folder + "/" + kind.name);
}

std::optional<struct stat> FactsOf(const std::string& path) {
  struct stat facts {};
  if (stat(path.c_str(), &facts) != 0) return std::nullopt;
  return facts;
}

std::string GroupName(gid_t id) {
  const group* found = getgrgid(id);
  return found != nullptr ? found->gr_name : std::to_string(id);
}

std::string OwnerName(uid_t id) {
  const passwd* found = getpwuid(id);
  return found != nullptr ? found->pw_name : std::to_string(id);
}

std::optional<gid_t> GroupNamed(const std::string& name) {
  const group* found = getgrnam(name.c_str());
  if (found == nullptr) return std::nullopt;
  return found->gr_gid;
}

// The group wanted, or the folder's where that is set up for one.
std::optional<gid_t> WantedGroup(const std::string& folder, const std::string& name) {
  if (!name.empty()) return GroupNamed(name);
  const auto facts = FactsOf(folder);
  if (!facts || (facts->st_mode & S_ISGID) == 0) return std::nullopt;
  return facts->st_gid;
}

// The system's error; 0 when it was done.  A link is followed only as far as the file behind it.
int Give(const std::string& path, gid_t group, mode_t mode, mode_t kept) {
  std::error_code error;
  const fs::path real = fs::canonical(path, error);
  if (error) return error.value();
  const int file = open(real.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return errno;
  struct stat facts {};
  int result = fstat(file, &facts);
  if (result == 0 && facts.st_gid != group) result = fchown(file, static_cast<uid_t>(-1), group);
  if (result == 0) result = fchmod(file, mode | (facts.st_mode & kept));
  const int number = result == 0 ? 0 : errno;
  close(file);
  return number;
}

Complaints Commands(const std::string& folder, const std::string& group) {
  const std::string path = ShownPath(folder);
  std::string all;
  std::string rosters;
  std::string results;
  for (const KindOfFile& kind : kAllFiles) {
    const std::string file = " \"" + path + "/" + kind.name + "\"";
    all += file;
    (IsRoster(kind) ? rosters : results) += file;
  }
  return {"These commands give them, on the machine that has the folder, with the students' group:",
          "  sudo chgrp " + group + " \"" + path + "\"" + all,
          "  sudo chmod g=rwxs \"" + path + "\"", "  sudo chmod u=rw,g=r,o=" + rosters,
          "  sudo chmod u=rw,g=rw,o=" + results};
}

Complaints WithCommands(Complaints complaints, const std::string& folder,
                        const std::string& group) {
  if (complaints.empty()) return complaints;
  for (const std::string& line : Commands(folder, group)) complaints.push_back(line);
  return complaints;
}

bool Has(const struct stat& facts, mode_t needs) {
  const mode_t group = facts.st_mode / kGroupShift & 07;
  return (group & needs) == needs || (facts.st_mode & needs) == needs;
}

std::string Lacking(const std::string& what, const struct stat& facts, mode_t needs) {
  return what + " cannot be " + (needs == kRosterNeeds ? "read" : "written") + " by the group " +
         GroupName(facts.st_gid) + ", nor by others than " + OwnerName(facts.st_uid);
}

}  // namespace

Complaints ForeignLinks(const std::string& folder) {
  Complaints complaints;
  const auto folderFacts = FactsOf(folder);
  for (const KindOfFile& kind : kAllFiles) {
    const auto path = PathOf(folder, kind);
    struct stat link {};
    if (!path || lstat(path->c_str(), &link) != 0 || !S_ISLNK(link.st_mode)) continue;
    if (link.st_uid == geteuid() || (folderFacts && link.st_uid == folderFacts->st_uid)) continue;
    complaints.push_back(std::string(kind.name) + " is a link that " + OwnerName(link.st_uid) +
                         " has made");
  }
  return complaints;
}

Complaints WhatKeepsFromGiving(const std::string& folder, const std::string& group) {
  if (group.empty()) return {};
  if (!GroupNamed(group)) return {"there is no group " + ShownPath(group)};
  const auto facts = FactsOf(folder);
  if (geteuid() == 0 || (facts && facts->st_uid == geteuid())) return {};
  return {"only root, or the owner of " + ShownPath(folder) + ", may give it to a group"};
}

Complaints GiveToGroup(const std::string& folder, const std::string& group) {
  const std::optional<gid_t> id = WantedGroup(folder, group);
  if (!id) return {};
  Complaints complaints;
  const auto give = [&](const std::string& what, const std::string& path, mode_t mode,
                        mode_t kept) {
    if (const int error = Give(path, *id, mode, kept))
      complaints.push_back(
          what + " does not get the rights that students need: " + strerrordesc_np(error));
  };
  give("The folder", folder, S_ISGID | kFolderNeeds * kGroupShift, S_IRWXU | S_IRWXO | S_ISVTX);
  for (const KindOfFile& kind : kAllFiles)
    if (const auto path = PathOf(folder, kind))
      give(kind.name, *path, S_IRUSR | S_IWUSR | NeedsOf(kind) * kGroupShift, 0);
  return WithCommands(complaints, folder, GroupName(*id));
}

Complaints CheckRights(const std::string& folder) {
  const auto folderFacts = FactsOf(folder);
  if (!folderFacts) return {};
  Complaints complaints;
  if (!Has(*folderFacts, kFolderNeeds))
    complaints.push_back(Lacking("The folder", *folderFacts, kFolderNeeds));
  for (const KindOfFile& kind : kAllFiles) {
    const auto path = PathOf(folder, kind);
    const auto facts = path ? FactsOf(*path) : std::nullopt;
    if (!facts) continue;
    const bool everybody = (facts->st_mode & NeedsOf(kind)) == NeedsOf(kind);
    if (!Has(*facts, NeedsOf(kind)))
      complaints.push_back(Lacking(kind.name, *facts, NeedsOf(kind)));
    else if (!everybody && facts->st_gid != folderFacts->st_gid)
      complaints.push_back(std::string(kind.name) + " belongs to the group " +
                           GroupName(facts->st_gid) + ", its folder to the group " +
                           GroupName(folderFacts->st_gid));
  }
  return WithCommands(complaints, folder, "GROUP");
}

}  // namespace roster_tool
