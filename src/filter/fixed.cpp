// Fixed-kernel filters: Prewitt, Sobel, Scharr, Laplace, high-pass, Gauss, low-pass, sharpening
// and Roberts. Every filter is one entry of a small table (3x3 or 5x5 integer weights, float
// weights for 32f, what follows the sum) and one kernel applies any entry: sums in 32-bit
// integers, one rounding and one saturation at the end, so the integer results are exact.
//
// Vector kernels: integer results equal the plain kernels' bit for bit. Float rows add the same
// products in the same order as the plain kernel (no fused multiply-add), so they agree too;
// the tests hold both to a double-precision reference within 1e-6 of the sum of |w x src|.
#include <cstdint>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/fixed.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "filter/fixed_kernels.h"
#include "lumi/filter_fixed.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace fixed {

namespace {

FixedKernel finish(FixedKernel fk) {
  const int c = fk.k / 2;
  if (fk.sep) {
    for (int i = 0; i < fk.k; ++i)
      for (int j = 0; j < fk.k; ++j) fk.w[i * fk.k + j] = fk.col[i] * fk.row[j];
    fk.w[c * fk.k + c] += fk.centre;
  }
  fk.nTaps = 0;
  for (int i = 0; i < fk.k; ++i)
    for (int j = 0; j < fk.k; ++j) {
      const int w = fk.w[i * fk.k + j];
      if (w == 0) continue;
      // 32f Gauss 5x5 weighs by the single-precision quotients, the others by the weights
      const float fw = fk.k == 5 && fk.post == Post::Nearest && fk.div == 571
                           ? static_cast<float>(w) / 571.0f
                           : static_cast<float>(w);
      fk.taps[fk.nTaps++] = Tap{i, j - c, w, fw};
    }
  if (fk.post == Post::Nearest) {  // the 16-bit division of non-negative 8u sums
    if (fk.div == 9) {
      fk.bias16 = 5, fk.m16 = 7281, fk.sh16 = 0;
    } else {
      fk.bias16 = fk.div / 2;
      fk.sh16 = 0;
      while ((((1 << (17 + fk.sh16)) + fk.div - 1) / fk.div) < 65536) ++fk.sh16;
      fk.m16 = ((1 << (16 + fk.sh16)) + fk.div - 1) / fk.div;
    }
  }
  return fk;
}

// A separable kernel: column taps (top to bottom) times row taps (left to right), plus a
// centre weight.
FixedKernel sepK(int k, std::initializer_list<int> col, std::initializer_list<int> row, int centre = 0,
                 Post post = Post::Exact, int div = 1, FPost fpost = FPost::None, float fval = 1.0f) {
  FixedKernel fk;
  fk.k = k;
  fk.sep = true;
  int i = 0;
  for (int v : col) fk.col[i++] = v;
  i = 0;
  for (int v : row) fk.row[i++] = v;
  fk.centre = centre;
  fk.post = post;
  fk.div = div;
  fk.fpost = fpost;
  fk.fval = fval;
  return finish(fk);
}
FixedKernel fullK(const int (&w)[25], Post post, int div) {
  FixedKernel fk;
  fk.k = 5;
  for (int i = 0; i < 25; ++i) fk.w[i] = w[i];
  fk.post = post;
  fk.div = div;
  return finish(fk);
}

struct Table {
  FixedKernel three[static_cast<int>(Kind::kCount)], five[static_cast<int>(Kind::kCount)];
};

Table makeTable() {
  Table t;
  auto set = [&](Kind k, FixedKernel a, FixedKernel b) {
    t.three[static_cast<int>(k)] = a;
    t.five[static_cast<int>(k)] = b;
  };
  const FixedKernel prewittV = sepK(3, {1, 1, 1}, {1, 0, -1});
  const FixedKernel prewittH = sepK(3, {-1, 0, 1}, {1, 1, 1});
  set(Kind::PrewittVert, prewittV, prewittV);
  set(Kind::PrewittHoriz, prewittH, prewittH);
  set(Kind::SobelVert, sepK(3, {1, 2, 1}, {1, 0, -1}), sepK(5, {1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}));
  set(Kind::SobelHoriz, sepK(3, {-1, 0, 1}, {1, 2, 1}), sepK(5, {-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}));
  set(Kind::SobelVertSecond, sepK(3, {1, 2, 1}, {1, -2, 1}),
      sepK(5, {1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}));
  set(Kind::SobelHorizSecond, sepK(3, {1, -2, 1}, {1, 2, 1}),
      sepK(5, {1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}));
  set(Kind::SobelCross, sepK(3, {-1, 0, 1}, {1, 0, -1}), sepK(5, {-1, -2, 0, 2, 1}, {1, 2, 0, -2, -1}));
  const FixedKernel scharrV = sepK(3, {3, 10, 3}, {1, 0, -1});
  const FixedKernel scharrH = sepK(3, {-1, 0, 1}, {3, 10, 3});
  set(Kind::ScharrVert, scharrV, scharrV);
  set(Kind::ScharrHoriz, scharrH, scharrH);
  // 9 x centre minus the block; the 5x5 Laplace weights 1, 3, 4, 6 and 20 sum to zero
  const FixedKernel lap3 = sepK(3, {1, 1, 1}, {-1, -1, -1}, 9);
  const int lap5[25] = {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4,
                        -3, 0, 6, 0, -3, -1, -3, -4, -3, -1};
  set(Kind::Laplace, lap3, fullK(lap5, Post::Exact, 1));
  set(Kind::Hipass, lap3, sepK(5, {1, 1, 1, 1, 1}, {-1, -1, -1, -1, -1}, 25));
  const int gauss5[25] = {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12,
                          7, 31, 52, 31, 7, 2, 7, 12, 7, 2};
  set(Kind::Gauss, sepK(3, {1, 2, 1}, {1, 2, 1}, 0, Post::Even4, 16, FPost::Scale, 1.0f / 16),
      fullK(gauss5, Post::Nearest, 571));
  set(Kind::Lowpass, sepK(3, {1, 1, 1}, {1, 1, 1}, 0, Post::Nearest, 9, FPost::Divide, 9.0f),
      sepK(5, {1, 1, 1, 1, 1}, {1, 1, 1, 1, 1}, 0, Post::Nearest, 25, FPost::Divide, 25.0f));
  const FixedKernel sharpen = sepK(3, {1, 1, 1}, {-1, -1, -1}, 17, Post::Even3, 8, FPost::Scale, 0.125f);
  set(Kind::Sharpen, sharpen, sharpen);
  return t;
}

}  // namespace

