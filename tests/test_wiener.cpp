// Wiener filter against a direct reference of its formulas in double (window sums over the mask,
// V = Q - S^2/n raised to P, m + (src - m)(V - P)/V, m where V is 0), then ties to even and
// saturation for 8u and 16s. Random data with the border pixels supplied, odd widths, padded
// steps, guarded images and a guarded work buffer of exactly the reported size, every type and
// layout (AC4 alpha and its noise value untouched), one and two threads, given and estimated
// noise, and the checks in the family's order.
//
// Tolerances: 8u and 16s results are exact when the noise is given (the window sums are exact
// and the rest is the same double arithmetic); with an estimated noise the mean of V is summed
// in another order, so a value within 1e-6 of a tie may round the other way. 32f results lie
// within 1e-6 x (R + |value|) of the reference, R the channel's range; written-back noise
// values within 1e-6 relative.
#include <gtest/gtest.h>
#include <omp.h>
#include <xmmintrin.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include "lumi/filter_wiener.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

class ThreadCount {  // sets threads_omp_of_n_lum for one test and puts it back
 public:
  explicit ThreadCount(int n) : saved_(threads_omp_of_n_lum) { threads_omp_of_n_lum = n; }
  ~ThreadCount() { threads_omp_of_n_lum = saved_; }

 private:
  int saved_;
};

