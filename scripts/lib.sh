# Shared by the scripts; sourced, not run. Makes the repository's top folder the current one.
# shellcheck shell=bash
cd "$(dirname "${BASH_SOURCE[0]}")/.."

BUILD_PACKAGES=(g++ cmake ninja-build nlohmann-json3-dev libcli11-dev libncurses-dev)
TEST_PACKAGES=(libgtest-dev libgmock-dev libbenchmark-dev)
PCAP_PACKAGES=(tshark python3)
PACKAGE_PACKAGES=(clang libuv1-dev pkg-config python3)
JOBS=$(nproc)

# need_packages NAME...: installs the Debian packages that are missing, or says which they are.
need_packages() {
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system; the build needs what these packages hold: $*" >&2
    return 0
  fi
  local missing=() name
  for name in "$@"; do
    # The query fails for a package that the system has never heard of: not installed, then.
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null || true) == installed ]] ||
      missing+=("$name")
  done
  ((${#missing[@]} == 0)) && return 0
  if ((EUID != 0)); then
    echo "Missing packages. Install them and try again: sudo apt-get install ${missing[*]}" >&2
    exit 1
  fi
  echo "Installing ${missing[*]}" >&2
  export DEBIAN_FRONTEND=noninteractive
  { apt-get update -q && apt-get install -qy --no-install-recommends "${missing[@]}"; } >&2
}

# build PRESET [TARGET]: configures build/PRESET once and builds the target, or everything.
build() {
  [[ -f build/$1/build.ninja ]] || cmake --preset "$1"
  cmake --build "build/$1" -j "$JOBS" ${2:+--target "$2"}
}

# run_tests PRESET: builds everything and runs the tests.
run_tests() {
  build "$1"
  ctest --preset "$1" -j "$JOBS"
}