const FixedKernel& kernelOf(Kind kind, bool five) {
  static const Table table = makeTable();
  return five ? table.five[static_cast<int>(kind)] : table.three[static_cast<int>(kind)];
}

namespace {

// Above this many pixel-taps the rows are shared among the threads.
constexpr long long kForkWork = 1LL << 18;

template <class Ts, class Td>
using FixedRowFn = void (*)(const Ts* const*, Td*, int, const FixedKernel&, void*);
template <class T>
using RobertsRowFn = void (*)(const T*, const T*, T*, int);

template <class Ts, class Td, class L>
void fixedRowScalar(const Ts* const* rows, Td* dst, int width, const FixedKernel& fk, void*) {
  fixedFrom<Ts, Td, L>(rows, dst, 0, elemsOf(width, L::kCh), fk);
}
template <class T, class L>
void robertsRowScalar(const T* a, const T* b, T* dst, int width) {
  robertsFrom<T, L>(a, b, dst, 0, elemsOf(width, L::kCh));
}

template <class Ts, class Td, class L>
FixedRowFn<Ts, Td> pickFixedRow() {
  return &fixedRowScalar<Ts, Td, L>;
}
template <class T, class L>
RobertsRowFn<T> pickRobertsRow() {
  return &robertsRowScalar<T, L>;
}

template <class Ts, class Td, class L>
LumStatus fixedImpl(Kind kind, const Ts* src, int srcStep, Td* dst, int dstStep, LumiSize roi,
                    int mask) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (mask != lumMskSize3x3 && mask != lumMskSize5x5) return lumStatusMaskSizeErr;
  const FixedKernel& fk = kernelOf(kind, mask == lumMskSize5x5);
  const FixedRowFn<Ts, Td> rowFn = pickFixedRow<Ts, Td, L>();
  const int c = fk.k / 2;
  // one 16-bit line of column sums per thread, for the separable vector kernels
  const std::size_t line = static_cast<std::size_t>(bytesOf(roi.width + fk.k, L::kCh, sizeof(int16_t))) + 64;
  return forRowsWithScratch(
      roi.height, forkByWork(roi, fk.k * fk.k, kForkWork), line, [&](int y0, int y1, Lum8u* scratch) {
        const Ts* rows[5];
        for (int y = y0; y < y1; ++y) {
          for (int r = 0; r < fk.k; ++r) rows[r] = rowAt(src, srcStep, y - c + r);
          rowFn(rows, rowAt(dst, dstStep, y), roi.width, fk, scratch);
        }
      });
}