template <class T>
using WienerFn = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint, Lum32f*, Lum8u*);
#define WIENER_FNS(t) \
  {lumiFilterWiener_##t##_C1R, lumiFilterWiener_##t##_C3R, lumiFilterWiener_##t##_C4R, lumiFilterWiener_##t##_AC4R}
const WienerFn<Lum8u> kFns8u[4] = WIENER_FNS(8u);
const WienerFn<Lum16s> kFns16s[4] = WIENER_FNS(16s);
const WienerFn<Lum32f> kFns32f[4] = WIENER_FNS(32f);
template <class T> WienerFn<T> wienerFn(int li);
template <> WienerFn<Lum8u> wienerFn(int li) { return kFns8u[li]; }
template <> WienerFn<Lum16s> wienerFn(int li) { return kFns16s[li]; }
template <> WienerFn<Lum32f> wienerFn(int li) { return kFns32f[li]; }

// The work buffer with canary bytes on both sides and a first byte off any alignment.
class GuardedBuffer {
 public:
  GuardedBuffer(int bytes, int misalign) : bytes_(bytes), off_(64 + misalign), buf_(bytes + 128 + misalign) {
    for (size_t i = 0; i < buf_.size(); ++i) buf_[i] = canary(i);
  }
  Lum8u* ptr() { return buf_.data() + off_; }
  bool intact() const {
    for (size_t i = 0; i < buf_.size(); ++i)
      if ((i < off_ || i >= off_ + bytes_) && buf_[i] != canary(i)) return false;
    return true;
  }

 private:
  static Lum8u canary(size_t i) { return static_cast<Lum8u>(0x5A ^ (i * 31)); }
  size_t bytes_, off_;
  std::vector<Lum8u> buf_;
};

int bufferSize(LumiSize roi, LumiSize mask, int ch) {
  int size = -1;
  EXPECT_EQ(lumiFilterWienerGetBufferSize(roi, mask, ch, &size), lumStatusOk);
  return size;
}

struct Case {
  int w, h;
  LumiSize mask;
  LumiPoint anchor;
  float noise;  // channel 0 and 2; channel 1 takes 0.01 when this is 0, else 0 (estimated)
};

// Reference values before rounding (alpha elements left out as NaN) and the noise out.
template <class T>
std::vector<double> reference(const GuardedImage<T>& area, const Case& k, const Layout& L,
                              float noise[4]) {
  const int n = k.mask.width * k.mask.height;
  std::vector<double> s(static_cast<size_t>(k.w) * k.h * L.ch), q(s.size());
  std::vector<double> out(s.size(), std::nan(""));
  for (int c = 0; c < L.use; ++c) {
    double lo = area.at(0, 0, c), hi = lo, vsum = 0;
    for (int y = 0; y < area.height(); ++y)
      for (int x = 0; x < area.width(); ++x) {
        lo = std::min<double>(lo, area.at(x, y, c));
        hi = std::max<double>(hi, area.at(x, y, c));
      }
    for (int y = 0; y < k.h; ++y)
      for (int x = 0; x < k.w; ++x) {
        const size_t i = (static_cast<size_t>(y) * k.w + x) * L.ch + c;
        for (int j = 0; j < k.mask.height; ++j)
          for (int u = 0; u < k.mask.width; ++u) {
            const double v = area.at(x + u, y + j, c);
            s[i] += v;
            q[i] += v * v;
          }
        vsum += q[i] - s[i] * s[i] / n;
      }
    const double r2 = (hi - lo) * (hi - lo);
    double p;
    if (std::fabs(noise[c]) >= 1.1920929e-7f) {
      p = static_cast<double>(noise[c]) * r2 * k.mask.width * k.mask.height;
    } else {
      p = vsum / (static_cast<double>(k.w) * k.h);
      noise[c] = r2 > 0 ? static_cast<float>(p / n / r2) : 0.0f;
    }
    for (int y = 0; y < k.h; ++y)
      for (int x = 0; x < k.w; ++x) {
        const size_t i = (static_cast<size_t>(y) * k.w + x) * L.ch + c;
        const double m = s[i] / n, src = area.at(x + k.anchor.x, y + k.anchor.y, c);
        const double v = std::max(q[i] - s[i] * s[i] / n, p);
        out[i] = v > 0 ? m + (src - m) * ((v - p) / v) : m;
      }
  }
  return out;
}

template <class T>
T rounded(double v) {
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
  const double r = std::nearbyint(v);
  return static_cast<T>(std::min<double>(std::numeric_limits<T>::max(),
                                         std::max<double>(std::numeric_limits<T>::min(), r)));
}

template <class T>
void checkWiener(const Case& k, int li, int threads, uint32_t seed) {
  const Layout L = kLayouts[li];
  ThreadCount tc(threads);
  Rng rng = makeRng(seed);
  GuardedImage<T> area(k.w + k.mask.width - 1, k.h + k.mask.height - 1, L.ch, -1, -1, seed);
  GuardedImage<T> dst(k.w, k.h, L.ch, -1, -1, seed + 1);
  if constexpr (std::is_same_v<T, Lum32f>)
    area.fill([&](int, int, int) { return static_cast<T>(randInt(rng, -100000, 100000) / 100.0); });
  else
    area.fillRandom(rng);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  float noise[4] = {k.noise, k.noise == 0 ? 0.01f : 0.0f, k.noise, k.noise / 2};
  if (L.use == 3) noise[3] = 7.0f;  // not a valid value, and not read
  float want[4] = {noise[0], noise[1], noise[2], noise[3]};
  const std::vector<double> ref = reference(area, k, L, want);
  bool estimated = false;
  for (int c = 0; c < L.use; ++c) estimated |= std::fabs(noise[c]) < 1.1920929e-7f;

  GuardedBuffer buf(bufferSize(dst.roi(), k.mask, L.ch), static_cast<int>(seed % 7));
  ASSERT_EQ(wienerFn<T>(li)(&area.at(k.anchor.x, k.anchor.y), area.step(), dst.ptr(), dst.step(),
                            dst.roi(), k.mask, k.anchor, noise, buf.ptr()),
            lumStatusOk);
  EXPECT_TRUE(dst.guardsIntact());
  EXPECT_TRUE(buf.intact()) << "work buffer written past its reported size";
  for (int c = 0; c < 4; ++c) {
    if (c >= L.ch || c >= L.use || want[c] == noise[c]) {
      EXPECT_EQ(noise[c], want[c]) << "noise " << c;
      continue;
    }
    EXPECT_NEAR(noise[c], want[c], 1e-6 * want[c]) << "noise " << c;
  }
  const std::vector<T> got = dst.pixels();
  for (size_t i = 0; i < got.size(); ++i) {
    const int c = static_cast<int>(i % L.ch);
    if (c >= L.use) {
      ASSERT_EQ(got[i], before[i]) << "alpha at " << i;
      continue;
    }
    const T exp = rounded<T>(ref[i]);
    if constexpr (std::is_same_v<T, Lum32f>) {
      double lo = INFINITY, hi = -INFINITY;
      for (int y = 0; y < area.height(); ++y)
        for (int x = 0; x < area.width(); ++x)
          lo = std::min<double>(lo, area.at(x, y, c)), hi = std::max<double>(hi, area.at(x, y, c));
      ASSERT_NEAR(got[i], exp, 1e-6 * (hi - lo + std::fabs(exp))) << L.name << " element " << i;
    } else {
      const bool nearTie = std::fabs(std::fabs(ref[i] - std::floor(ref[i])) - 0.5) < 1e-6;
      if (estimated && nearTie) {
        ASSERT_LE(std::abs(got[i] - exp), 1) << L.name << " element " << i;
      } else {
        ASSERT_EQ(+got[i], +exp) << L.name << " element " << i << " value " << ref[i];
      }
    }
  }
}

const Case kCases[] = {
    {67, 71, {5, 4}, {2, 1}, 0.02f},  // above the fork threshold
    {67, 71, {3, 3}, {1, 1}, 0.0f},   // estimated, forked
    {13, 7, {2, 2}, {0, 1}, 0.3f},
    {1, 5, {7, 2}, {6, 0}, -0.0f},    // -0 asks for the estimate
    {9, 1, {2, 6}, {1, 5}, 0.999f},
    {33, 3, {4, 3}, {3, 2}, 1e-3f},
};

template <class T>
void checkAll(uint32_t salt) {
  for (int threads = 1; threads <= 2; ++threads)
    for (int li = 0; li < 4; ++li)
      for (size_t ci = 0; ci < std::size(kCases); ++ci) {
        SCOPED_TRACE(testing::Message() << kLayouts[li].name << " case " << ci << " threads " << threads);
        checkWiener<T>(kCases[ci], li, threads, salt + static_cast<uint32_t>(ci * 17 + li));
      }
}

TEST(Wiener, Matches8u) { checkAll<Lum8u>(100); }
TEST(Wiener, Matches16s) { checkAll<Lum16s>(200); }
TEST(Wiener, Matches32f) { checkAll<Lum32f>(300); }

// The caller's rounding mode does not change integer results: ties still go to even.
TEST(Wiener, CallerRoundingModeIgnored) {
  const unsigned saved = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(_MM_ROUND_DOWN);
  const Case k{31, 5, {2, 2}, {0, 0}, 0.05f};
  GuardedImage<Lum8u> area(k.w + 1, k.h + 1, 1, -1, -1, 5);
  // Columns alternate 0 and 1, rows equal: every window sums to 2, m = 0.5 (a tie), V = 1.
  area.fill([](int x, int, int) { return static_cast<Lum8u>(x & 1); });
  GuardedImage<Lum8u> dst(k.w, k.h, 1, -1, -1, 6);
  float noise[1] = {0.999f};  // P = 0.999 x 1 x 4 > V: every pixel is m = 0.5 -> 0
  GuardedBuffer buf(bufferSize(dst.roi(), k.mask, 1), 1);
  EXPECT_EQ(lumiFilterWiener_8u_C1R(area.ptr(), area.step(), dst.ptr(), dst.step(), dst.roi(), k.mask,
                                    k.anchor, noise, buf.ptr()),
            lumStatusOk);
  _MM_SET_ROUNDING_MODE(saved);
  for (Lum8u v : dst.pixels()) ASSERT_EQ(v, 0);
}

// A flat source: R = 0 and V = P = 0 everywhere, the result is the mean (the source value) and
// an estimated noise is 0.
TEST(Wiener, FlatSourceGivesMean) {
  GuardedImage<Lum16s> area(12, 10, 3, -1, -1, 9);
  area.fill([](int, int, int c) { return static_cast<Lum16s>(-300 + c); });
  GuardedImage<Lum16s> dst(10, 8, 3, -1, -1, 10);
  float noise[3] = {0.0f, 0.5f, 0.0f};
  GuardedBuffer buf(bufferSize(dst.roi(), {3, 3}, 3), 2);
  EXPECT_EQ(lumiFilterWiener_16s_C3R(&area.at(1, 1), area.step(), dst.ptr(), dst.step(), dst.roi(),
                                     {3, 3}, {1, 1}, noise, buf.ptr()),
            lumStatusOk);
  EXPECT_EQ(noise[0], 0.0f);
  EXPECT_EQ(noise[1], 0.5f);
  EXPECT_EQ(noise[2], 0.0f);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 10; ++x)
      for (int c = 0; c < 3; ++c) ASSERT_EQ(dst.at(x, y, c), -300 + c);
}

