// Additive uniform and Gaussian noise, in place, from a subtract-with-borrow generator
// (modulus 2^32 - 18) combined with a linear congruential word. The caller's seed word
// seeds the first state word and receives the last one, so consecutive calls continue the
// stream through that word alone (the other words restart on every call).
//
// The stream is serial, so samples are visited strictly in row-major order: C3 and C4 rows
// are width * channels consecutive samples, AC4 rows the three colour samples of each pixel.
// Integer samples get the noise rounded by the processor's current rounding mode (ties to
// even by default) and saturated; float samples get it converted to single precision.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/generate/noise.cpp"
#include "hwy/foreach_target.h"
// (foreach_target re-includes this file once per SIMD target)
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "generate/generate_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Adds n noise values to n consecutive samples. Integers round by adding and subtracting
// 1.5 * 2^52 with the sign of the value: the addition rounds in the current mode exactly as
// the scalar conversion does (with the sign, toward-zero rounding stays toward zero).
template <class T>
void addNoiseRow(T* HWY_RESTRICT row, const double* HWY_RESTRICT noise, int n) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<T, decltype(dd)> dt;
  const int lanes = static_cast<int>(hn::Lanes(dd));
  int i = 0;
  if constexpr (std::is_floating_point_v<T>) {
    for (; i + lanes <= n; i += lanes) {
      const auto v = hn::DemoteTo(dt, hn::LoadU(dd, noise + i));
      hn::StoreU(hn::Add(hn::LoadU(dt, row + i), v), dt, row + i);
    }
  } else {
    const hn::Rebind<int32_t, decltype(dd)> di;
    const auto lo = hn::Set(dd, -gen::kNoiseClamp), hi = hn::Set(dd, gen::kNoiseClamp);
    const auto magic = hn::Set(dd, 6755399441055744.0);  // 1.5 * 2^52
    for (; i + lanes <= n; i += lanes) {
      auto x = hn::Min(hn::Max(hn::LoadU(dd, noise + i), lo), hi);
      const auto m = hn::CopySign(magic, x);
      x = hn::Sub(hn::Add(x, m), m);
      const auto sum = hn::Add(loadAs(di, row + i), hn::DemoteTo(di, x));
      hn::StoreU(hn::DemoteTo(dt, sum), dt, row + i);
    }
  }
  for (; i < n; ++i) row[i] = gen::addNoise(row[i], noise[i]);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
#include <cmath>

namespace lumi {
namespace {

template <class T>
using AddNoiseRowFn = void (*)(T*, const double*, int);

template <class T>
void addNoiseRowScalar(T* row, const double* noise, int n) {
  for (int i = 0; i < n; ++i) row[i] = gen::addNoise(row[i], noise[i]);
}

template <class T>
AddNoiseRowFn<T> pickAddNoiseRow() {
  LUMI_SIMD_TABLE(AddNoiseRowFn<T>, table, addNoiseRow<T>);
  return pick(table, &addNoiseRowScalar<T>);
}

class NoiseStream {
 public:
  explicit NoiseStream(uint32_t seed) : a_(seed) {
    b_ = a_ * 69069u + 1013904243u;
    c_ = b_ * 69069u + 1013904243u;
  }
  int32_t next() {
    lcg_ = lcg_ * 69069u + 1013904243u;
    uint32_t t = b_ - c_ - borrow_;
    borrow_ = t >> 31;
    t -= borrow_ * 18u;
    c_ = b_;
    b_ = a_;
    a_ = t;
    return static_cast<int32_t>(a_ + lcg_);
  }
  uint32_t state() const { return a_; }

