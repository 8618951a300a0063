// Scalar twins of the mirror kernels: whole pixels moved one channel at a time; AC4 moves only
// the colour channels, so every alpha stays where it was.
#pragma once

#include <utility>

#include "core/frame.h"

namespace lumi {
namespace mirror {

// dst pixel x = src pixel width - 1 - x.
template <class T, class L>
void mirrorRowScalar(const T* src, T* dst, int width) {
  for (int x = 0; x < width; ++x) {
    const T* s = src + elemsOf(width - 1 - x, L::kCh);
    T* d = dst + elemsOf(x, L::kCh);
    for (int c = 0; c < L::kUse; ++c) d[c] = s[c];
  }
}

// Two distinct rows: pixel x of a trades places with pixel width - 1 - x of b.
template <class T, class L>
void swapMirrorRowsScalar(T* a, T* b, int width) {
  for (int x = 0; x < width; ++x) {
    T* p = a + elemsOf(x, L::kCh);
    T* q = b + elemsOf(width - 1 - x, L::kCh);
    for (int c = 0; c < L::kUse; ++c) std::swap(p[c], q[c]);
  }
}

template <class T, class L>
void mirrorInPlaceScalar(T* row, int width) {
  for (int x = 0; x < width / 2; ++x) {
    T* p = row + elemsOf(x, L::kCh);
    T* q = row + elemsOf(width - 1 - x, L::kCh);
    for (int c = 0; c < L::kUse; ++c) std::swap(p[c], q[c]);
  }
}

template <class T, class L>
void copyRowScalar(const T* src, T* dst, int width) {
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < L::kUse; ++c) dst[elemsOf(x, L::kCh) + c] = src[elemsOf(x, L::kCh) + c];
}

template <class T, class L>
void swapRowsScalar(T* a, T* b, int width) {
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < L::kUse; ++c) std::swap(a[elemsOf(x, L::kCh) + c], b[elemsOf(x, L::kCh) + c]);
}

}  // namespace mirror
}  // namespace lumi
