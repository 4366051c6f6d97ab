#!/usr/bin/env bash
# Installs what the project needs on a fresh Debian 12 machine.
#   bash tools/bootstrap.sh            everything: the build, the tests and the benchmarks
#   bash tools/bootstrap.sh --runtime  only what building and running vantora-export needs
# Idempotent: packages already present are left alone, so running it again is cheap. The package
# manager's output goes to a log file; the terminal gets one line per step.
set -euo pipefail

mode=all
case "${1:-}" in
  "") ;;
  --runtime) mode=runtime ;;
  *) echo "usage: bash tools/bootstrap.sh [--runtime]" >&2; exit 2 ;;
esac

# Building the library, the tool and the viewer script, and running the tool.
PACKAGES=(
  build-essential cmake ninja-build pkg-config
  qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
  nodejs
  libgl1-mesa-dev fonts-dejavu-core
  libvips-dev
)
# The tests (the Windows cross-build, the fuzzers, the browser) and the benchmarks.
if [ "$mode" = all ]; then
  PACKAGES+=(
    libqt5svg5-dev binutils g++-mingw-w64-x86-64-posix
    clang libclang-rt-14-dev
    libvips-tools time
    chromium
  )
fi
# npm builds the viewer script; a Node.js that brings its own npm needs no second one.
command -v npm >/dev/null 2>&1 || PACKAGES+=(npm)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ "${#missing[@]}" -eq 0 ]; then
  echo "bootstrap: all ${#PACKAGES[@]} packages present"
  exit 0
fi
if [ "$(id -u)" -ne 0 ]; then
  echo "bootstrap: missing packages (${missing[*]}); run this script as root" >&2
  exit 1
fi

log=${BOOTSTRAP_LOG:-/tmp/vantora-bootstrap.log}
: > "$log"
# One line per step; on failure the end of the log says why.
step() {
  echo "bootstrap: $1"
  shift
  if ! "$@" >> "$log" 2>&1; then
    echo "bootstrap: failed; the last lines of $log:" >&2
    tail -n 20 "$log" >&2
    exit 1
  fi
}
export DEBIAN_FRONTEND=noninteractive
step "updating the package lists (log: $log)" apt-get update
step "installing ${#missing[@]} packages and what they need" \
  apt-get install -y --no-install-recommends "${missing[@]}"
echo "bootstrap: done"
