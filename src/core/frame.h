// The library's internal frame: validation helpers, row addressing, channel layouts, status
// composition, the parallel-rows helpers and the rounding-mode guards. Every family builds
// on these; nothing here is exported.
#pragma once

#include "lumi.h"

#include <omp.h>

#include <cstddef>
#include <cstdint>
#include <climits>
#include <cstring>
#include <limits>
#include <type_traits>

namespace lumi {

// ---- channel layouts ---------------------------------------------------------------------
// kCh: interleaved channels in memory; kUse: channels written (AC4 leaves the fourth alone).
struct C1 { static constexpr int kCh = 1, kUse = 1; };
struct C2 { static constexpr int kCh = 2, kUse = 2; };
struct C3 { static constexpr int kCh = 3, kUse = 3; };
struct C4 { static constexpr int kCh = 4, kUse = 4; };
struct AC4 { static constexpr int kCh = 4, kUse = 3; };

// ---- addressing --------------------------------------------------------------------------
template <class T>
inline T* byteOffset(T* p, std::ptrdiff_t bytes) {
  using B = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<B*>(p) + bytes);
}
// Row y of an image whose first row starts at p; steps may be zero or negative.
template <class T>
inline T* rowAt(T* p, int step, int y) {
  return byteOffset(p, static_cast<std::ptrdiff_t>(step) * y);
}

// ---- element and byte counts ---------------------------------------------------------------
// Always in ptrdiff_t: width x channels x element size overflows an int for widths near 2^30.
inline std::ptrdiff_t elemsOf(int width, int channels) {
  return static_cast<std::ptrdiff_t>(width) * channels;
}
inline std::ptrdiff_t bytesOf(int width, int channels, std::size_t elemBytes) {
  return elemsOf(width, channels) * static_cast<std::ptrdiff_t>(elemBytes);
}

// ---- the image view ------------------------------------------------------------------------
// One image argument as the internals pass it around: first pixel, row step in bytes, ROI size
// and interleaved channels per pixel. T may be const.
template <class T>
struct ImageView {
  T* data = nullptr;
  int step = 0;
  LumiSize size{0, 0};
  int channels = 1;

  T* row(int y) const { return rowAt(data, step, y); }
  T* at(int x, int y) const { return row(y) + elemsOf(x, channels); }
  std::ptrdiff_t rowElems() const { return elemsOf(size.width, channels); }
  std::ptrdiff_t rowBytes() const { return bytesOf(size.width, channels, sizeof(T)); }
  ImageView<const T> toConst() const { return {data, step, size, channels}; }
};
template <class L, class T>
inline ImageView<T> viewOf(T* data, int step, LumiSize size) {
  return {data, step, size, L::kCh};
}

// ---- walking contiguous images as one long row -----------------------------------------------
// When every image's step equals the row length (pixelBytes x width), the rows follow each
// other without padding and the ROI is walked as one row of width x height pixels; otherwise,
// or when that row would pass INT_MAX bytes, the ROI is returned unchanged.
template <class... S>
inline LumiSize coalesceRows(LumiSize roi, std::ptrdiff_t pixelBytes, S... steps) {
  const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(roi.width) * pixelBytes;
  if (roi.height <= 1 || !((static_cast<std::ptrdiff_t>(steps) == row) && ...)) return roi;
  const long long total = static_cast<long long>(roi.width) * roi.height;
  if (total * pixelBytes > INT_MAX) return roi;
  return LumiSize{static_cast<int>(total), 1};
}

// coalesceRows for two groups of images whose pixels differ in size (a source and a
// destination of other element types or layouts, or images and a byte mask): a and b are what
// coalesceRows gives for each group, and the ROI is one long row only when both are.
inline LumiSize coalesceBoth(LumiSize roi, LumiSize a, LumiSize b) {
  return a.height == b.height ? a : roi;
}

// ---- validation --------------------------------------------------------------------------
template <class... P>
inline bool anyNull(const P*... p) {
  return ((p == nullptr) || ...);
}
inline bool badSize(LumiSize r) { return r.width < 1 || r.height < 1; }
template <class... S>
inline bool badStep(S... s) {
  return ((s < 1) || ...);
}

// The checks nearly every call makes first, in this order: pointers, then the ROI size.
template <class... P>
inline LumStatus checkPointersSize(LumiSize roi, const P*... p) {
  if (anyNull(p...)) return lumStatusNullPtrErr;
  return badSize(roi) ? lumStatusSizeErr : lumStatusOk;
}

// ---- status composition of row-composed functions ---------------------------------------
struct FirstStatus {  // the first nonzero row status wins
  LumStatus value = lumStatusOk;
  void add(LumStatus s) {
    if (value == lumStatusOk) value = s;
  }
};
struct LastStatus {  // the last nonzero row status wins
  LumStatus value = lumStatusOk;
  void add(LumStatus s) {
    if (s != lumStatusOk) value = s;
  }
};

// ---- saturation --------------------------------------------------------------------------
template <class T, class V>
constexpr T saturate(V v) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(v);
  } else {
    using L = std::numeric_limits<T>;
    if (v < static_cast<V>(L::min())) return L::min();
    if (v > static_cast<V>(L::max())) return L::max();
    return static_cast<T>(v);
  }
}

// ---- run-time dispatch: see core/simd.h for the tables and pick() -------------------------------------------------------------------
// 0 = plain scalar kernels, 1 = SSE4, 2 = AVX2, 3 = AVX-512. Decided once per process from
// the processor and the LUMI_SCALAR environment variable (set to 1 to force the scalar path).
enum SimdLevel : int { kScalar = 0, kSSE4 = 1, kAVX2 = 2, kAVX3 = 3 };
int simdLevel();
// Tests only: runs the rest of the process at min(level, what the processor supports) and
// returns the level in force before. Not exported; test binaries that call it link the
// library's objects directly.
int setSimdLevel(int level);

