// Box filter: every destination pixel is the mean of the mask of source pixels its anchor places
// around it. Running sums keep the cost per pixel independent of the mask: column sums slide
// down a band of rows, and along each destination row one window sum slides over them.
// Normalisation by type is in box_kernels.h.
#include "core/halo.h"
#include "filter/box_kernels.h"
#include "lumi/filter.h"

namespace lumi {
namespace box {
namespace {

template <class T, class A>
ColSlideFn<T, A> pickColSlide() {
  return &colSlideScalar<T, A>;
}
template <class T, class A, class L>
BoxRowFn<T, A> pickBoxRow() {
  return &boxRowScalar<T, A, L>;
}

// Steps in bytes become whole elements: a 16s or 32f step that is not a multiple of the
// element size is rounded down to one, not reported.
template <class T>
int wholeElements(int step) {
  return step / static_cast<int>(sizeof(T)) * static_cast<int>(sizeof(T));
}

constexpr std::size_t kScratchLimit = 0x7fffffff;
inline std::size_t roundUp64(std::size_t n) { return (n + 63) & ~static_cast<std::size_t>(63); }

// The rows of the ROI in one band per thread (when the ROI has more than 4096 pixels). Each
// band starts its column sums from scratch at its first row and slides them down. In place, the
// source rows a band still reads after it (or its neighbour) overwrote them come from the halo
// copies; the arithmetic, and so the result, is that of the out-of-place call with the same
// bands.
template <class T, class A, class L>
LumStatus runBands(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                   LumiPoint anchor, const BoxScale& sc, bool inPlace) {
  constexpr int kCh = L::kCh;
  const int top = anchor.y, bottom = mask.height - 1 - anchor.y;
  const int left = anchor.x, right = mask.width - 1 - anchor.x;
  // Scratch per thread: the column sums (with room for vector loads past the end) and, in
  // place, the halo rows. Sized in double first: masks near INT_MAX must not wrap the count.
  const double extElems = (static_cast<double>(roi.width) + mask.width - 1) * kCh;
  const double haloRows = inPlace ? 2.0 * top + 1.0 + bottom : 0.0;
  if ((extElems + 64) * sizeof(A) + haloRows * extElems * sizeof(T) + 128 > kScratchLimit)
    return lumStatusMemAllocErr;
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(extElems);
  const std::size_t colBytes = roundUp64(static_cast<std::size_t>(n + 64) * sizeof(A));
  const HaloRows<T> halo(viewOf<L>(src, srcStep, roi), top, bottom, left, right, inPlace);
  const std::size_t bytes = colBytes + halo.scratchBytes();
  const std::ptrdiff_t lead = elemsOf(left, kCh);
  const ColSlideFn<T, A> slide = pickColSlide<T, A>();
  const BoxRowFn<T, A> boxRow = pickBoxRow<T, A, L>();

  auto body = [&](int y0, int y1, Lum8u* scratch) {
    std::conditional_t<std::is_same_v<T, Lum16s>, NearestRounding, int> rounding{};
    (void)rounding;
    A* col = reinterpret_cast<A*>(scratch);
    HaloRows<T> rows = halo;
    rows.bind(y0, y1, scratch + colBytes);
    colSet(rows.row(y0 - top) - lead, col, n);
    for (int k = 1; k < mask.height; ++k) colAdd(rows.row(y0 - top + k) - lead, col, n);
    for (int y = y0; y < y1; ++y) {
      rows.keep(y);
      boxRow(col, rowAt(dst, dstStep, y), roi.width, mask.width, sc);
      if (y + 1 < y1) slide(rows.row(y + 1 + bottom) - lead, rows.row(y - top) - lead, col, n);
    }
  };
  const bool parallel = static_cast<long long>(roi.width) * roi.height > 4096;
  if (!inPlace) return forRowsWithScratch(roi.height, parallel, bytes, body);
  auto prepare = [&](int y0, int y1, Lum8u* scratch) {
    HaloRows<T> rows = halo;
    rows.bind(y0, y1, scratch + colBytes);
    rows.prepare();
  };
  return forRowsWithScratch(roi.height, parallel, bytes, body, prepare);
}

template <class T, class L>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
              LumiPoint anchor, bool inPlace) {
  const long long area = static_cast<long long>(mask.width) * mask.height;
  srcStep = wholeElements<T>(srcStep);
  dstStep = wholeElements<T>(dstStep);
  if constexpr (std::is_same_v<T, Lum8u>) {
    if (area <= kMaxIntegerArea)
      return runBands<T, uint32_t, L>(src, srcStep, dst, dstStep, roi, mask, anchor,
                                      scale8u(area), inPlace);
    return runBands<T, float, L>(src, srcStep, dst, dstStep, roi, mask, anchor, scaleFloat(area),
                                 inPlace);
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    return runBands<T, int32_t, L>(src, srcStep, dst, dstStep, roi, mask, anchor,
                                   scaleFloat(area), inPlace);
  } else {
    return runBands<T, float, L>(src, srcStep, dst, dstStep, roi, mask, anchor, scaleFloat(area),
                                 inPlace);
  }
}

// Checks in the family's order: pointers, steps, ROI, mask, anchor.
inline LumStatus checkMask(LumiSize mask, LumiPoint anchor) {
  if (badSize(mask)) return lumStatusMaskSizeErr;
  if (anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height)
    return lumStatusAnchorErr;
  return lumStatusOk;
}

template <class T, class L>
LumStatus boxImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                  LumiPoint anchor) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (LumStatus st = checkMask(mask, anchor)) return st;
  return run<T, L>(src, srcStep, dst, dstStep, roi, mask, anchor, false);
}

