// Channel reordering of three-channel pixels (and the colour channels of four-channel ones) and
// grey-to-colour duplication.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/swap.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "convert/datamove_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace {  // kernels of this file only

template <class V>
HWY_INLINE V pickChannel(int k, V a, V b, V c) {
  return k == 0 ? a : (k == 1 ? b : c);
}

// A whole vector of pixels is loaded before any of it is stored, so s == d works.
template <class T>
void SwapC3(const T* s, T* d, std::size_t n, const int* order) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const int o0 = order[0], o1 = order[1], o2 = order[2];
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    hn::Vec<decltype(dt)> a, b, c;
    hn::LoadInterleaved3(dt, s + 3 * i, a, b, c);
    hn::StoreInterleaved3(pickChannel(o0, a, b, c), pickChannel(o1, a, b, c),
                          pickChannel(o2, a, b, c), dt, d + 3 * i);
  }
  dm::swapScalar<T, 3>(s + 3 * i, d + 3 * i, n - i, order);
}

// Four-channel pixels: the destination's fourth channel is carried through unchanged.
template <class T>
void SwapAC4(const T* s, T* d, std::size_t n, const int* order) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const int o0 = order[0], o1 = order[1], o2 = order[2];
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    hn::Vec<decltype(dt)> a, b, c, x, p, q, r, alpha;
    hn::LoadInterleaved4(dt, s + 4 * i, a, b, c, x);
    hn::LoadInterleaved4(dt, d + 4 * i, p, q, r, alpha);
    hn::StoreInterleaved4(pickChannel(o0, a, b, c), pickChannel(o1, a, b, c),
                          pickChannel(o2, a, b, c), alpha, dt, d + 4 * i);
  }
  dm::swapScalar<T, 4>(s + 4 * i, d + 4 * i, n - i, order);
}

[[maybe_unused]] void DupC1C3(const uint8_t* s, uint8_t* d, std::size_t n) {
  const hn::ScalableTag<uint8_t> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(dt, s + i);
    hn::StoreInterleaved3(v, v, v, dt, d + 3 * i);
  }
  dm::dupScalar(s + i, d + 3 * i, n - i);
}

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

LUMI_TABLES_BY_SIZE(swapC3Simd, SwapC3)
LUMI_TABLES_BY_SIZE(swapAC4Simd, SwapAC4)
using DupFn = void (*)(const uint8_t*, uint8_t*, std::size_t);
LUMI_SIMD_TABLE(DupFn, kDup8u, DupC1C3);

template <class T, class L>
LumStatus swapChannels(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                       const int* order) {
  if (anyNull(src, dst, order)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  for (int c = 0; c < 3; ++c)
    if (order[c] < 0 || order[c] > 2) return lumStatusChannelOrderErr;
  const auto simd = L::kCh == 3 ? swapC3Simd<T>() : swapAC4Simd<T>();
  const auto rowBytes = static_cast<std::ptrdiff_t>(roi.width) * L::kCh * std::ptrdiff_t{sizeof(T)};
  const bool oneRow = dm::stepsAre(rowBytes, srcStep, dstStep);
  dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if (simd)
      simd(dm::bits(s), dm::bits(d), n, order);
    else
      dm::swapScalar<T, L::kCh>(s, d, n, order);
  });
  return lumStatusOk;
}

LumStatus dup(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  const auto simd = pickSimd(kDup8u);
  const bool oneRow = srcStep == roi.width && dstStep == 3 * roi.width;
  dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
    const Lum8u* s = rowAt(src, srcStep, y);
    Lum8u* d = rowAt(dst, dstStep, y);
    if (simd)
      simd(s, d, n);
    else
      dm::dupScalar(s, d, n);
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_SWAP(t, L)                                                                       \
  LUMI_API LumStatus lumiSwapChannels_##t##_##L##R(const Lum##t* pSrc, int srcStep,          \
                                                    Lum##t* pDst, int dstStep,                \
                                                    LumiSize roiSize, const int dstOrder[3]) { \
    return lumi::swapChannels<Lum##t, lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize,         \
                                                dstOrder);                                    \
  }
extern "C" {
LUMI_SWAP(8u, C3)
LUMI_SWAP(8u, AC4)
LUMI_SWAP(16u, C3)
LUMI_SWAP(16u, AC4)
LUMI_SWAP(32s, C3)
LUMI_SWAP(32s, AC4)
LUMI_SWAP(32f, C3)
LUMI_SWAP(32f, AC4)
LUMI_API LumStatus lumiSwapChannels_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize,
                                            const int dstOrder[3]) {
  return lumi::swapChannels<Lum8u, lumi::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,
                                             dstOrder);
}
LUMI_API LumStatus lumiDup_8u_C1C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep,
                                    LumiSize roiSize) {
  return lumi::dup(pSrc, srcStep, pDst, dstStep, roiSize);
}
}
#endif  // HWY_ONCE
