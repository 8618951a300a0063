// Erosion and dilation against cv::erode / cv::dilate at 1920x1080. The source ROI is the
// image less a border as wide as the element reaches, so both read the same pixels.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <vector>

#include "bench.h"
#include "lumi/morphology.h"

namespace {

// ROI of `m` inset by r pixels on every side.
cv::Mat inset(const cv::Mat& m, int r) { return m(cv::Rect(r, r, m.cols - 2 * r, m.rows - 2 * r)); }

}  // namespace

LUMI_BENCH_ROWS(morphologyRows) {
  auto g8 = bench::images(CV_8UC1);
  auto c8 = bench::images(CV_8UC3);
  auto g32 = bench::images(CV_32FC1);
  const cv::Mat k3 = cv::Mat::ones(3, 3, CV_8U);
  {
    cv::Mat s = inset(g8->src, 1), d = inset(g8->dst, 1);
    const LumiSize roi{s.cols, s.rows};
    const int ss = static_cast<int>(s.step), ds = static_cast<int>(d.step);
    bench::row("morphology", "erode 3x3 8u C1", g8->bytes() * 2,
               [=]() mutable { cv::erode(s, d, k3); },
               [=]() mutable { lumiErode3x3_8u_C1R(s.ptr<Lum8u>(), ss, d.ptr<Lum8u>(), ds, roi); });
    bench::row("morphology", "dilate 3x3 8u C1", g8->bytes() * 2,
               [=]() mutable { cv::dilate(s, d, k3); },
               [=]() mutable { lumiDilate3x3_8u_C1R(s.ptr<Lum8u>(), ss, d.ptr<Lum8u>(), ds, roi); });
  }
  {
    cv::Mat s = inset(c8->src, 1), d = inset(c8->dst, 1);
    const LumiSize roi{s.cols, s.rows};
    const int ss = static_cast<int>(s.step), ds = static_cast<int>(d.step);
    bench::row("morphology", "erode 3x3 8u C3", c8->bytes() * 2,
               [=]() mutable { cv::erode(s, d, k3); },
               [=]() mutable { lumiErode3x3_8u_C3R(s.ptr<Lum8u>(), ss, d.ptr<Lum8u>(), ds, roi); });
  }
  {
    cv::Mat s = inset(g32->src, 1), d = inset(g32->dst, 1);
    const LumiSize roi{s.cols, s.rows};
    const int ss = static_cast<int>(s.step), ds = static_cast<int>(d.step);
    bench::row("morphology", "erode 3x3 32f C1", g32->bytes() * 2,
               [=]() mutable { cv::erode(s, d, k3); },
               [=]() mutable { lumiErode3x3_32f_C1R(s.ptr<Lum32f>(), ss, d.ptr<Lum32f>(), ds, roi); });
  }
  {
    cv::Mat s = inset(g8->src, 3), d = inset(g8->dst, 3);
    const LumiSize roi{s.cols, s.rows};
    const int ss = static_cast<int>(s.step), ds = static_cast<int>(d.step);
    auto mask = std::make_shared<std::vector<Lum8u>>(49, 1);
    const cv::Mat k7 = cv::Mat::ones(7, 7, CV_8U);
    bench::row("morphology", "erode 7x7 mask 8u C1", g8->bytes() * 2,
               [=]() mutable { cv::erode(s, d, k7); },
               [=]() mutable {
                 lumiErode_8u_C1R(s.ptr<Lum8u>(), ss, d.ptr<Lum8u>(), ds, roi, mask->data(),
                                  LumiSize{7, 7}, LumiPoint{3, 3});
               });
  }
}
