#!/usr/bin/env bash
# Every source compiled once per SIMD target (it defines HWY_TARGET_INCLUDE) must name itself
# there and include "hwy/foreach_target.h" before any other project or Highway header. An
# include sorted above it (an include sorter does that) pulls in highway.h first: the
# per-target passes then compile nothing, every dispatch table stays empty and only the scalar
# kernels run. Those are correct too, so no other test would notice.
set -euo pipefail
src=$1
fail=0 n=0
for f in $(grep -rl --include='*.cpp' 'HWY_TARGET_INCLUDE' "$src" | sort); do
  n=$((n + 1))
  first=$(grep -m1 '^#include "' "$f" || true)
  case "$first" in
    '#include "hwy/foreach_target.h"'*) ;;
    *) echo "$f: the first include is not hwy/foreach_target.h but: $first"; fail=1 ;;
  esac
  grep -q "define HWY_TARGET_INCLUDE \"src/${f#"$src"/}\"" "$f" ||
    { echo "$f: HWY_TARGET_INCLUDE does not name this file"; fail=1; }
done
[ $fail = 0 ] && echo "simd includes: $n sources re-included per target, each naming itself and including foreach_target.h first"
exit $fail
