// Sums, means, extrema with positions and range counts against plain references.
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "lumi.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

// Sum and mean seen through the 32f shape; the integer forms ignore the hint.
template <auto F, class T>
LumStatus call(int hint, const T* s, int st, LumiSize r, Lum64f* v) {
  if constexpr (std::is_invocable_v<decltype(F), const T*, int, LumiSize, Lum64f*, int>) return F(s, st, r, v, hint);
  else return F(s, st, r, v);
}
template <class T>
using SumFn = LumStatus (*)(int, const T*, int, LumiSize, Lum64f*);
#define LAYOUT_FNS(OP, TS, T) \
  {call<lumi##OP##_##TS##_C1R, T>, call<lumi##OP##_##TS##_C3R, T>, call<lumi##OP##_##TS##_C4R, T>, call<lumi##OP##_##TS##_AC4R, T>}

template <class T>
struct SumMean {
  SumFn<T> sum[4], mean[4];
};
template <class T>
SumMean<T> sumFns() {
  if constexpr (std::is_same_v<T, Lum8u>) return {LAYOUT_FNS(Sum, 8u, T), LAYOUT_FNS(Mean, 8u, T)};
  else if constexpr (std::is_same_v<T, Lum16s>) return {LAYOUT_FNS(Sum, 16s, T), LAYOUT_FNS(Mean, 16s, T)};
  else if constexpr (std::is_same_v<T, Lum16u>) return {LAYOUT_FNS(Sum, 16u, T), LAYOUT_FNS(Mean, 16u, T)};
  else return {LAYOUT_FNS(Sum, 32f, T), LAYOUT_FNS(Mean, 32f, T)};
}

// Reference sums: exact for integers; for 32f hint 2 an even-column and an odd-column double
// sum carried across rows, odd + even; otherwise four float lanes fed along each row (a leftover
// pair into lanes 0 and 1, a last one into lane 0), added at the end in extended precision.
template <class T>
std::vector<double> refSum(const GuardedImage<T>& im, int hint) {
  const int ch = im.channels(), w = im.width(), w4 = w & ~3;
  std::vector<double> out(ch);
  for (int c = 0; c < ch; ++c) {
    int64_t s = 0;
    double e = 0, o = 0;
    float l[4] = {0, 0, 0, 0};
    for (int y = 0; y < im.height(); ++y)
      for (int x = 0; x < w; ++x) {
        if constexpr (std::is_integral_v<T>) s += im.at(x, y, c);
        else if (hint == 2) (x & 1 ? o : e) += im.at(x, y, c);
        else l[x < w4 ? x & 3 : x - w4 == 1] += im.at(x, y, c);
      }
    if constexpr (std::is_integral_v<T>) out[c] = double(s);
    else out[c] = hint == 2 ? o + e : double(static_cast<long double>(l[0]) + l[1] + l[2] + l[3]);
  }
  return out;
}

template <class T>
void checkSums() {
  Rng r = makeRng(sizeof(T) + 77 * std::is_floating_point_v<T>);
  const SumMean<T> fns = sumFns<T>();
  for (int l = 0; l < 4; ++l)
    for (int iter = 0; iter < 25; ++iter) {
      LumiSize sz = randomSize(r, iter < 5 ? 9 : 400, 7);
      GuardedImage<T> im(sz.width, sz.height, kLayouts[l].ch, -1, -1, iter);
      im.fillRandom(r);
      if (iter % 3 == 0)  // runs of the extreme values; for 32f big cancellations
        im.fill([&](int x, int, int) {
          if constexpr (std::is_floating_point_v<T>) return x % 2 ? T(1e30) : T(-3.5);
          return x % 2 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
        });
      for (int hint : {0, 1, 2}) {
        auto want = refSum(im, hint);
        Lum64f got[4] = {}, mean[4] = {};
        ASSERT_EQ(fns.sum[l](hint, im.ptr(), im.step(), sz, got), 0);
        ASSERT_EQ(fns.mean[l](hint, im.ptr(), im.step(), sz, mean), 0);
        const double n = double(sz.width) * sz.height;
        for (int c = 0; c < kLayouts[l].use; ++c) {
          EXPECT_EQ(got[c], want[c]) << "layout " << l << " c " << c << " hint " << hint << " " << sz.width << "x" << sz.height;
          EXPECT_EQ(mean[c], kLayouts[l].ch == 1 ? want[c] / n : want[c] * (1.0 / n));
        }
        EXPECT_TRUE(im.guardsIntact());
      }
    }
}

TEST(Sum, MatchesReferences) {
  checkSums<Lum8u>();
  checkSums<Lum16s>();
  checkSums<Lum16u>();
  checkSums<float>();  // both accumulation orders
}

// Totals far beyond 32 bits stay exact: overlapping rows (step of one element) of one value.
TEST(Sum, LargeRoisStayExact) {
  const int w = 8192, h = 4096;
  std::vector<Lum8u> b8(w + h, 255);
  std::vector<Lum16u> b16(w + h, 65535);
  std::vector<Lum16s> s16(w + h, -32768);
  Lum64f v[4] = {};
  EXPECT_EQ(lumiSum_8u_C1R(b8.data(), 1, LumiSize{w, h}, v) | lumiSum_16u_C1R(b16.data(), 2, LumiSize{w, h}, v + 1) |
                lumiSum_16s_C1R(s16.data(), 2, LumiSize{w, h}, v + 2) | lumiMean_16s_C1R(s16.data(), 2, LumiSize{w, h}, v + 3),
            0);
  EXPECT_EQ(std::vector<double>(v, v + 4), (std::vector<double>{255.0 * w * h, 65535.0 * w * h, -32768.0 * w * h, -32768.0}));
}

TEST(Sum, AccuratePathKeepsSmallTerms) {
  std::vector<float> row(4097, 1.0f);
  row[0] = 1e8f;
  Lum64f fast, acc;
  ASSERT_EQ(lumiSum_32f_C1R(row.data(), 4 * 4097, LumiSize{4097, 1}, &acc, lumHintAccurate), lumStatusOk);
  ASSERT_EQ(lumiSum_32f_C1R(row.data(), 4 * 4097, LumiSize{4097, 1}, &fast, lumHintFast), lumStatusOk);
  EXPECT_EQ(acc, 1e8 + 4096.0);
  EXPECT_NE(fast, acc);
}

TEST(Sum, ValidationOrder) {
  Lum8u px[8] = {};
  Lum64f v[4] = {-1, -1, -1, -1};
  EXPECT_EQ(lumiSum_8u_C1R(nullptr, 0, LumiSize{0, 0}, v), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSum_8u_C1R(px, 0, LumiSize{0, 0}, v), lumStatusStepErr);  // step before ROI
  EXPECT_EQ(lumiSum_8u_C1R(px, 1, LumiSize{0, 1}, v), lumStatusSizeErr);
  EXPECT_EQ(lumiMean_8u_C1R(nullptr, 1, LumiSize{1, 1}, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMean_8u_C1R(px, 0, LumiSize{0, 0}, v), lumStatusStepErr);
  EXPECT_EQ(lumiMean_32f_C3R(nullptr, 0, LumiSize{0, 0}, v, 2), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSum_16s_AC4R(reinterpret_cast<Lum16s*>(px), -8, LumiSize{1, 1}, v), lumStatusStepErr);
  for (double x : v) EXPECT_EQ(x, -1.0);
}

// ---- extrema ---------------------------------------------------------------------------------
template <class T>
struct ExtFns {
  LumStatus (*mn)(const T*, int, LumiSize, T*), (*mx)(const T*, int, LumiSize, T*);
  LumStatus (*mnmx)(const T*, int, LumiSize, T*, T*);
  LumStatus (*mnI)(const T*, int, LumiSize, T*, int*, int*), (*mxI)(const T*, int, LumiSize, T*, int*, int*);
};
#define EXT(TS, L) {lumiMin_##TS##_##L##R, lumiMax_##TS##_##L##R, lumiMinMax_##TS##_##L##R, lumiMinIndx_##TS##_##L##R, lumiMaxIndx_##TS##_##L##R}
#define EXT_ALL(TS) std::vector<ExtFns<T>>{EXT(TS, C1), EXT(TS, C3), EXT(TS, C4), EXT(TS, AC4)}
template <class T>
std::vector<ExtFns<T>> extFns() {
  if constexpr (std::is_same_v<T, Lum8u>) return EXT_ALL(8u);
  else if constexpr (std::is_same_v<T, Lum16s>) return EXT_ALL(16s);
  else return EXT_ALL(32f);
}

template <class T>
void checkExtrema() {
  Rng r = makeRng(sizeof(T) * 5 + 3);
  auto fns = extFns<T>();
  for (int l = 0; l < 4; ++l)
    for (int iter = 0; iter < 30; ++iter) {
      LumiSize sz = randomSize(r, iter < 5 ? 5 : 300, 9);
      GuardedImage<T> im(sz.width, sz.height, kLayouts[l].ch, -1, -1, iter);
      // few distinct values: many ties for the position rule
      int span = iter % 2 ? 3 : 200;
      im.fill([&](int, int, int) { return static_cast<T>(randInt(r, -span, span) + (std::is_unsigned_v<T> ? span : 0)); });
      if (iter % 5 == 4) im.fillRandom(r);
      // reference: the first strict improvement in row-major order
      T wmin[4], wmax[4];
      int minX[4] = {}, minY[4] = {}, maxX[4] = {}, maxY[4] = {};
      for (int c = 0; c < kLayouts[l].ch; ++c) {
        wmin[c] = wmax[c] = im.at(0, 0, c);
        for (int y = 0; y < sz.height; ++y)
          for (int x = 0; x < sz.width; ++x) {
            T v = im.at(x, y, c);
            if (v < wmin[c]) wmin[c] = v, minX[c] = x, minY[c] = y;
            if (v > wmax[c]) wmax[c] = v, maxX[c] = x, maxY[c] = y;
          }
      }
      SCOPED_TRACE(::testing::Message() << "layout " << l << " " << sz.width << "x" << sz.height);
      const auto& f = fns[l];
      T mn[4], mx[4], mm0[4], mm1[4], mnI[4], mxI[4];
      int px[4], py[4], qx[4], qy[4];
      ASSERT_EQ(f.mn(im.ptr(), im.step(), sz, mn), 0);
      ASSERT_EQ(f.mx(im.ptr(), im.step(), sz, mx), 0);
      ASSERT_EQ(f.mnmx(im.ptr(), im.step(), sz, mm0, mm1), 0);
      ASSERT_EQ(f.mnI(im.ptr(), im.step(), sz, mnI, px, py), 0);
      ASSERT_EQ(f.mxI(im.ptr(), im.step(), sz, mxI, qx, qy), 0);
      for (int c = 0; c < kLayouts[l].use; ++c) {
        EXPECT_TRUE(mn[c] == wmin[c] && mm0[c] == wmin[c] && mnI[c] == wmin[c]) << "min, channel " << c;
        EXPECT_TRUE(mx[c] == wmax[c] && mm1[c] == wmax[c] && mxI[c] == wmax[c]) << "max, channel " << c;
        EXPECT_EQ(px[c], minX[c]) << "channel " << c;
        EXPECT_EQ(py[c], minY[c]) << "channel " << c;
        EXPECT_EQ(qx[c], maxX[c]) << "channel " << c;
        EXPECT_EQ(qy[c], maxY[c]) << "channel " << c;
      }
      EXPECT_TRUE(im.guardsIntact());
    }
}

TEST(Extrema, MatchesReferences) {
  checkExtrema<Lum8u>();
  checkExtrema<Lum16s>();
  checkExtrema<float>();
}

TEST(Extrema, FirstInRowMajorOrder) {
  GuardedImage<Lum8u> im(8, 6, 1);
  im.fill([](int, int, int) { return Lum8u(9); });
  auto expectAt = [&](auto fn, int want, int wx, int wy) {
    Lum8u v = 1;
    int x = -1, y = -1;
    ASSERT_EQ(fn(im.ptr(), im.step(), im.roi(), &v, &x, &y), lumStatusOk);
    EXPECT_EQ(v, want);
    EXPECT_EQ(x, wx);
    EXPECT_EQ(y, wy);
    EXPECT_TRUE(im.guardsIntact());
  };
  expectAt(lumiMinIndx_8u_C1R, 9, 0, 0);
  im.at(5, 2) = im.at(1, 4) = 3;
  expectAt(lumiMinIndx_8u_C1R, 3, 5, 2);
  // the scan may stop at a 0, but a 0 further on must not move the position
  im.at(6, 1) = im.at(0, 3) = 0;
  expectAt(lumiMinIndx_8u_C1R, 0, 6, 1);
  im.at(7, 5) = im.at(2, 5) = 255;
  expectAt(lumiMaxIndx_8u_C1R, 255, 2, 5);
}

TEST(Extrema, ValidationOrder) {
  Lum16s px[8] = {};
  Lum16s v[4] = {7, 7, 7, 7};
  int x[4] = {7, 7, 7, 7}, y[4] = {7, 7, 7, 7};
  EXPECT_EQ(lumiMinIndx_16s_C3R(px, 6, LumiSize{0, 0}, v, x, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMinMax_16s_C1R(px, 0, LumiSize{0, 1}, v, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMinMax_16s_C1R(px, 0, LumiSize{0, 1}, v, v), lumStatusSizeErr);  // ROI before step
  EXPECT_EQ(lumiMax_16s_C4R(px, 0, LumiSize{1, 1}, v), lumStatusStepErr);
  EXPECT_EQ(lumiMaxIndx_16s_AC4R(px, -2, LumiSize{1, 1}, v, x, y), lumStatusStepErr);
  for (int c = 0; c < 4; ++c) EXPECT_EQ(v[c] + x[c] + y[c], 21);
}

// ---- range counts ------------------------------------------------------------------------------
TEST(CountInRange, MatchesReference) {
  Rng r = makeRng(91);
  for (int l : {0, 1, 3}) {
    for (int iter = 0; iter < 30; ++iter) {
      LumiSize sz = randomSize(r, 300, 6);
      GuardedImage<Lum8u> a(sz.width, sz.height, kLayouts[l].ch, -1, -1, iter);
      GuardedImage<float> f(sz.width, sz.height, kLayouts[l].ch, -1, -1, iter);
      a.fillRandom(r);
      f.fill([&](int, int, int) { return randInt(r, 0, 9) == 0 ? NAN : float(randInt(r, -20, 20)) * 0.5f; });
      Lum8u lo8[3], hi8[3];
      float lof[3], hif[3];
      for (int c = 0; c < 3; ++c) {
        lo8[c] = Lum8u(randInt(r, 0, 255));
        hi8[c] = iter % 4 == 0 ? lo8[c] : Lum8u(randInt(r, lo8[c], 255));
        lof[c] = float(randInt(r, -20, 20)) * 0.5f;
        hif[c] = lof[c] + float(randInt(r, 0, 10)) * 0.5f;
      }
      int w8[3] = {0, 0, 0}, wf[3] = {0, 0, 0}, g8[3] = {-1, -1, -1}, gf[3] = {-1, -1, -1};
      for (int y = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int c = 0; c < kLayouts[l].use; ++c) {
            w8[c] += a.at(x, y, c) >= lo8[c] && a.at(x, y, c) <= hi8[c];
            wf[c] += f.at(x, y, c) >= lof[c] && f.at(x, y, c) <= hif[c];  // false for NaN
          }
      ASSERT_EQ(l == 0   ? lumiCountInRange_8u_C1R(a.ptr(), a.step(), sz, g8, lo8[0], hi8[0])
                : l == 1 ? lumiCountInRange_8u_C3R(a.ptr(), a.step(), sz, g8, lo8, hi8)
                         : lumiCountInRange_8u_AC4R(a.ptr(), a.step(), sz, g8, lo8, hi8), 0);
      ASSERT_EQ(l == 0   ? lumiCountInRange_32f_C1R(f.ptr(), f.step(), sz, gf, lof[0], hif[0])
                : l == 1 ? lumiCountInRange_32f_C3R(f.ptr(), f.step(), sz, gf, lof, hif)
                         : lumiCountInRange_32f_AC4R(f.ptr(), f.step(), sz, gf, lof, hif), 0);
      for (int c = 0; c < kLayouts[l].use; ++c) {
        EXPECT_EQ(g8[c], w8[c]);
        EXPECT_EQ(gf[c], wf[c]);
      }
      EXPECT_TRUE(a.guardsIntact() && f.guardsIntact());
    }
  }
}

TEST(CountInRange, ValidationOrder) {
  Lum8u px[4] = {7, 7, 8, 6};
  int n[3] = {-1, -1, -1};
  Lum8u lo[3] = {1, 9, 1}, hi[3] = {2, 8, 2};
  EXPECT_EQ(lumiCountInRange_8u_C3R(px, 0, LumiSize{0, 0}, n, nullptr, hi), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCountInRange_8u_C1R(px, 0, LumiSize{0, 0}, n, 8, 7), lumStatusStepErr);
  EXPECT_EQ(lumiCountInRange_8u_C1R(px, 4, LumiSize{0, 1}, n, 8, 7), lumStatusSizeErr);
  EXPECT_EQ(lumiCountInRange_8u_C1R(px, 4, LumiSize{4, 1}, n, 8, 7), lumStatusInvertedRangeErr);
  EXPECT_EQ(lumiCountInRange_8u_C3R(px, 3, LumiSize{1, 1}, n, lo, hi), lumStatusInvertedRangeErr);
  EXPECT_EQ(n[0], -1);
  EXPECT_EQ(lumiCountInRange_8u_C1R(px, 4, LumiSize{4, 1}, n, 7, 7), lumStatusOk);
  EXPECT_EQ(n[0], 2);
  float f[3] = {NAN, 1.0f, 2.0f};
  EXPECT_EQ(lumiCountInRange_32f_C1R(f, 12, LumiSize{3, 1}, n, -INFINITY, INFINITY), lumStatusOk);
  EXPECT_EQ(n[0], 2);
}

}  // namespace
