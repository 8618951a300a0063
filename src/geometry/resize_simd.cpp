// Row kernels of the resize engine per SIMD target, and their choosers.
//
// Horizontal passes gather their taps through the per-element offset tables (8u rows as 32-bit
// words holding several taps, read up to `safe`, see safePrefix); vertical passes run along
// contiguous row buffers. The arithmetic is the plain kernels' (resize_kernels.h) in the same
// order, without fused multiply-adds: 8u and 16u results equal them bit for bit, and so do the
// 32f ones on every target this library builds (the stated tolerance for 32f is 1e-6 of the
// values' magnitude, which leaves room for a reordering).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/resize_simd.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "hwy/cache_control.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "geometry/resize_engine.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

#if HWY_TARGET == HWY_AVX3
// Taps t and t + 1 of a block of 16 elements out of its 64-byte window, as 32-bit lanes.
HWY_INLINE void window8(const Lum8u* p, const uint16_t* ix, __m512i* a, __m512i* b) {
  const __m512i lo = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
  const __m512i hi = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 32)));
  const __m512i v = _mm512_permutex2var_epi16(lo, _mm512_loadu_si512(ix), hi);
  *a = _mm512_cvtepu16_epi32(_mm512_castsi512_si256(v));
  *b = _mm512_cvtepu16_epi32(_mm512_extracti64x4_epi64(v, 1));
}
// The horizontal sums of linear 8u for a block of 16 elements: both taps of each element out of
// the 64-byte window (interleaved places), times the weight pairs, >> 8: 16 exact 32-bit sums.
HWY_INLINE __m512i linSums8(const Lum8u* p, const uint16_t* ix, const int16_t* wq, bool same) {
  const __m512i lo = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
  if (same)  // neighbouring pairs of consecutive bytes: the window is the pairs
    return _mm512_srai_epi32(_mm512_madd_epi16(lo, _mm512_loadu_si512(wq)), 8);
  const __m512i hi = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 32)));
  const __m512i pairs = _mm512_permutex2var_epi16(lo, _mm512_loadu_si512(ix), hi);
  return _mm512_srai_epi32(_mm512_madd_epi16(pairs, _mm512_loadu_si512(wq)), 8);
}
// The column step of linear 8u in 16-bit lanes for 32 elements, h0 and h1 packed (blocks A and
// B interleaved by fours, as packs leaves them): (h0 + floor((h1 - h0) wy / 2^14) + 32) >> 6,
// which equals (h0 (16384 - wy) + h1 wy + 2^19) >> 20; wy = 16384 comes as h0 = h1, wy = 0.
HWY_INLINE __m256i linColumn8(__m512i h0, __m512i h1, __m512i wy2) {
  const __m512i d2 = _mm512_slli_epi16(_mm512_sub_epi16(h1, h0), 1);
  const __m512i v = _mm512_add_epi16(_mm512_add_epi16(h0, _mm512_mulhi_epi16(d2, wy2)), _mm512_set1_epi16(32));
  const __m256i b = _mm512_cvtepi16_epi8(_mm512_srai_epi16(v, 6));
  return _mm256_permutevar8x32_epi32(b, _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7));
}

