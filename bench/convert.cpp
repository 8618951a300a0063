// Type conversion and range scaling against cv::Mat::convertTo.
#include <memory>

#include "bench.h"

namespace {

struct Pair {
  cv::Mat src, dst;
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
  double bytes() const {
    return static_cast<double>(src.total() * src.elemSize() + dst.total() * dst.elemSize());
  }
  template <class T> const T* s() const { return src.ptr<T>(); }
  template <class T> T* d() { return dst.ptr<T>(); }
};

// A random source of srcType (uniform over lo..hi when given) and a zeroed destination.
std::shared_ptr<Pair> pair(int srcType, int dstType, double lo = 0, double hi = 0) {
  auto p = std::make_shared<Pair>();
  p->src = bench::images(srcType)->src;
  if (hi > lo) cv::randu(p->src, lo, hi);
  p->dst.create(p->src.rows, p->src.cols, dstType);
  p->dst.setTo(0);
  return p;
}

}  // namespace

LUMI_BENCH_ROWS(convertRows) {
  auto a = pair(CV_8UC1, CV_16SC1);
  bench::row("convert", "8u16s C1", a->bytes(), [=] { a->src.convertTo(a->dst, CV_16S); },
             [=] { lumiConvert_8u16s_C1R(a->s<Lum8u>(), a->sstep(), a->d<Lum16s>(), a->dstep(), a->roi()); });
  auto b = pair(CV_8UC1, CV_32FC1);
  bench::row("convert", "8u32f C1", b->bytes(), [=] { b->src.convertTo(b->dst, CV_32F); },
             [=] { lumiConvert_8u32f_C1R(b->s<Lum8u>(), b->sstep(), b->d<Lum32f>(), b->dstep(), b->roi()); });
  auto c = pair(CV_16SC1, CV_8UC1, -100, 400);
  bench::row("convert", "16s8u C1", c->bytes(), [=] { c->src.convertTo(c->dst, CV_8U); },
             [=] { lumiConvert_16s8u_C1R(c->s<Lum16s>(), c->sstep(), c->d<Lum8u>(), c->dstep(), c->roi()); });
  auto d = pair(CV_32FC1, CV_8UC1, -20, 280);
  bench::row("convert", "32f8u C1 near", d->bytes(), [=] { d->src.convertTo(d->dst, CV_8U); },
             [=] {
               lumiConvert_32f8u_C1R(d->s<Lum32f>(), d->sstep(), d->d<Lum8u>(), d->dstep(), d->roi(), lumRndNear);
             });
  auto e = pair(CV_32FC1, CV_16SC1, -40000, 40000);
  bench::row("convert", "32f16s C1 near", e->bytes(), [=] { e->src.convertTo(e->dst, CV_16S); },
             [=] {
               lumiConvert_32f16s_C1R(e->s<Lum32f>(), e->sstep(), e->d<Lum16s>(), e->dstep(), e->roi(), lumRndNear);
             });
  auto f = pair(CV_8UC1, CV_32FC1);
  const float vMin = -1.0f, vMax = 1.0f;
  bench::row("convert", "scale 8u32f C1", f->bytes(),
             [=] { f->src.convertTo(f->dst, CV_32F, (vMax - vMin) / 255.0, vMin); },
             [=] {
               lumiScale_8u32f_C1R(f->s<Lum8u>(), f->sstep(), f->d<Lum32f>(), f->dstep(), f->roi(), vMin, vMax);
             });
}
