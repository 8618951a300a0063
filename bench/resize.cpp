// Resize against cv::resize from a 1920x1080 source: nearest, linear, cubic and area
// (super-sampling) at 1/2x and 2x, C1 and C3, 8u and 32f. The pixel mappings differ between the
// two libraries for some modes, so these rows compare time only. Lanczos rows (family
// "resize-info", against INTER_LANCZOS4) are for information.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <string>

#include "bench.h"
#include "lumi/resize.h"

namespace {

struct Mode {
  const char* name;
  int ours, cv;
};

void addRow(const char* family, const Mode& m, double f, int cvType) {
  auto im = bench::images(cvType);
  const int dw = static_cast<int>(bench::kWidth * f), dh = static_cast<int>(bench::kHeight * f);
  auto dst = std::make_shared<cv::Mat>(dh, dw, cvType);
  const bool c3 = CV_MAT_CN(cvType) == 3, f32 = CV_MAT_DEPTH(cvType) == CV_32F;
  const std::string name = std::string(m.name) + (f < 1 ? " 1/2x " : " 2x ") + (f32 ? "32f" : "8u") + (c3 ? " C3" : " C1");
  const LumiRect roi{0, 0, bench::kWidth, bench::kHeight};
  const LumiSize ds{dw, dh};
  const int mode = m.ours, cvMode = m.cv;
  bench::row(family, name, 0, [=] { cv::resize(im->src, *dst, cv::Size(dw, dh), 0, 0, cvMode); }, [=] {
    const int ss = im->sstep(), dstep = static_cast<int>(dst->step);
    if (!f32 && !c3) lumiResize_8u_C1R(im->s(), im->roi(), ss, roi, dst->ptr<Lum8u>(), dstep, ds, f, f, mode);
    if (!f32 && c3) lumiResize_8u_C3R(im->s(), im->roi(), ss, roi, dst->ptr<Lum8u>(), dstep, ds, f, f, mode);
    if (f32 && !c3) lumiResize_32f_C1R(im->s<Lum32f>(), im->roi(), ss, roi, dst->ptr<Lum32f>(), dstep, ds, f, f, mode);
    if (f32 && c3) lumiResize_32f_C3R(im->s<Lum32f>(), im->roi(), ss, roi, dst->ptr<Lum32f>(), dstep, ds, f, f, mode);
  });
}

}  // namespace

LUMI_BENCH_ROWS(resizeRows) {
  const Mode modes[] = {{"nearest", lumInterpNearest, cv::INTER_NEAREST},
                        {"linear", lumInterpLinear, cv::INTER_LINEAR},
                        {"cubic", lumInterpCubic, cv::INTER_CUBIC},
                        {"area", lumInterpSuper, cv::INTER_AREA}};
  for (const Mode& m : modes)
    for (double f : {0.5, 2.0}) {
      if (m.ours == lumInterpSuper && f > 1) continue;  // area averaging reduces only
      for (int type : {CV_8UC1, CV_8UC3, CV_32FC1, CV_32FC3}) addRow("resize", m, f, type);
    }
  const Mode lanczos{"lanczos", lumInterpLanczos, cv::INTER_LANCZOS4};
  for (double f : {0.5, 2.0}) addRow("resize-info", lanczos, f, CV_8UC1);
}
