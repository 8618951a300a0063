// Lookup tables and palettes, compared sample by sample with references written from the
// interval rules.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "lumitest.h"

namespace {
using namespace lumitest;

enum Kind { kStep, kLinear, kCubic };

template <class T, class P>
struct LutFn {
  Kind kind;
  Layout lay;
  const char* name;
  std::function<LumStatus(const T*, int, T*, int, LumiSize, const P* const*, const P* const*,
                          const int*)>
      r;
  std::function<LumStatus(T*, int, LumiSize, const P* const*, const P* const*, const int*)> ir;
  int used() const { return lay.use; }
};

// The C1 forms take one table; the table of a layout with more channels is an array.
template <class T, class P>
auto one(LumStatus (*f)(const T*, int, T*, int, LumiSize, const P*, const P*, int)) {
  return [f](const T* s, int ss, T* d, int ds, LumiSize r, const P* const* v, const P* const* l,
             const int* n) { return f(s, ss, d, ds, r, v[0], l[0], n[0]); };
}
template <class T, class P>
auto one(LumStatus (*f)(T*, int, LumiSize, const P*, const P*, int)) {
  return [f](T* p, int st, LumiSize r, const P* const* v, const P* const* l, const int* n) {
    return f(p, st, r, v[0], l[0], n[0]);
  };
}
#define LAYOUT_FN(OP, K, TT, L, LAY) \
  {K, LAY, #OP "_" #TT "_" #L, lumi##OP##_##TT##_##L##R, lumi##OP##_##TT##_##L##IR}
#define KIND_FNS(OP, K, TT)                                                             \
  {K, kC1, #OP "_" #TT "_C1", one(lumi##OP##_##TT##_C1R), one(lumi##OP##_##TT##_C1IR)}, \
      LAYOUT_FN(OP, K, TT, C3, kC3), LAYOUT_FN(OP, K, TT, C4, kC4),                     \
      LAYOUT_FN(OP, K, TT, AC4, kAC4)
#define TYPE_FNS(TT, T, P)                                                                       \
  std::vector<LutFn<T, P>> {                                                                     \
    KIND_FNS(LUT, kStep, TT), KIND_FNS(LUT_Linear, kLinear, TT), KIND_FNS(LUT_Cubic, kCubic, TT) \
  }

template <class T>
struct Fns {
  static auto all() {
    if constexpr (std::is_same_v<T, Lum8u>) return TYPE_FNS(8u, Lum8u, Lum32s);
    else if constexpr (std::is_same_v<T, Lum16s>) return TYPE_FNS(16s, Lum16s, Lum32s);
    else if constexpr (std::is_same_v<T, Lum16u>) return TYPE_FNS(16u, Lum16u, Lum32s);
    else return TYPE_FNS(32f, Lum32f, Lum32f);
  }
};

// ---- references -------------------------------------------------------------------------------

// The cubic through the four points around interval i, in Lagrange form.
template <class P>
long double lagrange(const P* val, const P* lev, int n, int i, long double x) {
  int j = std::min(std::max(i - 1, 0), n - 4);
  long double y = 0;
  for (int m = 0; m < 4; ++m) {
    long double w = val[j + m];
    for (int q = 0; q < 4; ++q)
      if (q != m) w *= (x - lev[j + q]) / (static_cast<long double>(lev[j + m]) - lev[j + q]);
    y += w;
  }
  return y;
}

template <class T>
int satInt(double v) {
  double t = std::trunc(v);
  return static_cast<int>(std::min<double>(std::max<double>(t, std::numeric_limits<T>::min()),
                                           std::numeric_limits<T>::max()));
}

// Expected integer result; *approx is set where the cubic reference may differ by one.
template <class T>
int refInt(Kind kind, int s, const Lum32s* val, const Lum32s* lev, int n, bool* approx) {
  const int64_t lo = std::numeric_limits<T>::min(), hi = int64_t{std::numeric_limits<T>::max()} + 1;
  auto cl = [&](int64_t v) { return std::min(std::max(v, lo), hi); };
  if (kind == kCubic && n < 4) kind = kLinear;
  *approx = false;
  int r = s;
  for (int i = 0; i + 1 < n; ++i) {
    int64_t a = cl(lev[i]), b = cl(lev[i + 1]);
    if (!(a <= s && s < b)) continue;  // a later interval overrides an earlier one
    if (kind == kStep || b - a == 1) {
      if (kind == kStep || lev[i + 1] > lev[i]) r = satInt<T>(val[i]);
    } else if (lev[i + 1] > lev[i]) {
      if (kind == kLinear) {
        double slope = (double(val[i + 1]) - val[i]) / (double(lev[i + 1]) - lev[i]);
        r = satInt<T>(s * slope + (val[i] + 0.5 - lev[i] * slope));
      } else {
        r = satInt<T>(static_cast<double>(lagrange(val, lev, n, i, s)) + 0.5);
        *approx = true;
      }
    }
  }
  if (lev[n - 1] < hi && s >= lev[n - 1]) r = s, *approx = false;
  return r;
}

// Step and cubic take interval i when neither lev[i] > x nor x >= lev[i+1]; linear needs
// lev[i+1] > x, so NaN stays NaN there.
inline float ref32f(Kind kind, float x, const float* val, const float* lev, int n, bool* approx) {
  if (kind == kCubic && n < 4) kind = kLinear;
  *approx = false;
  for (int i = 0; i + 1 < n; ++i) {
    bool in = kind == kLinear ? (!(lev[i] > x) && lev[i + 1] > x)
                              : (!(lev[i] > x) && !(x >= lev[i + 1]));
    if (!in) continue;
    if (kind == kStep) return val[i];
    if (kind == kLinear) {
      float slope = (val[i + 1] - val[i]) / (lev[i + 1] - lev[i]);
      return static_cast<float>((static_cast<long double>(x) - lev[i]) * slope + val[i]);
    }
    *approx = true;
    return static_cast<float>(lagrange(val, lev, n, i, x));
  }
  return x;
}

// ---- level lists ------------------------------------------------------------------------------

enum Order { kIncreasing, kWithTies, kUnordered };

// Levels over the span [a, b]; the first one never above the sample range and the last never
// below it, where the lookups have no defined behaviour.
template <class P>
std::vector<P> makeLevels(Rng& r, int n, Order order, double a, double b) {
  std::vector<P> lev;
  while (static_cast<int>(lev.size()) < n) {
    double x = std::uniform_real_distribution<double>(a, b)(r);
    P v = std::is_integral_v<P> ? static_cast<P>(std::floor(x)) : static_cast<P>(x);
    if (order != kIncreasing || std::find(lev.begin(), lev.end(), v) == lev.end()) lev.push_back(v);
  }
  if (order == kWithTies)
    for (int i = 1; i < n; ++i)
      if (randInt(r, 0, 3) == 0) lev[i] = lev[i - 1];
  if (order != kUnordered) std::sort(lev.begin(), lev.end());
  return lev;
}

template <class T>
constexpr double typeLo() {
  return std::is_floating_point_v<T> ? -1000.0 : double(std::numeric_limits<T>::min());
}
template <class T>
constexpr double typeHi() {
  return std::is_floating_point_v<T> ? 1000.0 : double(std::numeric_limits<T>::max());
}

template <class T, class P>
struct Tables {
  int used;
  std::vector<std::vector<P>> val, lev;
  std::vector<int> n;
  const P* v[4];
  const P* l[4];

  Tables(Rng& r, int used_, Kind kind, int maxLevels, bool anyOrder) : used(used_), val(4), lev(4), n(4) {
    const double lo = typeLo<T>(), hi = typeHi<T>(), span = hi - lo;
    for (int c = 0; c < 4; ++c) {
      n[c] = randInt(r, 2, maxLevels);
      Order order = kIncreasing;
      // (the cubic with four or more levels needs them increasing; below four it is the linear)
      if (anyOrder && (kind != kCubic || n[c] < 4)) order = static_cast<Order>(randInt(r, 0, 2));
      // a window of the sample range, sometimes reaching past its ends
      double a = lo + span * std::uniform_real_distribution<double>(-0.05, 0.6)(r);
      double b = a + span * std::uniform_real_distribution<double>(0.02, 0.6)(r);
      if (!std::is_floating_point_v<T>) b = std::max(b, a + 3.0 * n[c]);
      lev[c] = makeLevels<P>(r, n[c], order, a, b);
      lev[c][0] = static_cast<P>(std::min<double>(lev[c][0], hi));
      lev[c][n[c] - 1] = static_cast<P>(std::max<double>(lev[c][n[c] - 1], lo));
      val[c].resize(n[c]);
      for (auto& x : val[c]) {  // values reach past the type range to saturate
        double y = std::uniform_real_distribution<double>(lo - span / 8, hi + span / 8)(r);
        x = static_cast<P>(std::is_integral_v<P> ? std::floor(y) : y);
      }
      v[c] = val[c].data();
      l[c] = lev[c].data();
    }
  }
  // Every channel with the first one's table (the whole-row path of the lookups).
  void shareFirst() {
    for (int c = 1; c < 4; ++c) val[c] = val[0], lev[c] = lev[0], n[c] = n[0];
    for (int c = 0; c < 4; ++c) v[c] = val[c].data(), l[c] = lev[c].data();
  }
};

// Samples that hit the levels, their neighbours and the whole range; NaN and infinities for 32f.
template <class T, class P>
void fillSamples(GuardedImage<T>& img, Rng& r, const Tables<T, P>& t) {
  img.fill([&](int, int, int c) -> T {
    int cc = std::min(c, t.used - 1);
    int k = randInt(r, 0, 9);
    if (k < 4) {
      double v = t.lev[cc][randInt(r, 0, t.n[cc] - 1)];
      if constexpr (std::is_floating_point_v<T>) {
        if (k == 0) return static_cast<T>(std::nextafter(static_cast<float>(v), -INFINITY));
        return static_cast<T>(v);
      } else {
        v += randInt(r, -1, 1);
        return static_cast<T>(std::min(std::max(v, typeLo<T>()), typeHi<T>()));
      }
    }
    if constexpr (std::is_floating_point_v<T>) {
      if (k == 4) return std::numeric_limits<T>::quiet_NaN();
      if (k == 5 && randInt(r, 0, 3) == 0) return randInt(r, 0, 1) ? INFINITY : -INFINITY;
      return static_cast<T>(std::uniform_real_distribution<double>(-1200, 1200)(r));
    } else {
      return randomValue<T>(r);
    }
  });
}

// Runs one lookup (out of place or in place) and checks every element and the guards.
template <class T, class P>
void checkLut(const LutFn<T, P>& f, Rng& r, LumiSize roi, const Tables<T, P>& t, bool inPlace) {
  GuardedImage<T> src(roi.width, roi.height, f.lay.ch, -1, -1, r());
  GuardedImage<T> dst(roi.width, roi.height, f.lay.ch, -1, -1, r());
  fillSamples(src, r, t);
  dst.fillRandom(r);
  GuardedImage<T>& out = inPlace ? src : dst;
  std::vector<T> want = out.pixels();
  int approxCount = 0;
  std::vector<char> approx(want.size(), 0);
  std::vector<T> in = src.pixels();
  for (std::size_t i = 0; i < in.size(); ++i) {
    int c = static_cast<int>(i % f.lay.ch);
    if (c >= f.used()) continue;
    bool a;
    if constexpr (std::is_floating_point_v<T>)
      want[i] = ref32f(f.kind, in[i], t.v[c], t.l[c], t.n[c], &a);
    else
      want[i] = static_cast<T>(refInt<T>(f.kind, in[i], t.v[c], t.l[c], t.n[c], &a));
    approx[i] = a;
    approxCount += a;
  }
  LumStatus st = inPlace ? f.ir(src.ptr(), src.step(), roi, t.v, t.l, t.n.data())
                         : f.r(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, t.v, t.l, t.n.data());
  ASSERT_EQ(st, lumStatusOk) << f.name;
  ASSERT_TRUE(src.guardsIntact()) << f.name;
  ASSERT_TRUE(dst.guardsIntact()) << f.name;
  std::vector<T> got = out.pixels();
  if (!approxCount) {
    ASSERT_TRUE(sameElements(got, want, roi.width * f.lay.ch)) << f.name << (inPlace ? " in place" : "");
    return;
  }
  for (std::size_t i = 0; i < got.size(); ++i) {
    const bool same = got[i] == want[i] || (got[i] != got[i] && want[i] != want[i]);
    if (!approx[i]) ASSERT_TRUE(same) << f.name << " element " << i << ": " << +got[i] << " vs " << +want[i];
    else if constexpr (std::is_floating_point_v<T>)
      ASSERT_TRUE(same || std::fabs(got[i] - want[i]) <= 1e-3 + 1e-5 * std::fabs(want[i])) << f.name << " element " << i;
    else
      ASSERT_LE(std::abs(int(got[i]) - int(want[i])), 1) << f.name << " element " << i;
  }
}

template <class T>
void randomLuts(uint32_t salt) {
  using P = std::conditional_t<std::is_floating_point_v<T>, Lum32f, Lum32s>;
  Rng r = makeRng(salt);
  for (const auto& f : Fns<T>::all()) {
    for (int it = 0; it < 8; ++it) {
      LumiSize roi = randomSize(r);
      if (it == 7) roi = LumiSize{randInt(r, 60, 90), randInt(r, 50, 80)};  // above 4096 pixels
      int maxLevels = it % 3 == 2 ? 40 : 8;
      Tables<T, P> t(r, f.used(), f.kind, maxLevels, true);
      if (it % 4 == 0) t.shareFirst();
      SCOPED_TRACE(testing::Message() << f.name << " " << roi.width << "x" << roi.height << " it " << it);
      checkLut(f, r, roi, t, it % 2 == 1);
    }
  }
}

TEST(Lut, Random8u) { randomLuts<Lum8u>(1); }
TEST(Lut, Random16s) { randomLuts<Lum16s>(2); }
TEST(Lut, Random16u) { randomLuts<Lum16u>(3); }
TEST(Lut, Random32f) { randomLuts<Lum32f>(4); }

// Step lookups of 16-bit samples locate small ROIs by search and large ones through the full
// map: the two must agree on both sides of 4096 pixels, for ordered and unordered levels.
TEST(Lut, SixteenBitSizeThreshold) {
  Rng r = makeRng(5);
  const LumiSize sizes[] = {{64, 64}, {4096, 1}, {1, 4096}, {4097, 1}, {65, 64}, {13, 317}};
  auto run = [&](auto zero, LumiSize roi, int ord, bool inPlace) {
    using T = decltype(zero);
    for (const auto& f : Fns<T>::all()) {
      if (f.kind != kStep) continue;
      Tables<T, Lum32s> t(r, f.used(), f.kind, 30, ord > 0);
      checkLut(f, r, roi, t, inPlace);
    }
  };
  for (LumiSize roi : sizes)
    for (int ord = 0; ord < 3; ++ord) run(Lum16s{}, roi, ord, false), run(Lum16u{}, roi, ord, ord == 2);
}

// Examples: full-range levels, identity outside the levels, the last level, saturation.
TEST(Lut, EightBitExamples) {
  GuardedImage<Lum8u> src(256, 1, 1, 0, 0), dst(256, 1, 1, 0, 0);
  src.fill([](int x, int, int) { return static_cast<Lum8u>(x); });
  Lum32s lev1[] = {0, 256}, val1[] = {7, 99};
  ASSERT_EQ(lumiLUT_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val1, lev1, 2), 0);
  for (int x = 0; x < 256; ++x) ASSERT_EQ(dst.at(x, 0), 7);
  Lum32s lev2[] = {10, 20}, val2[] = {300, -5};
  ASSERT_EQ(lumiLUT_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val2, lev2, 2), 0);
  for (int x = 0; x < 256; ++x) ASSERT_EQ(dst.at(x, 0), x >= 10 && x < 20 ? 255 : x) << x;
  // linear: half-up rounding of non-negative results; the last level maps to itself
  Lum32s lev3[] = {0, 4, 8}, val3[] = {0, 2, -6};
  ASSERT_EQ(lumiLUT_Linear_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val3, lev3, 3), 0);
  const int want3[] = {0, 1, 1, 2, 2, 0, 0, 0, 8, 9};  // 0, .5, 1, 1.5, 2, 0, then negatives
  for (int x = 0; x < 10; ++x) ASSERT_EQ(dst.at(x, 0), want3[x]) << x;
  EXPECT_TRUE(dst.guardsIntact());
}

