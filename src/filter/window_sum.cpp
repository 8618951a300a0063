// Window sums as 32-bit floats, without division: maskSize pixels per channel along the row or
// down the column, starting anchor pixels before the destination pixel. The first window is
// summed in integers; each later one adds the entering pixel minus the leaving one, a
// difference taken in integers, to the running single-precision sum. While the sums stay below
// 2^24 (any 8u mask up to 65793 pixels) every result is the exact sum.
//
// Vector kernels give the plain kernels' results exactly: column sums move down with the same
// arithmetic lane by lane, and rows of masks up to 16 pixels, whose sums are all exact, are
// summed directly.
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/window_sum.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "lumi/filter.h"

#ifndef LUMI_FILTER_WINDOW_SUM_PLAIN_  // once, though the file is read once per target
#define LUMI_FILTER_WINDOW_SUM_PLAIN_
namespace lumi {
namespace window {
// Column sums moved down one row: sum += (float)(in - out), the difference in integers.
template <class T>
void slideRowScalar(const T* in, const T* out, Lum32f* sum, std::ptrdiff_t n) {
  for (std::ptrdiff_t i = 0; i < n; ++i) sum[i] += static_cast<Lum32f>(in[i] - out[i]);
}
template <class T>
using SlideRowFn = void (*)(const T*, const T*, Lum32f*, std::ptrdiff_t);

// The first window's integer sum wraps modulo 2^32: masks of more than 65536 extreme 16s
// values are the caller's to avoid, as for the box filter.
inline int32_t add(int32_t sum, int32_t v) {
  return static_cast<int32_t>(static_cast<uint32_t>(sum) + static_cast<uint32_t>(v));
}

// Window sums along one row of `width` pixels; s points at the first pixel of the first window.
template <class T, int kCh>
void windowRowScalar(const T* s, Lum32f* d, int width, int mask) {
  for (int c = 0; c < kCh; ++c) {
    int32_t first = 0;
    for (int k = 0; k < mask; ++k) first = add(first, s[elemsOf(k, kCh) + c]);
    Lum32f sum = static_cast<Lum32f>(first);
    d[c] = sum;
    for (int x = 1; x < width; ++x) {
      sum += static_cast<Lum32f>(s[elemsOf(x + mask - 1, kCh) + c] - s[elemsOf(x - 1, kCh) + c]);
      d[elemsOf(x, kCh) + c] = sum;
    }
  }
}
template <class T>
using RowFn = void (*)(const T*, Lum32f*, int, int);

// Masks up to this many pixels have vector row kernels: their sums (at most 16 x 32768) are
// exact in single precision, so the running sum of the plain kernel is the exact sum too.
constexpr int kDirectMax = 16;
}  // namespace window
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// The same arithmetic lane by lane, so the results equal the plain kernel's exactly.
template <class T>
void slideRow(const T* HWY_RESTRICT in, const T* HWY_RESTRICT out, Lum32f* HWY_RESTRICT sum,
              std::ptrdiff_t n) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(df));
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto diff = hn::Sub(loadAs(di, in + i), loadAs(di, out + i));
    hn::StoreU(hn::Add(hn::LoadU(df, sum + i), hn::ConvertTo(df, diff)), df, sum + i);
  }
  window::slideRowScalar(in + i, out + i, sum + i, n - i);
}

