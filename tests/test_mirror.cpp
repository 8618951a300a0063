// Mirror: every type, layout and axis, out of place and in place, against a per-pixel
// reference on guarded images of odd sizes and padded steps; OpenCV's flip as an oracle.
#include "lumitest.h"
#include "lumi/remap.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using lumitest::GuardedImage;
using lumitest::Layout;

template <class T>
struct MirrorFns {
  LumStatus (*r[4])(const T*, int, T*, int, LumiSize, int);
  LumStatus (*ir[4])(T*, int, LumiSize, int);
};
const MirrorFns<Lum8u> k8u{{lumiMirror_8u_C1R, lumiMirror_8u_C3R, lumiMirror_8u_C4R, lumiMirror_8u_AC4R},
                           {lumiMirror_8u_C1IR, lumiMirror_8u_C3IR, lumiMirror_8u_C4IR, lumiMirror_8u_AC4IR}};
const MirrorFns<Lum16u> k16u{{lumiMirror_16u_C1R, lumiMirror_16u_C3R, lumiMirror_16u_C4R, lumiMirror_16u_AC4R},
                             {lumiMirror_16u_C1IR, lumiMirror_16u_C3IR, lumiMirror_16u_C4IR, lumiMirror_16u_AC4IR}};
const MirrorFns<Lum32s> k32s{{lumiMirror_32s_C1R, lumiMirror_32s_C3R, lumiMirror_32s_C4R, lumiMirror_32s_AC4R},
                             {lumiMirror_32s_C1IR, lumiMirror_32s_C3IR, lumiMirror_32s_C4IR, lumiMirror_32s_AC4IR}};

// The expected image: colour channels from the mirrored source pixel, others from `before`.
template <class T>
std::vector<T> expected(const GuardedImage<T>& src, const GuardedImage<T>& before, Layout l, int flip) {
  const int w = src.width(), h = src.height();
  std::vector<T> out = before.pixels();
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const int sx = flip >= 1 ? w - 1 - x : x, sy = flip != 1 ? h - 1 - y : y;
      for (int c = 0; c < l.use; ++c) out[(static_cast<size_t>(y) * w + x) * l.ch + c] = src.at(sx, sy, c);
    }
  return out;
}

template <class T>
void checkAll(const MirrorFns<T>& fns, uint32_t salt) {
  auto rng = lumitest::makeRng(salt);
  const LumiSize sizes[] = {{1, 1}, {1, 6}, {7, 1}, {33, 3}, {67, 5}, {130, 4}, {13, 9}};
  for (int li = 0; li < 4; ++li) {
    const Layout l = lumitest::kLayouts[li];
    for (const LumiSize s : sizes)
      for (int flip = 0; flip < 3; ++flip) {
        SCOPED_TRACE(testing::Message() << l.name << " " << s.width << "x" << s.height << " flip " << flip);
        GuardedImage<T> src(s.width, s.height, l.ch, -1, -1, salt + 1), dst(s.width, s.height, l.ch, -1, -1, salt + 2);
        src.fillRandom(rng);
        dst.fillRandom(rng);
        const auto want = expected(src, dst, l, flip);
        ASSERT_EQ(fns.r[li](src.ptr(), src.step(), dst.ptr(), dst.step(), s, flip), lumStatusOk);
        EXPECT_TRUE(lumitest::sameElements(dst.pixels(), want, s.width * l.ch));
        EXPECT_TRUE(dst.guardsIntact());
        // In place: the alpha of AC4 stays at its pixel.
        GuardedImage<T> img(s.width, s.height, l.ch, -1, -1, salt + 3);
        img.fillRandom(rng);
        const auto wantIn = expected(img, img, l, flip);
        ASSERT_EQ(fns.ir[li](img.ptr(), img.step(), s, flip), lumStatusOk);
        EXPECT_TRUE(lumitest::sameElements(img.pixels(), wantIn, s.width * l.ch));
        EXPECT_TRUE(img.guardsIntact());
      }
  }
}

TEST(Mirror, AllTypesLayoutsAxes8u) { checkAll(k8u, 1); }
TEST(Mirror, AllTypesLayoutsAxes16u) { checkAll(k16u, 2); }
TEST(Mirror, AllTypesLayoutsAxes32s) { checkAll(k32s, 3); }

