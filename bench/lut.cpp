// Lookup tables and histograms against cv::LUT and cv::calcHist.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <memory>
#include <vector>

#include "bench.h"

namespace {

// A step table over every 8u value: levels 0..256, so sample k maps to values[k].
struct Table8u {
  cv::Mat lut;
  std::vector<Lum32s> values, levels;
  Table8u() : lut(1, 256, CV_8U), values(257), levels(257) {
    static int seed = 777;
    cv::RNG rng(seed++);
    rng.fill(lut, cv::RNG::UNIFORM, 0, 256);
    for (int k = 0; k <= 256; ++k) {
      levels[k] = k;
      values[k] = k < 256 ? lut.at<Lum8u>(k) : 0;
    }
  }
};

}  // namespace

LUMI_BENCH_ROWS(lutRows) {
  auto t = std::make_shared<Table8u>();
  auto c1 = bench::images(CV_8UC1);
  bench::row("lut", "LUT 8u C1", c1->bytes() * 2, [=] { cv::LUT(c1->src, t->lut, c1->dst); },
             [=] {
               lumiLUT_8u_C1R(c1->s(), c1->sstep(), c1->d(), c1->dstep(), c1->roi(),
                              t->values.data(), t->levels.data(), 257);
             });
  auto c3 = bench::images(CV_8UC3);
  bench::row("lut", "LUT 8u C3", c3->bytes() * 2, [=] { cv::LUT(c3->src, t->lut, c3->dst); },
             [=] {
               const Lum32s* v[3] = {t->values.data(), t->values.data(), t->values.data()};
               const Lum32s* l[3] = {t->levels.data(), t->levels.data(), t->levels.data()};
               const int n[3] = {257, 257, 257};
               lumiLUT_8u_C3R(c3->s(), c3->sstep(), c3->d(), c3->dstep(), c3->roi(), v, l, n);
             });

  // one table per channel: cv::LUT with a three-channel table
  auto tables3 = std::make_shared<std::vector<Table8u>>(3);
  auto& t3 = *tables3;
  auto lut3 = std::make_shared<cv::Mat>();
  std::vector<cv::Mat> planes = {t3[0].lut, t3[1].lut, t3[2].lut};
  cv::merge(planes, *lut3);
  bench::row("lut", "LUT 8u C3 3 tables", c3->bytes() * 2,
             [=] { cv::LUT(c3->src, *lut3, c3->dst); },
             [=] {
               const auto& t3 = *tables3;
               const Lum32s* v[3] = {t3[0].values.data(), t3[1].values.data(), t3[2].values.data()};
               const Lum32s* l[3] = {t3[0].levels.data(), t3[1].levels.data(), t3[2].levels.data()};
               const int n[3] = {257, 257, 257};
               lumiLUT_8u_C3R(c3->s(), c3->sstep(), c3->d(), c3->dstep(), c3->roi(), v, l, n);
             });

  auto h8 = bench::images(CV_8UC1);
  auto hist = std::make_shared<std::vector<Lum32s>>(1025);
  auto lev = std::make_shared<std::vector<Lum32s>>(1026);
  bench::row("histogram", "calcHist 8u 256 bins", h8->bytes(),
             [=] {
               int channel = 0, bins = 256;
               float range[] = {0, 256};
               const float* ranges[] = {range};
               cv::Mat h;
               cv::calcHist(&h8->src, 1, &channel, cv::Mat(), h, 1, &bins, ranges);
             },
             [=] {
               lumiHistogramEven_8u_C1R(h8->s(), h8->sstep(), h8->roi(), hist->data(),
                                        lev->data(), 257, 0, 256);
             });
  auto h16 = bench::images(CV_16UC1);
  bench::row("histogram", "calcHist 16u 1024 bins", h16->bytes(),
             [=] {
               int channel = 0, bins = 1024;
               float range[] = {0, 65536};
               const float* ranges[] = {range};
               cv::Mat h;
               cv::calcHist(&h16->src, 1, &channel, cv::Mat(), h, 1, &bins, ranges);
             },
             [=] {
               lumiHistogramEven_16u_C1R(h16->s<Lum16u>(), h16->sstep(), h16->roi(),
                                         hist->data(), lev->data(), 1025, 0, 65536);
             });
}
