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

// The destination origin of an in-place call: the source sits at (left, top) inside it.
template <class T, class L>
T* originOf(const T* src, int step, int top, int left) {
  return const_cast<T*>(rowAt(src, step, -top)) - static_cast<std::ptrdiff_t>(left) * L::kCh;
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
    dm::copyPixels<T, L>(rowAt(src, srcStep, y), d + std::size_t(left) * L::kCh, sw);
    dm::fillPixels<T, L>(d + (std::size_t(left) + sw) * L::kCh, right, value);
  }
  for (int y = bottom; y < dstRoi.height; ++y)
    dm::fillPixels<T, L>(rowAt(dst, dstStep, y), dw, value);
  return lumStatusOk;
}

// Each source row gets its first pixel repeated to the left and its last to the right; then
// the rows below repeat the last row written and the rows above the first one.
template <class T, class L, bool kInPlace>
LumStatus replicateBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep,
                          LumiSize dstRoi, int top, int left) {
  if (LumStatus st = checkBorder(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left))
    return st;
  if constexpr (kInPlace) dst = originOf<T, L>(src, dstStep, top, left);
  const std::size_t dw = static_cast<std::size_t>(dstRoi.width);
  const std::size_t sw = static_cast<std::size_t>(srcRoi.width);
  const std::size_t l = static_cast<std::size_t>(left);
  const std::size_t right = dw - sw - l;
  for (int y = 0; y < srcRoi.height; ++y) {
    T* d = rowAt(dst, dstStep, top + y);
    T* row = d + l * L::kCh;
    if constexpr (!kInPlace) dm::copyPixels<T, L>(rowAt(src, srcStep, y), row, sw);
    dm::fillPixels<T, L>(d, l, row);
    dm::fillPixels<T, L>(row + sw * L::kCh, right, row + (sw - 1) * L::kCh);
  }
  const int bottom = top + srcRoi.height;
  const T* last = rowAt(dst, dstStep, bottom - 1);
  for (int y = bottom; y < dstRoi.height; ++y) dm::copyPixels<T, L>(last, rowAt(dst, dstStep, y), dw);
  const T* first = rowAt(dst, dstStep, top);
  for (int y = 0; y < top; ++y) dm::copyPixels<T, L>(first, rowAt(dst, dstStep, y), dw);
  return lumStatusOk;
}

inline int floorMod(std::int64_t a, int m) {
  std::int64_t r = a % m;
  return static_cast<int>(r < 0 ? r + m : r);
}

// dst(x, y) = src((x - left) mod width, (y - top) mod height). The source rows are completed
// first, from pieces of the row already in place; every other row is a copy of one of them.
template <class T, bool kInPlace>
LumStatus wrapBorder(const T* src, int srcStep, LumiSize srcRoi, T* dst, int dstStep,
                     LumiSize dstRoi, int top, int left) {
  if (LumStatus st = checkBorder(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left))
    return st;
  if constexpr (kInPlace) dst = originOf<T, C1>(src, dstStep, top, left);
  const std::size_t dw = static_cast<std::size_t>(dstRoi.width);
  const std::size_t sw = static_cast<std::size_t>(srcRoi.width);
  const std::size_t l = static_cast<std::size_t>(left);
  for (int y = 0; y < srcRoi.height; ++y) {
    T* d = rowAt(dst, dstStep, top + y);
    T* row = d + l;
    if constexpr (!kInPlace) std::memcpy(row, rowAt(src, srcStep, y), sw * sizeof(T));
    std::size_t x = 0, k = static_cast<std::size_t>(floorMod(-std::int64_t{left}, srcRoi.width));
    while (x < l) {
      const std::size_t len = std::min(sw - k, l - x);
      std::memcpy(d + x, row + k, len * sizeof(T));
      x += len;
      k = 0;
    }
    for (x = l + sw; x < dw; x += sw) std::memcpy(d + x, row, std::min(sw, dw - x) * sizeof(T));
  }
  const int bottom = top + srcRoi.height;
  for (int y = 0; y < dstRoi.height; ++y) {
    if (y >= top && y < bottom) continue;
    const int from = top + floorMod(std::int64_t{y} - top, srcRoi.height);
    std::memcpy(rowAt(dst, dstStep, y), rowAt(dst, dstStep, from), dw * sizeof(T));
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_BORDER_CONST(t, L, valueDecl, valuePtr)                                          \
  LUMI_API LumStatus lumiCopyConstBorder_##t##_##L##R(                                        \
      const Lum##t* pSrc, int srcStep, LumiSize srcRoiSize, Lum##t* pDst, int dstStep,        \
      LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, valueDecl) {             \
    return lumi::constBorder<Lum##t, lumi::L>(pSrc, srcStep, srcRoiSize, pDst, dstStep,       \
                                              dstRoiSize, topBorderHeight, leftBorderWidth,   \
                                              valuePtr);                                      \
  }
#define LUMI_BORDER_REPLICATE(t, L)                                                           \
  LUMI_API LumStatus lumiCopyReplicateBorder_##t##_##L##R(                                    \
      const Lum##t* pSrc, int srcStep, LumiSize srcRoiSize, Lum##t* pDst, int dstStep,        \
      LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {                        \
    return lumi::replicateBorder<Lum##t, lumi::L, false>(pSrc, srcStep, srcRoiSize, pDst,     \
                                                         dstStep, dstRoiSize,                 \
                                                         topBorderHeight, leftBorderWidth);   \
  }                                                                                           \
  LUMI_API LumStatus lumiCopyReplicateBorder_##t##_##L##IR(                                   \
      const Lum##t* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize,           \
      int topBorderHeight, int leftBorderWidth) {                                             \
    return lumi::replicateBorder<Lum##t, lumi::L, true>(                                      \
        pSrc, srcDstStep, srcRoiSize, const_cast<Lum##t*>(pSrc), srcDstStep, dstRoiSize,      \
        topBorderHeight, leftBorderWidth);                                                    \
  }
#define LUMI_BORDER_TYPE(t)                                  \
  LUMI_BORDER_CONST(t, C1, Lum##t value, &value)             \
  LUMI_BORDER_CONST(t, C3, const Lum##t value[3], value)     \
  LUMI_BORDER_CONST(t, C4, const Lum##t value[4], value)     \
  LUMI_BORDER_CONST(t, AC4, const Lum##t value[3], value)    \
  LUMI_BORDER_REPLICATE(t, C1)                               \
  LUMI_BORDER_REPLICATE(t, C3)                               \
  LUMI_BORDER_REPLICATE(t, C4)                               \
  LUMI_BORDER_REPLICATE(t, AC4)

extern "C" {
LUMI_BORDER_TYPE(8u)
LUMI_BORDER_TYPE(16s)
LUMI_BORDER_TYPE(32s)

LUMI_API LumStatus lumiCopyWrapBorder_32s_C1R(const Lum32s* pSrc, int srcStep,
                                              LumiSize srcRoiSize, Lum32s* pDst, int dstStep,
                                              LumiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth) {
  return lumi::wrapBorder<Lum32s, false>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize,
                                         topBorderHeight, leftBorderWidth);
}
LUMI_API LumStatus lumiCopyWrapBorder_32s_C1IR(const Lum32s* pSrc, int srcDstStep,
                                               LumiSize srcRoiSize, LumiSize dstRoiSize,
                                               int topBorderHeight, int leftBorderWidth) {
  return lumi::wrapBorder<Lum32s, true>(pSrc, srcDstStep, srcRoiSize, const_cast<Lum32s*>(pSrc),
                                        srcDstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
}
