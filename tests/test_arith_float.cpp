// Floating-point and complex image arithmetic against plain scalar references.
#include <cfloat>
#include <climits>
#include <cmath>
#include <functional>
#include <string>

#include "lumitest.h"

namespace {

using lumitest::GuardedImage;
using lumitest::makeRng;
using lumitest::randInt;
using lumitest::randomSize;
using lumitest::Rng;
using lumitest::sameElements;

using lumitest::Layout;
using lumitest::kC1;
using lumitest::kC3;
using lumitest::kC4;
using lumitest::kAC4;

// Every member of one operation, type and layout behind one shape, indexed by mode:
// 0 image, 1 image in place (into b), 2 constant (b op v), 3 constant in place (into b).
template <class T>
using Call = std::function<LumStatus(const T* a, int sa, T* b, int sb, T* d, int sd, LumiSize,
                                     const T* v, int sf)>;
template <class T>
struct Case {
  const char* name;
  int op;  // 0 add, 1 sub, 2 mul, 3 div
  Layout l;
  Call<T> run[4];
};
// SUF is empty or Sfs, SF appends the scale factor or not; V is how the constant is passed (*v for C1).
#define CASE(OP, N, TY, T, L, SUF, SF, V)                                                         \
  Case<T>{#OP "_" #TY "_" #L, N, k##L,                                                            \
          {[](const T* a, int sa, T* b, int sb, T* d, int sd, LumiSize r, const T* v, int sf) {   \
             return lumi##OP##_##TY##_##L##R##SUF(a, sa, b, sb, d, sd, SF(r));                     \
           },                                                                                     \
           [](const T* a, int sa, T* b, int sb, T*, int, LumiSize r, const T* v, int sf) {        \
             return lumi##OP##_##TY##_##L##IR##SUF(a, sa, b, sb, SF(r));                           \
           },                                                                                     \
           [](const T*, int, T* b, int sb, T* d, int sd, LumiSize r, const T* v, int sf) {        \
             return lumi##OP##C_##TY##_##L##R##SUF(b, sb, V, d, sd, SF(r));                        \
           },                                                                                     \
           [](const T*, int, T* b, int sb, T*, int, LumiSize r, const T* v, int sf) {             \
             return lumi##OP##C_##TY##_##L##IR##SUF(V, b, sb, SF(r));                              \
           }}}
#define WITH_SF(r) r, sf
#define NO_SF(r) r
#define CASES3(OP, N, TY, T, SUF, SF) \
  CASE(OP, N, TY, T, C1, SUF, SF, *v), CASE(OP, N, TY, T, C3, SUF, SF, v), CASE(OP, N, TY, T, AC4, SUF, SF, v)
#define OPS(M, ...) M(Add, 0, __VA_ARGS__), M(Sub, 1, __VA_ARGS__), M(Mul, 2, __VA_ARGS__), M(Div, 3, __VA_ARGS__)
#define F32(OP, N, ...) CASES3(OP, N, 32f, float, , NO_SF), CASE(OP, N, 32f, float, C4, , NO_SF, v)

template <class T>
bool isZero(const T& x) {
  if constexpr (std::is_arithmetic_v<T>) return x == 0;
  else return x.re == 0 && x.im == 0;
}
template <class T>
auto flat(const GuardedImage<T>& g) {  // complex pixels as their parts
  if constexpr (std::is_arithmetic_v<T>) {
    return g.pixels();
  } else {
    std::vector<decltype(T::re)> v;
    for (const T& c : g.pixels()) v.push_back(c.re), v.push_back(c.im);
    return v;
  }
}

// Runs every case in every mode on random images: gen(rng) gives elements, genConst(rng, op)
// the constants, ref(case, constant, second, first, sf) the expected result, where Sub gives
// second - first and Div second / first. Image division by a zero sample warns.
template <class T, class Gen, class GenConst, class Ref>
void checkCases(const std::vector<Case<T>>& cases, uint32_t salt, int reps, LumiSize maxSize,
                bool scaled, Gen gen, GenConst genConst, Ref ref) {
  Rng rng = makeRng(salt);
  for (const auto& c : cases) {
    for (int rep = 0; rep < reps; ++rep) {
      const LumiSize sz = randomSize(rng, maxSize.width, maxSize.height);
      const int mode = rep & 3, pad = rep % 3 == 0 ? 0 : -1;  // unpadded rows too
      const bool inPlace = mode & 1, constant = mode & 2;
      const int sf = !scaled ? 0 : rep < 4 ? rep * 17 - 34 : randInt(rng, -40, 40);
      GuardedImage<T> a(sz.width, sz.height, c.l.ch, pad, -1, rep);
      GuardedImage<T> b(sz.width, sz.height, c.l.ch, pad, -1, rep + 3);
      GuardedImage<T> d(sz.width, sz.height, c.l.ch, pad, -1, rep + 5);
      for (auto* g : {&a, &b, &d}) g->fill([&](int, int, int) { return gen(rng); });
      T v[4];
      for (T& x : v) x = genConst(rng, c.op);
      GuardedImage<T>& out = inPlace ? b : d;
      GuardedImage<T> want = out;
      bool zero = false;
      for (int y = 0; y < sz.height; ++y)
        for (int x = 0; x < sz.width; ++x)
          for (int k = 0; k < c.l.use; ++k) {
            const T first = constant ? v[k] : a.at(x, y, k);
            zero |= !constant && c.op == 3 && isZero(first);
            want.at(x, y, k) = ref(c, constant, b.at(x, y, k), first, sf);
          }
      const LumStatus st = c.run[mode](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), sz, v, sf);
      EXPECT_EQ(st, zero ? lumStatusDivByZeroWarn : lumStatusOk) << c.name << " mode " << mode;
      EXPECT_TRUE(sameElements(flat(out), flat(want), static_cast<int>(flat(out).size()) / sz.height))
          << c.name << " mode " << mode << " sf " << sf;
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact()) << c.name;
    }
  }
}

