// Floating-point and complex image arithmetic against plain scalar references.
#include <cfloat>
#include <cmath>
#include <functional>

#include "lumitest.h"

namespace {

using lumitest::GuardedImage;
using lumitest::makeRng;
using lumitest::randInt;
using lumitest::randomSize;
using lumitest::Rng;
using lumitest::sameElements;

struct Layout {
  const char* name;
  int ch, use;  // channels in memory, channels written
};
constexpr Layout kC1{"C1", 1, 1}, kC3{"C3", 3, 3}, kC4{"C4", 4, 4}, kAC4{"AC4", 4, 3};

// A float that is sometimes zero, tiny, huge, infinite or NaN.
float edgyFloat(Rng& r) {
  switch (randInt(r, 0, 19)) {
    case 0: return 0.0f;
    case 1: return -0.0f;
    case 2: return INFINITY;
    case 3: return -INFINITY;
    case 4: return NAN;
    case 5: return FLT_MIN / 8;
    case 6: return FLT_MAX;
    default: return lumitest::randomValue<float>(r);
  }
}

template <class T>
void fillFloats(GuardedImage<T>& img, Rng& r) {
  for (int y = 0; y < img.height(); ++y) {
    float* row = reinterpret_cast<float*>(img.row(y));
    for (int i = 0; i < img.width() * img.channels() * static_cast<int>(sizeof(T) / 4); ++i)
      row[i] = edgyFloat(r);
  }
}

float refOp(int op, float x, float y) {  // x is the second operand image, as in src2 - src1
  switch (op) {
    case 0: return x + y;
    case 1: return x - y;
    case 2: return x * y;
    default: return x / y;
  }
}

// ---- 32f -------------------------------------------------------------------------------------
using Bin32f = LumStatus (*)(const Lum32f*, int, const Lum32f*, int, Lum32f*, int, LumiSize);
using BinI32f = LumStatus (*)(const Lum32f*, int, Lum32f*, int, LumiSize);
struct Bin32fCase {
  const char* name;
  int op;
  Layout l;
  Bin32f f;
  BinI32f fi;
};
#define BIN32F(OP, N, L) {#OP "_32f_" #L, N, k##L, lumi##OP##_32f_##L##R, lumi##OP##_32f_##L##IR}
#define BIN32F_ALL(OP, N) BIN32F(OP, N, C1), BIN32F(OP, N, C3), BIN32F(OP, N, C4), BIN32F(OP, N, AC4)
const Bin32fCase kBin32f[] = {BIN32F_ALL(Add, 0), BIN32F_ALL(Sub, 1), BIN32F_ALL(Mul, 2),
                              BIN32F_ALL(Div, 3)};

TEST(Float32, ImageImageMatchesIeeeOperations) {
  Rng rng = makeRng(1);
  for (const auto& c : kBin32f) {
    for (int rep = 0; rep < 12; ++rep) {
      const LumiSize sz = randomSize(rng);
      const bool inPlace = rep & 1;
      GuardedImage<float> a(sz.width, sz.height, c.l.ch, -1, -1, rep);
      GuardedImage<float> b(sz.width, sz.height, c.l.ch, -1, -1, rep + 50);
      GuardedImage<float> d(sz.width, sz.height, c.l.ch, -1, -1, rep + 99);
      fillFloats(a, rng);
      fillFloats(b, rng);
      fillFloats(d, rng);
      GuardedImage<float>& out = inPlace ? b : d;
      std::vector<float> want = out.pixels();
      bool zero = false;
      for (int y = 0, i = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.ch; ++k, ++i) {
            if (k >= c.l.use) continue;
            zero |= c.op == 3 && a.at(x, y, k) == 0.0f;
            want[i] = refOp(c.op, b.at(x, y, k), a.at(x, y, k));
          }
      LumStatus st = inPlace ? c.fi(a.ptr(), a.step(), b.ptr(), b.step(), sz)
                             : c.f(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), sz);
      EXPECT_EQ(st, zero ? lumStatusDivByZeroWarn : lumStatusOk) << c.name;
      EXPECT_TRUE(sameElements(out.pixels(), want, sz.width * c.l.ch)) << c.name << " in place " << inPlace;
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
}

TEST(Float32, ValidationOrder) {
  float buf[64] = {};
  const LumiSize one{1, 1}, none{0, 1};
  for (const auto& c : kBin32f) {
    EXPECT_EQ(c.f(buf, 4, buf, 4, nullptr, 4, none), lumStatusNullPtrErr) << c.name;
    EXPECT_EQ(c.f(buf, 4, buf, 4, buf, 4, none), lumStatusSizeErr) << c.name;
    EXPECT_EQ(c.fi(buf, 4, buf, 4, LumiSize{2, -1}), lumStatusSizeErr) << c.name;
    // only the division tests steps; the others run with a zero step
    EXPECT_EQ(c.f(buf, 0, buf, 16, buf + 32, 16, one), c.op == 3 ? lumStatusStepErr : lumStatusOk)
        << c.name;
    EXPECT_EQ(c.fi(buf, 16, buf + 32, 0, one), c.op == 3 ? lumStatusStepErr : lumStatusOk) << c.name;
  }
}

TEST(Float32, ZeroStepRepeatsTheFirstRow) {
  float a[3] = {1, 2, 3}, b[3] = {10, 20, 30};
  GuardedImage<float> d(3, 4, 1);
  ASSERT_EQ(lumiAdd_32f_C1R(a, 0, b, 0, d.ptr(), d.step(), d.roi()), lumStatusOk);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 3; ++x) EXPECT_EQ(d.at(x, y), a[x] + b[x]);
  EXPECT_TRUE(d.guardsIntact());
}

TEST(Float32, DivisionByZeroWarnsAndKeepsEveryQuotient) {
  GuardedImage<float> a(9, 5, 1), b(9, 5, 1), d(9, 5, 1);
  a.fill([](int x, int y, int) { return static_cast<float>(x + y + 1); });
  b.fill([](int x, int y, int) { return static_cast<float>(x * 3 - 7); });
  a.at(4, 4) = 0.0f;  // only the last row divides by zero
  EXPECT_EQ(lumiDiv_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
            lumStatusDivByZeroWarn);
  for (int y = 0; y < 5; ++y)
    for (int x = 0; x < 9; ++x) EXPECT_EQ(d.at(x, y), b.at(x, y) / a.at(x, y));
  EXPECT_EQ(d.at(4, 4), INFINITY);
  // a zero in the alpha channel of AC4 is not a division
  GuardedImage<float> p(3, 2, 4), q(3, 2, 4);
  p.fill([](int, int, int c) { return c == 3 ? 0.0f : 2.0f; });
  q.fill([](int, int, int) { return 1.0f; });
  EXPECT_EQ(lumiDiv_32f_AC4IR(p.ptr(), p.step(), q.ptr(), q.step(), q.roi()), lumStatusOk);
  EXPECT_EQ(q.at(2, 1, 3), 1.0f);
  EXPECT_EQ(q.at(2, 1, 2), 0.5f);
}

using Const32f = std::function<LumStatus(const float*, int, const float*, float*, int, LumiSize)>;
using ConstI32f = std::function<LumStatus(const float*, float*, int, LumiSize)>;
struct Const32fCase {
  const char* name;
  int op;
  Layout l;
  Const32f f;
  ConstI32f fi;
};
#define C32F_C1(OP, N)                                                                   \
  {#OP "_32f_C1", N, kC1,                                                                \
   [](const float* s, int ss, const float* v, float* d, int ds, LumiSize r) {            \
     return lumi##OP##_32f_C1R(s, ss, v[0], d, ds, r);                                   \
   },                                                                                    \
   [](const float* v, float* d, int ds, LumiSize r) { return lumi##OP##_32f_C1IR(v[0], d, ds, r); }}
#define C32F_N(OP, N, L) {#OP "_32f_" #L, N, k##L, lumi##OP##_32f_##L##R, lumi##OP##_32f_##L##IR}
#define C32F_ALL(OP, N) C32F_C1(OP, N), C32F_N(OP, N, C3), C32F_N(OP, N, C4), C32F_N(OP, N, AC4)
const Const32fCase kConst32f[] = {C32F_ALL(AddC, 0), C32F_ALL(SubC, 1), C32F_ALL(MulC, 2),
                                  C32F_ALL(DivC, 3)};

TEST(Float32, ConstantOperandsAndReciprocalDivision) {
  Rng rng = makeRng(2);
  for (const auto& c : kConst32f) {
    for (int rep = 0; rep < 12; ++rep) {
      const LumiSize sz = randomSize(rng);
      const bool inPlace = rep & 1;
      float v[4];
      for (float& x : v) x = c.op == 3 ? static_cast<float>(randInt(rng, 1, 999)) / 7.0f : edgyFloat(rng);
      GuardedImage<float> s(sz.width, sz.height, c.l.ch, -1, -1, rep);
      GuardedImage<float> d(sz.width, sz.height, c.l.ch, -1, -1, rep + 7);
      fillFloats(s, rng);
      fillFloats(d, rng);
      GuardedImage<float>& out = inPlace ? s : d;
      std::vector<float> want = out.pixels();
      for (int y = 0, i = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.ch; ++k, ++i)
            if (k < c.l.use)
              want[i] = c.op == 3 ? s.at(x, y, k) * (1.0f / v[k]) : refOp(c.op, s.at(x, y, k), v[k]);
      LumStatus st = inPlace ? c.fi(v, s.ptr(), s.step(), sz)
                             : c.f(s.ptr(), s.step(), v, d.ptr(), d.step(), sz);
      EXPECT_EQ(st, lumStatusOk) << c.name;
      EXPECT_TRUE(sameElements(out.pixels(), want, sz.width * c.l.ch)) << c.name;
      EXPECT_TRUE(s.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
  // the reciprocal, not the quotient: 3 * fl(1/3) is exactly 1, 0.3 * fl(1/3) rounds once
  float src[2] = {3.0f, 0.3f}, dst[2];
  ASSERT_EQ(lumiDivC_32f_C1R(src, 8, 3.0f, dst, 8, LumiSize{2, 1}), lumStatusOk);
  EXPECT_EQ(dst[0], 1.0f);
  EXPECT_EQ(dst[1], 0.3f * (1.0f / 3.0f));
}

TEST(Float32, ZeroConstantDivisorWritesNothing) {
  GuardedImage<float> s(5, 3, 4), d(5, 3, 4);
  Rng rng = makeRng(3);
  s.fillRandom(rng);
  d.fillRandom(rng);
  const std::vector<float> before = d.pixels();
  EXPECT_EQ(lumiDivC_32f_C1R(s.ptr(), s.step(), 0.0f, d.ptr(), d.step(), d.roi()), lumStatusDivisorZeroErr);
  EXPECT_EQ(lumiDivC_32f_C1IR(-0.0f, d.ptr(), d.step(), d.roi()), lumStatusDivisorZeroErr);
  const float c3[3] = {1.0f, 0.0f, 2.0f}, c4[4] = {1, 2, 3, 0}, ac4[4] = {1, 2, 3, 0};
  EXPECT_EQ(lumiDivC_32f_C3R(s.ptr(), s.step(), c3, d.ptr(), d.step(), LumiSize{3, 3}), lumStatusDivisorZeroErr);
  EXPECT_EQ(lumiDivC_32f_C4IR(c4, d.ptr(), d.step(), d.roi()), lumStatusDivisorZeroErr);
  EXPECT_TRUE(sameElements(d.pixels(), before));
  // AC4 ignores the fourth constant
  EXPECT_EQ(lumiDivC_32f_AC4IR(ac4, d.ptr(), d.step(), d.roi()), lumStatusOk);
  // the order: pointers, size, steps, divisor
  EXPECT_EQ(lumiDivC_32f_C1R(nullptr, 4, 0.0f, d.ptr(), 0, LumiSize{0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDivC_32f_C1R(s.ptr(), 0, 0.0f, d.ptr(), 0, LumiSize{0, 1}), lumStatusSizeErr);
  EXPECT_EQ(lumiDivC_32f_C1R(s.ptr(), 0, 0.0f, d.ptr(), 4, LumiSize{1, 1}), lumStatusStepErr);
  EXPECT_EQ(lumiAddC_32f_C1R(s.ptr(), 0, 1.0f, d.ptr(), 0, LumiSize{1, 1}), lumStatusOk);
  EXPECT_TRUE(d.guardsIntact());
}

// Images without row padding (the step equals the row bytes) give the same results.
TEST(Float32, UnpaddedRows) {
  const int w = 7, h = 5;
  std::vector<float> a(w * h * 4), b(w * h * 4), d(w * h * 4, -1.0f);
  for (std::size_t i = 0; i < a.size(); ++i) a[i] = static_cast<float>(i) * 0.5f, b[i] = 100.0f - i;
  ASSERT_EQ(lumiAdd_32f_AC4R(a.data(), w * 16, b.data(), w * 16, d.data(), w * 16, LumiSize{w, h}), lumStatusOk);
  for (std::size_t i = 0; i < d.size(); ++i) EXPECT_EQ(d[i], i % 4 == 3 ? -1.0f : a[i] + b[i]) << i;
  const float c[3] = {1.0f, 2.0f, 4.0f};
  ASSERT_EQ(lumiMulC_32f_C3IR(c, a.data(), w * 12, LumiSize{w, h}), lumStatusOk);
  for (int i = 0; i < w * h * 3; ++i) EXPECT_EQ(a[i], static_cast<float>(i) * 0.5f * c[i % 3]) << i;
}

// Images too large to stay in cache take the cache-bypassing store path; rows start at every
// alignment (odd padding, misaligned first pixel) so its head and tail handling is exercised.
TEST(Float32, LargeImagesGiveTheSameResults) {
  const int w = 2401, h = 1300;
  GuardedImage<float> a(w, h, 3, 4, 4), b(w, h, 3, 8, 0), d(w, h, 3, 12, 8);
  uint32_t seed = 12345;
  auto next = [&] {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<float>(static_cast<int32_t>(seed) >> 8) / 1024.0f;
  };
  a.fill([&](int, int, int) { return next(); });
  b.fill([&](int, int, int) { return next(); });
  a.at(1200, 700, 1) = 0.0f;  // one zero divisor inside a vector-aligned stretch
  ASSERT_EQ(lumiDiv_32f_C3R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
            lumStatusDivByZeroWarn);
  for (int y = 0; y < h; ++y)
    for (int i = 0; i < 3 * w; ++i)
      if (!(d.row(y)[i] == b.row(y)[i] / a.row(y)[i] || std::isnan(d.row(y)[i])))
        FAIL() << "Div at row " << y << " element " << i;
  const float c[3] = {0.5f, -3.0f, 7.25f};
  ASSERT_EQ(lumiMulC_32f_C3R(a.ptr(), a.step(), c, d.ptr(), d.step(), d.roi()), lumStatusOk);
  for (int y = 0; y < h; ++y)
    for (int i = 0; i < 3 * w; ++i)
      if (d.row(y)[i] != a.row(y)[i] * c[i % 3]) FAIL() << "MulC at row " << y << " element " << i;
  const std::vector<float> before = b.pixels();
  ASSERT_EQ(lumiSub_32f_C3IR(a.ptr(), a.step(), b.ptr(), b.step(), b.roi()), lumStatusOk);
  for (int y = 0; y < h; ++y)
    for (int i = 0; i < 3 * w; ++i)
      if (b.row(y)[i] != before[static_cast<std::size_t>(y) * 3 * w + i] - a.row(y)[i])
        FAIL() << "Sub at row " << y << " element " << i;
  EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact());
}

// ---- 32fc ------------------------------------------------------------------------------------
Lum32fc randomComplex(Rng& r) {
  if (randInt(r, 0, 15) == 0) return Lum32fc{0.0f, 0.0f};
  return Lum32fc{lumitest::randomValue<float>(r), lumitest::randomValue<float>(r)};
}

Lum32fc refComplex(int op, Lum32fc x, Lum32fc y) {
  const double a = x.re, b = x.im, c = y.re, d = y.im;
  switch (op) {
    case 0: return {x.re + y.re, x.im + y.im};
    case 1: return {x.re - y.re, x.im - y.im};
    case 2: return {static_cast<float>(a * c - b * d), static_cast<float>(a * d + b * c)};
    default: {
      const double den = c * c + d * d;
      return {static_cast<float>((a * c + b * d) / den), static_cast<float>((b * c - a * d) / den)};
    }
  }
}

std::vector<float> parts(const GuardedImage<Lum32fc>& img) {
  std::vector<float> v;
  for (const Lum32fc& c : img.pixels()) {
    v.push_back(c.re);
    v.push_back(c.im);
  }
  return v;
}

using Bin32fc = LumStatus (*)(const Lum32fc*, int, const Lum32fc*, int, Lum32fc*, int, LumiSize);
using BinI32fc = LumStatus (*)(const Lum32fc*, int, Lum32fc*, int, LumiSize);
using Const32fc = std::function<LumStatus(const Lum32fc*, int, const Lum32fc*, Lum32fc*, int, LumiSize)>;
using ConstI32fc = std::function<LumStatus(const Lum32fc*, Lum32fc*, int, LumiSize)>;
struct Cplx32Case {
  const char* name;
  int op;
  Layout l;
  Bin32fc f;
  BinI32fc fi;
  Const32fc fc;
  ConstI32fc fci;
};
#define CPLX_C1(OP, N)                                                                           \
  {#OP "_32fc_C1", N, kC1, lumi##OP##_32fc_C1R, lumi##OP##_32fc_C1IR,                            \
   [](const Lum32fc* s, int ss, const Lum32fc* v, Lum32fc* d, int ds, LumiSize r) {              \
     return lumi##OP##C_32fc_C1R(s, ss, v[0], d, ds, r);                                         \
   },                                                                                            \
   [](const Lum32fc* v, Lum32fc* d, int ds, LumiSize r) { return lumi##OP##C_32fc_C1IR(v[0], d, ds, r); }}
#define CPLX_N(OP, N, L)                                                                       \
  {#OP "_32fc_" #L, N, k##L, lumi##OP##_32fc_##L##R, lumi##OP##_32fc_##L##IR,                  \
   lumi##OP##C_32fc_##L##R, lumi##OP##C_32fc_##L##IR}
#define CPLX_ALL(OP, N) CPLX_C1(OP, N), CPLX_N(OP, N, C3), CPLX_N(OP, N, AC4)
const Cplx32Case kCplx32[] = {CPLX_ALL(Add, 0), CPLX_ALL(Sub, 1), CPLX_ALL(Mul, 2), CPLX_ALL(Div, 3)};

TEST(Complex32, ImageAndConstantOperations) {
  Rng rng = makeRng(4);
  for (const auto& c : kCplx32) {
    for (int rep = 0; rep < 16; ++rep) {
      const LumiSize sz = randomSize(rng, 37, 5);
      const bool inPlace = rep & 1, constant = rep & 2;
      GuardedImage<Lum32fc> a(sz.width, sz.height, c.l.ch, -1, -1, rep);
      GuardedImage<Lum32fc> b(sz.width, sz.height, c.l.ch, -1, -1, rep + 3);
      GuardedImage<Lum32fc> d(sz.width, sz.height, c.l.ch, -1, -1, rep + 5);
      a.fill([&](int, int, int) { return randomComplex(rng); });
      b.fill([&](int, int, int) { return randomComplex(rng); });
      d.fill([&](int, int, int) { return randomComplex(rng); });
      Lum32fc v[4];
      for (auto& x : v) do x = randomComplex(rng); while (x.re == 0.0f);
      GuardedImage<Lum32fc>& out = inPlace ? b : d;
      GuardedImage<Lum32fc> want = out;
      bool zero = false;
      for (int y = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.use; ++k) {
            if (!constant) {
              zero |= c.op == 3 && a.at(x, y, k).re == 0 && a.at(x, y, k).im == 0;
              want.at(x, y, k) = refComplex(c.op, b.at(x, y, k), a.at(x, y, k));
            } else if (c.op == 3 && c.l.ch > 1) {  // through the reciprocal
              const float inv = 1.0f / (v[k].re * v[k].re + v[k].im * v[k].im);
              const Lum32fc rec{v[k].re * inv, -v[k].im * inv};
              want.at(x, y, k) = refComplex(2, b.at(x, y, k), rec);
            } else {
              want.at(x, y, k) = refComplex(c.op, b.at(x, y, k), v[k]);
            }
          }
      LumStatus st;
      if (constant)
        st = inPlace ? c.fci(v, b.ptr(), b.step(), sz) : c.fc(b.ptr(), b.step(), v, d.ptr(), d.step(), sz);
      else
        st = inPlace ? c.fi(a.ptr(), a.step(), b.ptr(), b.step(), sz)
                     : c.f(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), sz);
      EXPECT_EQ(st, zero ? lumStatusDivByZeroWarn : lumStatusOk) << c.name;
      EXPECT_TRUE(sameElements(parts(out), parts(want), 2 * c.l.ch * sz.width))
          << c.name << (constant ? " constant" : "") << (inPlace ? " in place" : "");
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
}

TEST(Complex32, ValidationAndZeroConstant) {
  GuardedImage<Lum32fc> s(4, 3, 3), d(4, 3, 3);
  Rng rng = makeRng(5);
  s.fill([&](int, int, int) { return randomComplex(rng); });
  d.fill([&](int, int, int) { return Lum32fc{1.0f, 2.0f}; });
  const std::vector<float> before = parts(d);
  const Lum32fc bad[3] = {{1, 1}, {0, 0}, {2, 0}};
  EXPECT_EQ(lumiDivC_32fc_C3R(s.ptr(), s.step(), bad, d.ptr(), d.step(), d.roi()), lumStatusDivisorZeroErr);
  EXPECT_EQ(lumiDivC_32fc_AC4IR(bad, d.ptr(), d.step(), LumiSize{3, 3}), lumStatusDivisorZeroErr);
  EXPECT_EQ(lumiDivC_32fc_C1IR(Lum32fc{0, -0.0f}, d.ptr(), d.step(), d.roi()), lumStatusDivisorZeroErr);
  EXPECT_TRUE(sameElements(parts(d), before));
  // every complex member tests steps, after the size
  EXPECT_EQ(lumiAdd_32fc_C1R(s.ptr(), 0, s.ptr(), 8, d.ptr(), 8, LumiSize{1, 1}), lumStatusStepErr);
  EXPECT_EQ(lumiAdd_32fc_C1R(s.ptr(), 0, s.ptr(), 8, d.ptr(), 8, LumiSize{1, 0}), lumStatusSizeErr);
  EXPECT_EQ(lumiMulC_32fc_C3R(s.ptr(), 8, nullptr, d.ptr(), 8, LumiSize{0, 0}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDivC_32fc_C1R(s.ptr(), -8, Lum32fc{0, 0}, d.ptr(), 8, LumiSize{1, 1}), lumStatusStepErr);
  EXPECT_TRUE(d.guardsIntact());
}

TEST(Complex32, ProductIsRoundedOnce) {
  // (1 + e)(1 + e) - e*e with e = 2^-13: single-precision steps lose the 2^-26 term
  const float e = std::ldexp(1.0f, -13);
  Lum32fc x{1.0f + e, e}, y{1.0f + e, -e}, out;
  ASSERT_EQ(lumiMul_32fc_C1R(&x, 8, &y, 8, &out, 8, LumiSize{1, 1}), lumStatusOk);
  const double re = (1.0 + e) * (1.0 + e) + static_cast<double>(e) * e;
  EXPECT_EQ(out.re, static_cast<float>(re));
  EXPECT_EQ(out.im, 0.0f);
}

// A warning from any row survives the rows after it, in the first-status (32f) and the
// last-status (complex) division members alike.
TEST(Complex32, DivisionWarningOfAnEarlyRowIsKept) {
  GuardedImage<float> a(6, 4, 1), b(6, 4, 1), d(6, 4, 1);
  a.fill([](int, int y, int) { return y == 0 ? 0.0f : 2.0f; });
  b.fill([](int x, int, int) { return static_cast<float>(x); });
  EXPECT_EQ(lumiDiv_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
            lumStatusDivByZeroWarn);
  EXPECT_EQ(d.at(5, 3), 2.5f);
  GuardedImage<Lum32fc> p(3, 5, 1), q(3, 5, 1);
  p.fill([](int x, int y, int) { return y == 1 && x == 2 ? Lum32fc{0, 0} : Lum32fc{1, 1}; });
  q.fill([](int, int, int) { return Lum32fc{2, 0}; });
  EXPECT_EQ(lumiDiv_32fc_C1IR(p.ptr(), p.step(), q.ptr(), q.step(), q.roi()), lumStatusDivByZeroWarn);
  EXPECT_EQ(q.at(0, 4).re, 1.0f);
  EXPECT_EQ(q.at(0, 4).im, -1.0f);
  GuardedImage<Lum16sc> u(3, 5, 3), v(3, 5, 3), w(3, 5, 3);
  u.fill([](int x, int y, int c) { return y == 0 && x == 0 && c == 2 ? Lum16sc{0, 0} : Lum16sc{1, 0}; });
  v.fill([](int, int, int) { return Lum16sc{-7, 9}; });
  EXPECT_EQ(lumiDiv_16sc_C3RSfs(u.ptr(), u.step(), v.ptr(), v.step(), w.ptr(), w.step(), w.roi(), 0),
            lumStatusDivByZeroWarn);
  EXPECT_TRUE(w.at(0, 0, 2).re == -32768 && w.at(0, 0, 2).im == 32767);
  EXPECT_TRUE(w.at(2, 4, 1).re == -7 && w.at(2, 4, 1).im == 9);
  EXPECT_TRUE(d.guardsIntact() && q.guardsIntact() && w.guardsIntact());
}

// ---- 16sc, 32sc with scale factors -----------------------------------------------------------
// Reference in long double: 64-bit products and their sums are exact there.
template <class P>
P refScale(long double v, int sf) {
  const long double s = std::ldexp(v, -sf);
  const long double r = std::nearbyint(s);
  if (r < std::numeric_limits<P>::min()) return std::numeric_limits<P>::min();
  if (r > std::numeric_limits<P>::max()) return std::numeric_limits<P>::max();
  return static_cast<P>(r);
}

template <class P>
void refComplexInt(int op, const P* x, const P* y, P* out, int sf) {
  const long double a = x[0], b = x[1], c = y[0], d = y[1];
  if (op == 0) {
    out[0] = refScale<P>(a + c, sf), out[1] = refScale<P>(b + d, sf);
  } else if (op == 1) {
    out[0] = refScale<P>(a - c, sf), out[1] = refScale<P>(b - d, sf);
  } else if (op == 2) {
    out[0] = refScale<P>(a * c - b * d, sf), out[1] = refScale<P>(a * d + b * c, sf);
  } else {
    const double den = static_cast<double>(c) * static_cast<double>(c) +
                       static_cast<double>(d) * static_cast<double>(d);
    const P lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
    if (den == 0) {
      out[0] = x[0] > 0 ? hi : x[0] < 0 ? lo : 0;
      out[1] = x[1] > 0 ? hi : x[1] < 0 ? lo : 0;
      return;
    }
    const double da = x[0], db = x[1], dc = y[0], dd = y[1];
    out[0] = refScale<P>((da * dc + db * dd) / den, sf);
    out[1] = refScale<P>((db * dc - da * dd) / den, sf);
  }
}

template <class P>
P randomPart(Rng& r) {
  switch (randInt(r, 0, 7)) {
    case 0: return std::numeric_limits<P>::min();
    case 1: return std::numeric_limits<P>::max();
    case 2: return static_cast<P>(randInt(r, -3, 3));
    default: return lumitest::randomValue<P>(r);
  }
}

template <class CT>
struct CintCase {
  const char* name;
  int op;
  Layout l;
  std::function<LumStatus(const CT*, int, const CT*, int, CT*, int, LumiSize, int)> f;
  std::function<LumStatus(const CT*, int, CT*, int, LumiSize, int)> fi;
  std::function<LumStatus(const CT*, int, const CT*, CT*, int, LumiSize, int)> fc;
  std::function<LumStatus(const CT*, CT*, int, LumiSize, int)> fci;
};
#define CINT_C1(OP, N, TY, CT)                                                                   \
  CintCase<CT>{#OP "_" #TY "_C1", N, kC1, lumi##OP##_##TY##_C1RSfs, lumi##OP##_##TY##_C1IRSfs,   \
               [](const CT* s, int ss, const CT* v, CT* d, int ds, LumiSize r, int sf) {         \
                 return lumi##OP##C_##TY##_C1RSfs(s, ss, v[0], d, ds, r, sf);                    \
               },                                                                                \
               [](const CT* v, CT* d, int ds, LumiSize r, int sf) {                              \
                 return lumi##OP##C_##TY##_C1IRSfs(v[0], d, ds, r, sf);                          \
               }}
#define CINT_N(OP, N, TY, CT, L)                                                                  \
  CintCase<CT>{#OP "_" #TY "_" #L, N, k##L, lumi##OP##_##TY##_##L##RSfs,                          \
               lumi##OP##_##TY##_##L##IRSfs, lumi##OP##C_##TY##_##L##RSfs,                        \
               lumi##OP##C_##TY##_##L##IRSfs}
#define CINT_ALL(OP, N, TY, CT) CINT_C1(OP, N, TY, CT), CINT_N(OP, N, TY, CT, C3), CINT_N(OP, N, TY, CT, AC4)

template <class CT>
void checkComplexInt(const std::vector<CintCase<CT>>& cases, uint32_t salt) {
  using P = decltype(CT::re);
  Rng rng = makeRng(salt);
  for (const auto& c : cases) {
    for (int rep = 0; rep < 24; ++rep) {
      const LumiSize sz = randomSize(rng, 23, 4);
      const bool inPlace = rep & 1, constant = rep & 2;
      const int sf = rep < 4 ? rep * 17 - 34 : randInt(rng, -40, 40);
      GuardedImage<CT> a(sz.width, sz.height, c.l.ch, -1, -1, rep);
      GuardedImage<CT> b(sz.width, sz.height, c.l.ch, -1, -1, rep + 3);
      GuardedImage<CT> d(sz.width, sz.height, c.l.ch, -1, -1, rep + 5);
      auto rnd = [&](int, int, int) {
        CT v{randomPart<P>(rng), randomPart<P>(rng)};
        if (randInt(rng, 0, 9) == 0) v = CT{0, 0};
        return v;
      };
      a.fill(rnd);
      b.fill(rnd);
      d.fill(rnd);
      CT v[4];
      for (auto& x : v) do x = rnd(0, 0, 0); while (x.re == 0 && x.im == 0);
      GuardedImage<CT>& out = inPlace ? b : d;
      GuardedImage<CT> want = out;
      bool zero = false;
      for (int y = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.use; ++k) {
            const CT& yv = constant ? v[k] : a.at(x, y, k);
            zero |= !constant && c.op == 3 && yv.re == 0 && yv.im == 0;
            refComplexInt<P>(c.op, &b.at(x, y, k).re, &yv.re, &want.at(x, y, k).re, sf);
          }
      LumStatus st;
      if (constant)
        st = inPlace ? c.fci(v, b.ptr(), b.step(), sz, sf)
                     : c.fc(b.ptr(), b.step(), v, d.ptr(), d.step(), sz, sf);
      else
        st = inPlace ? c.fi(a.ptr(), a.step(), b.ptr(), b.step(), sz, sf)
                     : c.f(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), sz, sf);
      EXPECT_EQ(st, zero ? lumStatusDivByZeroWarn : lumStatusOk) << c.name;
      const auto got = out.pixels(), exp = want.pixels();
      for (std::size_t i = 0; i < got.size(); ++i) {
        ASSERT_TRUE(got[i].re == exp[i].re && got[i].im == exp[i].im)
            << c.name << " sf " << sf << (constant ? " constant" : "") << " element " << i
            << ": got " << got[i].re << "," << got[i].im << " want " << exp[i].re << "," << exp[i].im;
      }
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
}

TEST(ComplexInt, Scaled16scMatchesExactReference) {
  checkComplexInt<Lum16sc>({CINT_ALL(Add, 0, 16sc, Lum16sc), CINT_ALL(Sub, 1, 16sc, Lum16sc),
                            CINT_ALL(Mul, 2, 16sc, Lum16sc), CINT_ALL(Div, 3, 16sc, Lum16sc)},
                           6);
}

TEST(ComplexInt, Scaled32scMatchesExactReference) {
  checkComplexInt<Lum32sc>({CINT_ALL(Add, 0, 32sc, Lum32sc), CINT_ALL(Sub, 1, 32sc, Lum32sc),
                            CINT_ALL(Mul, 2, 32sc, Lum32sc), CINT_ALL(Div, 3, 32sc, Lum32sc)},
                           7);
}

TEST(ComplexInt, ScaleFactorExamples) {
  Lum32sc a[4] = {{2147483647, 3}, {5, -2147483647 - 1}, {7, 8}, {9, 10}};
  Lum32sc b[4] = {{1, 0}, {0, -1}, {7, 8}, {123, 456}};
  Lum32sc d[4];
  ASSERT_EQ(lumiAdd_32sc_AC4RSfs(a, 32, b, 32, d, 32, LumiSize{1, 1}, 0), lumStatusOk);
  EXPECT_EQ(d[0].re, 2147483647);
  EXPECT_EQ(d[1].im, -2147483647 - 1);
  Lum32sc three[4] = {{3, 5}, {3, 5}, {3, 5}, {0, 0}}, zero[4] = {};
  ASSERT_EQ(lumiAdd_32sc_AC4RSfs(three, 32, zero, 32, d, 32, LumiSize{1, 1}, 1), lumStatusOk);
  EXPECT_TRUE(d[0].re == 2 && d[0].im == 2 && d[2].re == 2);
  d[3] = Lum32sc{77, 78};
  ASSERT_EQ(lumiAdd_32sc_AC4RSfs(a, 32, b, 32, d, 32, LumiSize{1, 1}, 33), lumStatusOk);
  EXPECT_TRUE(d[0].re == 0 && d[1].im == 0 && d[2].re == 0 && d[3].re == 77 && d[3].im == 78);
  ASSERT_EQ(lumiSub_32sc_C1RSfs(b, 8, a, 8, d, 8, LumiSize{2, 1}, -31), lumStatusOk);
  EXPECT_TRUE(d[0].re == 2147483647 && d[0].im == 2147483647 && d[1].re == 2147483647 &&
              d[1].im == -2147483647 - 1);
  // the largest product part, 2^63, still saturates rather than wrapping
  Lum32sc m{-2147483647 - 1, -2147483647 - 1};
  ASSERT_EQ(lumiMul_32sc_C1RSfs(&m, 8, &m, 8, d, 8, LumiSize{1, 1}, 40), lumStatusOk);
  EXPECT_EQ(d[0].re, 0);
  EXPECT_EQ(d[0].im, 8388608);  // 2^63 / 2^40
  Lum16sc zc{0, 0}, src16[2] = {{5, -5}, {0, 0}}, out16[2];
  EXPECT_EQ(lumiDivC_16sc_C1RSfs(src16, 8, zc, out16, 8, LumiSize{2, 1}, 0), lumStatusDivisorZeroErr);
}

}  // namespace