// Masks up to kDirectMax pixels: every element of the row is the integer sum of mask source
// elements kCh apart, converted once.
template <class T, int kCh>
void windowRow(const T* HWY_RESTRICT s, Lum32f* HWY_RESTRICT d, int width, int mask) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(df));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    auto sum = loadAs(di, s + i);
    for (int k = 1; k < mask; ++k) sum = hn::Add(sum, loadAs(di, s + i + elemsOf(k, kCh)));
    hn::StoreU(hn::ConvertTo(df, sum), df, d + i);
  }
  for (; i < n; ++i) {
    int32_t sum = 0;
    for (int k = 0; k < mask; ++k) sum += s[i + elemsOf(k, kCh)];
    d[i] = static_cast<Lum32f>(sum);
  }
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace window {
namespace {

template <class T, int kCh>
RowFn<T> pickRow(int mask) {
  using Fn = RowFn<T>;
  if (mask > kDirectMax) return &windowRowScalar<T, kCh>;
  LUMI_SIMD_TABLE(Fn, table, windowRow<T, kCh>);
  return pick(table, static_cast<Fn>(&windowRowScalar<T, kCh>));
}
template <class T>
SlideRowFn<T> pickSlideRow() {
  using Fn = SlideRowFn<T>;
  LUMI_SIMD_TABLE(Fn, table, slideRow<T>);
  return pick(table, static_cast<Fn>(&slideRowScalar<T>));
}

template <class T>
int wholeElements(int step) {
  return step / static_cast<int>(sizeof(T)) * static_cast<int>(sizeof(T));
}

inline LumStatus check(const void* src, const void* dst, int mask, int anchor) {
  if (src == nullptr || dst == nullptr) return lumStatusNullPtrErr;
  if (mask < 1) return lumStatusMaskSizeErr;
  if (anchor < 0 || anchor >= mask) return lumStatusAnchorErr;
  return lumStatusOk;
}

template <class T, int kCh>
LumStatus rowImpl(const T* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi, int mask,
                  int anchor) {
  if (LumStatus st = check(src, dst, mask, anchor)) return st;
  srcStep = wholeElements<T>(srcStep);
  dstStep = wholeElements<Lum32f>(dstStep);
  const std::ptrdiff_t lead = elemsOf(anchor, kCh);
  const RowFn<T> windowRow = pickRow<T, kCh>(mask);
  for (int y = 0; y < roi.height && roi.width > 0; ++y) {
    const T* s = rowAt(src, srcStep, y) - lead;
    Lum32f* d = rowAt(dst, dstStep, y);
    windowRow(s, d, roi.width, mask);
  }
  return lumStatusOk;
}

// Down the columns, a strip of columns at a time: the strip's running sums live on the stack,
// so the function needs no scratch memory and cannot fail to get it.
template <class T, int kCh>
LumStatus columnImpl(const T* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi, int mask,
                     int anchor) {
  if (LumStatus st = check(src, dst, mask, anchor)) return st;
  srcStep = wholeElements<T>(srcStep);
  dstStep = wholeElements<Lum32f>(dstStep);
  if (roi.height < 1 || roi.width < 1) return lumStatusOk;
  constexpr std::ptrdiff_t kStrip = 256 * kCh;
  int32_t first[kStrip];
  Lum32f sum[kStrip];
  const T* top = rowAt(src, srcStep, -anchor);
  const std::ptrdiff_t n = elemsOf(roi.width, kCh);
  const SlideRowFn<T> slideRow = pickSlideRow<T>();
  for (std::ptrdiff_t i0 = 0; i0 < n; i0 += kStrip) {
    const std::ptrdiff_t len = n - i0 < kStrip ? n - i0 : kStrip;
    for (std::ptrdiff_t i = 0; i < len; ++i) first[i] = 0;
    for (int k = 0; k < mask; ++k) {
      const T* s = rowAt(top, srcStep, k) + i0;
      for (std::ptrdiff_t i = 0; i < len; ++i) first[i] = add(first[i], s[i]);
    }
    for (std::ptrdiff_t i = 0; i < len; ++i) sum[i] = static_cast<Lum32f>(first[i]);
    for (int y = 0; y < roi.height; ++y) {
      std::memcpy(rowAt(dst, dstStep, y) + i0, sum, static_cast<std::size_t>(len) * sizeof(Lum32f));
      if (y + 1 < roi.height)
        slideRow(rowAt(top, srcStep, y + mask) + i0, rowAt(top, srcStep, y) + i0, sum, len);
    }
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace window
}  // namespace lumi

#define LUMI_SUM_WINDOW_ROW(NAME, T, CH)                                                      \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, Lum32f* pDst, int dstStep,              \
                          LumiSize dstRoiSize, int maskSize, int anchor) {                    \
    return rowImpl<T, CH>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);        \
  }
#define LUMI_SUM_WINDOW_COLUMN(NAME, T, CH)                                                   \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, Lum32f* pDst, int dstStep,              \
                          LumiSize dstRoiSize, int maskSize, int anchor) {                    \
    return columnImpl<T, CH>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);     \
  }

using namespace lumi;
using namespace lumi::window;

LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_8u32f_C1R, Lum8u, 1)
LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_8u32f_C3R, Lum8u, 3)
LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_8u32f_C4R, Lum8u, 4)
LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_16s32f_C1R, Lum16s, 1)
LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_16s32f_C3R, Lum16s, 3)
LUMI_SUM_WINDOW_ROW(lumiSumWindowRow_16s32f_C4R, Lum16s, 4)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_8u32f_C1R, Lum8u, 1)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_8u32f_C3R, Lum8u, 3)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_8u32f_C4R, Lum8u, 4)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_16s32f_C1R, Lum16s, 1)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_16s32f_C3R, Lum16s, 3)
LUMI_SUM_WINDOW_COLUMN(lumiSumWindowColumn_16s32f_C4R, Lum16s, 4)
#endif  // HWY_ONCE