// A last level at the top of the range: that one value is copied, below it the intervals map.
TEST(Lut, LastLevelAtTopOfRange) {
  Rng r = makeRng(17);
  auto run = [&](auto zero, int top) {
    using T = decltype(zero);
    for (const auto& f : Fns<T>::all()) {
      Tables<T, Lum32s> t(r, f.used(), f.kind, 6, false);
      for (int c = 0; c < 4; ++c) {
        t.lev[c].back() = top;
        std::sort(t.lev[c].begin(), t.lev[c].end());
        t.lev[c].erase(std::unique(t.lev[c].begin(), t.lev[c].end()), t.lev[c].end());
        if (t.lev[c].size() < 2) t.lev[c].insert(t.lev[c].begin(), top - 3);
        t.n[c] = static_cast<int>(t.lev[c].size());
        t.val[c].resize(t.n[c], 0);
      }
      if (randInt(r, 0, 1)) t.shareFirst();
      for (int c = 0; c < 4; ++c) t.v[c] = t.val[c].data(), t.l[c] = t.lev[c].data();
      checkLut(f, r, LumiSize{randInt(r, 50, 80), randInt(r, 55, 70)}, t, false);
    }
  };
  run(Lum8u{}, 255);
  run(Lum16u{}, 65535);
  run(Lum16s{}, 32767);
}

