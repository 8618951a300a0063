// Mirroring about the horizontal axis (rows reversed), the vertical axis (each row reversed) or
// both, out of place and in place. Rows are reversed a vector of whole pixels at a time:
// one-, two-, four- and eight-byte pixels as lanes, sixteen-byte pixels as blocks, three-channel
// pixels as 48-byte chunks rearranged by byte shuffles. AC4 stores keep the destination's alpha.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/mirror.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/alpha-inl.h"
#include "lumi/remap.h"
#include "geometry/mirror_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {

// Lanes of v in reverse order (bytes: reversed within each block, then the blocks reversed).
template <class D>
HWY_INLINE hn::Vec<D> reverseLanes(D d, hn::Vec<D> v) {
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    alignas(64) static constexpr uint8_t kIdx[64] = {
        15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10,
        9,  8,  7,  6,  5,  4,  3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4,
        3,  2,  1,  0,  15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
    return hn::ReverseBlocks(d, hn::TableLookupBytes(v, hn::Load(d, kIdx)));
  } else {
    return hn::Reverse(d, v);
  }
}

// Byte shuffles reversing the pixels of a 48-byte chunk of three-channel pixels of p bytes:
// output block k takes from input block m the bytes idx[k][m] (0x80: none). Output byte j is
// byte j % p of pixel n - 1 - j / p, n = 48 / p.
struct Rev48 {
  alignas(16) uint8_t idx[3][3][16];
};
constexpr Rev48 rev48(int p) {
  Rev48 r{};
  for (int j = 0; j < 48; ++j) {
    const int from = p * (48 / p - 1 - j / p) + j % p;
    for (int m = 0; m < 3; ++m) r.idx[j / 16][m][j % 16] = from / 16 == m ? static_cast<uint8_t>(from % 16) : 0x80;
  }
  return r;
}

// Pixels of kBytes (1, 2, 4, 8 or 16) as lanes of Unit; 16-byte pixels are whole blocks.
template <int kBytes>
using Unit = hwy::UnsignedFromSize<(kBytes > 8 ? 8 : kBytes)>;
template <int kBytes, class D>
HWY_INLINE hn::Vec<D> reversePixels(D d, hn::Vec<D> v) {
  if constexpr (kBytes == 16)
    return hn::ReverseBlocks(d, v);
  else
    return reverseLanes(d, v);
}

// The vector part of a row of pixels, reversed into dst: returns the pixels done (the first
// `done` pixels of src went to the last `done` of dst).
template <class T, class L>
HWY_INLINE int mirrorVectors(const T* HWY_RESTRICT src, T* HWY_RESTRICT dst, int width) {
  constexpr int kBytes = static_cast<int>(sizeof(T)) * L::kCh;
  const hn::ScalableTag<T> dt;
  if constexpr (L::kCh == 3) {
    // Chunks of 48 bytes (48 / kBytes pixels) in three blocks: each output block gathers its
    // bytes from two or three input blocks by byte shuffles.
    const hn::Full128<uint8_t> d8;
    constexpr int kPix = 48 / kBytes;
    static constexpr Rev48 kTab = rev48(kBytes);
    auto tab = [&](int k, int m) { return hn::Load(d8, kTab.idx[k][m]); };
    const auto t01 = tab(0, 1), t02 = tab(0, 2), t10 = tab(1, 0), t11 = tab(1, 1), t12 = tab(1, 2);
    const auto t20 = tab(2, 0), t21 = tab(2, 1);
    int x = 0;
    for (; x + kPix <= width; x += kPix) {
      const auto* s = reinterpret_cast<const uint8_t*>(src + elemsOf(x, 3));
      auto* o = reinterpret_cast<uint8_t*>(dst + elemsOf(width - x - kPix, 3));
      const auto in0 = hn::LoadU(d8, s), in1 = hn::LoadU(d8, s + 16), in2 = hn::LoadU(d8, s + 32);
      hn::StoreU(hn::Or(hn::TableLookupBytesOr0(in1, t01), hn::TableLookupBytesOr0(in2, t02)), d8, o);
      hn::StoreU(hn::Or(hn::Or(hn::TableLookupBytesOr0(in0, t10), hn::TableLookupBytesOr0(in1, t11)),
                        hn::TableLookupBytesOr0(in2, t12)),
                 d8, o + 16);
      hn::StoreU(hn::Or(hn::TableLookupBytesOr0(in0, t20), hn::TableLookupBytesOr0(in1, t21)), d8, o + 32);
    }
    return x;
  } else {
    using U = Unit<kBytes>;
    const hn::ScalableTag<U> du;
    constexpr int kLanes = kBytes > 8 ? 2 : 1;  // lanes per pixel
    const int N = static_cast<int>(hn::Lanes(du)) / kLanes;
    const auto colour = colourLanes(dt);
    int x = 0;
    for (; x + N <= width; x += N) {
      const auto v = reversePixels<kBytes>(du, hn::LoadU(du, reinterpret_cast<const U*>(src + elemsOf(x, L::kCh))));
      T* out = dst + elemsOf(width - x - N, L::kCh);
      storeColour(dt, hn::BitCast(dt, v), out, L::kUse != L::kCh, colour);
    }
    return x;
  }
}