TEST(Wiener, BufferSizeFormulaAndChecks) {
  const long long t = omp_get_max_threads();
  struct { LumiSize roi, mask; int ch; long long lineLen; } sizes[] = {
      {{10, 4}, {3, 3}, 1, 10 + 3 + 6}, {{10, 4}, {3, 3}, 3, 30 + 6}, {{10, 4}, {9, 2}, 4, 40 + 6},
      {{1, 1}, {2, 2}, 1, 9},           {{7, 3}, {50, 2}, 3, 21 + 6},
  };
  for (const auto& s : sizes) {
    int got = -1;
    EXPECT_EQ(lumiFilterWienerGetBufferSize(s.roi, s.mask, s.ch, &got), lumStatusOk);
    EXPECT_EQ(got, (s.lineLen & ~3LL) * 5 * t * 4 + 15) << s.roi.width << " ch " << s.ch;
  }
  int size = 123;
  // Each row breaks its own check and every later one.
  EXPECT_EQ(lumiFilterWienerGetBufferSize({0, 1}, {1, 1}, 2, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({0, 1}, {1, 1}, 2, &size), lumStatusSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 0}, {1, 1}, 2, &size), lumStatusSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {1, 1}, 2, &size), lumStatusChannelCountErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {2, 2}, 0, &size), lumStatusChannelCountErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {1, 3}, 1, &size), lumStatusMaskSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {3, 1}, 4, &size), lumStatusMaskSizeErr);
  EXPECT_EQ(size, 123);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({INT_MAX / 2, 1}, {2, 2}, 4, &size), lumStatusMemAllocErr);
  EXPECT_EQ(size, 123);
}

