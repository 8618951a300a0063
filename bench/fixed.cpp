// Fixed-kernel filters against OpenCV at 1920x1080. Both read the same source pixels around the
// ROI: the source is a ROI of a larger image (a 2-pixel margin on every side), so OpenCV uses the
// real neighbours there, as we do, instead of synthesising a border. Our Gauss 5x5 is the
// 571-weight kernel, OpenCV's the binomial 1 4 6 4 1; Laplace is our 8-neighbour 3x3 against
// OpenCV's default (aperture 1) 4-neighbour kernel, both to 16s.
#include <opencv2/imgproc.hpp>

#include <memory>

#include "bench.h"
#include "lumi/filter_fixed.h"

namespace {

struct FixedImages {
  std::shared_ptr<bench::Images> big;  // random 8u source with the margin
  cv::Mat src, dst8, dst16;            // the ROI of it, 8u and 16s destinations of its size
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  const Lum8u* s() const { return src.ptr<Lum8u>(); }
  int sstep() const { return static_cast<int>(src.step); }
};

std::shared_ptr<FixedImages> fixedImages(int cvType = CV_8UC1) {
  constexpr int kMargin = 2;
  auto im = std::make_shared<FixedImages>();
  im->big = bench::images(cvType, bench::kWidth + 2 * kMargin, bench::kHeight + 2 * kMargin);
  im->src = im->big->src(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  im->dst8.create(bench::kHeight, bench::kWidth, cvType);
  im->dst16.create(bench::kHeight, bench::kWidth, CV_16SC1);
  return im;
}

}  // namespace

LUMI_BENCH_ROWS(fixedRows) {
  auto im = fixedImages();
  const double b8 = 2.0 * bench::kWidth * bench::kHeight, b16 = 3.0 * bench::kWidth * bench::kHeight;
  bench::row("filter", "gauss 3x3 8u C1", b8, [=] { cv::GaussianBlur(im->src, im->dst8, cv::Size(3, 3), 0); },
             [=] {
               lumiFilterGauss_8u_C1R(im->s(), im->sstep(), im->dst8.ptr<Lum8u>(),
                                      static_cast<int>(im->dst8.step), im->roi(), lumMskSize3x3);
             });
  bench::row("filter", "gauss 5x5 8u C1", b8, [=] { cv::GaussianBlur(im->src, im->dst8, cv::Size(5, 5), 0); },
             [=] {
               lumiFilterGauss_8u_C1R(im->s(), im->sstep(), im->dst8.ptr<Lum8u>(),
                                      static_cast<int>(im->dst8.step), im->roi(), lumMskSize5x5);
             });
  bench::row("filter", "sobel 3x3 8u16s C1", b16, [=] { cv::Sobel(im->src, im->dst16, CV_16S, 1, 0, 3); },
             [=] {
               lumiFilterSobelVert_8u16s_C1R(im->s(), im->sstep(), im->dst16.ptr<Lum16s>(),
                                             static_cast<int>(im->dst16.step), im->roi(), lumMskSize3x3);
             });
  bench::row("filter", "scharr 3x3 8u16s C1", b16, [=] { cv::Scharr(im->src, im->dst16, CV_16S, 1, 0); },
             [=] {
               lumiFilterScharrVert_8u16s_C1R(im->s(), im->sstep(), im->dst16.ptr<Lum16s>(),
                                              static_cast<int>(im->dst16.step), im->roi());
             });
  bench::row("filter", "laplace 3x3 8u16s C1", b16, [=] { cv::Laplacian(im->src, im->dst16, CV_16S); },
             [=] {
               lumiFilterLaplace_8u16s_C1R(im->s(), im->sstep(), im->dst16.ptr<Lum16s>(),
                                           static_cast<int>(im->dst16.step), im->roi(), lumMskSize3x3);
             });
  // other types and layouts
  auto s16 = fixedImages(CV_16SC1), f32 = fixedImages(CV_32FC1), c8 = fixedImages(CV_8UC3);
  bench::row("filter", "sobel 3x3 16s C1", 2 * b8, [=] { cv::Sobel(s16->src, s16->dst8, CV_16S, 1, 0, 3); },
             [=] {
               lumiFilterSobelVert_16s_C1R(s16->src.ptr<Lum16s>(), s16->sstep(), s16->dst8.ptr<Lum16s>(),
                                           static_cast<int>(s16->dst8.step), s16->roi());
             });
  bench::row("filter", "gauss 3x3 32f C1", 4 * b8, [=] { cv::GaussianBlur(f32->src, f32->dst8, cv::Size(3, 3), 0); },
             [=] {
               lumiFilterGauss_32f_C1R(f32->src.ptr<Lum32f>(), f32->sstep(), f32->dst8.ptr<Lum32f>(),
                                       static_cast<int>(f32->dst8.step), f32->roi(), lumMskSize3x3);
             });
  bench::row("filter", "gauss 5x5 32f C1", 4 * b8, [=] { cv::GaussianBlur(f32->src, f32->dst8, cv::Size(5, 5), 0); },
             [=] {
               lumiFilterGauss_32f_C1R(f32->src.ptr<Lum32f>(), f32->sstep(), f32->dst8.ptr<Lum32f>(),
                                       static_cast<int>(f32->dst8.step), f32->roi(), lumMskSize5x5);
             });
  bench::row("filter", "sobel 3x3 8u C3", 6 * b8 / 2, [=] { cv::Sobel(c8->src, c8->dst8, CV_8U, 1, 0, 3); },
             [=] {
               lumiFilterSobelVert_8u_C3R(c8->s(), c8->sstep(), c8->dst8.ptr<Lum8u>(),
                                          static_cast<int>(c8->dst8.step), c8->roi());
             });
}
