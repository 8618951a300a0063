// Sums, means, extrema with positions and range counts against plain references.
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "lumi.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

struct Layout {
  int ch, use;
};
constexpr Layout kLayouts[4] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};  // C1, C3, C4, AC4

template <class T>
using SumFn = std::function<LumStatus(const T*, int, LumiSize, Lum64f*, int)>;
#define SUM_FNS(OP, TS, T)                                                                        \
  std::vector<SumFn<T>> {                                                                         \
    [](const T* s, int st, LumiSize r, Lum64f* v, int) { return lumi##OP##_##TS##_C1R(s, st, r, v); },  \
    [](const T* s, int st, LumiSize r, Lum64f* v, int) { return lumi##OP##_##TS##_C3R(s, st, r, v); },  \
    [](const T* s, int st, LumiSize r, Lum64f* v, int) { return lumi##OP##_##TS##_C4R(s, st, r, v); },  \
    [](const T* s, int st, LumiSize r, Lum64f* v, int) { return lumi##OP##_##TS##_AC4R(s, st, r, v); } \
  }
#define SUM_FNS_F(OP)                                                                                       \
  std::vector<SumFn<float>> {                                                                               \
    [](const float* s, int st, LumiSize r, Lum64f* v, int h) { return lumi##OP##_32f_C1R(s, st, r, v, h); },  \
    [](const float* s, int st, LumiSize r, Lum64f* v, int h) { return lumi##OP##_32f_C3R(s, st, r, v, h); },  \
    [](const float* s, int st, LumiSize r, Lum64f* v, int h) { return lumi##OP##_32f_C4R(s, st, r, v, h); },  \
    [](const float* s, int st, LumiSize r, Lum64f* v, int h) { return lumi##OP##_32f_AC4R(s, st, r, v, h); } \
  }

template <class T>
std::vector<SumFn<T>> sums();
template <class T>
std::vector<SumFn<T>> means();
template <> std::vector<SumFn<Lum8u>> sums() { return SUM_FNS(Sum, 8u, Lum8u); }
template <> std::vector<SumFn<Lum16s>> sums() { return SUM_FNS(Sum, 16s, Lum16s); }
template <> std::vector<SumFn<Lum16u>> sums() { return SUM_FNS(Sum, 16u, Lum16u); }
template <> std::vector<SumFn<float>> sums() { return SUM_FNS_F(Sum); }
template <> std::vector<SumFn<Lum8u>> means() { return SUM_FNS(Mean, 8u, Lum8u); }
template <> std::vector<SumFn<Lum16s>> means() { return SUM_FNS(Mean, 16s, Lum16s); }
template <> std::vector<SumFn<Lum16u>> means() { return SUM_FNS(Mean, 16u, Lum16u); }
template <> std::vector<SumFn<float>> means() { return SUM_FNS_F(Mean); }

// Reference sums: exact for integers; for 32f the two documented orders.
template <class T>
std::vector<double> refSum(const GuardedImage<T>& im, int hint) {
  int ch = im.channels(), w = im.width();
  std::vector<double> out(ch);
  for (int c = 0; c < ch; ++c) {
    if constexpr (std::is_integral_v<T>) {
      int64_t s = 0;
      for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < w; ++x) s += im.at(x, y, c);
      out[c] = double(s);
    } else if (hint == 2) {
      double e = 0, o = 0;
      for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < w; ++x) (x & 1 ? o : e) += im.at(x, y, c);
      out[c] = o + e;
    } else {
      float l[4] = {0, 0, 0, 0};
      for (int y = 0; y < im.height(); ++y) {
        int x = 0;
        for (; x + 4 <= w; x += 4)
          for (int k = 0; k < 4; ++k) l[k] += im.at(x + k, y, c);
        if (w - x >= 2) l[0] += im.at(x, y, c), l[1] += im.at(x + 1, y, c), x += 2;
        if (x < w) l[0] += im.at(x, y, c);
      }
      out[c] = double(static_cast<long double>(l[0]) + l[1] + l[2] + l[3]);
    }
  }
  return out;
}

template <class T>
void checkSums() {
  Rng r = makeRng(sizeof(T) + 77 * std::is_floating_point_v<T>);
  auto sf = sums<T>();
  auto mf = means<T>();
  for (int l = 0; l < 4; ++l)
    for (int iter = 0; iter < 25; ++iter) {
      LumiSize sz = randomSize(r, iter < 5 ? 9 : 400, 7);
      GuardedImage<T> im(sz.width, sz.height, kLayouts[l].ch, -1, -1, iter);
      im.fillRandom(r);
      if (iter % 3 == 0)  // runs of the extreme values
        im.fill([&](int x, int, int) {
          if constexpr (std::is_floating_point_v<T>) return x % 2 ? T(1e30) : T(-3.5);  // big cancellations
          return x % 2 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
        });
      for (int hint : {0, 1, 2}) {
        auto want = refSum(im, hint);
        Lum64f got[4] = {}, mean[4] = {};
        ASSERT_EQ(sf[l](im.ptr(), im.step(), sz, got, hint), 0);
        ASSERT_EQ(mf[l](im.ptr(), im.step(), sz, mean, hint), 0);
        double n = double(sz.width) * sz.height;
        for (int c = 0; c < kLayouts[l].use; ++c) {
          EXPECT_EQ(got[c], want[c]) << "layout " << l << " c " << c << " hint " << hint << " " << sz.width << "x" << sz.height;
          EXPECT_EQ(mean[c], kLayouts[l].ch == 1 ? want[c] / n : want[c] * (1.0 / n));
        }
        EXPECT_TRUE(im.guardsIntact());
      }
    }
}

TEST(Sum, Matches8u) { checkSums<Lum8u>(); }
TEST(Sum, Matches16s) { checkSums<Lum16s>(); }
TEST(Sum, Matches16u) { checkSums<Lum16u>(); }
TEST(Sum, Matches32fInBothOrders) { checkSums<float>(); }

// Totals far beyond 32 bits stay exact: overlapping rows (step of one element) of one value.
TEST(Sum, LargeRoisStayExact) {
  const int w = 8192, h = 4096;
  std::vector<Lum8u> b8(w + h, 255);
  std::vector<Lum16u> b16(w + h, 65535);
  std::vector<Lum16s> s16(w + h, -32768);
  Lum64f v;
  ASSERT_EQ(lumiSum_8u_C1R(b8.data(), 1, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, 255.0 * w * h);
  ASSERT_EQ(lumiSum_16u_C1R(b16.data(), 2, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, 65535.0 * w * h);
  ASSERT_EQ(lumiSum_16s_C1R(s16.data(), 2, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, -32768.0 * w * h);
  ASSERT_EQ(lumiMean_16s_C1R(s16.data(), 2, LumiSize{w, h}, &v), 0);
  EXPECT_EQ(v, -32768.0);
}

TEST(Sum, AccuratePathKeepsSmallTerms) {
  std::vector<float> row(4097, 1.0f);
  row[0] = 1e8f;
  Lum64f fast, acc;
  ASSERT_EQ(lumiSum_32f_C1R(row.data(), 4 * 4097, LumiSize{4097, 1}, &acc, lumHintAccurate), 0);
  ASSERT_EQ(lumiSum_32f_C1R(row.data(), 4 * 4097, LumiSize{4097, 1}, &fast, lumHintFast), 0);
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
  std::function<LumStatus(const T*, int, LumiSize, T*)> mn, mx;
  std::function<LumStatus(const T*, int, LumiSize, T*, T*)> mnmx;
  std::function<LumStatus(const T*, int, LumiSize, T*, int*, int*)> mnI, mxI;
};
#define EXT(TS, T, L) \
  ExtFns<T>{lumiMin_##TS##_##L##R, lumiMax_##TS##_##L##R, lumiMinMax_##TS##_##L##R, lumiMinIndx_##TS##_##L##R, lumiMaxIndx_##TS##_##L##R}
template <class T>
std::vector<ExtFns<T>> extFns();
template <> std::vector<ExtFns<Lum8u>> extFns() { return {EXT(8u, Lum8u, C1), EXT(8u, Lum8u, C3), EXT(8u, Lum8u, C4), EXT(8u, Lum8u, AC4)}; }
template <> std::vector<ExtFns<Lum16s>> extFns() { return {EXT(16s, Lum16s, C1), EXT(16s, Lum16s, C3), EXT(16s, Lum16s, C4), EXT(16s, Lum16s, AC4)}; }
template <> std::vector<ExtFns<float>> extFns() { return {EXT(32f, float, C1), EXT(32f, float, C3), EXT(32f, float, C4), EXT(32f, float, AC4)}; }

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
      int ch = kLayouts[l].ch, use = kLayouts[l].use;
      T wmin[4], wmax[4];
      int minX[4], minY[4], maxX[4], maxY[4];
      for (int c = 0; c < ch; ++c) {
        wmin[c] = wmax[c] = im.at(0, 0, c);
        minX[c] = minY[c] = maxX[c] = maxY[c] = 0;
        for (int y = 0; y < sz.height; ++y)
          for (int x = 0; x < sz.width; ++x) {
            T v = im.at(x, y, c);
            if (v < wmin[c]) wmin[c] = v, minX[c] = x, minY[c] = y;
            if (v > wmax[c]) wmax[c] = v, maxX[c] = x, maxY[c] = y;
          }
      }
      T a[4], b[4];
      int px[4], py[4];
      ASSERT_EQ(fns[l].mn(im.ptr(), im.step(), sz, a), 0);
      ASSERT_EQ(fns[l].mx(im.ptr(), im.step(), sz, b), 0);
      for (int c = 0; c < use; ++c) {
        EXPECT_EQ(a[c], wmin[c]);
        EXPECT_EQ(b[c], wmax[c]);
      }
      ASSERT_EQ(fns[l].mnmx(im.ptr(), im.step(), sz, a, b), 0);
      for (int c = 0; c < use; ++c) {
        EXPECT_EQ(a[c], wmin[c]);
        EXPECT_EQ(b[c], wmax[c]);
      }
      ASSERT_EQ(fns[l].mnI(im.ptr(), im.step(), sz, a, px, py), 0);
      for (int c = 0; c < use; ++c) {
        EXPECT_EQ(a[c], wmin[c]);
        EXPECT_EQ(px[c], minX[c]) << "layout " << l << " channel " << c;
        EXPECT_EQ(py[c], minY[c]) << "layout " << l << " channel " << c;
      }
      ASSERT_EQ(fns[l].mxI(im.ptr(), im.step(), sz, b, px, py), 0);
      for (int c = 0; c < use; ++c) {
        EXPECT_EQ(b[c], wmax[c]);
        EXPECT_EQ(px[c], maxX[c]) << "layout " << l << " channel " << c;
        EXPECT_EQ(py[c], maxY[c]) << "layout " << l << " channel " << c;
      }
      EXPECT_TRUE(im.guardsIntact());
    }
}

TEST(Extrema, Matches8u) { checkExtrema<Lum8u>(); }
TEST(Extrema, Matches16s) { checkExtrema<Lum16s>(); }
TEST(Extrema, Matches32f) { checkExtrema<float>(); }

TEST(Extrema, FirstInRowMajorOrder) {
  GuardedImage<Lum8u> im(8, 6, 1);
  im.fill([](int, int, int) { return Lum8u(9); });
  Lum8u v;
  int x = -1, y = -1;
  ASSERT_EQ(lumiMinIndx_8u_C1R(im.ptr(), im.step(), im.roi(), &v, &x, &y), 0);
  EXPECT_EQ(v, 9);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  im.at(5, 2) = 3;
  im.at(1, 4) = 3;
  ASSERT_EQ(lumiMinIndx_8u_C1R(im.ptr(), im.step(), im.roi(), &v, &x, &y), 0);
  EXPECT_EQ(v, 3);
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, 2);
  // the scan may stop at a 0, but a 0 further on must not move the position
  im.at(6, 1) = 0;
  im.at(0, 3) = 0;
  ASSERT_EQ(lumiMinIndx_8u_C1R(im.ptr(), im.step(), im.roi(), &v, &x, &y), 0);
  EXPECT_EQ(v, 0);
  EXPECT_EQ(x, 6);
  EXPECT_EQ(y, 1);
  im.at(7, 5) = 255;
  im.at(2, 5) = 255;
  ASSERT_EQ(lumiMaxIndx_8u_C1R(im.ptr(), im.step(), im.roi(), &v, &x, &y), 0);
  EXPECT_EQ(v, 255);
  EXPECT_EQ(x, 2);
  EXPECT_EQ(y, 5);
  EXPECT_TRUE(im.guardsIntact());
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
    int ch = kLayouts[l].ch;
    for (int iter = 0; iter < 30; ++iter) {
      LumiSize sz = randomSize(r, 300, 6);
      GuardedImage<Lum8u> a(sz.width, sz.height, ch, -1, -1, iter);
      GuardedImage<float> f(sz.width, sz.height, ch, -1, -1, iter);
      a.fillRandom(r);
      f.fill([&](int, int, int) { return randInt(r, 0, 9) == 0 ? NAN : float(randInt(r, -20, 20)) * 0.5f; });
      Lum8u lo8[3], hi8[3];
      float lof[3], hif[3];
      for (int c = 0; c < 3; ++c) {
        lo8[c] = Lum8u(randInt(r, 0, 255));
        hi8[c] = Lum8u(randInt(r, lo8[c], 255));
        if (iter % 4 == 0) hi8[c] = lo8[c];
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
      if (l == 0) {
        ASSERT_EQ(lumiCountInRange_8u_C1R(a.ptr(), a.step(), sz, g8, lo8[0], hi8[0]), 0);
        ASSERT_EQ(lumiCountInRange_32f_C1R(f.ptr(), f.step(), sz, gf, lof[0], hif[0]), 0);
      } else if (l == 1) {
        ASSERT_EQ(lumiCountInRange_8u_C3R(a.ptr(), a.step(), sz, g8, lo8, hi8), 0);
        ASSERT_EQ(lumiCountInRange_32f_C3R(f.ptr(), f.step(), sz, gf, lof, hif), 0);
      } else {
        ASSERT_EQ(lumiCountInRange_8u_AC4R(a.ptr(), a.step(), sz, g8, lo8, hi8), 0);
        ASSERT_EQ(lumiCountInRange_32f_AC4R(f.ptr(), f.step(), sz, gf, lof, hif), 0);
      }
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
  EXPECT_EQ(lumiCountInRange_8u_C1R(px, 4, LumiSize{4, 1}, n, 7, 7), 0);
  EXPECT_EQ(n[0], 2);
  float f[3] = {NAN, 1.0f, 2.0f};
  EXPECT_EQ(lumiCountInRange_32f_C1R(f, 12, LumiSize{3, 1}, n, -INFINITY, INFINITY), 0);
  EXPECT_EQ(n[0], 2);
}

}  // namespace
