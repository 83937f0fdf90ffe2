#!/usr/bin/env bash
# Installs the Debian packages Brelk needs to build, test and run, when missing.
# usage: deps.sh [package]
set -euo pipefail

# clang and its sanitizer and fuzzer runtimes: the second compiler CI builds with.
packages=(cmake g++ make libgtest-dev qt6-base-dev qt6-svg-dev libgl-dev fonts-liberation clang libclang-rt-dev)
# Call-outs: Qt's text-to-speech (its CMake files need qt6-declarative-dev on
# Debian 12) with the speech service and its espeak-ng voice, and Qt
# Multimedia for the tone.
packages+=(qt6-speech-dev qt6-declarative-dev qt6-speech-speechd-plugin speech-dispatcher
           speech-dispatcher-espeak-ng espeak-ng qt6-multimedia-dev)
# "package": also what scripts/check-package.sh needs to make and check the Debian package.
[ "${1:-}" = package ] && packages+=(dpkg-dev file lintian desktop-file-utils appstream)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 "${missing[@]}"
