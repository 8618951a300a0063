// Compare (images and constants, all five relations, tolerance form), logic (And, Or, Xor,
// their constant forms, Not), shifts and Complement, against per-sample references.
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "lumitest.h"

using namespace lumitest;

namespace {

constexpr int kDef = std::numeric_limits<int>::min();  // "use the image's own step"

#define S(p) (p)[0]
#define A(p) (p)

// ---- compare -------------------------------------------------------------------------------

// One calling shape for all compare functions: b is the second image, or the constants
// (element 0 for C1) for the C forms; op is ignored by the tolerance forms and eps by the rest.
template <class T>
using CmpCall = LumStatus (*)(const T* a, int as, const T* b, int bs, Lum8u* d, int ds,
                              LumiSize r, int op, float eps);

template <class T>
struct CmpCase {
  std::string name;
  Layout lay;
  bool isConst, isEps;
  CmpCall<T> call;
};

#define CMP_CALL(expr)                                                             \
  [](const T* a, int as, const T* b, int bs, Lum8u* d, int ds, LumiSize r, int op, \
     float eps) -> LumStatus { return expr; }

#define CMP_LAYOUT(tc, L, LAY, X)                                                   \
  out.push_back({"Compare_" #tc "_" #L "R", LAY, false, false,                      \
                 CMP_CALL(lumiCompare_##tc##_##L##R(a, as, b, bs, d, ds, r, op))}); \
  out.push_back({"CompareC_" #tc "_" #L "R", LAY, true, false,                      \
                 CMP_CALL(lumiCompareC_##tc##_##L##R(a, as, X(b), d, ds, r, op))});

#define CMP_EPS(L, LAY, X)                                                                \
  out.push_back({"CompareEqualEps_32f_" #L "R", LAY, false, true,                         \
                 CMP_CALL(lumiCompareEqualEps_32f_##L##R(a, as, b, bs, d, ds, r, eps))}); \
  out.push_back({"CompareEqualEpsC_32f_" #L "R", LAY, true, true,                         \
                 CMP_CALL(lumiCompareEqualEpsC_32f_##L##R(a, as, X(b), d, ds, r, eps))});

#define CMP_TYPE(tc)                                                               \
  CMP_LAYOUT(tc, C1, kC1, S) CMP_LAYOUT(tc, C3, kC3, A) CMP_LAYOUT(tc, C4, kC4, A) \
  CMP_LAYOUT(tc, AC4, kAC4, A)

template <class T>
std::vector<CmpCase<T>> cmpCases() {
  std::vector<CmpCase<T>> out;
  if constexpr (std::is_same_v<T, Lum8u>) {
    CMP_TYPE(8u)
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    CMP_TYPE(16s)
  } else {
    CMP_TYPE(32f)
    CMP_EPS(C1, kC1, S) CMP_EPS(C3, kC3, A) CMP_EPS(C4, kC4, A) CMP_EPS(AC4, kAC4, A)
  }
  return out;
}

// A NaN operand makes every relation false.
template <class T>
bool relation(int op, T a, T b) {
  switch (op) {
    case 0: return a < b;
    case 1: return a <= b;
    case 2: return a == b;
    case 3: return a >= b;
    default: return a > b;
  }
}

// The difference in single precision; a NaN difference is never within the tolerance.
bool withinEps(float a, float b, float eps) { return std::fabs(a - b) <= eps; }

// Values from a small pool so that all channels of a pixel often agree; NaN and extremes too.
template <class T>
T pooled(Rng& rng) {
  int k = randInt(rng, 0, 9);
  if (k < 6) return static_cast<T>(randInt(rng, 0, 2));
  if constexpr (std::is_floating_point_v<T>) {
    if (k == 6) return std::numeric_limits<T>::quiet_NaN();
    if (k == 7) return std::numeric_limits<T>::infinity();
  } else if (k == 6) {
    return std::numeric_limits<T>::min();
  } else if (k == 7) {
    return std::numeric_limits<T>::max();
  }
  return randomValue<T>(rng);
}

template <class T>
void compareRandomised(uint32_t salt) {
  Rng rng = makeRng(salt);
  for (const CmpCase<T>& c : cmpCases<T>()) {
    for (int iter = 0; iter < 15; ++iter) {
      LumiSize roi = iter == 0 ? LumiSize{1100, 2} : randomSize(rng, 200, 4);
      GuardedImage<T> a(roi.width, roi.height, c.lay.ch, -1, -1, salt + iter);
      GuardedImage<T> b(roi.width, roi.height, c.lay.ch, -1, -1, salt + 2 * iter);
      GuardedImage<Lum8u> mask(roi.width, roi.height, 1, -1, -1, salt + 3 * iter);
      a.fill([&](int, int, int) { return pooled<T>(rng); });
      b.fill([&](int, int, int) { return pooled<T>(rng); });
      if (c.isEps)  // near misses: b a little away from a
        b.fill([&](int x, int y, int ch) {
          return static_cast<T>(a.at(x, y, ch) + (randInt(rng, 0, 3) ? 0.25f * randInt(rng, -4, 4) : 0.0f));
        });
      mask.fillRandom(rng);
      T cst[4];
      for (T& v : cst) v = pooled<T>(rng);
      if (c.isConst && iter % 3 == 0)  // constants the image matches everywhere in some pixels
        for (int k = 0; k < 4; ++k) cst[k] = static_cast<T>(1);
      const int op = iter % 5;
      const float eps = iter % 3 == 0 ? 0.0f : (iter % 3 == 1 ? 0.5f : -0.0f);
      const std::vector<Lum8u> before = mask.pixels();
      ASSERT_EQ(lumStatusOk, c.call(a.ptr(), a.step(), c.isConst ? cst : b.ptr(), b.step(),
                                     mask.ptr(), mask.step(), roi, op, eps))
          << c.name;
      std::vector<Lum8u> want(before.size());
      for (int y = 0; y < roi.height; ++y)
        for (int x = 0; x < roi.width; ++x) {
          bool all = true;
          for (int ch = 0; ch < c.lay.use; ++ch) {
            T u = a.at(x, y, ch), v = c.isConst ? cst[ch] : b.at(x, y, ch);
            all = all && (c.isEps ? withinEps(float(u), float(v), eps) : relation(op, u, v));
          }
          want[static_cast<std::size_t>(y) * roi.width + x] = all ? 255 : 0;
        }
      ASSERT_TRUE(sameElements(mask.pixels(), want, roi.width))
          << c.name << " op " << op << " eps " << eps << " " << roi.width << "x" << roi.height;
      ASSERT_TRUE(mask.guardsIntact() && a.guardsIntact() && b.guardsIntact()) << c.name;
    }
  }
}

TEST(Compare, Randomised8u) { compareRandomised<Lum8u>(10); }
TEST(Compare, Randomised16s) { compareRandomised<Lum16s>(20); }
TEST(Compare, Randomised32f) { compareRandomised<Lum32f>(30); }  // and the tolerance forms

template <class T>
void compareValidation() {
  const T cst[4] = {1, 2, 3, 4};
  for (const CmpCase<T>& c : cmpCases<T>()) {
    GuardedImage<T> a(6, 2, c.lay.ch), b(6, 2, c.lay.ch);
    GuardedImage<Lum8u> m(6, 2, 1);
    Rng rng = makeRng(4);
    a.fillRandom(rng);
    b.fillRandom(rng);
    m.fillRandom(rng);
    const auto before = m.pixels();
    // nul: which pointer is null (0 none, 1 the first image, 2 the second or the constants,
    // 3 the mask)
    auto run = [&](int nul, int as, int bs, int ds, LumiSize r, int op = 9, float eps = -1.0f) {
      return c.call(nul == 1 ? nullptr : a.ptr(), as == kDef ? a.step() : as,
                    nul == 2 ? nullptr : (c.isConst ? cst : b.ptr()), bs == kDef ? b.step() : bs,
                    nul == 3 ? nullptr : m.ptr(), ds == kDef ? m.step() : ds, r, op, eps);
    };
    const LumiSize ok{6, 2}, bad{6, 0};
    const float nan = std::numeric_limits<float>::quiet_NaN();
    // null before steps before size before the tolerance; the operation never fails
    EXPECT_EQ(lumStatusNullPtrErr, run(1, 0, 0, 0, bad)) << c.name;
    if (!(c.isConst && c.lay.ch == 1)) {  // a C1 constant is passed by value
      EXPECT_EQ(lumStatusNullPtrErr, run(2, 0, 0, 0, bad)) << c.name;
    }
    EXPECT_EQ(lumStatusNullPtrErr, run(3, 0, 0, 0, bad)) << c.name;
    EXPECT_EQ(lumStatusStepErr, run(0, 0, kDef, kDef, bad)) << c.name;
    EXPECT_EQ(lumStatusStepErr, run(0, kDef, kDef, -2, bad)) << c.name;
    if (!c.isConst) {
      EXPECT_EQ(lumStatusStepErr, run(0, kDef, 0, kDef, bad)) << c.name;
    }
    EXPECT_EQ(lumStatusSizeErr, run(0, kDef, kDef, kDef, bad)) << c.name;
    EXPECT_EQ(lumStatusSizeErr, run(0, kDef, kDef, kDef, LumiSize{-1, 2}, 0, nan)) << c.name;
    if (c.isEps) {
      for (float e : {-1.0f, nan, -std::numeric_limits<float>::denorm_min()})
        EXPECT_EQ(lumStatusEpsilonErr, run(0, kDef, kDef, kDef, ok, 0, e)) << c.name;
    } else {
      for (int op : {5, 7, -1, 1000}) EXPECT_EQ(lumStatusOk, run(0, kDef, kDef, kDef, ok, op, 0.0f)) << c.name;
    }
    EXPECT_TRUE(sameElements(m.pixels(), before)) << c.name;
    EXPECT_TRUE(m.guardsIntact()) << c.name;
  }
}

TEST(Compare, ValidationOrder8u) { compareValidation<Lum8u>(); }
TEST(Compare, ValidationOrder16s) { compareValidation<Lum16s>(); }
TEST(Compare, ValidationOrder32f) { compareValidation<Lum32f>(); }

// ---- logic ---------------------------------------------------------------------------------

enum LogicKind { kAnd, kOr, kXor, kNot };

// b: the second image (also the in-place destination's initial content) or the constants.
template <class T>
using LogCall = LumStatus (*)(const T* a, int as, const T* b, T* d, int ds, LumiSize r);

template <class T>
struct LogCase {
  std::string name;
  Layout lay;
  LogicKind op;
  bool isConst, inPlace;
  LogCall<T> call;
};

#define LOG_CALL(expr) [](const T* a, int as, const T* b, T* d, int ds, LumiSize r) -> LumStatus { return expr; }

#define LOG_LAYOUT(Op, K, tc, L, LAY, X)                                       \
  out.push_back({#Op "_" #tc "_" #L "R", LAY, K, false, false,                 \
                 LOG_CALL(lumi##Op##_##tc##_##L##R(a, as, d, ds, d, ds, r))}); \
  out.push_back({#Op "_" #tc "_" #L "IR", LAY, K, false, true,                 \
                 LOG_CALL(lumi##Op##_##tc##_##L##IR(a, as, d, ds, r))});       \
  out.push_back({#Op "C_" #tc "_" #L "R", LAY, K, true, false,                 \
                 LOG_CALL(lumi##Op##C_##tc##_##L##R(a, as, X(b), d, ds, r))}); \
  out.push_back({#Op "C_" #tc "_" #L "IR", LAY, K, true, true,                 \
                 LOG_CALL(lumi##Op##C_##tc##_##L##IR(X(b), d, ds, r))});

#define LOG_OPS(tc, L, LAY, X)         \
  LOG_LAYOUT(And, kAnd, tc, L, LAY, X) \
  LOG_LAYOUT(Or, kOr, tc, L, LAY, X) LOG_LAYOUT(Xor, kXor, tc, L, LAY, X)
#define LOG_TYPE(tc) \
  LOG_OPS(tc, C1, kC1, S) LOG_OPS(tc, C3, kC3, A) LOG_OPS(tc, C4, kC4, A) LOG_OPS(tc, AC4, kAC4, A)

#define NOT_LAYOUT(L, LAY)                                       \
  out.push_back({"Not_8u_" #L "R", LAY, kNot, true, false,       \
                 LOG_CALL(lumiNot_8u_##L##R(a, as, d, ds, r))}); \
  out.push_back({"Not_8u_" #L "IR", LAY, kNot, true, true,       \
                 LOG_CALL(lumiNot_8u_##L##IR(d, ds, r))});

template <class T>
std::vector<LogCase<T>> logCases() {
  std::vector<LogCase<T>> out;
  if constexpr (std::is_same_v<T, Lum8u>) {
    LOG_TYPE(8u)
    NOT_LAYOUT(C1, kC1) NOT_LAYOUT(C3, kC3) NOT_LAYOUT(C4, kC4) NOT_LAYOUT(AC4, kAC4)
  } else if constexpr (std::is_same_v<T, Lum16u>) {
    LOG_TYPE(16u)
  } else {
    LOG_TYPE(32s)
  }
  return out;
}

template <class T>
T logicRef(LogicKind op, T a, T b) {
  switch (op) {
    case kAnd: return static_cast<T>(a & b);
    case kOr: return static_cast<T>(a | b);
    case kXor: return static_cast<T>(a ^ b);
    default: return static_cast<T>(~a);
  }
}

// Runs call(src, dst) over a random source and destination (the destination a copy of the
// source when `copy`, as in-place forms need) and checks every owned element against
// ref(source element, destination element before the call, channel); alpha keeps its bytes.
template <class T, class Call, class Ref>
void checkElementwise(Rng& rng, LumiSize roi, int ch, int use, bool copy, uint32_t seed,
                      const std::string& what, Call call, Ref ref) {
  GuardedImage<T> s(roi.width, roi.height, ch, -1, -1, seed);
  GuardedImage<T> d(roi.width, roi.height, ch, -1, -1, seed * 7 + 1);
  s.fillRandom(rng);
  if (copy) d.fill([&](int x, int y, int c) { return s.at(x, y, c); });
  else d.fillRandom(rng);
  const std::vector<T> in = s.pixels(), before = d.pixels();
  ASSERT_EQ(lumStatusOk, call(s, d)) << what;
  std::vector<T> want = before;
  for (std::size_t i = 0; i < want.size(); ++i)
    if (static_cast<int>(i % ch) < use) want[i] = ref(in[i], before[i], static_cast<int>(i % ch));
  ASSERT_TRUE(sameElements(d.pixels(), want, roi.width * ch)) << what;
  ASSERT_TRUE(d.guardsIntact() && s.guardsIntact()) << what;
}

template <class T>
void logicRandomised(uint32_t salt) {
  Rng rng = makeRng(salt);
  for (const LogCase<T>& c : logCases<T>()) {
    for (int iter = 0; iter < 8; ++iter) {
      LumiSize roi = iter == 0 ? LumiSize{randInt(rng, 200, 400), 2} : randomSize(rng, 120, 4);
      T cst[4];
      for (T& v : cst) v = randomValue<T>(rng);
      // Two-image R forms read the second operand from the destination itself (an aliasing
      // call): that keeps one image per operand and exercises overlap of source and result.
      checkElementwise<T>(
          rng, roi, c.lay.ch, c.lay.use, c.inPlace && c.isConst, salt + iter, c.name,
          [&](GuardedImage<T>& a, GuardedImage<T>& d) { return c.call(a.ptr(), a.step(), cst, d.ptr(), d.step(), roi); },
          [&](T x, T prior, int ch) { return logicRef(c.op, x, c.isConst ? cst[ch] : prior); });
    }
  }
}

TEST(Logic, Randomised8u) { logicRandomised<Lum8u>(40); }
TEST(Logic, Randomised16u) { logicRandomised<Lum16u>(50); }
TEST(Logic, Randomised32s) { logicRandomised<Lum32s>(60); }

TEST(Logic, SeparateSourcesAndValidationOrder) {
  Rng rng = makeRng(61);
  GuardedImage<Lum16u> a(37, 3, 4), b(37, 3, 4), d(37, 3, 4);
  a.fillRandom(rng);
  b.fillRandom(rng);
  d.fillRandom(rng);
  auto before = d.pixels();
  ASSERT_EQ(lumStatusOk, lumiXor_16u_AC4R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), d.roi()));
  auto pa = a.pixels(), pb = b.pixels(), pd = d.pixels();
  for (std::size_t i = 0; i < pd.size(); ++i)
    ASSERT_EQ(i % 4 == 3 ? before[i] : static_cast<Lum16u>(pa[i] ^ pb[i]), pd[i]) << i;
  before = d.pixels();
  const Lum16u v3[3] = {1, 2, 3};
  EXPECT_EQ(lumStatusNullPtrErr, lumiAndC_16u_C3R(a.ptr(), 0, nullptr, d.ptr(), 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusNullPtrErr, lumiAnd_16u_C1R(a.ptr(), 0, nullptr, 0, d.ptr(), 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusStepErr, lumiAndC_16u_C3R(a.ptr(), a.step(), v3, d.ptr(), 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusStepErr, lumiOr_16u_C1R(a.ptr(), 2, b.ptr(), -2, d.ptr(), 2, LumiSize{0, 1}));
  EXPECT_EQ(lumStatusSizeErr, lumiOr_16u_C1R(a.ptr(), 2, b.ptr(), 2, d.ptr(), 2, LumiSize{1, 0}));
  EXPECT_EQ(lumStatusStepErr, lumiNot_8u_C1IR(reinterpret_cast<Lum8u*>(d.ptr()), 0, LumiSize{0, 1}));
  EXPECT_EQ(lumStatusNullPtrErr, lumiNot_8u_C3R(nullptr, 0, reinterpret_cast<Lum8u*>(d.ptr()), 0, LumiSize{0, 1}));
  EXPECT_TRUE(sameElements(d.pixels(), before));
  EXPECT_TRUE(d.guardsIntact());
}

// ---- shifts --------------------------------------------------------------------------------

template <class T>
using ShCall = LumStatus (*)(const T* s, int ss, const Lum32u* n, T* d, int ds, LumiSize r);

template <class T>
struct ShCase {
  std::string name;
  Layout lay;
  bool left, inPlace;
  ShCall<T> call;
};

#define SH_CALL(expr) [](const T* s, int ss, const Lum32u* n, T* d, int ds, LumiSize r) -> LumStatus { return expr; }
#define SH_LAYOUT(Op, LEFT, tc, L, LAY, X)                                   \
  out.push_back({#Op "_" #tc "_" #L "R", LAY, LEFT, false,                   \
                 SH_CALL(lumi##Op##_##tc##_##L##R(s, ss, X(n), d, ds, r))}); \
  out.push_back({#Op "_" #tc "_" #L "IR", LAY, LEFT, true,                   \
                 SH_CALL(lumi##Op##_##tc##_##L##IR(X(n), d, ds, r))});
#define SH_OP(Op, LEFT, tc)                                               \
  SH_LAYOUT(Op, LEFT, tc, C1, kC1, S) SH_LAYOUT(Op, LEFT, tc, C3, kC3, A) \
  SH_LAYOUT(Op, LEFT, tc, C4, kC4, A) SH_LAYOUT(Op, LEFT, tc, AC4, kAC4, A)

template <class T>
std::vector<ShCase<T>> shCases() {
  std::vector<ShCase<T>> out;
  if constexpr (std::is_same_v<T, Lum8u>) {
    SH_OP(LShiftC, true, 8u) SH_OP(RShiftC, false, 8u)
  } else if constexpr (std::is_same_v<T, Lum8s>) {
    SH_OP(RShiftC, false, 8s)
  } else if constexpr (std::is_same_v<T, Lum16u>) {
    SH_OP(LShiftC, true, 16u) SH_OP(RShiftC, false, 16u)
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    SH_OP(RShiftC, false, 16s)
  } else {
    SH_OP(LShiftC, true, 32s) SH_OP(RShiftC, false, 32s)
  }
  return out;
}

// Left: the low bits of x * 2^n; right: floor(x / 2^n), which is the sign fill for large n.
template <class T>
T shiftRef(bool left, T x, Lum32u n) {
  constexpr int bits = sizeof(T) * 8;
  if (left) {
    if (n >= static_cast<Lum32u>(bits)) return 0;
    return static_cast<T>(static_cast<uint64_t>(static_cast<std::make_unsigned_t<T>>(x)) << n);
  }
  if (n > 62) n = 62;
  return static_cast<T>(std::floor(static_cast<double>(x) / std::ldexp(1.0, static_cast<int>(n))));
}

template <class T>
void shiftRandomised(uint32_t salt) {
  Rng rng = makeRng(salt);
  const Lum32u bits = sizeof(T) * 8;
  const Lum32u pool[] = {0, 1, 2, 7, 8, 9, bits - 1, bits, bits + 1, 15, 16, 31, 32, 33, 40,
                         0x80000000u, 0xFFFFFFFFu};
  for (const ShCase<T>& c : shCases<T>()) {
    for (int iter = 0; iter < 24; ++iter) {
      LumiSize roi = iter == 0 ? LumiSize{randInt(rng, 200, 400), 2} : randomSize(rng, 100, 4);
      Lum32u n[4];
      const int pick = randInt(rng, 0, 16);
      for (Lum32u& v : n) v = iter % 2 == 0 ? pool[pick] : pool[randInt(rng, 0, 16)];  // uniform or per channel
      SCOPED_TRACE(testing::Message() << "counts " << n[0] << "," << n[1] << "," << n[2] << "," << n[3]);
      checkElementwise<T>(
          rng, roi, c.lay.ch, c.lay.use, c.inPlace, salt + iter, c.name,
          [&](GuardedImage<T>& src, GuardedImage<T>& d) { return c.call(src.ptr(), src.step(), n, d.ptr(), d.step(), roi); },
          [&](T x, T, int ch) { return shiftRef(c.left, x, n[ch]); });
    }
  }
}

TEST(Shift, Randomised8u) { shiftRandomised<Lum8u>(70); }
TEST(Shift, Randomised8s) { shiftRandomised<Lum8s>(71); }
TEST(Shift, Randomised16u) { shiftRandomised<Lum16u>(72); }
TEST(Shift, Randomised16s) { shiftRandomised<Lum16s>(73); }
TEST(Shift, Randomised32s) { shiftRandomised<Lum32s>(74); }

TEST(Shift, ShortcutsAndSignFill) {
  Lum16s v[2] = {-5, 5};
  ASSERT_EQ(lumStatusOk, lumiRShiftC_16s_C1IR(40, v, 4, LumiSize{2, 1}));
  EXPECT_EQ(-1, v[0]);
  EXPECT_EQ(0, v[1]);
  Lum8u p[3] = {1, 2, 255}, q[3] = {9, 9, 9};
  ASSERT_EQ(lumStatusOk, lumiLShiftC_8u_C1R(p, 3, 8, q, 3, LumiSize{3, 1}));
  EXPECT_EQ(0, q[0] | q[1] | q[2]);
  ASSERT_EQ(lumStatusOk, lumiLShiftC_8u_C1R(p, 3, 0, q, 3, LumiSize{3, 1}));
  EXPECT_EQ(0, std::memcmp(p, q, 3));
  const Lum32u n3[3] = {1, 1, 1};
  EXPECT_EQ(lumStatusNullPtrErr, lumiRShiftC_8u_C3R(p, 0, nullptr, q, 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusStepErr, lumiRShiftC_8u_C3R(p, 0, n3, q, 3, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusSizeErr, lumiRShiftC_8u_C3R(p, 3, n3, q, 3, LumiSize{1, 0}));
  EXPECT_EQ(0, std::memcmp(p, q, 3));
}

TEST(Complement, SignMagnitudeAndValidation) {
  Lum32s v[4] = {5, -5, 0, std::numeric_limits<Lum32s>::min()};
  ASSERT_EQ(lumStatusOk, lumiComplement_32s_C1IR(v, 16, LumiSize{4, 1}));
  EXPECT_EQ(5, v[0]);
  EXPECT_EQ(static_cast<Lum32s>(0x80000005u), v[1]);
  EXPECT_EQ(0, v[2]);
  EXPECT_EQ(std::numeric_limits<Lum32s>::min(), v[3]);
  EXPECT_EQ(lumStatusNullPtrErr, lumiComplement_32s_C1IR(nullptr, 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusStepErr, lumiComplement_32s_C1IR(v, 0, LumiSize{0, 0}));
  EXPECT_EQ(lumStatusSizeErr, lumiComplement_32s_C1IR(v, 4, LumiSize{0, 1}));
}

}  // namespace
