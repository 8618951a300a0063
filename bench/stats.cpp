// Norms, sums, means, extrema, range counts and moments against OpenCV at 1920x1080.
#include <opencv2/imgproc.hpp>

#include <memory>

#include "bench.h"

namespace {
volatile double gSink;  // keeps reductions from being optimised away
void keep(double v) { gSink = v; }
}  // namespace

LUMI_BENCH_ROWS(normRows) {
  auto g8 = bench::images(CV_8UC1);
  auto g32 = bench::images(CV_32FC1);
  struct Kind {
    const char* name;
    int cv;
  };
  for (Kind k : {Kind{"inf", cv::NORM_INF}, Kind{"l1", cv::NORM_L1}, Kind{"l2", cv::NORM_L2}}) {
    std::string n = k.name;
    int cvk = k.cv;
    bench::row("norm", n + " 8u C1", g8->bytes(), [=] { keep(cv::norm(g8->src, cvk)); }, [=] {
      Lum64f v;
      if (cvk == cv::NORM_INF) lumiNorm_Inf_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &v);
      if (cvk == cv::NORM_L1) lumiNorm_L1_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &v);
      if (cvk == cv::NORM_L2) lumiNorm_L2_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &v);
      keep(v);
    });
    bench::row("norm", n + " 32f C1", g32->bytes(), [=] { keep(cv::norm(g32->src, cvk)); }, [=] {
      Lum64f v;
      const Lum32f* s = g32->s<Lum32f>();
      if (cvk == cv::NORM_INF) lumiNorm_Inf_32f_C1R(s, g32->sstep(), g32->roi(), &v);
      if (cvk == cv::NORM_L1) lumiNorm_L1_32f_C1R(s, g32->sstep(), g32->roi(), &v, lumHintFast);
      if (cvk == cv::NORM_L2) lumiNorm_L2_32f_C1R(s, g32->sstep(), g32->roi(), &v, lumHintFast);
      keep(v);
    });
  }
  bench::row("norm", "diff l2 8u C1", g8->bytes() * 2,
             [=] { keep(cv::norm(g8->src, g8->src2, cv::NORM_L2)); }, [=] {
               Lum64f v;
               lumiNormDiff_L2_8u_C1R(g8->s(), g8->sstep(), g8->s2(), g8->sstep(), g8->roi(), &v);
               keep(v);
             });
  bench::row("norm", "rel l2 8u C1", g8->bytes() * 2,
             [=] { keep(cv::norm(g8->src, g8->src2, cv::NORM_L2 | cv::NORM_RELATIVE)); }, [=] {
               Lum64f v;
               lumiNormRel_L2_8u_C1R(g8->s(), g8->sstep(), g8->s2(), g8->sstep(), g8->roi(), &v);
               keep(v);
             });
  bench::row("norm", "rel l1 32f C1", g32->bytes() * 2,
             [=] { keep(cv::norm(g32->src, g32->src2, cv::NORM_L1 | cv::NORM_RELATIVE)); }, [=] {
               Lum64f v;
               lumiNormRel_L1_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->s2<Lum32f>(),
                                      g32->sstep(), g32->roi(), &v, lumHintFast);
               keep(v);
             });
}

LUMI_BENCH_ROWS(sumRows) {
  auto g8 = bench::images(CV_8UC1);
  auto c8 = bench::images(CV_8UC3);
  auto g32 = bench::images(CV_32FC1);
  bench::row("sum", "sum 8u C1", g8->bytes(), [=] { keep(cv::sum(g8->src)[0]); }, [=] {
    Lum64f v;
    lumiSum_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &v);
    keep(v);
  });
  bench::row("sum", "sum 8u C3", c8->bytes(), [=] { keep(cv::sum(c8->src)[0]); }, [=] {
    Lum64f v[3];
    lumiSum_8u_C3R(c8->s(), c8->sstep(), c8->roi(), v);
    keep(v[0]);
  });
  bench::row("sum", "sum 32f C1", g32->bytes(), [=] { keep(cv::sum(g32->src)[0]); }, [=] {
    Lum64f v;
    lumiSum_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &v, lumHintFast);
    keep(v);
  });
  bench::row("sum", "mean 8u C1", g8->bytes(), [=] { keep(cv::mean(g8->src)[0]); }, [=] {
    Lum64f v;
    lumiMean_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &v);
    keep(v);
  });
  bench::row("sum", "mean 32f C1", g32->bytes(), [=] { keep(cv::mean(g32->src)[0]); }, [=] {
    Lum64f v;
    lumiMean_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &v, lumHintFast);
    keep(v);
  });
}

