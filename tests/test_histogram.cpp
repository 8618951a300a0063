// Histograms against direct counts of the samples in each level interval, at ROI sizes and
// level counts on both sides of the counting-method changes.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "lumitest.h"

namespace {
using namespace lumitest;

template <class T, class P>
struct RangeFn {
  Layout lay;  // AC4: the fourth channel is left alone
  const char* name;
  std::function<LumStatus(const T*, int, LumiSize, Lum32s* const*, const P* const*, const int*)> f;
  int used() const { return lay.use; }
};
template <class T>
struct EvenFn {
  Layout lay;
  const char* name;
  std::function<LumStatus(const T*, int, LumiSize, Lum32s* const*, Lum32s* const*, const int*,
                          const Lum32s*, const Lum32s*)>
      f;
  int used() const { return lay.use; }
};

#define RANGE_FNS(TT, T, P)                                                                  \
  std::vector<RangeFn<T, P>> {                                                               \
    {kC1, "Range_" #TT "_C1",                                                                \
     [](const T* s, int ss, LumiSize r, Lum32s* const* h, const P* const* l, const int* n) { \
       return lumiHistogramRange_##TT##_C1R(s, ss, r, h[0], l[0], n[0]);                     \
     }},                                                                                     \
        {kC3, "Range_" #TT "_C3", lumiHistogramRange_##TT##_C3R},                            \
        {kC4, "Range_" #TT "_C4", lumiHistogramRange_##TT##_C4R},                            \
        {kAC4, "Range_" #TT "_AC4", lumiHistogramRange_##TT##_AC4R}}
#define EVEN_FNS(TT, T)                                                                   \
  std::vector<EvenFn<T>> {                                                                \
    {kC1, "Even_" #TT "_C1",                                                              \
     [](const T* s, int ss, LumiSize r, Lum32s* const* h, Lum32s* const* l, const int* n, \
        const Lum32s* lo, const Lum32s* hi) {                                             \
       return lumiHistogramEven_##TT##_C1R(s, ss, r, h[0], l[0], n[0], lo[0], hi[0]);     \
     }},                                                                                  \
        {kC3, "Even_" #TT "_C3", lumiHistogramEven_##TT##_C3R},                           \
        {kC4, "Even_" #TT "_C4", lumiHistogramEven_##TT##_C4R},                           \
        {kAC4, "Even_" #TT "_AC4", lumiHistogramEven_##TT##_AC4R}}

template <class T>
using LevelT = std::conditional_t<std::is_same_v<T, Lum32f>, Lum32f, Lum32s>;

template <class T>
std::vector<RangeFn<T, LevelT<T>>> rangeFns() {
  if constexpr (std::is_same_v<T, Lum8u>) return RANGE_FNS(8u, Lum8u, Lum32s);
  else if constexpr (std::is_same_v<T, Lum16s>) return RANGE_FNS(16s, Lum16s, Lum32s);
  else if constexpr (std::is_same_v<T, Lum16u>) return RANGE_FNS(16u, Lum16u, Lum32s);
  else return RANGE_FNS(32f, Lum32f, Lum32f);
}
template <class T>
std::vector<EvenFn<T>> evenFns() {
  if constexpr (std::is_same_v<T, Lum8u>) return EVEN_FNS(8u, Lum8u);
  else if constexpr (std::is_same_v<T, Lum16s>) return EVEN_FNS(16s, Lum16s);
  else return EVEN_FNS(16u, Lum16u);
}

// ---- references -------------------------------------------------------------------------------

template <class P>
bool increasing(const std::vector<P>& lev) {
  for (std::size_t i = 0; i + 1 < lev.size(); ++i)
    if (!(lev[i] < lev[i + 1])) return false;
  return true;
}

// Bin i counts the samples in [lev[i], lev[i+1]); float levels that are not all increasing use
// the negated tests, under which a NaN sample counts in every bin.
template <class T, class P>
std::vector<Lum32s> refHist(const std::vector<T>& samples, const std::vector<P>& lev, bool ordered) {
  int nb = static_cast<int>(lev.size()) - 1;
  std::vector<Lum32s> h(nb, 0);
  for (T s : samples) {
    if (ordered) {  // at most one bin
      auto it = std::upper_bound(lev.begin(), lev.end(), s);
      if (it != lev.begin() && it != lev.end() && !(s != s)) ++h[it - lev.begin() - 1];
      continue;
    }
    for (int i = 0; i < nb; ++i) {
      if constexpr (std::is_floating_point_v<T>) {
        if (!(lev[i] > s) && !(s >= lev[i + 1])) ++h[i];
      } else if (lev[i] <= s && s < lev[i + 1]) {
        ++h[i];
      }
    }
  }
  return h;
}

template <class T>
std::vector<T> channelSamples(const GuardedImage<T>& img, int c) {
  std::vector<T> v;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) v.push_back(img.at(x, y, c));
  return v;
}

// n levels, sorted or not, over a window of the value range that may reach past its ends.
template <class T, class P>
std::vector<P> randomLevels(Rng& r, int n, bool sorted, bool unique) {
  const double lo = std::is_floating_point_v<T> ? -1000 : double(std::numeric_limits<T>::min());
  const double hi = std::is_floating_point_v<T> ? 1000 : double(std::numeric_limits<T>::max()) + 1;
  double span = hi - lo;
  double a = lo + span * std::uniform_real_distribution<double>(-0.05, 0.7)(r);
  double b = std::max(a + span * std::uniform_real_distribution<double>(0.01, 0.5)(r), a + 2.0 * n);
  std::vector<P> lev;
  while (static_cast<int>(lev.size()) < n) {
    double x = std::uniform_real_distribution<double>(a, b)(r);
    P v = static_cast<P>(std::is_integral_v<P> ? std::floor(x) : x);
    if (!unique || std::find(lev.begin(), lev.end(), v) == lev.end()) lev.push_back(v);
  }
  if (sorted) std::sort(lev.begin(), lev.end());
  return lev;
}

// Samples on the levels, just beside them, and anywhere; NaN and infinities for 32f.
template <class T, class P>
void fillNearLevels(GuardedImage<T>& img, Rng& r, const std::vector<std::vector<P>>& lev) {
  img.fill([&](int, int, int c) -> T {
    const auto& l = lev[std::min<int>(c, static_cast<int>(lev.size()) - 1)];
    int k = randInt(r, 0, 9);
    if constexpr (std::is_floating_point_v<T>) {
      if (k == 0) return NAN;
      if (k == 1) return randInt(r, 0, 1) ? INFINITY : -INFINITY;
      if (k < 5) return l[randInt(r, 0, static_cast<int>(l.size()) - 1)];
      return static_cast<T>(std::uniform_real_distribution<double>(-1100, 1100)(r));
    } else {
      if (k < 5) {
        int64_t v = int64_t{l[randInt(r, 0, static_cast<int>(l.size()) - 1)]} + randInt(r, -1, 0);
        v = std::min<int64_t>(std::max<int64_t>(v, std::numeric_limits<T>::min()), std::numeric_limits<T>::max());
        return static_cast<T>(v);
      }
      return randomValue<T>(r);
    }
  });
}

// Runs one HistogramRange form over a random image and compares every channel's counts.
template <class T, class P>
void checkRange(const RangeFn<T, P>& f, Rng& r, LumiSize roi, std::vector<std::vector<P>> lev) {
  GuardedImage<T> src(roi.width, roi.height, f.lay.ch, -1, -1, r());
  fillNearLevels(src, r, lev);
  const std::vector<T> before = src.pixels();
  std::vector<std::vector<Lum32s>> hist(4);
  Lum32s* h[4];
  const P* l[4];
  int n[4];
  bool ordered = true;
  for (int c = 0; c < f.used(); ++c) {
    n[c] = static_cast<int>(lev[c].size());
    hist[c].assign(n[c] - 1, 12345);  // never accumulated into
    h[c] = hist[c].data();
    l[c] = lev[c].data();
    ordered = ordered && increasing(lev[c]);
  }
  ASSERT_EQ(f.f(src.ptr(), src.step(), roi, h, l, n), lumStatusOk);
  ASSERT_TRUE(sameElements(src.pixels(), before));
  for (int c = 0; c < f.used(); ++c) {
    bool byRule = std::is_floating_point_v<T> ? ordered : increasing(lev[c]);
    ASSERT_TRUE(sameElements(hist[c], refHist(channelSamples(src, c), lev[c], byRule)))
        << f.name << " channel " << c << " " << roi.width << "x" << roi.height << " levels " << n[c];
  }
}

template <class T>
void randomRanges(uint32_t salt) {
  using P = LevelT<T>;
  Rng r = makeRng(salt);
  for (const auto& f : rangeFns<T>()) {
    for (int it = 0; it < 12; ++it) {
      LumiSize roi = it % 4 == 3 ? LumiSize{randInt(r, 100, 140), randInt(r, 100, 140)} : randomSize(r);
      std::vector<std::vector<P>> lev(4);
      for (auto& l : lev) {
        int n = randInt(r, 2, it % 3 == 0 ? 130 : 20);
        int order = randInt(r, 0, 3);  // mostly increasing, sometimes ties or no order
        l = randomLevels<T, P>(r, n, order != 3, order < 2);
      }
      checkRange(f, r, roi, lev);
    }
  }
}

TEST(Histogram, Random8u) { randomRanges<Lum8u>(1); }
TEST(Histogram, Random16s) { randomRanges<Lum16s>(2); }
TEST(Histogram, Random16u) { randomRanges<Lum16u>(3); }
TEST(Histogram, Random32f) { randomRanges<Lum32f>(4); }

// 16-bit histograms scan the levels, halve them, check every bin or count every value depending
// on the pixel count and the level count; each choice must count the same.
TEST(Histogram, SixteenBitMethodsAgree) {
  Rng r = makeRng(5);
  const LumiSize sizes[] = {{10, 10}, {31, 33}, {130, 130}, {1, 17000}, {400, 330}};
  const int counts[] = {2, 3, 10, 26, 27, 40, 75, 103, 250};
  for (LumiSize roi : sizes) {
    for (int n : counts) {
      if (roi.width == 400 && n > 10) continue;
      for (int order = 0; order < 3; ++order) {
        const auto f16s = rangeFns<Lum16s>()[randInt(r, 0, 3)];
        const auto f16u = rangeFns<Lum16u>()[randInt(r, 0, 3)];
        std::vector<std::vector<Lum32s>> a(4), b(4);
        for (int c = 0; c < 4; ++c) {
          a[c] = randomLevels<Lum16s, Lum32s>(r, n, order != 2, order == 0);
          b[c] = randomLevels<Lum16u, Lum32s>(r, n, order != 2, order == 0);
        }
        SCOPED_TRACE(testing::Message() << roi.width << "x" << roi.height << " n " << n << " order " << order);
        checkRange(f16s, r, roi, a);
        checkRange(f16u, r, roi, b);
      }
    }
  }
  // more bins than a 16-bit bin index can name
  std::vector<std::vector<Lum32s>> many(4);
  for (auto& l : many) {
    l.resize(70000);
    for (int i = 0; i < 70000; ++i) l[i] = i - 2000;
  }
  checkRange(rangeFns<Lum16u>()[0], r, LumiSize{150, 150}, many);
  checkRange(rangeFns<Lum16s>()[1], r, LumiSize{140, 150}, many);
}

TEST(Histogram, EightBitLevelsBeyondTheRange) {
  GuardedImage<Lum8u> src(256, 3, 1, 0, 0);
  src.fill([](int x, int y, int) { return static_cast<Lum8u>(y == 2 ? 255 : x); });
  const std::vector<Lum32s> lev = {-50, 0, 10, 10, 5, 250, 256, 300};
  std::vector<Lum32s> h(lev.size() - 1, -1);
  ASSERT_EQ(lumiHistogramRange_8u_C1R(src.ptr(), src.step(), src.roi(), h.data(), lev.data(), 8), 0);
  // [-50,0) empty, [0,10) 2 rows x 10, [10,10) empty, reversed 0, [5,250) 2 x 245, [250,256)
  // 2 x 6 + 256 copies of 255, [256,300) nothing
  EXPECT_EQ(h, (std::vector<Lum32s>{0, 20, 0, 0, 490, 12 + 256, 0}));
}

TEST(Histogram, FloatNaNAndEdges) {
  const float in[] = {NAN, 0.0f, 1.0f, 2.0f, -INFINITY, INFINITY, 1.5f, -0.0f};
  GuardedImage<Lum32f> src(8, 1, 1);
  src.fill([&](int x, int, int) { return in[x]; });
  Lum32s h[3] = {-7, -7, -7};
  const float ordered[] = {0.0f, 1.0f, 2.0f};  // 2.0 is the last level: counted nowhere
  ASSERT_EQ(lumiHistogramRange_32f_C1R(src.ptr(), src.step(), src.roi(), h, ordered, 3), 0);
  EXPECT_EQ(h[0], 2);  // 0, -0
  EXPECT_EQ(h[1], 2);  // 1, 1.5
  const float unordered[] = {0.0f, 2.0f, 2.0f, 1.0f};
  ASSERT_EQ(lumiHistogramRange_32f_C1R(src.ptr(), src.step(), src.roi(), h, unordered, 4), 0);
  EXPECT_EQ(h[0], 5);  // NaN, 0, 1, 1.5, -0
  EXPECT_EQ(h[1], 1);  // NaN only
  EXPECT_EQ(h[2], 1);
}

// ---- even levels --------------------------------------------------------------------------------

std::vector<Lum32s> refEven(int n, Lum32s lower, Lum32s upper) {
  int64_t d = int64_t{upper} - lower, q = d / (n - 1), r = d % (n - 1);
  std::vector<Lum32s> lev(n);
  for (int k = 0; k < n; ++k) {
    int64_t extra = q >= 0 ? std::min<int64_t>(k, std::max<int64_t>(r, 0)) : -std::min<int64_t>(k, -r);
    lev[k] = static_cast<Lum32s>(lower + k * q + extra);
  }
  return lev;
}

TEST(Histogram, EvenLevelExamples) {
  const struct {
    int n;
    Lum32s lo, hi;
    std::vector<Lum32s> want;
  } cases[] = {{5, 0, 256, {0, 64, 128, 192, 256}},
               {4, 0, 10, {0, 4, 7, 10}},
               {4, 10, 0, {10, 6, 3, 0}},
               {4, 5, 3, {5, 5, 5, 5}},
               {4, -7, 2, {-7, -4, -1, 2}}};
  for (const auto& c : cases) {
    GuardedImage<Lum8u> src(9, 2, 1);
    Rng r = makeRng(6);
    src.fillRandom(r);
    std::vector<Lum32s> lev(c.n, 99), h(c.n - 1, 99);
    ASSERT_EQ(lumiHistogramEven_8u_C1R(src.ptr(), src.step(), src.roi(), h.data(), lev.data(), c.n, c.lo, c.hi), 0);
    EXPECT_EQ(lev, c.want) << c.lo << ".." << c.hi;
    EXPECT_EQ(lev, refEven(c.n, c.lo, c.hi));
  }
}

template <class T>
void randomEven(uint32_t salt) {
  Rng r = makeRng(salt);
  const double tlo = std::numeric_limits<T>::min(), thi = double(std::numeric_limits<T>::max()) + 1;
  for (const auto& f : evenFns<T>()) {
    for (int it = 0; it < 10; ++it) {
      LumiSize roi = it == 9 ? LumiSize{200, 150} : randomSize(r);
      GuardedImage<T> src(roi.width, roi.height, f.lay.ch, -1, -1, r());
      src.fillRandom(r);
      Lum32s lower[4], upper[4];
      int n[4];
      std::vector<std::vector<Lum32s>> lev(4), hist(4);
      Lum32s* h[4];
      Lum32s* l[4];
      for (int c = 0; c < 4; ++c) {
        n[c] = randInt(r, 2, it % 2 ? 1100 : 30);
        lower[c] = static_cast<Lum32s>(std::uniform_real_distribution<double>(tlo - 100, thi)(r));
        upper[c] = static_cast<Lum32s>(std::uniform_real_distribution<double>(tlo, thi + 100)(r));
        if (it == 4) std::swap(lower[c], upper[c]);
        lev[c].assign(n[c], -1);
        hist[c].assign(n[c] - 1, -1);
        h[c] = hist[c].data();
        l[c] = lev[c].data();
      }
      ASSERT_EQ(f.f(src.ptr(), src.step(), roi, h, l, n, lower, upper), lumStatusOk);
      for (int c = 0; c < f.used(); ++c) {
        auto want = refEven(n[c], lower[c], upper[c]);
        ASSERT_EQ(lev[c], want) << f.name;
        ASSERT_TRUE(sameElements(hist[c], refHist(channelSamples(src, c), want, increasing(want)))) << f.name;
      }
      if (f.lay.use < f.lay.ch) {  // the fourth arrays belong to nobody
        ASSERT_EQ(lev[3], std::vector<Lum32s>(n[3], -1));
      }
    }
  }
}

TEST(Histogram, Even8u) { randomEven<Lum8u>(7); }
TEST(Histogram, Even16s) { randomEven<Lum16s>(8); }
TEST(Histogram, Even16u) { randomEven<Lum16u>(9); }

// ---- validation ---------------------------------------------------------------------------------

template <class T, class P>
void rangeValidation(const RangeFn<T, P>& f) {
  SCOPED_TRACE(f.name);
  GuardedImage<T> src(6, 2, f.lay.ch);
  Rng r = makeRng(10);
  src.fillRandom(r);
  std::vector<P> levels = {P(0), P(10), P(20)};
  std::vector<Lum32s> store(8, 77);
  Lum32s* h[4] = {&store[0], &store[2], &store[4], &store[6]};
  const P* l[4] = {levels.data(), levels.data(), levels.data(), levels.data()};
  int n[4] = {3, 3, 3, 3};
  const LumiSize ok = src.roi(), bad{-1, 2};
  const int last = f.used() - 1;
  auto hNull = [&](int c) { Lum32s* a[4] = {h[0], h[1], h[2], h[3]}; a[c] = nullptr; return std::vector<Lum32s*>(a, a + 4); };
  auto lNull = [&](int c) { const P* a[4] = {l[0], l[1], l[2], l[3]}; a[c] = nullptr; return std::vector<const P*>(a, a + 4); };
  int nOne[4] = {3, 3, 3, 3};
  nOne[last] = 1;
  EXPECT_EQ(f.f(nullptr, src.step(), bad, h, l, n), lumStatusNullPtrErr);
  EXPECT_EQ(f.f(src.ptr(), 0, bad, hNull(0).data(), l, n), lumStatusNullPtrErr);
  EXPECT_EQ(f.f(src.ptr(), 0, bad, h, lNull(last).data(), n), lumStatusNullPtrErr);
  if (f.lay.ch == 1) {  // ROI, step, then the level count
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, nOne), lumStatusSizeErr);
    EXPECT_EQ(f.f(src.ptr(), 0, ok, h, l, nOne), lumStatusStepErr);
  } else {  // channel checks first
    EXPECT_EQ(f.f(src.ptr(), src.step(), ok, nullptr, l, n), lumStatusNullPtrErr);
    EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, nullptr), lumStatusNullPtrErr);
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, nOne), lumStatusHistLevelsErr);
    int nFirst[4] = {1, 3, 3, 3};
    EXPECT_EQ(f.f(src.ptr(), 0, bad, hNull(last).data(), l, nFirst), lumStatusHistLevelsErr);
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, n), lumStatusSizeErr);
  }
  EXPECT_EQ(f.f(src.ptr(), -3, ok, h, l, n), lumStatusStepErr);
  EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, nOne), lumStatusHistLevelsErr);
  EXPECT_EQ(store, std::vector<Lum32s>(8, 77));
  EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, n), lumStatusOk);
}

