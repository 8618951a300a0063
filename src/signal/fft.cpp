// 1-D FFT engines: plans (factorisation into passes of radix 8, 4, 2, 3, 5 and 7, twiddle tables,
// the chirp route for other lengths), the complex driver and the real transform through the
// half-length complex one.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/signal/fft.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "signal/fft-inl.h"

#if HWY_ONCE
#include "signal/fft.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include "core/frame.h"
#include "signal/fft_kernels.h"

namespace lumi {
namespace signal {
namespace {

constexpr size_t kAlign = 64;
inline size_t alignUp(size_t b) { return (b + kAlign - 1) & ~(kAlign - 1); }
inline Lum32fc* complexAt(void* work, size_t byteOffset) {
  return reinterpret_cast<Lum32fc*>(static_cast<char*>(work) + byteOffset);
}

// e^(-2 pi i num / den) in double, num reduced modulo den exactly.
inline void unitRoot(long long num, long long den, double* c, double* s) {
  const double a = 2.0 * M_PI * static_cast<double>(num % den) / static_cast<double>(den);
  *c = std::cos(a);
  *s = -std::sin(a);
}

// The radices of n: the power of two 2^e as 4s and 8s, then 3s, 5s and 7s; false when another
// prime factor is left. Two passes of radix 4 come first (the first one's results interleave
// in fours, and 16 points fill the widest vectors), then 8s, a last 4 or 2 for what is left:
// 2^9 as 4 4 8 4, 2^10 as 4 4 8 8, 2^12 as 4 4 8 8 4 (these beat all-8 and all-4 orders).
bool factorise(int n, int* radix, int* count) {
  int k = 0, e = 0;
  while (n % 2 == 0) ++e, n /= 2;
  for (int i = 0; i < 2 && e >= 2; ++i, e -= 2) radix[k++] = 4;
  if (e % 3 == 1 && e >= 4) {  // 8 ... 8 4 4 rather than 8 ... 8 2
    for (e -= 4; e >= 3; e -= 3) radix[k++] = 8;
    radix[k++] = 4;
    radix[k++] = 4;
  } else {
    for (; e >= 3; e -= 3) radix[k++] = 8;
    if (e) radix[k++] = e == 2 ? 4 : 2;
  }
  while (n % 3 == 0) radix[k++] = 3, n /= 3;
  while (n % 5 == 0) radix[k++] = 5, n /= 5;
  while (n % 7 == 0) radix[k++] = 7, n /= 7;
  *count = k;
  return n == 1;
}

void* alignedAlloc(size_t bytes) {
  void* p = nullptr;
  return posix_memalign(&p, kAlign, bytes ? bytes : kAlign) == 0 ? p : nullptr;
}

// Floats of the pass tables of a factored plan (fewer than 8 n in all).
size_t tableFloats(int n, const int* radix, int passes) {
  size_t f = 0;
  int ni = n;
  for (int i = 0; i < passes; ++i) {
    const size_t m = ni / radix[i];
    f += 4 * m * (radix[i] - 1);
    if (i == 0) f += 4 * m * (radix[i] - 1);
    ni /= radix[i];
  }
  return f;
}
// The passes of a factored plan, their tables written into `tables` (tableFloats(...) floats).
void fillPasses(FftPlan* pl, const int* radix, int passes, float* tables) {
  int ni = pl->n, s = 1;
  for (int i = 0; i < passes; ++i) {
    FftPass& ps = pl->pass[i];
    const int r = radix[i], m = ni / r;
    ps.radix = r;
    ps.m = m;
    ps.s = s;
    ps.tw = tables;
    for (int p = 0; p < m; ++p)
      for (int k = 1; k < r; ++k) {
        double c, sn;
        unitRoot(static_cast<long long>(p) * k, ni, &c, &sn);
        float* t = tables + 4 * (static_cast<size_t>(p) * (r - 1) + (k - 1));
        t[0] = t[1] = static_cast<float>(c);
        t[2] = static_cast<float>(-sn);
        t[3] = static_cast<float>(sn);
      }
    tables += 4 * static_cast<size_t>(m) * (r - 1);
    if (i == 0) {
      float* twr = tables;
      float* twi = tables + 2 * static_cast<size_t>(m) * (r - 1);
      ps.twr = twr;
      ps.twi = twi;
      for (int k = 1; k < r; ++k)
        for (int p = 0; p < m; ++p) {
          const float* t = ps.tw + 4 * (static_cast<size_t>(p) * (r - 1) + (k - 1));
          const size_t at = 2 * (static_cast<size_t>(k - 1) * m + p);
          twr[at] = twr[at + 1] = t[0];
          twi[at] = t[2];
          twi[at + 1] = t[3];
        }
      tables += 4 * static_cast<size_t>(m) * (r - 1);
    }
    ni = m;
    s *= r;
  }
  pl->passes = passes;
}

PassFn pickFftPass() {
  LUMI_SIMD_TABLE(PassFn, table, fftPass);
  return pick(table, &fftPassScalar);
}
TwistForwardFn pickFftTwistForward() {
  LUMI_SIMD_TABLE(TwistForwardFn, table, fftTwistForward);
  return pick(table, &fftTwistForwardScalar);
}
TwistInverseFn pickFftTwistInverse() {
  LUMI_SIMD_TABLE(TwistInverseFn, table, fftTwistInverse);
  return pick(table, &fftTwistInverseScalar);
}

// The passes from src to dst over `count` side-by-side vectors; t1 and t2 hold n * count
// points each (t2 is used only when src == dst and the pass count is odd).
void runPasses(const FftPlan& pl, const Lum32fc* src, Lum32fc* dst, Lum32fc* t1, Lum32fc* t2,
               int count, bool inverse) {
  const size_t points = static_cast<size_t>(pl.n) * count;
  const int np = pl.passes;
  if (np == 0) {
    if (src != dst) std::memmove(dst, src, points * sizeof(Lum32fc));
    return;
  }
  const PassFn f = pickFftPass();
  const Lum32fc* x = src;
  Lum32fc* y = nullptr;
  for (int i = 0; i < np; ++i) {
    y = ((np - 1 - i) % 2 == 0) ? dst : t1;
    if (i == 0 && y == src) y = t2;
    f(pl.pass[i], x, y, count, inverse);
    x = y;
  }
  if (y != dst) std::memcpy(dst, y, points * sizeof(Lum32fc));
}

}  // namespace

// ---- complex plans -------------------------------------------------------------------------

ComplexFft* ComplexFft::create(int n) {
  if (n < 1) return nullptr;
  int radix[64], np = 0;
  const bool direct = factorise(n, radix, &np);
  // The tables and work buffers take at most 64 bytes a point (direct) or 400 (chirp route,
  // with its inner transform of up to 4n points): lengths the address space cannot describe
  // (a 32-bit build) are refused here, so no size below overflows.
  const unsigned long long perPoint = direct ? 64 : 400;
  if (static_cast<unsigned long long>(n) * perPoint > static_cast<unsigned long long>(PTRDIFF_MAX))
    return nullptr;
  ComplexFft* self = new (std::nothrow) ComplexFft();
  if (!self) return nullptr;
  int m = 0;
  ComplexFft* inner = nullptr;
  size_t bytes = alignUp(sizeof(FftPlan));
  if (direct) {
    bytes += alignUp(tableFloats(n, radix, np) * sizeof(float));
  } else {
    if (n > (1 << 28)) {
      delete self;
      return nullptr;
    }
    m = 1;
    while (m < 2 * n - 1) m *= 2;
    inner = create(m);
    if (!inner) {
      delete self;
      return nullptr;
    }
    bytes += alignUp(static_cast<size_t>(n) * sizeof(Lum32fc)) +
             alignUp(static_cast<size_t>(m) * sizeof(Lum32fc));
  }
  void* block = alignedAlloc(bytes);
  if (!block) {
    destroy(inner);
    delete self;
    return nullptr;
  }
  FftPlan* pl = new (block) FftPlan();
  pl->block = block;
  pl->n = n;
  char* rest = static_cast<char*>(block) + alignUp(sizeof(FftPlan));
  if (direct) {
    fillPasses(pl, radix, np, reinterpret_cast<float*>(rest));
    pl->workBytes = 2 * alignUp(static_cast<size_t>(n) * sizeof(Lum32fc));
    self->plan_ = pl;
    return self;
  }
  pl->bluesteinM = m;
  pl->inner = inner;
  Lum32fc* chirp = reinterpret_cast<Lum32fc*>(rest);
  Lum32fc* spec = reinterpret_cast<Lum32fc*>(rest + alignUp(static_cast<size_t>(n) * sizeof(Lum32fc)));
  for (int k = 0; k < n; ++k) {
    double c, s;
    unitRoot(static_cast<long long>(k) * k, 2LL * n, &c, &s);  // e^(-pi i k^2 / n)
    chirp[k] = Lum32fc{static_cast<float>(c), static_cast<float>(s)};
  }
  std::memset(spec, 0, static_cast<size_t>(m) * sizeof(Lum32fc));
  for (int k = 0; k < n; ++k) {
    const Lum32fc b{chirp[k].re, -chirp[k].im};
    spec[k] = b;
    if (k) spec[m - k] = b;
  }
  pl->chirp = chirp;
  pl->spectrum = spec;
  pl->workBytes = alignUp(static_cast<size_t>(m) * sizeof(Lum32fc)) + inner->workBytes();
  // The convolution kernel's spectrum, divided by m once here.
  void* work = alignedAlloc(inner->workBytes());
  if (!work) {
    destroy(inner);
    std::free(block);
    delete self;
    return nullptr;
  }
  inner->forward(spec, work);
  std::free(work);
  const float inv = 1.0f / static_cast<float>(m);
  for (int k = 0; k < m; ++k) spec[k] = Lum32fc{spec[k].re * inv, spec[k].im * inv};
  self->plan_ = pl;
  return self;
}

void ComplexFft::destroy(ComplexFft* p) {
  if (!p) return;
  if (p->plan_) {
    destroy(p->plan_->inner);
    void* block = p->plan_->block;
    p->plan_->~FftPlan();
    std::free(block);
  }
  delete p;
}

int ComplexFft::size() const { return plan_->n; }
size_t ComplexFft::workBytes() const { return plan_->workBytes; }

void ComplexFft::transform(const Lum32fc* src, Lum32fc* dst, bool inverse, void* work) const {
  const FftPlan& pl = *plan_;
  const int n = pl.n;
  if (!pl.inner) {
    const size_t half = alignUp(static_cast<size_t>(n) * sizeof(Lum32fc));
    runPasses(pl, src, dst, complexAt(work, 0), complexAt(work, half), 1, inverse);
    return;
  }
  // Chirp route: X(k) = c(k) sum_j (x(j) c(j)) conj c(k - j), a cyclic convolution of m points;
  // the inverse is the conjugate of the forward transform of the conjugate.
  const int m = pl.bluesteinM;
  Lum32fc* a = complexAt(work, 0);
  void* innerWork = complexAt(work, alignUp(static_cast<size_t>(m) * sizeof(Lum32fc)));
  const float sign = inverse ? -1.0f : 1.0f;
  for (int k = 0; k < n; ++k) {
    const Lum32fc x{src[k].re, sign * src[k].im}, c = pl.chirp[k];
    a[k] = Lum32fc{x.re * c.re - x.im * c.im, x.re * c.im + x.im * c.re};
  }
  std::memset(a + n, 0, static_cast<size_t>(m - n) * sizeof(Lum32fc));
  pl.inner->forward(a, innerWork);
  for (int k = 0; k < m; ++k) {
    const Lum32fc x = a[k], b = pl.spectrum[k];
    a[k] = Lum32fc{x.re * b.re - x.im * b.im, x.re * b.im + x.im * b.re};
  }
  pl.inner->inverse(a, innerWork);
  for (int k = 0; k < n; ++k) {
    const Lum32fc x = a[k], c = pl.chirp[k];
    dst[k] = Lum32fc{x.re * c.re - x.im * c.im, sign * (x.re * c.im + x.im * c.re)};
  }
}

void ComplexFft::forward(Lum32fc* data, void* work) const { transform(data, data, false, work); }
void ComplexFft::inverse(Lum32fc* data, void* work) const { transform(data, data, true, work); }

size_t ComplexFft::batchWorkBytes(int count) const {
  if (plan_->inner) return alignUp(static_cast<size_t>(plan_->n) * sizeof(Lum32fc)) + workBytes();
  // 2 n count points: SIZE_MAX (no allocation succeeds) when that passes the address space
  const unsigned long long b = 2ULL * (static_cast<unsigned long long>(plan_->n) * count * 8 + kAlign);
  if (count < 1 || b > static_cast<unsigned long long>(PTRDIFF_MAX)) return SIZE_MAX;
  return 2 * alignUp(static_cast<size_t>(plan_->n) * count * sizeof(Lum32fc));
}

namespace {
void batch(const ComplexFft& f, const FftPlan& pl, Lum32fc* data, int count, bool inverse,
           void* work) {
  const size_t n = static_cast<size_t>(pl.n);
  if (!pl.inner) {
    const size_t half = alignUp(n * count * sizeof(Lum32fc));
    runPasses(pl, data, data, complexAt(work, 0), complexAt(work, half), count, inverse);
    return;
  }
  // The chirp route one vector at a time, gathered into the work buffer.
  Lum32fc* g = complexAt(work, 0);
  void* rest = complexAt(work, alignUp(n * sizeof(Lum32fc)));
  for (int c = 0; c < count; ++c) {
    for (size_t j = 0; j < n; ++j) g[j] = data[j * count + c];
    f.transform(g, g, inverse, rest);
    for (size_t j = 0; j < n; ++j) data[j * count + c] = g[j];
  }
}
}  // namespace

void ComplexFft::forwardBatch(Lum32fc* data, int count, void* work) const {
  batch(*this, *plan_, data, count, false, work);
}
void ComplexFft::inverseBatch(Lum32fc* data, int count, void* work) const {
  batch(*this, *plan_, data, count, true, work);
}

// ---- real plans ----------------------------------------------------------------------------

RealFft* RealFft::create(int n) {
  if (n < 1) return nullptr;
  RealFft* self = new (std::nothrow) RealFft();
  if (!self) return nullptr;
  self->n_ = n;
  const bool even = n % 2 == 0;
  const int len = even ? n / 2 : n;
  self->half_ = ComplexFft::create(len);
  if (!self->half_) {
    delete self;
    return nullptr;
  }
  if (even) {
    const int h = n / 2;
    self->twist_ = static_cast<float*>(alignedAlloc(sizeof(float) * 2 * (h / 2 + 1)));
    if (!self->twist_) {
      destroy(self);
      return nullptr;
    }
    for (int k = 0; k <= h / 2; ++k) {
      double c, s;
      unitRoot(k, n, &c, &s);
      self->twist_[2 * k] = static_cast<float>(c);
      self->twist_[2 * k + 1] = static_cast<float>(-s);
    }
  }
  self->work_ = alignUp(static_cast<size_t>(len) * sizeof(Lum32fc)) + self->half_->workBytes();
  return self;
}

void RealFft::destroy(RealFft* p) {
  if (!p) return;
  ComplexFft::destroy(p->half_);
  std::free(p->twist_);
  delete p;
}

int RealFft::size() const { return n_; }
size_t RealFft::workBytes() const { return work_; }

void RealFft::forward(const float* in, float* packed, void* work) const {
  const int n = n_;
  Lum32fc* z = complexAt(work, 0);
  void* rest = complexAt(work, alignUp(static_cast<size_t>(half_->size()) * sizeof(Lum32fc)));
  if (n % 2) {
    for (int j = 0; j < n; ++j) z[j] = Lum32fc{in[j], 0.0f};
    half_->transform(z, z, false, rest);
    packed[0] = z[0].re;
    for (int k = 1; 2 * k < n; ++k) {
      packed[2 * k - 1] = z[k].re;
      packed[2 * k] = z[k].im;
    }
    return;
  }
  const int h = n / 2;
  half_->transform(reinterpret_cast<const Lum32fc*>(in), z, false, rest);
  const float r0 = z[0].re, i0 = z[0].im;
  if (h / 2 >= 1) pickFftTwistForward()(z, packed, twist_, h, 1, h / 2);
  packed[0] = r0 + i0;
  packed[n - 1] = r0 - i0;
}

void RealFft::inverse(const float* packed, float* out, void* work) const {
  const int n = n_;
  Lum32fc* z = complexAt(work, 0);
  void* rest = complexAt(work, alignUp(static_cast<size_t>(half_->size()) * sizeof(Lum32fc)));
  if (n % 2) {
    z[0] = Lum32fc{packed[0], 0.0f};
    for (int k = 1; 2 * k < n; ++k) {
      z[k] = Lum32fc{packed[2 * k - 1], packed[2 * k]};
      z[n - k] = Lum32fc{packed[2 * k - 1], -packed[2 * k]};
    }
    half_->transform(z, z, true, rest);
    for (int j = 0; j < n; ++j) out[j] = z[j].re;
    return;
  }
  const int h = n / 2;
  const float a0 = packed[0], ah = packed[n - 1];
  if (h / 2 >= 1) pickFftTwistInverse()(packed, z, twist_, h, 1, h / 2);
  z[0] = Lum32fc{a0 + ah, a0 - ah};
  half_->transform(z, reinterpret_cast<Lum32fc*>(out), true, rest);
}

}  // namespace signal
}  // namespace lumi
#endif  // HWY_ONCE
