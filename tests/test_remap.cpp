// Remap: every type, layout and mode against a per-pixel reference over whole guarded images
// (source ROI away from the origin, padded steps, map points inside, on and outside the ROI
// edges, NaN), the checks in their order, the edge cases of the interpolation rules, and
// OpenCV's nearest remap as an oracle.
#include <cfenv>

#include "lumitest.h"
#include "lumi/remap.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

using lumitest::GuardedImage;

template <class T>
using PackedFn = LumStatus (*)(const T*, LumiSize, int, LumiRect, const Lum32f*, int, const Lum32f*, int,
                               T*, int, LumiSize, int);
template <class T, int N>
using PlanarFn = LumStatus (*)(const T* const[N], LumiSize, int, LumiRect, const Lum32f*, int,
                               const Lum32f*, int, T* const[N], int, LumiSize, int);
template <class T>
struct RemapFns {
  PackedFn<T> packed[4];  // C1, C3, C4, AC4
  PlanarFn<T, 3> p3;
  PlanarFn<T, 4> p4;
};
const RemapFns<Lum8u> k8u{{lumiRemap_8u_C1R, lumiRemap_8u_C3R, lumiRemap_8u_C4R, lumiRemap_8u_AC4R},
                          lumiRemap_8u_P3R, lumiRemap_8u_P4R};
const RemapFns<Lum16u> k16u{{lumiRemap_16u_C1R, lumiRemap_16u_C3R, lumiRemap_16u_C4R, lumiRemap_16u_AC4R},
                            lumiRemap_16u_P3R, lumiRemap_16u_P4R};
const RemapFns<Lum32f> k32f{{lumiRemap_32f_C1R, lumiRemap_32f_C3R, lumiRemap_32f_C4R, lumiRemap_32f_AC4R},
                            lumiRemap_32f_P3R, lumiRemap_32f_P4R};

struct Box {
  int x0, y0, x1, y1;
};

// One reference sample of channel c at map point (x, y), in double; the mode is the one the
// source ROI allows.
template <class T, class Px>
double reference(Px px, const Box& b, int mode, float x, float y) {
  if (mode == lumInterpNearest) return px(static_cast<int>(std::nearbyint(x)), static_cast<int>(std::nearbyint(y)));
  if (mode == lumInterpLinear) {
    int ix = static_cast<int>(x), iy = static_cast<int>(y);
    ix -= ix == b.x1;
    iy -= iy == b.y1;
    const double fx = x - ix, fy = y - iy;
    if (std::is_floating_point_v<T>)
      return (px(ix, iy) * (1 - fx) + px(ix + 1, iy) * fx) * (1 - fy) +
             (px(ix, iy + 1) * (1 - fx) + px(ix + 1, iy + 1) * fx) * fy;
    const long long wx = std::llrint(fx * 16384), wy = std::llrint(fy * 16384);
    const long long h0 = ((16384 - wx) * (long long)px(ix, iy) + wx * (long long)px(ix + 1, iy)) >> 8;
    const long long h1 = ((16384 - wx) * (long long)px(ix, iy + 1) + wx * (long long)px(ix + 1, iy + 1)) >> 8;
    return static_cast<double>((h0 * (16384 - wy) + h1 * wy + 33) >> 20);
  }
  // Cubic: Lagrange weights at -1, 0, 1, 2, neighbours clamped to the box.
  const int ix = static_cast<int>(x), iy = static_cast<int>(y);
  auto weights = [](double t, double w[4]) {
    w[0] = -t * (t - 1) * (t - 2) / 6;
    w[1] = (t + 1) * (t - 1) * (t - 2) / 2;
    w[2] = -(t + 1) * t * (t - 2) / 2;
    w[3] = (t + 1) * t * (t - 1) / 6;
  };
  double wx[4], wy[4], v = 0;
  weights(x - ix, wx);
  weights(y - iy, wy);
  for (int j = 0; j < 4; ++j)
    for (int i = 0; i < 4; ++i) {
      const int sx = std::min(std::max(ix - 1 + i, b.x0), b.x1), sy = std::min(std::max(iy - 1 + j, b.y0), b.y1);
      v += wx[i] * wy[j] * px(sx, sy);
    }
  if (std::is_floating_point_v<T>) return v;
  return std::min(std::max(std::floor(v + 0.5), double(std::numeric_limits<T>::min())), double(std::numeric_limits<T>::max()));
}

