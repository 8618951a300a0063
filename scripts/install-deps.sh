#!/usr/bin/env bash
# Installs every Debian package the build, tests, benchmarks and demo need.
#   scripts/install-deps.sh          native (x86-64) toolchain and libraries
#   scripts/install-deps.sh --i386   also the 32-bit x86 libraries for the -m32 build
#   scripts/install-deps.sh --qemu   also qemu-i386, for machines that run no 32-bit programs
set -euo pipefail
want_i386=0 want_qemu=0
[ "${1:-}" = "--i386" ] && want_i386=1
[ "${1:-}" = "--qemu" ] && want_qemu=1

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"

native=(cmake g++ make pkg-config libhwy-dev libgtest-dev libpng-dev libopencv-dev libfftw3-dev)
i386=(g++-multilib libhwy-dev:i386 libgtest-dev:i386 libgomp1:i386)

missing() {
  local out=()
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || out+=("$p")
  done
  echo "${out[@]:-}"
}

todo=$(missing "${native[@]}")
if [ "$want_i386" = 1 ]; then
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    $SUDO dpkg --add-architecture i386
    todo="$todo force-update"
  fi
  todo="$todo $(missing "${i386[@]}")"
fi
[ "$want_qemu" = 1 ] && todo="$todo $(missing qemu-user)"
todo=$(echo $todo)
[ -z "$todo" ] && exit 0
pkgs=${todo//force-update/}
export DEBIAN_FRONTEND=noninteractive
# a mirror caught mid-sync fails one index; the others still serve, so retry once and go on
$SUDO apt-get update -qq || { sleep 5; $SUDO apt-get update -qq || true; }
[ -n "$(echo $pkgs)" ] && $SUDO apt-get install -y -qq --no-install-recommends $pkgs >/dev/null
exit 0
