// Vector kernels of template matching: one-channel rows loaded into a tile, the vertical slide
// of the window sums (double lanes, written out as float), the normalisation of a row of
// placements (float lanes) and the direct correlation of small templates. Each does
// the operations of its scalar twin in match_kernels.h in the same order, so the results agree
// bit for bit; the twins finish the columns past the last whole vector.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/correlation/match_kernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "correlation/match_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
using namespace ::lumi::match;

// acc[x] = sum of the first h rows, for the columns of whole vectors; returns the first column
// left to the twin.
HWY_INLINE int startColumnsVec(const double* HWY_RESTRICT rows, int tw, int h,
                               double* HWY_RESTRICT acc) {
  const hn::ScalableTag<double> d;
  const int N = static_cast<int>(hn::Lanes(d));
  const int xEnd = tw - tw % N;
  for (int x = 0; x < xEnd; x += N) {
    auto a = hn::Zero(d);
    for (int i = 0; i < h; ++i)
      a = hn::Add(a, hn::LoadU(d, rows + static_cast<std::size_t>(i) * tw + x));
    hn::StoreU(a, d, acc + x);
  }
  for (int x = xEnd; x < tw; ++x) {
    acc[x] = 0.0;
    for (int i = 0; i < h; ++i) acc[x] += rows[static_cast<std::size_t>(i) * tw + x];
  }
  return xEnd;
}

void slideEnergy(const double* rows, int tw, int th, int h, double* acc, float* out) {
  const hn::ScalableTag<double> d;
  const hn::Rebind<float, decltype(d)> df;
  const int N = static_cast<int>(hn::Lanes(d));
  const int xEnd = startColumnsVec(rows, tw, h, acc);
  for (int y = 0; y < th; ++y) {
    const double* in = rows + static_cast<std::size_t>(y + h) * tw;
    const double* old = rows + static_cast<std::size_t>(y) * tw;
    float* o = out + static_cast<std::size_t>(y) * tw;
    const bool more = y + 1 < th;
    for (int x = 0; x < xEnd; x += N) {
      auto a = hn::LoadU(d, acc + x);
      hn::StoreU(hn::DemoteTo(df, hn::IfThenElseZero(hn::Gt(a, hn::Zero(d)), a)), df, o + x);
      if (more)
        hn::StoreU(hn::Add(a, hn::Sub(hn::LoadU(d, in + x), hn::LoadU(d, old + x))), d, acc + x);
    }
  }
  slideEnergyFrom(xEnd, rows, tw, th, h, acc, out);
}

void slideLevel(const double* s, const double* e, int tw, int th, int h, double invN, double flat,
                double* accS, double* accE, float* out, float* mean) {
  const hn::ScalableTag<double> d;
  const hn::Rebind<float, decltype(d)> df;
  const int N = static_cast<int>(hn::Lanes(d));
  const int xEnd = startColumnsVec(s, tw, h, accS);
  startColumnsVec(e, tw, h, accE);
  const auto vn = hn::Set(d, invN), vflat = hn::Set(d, flat);
  for (int y = 0; y < th; ++y) {
    const std::size_t in = static_cast<std::size_t>(y + h) * tw,
                      old = static_cast<std::size_t>(y) * tw;
    const bool more = y + 1 < th;
    for (int x = 0; x < xEnd; x += N) {
      auto as = hn::LoadU(d, accS + x), ae = hn::LoadU(d, accE + x);
      auto var = hn::Sub(ae, hn::Mul(hn::Mul(as, as), vn));
      var = hn::IfThenElseZero(hn::Gt(var, hn::Mul(vflat, ae)), var);
      hn::StoreU(hn::DemoteTo(df, var), df, out + old + x);
      hn::StoreU(hn::DemoteTo(df, hn::Mul(as, vn)), df, mean + old + x);
      if (more) {
        hn::StoreU(hn::Add(as, hn::Sub(hn::LoadU(d, s + in + x), hn::LoadU(d, s + old + x))), d,
                   accS + x);
        hn::StoreU(hn::Add(ae, hn::Sub(hn::LoadU(d, e + in + x), hn::LoadU(d, e + old + x))), d,
                   accE + x);
      }
    }
  }
  slideLevelFrom(xEnd, s, e, tw, th, h, invN, flat, accS, accE, out, mean);
}

// v clamped to [-b, b] exactly as clampTo does (NaN passes through).
template <class D, class V>
HWY_INLINE V clampVec(D, V v, V b) {
  return hn::IfThenElse(hn::Gt(v, b), b, hn::IfThenElse(hn::Lt(v, hn::Neg(b)), hn::Neg(b), v));
}