// kDx: -1 for the pixel up and to the left (Down), +1 up and to the right (Up). The row above
// lies the step, rounded down to whole elements, before the current one.
template <class T, class L, int kDx>
LumStatus robertsImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  const RobertsRowFn<T> rowFn = pickRobertsRow<T, L>();
  const std::ptrdiff_t up = srcStep - srcStep % static_cast<int>(sizeof(T));
  forRows(roi.height, forkByWork(roi, 2, kForkWork), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      const T* a = rowAt(src, srcStep, y);
      rowFn(a, byteOffset(a, -up) + kDx * L::kCh, rowAt(dst, dstStep, y), roi.width);
    }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace fixed
}  // namespace lumi

// One stamp per export: the 3x3-only filters pass lumMskSize3x3 for the mask.
#define LUMI_FIXED(NAME, KIND, TS, TD, L)                                                     \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep, LumiSize dstRoiSize) { \
    return fixedImpl<TS, TD, L>(Kind::KIND, pSrc, srcStep, pDst, dstStep, dstRoiSize,          \
                                lumMskSize3x3);                                                \
  }
#define LUMI_FIXED_MASK(NAME, KIND, TS, TD, L)                                                \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep, LumiSize dstRoiSize, \
                          int mask) {                                                          \
    return fixedImpl<TS, TD, L>(Kind::KIND, pSrc, srcStep, pDst, dstStep, dstRoiSize, mask);   \
  }
#define LUMI_ROBERTS(NAME, DIR, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize) { \
    return robertsImpl<T, L, kRoberts##DIR>(pSrc, srcStep, pDst, dstStep, dstRoiSize);          \
  }

using namespace lumi;
using namespace lumi::fixed;

namespace {
constexpr int kRobertsDown = -1, kRobertsUp = 1;
}

