// Constant fills: whole ROI, one channel of interest, and masked.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/set.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "convert/datamove_kernels.h"
#include "core/alpha-inl.h"
#include "convert/datamove_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {  // kernels of this file only

// Three vectors cover a whole number of pixels of any layout, so the pattern restarts at every
// third vector; the tail is the head of the same pattern.
[[maybe_unused]] void fillPattern(const uint8_t* pat, uint8_t* d, std::size_t bytes) {
  const hn::ScalableTag<uint8_t> dt;
  const std::size_t N = hn::Lanes(dt);
  const auto v0 = hn::LoadU(dt, pat), v1 = hn::LoadU(dt, pat + N), v2 = hn::LoadU(dt, pat + 2 * N);
  std::size_t i = 0;
  for (; i + 3 * N <= bytes; i += 3 * N) {
    hn::StoreU(v0, dt, d + i);
    hn::StoreU(v1, dt, d + i + N);
    hn::StoreU(v2, dt, d + i + 2 * N);
  }
  std::memcpy(d + i, pat, bytes - i);
}

// Channels 0..2 of n four-channel pixels set to v[0..2], the fourth left alone.
template <class T>
void fillKeepAlpha(T* d, std::size_t n, const T* v) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  HWY_ALIGN T buf[HWY_MAX_BYTES / sizeof(T)];
  for (std::size_t j = 0; j < N; ++j) buf[j] = (j & 3) == 3 ? T{0} : v[j & 3];
  const auto pix = hn::Load(dt, buf);
  const auto colour = colourLanes(dt);
  const std::size_t total = 4 * n;
  std::size_t i = 0;
  for (; i + N <= total; i += N) storeColour(dt, pix, d + i, true, colour);
  dm::fillKeepAlphaScalar(d + i, (total - i) / 4, v);
}

// One channel of interest set to v: the SIMD part stops one pixel short of the row end, since
// a vector of pixels read from a channel pointer extends up to kCh - 1 elements further.
template <class T, int kCh>
void strideSet(T v, T* d, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const auto value = hn::Set(dt, v);
  std::size_t i = 0;
  for (; i + N < n; i += N) {
    hn::Vec<decltype(dt)> a, b, c, x;
    if constexpr (kCh == 3) {
      hn::LoadInterleaved3(dt, d + 3 * i, a, b, c);
      hn::StoreInterleaved3(value, b, c, dt, d + 3 * i);
    } else {
      hn::LoadInterleaved4(dt, d + 4 * i, a, b, c, x);
      hn::StoreInterleaved4(value, b, c, x, dt, d + 4 * i);
    }
  }
  dm::strideSetScalar<T, kCh>(v, d + kCh * i, n - i);
}

template <class T, class L>
void maskedSet(const T* v, T* d, const uint8_t* m, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  if constexpr (L::kCh == 1) {
    const auto value = hn::Set(dt, v[0]);
    for (; i + N <= n; i += N) hn::BlendedStore(value, pixelMask(dt, m + i), dt, d + i);
  } else if constexpr (L::kCh == 3) {
    const auto v0 = hn::Set(dt, v[0]), v1 = hn::Set(dt, v[1]), v2 = hn::Set(dt, v[2]);
    for (; i + N <= n; i += N) {
      const auto mk = pixelMask(dt, m + i);
      hn::Vec<decltype(dt)> a, b, c;
      hn::LoadInterleaved3(dt, d + 3 * i, a, b, c);
      hn::StoreInterleaved3(hn::IfThenElse(mk, v0, a), hn::IfThenElse(mk, v1, b),
                            hn::IfThenElse(mk, v2, c), dt, d + 3 * i);
    }
  } else {
    const auto v0 = hn::Set(dt, v[0]), v1 = hn::Set(dt, v[1]), v2 = hn::Set(dt, v[2]);
    const auto v3 = hn::Set(dt, L::kUse == 4 ? v[L::kUse - 1] : T{0});
    for (; i + N <= n; i += N) {
      const auto mk = pixelMask(dt, m + i);
      hn::Vec<decltype(dt)> a, b, c, x;
      hn::LoadInterleaved4(dt, d + 4 * i, a, b, c, x);
      hn::StoreInterleaved4(hn::IfThenElse(mk, v0, a), hn::IfThenElse(mk, v1, b),
                            hn::IfThenElse(mk, v2, c), L::kUse == 4 ? hn::IfThenElse(mk, v3, x) : x,
                            dt, d + 4 * i);
    }
  }
  dm::maskedSetScalar<T, L>(v, d + L::kCh * i, m + i, n - i);
}

}  // namespace
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