template <class T, class L>
void mirrorRow(const T* HWY_RESTRICT src, T* HWY_RESTRICT dst, int width) {
  const int x = mirrorVectors<T, L>(src, dst, width);
  mirror::mirrorRowScalar<T, L>(src + elemsOf(x, L::kCh), dst, width - x);
}

// Two distinct rows: a <- b reversed and b <- a reversed, a vector from each end at a time.
template <class T, class L>
void swapMirrorRows(T* HWY_RESTRICT a, T* HWY_RESTRICT b, int width) {
  const hn::ScalableTag<T> dt;
  const int N = static_cast<int>(hn::Lanes(dt));
  HWY_ALIGN T ta[hn::MaxLanes(dt) * 4], tb[hn::MaxLanes(dt) * 4];
  int x = 0;
  for (; x + N <= width; x += N) {  // N pixels through two small buffers
    T* pa = a + elemsOf(x, L::kCh);
    T* pb = b + elemsOf(width - x - N, L::kCh);
    std::memcpy(ta, pa, sizeof(T) * N * L::kCh);
    std::memcpy(tb, pb, sizeof(T) * N * L::kCh);
    mirrorVectors<T, L>(tb, pa, N);
    mirrorVectors<T, L>(ta, pb, N);
  }
  mirror::swapMirrorRowsScalar<T, L>(a + elemsOf(x, L::kCh), b, width - x);
}

// One row reversed in place: vectors from both ends while they do not meet.
template <class T, class L>
void mirrorInPlace(T* row, int width) {
  const hn::ScalableTag<T> dt;
  const int N = static_cast<int>(hn::Lanes(dt));
  HWY_ALIGN T ta[hn::MaxLanes(dt) * 4], tb[hn::MaxLanes(dt) * 4];
  int x = 0;
  for (; 2 * (x + N) <= width; x += N) {
    T* pa = row + elemsOf(x, L::kCh);
    T* pb = row + elemsOf(width - x - N, L::kCh);
    std::memcpy(ta, pa, sizeof(T) * N * L::kCh);
    std::memcpy(tb, pb, sizeof(T) * N * L::kCh);
    mirrorVectors<T, L>(tb, pa, N);
    mirrorVectors<T, L>(ta, pb, N);
  }
  mirror::mirrorInPlaceScalar<T, L>(row + elemsOf(x, L::kCh), width - 2 * x);
}

