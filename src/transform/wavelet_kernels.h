// Plain row kernels of the wavelet transforms (src/transform/wavelet.cpp): the vector kernels'
// twins and their tails.
#pragma once

#include "core/frame.h"

namespace lumi {
namespace wavelet {
// Plain kernels, the vector kernels' twins; kCh is the pixel stride of the image side.

// e[p] += w * row[2p], o[p] += w * row[2p + 1] over cnt samples of the row.
template <int kCh>
inline void accSplitFrom(int p0, float* e, float* o, const float* row, float w, int cnt) {
  for (int p = p0; 2 * p < cnt; ++p) {
    e[p] = e[p] + w * row[elemsOf(2 * p, kCh)];
    if (2 * p + 1 < cnt) o[p] = o[p] + w * row[elemsOf(2 * p + 1, kCh)];
  }
}
// buf[j] += w * row[j] over cnt samples.
template <int kCh>
inline void accRowFrom(int j0, float* buf, const float* row, float w, int cnt) {
  for (int j = j0; j < cnt; ++j) buf[j] = buf[j] + w * row[elemsOf(j, kCh)];
}

// Analysis taps over the split row: out[i] = sum_k t[k] x(2i + c - k), x(2q) = e[q],
// x(2q + 1) = o[q]; c = anchor + the row's left margin.
template <int kCh>
inline void analyseFrom(int i0, const float* e, const float* o, const float* t, int len, int c,
                        float* out, int n) {
  for (int i = i0; i < n; ++i) {
    float acc = 0.f;
    for (int k = 0; k < len; ++k) {
      const int q = c - k;  // >= 0
      acc = acc + t[k] * ((q & 1) ? o[i + (q >> 1)] : e[i + (q >> 1)]);
    }
    out[elemsOf(i, kCh)] = acc;
  }
}

// Synthesis of output columns 2j + e from the low and high rows (each with its left margin
// f already applied): the low filter's taps of matching parity, then the high filter's.
struct SynthFilter {
  const float* t;
  int len, anchor, margin;
};
inline float synthOne(const SynthFilter& lo, const float* rl, const SynthFilter& hi,
                      const float* rh, int j, int e) {
  float acc = 0.f;
  for (int k = (e + lo.anchor) & 1; k < lo.len; k += 2)
    acc = acc + lo.t[k] * rl[j + ((e + lo.anchor - k) >> 1) + lo.margin];
  for (int k = (e + hi.anchor) & 1; k < hi.len; k += 2)
    acc = acc + hi.t[k] * rh[j + ((e + hi.anchor - k) >> 1) + hi.margin];
  return acc;
}
template <int kCh>
inline void synthFrom(int j0, const SynthFilter& lo, const float* rl, const SynthFilter& hi,
                      const float* rh, float* out, int n) {
  for (int j = j0; j < n; ++j) {
    out[elemsOf(2 * j, kCh)] = synthOne(lo, rl, hi, rh, j, 0);
    out[elemsOf(2 * j + 1, kCh)] = synthOne(lo, rl, hi, rh, j, 1);
  }
}

}  // namespace wavelet
}  // namespace lumi
