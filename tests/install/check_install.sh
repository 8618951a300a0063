#!/usr/bin/env bash
# Installs the build into a temporary prefix, then builds and runs a C program through
# pkg-config and a C++ program through find_package(Lumi).
set -euo pipefail
build=$1 here=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cmake --install "$build" --prefix "$tmp/prefix" >/dev/null
libdir=$(ls -d "$tmp"/prefix/lib*/pkgconfig | head -1 | xargs dirname)
for f in liblumit7.so liblumit7.so.5.1 liblumcore.so liblumcore.so.5.1; do
  [ -e "$libdir/$f" ] || { echo "missing $libdir/$f"; exit 1; }
done
export PKG_CONFIG_PATH="$libdir/pkgconfig"
cc -o "$tmp/c_consumer" "$here/consumer.c" $(pkg-config --cflags --libs lumi)
LD_LIBRARY_PATH="$libdir" "$tmp/c_consumer"
cmake -S "$here/consumer" -B "$tmp/cxx" -DCMAKE_PREFIX_PATH="$tmp/prefix" >/dev/null
cmake --build "$tmp/cxx" >/dev/null
LD_LIBRARY_PATH="$libdir" "$tmp/cxx/consumer"
