// Median, minimum and maximum against OpenCV at 1920x1080. Our source is a ROI of a larger
// image (a margin on every side), so we read the real neighbours there; cv::medianBlur makes its
// own replicated border, which its time includes.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <string>

#include "bench.h"
#include "lumi/filter_rank.h"

namespace {

struct RankImages {
  std::shared_ptr<bench::Images> big;  // random source with the margin
  cv::Mat src, dst;                    // the ROI of it, and a destination of the ROI's size
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
};

std::shared_ptr<RankImages> rankImages(int cvType) {
  constexpr int kMargin = 8;
  auto im = std::make_shared<RankImages>();
  im->big = bench::images(cvType, bench::kWidth + 2 * kMargin, bench::kHeight + 2 * kMargin);
  im->src = im->big->src(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  im->dst.create(bench::kHeight, bench::kWidth, cvType);
  return im;
}

}  // namespace

LUMI_BENCH_ROWS(rankRows) {
  auto g8 = rankImages(CV_8UC1);
  auto c8 = rankImages(CV_8UC3);
  const double b8 = 2.0 * bench::kWidth * bench::kHeight;
  for (int k : {3, 5, 7, 9}) {
    const std::string name = "median " + std::to_string(k) + "x" + std::to_string(k) + " 8u C1";
    bench::row("rank", name, b8, [=] { cv::medianBlur(g8->src, g8->dst, k); }, [=] {
      lumiFilterMedian_8u_C1R(g8->src.ptr<Lum8u>(), g8->sstep(), g8->dst.ptr<Lum8u>(), g8->dstep(),
                              g8->roi(), {k, k}, {k / 2, k / 2});
    });
  }
  bench::row("rank", "median 3x3 8u C3", 3 * b8, [=] { cv::medianBlur(c8->src, c8->dst, 3); }, [=] {
    lumiFilterMedian_8u_C3R(c8->src.ptr<Lum8u>(), c8->sstep(), c8->dst.ptr<Lum8u>(), c8->dstep(),
                            c8->roi(), {3, 3}, {1, 1});
  });
  const cv::Mat k7 = cv::Mat::ones(7, 7, CV_8U);
  bench::row("rank", "min 7x7 8u C1", b8, [=] { cv::erode(g8->src, g8->dst, k7); }, [=] {
    lumiFilterMin_8u_C1R(g8->src.ptr<Lum8u>(), g8->sstep(), g8->dst.ptr<Lum8u>(), g8->dstep(),
                         g8->roi(), {7, 7}, {3, 3});
  });
}
