// Whole-ROI reductions behind the norms and sums: exact integer sums of magnitudes, squares or
// samples, largest magnitudes, and the four-lane single-precision accumulation of 32f.
// Products and sums stay separately rounded (no fused multiply-add), so every target
// accumulates exactly as the scalar kernels do.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/stats/reduce.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "stats/load_pix-inl.h"
#include "stats/stats_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
using namespace ::lumi::stats;

// Per-channel vectors of kCh interleaved channels (pixels x .. x + Lanes - 1).
// Unsigned magnitude (or, for a signed plain sum, the sample with its sign bit flipped, i.e.
// biased by 32768) as a vector of the unsigned type of the same width.
template <int kOp, bool kDiff, class D, class V>
HWY_INLINE auto Magnitude(D d, V a, V b) {
  using T = hn::TFromD<D>;
  const hn::RebindToUnsigned<D> du;
  if constexpr (kDiff) {
    return hn::BitCast(du, hn::Sub(hn::Max(a, b), hn::Min(a, b)));
  } else if constexpr (std::is_signed_v<T>) {
    if constexpr (kOp == kOpPlain)
      return hn::BitCast(du, hn::Xor(a, hn::Set(d, static_cast<T>(-32768))));
    else
      return hn::BitCast(du, hn::Abs(a));
  } else {
    return a;
  }
}

template <class D, class V>
HWY_INLINE uint64_t SumU64(D d, V v) {
  return hn::GetLane(hn::SumOfLanes(d, v));
}