// Copies (AC4: the colour channels of) a row; swaps two rows.
template <class T, class L>
void copyRow(const T* HWY_RESTRICT src, T* HWY_RESTRICT dst, int width) {
  if constexpr (L::kUse == L::kCh) {
    std::memcpy(dst, src, static_cast<std::size_t>(elemsOf(width, L::kCh)) * sizeof(T));
  } else {
    const hn::ScalableTag<T> dt;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dt)), n = elemsOf(width, 4);
    const auto colour = colourLanes(dt);
    std::ptrdiff_t i = 0;
    for (; i + N <= n; i += N) storeColour(dt, hn::LoadU(dt, src + i), dst + i, true, colour);
    mirror::copyRowScalar<T, L>(src + i, dst + i, static_cast<int>((n - i) / 4));
  }
}
template <class T, class L>
void swapRows(T* HWY_RESTRICT a, T* HWY_RESTRICT b, int width) {
  const hn::ScalableTag<T> dt;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dt)), n = elemsOf(width, L::kCh);
  const auto colour = colourLanes(dt);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto va = hn::LoadU(dt, a + i), vb = hn::LoadU(dt, b + i);
    storeColour(dt, vb, a + i, L::kUse != L::kCh, colour);
    storeColour(dt, va, b + i, L::kUse != L::kCh, colour);
  }
  for (; i < n; ++i)  // i is a whole number of pixels only for AC4, whose vectors hold whole pixels
    if (L::kUse == L::kCh || i % 4 != 3) std::swap(a[i], b[i]);
}

}  // namespace
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace mirror {
namespace {

template <class T>
using RowFn = void (*)(const T*, T*, int);
template <class T>
using TwoRowFn = void (*)(T*, T*, int);
template <class T>
using InPlaceFn = void (*)(T*, int);

template <class T, class L>
RowFn<T> pickMirrorRow() {
  LUMI_SIMD_TABLE(RowFn<T>, table, mirrorRow<T, L>);
  return pick(table, &mirrorRowScalar<T, L>);
}
template <class T, class L>
TwoRowFn<T> pickSwapMirrorRows() {
  LUMI_SIMD_TABLE(TwoRowFn<T>, table, swapMirrorRows<T, L>);
  return pick(table, &swapMirrorRowsScalar<T, L>);
}
template <class T, class L>
InPlaceFn<T> pickMirrorInPlace() {
  LUMI_SIMD_TABLE(InPlaceFn<T>, table, mirrorInPlace<T, L>);
  return pick(table, &mirrorInPlaceScalar<T, L>);
}
template <class T, class L>
RowFn<T> pickCopyRow() {
  LUMI_SIMD_TABLE(RowFn<T>, table, copyRow<T, L>);
  return pick(table, &copyRowScalar<T, L>);
}
template <class T, class L>
TwoRowFn<T> pickSwapRows() {
  LUMI_SIMD_TABLE(TwoRowFn<T>, table, swapRows<T, L>);
  return pick(table, &swapRowsScalar<T, L>);
}

// A copy at memory speed: a second thread adds little bandwidth and costs a wake-up that a
// busy machine can stretch to a scheduler tick, so only images of 16 MB and more are shared.
template <class T, class L>
bool forkMirror(LumiSize roi) {
  return forkByWork(roi, static_cast<long long>(sizeof(T)) * L::kCh, 1 << 24);
}

LumStatus check(const void* src, const void* dst, LumiSize roi, int flip) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (flip < 0 || flip > 2) return lumStatusFlipAxisErr;
  return lumStatusOk;
}

template <class T, class L>
LumStatus mirrorImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int flip) {
  if (LumStatus st = check(src, dst, roi, flip)) return st;
  const int h = roi.height, w = roi.width;
  const bool par = forkMirror<T, L>(roi);
  if (flip == 0) {
    const RowFn<T> f = pickCopyRow<T, L>();
    forRows(h, par, [&](int y0, int y1) {
      for (int y = y0; y < y1; ++y) f(rowAt(src, srcStep, y), rowAt(dst, dstStep, h - 1 - y), w);
    });
  } else {
    const RowFn<T> f = pickMirrorRow<T, L>();
    forRows(h, par, [&](int y0, int y1) {
      for (int y = y0; y < y1; ++y)
        f(rowAt(src, srcStep, y), rowAt(dst, dstStep, flip == 2 ? h - 1 - y : y), w);
    });
  }
  return lumStatusOk;
}

