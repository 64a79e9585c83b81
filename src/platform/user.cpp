#include "platform/user.h"

namespace platform {
namespace {

User* installedUser = nullptr;

}  // namespace

User* InstalledUser() {
  return installedUser;
}

void InstallUser(User* user) {
  installedUser = user;
}

}  // namespace platform
