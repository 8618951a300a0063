// Border extension (constant, replicated, wrapped; copying and in place) against a per-pixel
// definition of the extended image.
#include <algorithm>
#include <functional>

#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace lumitest;

struct Layout {
  int ch, use;
};
constexpr Layout kLayouts[4] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};  // C1, C3, C4, AC4
const char* const kLayoutNames[4] = {"C1", "C3", "C4", "AC4"};

template <class T>
using ConstFn = std::function<LumStatus(const T*, int, LumiSize, T*, int, LumiSize, int, int, const T*)>;
template <class T>
using CopyBorderFn = LumStatus (*)(const T*, int, LumiSize, T*, int, LumiSize, int, int);
template <class T>
using InPlaceFn = LumStatus (*)(const T*, int, LumiSize, LumiSize, int, int);

template <class T>
struct Api;
#define LUMI_TEST_BORDER_API(t)                                                                 \
  template <>                                                                                   \
  struct Api<Lum##t> {                                                                          \
    using T = Lum##t;                                                                           \
    static ConstFn<T> constant(int l) {                                                         \
      switch (l) {                                                                              \
        case 0:                                                                                 \
          return [](const T* s, int ss, LumiSize sr, T* d, int ds, LumiSize dr, int top,        \
                    int left, const T* v) {                                                     \
            return lumiCopyConstBorder_##t##_C1R(s, ss, sr, d, ds, dr, top, left, *v);          \
          };                                                                                    \
        case 1: return lumiCopyConstBorder_##t##_C3R;                                           \
        case 2: return lumiCopyConstBorder_##t##_C4R;                                           \
        default: return lumiCopyConstBorder_##t##_AC4R;                                         \
      }                                                                                         \
    }                                                                                           \
    static constexpr CopyBorderFn<T> replicate[4] = {                                           \
        lumiCopyReplicateBorder_##t##_C1R, lumiCopyReplicateBorder_##t##_C3R,                   \
        lumiCopyReplicateBorder_##t##_C4R, lumiCopyReplicateBorder_##t##_AC4R};                 \
    static constexpr InPlaceFn<T> replicateInPlace[4] = {                                       \
        lumiCopyReplicateBorder_##t##_C1IR, lumiCopyReplicateBorder_##t##_C3IR,                 \
        lumiCopyReplicateBorder_##t##_C4IR, lumiCopyReplicateBorder_##t##_AC4IR};               \
  };
LUMI_TEST_BORDER_API(8u)
LUMI_TEST_BORDER_API(16s)
LUMI_TEST_BORDER_API(32s)

enum class Kind { kConstant, kReplicate, kWrap };

int floorMod(int a, int m) { return ((a % m) + m) % m; }

// The extended image by definition: the source at (left, top), and outside it the constant,
// the nearest source pixel, or the source repeated in both directions. Channels from L.use on
// keep what `before` holds.
template <class T>
std::vector<T> extended(Kind kind, const std::vector<T>& src, LumiSize sr, std::vector<T> before,
                        LumiSize dr, int top, int left, Layout L, const T* value) {
  for (int y = 0; y < dr.height; ++y)
    for (int x = 0; x < dr.width; ++x) {
      int sx = x - left, sy = y - top;
      const bool inside = sx >= 0 && sx < sr.width && sy >= 0 && sy < sr.height;
      if (kind == Kind::kReplicate) {
        sx = std::clamp(sx, 0, sr.width - 1);
        sy = std::clamp(sy, 0, sr.height - 1);
      } else if (kind == Kind::kWrap) {
        sx = floorMod(sx, sr.width);
        sy = floorMod(sy, sr.height);
      }
      for (int c = 0; c < L.use; ++c) {
        T& out = before[(static_cast<std::size_t>(y) * dr.width + x) * L.ch + c];
        out = kind == Kind::kConstant && !inside
                  ? value[c]
                  : src[(static_cast<std::size_t>(sy) * sr.width + sx) * L.ch + c];
      }
    }
  return before;
}

// Random geometry: borders from none to wider than the source on each side.
struct Geometry {
  LumiSize src, dst;
  int top, left;
};
Geometry randomGeometry(Rng& r, int rep) {
  Geometry g;
  g.src = rep == 0 ? LumiSize{1, 1} : randomSize(r, 40, 6);
  g.top = rep == 1 ? 0 : randInt(r, 0, 8);
  g.left = rep == 1 ? 0 : randInt(r, 0, rep % 2 ? 90 : 5);
  const int right = rep == 1 ? 0 : randInt(r, 0, rep % 3 ? 90 : 3);
  const int bottom = rep == 1 ? 0 : randInt(r, 0, 8);
  g.dst = LumiSize{g.src.width + g.left + right, g.src.height + g.top + bottom};
  return g;
}

template <class T>
class Border : public ::testing::Test {};
using BorderTypes = ::testing::Types<Lum8u, Lum16s, Lum32s>;
TYPED_TEST_SUITE(Border, BorderTypes);

TYPED_TEST(Border, ConstantAndReplicatedCopies) {
  using T = TypeParam;
  Rng rng = makeRng(21);
  for (int l = 0; l < 4; ++l) {
    const Layout L = kLayouts[l];
    for (int rep = 0; rep < 24; ++rep) {
      const Geometry g = randomGeometry(rng, rep);
      SCOPED_TRACE(::testing::Message() << kLayoutNames[l] << " src " << g.src.width << "x" << g.src.height
                                        << " at (" << g.left << ", " << g.top << ") in "
                                        << g.dst.width << "x" << g.dst.height);
      GuardedImage<T> src(g.src.width, g.src.height, L.ch, -1, -1, rep);
      GuardedImage<T> dst(g.dst.width, g.dst.height, L.ch, rep % 4 ? -1 : 0, -1, rep + 40);
      src.fillRandom(rng);
      dst.fillRandom(rng);
      std::vector<T> value(L.use);
      for (T& v : value) v = randomValue<T>(rng);
      const auto want = extended(Kind::kConstant, src.pixels(), g.src, dst.pixels(), g.dst, g.top,
                                 g.left, L, value.data());
      ASSERT_EQ(Api<T>::constant(l)(src.ptr(), src.step(), g.src, dst.ptr(), dst.step(), g.dst, g.top,
                                    g.left, value.data()),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width * L.ch));
      dst.fillRandom(rng);
      const auto rwant = extended(Kind::kReplicate, src.pixels(), g.src, dst.pixels(), g.dst, g.top,
                                  g.left, L, value.data());
      ASSERT_EQ(Api<T>::replicate[l](src.ptr(), src.step(), g.src, dst.ptr(), dst.step(), g.dst,
                                     g.top, g.left),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), rwant, g.dst.width * L.ch));
      EXPECT_TRUE(dst.guardsIntact());
      EXPECT_TRUE(src.guardsIntact());
    }
  }
}

