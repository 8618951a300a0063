// The 1-D FFT engines against a direct DFT in double precision: complex and real (packed)
// transforms in both directions, side-by-side batches, in-place calls and work-buffer bounds.
#include <cmath>
#include <complex>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "core/frame.h"
#include "lumitest.h"
#include "signal/fft.h"

namespace {

using lumi::signal::ComplexFft;
using lumi::signal::RealFft;
using cd = std::complex<double>;

// Every radix as a first pass (2: 30, 3: 75, 4, 5: 125, 7: 49) and later (8: 128, 1024),
// strides that leave a part of a vector (49, 75), prime lengths above 7 (17, 97: the chirp
// route), 1000 and 600 as the 2-D DFTs see them.
const int kLengths[] = {1,  2,  3,  5,   7,   8,   12,  16,  17,   30,  49,
                        56, 64, 75, 97, 125, 128, 600, 1000, 1024, 4096};

// Direct DFT, sign -1 forward, +1 inverse, unscaled.
std::vector<cd> dft(const std::vector<cd>& x, int sign) {
  const size_t n = x.size();
  std::vector<cd> root(n), out(n);
  for (size_t k = 0; k < n; ++k)
    root[k] = std::polar(1.0, sign * 2.0 * M_PI * static_cast<double>(k) / static_cast<double>(n));
  for (size_t k = 0; k < n; ++k) {
    cd s = 0;
    for (size_t j = 0; j < n; ++j) s += x[j] * root[(j * k) % n];
    out[k] = s;
  }
  return out;
}

// Float error allowed, relative to the input's energy: 1e-6 per level of log2 n (about 30
// times what the engines reach).
double tolerance(int n) { return 1e-6 * std::max(1.0, std::log2(static_cast<double>(n))); }

std::vector<cd> randomSignal(int n, uint32_t salt) {
  auto rng = lumitest::makeRng(salt);
  std::uniform_real_distribution<float> u(-1.0f, 1.0f);  // values exact in float
  std::vector<cd> x(n);
  for (auto& v : x) {
    const float re = u(rng), im = u(rng);
    v = cd(re, im);
  }
  return x;
}

double energy(const std::vector<cd>& x) {
  double e = 0;
  for (const auto& v : x) e += std::norm(v);
  return std::sqrt(std::max(e, 1e-30));
}

// A work buffer with canary bytes behind the bytes the plan asked for.
struct Work {
  static constexpr size_t kTail = 256;
  std::vector<unsigned char> raw;
  unsigned char* p;
  size_t bytes;
  explicit Work(size_t b) : raw(b + kTail + 64), bytes(b) {
    p = raw.data() + (64 - reinterpret_cast<uintptr_t>(raw.data()) % 64) % 64;
    std::memset(p + bytes, 0xA5, kTail);
  }
  bool tailIntact() const {
    for (size_t i = 0; i < kTail; ++i)
      if (p[bytes + i] != 0xA5) return false;
    return true;
  }
};

TEST(Fft1d, ComplexMatchesDirectDft) {
  for (int n : kLengths) {
    ComplexFft* f = ComplexFft::create(n);
    ASSERT_NE(f, nullptr) << n;
    ASSERT_EQ(f->size(), n);
    Work work(f->workBytes());
    const auto x = randomSignal(n, n);
    for (int sign : {-1, 1}) {
      const auto ref = dft(x, sign);
      std::vector<Lum32fc> data(n + 1);
      for (int j = 0; j < n; ++j) data[j] = Lum32fc{float(x[j].real()), float(x[j].imag())};
      data[n] = Lum32fc{123.0f, 456.0f};  // must stay
      // Out of place first: the same values, the source untouched.
      const std::vector<Lum32fc> src(data);
      std::vector<Lum32fc> out(n);
      f->transform(src.data(), out.data(), sign > 0, work.p);
      if (sign < 0) f->forward(data.data(), work.p);
      else f->inverse(data.data(), work.p);
      for (int k = 0; k < n; ++k) {
        ASSERT_EQ(out[k].re, data[k].re) << "out of place, n " << n << " at " << k;
        ASSERT_EQ(out[k].im, data[k].im) << "out of place, n " << n << " at " << k;
        ASSERT_EQ(src[k].re, float(x[k].real()));
      }
      double err = 0;
      for (int k = 0; k < n; ++k) err = std::max(err, std::abs(cd(data[k].re, data[k].im) - ref[k]));
      EXPECT_LE(err / energy(x), tolerance(n)) << "n " << n << " sign " << sign;
      EXPECT_EQ(data[n].re, 123.0f);
      EXPECT_EQ(data[n].im, 456.0f);
      EXPECT_TRUE(work.tailIntact()) << n;
    }
    ComplexFft::destroy(f);
  }
}

TEST(Fft1d, RealPackedMatchesDirectDft) {
  for (int n : kLengths) {
    RealFft* f = RealFft::create(n);
    ASSERT_NE(f, nullptr) << n;
    ASSERT_EQ(f->size(), n);
    Work work(f->workBytes());
    auto x = randomSignal(n, 7 * n);
    for (auto& v : x) v = v.real();
    const auto spec = dft(x, -1);
    // The packed form of the reference spectrum.
    std::vector<float> refPacked(n);
    refPacked[0] = static_cast<float>(spec[0].real());
    for (int k = 1; 2 * k < n; ++k) {
      refPacked[2 * k - 1] = static_cast<float>(spec[k].real());
      refPacked[2 * k] = static_cast<float>(spec[k].imag());
    }
    if (n % 2 == 0) refPacked[n - 1] = static_cast<float>(spec[n / 2].real());
    std::vector<float> in(n), packed(n + 1, 99.0f), inPlace(n);
    for (int j = 0; j < n; ++j) in[j] = inPlace[j] = static_cast<float>(x[j].real());
    f->forward(in.data(), packed.data(), work.p);
    f->forward(inPlace.data(), inPlace.data(), work.p);
    double err = 0;
    for (int k = 0; k < n; ++k) {
      err = std::max(err, std::abs(packed[k] - double(refPacked[k])));
      EXPECT_EQ(packed[k], inPlace[k]) << "in-place forward, n " << n << " at " << k;
    }
    EXPECT_LE(err / energy(x), tolerance(n)) << "forward n " << n;
    EXPECT_EQ(packed[n], 99.0f);
    // Inverse of the reference spectrum: n times the signal.
    std::vector<float> out(n + 1, 99.0f);
    f->inverse(refPacked.data(), out.data(), work.p);
    f->inverse(refPacked.data(), refPacked.data(), work.p);
    err = 0;
    for (int j = 0; j < n; ++j) {
      err = std::max(err, std::abs(out[j] - n * x[j].real()));
      EXPECT_EQ(out[j], refPacked[j]) << "in-place inverse, n " << n << " at " << j;
    }
    EXPECT_LE(err / (energy(x) * n), tolerance(n)) << "inverse n " << n;
    EXPECT_EQ(out[n], 99.0f);
    EXPECT_TRUE(work.tailIntact()) << n;
    RealFft::destroy(f);
  }
}

// Side-by-side vectors give what each vector gives alone.
TEST(Fft1d, BatchMatchesSingleVectors) {
  for (int n : {5, 16, 60, 97, 256, 1000}) {
    ComplexFft* f = ComplexFft::create(n);
    ASSERT_NE(f, nullptr);
    for (int count : {1, 3, 4, 8}) {
      Work work(f->batchWorkBytes(count)), single(f->workBytes());
      for (bool inverse : {false, true}) {
        std::vector<Lum32fc> data(static_cast<size_t>(n) * count);
        std::vector<std::vector<Lum32fc>> cols(count);
        for (int c = 0; c < count; ++c) {
          const auto x = randomSignal(n, 100 * c + n);
          for (int j = 0; j < n; ++j) {
            data[static_cast<size_t>(j) * count + c] = Lum32fc{float(x[j].real()), float(x[j].imag())};
            cols[c].push_back(data[static_cast<size_t>(j) * count + c]);
          }
          if (inverse) f->inverse(cols[c].data(), single.p);
          else f->forward(cols[c].data(), single.p);
        }
        if (inverse) f->inverseBatch(data.data(), count, work.p);
        else f->forwardBatch(data.data(), count, work.p);
        double err = 0, mag = 1e-30;
        for (int c = 0; c < count; ++c)
          for (int j = 0; j < n; ++j) {
            const Lum32fc a = data[static_cast<size_t>(j) * count + c], b = cols[c][j];
            err = std::max(err, std::abs(cd(a.re - b.re, a.im - b.im)));
            mag = std::max(mag, std::abs(cd(b.re, b.im)));
          }
        EXPECT_LE(err / mag, 1e-5) << "n " << n << " count " << count << " inverse " << inverse;
        EXPECT_TRUE(work.tailIntact());
      }
    }
    ComplexFft::destroy(f);
  }
}

// Forward then inverse gives n times the input, for every length up to 200: every
// factorisation the planner makes, and the chirp route for each prime above 7.
TEST(Fft1d, RoundTripEveryLength) {
  for (int n = 1; n <= 200; ++n) {
    ComplexFft* c = ComplexFft::create(n);
    RealFft* r = RealFft::create(n);
    ASSERT_TRUE(c && r) << n;
    Work work(std::max(c->workBytes(), r->workBytes()));
    const auto x = randomSignal(n, 3 * n);
    std::vector<Lum32fc> data(n);
    std::vector<float> real(n);
    for (int j = 0; j < n; ++j) {
      data[j] = Lum32fc{float(x[j].real()), float(x[j].imag())};
      real[j] = float(x[j].real());
    }
    c->forward(data.data(), work.p);
    c->inverse(data.data(), work.p);
    r->forward(real.data(), real.data(), work.p);
    r->inverse(real.data(), real.data(), work.p);
    double err = 0, errReal = 0;
    for (int j = 0; j < n; ++j) {
      err = std::max(err, std::abs(cd(data[j].re, data[j].im) / double(n) - x[j]));
      errReal = std::max(errReal, std::abs(real[j] / double(n) - x[j].real()));
    }
    EXPECT_LE(err / energy(x), tolerance(n)) << "complex n " << n;
    EXPECT_LE(errReal / energy(x), tolerance(n)) << "real n " << n;
    EXPECT_TRUE(work.tailIntact()) << n;
    ComplexFft::destroy(c);
    RealFft::destroy(r);
  }
}

// The vector kernels of every target the processor has against the scalar passes, in one
// process, on both directions of a complex and a real transform.
TEST(Fft1d, EveryTargetAgreesWithScalarPasses) {
  const int top = lumi::setSimdLevel(lumi::kAVX3);
  const int max = lumi::simdLevel();
  for (int n : {60, 512, 1000}) {
    ComplexFft* c = ComplexFft::create(n);
    RealFft* r = RealFft::create(n);
    Work work(std::max(c->workBytes(), r->workBytes()));
    const auto x = randomSignal(n, 11 * n);
    std::vector<std::vector<float>> results;
    for (int level = lumi::kScalar; level <= max; ++level) {
      lumi::setSimdLevel(level);
      std::vector<Lum32fc> data(n);
      std::vector<float> packed(n), back(n), in(n);
      for (int j = 0; j < n; ++j) {
        data[j] = Lum32fc{float(x[j].real()), float(x[j].imag())};
        in[j] = float(x[j].imag());
      }
      c->forward(data.data(), work.p);
      r->forward(in.data(), packed.data(), work.p);
      r->inverse(packed.data(), back.data(), work.p);
      std::vector<float> all(reinterpret_cast<float*>(data.data()),
                             reinterpret_cast<float*>(data.data()) + 2 * n);
      c->inverse(data.data(), work.p);
      for (int j = 0; j < n; ++j) all.insert(all.end(), {data[j].re, data[j].im, packed[j], back[j]});
      results.push_back(all);
    }
    for (size_t level = 1; level < results.size(); ++level) {
      double err = 0, mag = 1e-30;
      for (size_t i = 0; i < results[0].size(); ++i) {
        err = std::max(err, double(std::abs(results[level][i] - results[0][i])));
        mag = std::max(mag, double(std::abs(results[0][i])));
      }
      EXPECT_LE(err / mag, 1e-5) << "n " << n << " level " << level;
    }
    ComplexFft::destroy(c);
    RealFft::destroy(r);
  }
  lumi::setSimdLevel(top);
}

// One plan, several threads, each with its own buffer.
TEST(Fft1d, SharedPlanAcrossThreads) {
  const int n = 1000;
  RealFft* f = RealFft::create(n);
  ASSERT_NE(f, nullptr);
  std::vector<float> x(n);
  for (int j = 0; j < n; ++j) x[j] = static_cast<float>(std::sin(0.1 * j) + 0.01 * (j % 7));
  std::vector<float> ref(n);
  {
    Work w(f->workBytes());
    f->forward(x.data(), ref.data(), w.p);
  }
  int bad = 0;
#pragma omp parallel for num_threads(4) reduction(+ : bad)
  for (int t = 0; t < 16; ++t) {
    Work w(f->workBytes());
    std::vector<float> out(n);
    f->forward(x.data(), out.data(), w.p);
    bad += out != ref;
  }
  EXPECT_EQ(bad, 0);
  RealFft::destroy(f);
}

TEST(Fft1d, CreateRejectsEmptyLengths) {
  EXPECT_EQ(ComplexFft::create(0), nullptr);
  EXPECT_EQ(RealFft::create(-3), nullptr);
}

}  // namespace
