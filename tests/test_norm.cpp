// Norms of one image, of a difference and relative to a second image: exact integer sums,
// the two 32f accumulation orders, the zero-reference warning and argument checks.
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

#include "lumi.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

enum Kind { kInf, kL1, kL2 };

// Reference quantity per channel before the root, computed in the widest exact type.
template <class T>
std::vector<long double> refRaw(const GuardedImage<T>& a, const GuardedImage<T>* b, Kind k) {
  int ch = a.channels();
  std::vector<long double> r(ch, 0);
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      for (int c = 0; c < ch; ++c) {
        long double v = a.at(x, y, c);
        if (b) v -= static_cast<long double>(b->at(x, y, c));
        if (b && std::is_floating_point_v<T>) v = static_cast<T>(a.at(x, y, c) - b->at(x, y, c));
        v = std::fabs(v);
        if (k == kInf) r[c] = std::max(r[c], v);
        else if (k == kL1) r[c] += v;
        else r[c] += v * v;
      }
  return r;
}

// The single-precision order: four lanes per channel over the whole ROI, pairs of leftovers
// into lanes 0 and 1, a last one into lane 0, then (s0 + s1) + (s2 + s3).
std::vector<double> refFast(const GuardedImage<float>& a, const GuardedImage<float>* b, Kind k) {
  int ch = a.channels();
  std::vector<float> lanes(ch * 4, 0.0f);
  auto term = [&](int x, int y, int c) {
    float v = b ? a.at(x, y, c) - b->at(x, y, c) : a.at(x, y, c);
    return k == kL1 ? std::fabs(v) : v * v;
  };
  for (int y = 0; y < a.height(); ++y)
    for (int c = 0; c < ch; ++c) {
      int x = 0;
      for (; x + 4 <= a.width(); x += 4)
        for (int l = 0; l < 4; ++l) lanes[c * 4 + l] += term(x + l, y, c);
      if (a.width() - x >= 2) {
        lanes[c * 4] += term(x, y, c);
        lanes[c * 4 + 1] += term(x + 1, y, c);
        x += 2;
      }
      if (x < a.width()) lanes[c * 4] += term(x, y, c);
    }
  std::vector<double> r(ch);
  for (int c = 0; c < ch; ++c)
    r[c] = static_cast<double>((lanes[c * 4] + lanes[c * 4 + 1]) + (lanes[c * 4 + 2] + lanes[c * 4 + 3]));
  return r;
}

// The double-precision order: per row an even-column and an odd-column sum, each added into
// its own total, the two totals added at the end.
std::vector<double> refAccurate(const GuardedImage<float>& a, const GuardedImage<float>* b, Kind k) {
  int ch = a.channels();
  std::vector<double> even(ch, 0), odd(ch, 0), r(ch);
  for (int y = 0; y < a.height(); ++y)
    for (int c = 0; c < ch; ++c) {
      double e = 0, o = 0;
      for (int x = 0; x < a.width(); ++x) {
        double v = b ? double(a.at(x, y, c)) - double(b->at(x, y, c)) : double(a.at(x, y, c));
        double t = k == kL1 ? std::fabs(v) : v * v;
        (x & 1 ? o : e) += t;
      }
      even[c] += e;
      odd[c] += o;
    }
  for (int c = 0; c < ch; ++c) r[c] = even[c] + odd[c];
  return r;
}

// One exported function family member, seen through a common shape.
template <class T>
struct NormFns {
  int ch, use;  // channels in memory, results
  std::function<LumStatus(const T*, int, LumiSize, Lum64f*, int)> norm;
  std::function<LumStatus(const T*, int, const T*, int, LumiSize, Lum64f*, int)> diff, rel;
};

