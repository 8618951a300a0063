// Private helpers of the data-movement family (copy, set, channel swap, duplicate, borders),
// compiled once: the scalar kernels (the plain twins of the vector ones in copy.cpp, set.cpp
// and swap.cpp, which the choosers there run on the element bits) and the internal entry
// points one source file offers the others. The per-target helpers of the vector kernels are
// in datamove_kernels-inl.h.
#pragma once

#include "core/frame.h"

#include <cstdint>
#include <cstring>

namespace lumi {
namespace dm {

// The kernels never look at values, only at bits: every element type runs on the unsigned
// integer of its size.
template <class T>
using Bits = std::conditional_t<sizeof(T) == 1, uint8_t,
                                std::conditional_t<sizeof(T) == 2, uint16_t, uint32_t>>;
template <class T>
inline Bits<T>* bits(T* p) { return reinterpret_cast<Bits<T>*>(p); }
template <class T>
inline const Bits<T>* bits(const T* p) { return reinterpret_cast<const Bits<T>*>(p); }

// ---- scalar kernels: n pixels of the layout L (kCh elements in memory, kUse written) -----
template <class T>
void copyKeepAlphaScalar(const T* s, T* d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    for (int c = 0; c < AC4::kUse; ++c) d[i * AC4::kCh + c] = s[i * AC4::kCh + c];
}
template <class T>
void fillKeepAlphaScalar(T* d, std::size_t n, const T* v) {
  for (std::size_t i = 0; i < n; ++i)
    for (int c = 0; c < AC4::kUse; ++c) d[i * AC4::kCh + c] = v[c];
}
template <class T, class L>
void maskedCopyScalar(const T* s, T* d, const uint8_t* m, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    if (m[i])
      for (int c = 0; c < L::kUse; ++c) d[i * L::kCh + c] = s[i * L::kCh + c];
}
template <class T, class L>
void maskedSetScalar(const T* v, T* d, const uint8_t* m, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    if (m[i])
      for (int c = 0; c < L::kUse; ++c) d[i * L::kCh + c] = v[c];
}
// One element every kSrc elements of s to one every kDst elements of d (channel of interest
// and layout changes between one channel and several).
template <class T, int kSrc, int kDst>
void strideCopyScalar(const T* s, T* d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i * kDst] = s[i * kSrc];
}
template <class T, int kDst>
void strideSetScalar(T v, T* d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i * kDst] = v;
}
// Destination channel c receives source channel order[c]; the three source values of a pixel
// are read before any is written, so source and destination may be the same image.
template <class T, int kCh>
void swapChannelsScalar(const T* s, T* d, std::size_t n, const int* order) {
  const int o0 = order[0], o1 = order[1], o2 = order[2];
  for (std::size_t i = 0; i < n; ++i) {
    const T* p = s + i * kCh;
    T a = p[o0], b = p[o1], c = p[o2];
    T* q = d + i * kCh;
    q[0] = a;
    q[1] = b;
    q[2] = c;
  }
}
template <class T>
void dupScalar(const T* s, T* d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[3 * i] = d[3 * i + 1] = d[3 * i + 2] = s[i];
}

// ---- internal entry points shared between the family's source files ---------------------
// A pixel of pixelBytes bytes (1, 2, 3, 4, 6, 8, 12 or 16) repeated over 192 bytes, a whole
// number of pixels and of vectors of every target; `uniform` when all its bytes are equal.
struct Pattern {
  static constexpr int kBytes = 192;
  alignas(64) uint8_t bytes[kBytes];
  bool uniform;
};
void makePattern(Pattern* p, const void* pixel, int pixelBytes);
// Fills `bytes` bytes (a whole number of pixels) with the pattern's pixel. (set.cpp)
void fillPattern(const Pattern& p, void* d, std::size_t bytes);
// Writes channels 0..2 of n four-channel pixels of elemBytes-byte elements, leaving the fourth
// channel alone: from three values (set.cpp) or from a source image row (copy.cpp).
void fillKeepAlpha(void* d, std::size_t n, const void* value3, int elemBytes);
void copyKeepAlpha(const void* s, void* d, std::size_t n, int elemBytes);

// n pixels of layout L from s to d (rows of distinct images, or identical rows).
template <class T, class L>
inline void copyPixels(const T* s, T* d, std::size_t n) {
  if constexpr (L::kUse < L::kCh) {
    copyKeepAlpha(s, d, n, sizeof(T));
  } else {
    if (s != d) std::memmove(d, s, n * L::kCh * sizeof(T));
  }
}
// A short run of pixels (a border column): 16-byte stores of as many whole pixels as fit, the
// last few pixels one by one. v may lie in the same image, outside the run.
template <class T, class L>
inline void fillShort(T* d, std::size_t n, const T* v) {
  constexpr std::size_t P = L::kCh * sizeof(T), chunkBytes = 16 / P * P;
  uint8_t chunk[16];
  for (std::size_t j = 0; j < 16; j += P) std::memcpy(chunk + j, v, 16 - j < P ? 16 - j : P);
  uint8_t* out = reinterpret_cast<uint8_t*>(d);
  const std::size_t bytes = n * P;
  std::size_t off = 0;
  for (; off + 16 <= bytes; off += chunkBytes) std::memcpy(out + off, chunk, 16);
  for (; off < bytes; off += P) std::memcpy(out + off, v, P);
}

// n pixels of layout L set to the channel values v (which may lie in the same image, outside
// the run).
template <class T, class L>
inline void fillPixels(T* d, std::size_t n, const T* v) {
  if constexpr (L::kUse < L::kCh) {
    fillKeepAlpha(d, n, v, sizeof(T));
  } else {
    const std::size_t bytes = n * L::kCh * sizeof(T);
    if (bytes < 256) {
      fillShort<T, L>(d, n, v);
    } else if constexpr (L::kCh == 1 && sizeof(T) == 1) {
      std::memset(d, v[0], n);
    } else {
      Pattern p;
      makePattern(&p, v, L::kCh * sizeof(T));
      fillPattern(p, d, bytes);
    }
  }
}

}  // namespace dm
}  // namespace lumi