template <class T>
void evenValidation(const EvenFn<T>& f) {
  SCOPED_TRACE(f.name);
  GuardedImage<T> src(6, 2, f.lay.ch);
  std::vector<Lum32s> store(8, 77), levels(12, 55);
  Lum32s* h[4] = {&store[0], &store[2], &store[4], &store[6]};
  Lum32s* l[4] = {&levels[0], &levels[3], &levels[6], &levels[9]};
  int n[4] = {3, 3, 3, 3}, nOne[4] = {3, 3, 1, 3};
  Lum32s lo[4] = {0, 0, 0, 0}, hi[4] = {9, 9, 9, 9};
  const LumiSize ok = src.roi(), bad{2, 0};
  Lum32s* lNull[4] = {nullptr, nullptr, l[2], l[3]};
  EXPECT_EQ(f.f(nullptr, src.step(), bad, h, l, n, lo, hi), lumStatusNullPtrErr);
  EXPECT_EQ(f.f(src.ptr(), 0, bad, h, lNull, n, lo, hi), lumStatusNullPtrErr);
  if (f.lay.ch == 1) {
    int one[1] = {1};
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, one, lo, hi), lumStatusSizeErr);
    EXPECT_EQ(f.f(src.ptr(), 0, ok, h, l, one, lo, hi), lumStatusStepErr);
    EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, one, lo, hi), lumStatusHistLevelsErr);
  } else {
    EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, n, nullptr, hi), lumStatusNullPtrErr);
    EXPECT_EQ(f.f(src.ptr(), src.step(), ok, h, l, n, lo, nullptr), lumStatusNullPtrErr);
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, nOne, lo, hi), lumStatusHistLevelsErr);
    EXPECT_EQ(f.f(src.ptr(), 0, bad, h, l, n, lo, hi), lumStatusSizeErr);
  }
  EXPECT_EQ(f.f(src.ptr(), 0, ok, h, l, n, lo, hi), lumStatusStepErr);
  EXPECT_EQ(store, std::vector<Lum32s>(8, 77));
  EXPECT_EQ(levels, std::vector<Lum32s>(12, 55));
}