LUMI_BENCH_ROWS(extremaRows) {
  auto g8 = bench::images(CV_8UC1);
  auto g32 = bench::images(CV_32FC1);
  bench::row("extrema", "minmax 8u C1", g8->bytes(), [=] {
    double a, b;
    cv::minMaxLoc(g8->src, &a, &b);
    keep(a + b);
  }, [=] {
    Lum8u a, b;
    lumiMinMax_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &a, &b);
    keep(a + b);
  });
  // values in [20, 224]: neither 0 nor 255 occurs, so the 8u scan cannot stop early
  auto mid = std::make_shared<cv::Mat>();
  g8->src.convertTo(*mid, -1, 0.8, 20);
  bench::row("extrema", "minmaxloc 8u C1", g8->bytes(), [=] {
    double a, b;
    cv::Point pa, pb;
    cv::minMaxLoc(*mid, &a, &b, &pa, &pb);
    keep(a + b + pa.x + pb.y);
  }, [=] {
    Lum8u a, b;
    int x0, y0, x1, y1;
    LumiSize roi{mid->cols, mid->rows};
    lumiMinIndx_8u_C1R(mid->ptr(), static_cast<int>(mid->step), roi, &a, &x0, &y0);
    lumiMaxIndx_8u_C1R(mid->ptr(), static_cast<int>(mid->step), roi, &b, &x1, &y1);
    keep(a + b + x0 + y1);
  });
  bench::row("extrema", "minmax 32f C1", g32->bytes(), [=] {
    double a, b;
    cv::minMaxLoc(g32->src, &a, &b);
    keep(a + b);
  }, [=] {
    Lum32f a, b;
    lumiMinMax_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &a, &b);
    keep(a + b);
  });
  bench::row("extrema", "minmaxloc 32f C1", g32->bytes(), [=] {
    double a, b;
    cv::Point pa, pb;
    cv::minMaxLoc(g32->src, &a, &b, &pa, &pb);
    keep(a + b + pa.x + pb.y);
  }, [=] {
    Lum32f a, b;
    int x0, y0, x1, y1;
    lumiMinIndx_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &a, &x0, &y0);
    lumiMaxIndx_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &b, &x1, &y1);
    keep(a + b + x0 + y1);
  });
  auto m8 = std::make_shared<cv::Mat>(g8->src.rows, g8->src.cols, CV_8UC1);
  bench::row("extrema", "inrange count 8u C1", g8->bytes(), [=] {
    cv::inRange(g8->src, 50, 180, *m8);
    keep(cv::countNonZero(*m8));
  }, [=] {
    int n;
    lumiCountInRange_8u_C1R(g8->s(), g8->sstep(), g8->roi(), &n, 50, 180);
    keep(n);
  });
  bench::row("extrema", "inrange count 32f C1", g32->bytes(), [=] {
    cv::inRange(g32->src, -100.0, 300.0, *m8);
    keep(cv::countNonZero(*m8));
  }, [=] {
    int n;
    lumiCountInRange_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), &n, -100.0f, 300.0f);
    keep(n);
  });
}

LUMI_BENCH_ROWS(momentRows) {
  auto g8 = bench::images(CV_8UC1);
  auto g32 = bench::images(CV_32FC1);
  LumiMomentState_64f* st = nullptr;
  lumiMomentInitAlloc_64f(&st, lumHintAccurate);  // lives until the process ends
  bench::row("moments", "moments 8u C1", g8->bytes(), [=] { keep(cv::moments(g8->src).mu20); }, [=] {
    Lum64f v;
    lumiMoments64f_8u_C1R(g8->s(), g8->sstep(), g8->roi(), st);
    lumiGetCentralMoment_64f(st, 2, 0, 0, &v);
    keep(v);
  });
  bench::row("moments", "moments 32f C1", g32->bytes(), [=] { keep(cv::moments(g32->src).mu20); }, [=] {
    Lum64f v;
    lumiMoments64f_32f_C1R(g32->s<Lum32f>(), g32->sstep(), g32->roi(), st);
    lumiGetCentralMoment_64f(st, 2, 0, 0, &v);
    keep(v);
  });
}
