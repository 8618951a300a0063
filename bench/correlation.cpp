// Template matching against OpenCV's matchTemplate on a 512x512 image with 16x16, 32x32 and
// 64x64 templates cut from it, 8u and 32f. OpenCV's TM_SQDIFF_NORMED normalises by
// sqrt(sum tpl^2 x sum src^2) without floors: that row compares time only.
#include "lumi/correlation.h"

#include <memory>
#include <opencv2/imgproc.hpp>
#include <string>

#include "bench.h"

namespace {

struct Case {
  cv::Mat src, tpl, dst, dstCv;
  LumiSize sroi() const { return {src.cols, src.rows}; }
  LumiSize troi() const { return {tpl.cols, tpl.rows}; }
  int ss() const { return static_cast<int>(src.step); }
  int ts() const { return static_cast<int>(tpl.step); }
  int ds() const { return static_cast<int>(dst.step); }
};

std::shared_ptr<Case> makeCase(int cvType, int t) {
  auto im = bench::images(cvType, 512, 512);
  auto c = std::make_shared<Case>();
  c->src = im->src;
  c->tpl = im->src(cv::Rect(200, 150, t, t)).clone();
  c->dst.create(512 - t + 1, 512 - t + 1, CV_32F);
  c->dstCv.create(512 - t + 1, 512 - t + 1, CV_32F);
  return c;
}

}  // namespace

LUMI_BENCH_ROWS(correlationRows) {
  for (int t : {16, 32, 64}) {
    const std::string size = " 512/" + std::to_string(t);
    auto c8 = makeCase(CV_8UC1, t);
    auto c32 = makeCase(CV_32FC1, t);
    bench::row(
        "match", "ccorr 8u" + size, 0,
        [=] { cv::matchTemplate(c8->src, c8->tpl, c8->dstCv, cv::TM_CCORR_NORMED); },
        [=] {
          lumiCrossCorrValid_Norm_8u32f_C1R(c8->src.ptr<Lum8u>(), c8->ss(), c8->sroi(),
                                            c8->tpl.ptr<Lum8u>(), c8->ts(), c8->troi(),
                                            c8->dst.ptr<Lum32f>(), c8->ds());
        });
    bench::row(
        "match", "ccorr 32f" + size, 0,
        [=] { cv::matchTemplate(c32->src, c32->tpl, c32->dstCv, cv::TM_CCORR_NORMED); },
        [=] {
          lumiCrossCorrValid_Norm_32f_C1R(c32->src.ptr<Lum32f>(), c32->ss(), c32->sroi(),
                                          c32->tpl.ptr<Lum32f>(), c32->ts(), c32->troi(),
                                          c32->dst.ptr<Lum32f>(), c32->ds());
        });
    bench::row(
        "match", "ccoeff 8u" + size, 0,
        [=] { cv::matchTemplate(c8->src, c8->tpl, c8->dstCv, cv::TM_CCOEFF_NORMED); },
        [=] {
          lumiCrossCorrValid_NormLevel_8u32f_C1R(c8->src.ptr<Lum8u>(), c8->ss(), c8->sroi(),
                                                 c8->tpl.ptr<Lum8u>(), c8->ts(), c8->troi(),
                                                 c8->dst.ptr<Lum32f>(), c8->ds());
        });
    bench::row(
        "match", "ccoeff 32f" + size, 0,
        [=] { cv::matchTemplate(c32->src, c32->tpl, c32->dstCv, cv::TM_CCOEFF_NORMED); },
        [=] {
          lumiCrossCorrValid_NormLevel_32f_C1R(c32->src.ptr<Lum32f>(), c32->ss(), c32->sroi(),
                                               c32->tpl.ptr<Lum32f>(), c32->ts(), c32->troi(),
                                               c32->dst.ptr<Lum32f>(), c32->ds());
        });
    bench::row(
        "match", "sqdiff 8u" + size, 0,
        [=] { cv::matchTemplate(c8->src, c8->tpl, c8->dstCv, cv::TM_SQDIFF_NORMED); },
        [=] {
          lumiSqrDistanceValid_Norm_8u32f_C1R(c8->src.ptr<Lum8u>(), c8->ss(), c8->sroi(),
                                              c8->tpl.ptr<Lum8u>(), c8->ts(), c8->troi(),
                                              c8->dst.ptr<Lum32f>(), c8->ds());
        });
    bench::row(
        "match", "sqdiff 32f" + size, 0,
        [=] { cv::matchTemplate(c32->src, c32->tpl, c32->dstCv, cv::TM_SQDIFF_NORMED); },
        [=] {
          lumiSqrDistanceValid_Norm_32f_C1R(c32->src.ptr<Lum32f>(), c32->ss(), c32->sroi(),
                                            c32->tpl.ptr<Lum32f>(), c32->ts(), c32->troi(),
                                            c32->dst.ptr<Lum32f>(), c32->ds());
        });
  }
}
