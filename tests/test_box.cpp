// Box filter and window sums against direct references of their formulas: exact window sums,
// then the 8u multiply-and-shift (or truncated float product), the 16s rounded product and the
// 32f product; random data with the border pixels supplied, padded steps, guarded buffers, every
// type and layout, in place against out of place, one and two threads.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <array>
#include <climits>
#include <cmath>

#include "filter/box_kernels.h"
#include "lumi/filter.h"
#include "lumitest.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace lumitest;

namespace {

class ThreadCount {  // sets threads_omp_of_n_lum for one test and puts it back
 public:
  explicit ThreadCount(int n) : saved_(threads_omp_of_n_lum) { threads_omp_of_n_lum = n; }
  ~ThreadCount() { threads_omp_of_n_lum = saved_; }

 private:
  int saved_;
};

template <class T>
struct Box {
  LumStatus (*r[4])(const T*, int, T*, int, LumiSize, LumiSize, LumiPoint);
  LumStatus (*ir[4])(T*, int, LumiSize, LumiSize, LumiPoint);
};
#define BOX_FNS(t)                                                                                       \
  {{lumiFilterBox_##t##_C1R, lumiFilterBox_##t##_C3R, lumiFilterBox_##t##_C4R, lumiFilterBox_##t##_AC4R}, \
   {lumiFilterBox_##t##_C1IR, lumiFilterBox_##t##_C3IR, lumiFilterBox_##t##_C4IR, lumiFilterBox_##t##_AC4IR}}
const Box<Lum8u> kBox8u BOX_FNS(8u);
const Box<Lum16s> kBox16s BOX_FNS(16s);
const Box<Lum32f> kBox32f BOX_FNS(32f);
template <class T> const Box<T>& boxFns();
template <> const Box<Lum8u>& boxFns() { return kBox8u; }
template <> const Box<Lum16s>& boxFns() { return kBox16s; }
template <> const Box<Lum32f>& boxFns() { return kBox32f; }

// The 8u multiplier and shift as written: q nearest to 2^32 r - 0.49999 in single precision,
// doubled up to 24 times until its top bit is set; m = (q >> 20) + 1, s = doublings + 12.
void refScale(long long area, uint32_t* m, int* s) {
  float r = 1.0f / static_cast<float>(area);
  if (r == 1.0f) {
    *m = 4096, *s = 12;
    return;
  }
  float v = 4294967296.0f * r - 0.49998998641967773f;
  uint32_t q = static_cast<uint32_t>(static_cast<uint64_t>(std::nearbyint(static_cast<double>(v))));
  int n = 0;
  for (; !(q >> 31) && n < 24; ++n) q <<= 1;
  *m = (q >> 20) + 1, *s = n + 12;
}

// The expected pixel for an exact window sum.
template <class T>
T expectFrom(double sum, long long area) {
  float r = 1.0f / static_cast<float>(area);
  if constexpr (std::is_same_v<T, Lum8u>) {
    if (area <= 8100) {
      uint32_t m;
      int s;
      refScale(area, &m, &s);
      return static_cast<Lum8u>((m * static_cast<uint32_t>(sum)) >> s);
    }
    return static_cast<Lum8u>(static_cast<int>(static_cast<float>(sum) * r));
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    double v = std::nearbyint(static_cast<double>(static_cast<float>(sum) * r));
    return static_cast<Lum16s>(std::min(32767.0, std::max(-32768.0, v)));
  } else {
    return static_cast<T>(sum / static_cast<double>(area));
  }
}

struct Case {
  int w, h;
  LumiSize mask;
  LumiPoint anchor;
};

// Source with the border the mask needs (random), destination prefilled (random): filters,
// checks every ROI element, AC4 alpha and the guards, and returns the destination.
template <class T>
void checkBox(const Case& k, int li, uint32_t seed) {
  const Layout L = kLayouts[li];
  Rng rng = makeRng(seed);
  GuardedImage<T> src(k.w + k.mask.width - 1, k.h + k.mask.height - 1, L.ch, -1, -1, seed);
  GuardedImage<T> dst(k.w, k.h, L.ch, -1, -1, seed + 1);
  if constexpr (std::is_same_v<T, Lum32f>)
    src.fill([&](int, int, int) { return static_cast<T>(randInt(rng, -100000, 100000) / 100.0); });
  else
    src.fillRandom(rng);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  const T* origin = &src.at(k.anchor.x, k.anchor.y);
  EXPECT_EQ(boxFns<T>().r[li](origin, src.step(), dst.ptr(), dst.step(), dst.roi(), k.mask, k.anchor),
            lumStatusOk);
  EXPECT_TRUE(dst.guardsIntact());
  const long long area = static_cast<long long>(k.mask.width) * k.mask.height;
  for (int y = 0; y < k.h; ++y)
    for (int x = 0; x < k.w; ++x)
      for (int c = 0; c < L.ch; ++c) {
        const T got = dst.at(x, y, c);
        if (c >= L.use) {
          EXPECT_EQ(got, before[(static_cast<size_t>(y) * k.w + x) * L.ch + c]) << "alpha " << x << "," << y;
          continue;
        }
        double sum = 0, mag = 0;
        for (int j = 0; j < k.mask.height; ++j)
          for (int i = 0; i < k.mask.width; ++i) {
            double v = src.at(x + i, y + j, c);
            sum += v;
            mag += std::fabs(v);
          }
        const T want = expectFrom<T>(sum, area);
        if constexpr (std::is_same_v<T, Lum32f>) {
          // running sums drift by a few ulps of the largest sums per slide
          const double tol = 2e-7 * mag / area * (k.w + k.h + k.mask.width + k.mask.height);
          ASSERT_NEAR(got, want, tol + 1e-6) << L.name << " " << x << "," << y << "," << c;
        } else {
          ASSERT_EQ(+got, +want) << L.name << " " << x << "," << y << "," << c << " mask "
                                 << k.mask.width << "x" << k.mask.height;
        }
      }

  // In place on a copy of the source must give exactly the same pixels and touch only the ROI.
  GuardedImage<T> io(src.width(), src.height(), L.ch, -1, -1, seed + 2);
  for (int y = 0; y < src.height(); ++y)
    std::memcpy(io.row(y), src.row(y), sizeof(T) * src.width() * L.ch);
  EXPECT_EQ(boxFns<T>().ir[li](&io.at(k.anchor.x, k.anchor.y), io.step(), dst.roi(), k.mask, k.anchor),
            lumStatusOk);
  EXPECT_TRUE(io.guardsIntact());
  for (int y = 0; y < src.height(); ++y)
    for (int x = 0; x < src.width(); ++x)
      for (int c = 0; c < L.ch; ++c) {
        const int rx = x - k.anchor.x, ry = y - k.anchor.y;
        const bool inRoi = rx >= 0 && ry >= 0 && rx < k.w && ry < k.h && c < L.use;
        const T want = inRoi ? dst.at(rx, ry, c) : src.at(x, y, c);
        ASSERT_EQ(std::memcmp(&io.at(x, y, c), &want, sizeof(T)), 0)
            << "in place " << L.name << " " << x << "," << y << "," << c;
      }
}

template <class T>
void randomCases(int maxMask, int rounds) {
  for (int threads : {1, 2}) {
    ThreadCount tc(threads);
    for (int li = 0; li < 4; ++li) {
      Rng rng = makeRng(100 + li);
      for (int n = 0; n < rounds; ++n) {
        Case k;
        // small ROIs stay serial; the larger ones (above 4096 pixels) are split into bands
        LumiSize roi = n % 3 == 2 ? LumiSize{randInt(rng, 60, 97), randInt(rng, 69, 80)} : randomSize(rng, 41, 13);
        k.w = roi.width, k.h = roi.height;
        k.mask = {randInt(rng, 1, maxMask), randInt(rng, 1, maxMask)};
        k.anchor = {randInt(rng, 0, k.mask.width - 1), randInt(rng, 0, k.mask.height - 1)};
        checkBox<T>(k, li, 1000 * li + n);
        if (::testing::Test::HasFatalFailure()) return;
      }
    }
  }
}

TEST(FilterBox, MatchesTheFormula8u) { randomCases<Lum8u>(9, 12); }
TEST(FilterBox, MatchesTheFormula16s) { randomCases<Lum16s>(9, 9); }
TEST(FilterBox, MatchesTheFormula32f) { randomCases<Lum32f>(9, 9); }
TEST(FilterBox, WideTallAndOnePixelMasks) {  // long running sums, the wide-mask routes
  for (int li = 0; li < 4; ++li) {
    checkBox<Lum8u>({37, 5, {31, 3}, {30, 1}}, li, 5);
    checkBox<Lum8u>({70, 66, {31, 31}, {15, 15}}, li, 6);
    checkBox<Lum8u>({45, 7, {12, 30}, {11, 0}}, li, 11);   // 32-bit sums, direct rows
    checkBox<Lum8u>({21, 3, {95, 90}, {40, 89}}, li, 12);  // float path
    checkBox<Lum16s>({23, 6, {40, 2}, {0, 1}}, li, 7);
    checkBox<Lum32f>({29, 4, {33, 5}, {16, 4}}, li, 8);
    checkBox<Lum16s>({1, 4, {20, 2}, {3, 1}}, li, 10);  // one-pixel rows of a wide mask
    checkBox<Lum32f>({2, 3, {25, 1}, {24, 0}}, li, 10);
    checkBox<Lum8u>({17, 3, {1, 1}, {0, 0}}, li, 9);  // a one-pixel mask copies
    checkBox<Lum16s>({17, 3, {1, 1}, {0, 0}}, li, 9);
    checkBox<Lum32f>({17, 3, {1, 1}, {0, 0}}, li, 9);
  }
}
// The multiplier rule's published pairs, and sums that its +1 bias rounds up.
TEST(FilterBox, IntegerPathMultiplierAndBias) {
  for (auto k : {std::array<int, 3>{9, 3641, 15}, {25, 2622, 16}, {8100, 2072, 24}}) {
    uint32_t m;
    int s;
    refScale(k[0], &m, &s);
    EXPECT_EQ(m, static_cast<uint32_t>(k[1]));
    EXPECT_EQ(s, k[2]);
  }
  struct Sum {
    int mw, mh, sum, want;
  };
  // 3x3 of 0..8 (sum 36): 4, not the truncated mean 3; 4x4 summing 2063: 129; 5x5 summing 4699:
  // 188; 90x90 summing 8098: 1.
  for (Sum k : {Sum{3, 3, 36, 4}, Sum{4, 4, 2063, 129}, Sum{5, 5, 4699, 188}, Sum{90, 90, 8098, 1},
                Sum{91, 90, 8190 * 255, 255}, Sum{1621, 5, 8105 * 255, 254}}) {
    for (int li = 0; li < 4; ++li) {
      const Layout L = kLayouts[li];
      const int area = k.mw * k.mh;
      GuardedImage<Lum8u> src(k.mw, k.mh, L.ch), dst(1, 1, L.ch);
      for (int y = 0, i = 0; y < k.mh; ++y)  // the sum spread as evenly as whole values allow
        for (int x = 0; x < k.mw; ++x, ++i)
          for (int c = 0; c < L.ch; ++c)
            src.at(x, y, c) = static_cast<Lum8u>(1LL * k.sum * (i + 1) / area - 1LL * k.sum * i / area);
      ASSERT_EQ(kBox8u.r[li](src.ptr(), src.step(), dst.ptr(), dst.step(), {1, 1}, {k.mw, k.mh}, {0, 0}),
                lumStatusOk);
      for (int c = 0; c < L.use; ++c) EXPECT_EQ(+dst.at(0, 0, c), k.want) << k.mw << "x" << k.mh << " " << L.name;
    }
  }
}

// The 16-bit form of the product, ((S x m16) >> 16) >> post, equals (m x S) >> s for every sum
// of every mask area that keeps 16-bit sums.
TEST(FilterBox, SixteenBitProductIsExact) {
  for (long long area = 2; area <= lumi::box::kMaxNarrowArea; ++area) {
    const lumi::box::BoxScale sc = lumi::box::scale8u(area);
    for (uint32_t sum = 0; sum <= 255 * area; ++sum)
      ASSERT_EQ(((sum * sc.m16) >> 16) >> sc.post, (sum * sc.m) >> sc.s) << area << " " << sum;
  }
}

// Every multiplier of the integer path keeps 255 at 255 (m x 255 x area stays below 2^32).
TEST(FilterBox, WhiteStaysWhiteForEveryIntegerArea) {
  std::vector<Lum8u> white(8100 + 2, 255), out(3);
  for (int area = 1; area <= 8100; ++area) {
    ASSERT_EQ(lumiFilterBox_8u_C1R(white.data(), 8200, out.data(), 8, {3, 1}, {area, 1}, {0, 0}), lumStatusOk);
    ASSERT_EQ(out, std::vector<Lum8u>(3, 255)) << area;
  }
}

// 16s rounds to nearest, ties to even, whatever mode the caller left the SSE unit in (the
// result equals the one in the default mode), and puts the caller's mode back.
TEST(FilterBox, RoundingIsNearestWhateverTheCallersMode) {
  Rng rng = makeRng(13);
  GuardedImage<Lum16s> src(35, 71, 4), dst(34, 70, 4);
  src.fillRandom(rng);
  std::vector<Lum16s> nearest;
  const unsigned saved = _mm_getcsr();
  for (unsigned mode : {0u, 0x6000u, 0x2000u}) {  // nearest, toward zero, down
    _mm_setcsr((saved & ~0x6000u) | mode);
    ASSERT_EQ(lumiFilterBox_16s_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), dst.roi(), {2, 2}, {0, 0}),
              lumStatusOk);  // means of four end in .25, .5 or .75
    EXPECT_EQ(_mm_getcsr() & 0x6000u, mode);
    _mm_setcsr(saved);
    if (mode == 0) nearest = dst.pixels();
    EXPECT_TRUE(sameElements(dst.pixels(), nearest));
  }
}

// A mask too large for any scratch block: lumStatusMemAllocErr, nothing read or written.
TEST(FilterBox, ScratchTooLargeIsMemAllocErr) {
  GuardedImage<Lum8u> a(4, 4, 1), b(4, 4, 1);
  EXPECT_EQ(lumiFilterBox_8u_C1R(a.ptr(), a.step(), b.ptr(), b.step(), {4, 4}, {1 << 30, 1}, {0, 0}),
            lumStatusMemAllocErr);
  EXPECT_EQ(lumiFilterBox_32f_C4IR(reinterpret_cast<Lum32f*>(a.ptr()), 64, {1, 1}, {INT_MAX, 3}, {5, 1}),
            lumStatusMemAllocErr);
  EXPECT_TRUE(b.guardsIntact());
}

#ifdef LUMI_HAVE_OPENCV
// OpenCV's box filter as an independent oracle: the mean for 32f, the plain sums (one row or
// one column of the mask) for the window sums.
TEST(FilterBox, AgreesWithOpenCV) {
  cv::Mat src(90, 120, CV_32FC3), src8(90, 120, CV_8UC3);
  cv::randu(src, -1000.0, 1000.0);
  cv::randu(src8, 0, 256);
  const cv::Size mask(7, 5);
  const cv::Point anchor(2, 3);
  cv::Mat want, got(90 - 4, 120 - 6, CV_32FC3);
  cv::boxFilter(src, want, CV_32F, mask, anchor, true, cv::BORDER_ISOLATED);
  ASSERT_EQ(lumiFilterBox_32f_C3R(src.ptr<Lum32f>(3, 2), static_cast<int>(src.step), got.ptr<Lum32f>(),
                                  static_cast<int>(got.step), {got.cols, got.rows}, {7, 5}, {2, 3}),
            lumStatusOk);
  EXPECT_LE(cv::norm(got, want(cv::Rect(2, 3, got.cols, got.rows)), cv::NORM_INF), 2e-3);

  cv::Mat rowWant, colWant, rowGot(90, 120 - 8, CV_32FC3), colGot(90 - 8, 120, CV_32FC3);
  cv::boxFilter(src8, rowWant, CV_32F, cv::Size(9, 1), cv::Point(4, 0), false, cv::BORDER_ISOLATED);
  cv::boxFilter(src8, colWant, CV_32F, cv::Size(1, 9), cv::Point(0, 4), false, cv::BORDER_ISOLATED);
  ASSERT_EQ(lumiSumWindowRow_8u32f_C3R(src8.ptr(0, 4), static_cast<int>(src8.step), rowGot.ptr<Lum32f>(),
                                       static_cast<int>(rowGot.step), {rowGot.cols, rowGot.rows}, 9, 4),
            lumStatusOk);
  ASSERT_EQ(lumiSumWindowColumn_8u32f_C3R(src8.ptr(4, 0), static_cast<int>(src8.step), colGot.ptr<Lum32f>(),
                                          static_cast<int>(colGot.step), {colGot.cols, colGot.rows}, 9, 4),
            lumStatusOk);
  EXPECT_EQ(cv::norm(rowGot, rowWant(cv::Rect(4, 0, rowGot.cols, rowGot.rows)), cv::NORM_INF), 0.0);
  EXPECT_EQ(cv::norm(colGot, colWant(cv::Rect(0, 4, colGot.cols, colGot.rows)), cv::NORM_INF), 0.0);
}
#endif

TEST(FilterBox, ChecksInOrder) {
  GuardedImage<Lum8u> a(8, 8, 1), b(8, 8, 1);
  const LumiSize roi{4, 4}, m3{3, 3};
  const LumiPoint p1{1, 1};
  auto r = [&](const Lum8u* s, int ss, Lum8u* d, int ds, LumiSize z, LumiSize m, LumiPoint p) {
    return lumiFilterBox_8u_C1R(s, ss, d, ds, z, m, p);
  };
  EXPECT_EQ(r(nullptr, 0, b.ptr(), 0, {0, 0}, {0, 0}, {-1, -1}), lumStatusNullPtrErr);
  EXPECT_EQ(r(a.ptr(), 8, nullptr, 8, roi, m3, p1), lumStatusNullPtrErr);
  EXPECT_EQ(r(a.ptr(), 0, b.ptr(), 8, {0, 0}, {0, 0}, {-1, -1}), lumStatusStepErr);  // steps before sizes
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), -8, roi, m3, p1), lumStatusStepErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, {4, 0}, {0, 0}, {-1, -1}), lumStatusSizeErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, {0, 4}, m3, p1), lumStatusSizeErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, {0, 3}, {5, 5}), lumStatusMaskSizeErr);  // mask before anchor
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, {3, -1}, p1), lumStatusMaskSizeErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, m3, {3, 0}), lumStatusAnchorErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, m3, {0, 3}), lumStatusAnchorErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, m3, {-1, 0}), lumStatusAnchorErr);
  EXPECT_EQ(r(a.ptr(), 8, b.ptr(), 8, roi, m3, {0, -1}), lumStatusAnchorErr);
  EXPECT_EQ(lumiFilterBox_16s_C3IR(nullptr, 0, {0, 0}, {0, 0}, {9, 9}), lumStatusNullPtrErr);
  Lum16s px[64] = {};
  EXPECT_EQ(lumiFilterBox_16s_C3IR(px, 0, {0, 0}, {0, 0}, {9, 9}), lumStatusStepErr);
  EXPECT_EQ(lumiFilterBox_32f_AC4IR(reinterpret_cast<Lum32f*>(px), 32, {0, 1}, {0, 0}, {9, 9}), lumStatusSizeErr);
  EXPECT_EQ(lumiFilterBox_32f_AC4IR(reinterpret_cast<Lum32f*>(px), 32, {1, 1}, {1, 0}, {9, 9}), lumStatusMaskSizeErr);
  EXPECT_EQ(lumiFilterBox_8u_C4IR(a.ptr(), 8, {1, 1}, {2, 2}, {2, 1}), lumStatusAnchorErr);
  EXPECT_TRUE(a.guardsIntact());
  EXPECT_TRUE(b.guardsIntact());
  EXPECT_EQ(r(a.ptr() + 8 * 2 + 2, 8, b.ptr(), 8, roi, m3, {2, 2}), lumStatusOk);  // anchor at the last cell
}

