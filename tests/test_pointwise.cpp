// Pointwise maths: Abs, Sqr, Sqrt, Ln, Exp and the multiply-and-rescale families, against
// scalar references written from the rules.
#include <cfloat>
#include <cmath>
#include <functional>

#include "lumitest.h"

namespace {

using lumitest::GuardedImage;
using lumitest::makeRng;
using lumitest::randInt;
using lumitest::randomSize;
using lumitest::Rng;
using lumitest::sameElements;

using lumitest::Layout;
using lumitest::kC1;
using lumitest::kC3;
using lumitest::kC4;
using lumitest::kAC4;

// One-source members, out of place and in place, behind one signature.
template <class T>
struct Unary {
  const char* name;
  Layout l;
  std::function<LumStatus(const T*, int, T*, int, LumiSize, int)> f;  // last: scale factor
  std::function<LumStatus(T*, int, LumiSize, int)> fi;
};
#define UN(NAME, TY, T, L)                                                                      \
  Unary<T>{#NAME "_" #TY "_" #L, k##L,                                                          \
           [](const T* s, int ss, T* d, int ds, LumiSize r, int) { return lumi##NAME##_##TY##_##L##R(s, ss, d, ds, r); }, \
           [](T* d, int ds, LumiSize r, int) { return lumi##NAME##_##TY##_##L##IR(d, ds, r); }}
#define UNS(NAME, TY, T, L)                                                                     \
  Unary<T>{#NAME "_" #TY "_" #L, k##L, lumi##NAME##_##TY##_##L##RSfs, lumi##NAME##_##TY##_##L##IRSfs}
#define UN4(NAME, TY, T) {UN(NAME, TY, T, C1), UN(NAME, TY, T, C3), UN(NAME, TY, T, C4), UN(NAME, TY, T, AC4)}

// True when got is within `ulps` units in the last place of want; NaN, infinities and zeros
// must match exactly.
bool closeTo(float got, float want, int ulps) {
  if (std::isnan(want)) return std::isnan(got);
  if (std::isinf(want) || want == 0.0f) return got == want;
  int32_t ia, ib;
  std::memcpy(&ia, &got, 4);
  std::memcpy(&ib, &want, 4);
  if (ia < 0) ia = INT32_MIN - ia;
  if (ib < 0) ib = INT32_MIN - ib;
  return std::llabs(static_cast<int64_t>(ia) - ib) <= ulps;
}

// A float that is often zero, tiny, infinite or NaN.
float edgyFloat(Rng& r) {
  const float e[] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, FLT_MIN / 4, -3.0f, 1e-30f};
  return randInt(r, 0, 3) == 0 ? e[randInt(r, 0, 7)] : lumitest::randomValue<float>(r);
}

// Runs every member on random images (sources from gen, when given) and compares with
// ref(x, sf) -> value, which sets *warn for samples outside the domain; bit for bit, or within
// `ulps` when that is not negative.
template <class T, class Ref, class Gen = std::nullptr_t>
void checkUnary(const std::vector<Unary<T>>& cases, Ref ref, uint32_t salt, Gen gen = nullptr, int ulps = -1) {
  Rng rng = makeRng(salt);
  for (const auto& c : cases) {
    for (int rep = 0; rep < 16; ++rep) {
      const LumiSize sz = randomSize(rng);
      const bool inPlace = rep & 1;
      const int sf = randInt(rng, -40, 40), pad = rep % 3 == 0 ? 0 : -1;  // unpadded rows too
      GuardedImage<T> s(sz.width, sz.height, c.l.ch, pad, -1, rep);
      GuardedImage<T> d(sz.width, sz.height, c.l.ch, pad, -1, rep + 9);
      s.fillRandom(rng);
      d.fillRandom(rng);
      if constexpr (!std::is_same_v<Gen, std::nullptr_t>) s.fill([&](int, int, int) { return gen(rng); });
      GuardedImage<T>& out = inPlace ? s : d;
      std::vector<T> want = out.pixels();
      bool warn = false;
      for (int y = 0, i = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.ch; ++k, ++i)
            if (k < c.l.use) want[i] = ref(s.at(x, y, k), sf, &warn);
      LumStatus st = inPlace ? c.fi(s.ptr(), s.step(), sz, sf)
                             : c.f(s.ptr(), s.step(), d.ptr(), d.step(), sz, sf);
      EXPECT_EQ(st, warn ? lumStatusDomainWarn : lumStatusOk) << c.name;
      const std::vector<T> got = out.pixels();
      if constexpr (std::is_floating_point_v<T>) {
        for (std::size_t i = 0; ulps >= 0 && i < got.size(); ++i)
          ASSERT_TRUE(closeTo(got[i], want[i], ulps)) << c.name << " element " << i << ": got " << got[i] << " want " << want[i];
      }
      if (ulps < 0) { EXPECT_TRUE(sameElements(got, want, sz.width * c.l.ch)) << c.name << " sf " << sf; }
      EXPECT_TRUE(s.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
}

// ---- Abs, Sqr, Sqrt of 32f and Abs of 16s ----------------------------------------------------
TEST(Pointwise, AbsoluteValues) {
  checkUnary<Lum16s>(UN4(Abs, 16s, Lum16s),
                     [](Lum16s x, int, bool*) { return static_cast<Lum16s>(x == -32768 ? 32767 : std::abs(x)); }, 1);
  checkUnary<float>(UN4(Abs, 32f, Lum32f), [](float x, int, bool*) { return std::fabs(x); }, 2, edgyFloat);
  Lum16s v[3] = {-32768, -1, 5};
  ASSERT_EQ(lumiAbs_16s_C1IR(v, 6, LumiSize{3, 1}), lumStatusOk);
  EXPECT_TRUE(v[0] == 32767 && v[1] == 1 && v[2] == 5);
}

TEST(Pointwise, SquareAndRootOfFloats) {
  checkUnary<float>(UN4(Sqr, 32f, Lum32f), [](float x, int, bool*) { return x * x; }, 3, edgyFloat);
  // the C4 member exists in place only: its out-of-place cases run through a copy
  auto sqrtC4 = [](float* d, int ds, LumiSize r, int) { return lumiSqrt_32f_C4IR(d, ds, r); };
  auto copySqrtC4 = [](const float* s, int ss, float* d, int ds, LumiSize r, int) {
    for (int y = 0; y < r.height; ++y)
      std::memcpy(reinterpret_cast<char*>(d) + static_cast<std::ptrdiff_t>(y) * ds,
                  reinterpret_cast<const char*>(s) + static_cast<std::ptrdiff_t>(y) * ss, r.width * 16);
    return lumiSqrt_32f_C4IR(d, ds, r);
  };
  checkUnary<float>({UN(Sqrt, 32f, Lum32f, C1), UN(Sqrt, 32f, Lum32f, C3), UN(Sqrt, 32f, Lum32f, AC4),
                     Unary<float>{"Sqrt_32f_C4IR", kC4, copySqrtC4, sqrtC4}},
                    [](float x, int, bool* warn) { return *warn |= x < 0, std::sqrt(x); }, 4, edgyFloat);
}

TEST(Pointwise, NegativeAlphaIsNotADomainError) {
  GuardedImage<float> img(5, 2, 4);
  img.fill([](int x, int, int c) { return c == 3 ? -1.0f : static_cast<float>(x * x); });
  EXPECT_EQ(lumiSqrt_32f_AC4IR(img.ptr(), img.step(), img.roi()), lumStatusOk);
  EXPECT_EQ(img.at(4, 1, 0), 4.0f);
  EXPECT_EQ(img.at(4, 1, 3), -1.0f);
  img.at(2, 1, 1) = -4.0f;  // one negative sample in the last row: warning, others written
  EXPECT_EQ(lumiSqrt_32f_AC4IR(img.ptr(), img.step(), img.roi()), lumStatusDomainWarn);
  EXPECT_TRUE(std::isnan(img.at(2, 1, 1)));
  EXPECT_EQ(img.at(4, 1, 0), 2.0f);
}

// Rows advance by the step rounded down: to a multiple of 4 bytes for the 32f members, to an
// even count for Abs 16s.
TEST(Pointwise, StepsAreRoundedDown) {
  for (int extra : {1, 2, 3}) {
    const int w = 5, h = 4, step = w * 4 + 8 + extra, eff = step & ~3;
    std::vector<float> src(64 * h, 4.0f), dst(64 * h, -7.0f);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) src[(y * eff) / 4 + x] = static_cast<float>((y + 1) * (y + 1));
    ASSERT_EQ(lumiSqrt_32f_C1R(src.data(), step, dst.data(), step, LumiSize{w, h}), lumStatusOk);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) EXPECT_EQ(dst[(y * eff) / 4 + x], y + 1.0f) << "step " << step;
    EXPECT_EQ(dst[(h * eff) / 4 - 1], -7.0f);  // the padding between rows is untouched
    ASSERT_EQ(lumiSqr_32f_C1IR(dst.data(), step, LumiSize{w, h}), lumStatusOk);
    EXPECT_EQ(dst[(3 * eff) / 4 + 4], 16.0f);
    ASSERT_EQ(lumiAbs_32f_C1R(src.data(), step, dst.data(), step, LumiSize{w, h}), lumStatusOk);
    EXPECT_EQ(dst[(3 * eff) / 4], 16.0f);
  }
  Lum16s s16[32], d16[32];
  for (int i = 0; i < 32; ++i) s16[i] = static_cast<Lum16s>(-i), d16[i] = 99;
  ASSERT_EQ(lumiAbs_16s_C1R(s16, 7, d16, 9, LumiSize{2, 3}), lumStatusOk);  // 6 and 8 bytes
  EXPECT_TRUE(d16[4] == 3 && d16[5] == 4 && d16[8] == 6 && d16[9] == 7 && d16[2] == 99 && d16[3] == 99);
}

TEST(Pointwise, ValidationOrder) {
  float f[16] = {};
  Lum8u b[16] = {};
  EXPECT_EQ(lumiAbs_32f_C1R(f, 4, nullptr, 4, LumiSize{0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiAbs_32f_C1R(f, 0, f, 4, LumiSize{0, 1}), lumStatusSizeErr);
  EXPECT_EQ(lumiAbs_32f_C1R(f, 0, f, 4, LumiSize{1, 1}), lumStatusStepErr);
  EXPECT_EQ(lumiSqrt_8u_C1RSfs(b, 1, b, 0, LumiSize{1, 1}, 0), lumStatusStepErr);
  EXPECT_EQ(lumiLn_32f_C1IR(f, -4, LumiSize{1, 1}), lumStatusStepErr);
  EXPECT_EQ(lumiExp_16s_C3RSfs(nullptr, 6, nullptr, 6, LumiSize{1, 1}, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSqr_16u_C1IRSfs(reinterpret_cast<Lum16u*>(f), 2, LumiSize{1, -1}, 0), lumStatusSizeErr);
  // the multiply-and-rescale members test steps before sizes
  EXPECT_EQ(lumiMulScale_8u_C1R(b, 0, b, 1, b, 1, LumiSize{0, 0}), lumStatusStepErr);
  EXPECT_EQ(lumiMulCScale_16u_C1IR(3, nullptr, 0, LumiSize{0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMulCScale_8u_C3R(b, 3, nullptr, b, 3, LumiSize{1, 1}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMulScale_8u_C1IR(b, 1, b, 1, LumiSize{1, 0}), lumStatusSizeErr);
}

// ---- scaled integer functions ---------------------------------------------------------------
// ties to even, then saturation; the root and logarithm of a negative sample give 0 and warn,
// the logarithm of 0 saturates to the minimum
double refFunction(int fn, double v) {
  return fn == 0 ? v * v : fn == 1 ? std::sqrt(v) : fn == 2 ? std::log(v) : std::exp(v);
}

template <class T>
T refRound(double r, int sf) {
  r = std::ldexp(r, -sf);
  const double f = std::floor(r), diff = r - f;
  r = diff > 0.5 ? f + 1 : diff < 0.5 ? f : (std::fmod(f, 2.0) == 0 ? f : f + 1);
  if (!(r > std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  if (r > std::numeric_limits<T>::max()) return std::numeric_limits<T>::max();
  return static_cast<T>(r);
}

template <class T>
T refScaled(int fn, T x, int sf, bool* warn) {
  if ((fn == 1 || fn == 2) && x < 0) return *warn = true, T(0);
  return refRound<T>(refFunction(fn, x), sf);
}
auto scaledRef(int fn) {
  return [fn](auto x, int sf, bool* warn) { return refScaled(fn, x, sf, warn); };
}

// Every sample value against every scale factor from -40 to 40 (C1 members), then scale factors
// far outside the useful range: 0 stays 0, and any value the double-precision function gives
// is scaled exactly before the rounding.
template <class T>
void everySample(int fn, const char* name, LumStatus (*f)(const T*, int, T*, int, LumiSize, int)) {
  constexpr int kCount = 1 << (8 * sizeof(T));
  std::vector<T> src(kCount), dst(kCount);
  for (int i = 0; i < kCount; ++i) src[i] = static_cast<T>(i + std::numeric_limits<T>::min());
  const bool domain = (fn == 1 || fn == 2) && std::numeric_limits<T>::min() < 0;
  std::vector<int> sfs = {-100000, -1100, -1060, -1024, -1001, 1001, 1024, 1100, 100000};
  for (int sf = -40; sf <= 40; ++sf) sfs.push_back(sf);
  for (int sf : sfs) {
    const LumStatus st = f(src.data(), 256 * sizeof(T), dst.data(), 256 * sizeof(T), LumiSize{256, kCount / 256}, sf);
    if (sf >= -40 && sf <= 40) {
      ASSERT_EQ(st, domain ? lumStatusDomainWarn : lumStatusOk) << name;
    }
    for (int i = 0; i < kCount; ++i) {
      bool warn = false;
      const T want = refScaled<T>(fn, src[i], sf, &warn);
      if (dst[i] != want)
        FAIL() << name << " of " << +src[i] << " with scale factor " << sf << ": got " << +dst[i]
               << ", want " << +want;
    }
  }
}

TEST(Scaled, EverySampleAndScaleFactor) {
  everySample<Lum8u>(0, "Sqr_8u", lumiSqr_8u_C1RSfs);
  everySample<Lum16u>(0, "Sqr_16u", lumiSqr_16u_C1RSfs);
  everySample<Lum16s>(0, "Sqr_16s", lumiSqr_16s_C1RSfs);
  everySample<Lum8u>(1, "Sqrt_8u", lumiSqrt_8u_C1RSfs);
  everySample<Lum16u>(1, "Sqrt_16u", lumiSqrt_16u_C1RSfs);
  everySample<Lum16s>(1, "Sqrt_16s", lumiSqrt_16s_C1RSfs);
  everySample<Lum8u>(2, "Ln_8u", lumiLn_8u_C1RSfs);
  everySample<Lum16s>(2, "Ln_16s", lumiLn_16s_C1RSfs);
  everySample<Lum8u>(3, "Exp_8u", lumiExp_8u_C1RSfs);
  everySample<Lum16s>(3, "Exp_16s", lumiExp_16s_C1RSfs);
}

TEST(Scaled, LayoutsAndInPlace) {
  const auto sqr = scaledRef(0), root = scaledRef(1), ln = scaledRef(2), ex = scaledRef(3);
  checkUnary<Lum8u>({UNS(Sqr, 8u, Lum8u, C3), UNS(Sqr, 8u, Lum8u, C4), UNS(Sqr, 8u, Lum8u, AC4)}, sqr, 10);
  checkUnary<Lum16u>({UNS(Sqr, 16u, Lum16u, C3), UNS(Sqr, 16u, Lum16u, C4), UNS(Sqr, 16u, Lum16u, AC4)}, sqr, 11);
  checkUnary<Lum16s>({UNS(Sqr, 16s, Lum16s, C1), UNS(Sqr, 16s, Lum16s, C3), UNS(Sqr, 16s, Lum16s, C4),
                      UNS(Sqr, 16s, Lum16s, AC4)}, sqr, 12);
  checkUnary<Lum8u>({UNS(Sqrt, 8u, Lum8u, C1), UNS(Sqrt, 8u, Lum8u, C3), UNS(Sqrt, 8u, Lum8u, AC4)}, root, 13);
  checkUnary<Lum16u>({UNS(Sqrt, 16u, Lum16u, C3), UNS(Sqrt, 16u, Lum16u, AC4)}, root, 14);
  checkUnary<Lum16s>({UNS(Sqrt, 16s, Lum16s, C1), UNS(Sqrt, 16s, Lum16s, C3), UNS(Sqrt, 16s, Lum16s, AC4)}, root, 15);
  checkUnary<Lum8u>({UNS(Ln, 8u, Lum8u, C1), UNS(Ln, 8u, Lum8u, C3)}, ln, 16);
  checkUnary<Lum8u>({UNS(Exp, 8u, Lum8u, C1), UNS(Exp, 8u, Lum8u, C3)}, ex, 16);
  checkUnary<Lum16s>({UNS(Ln, 16s, Lum16s, C1), UNS(Ln, 16s, Lum16s, C3)}, ln, 17);
  checkUnary<Lum16s>({UNS(Exp, 16s, Lum16s, C1), UNS(Exp, 16s, Lum16s, C3)}, ex, 18);
}

TEST(Scaled, Examples) {
  Lum8u v[4] = {9, 3, 255, 0};
  ASSERT_EQ(lumiSqrt_8u_C1IRSfs(v, 4, LumiSize{4, 1}, 1), lumStatusOk);
  EXPECT_TRUE(v[0] == 2 && v[1] == 1 && v[2] == 8 && v[3] == 0);  // 1.5 -> 2, 0.87 -> 1, 7.98 -> 8
  Lum8u e[3] = {0, 1, 5};
  ASSERT_EQ(lumiExp_8u_C1IRSfs(e, 3, LumiSize{3, 1}, 0), lumStatusOk);
  EXPECT_TRUE(e[0] == 1 && e[1] == 3 && e[2] == 148);
  Lum16s l[3] = {0, -5, 1};
  ASSERT_EQ(lumiLn_16s_C1IRSfs(l, 6, LumiSize{3, 1}, 0), lumStatusDomainWarn);
  EXPECT_TRUE(l[0] == -32768 && l[1] == 0 && l[2] == 0);
}

// 32f Ln and Exp: the scalar kernels give the double-precision function rounded once; the
// vector kernels work in single precision and stay within 2 ulp (Ln) and 1 ulp (Exp) of it.
TEST(Scaled, FloatLnAndExp) {
  const Unary<float> lnExp[2][2] = {{UN(Ln, 32f, float, C1), UN(Ln, 32f, float, C3)},
                                    {UN(Exp, 32f, float, C1), UN(Exp, 32f, float, C3)}};
  for (int fn = 0; fn < 2; ++fn) {
    const int ulps = lumitest::scalarPath() ? 0 : fn == 0 ? 2 : 1;
    auto ref = [fn](float x, int, bool* warn) {
      *warn |= fn == 0 && x < 0;
      return static_cast<float>(fn ? std::exp(static_cast<double>(x)) : std::log(static_cast<double>(x)));
    };
    auto gen = [fn](Rng& rng) {
      const float e[] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, FLT_MIN / 4, -3.0f, 88.8f, -104.0f, 1.0f};
      if (randInt(rng, 0, 4) == 0) return e[randInt(rng, 0, 9)];
      return fn ? std::uniform_real_distribution<float>(-110.0f, 90.0f)(rng)
                : std::ldexp(std::uniform_real_distribution<float>(0.5f, 1.0f)(rng), randInt(rng, -140, 127));
    };
    checkUnary<float>({lnExp[fn][0], lnExp[fn][1]}, ref, 19 + fn, gen, ulps);
    // a dense sweep of the function's useful range
    std::vector<float> in(1 << 20), out(in.size());
    for (std::size_t i = 0; i < in.size(); ++i)
      in[i] = fn ? -104.0f + 194.0f * static_cast<float>(i) / static_cast<float>(in.size())
                 : std::ldexp(1.0f + static_cast<float>(i & 4095) / 4096.0f, static_cast<int>(i >> 12) - 149);
    const LumiSize sz{1024, static_cast<int>(in.size() / 1024)};
    ASSERT_EQ(lnExp[fn][0].f(in.data(), 4096, out.data(), 4096, sz, 0), lumStatusOk);
    for (std::size_t i = 0; i < in.size(); ++i) {
      bool warn = false;
      ASSERT_TRUE(closeTo(out[i], ref(in[i], 0, &warn), ulps)) << fn << "(" << in[i] << "): got " << out[i];
    }
  }
}

// ---- MulScale, MulCScale --------------------------------------------------------------------
template <class T>
T refMulScale(T a, T b) {  // floor(a * b / max)
  const uint64_t m = std::numeric_limits<T>::max();
  return static_cast<T>(static_cast<uint64_t>(a) * b / m);
}

TEST(MulScale, EveryPairOf8uAndEdgesOf16u) {
  std::vector<Lum8u> a(65536), b(65536), d(65536);
  for (int i = 0; i < 65536; ++i) a[i] = static_cast<Lum8u>(i & 255), b[i] = static_cast<Lum8u>(i >> 8);
  ASSERT_EQ(lumiMulScale_8u_C1R(a.data(), 256, b.data(), 256, d.data(), 256, LumiSize{256, 256}), lumStatusOk);
  for (int i = 0; i < 65536; ++i) ASSERT_EQ(d[i], refMulScale(a[i], b[i])) << +a[i] << " x " << +b[i];
  Lum16u x[6] = {65535, 32768, 1, 65535, 40000, 65534}, y[6] = {65535, 32768, 65535, 12345, 0, 65534}, z[6];
  ASSERT_EQ(lumiMulScale_16u_C1R(x, 12, y, 12, z, 12, LumiSize{6, 1}), lumStatusOk);
  EXPECT_TRUE(z[0] == 65535 && z[1] == 16384 && z[2] == 1 && z[3] == 12345 && z[4] == 0 && z[5] == 65533);
  Lum8u p[3] = {128, 1, 200};
  ASSERT_EQ(lumiMulCScale_8u_C1IR(128, p, 3, LumiSize{3, 1}), lumStatusOk);
  EXPECT_TRUE(p[0] == 64 && p[1] == 0 && p[2] == 100);
}

template <class T>
struct MulScaleCase {
  Layout l;
  std::function<LumStatus(const T*, int, const T*, int, T*, int, LumiSize)> f;
  std::function<LumStatus(const T*, int, T*, int, LumiSize)> fi;
  std::function<LumStatus(const T*, int, const T*, T*, int, LumiSize)> fc;
  std::function<LumStatus(const T*, T*, int, LumiSize)> fci;
};
#define MS(TY, T, L, V)                                                                                 \
  MulScaleCase<T>{k##L, lumiMulScale_##TY##_##L##R, lumiMulScale_##TY##_##L##IR,                        \
                  [](const T* s, int ss, const T* v, T* d, int ds, LumiSize r) {                        \
                    return lumiMulCScale_##TY##_##L##R(s, ss, V, d, ds, r);                             \
                  },                                                                                    \
                  [](const T* v, T* d, int ds, LumiSize r) { return lumiMulCScale_##TY##_##L##IR(V, d, ds, r); }}
#define MS4(TY, T) {MS(TY, T, C1, *v), MS(TY, T, C3, v), MS(TY, T, C4, v), MS(TY, T, AC4, v)}

template <class T>
void checkMulScale(const std::vector<MulScaleCase<T>>& cases, uint32_t salt) {
  Rng rng = makeRng(salt);
  for (const auto& c : cases)
    for (int rep = 0; rep < 16; ++rep) {
      const LumiSize sz = randomSize(rng);
      const bool inPlace = rep & 1, constant = rep & 2;
      GuardedImage<T> a(sz.width, sz.height, c.l.ch, -1, -1, rep), b(sz.width, sz.height, c.l.ch, -1, -1, rep + 1),
          d(sz.width, sz.height, c.l.ch, -1, -1, rep + 2);
      a.fillRandom(rng), b.fillRandom(rng), d.fillRandom(rng);
      T v[4];
      for (T& x : v) x = lumitest::randomValue<T>(rng);
      GuardedImage<T>& out = inPlace ? b : d;
      GuardedImage<T> want = out;
      for (int y = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.use; ++k)
            want.at(x, y, k) = refMulScale<T>(b.at(x, y, k), constant ? v[k] : a.at(x, y, k));
      LumStatus st = constant ? (inPlace ? c.fci(v, b.ptr(), b.step(), sz) : c.fc(b.ptr(), b.step(), v, d.ptr(), d.step(), sz))
                              : (inPlace ? c.fi(a.ptr(), a.step(), b.ptr(), b.step(), sz)
                                         : c.f(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), sz));
      EXPECT_EQ(st, lumStatusOk);
      EXPECT_TRUE(sameElements(out.pixels(), want.pixels(), sz.width * c.l.ch)) << "channels " << c.l.ch << " use " << c.l.use;
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact());
    }
}

TEST(MulScale, LayoutsConstantsAndInPlace) {
  checkMulScale<Lum8u>(MS4(8u, Lum8u), 20);
  checkMulScale<Lum16u>(MS4(16u, Lum16u), 21);
}

}  // namespace