void fillPatternScalar(const uint8_t* pat, uint8_t* d, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; i += dm::Pattern::kBytes)
    std::memcpy(d + i, pat, bytes - i < dm::Pattern::kBytes ? bytes - i : dm::Pattern::kBytes);
}

// The choosers run on the element bits (dm::Bits).
auto pickFillPattern() {
  LUMI_SIMD_TABLE(decltype(&fillPatternScalar), table, fillPattern);
  return pick(table, &fillPatternScalar);
}
template <class T>
auto pickFillKeepAlpha() {
  LUMI_SIMD_TABLE(decltype(&dm::fillKeepAlphaScalar<T>), table, fillKeepAlpha<T>);
  return pick(table, &dm::fillKeepAlphaScalar<T>);
}
template <class T, int kCh>
auto pickStrideSet() {
  LUMI_SIMD_TABLE(decltype(&dm::strideSetScalar<T, kCh>), table, strideSet<T, kCh>);
  return pick(table, &dm::strideSetScalar<T, kCh>);
}
template <class T, class L>
auto pickMaskedSet() {
  LUMI_SIMD_TABLE(decltype(&dm::maskedSetScalar<T, L>), table, maskedSet<T, L>);
  return pick(table, &dm::maskedSetScalar<T, L>);
}

// The checks of the fills: pointers, size, then the steps.
template <class... P>
LumStatus checkFill(LumiSize roi, int dstStep, int maskStep, const P*... p) {
  if (LumStatus st = checkPointersSize(roi, p...)) return st;
  return badStep(dstStep, maskStep) ? lumStatusStepErr : lumStatusOk;
}

template <class T, class L>
LumStatus setRoi(const T* value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus st = checkFill(roi, dstStep, 1, value, dst)) return st;
  const LumiSize walk = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), dstStep);
  if constexpr (L::kUse < L::kCh) {
    const auto fill = pickFillKeepAlpha<dm::Bits<T>>();
    for (int y = 0; y < walk.height; ++y)
      fill(dm::bits(rowAt(dst, dstStep, y)), static_cast<std::size_t>(walk.width), dm::bits(value));
  } else {
    dm::Pattern pat;
    dm::makePattern(&pat, value, L::kCh * sizeof(T));
    const auto bytes = static_cast<std::size_t>(bytesOf(walk.width, L::kCh, sizeof(T)));
    for (int y = 0; y < walk.height; ++y) dm::fillPattern(pat, rowAt(dst, dstStep, y), bytes);
  }
  return lumStatusOk;
}

template <class T, int kCh>
LumStatus setChannel(T value, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus st = checkFill(roi, dstStep, 1, dst)) return st;
  const auto set = pickStrideSet<dm::Bits<T>, kCh>();
  const LumiSize walk = coalesceRows(roi, bytesOf(1, kCh, sizeof(T)), dstStep);
  dm::Bits<T> v;
  std::memcpy(&v, &value, sizeof v);
  for (int y = 0; y < walk.height; ++y)
    set(v, dm::bits(rowAt(dst, dstStep, y)), static_cast<std::size_t>(walk.width));
  return lumStatusOk;
}

template <class T, class L>
LumStatus setMasked(const T* value, T* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                    int maskStep) {
  if (LumStatus st = checkFill(roi, dstStep, maskStep, value, dst, mask)) return st;
  const auto set = pickMaskedSet<dm::Bits<T>, L>();
  const LumiSize walk = coalesceBoth(roi, coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), dstStep),
                                     coalesceRows(roi, 1, maskStep));
  for (int y = 0; y < walk.height; ++y)
    set(dm::bits(value), dm::bits(rowAt(dst, dstStep, y)), rowAt(mask, maskStep, y),
        static_cast<std::size_t>(walk.width));
  return lumStatusOk;
}

}  // namespace