// Nodes are hit exactly; a repeated level makes that interval linear. (With fewer than four
// levels the cubic is the linear lookup: the random tables cover it, in any level order.)
TEST(Lut, CubicNodesAndTies) {
  Lum32s lev[] = {0, 10, 30, 60, 100}, val[] = {5, 200, 17, 90, 250};
  GuardedImage<Lum8u> src(5, 1, 1), dst(5, 1, 1);
  src.fill([&](int x, int, int) { return static_cast<Lum8u>(lev[x]); });
  ASSERT_EQ(lumiLUT_Cubic_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val, lev, 5), 0);
  for (int x = 0; x < 4; ++x) EXPECT_EQ(dst.at(x, 0), val[x]);
  EXPECT_EQ(dst.at(4, 0), 100);  // the last level is copied
  // a repeated level leaves no cubic through the four points: that interval is linear
  Lum32s tied[] = {0, 0, 40, 80, 120}, tiedVal[] = {9, 30, 250, 4, 77};
  GuardedImage<Lum8u> all(256, 1, 1), cub(256, 1, 1), lin(256, 1, 1);
  all.fill([](int x, int, int) { return static_cast<Lum8u>(x); });
  ASSERT_EQ(lumiLUT_Cubic_8u_C1R(all.ptr(), all.step(), cub.ptr(), cub.step(), all.roi(), tiedVal, tied, 5), 0);
  ASSERT_EQ(lumiLUT_Linear_8u_C1R(all.ptr(), all.step(), lin.ptr(), lin.step(), all.roi(), tiedVal, tied, 5), 0);
  for (int x = 0; x < 40; ++x) ASSERT_EQ(cub.at(x, 0), lin.at(x, 0)) << x;
  for (int x = 120; x < 256; ++x) ASSERT_EQ(cub.at(x, 0), x);
}

