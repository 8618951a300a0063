// Transpose: every type and layout, out of place over sizes that cross the tile and micro-tile
// edges, in place over squares, against a per-pixel reference on guarded images; OpenCV's
// transpose as an oracle on large images.
#include "lumitest.h"
#include "lumi/remap.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

namespace {

using lumitest::GuardedImage;

template <class T>
struct TransposeFns {
  LumStatus (*r[3])(const T*, int, T*, int, LumiSize);
  LumStatus (*ir[3])(T*, int, LumiSize);
};
const TransposeFns<Lum8u> k8u{{lumiTranspose_8u_C1R, lumiTranspose_8u_C3R, lumiTranspose_8u_C4R},
                              {lumiTranspose_8u_C1IR, lumiTranspose_8u_C3IR, lumiTranspose_8u_C4IR}};
const TransposeFns<Lum16u> k16u{{lumiTranspose_16u_C1R, lumiTranspose_16u_C3R, lumiTranspose_16u_C4R},
                                {lumiTranspose_16u_C1IR, lumiTranspose_16u_C3IR, lumiTranspose_16u_C4IR}};
const TransposeFns<Lum32s> k32s{{lumiTranspose_32s_C1R, lumiTranspose_32s_C3R, lumiTranspose_32s_C4R},
                                {lumiTranspose_32s_C1IR, lumiTranspose_32s_C3IR, lumiTranspose_32s_C4IR}};
const int kChannels[3] = {1, 3, 4};

template <class T>
std::vector<T> transposed(const GuardedImage<T>& s) {
  const int ch = s.channels();
  std::vector<T> out(static_cast<size_t>(s.width()) * s.height() * ch);
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x)
      for (int c = 0; c < ch; ++c) out[(static_cast<size_t>(x) * s.height() + y) * ch + c] = s.at(x, y, c);
  return out;
}

template <class T>
void checkAll(const TransposeFns<T>& fns, uint32_t salt) {
  auto rng = lumitest::makeRng(salt);
  const LumiSize sizes[] = {{1, 1}, {1, 9}, {9, 1}, {17, 33}, {70, 45}, {131, 67}};
  const int squares[] = {1, 7, 16, 33, 70};
  for (int li = 0; li < 3; ++li) {
    const int ch = kChannels[li];
    for (const LumiSize s : sizes) {
      SCOPED_TRACE(testing::Message() << "C" << ch << " " << s.width << "x" << s.height);
      GuardedImage<T> src(s.width, s.height, ch, -1, -1, salt), dst(s.height, s.width, ch, -1, -1, salt + 1);
      src.fillRandom(rng);
      ASSERT_EQ(fns.r[li](src.ptr(), src.step(), dst.ptr(), dst.step(), s), lumStatusOk);
      EXPECT_TRUE(lumitest::sameElements(dst.pixels(), transposed(src), s.height * ch));
      EXPECT_TRUE(dst.guardsIntact());
    }
    for (int n : squares) {
      SCOPED_TRACE(testing::Message() << "in place C" << ch << " " << n);
      GuardedImage<T> img(n, n, ch, -1, -1, salt + n);
      img.fillRandom(rng);
      const auto want = transposed(img);
      ASSERT_EQ(fns.ir[li](img.ptr(), img.step(), LumiSize{n, n}), lumStatusOk);
      EXPECT_TRUE(lumitest::sameElements(img.pixels(), want, n * ch));
      EXPECT_TRUE(img.guardsIntact());
    }
  }
}

TEST(Transpose, AllLayouts8u) { checkAll(k8u, 11); }
TEST(Transpose, AllLayouts16u) { checkAll(k16u, 12); }
TEST(Transpose, AllLayouts32s) { checkAll(k32s, 13); }

TEST(Transpose, ChecksPointersThenSizes) {
  GuardedImage<Lum16u> a(5, 5, 4), b(5, 5, 4);
  for (int li = 0; li < 3; ++li) {
    EXPECT_EQ(k16u.r[li](nullptr, a.step(), b.ptr(), b.step(), LumiSize{0, 0}), lumStatusNullPtrErr);
    EXPECT_EQ(k16u.r[li](a.ptr(), a.step(), nullptr, b.step(), LumiSize{0, 0}), lumStatusNullPtrErr);
    EXPECT_EQ(k16u.ir[li](nullptr, a.step(), LumiSize{4, 5}), lumStatusNullPtrErr);
    EXPECT_EQ(k16u.r[li](a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{0, 5}), lumStatusSizeErr);
    EXPECT_EQ(k16u.r[li](a.ptr(), a.step(), b.ptr(), b.step(), LumiSize{5, 0}), lumStatusSizeErr);
    EXPECT_EQ(k16u.ir[li](a.ptr(), a.step(), LumiSize{0, 0}), lumStatusSizeErr);
    EXPECT_EQ(k16u.ir[li](a.ptr(), a.step(), LumiSize{4, 5}), lumStatusSizeErr);  // not square
  }
  EXPECT_TRUE(a.guardsIntact());
  EXPECT_TRUE(b.guardsIntact());
}

#ifdef LUMI_HAVE_OPENCV
// Large enough for threads; padded steps from an ROI of a bigger matrix.
TEST(Transpose, MatchesOpenCv) {
  cv::Mat big8(700, 900, CV_8UC1), big32(600, 800, CV_32SC1);
  cv::randu(big8, 0, 256);
  cv::randu(big32, -1000000, 1000000);
  const cv::Mat s8 = big8(cv::Rect(3, 5, 641, 517)), s32 = big32(cv::Rect(1, 2, 517, 513));
  cv::Mat want8, want32;
  cv::transpose(s8, want8);
  cv::transpose(s32, want32);
  cv::Mat got8(want8.size(), CV_8UC1), got32(want32.size(), CV_32SC1);
  ASSERT_EQ(lumiTranspose_8u_C1R(s8.ptr(), int(s8.step), got8.ptr(), int(got8.step), LumiSize{s8.cols, s8.rows}), lumStatusOk);
  ASSERT_EQ(lumiTranspose_32s_C1R(s32.ptr<Lum32s>(), int(s32.step), got32.ptr<Lum32s>(), int(got32.step), LumiSize{s32.cols, s32.rows}), lumStatusOk);
  EXPECT_EQ(cv::norm(got8, want8, cv::NORM_INF), 0);
  EXPECT_EQ(cv::norm(got32, want32, cv::NORM_INF), 0);
  cv::Mat sq = big8(cv::Rect(0, 0, 611, 611)).clone(), wantSq;
  cv::transpose(sq, wantSq);
  ASSERT_EQ(lumiTranspose_8u_C1IR(sq.ptr(), int(sq.step), LumiSize{611, 611}), lumStatusOk);
  EXPECT_EQ(cv::norm(sq, wantSq, cv::NORM_INF), 0);
}
#endif

}  // namespace
