// Floating-point, complex and pointwise-maths rows against OpenCV at 1920x1080. Sqrt and Ln
// run on the absolute values of the random source and Exp on a source scaled into [-10, 10],
// so both sides compute finite results.
#include "bench.h"

#include <opencv2/core.hpp>

namespace {

using BinFn = LumStatus (*)(const Lum32f*, int, const Lum32f*, int, Lum32f*, int, LumiSize);

void binaryRow(const char* name, int cvType, BinFn ours,
               void (*opencv)(const cv::Mat&, const cv::Mat&, cv::Mat&)) {
  auto im = bench::images(cvType);
  bench::row("arith 32f", name, im->bytes() * 3, [=] { opencv(im->src, im->src2, im->dst); },
             [=] {
               ours(im->s<Lum32f>(), im->sstep(), im->s2<Lum32f>(), im->sstep(), im->d<Lum32f>(),
                    im->dstep(), im->roi());
             });
}

template <class T>
void unaryRow(const char* family, const char* name, std::shared_ptr<bench::Images> im,
              LumStatus (*ours)(const T*, int, T*, int, LumiSize),
              void (*opencv)(const cv::Mat&, cv::Mat&)) {
  bench::row(family, name, im->bytes() * 2, [=] { opencv(im->src, im->dst); },
             [=] { ours(im->s<T>(), im->sstep(), im->d<T>(), im->dstep(), im->roi()); });
}

}  // namespace

LUMI_BENCH_ROWS(arithFloatRows) {
  auto cvAdd = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::add(a, b, d); };
  auto cvSub = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); };
  auto cvMul = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d); };
  auto cvDiv = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::divide(b, a, d); };
  binaryRow("add 32f C1", CV_32FC1, lumiAdd_32f_C1R, +cvAdd);
  binaryRow("add 32f C3", CV_32FC3, lumiAdd_32f_C3R, +cvAdd);
  binaryRow("sub 32f C1", CV_32FC1, lumiSub_32f_C1R, +cvSub);
  binaryRow("sub 32f C3", CV_32FC3, lumiSub_32f_C3R, +cvSub);
  binaryRow("mul 32f C1", CV_32FC1, lumiMul_32f_C1R, +cvMul);
  binaryRow("mul 32f C3", CV_32FC3, lumiMul_32f_C3R, +cvMul);
  binaryRow("div 32f C1", CV_32FC1, lumiDiv_32f_C1R, +cvDiv);
  binaryRow("div 32f C3", CV_32FC3, lumiDiv_32f_C3R, +cvDiv);

  auto cvAbs = [](const cv::Mat& s, cv::Mat& d) { cv::absdiff(s, cv::Scalar::all(0), d); };
  unaryRow<Lum16s>("maths", "abs 16s C1", bench::images(CV_16SC1), lumiAbs_16s_C1R, +cvAbs);
  unaryRow<Lum32f>("maths", "abs 32f C1", bench::images(CV_32FC1), lumiAbs_32f_C1R, +cvAbs);

  auto positive = bench::images(CV_32FC1);
  positive->src = cv::abs(positive->src) + 1e-3;
  auto small = bench::images(CV_32FC1);
  small->src *= 0.01;
  auto cvSqrt = [](const cv::Mat& s, cv::Mat& d) { cv::sqrt(s, d); };
  auto cvLog = [](const cv::Mat& s, cv::Mat& d) { cv::log(s, d); };
  auto cvExp = [](const cv::Mat& s, cv::Mat& d) { cv::exp(s, d); };
  unaryRow<Lum32f>("maths", "sqrt 32f C1", positive, lumiSqrt_32f_C1R, +cvSqrt);
  unaryRow<Lum32f>("maths", "ln 32f C1", positive, lumiLn_32f_C1R, +cvLog);
  unaryRow<Lum32f>("maths", "exp 32f C1", small, lumiExp_32f_C1R, +cvExp);

  auto cplx = bench::images(CV_32FC2);
  bench::row("complex", "mul 32fc C1", cplx->bytes() * 3,
             [=] { cv::mulSpectrums(cplx->src, cplx->src2, cplx->dst, 0); },
             [=] {
               lumiMul_32fc_C1R(cplx->s<Lum32fc>(), cplx->sstep(), cplx->s2<Lum32fc>(),
                                cplx->sstep(), cplx->d<Lum32fc>(), cplx->dstep(), cplx->roi());
             });
}