// ---- 32f -------------------------------------------------------------------------------------
// A float that is sometimes zero, tiny, huge, infinite or NaN.
float edgyFloat(Rng& r) {
  const float e[] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, FLT_MIN / 8, FLT_MAX};
  const int k = randInt(r, 0, 19);
  return k < 7 ? e[k] : lumitest::randomValue<float>(r);
}

float refOp(int op, float x, float y) {
  return op == 0 ? x + y : op == 1 ? x - y : op == 2 ? x * y : x / y;
}

const std::vector<Case<float>> kF32 = {OPS(F32, _)};

TEST(Float32, ImagesAndConstantsMatchIeeeOperations) {
  checkCases<float>(
      kF32, 1, 24, LumiSize{67, 9}, false, edgyFloat,
      [](Rng& r, int op) { return op == 3 ? static_cast<float>(randInt(r, 1, 999)) / 7.0f : edgyFloat(r); },
      // constant division multiplies by the reciprocal
      [](const Case<float>& c, bool constant, float x, float y, int) {
        return constant && c.op == 3 ? x * (1.0f / y) : refOp(c.op, x, y);
      });
  // the reciprocal, not the quotient: 3 * fl(1/3) is exactly 1, 0.3 * fl(1/3) rounds once
  float src[2] = {3.0f, 0.3f}, dst[2];
  ASSERT_EQ(lumiDivC_32f_C1R(src, 8, 3.0f, dst, 8, LumiSize{2, 1}), lumStatusOk);
  EXPECT_EQ(dst[0], 1.0f);
  EXPECT_EQ(dst[1], 0.3f * (1.0f / 3.0f));
}

TEST(Float32, ZeroStepRepeatsTheFirstRow) {
  float a[3] = {1, 2, 3}, b[3] = {10, 20, 30};
  GuardedImage<float> d(3, 4, 1);
  ASSERT_EQ(lumiAdd_32f_C1R(a, 0, b, 0, d.ptr(), d.step(), d.roi()), lumStatusOk);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 3; ++x) EXPECT_EQ(d.at(x, y), a[x] + b[x]);
  EXPECT_TRUE(d.guardsIntact());
}

