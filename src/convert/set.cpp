// Constant fills: whole ROI, one channel of interest, and masked.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/set.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "convert/datamove_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace {  // kernels of this file only

// Three vectors cover a whole number of pixels of any layout, so the pattern restarts at every
// third vector; the tail is the head of the same pattern.
[[maybe_unused]] void FillPattern(const uint8_t* pat, uint8_t* d, std::size_t bytes) {
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

template <class T>
void FillKeepAlpha(T* d, std::size_t n, const T* v) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  HWY_ALIGN T buf[HWY_MAX_BYTES / sizeof(T)];
  for (std::size_t j = 0; j < N; ++j) buf[j] = (j & 3) == 3 ? T{0} : v[j & 3];
  const auto pix = hn::Load(dt, buf);
  const auto colour = dmv::colourLanes(dt);
  const std::size_t total = 4 * n;
  std::size_t i = 0;
  for (; i + N <= total; i += N) hn::BlendedStore(pix, colour, dt, d + i);
  dm::setPixelsScalar<T, lumi::AC4>(v, d + i, (total - i) / 4);
}

// One channel of interest set to v: the SIMD part stops one pixel short of the row end, since
// a vector of pixels read from a channel pointer extends up to kCh - 1 elements further.
template <class T, int kCh>
void SetChannel(T v, T* d, std::size_t n) {
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
void MaskedSet(const T* v, T* d, const uint8_t* m, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  if constexpr (L::kCh == 1) {
    const auto value = hn::Set(dt, v[0]);
    for (; i + N <= n; i += N) hn::BlendedStore(value, dmv::pixelMask(dt, m + i), dt, d + i);
  } else if constexpr (L::kCh == 3) {
    const auto v0 = hn::Set(dt, v[0]), v1 = hn::Set(dt, v[1]), v2 = hn::Set(dt, v[2]);
    for (; i + N <= n; i += N) {
      const auto mk = dmv::pixelMask(dt, m + i);
      hn::Vec<decltype(dt)> a, b, c;
      hn::LoadInterleaved3(dt, d + 3 * i, a, b, c);
      hn::StoreInterleaved3(hn::IfThenElse(mk, v0, a), hn::IfThenElse(mk, v1, b),
                            hn::IfThenElse(mk, v2, c), dt, d + 3 * i);
    }
  } else {
    const auto v0 = hn::Set(dt, v[0]), v1 = hn::Set(dt, v[1]), v2 = hn::Set(dt, v[2]);
    const auto v3 = hn::Set(dt, L::kUse == 4 ? v[L::kUse - 1] : T{0});
    for (; i + N <= n; i += N) {
      const auto mk = dmv::pixelMask(dt, m + i);
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
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

using FillPatternFn = void (*)(const uint8_t*, uint8_t*, std::size_t);
LUMI_SIMD_TABLE(FillPatternFn, kFillPattern, FillPattern);
LUMI_TABLES_BY_SIZE(fillKeepAlphaSimd, FillKeepAlpha)
LUMI_TABLES_BY_SIZE(setChannel3Simd, SetChannel, , 3)
LUMI_TABLES_BY_SIZE(setChannel4Simd, SetChannel, , 4)
LUMI_TABLES_BY_SIZE(maskedSetC1Simd, MaskedSet, , lumi::C1)
LUMI_TABLES_BY_SIZE(maskedSetC3Simd, MaskedSet, , lumi::C3)
LUMI_TABLES_BY_SIZE(maskedSetC4Simd, MaskedSet, , lumi::C4)
LUMI_TABLES_BY_SIZE(maskedSetAC4Simd, MaskedSet, , lumi::AC4)

template <class T>
void fillKeepAlphaT(T* d, std::size_t n, const T* v) {
  if (auto f = fillKeepAlphaSimd<T>())
    f(d, n, v);
  else
    dm::setPixelsScalar<T, AC4>(v, d, n);
}

template <class T, class L>
auto maskedSetSimd() {
  if constexpr (std::is_same_v<L, C1>) return maskedSetC1Simd<T>();
  else if constexpr (std::is_same_v<L, C3>) return maskedSetC3Simd<T>();
  else if constexpr (std::is_same_v<L, C4>) return maskedSetC4Simd<T>();
  else return maskedSetAC4Simd<T>();
}

template <class T, class L>
LumStatus setRoi(const T* value, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(value, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(dstStep)) return lumStatusStepErr;
  const auto rowBytes = static_cast<std::ptrdiff_t>(roi.width) * L::kCh * std::ptrdiff_t{sizeof(T)};
  const bool oneRow = dm::stepsAre(rowBytes, dstStep);
  if constexpr (L::kUse < L::kCh) {
    dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
      fillKeepAlphaT(dm::bits(rowAt(dst, dstStep, y)), n, dm::bits(value));
    });
  } else {
    dm::Pattern pat;
    dm::makePattern(&pat, value, L::kCh * sizeof(T));
    dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
      dm::fillPattern(pat, rowAt(dst, dstStep, y), n * L::kCh * sizeof(T));
    });
  }
  return lumStatusOk;
}

