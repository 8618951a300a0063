// Thresholds, comparison and logic against OpenCV at 1920x1080.
#include <opencv2/imgproc.hpp>

#include <cmath>

#include "bench.h"

LUMI_BENCH_ROWS(thresholdRows) {
  auto g8 = bench::images(CV_8UC1);
  auto g32 = bench::images(CV_32FC1);
  // Truncation is the greater-clamp.
  bench::row("threshold", "trunc 8u C1", g8->bytes() * 2,
             [=] { cv::threshold(g8->src, g8->dst, 128, 255, cv::THRESH_TRUNC); },
             [=] { lumiThreshold_GT_8u_C1R(g8->s(), g8->sstep(), g8->d(), g8->dstep(), g8->roi(), 128); });
  bench::row("threshold", "trunc 32f C1", g32->bytes() * 2,
             [=] { cv::threshold(g32->src, g32->dst, 100, 0, cv::THRESH_TRUNC); },
             [=] {
               lumiThreshold_GT_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->d<Lum32f>(),
                                        g32->dstep(), g32->roi(), 100.0f);
             });
  // To-zero (x > T kept, else 0) is the less-replace with value 0 and the next threshold up.
  bench::row("threshold", "tozero 8u C1", g8->bytes() * 2,
             [=] { cv::threshold(g8->src, g8->dst, 128, 255, cv::THRESH_TOZERO); },
             [=] { lumiThreshold_LTVal_8u_C1R(g8->s(), g8->sstep(), g8->d(), g8->dstep(), g8->roi(), 129, 0); });
  bench::row("threshold", "tozero 32f C1", g32->bytes() * 2,
             [=] { cv::threshold(g32->src, g32->dst, 100, 0, cv::THRESH_TOZERO); },
             [=] {
               lumiThreshold_LTVal_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->d<Lum32f>(),
                                           g32->dstep(), g32->roi(),
                                           std::nextafter(100.0f, INFINITY), 0.0f);
             });
  // To-zero-inverted (x > T becomes 0) is the greater-replace with value 0.
  bench::row("threshold", "tozero_inv 8u C1", g8->bytes() * 2,
             [=] { cv::threshold(g8->src, g8->dst, 128, 255, cv::THRESH_TOZERO_INV); },
             [=] { lumiThreshold_GTVal_8u_C1R(g8->s(), g8->sstep(), g8->d(), g8->dstep(), g8->roi(), 128, 0); });
}

LUMI_BENCH_ROWS(compareRows) {
  auto g8 = bench::images(CV_8UC1);
  auto g32 = bench::images(CV_32FC1);
  auto m32 = std::make_shared<cv::Mat>(g32->src.rows, g32->src.cols, CV_8UC1);
  bench::row("compare", "lt 8u C1", g8->bytes() * 3,
             [=] { cv::compare(g8->src, g8->src2, g8->dst, cv::CMP_LT); },
             [=] {
               lumiCompare_8u_C1R(g8->s(), g8->sstep(), g8->s2(), g8->sstep(), g8->d(),
                                  g8->dstep(), g8->roi(), lumCmpLess);
             });
  bench::row("compare", "lt 32f C1", g32->bytes() * 2.25,
             [=] { cv::compare(g32->src, g32->src2, *m32, cv::CMP_LT); },
             [=] {
               lumiCompare_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->s2<Lum32f>(),
                                   g32->sstep(), m32->ptr<Lum8u>(), static_cast<int>(m32->step),
                                   g32->roi(), lumCmpLess);
             });
}

LUMI_BENCH_ROWS(logicRows) {
  for (int ch : {1, 3}) {
    auto g = bench::images(CV_8UC(ch));
    const std::string lay = ch == 1 ? "8u C1" : "8u C3";
    LumiSize roi = g->roi();
    bench::row("logic", "and " + lay, g->bytes() * 3,
               [=] { cv::bitwise_and(g->src, g->src2, g->dst); },
               [=] {
                 if (ch == 1)
                   lumiAnd_8u_C1R(g->s(), g->sstep(), g->s2(), g->sstep(), g->d(), g->dstep(), roi);
                 else
                   lumiAnd_8u_C3R(g->s(), g->sstep(), g->s2(), g->sstep(), g->d(), g->dstep(), roi);
               });
    bench::row("logic", "not " + lay, g->bytes() * 2,
               [=] { cv::bitwise_not(g->src, g->dst); },
               [=] {
                 if (ch == 1)
                   lumiNot_8u_C1R(g->s(), g->sstep(), g->d(), g->dstep(), roi);
                 else
                   lumiNot_8u_C3R(g->s(), g->sstep(), g->d(), g->dstep(), roi);
               });
  }
}
