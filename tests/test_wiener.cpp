// Wiener filter against a direct reference of its formulas in double (window sums, V = Q - S^2/n
// raised to P, m + (src - m)(V - P)/V, m where V is 0), then ties to even and saturation for 8u
// and 16s: random data with the border supplied, odd widths, padded steps, guarded images and a
// guarded work buffer of exactly the reported size, every type and layout, 1 and 2 threads.
// Tolerances: 8u and 16s exact with a given noise (exact window sums, the same double
// arithmetic); with an estimated one the mean of V is summed in another order, so a value within
// 1e-6 of a tie may round either way. 32f within 1e-6 x (R + |value|), R the channel's range;
// written-back noise within 1e-6 relative.
#include <gtest/gtest.h>
#include <omp.h>
#include <xmmintrin.h>

#include <climits>
#include <cmath>
#include <limits>

#include "lumi/filter_wiener.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

template <class T>
using WienerFn = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint, Lum32f*, Lum8u*);
#define WIENER_FNS(t) \
  {lumiFilterWiener_##t##_C1R, lumiFilterWiener_##t##_C3R, lumiFilterWiener_##t##_C4R, lumiFilterWiener_##t##_AC4R}
const WienerFn<Lum8u> kFns8u[4] = WIENER_FNS(8u);
const WienerFn<Lum16s> kFns16s[4] = WIENER_FNS(16s);
const WienerFn<Lum32f> kFns32f[4] = WIENER_FNS(32f);
template <class T> WienerFn<T> fn(int li);
template <> WienerFn<Lum8u> fn(int li) { return kFns8u[li]; }
template <> WienerFn<Lum16s> fn(int li) { return kFns16s[li]; }
template <> WienerFn<Lum32f> fn(int li) { return kFns32f[li]; }

// The work buffer of exactly the reported size, canaries on both sides, first byte misaligned.
struct GuardedBuffer {
  size_t size, off;
  std::vector<Lum8u> buf;
  GuardedBuffer(LumiSize roi, LumiSize mask, int ch, int misalign) : size(0), off(64 + misalign) {
    int n = -1;
    EXPECT_EQ(lumiFilterWienerGetBufferSize(roi, mask, ch, &n), lumStatusOk);
    size = static_cast<size_t>(n);
    buf.resize(size + 128 + misalign);
    for (size_t i = 0; i < buf.size(); ++i) buf[i] = static_cast<Lum8u>(0x5A ^ (i * 31));
  }
  Lum8u* ptr() { return buf.data() + off; }
  bool intact() const {
    for (size_t i = 0; i < buf.size(); ++i)
      if ((i < off || i >= off + size) && buf[i] != static_cast<Lum8u>(0x5A ^ (i * 31))) return false;
    return true;
  }
};

struct Case {
  int w, h;
  LumiSize mask;
  LumiPoint anchor;
  float noise;  // channels 0 and 2; channel 1 gets 0.01 if this is 0, else 0; channel 3 half
  bool flat;    // one value per channel: R = 0, V = P = 0
};

// Values before rounding (NaN for alpha) and each channel's range; noise[] as it should end.
template <class T>
std::vector<double> reference(const GuardedImage<T>& a, const Case& k, const Layout& L, float noise[4],
                              double range[4]) {
  const int n = k.mask.width * k.mask.height;
  std::vector<double> out(static_cast<size_t>(k.w) * k.h * L.ch, std::nan("")), s(out.size()), q(out.size());
  for (int c = 0; c < L.use; ++c) {
    double lo = a.at(0, 0, c), hi = lo, vsum = 0, p;
    for (int y = 0; y < a.height(); ++y)
      for (int x = 0; x < a.width(); ++x) lo = std::min<double>(lo, a.at(x, y, c)), hi = std::max<double>(hi, a.at(x, y, c));
    for (int y = 0, i = c; y < k.h; ++y)
      for (int x = 0; x < k.w; ++x, i += L.ch) {
        for (int j = 0; j < k.mask.height; ++j)
          for (int u = 0; u < k.mask.width; ++u) s[i] += a.at(x + u, y + j, c), q[i] += 1.0 * a.at(x + u, y + j, c) * a.at(x + u, y + j, c);
        vsum += q[i] - s[i] * s[i] / n;
      }
    const double r2 = (hi - lo) * (hi - lo);
    range[c] = hi - lo;
    if (std::fabs(noise[c]) >= 1.1920929e-7f) {
      p = static_cast<double>(noise[c]) * r2 * k.mask.width * k.mask.height;
    } else {
      p = vsum / (static_cast<double>(k.w) * k.h);
      noise[c] = r2 > 0 ? static_cast<float>(p / n / r2) : 0.0f;
    }
    for (int y = 0, i = c; y < k.h; ++y)
      for (int x = 0; x < k.w; ++x, i += L.ch) {
        const double m = s[i] / n, src = a.at(x + k.anchor.x, y + k.anchor.y, c);
        const double v = std::max(q[i] - s[i] * s[i] / n, p);
        out[i] = v > 0 ? m + (src - m) * ((v - p) / v) : m;
      }
  }
  return out;
}

template <class T>
void checkWiener(const Case& k, int li, int threads, uint32_t seed) {
  const Layout L = kLayouts[li];
  const int savedThreads = threads_omp_of_n_lum;
  threads_omp_of_n_lum = threads;
  Rng rng = makeRng(seed);
  GuardedImage<T> area(k.w + k.mask.width - 1, k.h + k.mask.height - 1, L.ch, -1, -1, seed);
  GuardedImage<T> dst(k.w, k.h, L.ch, -1, -1, seed + 1);
  if (k.flat)
    area.fill([](int, int, int c) { return static_cast<T>(-7 * c + 100); });
  else if constexpr (std::is_same_v<T, Lum32f>)
    area.fill([&](int, int, int) { return static_cast<T>(randInt(rng, -100000, 100000) / 100.0); });
  else
    area.fillRandom(rng);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  float noise[4] = {k.noise, k.noise == 0 ? 0.01f : 0.0f, k.noise, k.noise / 2};
  if (L.use == 3) noise[3] = 7.0f;  // not a valid value, and not read
  float want[4] = {noise[0], noise[1], noise[2], noise[3]};
  bool estimated = false;
  for (int c = 0; c < L.use; ++c) estimated |= std::fabs(noise[c]) < 1.1920929e-7f;
  double range[4];
  const std::vector<double> ref = reference(area, k, L, want, range);
  GuardedBuffer buf(dst.roi(), k.mask, L.ch, static_cast<int>(seed % 7));
  // The caller's rounding mode (toward -inf on the threaded runs) must not matter.
  const unsigned mode = _MM_GET_ROUNDING_MODE();
  if (threads == 2) _MM_SET_ROUNDING_MODE(_MM_ROUND_DOWN);
  const LumStatus st = fn<T>(li)(&area.at(k.anchor.x, k.anchor.y), area.step(), dst.ptr(), dst.step(),
                                 dst.roi(), k.mask, k.anchor, noise, buf.ptr());
  _MM_SET_ROUNDING_MODE(mode);
  threads_omp_of_n_lum = savedThreads;
  ASSERT_EQ(st, lumStatusOk);
  EXPECT_TRUE(dst.guardsIntact());
  EXPECT_TRUE(buf.intact()) << "work buffer written past its reported size";
  for (int c = 0; c < 4; ++c) EXPECT_NEAR(noise[c], want[c], 1e-6 * want[c]) << "noise " << c;
  const std::vector<T> got = dst.pixels();
  for (size_t i = 0; i < got.size(); ++i) {
    const int c = static_cast<int>(i % L.ch);
    if (c >= L.use) {
      ASSERT_EQ(got[i], before[i]) << "alpha at " << i;
    } else if constexpr (std::is_same_v<T, Lum32f>) {
      ASSERT_NEAR(got[i], ref[i], 1e-6 * (range[c] + std::fabs(ref[i]))) << L.name << " element " << i;
    } else {
      const T exp = static_cast<T>(std::min<double>(std::numeric_limits<T>::max(),
                                                    std::max<double>(std::numeric_limits<T>::min(), std::nearbyint(ref[i]))));
      const bool nearTie = std::fabs(std::fabs(ref[i] - std::floor(ref[i])) - 0.5) < 1e-6;
      ASSERT_LE(std::abs(got[i] - exp), estimated && nearTie ? 1 : 0) << L.name << " element " << i << " value " << ref[i];
    }
  }
}

const Case kCases[] = {
    {67, 71, {5, 4}, {2, 1}, 0.02f, false},  // above the fork threshold
    {67, 71, {3, 3}, {1, 1}, 0.0f, false},   // estimated, forked
    {13, 7, {2, 2}, {0, 1}, 0.3f, false},    // many pixels at m = S / 4: ties
    {1, 5, {7, 2}, {6, 0}, -0.0f, false},    // -0 asks for the estimate
    {9, 1, {2, 6}, {1, 5}, 0.999f, false},
    {33, 3, {4, 3}, {3, 2}, 1e-3f, false},
    {10, 8, {3, 3}, {1, 1}, 0.0f, true},     // flat: the mean, and an estimated noise of 0
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

TEST(Wiener, BufferSizeFormulaAndChecks) {
  const long long t = omp_get_max_threads();
  int size = 123;
  // L = width + mask width + 6 for one channel, width x channels + 6 otherwise, down to 4s.
  EXPECT_EQ(lumiFilterWienerGetBufferSize({10, 4}, {3, 3}, 1, &size), lumStatusOk);
  EXPECT_EQ(size, 16 * 5 * t * 4 + 15);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({10, 4}, {50, 2}, 3, &size), lumStatusOk);
  EXPECT_EQ(size, 36 * 5 * t * 4 + 15);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({10, 4}, {9, 2}, 4, &size), lumStatusOk);
  EXPECT_EQ(size, 44 * 5 * t * 4 + 15);
  size = 123;  // each call breaks its own check and every later one
  EXPECT_EQ(lumiFilterWienerGetBufferSize({0, 1}, {1, 1}, 2, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 0}, {1, 1}, 2, &size), lumStatusSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {1, 1}, 2, &size), lumStatusChannelCountErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {1, 3}, 1, &size), lumStatusMaskSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({4, 4}, {3, 1}, 4, &size), lumStatusMaskSizeErr);
  EXPECT_EQ(lumiFilterWienerGetBufferSize({INT_MAX / 2, 1}, {2, 2}, 4, &size), lumStatusMemAllocErr);
  EXPECT_EQ(size, 123);
}