// A zero divisor in the first or only the last row warns, and every quotient is still written;
// a zero in the alpha channel of AC4 is not a division.
TEST(Float32, DivisionByZeroWarnsFromAnyRow) {
  for (int zeroRow : {0, 4}) {
    GuardedImage<float> a(9, 5, 1), b(9, 5, 1), d(9, 5, 1);
    a.fill([](int x, int y, int) { return static_cast<float>(x + y + 1); });
    b.fill([](int x, int y, int) { return static_cast<float>(x * 3 - 7); });
    a.at(4, zeroRow) = 0.0f;
    EXPECT_EQ(lumiDiv_32f_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
              lumStatusDivByZeroWarn);
    for (int y = 0; y < 5; ++y)
      for (int x = 0; x < 9; ++x) EXPECT_EQ(d.at(x, y), b.at(x, y) / a.at(x, y));
    EXPECT_EQ(d.at(4, zeroRow), INFINITY);
    EXPECT_TRUE(d.guardsIntact());
  }
  GuardedImage<float> p(3, 2, 4), q(3, 2, 4);
  p.fill([](int, int, int c) { return c == 3 ? 0.0f : 2.0f; });
  q.fill([](int, int, int) { return 1.0f; });
  EXPECT_EQ(lumiDiv_32f_AC4IR(p.ptr(), p.step(), q.ptr(), q.step(), q.roi()), lumStatusOk);
  EXPECT_EQ(q.at(2, 1, 3), 1.0f);
  EXPECT_EQ(q.at(2, 1, 2), 0.5f);
}

// Images too large to stay in cache take the cache-bypassing store path; rows start at every
// alignment (odd padding, misaligned first pixel) so its head and tail handling is exercised.
TEST(Float32, LargeImagesGiveTheSameResults) {
  const int w = 2401, h = 1300;
  GuardedImage<float> a(w, h, 3, 4, 4), b(w, h, 3, 8, 0), d(w, h, 3, 12, 8);
  uint32_t seed = 12345;
  auto next = [&](int, int, int) {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<float>(static_cast<int32_t>(seed) >> 8) / 1024.0f;
  };
  a.fill(next);
  b.fill(next);
  a.at(1200, 700, 1) = 0.0f;  // one zero divisor inside a vector-aligned stretch
  auto expectAll = [&](const char* what, const GuardedImage<float>& out, auto want) {
    for (int y = 0; y < h; ++y)
      for (int i = 0; i < 3 * w; ++i)
        if (!(out.row(y)[i] == want(y, i) || (std::isnan(out.row(y)[i]) && std::isnan(want(y, i)))))
          FAIL() << what << " at row " << y << " element " << i;
  };
  ASSERT_EQ(lumiDiv_32f_C3R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()),
            lumStatusDivByZeroWarn);
  expectAll("Div", d, [&](int y, int i) { return b.row(y)[i] / a.row(y)[i]; });
  const float c[3] = {0.5f, -3.0f, 7.25f};
  ASSERT_EQ(lumiMulC_32f_C3R(a.ptr(), a.step(), c, d.ptr(), d.step(), d.roi()), lumStatusOk);
  expectAll("MulC", d, [&](int y, int i) { return a.row(y)[i] * c[i % 3]; });
  const std::vector<float> before = b.pixels();
  ASSERT_EQ(lumiSub_32f_C3IR(a.ptr(), a.step(), b.ptr(), b.step(), b.roi()), lumStatusOk);
  expectAll("Sub", b, [&](int y, int i) { return before[static_cast<std::size_t>(y) * 3 * w + i] - a.row(y)[i]; });
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

const std::vector<Case<Lum32fc>> kC32fc = {OPS(CASES3, 32fc, Lum32fc, , NO_SF)};
const std::vector<Case<Lum16sc>> kC16sc = {OPS(CASES3, 16sc, Lum16sc, Sfs, WITH_SF)};
const std::vector<Case<Lum32sc>> kC32sc = {OPS(CASES3, 32sc, Lum32sc, Sfs, WITH_SF)};

