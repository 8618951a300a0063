// Box filter against OpenCV at 1920x1080. Both read the same source pixels around the ROI: the
// source is a ROI of a larger image (a 15-pixel margin on every side), so OpenCV uses the real
// neighbours there as we do instead of synthesising a border.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <string>

#include "bench.h"
#include "lumi/filter.h"

namespace {

struct BoxImages {
  std::shared_ptr<bench::Images> big;  // random source with the margin
  cv::Mat src, dst;                    // the ROI of it, and a destination of the ROI's size
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
};

std::shared_ptr<BoxImages> boxImages(int cvType) {
  constexpr int kMargin = 15;
  auto im = std::make_shared<BoxImages>();
  im->big = bench::images(cvType, bench::kWidth + 2 * kMargin, bench::kHeight + 2 * kMargin);
  im->src = im->big->src(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  im->dst.create(bench::kHeight, bench::kWidth, cvType);
  return im;
}

}  // namespace

LUMI_BENCH_ROWS(boxRows) {
  auto g8 = boxImages(CV_8UC1);
  auto c8 = boxImages(CV_8UC3);
  auto g32 = boxImages(CV_32FC1);
  const double b8 = 2.0 * bench::kWidth * bench::kHeight;
  for (int k : {5, 31}) {
    const std::string name = "box " + std::to_string(k) + "x" + std::to_string(k) + " 8u C1";
    bench::row("filter", name, b8, [=] { cv::blur(g8->src, g8->dst, cv::Size(k, k)); }, [=] {
      lumiFilterBox_8u_C1R(g8->src.ptr<Lum8u>(), g8->sstep(), g8->dst.ptr<Lum8u>(), g8->dstep(),
                           g8->roi(), {k, k}, {k / 2, k / 2});
    });
  }
  bench::row("filter", "box 5x5 8u C3", 3 * b8, [=] { cv::blur(c8->src, c8->dst, cv::Size(5, 5)); },
             [=] {
               lumiFilterBox_8u_C3R(c8->src.ptr<Lum8u>(), c8->sstep(), c8->dst.ptr<Lum8u>(),
                                    c8->dstep(), c8->roi(), {5, 5}, {2, 2});
             });
  bench::row("filter", "box 5x5 32f C1", 4 * b8, [=] { cv::blur(g32->src, g32->dst, cv::Size(5, 5)); },
             [=] {
               lumiFilterBox_32f_C1R(g32->src.ptr<Lum32f>(), g32->sstep(), g32->dst.ptr<Lum32f>(),
                                     g32->dstep(), g32->roi(), {5, 5}, {2, 2});
             });
}
