// Window sums as 32-bit floats, without division: maskSize pixels per channel along the row or
// down the column, starting anchor pixels before the destination pixel. The first window is
// summed in integers; each later one adds the entering pixel minus the leaving one, a
// difference taken in integers, to the running single-precision sum. While the sums stay below
// 2^24 (any 8u mask up to 65793 pixels) every result is the exact sum.
#include "core/frame.h"
#include "lumi/filter.h"

namespace lumi {
namespace window {
namespace {

// The first window's integer sum wraps modulo 2^32: masks of more than 65536 extreme 16s
// values are the caller's to avoid, as for the box filter.
inline int32_t add(int32_t sum, int32_t v) {
  return static_cast<int32_t>(static_cast<uint32_t>(sum) + static_cast<uint32_t>(v));
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
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y) - lead;
    Lum32f* d = rowAt(dst, dstStep, y);
    for (int c = 0; c < kCh && roi.width > 0; ++c) {
      int32_t first = 0;
      for (int k = 0; k < mask; ++k) first = add(first, s[elemsOf(k, kCh) + c]);
      Lum32f sum = static_cast<Lum32f>(first);
      d[c] = sum;
      for (int x = 1; x < roi.width; ++x) {
        sum += static_cast<Lum32f>(s[elemsOf(x + mask - 1, kCh) + c] - s[elemsOf(x - 1, kCh) + c]);
        d[elemsOf(x, kCh) + c] = sum;
      }
    }
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
  for (std::ptrdiff_t i0 = 0; i0 < n; i0 += kStrip) {
    const std::ptrdiff_t len = n - i0 < kStrip ? n - i0 : kStrip;
    for (std::ptrdiff_t i = 0; i < len; ++i) first[i] = 0;
    for (int k = 0; k < mask; ++k) {
      const T* s = rowAt(top, srcStep, k) + i0;
      for (std::ptrdiff_t i = 0; i < len; ++i) first[i] = add(first[i], s[i]);
    }
    for (std::ptrdiff_t i = 0; i < len; ++i) sum[i] = static_cast<Lum32f>(first[i]);
    for (int y = 0; y < roi.height; ++y) {
      Lum32f* d = rowAt(dst, dstStep, y) + i0;
      for (std::ptrdiff_t i = 0; i < len; ++i) d[i] = static_cast<Lum32f>(sum[i]);
      if (y + 1 == roi.height) break;
      const T* in = rowAt(top, srcStep, y + mask) + i0;
      const T* out = rowAt(top, srcStep, y) + i0;
      for (std::ptrdiff_t i = 0; i < len; ++i) sum[i] += static_cast<Lum32f>(in[i] - out[i]);
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

extern "C" {
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
}
