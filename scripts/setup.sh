# Sourced by ./run and ./test: installs what the build needs, and builds.
#
#   InstallPackages       Debian packages, only those that are missing; as root or through sudo
#   Build [TARGET...]     configures build/ and builds the targets, all without one

packages=(
  g++ cmake ninja-build ccache
  qt6-base-dev qt6-svg-dev libfontconfig-dev
  fonts-liberation fonts-urw-base35
  libgtest-dev libbenchmark-dev libcli11-dev libfccp-dev nlohmann-json3-dev libsqlite3-dev
  libgmp-dev libhunspell-dev hunspell-en-us clang-format
)

Say() { printf '== %s\n' "$*"; }

Fail() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

MissingPackages() {
  local package
  for package in "${packages[@]}"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
      printf '%s\n' "$package"
  done
}

InstallPackages() {
  command -v dpkg-query >/dev/null ||
    Fail "this is no Debian system; install a C++20 compiler, CMake, Ninja, Qt 6 with Svg," \
      "GoogleTest, Google Benchmark, CLI11, libfccp, GMP, Hunspell with the dictionary en_US," \
      "nlohmann-json, clang-format 14 and the Liberation and URW fonts, then build with:" \
      "cmake -G Ninja -S . -B build && ninja -C build"
  local missing
  mapfile -t missing < <(MissingPackages)
  [[ ${#missing[@]} -gt 0 ]] || return 0

  local asRoot=()
  if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null ||
      Fail "these packages are missing, and there is no sudo to install them: ${missing[*]}" \
        "- run as root: apt-get install ${missing[*]}"
    asRoot=(sudo)
  fi
  Say "Installing what is missing: ${missing[*]}"
  "${asRoot[@]}" apt-get update
  "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
}

Build() {
  Say "Configuring build/"
  mkdir -p build
  if ! cmake -G Ninja -S . -B build >build/configure.log 2>&1; then
    cat build/configure.log >&2
    Fail "the configuration failed; its output stands above and in build/configure.log"
  fi
  local targets=()
  [[ $# -eq 0 ]] || targets=(--target "$@")
  Say "Building ${*:-everything}"
  NINJA_STATUS='[%f/%t, %e s] ' cmake --build build "${targets[@]}"
}
