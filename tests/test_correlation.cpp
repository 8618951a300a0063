// Template matching against a direct double-precision evaluation of its formulas (Full, Same
// and Valid placements over a zero-extended source, the eps floors of both norms), against
// OpenCV's matchTemplate where the two agree, the edge cases of the family, every validation
// step and guarded destinations.
// Tolerances: the numerator comes from single-precision FFTs, so 32f results are held within
// 2e-4 of the reference (absolute; the correlation measures lie in [-1, 1], the squared
// distance within 2e-4 x max(1, |value|)); 8u results with a scale factor within 1 of the
// reference rounded. OpenCV (its own float FFT) within 1e-3.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <vector>

#include "lumi/correlation.h"
#include "lumitest.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace lumitest;

namespace {

constexpr double kTol = 2e-4, kTolCv = 1e-3;
constexpr double kEps = static_cast<double>(0.0005f);

enum Measure { kNorm, kLevel, kSqr };
enum Range { kFull, kSame, kValid };
enum Group { k32f, k8u32f, k8s32f, k8uSfs };
const char* const kMeasureName[] = {"Norm", "NormLevel", "SqrDistance"};
const char* const kRangeName[] = {"Full", "Same", "Valid"};

// ---- every export in tables [measure][range][layout C1, C3, C4, AC4] ----------------------
template <class S, class D>
using Fn = LumStatus (*)(const S*, int, LumiSize, const S*, int, LumiSize, D*, int);
using FnSfs = LumStatus (*)(const Lum8u*, int, LumiSize, const Lum8u*, int, LumiSize, Lum8u*, int,
                            int);
#define LAYOUTS(P, T, S) \
  { P##_##T##_C1R##S, P##_##T##_C3R##S, P##_##T##_C4R##S, P##_##T##_AC4R##S }
#define RANGES(OP, MEAS, T, S)                                                  \
  {                                                                             \
    LAYOUTS(lumi##OP##Full_##MEAS, T, S), LAYOUTS(lumi##OP##Same_##MEAS, T, S), \
        LAYOUTS(lumi##OP##Valid_##MEAS, T, S)                                   \
  }
#define MEASURES(T, S)                                                 \
  {                                                                    \
    RANGES(CrossCorr, Norm, T, S), RANGES(CrossCorr, NormLevel, T, S), \
        RANGES(SqrDistance, Norm, T, S)                                \
  }
const Fn<Lum32f, Lum32f> kFn32f[3][3][4] = MEASURES(32f, );
const Fn<Lum8u, Lum32f> kFn8u32f[3][3][4] = MEASURES(8u32f, );
const Fn<Lum8s, Lum32f> kFn8s32f[3][3][4] = MEASURES(8s32f, );
const FnSfs kFn8u[3][3][4] = MEASURES(8u, Sfs);

template <Group G>
struct Types;
template <>
struct Types<k32f> {
  using S = Lum32f;
  using D = Lum32f;
};
template <>
struct Types<k8u32f> {
  using S = Lum8u;
  using D = Lum32f;
};
template <>
struct Types<k8s32f> {
  using S = Lum8s;
  using D = Lum32f;
};
template <>
struct Types<k8uSfs> {
  using S = Lum8u;
  using D = Lum8u;
};

template <Group G, class S = typename Types<G>::S, class D = typename Types<G>::D>
LumStatus call(int m, int r, int l, const S* s, int ss, LumiSize sr, const S* t, int ts,
               LumiSize tr, D* d, int ds, int sf = 0) {
  if constexpr (G == k32f) return kFn32f[m][r][l](s, ss, sr, t, ts, tr, d, ds);
  if constexpr (G == k8u32f) return kFn8u32f[m][r][l](s, ss, sr, t, ts, tr, d, ds);
  if constexpr (G == k8s32f) return kFn8s32f[m][r][l](s, ss, sr, t, ts, tr, d, ds);
  if constexpr (G == k8uSfs) return kFn8u[m][r][l](s, ss, sr, t, ts, tr, d, ds, sf);
}

// ---- the reference ---------------------------------------------------------------------------
LumiSize dstSize(Range r, LumiSize s, LumiSize t) {
  if (r == kValid) return {s.width - t.width + 1, s.height - t.height + 1};
  if (r == kFull) return {s.width + t.width - 1, s.height + t.height - 1};
  return s;
}
LumiPoint origin(Range r, LumiSize t) {
  if (r == kValid) return {0, 0};
  if (r == kFull) return {t.width - 1, t.height - 1};
  return {(t.width - 1) / 2, (t.height - 1) / 2};
}

// Value of placement (x, y), channel c, straight from the formulas.
template <class S>
double reference(Measure m, Range r, const GuardedImage<S>& src, const GuardedImage<S>& tpl, int x,
                 int y, int c) {
  const int w = tpl.width(), h = tpl.height();
  const LumiPoint o = origin(r, tpl.roi());
  const double n = static_cast<double>(w) * h;
  double st = 0, si = 0;
  for (int i = 0; i < h; ++i)
    for (int j = 0; j < w; ++j) {
      int sx = x - o.x + j, sy = y - o.y + i;
      st += tpl.at(j, i, c);
      if (sx >= 0 && sy >= 0 && sx < src.width() && sy < src.height()) si += src.at(sx, sy, c);
    }
  const double mt = m == kLevel ? st / n : 0, mi = m == kLevel ? si / n : 0;
  double num = 0, tt = 0, ii = 0;
  for (int i = 0; i < h; ++i)
    for (int j = 0; j < w; ++j) {
      int sx = x - o.x + j, sy = y - o.y + i;
      double v =
          (sx >= 0 && sy >= 0 && sx < src.width() && sy < src.height()) ? src.at(sx, sy, c) : 0;
      double t = tpl.at(j, i, c) - mt;
      v -= mi;
      num += t * v;
      tt += t * t;
      ii += v * v;
    }
  if (m == kLevel) return num / std::sqrt(std::max(tt, kEps) * std::max(ii, kEps));
  const double den = std::max(std::sqrt(tt), kEps) * std::sqrt(std::max(ii, kEps));
  return m == kNorm ? num / den : (ii - 2 * num + tt) / den;
}

double roundSfs(double v, int sf) {
  double s = std::ldexp(v, -sf);
  if (!(s > 0)) return 0;
  return s >= 255 ? 255 : std::nearbyint(s);
}

// Fills a source and a template (cut from the source at (3, 2), with noise, so that good
// matches occur) with values of the group's range.
template <class S>
void fillPair(GuardedImage<S>& src, GuardedImage<S>& tpl, Rng& rng) {
  src.fill([&](int, int, int) -> S {
    if constexpr (std::is_floating_point_v<S>)
      return static_cast<S>(randInt(rng, -1000, 1000) * 0.37);
    else
      return randomValue<S>(rng);
  });
  tpl.fill([&](int x, int y, int c) -> S {
    double v = src.at((x + 3) % src.width(), (y + 2) % src.height(), c) + randInt(rng, -9, 9);
    if constexpr (std::is_floating_point_v<S>)
      return static_cast<S>(v);
    else
      return static_cast<S>(std::min<double>(std::max<double>(v, std::numeric_limits<S>::min()),
                                             std::numeric_limits<S>::max()));
  });
}

// Runs one export on a random pair and holds every value to the reference; AC4 alpha and the
// bytes around the destination stay as they were.
template <Group G>
void checkAgainstReference(Measure m, Range r, const Layout& lay, LumiSize ss, LumiSize ts,
                           uint32_t seed) {
  using S = typename Types<G>::S;
  using D = typename Types<G>::D;
  const int li = lay.ch == 1 ? 0 : lay.ch == 3 ? 1 : lay.use == 4 ? 2 : 3;
  Rng rng = makeRng(seed);
  GuardedImage<S> src(ss.width, ss.height, lay.ch, -1, -1, seed);
  GuardedImage<S> tpl(ts.width, ts.height, lay.ch, -1, -1, seed + 1);
  fillPair(src, tpl, rng);
  const LumiSize ds = dstSize(r, ss, ts);
  GuardedImage<D> dst(ds.width, ds.height, lay.ch, -1, -1, seed + 2);
  const std::vector<D> before = dst.pixels();
  const int sf = m == kSqr ? -6 : -7;
  ASSERT_EQ(call<G>(m, r, li, src.ptr(), src.step(), ss, tpl.ptr(), tpl.step(), ts, dst.ptr(),
                    dst.step(), sf),
            lumStatusOk);
  EXPECT_TRUE(dst.guardsIntact());
  int bad = 0;
  for (int y = 0; y < ds.height; ++y)
    for (int x = 0; x < ds.width; ++x)
      for (int c = 0; c < lay.ch; ++c) {
        const D got = dst.at(x, y, c);
        if (c >= lay.use) {
          if (got != before[(static_cast<size_t>(y) * ds.width + x) * lay.ch + c] && bad++ < 3)
            ADD_FAILURE() << "alpha written at " << x << "," << y;
          continue;
        }
        const double want = reference(m, r, src, tpl, x, y, c);
        double tol, ref = want;
        if constexpr (G == k8uSfs) {
          ref = roundSfs(want, sf);
          tol = 1;
        } else {
          tol = m == kSqr ? kTol * std::max(1.0, std::fabs(want)) : kTol;
        }
        if (!(std::fabs(got - ref) <= tol) && bad++ < 3)
          ADD_FAILURE() << kMeasureName[m] << " " << kRangeName[r] << " " << lay.name << " (" << x
                        << ", " << y << ", " << c << "): got " << +got << ", want " << ref;
      }
}

template <Group G>
void referenceSweep(uint32_t salt) {
  for (int m = 0; m < 3; ++m)
    for (int r = 0; r < 3; ++r) {
      SCOPED_TRACE(std::string(kMeasureName[m]) + " " + kRangeName[r]);
      // templates of up to 25 pixels are correlated directly, larger ones through the FFT
      checkAgainstReference<G>(Measure(m), Range(r), kC1, {23, 17}, {5, 4}, salt + 10 * m + r);
      checkAgainstReference<G>(Measure(m), Range(r), kC1, {23, 17}, {6, 5}, salt + 40 + 10 * m + r);
      checkAgainstReference<G>(Measure(m), Range(r), kAC4, {23, 17}, {5, 4},
                               salt + 80 + 10 * m + r);
      checkAgainstReference<G>(Measure(m), Range(r), kAC4, {19, 9}, {4, 7},
                               salt + 120 + 10 * m + r);
    }
  // C3 and C4 on a smaller set: both paths, odd and even templates
  checkAgainstReference<G>(kNorm, kSame, kC3, {13, 11}, {3, 5}, salt + 200);
  checkAgainstReference<G>(kNorm, kFull, kC4, {13, 11}, {7, 4}, salt + 201);
  checkAgainstReference<G>(kLevel, kValid, kC4, {13, 11}, {6, 3}, salt + 202);
  checkAgainstReference<G>(kLevel, kSame, kC3, {13, 11}, {5, 6}, salt + 203);
  checkAgainstReference<G>(kSqr, kFull, kC3, {13, 11}, {2, 2}, salt + 204);
  checkAgainstReference<G>(kSqr, kValid, kC4, {13, 11}, {9, 3}, salt + 205);
}

TEST(Correlation, MatchesReference32f) { referenceSweep<k32f>(1000); }
TEST(Correlation, MatchesReference8u32f) { referenceSweep<k8u32f>(2000); }
TEST(Correlation, MatchesReference8s32f) { referenceSweep<k8s32f>(3000); }
TEST(Correlation, MatchesReference8uSfs) { referenceSweep<k8uSfs>(4000); }

// Templates as large as the source, one-pixel ones and several tiles per row and column.
TEST(Correlation, SizesAndTiles) {
  for (int m = 0; m < 3; ++m) {
    checkAgainstReference<k32f>(Measure(m), kValid, kC1, {9, 6}, {9, 6}, 50 + m);
    checkAgainstReference<k32f>(Measure(m), kFull, kC1, {7, 5}, {7, 5}, 53 + m);
    checkAgainstReference<k32f>(Measure(m), kSame, kC1, {1, 1}, {1, 1}, 56 + m);
    checkAgainstReference<k8u32f>(Measure(m), kValid, kC1, {150, 40}, {3, 2}, 59 + m);
    checkAgainstReference<k8u32f>(Measure(m), kSame, kC1, {150, 40}, {9, 3}, 62 + m);
    checkAgainstReference<k8u32f>(Measure(m), kFull, kC1, {37, 70}, {20, 2}, 65 + m);
    checkAgainstReference<k8u32f>(Measure(m), kFull, kC1, {37, 70}, {20, 1}, 68 + m);
  }
}

// Two threads share the tiles of the parallel members: the same bits as one thread.
TEST(Correlation, ThreadsGiveSameBits) {
  const int saved = threads_omp_of_n_lum;
  Rng rng = makeRng(9);
  GuardedImage<Lum8u> src(200, 150, 1), tpl(16, 16, 1);
  fillPair(src, tpl, rng);
  for (int m = 0; m < 3; ++m) {
    GuardedImage<Lum32f> a(185, 135, 1), b(185, 135, 1);
    threads_omp_of_n_lum = 1;
    ASSERT_EQ(kFn8u32f[m][kValid][0](src.ptr(), src.step(), src.roi(), tpl.ptr(), tpl.step(),
                                     tpl.roi(), a.ptr(), a.step()),
              lumStatusOk);
    threads_omp_of_n_lum = 2;
    ASSERT_EQ(kFn8u32f[m][kValid][0](src.ptr(), src.step(), src.roi(), tpl.ptr(), tpl.step(),
                                     tpl.roi(), b.ptr(), b.step()),
              lumStatusOk);
    EXPECT_TRUE(sameElements(b.pixels(), a.pixels(), 185)) << kMeasureName[m];
    EXPECT_TRUE(b.guardsIntact());
    for (int y = 0; y < 135; y += 67)
      for (int x = 0; x < 185; x += 46)
        EXPECT_NEAR(a.at(x, y), reference(Measure(m), kValid, src, tpl, x, y, 0), kTol * 4);
  }
  threads_omp_of_n_lum = saved;
}

// ---- edge cases -------------------------------------------------------------------------------
TEST(Correlation, TemplateEqualToImage) {
  Rng rng = makeRng(3);
  GuardedImage<Lum32f> img(12, 10, 1);
  img.fill([&](int, int, int) { return static_cast<float>(randInt(rng, 0, 255)); });
  for (int m = 0; m < 3; ++m) {
    GuardedImage<Lum32f> d(1, 1, 1);
    ASSERT_EQ(kFn32f[m][kValid][0](img.ptr(), img.step(), img.roi(), img.ptr(), img.step(),
                                   img.roi(), d.ptr(), d.step()),
              lumStatusOk);
    EXPECT_NEAR(d.at(0, 0), m == kSqr ? 0.0 : 1.0, 1e-5) << kMeasureName[m];
  }
}

TEST(Correlation, ZeroTemplateGivesZero) {
  Rng rng = makeRng(4);
  GuardedImage<Lum8u> src(21, 14, 1), tpl(4, 3, 1);
  src.fillRandom(rng);
  tpl.fill([](int, int, int) { return Lum8u{0}; });
  for (int m : {kNorm, kLevel})
    for (int r = 0; r < 3; ++r) {
      LumiSize ds = dstSize(Range(r), src.roi(), tpl.roi());
      GuardedImage<Lum32f> d(ds.width, ds.height, 1);
      ASSERT_EQ(kFn8u32f[m][r][0](src.ptr(), src.step(), src.roi(), tpl.ptr(), tpl.step(),
                                  tpl.roi(), d.ptr(), d.step()),
                lumStatusOk);
      for (float v : d.pixels()) ASSERT_EQ(v, 0.0f) << kMeasureName[m] << " " << kRangeName[r];
    }
}

// Placements wholly inside a zero (or, mean-removed, flat) region give exactly 0, even though
// the rest of the tile is busy.
TEST(Correlation, FlatRegionGivesZero) {
  Rng rng = makeRng(5);
  GuardedImage<Lum32f> src(90, 70, 1), tpl(8, 8, 1);
  src.fill([&](int x, int y, int) {
    return x >= 30 && x < 60 && y >= 20 && y < 50 ? 0.0f : static_cast<float>(randInt(rng, 0, 99));
  });
  tpl.fill([&](int, int, int) { return static_cast<float>(randInt(rng, 0, 99)); });
  GuardedImage<Lum32f> d(83, 63, 1);
  for (int m : {kNorm, kLevel}) {
    ASSERT_EQ(kFn32f[m][kValid][0](src.ptr(), src.step(), src.roi(), tpl.ptr(), tpl.step(),
                                   tpl.roi(), d.ptr(), d.step()),
              lumStatusOk);
    for (int y = 20; y <= 42; ++y)
      for (int x = 30; x <= 52; ++x) ASSERT_EQ(d.at(x, y), 0.0f) << x << "," << y;
  }
  src.fill([&](int x, int y, int) {
    return x >= 30 && x < 60 && y >= 20 && y < 50 ? 173.0f
                                                  : static_cast<float>(randInt(rng, 0, 99));
  });
  ASSERT_EQ(kFn32f[kLevel][kValid][0](src.ptr(), src.step(), src.roi(), tpl.ptr(), tpl.step(),
                                      tpl.roi(), d.ptr(), d.step()),
            lumStatusOk);
  for (int y = 20; y <= 42; ++y)
    for (int x = 30; x <= 52; ++x) ASSERT_NEAR(d.at(x, y), 0.0f, 1e-6) << x << "," << y;
}

TEST(Correlation, ScaleFactor) {
  Rng rng = makeRng(6);
  GuardedImage<Lum8u> img(10, 8, 1);
  img.fillRandom(rng);
  struct Case {
    int sf;
    Lum8u want;
  };
  // The value of an image matched with itself is 1 (up to rounding).
  for (Case k : {Case{0, 1}, Case{-7, 128}, Case{-8, 255}, Case{INT_MIN, 255}, Case{2, 0},
                 Case{INT_MAX, 0}}) {
    GuardedImage<Lum8u> d(1, 1, 1);
    ASSERT_EQ(lumiCrossCorrValid_Norm_8u_C1RSfs(img.ptr(), img.step(), img.roi(), img.ptr(),
                                                img.step(), img.roi(), d.ptr(), d.step(), k.sf),
              lumStatusOk);
    EXPECT_EQ(d.at(0, 0), k.want) << k.sf;
  }
}

// ---- validation, in order: pointers, sizes, steps; nothing written --------------------------
template <Group G>
void validationOrder() {
  using S = typename Types<G>::S;
  using D = typename Types<G>::D;
  S src[64] = {}, tpl[64] = {};
  GuardedImage<D> dst(4, 4, 4);
  const std::vector<D> before = dst.pixels();
  const LumiSize s{4, 4}, t{2, 2};
  for (int m = 0; m < 3; ++m)
    for (int r = 0; r < 3; ++r)
      for (int l = 0; l < 4; ++l) {
        auto run = [&](const S* ps, int ss, LumiSize sr, const S* pt, int ts, LumiSize tr, D* pd,
                       int ds) { return call<G>(m, r, l, ps, ss, sr, pt, ts, tr, pd, ds, 1); };
        const int st = 64;
        D* d = dst.ptr();
        // pointers before sizes and steps
        EXPECT_EQ(run(nullptr, 0, {0, 0}, tpl, 0, t, d, 0), lumStatusNullPtrErr);
        EXPECT_EQ(run(src, 0, {0, 0}, nullptr, 0, t, d, 0), lumStatusNullPtrErr);
        EXPECT_EQ(run(src, 0, {0, 0}, tpl, 0, t, nullptr, 0), lumStatusNullPtrErr);
        // sizes before steps
        for (LumiSize bs : {LumiSize{0, 4}, LumiSize{4, -1}})
          EXPECT_EQ(run(src, 0, bs, tpl, 0, t, d, 0), lumStatusSizeErr);
        for (LumiSize bt : {LumiSize{0, 2}, LumiSize{2, 0}, LumiSize{5, 2}, LumiSize{2, 5}})
          EXPECT_EQ(run(src, 0, s, tpl, 0, bt, d, 0), lumStatusSizeErr);
        // steps
        EXPECT_EQ(run(src, 0, s, tpl, st, t, d, st), lumStatusStepErr);
        EXPECT_EQ(run(src, st, s, tpl, -1, t, d, st), lumStatusStepErr);
        EXPECT_EQ(run(src, st, s, tpl, st, t, d, 0), lumStatusStepErr);
      }
  EXPECT_TRUE(sameElements(dst.pixels(), before));
  EXPECT_TRUE(dst.guardsIntact());
}

TEST(Correlation, ValidationOrderEveryExport) {
  validationOrder<k32f>();
  validationOrder<k8u32f>();
  validationOrder<k8s32f>();
  validationOrder<k8uSfs>();
}

// A source one column narrower than the template is a size error before any step is read.
TEST(Correlation, NarrowSourceBeforeSteps) {
  Lum32f buf[16] = {};
  EXPECT_EQ(lumiCrossCorrValid_Norm_32f_C1R(buf, -5, {2, 3}, buf, 0, {3, 3}, buf, -1),
            lumStatusSizeErr);
}

// Scratch too large to allocate: the status, and no pixel read or written.
TEST(Correlation, ScratchTooLarge) {
  Lum32f buf[4] = {1, 2, 3, 4};
  EXPECT_EQ(lumiSqrDistanceValid_Norm_32f_C1R(buf, 4, {1 << 28, 1}, buf, 4, {1 << 27, 1}, buf, 4),
            lumStatusMemAllocErr);
  EXPECT_EQ(buf[0], 1.0f);
}

// ---- OpenCV as an independent oracle ---------------------------------------------------------
#ifdef LUMI_HAVE_OPENCV
TEST(Correlation, AgreesWithOpenCV) {
  Rng rng = makeRng(8);
  cv::Mat src(61, 77, CV_8UC1), tpl(9, 12, CV_8UC1);
  for (int y = 0; y < src.rows; ++y)
    for (int x = 0; x < src.cols; ++x)
      src.at<uchar>(y, x) = static_cast<uchar>(randInt(rng, 0, 255));
  src(cv::Rect(30, 20, 12, 9)).copyTo(tpl);
  tpl += 3;
  cv::Mat s32, t32;
  src.convertTo(s32, CV_32F);
  tpl.convertTo(t32, CV_32F);
  struct Pair {
    int cv;
    Measure m;
  };
  for (Pair pr : {Pair{cv::TM_CCORR_NORMED, kNorm}, Pair{cv::TM_CCOEFF_NORMED, kLevel}}) {
    cv::Mat want;
    cv::matchTemplate(s32, t32, want, pr.cv);
    cv::Mat got(want.size(), CV_32F), got8(want.size(), CV_32F);
    const LumiSize sr{src.cols, src.rows}, tr{tpl.cols, tpl.rows};
    ASSERT_EQ(kFn32f[pr.m][kValid][0](s32.ptr<Lum32f>(), static_cast<int>(s32.step), sr,
                                      t32.ptr<Lum32f>(), static_cast<int>(t32.step), tr,
                                      got.ptr<Lum32f>(), static_cast<int>(got.step)),
              lumStatusOk);
    ASSERT_EQ(kFn8u32f[pr.m][kValid][0](src.ptr<Lum8u>(), static_cast<int>(src.step), sr,
                                        tpl.ptr<Lum8u>(), static_cast<int>(tpl.step), tr,
                                        got8.ptr<Lum32f>(), static_cast<int>(got8.step)),
              lumStatusOk);
    EXPECT_LE(cv::norm(got, want, cv::NORM_INF), kTolCv) << kMeasureName[pr.m];
    EXPECT_LE(cv::norm(got8, want, cv::NORM_INF), kTolCv) << kMeasureName[pr.m];
    cv::Point best;
    cv::minMaxLoc(got, nullptr, nullptr, nullptr, &best);
    EXPECT_EQ(best, cv::Point(30, 20));
  }
}
#endif

}  // namespace