template <class T, int kCh>
LumStatus setChannel(T value, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(dstStep)) return lumStatusStepErr;
  const auto simd = kCh == 3 ? setChannel3Simd<T>() : setChannel4Simd<T>();
  const auto rowBytes = static_cast<std::ptrdiff_t>(roi.width) * kCh * std::ptrdiff_t{sizeof(T)};
  dm::Bits<T> v;
  std::memcpy(&v, &value, sizeof v);
  dm::walkRows(roi, dm::stepsAre(rowBytes, dstStep), [&](int y, std::size_t n) {
    T* d = rowAt(dst, dstStep, y);
    if (simd)
      simd(v, dm::bits(d), n);
    else
      dm::strideSetScalar<T, kCh>(value, d, n);
  });
  return lumStatusOk;
}

template <class T, class L>
LumStatus setMasked(const T* value, T* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                    int maskStep) {
  if (anyNull(value, dst, mask)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(dstStep, maskStep)) return lumStatusStepErr;
  const auto simd = maskedSetSimd<T, L>();
  const auto rowBytes = static_cast<std::ptrdiff_t>(roi.width) * L::kCh * std::ptrdiff_t{sizeof(T)};
  const bool oneRow = dm::stepsAre(rowBytes, dstStep) && maskStep == roi.width;
  dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
    T* d = rowAt(dst, dstStep, y);
    const Lum8u* m = rowAt(mask, maskStep, y);
    if (simd)
      simd(dm::bits(value), dm::bits(d), m, n);
    else
      dm::maskedSetScalar<T, L>(value, d, m, n);
  });
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
  uint8_t* out = static_cast<uint8_t*>(d);
  if (p.uniform) {
    std::memset(out, p.bytes[0], bytes);
  } else if (auto f = pickSimd(kFillPattern)) {
    f(p.bytes, out, bytes);
  } else {
    for (std::size_t i = 0; i < bytes; i += Pattern::kBytes)
      std::memcpy(out + i, p.bytes, bytes - i < Pattern::kBytes ? bytes - i : Pattern::kBytes);
  }
}

void fillKeepAlpha(void* d, std::size_t n, const void* value3, int elemBytes) {
  if (elemBytes == 1)
    fillKeepAlphaT(static_cast<uint8_t*>(d), n, static_cast<const uint8_t*>(value3));
  else if (elemBytes == 2)
    fillKeepAlphaT(static_cast<uint16_t*>(d), n, static_cast<const uint16_t*>(value3));
  else
    fillKeepAlphaT(static_cast<uint32_t*>(d), n, static_cast<const uint32_t*>(value3));
}

}  // namespace dm
}  // namespace lumi

// Exports: C1 takes its value by value, the multi-channel forms a pointer to channel values.
#define LUMI_SET_ONE(t)                                                                       \
  LUMI_API LumStatus lumiSet_##t##_C1R(Lum##t value, Lum##t* pDst, int dstStep,               \
                                       LumiSize roiSize) {                                    \
    return lumi::setRoi<Lum##t, lumi::C1>(&value, pDst, dstStep, roiSize);                    \
  }                                                                                           \
  LUMI_API LumStatus lumiSet_##t##_C1MR(Lum##t value, Lum##t* pDst, int dstStep,              \
                                        LumiSize roiSize, const Lum8u* pMask, int maskStep) { \
    return lumi::setMasked<Lum##t, lumi::C1>(&value, pDst, dstStep, roiSize, pMask, maskStep); \
  }                                                                                           \
  LUMI_API LumStatus lumiSet_##t##_C3CR(Lum##t value, Lum##t* pDst, int dstStep,              \
                                        LumiSize roiSize) {                                   \
    return lumi::setChannel<Lum##t, 3>(value, pDst, dstStep, roiSize);                        \
  }                                                                                           \
  LUMI_API LumStatus lumiSet_##t##_C4CR(Lum##t value, Lum##t* pDst, int dstStep,              \
                                        LumiSize roiSize) {                                   \
    return lumi::setChannel<Lum##t, 4>(value, pDst, dstStep, roiSize);                        \
  }
#define LUMI_SET_MULTI(t, L, n)                                                               \
  LUMI_API LumStatus lumiSet_##t##_##L##R(const Lum##t value[n], Lum##t* pDst, int dstStep,   \
                                          LumiSize roiSize) {                                 \
    return lumi::setRoi<Lum##t, lumi::L>(value, pDst, dstStep, roiSize);                      \
  }                                                                                           \
  LUMI_API LumStatus lumiSet_##t##_##L##MR(const Lum##t value[n], Lum##t* pDst, int dstStep,  \
                                           LumiSize roiSize, const Lum8u* pMask,              \
                                           int maskStep) {                                    \
    return lumi::setMasked<Lum##t, lumi::L>(value, pDst, dstStep, roiSize, pMask, maskStep);  \
  }
#define LUMI_SET_TYPE(t) \
  LUMI_SET_ONE(t)        \
  LUMI_SET_MULTI(t, C3, 3) \
  LUMI_SET_MULTI(t, C4, 4) \
  LUMI_SET_MULTI(t, AC4, 3)

extern "C" {
LUMI_SET_TYPE(8u)
LUMI_SET_TYPE(16u)
LUMI_SET_TYPE(16s)
LUMI_SET_TYPE(32s)
LUMI_SET_TYPE(32f)
}
#endif  // HWY_ONCE