// Each case breaks its own check and every later one; nothing is written on failure.
template <class T>
void checkValidation() {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  struct Bad {
    int null;  // 1 src, 2 dst, 3 noise, 4 buffer
    LumiSize roi, mask;
    LumiPoint anchor;
    int step;  // 0 src and dst steps valid, else src step and dst step - 5
    float noise[4];
    LumStatus want;
  } const cases[] = {
      {1, {0, 4}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusNullPtrErr},
      {2, {0, 4}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusNullPtrErr},
      {3, {0, 4}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusNullPtrErr},
      {4, {0, 4}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusNullPtrErr},
      {0, {5, -1}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusSizeErr},
      {0, {5, 4}, {1, 3}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusMaskSizeErr},
      {0, {5, 4}, {3, 1}, {5, 5}, -1, {1, 0, 0, 0}, lumStatusMaskSizeErr},
      {0, {5, 4}, {3, 3}, {3, 0}, -1, {1, 0, 0, 0}, lumStatusAnchorErr},
      {0, {5, 4}, {3, 3}, {0, -1}, -1, {1, 0, 0, 0}, lumStatusAnchorErr},
      {0, {5, 4}, {3, 3}, {1, 1}, -1, {1, 0, 0, 0}, lumStatusStepErr},
      {0, {5, 4}, {3, 3}, {1, 1}, 5, {1, 0, 0, 0}, lumStatusStepErr},  // dst step 0 alone
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {1, 0, 0, 0}, lumStatusNoiseRangeErr},
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {-1e-9f, 0, 0, 0}, lumStatusNoiseRangeErr},
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {nan, 0, 0, 0}, lumStatusNoiseRangeErr},
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {INFINITY, 0, 0, 0}, lumStatusNoiseRangeErr},
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {0.999f, 1, 0, 0}, lumStatusNoiseRangeErr},   // not read by C1
      {0, {5, 4}, {3, 3}, {1, 1}, 0, {0.999f, 0, 0, nan}, lumStatusNoiseRangeErr}, // read by C4 only
  };
  for (int li = 0; li < 4; ++li) {
    const Layout L = kLayouts[li];
    GuardedImage<T> area(8, 8, L.ch, -1, -1, 3);
    GuardedImage<T> dst(5, 4, L.ch, -1, -1, 4);
    Rng rng = makeRng(li);
    area.fillRandom(rng);
    dst.fillRandom(rng);
    GuardedBuffer buf({5, 4}, {3, 3}, L.ch, 0);
    for (const Bad& b : cases) {
      const bool unread = (b.noise[1] != 0 && L.use == 1) || (b.noise[3] != 0 && L.use != 4);
      const LumStatus want = b.want == lumStatusNoiseRangeErr && unread ? lumStatusOk : b.want;
      const std::vector<T> before = dst.pixels();
      float noise[4] = {b.noise[0], b.noise[1], b.noise[2], b.noise[3]};
      EXPECT_EQ(fn<T>(li)(b.null == 1 ? nullptr : &area.at(1, 1), b.step ? b.step : area.step(),
                          b.null == 2 ? nullptr : dst.ptr(), b.step ? b.step - 5 : dst.step(), b.roi, b.mask,
                          b.anchor, b.null == 3 ? nullptr : noise, b.null == 4 ? nullptr : buf.ptr()),
                want)
          << L.name << " case " << (&b - cases);
      if (want != lumStatusOk) {
        EXPECT_TRUE(sameElements(dst.pixels(), before));
        EXPECT_EQ(std::memcmp(noise, b.noise, sizeof noise), 0);
      }
      EXPECT_TRUE(dst.guardsIntact());
      EXPECT_TRUE(buf.intact());
    }
  }
}

TEST(Wiener, ChecksInOrder8u) { checkValidation<Lum8u>(); }
TEST(Wiener, ChecksInOrder16s) { checkValidation<Lum16s>(); }
TEST(Wiener, ChecksInOrder32f) { checkValidation<Lum32f>(); }

}  // namespace