TEST(Complex32, ImageAndConstantOperations) {
  checkCases<Lum32fc>(
      kC32fc, 4, 16, LumiSize{37, 5}, false, randomComplex,
      [](Rng& r, int) {
        Lum32fc x;
        do x = randomComplex(r); while (x.re == 0.0f);
        return x;
      },
      [](const Case<Lum32fc>& c, bool constant, Lum32fc x, Lum32fc y, int) {
        if (constant && c.op == 3 && c.l.ch > 1) {  // through the reciprocal
          const float inv = 1.0f / (y.re * y.re + y.im * y.im);
          return refComplex(2, x, Lum32fc{y.re * inv, -y.im * inv});
        }
        return refComplex(c.op, x, y);
      });
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

// A warning from an early row survives the rows after it in the complex division members.
TEST(Complex32, DivisionWarningOfAnEarlyRowIsKept) {
  GuardedImage<Lum32fc> p(3, 5, 1), q(3, 5, 1);
  p.fill([](int x, int y, int) { return y == 1 && x == 2 ? Lum32fc{0, 0} : Lum32fc{1, 1}; });
  q.fill([](int, int, int) { return Lum32fc{2, 0}; });
  EXPECT_EQ(lumiDiv_32fc_C1IR(p.ptr(), p.step(), q.ptr(), q.step(), q.roi()), lumStatusDivByZeroWarn);
  EXPECT_TRUE(q.at(0, 4).re == 1.0f && q.at(0, 4).im == -1.0f);
  GuardedImage<Lum16sc> u(3, 5, 3), v(3, 5, 3), w(3, 5, 3);
  u.fill([](int x, int y, int c) { return y == 0 && x == 0 && c == 2 ? Lum16sc{0, 0} : Lum16sc{1, 0}; });
  v.fill([](int, int, int) { return Lum16sc{-7, 9}; });
  EXPECT_EQ(lumiDiv_16sc_C3RSfs(u.ptr(), u.step(), v.ptr(), v.step(), w.ptr(), w.step(), w.roi(), 0),
            lumStatusDivByZeroWarn);
  EXPECT_TRUE(w.at(0, 0, 2).re == -32768 && w.at(0, 0, 2).im == 32767);
  EXPECT_TRUE(w.at(2, 4, 1).re == -7 && w.at(2, 4, 1).im == 9);
  EXPECT_TRUE(q.guardsIntact() && w.guardsIntact());
}

// ---- 16sc, 32sc with scale factors -----------------------------------------------------------
// Reference in long double: 64-bit products and their sums are exact there.
template <class P>
P refScale(long double v, int sf) {
  const long double r = std::nearbyint(std::ldexp(v, -sf));
  if (r < std::numeric_limits<P>::min()) return std::numeric_limits<P>::min();
  if (r > std::numeric_limits<P>::max()) return std::numeric_limits<P>::max();
  return static_cast<P>(r);
}

template <class CT>
CT refComplexInt(int op, CT x, CT y, int sf) {
  using P = decltype(CT::re);
  const long double a = x.re, b = x.im, c = y.re, d = y.im;
  if (op == 0) return CT{refScale<P>(a + c, sf), refScale<P>(b + d, sf)};
  if (op == 1) return CT{refScale<P>(a - c, sf), refScale<P>(b - d, sf)};
  if (op == 2) return CT{refScale<P>(a * c - b * d, sf), refScale<P>(a * d + b * c, sf)};
  const double dc = y.re, dd = y.im, den = dc * dc + dd * dd, da = x.re, db = x.im;
  if (den == 0) {  // each part saturates by its sign
    const P lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
    return CT{x.re > 0 ? hi : x.re < 0 ? lo : P(0), x.im > 0 ? hi : x.im < 0 ? lo : P(0)};
  }
  return CT{refScale<P>((da * dc + db * dd) / den, sf), refScale<P>((db * dc - da * dd) / den, sf)};
}

template <class CT>
CT randomCint(Rng& r) {
  using P = decltype(CT::re);
  auto part = [&]() -> P {
    switch (randInt(r, 0, 7)) {
      case 0: return std::numeric_limits<P>::min();
      case 1: return std::numeric_limits<P>::max();
      case 2: return static_cast<P>(randInt(r, -3, 3));
      default: return lumitest::randomValue<P>(r);
    }
  };
  const CT v{part(), part()};
  return randInt(r, 0, 9) == 0 ? CT{0, 0} : v;
}

template <class CT>
void checkComplexInt(const std::vector<Case<CT>>& cases, uint32_t salt) {
  checkCases<CT>(
      cases, salt, 24, LumiSize{23, 4}, true, randomCint<CT>,
      [](Rng& r, int) {
        CT x;
        do x = randomCint<CT>(r); while (isZero(x));
        return x;
      },
      [](const Case<CT>& c, bool, CT x, CT y, int sf) { return refComplexInt(c.op, x, y, sf); });
}

TEST(ComplexInt, ScaledMembersMatchExactReference) {
  checkComplexInt<Lum16sc>(kC16sc, 6);
  checkComplexInt<Lum32sc>(kC32sc, 7);
}

// Scale factors at both ends of the int range: every nonzero result already saturates or
// rounds to zero one step inside, so INT_MIN and INT_MAX must give what their neighbours give
// (for the complex members and the scaled square, root, logarithm and exponential).
template <class T, class Run>
void expectExtremesMatchNeighbours(const std::string& name, Run run) {
  GuardedImage<T> a(37, 2, 1, -1, -1, 11), b(37, 2, 1, -1, -1, 12);
  auto result = [&](int sf) {
    GuardedImage<T> d(37, 2, 1, -1, -1, 13);
    run(a, b, d, sf);
    return std::vector<unsigned char>(reinterpret_cast<const unsigned char*>(d.ptr()),
                                      reinterpret_cast<const unsigned char*>(d.ptr()) +
                                          sizeof(T) * 37);
  };
  EXPECT_EQ(result(INT_MIN), result(INT_MIN + 1)) << name;
  EXPECT_EQ(result(INT_MAX), result(INT_MAX - 1)) << name;
}

template <class T>
using ScaledFn = LumStatus (*)(const T*, int, T*, int, LumiSize, int);
template <class T>
void expectExtremesMatchNeighbours(const char* name, ScaledFn<T> f) {
  expectExtremesMatchNeighbours<T>(name, [f](auto& a, auto&, auto& d, int sf) {
    f(a.ptr(), a.step(), d.ptr(), d.step(), LumiSize{37, 1}, sf);
  });
}

TEST(ScaleFactor, ExtremesMatchTheirNeighbours) {
  for (const auto& c : kC16sc)
    expectExtremesMatchNeighbours<Lum16sc>(c.name, [&c](auto& a, auto& b, auto& d, int sf) {
      c.run[0](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), LumiSize{37 / c.l.ch, 1},
               b.ptr(), sf);
    });
  for (const auto& c : kC32sc)
    expectExtremesMatchNeighbours<Lum32sc>(c.name, [&c](auto& a, auto& b, auto& d, int sf) {
      c.run[0](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), LumiSize{37 / c.l.ch, 1},
               b.ptr(), sf);
    });
  const std::pair<const char*, ScaledFn<Lum8u>> u8[] = {
      {"Sqr_8u", lumiSqr_8u_C1RSfs}, {"Sqrt_8u", lumiSqrt_8u_C1RSfs},
      {"Ln_8u", lumiLn_8u_C1RSfs}, {"Exp_8u", lumiExp_8u_C1RSfs}};
  const std::pair<const char*, ScaledFn<Lum16u>> u16[] = {
      {"Sqr_16u", lumiSqr_16u_C1RSfs}, {"Sqrt_16u", lumiSqrt_16u_C1RSfs}};
  const std::pair<const char*, ScaledFn<Lum16s>> s16[] = {
      {"Sqr_16s", lumiSqr_16s_C1RSfs}, {"Sqrt_16s", lumiSqrt_16s_C1RSfs},
      {"Ln_16s", lumiLn_16s_C1RSfs}, {"Exp_16s", lumiExp_16s_C1RSfs}};
  for (const auto& [name, f] : u8) expectExtremesMatchNeighbours<Lum8u>(name, f);
  for (const auto& [name, f] : u16) expectExtremesMatchNeighbours<Lum16u>(name, f);
  for (const auto& [name, f] : s16) expectExtremesMatchNeighbours<Lum16s>(name, f);
  Lum8u ten = 10, out = 0;  // 100 x 2^huge saturates
  EXPECT_EQ(lumiSqr_8u_C1RSfs(&ten, 1, &out, 1, {1, 1}, INT_MIN), lumStatusOk);
  EXPECT_EQ(out, 255);
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
}

