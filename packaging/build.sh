# Shared by ./run, ./test and .ci/run: installs what is missing and builds. Source it from the project's root.

fail() {
  printf '%s: %s\n' "$(basename "$0")" "$1" >&2
  exit 1
}

# install_packages PACKAGE...: installs the Debian packages that are missing, saying which.
install_packages() {
  command -v dpkg-query >/dev/null || return 0 # not a Debian system: the configuration tells what it misses
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "missing packages, and no sudo to install them: ${missing[*]}"
    as_root=(sudo)
  fi
  echo "Installing Debian packages: ${missing[*]}"
  { "${as_root[@]}" apt-get update -qq &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >/dev/null ||
    fail "the packages could not be installed"
}

BUILD_PACKAGES=(g++ cmake ninja-build libboost1.81-dev libcli11-dev libsqlite3-dev libicu-dev
  libcairo2-dev pkg-config
  qt6-base-dev qt6-svg-dev qt6-translations-l10n)
TEST_PACKAGES=(libgtest-dev xsltproc python3)
DEB_PACKAGES=(dpkg-dev fakeroot gzip)

# make_packages PRESET: the packages of a build, in out/. Their times are that of the commit.
make_packages() {
  local log
  log=$(mktemp)
  rm -f out/swiftroll_*.deb out/swiftroll-*.tar.gz
  SOURCE_DATE_EPOCH=$(git log -1 --format=%ct) \
    cpack --config "build/$1/CPackConfig.cmake" -B out >"$log" 2>&1 || { cat "$log" >&2; fail "the packages were not made"; }
  rm -rf "$log" out/_CPack_Packages
}

# build PRESET [TARGET...]: configures and builds; says nothing when there is nothing to do.
build() {
  local preset=$1 log
  shift
  log=$(mktemp)
  if [ ! -f "build/$preset/build.ninja" ]; then echo "Configuring ($preset)"; fi
  cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; fail "the configuration failed"; }
  if ! cmake --build --preset "$preset" ${1:+--target "$@"} -- -n 2>/dev/null | grep -q 'no work to do'; then
    echo "Building ($preset)"
    cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1 || { cat "$log" >&2; fail "the build failed"; }
  fi
  rm -f "$log"
}
