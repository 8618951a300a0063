// 1-D FFT engines against cv::dft on the same rows: each row of the table transforms a block
// of rows (about 512x512 points in all, as the row pass of a 2-D transform sees them), out of
// place, forward. The "fftw-anchor-1d" family times FFTW (planned with FFTW_MEASURE) in the
// OpenCV column instead.
//
// The engines are internal to the library: these rows are built only when the benchmark
// compiles the library's objects in (src/ on its include path).
#if __has_include("signal/fft.h")
#include <opencv2/core.hpp>

#include <cstdlib>
#include <memory>
#include <string>

#include "bench.h"
#include "signal/fft.h"

#ifdef LUMI_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

using lumi::signal::ComplexFft;
using lumi::signal::RealFft;

struct Aligned {
  void* p = nullptr;
  explicit Aligned(size_t bytes) {
    if (posix_memalign(&p, 64, bytes ? bytes : 64)) p = nullptr;
  }
  ~Aligned() { std::free(p); }
};

// rows x n source and destination (n complex or real points per row), random in [-1000, 1000].
struct Block {
  cv::Mat src, dst;
  Block(int rows, int n, int type) {
    src.create(rows, n, type);
    dst.create(rows, n, type);
    cv::RNG rng(12345);
    rng.fill(src, cv::RNG::UNIFORM, -1000, 1000);
    dst.setTo(0);
  }
};

void complexRows(int n) {
  const int rows = (512 * 512) / n;
  const std::string name = "C " + std::to_string(n) + " x" + std::to_string(rows);
  auto b = std::make_shared<Block>(rows, n, CV_32FC2);
  std::shared_ptr<ComplexFft> f(ComplexFft::create(n), &ComplexFft::destroy);
  auto work = std::make_shared<Aligned>(f->workBytes());
  auto ours = [=] {
    for (int r = 0; r < rows; ++r)
      f->transform(b->src.ptr<Lum32fc>(r), b->dst.ptr<Lum32fc>(r), false, work->p);
  };
  bench::row("fft1d", name, 0, [=] {
    for (int r = 0; r < rows; ++r) {
      cv::Mat out = b->dst.row(r);
      cv::dft(b->src.row(r), out, 0);
    }
  }, ours);
#ifdef LUMI_HAVE_FFTW
  auto* in = reinterpret_cast<fftwf_complex*>(b->src.ptr<float>(0));
  auto* out = reinterpret_cast<fftwf_complex*>(b->dst.ptr<float>(0));
  cv::Mat keep = b->src.clone();  // FFTW_MEASURE overwrites the arrays it plans with
  fftwf_plan plan = fftwf_plan_dft_1d(n, in, out, FFTW_FORWARD, FFTW_MEASURE);
  keep.copyTo(b->src);
  std::shared_ptr<void> guard(plan, [](void* p) { fftwf_destroy_plan(static_cast<fftwf_plan>(p)); });
  bench::row("fftw-anchor-1d", name, 0, [=] {
    for (int r = 0; r < rows; ++r)
      fftwf_execute_dft(static_cast<fftwf_plan>(guard.get()),
                        reinterpret_cast<fftwf_complex*>(b->src.ptr<float>(r)),
                        reinterpret_cast<fftwf_complex*>(b->dst.ptr<float>(r)));
  }, ours);
#endif
}

void realRows(int n) {
  const int rows = (512 * 512) / n;
  const std::string name = "R " + std::to_string(n) + " x" + std::to_string(rows);
  auto b = std::make_shared<Block>(rows, n, CV_32F);
  std::shared_ptr<RealFft> f(RealFft::create(n), &RealFft::destroy);
  auto work = std::make_shared<Aligned>(f->workBytes());
  auto ours = [=] {
    for (int r = 0; r < rows; ++r) f->forward(b->src.ptr<float>(r), b->dst.ptr<float>(r), work->p);
  };
  bench::row("fft1d", name, 0, [=] {
    for (int r = 0; r < rows; ++r) {
      cv::Mat out = b->dst.row(r);
      cv::dft(b->src.row(r), out, 0);
    }
  }, ours);
#ifdef LUMI_HAVE_FFTW
  // FFTW writes n/2 + 1 complex points per row (rows kept 16-byte aligned, as planned).
  const size_t stride = (n / 2 + 2) & ~1;
  auto spec = std::make_shared<Aligned>(sizeof(fftwf_complex) * stride * rows);
  auto specRow = [spec, stride](int r) {
    return static_cast<fftwf_complex*>(spec->p) + static_cast<size_t>(r) * stride;
  };
  cv::Mat keep = b->src.clone();
  fftwf_plan plan = fftwf_plan_dft_r2c_1d(n, b->src.ptr<float>(0), specRow(0), FFTW_MEASURE);
  keep.copyTo(b->src);
  std::shared_ptr<void> guard(plan, [](void* p) { fftwf_destroy_plan(static_cast<fftwf_plan>(p)); });
  bench::row("fftw-anchor-1d", name, 0, [=] {
    for (int r = 0; r < rows; ++r)
      fftwf_execute_dft_r2c(static_cast<fftwf_plan>(guard.get()), b->src.ptr<float>(r), specRow(r));
  }, ours);
#endif
}

}  // namespace

LUMI_BENCH_ROWS(fft1dRows) {
  for (int n : {512, 1024, 4096, 1000}) complexRows(n);
  for (int n : {512, 1024, 1000, 600}) realRows(n);
}
#endif
