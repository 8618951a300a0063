// Additive noise: OpenCV draws into a temporary and adds it; we add in place from our own
// generator. The generators differ, so only the times compare.
#include "bench.h"

namespace {

template <class T, class Ours>
void noiseRow(const char* name, int cvType, int noiseType, bool gauss, double a, double b,
              Ours ours) {
  auto img = bench::images(cvType);
  auto tmp = std::make_shared<cv::Mat>(img->src.size(), noiseType);
  auto seed = std::make_shared<unsigned>(12345u);
  bench::row(
      "generate", name, 0,
      [=] {
        cv::RNG& rng = cv::theRNG();
        if (gauss)
          rng.fill(*tmp, cv::RNG::NORMAL, a, b);
        else
          rng.fill(*tmp, cv::RNG::UNIFORM, a, b);
        cv::add(img->src, *tmp, img->dst, cv::noArray(), CV_MAT_DEPTH(cvType));
      },
      [=] { ours(img->d<T>(), img->dstep(), img->roi(), seed.get()); });
}

}  // namespace

LUMI_BENCH_ROWS(generateRows) {
  noiseRow<Lum8u>("Gaussian noise 8u C1", CV_8UC1, CV_16SC1, true, 0, 20,
                  [](Lum8u* p, int s, LumiSize r, unsigned* seed) {
                    lumiAddRandGauss_Direct_8u_C1IR(p, s, r, 0, 20, seed);
                  });
  noiseRow<Lum32f>("Gaussian noise 32f C1", CV_32FC1, CV_32FC1, true, 0, 20,
                   [](Lum32f* p, int s, LumiSize r, unsigned* seed) {
                     lumiAddRandGauss_Direct_32f_C1IR(p, s, r, 0, 20, seed);
                   });
  noiseRow<Lum8u>("Uniform noise 8u C1", CV_8UC1, CV_16SC1, false, -20, 20,
                  [](Lum8u* p, int s, LumiSize r, unsigned* seed) {
                    lumiAddRandUniform_Direct_8u_C1IR(p, s, r, 0, 40, seed);
                  });
  noiseRow<Lum32f>("Uniform noise 32f C1", CV_32FC1, CV_32FC1, false, -20, 20,
                   [](Lum32f* p, int s, LumiSize r, unsigned* seed) {
                     lumiAddRandUniform_Direct_32f_C1IR(p, s, r, -20, 20, seed);
                   });
}
