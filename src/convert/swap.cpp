// Channel reordering of three-channel pixels (and the colour channels of four-channel ones) and
// grey-to-colour duplication.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/swap.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "convert/datamove_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {  // kernels of this file only

template <class V>
HWY_INLINE V channelOf(int k, V a, V b, V c) {
  return k == 0 ? a : (k == 1 ? b : c);
}

// A whole vector of pixels is loaded before any of it is stored, so s == d works. Four-channel
// pixels carry the destination's fourth channel through unchanged.
template <class T, int kCh>
void swapChannels(const T* s, T* d, std::size_t n, const int* order) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const int o0 = order[0], o1 = order[1], o2 = order[2];
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    hn::Vec<decltype(dt)> a, b, c, x, p, q, r, alpha;
    if constexpr (kCh == 3) {
      hn::LoadInterleaved3(dt, s + 3 * i, a, b, c);
      hn::StoreInterleaved3(channelOf(o0, a, b, c), channelOf(o1, a, b, c),
                            channelOf(o2, a, b, c), dt, d + 3 * i);
    } else {
      hn::LoadInterleaved4(dt, s + 4 * i, a, b, c, x);
      hn::LoadInterleaved4(dt, d + 4 * i, p, q, r, alpha);
      hn::StoreInterleaved4(channelOf(o0, a, b, c), channelOf(o1, a, b, c),
                            channelOf(o2, a, b, c), alpha, dt, d + 4 * i);
    }
  }
  dm::swapChannelsScalar<T, kCh>(s + kCh * i, d + kCh * i, n - i, order);
}

[[maybe_unused]] void dup(const uint8_t* s, uint8_t* d, std::size_t n) {
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
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

// On the element bits (dm::Bits).
template <class T, int kCh>
auto pickSwapChannels() {
  LUMI_SIMD_TABLE(decltype(&dm::swapChannelsScalar<T, kCh>), table, swapChannels<T, kCh>);
  return pick(table, &dm::swapChannelsScalar<T, kCh>);
}
auto pickDup() {
  LUMI_SIMD_TABLE(decltype(&dm::dupScalar<uint8_t>), table, dup);
  return pick(table, &dm::dupScalar<uint8_t>);
}

template <class T, class L>
LumStatus swapImage(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                    const int* order) {
  if (LumStatus st = checkPointersSize(roi, src, dst, order)) return st;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  for (int c = 0; c < 3; ++c)
    if (order[c] < 0 || order[c] > 2) return lumStatusChannelOrderErr;
  const auto swap = pickSwapChannels<dm::Bits<T>, L::kCh>();
  const LumiSize walk = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), srcStep, dstStep);
  for (int y = 0; y < walk.height; ++y)
    swap(dm::bits(rowAt(src, srcStep, y)), dm::bits(rowAt(dst, dstStep, y)),
         static_cast<std::size_t>(walk.width), order);
  return lumStatusOk;
}

LumStatus dupImage(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi) {
  if (LumStatus st = checkPointersSize(roi, src, dst)) return st;
  const auto dup = pickDup();
  const LumiSize walk = coalesceBoth(roi, coalesceRows(roi, 1, srcStep),
                                         coalesceRows(roi, 3, dstStep));
  for (int y = 0; y < walk.height; ++y)
    dup(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), static_cast<std::size_t>(walk.width));
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_SWAP(NAME, T, L)                                                             \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep,               \
                          LumiSize roiSize, const int dstOrder[3]) {                      \
    return lumi::swapImage<T, lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);  \
  }
LUMI_SWAP(lumiSwapChannels_8u_C3R, Lum8u, C3)
LUMI_SWAP(lumiSwapChannels_8u_AC4R, Lum8u, AC4)
LUMI_SWAP(lumiSwapChannels_16u_C3R, Lum16u, C3)
LUMI_SWAP(lumiSwapChannels_16u_AC4R, Lum16u, AC4)
LUMI_SWAP(lumiSwapChannels_32s_C3R, Lum32s, C3)
LUMI_SWAP(lumiSwapChannels_32s_AC4R, Lum32s, AC4)
LUMI_SWAP(lumiSwapChannels_32f_C3R, Lum32f, C3)
LUMI_SWAP(lumiSwapChannels_32f_AC4R, Lum32f, AC4)
LUMI_API LumStatus lumiSwapChannels_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize,
                                            const int dstOrder[3]) {
  return lumi::swapImage<Lum8u, lumi::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,
                                          dstOrder);
}
LUMI_API LumStatus lumiDup_8u_C1C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep,
                                    LumiSize roiSize) {
  return lumi::dupImage(pSrc, srcStep, pDst, dstStep, roiSize);
}
#endif  // HWY_ONCE
