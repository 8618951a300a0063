// General linear filters against a direct reference of the definition (the kernel applied
// mirrored, the divisor's three modes, 32f kernels rounded ties to even and saturated) on random
// data with the border pixels supplied, every type, layout and kernel shape, guarded buffers,
// one and two threads; the checks' order; OpenCV on 32f as an independent oracle.
#include <xmmintrin.h>

#include <cmath>

#include "lumi/filter_linear.h"
#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace lumitest;

namespace {

enum Shape { k2D, kRow, kCol };

// Every export reached as the 2-D form: shape picks the function, ks and anchor its sizes.
template <class T, class K>
struct Api;
#define BY_LAYOUT(pre) \
  { pre##C1R, pre##C3R, pre##C4R, pre##AC4R }
#define LINEAR_API(t, K, f2, fr, fc)                             \
  template <>                                                    \
  struct Api<Lum##t, K> {                                        \
    static constexpr decltype(&f2##C1R) twoD[4] = BY_LAYOUT(f2); \
    static constexpr decltype(&fr##C1R) row[4] = BY_LAYOUT(fr);  \
    static constexpr decltype(&fc##C1R) col[4] = BY_LAYOUT(fc);  \
  };
LINEAR_API(8u, Lum32s, lumiFilter_8u_, lumiFilterRow_8u_, lumiFilterColumn_8u_)
LINEAR_API(16s, Lum32s, lumiFilter_16s_, lumiFilterRow_16s_, lumiFilterColumn_16s_)
LINEAR_API(32f, Lum32f, lumiFilter_32f_, lumiFilterRow_32f_, lumiFilterColumn_32f_)
LINEAR_API(8u, Lum32f, lumiFilter32f_8u_, lumiFilterRow32f_8u_, lumiFilterColumn32f_8u_)
LINEAR_API(16s, Lum32f, lumiFilter32f_16s_, lumiFilterRow32f_16s_, lumiFilterColumn32f_16s_)

template <class T, class K>
LumStatus call(Shape s, int li, const T* src, int ss, T* dst, int ds, LumiSize roi, const K* k,
               LumiSize ks, LumiPoint a, int divisor) {
  using A = Api<T, K>;
  if constexpr (std::is_same_v<K, Lum32s>) {
    if (s == kRow) return A::row[li](src, ss, dst, ds, roi, k, ks.width, a.x, divisor);
    if (s == kCol) return A::col[li](src, ss, dst, ds, roi, k, ks.height, a.y, divisor);
    return A::twoD[li](src, ss, dst, ds, roi, k, ks, a, divisor);
  } else {
    if (s == kRow) return A::row[li](src, ss, dst, ds, roi, k, ks.width, a.x);
    if (s == kCol) return A::col[li](src, ss, dst, ds, roi, k, ks.height, a.y);
    return A::twoD[li](src, ss, dst, ds, roi, k, ks, a);
  }
}

// The expected pixel from the sum, as the divisor (or the 32f kernel) says.
template <class T>
T expectInt(int64_t s, int divisor) {
  double r;
  if (divisor == 1)
    r = static_cast<double>(s);
  else if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    const int k = __builtin_ctz(divisor);
    r = (std::is_same_v<T, Lum8u> && s < 1) ? 0.0
                                            : static_cast<double>((s + (1LL << (k - 1))) >> k);
  } else {
    r = std::nearbyint(static_cast<float>(s) * (1.0f / static_cast<float>(divisor)));
  }
  return static_cast<T>(
      std::fmin(std::fmax(r, std::numeric_limits<T>::lowest()), std::numeric_limits<T>::max()));
}
template <class T>
T expectFloat(float s) {
  if constexpr (std::is_same_v<T, Lum32f>)
    return s;
  else
    return static_cast<T>(std::fmin(std::fmax(std::nearbyint(s), std::numeric_limits<T>::lowest()),
                                    std::numeric_limits<T>::max()));
}

struct Case {
  Shape shape;
  int w, h;
  LumiSize ks;
  LumiPoint anchor;
  int divisor;
};

// Filters a random source (with every pixel the kernel reaches) into a prefilled destination,
// compares each element with the definition, alpha and guards included.
template <class T, class K>
void check(const Case& c, int li, uint32_t seed) {
  const Layout L = kLayouts[li];
  Rng rng = makeRng(seed);
  const int x0 = std::max(0, c.ks.width - 1 - c.anchor.x),
            y0 = std::max(0, c.ks.height - 1 - c.anchor.y);
  GuardedImage<T> src(c.w + x0 + std::max(c.ks.width - 1, c.anchor.x),
                      c.h + y0 + std::max(c.ks.height - 1, c.anchor.y), L.ch, -1, -1, seed);
  GuardedImage<T> dst(c.w, c.h, L.ch, -1, -1, seed + 1);
  src.fillRandom(rng);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  std::vector<K> kernel(static_cast<size_t>(c.ks.width) * c.ks.height);
  for (K& k : kernel)
    k = std::is_same_v<K, Lum32s> ? static_cast<K>(randInt(rng, -300, 300))
                                  : static_cast<K>(randInt(rng, -2000, 2000) / 1024.0);
  if (std::is_same_v<K, Lum32s> && seed % 3 == 0)
    kernel[seed % kernel.size()] = 70001;  // not 16-bit: sums wrap
  if (std::is_same_v<K, Lum32s> &&
      seed % 3 == 1) {  // magnitudes summing to at most 128: 16-bit sums
    const int bound = std::max<int>(1, 128 / static_cast<int>(kernel.size()));
    for (K& k : kernel) k = static_cast<K>(randInt(rng, -bound, bound));
  }
  ASSERT_EQ((call<T, K>(c.shape, li, &src.at(x0, y0), src.step(), dst.ptr(), dst.step(), dst.roi(),
                        kernel.data(), c.ks, c.anchor, c.divisor)),
            lumStatusOk);
  ASSERT_TRUE(dst.guardsIntact());
  for (int y = 0; y < c.h; ++y)
    for (int x = 0; x < c.w; ++x)
      for (int ch = 0; ch < L.ch; ++ch) {
        T want = before[(static_cast<size_t>(y) * c.w + x) * L.ch + ch];
        if (ch < L.use) {
          int64_t si = 0;
          float sf = 0.0f;  // in the definition's order: source forward, kernel backward
          for (int i = c.ks.height - 1; i >= 0; --i)
            for (int j = c.ks.width - 1; j >= 0; --j) {
              const T v = src.at(x0 + x + c.anchor.x - j, y0 + y + c.anchor.y - i, ch);
              const K k = kernel[static_cast<size_t>(i) * c.ks.width + j];
              si += static_cast<int64_t>(k) * static_cast<int64_t>(v);
              sf += static_cast<float>(k) * static_cast<float>(v);
            }
          const int32_t wrapped = static_cast<int32_t>(static_cast<uint32_t>(si));  // 32-bit sums
          want = std::is_same_v<K, Lum32s> ? expectInt<T>(wrapped, c.divisor) : expectFloat<T>(sf);
        }
        ASSERT_EQ(dst.at(x, y, ch), want)
            << L.name << " div " << c.divisor << " ks " << c.ks.width << "x" << c.ks.height
            << " roi " << c.w << " shape " << c.shape << " " << x << "," << y << "," << ch;
      }
}

template <class T, class K>
void checkAll(uint32_t salt) {
  Rng r = makeRng(salt);
  const int divisors[] = {1, 2, 8, 1 << 20, 3, 6, -1, -7};
  for (int li = 0; li < 4; ++li)
    for (int n = 0; n < 24; ++n) {
      const Shape s = static_cast<Shape>(n % 3);
      Case c{s,      0,
             0,      {s == kCol ? 1 : randInt(r, 1, 9), s == kRow ? 1 : randInt(r, 1, 7)},
             {0, 0}, divisors[n % 8]};
      const LumiSize roi = randomSize(r, n < 12 ? 15 : 70, 9);  // under and over the fast path's 16
      c.w = roi.width, c.h = roi.height;
      c.anchor = {randInt(r, -1, c.ks.width), randInt(r, -1, c.ks.height)};  // sometimes outside
      if (s == kRow) c.anchor.y = 0;
      if (s == kCol) c.anchor.x = 0;
      check<T, K>(c, li, salt + n);
    }
  const int saved = threads_omp_of_n_lum;
  for (int threads : {1, 2}) {  // 123 x 91 pixels x 49 taps: forked
    threads_omp_of_n_lum = threads;
    for (int li = 0; li < 4; ++li)
      check<T, K>({k2D, 123, 91, {7, 7}, {3, 3}, 3}, li, salt + threads);
  }
  threads_omp_of_n_lum = saved;
}

TEST(Linear, IntegerKernelsMatchDefinition) {
  checkAll<Lum8u, Lum32s>(1);
  checkAll<Lum16s, Lum32s>(2);
}
TEST(Linear, FloatKernelsMatchDefinition) {
  checkAll<Lum32f, Lum32f>(3);
  checkAll<Lum8u, Lum32f>(4);
  checkAll<Lum16s, Lum32f>(5);
}

// A one-tap kernel {S} on pixels of 1 gives the sum S: the divisor's rounding, 8u and 16s.
TEST(Linear, DivisorRounding) {
  struct Row {
    int s, divisor, want8u, want16s;
  } rows[] = {{3, 2, 2, 2},   {1, 2, 1, 1},       {15, 6, 2, 2},          {10, 4, 3, 3},
              {-3, 2, 0, -1}, {-1, 2, 0, 0},      {-2, 4, 0, 0},          {-6, 4, 0, -1},
              {7, -1, 0, -7}, {300, 1, 255, 300}, {-70000, 1, 0, -32768}, {9, -2, 0, -4}};
  for (const Row& r : rows) {
    Lum8u s8 = 1, d8 = 77;
    Lum16s s16 = 1, d16 = 77;
    EXPECT_EQ(lumiFilter_8u_C1R(&s8, 1, &d8, 1, {1, 1}, &r.s, {1, 1}, {0, 0}, r.divisor),
              lumStatusOk);
    EXPECT_EQ(lumiFilter_16s_C1R(&s16, 2, &d16, 2, {1, 1}, &r.s, {1, 1}, {0, 0}, r.divisor),
              lumStatusOk);
    EXPECT_EQ(d8, r.want8u) << r.s << "/" << r.divisor;
    EXPECT_EQ(d16, r.want16s) << r.s << "/" << r.divisor;
  }
}

// The caller's rounding mode (here toward zero) neither changes the results nor is lost.
TEST(Linear, RoundsToNearestWhateverTheCallersMode) {
  const unsigned saved = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(_MM_ROUND_TOWARD_ZERO);
  std::vector<Lum8u> src(40, 3), dst(40, 0);
  std::vector<Lum16s> src16(40, 17), dst16(40, 0);
  const Lum32f half = 0.5f;
  const Lum32s one = 1;
  const LumStatus a =
      lumiFilter32f_8u_C1R(src.data(), 40, dst.data(), 40, {40, 1}, &half, {1, 1}, {0, 0});
  const LumStatus b =
      lumiFilter_16s_C1R(src16.data(), 80, dst16.data(), 80, {40, 1}, &one, {1, 1}, {0, 0}, 6);
  const unsigned mode = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(saved);
  EXPECT_EQ(a, lumStatusOk);
  EXPECT_EQ(b, lumStatusOk);
  EXPECT_EQ(mode, static_cast<unsigned>(_MM_ROUND_TOWARD_ZERO));
  for (int i = 0; i < 40; ++i) {
    ASSERT_EQ(dst[i], 2) << i;    // 1.5 to even
    ASSERT_EQ(dst16[i], 3) << i;  // 17 / 6 = 2.83
  }
}

// {1, 0, 0} is applied mirrored: anchor 0 copies, anchor 2 reads two pixels to the right.
TEST(Linear, KernelIsMirrored) {
  const Lum8u src[8] = {1, 2, 3, 4, 5, 6, 7, 8};
  const Lum32s k[3] = {1, 0, 0};
  Lum8u dst[4];
  EXPECT_EQ(lumiFilterRow_8u_C1R(src + 2, 8, dst, 4, {4, 1}, k, 3, 0, 1), lumStatusOk);
  EXPECT_EQ(dst[0], 3);
  EXPECT_EQ(lumiFilterRow_8u_C1R(src + 2, 8, dst, 4, {4, 1}, k, 3, 2, 1), lumStatusOk);
  EXPECT_EQ(dst[0], 5);
}

// Pointers, sizes, divisor, steps, in that order, on every export; nothing written.
template <class T, class K>
void checkOrder() {
  const K k[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
  for (int li = 0; li < 4; ++li)
    for (Shape s : {k2D, kRow, kCol}) {
      GuardedImage<T> src(20, 6, kLayouts[li].ch), dst(8, 4, kLayouts[li].ch);
      const std::vector<T> before = dst.pixels();
      const int pix = kLayouts[li].ch * sizeof(T);
      const int need = s == kCol ? 8 * pix : 10 * pix;  // 8 + 3 - 1 pixels unless vertical
      auto run = [&](const T* p, T* d, const K* kk, LumiSize roi, LumiSize ks, int div, int ss,
                     int ds) {
        return call<T, K>(s, li, p, ss, d, ds, roi, kk, ks, {1, 1}, div);
      };
      const T* p = &src.at(4, 2);
      EXPECT_EQ(run(nullptr, dst.ptr(), k, {0, 0}, {0, 0}, 0, 0, 0), lumStatusNullPtrErr);
      EXPECT_EQ(run(p, nullptr, k, {8, 4}, {3, 3}, 1, need, 8 * pix), lumStatusNullPtrErr);
      EXPECT_EQ(run(p, dst.ptr(), nullptr, {8, 4}, {3, 3}, 1, need, 8 * pix), lumStatusNullPtrErr);
      EXPECT_EQ(run(p, dst.ptr(), k, {0, 4}, {3, 3}, 0, 0, 0), lumStatusSizeErr);
      EXPECT_EQ(run(p, dst.ptr(), k, {8, -1}, {3, 3}, 0, 0, 0), lumStatusSizeErr);
      EXPECT_EQ(run(p, dst.ptr(), k, {8, 4}, {0, 0}, 0, 0, 0), lumStatusSizeErr);
      if (std::is_same_v<K, Lum32s>) {
        EXPECT_EQ(run(p, dst.ptr(), k, {8, 4}, {3, 3}, 0, 0, 0), lumStatusFilterDivisorErr);
      }
      EXPECT_EQ(run(p, dst.ptr(), k, {8, 4}, {3, 3}, 1, need - 1, 8 * pix), lumStatusStepErr);
      EXPECT_EQ(run(p, dst.ptr(), k, {8, 4}, {3, 3}, 1, need, 8 * pix - 1), lumStatusStepErr);
      EXPECT_EQ(run(p, dst.ptr(), k, {8, 4}, {3, 3}, -1, -need, 8 * pix), lumStatusStepErr);
      EXPECT_TRUE(sameElements(dst.pixels(), before));
      EXPECT_TRUE(dst.guardsIntact());
      // the tightest steps are accepted (rows overlap in the source: only sizes matter here)
      EXPECT_EQ(run(p, dst.ptr(), k, {8, 1}, {3, 3}, 1, need, 8 * pix), lumStatusOk);
    }
}
TEST(Linear, ChecksInOrder) {
  checkOrder<Lum8u, Lum32s>();
  checkOrder<Lum16s, Lum32s>();
  checkOrder<Lum32f, Lum32f>();
  checkOrder<Lum8u, Lum32f>();
  checkOrder<Lum16s, Lum32f>();
}

#ifdef LUMI_HAVE_OPENCV
// cv::filter2D and cv::sepFilter2D correlate: the flipped kernel, the anchor mirrored, on a ROI
// of a larger image so that both read the same border pixels.
TEST(Linear, OpenCvAgrees) {
  Rng r = makeRng(9);
  cv::Mat big(140, 220, CV_32FC3);
  cv::randu(big, -100.0f, 100.0f);
  const cv::Mat roi = big(cv::Rect(10, 10, 197, 111));
  cv::Mat ours(roi.size(), roi.type()), theirs;
  for (Shape s : {k2D, kRow, kCol}) {
    const LumiSize ks{s == kCol ? 1 : randInt(r, 2, 9), s == kRow ? 1 : randInt(r, 2, 9)};
    const LumiPoint a{randInt(r, 0, ks.width - 1), randInt(r, 0, ks.height - 1)};
    cv::Mat k(ks.height, ks.width, CV_32F);
    cv::randu(k, -1.0f, 1.0f);
    ASSERT_EQ((call<Lum32f, Lum32f>)(s, 1, roi.ptr<Lum32f>(), static_cast<int>(roi.step),
                                     ours.ptr<Lum32f>(), static_cast<int>(ours.step),
                                     {roi.cols, roi.rows}, k.ptr<Lum32f>(), ks, a, 1),
              lumStatusOk);
    cv::Mat f;
    cv::flip(k, f, -1);
    const cv::Point cvAnchor(ks.width - 1 - a.x, ks.height - 1 - a.y);
    if (s == k2D)
      cv::filter2D(roi, theirs, CV_32F, f, cvAnchor);
    else
      cv::sepFilter2D(roi, theirs, CV_32F,
                      s == kRow ? f.reshape(1, 1) : cv::Mat::ones(1, 1, CV_32F),
                      s == kCol ? f.reshape(1, 1) : cv::Mat::ones(1, 1, CV_32F), cvAnchor);
    EXPECT_LE(cv::norm(ours, theirs, cv::NORM_INF), 1e-5 * 100 * ks.width * ks.height)
        << "shape " << s;
  }
}
#endif

}  // namespace