namespace dm {

void makePattern(Pattern* p, const void* pixel, int pixelBytes) {
  const uint8_t* px = static_cast<const uint8_t*>(pixel);
  p->uniform = true;
  for (int j = 0; j < pixelBytes; ++j) p->uniform = p->uniform && px[j] == px[0];
  for (int j = 0; j < Pattern::kBytes; ++j) p->bytes[j] = px[j % pixelBytes];
}

void fillPattern(const Pattern& p, void* d, std::size_t bytes) {
  if (p.uniform)
    std::memset(d, p.bytes[0], bytes);
  else
    pickFillPattern()(p.bytes, static_cast<uint8_t*>(d), bytes);
}

void fillKeepAlpha(void* d, std::size_t n, const void* value3, int elemBytes) {
  if (elemBytes == 1)
    pickFillKeepAlpha<uint8_t>()(static_cast<uint8_t*>(d), n, static_cast<const uint8_t*>(value3));
  else if (elemBytes == 2)
    pickFillKeepAlpha<uint16_t>()(static_cast<uint16_t*>(d), n,
                                  static_cast<const uint16_t*>(value3));
  else
    pickFillKeepAlpha<uint32_t>()(static_cast<uint32_t*>(d), n,
                                  static_cast<const uint32_t*>(value3));
}

}  // namespace dm
}  // namespace lumi

// Exports: C1 takes its value by value, the multi-channel forms a pointer to channel values.
#define LUMI_SET_C1(NAME, T)                                                          \
  LUMI_API LumStatus NAME(T value, T* pDst, int dstStep, LumiSize roiSize) {          \
    return lumi::setRoi<T, lumi::C1>(&value, pDst, dstStep, roiSize);                 \
  }
#define LUMI_SET_C1_MASKED(NAME, T)                                                   \
  LUMI_API LumStatus NAME(T value, T* pDst, int dstStep, LumiSize roiSize,            \
                          const Lum8u* pMask, int maskStep) {                         \
    return lumi::setMasked<T, lumi::C1>(&value, pDst, dstStep, roiSize, pMask, maskStep); \
  }
#define LUMI_SET_CHANNEL(NAME, T, kCh)                                                \
  LUMI_API LumStatus NAME(T value, T* pDst, int dstStep, LumiSize roiSize) {          \
    return lumi::setChannel<T, kCh>(value, pDst, dstStep, roiSize);                   \
  }
#define LUMI_SET(NAME, T, L, n)                                                       \
  LUMI_API LumStatus NAME(const T value[n], T* pDst, int dstStep, LumiSize roiSize) { \
    return lumi::setRoi<T, lumi::L>(value, pDst, dstStep, roiSize);                   \
  }
#define LUMI_SET_MASKED(NAME, T, L, n)                                                \
  LUMI_API LumStatus NAME(const T value[n], T* pDst, int dstStep, LumiSize roiSize,   \
                          const Lum8u* pMask, int maskStep) {                         \
    return lumi::setMasked<T, lumi::L>(value, pDst, dstStep, roiSize, pMask, maskStep); \
  }

