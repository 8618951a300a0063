// Erosion and dilation against the direct definition (the minimum or maximum over the
// participating offsets), in place against out of place, the order of the checks, and OpenCV
// as an independent oracle.
#include <algorithm>

#include "lumi/morphology.h"
#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using namespace lumitest;

template <class T>
using SquareFn = LumStatus (*)(const T*, int, T*, int, LumiSize);
template <class T>
using SquareInPlaceFn = LumStatus (*)(T*, int, LumiSize);
template <class T>
using MaskFn = LumStatus (*)(const T*, int, T*, int, LumiSize, const Lum8u*, LumiSize, LumiPoint);
template <class T>
using MaskInPlaceFn = LumStatus (*)(T*, int, LumiSize, const Lum8u*, LumiSize, LumiPoint);

// Indexed [dilate][layout as in kLayouts]; there is no C4 in-place mask form.
template <class T>
struct Api;
#define BY_LAYOUT(pre, post) {pre##C1##post, pre##C3##post, pre##C4##post, pre##AC4##post}
#define LUMI_TEST_MORPH_API(t)                                                                  \
  template <>                                                                                   \
  struct Api<Lum##t> {                                                                          \
    using T = Lum##t;                                                                           \
    static constexpr SquareFn<T> square[2][4] = {BY_LAYOUT(lumiErode3x3_##t##_, R),             \
                                                 BY_LAYOUT(lumiDilate3x3_##t##_, R)};           \
    static constexpr SquareInPlaceFn<T> squareI[2][4] = {BY_LAYOUT(lumiErode3x3_##t##_, IR),    \
                                                         BY_LAYOUT(lumiDilate3x3_##t##_, IR)};  \
    static constexpr MaskFn<T> mask[2][4] = {BY_LAYOUT(lumiErode_##t##_, R),                    \
                                             BY_LAYOUT(lumiDilate_##t##_, R)};                  \
    static constexpr MaskInPlaceFn<T> maskI[2][4] = {                                           \
        {lumiErode_##t##_C1IR, lumiErode_##t##_C3IR, nullptr, lumiErode_##t##_AC4IR},           \
        {lumiDilate_##t##_C1IR, lumiDilate_##t##_C3IR, nullptr, lumiDilate_##t##_AC4IR}};       \
  };
LUMI_TEST_MORPH_API(8u)
LUMI_TEST_MORPH_API(32f)

struct Element {
  LumiSize size;
  LumiPoint anchor;
  std::vector<Lum8u> mask;  // empty: the 3x3 functions
};
Element square3x3() { return {{3, 3}, {1, 1}, {}}; }

Element randomElement(Rng& r) {
  Element e{{randInt(r, 1, 7), randInt(r, 1, 7)}, {0, 0}, {}};
  e.anchor = {randInt(r, 0, e.size.width - 1), randInt(r, 0, e.size.height - 1)};
  e.mask.resize(static_cast<std::size_t>(e.size.width) * e.size.height);
  const int density = randInt(r, 1, 4);  // sparse to full
  for (auto& m : e.mask) m = randInt(r, 0, 3) < density ? static_cast<Lum8u>(randInt(r, 1, 255)) : 0;
  e.mask[static_cast<std::size_t>(randInt(r, 0, static_cast<int>(e.mask.size()) - 1))] = 1;
  return e;
}

bool takesPart(const Element& e, int i, int j) {
  return e.mask.empty() || e.mask[static_cast<std::size_t>(i) * e.size.width + j] != 0;
}

// The source with its border: the ROI starts at (anchor.x, anchor.y) of `big`.
template <class T>
std::vector<T> reference(const GuardedImage<T>& big, const Element& e, LumiSize roi, Layout L,
                         bool dilate, std::vector<T> before) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < L.use; ++c) {
        bool first = true;
        T acc{};
        for (int i = 0; i < e.size.height; ++i)
          for (int j = 0; j < e.size.width; ++j) {
            if (!takesPart(e, i, j)) continue;
            T v = big.at(x + j, y + i, c);
            acc = first ? v : dilate ? std::max(acc, v) : std::min(acc, v);
            first = false;
          }
        before[(static_cast<std::size_t>(y) * roi.width + x) * L.ch + c] = acc;
      }
  return before;
}

// Out of place and, where the form exists, in place, against the definition; in place must
// equal out of place and leave everything outside the ROI as it was.
template <class T>
void checkElement(const Element& e, LumiSize roi, int layout, bool dilate, uint32_t seed) {
  const Layout L = kLayouts[layout];
  SCOPED_TRACE(::testing::Message() << L.name << (dilate ? " dilate " : " erode ") << roi.width
                                    << "x" << roi.height << " mask " << e.size.width << "x"
                                    << e.size.height << " anchor " << e.anchor.x << ","
                                    << e.anchor.y << " seed " << seed);
  Rng r = makeRng(seed);
  GuardedImage<T> big(roi.width + e.size.width - 1, roi.height + e.size.height - 1, L.ch, -1, -1, seed);
  big.fillRandom(r);
  GuardedImage<T> dst(roi.width, roi.height, L.ch, -1, -1, seed + 1);
  dst.fillRandom(r);
  const T* src = &big.at(e.anchor.x, e.anchor.y);
  const Lum8u* m = e.mask.data();
  LumStatus st = e.mask.empty()
                     ? Api<T>::square[dilate][layout](src, big.step(), dst.ptr(), dst.step(), roi)
                     : Api<T>::mask[dilate][layout](src, big.step(), dst.ptr(), dst.step(), roi, m,
                                                    e.size, e.anchor);
  ASSERT_EQ(st, lumStatusOk);
  const std::vector<T> want = reference(big, e, roi, L, dilate, dst.pixels());
  EXPECT_TRUE(sameElements(dst.pixels(), want, roi.width * L.ch));
  EXPECT_TRUE(dst.guardsIntact());

  if (!e.mask.empty() && Api<T>::maskI[dilate][layout] == nullptr) return;
  GuardedImage<T> img(big.width(), big.height(), L.ch, -1, -1, seed);
  img.fill([&](int x, int y, int c) { return big.at(x, y, c); });
  T* p = &img.at(e.anchor.x, e.anchor.y);
  st = e.mask.empty() ? Api<T>::squareI[dilate][layout](p, img.step(), roi)
                      : Api<T>::maskI[dilate][layout](p, img.step(), roi, m, e.size, e.anchor);
  ASSERT_EQ(st, lumStatusOk);
  GuardedImage<T> expect(big.width(), big.height(), L.ch, -1, -1, seed);
  expect.fill([&](int x, int y, int c) {
    const int rx = x - e.anchor.x, ry = y - e.anchor.y;
    const bool inRoi = rx >= 0 && rx < roi.width && ry >= 0 && ry < roi.height && c < L.use;
    return inRoi ? dst.at(rx, ry, c) : big.at(x, y, c);
  });
  EXPECT_TRUE(sameElements(img.pixels(), expect.pixels(), big.width() * L.ch)) << "in place";
  EXPECT_TRUE(img.guardsIntact());
}

template <class T>
void randomCases(bool square) {
  Rng r = makeRng(square ? 33 : 55);
  for (int layout = 0; layout < 4; ++layout)
    for (int dilate = 0; dilate < 2; ++dilate)
      for (int n = 0; n < 12; ++n) {
        LumiSize roi = randomSize(r, 75, 9);
        if (n == 0) roi.height = 1;  // one row: in place reads the rows around it
        Element e = square ? square3x3() : randomElement(r);
        if (!square && n == 1) {  // offset lists that outgrow the stack buffer
          e.size = {randInt(r, 24, 31), randInt(r, 24, 31)};
          e.anchor = {randInt(r, 0, e.size.width - 1), randInt(r, 0, e.size.height - 1)};
          e.mask.resize(static_cast<std::size_t>(e.size.width) * e.size.height);
          for (auto& m : e.mask) m = static_cast<Lum8u>(randInt(r, 0, 9) ? 1 : 0);
        }
        checkElement<T>(e, roi, layout, dilate != 0, static_cast<uint32_t>(r()));
      }
}

TEST(Morphology, Square3x3MatchesDefinition) {
  randomCases<Lum8u>(true);
  randomCases<Lum32f>(true);
}

TEST(Morphology, MaskMatchesDefinition) {
  randomCases<Lum8u>(false);
  randomCases<Lum32f>(false);
}

// Large enough to split the rows among threads; in place the bands' border rows must be
// read before the neighbouring band overwrites them.
TEST(Morphology, ThreadedBandsMatchDefinition) {
  const int saved = threads_omp_of_n_lum;
  Element e{{5, 7}, {1, 5}, std::vector<Lum8u>(35, 1)};
  e.mask[3] = e.mask[17] = 0;  // column patterns: full, one row short, one with a gap
  for (int threads : {2, 3}) {
    threads_omp_of_n_lum = threads;
    checkElement<Lum8u>(square3x3(), {701, 301}, 0, false, 11);
    checkElement<Lum32f>(square3x3(), {600, 300}, 3, true, 12);
    checkElement<Lum8u>(e, {400, 150}, 1, true, 13);
  }
  threads_omp_of_n_lum = saved;
}

TEST(Morphology, SingleBrightPixel) {
  GuardedImage<Lum8u> src(9, 9, 1);
  src.fill([](int x, int y, int) { return static_cast<Lum8u>(x == 4 && y == 4 ? 200 : 10); });
  GuardedImage<Lum8u> dst(7, 7, 1);
  ASSERT_EQ(lumiErode3x3_8u_C1R(&src.at(1, 1), src.step(), dst.ptr(), dst.step(), dst.roi()), lumStatusOk);
  for (Lum8u v : dst.pixels()) EXPECT_EQ(v, 10);
  ASSERT_EQ(lumiDilate3x3_8u_C1R(&src.at(1, 1), src.step(), dst.ptr(), dst.step(), dst.roi()), lumStatusOk);
  for (int y = 0; y < 7; ++y)
    for (int x = 0; x < 7; ++x)
      EXPECT_EQ(dst.at(x, y), std::abs(x - 3) <= 1 && std::abs(y - 3) <= 1 ? 200 : 10) << x << "," << y;
}

// Each row breaks one check and every later one; the earlier checks pass. Nothing is written.
TEST(Morphology, ChecksInOrder) {
  const LumiSize roi{5, 3};
  std::vector<Lum32f> buf(200, 1.0f);
  Lum32f* src = buf.data() + 40;
  std::vector<Lum32f> out(60, 9.0f);
  const int row = 7 * 3 * 4;  // the source row of the 3x3 functions, C3: (5 + 2) x 3 x 4 bytes
  const Lum8u ones[6] = {1, 1, 1, 1, 1, 1}, zeros[6] = {};
  struct Case {
    const Lum32f* s;
    int sStep, dStep;
    LumiSize roi;
    const Lum8u* mask;
    LumiSize ms;
    LumiPoint anchor;
    LumStatus square, masked;
  };
  const Case cases[] = {
      {nullptr, 0, 0, {0, 0}, nullptr, {0, 0}, {-1, 9}, lumStatusNullPtrErr, lumStatusNullPtrErr},
      {src, 0, row, {0, 0}, ones, {0, 0}, {-1, 9}, lumStatusStepErr, lumStatusStepErr},
      {src, row, 0, {0, 0}, ones, {0, 0}, {-1, 9}, lumStatusStepErr, lumStatusStepErr},
      {src, 1, 1, {0, 3}, ones, {0, 0}, {-1, 9}, lumStatusSizeErr, lumStatusSizeErr},
      {src, 1, 1, roi, ones, {3, 0}, {-1, 9}, lumStatusStepBelowRowErr, lumStatusMaskSizeErr},
      {src, 1, 1, roi, zeros, {3, 2}, {-1, 9}, lumStatusStepBelowRowErr, lumStatusZeroMaskErr},
      {src, 1, 1, roi, ones, {3, 2}, {3, 0}, lumStatusStepBelowRowErr, lumStatusAnchorErr},
      {src, 1, 1, roi, ones, {3, 2}, {0, 2}, lumStatusStepBelowRowErr, lumStatusAnchorErr},
      {src, row - 1, row, roi, ones, {3, 2}, {2, 1}, lumStatusStepBelowRowErr, lumStatusStepBelowRowErr},
      {src, row, 5 * 12 - 1, roi, ones, {3, 2}, {2, 1}, lumStatusStepBelowRowErr, lumStatusStepBelowRowErr},
      {src, row, 5 * 12, roi, ones, {3, 2}, {2, 1}, lumStatusOk, lumStatusOk},
  };
  for (const Case& k : cases) {
    SCOPED_TRACE(::testing::Message() << "steps " << k.sStep << "," << k.dStep);
    std::vector<Lum32f> d = out;
    EXPECT_EQ(lumiErode3x3_32f_C3R(k.s, k.sStep, d.data(), k.dStep, k.roi), k.square);
    if (k.square != lumStatusOk) {
      EXPECT_EQ(d, out);
    }
    EXPECT_EQ(lumiDilate_32f_C3R(k.s, k.sStep, d.data(), k.dStep, k.roi, k.mask, k.ms, k.anchor), k.masked);
    if (k.masked != lumStatusOk) {
      EXPECT_EQ(d, out);
    }
  }
  // In place: only the source row is checked against the step, one pixel short fails.
  std::vector<Lum8u> img(128, 5);
  EXPECT_EQ(lumiErode3x3_8u_AC4IR(img.data() + 40, 7 * 4 - 1, {5, 1}), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiErode3x3_8u_AC4IR(img.data() + 40, 7 * 4, {5, 1}), lumStatusOk);
  EXPECT_EQ(lumiErode_8u_C1IR(img.data() + 40, 6, {5, 1}, ones, {3, 2}, {1, 0}), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiErode_8u_C1IR(nullptr, 6, {5, 1}, ones, {3, 2}, {1, 0}), lumStatusNullPtrErr);
}

#ifdef LUMI_HAVE_OPENCV
// cv::erode and cv::dilate on a ROI of a larger image read the pixels around the ROI, as we do.
TEST(Morphology, AgreesWithOpenCV) {
  Rng r = makeRng(99);
  const int types[] = {CV_8UC1, CV_8UC3, CV_8UC4, CV_32FC1, CV_32FC3, CV_32FC4};
  for (int type : types)
    for (int dilate = 0; dilate < 2; ++dilate)
      for (int n = 0; n < 3; ++n) {
        Element e = n == 0 ? square3x3() : randomElement(r);
        if (e.mask.empty()) e.mask.assign(9, 1);
        const LumiSize roi{randInt(r, 20, 90), randInt(r, 5, 30)};
        cv::Mat big(roi.height + e.size.height - 1, roi.width + e.size.width - 1, type);
        cv::randu(big, CV_MAT_DEPTH(type) == CV_8U ? 0 : -1000, CV_MAT_DEPTH(type) == CV_8U ? 256 : 1000);
        cv::Mat view = big(cv::Rect(e.anchor.x, e.anchor.y, roi.width, roi.height)), want, got;
        cv::Mat kernel(e.size.height, e.size.width, CV_8U, e.mask.data());
        const cv::Point anchor(e.anchor.x, e.anchor.y);
        if (dilate) {
          cv::dilate(view, want, kernel, anchor);
        } else {
          cv::erode(view, want, kernel, anchor);
        }
        got.create(roi.height, roi.width, type);
        const int ch = CV_MAT_CN(type), layout = ch == 1 ? 0 : ch == 3 ? 1 : 2;
        const int ss = static_cast<int>(big.step), ds = static_cast<int>(got.step);
        LumStatus st = CV_MAT_DEPTH(type) == CV_8U
            ? Api<Lum8u>::mask[dilate][layout](view.ptr<Lum8u>(), ss, got.ptr<Lum8u>(), ds, roi,
                                               e.mask.data(), e.size, e.anchor)
            : Api<Lum32f>::mask[dilate][layout](view.ptr<Lum32f>(), ss, got.ptr<Lum32f>(), ds, roi,
                                                e.mask.data(), e.size, e.anchor);
        ASSERT_EQ(st, lumStatusOk);
        EXPECT_EQ(cv::norm(got, want, cv::NORM_INF), 0) << "type " << type << " dilate " << dilate;
      }
}
#endif

}  // namespace