TEST(Lut, FloatNaNAndIntervals) {
  const float lev[] = {-1.0f, 0.0f, 2.0f}, val[] = {10.0f, 20.0f, 30.0f};
  const float in[] = {NAN, -1.0f, -0.5f, 0.0f, 1.0f, 2.0f, -2.0f, INFINITY};
  const float step[] = {10.0f, 10.0f, 10.0f, 20.0f, 20.0f, 2.0f, -2.0f, INFINITY};
  const float lin[] = {NAN, 10.0f, 15.0f, 20.0f, 25.0f, 2.0f, -2.0f, INFINITY};
  GuardedImage<Lum32f> src(8, 1, 1), dst(8, 1, 1);
  src.fill([&](int x, int, int) { return in[x]; });
  ASSERT_EQ(lumiLUT_32f_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val, lev, 3), 0);
  EXPECT_TRUE(sameElements(dst.pixels(), std::vector<float>(step, step + 8)));
  ASSERT_EQ(lumiLUT_Linear_32f_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val, lev, 3), 0);
  EXPECT_TRUE(sameElements(dst.pixels(), std::vector<float>(lin, lin + 8)));
  // a NaN level: the negated tests let every sample into the interval next to it
  const float nanLev[] = {NAN, 5.0f, 6.0f};
  ASSERT_EQ(lumiLUT_32f_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), val, nanLev, 3), 0);
  for (int x = 0; x < 8; ++x) EXPECT_EQ(dst.at(x, 0), x == 7 ? INFINITY : 10.0f) << x;
}