template <class T>
void validation() {
  for (const auto& f : rangeFns<T>()) rangeValidation(f);
  if constexpr (!std::is_same_v<T, Lum32f>)
    for (const auto& f : evenFns<T>()) evenValidation(f);
}
TEST(Histogram, ValidationOrder8u) { validation<Lum8u>(); }
TEST(Histogram, ValidationOrder16s) { validation<Lum16s>(); }
TEST(Histogram, ValidationOrder16u) { validation<Lum16u>(); }
TEST(Histogram, ValidationOrder32f) { validation<Lum32f>(); }

#ifdef LUMI_HAVE_OPENCV
}  // namespace
#include <opencv2/imgproc.hpp>
namespace {
// Even bins over the whole 16u range are the uniform histogram of the same bin count.
TEST(Histogram, MatchesOpenCvUniform) {
  cv::Mat src(123, 457, CV_16UC1);
  cv::randu(src, 0, 65536);
  int channel = 0, bins = 1024;
  float range[] = {0, 65536};
  const float* ranges[] = {range};
  cv::Mat want;
  cv::calcHist(&src, 1, &channel, cv::Mat(), want, 1, &bins, ranges);
  std::vector<Lum32s> h(1024), lev(1025);
  ASSERT_EQ(lumiHistogramEven_16u_C1R(src.ptr<Lum16u>(), int(src.step), {src.cols, src.rows}, h.data(),
                                      lev.data(), 1025, 0, 65536), 0);
  for (int i = 0; i < 1024; ++i) ASSERT_EQ(h[i], static_cast<Lum32s>(want.at<float>(i))) << i;
}
#endif

}  // namespace
