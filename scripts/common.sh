# Shared by ./run and ./test: packages, builds, bounded steps and what must be undone at the end.
# Sourced with the repository's root as the current folder.
# shellcheck shell=bash

packages=(g++ cmake ninja-build googletest nlohmann-json3-dev
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools
  clang libclang-rt-14-dev
  wine wine64 fonts-wine fonts-liberation xvfb x11-utils imagemagick nsis zip)

say() { printf '== %s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

step=
undo=()

# undo_by COMMAND...: run at the end of this run, last first, whatever happens.
undo_by() { undo+=("$(printf '%q ' "$@")"); }

# bounded SECONDS COMMAND...: in the background and waited for, so that an interruption is not held up.
bounded() {
  local status=0
  timeout -k 10 "$@" &
  step=$!
  wait "$step" || status=$?
  step=
  [ "$status" != 124 ] || say "stopped after $1 seconds: ${*:2}"
  return "$status"
}

finish() {
  local status=$? i
  trap '' INT TERM HUP
  if [ -n "$step" ]; then
    kill "$step" 2>/dev/null || true
    wait "$step" 2>/dev/null || true
  fi
  for ((i = ${#undo[@]} - 1; i >= 0; i--)); do eval "${undo[i]}" || true; done
  exit "$status"
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    fail "Needs root or sudo for: $*"
  fi
}

install_missing() {
  local missing
  command -v apt-get >/dev/null || fail 'Packages are installed with apt: this needs Debian 12.'
  missing=$(comm -23 <(printf '%s\n' "${packages[@]}" | sort) \
    <(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "${packages[@]}" 2>/dev/null | sed -n 's/^ii  *//p' | sort))
  [ -n "$missing" ] || return 0
  mapfile -t missing <<<"$missing"
  say "installing ${missing[*]}"
  as_root apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# One run at a time builds in a clone.
take_build_folder() {
  mkdir -p build
  exec 9>build/.lock
  flock -n 9 || { say 'another run is at work in build/; waiting for it'; flock -w 1800 9; }
}

# Ninja configures again by itself, except for the presets.
configure() { # PRESET
  [ "build/$1/build.ninja" -nt CMakePresets.json ] || bounded 300 cmake --preset "$1"
}

# build PRESET [TARGET...]
build() {
  local preset=$1 log=build/$1.log
  shift
  say "building $preset"
  mkdir -p build
  if ! { configure "$preset" && bounded 1800 cmake --build --preset "$preset" ${1:+--target "$@"}; } \
      >"$log" 2>&1; then
    { grep -A5 -E '(: |CMake )(fatal )?[Ee]rror|undefined reference' "$log" || tail -40 "$log"; } | cut -c1-400 |
      head -60 >&2
    fail "Building $preset failed; all of it is in $log"
  fi
}

# What the proofs of the last test run of a preset counted.
show_figures() { # PRESET
  grep -h '^ *PROOF ' "build/$1/Testing/Temporary/LastTest.log" 2>/dev/null || true
}
