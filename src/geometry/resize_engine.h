// The resize engine's shared part: the checks every member makes the same way, the choosers
// of the row kernels (resize_simd.cpp) and run(), which builds the coordinate tables once and
// walks the destination rows through the kernels, in parallel above a work threshold.
#pragma once

#include <algorithm>
#include <cstring>

#include "core/frame.h"
#include "geometry/resize_kernels.h"

namespace lumi {
namespace resize {

// Source size and ROI: lumStatusSizeErr, then the warning for an origin outside the image.
LumStatus checkSource(LumiSize srcSize, LumiRect roi);
bool knownMode(int m);                  // nearest, linear, cubic, Lanczos
int lowerMode(int mode, LumiSize size);  // small images take simpler modes
// Count and step of one axis: from a factor (w the cut ROI extent; nearest and super step by
// 1 / f, other modes put the end pixels on the ROI's end pixels), or from a step.
LumStatus forwardAxis(int w, double f, int dstN, int mode, double shift, Axis* a);
void shiftAxis(int w, double fr, int dstN, int mode, double shift, Axis* a);

// Row kernels, vector or plain (see resize_kernels.h for what each computes).
using LinH8Fn = void (*)(const Lum8u*, const int32_t*, const int16_t*, int, int, int, const Windows*,
                         int16_t*);
using LinV8Fn = void (*)(const int16_t*, const int16_t*, int, int, Lum8u*, bool);
using LinHfFn = void (*)(const float*, const int32_t*, const float*, int, int, int, const Windows*,
                         float*);
// stream: non-temporal stores allowed (large destinations)
using LinVfFn = void (*)(const float*, const float*, float, float, int, float*, bool, bool);
template <class T>
using CubHFn = void (*)(const T*, const int32_t*, const float*, int, int, int, const Windows*, float*);
template <class T>
using CubVFn = void (*)(const float* const*, const float*, int, T*, bool, bool);
// The horizontal choosers also give the elements their vector kernel reads from a tap on (span,
// 0 when it reads no further than the taps) for safePrefix, and the window size their kernel
// takes (0: none; see buildWindows).
LinH8Fn pickLinH8(int pitch, int* span, int* window);
LinV8Fn pickLinV8();
LinHfFn pickLinHf(int pitch, int* window);
LinVfFn pickLinVf();
using LinF8Fn = void (*)(const Lum8u*, const Lum8u*, const int32_t*, const int16_t*, int, int, int,
                         const Windows*, int, Lum8u*, bool);
using LinFfFn = void (*)(const float*, const float*, const int32_t*, const float*, int, int, int,
                         const Windows*, float, float, float*, bool);
LinF8Fn pickLinF8(int pitch);  // span and window as pickLinH8's
LinFfFn pickLinFf(int pitch);
template <class T>
CubHFn<T> pickCubH(int pitch, int* span, int* window);
template <class T>
CubVFn<T> pickCubV();

template <class T>
using NearestFn = void (*)(const T*, const int32_t*, int, int, const Windows*, T*, bool);
template <class T>
NearestFn<T> pickNearest(int* span, int* window);

template <class T>
using Half2Fn = void (*)(const T*, const T*, int, T*);
template <class T, class L>
Half2Fn<T> pickHalf2();

// Pixel-taps per call above which the rows are shared among threads.
constexpr long long kForkWork = 1LL << 18;

// Nearest: destination rows from the same source row as the row above are copies of it.
template <class T, class L>
void nearestRows(const T* src, int sstep, T* dst, int dstep, const Taps& tx, const Taps& ty,
                 int count, std::ptrdiff_t limit, int y0, int y1, Lum8u* scratch,
                 std::size_t slotBytes) {
  constexpr int kCh = L::kCh, kUse = L::kUse;
  const int n = static_cast<int>(elemsOf(count, kCh));
  int32_t* offE = reinterpret_cast<int32_t*>(scratch);
  for (int i = 0; i < count; ++i)
    for (int c = 0; c < kCh; ++c) offE[i * kCh + c] = tx.off[i] + c;
  int span = 0, window = 0;
  const NearestFn<T> f = pickNearest<T>(&span, &window);
  Windows win;
  if (window > 0) buildWindows(offE, n, 1, kCh, window, limit, scratch + slotBytes, &win);
  const int safe = safePrefix(offE, n, span, limit);
  for (int j = y0; j < y1; ++j) {
    T* d = rowAt(dst, dstep, j);
    if (kUse == kCh && j > y0 && ty.off[j] == ty.off[j - 1]) {  // the same source row again
      std::memcpy(d, rowAt(dst, dstep, j - 1), static_cast<std::size_t>(bytesOf(count, kCh, sizeof(T))));
      continue;
    }
    f(rowAt(src, sstep, ty.off[j]), offE, n, safe, &win, d, kUse != kCh);
  }
}

// Row buffers tagged by the (relative, unclamped) source row they hold; slot = row mod K, so K
// consecutive rows never share a slot and rows are reused whichever way the index walks.
template <class B, int K>
struct RowRing {
  B* buf[K];
  int tag[K];
  RowRing(Lum8u* scratch, std::size_t slotBytes) {
    for (int k = 0; k < K; ++k) {
      buf[k] = reinterpret_cast<B*>(scratch + slotBytes * k);
      tag[k] = INT32_MIN;
    }
  }
  template <class Fill>
  B* get(int r, Fill&& fill) {
    const int k = ((r % K) + K) % K;
    if (tag[k] != r) {
      fill(r, buf[k]);
      tag[k] = r;
    }
    return buf[k];
  }
};

// One plane or pixel-order image: src and dst at the ROI origins, tables built.
template <class T, class L>
void runRows(const T* src, int sstep, T* dst, int dstep, const Taps& tx, const Taps& ty,
             int mode, const Axis& ax, const Axis& ay, int y0, int y1, Lum8u* scratch,
             std::size_t slotBytes, bool stream) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const int n = static_cast<int>(elemsOf(ax.count, kCh));
  const std::ptrdiff_t limit = elemsOf(ax.extent - ax.origin, kCh);
  int span = 0, window = 0;
  Windows win;
  // windows live in the scratch slots after the ring's
  auto windows = [&](int slotsUsed, int taps, bool interleaved = false) {
    if (window > 0)
      buildWindows(tx.off, n, taps, kCh, window, limit, scratch + slotBytes * slotsUsed, &win,
                   interleaved);
  };
  auto srow = [&](int r) { return rowAt(src, sstep, r); };
  switch (mode) {
    case kNearest:
      nearestRows<T, L>(src, sstep, dst, dstep, tx, ty, ax.count, limit, y0, y1, scratch, slotBytes);
      break;
    case kLinear:
      if constexpr (std::is_same_v<T, Lum8u>) {
        const LinH8Fn hf = pickLinH8(kCh, &span, &window);
        const LinV8Fn vf = pickLinV8();
        const int safe = safePrefix(tx.off, n, span, limit);
        windows(2, 2, true);
        if (ay.step >= 1.5) {  // source rows are not shared: both rows in one pass
          const LinF8Fn ff = pickLinF8(kCh);
          if (window > 0 && kCh == 1) buildPairs(tx.off, tx.wq, nullptr, n, scratch, &win);  // ring slots are free
          for (int j = y0; j < y1; ++j) {
            const int b = ty.off[j];
            ff(srow(b), srow(b + 1), tx.off, tx.wq, n, kCh, safe, &win, ty.wq[2 * j + 1],
               rowAt(dst, dstep, j), kAlpha);
          }
          break;
        }
        RowRing<int16_t, 2> ring(scratch, slotBytes);
        for (int j = y0; j < y1; ++j) {
          const int b = ty.off[j];
          auto fill = [&](int r, int16_t* h) { hf(srow(r), tx.off, tx.wq, n, kCh, safe, &win, h); };
          const int16_t* h0 = ring.get(b, fill);
          const int16_t* h1 = ring.get(b + 1, fill);
          vf(h0, h1, ty.wq[2 * j + 1], n, rowAt(dst, dstep, j), kAlpha);
        }
      } else if constexpr (std::is_same_v<T, Lum16u>) {
        RowRing<uint32_t, 2> ring(scratch, slotBytes);
        for (int j = y0; j < y1; ++j) {
          const int b = ty.off[j];
          auto fill = [&](int r, uint32_t* h) { linH16Scalar(srow(r), tx.off, tx.wq, n, kCh, h); };
          const uint32_t* h0 = ring.get(b, fill);
          const uint32_t* h1 = ring.get(b + 1, fill);
          linV16Scalar(h0, h1, ty.wq[2 * j + 1], n, rowAt(dst, dstep, j), kAlpha);
        }
      } else {
        const LinHfFn hf = pickLinHf(kCh, &window);
        const LinVfFn vf = pickLinVf();
        windows(2, 2);
        if (ay.step >= 1.5) {
          const LinFfFn ff = pickLinFf(kCh);
          if (window > 0 && kCh == 1) buildPairs(tx.off, nullptr, tx.wf, n, scratch, &win);
          for (int j = y0; j < y1; ++j) {
            const int b = ty.off[j];
            ff(srow(b), srow(b + 1), tx.off, tx.wf, n, kCh, n, &win, ty.wf[2 * j], ty.wf[2 * j + 1],
               rowAt(dst, dstep, j), kAlpha);
          }
          break;
        }
        RowRing<float, 2> ring(scratch, slotBytes);
        for (int j = y0; j < y1; ++j) {
          const int b = ty.off[j];
          auto fill = [&](int r, float* h) { hf(srow(r), tx.off, tx.wf, n, kCh, n, &win, h); };
          const float* h0 = ring.get(b, fill);
          const float* h1 = ring.get(b + 1, fill);
          vf(h0, h1, ty.wf[2 * j], ty.wf[2 * j + 1], n, rowAt(dst, dstep, j), kAlpha, stream);
        }
      }
      break;
    case kCubic: {
      const CubHFn<T> hf = pickCubH<T>(kCh, &span, &window);
      const CubVFn<T> vf = pickCubV<T>();
      const int safe = safePrefix(tx.off, n, span, limit);
      windows(4, 4);
      RowRing<float, 4> ring(scratch, slotBytes);
      for (int j = y0; j < y1; ++j) {
        const int b = ty.off[j];
        auto fill = [&](int r, float* h) { hf(srow(r), tx.off, tx.wf, n, kCh, safe, &win, h); };
        const float* rows[4];
        for (int k = 0; k < 4; ++k) rows[k] = ring.get(b + k, fill);
        vf(rows, ty.wf + 3 * j, n, rowAt(dst, dstep, j), kAlpha, stream);
      }
      break;
    }
    case kLanczos: {
      RowRing<float, 6> ring(scratch, slotBytes);
      for (int j = y0; j < y1; ++j) {
        const float* rows[6];
        for (int k = 0; k < 6; ++k) {
          const int r = ty.off[6 * j + k];
          rows[k] = ring.get(ty.key[j] + k, [&](int, float* h) {
            lanHScalar(srow(r), tx.off, tx.wf, ax.count, kCh, h);
          });
        }
        lanVScalar<T>(rows, ty.wf + 6 * j, n, rowAt(dst, dstep, j), kAlpha);
      }
      break;
    }
    default: {  // super-sampling
      if (halves(ax) && halves(ay)) {
        const Half2Fn<T> f = pickHalf2<T, L>();
        for (int j = y0; j < y1; ++j) {
          const int r = ty.off[j];
          f(srow(r), srow(r + 1), ax.count, rowAt(dst, dstep, j));
        }
        break;
      }
      float* acc = reinterpret_cast<float*>(scratch);
      float* tmp = reinterpret_cast<float*>(scratch + slotBytes);
      for (int j = y0; j < y1; ++j) {
        const float* wy = ty.wf + static_cast<std::ptrdiff_t>(j) * ty.maxTaps;
        for (int k = 0; k < ty.cnt[j]; ++k) {
          supHScalar(srow(ty.off[j] + k), tx, ax.count, kCh, k == 0 ? acc : tmp);
          if (k == 0) {
            for (int e = 0; e < n; ++e) acc[e] *= wy[0];
          } else {
            for (int e = 0; e < n; ++e) acc[e] += wy[k] * tmp[e];
          }
        }
        T* d = rowAt(dst, dstep, j);
        for (int e = 0; e < n; ++e)
          if (!(kAlpha && (e & 3) == 3)) d[e] = roundStore<T>(acc[e]);
      }
      break;
    }
  }
}

inline int ringSlots(int mode) {  // row buffers, and two slots for the windows
  switch (mode) {
    case kNearest: return 3;  // element offsets, windows
    case kLinear: return 4;
    case kCubic: return 7;
    case kLanczos: return 6;
    default: return 2;
  }
}

// The tables of the last call on this thread, kept for a next call with the same axes (the
// frames of a video): at small destinations building them is a sizeable part of the call.
struct TableCache {
  Lum8u* mem = nullptr;
  std::size_t bytes = 0;
  bool valid = false;
  Axis ax, ay;
  int mode = 0, ch = 0;
  Taps tx, ty;
  static constexpr std::size_t kMaxBytes = 1 << 20;  // larger tables are not kept
  static bool same(const Axis& a, const Axis& b) {
    return a.count == b.count && a.start == b.start && a.step == b.step && a.origin == b.origin &&
           a.extent == b.extent;
  }
  bool holds(const Axis& x, const Axis& y, int m, int c) const {
    return valid && m == mode && c == ch && same(x, ax) && same(y, ay);
  }
  ~TableCache() { lumsFree(mem); }
};
inline TableCache& tableCache() {
  static thread_local TableCache cache;
  return cache;
}

// Builds the tables (in `tables` when given, else from the allocator) and runs every plane.
template <class T, class L, int P>
LumStatus run(const T* const* src, int sstep, T* const* dst, int dstep, const Axis& ax,
              const Axis& ay, int mode, Lum8u* tables = nullptr) {
  constexpr int kCh = L::kCh;
  const int mx = mode == kSuper ? superTaps(ax) : 0, my = mode == kSuper ? superTaps(ay) : 0;
  const std::size_t bx = tableBytes(mode, elemsOf(ax.count, kCh), mx);
  const std::size_t by = tableBytes(mode, ay.count, my);
  Lum8u* mem = tables;
  Taps tx, ty;
  TableCache* kept = nullptr;
  if (mem == nullptr && bx + by <= TableCache::kMaxBytes) {
    kept = &tableCache();
    if (kept->holds(ax, ay, mode, kCh)) {
      tx = kept->tx;
      ty = kept->ty;
    } else {
      kept->valid = false;
      if (kept->bytes < bx + by) {
        lumsFree(kept->mem);
        kept->mem = lumsMalloc_8u(static_cast<int>(bx + by));
        kept->bytes = kept->mem == nullptr ? 0 : bx + by;
        if (kept->mem == nullptr) return lumStatusMemAllocErr;
      }
      mem = kept->mem;
    }
  } else if (mem == nullptr) {
    if (bx + by > 0x7fffffffu) return lumStatusMemAllocErr;
    mem = lumsMalloc_8u(static_cast<int>(bx + by));
    if (mem == nullptr) return lumStatusMemAllocErr;
  }
  if (mem == nullptr) {  // the cached tables
  } else if (mode == kSuper && halves(ax) && halves(ay)) {  // 2x2 means: only the first rows
    ty.off = reinterpret_cast<int32_t*>(mem + bx);
    for (int j = 0; j < ay.count; ++j) ty.off[j] = static_cast<int>(ay.start) + 2 * j;
  } else {
    buildTaps(ax, mode, kCh, mem, &tx);
    buildTaps(ay, mode, 1, mem + bx, &ty);
  }
  if (kept != nullptr && mem != nullptr) {
    kept->valid = true;
    kept->ax = ax;
    kept->ay = ay;
    kept->mode = mode;
    kept->ch = kCh;
    kept->tx = tx;
    kept->ty = ty;
  }
  // row buffers: 4-byte elements, padded for vector overrun
  const std::size_t slot =
      ((static_cast<std::size_t>(elemsOf(ax.count, kCh)) + 96) * sizeof(float) + 63) & ~std::size_t{63};
  const int slots = ringSlots(mode);
  long long taps = 1;
  switch (mode) {
    case kLinear: taps = 4; break;
    case kCubic: taps = 16; break;
    case kLanczos: taps = 36; break;
    case kSuper: taps = static_cast<long long>(mx) * my; break;
    default: break;
  }
  // destinations much larger than the caches are written around them
  static const int cache = [] {  // asked once: the core library reads it from the system
    int c = 0;
    return lumGetMaxCacheSizeB(&c) == 0 ? c : 0;
  }();
  const bool stream = std::is_same_v<T, float> && L::kUse == L::kCh && cache > 0 &&
                      static_cast<double>(ax.count) * ay.count * kCh * sizeof(T) * P > cache / 2.0;
  const bool parallel = forkByWork(LumiSize{ax.count, ay.count}, taps * kCh * P, kForkWork);
  LumStatus st = lumStatusOk;
  for (int p = 0; p < P && st == lumStatusOk; ++p) {
    const T* s = src[p];
    T* d = dst[p];
    st = forRowsWithScratch(ay.count, parallel, std::max<std::size_t>(slot * slots, 64),
                            [&](int y0, int y1, Lum8u* scratch) {
                              runRows<T, L>(s, sstep, d, dstep, tx, ty, mode, ax, ay, y0, y1, scratch, slot, stream);
                            });
  }
  if (tables == nullptr && kept == nullptr) lumsFree(mem);
  return st;
}

}  // namespace resize
}  // namespace lumi