#define INT_FNS(T, TS, N, L, CH, USE)                                                          \
  NormFns<T>{CH, USE,                                                                          \
             [](const T* s, int ss, LumiSize r, Lum64f* v, int) { return lumiNorm_##N##_##TS##_##L##R(s, ss, r, v); }, \
             [](const T* a, int as, const T* b, int bs, LumiSize r, Lum64f* v, int) {          \
               return lumiNormDiff_##N##_##TS##_##L##R(a, as, b, bs, r, v); },                  \
             [](const T* a, int as, const T* b, int bs, LumiSize r, Lum64f* v, int) {          \
               return lumiNormRel_##N##_##TS##_##L##R(a, as, b, bs, r, v); }}
#define HINT_FNS(N, L, CH, USE)                                                                \
  NormFns<float>{CH, USE,                                                                      \
                 [](const float* s, int ss, LumiSize r, Lum64f* v, int h) { return lumiNorm_##N##_32f_##L##R(s, ss, r, v, h); }, \
                 [](const float* a, int as, const float* b, int bs, LumiSize r, Lum64f* v, int h) { \
                   return lumiNormDiff_##N##_32f_##L##R(a, as, b, bs, r, v, h); },              \
                 [](const float* a, int as, const float* b, int bs, LumiSize r, Lum64f* v, int h) { \
                   return lumiNormRel_##N##_32f_##L##R(a, as, b, bs, r, v, h); }}
#define LAYOUTS(M, ...) \
  {M(__VA_ARGS__, C1, 1, 1), M(__VA_ARGS__, C3, 3, 3), M(__VA_ARGS__, C4, 4, 4), M(__VA_ARGS__, AC4, 4, 3)}

template <class T>
std::vector<std::vector<NormFns<T>>> allFns();  // [kind][layout]
#define INT_ALL(T, TS) \
  template <> std::vector<std::vector<NormFns<T>>> allFns<T>() { \
    return {LAYOUTS(INT_FNS, T, TS, Inf), LAYOUTS(INT_FNS, T, TS, L1), LAYOUTS(INT_FNS, T, TS, L2)}; }
INT_ALL(Lum8u, 8u)
INT_ALL(Lum16s, 16s)
INT_ALL(Lum16u, 16u)
template <>
std::vector<std::vector<NormFns<float>>> allFns<float>() {
  return {LAYOUTS(INT_FNS, float, 32f, Inf), LAYOUTS(HINT_FNS, L1), LAYOUTS(HINT_FNS, L2)};
}

double finish(Kind k, long double raw) { return k == kL2 ? std::sqrt(double(raw)) : double(raw); }

// Extreme values of the type appear often, so sums and differences hit their limits.
template <class T>
void fillMixed(GuardedImage<T>& im, Rng& r) {
  im.fillRandom(r);
  for (int y = 0; y < im.height(); ++y)
    for (int i = 0; i < im.width() * im.channels(); ++i) {
      int pick = randInt(r, 0, 5);
      if (pick == 0) im.row(y)[i] = std::numeric_limits<T>::lowest();
      if (pick == 1) im.row(y)[i] = std::numeric_limits<T>::max();
      if constexpr (std::is_floating_point_v<T>)
        if (pick == 1) im.row(y)[i] = static_cast<T>(randInt(r, -3, 3)) * 1e7f;
    }
}

template <class T>
void checkRandom() {
  Rng r = makeRng(sizeof(T) * 31 + std::is_floating_point_v<T>);
  auto fns = allFns<T>();
  for (int kind = 0; kind < 3; ++kind)
    for (auto& f : fns[kind])
      for (int iter = 0; iter < 12; ++iter) {
        LumiSize sz = randomSize(r, iter < 3 ? 7 : 300, 6);
        GuardedImage<T> a(sz.width, sz.height, f.ch, -1, -1, iter), b(sz.width, sz.height, f.ch, -1, -1, iter + 99);
        fillMixed(a, r);
        fillMixed(b, r);
        if (std::is_floating_point_v<T>) {
          a.fillRandom(r);  // finite, moderate values keep the reference orders meaningful
          b.fillRandom(r);
        }
        for (int hint : {0, 2}) {
          if (hint == 2 && !std::is_floating_point_v<T>) continue;
          Lum64f got[4], want[4];
          std::vector<long double> rawA = refRaw<T>(a, nullptr, Kind(kind)), rawD = refRaw(a, &b, Kind(kind));
          std::vector<double> wa(f.ch), wd(f.ch);
          for (int c = 0; c < f.ch; ++c) {
            wa[c] = finish(Kind(kind), rawA[c]);
            wd[c] = finish(Kind(kind), rawD[c]);
          }
          if constexpr (std::is_floating_point_v<T>) {
            if (kind != kInf) {
              auto fa = hint == 2 ? refAccurate(a, nullptr, Kind(kind)) : refFast(a, nullptr, Kind(kind));
              auto fd = hint == 2 ? refAccurate(a, &b, Kind(kind)) : refFast(a, &b, Kind(kind));
              for (int c = 0; c < f.ch; ++c) {
                wa[c] = finish(Kind(kind), fa[c]);
                wd[c] = finish(Kind(kind), fd[c]);
              }
            }
          }
          ASSERT_EQ(f.norm(a.ptr(), a.step(), sz, got, hint), 0);
          for (int c = 0; c < f.use; ++c) EXPECT_EQ(got[c], wa[c]) << "norm kind " << kind << " ch " << f.ch << " c " << c << " hint " << hint << " w " << sz.width;
          ASSERT_EQ(f.diff(a.ptr(), a.step(), b.ptr(), b.step(), sz, got, hint), 0);
          for (int c = 0; c < f.use; ++c) EXPECT_EQ(got[c], wd[c]) << "diff kind " << kind << " ch " << f.ch << " c " << c << " hint " << hint << " w " << sz.width;
          // relative: C1 divides before the root, the multi-channel forms divide the norms
          std::vector<long double> rawB = refRaw<T>(b, nullptr, Kind(kind));
          LumStatus st = f.rel(a.ptr(), a.step(), b.ptr(), b.step(), sz, got, hint);
          bool anyZero = false;
          for (int c = 0; c < f.use; ++c) anyZero |= rawB[c] == 0;
          EXPECT_EQ(st, anyZero ? lumStatusDivByZeroWarn : lumStatusOk);
          Lum64f nb[4];
          f.norm(b.ptr(), b.step(), sz, nb, hint);
          for (int c = 0; c < f.use && !anyZero; ++c) {
            if (f.ch == 1 && kind == kL2 && !std::is_floating_point_v<T>)
              want[c] = std::sqrt(double(rawD[c]) / double(rawB[c]));
            else if (f.ch == 1 && kind == kL2)
              want[c] = std::sqrt((wd[c] * wd[c]) / (nb[c] * nb[c]));  // checked loosely below
            else
              want[c] = wd[c] / nb[c];
            if (std::is_floating_point_v<T> && f.ch == 1 && kind == kL2)
              EXPECT_NEAR(got[c], want[c], 1e-6 * want[c]);
            else
              EXPECT_EQ(got[c], want[c]) << "rel kind " << kind << " ch " << f.ch;
          }
          EXPECT_TRUE(a.guardsIntact());
          EXPECT_TRUE(b.guardsIntact());
        }
      }
}

TEST(Norm, Matches8uReference) { checkRandom<Lum8u>(); }
TEST(Norm, Matches16sReference) { checkRandom<Lum16s>(); }
TEST(Norm, Matches16uReference) { checkRandom<Lum16u>(); }
TEST(Norm, Matches32fBothAccumulationOrders) { checkRandom<Lum32f>(); }

TEST(Norm, ExtremeMagnitudes) {
  std::vector<Lum16s> s(7, 5);
  s[4] = -32768;
  Lum64f v;
  ASSERT_EQ(lumiNorm_Inf_16s_C1R(s.data(), 14, LumiSize{7, 1}, &v), 0);
  EXPECT_EQ(v, 32768.0);
  std::vector<Lum16s> t(7, 32767);
  ASSERT_EQ(lumiNormDiff_Inf_16s_C1R(s.data(), 14, t.data(), 14, LumiSize{7, 1}, &v), 0);
  EXPECT_EQ(v, 65535.0);
  // a row of -32768 squares in pairs to exactly 2^31 per pair
  std::vector<Lum16s> m(64, -32768);
  ASSERT_EQ(lumiNorm_L2_16s_C1R(m.data(), 128, LumiSize{64, 1}, &v), 0);
  EXPECT_EQ(v, std::sqrt(64.0 * 1073741824.0));
  std::vector<Lum32s> w = {3, INT32_MIN, 7};
  ASSERT_EQ(lumiNorm_Inf_32s_C1R(w.data(), 12, LumiSize{3, 1}, &v), 0);
  EXPECT_EQ(v, 2147483648.0);
}

// Sums far beyond 32 bits: rows that overlap in one buffer (step 1) of a constant value.
TEST(Norm, LargeRoisStayExact) {
  const int w = 8192, h = 4096;
  std::vector<Lum8u> b8(w + h, 255);
  Lum64f v;
  ASSERT_EQ(lumiNorm_L1_8u_C1R(b8.data(), 1, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, 255.0 * w * h);
  ASSERT_EQ(lumiNorm_L2_8u_C1R(b8.data(), 1, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, std::sqrt(65025.0 * w * h));
  std::vector<Lum8u> z(w + h, 0);
  ASSERT_EQ(lumiNormDiff_L2_8u_C1R(b8.data(), 1, z.data(), 1, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, std::sqrt(65025.0 * w * h));
  std::vector<Lum16u> b16(w + h, 65535);
  ASSERT_EQ(lumiNorm_L2_16u_C1R(b16.data(), 2, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, std::sqrt(static_cast<double>(static_cast<long double>(65535.0L * 65535.0L * w * h))));
  ASSERT_EQ(lumiNorm_L1_16u_C1R(b16.data(), 2, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, 65535.0 * w * h);
  // one very long row: the vector kernels widen their partial sums several times within it
  const int n = 1100003;
  std::vector<Lum8u> l8(n, 255);
  std::vector<Lum16u> l16(n, 65535);
  std::vector<Lum16s> s16(n, -32768);
  ASSERT_EQ(lumiNorm_L2_8u_C1R(l8.data(), n, LumiSize{n, 1}, &v), 0);
  const int strips = n / 32768;  // whole strips, then the narrower last one
  const double whole = std::sqrt(65025.0 * 32768), last = std::sqrt(65025.0 * (n - strips * 32768));
  double total = 0;
  for (int k = 0; k < strips; ++k) total += whole * whole;
  EXPECT_EQ(v, std::sqrt(total + last * last));
  std::vector<Lum8u> z8(n, 0);
  ASSERT_EQ(lumiNormDiff_L2_8u_C1R(l8.data(), n, z8.data(), n, LumiSize{n, 1}, &v), 0);
  EXPECT_EQ(v, std::sqrt(65025.0 * n));
  ASSERT_EQ(lumiNormDiff_L1_8u_C1R(l8.data(), n, z8.data(), n, LumiSize{n, 1}, &v), lumStatusOk);
  EXPECT_EQ(v, 255.0 * n);
  ASSERT_EQ(lumiNorm_L1_16u_C1R(l16.data(), 2 * n, LumiSize{n, 1}, &v), 0);
  EXPECT_EQ(v, 65535.0 * n);
  ASSERT_EQ(lumiNorm_L1_16s_C1R(s16.data(), 2 * n, LumiSize{n, 1}, &v), 0);
  EXPECT_EQ(v, 32768.0 * n);
  Lum64f sum;
  ASSERT_EQ(lumiSum_16s_C1R(s16.data(), 2 * n, LumiSize{n, 1}, &sum), 0);
  EXPECT_EQ(sum, -32768.0 * n);
  // the wide-row case: 40000 x 1 and 200 x 200 of 255 both give 51000
  std::vector<Lum8u> row(40000, 255);
  ASSERT_EQ(lumiNorm_L2_8u_C1R(row.data(), 40000, LumiSize{40000, 1}, &v), 0);
  EXPECT_EQ(v, 51000.0);
  ASSERT_EQ(lumiNorm_L2_8u_C1R(row.data(), 200, LumiSize{200, 200}, &v), 0);
  EXPECT_EQ(v, 51000.0);
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
        for (int x = x0; x < w && x < x0 + 32768; ++x) {
          uint64_t v = img[static_cast<size_t>(y) * w + x];
          sq += v * v;
        }
      double n = std::sqrt(static_cast<double>(sq));
      total += n * n;
    }
    Lum64f v = -1;
    ASSERT_EQ(lumiNorm_L2_8u_C1R(img.data(), w, LumiSize{w, h}, &v), 0);
    EXPECT_EQ(v, std::sqrt(total)) << "width " << w;
  }
}

TEST(Norm, RelativeZeroReference) {
  GuardedImage<Lum8u> a(9, 3, 1), z(9, 3, 1);
  Rng r = makeRng(5);
  a.fillRandom(r);
  z.fill([](int, int, int) { return Lum8u(0); });
  Lum64f v = -1, n;
  EXPECT_EQ(lumiNormRel_L1_8u_C1R(a.ptr(), a.step(), z.ptr(), z.step(), a.roi(), &v), lumStatusDivByZeroWarn);
  lumiNorm_L1_8u_C1R(a.ptr(), a.step(), a.roi(), &n);
  EXPECT_EQ(v, n);
  EXPECT_EQ(lumiNormRel_L2_8u_C1R(a.ptr(), a.step(), z.ptr(), z.step(), a.roi(), &v), lumStatusDivByZeroWarn);
  lumiNorm_L2_8u_C1R(a.ptr(), a.step(), a.roi(), &n);
  EXPECT_EQ(v, n);
  // 32f: a denominator below the smallest normal double counts as zero, NaN as well
  std::vector<float> fa = {1.0f, -2.0f}, fz = {0.0f, -0.0f}, ft = {1e-45f, 0.0f}, fn = {NAN, 1.0f};
  EXPECT_EQ(lumiNormRel_Inf_32f_C1R(fa.data(), 8, ft.data(), 8, LumiSize{2, 1}, &v), 0);
  EXPECT_EQ(v, 2.0 / double(1e-45f));  // a denormal float is still a normal double
  EXPECT_EQ(lumiNormRel_L2_32f_C1R(fa.data(), 8, fz.data(), 8, LumiSize{2, 1}, &v, 2), lumStatusDivByZeroWarn);
  EXPECT_EQ(v, std::sqrt(5.0));
  EXPECT_EQ(lumiNormRel_L1_32f_C1R(fa.data(), 8, fn.data(), 8, LumiSize{2, 1}, &v, 0), lumStatusDivByZeroWarn);
  // multi-channel: one zero channel leaves every channel undivided
  GuardedImage<Lum8u> a3(5, 4, 3), b3(5, 4, 3);
  a3.fillRandom(r);
  b3.fill([](int x, int y, int c) { return Lum8u(c == 1 ? 0 : 1 + x + y); });
  Lum64f got[3], d[3];
  EXPECT_EQ(lumiNormRel_Inf_8u_C3R(a3.ptr(), a3.step(), b3.ptr(), b3.step(), a3.roi(), got), lumStatusDivByZeroWarn);
  lumiNormDiff_Inf_8u_C3R(a3.ptr(), a3.step(), b3.ptr(), b3.step(), a3.roi(), d);
  for (int c = 0; c < 3; ++c) EXPECT_EQ(got[c], d[c]);
  // AC4 ignores a zero alpha channel
  GuardedImage<Lum8u> a4(5, 4, 4), b4(5, 4, 4);
  a4.fillRandom(r);
  b4.fill([](int x, int, int c) { return Lum8u(c == 3 ? 0 : 1 + x); });
  EXPECT_EQ(lumiNormRel_L1_8u_AC4R(a4.ptr(), a4.step(), b4.ptr(), b4.step(), a4.roi(), got), 0);
  EXPECT_TRUE(a3.guardsIntact() && b3.guardsIntact() && a4.guardsIntact() && b4.guardsIntact());
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