 private:
  uint32_t a_, b_, c_, borrow_ = 1, lcg_ = 1131199209u;
};

template <class T>
inline LumStatus checkNoise(const T* p, int step, LumiSize roi, const unsigned* seed) {
  if (anyNull(p, seed)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  return lumStatusOk;
}

// Hands out the noise values of a call in sample order, computing them in blocks: the serial
// generator runs in a tight loop and the independent floating-point work of a block (the
// logarithms of the Gaussian pairs above all) overlaps. A block never draws beyond the values
// the ROI needs, so the final state word is the one a sample-by-sample walk would leave.
constexpr int kBlock = 512;  // noise values per block (even, so pairs never straddle blocks)

template <class Fill>
class NoiseValues {
 public:
  NoiseValues(int64_t total, Fill fill) : left_(total), fill_(fill) {}
  double next() {
    if (pos_ == end_) refill();
    return buf_[pos_++];
  }
  // Up to `want` consecutive values at *values; returns how many.
  int take(int want, const double** values) {
    if (pos_ == end_) refill();
    const int k = end_ - pos_ < want ? end_ - pos_ : want;
    *values = buf_ + pos_;
    pos_ += k;
    return k;
  }

 private:
  void refill() {
    end_ = left_ < kBlock ? static_cast<int>(left_) : kBlock;
    left_ -= end_;
    fill_(buf_, end_);
    pos_ = 0;
  }
  int64_t left_;
  Fill fill_;
  int pos_ = 0, end_ = 0;
  double buf_[kBlock];
};

// Adds the values to the ROI's samples in row-major order: whole runs of contiguous samples
// at a time for one-channel rows, the layout's own samples of every pixel otherwise (AC4: the
// three colour ones).
template <class L, class T, class Values>
void addToRoi(T* p, int step, LumiSize roi, Values& noise) {
  const AddNoiseRowFn<T> addRow = pickAddNoiseRow<T>();
  for (int y = 0; y < roi.height; ++y) {
    T* row = rowAt(p, step, y);
    if constexpr (L::kCh == 1) {
      for (int x = 0; x < roi.width;) {
        const double* v;
        const int k = noise.take(roi.width - x, &v);
        addRow(row + x, v, k);
        x += k;
      }
    } else {
      for (std::ptrdiff_t i = 0; i < elemsOf(roi.width, L::kCh); i += L::kCh)
        for (int c = 0; c < L::kUse; ++c) row[i + c] = gen::addNoise(row[i + c], noise.next());
    }
  }
}

template <class T, class L>
LumStatus uniform(T* p, int step, LumiSize roi, T low, T high, unsigned* seed) {
  if (LumStatus st = checkNoise(p, step, roi, seed)) return st;
  double scale, mid;
  if constexpr (std::is_floating_point_v<T>) {
    scale = static_cast<double>(high - low) * 2.3283064365387e-10;
    mid = static_cast<double>(low + high) * 0.5;
  } else {
    scale = static_cast<double>(int{high} - int{low}) * 2.3283064365387e-10;
    mid = static_cast<double>(int{low} + int{high}) * 0.5;
  }
  const __m128d vscale = _mm_set1_pd(scale), vmid = _mm_set1_pd(mid);
  NoiseStream rng(*seed);
  auto fill = [&](double* out, int n) {
    int32_t draws[kBlock];
    for (int i = 0; i < n; ++i) draws[i] = rng.next();
    int i = 0;
    for (; i + 2 <= n; i += 2) {  // two lanes of exactly the scalar operations
      const __m128d d =
          _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(draws + i)));
      _mm_storeu_pd(out + i, _mm_add_pd(_mm_mul_pd(d, vscale), vmid));
    }
    for (; i < n; ++i) out[i] = draws[i] * scale + mid;
  };
  NoiseValues<decltype(fill)> noise(static_cast<int64_t>(roi.width) * L::kUse * roi.height, fill);
  addToRoi<L>(p, step, roi, noise);
  *seed = rng.state();
  return lumStatusOk;
}

// The two values of each accepted pair: f = sqrt(-2 ln(q) / q), then mean + sd * f * u for
// both coordinates. Two pairs at a time in SSE2 registers (the divider and the square root
// unit are no wider for longer vectors); each lane does exactly the scalar operations.
inline void pairValues(double* out, const double* u1, const double* u2, const double* q,
                       const double* lnq, int pairs, double m, double sd) {
  const __m128d minus2 = _mm_set1_pd(-2.0), vm = _mm_set1_pd(m), vsd = _mm_set1_pd(sd);
  for (int k = 0; k < pairs; k += 2) {  // the arrays hold one spare entry for odd counts
    const __m128d f =
        _mm_sqrt_pd(_mm_div_pd(_mm_mul_pd(minus2, _mm_loadu_pd(lnq + k)), _mm_loadu_pd(q + k)));
    const __m128d sf = _mm_mul_pd(vsd, f);
    const __m128d g1 = _mm_add_pd(vm, _mm_mul_pd(sf, _mm_loadu_pd(u1 + k)));
    const __m128d g2 = _mm_add_pd(vm, _mm_mul_pd(sf, _mm_loadu_pd(u2 + k)));
    _mm_storeu_pd(out + 2 * k, _mm_unpacklo_pd(g1, g2));
    _mm_storeu_pd(out + 2 * k + 2, _mm_unpackhi_pd(g1, g2));
  }
}

// Polar method: a pair (u1, u2) of draws scaled to (-1, 1) is kept when 0 < q < 1 with
// q = u1^2 + u2^2, and gives two consecutive values; the second one may land on the first
// sample of the next row, and is dropped after the last sample. A block draws its accepted
// pairs first (a rejected candidate is overwritten by the next), then takes the logarithms.
template <class T, class L>
LumStatus gauss(T* p, int step, LumiSize roi, T mean, T stdDev, unsigned* seed) {
  if (LumStatus st = checkNoise(p, step, roi, seed)) return st;
  const double m = mean, sd = stdDev;
  NoiseStream rng(*seed);
  auto fill = [&](double* out, int n) {
    constexpr int kPairs = kBlock / 2;
    double u1[kPairs + 1], u2[kPairs + 1], q[kPairs + 1], lnq[kPairs + 1];
    const int pairs = (n + 1) / 2;
    for (int k = 0; k < pairs;) {
      const double a = rng.next() * 4.656612873077e-10;
      const double b = rng.next() * 4.656612873077e-10;
      const double s = a * a + b * b;
      u1[k] = a;
      u2[k] = b;
      q[k] = s;
      k += (s > 0.0) & (s < 1.0);
    }
    for (int k = 0; k < pairs; ++k) lnq[k] = std::log(q[k]);
    u1[pairs] = u2[pairs] = lnq[pairs] = 0.0;  // the spare lane of an odd count
    q[pairs] = 1.0;
    pairValues(out, u1, u2, q, lnq, pairs, m, sd);
  };
  NoiseValues<decltype(fill)> noise(static_cast<int64_t>(roi.width) * L::kUse * roi.height, fill);
  addToRoi<L>(p, step, roi, noise);
  *seed = rng.state();
  return lumStatusOk;
}

// C3 and C4 rows are plain sample rows of width * channels: the width is checked here, the
// rest by the one-channel form.
inline LumStatus widenRow(LumiSize* roi, unsigned channels) {
  if (roi->width < 1) return lumStatusSizeErr;
  roi->width = static_cast<int>(static_cast<unsigned>(roi->width) * channels);
  return lumStatusOk;
}

// The noise of one layout: C3 and C4 as one-channel rows of width * channels samples (after
// the width check), C1 and AC4 pixel by pixel.
enum NoiseKind { kUniform, kGauss };
template <NoiseKind kKind, class T, class L>
LumStatus addNoiseTo(T* p, int step, LumiSize roi, T a, T b, unsigned* seed) {
  if constexpr (L::kCh > 1 && L::kCh == L::kUse) {
    if (LumStatus st = widenRow(&roi, L::kCh)) return st;
    return addNoiseTo<kKind, T, C1>(p, step, roi, a, b, seed);
  } else if constexpr (kKind == kUniform) {
    return uniform<T, L>(p, step, roi, a, b, seed);
  } else {
    return gauss<T, L>(p, step, roi, a, b, seed);
  }
}

}  // namespace
}  // namespace lumi