// Map points: on even rows mostly inside the box (many on whole and half pixels), some just
// outside each edge, on the last row and column, and NaN; odd rows wholly inside.
void fillMaps(lumitest::Rng& r, const Box& b, GuardedImage<Lum32f>& mx, GuardedImage<Lum32f>& my) {
  for (int y = 0; y < mx.height(); ++y)
    for (int x = 0; x < mx.width(); ++x) {
      const float e = y % 2 ? 0.0f : 0.7f;
      float u = std::uniform_real_distribution<float>(b.x0 - e, b.x1 + e)(r);
      float v = std::uniform_real_distribution<float>(b.y0 - e, b.y1 + e)(r);
      switch (y % 2 ? 9 : lumitest::randInt(r, 0, 9)) {
        case 0: u = std::round(u * 2) / 2, v = std::round(v * 2) / 2; break;
        case 1: u = float(b.x1); break;
        case 2: v = float(b.y1); break;
        case 3: u = b.x0 - 0.001f; break;
        case 4: if (x % 7 == 0) v = std::nanf(""); break;
        default: break;
      }
      mx.at(x, y) = u;
      my.at(x, y) = v;
    }
}

// Tolerance of one result against the double reference.
template <class T>
double tolerance(int mode) {
  if (std::is_floating_point_v<T>) return mode == lumInterpNearest ? 0 : (mode == lumInterpLinear ? 2e-3 : 1e-2);
  return mode == lumInterpCubic ? 1 : 0;
}

// All layouts of one type, each mode, on a source ROI cut by the image's right edge.
template <class T>
void checkType(const RemapFns<T>& fns, uint32_t salt, LumiSize srcSize, LumiRect roi, LumiSize dstSize) {
  auto rng = lumitest::makeRng(salt);
  const Box b{roi.x, roi.y, std::min(roi.x + roi.width, srcSize.width) - 1, std::min(roi.y + roi.height, srcSize.height) - 1};
  GuardedImage<Lum32f> mx(dstSize.width, dstSize.height, 1, 8, 0, salt), my(dstSize.width, dstSize.height, 1, 4, 0, salt + 1);
  fillMaps(rng, b, mx, my);
  const int w = b.x1 - b.x0 + 1, h = b.y1 - b.y0 + 1;
  const int layouts[6][2] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}, {3, 0}, {4, 0}};  // {channels, used}; 0: planar
  for (int li = 0; li < 6; ++li) {
    const bool planar = layouts[li][1] == 0;
    const int ch = planar ? 1 : layouts[li][0], use = planar ? 1 : layouts[li][1], planes = planar ? layouts[li][0] : 1;
    std::vector<GuardedImage<T>> src;
    for (int p = 0; p < planes; ++p) {  // planes share one step
      src.emplace_back(srcSize.width, srcSize.height, ch, 3 * int(sizeof(T)), -1, salt + 10 + p);
      src.back().fillRandom(rng);
    }
    for (int mode : {lumInterpNearest, lumInterpLinear, lumInterpCubic}) {
      const int eff = (w == 1 || h == 1) ? lumInterpNearest : (mode == lumInterpCubic && (w < 4 || h < 4) ? lumInterpLinear : mode);
      SCOPED_TRACE(testing::Message() << "mode " << mode << " layout " << li << " dst " << dstSize.width << "x" << dstSize.height);
      std::vector<GuardedImage<T>> dst;
      for (int p = 0; p < planes; ++p) {
        dst.emplace_back(dstSize.width, dstSize.height, ch, 5 * int(sizeof(T)), -1, salt + 20 + p);
        dst.back().fillRandom(rng);
      }
      std::vector<std::vector<T>> before;
      for (auto& d : dst) before.push_back(d.pixels());
      LumStatus st;
      if (!planar) {
        st = fns.packed[li](src[0].ptr(), srcSize, src[0].step(), roi, mx.ptr(), mx.step(), my.ptr(), my.step(),
                            dst[0].ptr(), dst[0].step(), dstSize, mode);
      } else {
        const T* s[4];
        T* d[4];
        for (int p = 0; p < planes; ++p) s[p] = src[p].ptr(), d[p] = dst[p].ptr();
        st = planes == 3 ? fns.p3(s, srcSize, src[0].step(), roi, mx.ptr(), mx.step(), my.ptr(), my.step(), d, dst[0].step(), dstSize, mode)
                         : fns.p4(s, srcSize, src[0].step(), roi, mx.ptr(), mx.step(), my.ptr(), my.step(), d, dst[0].step(), dstSize, mode);
      }
      ASSERT_EQ(st, lumStatusOk);
      const double tol = tolerance<T>(eff);
      int bad = 0;
      for (int p = 0; p < planes; ++p) {
        EXPECT_TRUE(dst[p].guardsIntact());
        for (int y = 0; y < dstSize.height && bad < 3; ++y)
          for (int x = 0; x < dstSize.width && bad < 3; ++x) {
            const float u = mx.at(x, y), v = my.at(x, y);
            const bool in = u >= b.x0 && u <= b.x1 && v >= b.y0 && v <= b.y1;
            for (int c = 0; c < ch; ++c) {
              const double got = dst[p].at(x, y, c);
              const double old = before[p][(static_cast<size_t>(y) * dstSize.width + x) * ch + c];
              const auto px = [&](int i, int j) { return static_cast<double>(src[p].at(i, j, c)); };
              const double want = in && c < use ? reference<T>(px, b, eff, u, v) : old;
              if (!(std::fabs(got - want) <= tol)) {
                ADD_FAILURE() << "pixel (" << x << ", " << y << ") channel " << c << " plane " << p << " at (" << u
                              << ", " << v << "): got " << got << ", want " << want;
                ++bad;
              }
            }
          }
      }
    }
  }
}