// One row of an integer reduction. Vector part over whole vectors of pixels, then the scalar
// kernel for the leftover pixels; both are exact, so the result equals the scalar one.
template <class T, int kOp, bool kDiff, int kCh>
void intRow(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, int width, uint64_t* acc) {
  const hn::ScalableTag<T> d;
  using TU = std::make_unsigned_t<T>;
  const hn::Repartition<TU, decltype(d)> du;
  const hn::Repartition<uint64_t, decltype(d)> d64;
  const hn::Repartition<uint32_t, decltype(d)> d32;
  const hn::Repartition<int32_t, decltype(d)> di32;
  const int N = static_cast<int>(hn::Lanes(d));
  using V = hn::Vec<decltype(d)>;
  using VU = hn::Vec<decltype(du)>;
  V va[4], vb[4];
  int x = 0;
  if constexpr (kOp == kOpMax) {
    VU mx[4];
    for (int c = 0; c < kCh; ++c) mx[c] = hn::Zero(du);
    for (; x + N <= width; x += N) {
      LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
      if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
      for (int c = 0; c < kCh; ++c) mx[c] = hn::Max(mx[c], Magnitude<kOp, kDiff>(d, va[c], vb[c]));
    }
    HWY_ALIGN TU buf[hn::MaxLanes(du)];
    for (int c = 0; c < kCh; ++c) {
      hn::Store(mx[c], du, buf);
      for (int i = 0; i < N; ++i) acc[c] = buf[i] > acc[c] ? buf[i] : acc[c];
    }
  } else if constexpr (sizeof(T) == 1) {
    // 8-bit: sums of 8 bytes go straight into 64-bit lanes; squares are multiplied and added
    // in pairs into 32-bit lanes, which hold at least 8192 vectors before they are widened.
    hn::Vec<decltype(d64)> s[4];
    for (int c = 0; c < kCh; ++c) s[c] = hn::Zero(d64);
    while (x + N <= width) {
      const int blockEnd = width - x > 8192 * N ? x + 8192 * N : width;
      if constexpr (kOp == kOpSq) {
        const hn::Repartition<int16_t, decltype(d)> d16;
        const hn::Half<decltype(du)> dh;
        hn::Vec<decltype(di32)> q0[4], q1[4];
        for (int c = 0; c < kCh; ++c) q0[c] = q1[c] = hn::Zero(di32);
        for (; x + N <= blockEnd; x += N) {
          LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
          if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
          for (int c = 0; c < kCh; ++c) {
            auto m = Magnitude<kOp, kDiff>(d, va[c], vb[c]);
            auto lo = hn::BitCast(d16, hn::PromoteTo(hn::Repartition<uint16_t, decltype(d)>(), hn::LowerHalf(dh, m)));
            auto hi = hn::BitCast(d16, hn::PromoteTo(hn::Repartition<uint16_t, decltype(d)>(), hn::UpperHalf(dh, m)));
            q0[c] = hn::ReorderWidenMulAccumulate(di32, lo, lo, q0[c], q1[c]);
            q0[c] = hn::ReorderWidenMulAccumulate(di32, hi, hi, q0[c], q1[c]);
          }
        }
        const hn::Half<decltype(d32)> d32h;
        for (int c = 0; c < kCh; ++c) {
          for (auto q : {q0[c], q1[c]}) {
            auto u = hn::BitCast(d32, q);
            s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::LowerHalf(d32h, u)));
            s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::UpperHalf(d32h, u)));
          }
        }
      } else {
        for (; x + N <= blockEnd; x += N) {
          LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
          if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
          for (int c = 0; c < kCh; ++c)
            s[c] = hn::Add(s[c], hn::SumsOf8(Magnitude<kOp, kDiff>(d, va[c], vb[c])));
        }
      }
    }
    for (int c = 0; c < kCh; ++c) acc[c] += SumU64(d64, s[c]);
  } else {
    // 16-bit: magnitudes widen to 32-bit lanes; sums stay there for 16384 vectors, squares
    // (below 2^32) widen again to 64 bits at once.
    const hn::Half<decltype(du)> duh;
    const hn::Half<decltype(d32)> d32h;
    hn::Vec<decltype(d64)> s[4];
    for (int c = 0; c < kCh; ++c) s[c] = hn::Zero(d64);
    int64_t vectors = 0;
    while (x + N <= width) {
      const int blockEnd = width - x > 16384 * N ? x + 16384 * N : width;
      hn::Vec<decltype(d32)> w[4];
      for (int c = 0; c < kCh; ++c) w[c] = hn::Zero(d32);
      for (; x + N <= blockEnd; x += N, ++vectors) {
        LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
        if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
        for (int c = 0; c < kCh; ++c) {
          if constexpr (kOp == kOpSq && !kDiff && std::is_signed_v<T>) {
            // pairs of 16-bit squares: at most 2 * 32768^2 = 2^31, exact as unsigned
            auto q1 = hn::Zero(di32);
            auto q0 = hn::ReorderWidenMulAccumulate(di32, va[c], va[c], hn::Zero(di32), q1);
            for (auto q : {q0, q1}) {
              auto u = hn::BitCast(d32, q);
              s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::LowerHalf(d32h, u)));
              s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::UpperHalf(d32h, u)));
            }
          } else {
            auto m = Magnitude<kOp, kDiff>(d, va[c], vb[c]);
            auto lo = hn::PromoteTo(d32, hn::LowerHalf(duh, m));
            auto hi = hn::PromoteTo(d32, hn::UpperHalf(duh, m));
            if constexpr (kOp == kOpSq) {
              for (auto u : {hn::Mul(lo, lo), hn::Mul(hi, hi)}) {
                s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::LowerHalf(d32h, u)));
                s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::UpperHalf(d32h, u)));
              }
            } else {
              w[c] = hn::Add(w[c], hn::Add(lo, hi));
            }
          }
        }
      }
      if constexpr (kOp != kOpSq || (!kDiff && std::is_signed_v<T>)) {
        for (int c = 0; c < kCh; ++c) {
          s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::LowerHalf(d32h, w[c])));
          s[c] = hn::Add(s[c], hn::PromoteTo(d64, hn::UpperHalf(d32h, w[c])));
        }
      }
    }
    for (int c = 0; c < kCh; ++c) {
      uint64_t v = SumU64(d64, s[c]);
      if constexpr (kOp == kOpPlain && std::is_signed_v<T>)
        v -= static_cast<uint64_t>(vectors) * static_cast<uint64_t>(N) * 32768u;  // remove the bias
      acc[c] += v;
    }
  }
  intRowFrom<T, kOp, kDiff, kCh>(a, b, x, width, acc);
}