// ---- validation ---------------------------------------------------------------------------------

template <class T, class P>
void validation(uint32_t salt) {
  Rng r = makeRng(salt);
  for (const auto& f : Fns<T>::all()) {
    SCOPED_TRACE(f.name);
    Tables<T, P> t(r, f.used(), f.kind, 5, false);
    GuardedImage<T> src(7, 3, f.lay.ch), dst(7, 3, f.lay.ch);
    src.fillRandom(r);
    dst.fillRandom(r);
    const std::vector<T> before = dst.pixels();
    const P* const* v = t.v;
    const P* const* l = t.l;
    const int* n = t.n.data();
    const auto& call = f.r;
    const LumiSize ok = src.roi(), bad{0, 3};
    const int last = f.used() - 1;
    EXPECT_EQ(call(nullptr, src.step(), dst.ptr(), dst.step(), bad, v, l, n), lumStatusNullPtrErr);
    EXPECT_EQ(call(src.ptr(), src.step(), nullptr, dst.step(), ok, v, l, n), lumStatusNullPtrErr);
    EXPECT_EQ(f.ir(nullptr, 8, bad, v, l, n), lumStatusNullPtrErr);
    const P* vNull[4] = {v[0], v[1], v[2], v[3]};
    vNull[last] = nullptr;
    EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), bad, vNull, l, n), lumStatusNullPtrErr);
    const P* lNull[4] = {l[0], l[1], l[2], l[3]};
    lNull[0] = nullptr;
    EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), dst.step(), ok, v, lNull, n), lumStatusNullPtrErr);
    int nOne[4] = {n[0], n[1], n[2], n[3]};
    nOne[last] = 1;
    if (f.lay.ch == 1) {
      // pointers, ROI, steps, then the level count
      EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), dst.step(), bad, v, l, nOne), lumStatusSizeErr);
      EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), -4, ok, v, l, nOne), lumStatusStepErr);
    } else {
      // each channel's pointers and count come before the ROI and the steps
      EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), dst.step(), bad, v, l, nOne), lumStatusLutLevelsErr);
      EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), bad, v, l, nullptr), lumStatusNullPtrErr);
      EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, nullptr, l, n), lumStatusNullPtrErr);
      int nFirst[4] = {1, n[1], n[2], n[3]};
      EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, v, lNull, nFirst), lumStatusNullPtrErr);
      EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, vNull, l, nFirst), lumStatusLutLevelsErr);
      EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), dst.step(), bad, v, l, n), lumStatusSizeErr);
    }
    EXPECT_EQ(call(src.ptr(), 0, dst.ptr(), dst.step(), ok, v, l, n), lumStatusStepErr);
    EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), LumiSize{3, -1}, v, l, n), lumStatusSizeErr);
    EXPECT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, v, l, nOne), lumStatusLutLevelsErr);
    EXPECT_EQ(f.ir(dst.ptr(), dst.step(), ok, v, l, nOne), lumStatusLutLevelsErr);
    EXPECT_TRUE(sameElements(dst.pixels(), before));
    EXPECT_TRUE(dst.guardsIntact());
  }
}