// Linear 8u reductions over the elements of Windows::run (s0, s1 at the first pair): 64 elements
// from 128 bytes of each row, in 16-bit lanes. For w < 16384 the sum along the row
// (p0 (16384 - w) + p1 w) >> 8 is p0 64 + floor((p1 - p0) w / 256), the high half of
// (p1 - p0) 128 times 2 w; the column then as linColumn8.
HWY_INLINE void pairRun8(const Lum8u* s0, const Lum8u* s1, const int16_t* w2, int run, int wy,
                         Lum8u* dst) {
  const bool last = wy == resize::kOne;  // all weight on the second row
  const Lum8u* first = last ? s1 : s0;
  const __m512i wy2 = _mm512_set1_epi16(static_cast<int16_t>(last ? 0 : 2 * wy));
  const __m512i times64 = _mm512_set1_epi16(0x0040);  // bytes (64, 0): p0 64
  const __m512i diff = _mm512_set1_epi16(0x01FF);     // bytes (-1, 1): p1 - p0
  const __m512i round = _mm512_set1_epi16(32);
  const __m512i order = _mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7);
  auto sums = [&](const Lum8u* p, __m512i w) {
    const __m512i v = _mm512_loadu_si512(p);
    const __m512i d = _mm512_slli_epi16(_mm512_maddubs_epi16(v, diff), 7);
    return _mm512_add_epi16(_mm512_maddubs_epi16(v, times64), _mm512_mulhi_epi16(d, w));
  };
  auto column = [&](__m512i h0, __m512i h1) {
    const __m512i d2 = _mm512_slli_epi16(_mm512_sub_epi16(h1, h0), 1);
    return _mm512_srai_epi16(_mm512_add_epi16(_mm512_add_epi16(h0, round), _mm512_mulhi_epi16(d2, wy2)), 6);
  };
  const std::ptrdiff_t ahead = 2 * (s1 - s0);  // the next destination row's rows, usually
  for (int e = 0; e < run; e += 64) {
    hwy::Prefetch(s0 + ahead + 2 * e);
    hwy::Prefetch(s0 + ahead + 2 * e + 64);
    hwy::Prefetch(s1 + ahead + 2 * e);
    hwy::Prefetch(s1 + ahead + 2 * e + 64);
    const __m512i wa = _mm512_loadu_si512(w2 + e), wb = _mm512_loadu_si512(w2 + e + 32);
    const __m512i a = column(sums(first + 2 * e, wa), sums(s1 + 2 * e, wa));
    const __m512i b = column(sums(first + 2 * e + 64, wb), sums(s1 + 2 * e + 64, wb));
    _mm512_storeu_si512(dst + e, _mm512_permutexvar_epi64(order, _mm512_packus_epi16(a, b)));
  }
}
// The same for 32f, 16 elements from 32 floats of each row, the plain kernel's products and sums.
HWY_INLINE void pairRunF(const float* s0, const float* s1, const float* wf0, const float* wf1,
                         int run, float wy0, float wy1, float* dst) {
  const __m512i even = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
  const __m512i odd = _mm512_add_epi32(even, _mm512_set1_epi32(1));
  const __m512 a = _mm512_set1_ps(wy0), b = _mm512_set1_ps(wy1);
  auto sums = [&](const float* p, __m512 w0, __m512 w1) {
    const __m512 x = _mm512_loadu_ps(p), y = _mm512_loadu_ps(p + 16);
    return _mm512_add_ps(_mm512_mul_ps(_mm512_permutex2var_ps(x, even, y), w0),
                         _mm512_mul_ps(_mm512_permutex2var_ps(x, odd, y), w1));
  };
  const std::ptrdiff_t ahead = 2 * (s1 - s0);  // into the second level: rows of floats would crowd the first
  for (int e = 0; e < run; e += 16) {
    _mm_prefetch(reinterpret_cast<const char*>(s0 + ahead + 2 * e), _MM_HINT_T1);
    _mm_prefetch(reinterpret_cast<const char*>(s0 + ahead + 2 * e + 16), _MM_HINT_T1);
    _mm_prefetch(reinterpret_cast<const char*>(s1 + ahead + 2 * e), _MM_HINT_T1);
    _mm_prefetch(reinterpret_cast<const char*>(s1 + ahead + 2 * e + 16), _MM_HINT_T1);
    const __m512 w0 = _mm512_loadu_ps(wf0 + e), w1 = _mm512_loadu_ps(wf1 + e);
    const __m512 h0 = sums(s0 + 2 * e, w0, w1), h1 = sums(s1 + 2 * e, w0, w1);
    _mm512_storeu_ps(dst + e, _mm512_add_ps(_mm512_mul_ps(h0, a), _mm512_mul_ps(h1, b)));
  }
}

// linSums8 for the two rows of a block of 16 elements without a prepared window (the blocks at
// the row end): its bytes [lo, hi] read with masked loads, which never touch a byte past the
// last tap, and the places computed from the offsets; false when the taps spread over 64 bytes.
template <int kPitch>
HWY_INLINE bool edgeSums8(const Lum8u* s0, const Lum8u* s1, const int32_t* off, const int16_t* wq,
                          __m512i* a, __m512i* b) {
  const __m512i o = _mm512_loadu_si512(off);
  const int lo = _mm512_reduce_min_epi32(o), hi = _mm512_reduce_max_epi32(o) + kPitch;
  if (hi - lo >= 64) return false;
  const __m512i r = _mm512_sub_epi32(o, _mm512_set1_epi32(lo));
  const __m512i ix = _mm512_or_si512(r, _mm512_slli_epi32(_mm512_add_epi32(r, _mm512_set1_epi32(kPitch)), 16));
  const uint64_t m = hi - lo == 63 ? ~uint64_t{0} : (uint64_t{1} << (hi - lo + 1)) - 1;
  const __mmask32 mlo = static_cast<__mmask32>(m), mhi = static_cast<__mmask32>(m >> 32);
  const __m512i w = _mm512_loadu_si512(wq);
  auto sums = [&](const Lum8u* p) {
    const __m512i l = _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(mlo, p));
    const __m512i h = mhi == 0 ? _mm512_setzero_si512() : _mm512_cvtepu8_epi16(_mm256_maskz_loadu_epi8(mhi, p + 32));
    return _mm512_srai_epi32(_mm512_madd_epi16(_mm512_permutex2var_epi16(l, ix, h), w), 8);
  };
  *a = sums(s0 + lo);
  *b = sums(s1 + lo);
  return true;
}

// Tap t of a block of 16 elements out of its 64-float window (two permutes, places 32..63
// taken from the second).
HWY_INLINE __m512 windowF(const float* p, const uint16_t* ix) {
  const __m512i i = _mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(ix)));
  const __m512 a = _mm512_permutex2var_ps(_mm512_loadu_ps(p), i, _mm512_loadu_ps(p + 16));
  const __mmask16 upper = _mm512_test_epi32_mask(i, _mm512_set1_epi32(32));
  if (upper == 0) return a;
  const __m512 b = _mm512_permutex2var_ps(_mm512_loadu_ps(p + 32), i, _mm512_loadu_ps(p + 48));
  return _mm512_mask_blend_ps(upper, a, b);
}
#define LUMI_RESIZE_WINDOWS 1
#else
#define LUMI_RESIZE_WINDOWS 0
#endif

