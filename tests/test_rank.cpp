// Rank filters against the direct definition (sort the window and take the middle; the minimum
// or maximum over the window) on random data with the border supplied around the ROI, the order
// of the checks, and OpenCV's median as an independent oracle.
#include <algorithm>

#include "lumi/filter_rank.h"
#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace lumitest;

template <class T>
using MaskFn = LumStatus (*)(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint);
template <class T>
using CodeFn = LumStatus (*)(const T*, int, T*, int, LumiSize, int);

// Indexed by layout as in kLayouts; null where the layout has no export.
template <class T>
struct Api;
#define BY_LAYOUT(pre, post) {pre##C1##post, pre##C3##post, pre##C4##post, pre##AC4##post}
#define LUMI_TEST_MINMAX(t)                                                 \
  static constexpr MaskFn<T> min[4] = BY_LAYOUT(lumiFilterMin_##t##_, R);   \
  static constexpr MaskFn<T> max[4] = BY_LAYOUT(lumiFilterMax_##t##_, R);
#define LUMI_TEST_MEDIANS(t)                                                                       \
  static constexpr MaskFn<T> median[4] = BY_LAYOUT(lumiFilterMedian_##t##_, R);                    \
  static constexpr CodeFn<T> horiz[4] = BY_LAYOUT(lumiFilterMedianHoriz_##t##_, R);                \
  static constexpr CodeFn<T> vert[4] = BY_LAYOUT(lumiFilterMedianVert_##t##_, R);                  \
  static constexpr CodeFn<T> cross[4] = {lumiFilterMedianCross_##t##_C1R,                          \
                                         lumiFilterMedianCross_##t##_C3R, nullptr,                 \
                                         lumiFilterMedianCross_##t##_AC4R};                        \
  static constexpr CodeFn<T> color[4] = {nullptr, lumiFilterMedianColor_##t##_C3R, nullptr,        \
                                         lumiFilterMedianColor_##t##_AC4R};
template <>
struct Api<Lum8u> {
  using T = Lum8u;
  LUMI_TEST_MINMAX(8u)
  LUMI_TEST_MEDIANS(8u)
};
template <>
struct Api<Lum16s> {
  using T = Lum16s;
  LUMI_TEST_MINMAX(16s)
  LUMI_TEST_MEDIANS(16s)
};
template <>
struct Api<Lum32f> {
  using T = Lum32f;
  LUMI_TEST_MINMAX(32f)
  static constexpr CodeFn<T> color[4] = {nullptr, lumiFilterMedianColor_32f_C3R, nullptr,
                                         lumiFilterMedianColor_32f_AC4R};
};

enum Kind { kMedian, kMin, kMax, kColor };

// The window of destination pixel (x, y) in `big`: columns x + j, rows y + i for the cells (i, j)
// of a ms-sized mask (a cross keeps only the middle row and column).
struct Window {
  LumiSize ms;
  bool cross = false;
  bool has(int i, int j) const { return !cross || i == ms.height / 2 || j == ms.width / 2; }
};

template <class T>
std::vector<T> reference(const GuardedImage<T>& big, const Window& w, LumiSize roi, Layout L,
                         Kind kind, std::vector<T> out) {
  std::vector<T> v;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      T* o = &out[(static_cast<std::size_t>(y) * roi.width + x) * L.ch];
      if (kind == kColor) {  // least summed L1 distance, the first on a tie
        double best = 0;
        for (int i = 0; i < w.ms.height; ++i)
          for (int j = 0; j < w.ms.width; ++j) {
            double sum = 0;
            for (int k = 0; k < w.ms.height; ++k)
              for (int l = 0; l < w.ms.width; ++l)
                for (int c = 0; c < 3; ++c)
                  sum += std::fabs(double(big.at(x + j, y + i, c)) - double(big.at(x + l, y + k, c)));
            if ((i == 0 && j == 0) || sum < best) {
              best = sum;
              for (int c = 0; c < 3; ++c) o[c] = big.at(x + j, y + i, c);
            }
          }
        continue;
      }
      for (int c = 0; c < L.use; ++c) {
        v.clear();
        for (int i = 0; i < w.ms.height; ++i)
          for (int j = 0; j < w.ms.width; ++j)
            if (w.has(i, j)) v.push_back(big.at(x + j, y + i, c));
        std::sort(v.begin(), v.end());
        o[c] = kind == kMin ? v.front() : kind == kMax ? v.back() : v[v.size() / 2];
      }
    }
  return out;
}

// Runs `call(src, srcStep, dst, dstStep, roi)` on random data with the border around the ROI
// (the ROI starts at `anchor` of the big image) and compares with the definition.
template <class T, class Call>
void check(const Window& w, LumiPoint anchor, LumiSize roi, int layout, Kind kind, uint32_t seed,
           Call call) {
  const Layout L = kLayouts[layout];
  SCOPED_TRACE(::testing::Message() << L.name << " kind " << kind << " roi " << roi.width << "x"
                                    << roi.height << " mask " << w.ms.width << "x" << w.ms.height
                                    << (w.cross ? " cross" : "") << " anchor " << anchor.x << ","
                                    << anchor.y << " seed " << seed);
  Rng r = makeRng(seed);
  GuardedImage<T> big(roi.width + w.ms.width - 1, roi.height + w.ms.height - 1, L.ch, -1, -1, seed);
  big.fillRandom(r);
  if (seed % 3 == 0)  // few distinct values: many ties
    big.fill([&](int, int, int) { return static_cast<T>(randInt(r, 0, 3) * 7); });
  GuardedImage<T> dst(roi.width, roi.height, L.ch, -1, -1, seed + 1);
  dst.fillRandom(r);
  const std::vector<T> want = reference(big, w, roi, L, kind, dst.pixels());
  ASSERT_EQ(call(&big.at(anchor.x, anchor.y), big.step(), dst.ptr(), dst.step(), roi), lumStatusOk);
  EXPECT_TRUE(sameElements(dst.pixels(), want, roi.width * L.ch));
  EXPECT_TRUE(dst.guardsIntact());
}

// lumiFilterMedian over every size it dispatches on (the fixed shapes, the copy, the general
// median including one-column masks), anchors anywhere.
template <class T>
void medianCases() {
  Rng r = makeRng(sizeof(T));
  const LumiSize sizes[] = {{3, 3}, {5, 5}, {3, 1}, {5, 1}, {1, 3}, {1, 5}, {1, 1},
                            {7, 3}, {1, 7}, {9, 1}, {3, 5}, {7, 7}, {11, 9}, {17, 17}};
  for (int layout = 0; layout < 4; ++layout)
    for (LumiSize ms : sizes)
      for (int n = 0; n < 3; ++n) {
        const LumiPoint a{randInt(r, 0, ms.width - 1), randInt(r, 0, ms.height - 1)};
        LumiSize roi = randomSize(r, 150, 7);
        if (n == 0) roi.width = randInt(r, 1, 3);
        check<T>({ms}, a, roi, layout, kMedian, static_cast<uint32_t>(r()),
                 [&](const T* s, int ss, T* d, int ds, LumiSize ro) {
                   return Api<T>::median[layout](s, ss, d, ds, ro, ms, a);
                 });
      }
}

// The fixed-shape entry points, centred on the source pointer.
template <class T>
void fixedCases() {
  Rng r = makeRng(7 + sizeof(T));
  struct Shape {
    CodeFn<T> const* fns;
    int code;
    LumiSize ms;
    bool cross;
  };
  const Shape shapes[] = {{Api<T>::horiz, lumMskSize3x1, {3, 1}, false},
                          {Api<T>::horiz, lumMskSize5x1, {5, 1}, false},
                          {Api<T>::vert, lumMskSize1x3, {1, 3}, false},
                          {Api<T>::vert, lumMskSize1x5, {1, 5}, false},
                          {Api<T>::cross, lumMskSize3x3, {3, 3}, true},
                          {Api<T>::cross, lumMskSize5x5, {5, 5}, true}};
  for (int layout = 0; layout < 4; ++layout)
    for (const Shape& s : shapes) {
      if (!s.fns[layout]) continue;
      for (int n = 0; n < 3; ++n)
        check<T>({s.ms, s.cross}, {s.ms.width / 2, s.ms.height / 2}, randomSize(r, 140, 6), layout,
                 kMedian, static_cast<uint32_t>(r()),
                 [&](const T* src, int ss, T* d, int ds, LumiSize ro) {
                   return s.fns[layout](src, ss, d, ds, ro, s.code);
                 });
    }
}

template <class T>
void colorCases() {
  Rng r = makeRng(11 + sizeof(T));
  for (int layout : {1, 3})
    for (int code : {lumMskSize3x3, lumMskSize5x5})
      for (int n = 0; n < 3; ++n) {
        const int side = code == lumMskSize3x3 ? 3 : 5;
        check<T>({{side, side}}, {side / 2, side / 2}, randomSize(r, 90, 4), layout, kColor,
                 static_cast<uint32_t>(r()), [&](const T* s, int ss, T* d, int ds, LumiSize ro) {
                   return Api<T>::color[layout](s, ss, d, ds, ro, code);
                 });
      }
}

template <class T>
void minMaxCases() {
  Rng r = makeRng(13 + sizeof(T));
  for (int layout = 0; layout < 4; ++layout)
    for (int isMax = 0; isMax < 2; ++isMax)
      for (int n = 0; n < 10; ++n) {
        LumiSize ms{randInt(r, 1, n < 5 ? 4 : 12), randInt(r, 1, n < 5 ? 4 : 9)};
        if (n == 0) ms = {1, 1};
        const LumiPoint a{randInt(r, 0, ms.width - 1), randInt(r, 0, ms.height - 1)};
        LumiSize roi = randomSize(r, 90, 23);
        check<T>({ms}, a, roi, layout, isMax ? kMax : kMin, static_cast<uint32_t>(r()),
                 [&](const T* s, int ss, T* d, int ds, LumiSize ro) {
                   return (isMax ? Api<T>::max : Api<T>::min)[layout](s, ss, d, ds, ro, ms, a);
                 });
      }
}

TEST(Rank, MedianMatchesDefinition) {
  medianCases<Lum8u>();
  medianCases<Lum16s>();
}

TEST(Rank, FixedShapesMatchDefinition) {
  fixedCases<Lum8u>();
  fixedCases<Lum16s>();
}

TEST(Rank, ColorMedianMatchesDefinition) {
  colorCases<Lum8u>();
  colorCases<Lum16s>();
  colorCases<Lum32f>();
}

TEST(Rank, MinMaxMatchDefinition) {
  minMaxCases<Lum8u>();
  minMaxCases<Lum16s>();
  minMaxCases<Lum32f>();
}

// Large enough to split the rows among threads.
TEST(Rank, ThreadedBandsMatchDefinition) {
  const int saved = threads_omp_of_n_lum;
  for (int threads : {2, 3}) {
    threads_omp_of_n_lum = threads;
    const LumiSize roi{517, 301};
    for (LumiSize ms : {LumiSize{3, 3}, LumiSize{5, 5}, LumiSize{9, 7}})
      check<Lum8u>({ms}, {ms.width / 2, 1}, roi, 0, kMedian, 5, [&](auto s, int ss, auto d, int ds, LumiSize ro) {
        return lumiFilterMedian_8u_C1R(s, ss, d, ds, ro, ms, {ms.width / 2, 1});
      });
    check<Lum16s>({{5, 5}}, {2, 2}, roi, 3, kMedian, 6, [&](auto s, int ss, auto d, int ds, LumiSize ro) {
      return lumiFilterMedian_16s_AC4R(s, ss, d, ds, ro, {5, 5}, {2, 2});
    });
    check<Lum32f>({{6, 5}}, {1, 4}, roi, 1, kMax, 7, [&](auto s, int ss, auto d, int ds, LumiSize ro) {
      return lumiFilterMax_32f_C3R(s, ss, d, ds, ro, {6, 5}, {1, 4});
    });
  }
  threads_omp_of_n_lum = saved;
}

TEST(Rank, NamedCases) {
  // 0 x 4 and 255 x 5 give 255; 0 x 5 and 255 x 4 give 0.
  const Lum8u lowHigh[9] = {0, 0, 0, 0, 255, 255, 255, 255, 255};
  const Lum8u highLow[9] = {255, 255, 255, 255, 0, 0, 0, 0, 0};
  Lum8u out = 7;
  EXPECT_EQ(lumiFilterMedian_8u_C1R(lowHigh + 4, 3, &out, 1, {1, 1}, {3, 3}, {1, 1}), lumStatusOk);
  EXPECT_EQ(out, 255);
  EXPECT_EQ(lumiFilterMedian_8u_C1R(highLow + 4, 3, &out, 1, {1, 1}, {3, 3}, {1, 1}), lumStatusOk);
  EXPECT_EQ(out, 0);
  EXPECT_EQ(lumiFilterMedian_8u_C1R(lowHigh, 3, &out, 1, {1, 1}, {4, 3}, {1, 1}), lumStatusMaskSizeErr);
  EXPECT_EQ(lumiFilterMax_8u_C1R(lowHigh + 4, 3, &out, 1, {1, 1}, {3, 2}, {1, 1}), lumStatusOk);
  EXPECT_EQ(out, 255);
  EXPECT_EQ(lumiFilterMedianColor_8u_C3R(lowHigh, 9, &out, 3, {1, 1}, 35), lumStatusMaskSizeErr);
  // Scratch too large to allocate: reported before anything is read or written.
  out = 7;
  EXPECT_EQ(lumiFilterMin_8u_C1R(lowHigh, 3, &out, 1, {1, 1}, {1, 1 << 29}, {0, 0}), lumStatusMemAllocErr);
  EXPECT_EQ(lumiFilterMedian_8u_C1R(lowHigh, 3, &out, 1, {1, 1}, {46341, 46341}, {0, 0}), lumStatusMemAllocErr);
  EXPECT_EQ(out, 7);
}

// Each row breaks one check and every later one; the earlier checks pass. Nothing is written.
TEST(Rank, ChecksInOrder) {
  std::vector<Lum16s> buf(400, 3);
  const Lum16s* src = buf.data() + 200;
  std::vector<Lum16s> out(64, 9);
  struct Case {
    const Lum16s* s;
    Lum16s* d;
    LumiSize roi;
    int step;
    LumiSize ms;
    LumiPoint anchor;
    int code;
    LumStatus median, minMax, fixed;
  };
  Lum16s* d = out.data();
  const Case cases[] = {
      {nullptr, d, {0, 0}, 0, {2, 0}, {-1, 0}, 0, lumStatusNullPtrErr, lumStatusNullPtrErr, lumStatusNullPtrErr},
      {src, nullptr, {0, 0}, 0, {2, 0}, {-1, 0}, 0, lumStatusNullPtrErr, lumStatusNullPtrErr, lumStatusNullPtrErr},
      {src, d, {3, 0}, 0, {2, 0}, {-1, 0}, 0, lumStatusSizeErr, lumStatusSizeErr, lumStatusSizeErr},
      {src, d, {0, 2}, 0, {2, 0}, {-1, 0}, 0, lumStatusSizeErr, lumStatusSizeErr, lumStatusSizeErr},
      {src, d, {3, 2}, 0, {2, 0}, {-1, 0}, 0, lumStatusStepErr, lumStatusStepErr, lumStatusStepErr},
      {src, d, {3, 2}, 16, {2, 0}, {-1, 0}, 0, lumStatusMaskSizeErr, lumStatusMaskSizeErr, lumStatusMaskSizeErr},
      {src, d, {3, 2}, 16, {4, 3}, {-1, 0}, 14, lumStatusMaskSizeErr, lumStatusAnchorErr, lumStatusMaskSizeErr},
      {src, d, {3, 2}, 16, {3, 4}, {0, 4}, 34, lumStatusMaskSizeErr, lumStatusAnchorErr, lumStatusMaskSizeErr},
      {src, d, {3, 2}, 16, {3, 5}, {3, 0}, 53, lumStatusAnchorErr, lumStatusAnchorErr, lumStatusMaskSizeErr},
      {src, d, {3, 2}, 16, {3, 5}, {0, 5}, 53, lumStatusAnchorErr, lumStatusAnchorErr, lumStatusMaskSizeErr},
      {src, d, {3, 2}, 16, {3, 5}, {2, 4}, 53, lumStatusOk, lumStatusOk, lumStatusMaskSizeErr},
  };
  for (const Case& k : cases) {
    SCOPED_TRACE(::testing::Message() << "roi " << k.roi.width << "x" << k.roi.height << " step "
                                      << k.step << " mask " << k.ms.width << "x" << k.ms.height);
    for (int which = 0; which < 2; ++which) {  // a zero step on either side
      const int ss = which ? k.step : 32, ds = which ? 16 : k.step;
      const LumStatus want[] = {k.median, k.minMax, k.minMax, k.fixed, k.fixed, k.fixed, k.fixed};
      using Call = LumStatus (*)(const Case&, int, int);
      const Call calls[] = {
          [](const Case& c, int a, int b) { return lumiFilterMedian_16s_C1R(c.s, a, c.d, b, c.roi, c.ms, c.anchor); },
          [](const Case& c, int a, int b) { return lumiFilterMin_16s_C1R(c.s, a, c.d, b, c.roi, c.ms, c.anchor); },
          [](const Case& c, int a, int b) { return lumiFilterMax_16s_C1R(c.s, a, c.d, b, c.roi, c.ms, c.anchor); },
          [](const Case& c, int a, int b) { return lumiFilterMedianHoriz_16s_C1R(c.s, a, c.d, b, c.roi, c.code); },
          [](const Case& c, int a, int b) { return lumiFilterMedianVert_16s_C1R(c.s, a, c.d, b, c.roi, c.code); },
          [](const Case& c, int a, int b) { return lumiFilterMedianCross_16s_C1R(c.s, a, c.d, b, c.roi, c.code); },
          [](const Case& c, int a, int b) { return lumiFilterMedianColor_16s_C3R(c.s, a, c.d, b, c.roi, c.code); }};
      for (int f = 0; f < 7; ++f) {
        std::fill(out.begin(), out.end(), Lum16s{9});
        EXPECT_EQ(calls[f](k, ss, ds), want[f]) << "function " << f << " zero step on " << (which ? "dst" : "src");
        if (want[f] != lumStatusOk) {
          EXPECT_TRUE(std::all_of(out.begin(), out.end(), [](Lum16s v) { return v == 9; }));
        }
      }
    }
  }
  // Each fixed shape accepts its own codes only.
  const int codes[] = {13, 15, 31, 51, 33, 55};
  for (int code : codes) {
    const bool h = code == 31 || code == 51, v = code == 13 || code == 15, sq = code == 33 || code == 55;
    EXPECT_EQ(lumiFilterMedianHoriz_16s_C1R(src, 32, d, 16, {3, 2}, code) == lumStatusOk, h) << code;
    EXPECT_EQ(lumiFilterMedianVert_16s_C1R(src, 32, d, 16, {3, 2}, code) == lumStatusOk, v) << code;
    EXPECT_EQ(lumiFilterMedianCross_16s_C1R(src, 32, d, 16, {3, 2}, code) == lumStatusOk, sq) << code;
    EXPECT_EQ(lumiFilterMedianColor_16s_C3R(src, 32, d, 16, {1, 2}, code) == lumStatusOk, sq) << code;
  }
}

#ifdef LUMI_HAVE_OPENCV
// cv::medianBlur on the whole image: its border handling does not reach the interior, which we
// compute from the same pixels.
TEST(Rank, MedianAgreesWithOpenCV) {
  Rng r = makeRng(77);
  for (int type : {CV_8UC1, CV_8UC3, CV_8UC4})
    for (int k : {3, 5, 7, 9}) {
      cv::Mat img(randInt(r, 20, 60), randInt(r, 40, 130), type), want;
      cv::randu(img, 0, 256);
      cv::medianBlur(img, want, k);
      const int b = k / 2;
      const cv::Rect inner(b, b, img.cols - 2 * b, img.rows - 2 * b);
      cv::Mat got(inner.size(), type);
      const cv::Mat src = img(inner);
      const LumiSize roi{inner.width, inner.height};
      const int ch = CV_MAT_CN(type), layout = ch == 1 ? 0 : ch == 3 ? 1 : 2;
      ASSERT_EQ(Api<Lum8u>::median[layout](src.ptr<Lum8u>(), static_cast<int>(src.step), got.ptr<Lum8u>(),
                                           static_cast<int>(got.step), roi, {k, k}, {b, b}),
                lumStatusOk);
      EXPECT_EQ(cv::norm(got, want(inner), cv::NORM_INF), 0) << "type " << type << " k " << k;
    }
}
#endif

}  // namespace
