// 2-D FFT/DFT and the packed real spectrum against a double-precision reference DFT (rows and
// columns with e^-2pi i kn/N), on random data of many shapes: 1x1, one row, one column, every
// parity of W and H, primes, powers of two. OpenCV's packed forward (CCS) is a second oracle.
// Tolerances: a float transform element within kTol x sqrt(W H) x rms(input) x log2(2 W H) of
// the reference (x the flag's scale); MulPack within 1e-6 of the product's size (double products,
// one rounding); magnitudes 1e-6 relative, phases 1e-5 absolute; the integer FFT members within
// one unit of the rounded reference (the transform runs in single precision); everything
// integer that is formed exactly (MulPack 16s/32s, the complex/packed conversions) bit-exact.
#include <omp.h>

#include <complex>
#include <functional>

#include "lumi/fft.h"
#include "lumitest.h"
#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

using namespace lumitest;

namespace {

constexpr double kTol = 3e-7;
using Cd = std::complex<double>;
using Grid = std::vector<Cd>;  // row-major H x W

// The full spectrum of a W x H image, rows then columns, sign -1 forward and +1 inverse.
Grid refDft(const Grid& x, int W, int H, int sign) {
  Grid t(x.size()), out(x.size());
  const double pi = 3.14159265358979323846;
  auto roots = [&](int n) {
    Grid w(n);
    for (int k = 0; k < n; ++k) w[k] = std::polar(1.0, sign * 2 * pi * k / n);
    return w;
  };
  const Grid wx = roots(W), wy = roots(H);
  for (int r = 0; r < H; ++r)
    for (int k = 0; k < W; ++k) {
      Cd s = 0;
      for (int n = 0; n < W; ++n) s += x[r * W + n] * wx[static_cast<long long>(k) * n % W];
      t[r * W + k] = s;
    }
  for (int c = 0; c < W; ++c)
    for (int k = 0; k < H; ++k) {
      Cd s = 0;
      for (int n = 0; n < H; ++n) s += t[n * W + c] * wy[static_cast<long long>(k) * n % H];
      out[k * W + c] = s;
    }
  return out;
}

// The packed layout of a full spectrum, written from its definition.
std::vector<double> refPack(const Grid& A, int W, int H) {
  std::vector<double> P(A.size());
  auto column = [&](int col, int u) {
    P[col] = A[u].real();
    for (int i = 1; 2 * i < H; ++i)
      P[(2 * i - 1) * W + col] = A[i * W + u].real(), P[2 * i * W + col] = A[i * W + u].imag();
    if (H % 2 == 0 && H > 1) P[(H - 1) * W + col] = A[H / 2 * W + u].real();
  };
  column(0, 0);
  if (W % 2 == 0) column(W - 1, W / 2);
  for (int r = 0; r < H; ++r)
    for (int j = 1; 2 * j < W; ++j)
      P[r * W + 2 * j - 1] = A[r * W + j].real(), P[r * W + 2 * j] = A[r * W + j].imag();
  return P;
}

Grid randomReal(Rng& rng, int W, int H) {
  Grid g(static_cast<size_t>(W) * H);
  for (auto& v : g) v = std::uniform_real_distribution<double>(-1, 1)(rng);
  return g;
}
double tolerance(int W, int H, double rms, double scale) {
  const double n = double(W) * H;
  return kTol * std::sqrt(n) * rms * std::log2(2 * n) * scale + 1e-30;
}

const LumiSize kSizes[] = {{1, 1},   {2, 2}, {1, 7},  {6, 1},   {5, 4},  {4, 5},  {6, 6},
                           {13, 11}, {2, 9}, {16, 8}, {30, 17}, {67, 6}, {64, 64}};
const LumiSize kSmall[] = {{1, 1}, {2, 2}, {1, 7},   {6, 1}, {5, 4},
                           {4, 5}, {6, 6}, {13, 11}, {2, 9}, {16, 8}};
const LumiSize kPow2[] = {{1, 1},  {2, 2},   {1, 8},   {4, 1},    {8, 4},
                          {2, 16}, {32, 64}, {64, 16}, {128, 128}};

int log2i(int n) {
  int k = 0;
  while ((1 << k) < n) ++k;
  return k;
}

// One family's members behind one interface, so every test runs on both.
template <class Spec>
struct Fam {
  using Real = LumStatus (*)(const Lum32f*, int, Lum32f*, int, const Spec*, Lum8u*);
  using RealI = LumStatus (*)(Lum32f*, int, const Spec*, Lum8u*);
  using Cplx = LumStatus (*)(const Lum32fc*, int, Lum32fc*, int, const Spec*, Lum8u*);
  using CplxI = LumStatus (*)(Lum32fc*, int, const Spec*, Lum8u*);
  using Fwd8u = LumStatus (*)(const Lum8u*, int, Lum32s*, int, const Spec*, Lum8u*, int);
  using Inv8u = LumStatus (*)(const Lum32s*, int, Lum8u*, int, const Spec*, Lum8u*, int);
  const char* name;
  std::function<LumStatus(Spec**, LumiSize, int, int)> init;  // kind 0 real, 1 complex, 2 32s
  LumStatus (*free[3])(Spec*);
  LumStatus (*bufSize[3])(const Spec*, int*);
  Real fwd[4], inv[4];
  RealI fwdI[4], invI[4];
  Cplx cfwd, cinv;
  CplxI cfwdI, cinvI;
  Fwd8u fwd8u[4];
  Inv8u inv8u[4];
  const LumiSize* sizes;
  int nSizes;
};

#define LAYOUTS(P, S) \
  { P##_C1##S, P##_C3##S, P##_C4##S, P##_AC4##S }
#define FAMILY(F, SPEC, SIZES)                                                                    \
  Fam<SPEC> {                                                                                     \
#F, nullptr,                                                                                  \
        {lumi##F##Free_R_32f, lumi##F##Free_C_32fc, lumi##F##Free_R_32s },                        \
         {lumi##F##GetBufSize_R_32f, lumi##F##GetBufSize_C_32fc, lumi##F##GetBufSize_R_32s },     \
          LAYOUTS(lumi##F##Fwd_RToPack_32f, R), LAYOUTS(lumi##F##Inv_PackToR_32f, R),             \
          LAYOUTS(lumi##F##Fwd_RToPack_32f, IR), LAYOUTS(lumi##F##Inv_PackToR_32f, IR),           \
          lumi##F##Fwd_CToC_32fc_C1R, lumi##F##Inv_CToC_32fc_C1R, lumi##F##Fwd_CToC_32fc_C1IR,    \
          lumi##F##Inv_CToC_32fc_C1IR, LAYOUTS(lumi##F##Fwd_RToPack_8u32s, RSfs),                 \
          LAYOUTS(lumi##F##Inv_PackToR_32s8u, RSfs), SIZES, int(sizeof(SIZES) / sizeof(SIZES[0])) \
  }

Fam<LumiFFTSpec> fftFam() {
  auto f = FAMILY(FFT, LumiFFTSpec, kPow2);
  f.init = [](LumiFFTSpec** p, LumiSize s, int flag, int kind) {
    const int ox = log2i(s.width), oy = log2i(s.height);
    if (kind == 0) return lumiFFTInitAlloc_R_32f(p, ox, oy, flag, 0);
    if (kind == 1) return lumiFFTInitAlloc_C_32fc(p, ox, oy, flag, 0);
    return lumiFFTInitAlloc_R_32s(p, ox, oy, flag, 0);
  };
  return f;
}
Fam<LumiDFTSpec> dftFam() {
  auto f = FAMILY(DFT, LumiDFTSpec, kSizes);
  f.init = [](LumiDFTSpec** p, LumiSize s, int flag, int kind) {
    if (kind == 0) return lumiDFTInitAlloc_R_32f(p, s, flag, 0);
    if (kind == 1) return lumiDFTInitAlloc_C_32fc(p, s, flag, 0);
    return lumiDFTInitAlloc_R_32s(p, s, flag, 0);
  };
  return f;
}

// A spec with RAII release.
template <class Spec>
struct Owned {
  const Fam<Spec>& f;
  int kind;
  Spec* p = nullptr;
  Owned(const Fam<Spec>& fam, LumiSize s, int flag, int k) : f(fam), kind(k) {
    EXPECT_EQ(f.init(&p, s, flag, k), lumStatusOk);
  }
  ~Owned() {
    if (p) {
      EXPECT_EQ(f.free[kind](p), lumStatusOk);
    }
  }
  int bufSize() const {
    int n = -1;
    EXPECT_EQ(f.bufSize[kind](p, &n), lumStatusOk);
    return n;
  }
};

// A work buffer of exactly the reported size at an odd address, canaries around it.
struct GuardedBuffer {
  std::vector<Lum8u> buf;
  size_t off, size;
  explicit GuardedBuffer(int n, int misalign = 3) : buf(n + 128), off(64 + misalign), size(n) {
    for (size_t i = 0; i < buf.size(); ++i) buf[i] = static_cast<Lum8u>(0x3C ^ (i * 13));
  }
  Lum8u* ptr() { return buf.data() + off; }
  bool intact() const {
    for (size_t i = 0; i < buf.size(); ++i)
      if ((i < off || i >= off + size) && buf[i] != static_cast<Lum8u>(0x3C ^ (i * 13)))
        return false;
    return true;
  }
};

template <class Spec>
void realForwardAndBack(const Fam<Spec>& f) {
  Rng rng = makeRng(11);
  for (int si = 0; si < f.nSizes; ++si) {
    const LumiSize sz = f.sizes[si];
    const int W = sz.width, H = sz.height;
    SCOPED_TRACE(testing::Message() << f.name << " " << W << "x" << H);
    for (int flag : {lumFftNoDivByAny, lumFftDivFwdByN, lumFftDivInvByN, lumFftDivBySqrtN}) {
      Owned<Spec> spec(f, sz, flag, 0);
      const double n = double(W) * H;
      const double fs = flag == 1 ? 1 / n : flag == 4 ? 1 / std::sqrt(n) : 1;
      const double is = flag == 2 ? 1 / n : flag == 4 ? 1 / std::sqrt(n) : 1;
      for (int li = 0; li < 4; ++li) {
        if (flag != lumFftNoDivByAny && li != 0) continue;  // the flags on C1 only
        const Layout L = kLayouts[li];
        GuardedImage<Lum32f> src(W, H, L.ch, -1, -1, si), dst(W, H, L.ch, -1, -1, si + 50),
            back(W, H, L.ch);
        src.fillRandom(rng);
        std::vector<Grid> img(L.use);
        for (int c = 0; c < L.use; ++c) {
          img[c] = randomReal(rng, W, H);
          for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
              src.at(x, y, c) = static_cast<float>(img[c][y * W + x].real());
              img[c][y * W + x] = src.at(x, y, c);
            }
        }
        const std::vector<float> srcBefore = src.pixels(), dstBefore = dst.pixels();
        GuardedBuffer buf(spec.bufSize(), si % 16);
        const bool inPlace = (si + li) % 2 == 1;
        if (inPlace) {
          dst = src;
          ASSERT_EQ(f.fwdI[li](dst.ptr(), dst.step(), spec.p, buf.ptr()), lumStatusOk);
        } else {
          ASSERT_EQ(f.fwd[li](src.ptr(), src.step(), dst.ptr(), dst.step(), spec.p,
                              (si % 3) ? buf.ptr() : nullptr),
                    lumStatusOk);
          EXPECT_TRUE(sameElements(src.pixels(), srcBefore));
        }
        EXPECT_TRUE(buf.intact());
        EXPECT_TRUE(dst.guardsIntact());
        const double tol = tolerance(W, H, 0.6, fs);
        for (int c = 0; c < L.use; ++c) {
          const std::vector<double> want = refPack(refDft(img[c], W, H, -1), W, H);
          for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x)
              ASSERT_NEAR(dst.at(x, y, c), want[y * W + x] * fs, tol)
                  << L.name << (inPlace ? "I" : "") << " flag " << flag << " at " << x << "," << y
                  << "," << c;
        }
        for (int y = 0; y < H && L.use < L.ch; ++y) {
          ASSERT_EQ(dst.at(0, y, 3), inPlace ? srcBefore[y * W * 4 + 3] : dstBefore[y * W * 4 + 3]);
        }
        // back: flags 1, 2, 4 give the input, 8 gives W x H times it
        back.fill([&](int x, int y, int c) { return c < L.use ? 0.0f : dst.at(x, y, c); });
        const std::vector<float> packed = dst.pixels();
        if (inPlace) {
          ASSERT_EQ(f.invI[li](dst.ptr(), dst.step(), spec.p, buf.ptr()), lumStatusOk);
        } else {
          ASSERT_EQ(f.inv[li](dst.ptr(), dst.step(), back.ptr(), back.step(), spec.p, buf.ptr()),
                    lumStatusOk);
          EXPECT_TRUE(sameElements(dst.pixels(), packed));
          dst = back;
        }
        EXPECT_TRUE(buf.intact());
        for (int y = 0; y < H; ++y)
          for (int x = 0; x < W; ++x)
            for (int c = 0; c < L.ch; ++c) {
              const double want =
                  c < L.use ? src.at(x, y, c) * fs * is * n : packed[(y * W + x) * L.ch + c];
              ASSERT_NEAR(dst.at(x, y, c), want, tolerance(W, H, 0.6, fs * is * n))
                  << "inverse " << L.name << " flag " << flag;
            }
      }
    }
  }
}

TEST(Fft2d, RealForwardMatchesReferenceAndInverseReturnsInput) { realForwardAndBack(fftFam()); }
TEST(Dft2d, RealForwardMatchesReferenceAndInverseReturnsInput) { realForwardAndBack(dftFam()); }

template <class Spec>
void complexForwardAndBack(const Fam<Spec>& f) {
  Rng rng = makeRng(12);
  for (int si = 0; si < f.nSizes; ++si) {
    const LumiSize sz = f.sizes[si];
    const int W = sz.width, H = sz.height;
    const int flag = (si % 4 == 0) ? 8 : 1 << (si % 3);
    SCOPED_TRACE(testing::Message() << f.name << " " << W << "x" << H << " flag " << flag);
    Owned<Spec> spec(f, sz, flag, 1);
    const double n = double(W) * H;
    const double fs = flag == 1 ? 1 / n : flag == 4 ? 1 / std::sqrt(n) : 1;
    const double is = flag == 2 ? 1 / n : flag == 4 ? 1 / std::sqrt(n) : 1;
    GuardedImage<Lum32fc> src(W, H, 1), dst(W, H, 1, -1, -1, 9);
    Grid x(static_cast<size_t>(W) * H);
    for (int y = 0; y < H; ++y)
      for (int i = 0; i < W; ++i) {
        Lum32fc v{std::uniform_real_distribution<float>(-1, 1)(rng),
                  std::uniform_real_distribution<float>(-1, 1)(rng)};
        src.at(i, y) = v;
        x[y * W + i] = Cd(v.re, v.im);
      }
    const bool inPlace = si % 2 == 1;
    if (inPlace) {
      dst = src;
      ASSERT_EQ(f.cfwdI(dst.ptr(), dst.step(), spec.p, nullptr), lumStatusOk);
    } else {
      GuardedBuffer buf(spec.bufSize());
      ASSERT_EQ(f.cfwd(src.ptr(), src.step(), dst.ptr(), dst.step(), spec.p, buf.ptr()),
                lumStatusOk);
      EXPECT_TRUE(buf.intact());
    }
    EXPECT_TRUE(dst.guardsIntact());
    const Grid want = refDft(x, W, H, -1);
    const double tol = tolerance(W, H, 0.82, fs);
    for (int y = 0; y < H; ++y)
      for (int i = 0; i < W; ++i) {
        ASSERT_NEAR(dst.at(i, y).re, want[y * W + i].real() * fs, tol) << i << "," << y;
        ASSERT_NEAR(dst.at(i, y).im, want[y * W + i].imag() * fs, tol) << i << "," << y;
      }
    GuardedImage<Lum32fc> back(W, H, 1);
    if (inPlace) {
      ASSERT_EQ(f.cinvI(dst.ptr(), dst.step(), spec.p, nullptr), lumStatusOk);
      back = dst;
    } else {
      ASSERT_EQ(f.cinv(dst.ptr(), dst.step(), back.ptr(), back.step(), spec.p, nullptr),
                lumStatusOk);
    }
    for (int y = 0; y < H; ++y)
      for (int i = 0; i < W; ++i) {
        ASSERT_NEAR(back.at(i, y).re, x[y * W + i].real() * fs * is * n,
                    tolerance(W, H, 0.82, fs * is * n));
        ASSERT_NEAR(back.at(i, y).im, x[y * W + i].imag() * fs * is * n,
                    tolerance(W, H, 0.82, fs * is * n));
      }
  }
}

TEST(Fft2d, ComplexMatchesReference) { complexForwardAndBack(fftFam()); }
TEST(Dft2d, ComplexMatchesReference) { complexForwardAndBack(dftFam()); }

// One record serves several threads at once, each with its own work buffer.
TEST(Dft2d, OneRecordServesSeveralThreads) {
  const LumiSize s{24, 18};
  LumiDFTSpec* spec = nullptr;
  ASSERT_EQ(lumiDFTInitAlloc_R_32f(&spec, s, lumFftDivFwdByN, 0), lumStatusOk);
  int n = 0;
  ASSERT_EQ(lumiDFTGetBufSize_R_32f(spec, &n), lumStatusOk);
  std::vector<std::vector<float>> img(8, std::vector<float>(24 * 18)), seq = img, par = img;
  Rng rng = makeRng(21);
  for (auto& v : img)
    for (auto& x : v) x = randomValue<float>(rng);
  std::vector<Lum8u> buf(static_cast<size_t>(n) * 2);
  for (int i = 0; i < 8; ++i)
    ASSERT_EQ(lumiDFTFwd_RToPack_32f_C1R(img[i].data(), 96, seq[i].data(), 96, spec, buf.data()),
              lumStatusOk);
  int bad = 0;
#pragma omp parallel for num_threads(2) reduction(+ : bad)
  for (int i = 0; i < 8; ++i)
    bad += lumiDFTFwd_RToPack_32f_C1R(img[i].data(), 96, par[i].data(), 96, spec,
                                      buf.data() + omp_get_thread_num() * n) != 0;
  EXPECT_EQ(bad, 0);
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(sameElements(par[i], seq[i]));
  EXPECT_EQ(lumiDFTFree_R_32f(spec), lumStatusOk);
}

#ifdef LUMI_HAVE_OPENCV
// OpenCV's packed (CCS) forward of a real image is our layout for every parity.
TEST(Dft2d, PackedLayoutMatchesOpenCv) {
  for (LumiSize s : {LumiSize{5, 4}, LumiSize{8, 8}, LumiSize{7, 9}, LumiSize{16, 6},
                     LumiSize{1, 6}, LumiSize{9, 1}}) {
    cv::Mat src(s.height, s.width, CV_32F), want;
    cv::randu(src, -1, 1);
    cv::dft(src, want, 0);
    LumiDFTSpec* spec = nullptr;
    ASSERT_EQ(lumiDFTInitAlloc_R_32f(&spec, s, lumFftNoDivByAny, 0), lumStatusOk);
    cv::Mat got(s.height, s.width, CV_32F);
    ASSERT_EQ(lumiDFTFwd_RToPack_32f_C1R(src.ptr<float>(), int(src.step), got.ptr<float>(),
                                         int(got.step), spec, nullptr),
              lumStatusOk);
    EXPECT_LE(cv::norm(got, want, cv::NORM_INF), 1e-5 * cv::norm(want, cv::NORM_INF))
        << s.width << "x" << s.height;
    EXPECT_EQ(lumiDFTFree_R_32f(spec), lumStatusOk);
  }
}
#endif

// ---- packed-spectrum operations ------------------------------------------------------------

struct Spectrum {  // a random real image's spectrum, full and packed
  Grid full;
  std::vector<double> packed;
};
Spectrum randomSpectrum(Rng& rng, int W, int H) {
  Spectrum s;
  s.full = refDft(randomReal(rng, W, H), W, H, -1);
  s.packed = refPack(s.full, W, H);
  return s;
}

using MulFn = LumStatus (*)(const Lum32f*, int, const Lum32f*, int, Lum32f*, int, LumiSize);
using MulIFn = LumStatus (*)(const Lum32f*, int, Lum32f*, int, LumiSize);
const MulFn kMul[2][4] = {LAYOUTS(lumiMulPack_32f, R), LAYOUTS(lumiMulPackConj_32f, R)};
const MulIFn kMulI[2][4] = {LAYOUTS(lumiMulPack_32f, IR), LAYOUTS(lumiMulPackConj_32f, IR)};

TEST(Pack, MulPackIsTheProductOfFullSpectra) {
  Rng rng = makeRng(14);
  for (LumiSize s : kSmall)
    for (int conj = 0; conj < 2; ++conj)
      for (int li = 0; li < 4; ++li) {
        const Layout L = kLayouts[li];
        const int W = s.width, H = s.height;
        GuardedImage<Lum32f> a(W, H, L.ch), b(W, H, L.ch, -1, -1, 3), d(W, H, L.ch, -1, -1, 4);
        d.fillRandom(rng);
        const std::vector<float> before = d.pixels();
        std::vector<std::vector<double>> want(L.use);
        for (int c = 0; c < L.use; ++c) {
          Spectrum x = randomSpectrum(rng, W, H), y = randomSpectrum(rng, W, H);
          Grid p(x.full.size());
          for (size_t i = 0; i < p.size(); ++i)
            p[i] = x.full[i] * (conj ? std::conj(y.full[i]) : y.full[i]);
          want[c] = refPack(p, W, H);
          a.fill([&](int i, int j, int k) {
            return k == c ? float(x.packed[j * W + i]) : a.at(i, j, k);
          });
          b.fill([&](int i, int j, int k) {
            return k == c ? float(y.packed[j * W + i]) : b.at(i, j, k);
          });
        }
        const bool inPlace = (W + li) % 2 == 1;
        if (inPlace) {
          for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x)
              for (int c = 0; c < L.use; ++c) d.at(x, y, c) = a.at(x, y, c);
          ASSERT_EQ(kMulI[conj][li](b.ptr(), b.step(), d.ptr(), d.step(), d.roi()), lumStatusOk);
        } else {
          ASSERT_EQ(
              kMul[conj][li](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
              lumStatusOk);
        }
        EXPECT_TRUE(d.guardsIntact());
        const double n = double(W) * H;
        for (int y = 0; y < H; ++y)
          for (int x = 0; x < W; ++x)
            for (int c = 0; c < L.ch; ++c) {
              if (c >= L.use) {
                ASSERT_EQ(d.at(x, y, c), before[(y * W + x) * L.ch + c]);
                continue;
              }
              // inputs rounded to float: error ~ 2^-24 x |x| x |y| per product
              ASSERT_NEAR(d.at(x, y, c), want[c][y * W + x], 1e-6 * n)
                  << W << "x" << H << " conj " << conj << " " << L.name;
            }
      }
}

// One rounding of the double result: every path gives the same bits.
TEST(Pack, MulPackRoundsTheDoubleProductOnce) {
  Rng rng = makeRng(20);
  const int W = 41;
  std::vector<float> a(W), b(W), d(W), e(W);
  for (int i = 0; i < W; ++i)
    a[i] = randomValue<float>(rng) / 7, b[i] = randomValue<float>(rng) / 3;
  for (int conj = 0; conj < 2; ++conj) {
    ASSERT_EQ((conj ? lumiMulPackConj_32f_C1R : lumiMulPack_32f_C1R)(
                  a.data(), 4 * W, b.data(), 4 * W, d.data(), 4 * W, {W, 1}),
              lumStatusOk);
    e = a;
    ASSERT_EQ((conj ? lumiMulPackConj_32f_C1IR : lumiMulPack_32f_C1IR)(b.data(), 4 * W, e.data(),
                                                                       4 * W, {W, 1}),
              lumStatusOk);
    EXPECT_EQ(d[0], float(double(a[0]) * b[0]));
    for (int j = 1; j < W; j += 2) {
      const double xr = a[j], xi = a[j + 1], yr = b[j], yi = conj ? -double(b[j + 1]) : b[j + 1];
      ASSERT_EQ(d[j], float(xr * yr - xi * yi)) << j;
      ASSERT_EQ(d[j + 1], float(xr * yi + xi * yr)) << j;
    }
    EXPECT_TRUE(sameElements(e, d));
  }
}

// The spectrum of a unit impulse at the origin is all ones: multiplying by it changes nothing.
TEST(Pack, MulPackByTheImpulseSpectrumIsIdentity) {
  for (LumiSize s : {LumiSize{8, 8}, LumiSize{16, 2}, LumiSize{4, 32}}) {
    LumiFFTSpec* spec = nullptr;
    ASSERT_EQ(lumiFFTInitAlloc_R_32f(&spec, log2i(s.width), log2i(s.height), lumFftNoDivByAny, 0),
              lumStatusOk);
    GuardedImage<Lum32f> imp(s.width, s.height, 1), img(s.width, s.height, 1);
    imp.fill([](int x, int y, int) { return x == 0 && y == 0 ? 1.0f : 0.0f; });
    Rng rng = makeRng(15);
    img.fillRandom(rng);
    ASSERT_EQ(lumiFFTFwd_RToPack_32f_C1IR(imp.ptr(), imp.step(), spec, nullptr), lumStatusOk);
    ASSERT_EQ(lumiFFTFwd_RToPack_32f_C1IR(img.ptr(), img.step(), spec, nullptr), lumStatusOk);
    const std::vector<float> before = img.pixels();
    ASSERT_EQ(lumiMulPack_32f_C1IR(imp.ptr(), imp.step(), img.ptr(), img.step(), img.roi()),
              lumStatusOk);
    EXPECT_TRUE(sameElements(img.pixels(), before));
    EXPECT_EQ(lumiFFTFree_R_32f(spec), lumStatusOk);
  }
}

// Exact products scaled by 2^-sf, ties to even, saturated; 32s products that overflow int64.
TEST(Pack, MulPackIntegerScaling) {
  struct Case {
    int32_t a, b, sf, want;
  };
  // 1x1: one real product
  for (Case k : {Case{3, 1, 1, 2}, Case{5, 1, 1, 2}, Case{7, 1, 1, 4}, Case{-3, 1, 1, -2},
                 Case{-5, 1, 1, -2}, Case{300, 300, 0, 32767}, Case{-300, 300, 2, -22500},
                 Case{3, 3, -2, 36}, Case{1, 1, -16, 32767}, Case{-3, 3, INT32_MIN, -32768},
                 Case{0, 3, INT32_MIN, 0}, Case{-300, 300, INT32_MAX, 0}}) {
    Lum16s a = Lum16s(k.a), b = Lum16s(k.b), d = 0;
    ASSERT_EQ(lumiMulPack_16s_C1RSfs(&a, 2, &b, 2, &d, 2, {1, 1}, k.sf), lumStatusOk);
    EXPECT_EQ(d, Lum16s(std::max(-32768, std::min(32767, k.want))))
        << k.a << "*" << k.b << " sf " << k.sf;
  }
  // 3x1: P(0,0) real, (1, 2) complex. (-2^31 + -2^31 i)(-2^31 + (2^31-1) i): Re = 2^63 - 2^31
  const int32_t mn = INT32_MIN, mx = INT32_MAX;
  Lum32s a[3] = {mn, mn, mn}, b[3] = {mn, mn, mx}, d[3];
  ASSERT_EQ(lumiMulPack_32s_C1RSfs(a, 12, b, 12, d, 12, {3, 1}, 33), lumStatusOk);
  EXPECT_EQ(d[0], 1 << 29);     // 2^62 / 2^33 = 2^29
  EXPECT_EQ(d[1], 1073741824);  // (2^63 - 2^31) / 2^33 = 2^30 - 0.25
  EXPECT_EQ(d[2], 0);           // Im = -2^62 + 2^31 + 2^62 = 2^31: 0.25 -> 0
  ASSERT_EQ(lumiMulPack_32s_C1IRSfs(b, 12, a, 12, {3, 1}, 0), lumStatusOk);
  EXPECT_EQ(a[0], mx);
  EXPECT_EQ(a[1], mx);
}

TEST(Pack, MagnitudeAndPhaseOfTheFullSpectrum) {
  Rng rng = makeRng(17);
  const double pi = 3.14159265358979323846;
  for (LumiSize s : kSizes)
    for (int ch : {1, 3}) {
      const int W = s.width, H = s.height;
      GuardedImage<Lum32f> p(W, H, ch), mag(W, H, ch, -1, -1, 2), ph(W, H, ch, -1, -1, 3);
      GuardedImage<Lum16s> p16(W, H, ch), mag16(W, H, ch, -1, -1, 4), ph16(W, H, ch, -1, -1, 5);
      GuardedImage<Lum32f> pf16(W, H, ch), magf16(W, H, ch), phf16(W, H, ch);
      std::vector<Grid> full(ch);
      for (int c = 0; c < ch; ++c) {
        Grid x = randomReal(rng, W, H);
        full[c] = refDft(x, W, H, -1);
        const std::vector<double> pk = refPack(full[c], W, H);
        for (int i = 0; i < W * H; ++i) {
          p.at(i % W, i / W, c) = float(pk[i]);
          p16.at(i % W, i / W, c) = Lum16s(std::lround(pk[i] * 1000));  // any packed values will do
          pf16.at(i % W, i / W, c) = p16.at(i % W, i / W, c);
        }
      }
      const bool c3 = ch == 3;
      ASSERT_EQ((c3 ? lumiMagnitudePack_32f_C3R : lumiMagnitudePack_32f_C1R)(
                    p.ptr(), p.step(), mag.ptr(), mag.step(), s),
                lumStatusOk);
      ASSERT_EQ((c3 ? lumiPhasePack_32f_C3R : lumiPhasePack_32f_C1R)(p.ptr(), p.step(), ph.ptr(),
                                                                     ph.step(), s),
                lumStatusOk);
      ASSERT_EQ((c3 ? lumiMagnitudePack_32f_C3R : lumiMagnitudePack_32f_C1R)(
                    pf16.ptr(), pf16.step(), magf16.ptr(), magf16.step(), s),
                lumStatusOk);
      ASSERT_EQ((c3 ? lumiPhasePack_32f_C3R : lumiPhasePack_32f_C1R)(pf16.ptr(), pf16.step(),
                                                                     phf16.ptr(), phf16.step(), s),
                lumStatusOk);
      ASSERT_EQ((c3 ? lumiMagnitudePack_16s_C3RSfs : lumiMagnitudePack_16s_C1RSfs)(
                    p16.ptr(), p16.step(), mag16.ptr(), mag16.step(), s, -1),
                lumStatusOk);
      ASSERT_EQ((c3 ? lumiPhasePack_16s_C3RSfs : lumiPhasePack_16s_C1RSfs)(
                    p16.ptr(), p16.step(), ph16.ptr(), ph16.step(), s, -12),
                lumStatusOk);
      EXPECT_TRUE(mag.guardsIntact() && ph.guardsIntact() && mag16.guardsIntact() &&
                  ph16.guardsIntact());
      for (int c = 0; c < ch; ++c)
        for (int y = 0; y < H; ++y)
          for (int x = 0; x < W; ++x) {
            Cd a = full[c][y * W + x];
            if (std::abs(a.imag()) < 1e-9) a.imag(0);  // real frequencies: phase 0 or pi
            if (std::abs(a.real()) < 1e-9) a.real(0);
            double wantPh = std::atan2(a.imag(), a.real());
            if (wantPh <= -pi + 1e-12) wantPh = pi;
            SCOPED_TRACE(testing::Message()
                         << W << "x" << H << " C" << ch << " at " << x << "," << y << "," << c);
            ASSERT_NEAR(mag.at(x, y, c), std::abs(a), 1e-6 * (1 + std::abs(a)));
            if (std::abs(a) > 1e-6) {
              ASSERT_NEAR(ph.at(x, y, c), wantPh, 1e-5);
            }
            // 16s: x 2 and x 4096, of the float results on the same values
            ASSERT_NEAR(mag16.at(x, y, c), std::min(32767.0, magf16.at(x, y, c) * 2.0), 0.5 + 1e-3);
            ASSERT_NEAR(ph16.at(x, y, c), phf16.at(x, y, c) * 4096.0, 0.5 + 1e-3);
          }
    }
  // 32s: the magnitude of the largest values and a saturated result
  Lum32s big[2] = {INT32_MIN, 0}, out[2];
  ASSERT_EQ(lumiMagnitudePack_32s_C1RSfs(big, 8, out, 8, {1, 1}, 1), lumStatusOk);
  EXPECT_EQ(out[0], 1 << 30);
  ASSERT_EQ(lumiMagnitudePack_32s_C1RSfs(big, 8, out, 8, {1, 1}, 0), lumStatusOk);
  EXPECT_EQ(out[0], INT32_MAX);
  ASSERT_EQ(lumiPhasePack_32s_C1RSfs(big, 8, out, 8, {1, 1}, -28), lumStatusOk);
  EXPECT_EQ(out[0], 843314857);  // pi x 2^28, rounded
  // ties to even: |3|, |-5|, |7| / 2
  for (auto [v, want] : {std::pair<int, int>{3, 2}, {-5, 2}, {7, 4}}) {
    Lum16s in = Lum16s(v), o = 0;
    ASSERT_EQ(lumiMagnitudePack_16s_C1RSfs(&in, 2, &o, 2, {1, 1}, 1), lumStatusOk);
    EXPECT_EQ(o, want) << v;
  }
}

TEST(Pack, ComplexExtensionAndBack) {
  Rng rng = makeRng(18);
  for (LumiSize s : kSizes) {
    const int W = s.width, H = s.height;
    const Spectrum sp = randomSpectrum(rng, W, H);
    GuardedImage<Lum32f> p(W, H, 1), back(W, H, 1, -1, -1, 3);
    p.fill([&](int x, int y, int) { return float(sp.packed[y * W + x]); });
    GuardedImage<Lum32fc> full(W, H, 1);
    ASSERT_EQ(lumiPackToCplxExtend_32f32fc_C1R(p.ptr(), s, p.step(), full.ptr(), full.step()),
              lumStatusOk);
    for (int y = 0; y < H; ++y)
      for (int x = 0; x < W; ++x) {
        ASSERT_NEAR(full.at(x, y).re, sp.full[y * W + x].real(),
                    1e-6 * (1 + std::abs(sp.full[y * W + x])));
        ASSERT_NEAR(full.at(x, y).im, sp.full[y * W + x].imag(),
                    1e-6 * (1 + std::abs(sp.full[y * W + x])));
      }
    ASSERT_EQ(lumiCplxExtendToPack_32fc32f_C1R(full.ptr(), full.step(), s, back.ptr(), back.step()),
              lumStatusOk);
    EXPECT_TRUE(sameElements(back.pixels(), p.pixels()));
    EXPECT_TRUE(full.guardsIntact() && back.guardsIntact());
    // integers: the round trip is exact; C3 folds each channel
    GuardedImage<Lum32s> q(W, H, 1), q2(W, H, 1);
    q.fillRandom(rng);
    GuardedImage<Lum32sc> qf(W, H, 1);
    ASSERT_EQ(lumiPackToCplxExtend_32s32sc_C1R(q.ptr(), s, q.step(), qf.ptr(), qf.step()),
              lumStatusOk);
    ASSERT_EQ(lumiCplxExtendToPack_32sc32s_C1R(qf.ptr(), qf.step(), s, q2.ptr(), q2.step()),
              lumStatusOk);
    EXPECT_TRUE(sameElements(q2.pixels(), q.pixels()));
    GuardedImage<Lum16sc> c3(W, H, 3);
    GuardedImage<Lum16s> f3(W, H, 3);
    c3.fill([&](int x, int y, int c) { return Lum16sc{Lum16s(100 * c + x), Lum16s(-y)}; });
    ASSERT_EQ(lumiCplxExtendToPack_16sc16s_C3R(c3.ptr(), c3.step(), s, f3.ptr(), f3.step()),
              lumStatusOk);
    for (int c = 0; c < 3; ++c) {
      ASSERT_EQ(f3.at(0, 0, c), 100 * c);
      if (W > 2) {
        ASSERT_EQ(f3.at(1, H - 1, c), 100 * c + 1);
        ASSERT_EQ(f3.at(2, H - 1, c), -(H - 1));
      }
    }
  }
  // the conjugate of the most negative 32s value saturates
  Lum32s q[2] = {0, INT32_MIN};      // 1 x 2 (H = 2): column 0 only, both rows real
  Lum32s r3[3] = {0, 5, INT32_MIN};  // 3 x 1: A(0, 1) = 5 - 2^31 i, A(0, 2) = 5 + (2^31 - 1) i
  Lum32sc out[3];
  ASSERT_EQ(lumiPackToCplxExtend_32s32sc_C1R(q, {1, 2}, 4, out, 8), lumStatusOk);
  EXPECT_EQ(out[1].re, INT32_MIN);
  ASSERT_EQ(lumiPackToCplxExtend_32s32sc_C1R(r3, {3, 1}, 12, out, 24), lumStatusOk);
  EXPECT_EQ(out[2].re, 5);
  EXPECT_EQ(out[2].im, INT32_MAX);
}

// ---- integer transforms ----------------------------------------------------------------------

template <class Spec>
void integerTransforms(const Fam<Spec>& f) {
  Rng rng = makeRng(19);
  for (int si : {0, 1, 4, 6}) {
    const LumiSize s = f.sizes[si];
    const int W = s.width, H = s.height;
    for (int li = 0; li < 4; ++li) {
      const Layout L = kLayouts[li];
      SCOPED_TRACE(testing::Message() << f.name << " " << W << "x" << H << " " << L.name);
      Owned<Spec> spec(f, s, lumFftDivInvByN, 2), wrong(f, s, lumFftDivInvByN, 0);
      GuardedImage<Lum8u> src(W, H, L.ch), back(W, H, L.ch, -1, -1, 3);
      GuardedImage<Lum32s> spk(W, H, L.ch, -1, -1, 4);
      src.fillRandom(rng), back.fillRandom(rng), spk.fillRandom(rng);
      const std::vector<Lum8u> backBefore = back.pixels();
      const std::vector<Lum32s> spkBefore = spk.pixels();
      ASSERT_EQ(f.fwd8u[li](src.ptr(), src.step(), spk.ptr(), spk.step(), wrong.p, nullptr, 0),
                lumStatusContextMismatchErr);
      GuardedBuffer buf(spec.bufSize());
      ASSERT_EQ(f.fwd8u[li](src.ptr(), src.step(), spk.ptr(), spk.step(), spec.p, buf.ptr(), 2),
                lumStatusOk);
      EXPECT_TRUE(buf.intact() && spk.guardsIntact());
      for (int c = 0; c < L.ch; ++c) {
        Grid x(static_cast<size_t>(W) * H);
        for (int i = 0; i < W * H; ++i) x[i] = src.at(i % W, i / W, c);
        const std::vector<double> want = refPack(refDft(x, W, H, -1), W, H);
        for (int i = 0; i < W * H; ++i) {
          if (c >= L.use)
            ASSERT_EQ(spk.at(i % W, i / W, c), spkBefore[i * L.ch + c]);
          else
            ASSERT_NEAR(spk.at(i % W, i / W, c), want[i] / 4, 1.0) << i;
        }
      }
      // back with the spectrum x 4 undone: the input within one
      ASSERT_EQ(f.fwd8u[li](src.ptr(), src.step(), spk.ptr(), spk.step(), spec.p, nullptr, -2),
                lumStatusOk);
      ASSERT_EQ(f.inv8u[li](spk.ptr(), spk.step(), back.ptr(), back.step(), spec.p, buf.ptr(), 2),
                lumStatusOk);
      EXPECT_TRUE(buf.intact() && back.guardsIntact());
      for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x)
          for (int c = 0; c < L.ch; ++c)
            ASSERT_NEAR(back.at(x, y, c),
                        c < L.use ? src.at(x, y, c) : backBefore[(y * W + x) * L.ch + c],
                        c < L.use ? 1 : 0);
    }
  }
  // saturation both ways: 255 everywhere has DC 255 W H
  const LumiSize s = f.sizes[f.nSizes - 1];
  Owned<Spec> spec(f, s, lumFftNoDivByAny, 2);
  GuardedImage<Lum8u> img(s.width, s.height, 1);
  GuardedImage<Lum32s> spk(s.width, s.height, 1);
  img.fill([](int, int, int) { return Lum8u(255); });
  ASSERT_EQ(f.fwd8u[0](img.ptr(), img.step(), spk.ptr(), spk.step(), spec.p, nullptr, -30),
            lumStatusOk);
  EXPECT_EQ(spk.at(0, 0), INT32_MAX);
  ASSERT_EQ(f.inv8u[0](spk.ptr(), spk.step(), img.ptr(), img.step(), spec.p, nullptr, 0),
            lumStatusOk);
  EXPECT_EQ(img.at(0, 0), 255);
  spk.fill([](int x, int y, int) { return x == 0 && y == 0 ? -1000 : 0; });
  ASSERT_EQ(f.inv8u[0](spk.ptr(), spk.step(), img.ptr(), img.step(), spec.p, nullptr, 0),
            lumStatusOk);
  EXPECT_EQ(img.at(0, 0), 0);
}

TEST(Fft2d, IntegerMembersScaleRoundAndSaturate) { integerTransforms(fftFam()); }
TEST(Dft2d, IntegerMembersScaleRoundAndSaturate) { integerTransforms(dftFam()); }

// ---- validation ----------------------------------------------------------------------------

TEST(Fft2d, SpecificationChecks) {
  LumiFFTSpec* f = nullptr;
  EXPECT_EQ(lumiFFTInitAlloc_R_32f(nullptr, 31, 0, 3, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiFFTInitAlloc_R_32f(&f, 31, 0, 3, 0), lumStatusFftOrderErr);
  EXPECT_EQ(lumiFFTInitAlloc_C_32fc(&f, 0, -1, 1, 0), lumStatusFftOrderErr);
  EXPECT_EQ(lumiFFTInitAlloc_R_32s(&f, 1, 1, 3, 0), lumStatusFftFlagErr);
  EXPECT_EQ(lumiFFTInitAlloc_R_32f(&f, 0, 0, 16, 0), lumStatusFftFlagErr);
  EXPECT_EQ(f, nullptr);
  LumiDFTSpec* d = nullptr;
  EXPECT_EQ(lumiDFTInitAlloc_R_32f(nullptr, {0, 0}, 3, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDFTInitAlloc_C_32fc(&d, {0, 5}, 3, 0), lumStatusSizeErr);
  EXPECT_EQ(lumiDFTInitAlloc_R_32s(&d, {5, -1}, 1, 0), lumStatusSizeErr);
  EXPECT_EQ(lumiDFTInitAlloc_R_32f(&d, {5, 3}, 0, 0), lumStatusFftFlagErr);
  EXPECT_EQ(d, nullptr);
  int n = 0;
  EXPECT_EQ(lumiFFTGetBufSize_R_32f(nullptr, &n), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDFTFree_C_32fc(nullptr), lumStatusNullPtrErr);
  // every member checks the kind of the record it is given
  ASSERT_EQ(lumiFFTInitAlloc_C_32fc(&f, 2, 3, 1, 0), lumStatusOk);
  ASSERT_EQ(lumiDFTInitAlloc_R_32f(&d, {5, 3}, 8, 0), lumStatusOk);
  EXPECT_EQ(lumiFFTGetBufSize_R_32f(f, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiFFTGetBufSize_R_32f(f, &n), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiFFTGetBufSize_R_32s(f, &n), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDFTGetBufSize_C_32fc(d, &n), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiFFTFree_R_32f(f), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDFTFree_R_32s(d), lumStatusContextMismatchErr);
  GuardedImage<Lum32f> img(5, 3, 1);
  img.fill([](int, int, int) { return 1.0f; });
  const std::vector<float> before = img.pixels();
  float* p = img.ptr();
  const int st = img.step();
  // order: the record (-8), its kind (-17), the images (-8), the steps (-14)
  EXPECT_EQ(lumiDFTFwd_RToPack_32f_C1R(nullptr, 0, nullptr, 0, nullptr, nullptr),
            lumStatusNullPtrErr);
  EXPECT_EQ(lumiFFTFwd_RToPack_32f_C1R(nullptr, 0, nullptr, 0, f, nullptr),
            lumStatusContextMismatchErr);
  EXPECT_EQ(lumiFFTInv_PackToR_32f_C3IR(nullptr, 0, f, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDFTFwd_RToPack_32f_C1R(p, st, nullptr, 0, d, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDFTInv_PackToR_32f_AC4R(nullptr, st, p, 0, d, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDFTFwd_RToPack_32f_C1R(p, st, p, 0, d, nullptr), lumStatusStepErr);
  EXPECT_EQ(lumiDFTInv_PackToR_32f_C1IR(p, -4, d, nullptr), lumStatusStepErr);
  EXPECT_EQ(lumiDFTFwd_RToPack_8u32s_C1RSfs(nullptr, 1, nullptr, 1,
                                            reinterpret_cast<const LumiDFTSpec*>(f), nullptr, 0),
            lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDFTInv_PackToR_32s8u_C1RSfs(nullptr, 1, nullptr, 1, d, nullptr, 0),
            lumStatusContextMismatchErr);
  Lum32fc c[4];
  EXPECT_EQ(lumiFFTFwd_CToC_32fc_C1R(c, 32, c, 32, nullptr, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDFTFwd_CToC_32fc_C1IR(c, 32, d, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiFFTInv_CToC_32fc_C1IR(nullptr, 32, f, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiFFTInv_CToC_32fc_C1R(c, 32, c, 0, f, nullptr), lumStatusStepErr);
  EXPECT_TRUE(sameElements(img.pixels(), before));
  EXPECT_EQ(lumiFFTFree_C_32fc(f), lumStatusOk);
  EXPECT_EQ(lumiDFTFree_R_32f(d), lumStatusOk);
  f = nullptr;
  d = nullptr;
  // the largest orders fail cleanly when the memory is not there
  EXPECT_EQ(lumiFFTInitAlloc_R_32f(&f, 30, 30, 1, 0), lumStatusMemAllocErr);
  EXPECT_EQ(lumiDFTInitAlloc_R_32s(&d, {65536, 65536}, 1, 0), lumStatusMemAllocErr);
  EXPECT_EQ(lumiDFTInitAlloc_C_32fc(&d, {3, 1 << 30}, 1, 0), lumStatusMemAllocErr);
  EXPECT_EQ(f, nullptr);
  EXPECT_EQ(d, nullptr);
}

TEST(Pack, ArgumentChecks) {
  float a[4] = {1, 2, 3, 4}, b[4];
  const LumiSize s{2, 2};
  // MulPack: pointers, steps, size
  EXPECT_EQ(lumiMulPack_32f_C1R(a, 8, nullptr, 8, b, 8, s), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMulPackConj_32f_C3IR(nullptr, 0, b, 8, {0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMulPack_32f_AC4R(a, 8, a, 0, b, 8, {0, 0}), lumStatusStepErr);
  EXPECT_EQ(lumiMulPack_32f_C1IR(a, 8, b, 8, {2, 0}), lumStatusSizeErr);
  Lum16s h[4] = {};
  Lum32s w[4] = {};
  EXPECT_EQ(lumiMulPack_16s_C4IRSfs(h, 0, h, 8, {0, 1}, 0), lumStatusStepErr);
  EXPECT_EQ(lumiMulPack_32s_C1RSfs(w, 8, w, 8, nullptr, 8, s, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMulPack_32s_C3RSfs(w, 8, w, 8, w, 8, {-1, 2}, 0), lumStatusSizeErr);
  // the unfolding members: pointers, size, steps
  EXPECT_EQ(lumiMagnitudePack_32f_C1R(nullptr, 0, b, 8, {0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiPhasePack_32f_C3R(a, 0, b, 8, {0, 2}), lumStatusSizeErr);
  EXPECT_EQ(lumiMagnitudePack_16s_C1RSfs(h, 4, h, 0, s, 0), lumStatusStepErr);
  EXPECT_EQ(lumiPhasePack_32s_C3RSfs(w, 0, nullptr, 4, s, 0), lumStatusNullPtrErr);
  Lum32fc c[4];
  EXPECT_EQ(lumiPackToCplxExtend_32f32fc_C1R(a, {0, 2}, 0, c, 16), lumStatusSizeErr);
  EXPECT_EQ(lumiPackToCplxExtend_32s32sc_C1R(w, s, 0, nullptr, 16), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCplxExtendToPack_32fc32f_C3R(c, 16, s, b, 0), lumStatusStepErr);
  EXPECT_EQ(lumiCplxExtendToPack_16sc16s_C1R(nullptr, 16, {0, 0}, h, 4), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCplxExtendToPack_32sc32s_C1R(nullptr, 16, s, w, 8), lumStatusNullPtrErr);
}

}  // namespace