// kMode 0: Norm, 1: squared distance, 2: mean-removed.
template <int kMode>
void finishRow(const float* num, const float* a, const float* b, int n, const Norms& k,
               float* out) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto bound = hn::Set(d, k.bound), floored = hn::Set(d, k.floored);
  const auto se = hn::Set(d, k.sqrtEps), energy = hn::Set(d, k.energy), two = hn::Set(d, 2.0f);
  const auto resid = hn::Set(d, k.resid);
  int x = 0;
  for (; x + N <= n; x += N) {
    const auto av = hn::LoadU(d, a + x);
    const auto r = hn::Sqrt(av);
    auto v = hn::LoadU(d, num + x);
    if constexpr (kMode == 2) v = hn::Sub(v, hn::Mul(hn::LoadU(d, b + x), resid));
    v = clampVec(d, v, hn::Mul(bound, r));
    const auto den = hn::Mul(floored, hn::IfThenElse(hn::Gt(r, se), r, se));
    if constexpr (kMode == 1) {
      auto dd = hn::Add(hn::Sub(av, hn::Mul(two, v)), energy);
      v = hn::IfThenElseZero(hn::Gt(dd, hn::Zero(d)), dd);
    }
    hn::StoreU(hn::Div(v, den), d, out + x);
  }
  if constexpr (kMode == 0) finishNormFrom(x, num, a, b, n, k, out);
  if constexpr (kMode == 1) finishSqrFrom(x, num, a, b, n, k, out);
  if constexpr (kMode == 2) finishLevelFrom(x, num, a, b, n, k, out);
}

// Four vectors of placements at a time keep four sums in flight; each lane sums its taps in the
// twin's order.
void correlate(const float* tile, const float* tpl, std::size_t stride, int w, int h, int tw,
               int th, float* out) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  int xEnd = 0;
  for (int y = 0; y < th; ++y) {
    const float* row = tile + y * stride;
    float* o = out + y * stride;
    int x = 0;
    for (; x + 4 * N <= tw; x += 4 * N) {
      auto a0 = hn::Zero(d), a1 = hn::Zero(d), a2 = hn::Zero(d), a3 = hn::Zero(d);
      for (int i = 0; i < h; ++i) {
        const float* r = row + i * stride + x;
        const float* t = tpl + i * stride;
        for (int j = 0; j < w; ++j) {
          const auto k = hn::Set(d, t[j]);
          a0 = hn::Add(a0, hn::Mul(k, hn::LoadU(d, r + j)));
          a1 = hn::Add(a1, hn::Mul(k, hn::LoadU(d, r + j + N)));
          a2 = hn::Add(a2, hn::Mul(k, hn::LoadU(d, r + j + 2 * N)));
          a3 = hn::Add(a3, hn::Mul(k, hn::LoadU(d, r + j + 3 * N)));
        }
      }
      hn::StoreU(a0, d, o + x);
      hn::StoreU(a1, d, o + x + N);
      hn::StoreU(a2, d, o + x + 2 * N);
      hn::StoreU(a3, d, o + x + 3 * N);
    }
    for (; x + N <= tw; x += N) {
      auto a = hn::Zero(d);
      for (int i = 0; i < h; ++i)
        for (int j = 0; j < w; ++j)
          a = hn::Add(
              a, hn::Mul(hn::Set(d, tpl[i * stride + j]), hn::LoadU(d, row + i * stride + x + j)));
      hn::StoreU(a, d, o + x);
    }
    xEnd = x;
  }
  correlateFrom(xEnd, tile, tpl, stride, w, h, tw, th, out);
}

template <class S>
void loadRow(const S* HWY_RESTRICT in, int n, float level, float* HWY_RESTRICT out) {
  const hn::ScalableTag<float> df;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto lv = hn::Set(df, level);
  int j = 0;
  if constexpr (std::is_same_v<S, float>) {
    for (; j + N <= n; j += N) hn::StoreU(hn::Sub(hn::LoadU(df, in + j), lv), df, out + j);
  } else {
    for (; j + N <= n; j += N) {
      hn::StoreU(hn::Sub(loadAs(df, in + j), lv), df, out + j);
    }
  }
  loadRowFrom(j, in, n, level, out);
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace match {

SlideEnergyFn pickSlideEnergy() {
  LUMI_SIMD_TABLE(SlideEnergyFn, table, slideEnergy);
  return pick(table, &slideEnergyScalar);
}
SlideLevelFn pickSlideLevel() {
  LUMI_SIMD_TABLE(SlideLevelFn, table, slideLevel);
  return pick(table, &slideLevelScalar);
}
FinishRowFn pickFinishNorm() {
  LUMI_SIMD_TABLE(FinishRowFn, table, finishRow<0>);
  return pick(table, &finishNormScalar);
}
FinishRowFn pickFinishSqr() {
  LUMI_SIMD_TABLE(FinishRowFn, table, finishRow<1>);
  return pick(table, &finishSqrScalar);
}
FinishRowFn pickFinishLevel() {
  LUMI_SIMD_TABLE(FinishRowFn, table, finishRow<2>);
  return pick(table, &finishLevelScalar);
}

CorrelateFn pickCorrelate() {
  LUMI_SIMD_TABLE(CorrelateFn, table, correlate);
  return pick(table, &correlateScalar);
}

template <class S>
LoadRowFn<S> pickLoadRow() {
  LUMI_SIMD_TABLE(LoadRowFn<S>, table, loadRow<S>);
  return pick(table, &loadRowScalar<S>);
}
template LoadRowFn<Lum32f> pickLoadRow<Lum32f>();
template LoadRowFn<Lum8u> pickLoadRow<Lum8u>();
template LoadRowFn<Lum8s> pickLoadRow<Lum8s>();

}  // namespace match
}  // namespace lumi
#endif  // HWY_ONCE