// Nearest along a row: one tap per element (8u from a 32-bit gather, 32f gathered).
template <class T>
void nearestRow(const T* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off, int n, int safe,
                const resize::Windows* win, T* HWY_RESTRICT dst, bool keepAlpha) {
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    for (int b = 0; (b + 1) * resize::kBlock <= n; ++b, e += resize::kBlock) {
      const int32_t lo = win->base[b];
      const uint16_t* ix = win->idx + b * resize::kBlock;
      if (lo == resize::kNoWindow) {
        resize::nearestRowScalar(s, off + e, resize::kBlock, 0, nullptr, dst + e, keepAlpha);
        continue;
      }
      if constexpr (std::is_same_v<T, float>) {
        const __m512 v = windowF(s + lo, ix);
        if (keepAlpha) _mm512_mask_storeu_ps(dst + e, 0x7777, v);
        else _mm512_storeu_ps(dst + e, v);
      } else {
        const Lum8u* p = s + lo;
        const __m512i a = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
        const __m512i c = _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + 32)));
        const __m512i i = _mm512_castsi256_si512(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(ix)));
        const __m128i v = _mm256_castsi256_si128(_mm512_cvtepi16_epi8(_mm512_permutex2var_epi16(a, i, c)));
        if (keepAlpha) _mm_mask_storeu_epi8(dst + e, 0x7777, v);
        else _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + e), v);
      }
    }
  }
#endif
  const hn::ScalableTag<int32_t> d;
  const int N = static_cast<int>(hn::Lanes(d));
  if constexpr (std::is_same_v<T, float>) {
    const hn::ScalableTag<float> df;
    const auto colour = colourLanes(df);
    for (; e + N <= n; e += N)
      storeColour(df, hn::GatherIndex(df, s, hn::LoadU(d, off + e)), dst + e, keepAlpha, colour);
  } else {
    const hn::Rebind<uint8_t, decltype(d)> d8;
    const auto colour = colourLanes(d8);
    const int32_t* base = reinterpret_cast<const int32_t*>(s);
    for (; e + N <= safe; e += N) {
      const auto v = hn::And(hn::GatherOffset(d, base, hn::LoadU(d, off + e)), hn::Set(d, 0xFF));
      storeColour(d8, hn::DemoteTo(d8, v), dst + e, keepAlpha, colour);
    }
  }
  if (e < n) resize::nearestRowScalar(s, off + e, n - e, 0, nullptr, dst + e, keepAlpha);
}

// Elements before the first one aligned for non-temporal vector stores of N floats (the whole
// row when the row is not even float-aligned).
HWY_INLINE int streamHead(const float* p, int n, int N) {
  const uintptr_t a = reinterpret_cast<uintptr_t>(p), bytes = static_cast<uintptr_t>(N) * 4;
  if (a % 4 != 0) return n;
  const int head = static_cast<int>(((bytes - a % bytes) % bytes) / 4);
  return head < n ? head : n;
}

// Linear 8u along a row for N outputs from e on: the two taps of each come from one (C1, C3)
// or two (C4) 32-bit gathers, then (p0 w0 + p1 w1) >> 8 in 32-bit lanes.
template <int kPitch, class D>
HWY_INLINE hn::Vec<D> linGather8(D d, const Lum8u* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off,
                                 const int16_t* HWY_RESTRICT wq, int e) {
  const hn::RebindToUnsigned<D> du;
  const auto m8 = hn::Set(d, 0xFF);
  const int32_t* base = reinterpret_cast<const int32_t*>(s);
  const auto o = hn::LoadU(d, off + e);
  const auto v = hn::GatherOffset(d, base, o);
  hn::Vec<D> p1;
  if constexpr (kPitch == 1) {
    p1 = hn::And(hn::ShiftRight<8>(v), m8);
  } else if constexpr (kPitch == 3) {
    p1 = hn::BitCast(d, hn::ShiftRight<24>(hn::BitCast(du, v)));
  } else {
    p1 = hn::And(hn::GatherOffset(d, base, hn::Add(o, hn::Set(d, kPitch))), m8);
  }
  const auto wp = hn::LoadU(d, reinterpret_cast<const int32_t*>(wq + 2 * e));
  return hn::ShiftRight<8>(hn::Add(hn::Mul(hn::And(v, m8), hn::And(wp, hn::Set(d, 0xFFFF))),
                                   hn::Mul(p1, hn::ShiftRight<16>(wp))));
}

// Linear 8u along a row: pairs of taps from the gathers (linGather8), or from the windows.
template <int kPitch>
void linH8(const Lum8u* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off,
           const int16_t* HWY_RESTRICT wq, int n, int pitch, int safe,
           const resize::Windows* win, int16_t* HWY_RESTRICT h) {
  const hn::ScalableTag<int32_t> d;
  const hn::Rebind<int16_t, decltype(d)> d16;
  const int N = static_cast<int>(hn::Lanes(d));
  auto gathered = [&](int e) {
    hn::StoreU(hn::DemoteTo(d16, linGather8<kPitch>(d, s, off, wq, e)), d16, h + e);
  };
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    for (int b = 0; (b + 1) * resize::kBlock <= n; ++b, e += resize::kBlock) {
      const int32_t lo = win->base[b];
      if (lo != resize::kNoWindow) {
        const __m512i hv = linSums8(s + lo, win->idx + b * 2 * resize::kBlock, wq + 2 * e, win->same[b]);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(h + e), _mm512_cvtepi32_epi16(hv));
      } else if (e + N <= safe) {
        gathered(e);
      } else {
        resize::linH8Scalar(s, off + e, wq + 2 * e, resize::kBlock, pitch, 0, nullptr, h + e);
      }
    }
  }
#endif
  for (; e + N <= safe; e += N) gathered(e);
  if (e < n) resize::linH8Scalar(s, off + e, wq + 2 * e, n - e, pitch, 0, nullptr, h + e);
}