// ---- window sums ----------------------------------------------------------------------------
template <class T>
using WinFn = LumStatus (*)(const T*, int, Lum32f*, int, LumiSize, int, int);
struct Win {
  WinFn<Lum8u> row8[3], col8[3];
  WinFn<Lum16s> row16[3], col16[3];
};
const Win kWin{{lumiSumWindowRow_8u32f_C1R, lumiSumWindowRow_8u32f_C3R, lumiSumWindowRow_8u32f_C4R},
               {lumiSumWindowColumn_8u32f_C1R, lumiSumWindowColumn_8u32f_C3R, lumiSumWindowColumn_8u32f_C4R},
               {lumiSumWindowRow_16s32f_C1R, lumiSumWindowRow_16s32f_C3R, lumiSumWindowRow_16s32f_C4R},
               {lumiSumWindowColumn_16s32f_C1R, lumiSumWindowColumn_16s32f_C3R, lumiSumWindowColumn_16s32f_C4R}};

template <class T>
void checkWindow(WinFn<T> f, bool column, int ch, uint32_t seed) {
  Rng rng = makeRng(seed);
  for (int n = 0; n < 12; ++n) {
    LumiSize roi = n == 11 ? LumiSize{300, 3} : randomSize(rng, 40, 9);
    const int mask = n == 10 ? 300 : randInt(rng, 1, 12), anchor = randInt(rng, 0, mask - 1);
    const int sw = roi.width + (column ? 0 : mask - 1), sh = roi.height + (column ? mask - 1 : 0);
    GuardedImage<T> src(sw, sh, ch, -1, -1, seed + n);
    GuardedImage<Lum32f> dst(roi.width, roi.height, ch, -1, -1, seed + n + 1);
    src.fillRandom(rng);
    const T* origin = column ? &src.at(0, anchor) : &src.at(anchor, 0);
    ASSERT_EQ(f(origin, src.step(), dst.ptr(), dst.step(), roi, mask, anchor), lumStatusOk);
    ASSERT_TRUE(dst.guardsIntact());
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < ch; ++c) {
          long long sum = 0;
          for (int k = 0; k < mask; ++k) sum += column ? src.at(x, y + k, c) : src.at(x + k, y, c);
          ASSERT_EQ(dst.at(x, y, c), static_cast<float>(sum)) << x << "," << y << "," << c << " mask " << mask;
        }
  }
}