TEST(Lut, ValidationOrder8u) { validation<Lum8u, Lum32s>(7); }
TEST(Lut, ValidationOrder16s) { validation<Lum16s, Lum32s>(8); }
TEST(Lut, ValidationOrder16u) { validation<Lum16u, Lum32s>(9); }
TEST(Lut, ValidationOrder32f) { validation<Lum32f, Lum32f>(10); }

// ---- palettes -----------------------------------------------------------------------------------

template <class S, class D, int Bytes>
void checkPalette(LumStatus (*fn)(const S*, int, D*, int, LumiSize, const D*, int), uint32_t salt) {
  Rng r = makeRng(salt);
  const int maxBits = 8 * sizeof(S);
  const int per = Bytes == 3 ? 3 : 1;  // elements of D per pixel
  for (int it = 0; it < 12; ++it) {
    int bits = it == 0 ? maxBits : randInt(r, 1, maxBits);
    std::vector<D> table(static_cast<std::size_t>(per) << bits);
    for (auto& e : table) e = randomValue<D>(r);
    LumiSize roi = randomSize(r);
    GuardedImage<S> src(roi.width, roi.height, 1, -1, -1, r());
    GuardedImage<D> dst(roi.width, roi.height, per, -1, -1, r());
    src.fillRandom(r);
    ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, table.data(), bits), 0);
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x) {
        unsigned idx = src.at(x, y) & ((1u << bits) - 1);
        for (int k = 0; k < per; ++k) ASSERT_EQ(dst.at(x, y, k), table[idx * per + k]) << bits;
      }
    ASSERT_TRUE(dst.guardsIntact());
  }
  // pointers, steps, ROI (steps before the ROI), then the bit count
  GuardedImage<S> src(5, 2, 1);
  GuardedImage<D> dst(5, 2, per);
  std::vector<D> table(static_cast<std::size_t>(per) << maxBits);
  src.fillRandom(r);
  dst.fillRandom(r);
  auto before = dst.pixels();
  const LumiSize ok = src.roi(), bad{5, 0};
  EXPECT_EQ(fn(nullptr, 0, dst.ptr(), dst.step(), bad, table.data(), 0), lumStatusNullPtrErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), nullptr, dst.step(), ok, table.data(), 1), lumStatusNullPtrErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, nullptr, 1), lumStatusNullPtrErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), 0, bad, table.data(), 0), lumStatusStepErr);
  EXPECT_EQ(fn(src.ptr(), -1, dst.ptr(), dst.step(), ok, table.data(), 1), lumStatusStepErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), bad, table.data(), 0), lumStatusSizeErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, table.data(), 0), lumStatusBitCountErr);
  EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, table.data(), maxBits + 1), lumStatusBitCountErr);
  EXPECT_TRUE(sameElements(dst.pixels(), before));
  EXPECT_TRUE(dst.guardsIntact());
}

