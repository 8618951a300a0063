// Test images and noise. Patterns are compared per pixel with direct formulas; the noise
// functions with a plain re-implementation of the generator that walks the samples by index.
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>

#include <cfenv>
#include <cstdio>
#include <limits>

#include "lumitest.h"

using namespace lumitest;

namespace {

template <class T>
using PatternFn = LumStatus (*)(T*, int, LumiSize);
template <class T>
using RampFn = LumStatus (*)(T*, int, LumiSize, Lum32f, Lum32f, int);
template <class T>
using NoiseFn = LumStatus (*)(T*, int, LumiSize, T, T, unsigned*);

// The four layouts' functions of one name, in the order of kLayouts.
#define BY_LAYOUT(pre, post) {pre##C1##post, pre##C3##post, pre##C4##post, pre##AC4##post}
template <class T>
struct Fns;
#define PATTERN_FNS(code, T)                                                                \
  template <>                                                                               \
  struct Fns<T> {                                                                           \
    static constexpr PatternFn<T> jaehne[4] = BY_LAYOUT(lumiImageJaehne_##code##_, R);      \
    static constexpr RampFn<T> ramp[4] = BY_LAYOUT(lumiImageRamp_##code##_, R);             \
  }
PATTERN_FNS(8u, Lum8u);
PATTERN_FNS(8s, Lum8s);
PATTERN_FNS(16u, Lum16u);
PATTERN_FNS(16s, Lum16s);
PATTERN_FNS(32s, Lum32s);
PATTERN_FNS(32f, Lum32f);

template <class T>
struct NoiseFns;
#define NOISE_FNS(code, T)                                                                  \
  template <>                                                                               \
  struct NoiseFns<T> {                                                                      \
    static constexpr NoiseFn<T> uniform[4] = BY_LAYOUT(lumiAddRandUniform_Direct_##code##_, IR); \
    static constexpr NoiseFn<T> gauss[4] = BY_LAYOUT(lumiAddRandGauss_Direct_##code##_, IR); \
  }
NOISE_FNS(8u, Lum8u);
NOISE_FNS(16s, Lum16s);
NOISE_FNS(32f, Lum32f);

// ---- references --------------------------------------------------------------------------
template <class T>
T jaehneAt(int x, int y, LumiSize r) {
  double cx = 0.5 * (r.width - 1), cy = 0.5 * (r.height - 1);
  double r2 = (x - cx) * (x - cx) + (y - cy) * (y - cy);
  double s = std::sin(6.283185307179586 * r2 / (4.0 * r.height));
  if (std::is_same_v<T, Lum8u>) return static_cast<T>(std::trunc(127.99999 * (s + 1)));
  if (std::is_same_v<T, Lum8s>) return static_cast<T>(std::trunc(127.99999 * s));
  if (std::is_same_v<T, Lum16u>) return static_cast<T>(std::trunc(32767.99999 * (s + 1)));
  if (std::is_same_v<T, Lum16s>) return static_cast<T>(std::trunc(32767.99999 * s));
  if (std::is_same_v<T, Lum32s>) return static_cast<T>(std::trunc(2147483647.99999 * s));
  return static_cast<T>(static_cast<float>(0.49999 * (s + 1)));
}

// Halves go away from zero (the half is added in single precision), out-of-range values
// saturate, NaN gives the lowest value; 32s rounds the exact value the same way.
template <class T>
T rampOf(float v) {
  if constexpr (std::is_same_v<T, Lum32f>) {
    return v;
  } else {
    using Lim = std::numeric_limits<T>;
    if (std::isnan(v)) return Lim::min();
    double r = std::is_same_v<T, Lum32s> ? std::round(static_cast<double>(v))
                                         : std::trunc(v > 0 ? v + 0.5f : v - 0.5f);
    return static_cast<T>(std::min<double>(std::max<double>(r, Lim::min()), Lim::max()));
  }
}

struct RefRng {
  uint32_t a, b, c, borrow = 1, lcg = 1131199209u;
  explicit RefRng(uint32_t seed)
      : a(seed), b(seed * 69069u + 1013904243u), c(b * 69069u + 1013904243u) {}
  int32_t draw() {
    lcg = lcg * 69069u + 1013904243u;
    uint32_t t = b - c - borrow;
    if (t & 0x80000000u) {
      borrow = 1;
      t = t - 18;
    } else {
      borrow = 0;
    }
    c = b;
    b = a;
    a = t;
    return static_cast<int32_t>(a + lcg);
  }
};

// Everything below must follow the rounding mode set at run time: the compiler assumes the
// default mode, so libm's rint is called through a pointer (its inline expansion rounds
// negative values wrongly in the directed modes) and the parameters are read as volatiles.
double (*volatile rintInMode)(double) = &::rint;

template <class T>
T plus(T s, double n) {
  if constexpr (std::is_same_v<T, Lum32f>) {
    return s + static_cast<float>(n);
  } else {
    double v = s + rintInMode(n);
    return static_cast<T>(std::min<double>(std::max<double>(v, std::numeric_limits<T>::min()),
                                           std::numeric_limits<T>::max()));
  }
}

template <class T>
void refUniform(std::vector<T>& v, T lo, T hi, unsigned& seed) {
  using W = std::conditional_t<std::is_same_v<T, Lum32f>, float, int>;
  volatile W l = lo, h = hi;
  RefRng g(seed);
  for (T& s : v) s = plus(s, g.draw() * ((h - l) * 2.3283064365387e-10) + (l + h) * 0.5);
  seed = g.a;
}

template <class T>
void refGauss(std::vector<T>& v, T mean, T sd, unsigned& seed) {
  volatile double m = mean, d = sd;
  RefRng g(seed);
  for (std::size_t i = 0; i < v.size(); i += 2) {
    double u1, u2, s;
    do {
      u1 = g.draw() * 4.656612873077e-10;
      u2 = g.draw() * 4.656612873077e-10;
      s = u1 * u1 + u2 * u2;
    } while (s >= 1 || s == 0);
    double f = std::sqrt(-2 * std::log(s) / s);
    v[i] = plus(v[i], m + d * f * u1);
    if (i + 1 < v.size()) v[i + 1] = plus(v[i + 1], m + d * f * u2);
  }
  seed = g.a;
}

// The samples a layout owns, in memory order, and the elements it must leave alone.
template <class T>
std::vector<T> owned(const GuardedImage<T>& im, const Layout& l, bool alpha = false) {
  std::vector<T> v;
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x)
      for (int c = alpha ? l.use : 0; c < (alpha ? l.ch : l.use); ++c) v.push_back(im.at(x, y, c));
  return v;
}

template <class T>
T randomParam(Rng& r) {
  if constexpr (std::is_same_v<T, Lum32f>)
    return static_cast<T>(std::uniform_real_distribution<double>(-300, 300)(r));
  else
    return randomValue<T>(r);
}

// ---- patterns ----------------------------------------------------------------------------
template <class T>
class Pattern : public ::testing::Test {};
using PatternTypes = ::testing::Types<Lum8u, Lum8s, Lum16u, Lum16s, Lum32s, Lum32f>;
TYPED_TEST_SUITE(Pattern, PatternTypes);

// A random image of layout l after `call` must hold want(its colour samples in memory order)
// and keep its alpha.
template <class T, class Call, class Want>
void checkCall(Rng& rng, const Layout& l, LumiSize r, Call call, Want want) {
  GuardedImage<T> im(r.width, r.height, l.ch, -1, -1, rng());
  im.fillRandom(rng);
  const auto expect = want(owned(im, l)), alpha = owned(im, l, true);
  ASSERT_EQ(call(im.ptr(), im.step(), r), lumStatusOk);
  EXPECT_TRUE(sameElements(owned(im, l), expect, r.width * l.use)) << l.name << " " << r.width << "x" << r.height;
  EXPECT_TRUE(sameElements(owned(im, l, true), alpha));
  EXPECT_TRUE(im.guardsIntact());
}
// The colour samples when every one of pixel (x, y) holds value(x, y).
template <class T, class Value>
auto byPixel(LumiSize r, int use, Value value) {
  return [=](const std::vector<T>&) {
    std::vector<T> v;
    for (int y = 0; y < r.height; ++y)
      for (int x = 0; x < r.width; ++x) v.insert(v.end(), use, value(x, y));
    return v;
  };
}

TYPED_TEST(Pattern, JaehneMatchesTheFormulaAndRampTheConversionRules) {
  using T = TypeParam;
  Rng rng = makeRng(1);
  for (int it = 0; it < 40; ++it) {
    LumiSize r = it % 8 == 7 ? LumiSize{randInt(rng, 513, 1100), randInt(rng, 1, 3)}
                             : randomSize(rng, 90, 12);
    checkCall<T>(rng, kLayouts[it % 4], r, Fns<T>::jaehne[it % 4],
                 byPixel<T>(r, kLayouts[it % 4].use, [&](int x, int y) { return jaehneAt<T>(x, y, r); }));
  }
  const double range =
      std::is_same_v<T, Lum32s> ? 3e9
      : std::is_same_v<T, Lum32f>
          ? 1e3
          : 1.5 * (double(std::numeric_limits<T>::max()) - std::numeric_limits<T>::min());
  for (int it = 0; it < 60; ++it) {
    const int axis = it / 4 % 3;
    LumiSize r = randomSize(rng, 90, 12);
    std::uniform_real_distribution<double> u(-range, range);
    float off = static_cast<float>(u(rng)),
          slope = static_cast<float>(u(rng) / (r.width * r.height));
    if (it % 7 == 0) slope = std::round(slope) + 0.5f;  // exact halves
    if (it % 13 == 0) off = std::numeric_limits<float>::quiet_NaN();
    SCOPED_TRACE(::testing::Message() << "axis " << axis);
    checkCall<T>(
        rng, kLayouts[it % 4], r,
        [&](T* p, int step, LumiSize roi) { return Fns<T>::ramp[it % 4](p, step, roi, off, slope, axis); },
        byPixel<T>(r, kLayouts[it % 4].use, [&](int x, int y) {
          return rampOf<T>(off + slope * static_cast<float>(axis == 0 ? x : axis == 1 ? y : x * y));
        }));
  }
}

TYPED_TEST(Pattern, ChecksPointerThenStepThenSizeAndAxisLast) {
  using T = TypeParam;
  Rng rng = makeRng(3);
  for (int k = 0; k < 4; ++k) {
    GuardedImage<T> im(5, 3, kLayouts[k].ch);
    im.fillRandom(rng);
    auto before = im.pixels();
    auto jaehne = Fns<T>::jaehne[k];
    auto ramp = Fns<T>::ramp[k];
    EXPECT_EQ(jaehne(nullptr, 0, {0, 0}), lumStatusNullPtrErr);
    EXPECT_EQ(jaehne(im.ptr(), 0, {0, 3}), lumStatusStepErr);
    EXPECT_EQ(jaehne(im.ptr(), im.step(), {5, 0}), lumStatusSizeErr);
    EXPECT_EQ(ramp(nullptr, 0, {0, 0}, 1, 1, 7), lumStatusNullPtrErr);
    EXPECT_EQ(ramp(im.ptr(), -4, {-1, 3}, 1, 1, 0), lumStatusStepErr);
    EXPECT_EQ(ramp(im.ptr(), im.step(), {0, 3}, 1, 1, 9), lumStatusSizeErr);
    for (int axis : {3, -1, 1 << 30})
      EXPECT_EQ(ramp(im.ptr(), im.step(), im.roi(), 1, 1, axis), lumStatusOk);
    EXPECT_TRUE(sameElements(im.pixels(), before));
    EXPECT_TRUE(im.guardsIntact());
  }
}

TEST(Pattern, KnownValues) {
  Lum8u one = 0;
  ASSERT_EQ(lumiImageJaehne_8u_C1R(&one, 1, {1, 1}), lumStatusOk);
  EXPECT_EQ(one, 127);
  GuardedImage<Lum8u> row(300, 2, 1);
  ASSERT_EQ(lumiImageRamp_8u_C1R(row.ptr(), row.step(), row.roi(), 0, 1, 0), lumStatusOk);
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 300; ++x) ASSERT_EQ(row.at(x, y), x < 255 ? x : 255) << x;
  // Float ramps advance rows by the step rounded down to a multiple of 4 bytes.
  std::vector<Lum32f> buf(40, -7.0f);
  ASSERT_EQ(lumiImageRamp_32f_C1R(buf.data(), 5 * 4 + 3, {5, 3}, 1, 1, 1), lumStatusOk);
  for (int i = 0; i < 40; ++i) EXPECT_EQ(buf[i], i < 15 ? 1.0f + i / 5 : -7.0f) << i;
}

#if !defined(__SANITIZE_ADDRESS__)
// Runs in a child process: caps the address space just above its current size, so the
// horizontal ramp's gigabyte row buffer cannot be had.
[[noreturn]] void rampUnderMemoryCap() {
  long kb = 0;
  if (FILE* f = std::fopen("/proc/self/status", "r")) {
    char line[256];
    while (std::fgets(line, sizeof line, f)) std::sscanf(line, "VmSize: %ld", &kb);
    std::fclose(f);
  }
  rlim_t cap = static_cast<rlim_t>(kb + (64 << 10)) << 10;
  rlimit lim{cap, cap};
  setrlimit(RLIMIT_AS, &lim);
  Lum8u tiny[16] = {};
  LumStatus st = lumiImageRamp_8u_C1R(tiny, 1 << 30, {1 << 30, 1}, 0, 1, 0);
  _exit(st == lumStatusMemAllocErr ? 0 : 1);
}

TEST(PatternDeathTest, HorizontalRampReportsAFailedRowBuffer) {
  // User-mode emulation (the i386 tests under qemu-i386) does not enforce address-space caps.
  if (std::getenv("LUMI_UNDER_EMULATION")) GTEST_SKIP() << "address-space caps need a native run";
  GTEST_FLAG_SET(death_test_style, "fast");  // forks without re-executing: works under qemu-i386 too
  EXPECT_EXIT(rampUnderMemoryCap(), ::testing::ExitedWithCode(0), "");
}
#endif

// ---- noise -------------------------------------------------------------------------------
template <class T>
class Noise : public ::testing::Test {};
using NoiseTypes = ::testing::Types<Lum8u, Lum16s, Lum32f>;
TYPED_TEST_SUITE(Noise, NoiseTypes);

// One call against the reference, for either generator; the seed word must come back as the
// reference leaves it.
template <class T>
void checkNoise(Rng& rng, int k, bool gauss, LumiSize r, T p1, T p2, unsigned& seed) {
  unsigned wantSeed = seed;
  auto fn = gauss ? NoiseFns<T>::gauss[k] : NoiseFns<T>::uniform[k];
  checkCall<T>(
      rng, kLayouts[k], r, [&](T* p, int step, LumiSize roi) { return fn(p, step, roi, p1, p2, &seed); },
      [&](std::vector<T> v) {
        gauss ? refGauss(v, p1, p2, wantSeed) : refUniform(v, p1, p2, wantSeed);
        return v;
      });
  EXPECT_EQ(seed, wantSeed) << (gauss ? "gauss" : "uniform");
}

// Integer samples saturate and round in the caller's rounding mode; a zero range adds nothing
// to integers though the stream still advances; consecutive calls carry the stream through
// the seed word.
TYPED_TEST(Noise, MatchesTheGeneratorInEveryRoundingMode) {
  using T = TypeParam;
  Rng rng = makeRng(4);
  const int modes[4] = {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};
  const T lo = std::is_same_v<T, Lum32f> ? T(-1e4) : std::numeric_limits<T>::min();
  const T hi = std::is_same_v<T, Lum32f> ? T(1e4) : std::numeric_limits<T>::max();
  for (int it = 0; it < 96; ++it) {
    std::fesetround(modes[it / 24]);
    SCOPED_TRACE(::testing::Message() << "mode " << it / 24);
    unsigned seed = rng();
    LumiSize r = it % 10 == 0   ? LumiSize{1, randInt(rng, 1, 5)}
                 : it % 12 == 2 ? LumiSize{257, 3}
                                : randomSize(rng, 40, 7);
    for (int call = 0; call < 2; ++call) {
      T p1 = randomParam<T>(rng), p2 = randomParam<T>(rng);
      if (it % 12 == 2) p1 = lo, p2 = hi;
      if (it % 12 == 3) p1 = T(0), p2 = hi;
      if (it % 12 == 4) p1 = T(3), p2 = T(4);  // half-integer noise
      if (it % 12 == 6) p1 = p2 = T(0);
      checkNoise<T>(rng, it % 4, it % 2, r, p1, p2, seed);
    }
  }
  std::fesetround(FE_TONEAREST);
}

TYPED_TEST(Noise, ValidatesRoiBeforeStepAndWritesNothing) {
  using T = TypeParam;
  Rng rng = makeRng(6);
  for (int k = 0; k < 4; ++k)
    for (auto fn : {NoiseFns<T>::uniform[k], NoiseFns<T>::gauss[k]}) {
      GuardedImage<T> im(4, 3, kLayouts[k].ch);
      im.fillRandom(rng);
      auto before = im.pixels();
      unsigned seed = 5;
      const bool wide = k == 1 || k == 2;  // C3, C4 check the width before anything else
      EXPECT_EQ(fn(nullptr, 0, {0, 0}, 1, 2, &seed), wide ? lumStatusSizeErr : lumStatusNullPtrErr);
      EXPECT_EQ(fn(nullptr, 0, {4, 0}, 1, 2, &seed), lumStatusNullPtrErr);
      EXPECT_EQ(fn(im.ptr(), 0, {4, 0}, 1, 2, nullptr), lumStatusNullPtrErr);
      EXPECT_EQ(fn(im.ptr(), 0, {4, 0}, 1, 2, &seed), lumStatusSizeErr);
      EXPECT_EQ(fn(im.ptr(), 0, {0, 3}, 1, 2, &seed), lumStatusSizeErr);
      EXPECT_EQ(fn(im.ptr(), -8, im.roi(), 1, 2, &seed), lumStatusStepErr);
      EXPECT_EQ(seed, 5u);
      EXPECT_TRUE(sameElements(im.pixels(), before));
      EXPECT_TRUE(im.guardsIntact());
    }
}

TEST(Noise, OnlyTheFirstStateWordIsCarried) {
  // Two one-pixel calls are not one two-pixel call: only the first state word is carried.
  Lum32f two[2] = {0, 0}, a = 0, b = 0;
  unsigned s2 = 77, s1 = 77;
  ASSERT_EQ(lumiAddRandUniform_Direct_32f_C1IR(two, 8, {2, 1}, 0, 1000, &s2), lumStatusOk);
  ASSERT_EQ(lumiAddRandUniform_Direct_32f_C1IR(&a, 4, {1, 1}, 0, 1000, &s1), lumStatusOk);
  ASSERT_EQ(lumiAddRandUniform_Direct_32f_C1IR(&b, 4, {1, 1}, 0, 1000, &s1), lumStatusOk);
  EXPECT_EQ(a, two[0]);
  EXPECT_NE(b, two[1]);
}

}  // namespace
