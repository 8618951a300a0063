// Wiener filter at 1920x1080. OpenCV has no Wiener filter; its peer here is the same formula
// built from its primitives: the local mean and mean square by box filters over the real
// neighbours (the source is a ROI of a larger image with a 15-pixel margin), then
// mean + (src - mean) max(var - noise, 0) / max(var, noise) in float, converted back.
#include <opencv2/imgproc.hpp>

#include <memory>
#include <string>
#include <vector>

#include "bench.h"
#include "lumi/filter_wiener.h"

namespace {

constexpr int kMargin = 15;

struct WienerImages {
  std::shared_ptr<bench::Images> big;  // random source with the margin
  cv::Mat src, dst;                    // the ROI of it, and a destination of the ROI's size
  std::vector<Lum8u> buffer;
  cv::Mat fbig, mean, sq, out;         // OpenCV's working images
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
};

std::shared_ptr<WienerImages> wienerImages(int cvType, int k) {
  auto im = std::make_shared<WienerImages>();
  im->big = bench::images(cvType, bench::kWidth + 2 * kMargin, bench::kHeight + 2 * kMargin);
  im->src = im->big->src(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  im->dst.create(bench::kHeight, bench::kWidth, cvType);
  int size = 0;
  lumiFilterWienerGetBufferSize(im->roi(), {k, k}, CV_MAT_CN(cvType), &size);
  im->buffer.resize(static_cast<size_t>(size));
  return im;
}

// The composite on OpenCV's side; noise is a variance in pixel units.
void cvWiener(WienerImages& im, int k, double noise) {
  im.big->src.convertTo(im.fbig, CV_32F);
  const cv::Mat f = im.fbig(cv::Rect(kMargin, kMargin, bench::kWidth, bench::kHeight));
  cv::boxFilter(f, im.mean, CV_32F, cv::Size(k, k));
  cv::sqrBoxFilter(f, im.sq, CV_32F, cv::Size(k, k));
  cv::Mat var = im.sq - im.mean.mul(im.mean);
  cv::Mat gain = cv::max(var - noise, 0.0) / cv::max(var, noise);
  im.out = im.mean + (f - im.mean).mul(gain);
  im.out.convertTo(im.dst, im.dst.type());
}

}  // namespace

LUMI_BENCH_ROWS(wienerRows) {
  const double px = 1.0 * bench::kWidth * bench::kHeight;
  for (int k : {3, 5}) {
    auto g8 = wienerImages(CV_8UC1, k);
    bench::row("filter", "wiener " + std::to_string(k) + "x" + std::to_string(k) + " 8u C1", 2 * px,
               [=] { cvWiener(*g8, k, 0.01 * 255 * 255); }, [=] {
                 Lum32f noise[1] = {0.01f};
                 lumiFilterWiener_8u_C1R(g8->src.ptr<Lum8u>(), g8->sstep(), g8->dst.ptr<Lum8u>(),
                                         g8->dstep(), g8->roi(), {k, k}, {k / 2, k / 2}, noise,
                                         g8->buffer.data());
               });
  }
  auto e8 = wienerImages(CV_8UC1, 5);
  bench::row("filter", "wiener 5x5 8u C1 estimated", 2 * px, [=] { cvWiener(*e8, 5, 650.0); }, [=] {
    Lum32f noise[1] = {0.0f};
    lumiFilterWiener_8u_C1R(e8->src.ptr<Lum8u>(), e8->sstep(), e8->dst.ptr<Lum8u>(), e8->dstep(),
                            e8->roi(), {5, 5}, {2, 2}, noise, e8->buffer.data());
  });
  auto c8 = wienerImages(CV_8UC3, 5);
  bench::row("filter", "wiener 5x5 8u C3", 6 * px, [=] { cvWiener(*c8, 5, 0.01 * 255 * 255); }, [=] {
    Lum32f noise[3] = {0.01f, 0.01f, 0.01f};
    lumiFilterWiener_8u_C3R(c8->src.ptr<Lum8u>(), c8->sstep(), c8->dst.ptr<Lum8u>(), c8->dstep(),
                            c8->roi(), {5, 5}, {2, 2}, noise, c8->buffer.data());
  });
  auto g32 = wienerImages(CV_32FC1, 5);
  bench::row("filter", "wiener 5x5 32f C1", 8 * px, [=] { cvWiener(*g32, 5, 0.01 * 2000 * 2000); }, [=] {
    Lum32f noise[1] = {0.01f};
    lumiFilterWiener_32f_C1R(g32->src.ptr<Lum32f>(), g32->sstep(), g32->dst.ptr<Lum32f>(),
                             g32->dstep(), g32->roi(), {5, 5}, {2, 2}, noise, g32->buffer.data());
  });
}