// One row of the four-lane single-precision accumulation (same order as the scalar kernel).
template <int kOp, bool kDiff, int kCh>
void f32LanesRow(const float* HWY_RESTRICT a, const float* HWY_RESTRICT b, int width,
                 float* lanes) {
  const hn::FixedTag<float, 4> d;
  using V = hn::Vec<decltype(d)>;
  V acc[4], va[4], vb[4];
  for (int c = 0; c < kCh; ++c) acc[c] = hn::LoadU(d, lanes + 4 * c);
  int x = 0;
  for (; x + 4 <= width; x += 4) {
    LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
    if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
    for (int c = 0; c < kCh; ++c) {
      V v = kDiff ? hn::Sub(va[c], vb[c]) : va[c];
      if constexpr (kOp == kOpAbs) v = hn::Abs(v);
      if constexpr (kOp == kOpSq) v = hn::Mul(v, v);
      acc[c] = hn::Add(acc[c], v);
    }
  }
  for (int c = 0; c < kCh; ++c) hn::StoreU(acc[c], d, lanes + 4 * c);
  f32TailLanes<kOp, kDiff, kCh>(a, b, x, width, lanes);
}

template <bool kDiff, int kCh>
void f32MaxAbsRow(const float* HWY_RESTRICT a, const float* HWY_RESTRICT b, int width, float* m) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  using V = hn::Vec<decltype(d)>;
  V mx[4], va[4], vb[4];
  for (int c = 0; c < kCh; ++c) mx[c] = hn::Set(d, m[c]);
  int x = 0;
  for (; x + N <= width; x += N) {
    LoadPix<kCh>(d, a + elemsOf(x, kCh), va);
    if (kDiff) LoadPix<kCh>(d, b + elemsOf(x, kCh), vb);
    for (int c = 0; c < kCh; ++c)
      mx[c] = hn::Max(mx[c], hn::Abs(kDiff ? hn::Sub(va[c], vb[c]) : va[c]));
  }
  for (int c = 0; c < kCh; ++c) m[c] = hn::GetLane(hn::MaxOfLanes(d, mx[c]));
  f32MaxAbsFrom<kDiff, kCh>(a, b, x, width, m);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE

