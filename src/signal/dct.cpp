// 1-D DCT engine: the orthonormal DCT-II and its inverse through one real FFT of the same
// length (see dct.h for the reordering).
#include "signal/dct.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace lumi {
namespace signal {
namespace {

constexpr size_t kAlign = 64;
inline size_t alignUp(size_t b) { return (b + kAlign - 1) & ~(kAlign - 1); }
inline char* alignPtr(void* p) {
  return reinterpret_cast<char*>((reinterpret_cast<std::uintptr_t>(p) + kAlign - 1) &
                                 ~std::uintptr_t{kAlign - 1});
}

// Length 1: both transforms copy their one value.
inline bool copiedOne(int n, const float* in, float* out) {
  if (n != 1) return false;
  out[0] = in[0];
  return true;
}

// The work buffer of a transform of length n: the reordered vector (n floats, aligned), then
// the FFT's own work.
inline float* splitWork(void* work, int n, void** fftWork) {
  char* w = alignPtr(work);
  *fftWork = w + alignUp(sizeof(float) * n);
  return reinterpret_cast<float*>(w);
}

}  // namespace

Dct* Dct::create(int n) {
  if (n < 1) return nullptr;
  Dct* self = new (std::nothrow) Dct();
  if (!self) return nullptr;
  self->n_ = n;
  if (n == 1) return self;  // X(0) = x(0)
  self->fft_ = RealFft::create(n);
  const int half = n / 2;
  self->tw_ = static_cast<float*>(std::malloc(sizeof(float) * 4 * (half + 1)));
  if (!self->fft_ || !self->tw_) {
    destroy(self);
    return nullptr;
  }
  const double f = std::sqrt(2.0 / n), g = 1.0 / std::sqrt(2.0 * n);
  for (int k = 0; k <= half; ++k) {
    const double a = M_PI * k / (2.0 * n);
    const double c = std::cos(a), s = std::sin(a);
    float* t = self->tw_ + 4 * k;
    t[0] = static_cast<float>(f * c);
    t[1] = static_cast<float>(f * s);
    t[2] = static_cast<float>(g * c);
    t[3] = static_cast<float>(g * s);
  }
  // alignment slack, the reordered vector (n floats) and the FFT's own work
  self->work_ = kAlign + alignUp(sizeof(float) * n) + self->fft_->workBytes();
  return self;
}

void Dct::destroy(Dct* p) {
  if (!p) return;
  RealFft::destroy(p->fft_);
  std::free(p->tw_);
  delete p;
}

void Dct::forward(const float* in, float* out, void* work) const {
  const int n = n_;
  if (copiedOne(n, in, out)) return;
  void* fw;
  float* v = splitWork(work, n, &fw);
  for (int j = 0; 2 * j < n; ++j) v[j] = in[2 * j];
  for (int j = 0; 2 * j + 1 < n; ++j) v[n - 1 - j] = in[2 * j + 1];
  fft_->forward(v, v, fw);
  out[0] = v[0] * static_cast<float>(std::sqrt(1.0 / n));
  for (int k = 1; 2 * k < n; ++k) {
    const float a = v[2 * k - 1], b = v[2 * k];
    const float* t = tw_ + 4 * k;
    out[k] = a * t[0] + b * t[1];
    out[n - k] = a * t[1] - b * t[0];
  }
  if (n % 2 == 0) out[n / 2] = v[n - 1] * tw_[4 * (n / 2)];
}

void Dct::inverse(const float* in, float* out, void* work) const {
  const int n = n_;
  if (copiedOne(n, in, out)) return;
  void* fw;
  float* v = splitWork(work, n, &fw);
  v[0] = in[0] * static_cast<float>(1.0 / std::sqrt(static_cast<double>(n)));
  for (int k = 1; 2 * k < n; ++k) {
    const float a = in[k], b = in[n - k];
    const float* t = tw_ + 4 * k;
    v[2 * k - 1] = a * t[2] + b * t[3];
    v[2 * k] = a * t[3] - b * t[2];
  }
  if (n % 2 == 0) v[n - 1] = in[n / 2] * static_cast<float>(1.0 / std::sqrt(static_cast<double>(n)));
  fft_->inverse(v, v, fw);
  for (int j = 0; 2 * j < n; ++j) out[2 * j] = v[j];
  for (int j = 0; 2 * j + 1 < n; ++j) out[2 * j + 1] = v[n - 1 - j];
}

}  // namespace signal
}  // namespace lumi
