// Side-by-side benchmark: each row times one of our functions and OpenCV's equivalent on the
// same data in the same run. A family adds its rows in its own bench/<family>.cpp:
//
//   LUMI_BENCH_ROWS(copyRows) {
//     auto img = bench::image8u(3);                 // 1920x1080, 3 channels, random
//     bench::row("copy", "8u C3", img->bytes() * 2,
//                [=] { img->src.copyTo(img->dst); },
//                [=] { lumiCopy_8u_C3R(img->s(), img->sstep(), img->d(), img->dstep(), img->roi()); });
//   }
//
// `bytes` is the memory the operation reads plus writes (0 if not a streaming operation); the
// table then shows how close both come to memcpy of the same bytes.
#pragma once

#include <opencv2/core.hpp>

#include <functional>
#include <memory>
#include <string>

#include "lumi.h"

namespace bench {

constexpr int kWidth = 1920, kHeight = 1080;

void row(const std::string& family, const std::string& name, double bytes,
         std::function<void()> opencv, std::function<void()> ours);

// A random source and a destination of one type, both kWidth x kHeight, as cv::Mat (whose
// data our functions use directly).
struct Images {
  cv::Mat src, src2, dst;
  LumiSize roi() const { return LumiSize{src.cols, src.rows}; }
  int sstep() const { return static_cast<int>(src.step); }
  int dstep() const { return static_cast<int>(dst.step); }
  double bytes() const { return static_cast<double>(src.total() * src.elemSize()); }
  template <class T = Lum8u> const T* s() const { return src.ptr<T>(); }
  template <class T = Lum8u> const T* s2() const { return src2.ptr<T>(); }
  template <class T = Lum8u> T* d() { return dst.ptr<T>(); }
};
// cvType e.g. CV_8UC3; values uniform over the type's range (floats in [-1000, 1000]).
std::shared_ptr<Images> images(int cvType, int width = kWidth, int height = kHeight);

struct Registrar {
  explicit Registrar(void (*f)()) { f(); }
};

}  // namespace bench

#define LUMI_BENCH_ROWS(fn)                           \
  static void fn();                                   \
  static ::bench::Registrar fn##_registrar_{&fn};     \
  static void fn()
