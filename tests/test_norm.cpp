// Norms of one image, of a difference and relative to a second image: exact integer sums,
// the two 32f accumulation orders, the zero-reference warning and argument checks.
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "lumi.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

enum Kind { kInf, kL1, kL2 };

// Reference quantity per channel before the root. Integers: exact, the difference never
// saturated. 32f Inf: the single-precision difference. 32f L1/L2 in the order of the chosen path:
// hint 2 keeps per row an even-column and an odd-column double sum, each added into its own
// total, the totals added at the end; any other hint feeds four float lanes per channel over the
// whole ROI (a leftover pair into lanes 0 and 1, a last one into lane 0), then (s0 + s1) + (s2 + s3).
template <class T>
std::vector<long double> refRaw(const GuardedImage<T>& a, const GuardedImage<T>* b, Kind k, int hint) {
  const int ch = a.channels(), w = a.width(), w4 = w & ~3;
  std::vector<long double> r(ch, 0);
  for (int c = 0; c < ch; ++c) {
    double even = 0, odd = 0;
    float lane[4] = {0, 0, 0, 0};
    for (int y = 0; y < a.height(); ++y) {
      double e = 0, o = 0;
      for (int x = 0; x < w; ++x) {
        long double v = a.at(x, y, c);
        if (b) v -= static_cast<long double>(b->at(x, y, c));
        if constexpr (std::is_floating_point_v<T>) {
          float f = b ? a.at(x, y, c) - b->at(x, y, c) : a.at(x, y, c);
          if (k == kInf) {
            r[c] = std::max<long double>(r[c], std::fabs(f));
          } else if (hint == 2) {
            double d = b ? double(a.at(x, y, c)) - double(b->at(x, y, c)) : double(a.at(x, y, c));
            (x & 1 ? o : e) += k == kL1 ? std::fabs(d) : d * d;
          } else {
            lane[x < w4 ? x & 3 : x - w4 == 1] += k == kL1 ? std::fabs(f) : f * f;
          }
          continue;
        }
        v = std::fabs(v);
        if (k == kInf) r[c] = std::max(r[c], v);
        else r[c] += k == kL1 ? v : v * v;
      }
      even += e;
      odd += o;
    }
    if (std::is_floating_point_v<T> && k != kInf)
      r[c] = hint == 2 ? even + odd : double((lane[0] + lane[1]) + (lane[2] + lane[3]));
  }
  return r;
}

double finish(Kind k, long double raw) { return k == kL2 ? std::sqrt(double(raw)) : double(raw); }

