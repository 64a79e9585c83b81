// Preloaded before a program that serves on all addresses: whatever it binds to "any address" is
// bound to the loopback address, so that only this machine can reach it.
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>

namespace {

using Bind = int (*)(int, const sockaddr*, socklen_t);

// ::ffff:127.0.0.1, which a socket for both versions of the protocol takes for 127.0.0.1.
constexpr in6_addr kMappedLoopback = {{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 127, 0, 0, 1}}};

}  // namespace

extern "C" int bind(int descriptor, const sockaddr* address, socklen_t length) {
  static const auto systemBind = reinterpret_cast<Bind>(dlsym(RTLD_NEXT, "bind"));
  if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
    sockaddr_in6 changed;
    std::memcpy(&changed, address, sizeof changed);
    if (IN6_IS_ADDR_UNSPECIFIED(&changed.sin6_addr)) changed.sin6_addr = kMappedLoopback;
    return systemBind(descriptor, reinterpret_cast<const sockaddr*>(&changed), sizeof changed);
  }
  if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
    sockaddr_in changed;
    std::memcpy(&changed, address, sizeof changed);
    if (changed.sin_addr.s_addr == htonl(INADDR_ANY))
      changed.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return systemBind(descriptor, reinterpret_cast<const sockaddr*>(&changed), sizeof changed);
  }
  return systemBind(descriptor, address, length);
}