// Linear 8u down the columns: (h0 16384 + (h1 - h0) wy + 2^19) >> 20, the same integer.
void linV8(const int16_t* HWY_RESTRICT h0, const int16_t* HWY_RESTRICT h1, int wy, int n,
           Lum8u* HWY_RESTRICT dst, bool keepAlpha) {
  const hn::ScalableTag<int32_t> d;
  const hn::Rebind<uint8_t, decltype(d)> d8;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto w = hn::Set(d, wy), half = hn::Set(d, 1 << 19);
  const auto colour = colourLanes(d8);
  int e = 0;
  for (; e + N <= n; e += N) {
    const auto a = loadAs(d, h0 + e);
    const auto b = loadAs(d, h1 + e);
    const auto v = hn::ShiftRight<20>(hn::Add(hn::Add(hn::ShiftLeft<14>(a), hn::Mul(hn::Sub(b, a), w)), half));
    storeColour(d8, hn::DemoteTo(d8, v), dst + e, keepAlpha, colour);
  }
  if (e < n) resize::linV8Scalar(h0 + e, h1 + e, wy, n - e, dst + e, keepAlpha);
}

template <int kPitch>
void linHf(const float* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off,
           const float* HWY_RESTRICT wf, int n, int pitch, int safe, const resize::Windows* win,
           float* HWY_RESTRICT h) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  using V = hn::Vec<decltype(df)>;
  const int N = static_cast<int>(hn::Lanes(df));
  auto finish = [&](int e, V p0, V p1) {
    V w0, w1;
    hn::LoadInterleaved2(df, wf + 2 * e, w0, w1);
    hn::StoreU(hn::Add(hn::Mul(p0, w0), hn::Mul(p1, w1)), df, h + e);
  };
  auto gathered = [&](int e) {
    const auto o = hn::LoadU(di, off + e);
    finish(e, hn::GatherIndex(df, s, o), hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, kPitch))));
  };
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    for (int b = 0; (b + 1) * resize::kBlock <= n; ++b, e += resize::kBlock) {
      const int32_t lo = win->base[b];
      if (lo == resize::kNoWindow) {
        gathered(e);
        continue;
      }
      const uint16_t* ix = win->idx + b * 2 * resize::kBlock;
      finish(e, V{windowF(s + lo, ix)}, V{windowF(s + lo, ix + resize::kBlock)});
    }
  }
#endif
  for (; e + N <= n; e += N) gathered(e);
  if (e < n) resize::linHfScalar(s, off + e, wf + 2 * e, n - e, pitch, 0, nullptr, h + e);
}

void linVf(const float* HWY_RESTRICT h0, const float* HWY_RESTRICT h1, float w0, float w1, int n,
           float* HWY_RESTRICT dst, bool keepAlpha, bool stream) {
  const hn::ScalableTag<float> df;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto a = hn::Set(df, w0), b = hn::Set(df, w1);
  const auto colour = colourLanes(df);
  auto at = [&](int e) { return hn::Add(hn::Mul(hn::LoadU(df, h0 + e), a), hn::Mul(hn::LoadU(df, h1 + e), b)); };
  int e = 0;
  if (stream && !keepAlpha) {
    const int head = streamHead(dst, n, N);
    if (head > 0) resize::linVfScalar(h0, h1, w0, w1, head, dst, false);
    for (e = head; e + N <= n; e += N) hn::Stream(at(e), df, dst + e);
    hwy::FlushStream();
  }
  for (; e + N <= n; e += N) storeColour(df, at(e), dst + e, keepAlpha, colour);
  if (e < n) resize::linVfScalar(h0 + e, h1 + e, w0, w1, n - e, dst + e, keepAlpha);
}

// Linear rows of reductions: both source rows' sums in registers, then the column.
template <int kPitch>
void linF8(const Lum8u* HWY_RESTRICT s0, const Lum8u* HWY_RESTRICT s1,
           const int32_t* HWY_RESTRICT off, const int16_t* HWY_RESTRICT wq, int n, int pitch,
           int safe, const resize::Windows* win, int wy, Lum8u* HWY_RESTRICT dst, bool keepAlpha) {
  const hn::ScalableTag<int32_t> d;
  const hn::Rebind<uint8_t, decltype(d)> d8;
  using V = hn::Vec<decltype(d)>;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto w = hn::Set(d, wy), half = hn::Set(d, 1 << 19);
  const auto colour = colourLanes(d8);
  auto column = [&](int e, V h0, V h1) {
    const auto v = hn::ShiftRight<20>(hn::Add(hn::Add(hn::ShiftLeft<14>(h0), hn::Mul(hn::Sub(h1, h0), w)), half));
    storeColour(d8, hn::DemoteTo(d8, v), dst + e, keepAlpha, colour);
  };
  auto gathered = [&](const Lum8u* s, int e) { return linGather8<kPitch>(d, s, off, wq, e); };
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    const bool last = wy == resize::kOne;  // all weight on the second row
    const __m512i wy2 = _mm512_set1_epi16(static_cast<int16_t>(last ? 0 : 2 * wy));
    const Lum8u* first = last ? s1 : s0;
    if (kPitch == 1 && !keepAlpha && win->run > 0) {
      pairRun8(s0 + off[0], s1 + off[0], win->w2, win->run, wy, dst);
      e = win->run;
    }
    for (int b = e / resize::kBlock; (b + 2) * resize::kBlock <= n; b += 2, e += 2 * resize::kBlock) {
      const int32_t la = win->base[b], lb = win->base[b + 1];
      if (la != resize::kNoWindow && lb != resize::kNoWindow) {
        const uint16_t* ia = win->idx + b * 2 * resize::kBlock;
        const uint16_t* ib = ia + 2 * resize::kBlock;
        const bool sa = win->same[b], sb = win->same[b + 1];
        const __m512i h0 = _mm512_packs_epi32(linSums8(first + la, ia, wq + 2 * e, sa),
                                              linSums8(first + lb, ib, wq + 2 * e + 32, sb));
        const __m512i h1 = _mm512_packs_epi32(linSums8(s1 + la, ia, wq + 2 * e, sa),
                                              linSums8(s1 + lb, ib, wq + 2 * e + 32, sb));
        const __m256i v = linColumn8(h0, h1, wy2);
        if (keepAlpha) _mm256_mask_storeu_epi8(dst + e, 0x77777777u, v);
        else _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + e), v);
        continue;
      }
      for (int k = 0; k < 2 * resize::kBlock; k += N) {
        __m512i a, c;
        if (edgeSums8<kPitch>(s0, s1, off + e + k, wq + 2 * (e + k), &a, &c)) column(e + k, V{a}, V{c});
        else if (e + k + N <= safe) column(e + k, gathered(s0, e + k), gathered(s1, e + k));
        else resize::linF8Scalar(s0, s1, off + e + k, wq + 2 * (e + k), N, pitch, 0, nullptr, wy,
                                 dst + e + k, keepAlpha);
      }
    }
  }
  for (; e + N <= n; e += N) {  // a last block of 16
    __m512i a, c;
    if (!edgeSums8<kPitch>(s0, s1, off + e, wq + 2 * e, &a, &c)) break;
    column(e, V{a}, V{c});
  }