TEST(Remap, AllLayoutsAndModesAgainstReference) {
  // Source ROI away from the origin and cut by the image's right edge; destination rows wider
  // than a vector.
  checkType(k8u, 1, LumiSize{29, 21}, LumiRect{4, 3, 40, 15}, LumiSize{37, 5});
  checkType(k16u, 2, LumiSize{29, 21}, LumiRect{4, 3, 40, 15}, LumiSize{37, 5});
  checkType(k32f, 3, LumiSize{29, 21}, LumiRect{4, 3, 40, 15}, LumiSize{37, 5});
  // Narrow ROIs: three columns (cubic becomes linear), one row (everything nearest).
  checkType(k8u, 4, LumiSize{12, 9}, LumiRect{5, 1, 3, 7}, LumiSize{9, 3});
  checkType(k32f, 5, LumiSize{12, 9}, LumiRect{2, 4, 9, 1}, LumiSize{9, 3});
}

TEST(Remap, LargeOneChannelImages) {
  // Wide enough for the vector kernels and the thread bands, with points near the image's
  // last bytes.
  checkType(k8u, 6, LumiSize{301, 203}, LumiRect{0, 0, 301, 203}, LumiSize{263, 23});
  checkType(k32f, 7, LumiSize{301, 203}, LumiRect{1, 1, 300, 202}, LumiSize{263, 23});
  // Colour layouts on rows long enough for their vector kernels too.
  checkType(k8u, 8, LumiSize{157, 95}, LumiRect{2, 3, 150, 90}, LumiSize{131, 19});
  checkType(k16u, 9, LumiSize{157, 95}, LumiRect{2, 3, 150, 90}, LumiSize{131, 9});
}