// ---- parallel rows -----------------------------------------------------------------------
// Thread count of the next parallel region: the core library's variable, at least 1.
inline int regionThreads() {
  int n = threads_omp_of_n_lum;
  return n < 1 ? 1 : n;
}

// The row band [y0, y1) of thread t among n for a static schedule over `height` rows.
inline void rowBand(int height, int t, int n, int* y0, int* y1) {
  int base = height / n, extra = height % n;
  *y0 = t * base + (t < extra ? t : extra);
  *y1 = *y0 + base + (t < extra ? 1 : 0);
}

// Runs body(y0, y1) over rows [0, height): on the calling thread when `parallel` is false,
// otherwise as one contiguous band per thread of a team of regionThreads() threads.
template <class Body>
inline void forRows(int height, bool parallel, Body&& body) {
  int n = parallel ? regionThreads() : 1;
  if (n > height) n = height;
  if (n <= 1) {
    body(0, height);
    return;
  }
#pragma omp parallel num_threads(n)
  {
    int y0, y1;
    rowBand(height, omp_get_thread_num(), omp_get_num_threads(), &y0, &y1);
    if (y0 < y1) body(y0, y1);
  }
}

// The common fork rule of the row loops: width + height at least the threshold (a sum of the
// two dimensions, not an area).
inline bool forkBySum(LumiSize roi, int threshold = 256) {
  return roi.width + roi.height >= threshold;
}

// The fork rule of neighbourhood operations, by work rather than shape: pixels x taps (the
// samples each output pixel reads) at least the threshold. A 15x15 median and a copy of the
// same ROI are not judged alike; taps = 1 gives the plain area rule.
inline bool forkByWork(LumiSize roi, long long taps, long long threshold) {
  const long long area = static_cast<long long>(roi.width) * roi.height;  // at most 2^62
  if (area < 1 || taps < 1) return false;
  return taps >= (threshold + area - 1) / area;  // area x taps >= threshold, without overflow
}

// Scratch-region pattern: the master thread allocates one block of perThreadBytes for every
// thread of the team, all threads meet at a barrier, and each runs body(y0, y1, scratch) on
// its band with its own slice. An allocation failure leaves the destination untouched and
// gives lumStatusMemAllocErr. With a prepare step, every thread first runs
// prepare(y0, y1, scratch) on its band and the team meets at a second barrier before any body
// runs: in-place neighbourhood operations copy there the rows their neighbours will overwrite.
struct NoPrepare {
  void operator()(int, int, Lum8u*) const {}
};
template <class Body, class Prepare = NoPrepare>
inline LumStatus forRowsWithScratch(int height, bool parallel, std::size_t perThreadBytes,
                                    Body&& body, Prepare&& prepare = Prepare()) {
  int n = parallel ? regionThreads() : 1;
  if (n > height) n = height;
  if (n < 1) n = 1;
  Lum8u* shared = nullptr;
  bool failed = false;
  std::size_t slice = (perThreadBytes + 31) & ~static_cast<std::size_t>(31);
#pragma omp parallel num_threads(n) if (n > 1)
  {
#pragma omp master
    {
      std::size_t total = slice * static_cast<std::size_t>(omp_get_num_threads());
      shared = total > 0x7fffffffu ? nullptr : lumsMalloc_8u(static_cast<int>(total));
      failed = shared == nullptr;
    }
#pragma omp barrier
    if (!failed) {
      int y0, y1;
      rowBand(height, omp_get_thread_num(), omp_get_num_threads(), &y0, &y1);
      Lum8u* mine = shared + slice * omp_get_thread_num();
      if constexpr (!std::is_same_v<std::decay_t<Prepare>, NoPrepare>) {
        if (y0 < y1) prepare(y0, y1, mine);
#pragma omp barrier
      }
      if (y0 < y1) body(y0, y1, mine);
    }
  }
  lumsFree(shared);
  return failed ? lumStatusMemAllocErr : lumStatusOk;
}

// ---- rounding mode of the SSE unit ---------------------------------------------------------
constexpr unsigned kRoundingMask = 0x6000u;

// Float-to-integer conversions: round to nearest (ties to even) when the caller's selector is
// 1, toward zero otherwise; the caller's register is put back only if it had other bits.
class ConversionRounding {
 public:
  explicit ConversionRounding(int roundSelector)
      : want_(roundSelector == lumRndNear ? 0u : kRoundingMask), old_(lum_set_rc_ssx(want_)) {}
  ~ConversionRounding() {
    if ((old_ & kRoundingMask) != want_) lum_set_cw_ssx(old_);
  }
  ConversionRounding(const ConversionRounding&) = delete;
  ConversionRounding& operator=(const ConversionRounding&) = delete;

 private:
  unsigned want_, old_;
};

// Kernels that need round-to-nearest: switch only when the caller's mode differs. The
// register is per thread, so a parallel body takes its own guard.
class NearestRounding {
 public:
  NearestRounding() : saved_(ps_get_ssx() & kRoundingMask) {
    if (saved_) ps_set_ssx(0, kRoundingMask);
  }
  ~NearestRounding() {
    if (saved_) ps_set_ssx(saved_, kRoundingMask);
  }
  NearestRounding(const NearestRounding&) = delete;
  NearestRounding& operator=(const NearestRounding&) = delete;

 private:
  unsigned saved_;
};

}  // namespace lumi