// Every check in the family's order, on every export: each case breaks its own check and every
// later one, so a wrong order shows; nothing is written on failure.
template <class T>
void checkValidation() {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  struct Bad {
    const char* what;
    bool nullSrc, nullDst, nullNoise, nullBuf;
    LumiSize roi, mask;
    LumiPoint anchor;
    int srcStep;  // 0: valid
    float noise0, noise1, noise3;
    LumStatus want;
  };
  const Bad cases[] = {
      {"src", true, false, false, false, {0, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusNullPtrErr},
      {"dst", false, true, false, false, {0, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusNullPtrErr},
      {"noise", false, false, true, false, {0, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusNullPtrErr},
      {"buffer", false, false, false, true, {0, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusNullPtrErr},
      {"roi width", false, false, false, false, {0, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusSizeErr},
      {"roi height", false, false, false, false, {5, -1}, {3, 1}, {5, 5}, -1, 1.f, 0, 0, lumStatusSizeErr},
      {"mask 1x3", false, false, false, false, {5, 4}, {1, 3}, {5, 5}, -1, 1.f, 0, 0, lumStatusMaskSizeErr},
      {"mask 3x1", false, false, false, false, {5, 4}, {3, 1}, {5, 5}, -1, 1.f, 0, 0, lumStatusMaskSizeErr},
      {"anchor x", false, false, false, false, {5, 4}, {3, 3}, {3, 0}, -1, 1.f, 0, 0, lumStatusAnchorErr},
      {"anchor y", false, false, false, false, {5, 4}, {3, 3}, {0, -1}, -1, 1.f, 0, 0, lumStatusAnchorErr},
      {"src step", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, -1, 1.f, 0, 0, lumStatusStepErr},
      {"noise 1", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, 1.f, 0, 0, lumStatusNoiseRangeErr},
      {"noise < 0", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, -1e-9f, 0, 0, lumStatusNoiseRangeErr},
      {"noise NaN", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, nan, 0, 0, lumStatusNoiseRangeErr},
      {"noise inf", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, INFINITY, 0, 0, lumStatusNoiseRangeErr},
      {"noise[1]", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, 0.5f, 1.f, 0, lumStatusNoiseRangeErr},
      {"noise[3]", false, false, false, false, {5, 4}, {3, 3}, {1, 1}, 0, 0.5f, 0.5f, nan, lumStatusNoiseRangeErr},
  };
  for (int li = 0; li < 4; ++li) {
    const Layout L = kLayouts[li];
    GuardedImage<T> area(8, 8, L.ch, -1, -1, 3);
    Rng rng = makeRng(li);
    area.fillRandom(rng);
    GuardedImage<T> dst(5, 4, L.ch, -1, -1, 4);
    dst.fillRandom(rng);
    std::vector<T> before = dst.pixels();
    GuardedBuffer buf(bufferSize({5, 4}, {3, 3}, L.ch), 0);
    for (const Bad& b : cases) {
      // noise[1] counts for three or four channels, noise[3] for C4 only.
      LumStatus want = b.want;
      if (want == lumStatusNoiseRangeErr && ((b.noise1 != 0 && L.use == 1) || (b.noise3 != 0 && L.use != 4)))
        want = lumStatusOk;
      float noise[4] = {b.noise0, b.noise1, 0.5f, b.noise3};
      const float saved[4] = {noise[0], noise[1], noise[2], noise[3]};
      const LumStatus got = wienerFn<T>(li)(
          b.nullSrc ? nullptr : &area.at(1, 1), b.srcStep ? b.srcStep : area.step(),
          b.nullDst ? nullptr : dst.ptr(), b.srcStep ? -4 : dst.step(), b.roi, b.mask, b.anchor,
          b.nullNoise ? nullptr : noise, b.nullBuf ? nullptr : buf.ptr());
      EXPECT_EQ(got, want) << L.name << " " << b.what;
      if (want != lumStatusOk) {
        EXPECT_TRUE(sameElements(dst.pixels(), before)) << L.name << " " << b.what;
        EXPECT_EQ(std::memcmp(noise, saved, sizeof noise), 0) << L.name << " " << b.what;
      }
      before = dst.pixels();
      EXPECT_TRUE(dst.guardsIntact());
      EXPECT_TRUE(buf.intact());
    }
    // The dst step alone, and the accepted extremes.
    float noise[4] = {0.999f, 0.999f, 0.999f, 0.999f};
    EXPECT_EQ(wienerFn<T>(li)(&area.at(1, 1), area.step(), dst.ptr(), 0, {5, 4}, {3, 3}, {1, 1}, noise,
                              buf.ptr()),
              lumStatusStepErr);
    EXPECT_TRUE(sameElements(dst.pixels(), before));
    EXPECT_EQ(wienerFn<T>(li)(&area.at(1, 1), area.step(), dst.ptr(), dst.step(), {5, 4}, {3, 3}, {1, 1},
                              noise, buf.ptr()),
              lumStatusOk);
  }
}

TEST(Wiener, ChecksInOrder8u) { checkValidation<Lum8u>(); }
TEST(Wiener, ChecksInOrder16s) { checkValidation<Lum16s>(); }
TEST(Wiener, ChecksInOrder32f) { checkValidation<Lum32f>(); }

}  // namespace