TEST(Remap, ChecksInOrder) {
  GuardedImage<Lum8u> src(8, 8, 1), dst(4, 4, 1);
  GuardedImage<Lum32f> mx(4, 4, 1), my(4, 4, 1);
  mx.fill([](int x, int, int) { return float(x); });
  my.fill([](int, int y, int) { return float(y); });
  const LumiSize ss{8, 8}, ds{4, 4};
  const LumiRect roi{0, 0, 8, 8};
  auto call = [&](const Lum8u* s, LumiSize sz, int sstep, LumiRect r, const Lum32f* x, int xs, const Lum32f* y, int ys,
                  Lum8u* d, int dstep, LumiSize dsz, int mode) {
    return lumiRemap_8u_C1R(s, sz, sstep, r, x, xs, y, ys, d, dstep, dsz, mode);
  };
  const int S = src.step(), D = dst.step(), M = mx.step();
  // Each failure with every later one also present.
  EXPECT_EQ(call(nullptr, {0, 8}, 0, roi, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 3), lumStatusNullPtrErr);
  EXPECT_EQ(call(src.ptr(), ss, S, roi, nullptr, M, my.ptr(), M, dst.ptr(), D, ds, 1), lumStatusNullPtrErr);
  EXPECT_EQ(call(src.ptr(), ss, S, roi, mx.ptr(), M, nullptr, M, dst.ptr(), D, ds, 1), lumStatusNullPtrErr);
  EXPECT_EQ(call(src.ptr(), ss, S, roi, mx.ptr(), M, my.ptr(), M, nullptr, D, ds, 1), lumStatusNullPtrErr);
  const LumiSize badSizes[] = {{0, 8}, {8, 0}};
  for (LumiSize b : badSizes) {
    EXPECT_EQ(call(src.ptr(), b, 0, roi, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 3), lumStatusSizeErr);
    EXPECT_EQ(call(src.ptr(), ss, 0, roi, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, LumiSize{b.height - 8, b.width - 8}, 3),
              lumStatusSizeErr);
  }
  const LumiRect badRois[] = {{-1, 0, 8, 8}, {0, -1, 8, 8}, {0, 0, 0, 8}, {0, 0, 8, 0}};
  for (LumiRect r : badRois) EXPECT_EQ(call(src.ptr(), ss, 0, r, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 3), lumStatusSizeErr);
  for (int mode : {0, 3, 8, 16, lumInterpLinear | lumSmoothEdge, lumInterpNearest | lumSmoothEdge})
    EXPECT_EQ(call(src.ptr(), ss, 0, LumiRect{9, 0, 8, 8}, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, mode), lumStatusInterpolationErr);
  EXPECT_EQ(call(src.ptr(), ss, 0, LumiRect{9, 0, 8, 8}, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 1), lumStatusStepErr);
  EXPECT_EQ(call(src.ptr(), ss, S, LumiRect{9, 0, 8, 8}, mx.ptr(), 0, my.ptr(), M, dst.ptr(), D, ds, 1), lumStatusStepErr);
  EXPECT_EQ(call(src.ptr(), ss, S, LumiRect{9, 0, 8, 8}, mx.ptr(), M, my.ptr(), -4, dst.ptr(), D, ds, 1), lumStatusStepErr);
  EXPECT_EQ(call(src.ptr(), ss, S, LumiRect{9, 0, 8, 8}, mx.ptr(), M, my.ptr(), M, dst.ptr(), 0, ds, 1), lumStatusStepErr);
  const auto before = dst.pixels();
  EXPECT_EQ(call(src.ptr(), ss, S, LumiRect{8, 0, 8, 8}, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 2), lumStatusNoIntersectionWarn);
  EXPECT_EQ(call(src.ptr(), ss, S, LumiRect{0, 8, 8, 8}, mx.ptr(), M, my.ptr(), M, dst.ptr(), D, ds, 4), lumStatusNoIntersectionWarn);
  EXPECT_TRUE(lumitest::sameElements(dst.pixels(), before));
  // Planar: a null plane is a null pointer, before the sizes.
  const Lum8u* planes[3] = {src.ptr(), nullptr, src.ptr()};
  Lum8u* outs[3] = {dst.ptr(), dst.ptr(), dst.ptr()};
  EXPECT_EQ(lumiRemap_8u_P3R(planes, {0, 0}, S, roi, mx.ptr(), M, my.ptr(), M, outs, D, ds, 1), lumStatusNullPtrErr);
  EXPECT_EQ(lumiRemap_8u_P3R(nullptr, ss, S, roi, mx.ptr(), M, my.ptr(), M, outs, D, ds, 1), lumStatusNullPtrErr);
  planes[1] = src.ptr();
  outs[2] = nullptr;
  EXPECT_EQ(lumiRemap_8u_P3R(planes, ss, S, roi, mx.ptr(), M, my.ptr(), M, outs, D, ds, 1), lumStatusNullPtrErr);
  EXPECT_TRUE(dst.guardsIntact());
}