#endif
  for (; e + N <= safe; e += N) column(e, gathered(s0, e), gathered(s1, e));
  if (e < n)
    resize::linF8Scalar(s0, s1, off + e, wq + 2 * e, n - e, pitch, 0, nullptr, wy, dst + e, keepAlpha);
}

template <int kPitch>
void linFf(const float* HWY_RESTRICT s0, const float* HWY_RESTRICT s1,
           const int32_t* HWY_RESTRICT off, const float* HWY_RESTRICT wf, int n, int pitch,
           int safe, const resize::Windows* win, float wy0, float wy1, float* HWY_RESTRICT dst,
           bool keepAlpha) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  using V = hn::Vec<decltype(df)>;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto a = hn::Set(df, wy0), b = hn::Set(df, wy1);
  const auto colour = colourLanes(df);
  auto both = [&](int e, V p0, V p1, V q0, V q1) {
    V w0, w1;
    hn::LoadInterleaved2(df, wf + 2 * e, w0, w1);
    const V h0 = hn::Add(hn::Mul(p0, w0), hn::Mul(p1, w1));
    const V h1 = hn::Add(hn::Mul(q0, w0), hn::Mul(q1, w1));
    storeColour(df, hn::Add(hn::Mul(h0, a), hn::Mul(h1, b)), dst + e, keepAlpha, colour);
  };
  auto gathered = [&](int e) {
    const auto o = hn::LoadU(di, off + e), o1 = hn::Add(o, hn::Set(di, kPitch));
    both(e, hn::GatherIndex(df, s0, o), hn::GatherIndex(df, s0, o1), hn::GatherIndex(df, s1, o),
         hn::GatherIndex(df, s1, o1));
  };
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    if (kPitch == 1 && !keepAlpha && win->run > 0) {
      pairRunF(s0 + off[0], s1 + off[0], win->wf0, win->wf1, win->run, wy0, wy1, dst);
      e = win->run;
    }
    for (int bl = e / resize::kBlock; (bl + 1) * resize::kBlock <= n; ++bl, e += resize::kBlock) {
      const int32_t lo = win->base[bl];
      if (lo == resize::kNoWindow) {
        gathered(e);
        continue;
      }
      const uint16_t* ix = win->idx + bl * 2 * resize::kBlock;
      const __m512i i0 = _mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(ix)));
      const __m512i i1 = _mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(ix + resize::kBlock)));
      const __m512i far = _mm512_or_si512(i0, i1);
      if (_mm512_test_epi32_mask(far, _mm512_set1_epi32(32)) == 0) {  // a 32-float window does
        const float *p = s0 + lo, *q = s1 + lo;
        const __m512 a0 = _mm512_loadu_ps(p), a1 = _mm512_loadu_ps(p + 16);
        const __m512 b0 = _mm512_loadu_ps(q), b1 = _mm512_loadu_ps(q + 16);
        both(e, V{_mm512_permutex2var_ps(a0, i0, a1)}, V{_mm512_permutex2var_ps(a0, i1, a1)},
             V{_mm512_permutex2var_ps(b0, i0, b1)}, V{_mm512_permutex2var_ps(b0, i1, b1)});
        continue;
      }
      both(e, V{windowF(s0 + lo, ix)}, V{windowF(s0 + lo, ix + resize::kBlock)},
           V{windowF(s1 + lo, ix)}, V{windowF(s1 + lo, ix + resize::kBlock)});
    }
  }
#endif
  for (; e + N <= n; e += N) gathered(e);
  if (e < n)
    resize::linFfScalar(s0, s1, off + e, wf + 2 * e, n - e, pitch, 0, nullptr, wy0, wy1, dst + e, keepAlpha);
}

