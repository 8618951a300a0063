// Scaled integer arithmetic against OpenCV's saturating arithmetic at 1920x1080. Our scale
// factor 0 is OpenCV's plain result; the multiply row passes OpenCV a scale of 1/256 for our
// scale factor 8 (timing only: OpenCV rounds through floating point). Division by zero is
// defined differently (timing only as well).
#include "bench.h"

#include <opencv2/core.hpp>

namespace {

template <class T, class F>
void twoImageRow(const char* family, const char* name, int cvType, F ours,
                 void (*opencv)(const cv::Mat&, const cv::Mat&, cv::Mat&)) {
  auto im = bench::images(cvType);
  const int ch = CV_MAT_CN(cvType);
  bench::row(family, name, im->bytes() * 3, [=] { opencv(im->src, im->src2, im->dst); },
             [=] {
               ours(im->template s<T>(), im->sstep(), im->template s2<T>(), im->sstep(),
                    im->template d<T>(), im->dstep(), im->roi());
               (void)ch;
             });
}

}  // namespace

LUMI_BENCH_ROWS(arithScaledRows) {
  auto cvAdd = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::add(a, b, d); };
  auto cvSub = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); };
  auto cvMul = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) {
    cv::multiply(a, b, d, 1.0 / 256);
  };
  auto cvDiv = [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::divide(b, a, d); };

  twoImageRow<Lum8u>("arith sf", "add 8u C1", CV_8UC1,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiAdd_8u_C1RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvAdd);
  twoImageRow<Lum8u>("arith sf", "add 8u C3", CV_8UC3,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiAdd_8u_C3RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvAdd);
  twoImageRow<Lum16s>("arith sf", "add 16s C1", CV_16SC1,
                      [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                        lumiAdd_16s_C1RSfs(a, sa, b, sb, d, sd, r, 0);
                      }, +cvAdd);
  twoImageRow<Lum16s>("arith sf", "add 16s C3", CV_16SC3,
                      [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                        lumiAdd_16s_C3RSfs(a, sa, b, sb, d, sd, r, 0);
                      }, +cvAdd);
  twoImageRow<Lum8u>("arith sf", "sub 8u C1", CV_8UC1,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiSub_8u_C1RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvSub);
  twoImageRow<Lum8u>("arith sf", "sub 8u C3", CV_8UC3,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiSub_8u_C3RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvSub);
  twoImageRow<Lum16s>("arith sf", "sub 16s C1", CV_16SC1,
                      [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                        lumiSub_16s_C1RSfs(a, sa, b, sb, d, sd, r, 0);
                      }, +cvSub);
  twoImageRow<Lum16s>("arith sf", "sub 16s C3", CV_16SC3,
                      [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                        lumiSub_16s_C3RSfs(a, sa, b, sb, d, sd, r, 0);
                      }, +cvSub);
  twoImageRow<Lum8u>("arith sf", "mul 8u C1 sf8", CV_8UC1,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiMul_8u_C1RSfs(a, sa, b, sb, d, sd, r, 8);
                     }, +cvMul);
  twoImageRow<Lum8u>("arith sf", "mul 8u C3 sf8", CV_8UC3,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiMul_8u_C3RSfs(a, sa, b, sb, d, sd, r, 8);
                     }, +cvMul);
  twoImageRow<Lum8u>("arith sf", "div 8u C1", CV_8UC1,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiDiv_8u_C1RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvDiv);
  twoImageRow<Lum8u>("arith sf", "div 8u C3", CV_8UC3,
                     [](auto a, int sa, auto b, int sb, auto d, int sd, LumiSize r) {
                       lumiDiv_8u_C3RSfs(a, sa, b, sb, d, sd, r, 0);
                     }, +cvDiv);
}