// The in-place forms find the source inside the destination and fill the frame around it.
TYPED_TEST(Border, ReplicatedInPlace) {
  using T = TypeParam;
  Rng rng = makeRng(22);
  for (int l = 0; l < 4; ++l) {
    const Layout L = kLayouts[l];
    for (int rep = 0; rep < 24; ++rep) {
      const Geometry g = randomGeometry(rng, rep);
      SCOPED_TRACE(::testing::Message() << kLayoutNames[l] << " rep " << rep);
      GuardedImage<T> dst(g.dst.width, g.dst.height, L.ch, -1, -1, rep);
      dst.fillRandom(rng);
      std::vector<T> src;
      for (int y = 0; y < g.src.height; ++y)
        for (int x = 0; x < g.src.width; ++x)
          for (int c = 0; c < L.ch; ++c) src.push_back(dst.at(g.left + x, g.top + y, c));
      const auto want = extended<T>(Kind::kReplicate, src, g.src, dst.pixels(), g.dst, g.top, g.left,
                                    L, nullptr);
      ASSERT_EQ(Api<T>::replicateInPlace[l](&dst.at(g.left, g.top), dst.step(), g.src, g.dst, g.top,
                                            g.left),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width * L.ch));
      EXPECT_TRUE(dst.guardsIntact());
    }
  }
}