LUMI_SET_C1(lumiSet_8u_C1R, Lum8u)
LUMI_SET_C1_MASKED(lumiSet_8u_C1MR, Lum8u)
LUMI_SET_CHANNEL(lumiSet_8u_C3CR, Lum8u, 3)
LUMI_SET_CHANNEL(lumiSet_8u_C4CR, Lum8u, 4)
LUMI_SET(lumiSet_8u_C3R, Lum8u, C3, 3)
LUMI_SET_MASKED(lumiSet_8u_C3MR, Lum8u, C3, 3)
LUMI_SET(lumiSet_8u_C4R, Lum8u, C4, 4)
LUMI_SET_MASKED(lumiSet_8u_C4MR, Lum8u, C4, 4)
LUMI_SET(lumiSet_8u_AC4R, Lum8u, AC4, 3)
LUMI_SET_MASKED(lumiSet_8u_AC4MR, Lum8u, AC4, 3)
LUMI_SET_C1(lumiSet_16u_C1R, Lum16u)
LUMI_SET_C1_MASKED(lumiSet_16u_C1MR, Lum16u)
LUMI_SET_CHANNEL(lumiSet_16u_C3CR, Lum16u, 3)
LUMI_SET_CHANNEL(lumiSet_16u_C4CR, Lum16u, 4)
LUMI_SET(lumiSet_16u_C3R, Lum16u, C3, 3)
LUMI_SET_MASKED(lumiSet_16u_C3MR, Lum16u, C3, 3)
LUMI_SET(lumiSet_16u_C4R, Lum16u, C4, 4)
LUMI_SET_MASKED(lumiSet_16u_C4MR, Lum16u, C4, 4)
LUMI_SET(lumiSet_16u_AC4R, Lum16u, AC4, 3)
LUMI_SET_MASKED(lumiSet_16u_AC4MR, Lum16u, AC4, 3)
LUMI_SET_C1(lumiSet_16s_C1R, Lum16s)
LUMI_SET_C1_MASKED(lumiSet_16s_C1MR, Lum16s)
LUMI_SET_CHANNEL(lumiSet_16s_C3CR, Lum16s, 3)
LUMI_SET_CHANNEL(lumiSet_16s_C4CR, Lum16s, 4)
LUMI_SET(lumiSet_16s_C3R, Lum16s, C3, 3)
LUMI_SET_MASKED(lumiSet_16s_C3MR, Lum16s, C3, 3)
LUMI_SET(lumiSet_16s_C4R, Lum16s, C4, 4)
LUMI_SET_MASKED(lumiSet_16s_C4MR, Lum16s, C4, 4)
LUMI_SET(lumiSet_16s_AC4R, Lum16s, AC4, 3)
LUMI_SET_MASKED(lumiSet_16s_AC4MR, Lum16s, AC4, 3)
LUMI_SET_C1(lumiSet_32s_C1R, Lum32s)
LUMI_SET_C1_MASKED(lumiSet_32s_C1MR, Lum32s)
LUMI_SET_CHANNEL(lumiSet_32s_C3CR, Lum32s, 3)
LUMI_SET_CHANNEL(lumiSet_32s_C4CR, Lum32s, 4)
LUMI_SET(lumiSet_32s_C3R, Lum32s, C3, 3)
LUMI_SET_MASKED(lumiSet_32s_C3MR, Lum32s, C3, 3)
LUMI_SET(lumiSet_32s_C4R, Lum32s, C4, 4)
LUMI_SET_MASKED(lumiSet_32s_C4MR, Lum32s, C4, 4)
LUMI_SET(lumiSet_32s_AC4R, Lum32s, AC4, 3)
LUMI_SET_MASKED(lumiSet_32s_AC4MR, Lum32s, AC4, 3)
LUMI_SET_C1(lumiSet_32f_C1R, Lum32f)
LUMI_SET_C1_MASKED(lumiSet_32f_C1MR, Lum32f)
LUMI_SET_CHANNEL(lumiSet_32f_C3CR, Lum32f, 3)
LUMI_SET_CHANNEL(lumiSet_32f_C4CR, Lum32f, 4)
LUMI_SET(lumiSet_32f_C3R, Lum32f, C3, 3)
LUMI_SET_MASKED(lumiSet_32f_C3MR, Lum32f, C3, 3)
LUMI_SET(lumiSet_32f_C4R, Lum32f, C4, 4)
LUMI_SET_MASKED(lumiSet_32f_C4MR, Lum32f, C4, 4)
LUMI_SET(lumiSet_32f_AC4R, Lum32f, AC4, 3)
LUMI_SET_MASKED(lumiSet_32f_AC4MR, Lum32f, AC4, 3)
#endif  // HWY_ONCE