TEST(Palette, AllTypes) {
  checkPalette<Lum8u, Lum8u, 3>(lumiLUTPalette_8u24u_C1R, 11);
  checkPalette<Lum8u, Lum32u, 4>(lumiLUTPalette_8u32u_C1R, 12);
  checkPalette<Lum16u, Lum8u, 1>(lumiLUTPalette_16u8u_C1R, 13);
  checkPalette<Lum16u, Lum8u, 3>(lumiLUTPalette_16u24u_C1R, 14);
  checkPalette<Lum16u, Lum32u, 4>(lumiLUTPalette_16u32u_C1R, 15);
}

#ifdef LUMI_HAVE_OPENCV
}  // namespace
#include <opencv2/core.hpp>
namespace {
// A full-range step table is a plain 256-entry lookup.
TEST(Lut, MatchesOpenCvTable) {
  Rng r = makeRng(16);
  cv::Mat lut(1, 256, CV_8U), src(37, 301, CV_8UC3), want;
  cv::randu(lut, 0, 256);
  cv::randu(src, 0, 256);
  cv::LUT(src, lut, want);
  std::vector<Lum32s> lev(257), val(257, 0);
  for (int k = 0; k < 256; ++k) lev[k] = k, val[k] = lut.at<Lum8u>(k);
  lev[256] = 256;
  const Lum32s* v[3] = {val.data(), val.data(), val.data()};
  const Lum32s* l[3] = {lev.data(), lev.data(), lev.data()};
  const int n[3] = {257, 257, 257};
  cv::Mat got(src.size(), src.type());
  ASSERT_EQ(lumiLUT_8u_C3R(src.ptr(), int(src.step), got.ptr(), int(got.step), {src.cols, src.rows}, v, l, n), 0);
  EXPECT_EQ(cv::norm(got, want, cv::NORM_INF), 0);
  (void)r;
}
#endif

}  // namespace
