# shellcheck shell=bash
# What ./run, ./test, ./lint and the other scripts share; sourced by them.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export LANG=${LANG:-C.UTF-8}

packages=(
  g++ cmake ninja-build
  qt6-base-dev qt6-svg-dev libgl-dev libgtest-dev libbenchmark-dev
  # What the program finds only when it runs: fonts, icons, the Wayland platform.
  fonts-dejavu-core libqt6svg6 qt6-qpa-plugins qt6-wayland
)

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

as_root() {
  if ((EUID == 0)); then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "Some packages are missing and there is no sudo. As root, run: apt-get install ${packages[*]}"
  fi
}

apt_quietly() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

# Installs what is missing; asks the package index only then.
install_packages() {
  local installed package
  local missing=()
  # shellcheck disable=SC2016 # the fields are dpkg's
  installed=$(dpkg-query -W -f='${Package}=${db:Status-Status}\n' "${packages[@]}" 2>/dev/null || true)
  for package in "${packages[@]}"; do
    grep -qxF "$package=installed" <<<"$installed" || missing+=("$package")
  done
  ((${#missing[@]} > 0)) || return 0
  echo "Installing ${missing[*]}"
  apt_quietly update || fail "The package index could not be read."
  apt_quietly install --no-install-recommends "${missing[@]}" >/dev/null || fail "Installing failed."
}

configure() {
  local preset=$1 log launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  if ! log=$(cd "$root" && cmake --preset "$preset" "${launcher[@]}" 2>&1); then
    printf '%s\n' "$log" >&2
    return 1
  fi
}

# build PRESET [TARGET...]: everything, or only the targets named.
build() {
  local preset=$1
  shift
  configure "$preset" && cmake --build "$root/build/$preset" ${1+--target "$@"}
}
