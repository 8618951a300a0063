// DCT against OpenCV: the general transform of a 512x512 float image, and 8x8 blocks over a
// 1920x1080 float image (cv::dct on each block; the 16-bit blocks for information, on the same
// pixels as 16-bit values). Wavelets have no OpenCV peer: one Haar level of a 1920x1080 float
// image is timed against a 2x2 box resize of the same image for scale.
#include <opencv2/imgproc.hpp>

#include <memory>

#include "bench.h"
#include "lumi/dct.h"
#include "lumi/wavelet.h"

namespace {

struct DctRecord {
  LumiDCTSpec* spec = nullptr;
  std::vector<Lum8u> buf;
  explicit DctRecord(LumiSize s) {
    lumiDCTFwdInitAlloc_32f(&spec, s, 0);
    int n = 0;
    lumiDCTFwdGetBufSize_32f(spec, &n);
    buf.resize(n);
  }
  ~DctRecord() { lumiDCTFwdFree_32f(spec); }
};

// Every 8x8 block of a 32f image through f(src block, dst block), both with the image steps.
template <class F>
void blocks(const cv::Mat& src, cv::Mat& dst, F f) {
  for (int y = 0; y + 8 <= src.rows; y += 8)
    for (int x = 0; x + 8 <= src.cols; x += 8) f(y, x);
}

}  // namespace

LUMI_BENCH_ROWS(dctRows) {
  auto sq = bench::images(CV_32FC1, 512, 512);
  auto rec = std::make_shared<DctRecord>(LumiSize{512, 512});
  bench::row("dct", "512x512 32f", 0, [=] { cv::dct(sq->src, sq->dst); }, [=] {
    lumiDCTFwd_32f_C1R(sq->s<Lum32f>(), sq->sstep(), sq->d<Lum32f>(), sq->dstep(), rec->spec,
                       rec->buf.data());
  });

  auto img = bench::images(CV_32FC1);
  // contiguous 8x8 blocks: cv::dct reads and writes them through 8x8 headers into the image
  bench::row("dct", "8x8 blocks 32f 1920x1080", 0,
             [=] {
               blocks(img->src, img->dst, [&](int y, int x) {
                 cv::Mat d = img->dst(cv::Rect(x, y, 8, 8));
                 cv::dct(img->src(cv::Rect(x, y, 8, 8)), d);
               });
             },
             [=] {
               alignas(32) Lum32f in[64], out[64];
               blocks(img->src, img->dst, [&](int y, int x) {
                 for (int r = 0; r < 8; ++r) std::memcpy(in + 8 * r, img->src.ptr<Lum32f>(y + r) + x, 32);
                 lumiDCT8x8Fwd_32f_C1(in, out);
                 for (int r = 0; r < 8; ++r) std::memcpy(img->dst.ptr<Lum32f>(y + r) + x, out + 8 * r, 32);
               });
             });
  auto img16 = std::make_shared<cv::Mat>();
  img->src.convertTo(*img16, CV_16S, 0.1);
  auto out16 = std::make_shared<cv::Mat>(img16->size(), CV_16S);
  bench::row("dct", "8x8 blocks 16s 1920x1080", 0,
             [=] {
               blocks(img->src, img->dst, [&](int y, int x) {
                 cv::Mat d = img->dst(cv::Rect(x, y, 8, 8));
                 cv::dct(img->src(cv::Rect(x, y, 8, 8)), d);
               });
             },
             [=] {
               alignas(32) Lum16s out[64];
               blocks(img->src, img->dst, [&](int y, int x) {
                 lumiDCT8x8Fwd_16s_C1R(img16->ptr<Lum16s>(y) + x, static_cast<int>(img16->step), out);
                 std::memcpy(out16->ptr<Lum16s>(y) + x, out, 16);
               });
             });
}

LUMI_BENCH_ROWS(waveletRows) {
  auto img = bench::images(CV_32FC1);
  const float r = 0.70710678f;
  const float lo[2] = {r, r}, hi[2] = {r, -r};
  struct Wt {
    LumiWTFwdSpec* spec = nullptr;
    std::vector<Lum8u> buf;
    cv::Mat a, x, y, xy;
  };
  auto w = std::make_shared<Wt>();
  lumiWTFwdInitAlloc_32f_C1R(&w->spec, lo, 2, 1, hi, 2, 1);
  int n = 0;
  lumiWTFwdGetBufSize_C1R(w->spec, &n);
  w->buf.resize(n);
  const cv::Size half(bench::kWidth / 2, bench::kHeight / 2);
  for (cv::Mat* m : {&w->a, &w->x, &w->y, &w->xy}) m->create(half, CV_32F);
  auto small = std::make_shared<cv::Mat>();
  bench::row("wavelet", "haar fwd 32f 1920x1080 (vs resize area)", 0,
             [=] { cv::resize(img->src, *small, half, 0, 0, cv::INTER_AREA); },
             [=] {
               // the anchor 1 Haar pair reads no pixel outside the image
               auto st = [](const cv::Mat& m) { return static_cast<int>(m.step); };
               lumiWTFwd_32f_C1R(img->s<Lum32f>(), img->sstep(), w->a.ptr<Lum32f>(), st(w->a),
                                 w->x.ptr<Lum32f>(), st(w->x), w->y.ptr<Lum32f>(), st(w->y),
                                 w->xy.ptr<Lum32f>(), st(w->xy), LumiSize{half.width, half.height},
                                 w->spec, w->buf.data());
             });
}
