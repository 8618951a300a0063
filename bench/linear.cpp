// General linear filters against OpenCV at 1920x1080. The source is a ROI of a larger image (an
// 8-pixel margin on every side) so that OpenCV reads the same real neighbours we do; OpenCV
// correlates, so it gets the kernel flipped (the kernels here are symmetric anyway).
#include <memory>
#include <opencv2/imgproc.hpp>

#include "bench.h"
#include "lumi/filter_linear.h"

namespace {

struct LinearImages {
  std::shared_ptr<bench::Images> big;
  cv::Mat src, dst, mid;  // mid: the row pass's result for the column pass
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
};

std::shared_ptr<LinearImages> linearImages(int cvType) {
  constexpr int kMargin = 8;
  auto im = std::make_shared<LinearImages>();
  im->big = bench::images(cvType, bench::kWidth + 2 * kMargin, bench::kHeight + 2 * kMargin);
  im->src = im->big->src(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  im->dst.create(bench::kHeight, bench::kWidth, cvType);
  // the column pass reads rows above and below: a ROI of a taller intermediate image
  const cv::Mat tall(bench::kHeight + 2 * kMargin, bench::kWidth, cvType, cv::Scalar(0));
  im->mid = tall(cv::Rect(0, kMargin, bench::kWidth, bench::kHeight));
  return im;
}

}  // namespace

LUMI_BENCH_ROWS(linearRows) {
  auto g32 = linearImages(CV_32FC1);
  auto g8 = linearImages(CV_8UC1);
  const double b8 = 2.0 * bench::kWidth * bench::kHeight;

  static float k7[49];
  for (int i = 0; i < 49; ++i) k7[i] = 1.0f / 49.0f;
  const cv::Mat cvK7(7, 7, CV_32F, k7);
  bench::row(
      "filter", "filter2D 7x7 32f C1", 4 * b8,
      [=] { cv::filter2D(g32->src, g32->dst, CV_32F, cvK7, cv::Point(3, 3)); },
      [=] {
        lumiFilter_32f_C1R(g32->src.ptr<Lum32f>(), g32->sstep(), g32->dst.ptr<Lum32f>(),
                           g32->dstep(), g32->roi(), k7, {7, 7}, {3, 3});
      });

  static const Lum32s k5[25] = {1, 2, 3, 2, 1, 2, 4, 6, 4, 2, 3, 6, 9,
                                6, 3, 2, 4, 6, 4, 2, 1, 2, 3, 2, 1};
  static float k5f[25];
  for (int i = 0; i < 25; ++i) k5f[i] = k5[i] / 81.0f;
  const cv::Mat cvK5(5, 5, CV_32F, k5f);
  bench::row(
      "filter", "filter2D 5x5 8u C1", b8,
      [=] { cv::filter2D(g8->src, g8->dst, CV_8U, cvK5, cv::Point(2, 2)); },
      [=] {
        lumiFilter_8u_C1R(g8->src.ptr<Lum8u>(), g8->sstep(), g8->dst.ptr<Lum8u>(), g8->dstep(),
                          g8->roi(), k5, {5, 5}, {2, 2}, 81);
      });

  // separable 5-tap smoothing: a row pass then a column pass
  static const float s5f[5] = {1 / 16.0f, 4 / 16.0f, 6 / 16.0f, 4 / 16.0f, 1 / 16.0f};
  static const Lum32s s5[5] = {1, 4, 6, 4, 1};
  const cv::Mat cvS5(1, 5, CV_32F, const_cast<float*>(s5f));
  bench::row(
      "filter", "sepFilter2D 5+5 32f C1", 8 * b8,
      [=] { cv::sepFilter2D(g32->src, g32->dst, CV_32F, cvS5, cvS5, cv::Point(2, 2)); },
      [=] {
        const int mstep = static_cast<int>(g32->mid.step);
        Lum32f* mid = g32->mid.ptr<Lum32f>();
        // the column pass needs two rows above and below: the row pass covers them
        lumiFilterRow_32f_C1R(g32->src.ptr<Lum32f>(-2), g32->sstep(),
                              reinterpret_cast<Lum32f*>(reinterpret_cast<char*>(mid) - 2 * mstep),
                              mstep, {bench::kWidth, bench::kHeight + 4}, s5f, 5, 2);
        lumiFilterColumn_32f_C1R(mid, mstep, g32->dst.ptr<Lum32f>(), g32->dstep(), g32->roi(), s5f,
                                 5, 2);
      });
  bench::row(
      "filter", "sepFilter2D 5+5 8u C1", 2 * b8,
      [=] { cv::sepFilter2D(g8->src, g8->dst, CV_8U, cvS5, cvS5, cv::Point(2, 2)); },
      [=] {
        const int mstep = static_cast<int>(g8->mid.step);
        Lum8u* mid = g8->mid.ptr<Lum8u>();
        lumiFilterRow_8u_C1R(g8->src.ptr<Lum8u>(-2), g8->sstep(), mid - 2 * mstep, mstep,
                             {bench::kWidth, bench::kHeight + 4}, s5, 5, 2, 16);
        lumiFilterColumn_8u_C1R(mid, mstep, g8->dst.ptr<Lum8u>(), g8->dstep(), g8->roi(), s5, 5, 2,
                                16);
      });
}
