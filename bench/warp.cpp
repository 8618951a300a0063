// Warps against OpenCV at 1920x1080: a 10-degree rotation about the image centre (the same
// coefficients in both libraries) and a mild perspective.
#include "lumi/warp.h"

#include <opencv2/imgproc.hpp>

#include "bench.h"

namespace {
constexpr double kAngle = 10, kCx = (bench::kWidth - 1) / 2.0, kCy = (bench::kHeight - 1) / 2.0;
}

LUMI_BENCH_ROWS(warpRows) {
  auto g8 = bench::images(CV_8UC1);
  auto c8 = bench::images(CV_8UC3);
  auto g32 = bench::images(CV_32FC1);
  const cv::Mat m = cv::getRotationMatrix2D(cv::Point2f(float(kCx), float(kCy)), kAngle, 1.0);
  const LumiRect all{0, 0, bench::kWidth, bench::kHeight};
  struct Mode {
    const char* name;
    int cv, ours;
  };
  for (Mode md : {Mode{"linear", cv::INTER_LINEAR, lumInterpLinear},
                  Mode{"nearest", cv::INTER_NEAREST, lumInterpNearest},
                  Mode{"cubic", cv::INTER_CUBIC, lumInterpCubic}}) {
    bench::row(
        "warp", std::string("rotate ") + md.name + " 8u C1", 0,
        [=] { cv::warpAffine(g8->src, g8->dst, m, g8->src.size(), md.cv); },
        [=] {
          lumiRotateCenter_8u_C1R(g8->s(), g8->roi(), g8->sstep(), all, g8->d(), g8->dstep(), all,
                                  kAngle, kCx, kCy, md.ours);
        });
  }
  bench::row(
      "warp", "rotate linear 8u C3", 0,
      [=] { cv::warpAffine(c8->src, c8->dst, m, c8->src.size(), cv::INTER_LINEAR); },
      [=] {
        lumiRotateCenter_8u_C3R(c8->s(), c8->roi(), c8->sstep(), all, c8->d(), c8->dstep(), all,
                                kAngle, kCx, kCy, lumInterpLinear);
      });
  bench::row(
      "warp", "rotate linear 32f C1", 0,
      [=] { cv::warpAffine(g32->src, g32->dst, m, g32->src.size(), cv::INTER_LINEAR); },
      [=] {
        lumiRotateCenter_32f_C1R(g32->s<Lum32f>(), g32->roi(), g32->sstep(), all, g32->d<Lum32f>(),
                                 g32->dstep(), all, kAngle, kCx, kCy, lumInterpLinear);
      });
  const double h[3][3] = {{1.05, 0.08, -40}, {-0.03, 1.02, 10}, {2e-5, 3e-5, 1}};
  const cv::Mat hm(3, 3, CV_64F, const_cast<double*>(&h[0][0]));
  const cv::Mat hc = hm.clone();
  bench::row(
      "warp", "perspective linear 8u C1", 0,
      [=] { cv::warpPerspective(g8->src, g8->dst, hc, g8->src.size(), cv::INTER_LINEAR); },
      [=] {
        double c[3][3];
        for (int i = 0; i < 3; ++i)
          for (int j = 0; j < 3; ++j) c[i][j] = hc.at<double>(i, j);
        lumiWarpPerspective_8u_C1R(g8->s(), g8->roi(), g8->sstep(), all, g8->d(), g8->dstep(), all,
                                   c, lumInterpLinear);
      });
}