// Every export seen through the 32f shape; the integer and Inf forms ignore the hint.
template <class T>
struct NormFns {
  int ch, use;  // channels in memory, results
  LumStatus (*norm)(int, const T*, int, LumiSize, Lum64f*);
  LumStatus (*diff)(int, const T*, int, const T*, int, LumiSize, Lum64f*);
  LumStatus (*rel)(int, const T*, int, const T*, int, LumiSize, Lum64f*);
};
template <auto F, class... A>
LumStatus call(int hint, A... a) {
  if constexpr (std::is_invocable_v<decltype(F), A..., int>) return F(a..., hint);
  else return F(a...);
}
#define TWO(T, F) call<F, const T*, int, const T*, int, LumiSize, Lum64f*>
#define FNS(T, TS, N, L, CH, USE)                                                                       \
  NormFns<T>{CH, USE, call<lumiNorm_##N##_##TS##_##L##R, const T*, int, LumiSize, Lum64f*>,            \
             TWO(T, lumiNormDiff_##N##_##TS##_##L##R), TWO(T, lumiNormRel_##N##_##TS##_##L##R)}
#define LAYOUTS(T, TS, N) FNS(T, TS, N, C1, 1, 1), FNS(T, TS, N, C3, 3, 3), FNS(T, TS, N, C4, 4, 4), FNS(T, TS, N, AC4, 4, 3)
#define KINDS(T, TS) std::vector<NormFns<T>>{LAYOUTS(T, TS, Inf), LAYOUTS(T, TS, L1), LAYOUTS(T, TS, L2)}

template <class T>
std::vector<NormFns<T>> allFns() {  // [kind * 4 + layout]
  if constexpr (std::is_same_v<T, Lum8u>) return KINDS(Lum8u, 8u);
  else if constexpr (std::is_same_v<T, Lum16s>) return KINDS(Lum16s, 16s);
  else if constexpr (std::is_same_v<T, Lum16u>) return KINDS(Lum16u, 16u);
  else return KINDS(Lum32f, 32f);
}

// Extreme values of the type appear often, so sums and differences hit their limits.
template <class T>
void fillMixed(GuardedImage<T>& im, Rng& r) {
  im.fillRandom(r);
  if constexpr (std::is_integral_v<T>)
    for (int y = 0; y < im.height(); ++y)
      for (int i = 0; i < im.width() * im.channels(); ++i) {
        int pick = randInt(r, 0, 5);
        if (pick < 2) im.row(y)[i] = pick ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
      }
}

template <class T>
void checkRandom() {
  constexpr bool kFloat = std::is_floating_point_v<T>;
  Rng r = makeRng(sizeof(T) * 31 + kFloat);
  auto fns = allFns<T>();
  for (std::size_t fi = 0; fi < fns.size(); ++fi)
    for (int iter = 0; iter < 12; ++iter) {
      const NormFns<T>& f = fns[fi];
      const Kind kind = Kind(fi / 4);
      LumiSize sz = randomSize(r, iter < 3 ? 7 : 300, 6);
      GuardedImage<T> a(sz.width, sz.height, f.ch, -1, -1, iter), b(sz.width, sz.height, f.ch, -1, -1, iter + 99);
      fillMixed(a, r);  // floats stay finite and moderate so the reference orders mean something
      fillMixed(b, r);
      for (int hint : {0, 2}) {
        if (hint == 2 && !kFloat) continue;
        SCOPED_TRACE(::testing::Message() << "kind " << kind << " ch " << f.ch << " hint " << hint << " "
                                          << sz.width << "x" << sz.height);
        auto rawA = refRaw<T>(a, nullptr, kind, hint), rawD = refRaw(a, &b, kind, hint), rawB = refRaw<T>(b, nullptr, kind, hint);
        Lum64f got[4], nb[4];
        ASSERT_EQ(f.norm(hint, a.ptr(), a.step(), sz, got), 0);
        for (int c = 0; c < f.use; ++c) EXPECT_EQ(got[c], finish(kind, rawA[c])) << "norm c " << c;
        ASSERT_EQ(f.diff(hint, a.ptr(), a.step(), b.ptr(), b.step(), sz, got), 0);
        for (int c = 0; c < f.use; ++c) EXPECT_EQ(got[c], finish(kind, rawD[c])) << "diff c " << c;
        // relative: C1 divides before the root, the multi-channel forms divide the norms
        ASSERT_EQ(f.norm(hint, b.ptr(), b.step(), sz, nb), 0);
        bool anyZero = false;
        for (int c = 0; c < f.use; ++c) anyZero |= rawB[c] == 0;
        EXPECT_EQ(f.rel(hint, a.ptr(), a.step(), b.ptr(), b.step(), sz, got), anyZero ? lumStatusDivByZeroWarn : lumStatusOk);
        for (int c = 0; c < f.use && !anyZero; ++c) {
          double want = finish(kind, rawD[c]) / nb[c];
          if (f.ch == 1 && kind == kL2 && kFloat) EXPECT_NEAR(got[c], want, 1e-6 * want);
          else if (f.ch == 1 && kind == kL2) EXPECT_EQ(got[c], std::sqrt(double(rawD[c]) / double(rawB[c])));
          else EXPECT_EQ(got[c], want) << "rel c " << c;
        }
        EXPECT_TRUE(a.guardsIntact());
        EXPECT_TRUE(b.guardsIntact());
      }
    }
}

TEST(Norm, MatchesReferences) {
  checkRandom<Lum8u>();
  checkRandom<Lum16s>();
  checkRandom<Lum16u>();
  checkRandom<Lum32f>();  // both accumulation orders
}

// One call writing one value: status 0 and exactly `want`.
#define EXPECT_VALUE(want, fn, ...) \
  do { Lum64f v_ = -1; ASSERT_EQ(fn(__VA_ARGS__, &v_), lumStatusOk) << #fn; EXPECT_EQ(v_, (want)) << #fn " " #__VA_ARGS__; } while (0)

TEST(Norm, ExtremeMagnitudes) {
  std::vector<Lum16s> s(7, 5), t(7, 32767), m(64, -32768);
  s[4] = -32768;
  std::vector<Lum32s> w = {3, INT32_MIN, 7};
  EXPECT_VALUE(32768.0, lumiNorm_Inf_16s_C1R, s.data(), 14, LumiSize{7, 1});
  EXPECT_VALUE(65535.0, lumiNormDiff_Inf_16s_C1R, s.data(), 14, t.data(), 14, LumiSize{7, 1});
  // a row of -32768 squares in pairs to exactly 2^31 per pair
  EXPECT_VALUE(std::sqrt(64.0 * 1073741824.0), lumiNorm_L2_16s_C1R, m.data(), 128, LumiSize{64, 1});
  EXPECT_VALUE(2147483648.0, lumiNorm_Inf_32s_C1R, w.data(), 12, LumiSize{3, 1});
}

// Sums far beyond 32 bits: rows that overlap in one buffer (step 1) of a constant value.
TEST(Norm, LargeRoisStayExact) {
  const int w = 8192, h = 4096;
  const LumiSize big{w, h};
  std::vector<Lum8u> b8(w + h, 255), z(w + h, 0);
  std::vector<Lum16u> b16(w + h, 65535);
  EXPECT_VALUE(255.0 * w * h, lumiNorm_L1_8u_C1R, b8.data(), 1, big);
  EXPECT_VALUE(std::sqrt(65025.0 * w * h), lumiNorm_L2_8u_C1R, b8.data(), 1, big);
  EXPECT_VALUE(std::sqrt(65025.0 * w * h), lumiNormDiff_L2_8u_C1R, b8.data(), 1, z.data(), 1, big);
  EXPECT_VALUE(std::sqrt(static_cast<double>(static_cast<long double>(65535.0L * 65535.0L * w * h))),
               lumiNorm_L2_16u_C1R, b16.data(), 2, big);
  EXPECT_VALUE(65535.0 * w * h, lumiNorm_L1_16u_C1R, b16.data(), 2, big);
  // one very long row: the vector kernels widen their partial sums several times within it
  const int n = 1100003;
  const LumiSize row{n, 1};
  std::vector<Lum8u> l8(n, 255), z8(n, 0);
  std::vector<Lum16u> l16(n, 65535);
  std::vector<Lum16s> s16(n, -32768);
  const int strips = n / 32768;  // whole strips, then the narrower last one
  const double whole = std::sqrt(65025.0 * 32768), last = std::sqrt(65025.0 * (n - strips * 32768));
  double total = 0;
  for (int k = 0; k < strips; ++k) total += whole * whole;
  EXPECT_VALUE(std::sqrt(total + last * last), lumiNorm_L2_8u_C1R, l8.data(), n, row);
  EXPECT_VALUE(std::sqrt(65025.0 * n), lumiNormDiff_L2_8u_C1R, l8.data(), n, z8.data(), n, row);
  EXPECT_VALUE(255.0 * n, lumiNormDiff_L1_8u_C1R, l8.data(), n, z8.data(), n, row);
  EXPECT_VALUE(65535.0 * n, lumiNorm_L1_16u_C1R, l16.data(), 2 * n, row);
  EXPECT_VALUE(32768.0 * n, lumiNorm_L1_16s_C1R, s16.data(), 2 * n, row);
  EXPECT_VALUE(-32768.0 * n, lumiSum_16s_C1R, s16.data(), 2 * n, row);
  // the wide-row case: 40000 x 1 and 200 x 200 of 255 both give 51000
  EXPECT_VALUE(51000.0, lumiNorm_L2_8u_C1R, l8.data(), 40000, LumiSize{40000, 1});
  EXPECT_VALUE(51000.0, lumiNorm_L2_8u_C1R, l8.data(), 200, LumiSize{200, 200});
}

// Rows wider than 32768 pixels: the L2 norm of 8u C1 is the root of the summed squared norms of
// 32768-column strips, each strip's norm rounded on its own.
TEST(Norm, WideRowsCombineStripNorms) {
  Rng r = makeRng(77);
  for (int w : {32768, 32769, 65536, 70001, 100000}) {
    const int h = 3;
    std::vector<Lum8u> img(static_cast<size_t>(w) * h);
    for (auto& p : img) p = static_cast<Lum8u>(randInt(r, 0, 255));
    double total = 0;
    for (int x0 = 0; x0 < w; x0 += 32768) {
      uint64_t sq = 0;
      for (int y = 0; y < h; ++y)
        for (int x = x0; x < w && x < x0 + 32768; ++x) sq += uint64_t(img[size_t(y) * w + x]) * img[size_t(y) * w + x];
      double n = std::sqrt(static_cast<double>(sq));
      total += n * n;
    }
    EXPECT_VALUE(std::sqrt(total), lumiNorm_L2_8u_C1R, img.data(), w, LumiSize{w, h});
  }
}

TEST(Norm, RelativeZeroReference) {
  GuardedImage<Lum8u> a(9, 3, 1), z(9, 3, 1);
  Rng r = makeRng(5);
  a.fillRandom(r);
  z.fill([](int, int, int) { return Lum8u(0); });
  Lum64f v = -1, n = -2;
  EXPECT_EQ(lumiNormRel_L1_8u_C1R(a.ptr(), a.step(), z.ptr(), z.step(), a.roi(), &v), lumStatusDivByZeroWarn);
  EXPECT_VALUE(v, lumiNorm_L1_8u_C1R, a.ptr(), a.step(), a.roi());
  EXPECT_EQ(lumiNormRel_L2_8u_C1R(a.ptr(), a.step(), z.ptr(), z.step(), a.roi(), &v), lumStatusDivByZeroWarn);
  EXPECT_VALUE(v, lumiNorm_L2_8u_C1R, a.ptr(), a.step(), a.roi());
  // 32f: a denominator below the smallest normal double counts as zero, NaN as well
  std::vector<float> fa = {1.0f, -2.0f}, fz = {0.0f, -0.0f}, ft = {1e-45f, 0.0f}, fn = {NAN, 1.0f};
  EXPECT_EQ(lumiNormRel_Inf_32f_C1R(fa.data(), 8, ft.data(), 8, LumiSize{2, 1}, &v), lumStatusOk);
  EXPECT_EQ(v, 2.0 / double(1e-45f));  // a denormal float is still a normal double
  EXPECT_EQ(lumiNormRel_L2_32f_C1R(fa.data(), 8, fz.data(), 8, LumiSize{2, 1}, &v, 2), lumStatusDivByZeroWarn);
  EXPECT_EQ(v, std::sqrt(5.0));
  EXPECT_EQ(lumiNormRel_L1_32f_C1R(fa.data(), 8, fn.data(), 8, LumiSize{2, 1}, &n, 0), lumStatusDivByZeroWarn);
  // multi-channel: one zero channel leaves every channel undivided
  GuardedImage<Lum8u> a3(5, 4, 3), b3(5, 4, 3), a4(5, 4, 4), b4(5, 4, 4);
  a3.fillRandom(r);
  b3.fill([](int x, int y, int c) { return Lum8u(c == 1 ? 0 : 1 + x + y); });
  Lum64f got[3], d[3];
  EXPECT_EQ(lumiNormRel_Inf_8u_C3R(a3.ptr(), a3.step(), b3.ptr(), b3.step(), a3.roi(), got), lumStatusDivByZeroWarn);
  lumiNormDiff_Inf_8u_C3R(a3.ptr(), a3.step(), b3.ptr(), b3.step(), a3.roi(), d);
  for (int c = 0; c < 3; ++c) EXPECT_EQ(got[c], d[c]);
  // AC4 ignores a zero alpha channel
  a4.fillRandom(r);
  b4.fill([](int x, int, int c) { return Lum8u(c == 3 ? 0 : 1 + x); });
  EXPECT_EQ(lumiNormRel_L1_8u_AC4R(a4.ptr(), a4.step(), b4.ptr(), b4.step(), a4.roi(), got), lumStatusOk);
  EXPECT_TRUE(a.guardsIntact() && z.guardsIntact() && a3.guardsIntact() && b3.guardsIntact() && a4.guardsIntact() &&
              b4.guardsIntact());
}

TEST(Norm, ArgumentChecks) {
  Lum8u px[16] = {};
  Lum64f v[4] = {-1, -1, -1, -1};
  EXPECT_EQ(lumiNorm_L1_8u_C1R(px, 4, LumiSize{0, 0}, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiNorm_L1_8u_C1R(nullptr, 4, LumiSize{1, 1}, v), lumStatusNullPtrErr);
  EXPECT_EQ(lumiNorm_L1_8u_C1R(px, 0, LumiSize{0, 1}, v), lumStatusSizeErr);  // size first
  EXPECT_EQ(lumiNorm_L1_8u_C1R(px, 0, LumiSize{1, 1}, v), lumStatusStepErr);
  EXPECT_EQ(lumiNormDiff_L2_16s_C3R(reinterpret_cast<Lum16s*>(px), 6, nullptr, 6, LumiSize{1, 1}, v), lumStatusNullPtrErr);
  EXPECT_EQ(lumiNormRel_Inf_32f_C4R(reinterpret_cast<float*>(px), 16, reinterpret_cast<float*>(px), -16, LumiSize{1, 1}, v), lumStatusStepErr);
  EXPECT_EQ(lumiNormRel_L2_32f_AC4R(reinterpret_cast<float*>(px), 16, reinterpret_cast<float*>(px), 16, LumiSize{1, -1}, v, 2), lumStatusSizeErr);
  EXPECT_EQ(lumiNorm_Inf_32s_C1R(reinterpret_cast<Lum32s*>(px), 0, LumiSize{1, 1}, v), lumStatusStepErr);
  for (double x : v) EXPECT_EQ(x, -1.0);
}

}  // namespace
