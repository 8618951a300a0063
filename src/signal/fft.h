// One-dimensional FFT engines of any length, the building blocks of the 2-D transforms: an
// in-place complex transform of Lum32fc vectors and a real transform to and from the packed
// half spectrum. Internal to the library (nothing here is exported).
//
// Both directions are unscaled: forward X(k) = sum x(n) e^(-2 pi i kn/N), inverse with e^(+...),
// so forward then inverse gives N times the input; callers apply their own normalisation.
//
// Plans: built once, read-only afterwards (one plan serves several threads, each with its own
// work buffer). create() returns nullptr when memory runs out; no hidden allocation after that.
// Work buffers are at least workBytes() bytes and 64-byte aligned.
//
// Added members (beyond create/destroy/size/workBytes/forward/inverse):
// - ComplexFft::forwardBatch / inverseBatch / batchWorkBytes: `count` vectors transformed at
//   once, stored side by side (element j of vector c at data[j * count + c]), as a 2-D column
//   pass gathers them; four or eight columns make every pass run on full vectors.
// - ComplexFft::transform: either direction from one buffer into another (out of place), with
//   the work buffer of workBytes().
#pragma once

#include <cstddef>

#include "lumi.h"

namespace lumi {
namespace signal {

struct FftPlan;  // the factorisation, twiddles and chirps (fft.cpp)

class ComplexFft {  // any length n >= 1
 public:
  static ComplexFft* create(int n);
  static void destroy(ComplexFft* p);
  int size() const;
  size_t workBytes() const;  // work buffer bytes; pass a 64-byte aligned pointer
  void forward(Lum32fc* data, void* work) const;  // in place, X(k) = sum x(n) e^(-2 pi i kn/N), unscaled
  void inverse(Lum32fc* data, void* work) const;  // in place, e^(+...), unscaled

  // `count` >= 1 vectors side by side: element j of vector c at data[j * count + c].
  size_t batchWorkBytes(int count) const;
  void forwardBatch(Lum32fc* data, int count, void* work) const;
  void inverseBatch(Lum32fc* data, int count, void* work) const;

  // From src to dst (src == dst allowed; src is only read): the engine under the members above.
  void transform(const Lum32fc* src, Lum32fc* dst, bool inverse, void* work) const;

 private:
  ComplexFft() = default;
  ~ComplexFft() = default;
  FftPlan* plan_ = nullptr;
};

class RealFft {  // any length n >= 1, the packed form:
 public:         // [A0, Re A1, Im A1, ..., (even n) A(n/2)]
  static RealFft* create(int n);
  static void destroy(RealFft* p);
  int size() const;
  size_t workBytes() const;
  void forward(const float* in, float* packed, void* work) const;  // in == packed allowed
  void inverse(const float* packed, float* out, void* work) const;  // unscaled; packed == out allowed

 private:
  RealFft() = default;
  ~RealFft() = default;
  int n_ = 0;
  ComplexFft* half_ = nullptr;   // even n: the complex transform of n/2 points; odd n: of n
  float* twist_ = nullptr;       // even n: (cos, sin) of 2 pi k / n for k = 0 .. n/4
  size_t work_ = 0;
};

}  // namespace signal
}  // namespace lumi
