// Border extension: copies a source image into a larger destination at (left, top) and fills
// the frame around it with a constant, with the nearest edge pixel, or with the periodic
// continuation of the source. The in-place forms find the source already inside the
// destination. These run on the calling thread; rows are moved with block copies.
#include "core/frame.h"
#include "convert/datamove_kernels.h"

#include <algorithm>

namespace lumi {
namespace {

// Steps are tested before sizes here, unlike most families.
template <class T>
LumStatus checkBorder(const T* src, int srcStep, LumiSize srcRoi, const T* dst, int dstStep,
                      LumiSize dstRoi, int top, int left) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(srcRoi) || badSize(dstRoi) || top < 0 || left < 0 ||
      std::int64_t{dstRoi.width} < std::int64_t{srcRoi.width} + left ||
      std::int64_t{dstRoi.height} < std::int64_t{srcRoi.height} + top)
    return lumStatusSizeErr;
  return lumStatusOk;
}

template <class T, class L>
LumStatus constBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep,
                      LumiSize dstRoi, int top, int left, const T* value) {
  if (LumStatus st = checkBorder(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left))
    return st;
  if (!value) return lumStatusNullPtrErr;
  const std::size_t dw = static_cast<std::size_t>(dstRoi.width);
  const std::size_t sw = static_cast<std::size_t>(srcRoi.width);
  const std::size_t right = dw - sw - static_cast<std::size_t>(left);
  const int bottom = top + srcRoi.height;
  for (int y = 0; y < top; ++y) dm::fillPixels<T, L>(rowAt(dst, dstStep, y), dw, value);
  for (int y = 0; y < srcRoi.height; ++y) {
    T* d = rowAt(dst, dstStep, top + y);
    dm::fillPixels<T, L>(d, static_cast<std::size_t>(left), value);
    dm::copyPixels<T, L>(rowAt(src, srcStep, y), d + elemsOf(left, L::kCh), sw);
    dm::fillPixels<T, L>(d + elemsOf(left, L::kCh) + elemsOf(srcRoi.width, L::kCh), right,
                         value);
  }
  for (int y = bottom; y < dstRoi.height; ++y)
    dm::fillPixels<T, L>(rowAt(dst, dstStep, y), dw, value);
  return lumStatusOk;
}

inline int floorMod(std::int64_t a, int m) {
  std::int64_t r = a % m;
  return static_cast<int>(r < 0 ? r + m : r);
}

// How the frame continues the source: with the nearest edge pixel, or periodically.
enum class Extend { kReplicate, kWrap };

// The source rows are completed first: replicate repeats a row's first pixel to the left and
// its last to the right; wrap gives dst(x) = row((x - left) mod width) from pieces of the row
// already in place. Every other destination row is then a copy of one source row: the nearest
// one, or the one (y - top) mod height.
template <class T, class L, Extend kMode, bool kInPlace>
LumStatus extendBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep,
                       LumiSize dstRoi, int top, int left) {
  if (LumStatus st = checkBorder(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left))
    return st;
  // In place, the source sits at (left, top) inside the destination.
  if constexpr (kInPlace) dst = const_cast<T*>(rowAt(src, dstStep, -top)) - elemsOf(left, L::kCh);
  const std::size_t dw = static_cast<std::size_t>(dstRoi.width);
  const std::size_t sw = static_cast<std::size_t>(srcRoi.width);
  const std::size_t l = static_cast<std::size_t>(left);
  for (int y = 0; y < srcRoi.height; ++y) {
    T* d = rowAt(dst, dstStep, top + y);
    T* row = d + elemsOf(left, L::kCh);
    if constexpr (!kInPlace) dm::copyPixels<T, L>(rowAt(src, srcStep, y), row, sw);
    if constexpr (kMode == Extend::kReplicate) {
      dm::fillPixels<T, L>(d, l, row);
      dm::fillPixels<T, L>(row + elemsOf(srcRoi.width, L::kCh), dw - sw - l,
                           row + elemsOf(srcRoi.width - 1, L::kCh));
    } else {
      static_assert(L::kCh == L::kUse, "wrap runs on layouts that write every channel");
      std::size_t x = 0, k = static_cast<std::size_t>(floorMod(-std::int64_t{left}, srcRoi.width));
      while (x < l) {
        const std::size_t len = std::min(sw - k, l - x);
        dm::copyPixels<T, L>(row + k * L::kCh, d + x * L::kCh, len);
        x += len;
        k = 0;
      }
      for (x = l + sw; x < dw; x += sw)
        dm::copyPixels<T, L>(row, d + x * L::kCh, std::min(sw, dw - x));
    }
  }
  const int bottom = top + srcRoi.height;
  for (int y = 0; y < dstRoi.height; ++y) {
    if (y >= top && y < bottom) continue;
    const int from = kMode == Extend::kReplicate
                         ? std::clamp(y, top, bottom - 1)
                         : top + floorMod(std::int64_t{y} - top, srcRoi.height);
    dm::copyPixels<T, L>(rowAt(dst, dstStep, from), rowAt(dst, dstStep, y), dw);
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_BORDER_CONST(NAME, T, L, VALUE_DECL, VALUE_PTR)                                  \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize srcRoiSize, T* pDst,           \
                          int dstStep, LumiSize dstRoiSize, int topBorderHeight,              \
                          int leftBorderWidth, VALUE_DECL) {                                  \
    return lumi::constBorder<T, lumi::L>(pSrc, srcStep, srcRoiSize, pDst, dstStep,            \
                                         dstRoiSize, topBorderHeight, leftBorderWidth,        \
                                         VALUE_PTR);                                          \
  }
#define LUMI_BORDER(NAME, T, L, MODE)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize srcRoiSize, T* pDst,           \
                          int dstStep, LumiSize dstRoiSize, int topBorderHeight,              \
                          int leftBorderWidth) {                                              \
    return lumi::extendBorder<T, lumi::L, lumi::Extend::MODE, false>(                         \
        pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight,                \
        leftBorderWidth);                                                                     \
  }
