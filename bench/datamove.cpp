// Copy, fill, border extension and channel swap on 1920x1080 images.
#include <opencv2/core.hpp>

#include "bench.h"

namespace {

constexpr int kBorder = 16;

void copyRow(const char* name, int cvType) {
  auto im = bench::images(cvType);
  bench::row("datamove", name, im->bytes() * 2, [=] { im->src.copyTo(im->dst); },
             [=] {
               if (CV_MAT_CN(cvType) == 1)
                 lumiCopy_8u_C1R(im->s(), im->sstep(), im->d(), im->dstep(), im->roi());
               else
                 lumiCopy_8u_C3R(im->s(), im->sstep(), im->d(), im->dstep(), im->roi());
             });
}

void setRow(const char* name, int cvType) {
  auto im = bench::images(cvType);
  const Lum8u v[3] = {17, 99, 201};
  bench::row("datamove", name, im->bytes(), [=] { im->dst.setTo(cv::Scalar(17, 99, 201)); },
             [=] {
               if (CV_MAT_CN(cvType) == 1)
                 lumiSet_8u_C1R(v[0], im->d(), im->dstep(), im->roi());
               else
                 lumiSet_8u_C3R(v, im->d(), im->dstep(), im->roi());
             });
}

// A 16-pixel frame around the whole source, replicated or constant.
void borderRow(const char* name, int cvType, bool replicate) {
  auto im = bench::images(cvType);
  auto big = std::make_shared<cv::Mat>(bench::kHeight + 2 * kBorder, bench::kWidth + 2 * kBorder, cvType);
  const LumiSize dr{big->cols, big->rows};
  const Lum8u v[3] = {5, 6, 7};
  const double bytes = im->bytes() + static_cast<double>(big->total() * big->elemSize());
  bench::row("datamove", name, bytes,
             [=] {
               cv::copyMakeBorder(im->src, *big, kBorder, kBorder, kBorder, kBorder,
                                  replicate ? cv::BORDER_REPLICATE : cv::BORDER_CONSTANT,
                                  cv::Scalar(5, 6, 7));
             },
             [=] {
               Lum8u* d = big->ptr<Lum8u>();
               const int ds = static_cast<int>(big->step);
               const bool c1 = CV_MAT_CN(cvType) == 1;
               if (replicate && c1)
                 lumiCopyReplicateBorder_8u_C1R(im->s(), im->sstep(), im->roi(), d, ds, dr, kBorder, kBorder);
               else if (replicate)
                 lumiCopyReplicateBorder_8u_C3R(im->s(), im->sstep(), im->roi(), d, ds, dr, kBorder, kBorder);
               else if (c1)
                 lumiCopyConstBorder_8u_C1R(im->s(), im->sstep(), im->roi(), d, ds, dr, kBorder, kBorder, v[0]);
               else
                 lumiCopyConstBorder_8u_C3R(im->s(), im->sstep(), im->roi(), d, ds, dr, kBorder, kBorder, v);
             });
}

LUMI_BENCH_ROWS(datamoveRows) {
  copyRow("copy 8u C1", CV_8UC1);
  copyRow("copy 8u C3", CV_8UC3);
  setRow("set 8u C1", CV_8UC1);
  setRow("set 8u C3", CV_8UC3);
  borderRow("replicate border 8u C1", CV_8UC1, true);
  borderRow("replicate border 8u C3", CV_8UC3, true);
  borderRow("const border 8u C1", CV_8UC1, false);
  borderRow("const border 8u C3", CV_8UC3, false);
  auto im = bench::images(CV_8UC3);
  const int order[3] = {2, 1, 0};
  bench::row("datamove", "swap channels 8u C3", im->bytes() * 2,
             [=] {
               const int fromTo[6] = {0, 2, 1, 1, 2, 0};
               cv::mixChannels(&im->src, 1, &im->dst, 1, fromTo, 3);
             },
             [=] { lumiSwapChannels_8u_C3R(im->s(), im->sstep(), im->d(), im->dstep(), im->roi(), order); });
}

}  // namespace