TEST(WrapBorder, CopyAndInPlaceRepeatTheSource) {
  Rng rng = makeRng(23);
  const Layout C1{1, 1};
  for (int rep = 0; rep < 40; ++rep) {
    Geometry g = randomGeometry(rng, rep);
    if (rep % 5 == 2) {  // borders several times the source on every side
      g.src = LumiSize{randInt(rng, 1, 4), randInt(rng, 1, 3)};
      g.top = randInt(rng, 4, 9);
      g.left = randInt(rng, 5, 13);
      g.dst = LumiSize{g.src.width + g.left + randInt(rng, 5, 13), g.src.height + g.top + randInt(rng, 4, 9)};
    }
    SCOPED_TRACE(::testing::Message() << "src " << g.src.width << "x" << g.src.height << " at ("
                                      << g.left << ", " << g.top << ") in " << g.dst.width << "x"
                                      << g.dst.height);
    GuardedImage<Lum32s> src(g.src.width, g.src.height, 1, -1, -1, rep);
    GuardedImage<Lum32s> dst(g.dst.width, g.dst.height, 1, -1, -1, rep + 1);
    src.fillRandom(rng);
    dst.fillRandom(rng);
    auto want = extended<Lum32s>(Kind::kWrap, src.pixels(), g.src, dst.pixels(), g.dst, g.top, g.left,
                                 C1, nullptr);
    ASSERT_EQ(lumiCopyWrapBorder_32s_C1R(src.ptr(), src.step(), g.src, dst.ptr(), dst.step(), g.dst,
                                         g.top, g.left),
              lumStatusOk);
    EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width));
    // in place: scramble the frame, keep the source where it landed
    for (int y = 0; y < g.dst.height; ++y)
      for (int x = 0; x < g.dst.width; ++x)
        if (x < g.left || x >= g.left + g.src.width || y < g.top || y >= g.top + g.src.height)
          dst.at(x, y) = randomValue<Lum32s>(rng);
    ASSERT_EQ(lumiCopyWrapBorder_32s_C1IR(&dst.at(g.left, g.top), dst.step(), g.src, g.dst, g.top,
                                          g.left),
              lumStatusOk);
    EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width));
    EXPECT_TRUE(dst.guardsIntact());
  }
}

#ifdef LUMI_HAVE_OPENCV
// An independent oracle for the common case: a colour image with equal borders all round.
TEST(BorderOracle, AgreesWithOpenCv) {
  Rng rng = makeRng(24);
  const LumiSize sr{45, 17}, dr{45 + 14, 17 + 10};
  GuardedImage<Lum8u> src(sr.width, sr.height, 3);
  src.fillRandom(rng);
  cv::Mat s(sr.height, sr.width, CV_8UC3, src.ptr(), src.step()), want;
  cv::copyMakeBorder(s, want, 5, 5, 7, 7, cv::BORDER_REPLICATE);
  cv::Mat got(dr.height, dr.width, CV_8UC3);
  ASSERT_EQ(lumiCopyReplicateBorder_8u_C3R(src.ptr(), src.step(), sr, got.data,
                                           static_cast<int>(got.step), dr, 5, 7),
            lumStatusOk);
  EXPECT_EQ(cv::norm(got, want, cv::NORM_INF), 0);
  cv::Mat si(sr.height, sr.width, CV_32SC1), wi;
  cv::randu(si, -1000000, 1000000);
  cv::copyMakeBorder(si, wi, 5, 5, 7, 7, cv::BORDER_WRAP);
  cv::Mat gi(dr.height, dr.width, CV_32SC1);
  ASSERT_EQ(lumiCopyWrapBorder_32s_C1R(si.ptr<Lum32s>(), static_cast<int>(si.step), sr, gi.ptr<Lum32s>(),
                                       static_cast<int>(gi.step), dr, 5, 7),
            lumStatusOk);
  EXPECT_EQ(cv::norm(gi, wi, cv::NORM_INF), 0);
}
#endif

