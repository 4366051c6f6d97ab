#!/usr/bin/env bash
# Installs everything the build and the tests need on a fresh Debian 12 machine.
# Idempotent: packages already present are left alone, so running it again is cheap.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build pkg-config
  qtbase5-dev qtbase5-dev-tools libqt5svg5-dev qttools5-dev qttools5-dev-tools
  nodejs binutils g++-mingw-w64-x86-64-posix
  clang libclang-rt-14-dev
  libgl1-mesa-dev fonts-dejavu-core
  libvips-dev libvips-tools
  chromium
)
# npm builds the viewer script; a Node.js that brings its own npm needs no second one.
command -v npm >/dev/null 2>&1 || PACKAGES+=(npm)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ "${#missing[@]}" -gt 0 ]; then
  if [ "$(id -u)" -ne 0 ]; then
    echo "bootstrap: missing packages (${missing[*]}); run this script as root" >&2
    exit 1
  fi
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