#define LUMI_BORDER_INPLACE(NAME, T, L, MODE)                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, int srcDstStep, LumiSize srcRoiSize,                 \
                          LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {    \
    return lumi::extendBorder<T, lumi::L, lumi::Extend::MODE, true>(                          \
        pSrc, srcDstStep, srcRoiSize, const_cast<T*>(pSrc), srcDstStep, dstRoiSize,           \
        topBorderHeight, leftBorderWidth);                                                    \
  }

LUMI_BORDER_CONST(lumiCopyConstBorder_8u_C1R, Lum8u, C1, Lum8u value, &value)
LUMI_BORDER_CONST(lumiCopyConstBorder_8u_C3R, Lum8u, C3, const Lum8u value[3], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_8u_C4R, Lum8u, C4, const Lum8u value[4], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_8u_AC4R, Lum8u, AC4, const Lum8u value[3], value)
LUMI_BORDER(lumiCopyReplicateBorder_8u_C1R, Lum8u, C1, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_8u_C1IR, Lum8u, C1, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_8u_C3R, Lum8u, C3, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_8u_C3IR, Lum8u, C3, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_8u_C4R, Lum8u, C4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_8u_C4IR, Lum8u, C4, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_8u_AC4R, Lum8u, AC4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_8u_AC4IR, Lum8u, AC4, kReplicate)
LUMI_BORDER_CONST(lumiCopyConstBorder_16s_C1R, Lum16s, C1, Lum16s value, &value)
LUMI_BORDER_CONST(lumiCopyConstBorder_16s_C3R, Lum16s, C3, const Lum16s value[3], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_16s_C4R, Lum16s, C4, const Lum16s value[4], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_16s_AC4R, Lum16s, AC4, const Lum16s value[3], value)
LUMI_BORDER(lumiCopyReplicateBorder_16s_C1R, Lum16s, C1, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_16s_C1IR, Lum16s, C1, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_16s_C3R, Lum16s, C3, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_16s_C3IR, Lum16s, C3, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_16s_C4R, Lum16s, C4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_16s_C4IR, Lum16s, C4, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_16s_AC4R, Lum16s, AC4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_16s_AC4IR, Lum16s, AC4, kReplicate)
LUMI_BORDER_CONST(lumiCopyConstBorder_32s_C1R, Lum32s, C1, Lum32s value, &value)
LUMI_BORDER_CONST(lumiCopyConstBorder_32s_C3R, Lum32s, C3, const Lum32s value[3], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_32s_C4R, Lum32s, C4, const Lum32s value[4], value)
LUMI_BORDER_CONST(lumiCopyConstBorder_32s_AC4R, Lum32s, AC4, const Lum32s value[3], value)
LUMI_BORDER(lumiCopyReplicateBorder_32s_C1R, Lum32s, C1, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_32s_C1IR, Lum32s, C1, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_32s_C3R, Lum32s, C3, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_32s_C3IR, Lum32s, C3, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_32s_C4R, Lum32s, C4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_32s_C4IR, Lum32s, C4, kReplicate)
LUMI_BORDER(lumiCopyReplicateBorder_32s_AC4R, Lum32s, AC4, kReplicate)
LUMI_BORDER_INPLACE(lumiCopyReplicateBorder_32s_AC4IR, Lum32s, AC4, kReplicate)
LUMI_BORDER(lumiCopyWrapBorder_32s_C1R, Lum32s, C1, kWrap)
LUMI_BORDER_INPLACE(lumiCopyWrapBorder_32s_C1IR, Lum32s, C1, kWrap)