TEST(SumWindow, ExactSumsEveryTypeAndLayout) {
  const int chans[3] = {1, 3, 4};
  for (int i = 0; i < 3; ++i) {
    checkWindow<Lum8u>(kWin.row8[i], false, chans[i], 10 + i);
    checkWindow<Lum8u>(kWin.col8[i], true, chans[i], 20 + i);
    checkWindow<Lum16s>(kWin.row16[i], false, chans[i], 30 + i);
    checkWindow<Lum16s>(kWin.col16[i], true, chans[i], 40 + i);
  }
}

TEST(SumWindow, ChecksAndEmptyHeight) {
  GuardedImage<Lum8u> a(8, 4, 1);
  GuardedImage<Lum32f> d(8, 4, 1);
  for (WinFn<Lum8u> f : {kWin.row8[0], kWin.col8[0], kWin.row8[2], kWin.col8[1]}) {
    EXPECT_EQ(f(nullptr, 8, d.ptr(), 32, {0, 0}, 0, -1), lumStatusNullPtrErr);
    EXPECT_EQ(f(a.ptr(), 8, nullptr, 32, {4, 4}, 3, 1), lumStatusNullPtrErr);
    EXPECT_EQ(f(a.ptr(), 8, d.ptr(), 32, {0, 0}, 0, 5), lumStatusMaskSizeErr);  // before anchor, height
    EXPECT_EQ(f(a.ptr(), 8, d.ptr(), 32, {0, 0}, 3, 3), lumStatusAnchorErr);
    EXPECT_EQ(f(a.ptr(), 8, d.ptr(), 32, {0, 0}, 3, -1), lumStatusAnchorErr);
    // height below 1: nothing written, whatever the width and steps
    EXPECT_EQ(f(a.ptr(), 0, d.ptr(), -4, {-5, 0}, 3, 2), lumStatusOk);
    EXPECT_EQ(f(a.ptr(), 8, d.ptr(), 32, {8, -3}, 1, 0), lumStatusOk);
    EXPECT_TRUE(d.guardsIntact());
  }
  EXPECT_EQ(kWin.row16[1](nullptr, 8, d.ptr(), 32, {0, 0}, 0, -1), lumStatusNullPtrErr);
  EXPECT_EQ(kWin.col16[2](reinterpret_cast<Lum16s*>(a.ptr()), 8, d.ptr(), 32, {0, 0}, -2, 0), lumStatusMaskSizeErr);
}

}  // namespace
