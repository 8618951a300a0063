// Copy, fill, border extension and channel swap on 1920x1080 images.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

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
  // masked forms, channel extraction and insertion, grey to colour
  auto mask = std::make_shared<cv::Mat>(bench::kHeight, bench::kWidth, CV_8UC1);
  cv::randu(*mask, 0, 2);
  auto m1 = bench::images(CV_8UC1), m3 = bench::images(CV_8UC3);
  const int ms = static_cast<int>(mask->step);
  bench::row("datamove", "masked copy 8u C1", m1->bytes() * 3 + mask->total(),
             [=] { m1->src.copyTo(m1->dst, *mask); },
             [=] { lumiCopy_8u_C1MR(m1->s(), m1->sstep(), m1->d(), m1->dstep(), m1->roi(), mask->data, ms); });
  bench::row("datamove", "masked copy 8u C3", m3->bytes() * 3 + mask->total(),
             [=] { m3->src.copyTo(m3->dst, *mask); },
             [=] { lumiCopy_8u_C3MR(m3->s(), m3->sstep(), m3->d(), m3->dstep(), m3->roi(), mask->data, ms); });
  bench::row("datamove", "masked set 8u C3", m3->bytes() * 2 + mask->total(),
             [=] { m3->dst.setTo(cv::Scalar(1, 2, 3), *mask); },
             [=] {
               const Lum8u v[3] = {1, 2, 3};
               lumiSet_8u_C3MR(v, m3->d(), m3->dstep(), m3->roi(), mask->data, ms);
             });
  bench::row("datamove", "copy channel 8u C3C1", m3->bytes() * 4 / 3,
             [=] { cv::extractChannel(m3->src, m1->dst, 1); },
             [=] { lumiCopy_8u_C3C1R(m3->s() + 1, m3->sstep(), m1->d(), m1->dstep(), m1->roi()); });
  bench::row("datamove", "copy channel 8u C1C3", m3->bytes() * 2 + m1->bytes(),
             [=] { cv::insertChannel(m1->src, m3->dst, 1); },
             [=] { lumiCopy_8u_C1C3R(m1->s(), m1->sstep(), m3->d() + 1, m3->dstep(), m3->roi()); });
  bench::row("datamove", "dup 8u C1C3", m1->bytes() * 4,
             [=] { cv::cvtColor(m1->src, m3->dst, cv::COLOR_GRAY2BGR); },
             [=] { lumiDup_8u_C1C3R(m1->s(), m1->sstep(), m3->d(), m3->dstep(), m3->roi()); });

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
