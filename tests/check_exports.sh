#!/usr/bin/env bash
# Checks the shared libraries' interfaces:
#  - liblumit7 exports only lumi*/lums* names, each declared in the public headers, and every
#    function the headers declare is exported;
#  - liblumcore exports exactly its documented names;
#  - both carry their SONAMEs and liblumit7 records liblumcore and the OpenMP runtime;
#  - every export is found by grep where it is defined: its full name stands under src/, and
#    every stamp line (a LUMI_... macro whose first argument is a lumi/lums name) names an
#    exported function.
set -euo pipefail
lib=$1 core=$2 inc=$3 src=$4
fail=0
exported=$(nm -D --defined-only "$lib" | awk '{print $3}' | sed 's/@.*//' | sort -u)
declared=$(grep -rhoE '\b(lumi|lums)[A-Za-z0-9_]+\s*\(' "$inc" | sed 's/\s*($//' | sort -u)
bad=$(echo "$exported" | grep -vE '^(lumi|lums)[A-Za-z0-9_]+$' || true)
[ -n "$bad" ] && { echo "undocumented names exported:"; echo "$bad" | head -20; fail=1; }
undeclared=$(comm -23 <(echo "$exported") <(echo "$declared"))
[ -n "$undeclared" ] && { echo "exported but not declared:"; echo "$undeclared" | head -20; fail=1; }
missing=$(comm -13 <(echo "$exported") <(echo "$declared"))
[ -n "$missing" ] && { echo "declared but not exported:"; echo "$missing" | head -20; fail=1; }
in_src=$(grep -rhoE '\b(lumi|lums)[A-Za-z0-9_]+' "$src" | sort -u)
unfound=$(comm -23 <(echo "$exported") <(echo "$in_src"))
[ -n "$unfound" ] && { echo "exported but never named under src/ ($(echo "$unfound" | wc -l)):"; echo "$unfound" | head -20; fail=1; }
stamped=$(grep -rhoE '^\s*LUMI_[A-Z0-9_]+\(\s*(lumi|lums)[A-Za-z0-9_]+' "$src" | sed -E 's/.*\(\s*//' | sort -u)
stray=$(comm -23 <(echo "$stamped") <(echo "$exported"))
[ -n "$stray" ] && { echo "stamp lines that name no export:"; echo "$stray" | head -20; fail=1; }
core_names=$(nm -D --defined-only "$core" | awk '{print $3}' | sed 's/@.*//' | sort -u | tr '\n' ' ')
want="lumGetMaxCacheSizeB lum_set_cw_ssx lum_set_rc_ssx ps_get_ssx ps_set_ssx threads_omp_of_n_lum "
[ "$core_names" = "$want" ] || { echo "core exports: $core_names"; fail=1; }
readelf -d "$lib" | grep -q 'SONAME.*\[liblumit7.so.5.1\]' || { echo "bad SONAME of $lib"; fail=1; }
readelf -d "$core" | grep -q 'SONAME.*\[liblumcore.so.5.1\]' || { echo "bad SONAME of $core"; fail=1; }
readelf -d "$lib" | grep -q 'NEEDED.*\[liblumcore.so.5.1\]' || { echo "liblumcore not needed"; fail=1; }
readelf -d "$lib" | grep -q 'NEEDED.*\[libgomp' || { echo "OpenMP runtime not needed"; fail=1; }
n=$(echo "$exported" | grep -c . || true)
[ $fail = 0 ] && echo "exports: $n functions, all declared and named under src/; core library and SONAMEs as expected"
exit $fail