// In place, rows go in pairs (y, h - 1 - y); an odd height leaves a middle row paired with
// itself.
template <class T, class L>
LumStatus mirrorInPlaceImpl(T* img, int step, LumiSize roi, int flip) {
  if (LumStatus st = check(img, img, roi, flip)) return st;
  const int h = roi.height, w = roi.width;
  const bool par = forkMirror<T, L>(roi);
  if (flip == 1) {
    const InPlaceFn<T> f = pickMirrorInPlace<T, L>();
    forRows(h, par, [&](int y0, int y1) {
      for (int y = y0; y < y1; ++y) f(rowAt(img, step, y), w);
    });
    return lumStatusOk;
  }
  const TwoRowFn<T> pairFn = flip == 0 ? pickSwapRows<T, L>() : pickSwapMirrorRows<T, L>();
  const InPlaceFn<T> middleFn = pickMirrorInPlace<T, L>();
  forRows((h + 1) / 2, par, [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      T* a = rowAt(img, step, y);
      T* b = rowAt(img, step, h - 1 - y);
      if (a != b)
        pairFn(a, b, w);
      else if (flip == 2)
        middleFn(a, w);
    }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace mirror
}  // namespace lumi

using namespace lumi;

#define LUMI_MIRROR(NAME, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roiSize, \
                          int flip) {                                                        \
    return mirror::mirrorImpl<T, L>(pSrc, srcStep, pDst, dstStep, roiSize, flip);            \
  }
#define LUMI_MIRROR_I(NAME, T, L)                                                   \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize, int flip) { \
    return mirror::mirrorInPlaceImpl<T, L>(pSrcDst, srcDstStep, roiSize, flip);     \
  }

LUMI_MIRROR(lumiMirror_8u_C1R, Lum8u, C1)
LUMI_MIRROR(lumiMirror_8u_C3R, Lum8u, C3)
LUMI_MIRROR(lumiMirror_8u_C4R, Lum8u, C4)
LUMI_MIRROR(lumiMirror_8u_AC4R, Lum8u, AC4)
LUMI_MIRROR(lumiMirror_16u_C1R, Lum16u, C1)
LUMI_MIRROR(lumiMirror_16u_C3R, Lum16u, C3)
LUMI_MIRROR(lumiMirror_16u_C4R, Lum16u, C4)
LUMI_MIRROR(lumiMirror_16u_AC4R, Lum16u, AC4)
LUMI_MIRROR(lumiMirror_32s_C1R, Lum32s, C1)
LUMI_MIRROR(lumiMirror_32s_C3R, Lum32s, C3)
LUMI_MIRROR(lumiMirror_32s_C4R, Lum32s, C4)
LUMI_MIRROR(lumiMirror_32s_AC4R, Lum32s, AC4)
LUMI_MIRROR_I(lumiMirror_8u_C1IR, Lum8u, C1)
LUMI_MIRROR_I(lumiMirror_8u_C3IR, Lum8u, C3)
LUMI_MIRROR_I(lumiMirror_8u_C4IR, Lum8u, C4)
LUMI_MIRROR_I(lumiMirror_8u_AC4IR, Lum8u, AC4)
LUMI_MIRROR_I(lumiMirror_16u_C1IR, Lum16u, C1)
LUMI_MIRROR_I(lumiMirror_16u_C3IR, Lum16u, C3)
LUMI_MIRROR_I(lumiMirror_16u_C4IR, Lum16u, C4)
LUMI_MIRROR_I(lumiMirror_16u_AC4IR, Lum16u, AC4)
LUMI_MIRROR_I(lumiMirror_32s_C1IR, Lum32s, C1)
LUMI_MIRROR_I(lumiMirror_32s_C3IR, Lum32s, C3)
LUMI_MIRROR_I(lumiMirror_32s_C4IR, Lum32s, C4)
LUMI_MIRROR_I(lumiMirror_32s_AC4IR, Lum32s, AC4)
#endif  // HWY_ONCE
