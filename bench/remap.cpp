// Remap through float maps, mirror and transpose on 1920x1080 images.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>

#include "bench.h"
#include "lumi/remap.h"

namespace {

// Maps of a rotation by 5 degrees about the centre, scaled by 0.95: nearly every point inside.
struct Maps {
  cv::Mat x, y;
  Maps() : x(bench::kHeight, bench::kWidth, CV_32FC1), y(bench::kHeight, bench::kWidth, CV_32FC1) {
    const double a = 5 * 3.14159265358979 / 180, s = 0.95;
    const double cx = bench::kWidth / 2.0, cy = bench::kHeight / 2.0;
    for (int r = 0; r < bench::kHeight; ++r)
      for (int c = 0; c < bench::kWidth; ++c) {
        const double u = c - cx, v = r - cy;
        x.at<float>(r, c) = static_cast<float>(cx + s * (std::cos(a) * u - std::sin(a) * v));
        y.at<float>(r, c) = static_cast<float>(cy + s * (std::sin(a) * u + std::cos(a) * v));
      }
  }
};

void remapRow(const char* name, int cvType, int cvInterp, int mode) {
  auto im = bench::images(cvType);
  auto maps = std::make_shared<Maps>();
  const LumiRect roi{0, 0, bench::kWidth, bench::kHeight};
  const int xs = static_cast<int>(maps->x.step), ys = static_cast<int>(maps->y.step);
  bench::row("remap", name, 0, [=] { cv::remap(im->src, im->dst, maps->x, maps->y, cvInterp); },
             [=] {
               if (CV_MAT_DEPTH(cvType) == CV_8U)
                 lumiRemap_8u_C1R(im->s(), im->roi(), im->sstep(), roi, maps->x.ptr<float>(), xs,
                                  maps->y.ptr<float>(), ys, im->d(), im->dstep(), im->roi(), mode);
               else
                 lumiRemap_32f_C1R(im->s<Lum32f>(), im->roi(), im->sstep(), roi, maps->x.ptr<float>(), xs,
                                   maps->y.ptr<float>(), ys, im->d<Lum32f>(), im->dstep(), im->roi(), mode);
             });
}

void mirrorRow(const char* name, int cvType, int flip) {
  auto im = bench::images(cvType);
  const int code = flip == 0 ? 0 : (flip == 1 ? 1 : -1);
  bench::row("mirror", name, im->bytes() * 2, [=] { cv::flip(im->src, im->dst, code); },
             [=] {
               if (CV_MAT_CN(cvType) == 1)
                 lumiMirror_8u_C1R(im->s(), im->sstep(), im->d(), im->dstep(), im->roi(), flip);
               else
                 lumiMirror_8u_C3R(im->s(), im->sstep(), im->d(), im->dstep(), im->roi(), flip);
             });
}

void transposeRow(const char* name, int cvType) {
  auto im = bench::images(cvType);
  auto dst = std::make_shared<cv::Mat>(bench::kWidth, bench::kHeight, cvType);
  bench::row("transpose", name, im->bytes() * 2, [=] { cv::transpose(im->src, *dst); },
             [=] {
               const int ds = static_cast<int>(dst->step);
               if (CV_MAT_DEPTH(cvType) == CV_8U)
                 lumiTranspose_8u_C1R(im->s(), im->sstep(), dst->ptr<Lum8u>(), ds, im->roi());
               else
                 lumiTranspose_32s_C1R(im->s<Lum32s>(), im->sstep(), dst->ptr<Lum32s>(), ds, im->roi());
             });
}

LUMI_BENCH_ROWS(remapRows) {
  remapRow("linear 8u C1", CV_8UC1, cv::INTER_LINEAR, lumInterpLinear);
  remapRow("linear 32f C1", CV_32FC1, cv::INTER_LINEAR, lumInterpLinear);
  remapRow("nearest 8u C1", CV_8UC1, cv::INTER_NEAREST, lumInterpNearest);
  mirrorRow("axis 0 8u C1", CV_8UC1, 0);
  mirrorRow("axis 1 8u C1", CV_8UC1, 1);
  mirrorRow("both 8u C1", CV_8UC1, 2);
  mirrorRow("axis 0 8u C3", CV_8UC3, 0);
  mirrorRow("axis 1 8u C3", CV_8UC3, 1);
  mirrorRow("both 8u C3", CV_8UC3, 2);
  transposeRow("8u C1", CV_8UC1);
  transposeRow("32s C1", CV_32SC1);
}

}  // namespace
