// 2-D FFT/DFT against cv::dft: real forward to the packed (CCS) spectrum and complex forward,
// at 512x512, 1024x1024 (FFT family) and 600x400, 1000x1000 (DFT family), out of place, with
// a work buffer allocated once. The "fft2d-fftw" family times FFTW's 2-D r2c and c2c
// (FFTW_MEASURE) in the OpenCV column instead.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <opencv2/core.hpp>
#include <string>

#include "bench.h"
#include "lumi/fft.h"

#ifdef LUMI_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

bool pow2(int n) { return (n & (n - 1)) == 0; }
int log2i(int n) {
  int k = 0;
  while ((1 << k) < n) ++k;
  return k;
}

// One of our transforms, FFT or DFT by size, with its record and work buffer.
struct Plan {
  LumiFFTSpec* fft = nullptr;
  LumiDFTSpec* dft = nullptr;
  bool complex;
  Lum8u* buf = nullptr;
  Plan(int w, int h, bool cplx) : complex(cplx) {
    int n = 0;
    if (pow2(w) && pow2(h)) {
      if (cplx)
        lumiFFTInitAlloc_C_32fc(&fft, log2i(w), log2i(h), lumFftNoDivByAny, 0),
            lumiFFTGetBufSize_C_32fc(fft, &n);
      else
        lumiFFTInitAlloc_R_32f(&fft, log2i(w), log2i(h), lumFftNoDivByAny, 0),
            lumiFFTGetBufSize_R_32f(fft, &n);
    } else {
      if (cplx)
        lumiDFTInitAlloc_C_32fc(&dft, {w, h}, lumFftNoDivByAny, 0),
            lumiDFTGetBufSize_C_32fc(dft, &n);
      else
        lumiDFTInitAlloc_R_32f(&dft, {w, h}, lumFftNoDivByAny, 0), lumiDFTGetBufSize_R_32f(dft, &n);
    }
    buf = lumsMalloc_8u(n);
  }
  ~Plan() {
    lumsFree(buf);
    if (fft) complex ? lumiFFTFree_C_32fc(fft) : lumiFFTFree_R_32f(fft);
    if (dft) complex ? lumiDFTFree_C_32fc(dft) : lumiDFTFree_R_32f(dft);
  }
  void run(const cv::Mat& src, cv::Mat& dst) const {
    const int ss = static_cast<int>(src.step), ds = static_cast<int>(dst.step);
    if (complex) {
      const Lum32fc* s = src.ptr<Lum32fc>();
      Lum32fc* d = dst.ptr<Lum32fc>();
      if (fft) lumiFFTFwd_CToC_32fc_C1R(s, ss, d, ds, fft, buf);
      if (dft) lumiDFTFwd_CToC_32fc_C1R(s, ss, d, ds, dft, buf);
    } else {
      if (fft) lumiFFTFwd_RToPack_32f_C1R(src.ptr<float>(), ss, dst.ptr<float>(), ds, fft, buf);
      if (dft) lumiDFTFwd_RToPack_32f_C1R(src.ptr<float>(), ss, dst.ptr<float>(), ds, dft, buf);
    }
  }
};

void sizeRows(int w, int h, bool cplx) {
  auto src = std::make_shared<cv::Mat>(h, w, cplx ? CV_32FC2 : CV_32F);
  auto dst = std::make_shared<cv::Mat>(h, w, cplx ? CV_32FC2 : CV_32F);
  cv::RNG rng(12345);
  rng.fill(*src, cv::RNG::UNIFORM, -1000, 1000);
  auto plan = std::make_shared<Plan>(w, h, cplx);
  const std::string name =
      std::string(cplx ? "C " : "R ") + std::to_string(w) + "x" + std::to_string(h);
  auto ours = [=] { plan->run(*src, *dst); };
  bench::row(
      "fft2d", name, 0, [=] { cv::dft(*src, *dst, 0); }, ours);
#ifdef LUMI_HAVE_FFTW
  // FFTW: r2c writes h x (w/2 + 1) complex points; c2c the full image. Planned on copies.
  const size_t outPoints = cplx ? static_cast<size_t>(w) * h : static_cast<size_t>(w / 2 + 1) * h;
  struct Arrays {
    float* in;
    fftwf_complex* out;
    fftwf_plan plan;
    ~Arrays() {
      fftwf_destroy_plan(plan);
      fftwf_free(in);
      fftwf_free(out);
    }
  };
  auto a = std::make_shared<Arrays>();
  a->in = fftwf_alloc_real(static_cast<size_t>(w) * h * (cplx ? 2 : 1));
  a->out = fftwf_alloc_complex(outPoints);
  a->plan = cplx ? fftwf_plan_dft_2d(h, w, reinterpret_cast<fftwf_complex*>(a->in), a->out,
                                     FFTW_FORWARD, FFTW_MEASURE)
                 : fftwf_plan_dft_r2c_2d(h, w, a->in, a->out, FFTW_MEASURE);
  std::memcpy(a->in, src->ptr<float>(), sizeof(float) * w * h * (cplx ? 2 : 1));
  bench::row(
      "fft2d-fftw", name, 0, [=] { fftwf_execute(a->plan); }, ours);
#endif
}

// Products of packed spectra: cv::mulSpectrums on the same packed (CCS) images.
void mulRows(int w, int h) {
  auto a = std::make_shared<cv::Mat>(h, w, CV_32F), b = std::make_shared<cv::Mat>(h, w, CV_32F);
  auto d = std::make_shared<cv::Mat>(h, w, CV_32F);
  cv::RNG rng(12345);
  rng.fill(*a, cv::RNG::UNIFORM, -1000, 1000);
  rng.fill(*b, cv::RNG::UNIFORM, -1000, 1000);
  const std::string size = std::to_string(w) + "x" + std::to_string(h);
  const int as = static_cast<int>(a->step), bs = static_cast<int>(b->step),
            ds = static_cast<int>(d->step);
  const LumiSize roi{w, h};
  bench::row(
      "fft2d", "mulpack " + size, 3.0 * w * h * 4, [=] { cv::mulSpectrums(*a, *b, *d, 0); },
      [=] {
        lumiMulPack_32f_C1R(a->ptr<float>(), as, b->ptr<float>(), bs, d->ptr<float>(), ds, roi);
      });
  bench::row(
      "fft2d", "mulpackconj " + size, 3.0 * w * h * 4,
      [=] { cv::mulSpectrums(*a, *b, *d, 0, true); },
      [=] {
        lumiMulPackConj_32f_C1R(a->ptr<float>(), as, b->ptr<float>(), bs, d->ptr<float>(), ds, roi);
      });
}

}  // namespace

LUMI_BENCH_ROWS(fft2dRows) {
  mulRows(512, 512);
  mulRows(1000, 1000);
  for (bool cplx : {false, true})
    for (auto s :
         {cv::Size(512, 512), cv::Size(1024, 1024), cv::Size(600, 400), cv::Size(1000, 1000)})
      sizeRows(s.width, s.height, cplx);
}