template <class T, class L>
LumStatus boxInPlaceImpl(T* srcDst, int step, LumiSize roi, LumiSize mask, LumiPoint anchor) {
  if (anyNull(srcDst)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (LumStatus st = checkMask(mask, anchor)) return st;
  return run<T, L>(srcDst, step, srcDst, step, roi, mask, anchor, true);
}

}  // namespace
}  // namespace box
}  // namespace lumi

#define LUMI_FILTER_BOX(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep,                   \
                          LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor) {         \
    return boxImpl<T, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);         \
  }
#define LUMI_FILTER_BOX_I(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize,    \
                          LumiPoint anchor) {                                                 \
    return boxInPlaceImpl<T, L>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);              \
  }

using namespace lumi;
using namespace lumi::box;

extern "C" {
LUMI_FILTER_BOX(lumiFilterBox_8u_C1R, Lum8u, C1)
LUMI_FILTER_BOX(lumiFilterBox_8u_C3R, Lum8u, C3)
LUMI_FILTER_BOX(lumiFilterBox_8u_C4R, Lum8u, C4)
LUMI_FILTER_BOX(lumiFilterBox_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_BOX(lumiFilterBox_16s_C1R, Lum16s, C1)
LUMI_FILTER_BOX(lumiFilterBox_16s_C3R, Lum16s, C3)
LUMI_FILTER_BOX(lumiFilterBox_16s_C4R, Lum16s, C4)
LUMI_FILTER_BOX(lumiFilterBox_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_BOX(lumiFilterBox_32f_C1R, Lum32f, C1)
LUMI_FILTER_BOX(lumiFilterBox_32f_C3R, Lum32f, C3)
LUMI_FILTER_BOX(lumiFilterBox_32f_C4R, Lum32f, C4)
LUMI_FILTER_BOX(lumiFilterBox_32f_AC4R, Lum32f, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C1IR, Lum8u, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C3IR, Lum8u, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C4IR, Lum8u, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_AC4IR, Lum8u, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C1IR, Lum16s, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C3IR, Lum16s, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C4IR, Lum16s, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_AC4IR, Lum16s, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C1IR, Lum32f, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C3IR, Lum32f, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C4IR, Lum32f, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_AC4IR, Lum32f, AC4)
}