// ---- validation ------------------------------------------------------------------------------
// Pointers, then the size, then the steps (every complex member and the 32f divisions test
// them; the other 32f members use any step as it is), then a zero constant divisor (zero
// squared magnitude for complex values; the alpha constant of AC4 is ignored). Errors write
// nothing.
template <class T>
void checkValidation(const std::vector<Case<T>>& cases, bool allCheckSteps, T one, std::vector<T> zeros) {
  for (const auto& c : cases)
    for (int mode = 0; mode < 4; ++mode) {
      SCOPED_TRACE(std::string(c.name) + " mode " + std::to_string(mode));
      const bool constant = mode & 2, checks = allCheckSteps || c.op == 3;
      GuardedImage<T> a(4, 3, c.l.ch), b(4, 3, c.l.ch), d(4, 3, c.l.ch);
      for (auto* g : {&a, &b, &d}) g->fill([&](int, int, int) { return one; });
      const auto beforeB = flat(b), beforeD = flat(d);
      const T ones[4] = {one, one, one, one};
      // slots: 0 first image, 1 second image (the source of the constant forms), 2 destination,
      // 3 constant; nul names the null pointer, zs the zero step
      auto call = [&](int nul, int zs, LumiSize r, const T* v) {
        return c.run[mode](nul == 0 ? nullptr : a.ptr(), zs == 0 ? 0 : a.step(), nul == 1 ? nullptr : b.ptr(),
                           zs == 1 ? 0 : b.step(), nul == 2 ? nullptr : d.ptr(), zs == 2 ? 0 : d.step(), r,
                           nul == 3 ? nullptr : v, 0);
      };
      const std::vector<int> slots = mode == 0 ? std::vector<int>{0, 1, 2} : mode == 1 ? std::vector<int>{0, 1}
                                     : mode == 2 ? std::vector<int>{1, 2} : std::vector<int>{1};
      for (int s : slots) EXPECT_EQ(call(s, -1, LumiSize{0, 1}, ones), lumStatusNullPtrErr) << "null " << s;
      if (constant && c.l.ch > 1) { EXPECT_EQ(call(3, -1, LumiSize{0, 1}, ones), lumStatusNullPtrErr); }
      EXPECT_EQ(call(-1, 1, LumiSize{0, 1}, ones), lumStatusSizeErr);
      EXPECT_EQ(call(-1, -1, LumiSize{2, -1}, ones), lumStatusSizeErr);
      if (checks) {
        for (int s : slots) EXPECT_EQ(call(-1, s, a.roi(), ones), lumStatusStepErr) << "zero step " << s;
      }
      for (const T& z : zeros) {
        T v[4] = {one, one, one, one};
        v[c.l.use - 1] = z;
        if (!constant || c.op != 3) break;
        EXPECT_EQ(call(-1, -1, a.roi(), v), lumStatusDivisorZeroErr);
        EXPECT_EQ(call(-1, 1, a.roi(), v), checks ? lumStatusStepErr : lumStatusDivisorZeroErr);
      }
      EXPECT_TRUE(sameElements(flat(b), beforeB) && sameElements(flat(d), beforeD));
      if (!checks) { EXPECT_EQ(call(-1, slots[0], a.roi(), ones), lumStatusOk); }
      if (constant && c.op == 3 && c.l.use < c.l.ch) {
        const T v[4] = {one, one, one, zeros[0]};
        EXPECT_EQ(call(-1, -1, a.roi(), v), lumStatusOk);
      }
      EXPECT_TRUE(a.guardsIntact() && b.guardsIntact() && d.guardsIntact());
    }
}

TEST(Validation, EveryMemberInOrder) {
  checkValidation<float>(kF32, false, 1.0f, {0.0f, -0.0f});
  checkValidation<Lum32fc>(kC32fc, true, Lum32fc{1, 1}, {Lum32fc{0, 0}, Lum32fc{-0.0f, 0}});
  checkValidation<Lum16sc>(kC16sc, true, Lum16sc{1, 0}, {Lum16sc{0, 0}});
  checkValidation<Lum32sc>(kC32sc, true, Lum32sc{0, 1}, {Lum32sc{0, 0}});
}

}  // namespace