extern "C" {
LUMI_FIXED(lumiFilterPrewittVert_8u_C1R, PrewittVert, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterPrewittVert_8u_C3R, PrewittVert, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterPrewittVert_8u_C4R, PrewittVert, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterPrewittVert_8u_AC4R, PrewittVert, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterPrewittVert_16s_C1R, PrewittVert, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterPrewittVert_16s_C3R, PrewittVert, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterPrewittVert_16s_C4R, PrewittVert, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterPrewittVert_16s_AC4R, PrewittVert, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterPrewittVert_32f_C1R, PrewittVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterPrewittVert_32f_C3R, PrewittVert, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterPrewittVert_32f_C4R, PrewittVert, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterPrewittVert_32f_AC4R, PrewittVert, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C1R, PrewittHoriz, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C3R, PrewittHoriz, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C4R, PrewittHoriz, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_AC4R, PrewittHoriz, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C1R, PrewittHoriz, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C3R, PrewittHoriz, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C4R, PrewittHoriz, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_AC4R, PrewittHoriz, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C1R, PrewittHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C3R, PrewittHoriz, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C4R, PrewittHoriz, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_AC4R, PrewittHoriz, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterSobelVert_8u_C1R, SobelVert, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSobelVert_8u_C3R, SobelVert, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSobelVert_8u_C4R, SobelVert, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSobelVert_8u_AC4R, SobelVert, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSobelVert_16s_C1R, SobelVert, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelVert_16s_C3R, SobelVert, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSobelVert_16s_C4R, SobelVert, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSobelVert_16s_AC4R, SobelVert, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSobelVert_32f_C1R, SobelVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSobelVert_32f_C3R, SobelVert, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSobelVert_32f_C4R, SobelVert, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSobelVert_32f_AC4R, SobelVert, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterSobelVert_8u16s_C1R, SobelVert, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVert_8s16s_C1R, SobelVert, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C1R, SobelHoriz, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C3R, SobelHoriz, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C4R, SobelHoriz, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSobelHoriz_8u_AC4R, SobelHoriz, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C1R, SobelHoriz, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C3R, SobelHoriz, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C4R, SobelHoriz, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSobelHoriz_16s_AC4R, SobelHoriz, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C1R, SobelHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C3R, SobelHoriz, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C4R, SobelHoriz, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSobelHoriz_32f_AC4R, SobelHoriz, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterSobelHoriz_8u16s_C1R, SobelHoriz, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHoriz_8s16s_C1R, SobelHoriz, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_32f_C1R, SobelVertSecond, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_8u16s_C1R, SobelVertSecond, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_8s16s_C1R, SobelVertSecond, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_32f_C1R, SobelHorizSecond, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_8u16s_C1R, SobelHorizSecond, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_8s16s_C1R, SobelHorizSecond, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_32f_C1R, SobelCross, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_8u16s_C1R, SobelCross, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_8s16s_C1R, SobelCross, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrVert_32f_C1R, ScharrVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterScharrVert_8u16s_C1R, ScharrVert, Lum8u, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrVert_8s16s_C1R, ScharrVert, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrHoriz_32f_C1R, ScharrHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterScharrHoriz_8u16s_C1R, ScharrHoriz, Lum8u, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrHoriz_8s16s_C1R, ScharrHoriz, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C1R, Laplace, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C3R, Laplace, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C4R, Laplace, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_AC4R, Laplace, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C1R, Laplace, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C3R, Laplace, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C4R, Laplace, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_AC4R, Laplace, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C1R, Laplace, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C3R, Laplace, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C4R, Laplace, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_AC4R, Laplace, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_8u16s_C1R, Laplace, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8s16s_C1R, Laplace, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C1R, Hipass, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C3R, Hipass, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C4R, Hipass, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterHipass_8u_AC4R, Hipass, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C1R, Hipass, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C3R, Hipass, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C4R, Hipass, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterHipass_16s_AC4R, Hipass, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C1R, Hipass, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C3R, Hipass, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C4R, Hipass, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterHipass_32f_AC4R, Hipass, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C1R, Gauss, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C3R, Gauss, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C4R, Gauss, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterGauss_8u_AC4R, Gauss, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C1R, Gauss, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C3R, Gauss, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C4R, Gauss, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterGauss_16s_AC4R, Gauss, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C1R, Gauss, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C3R, Gauss, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C4R, Gauss, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterGauss_32f_AC4R, Gauss, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_C1R, Lowpass, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_C3R, Lowpass, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_AC4R, Lowpass, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_C1R, Lowpass, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_C3R, Lowpass, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_AC4R, Lowpass, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_C1R, Lowpass, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_C3R, Lowpass, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_AC4R, Lowpass, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterSharpen_8u_C1R, Sharpen, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSharpen_8u_C3R, Sharpen, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSharpen_8u_C4R, Sharpen, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSharpen_8u_AC4R, Sharpen, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSharpen_16s_C1R, Sharpen, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSharpen_16s_C3R, Sharpen, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSharpen_16s_C4R, Sharpen, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSharpen_16s_AC4R, Sharpen, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSharpen_32f_C1R, Sharpen, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSharpen_32f_C3R, Sharpen, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSharpen_32f_C4R, Sharpen, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSharpen_32f_AC4R, Sharpen, Lum32f, Lum32f, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_C1R, Down, Lum8u, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_C3R, Down, Lum8u, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_AC4R, Down, Lum8u, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_C1R, Down, Lum16s, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_C3R, Down, Lum16s, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_AC4R, Down, Lum16s, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_C1R, Down, Lum32f, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_C3R, Down, Lum32f, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_AC4R, Down, Lum32f, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_C1R, Up, Lum8u, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_C3R, Up, Lum8u, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_AC4R, Up, Lum8u, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_C1R, Up, Lum16s, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_C3R, Up, Lum16s, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_AC4R, Up, Lum16s, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_C1R, Up, Lum32f, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_C3R, Up, Lum32f, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_AC4R, Up, Lum32f, AC4)
}

#endif  // HWY_ONCE