// Single points through a one-row destination: (x, y) pairs and the expected 8u results from
// a source whose pixel (i, j) is 10 i + j, and a 0/1 step for the truncating rounding term.
TEST(Remap, InterpolationRules) {
  GuardedImage<Lum8u> src(8, 6, 1, 0, 0);
  src.fill([](int x, int y, int) { return Lum8u(10 * x + y); });
  struct Case { float x, y; int mode, want; };
  const Case cases[] = {
      {2.5f, 1, lumInterpNearest, 21},  {3.5f, 1, lumInterpNearest, 41},  // ties to even
      {2.4999f, 1.5f, lumInterpNearest, 22},
      {7, 2, lumInterpLinear, 72},        // on x1: column 7 with weight 1
      {6.5f, 5, lumInterpLinear, 70},     // on y1 too: (65 + 75) / 2 truncated to 70
      {2.25f, 3, lumInterpLinear, 25},    // 22.5 + 3 = 25.5 truncated
      {-0.001f, 2, lumInterpLinear, 99},  // outside: untouched
      {3, 6.0001f, lumInterpLinear, 99},
      {3, 2, lumInterpCubic, 32},         // whole points reproduce the pixel
      {3.5f, 2, lumInterpCubic, 37},      // exact on a linear ramp
  };
  for (const Case& k : cases) {
    GuardedImage<Lum32f> mx(1, 1, 1), my(1, 1, 1);
    GuardedImage<Lum8u> dst(1, 1, 1);
    mx.at(0, 0) = k.x;
    my.at(0, 0) = k.y;
    dst.at(0, 0) = 99;
    ASSERT_EQ(lumiRemap_8u_C1R(src.ptr(), {8, 6}, src.step(), {0, 0, 8, 6}, mx.ptr(), mx.step(), my.ptr(), my.step(),
                               dst.ptr(), dst.step(), {1, 1}, k.mode),
              lumStatusOk);
    EXPECT_EQ(dst.at(0, 0), k.want) << k.x << ", " << k.y << " mode " << k.mode;
  }
  // 0 and 1 half way: 0.5 is truncated to 0 where a rounding blend would give 1.
  GuardedImage<Lum8u> s2(2, 2, 1, 0, 0);
  s2.fill([](int x, int, int) { return Lum8u(x); });
  GuardedImage<Lum32f> mx(1, 1, 1), my(1, 1, 1);
  GuardedImage<Lum8u> dst(1, 1, 1);
  mx.at(0, 0) = 0.5f;
  my.at(0, 0) = 0;
  ASSERT_EQ(lumiRemap_8u_C1R(s2.ptr(), {2, 2}, s2.step(), {0, 0, 2, 2}, mx.ptr(), mx.step(), my.ptr(), my.step(),
                             dst.ptr(), dst.step(), {1, 1}, lumInterpLinear),
            lumStatusOk);
  EXPECT_EQ(dst.at(0, 0), 0);
}

#ifdef LUMI_HAVE_OPENCV
// Nearest rounds like cv::remap with float maps (ties to even); all points inside the image.
TEST(Remap, NearestMatchesOpenCv) {
  cv::Mat src(97, 131, CV_8UC3), mx(83, 150, CV_32FC1), my(83, 150, CV_32FC1);
  cv::randu(src, 0, 256);
  cv::randu(mx, 0, 130);
  cv::randu(my, 0, 96);
  for (int i = 0; i < 40; ++i) mx.at<float>(i, i) = float(i) + 0.5f;  // ties
  cv::Mat want, got(mx.size(), CV_8UC3, cv::Scalar::all(0));
  cv::remap(src, want, mx, my, cv::INTER_NEAREST, cv::BORDER_CONSTANT);
  ASSERT_EQ(lumiRemap_8u_C3R(src.ptr(), {131, 97}, int(src.step), {0, 0, 131, 97}, mx.ptr<float>(), int(mx.step),
                             my.ptr<float>(), int(my.step), got.ptr(), int(got.step), {150, 83}, lumInterpNearest),
            lumStatusOk);
  EXPECT_EQ(cv::norm(got, want, cv::NORM_INF), 0);
}
#endif

}  // namespace