// The Newton form of resize_kernels.h / cubic.h, operation for operation.
template <class D, class V>
HWY_INLINE V newton(D df, V p0, V p1, V p2, V p3, V a, V b, V c) {
  const V two = hn::Set(df, 2.0f), three = hn::Set(df, 3.0f);
  const V d1 = hn::Sub(p1, p0);
  const V d2 = hn::Add(hn::Sub(p2, hn::Mul(two, p1)), p0);
  const V d3 = hn::Sub(hn::Add(hn::Sub(p3, hn::Mul(three, p2)), hn::Mul(three, p1)), p0);
  return hn::Add(hn::Add(hn::Add(p0, hn::Mul(a, d1)), hn::Mul(b, d2)), hn::Mul(c, d3));
}

// Cubic along a row: four taps per element (8u from 32-bit gathers, 32f gathered directly).
template <class T, int kPitch>
void cubH(const T* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off, const float* HWY_RESTRICT k,
          int n, int pitch, int safe, const resize::Windows* win, float* HWY_RESTRICT r) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::RebindToUnsigned<decltype(df)> du;
  const int N = static_cast<int>(hn::Lanes(df));
  using V = hn::Vec<decltype(df)>;
  auto finish = [&](int e, V p0, V p1, V p2, V p3) {
    V a, b, c;
    hn::LoadInterleaved3(df, k + 3 * e, a, b, c);
    hn::StoreU(newton(df, p0, p1, p2, p3, a, b, c), df, r + e);
  };
  auto gathered = [&](int e) {
    const auto o = hn::LoadU(di, off + e);
    if constexpr (std::is_same_v<T, float>) {
      finish(e, hn::GatherIndex(df, s, o), hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, kPitch))),
             hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, 2 * kPitch))),
             hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, 3 * kPitch))));
    } else {
      const int32_t* base = reinterpret_cast<const int32_t*>(s);
      const auto m8 = hn::BitCast(du, hn::Set(di, 0xFF));
      auto at = [&](auto v, auto shift) {
        return hn::ConvertTo(df, hn::BitCast(di, hn::And(hn::ShiftRight<decltype(shift)::value>(hn::BitCast(du, v)), m8)));
      };
      using S0 = std::integral_constant<int, 0>;
      using S8 = std::integral_constant<int, 8>;
      using S16 = std::integral_constant<int, 16>;
      using S24 = std::integral_constant<int, 24>;
      if constexpr (kPitch == 1) {
        const auto v = hn::GatherOffset(di, base, o);
        finish(e, at(v, S0()), at(v, S8()), at(v, S16()), at(v, S24()));
      } else if constexpr (kPitch == 3) {
        const auto v = hn::GatherOffset(di, base, o);
        const auto w = hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 6)));
        finish(e, at(v, S0()), at(v, S24()), at(w, S0()), at(w, S24()));
      } else {
        finish(e, at(hn::GatherOffset(di, base, o), S0()),
               at(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, kPitch))), S0()),
               at(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 2 * kPitch))), S0()),
               at(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 3 * kPitch))), S0()));
      }
    }
  };
  int e = 0;
#if LUMI_RESIZE_WINDOWS
  if (win != nullptr && win->base != nullptr) {
    for (int b = 0; (b + 1) * resize::kBlock <= n; ++b, e += resize::kBlock) {
      const int32_t lo = win->base[b];
      const uint16_t* ix = win->idx + b * 4 * resize::kBlock;
      if (lo == resize::kNoWindow) {
        if (e + N <= safe) gathered(e);
        else resize::cubHScalar(s, off + e, k + 3 * e, resize::kBlock, pitch, 0, nullptr, r + e);
      } else if constexpr (std::is_same_v<T, float>) {
        finish(e, V{windowF(s + lo, ix)}, V{windowF(s + lo, ix + 16)}, V{windowF(s + lo, ix + 32)},
               V{windowF(s + lo, ix + 48)});
      } else {
        __m512i q0, q1, q2, q3;
        window8(s + lo, ix, &q0, &q1);
        window8(s + lo, ix + 32, &q2, &q3);
        finish(e, V{_mm512_cvtepi32_ps(q0)}, V{_mm512_cvtepi32_ps(q1)}, V{_mm512_cvtepi32_ps(q2)},
               V{_mm512_cvtepi32_ps(q3)});
      }
    }
  }
#endif
  for (; e + N <= safe; e += N) gathered(e);
  if (e < n) resize::cubHScalar(s, off + e, k + 3 * e, n - e, pitch, 0, nullptr, r + e);
}

template <class T>
void cubV(const float* const* rows, const float* k, int n, T* HWY_RESTRICT dst, bool keepAlpha,
          bool stream) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<T, decltype(df)> dt;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto a = hn::Set(df, k[0]), b = hn::Set(df, k[1]), c = hn::Set(df, k[2]);
  const float *r0 = rows[0], *r1 = rows[1], *r2 = rows[2], *r3 = rows[3];
  const auto colour = colourLanes(dt);
  auto at = [&](int e) {
    return newton(df, hn::LoadU(df, r0 + e), hn::LoadU(df, r1 + e), hn::LoadU(df, r2 + e),
                  hn::LoadU(df, r3 + e), a, b, c);
  };
  int e = 0;
  if constexpr (std::is_same_v<T, float>) {
    if (stream && !keepAlpha) {
      const int head = streamHead(dst, n, N);
      if (head > 0) resize::cubVScalar<T>(rows, k, head, dst, false);
      for (e = head; e + N <= n; e += N) hn::Stream(at(e), df, dst + e);
      hwy::FlushStream();
    }
  }
  for (; e + N <= n; e += N) {
    const auto v = at(e);
    if constexpr (std::is_same_v<T, float>) {
      storeColour(df, v, dst + e, keepAlpha, colour);
    } else {
      const float hi = static_cast<float>(std::numeric_limits<T>::max());
      auto q = hn::Add(v, hn::Set(df, 0.5000001f));
      q = hn::Min(hn::Max(q, hn::Zero(df)), hn::Set(df, hi));
      storeColour(dt, hn::DemoteTo(dt, hn::ConvertTo(di, q)), dst + e, keepAlpha, colour);
    }
  }
  if (e < n) {
    const float* rest[4] = {r0 + e, r1 + e, r2 + e, r3 + e};
    resize::cubVScalar<T>(rest, k, n - e, dst + e, keepAlpha);
  }
}

