# Sourced by ./run: where the course's windows are shown.
#
#   ChooseDisplay   the desktop if there is one, else a VNC screen that this machine alone can reach

# First port from 5900 on at which nothing listens.
FreePort() {
  local port
  for ((port = 5900; port < 5950; ++port)); do
    if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
      printf '%s' "$port"
      return
    fi
  done
  Fail "the ports 5900 to 5949 are all taken"
}

ChooseDisplay() {
  if [[ -n ${QT_QPA_PLATFORM:-} || -n ${DISPLAY:-} ]]; then
    return
  fi
  if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
    packages=(qt6-wayland)
    InstallPackages
    return
  fi
  local port
  port=$(FreePort)
  Say "There is no display here: the course is shown by VNC, on this machine's loopback address."
  Say "Connect a viewer to 127.0.0.1:$port.  From another machine, first open a tunnel:"
  Say "    ssh -L $port:127.0.0.1:$port $(id -un)@$(hostname)"
  # The toolkit's VNC screen asks for no password and would listen on all addresses.
  c++ -shared -fPIC -O2 -o build/loopback_only.so scripts/loopback_only.cpp
  export LD_PRELOAD="$PWD/build/loopback_only.so"
  export QT_QPA_PLATFORM="vnc:size=1024x768:port=$port"
}
