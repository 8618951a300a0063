// Border extension (constant, replicated, wrapped; copying and in place) against a per-pixel
// definition of the extended image.
#include <algorithm>

#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using namespace lumitest;

template <class T>
using BorderFn = LumStatus (*)(const T*, int, LumiSize, T*, int, LumiSize, int, int, const T*);
template <class T>
using InPlaceFn = LumStatus (*)(const T*, int, LumiSize, LumiSize, int, int);
// One signature for every copying form: the constant's pointer is dropped or dereferenced.
template <class T, LumStatus (*F)(const T*, int, LumiSize, T*, int, LumiSize, int, int)>
LumStatus noValue(const T* s, int ss, LumiSize sr, T* d, int ds, LumiSize dr, int t, int l, const T*) {
  return F(s, ss, sr, d, ds, dr, t, l);
}
template <class T, LumStatus (*F)(const T*, int, LumiSize, T*, int, LumiSize, int, int, T)>
LumStatus byValue(const T* s, int ss, LumiSize sr, T* d, int ds, LumiSize dr, int t, int l, const T* v) {
  return F(s, ss, sr, d, ds, dr, t, l, *v);
}

template <class T>
struct Api;
#define BY_LAYOUT(pre, post) {pre##C1##post, pre##C3##post, pre##C4##post, pre##AC4##post}
#define LUMI_TEST_BORDER_API(t)                                                                 \
  template <>                                                                                   \
  struct Api<Lum##t> {                                                                          \
    using T = Lum##t;                                                                           \
    static constexpr BorderFn<T> constant[4] = {                                                \
        byValue<T, lumiCopyConstBorder_##t##_C1R>, lumiCopyConstBorder_##t##_C3R,               \
        lumiCopyConstBorder_##t##_C4R, lumiCopyConstBorder_##t##_AC4R};                         \
    static constexpr BorderFn<T> replicate[4] = {                                               \
        noValue<T, lumiCopyReplicateBorder_##t##_C1R>, noValue<T, lumiCopyReplicateBorder_##t##_C3R>, \
        noValue<T, lumiCopyReplicateBorder_##t##_C4R>, noValue<T, lumiCopyReplicateBorder_##t##_AC4R>}; \
    static constexpr InPlaceFn<T> replicateInPlace[4] = BY_LAYOUT(lumiCopyReplicateBorder_##t##_, IR); \
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

// Random geometry: borders from none to wider than the source on each side, and now and then
// several times the source on every side.
struct Geometry {
  LumiSize src, dst;
  int top, left;
};
Geometry randomGeometry(Rng& r, int rep) {
  Geometry g;
  if (rep % 5 == 2) {
    g.src = LumiSize{randInt(r, 1, 4), randInt(r, 1, 3)};
    g.top = randInt(r, 4, 9);
    g.left = randInt(r, 5, 13);
    g.dst = LumiSize{g.src.width + g.left + randInt(r, 5, 13), g.src.height + g.top + randInt(r, 4, 9)};
    return g;
  }
  g.src = rep == 0 ? LumiSize{1, 1} : randomSize(r, 40, 6);
  g.top = rep == 1 ? 0 : randInt(r, 0, 8);
  g.left = rep == 1 ? 0 : randInt(r, 0, rep % 2 ? 90 : 5);
  const int right = rep == 1 ? 0 : randInt(r, 0, rep % 3 ? 90 : 3);
  const int bottom = rep == 1 ? 0 : randInt(r, 0, 8);
  g.dst = LumiSize{g.src.width + g.left + right, g.src.height + g.top + bottom};
  return g;
}

// A copy into a random destination; then, where there is an in-place form, the frame around
// the copied source scrambled and filled again in place.
template <class T>
void checkBorder(Rng& rng, Kind kind, Layout L, BorderFn<T> copy, InPlaceFn<T> inPlace, int reps) {
  for (int rep = 0; rep < reps; ++rep) {
    const Geometry g = randomGeometry(rng, rep);
    SCOPED_TRACE(::testing::Message() << L.name << " src " << g.src.width << "x"
                                      << g.src.height << " at (" << g.left << ", " << g.top << ") in "
                                      << g.dst.width << "x" << g.dst.height);
    GuardedImage<T> src(g.src.width, g.src.height, L.ch, -1, -1, rep);
    GuardedImage<T> dst(g.dst.width, g.dst.height, L.ch, rep % 4 ? -1 : 0, -1, rep + 40);
    src.fillRandom(rng);
    dst.fillRandom(rng);
    std::vector<T> value(L.use);
    for (T& v : value) v = randomValue<T>(rng);
    auto want = extended(kind, src.pixels(), g.src, dst.pixels(), g.dst, g.top, g.left, L, value.data());
    ASSERT_EQ(copy(src.ptr(), src.step(), g.src, dst.ptr(), dst.step(), g.dst, g.top, g.left, value.data()),
              lumStatusOk);
    EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width * L.ch));
    EXPECT_TRUE(dst.guardsIntact());
    EXPECT_TRUE(src.guardsIntact());
    if (!inPlace) continue;
    for (int y = 0; y < g.dst.height; ++y)
      for (int x = 0; x < g.dst.width; ++x)
        if (x < g.left || x >= g.left + g.src.width || y < g.top || y >= g.top + g.src.height)
          for (int c = 0; c < L.ch; ++c) dst.at(x, y, c) = randomValue<T>(rng);
    want = extended(kind, src.pixels(), g.src, dst.pixels(), g.dst, g.top, g.left, L, value.data());
    ASSERT_EQ(inPlace(&dst.at(g.left, g.top), dst.step(), g.src, g.dst, g.top, g.left), lumStatusOk);
    EXPECT_TRUE(sameElements(dst.pixels(), want, g.dst.width * L.ch));
    EXPECT_TRUE(dst.guardsIntact());
  }
}

template <class T>
class Border : public ::testing::Test {};
using BorderTypes = ::testing::Types<Lum8u, Lum16s, Lum32s>;
TYPED_TEST_SUITE(Border, BorderTypes);

TYPED_TEST(Border, ConstantAndReplicatedCopiesAndInPlace) {
  using T = TypeParam;
  Rng rng = makeRng(21);
  for (int l = 0; l < 4; ++l) {
    checkBorder<T>(rng, Kind::kConstant, kLayouts[l], Api<T>::constant[l], nullptr, 24);
    checkBorder<T>(rng, Kind::kReplicate, kLayouts[l], Api<T>::replicate[l], Api<T>::replicateInPlace[l], 24);
  }
}

TEST(WrapBorder, CopyAndInPlaceRepeatTheSource) {
  Rng rng = makeRng(23);
  checkBorder<Lum32s>(rng, Kind::kWrap, kC1, noValue<Lum32s, lumiCopyWrapBorder_32s_C1R>,
                      lumiCopyWrapBorder_32s_C1IR, 40);
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
