// One-dimensional DCT engine: the orthonormal DCT-II of any length n >= 1 and its inverse on
// contiguous floats, the building block of the 2-D general DCT. Internal to the library.
//
// forward: X(k) = w(k) sum_j x(j) cos(pi (2j + 1) k / (2n)), w(0) = sqrt(1/n), w(k) = sqrt(2/n);
// inverse: its transpose, so inverse(forward(x)) = x within rounding.
//
// Through one real FFT of length n (reordering of Makhoul): v holds the even samples ascending
// then the odd ones descending, and X(k) is the real part of e^(-i pi k / (2n)) V(k), the
// imaginary part giving X(n - k). The inverse runs the same steps backwards.
//
// Plans are built once and read-only afterwards: one plan serves several threads, each with its
// own work buffer of workBytes() bytes (any 16-byte aligned pointer; the engine aligns inside).
// create() returns nullptr when memory runs out; nothing is allocated after that.
#pragma once

#include <cstddef>

#include "signal/fft.h"

namespace lumi {
namespace signal {

class Dct {
 public:
  static Dct* create(int n);
  static void destroy(Dct* p);
  int size() const { return n_; }
  size_t workBytes() const { return work_; }
  void forward(const float* in, float* out, void* work) const;  // in == out allowed
  void inverse(const float* in, float* out, void* work) const;  // in == out allowed

 private:
  Dct() = default;
  ~Dct() = default;
  int n_ = 0;
  RealFft* fft_ = nullptr;
  float* tw_ = nullptr;  // per k = 0 .. n/2: forward cos, sin x sqrt(2/n); inverse x 1/sqrt(2n)
  size_t work_ = 0;
};

}  // namespace signal
}  // namespace lumi
