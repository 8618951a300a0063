#!/usr/bin/env bash
# Compares two builds of lumi-bench on this machine: runs them alternately ROUNDS times and
# prints, per row and thread count, the median ratio (OpenCV time / Lumi time) of each build
# and its change in percent, then the change of Lumi's own median time (OpenCV's time moves
# with the machine's load as much as ours: a row whose ratio dropped but whose time did not
# is noise). Alternating keeps slow drifts of a shared machine off the result.
#   scripts/bench-compare.sh OLD/lumi-bench NEW/lumi-bench [ROUNDS] [lumi-bench arguments...]
# e.g. ... 7 "sum mean 8u C1" --reps 151 (a filter with spaces stays one argument).
set -euo pipefail
old=$1 new=$2 rounds=${3:-3}
args=("${@:4}")
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
for r in $(seq "$rounds"); do
  "$old" "${args[@]}" > "$out/old.$r"
  "$new" "${args[@]}" > "$out/new.$r"
done
# Each run: "N thread(s)" headers, then rows "family  row ...  cv_ms lumi_ms ratio [..]".
# A row's key is thread count + its label (everything before the three numbers).
extract() {
  awk -v tag="$1" '
    /^[0-9]+ threads?$/ { th = $1; next }
    NF >= 5 && $(NF) ~ /^[0-9.]+$/ {
      n = 0; for (i = 1; i <= NF; ++i) if ($i ~ /^[0-9]+\.[0-9]+$/) { n = i; break }
      if (!n || n + 2 > NF) next
      label = $1; for (i = 2; i < n; ++i) label = label " " $i
      print th "t|" label "|" tag "|" $(n + 2) "|" $(n + 1)
    }' "${@:2}"
}
{ extract old "$out"/old.*; extract new "$out"/new.*; } |
  sort -t'|' -k1,1 -k2,2 -k3,3 -k4,4g |
  awk -F'|' '
    function median(a, n) { return n % 2 ? a[(n + 1) / 2] : (a[n / 2] + a[n / 2 + 1]) / 2 }
    function sortn(a, n,   i, j, x) {
      for (i = 2; i <= n; ++i) { x = a[i]; for (j = i - 1; j >= 1 && a[j] > x; --j) a[j + 1] = a[j]; a[j + 1] = x }
    }
    { key = $1 "|" $2; if (!(key in seen)) { seen[key] = 1; order[++k] = key }
      v[key, $3, ++c[key, $3]] = $4; t[key, $3, c[key, $3]] = $5 }
    END {
      printf "%-4s %-36s %8s %8s %8s %9s %9s %8s\n", "thr", "row", "before", "after", "change",
             "ms before", "ms after", "time"
      worst = 0
      for (i = 1; i <= k; ++i) {
        key = order[i]; split(key, p, "|")
        no = c[key, "old"]; nn = c[key, "new"]
        if (!no || !nn) continue
        for (j = 1; j <= no; ++j) a[j] = v[key, "old", j]
        mo = median(a, no)
        for (j = 1; j <= nn; ++j) b[j] = v[key, "new", j]
        mn = median(b, nn)
        ch = 100 * (mn / mo - 1)
        if (ch < worst) worst = ch
        for (j = 1; j <= no; ++j) a[j] = t[key, "old", j]
        sortn(a, no); to = median(a, no)
        for (j = 1; j <= nn; ++j) b[j] = t[key, "new", j]
        sortn(b, nn); tn = median(b, nn)
        tc = 100 * (tn / to - 1)
        if (tc > worstT) worstT = tc
        printf "%-4s %-36s %8.2f %8.2f %+7.1f%% %9.3f %9.3f %+7.1f%%\n", p[1], p[2], mo, mn, ch, to, tn, tc
      }
      printf "worst ratio change: %+.1f%%, worst time change: %+.1f%%\n", worst, worstT
    }'