// 2x2 means: channels split by the interleaved loads, pairs of neighbouring pixels summed.
template <class D, class V>
HWY_INLINE void loadPix(D d, const hn::TFromD<D>* p, int ch, V* v) {
  if (ch == 1) v[0] = hn::LoadU(d, p);
  else if (ch == 3) hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
  else hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
}
template <class D, class V>
HWY_INLINE void storePix(D d, hn::TFromD<D>* p, int ch, V* v) {
  if (ch == 1) hn::StoreU(v[0], d, p);
  else if (ch == 3) hn::StoreInterleaved3(v[0], v[1], v[2], d, p);
  else hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, p);
}
template <class T, int kCh, int kUse>
void half2(const T* HWY_RESTRICT r0, const T* HWY_RESTRICT r1, int count, T* HWY_RESTRICT dst) {
  int i = 0;
  if constexpr (std::is_same_v<T, Lum8u>) {
    const hn::ScalableTag<uint8_t> d8;
    const hn::Repartition<uint16_t, decltype(d8)> d16;
    const hn::RebindToSigned<decltype(d16)> di16;
    const hn::Rebind<uint8_t, decltype(d16)> dh;
    const int N = static_cast<int>(hn::Lanes(d16));  // outputs per step
    const auto lowByte = hn::Set(d16, 0xFF), two = hn::Set(d16, 2);
    for (; i + N <= count; i += N) {
      hn::Vec<decltype(d8)> a[4], b[4];
      loadPix(d8, r0 + elemsOf(2 * i, kCh), kCh, a);
      loadPix(d8, r1 + elemsOf(2 * i, kCh), kCh, b);
      hn::Vec<decltype(dh)> o[4];
      if (kUse < kCh) loadPix(dh, dst + elemsOf(i, kCh), kCh, o);  // the alpha stays
      for (int c = 0; c < kUse; ++c) {
        const auto x = hn::BitCast(d16, a[c]), y = hn::BitCast(d16, b[c]);
        const auto sum = hn::Add(hn::Add(hn::And(x, lowByte), hn::ShiftRight<8>(x)),
                                 hn::Add(hn::And(y, lowByte), hn::ShiftRight<8>(y)));
        o[c] = hn::DemoteTo(dh, hn::BitCast(di16, hn::ShiftRight<2>(hn::Add(sum, two))));
      }
      storePix(dh, dst + elemsOf(i, kCh), kCh, o);
    }
  } else {
    const hn::ScalableTag<float> df;
    const int N = static_cast<int>(hn::Lanes(df));
    const auto half = hn::Set(df, 0.5f), zero = hn::Zero(df);
    for (; i + N <= count; i += N) {
      hn::Vec<decltype(df)> a0[4], a1[4], b0[4], b1[4], o[4];
      loadPix(df, r0 + elemsOf(2 * i, kCh), kCh, a0);
      loadPix(df, r0 + elemsOf(2 * i + N, kCh), kCh, a1);
      loadPix(df, r1 + elemsOf(2 * i, kCh), kCh, b0);
      loadPix(df, r1 + elemsOf(2 * i + N, kCh), kCh, b1);
      if (kUse < kCh) loadPix(df, dst + elemsOf(i, kCh), kCh, o);
      for (int c = 0; c < kUse; ++c) {
        auto h0 = hn::Add(zero, hn::Mul(half, hn::ConcatEven(df, a1[c], a0[c])));
        h0 = hn::Add(h0, hn::Mul(half, hn::ConcatOdd(df, a1[c], a0[c])));
        auto h1 = hn::Add(zero, hn::Mul(half, hn::ConcatEven(df, b1[c], b0[c])));
        h1 = hn::Add(h1, hn::Mul(half, hn::ConcatOdd(df, b1[c], b0[c])));
        o[c] = hn::Add(hn::Mul(h0, half), hn::Mul(half, h1));
      }
      storePix(df, dst + elemsOf(i, kCh), kCh, o);
    }
  }
  if (i < count)
    resize::half2Scalar<T, kCh, kUse>(r0 + elemsOf(2 * i, kCh), r1 + elemsOf(2 * i, kCh), count - i,
                                      dst + elemsOf(i, kCh));
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace resize {

// The window size a chosen kernel takes: only the AVX-512 entries use windows.
template <class F, std::size_t N>
int windowOf(F f, F const (&table)[N], int size) {
  return N > kAVX3 && f != nullptr && f == table[kAVX3] ? size : 0;
}

template <class T>
NearestFn<T> pickNearest(int* span, int* window) {
  if constexpr (std::is_same_v<T, Lum16u>) {
    *span = *window = 0;
    return &nearestRowScalar<T>;
  } else {
    LUMI_SIMD_TABLE(NearestFn<T>, t, nearestRow<T>);
    const NearestFn<T> f = pick(t, &nearestRowScalar<T>);
    *span = f != &nearestRowScalar<T> && sizeof(T) == 1 ? 4 : 0;
    *window = windowOf(f, t, 64);
    return f;
  }
}
template NearestFn<Lum8u> pickNearest<Lum8u>(int*, int*);
template NearestFn<Lum16u> pickNearest<Lum16u>(int*, int*);
template NearestFn<Lum32f> pickNearest<Lum32f>(int*, int*);

LinH8Fn pickLinH8(int pitch, int* span, int* window) {
  LUMI_SIMD_TABLE(LinH8Fn, t1, linH8<1>);
  LUMI_SIMD_TABLE(LinH8Fn, t3, linH8<3>);
  LUMI_SIMD_TABLE(LinH8Fn, t4, linH8<4>);
  const auto& t = pitch == 1 ? t1 : pitch == 3 ? t3 : t4;
  const LinH8Fn f = pick(t, &linH8Scalar);
  *span = f == &linH8Scalar ? 0 : pitch == 4 ? 8 : 4;
  *window = windowOf(f, t, 64);
  return f;
}
LinV8Fn pickLinV8() {
  LUMI_SIMD_TABLE(LinV8Fn, t, linV8);
  return pick(t, &linV8Scalar);
}
LinHfFn pickLinHf(int pitch, int* window) {
  LUMI_SIMD_TABLE(LinHfFn, t1, linHf<1>);
  LUMI_SIMD_TABLE(LinHfFn, t3, linHf<3>);
  LUMI_SIMD_TABLE(LinHfFn, t4, linHf<4>);
  const auto& t = pitch == 1 ? t1 : pitch == 3 ? t3 : t4;
  const LinHfFn f = pick(t, &linHfScalar);
  *window = windowOf(f, t, 64);
  return f;
}
LinF8Fn pickLinF8(int pitch) {
  LUMI_SIMD_TABLE(LinF8Fn, t1, linF8<1>);
  LUMI_SIMD_TABLE(LinF8Fn, t3, linF8<3>);
  LUMI_SIMD_TABLE(LinF8Fn, t4, linF8<4>);
  return pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &linF8Scalar);
}
LinFfFn pickLinFf(int pitch) {
  LUMI_SIMD_TABLE(LinFfFn, t1, linFf<1>);
  LUMI_SIMD_TABLE(LinFfFn, t3, linFf<3>);
  LUMI_SIMD_TABLE(LinFfFn, t4, linFf<4>);
  return pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &linFfScalar);
}
LinVfFn pickLinVf() {
  LUMI_SIMD_TABLE(LinVfFn, t, linVf);
  return pick(t, &linVfScalar);
}