using namespace lumi;

// One stamp per export; KIND is kUniform or kGauss.
#define LUMI_NOISE(NAME, KIND, T, L)                                               \
  LUMI_API LumStatus NAME(T* p, int s, LumiSize r, T a, T b, unsigned int* seed) { \
    return addNoiseTo<KIND, T, L>(p, s, r, a, b, seed);                            \
  }

LUMI_NOISE(lumiAddRandUniform_Direct_8u_C1IR, kUniform, Lum8u, C1)
LUMI_NOISE(lumiAddRandUniform_Direct_8u_C3IR, kUniform, Lum8u, C3)
LUMI_NOISE(lumiAddRandUniform_Direct_8u_C4IR, kUniform, Lum8u, C4)
LUMI_NOISE(lumiAddRandUniform_Direct_8u_AC4IR, kUniform, Lum8u, AC4)
LUMI_NOISE(lumiAddRandUniform_Direct_16s_C1IR, kUniform, Lum16s, C1)
LUMI_NOISE(lumiAddRandUniform_Direct_16s_C3IR, kUniform, Lum16s, C3)
LUMI_NOISE(lumiAddRandUniform_Direct_16s_C4IR, kUniform, Lum16s, C4)
LUMI_NOISE(lumiAddRandUniform_Direct_16s_AC4IR, kUniform, Lum16s, AC4)
LUMI_NOISE(lumiAddRandUniform_Direct_32f_C1IR, kUniform, Lum32f, C1)
LUMI_NOISE(lumiAddRandUniform_Direct_32f_C3IR, kUniform, Lum32f, C3)
LUMI_NOISE(lumiAddRandUniform_Direct_32f_C4IR, kUniform, Lum32f, C4)
LUMI_NOISE(lumiAddRandUniform_Direct_32f_AC4IR, kUniform, Lum32f, AC4)
LUMI_NOISE(lumiAddRandGauss_Direct_8u_C1IR, kGauss, Lum8u, C1)
LUMI_NOISE(lumiAddRandGauss_Direct_8u_C3IR, kGauss, Lum8u, C3)
LUMI_NOISE(lumiAddRandGauss_Direct_8u_C4IR, kGauss, Lum8u, C4)
LUMI_NOISE(lumiAddRandGauss_Direct_8u_AC4IR, kGauss, Lum8u, AC4)
LUMI_NOISE(lumiAddRandGauss_Direct_16s_C1IR, kGauss, Lum16s, C1)
LUMI_NOISE(lumiAddRandGauss_Direct_16s_C3IR, kGauss, Lum16s, C3)
LUMI_NOISE(lumiAddRandGauss_Direct_16s_C4IR, kGauss, Lum16s, C4)
LUMI_NOISE(lumiAddRandGauss_Direct_16s_AC4IR, kGauss, Lum16s, AC4)
LUMI_NOISE(lumiAddRandGauss_Direct_32f_C1IR, kGauss, Lum32f, C1)
LUMI_NOISE(lumiAddRandGauss_Direct_32f_C3IR, kGauss, Lum32f, C3)
LUMI_NOISE(lumiAddRandGauss_Direct_32f_C4IR, kGauss, Lum32f, C4)
LUMI_NOISE(lumiAddRandGauss_Direct_32f_AC4IR, kGauss, Lum32f, AC4)
#endif  // HWY_ONCE
