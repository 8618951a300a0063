#!/usr/bin/env bash
# Builds the library and runs every test.
#   scripts/test.sh            native x86-64 build (build/)
#   scripts/test.sh i386       32-bit x86 build, -m32 with SSE3 baseline (build-i386/)
#   scripts/test.sh sanitize   AddressSanitizer + UndefinedBehaviorSanitizer build (build-asan/)
# Installs the Debian packages it needs first.
set -euo pipefail
cd "$(dirname "$0")/.."
kind=${1:-native}
jobs=$(nproc)
case "$kind" in
  native)   dir=build;      opts=() ;                                   deps=() ;;
  i386)     dir=build-i386; opts=(-DLUMI_I386=ON -DLUMI_BUILD_BENCH=OFF -DLUMI_BUILD_DEMO=OFF); deps=(--i386) ;;
  sanitize) dir=build-asan; opts=(-DLUMI_SANITIZE=ON -DLUMI_BUILD_BENCH=OFF -DLUMI_BUILD_DEMO=OFF); deps=() ;;
  *) echo "usage: scripts/test.sh [native|i386|sanitize]" >&2; exit 2 ;;
esac
bash scripts/install-deps.sh "${deps[@]}"
if [ "$kind" = i386 ]; then
  # Run the 32-bit tests natively where the kernel runs 32-bit programs, else under user-mode
  # emulation (qemu-i386, which CTest puts in front of every test binary). A tiny program
  # built here decides; LUMI_I386_EMULATE=1 forces emulation.
  mkdir -p "$dir"
  echo 'int main(void) { return 0; }' | gcc -m32 -x c - -o "$dir/probe32"
  if [ "${LUMI_I386_EMULATE:-0}" != 1 ] && "$dir/probe32" 2>/dev/null; then
    echo "i386: the kernel runs 32-bit programs: tests run natively"
    opts+=(-DCMAKE_CROSSCOMPILING_EMULATOR=)
  else
    bash scripts/install-deps.sh --qemu
    echo "i386: the kernel runs no 32-bit programs: tests run under qemu-i386"
    opts+=(-DCMAKE_CROSSCOMPILING_EMULATOR="$(command -v qemu-i386)")
    export QEMU_CPU=${QEMU_CPU:-max}  # emulate SSE4 too, so the vector kernels are tested
    export LUMI_UNDER_EMULATION=1     # tests that need a native kernel skip themselves
  fi
fi
cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Release "${opts[@]}" >/dev/null
cmake --build "$dir" -j "$jobs"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
ctest --test-dir "$dir" --output-on-failure -j "$jobs"