// 8u rows of the vector kernel also carry a span (source pixels per step); 16u rows keep the
// plain kernel.
template <class T>
CubHFn<T> pickCubH(int pitch, int* span, int* window) {
  if constexpr (std::is_same_v<T, Lum16u>) {
    *span = *window = 0;
    return &cubHScalar<T>;
  } else {
    LUMI_SIMD_TABLE(CubHFn<T>, t1, cubH<T, 1>);
    LUMI_SIMD_TABLE(CubHFn<T>, t3, cubH<T, 3>);
    LUMI_SIMD_TABLE(CubHFn<T>, t4, cubH<T, 4>);
    const auto& t = pitch == 1 ? t1 : pitch == 3 ? t3 : t4;
    const CubHFn<T> f = pick(t, &cubHScalar<T>);
    *span = !std::is_same_v<T, Lum8u> || f == &cubHScalar<T> ? 0 : pitch == 1 ? 4 : pitch == 3 ? 10 : 16;
    *window = windowOf(f, t, 64);
    return f;
  }
}
template CubHFn<Lum8u> pickCubH<Lum8u>(int, int*, int*);
template CubHFn<Lum16u> pickCubH<Lum16u>(int, int*, int*);
template CubHFn<Lum32f> pickCubH<Lum32f>(int, int*, int*);
template <class T, class L>
Half2Fn<T> pickHalf2() {
  if constexpr (std::is_same_v<T, Lum16u>) {
    return &half2Scalar<T, L::kCh, L::kUse>;
  } else {
    LUMI_SIMD_TABLE(Half2Fn<T>, t, half2<T, L::kCh, L::kUse>);
    return pick(t, &half2Scalar<T, L::kCh, L::kUse>);
  }
}
#define LUMI_HALF2(T) \
  template Half2Fn<T> pickHalf2<T, C1>(); \
  template Half2Fn<T> pickHalf2<T, C3>(); \
  template Half2Fn<T> pickHalf2<T, C4>(); \
  template Half2Fn<T> pickHalf2<T, AC4>();
LUMI_HALF2(Lum8u)
LUMI_HALF2(Lum16u)
LUMI_HALF2(Lum32f)

template <class T>
CubVFn<T> pickCubV() {
  LUMI_SIMD_TABLE(CubVFn<T>, t, cubV<T>);
  return pick(t, &cubVScalar<T>);
}
template CubVFn<Lum8u> pickCubV<Lum8u>();
template CubVFn<Lum16u> pickCubV<Lum16u>();
template CubVFn<Lum32f> pickCubV<Lum32f>();

}  // namespace resize
}  // namespace lumi
#endif  // HWY_ONCE