namespace lumi {
namespace stats {
namespace {

template <class T>
using IntRowFn = void (*)(const T*, const T*, int, uint64_t*);
using F32RowFn = void (*)(const float*, const float*, int, float*);

template <class T, int kOp, bool kDiff, int kCh>
void intRowScalar(const T* a, const T* b, int width, uint64_t* acc) {
  intRowFrom<T, kOp, kDiff, kCh>(a, b, 0, width, acc);
}
template <bool kDiff, int kCh>
void f32MaxAbsRowScalar(const float* a, const float* b, int width, float* m) {
  f32MaxAbsFrom<kDiff, kCh>(a, b, 0, width, m);
}

template <class T, int kOp, bool kDiff, int kCh>
IntRowFn<T> pickIntRow() {
  LUMI_SIMD_TABLE(IntRowFn<T>, table, intRow<T, kOp, kDiff, kCh>);
  return pick(table, &intRowScalar<T, kOp, kDiff, kCh>);
}
template <bool kDiff, int kCh>
F32RowFn pickF32MaxAbsRow() {
  LUMI_SIMD_TABLE(F32RowFn, table, f32MaxAbsRow<kDiff, kCh>);
  return pick(table, &f32MaxAbsRowScalar<kDiff, kCh>);
}
template <int kOp, bool kDiff, int kCh>
F32RowFn pickF32LanesRow() {
  LUMI_SIMD_TABLE(F32RowFn, table, f32LanesRow<kOp, kDiff, kCh>);
  return pick(table, &f32LanesRowScalar<kOp, kDiff, kCh>);
}

// Run-time (op, difference, channels) to the compiled combination.
template <class F, template <int, bool, int> class Pick>
F pickByArgs(int op, bool diff, int ch) {
#define LUMI_PICK_CH(OP, DIFF) \
  (ch == 1 ? Pick<OP, DIFF, 1>::get() : ch == 3 ? Pick<OP, DIFF, 3>::get() : Pick<OP, DIFF, 4>::get())
  switch (op) {
    case kOpMax: return diff ? LUMI_PICK_CH(kOpMax, true) : LUMI_PICK_CH(kOpMax, false);
    case kOpAbs: return diff ? LUMI_PICK_CH(kOpAbs, true) : LUMI_PICK_CH(kOpAbs, false);
    case kOpSq: return diff ? LUMI_PICK_CH(kOpSq, true) : LUMI_PICK_CH(kOpSq, false);
    default: return LUMI_PICK_CH(kOpPlain, false);
  }
#undef LUMI_PICK_CH
}

template <class T>
struct IntPick {
  template <int kOp, bool kDiff, int kCh>
  struct P {
    static IntRowFn<T> get() {
      // unsigned types sum their samples as magnitudes
      constexpr int op = (kOp == kOpPlain && !std::is_signed_v<T>) ? kOpAbs : kOp;
      return pickIntRow<T, op, kDiff, kCh>();
    }
  };
};
template <int kOp, bool kDiff, int kCh>
struct F32Pick {
  static F32RowFn get() {
    if constexpr (kOp == kOpMax) return pickF32MaxAbsRow<kDiff, kCh>();
    else return pickF32LanesRow<kOp, kDiff, kCh>();
  }
};

// Runs a row kernel f(row of a, row of b or null, width, acc) down the ROI, top to bottom.
template <class F, class T, class A>
void reduceRows(F f, const T* a, int aStep, const T* b, int bStep, LumiSize roi, A* acc) {
  for (int y = 0; y < roi.height; ++y)
    f(rowAt(a, aStep, y), b ? rowAt(b, bStep, y) : nullptr, roi.width, acc);
}

}  // namespace

template <class T>
void reduceInt(const T* a, int aStep, const T* b, int bStep, LumiSize roi, int op, int ch,
               uint64_t* acc) {
  reduceRows(pickByArgs<IntRowFn<T>, IntPick<T>::template P>(op, b != nullptr, ch), a, aStep, b,
             bStep, roi, acc);
}
template void reduceInt<Lum8u>(const Lum8u*, int, const Lum8u*, int, LumiSize, int, int, uint64_t*);
template void reduceInt<Lum16u>(const Lum16u*, int, const Lum16u*, int, LumiSize, int, int, uint64_t*);
template void reduceInt<Lum16s>(const Lum16s*, int, const Lum16s*, int, LumiSize, int, int, uint64_t*);

void reduceF32Lanes(const float* a, int aStep, const float* b, int bStep, LumiSize roi, int op,
                    int ch, float* lanes) {
  reduceRows(pickByArgs<F32RowFn, F32Pick>(op == kOpMax ? kOpPlain : op, b != nullptr, ch), a,
             aStep, b, bStep, roi, lanes);
}

void maxAbsF32(const float* a, int aStep, const float* b, int bStep, LumiSize roi, int ch,
               float* m) {
  reduceRows(pickByArgs<F32RowFn, F32Pick>(kOpMax, b != nullptr, ch), a, aStep, b, bStep, roi, m);
}

}  // namespace stats
}  // namespace lumi
#endif