TEST(Mirror, ChecksPointersThenSizeThenAxis) {
  GuardedImage<Lum8u> a(4, 4, 1), b(4, 4, 1);
  for (int li = 0; li < 4; ++li) {
    auto r = k8u.r[li];
    auto ir = k8u.ir[li];
    EXPECT_EQ(r(nullptr, a.step(), b.ptr(), b.step(), LumiSize{0, 0}, 3), lumStatusNullPtrErr);
    EXPECT_EQ(r(a.ptr(), a.step(), nullptr, b.step(), LumiSize{0, 0}, 3), lumStatusNullPtrErr);
    EXPECT_EQ(ir(nullptr, a.step(), LumiSize{0, 0}, 3), lumStatusNullPtrErr);
    EXPECT_EQ(r(a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{0, 4}, 3), lumStatusSizeErr);
    EXPECT_EQ(r(a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{4, 0}, 1), lumStatusSizeErr);
    EXPECT_EQ(ir(a.ptr(), a.step(), LumiSize{4, -1}, 3), lumStatusSizeErr);
    EXPECT_EQ(r(a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{4, 4}, 3), lumStatusFlipAxisErr);
    EXPECT_EQ(r(a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{4, 4}, -1), lumStatusFlipAxisErr);
    EXPECT_EQ(ir(a.ptr(), a.step(), LumiSize{4, 4}, 3), lumStatusFlipAxisErr);
  }
  EXPECT_TRUE(a.guardsIntact());
  EXPECT_TRUE(b.guardsIntact());
}

#ifdef LUMI_HAVE_OPENCV
// A whole large image (threads engaged) against cv::flip, 8u C3 and 32s C1.
TEST(Mirror, MatchesOpenCvFlip) {
  cv::Mat s3(301, 997, CV_8UC3), s1(257, 1031, CV_32SC1);
  cv::randu(s3, 0, 256);
  cv::randu(s1, -100000, 100000);
  for (int flip = 0; flip < 3; ++flip) {
    const int code = flip == 0 ? 0 : (flip == 1 ? 1 : -1);
    cv::Mat want3, want1, got3(s3.size(), s3.type()), got1(s1.size(), s1.type());
    cv::flip(s3, want3, code);
    cv::flip(s1, want1, code);
    ASSERT_EQ(lumiMirror_8u_C3R(s3.ptr(), int(s3.step), got3.ptr(), int(got3.step), LumiSize{s3.cols, s3.rows}, flip), lumStatusOk);
    ASSERT_EQ(lumiMirror_32s_C1R(s1.ptr<Lum32s>(), int(s1.step), got1.ptr<Lum32s>(), int(got1.step), LumiSize{s1.cols, s1.rows}, flip), lumStatusOk);
    EXPECT_EQ(cv::norm(got3, want3, cv::NORM_INF), 0) << flip;
    EXPECT_EQ(cv::norm(got1, want1, cv::NORM_INF), 0) << flip;
    cv::Mat in3 = s3.clone();
    ASSERT_EQ(lumiMirror_8u_C3IR(in3.ptr(), int(in3.step), LumiSize{in3.cols, in3.rows}, flip), lumStatusOk);
    EXPECT_EQ(cv::norm(in3, want3, cv::NORM_INF), 0) << flip;
  }
  // 16 MB: rows shared among threads, in place and out of place.
  cv::Mat big(4097, 4099, CV_8UC1), wantBig, gotBig(big.size(), CV_8UC1);
  cv::randu(big, 0, 256);
  cv::flip(big, wantBig, -1);
  ASSERT_EQ(lumiMirror_8u_C1R(big.ptr(), int(big.step), gotBig.ptr(), int(gotBig.step), LumiSize{big.cols, big.rows}, 2), lumStatusOk);
  EXPECT_EQ(cv::norm(gotBig, wantBig, cv::NORM_INF), 0);
  ASSERT_EQ(lumiMirror_8u_C1IR(big.ptr(), int(big.step), LumiSize{big.cols, big.rows}, 2), lumStatusOk);
  EXPECT_EQ(cv::norm(big, wantBig, cv::NORM_INF), 0);
}
#endif

}  // namespace