// Steps are tested before sizes; the constant's pointer after both.
TEST(BorderChecks, StepsBeforeSizesAndTheValueLast) {
  GuardedImage<Lum8u> src(4, 3, 3), dst(10, 6, 3);
  const std::vector<Lum8u> before = dst.pixels();
  const LumiSize sr{4, 3}, dr{10, 6}, bad{0, 3};
  const Lum8u v[3] = {1, 2, 3};
  const int ss = src.step(), ds = dst.step();
  auto cb = [&](const Lum8u* s, int sst, LumiSize a, Lum8u* d, int dst_, LumiSize b, int top, int left,
                const Lum8u* val) { return lumiCopyConstBorder_8u_C3R(s, sst, a, d, dst_, b, top, left, val); };
  EXPECT_EQ(cb(nullptr, 0, bad, dst.ptr(), ds, dr, 1, 1, v), lumStatusNullPtrErr);
  EXPECT_EQ(cb(src.ptr(), ss, sr, nullptr, 0, dr, 1, 1, v), lumStatusNullPtrErr);
  EXPECT_EQ(cb(src.ptr(), 0, bad, dst.ptr(), ds, dr, 1, 1, v), lumStatusStepErr);
  EXPECT_EQ(cb(src.ptr(), ss, bad, dst.ptr(), -ds, dr, -1, 1, nullptr), lumStatusStepErr);
  EXPECT_EQ(cb(src.ptr(), ss, bad, dst.ptr(), ds, dr, 1, 1, nullptr), lumStatusSizeErr);
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, {10, 0}, 1, 1, v), lumStatusSizeErr);
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, dr, -1, 1, v), lumStatusSizeErr);
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, dr, 1, -1, v), lumStatusSizeErr);
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, dr, 1, 7, v), lumStatusSizeErr);   // 4 + 7 > 10
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, dr, 4, 1, v), lumStatusSizeErr);   // 3 + 4 > 6
  EXPECT_EQ(cb(src.ptr(), ss, sr, dst.ptr(), ds, dr, 1, 1, nullptr), lumStatusNullPtrErr);
  // destination width one short of source width plus left
  EXPECT_EQ(lumiCopyConstBorder_8u_C1R(src.ptr(), ss, sr, dst.ptr(), ds, {sr.width + 2 - 1, 6}, 0, 2, 9),
            lumStatusSizeErr);
  EXPECT_EQ(lumiCopyReplicateBorder_16s_C4R(nullptr, 8, sr, nullptr, 8, dr, 0, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopyReplicateBorder_8u_AC4R(src.ptr(), ss, bad, dst.ptr(), 0, dr, 0, 0), lumStatusStepErr);
  EXPECT_EQ(lumiCopyReplicateBorder_8u_C3IR(nullptr, 0, sr, dr, 1, 1), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopyReplicateBorder_8u_C3IR(&dst.at(1, 1), 0, bad, dr, 1, 1), lumStatusStepErr);
  EXPECT_EQ(lumiCopyReplicateBorder_8u_C3IR(&dst.at(1, 1), ds, sr, dr, 1, 7), lumStatusSizeErr);
  auto* d32 = reinterpret_cast<Lum32s*>(dst.ptr());
  EXPECT_EQ(lumiCopyWrapBorder_32s_C1R(d32, -4, bad, d32, 40, dr, 0, 0), lumStatusStepErr);
  EXPECT_EQ(lumiCopyWrapBorder_32s_C1IR(d32 + 1, 40, {4, 3}, {4, 3}, 0, 1), lumStatusSizeErr);
  EXPECT_EQ(dst.pixels(), before);
  EXPECT_TRUE(dst.guardsIntact());
}

}  // namespace
