// Integer arithmetic with scale factors: every member against a plain reference written from
// the rounding and saturation rules, the validation orders, the shortcuts and the threads.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <functional>
#include <limits>
#include <string>

#include "lumitest.h"

namespace {
using namespace lumitest;

enum Op { Add, Sub, Mul, Div };

// ---- reference ---------------------------------------------------------------------------------
template <class T>
int64_t clampTo(int64_t v) {
  return std::clamp<int64_t>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

// r x 2^-sf, ties to even, by floor division and the remainder.
int64_t scaleRef(int64_t r, int sf) {
  if (sf <= 0) return r * (int64_t(1) << (sf < -20 ? 20 : -sf));  // 2^20 saturates anything
  if (sf > 40) return 0;
  const int64_t p = int64_t(1) << sf;
  int64_t q = r >= 0 ? r / p : -((-r + p - 1) / p);
  const int64_t rem = r - q * p;
  if (2 * rem > p || (2 * rem == p && (q & 1))) ++q;
  return q;
}

// `first` and `second` in the order of the two-image functions: Sub gives second - first,
// Div second / first.
template <class T>
T reference(Op op, T first, T second, int sf) {
  if (op == Div) {
    if (first == 0) return second == 0 ? 0 : second > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
    // single-precision quotient, scaled, rounded to nearest
    const float q = float(second) / float(first) * std::ldexp(1.0f, -std::max(-40, std::min(sf, 40)));
    return T(clampTo<T>(int64_t(std::nearbyint(double(q)))));
  }
  int64_t r = op == Add ? int64_t(first) + second : op == Mul ? int64_t(first) * second : int64_t(second) - first;
  if (std::is_unsigned_v<T> && r < 0) r = 0;
  return T(clampTo<T>(scaleRef(r, sf)));
}

// ---- the members, called through one shape -------------------------------------------------
template <class T>
struct Member {
  std::string name;
  Op op;
  int ch;  // channels in memory
  bool ac4, inPlace, isConst, checksSteps, forks;
  // image forms: (src1, st1, src2, st2, dst, dstStep); in place src2 must equal dst.
  // constant forms: (src, st, -, -, dst, dstStep) with the values in v.
  std::function<LumStatus(const T*, int, const T*, int, T*, int, LumiSize, const T*, int)> call;
};
template <class T>
std::vector<Member<T>>& members() {
  static std::vector<Member<T>> m;
  return m;
}

// Which members test steps, as documented for each of them.
bool stepChecked(Op op, const std::string& type, const std::string& layout, bool inPlace,
                 bool isConst) {
  if (op == Add || op == Sub || type == "16u") return false;
  if (op == Div) return !inPlace;
  if (type == "8u") return false;
  if (!isConst) return layout == "AC4";
  return layout == "AC4" || layout == "C4" || (layout == "C3" && !inPlace);
}

template <class T>
void addMember(const char* opName, Op op, bool isConst, const char* type, const char* layout,
               bool inPlace, decltype(Member<T>::call) f) {
  const std::string l = layout;
  members<T>().push_back(Member<T>{
      std::string(opName) + "_" + type + "_" + l + (inPlace ? "IRSfs" : "RSfs"), op,
      l == "C1" ? 1 : l == "C3" ? 3 : 4, l == "AC4", inPlace, isConst,
      stepChecked(op, type, l, inPlace, isConst),
      l == "C1" && std::string(type) != "16u" && (op == Add || (op == Mul && !isConst)), std::move(f)});
}

// V is how the constant is passed: *v for C1, v otherwise.
#define MEMBERS_L(OP, TC, T, L, V)                                                              \
  addMember<T>(#OP, OP, false, #TC, #L, false,                                                  \
               [](const T* a, int sa, const T* b, int sb, T* d, int sd, LumiSize r, const T* v, \
                  int sf) { return lumi##OP##_##TC##_##L##RSfs(a, sa, b, sb, d, sd, r, sf); }); \
  addMember<T>(#OP, OP, false, #TC, #L, true,                                                   \
               [](const T* a, int sa, const T*, int, T* d, int sd, LumiSize r, const T* v,      \
                  int sf) { return lumi##OP##_##TC##_##L##IRSfs(a, sa, d, sd, r, sf); });       \
  addMember<T>(#OP "C", OP, true, #TC, #L, false,                                               \
               [](const T* a, int sa, const T*, int, T* d, int sd, LumiSize r, const T* v,      \
                  int sf) { return lumi##OP##C_##TC##_##L##RSfs(a, sa, V, d, sd, r, sf); });    \
  addMember<T>(#OP "C", OP, true, #TC, #L, true,                                                \
               [](const T*, int, const T*, int, T* d, int sd, LumiSize r, const T* v, int sf) { \
                 return lumi##OP##C_##TC##_##L##IRSfs(V, d, sd, r, sf);                         \
               });
#define ALL_L(OP, TC, T) \
  MEMBERS_L(OP, TC, T, C1, *v) MEMBERS_L(OP, TC, T, C3, v) MEMBERS_L(OP, TC, T, AC4, v) MEMBERS_L(OP, TC, T, C4, v)
#define ALL_OPS(TC, T) ALL_L(Add, TC, T) ALL_L(Sub, TC, T) ALL_L(Mul, TC, T) ALL_L(Div, TC, T)

const bool registered = [] {
  ALL_OPS(8u, Lum8u)
  ALL_OPS(16u, Lum16u)
  ALL_OPS(16s, Lum16s)
  return true;
}();

TEST(ArithScaled, EveryMemberIsListed) {
  ASSERT_TRUE(registered);
  EXPECT_EQ(members<Lum8u>().size() + members<Lum16u>().size() + members<Lum16s>().size(), 192u);
}

// ---- one call against the reference ----------------------------------------------------------
template <class T>
T specialOrRandom(Rng& r) {
  using L = std::numeric_limits<T>;
  const T specials[] = {0, 1, 2, 3, L::max(), L::min(), T(L::max() - 1), T(L::min() + 1)};
  return randInt(r, 0, 3) == 0 ? specials[randInt(r, 0, 7)] : randomValue<T>(r);
}

template <class T>
struct Setup {
  GuardedImage<T> s1, s2, d;
  T vals[4] = {0, 0, 0, 0};
  Setup(const Member<T>& m, LumiSize roi, uint32_t seed)
      : s1(roi.width, roi.height, m.ch, -1, -1, seed),
        s2(roi.width, roi.height, m.ch, -1, -1, seed + 1),
        d(roi.width, roi.height, m.ch, -1, -1, seed + 2) {}
  LumStatus run(const Member<T>& m, LumiSize roi, int sf) {
    return m.call(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), roi, vals, sf);
  }
};

// Fills the operands and returns the expected destination and status. In place, the
// destination holds the second image (or the source of the constant forms).
template <class T>
std::vector<T> prepare(const Member<T>& m, Setup<T>& s, Rng& rng, int sf, LumStatus* status) {
  for (auto* g : {&s.s1, &s.s2, &s.d}) g->fill([&](int, int, int) { return specialOrRandom<T>(rng); });
  if (m.inPlace)
    s.d.fill([&](int x, int y, int c) { return m.isConst ? s.s1.at(x, y, c) : s.s2.at(x, y, c); });
  const int nv = m.ch == 1 ? 1 : m.ac4 ? 3 : m.ch;
  // sometimes all zero, all one (the copy and fill shortcuts at scale factor 0) or all equal
  const int kind = randInt(rng, 0, sf == 0 ? 3 : 5);
  const T same = kind == 0 ? T(0) : kind == 1 ? T(1) : specialOrRandom<T>(rng);
  for (int c = 0; c < nv; ++c) s.vals[c] = kind <= 2 ? same : specialOrRandom<T>(rng);
  std::vector<T> want = s.d.pixels();
  *status = m.isConst && m.op == Div && std::count(s.vals, s.vals + nv, T(0)) ? lumStatusDivisorZeroErr : lumStatusOk;
  if (*status != lumStatusOk) return want;
  std::size_t k = 0;
  for (int y = 0; y < s.d.height(); ++y)
    for (int x = 0; x < s.d.width(); ++x)
      for (int c = 0; c < m.ch; ++c, ++k) {
        if (m.ac4 && c == 3) continue;
        // src - value and src / value: the constant is the first operand there
        const bool swap = m.isConst && (m.op == Sub || m.op == Div);
        const T other = m.isConst ? s.vals[c] : m.inPlace ? s.d.at(x, y, c) : s.s2.at(x, y, c);
        const T first = swap ? other : s.s1.at(x, y, c), second = swap ? s.s1.at(x, y, c) : other;
        if (!m.isConst && m.op == Div && first == 0) *status = lumStatusDivByZeroWarn;
        want[k] = reference<T>(m.op, first, second, sf);
      }
  return want;
}

// Every scale factor from -19 to 34 (all the kernel boundaries), then the far ends, on random
// small images; then a few wide rows (several vectors, and rows longer than the chunks in
// which constants are laid out).
template <class T>
void compareAll(uint32_t salt) {
  Rng rng = makeRng(salt);
  std::vector<std::pair<int, LumiSize>> cases;
  for (int sf = -19; sf <= 34; ++sf) cases.push_back({sf, LumiSize{0, 0}});
  for (int sf : {INT_MIN, -40, -31, -25, 38, 40, INT_MAX}) cases.push_back({sf, LumiSize{0, 0}});
  for (int k = 0; k < 4; ++k) cases.push_back({randInt(rng, -18, 33), LumiSize{1100 + k, 2}});
  for (const Member<T>& m : members<T>()) {
    for (auto [sf, size] : cases) {
      const LumiSize roi = size.width ? size : randomSize(rng, 67, 3);
      Setup<T> s(m, roi, rng());
      LumStatus want;
      std::vector<T> expect = prepare(m, s, rng, sf, &want);
      const LumStatus got = s.run(m, roi, sf);
      SCOPED_TRACE(m.name + " sf " + std::to_string(sf) + " size " + std::to_string(roi.width) +
                   "x" + std::to_string(roi.height));
      ASSERT_EQ(got, want);
      ASSERT_TRUE(sameElements(s.d.pixels(), expect, roi.width * m.ch));
      ASSERT_TRUE(s.d.guardsIntact() && s.s1.guardsIntact() && s.s2.guardsIntact());
    }
  }
}

TEST(ArithScaled, EightBitMembersMatchTheReference) { compareAll<Lum8u>(1); }
TEST(ArithScaled, SixteenBitUnsignedMembersMatchTheReference) { compareAll<Lum16u>(2); }
TEST(ArithScaled, SixteenBitSignedMembersMatchTheReference) { compareAll<Lum16s>(3); }

// The reference divides in single precision; for 8u that is the exactly rounded quotient.
TEST(ArithScaled, EightBitDivisionRoundsExactQuotientsToEven) {
  std::vector<Lum8u> a(256 * 256), b(256 * 256), d(256 * 256);
  for (int i = 0; i < 256 * 256; ++i) a[i] = Lum8u(i & 255), b[i] = Lum8u(i >> 8);
  for (int sf : {-9, -3, -1, 0, 1, 2, 5, 8}) {
    // rows of 256: row i divides every dividend by i
    ASSERT_EQ(lumiDiv_8u_C1RSfs(b.data(), 256, a.data(), 256, d.data(), 256, {256, 256}, sf),
              lumStatusDivByZeroWarn);
    for (int i = 256; i < 256 * 256; ++i) {
      const int64_t num = int64_t(a[i]) << std::max(0, -sf), den = int64_t(b[i]) << std::max(0, sf);
      int64_t q = num / den, rem = num - q * den;
      if (2 * rem > den || (2 * rem == den && (q & 1))) ++q;
      ASSERT_EQ(d[i], std::min<int64_t>(q, 255)) << int(a[i]) << "/" << int(b[i]) << " sf " << sf;
    }
  }
}

TEST(ArithScaled, DocumentedValues) {
  using F8 = LumStatus (*)(const Lum8u*, int, const Lum8u*, int, Lum8u*, int, LumiSize, int);
  const F8 fns[] = {lumiAdd_8u_C1RSfs, lumiSub_8u_C1RSfs, lumiMul_8u_C1RSfs};
  struct Case8 { Op op; Lum8u first, second; int sf, want; };
  const Case8 cases[] = {{Add, 200, 100, 0, 255}, {Add, 200, 100, 1, 150}, {Add, 1, 2, 1, 2},
                         {Add, 2, 3, 1, 2},       {Add, 255, 255, 9, 1},   {Add, 255, 255, 10, 0},
                         {Add, 0, 0, -8, 0},      {Add, 0, 1, -8, 255},    {Add, 0, 1, -7, 128},
                         {Sub, 10, 3, 0, 0},      {Sub, 3, 10, 0, 7},      {Mul, 255, 255, 8, 254},
                         {Mul, 255, 255, 4, 255}, {Mul, 6, 1, 2, 2},       {Mul, 10, 1, 2, 2},
                         {Mul, 7, 1, 1, 4}};
  for (const Case8& c : cases) {
    Lum8u d = 99;
    EXPECT_EQ(fns[c.op](&c.first, 1, &c.second, 1, &d, 1, {1, 1}, c.sf), lumStatusOk);
    EXPECT_EQ(d, c.want) << c.op << ": " << int(c.first) << ", " << int(c.second) << " sf " << c.sf;
  }
  // 16u products need 33 bits before rounding at the largest scale factor; 17 elements reach
  // the vector kernels
  std::vector<Lum16u> p(17, 65535), q(17, 65535), r(17, 7);
  q[16] = 32768;  // 2^31 - 32768: just under a half
  EXPECT_EQ(lumiMul_16u_C1RSfs(p.data(), 34, q.data(), 34, r.data(), 34, {17, 1}, 32), lumStatusOk);
  EXPECT_TRUE(r[0] == 1 && r[16] == 0);
  Lum16s s = -32768, t = -32768, u = 0;
  EXPECT_EQ(lumiMul_16s_C1RSfs(&s, 2, &t, 2, &u, 2, {1, 1}, 30), lumStatusOk);
  EXPECT_EQ(u, 1);
  EXPECT_EQ(lumiMul_16s_C1RSfs(&s, 2, &t, 2, &u, 2, {1, 1}, 31), lumStatusOk);  // 0.5 -> 0
  EXPECT_EQ(u, 0);
}

// ---- division by zero ------------------------------------------------------------------------
TEST(ArithScaled, ImageDivisionByZeroIsAWarningWithDefinedValues) {
  auto ints = [](const auto* p, int n) { return std::vector<int>(p, p + n); };
  Lum8u div8[4] = {0, 0, 2, 2}, num8[4] = {7, 0, 5, 7}, out8[4];
  EXPECT_EQ(lumiDiv_8u_C1RSfs(div8, 4, num8, 4, out8, 4, {4, 1}, 0), lumStatusDivByZeroWarn);
  EXPECT_EQ(ints(out8, 4), (std::vector<int>{255, 0, 2, 4}));  // 2.5 and 3.5 to even
  Lum16s div16[3] = {0, 0, 0}, num16[3] = {5, -5, 0};
  EXPECT_EQ(lumiDiv_16s_C1IRSfs(div16, 6, num16, 6, {3, 1}, -40), lumStatusDivByZeroWarn);
  EXPECT_EQ(ints(num16, 3), (std::vector<int>{32767, -32768, 0}));
  Lum16u du[2] = {0, 3}, nu[2] = {9, 9}, ou[2];
  EXPECT_EQ(lumiDiv_16u_C1RSfs(du, 4, nu, 4, ou, 4, {2, 1}, 20), lumStatusDivByZeroWarn);
  EXPECT_EQ(ints(ou, 2), (std::vector<int>{65535, 0}));

  // a zero divisor only in the last row still reports, and every row is written
  GuardedImage<Lum8u> a(19, 6, 1), b(19, 6, 1), d(19, 6, 1);
  a.fill([](int, int y, int) { return Lum8u(y == 5 ? 0 : 3); });
  b.fill([](int x, int, int) { return Lum8u(x); });
  EXPECT_EQ(lumiDiv_8u_C1RSfs(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), a.roi(), 0),
            lumStatusDivByZeroWarn);
  EXPECT_EQ(d.at(18, 0), 6);
  EXPECT_EQ(d.at(18, 5), 255);
  EXPECT_TRUE(d.guardsIntact());

  // zero divisors in the alpha channel of AC4 are not divisions that happen
  GuardedImage<Lum8u> a4(5, 2, 4), b4(5, 2, 4), d4(5, 2, 4);
  a4.fill([](int, int, int c) { return Lum8u(c == 3 ? 0 : 2); });
  b4.fill([](int, int, int c) { return Lum8u(10 + c); });
  EXPECT_EQ(lumiDiv_8u_AC4RSfs(a4.ptr(), a4.step(), b4.ptr(), b4.step(), d4.ptr(), d4.step(), a4.roi(), 0), lumStatusOk);
  EXPECT_EQ(lumiDiv_8u_AC4IRSfs(a4.ptr(), a4.step(), b4.ptr(), b4.step(), b4.roi(), 0), lumStatusOk);
  EXPECT_EQ(b4.at(4, 1, 3), 13);
  EXPECT_TRUE(d4.guardsIntact() && b4.guardsIntact());
}

TEST(ArithScaled, DivisionFollowsTheCallersRoundingMode) {
  Lum8u div[2] = {2, 2}, num[2] = {7, 5}, out[2];
  const unsigned old = lum_set_rc_ssx(0x6000);  // toward zero
  EXPECT_EQ(lumiDiv_8u_C1RSfs(div, 2, num, 2, out, 2, {2, 1}, 0), lumStatusOk);
  lum_set_cw_ssx(old);
  EXPECT_TRUE(out[0] == 3 && out[1] == 2);
  EXPECT_EQ(lumiDiv_8u_C1RSfs(div, 2, num, 2, out, 2, {2, 1}, 0), lumStatusOk);
  EXPECT_TRUE(out[0] == 4 && out[1] == 2);
}

// ---- validation ---------------------------------------------------------------------------------
template <class T>
void validation() {
  for (const Member<T>& m : members<T>()) {
    SCOPED_TRACE(m.name);
    GuardedImage<T> a(9, 3, m.ch), b(9, 3, m.ch), d(9, 3, m.ch);
    a.fill([](int, int, int) { return T(1); });
    b.fill([](int, int, int) { return T(1); });
    const T ones[4] = {1, 1, 1, 1};
    T zeroOne[4] = {1, 1, 1, 1};
    zeroOne[m.ac4 ? 2 : m.ch - 1] = 0;
    const LumiSize roi = a.roi(), empty{0, 3};
    auto call = [&](const T* s1, int st1, const T* s2, int st2, T* dst, int dstep, LumiSize r,
                    const T* v) { return m.call(s1, st1, s2, st2, dst, dstep, r, v, 0); };
    // pointers first, even before a bad size
    EXPECT_EQ(call(a.ptr(), a.step(), b.ptr(), b.step(), nullptr, d.step(), empty, ones), lumStatusNullPtrErr);
    if (!m.isConst || !m.inPlace) { EXPECT_EQ(call(nullptr, a.step(), b.ptr(), b.step(), d.ptr(), d.step(), roi, ones), lumStatusNullPtrErr); }
    if (!m.isConst && !m.inPlace) { EXPECT_EQ(call(a.ptr(), a.step(), nullptr, b.step(), d.ptr(), d.step(), roi, ones), lumStatusNullPtrErr); }
    if (m.isConst && m.ch > 1) { EXPECT_EQ(call(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), roi, nullptr), lumStatusNullPtrErr); }
    // sizes before steps
    EXPECT_EQ(call(a.ptr(), 0, b.ptr(), 0, d.ptr(), 0, {3, 0}, ones), lumStatusSizeErr);
    EXPECT_EQ(call(a.ptr(), -1, b.ptr(), -1, d.ptr(), -1, {0, 3}, ones), lumStatusSizeErr);
    const std::vector<T> before = d.pixels();
    // steps only where the member checks them, the constant divisor after the steps
    const int stepErr = m.checksSteps ? -14 : 0;
    if (!m.inPlace) {
      EXPECT_EQ(call(a.ptr(), 0, b.ptr(), b.step(), d.ptr(), d.step(), roi, ones), stepErr);
      if (!m.isConst) { EXPECT_EQ(call(a.ptr(), a.step(), b.ptr(), 0, d.ptr(), d.step(), roi, ones), stepErr); }
    } else if (m.isConst) {
      EXPECT_EQ(call(a.ptr(), 0, b.ptr(), 0, d.ptr(), d.step(), roi, ones), lumStatusOk);
      EXPECT_EQ(call(nullptr, 0, nullptr, 0, d.ptr(), 0, roi, ones), stepErr);
    } else {
      EXPECT_EQ(call(a.ptr(), 0, b.ptr(), 0, d.ptr(), d.step(), roi, ones), stepErr);
    }
    if (m.checksSteps) { EXPECT_TRUE(sameElements(d.pixels(), before)); }
    if (m.op == Div && m.isConst) {
      d.fill([](int, int, int) { return T(9); });
      const std::vector<T> nines = d.pixels();
      EXPECT_EQ(call(a.ptr(), a.step(), nullptr, 0, d.ptr(), d.step(), roi, zeroOne), lumStatusDivisorZeroErr);
      EXPECT_EQ(call(a.ptr(), a.step(), nullptr, 0, d.ptr(), 0, roi, zeroOne),
                m.checksSteps ? -14 : -10);
      EXPECT_TRUE(sameElements(d.pixels(), nines));
    }
    EXPECT_TRUE(d.guardsIntact());
  }
}

TEST(ArithScaled, ValidationOrderAndPerMemberStepChecks) {
  validation<Lum8u>();
  validation<Lum16u>();
  validation<Lum16s>();
}

// An unchecked source step of zero is used as it is: every row reads the source's row 0.
template <class T>
void zeroSourceStep() {
  Rng rng = makeRng(11);
  for (const Member<T>& m : members<T>()) {
    if (m.inPlace || m.checksSteps) continue;
    SCOPED_TRACE(m.name);
    GuardedImage<T> a(13, 4, m.ch), b(13, 4, m.ch), d0(13, 4, m.ch), d1(13, 4, m.ch);
    a.fillRandom(rng);
    b.fill([&](int, int, int) { return T(randInt(rng, 1, 100)); });
    const T vals[4] = {3, 5, 7, 9};
    const LumStatus s0 = m.call(a.ptr(), 0, b.ptr(), b.step(), d0.ptr(), d0.step(), a.roi(), vals, 1);
    a.fill([&](int x, int, int c) { return a.at(x, 0, c); });
    const LumStatus s1 = m.call(a.ptr(), a.step(), b.ptr(), b.step(), d1.ptr(), d1.step(), a.roi(), vals, 1);
    EXPECT_EQ(s0, s1);
    std::vector<T> p0 = d0.pixels(), p1 = d1.pixels();
    for (std::size_t i = 3; m.ac4 && i < p0.size(); i += 4) p0[i] = p1[i] = 0;
    EXPECT_TRUE(sameElements(p0, p1));
  }
}
TEST(ArithScaled, UncheckedZeroStepsAreUsedAsTheyAre) {
  zeroSourceStep<Lum8u>();
  zeroSourceStep<Lum16u>();
  zeroSourceStep<Lum16s>();
}

// ---- shortcuts ---------------------------------------------------------------------------------
// Memory that faults when touched: a source pointer into it proves that nothing is read.
struct Untouchable {
  void* base;
  long page = sysconf(_SC_PAGESIZE);
  Untouchable() { base = mmap(nullptr, page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0); }
  ~Untouchable() { munmap(base, page); }
  template <class T>
  const T* ptr() const {
    return static_cast<const T*>(base);
  }
};

TEST(ArithScaled, ZeroFillReadsNoSourceAndKeepsAlpha) {
  Untouchable u;
  ASSERT_NE(u.base, MAP_FAILED);
  const Lum8u* n8 = u.ptr<Lum8u>();
  GuardedImage<Lum8u> d8(23, 5, 1), d4(7, 3, 4);
  GuardedImage<Lum16u> d16(11, 4, 3);
  GuardedImage<Lum16s> s16(9, 2, 1);
  auto zeroed = [](auto& img, int keep, const std::function<LumStatus()>& call) {  // keep: alpha
    img.fill([&](int, int, int) { return keep; });
    EXPECT_EQ(call(), lumStatusOk);
    for (int y = 0; y < img.height(); ++y)
      for (int x = 0; x < img.width(); ++x)
        for (int c = 0; c < img.channels(); ++c) EXPECT_EQ(img.at(x, y, c), c == 3 ? keep : 0);
  };
  zeroed(d8, 77, [&] { return lumiAdd_8u_C1RSfs(n8, 1, n8, 1, d8.ptr(), d8.step(), d8.roi(), 10); });
  zeroed(d8, 77, [&] { return lumiMulC_8u_C1RSfs(n8, 1, 0, d8.ptr(), d8.step(), d8.roi(), -3); });
  zeroed(d8, 77, [&] { return lumiSub_8u_C1RSfs(n8, 1, n8, 1, d8.ptr(), d8.step(), d8.roi(), 9); });
  zeroed(d16, 5, [&] {
    return lumiSub_16u_C3RSfs(u.ptr<Lum16u>(), 0, u.ptr<Lum16u>(), 0, d16.ptr(), d16.step(), d16.roi(), 17);
  });
  zeroed(s16, -4, [&] { return lumiMul_16s_C1IRSfs(u.ptr<Lum16s>(), 2, s16.ptr(), s16.step(), s16.roi(), 31); });
  // the fill keeps every alpha
  zeroed(d4, 200, [&] { return lumiAdd_8u_AC4RSfs(n8, 4, n8, 4, d4.ptr(), d4.step(), d4.roi(), 12); });
  const Lum8u zero3[3] = {0, 0, 0};
  zeroed(d4, 200, [&] { return lumiMulC_8u_AC4IRSfs(zero3, d4.ptr(), d4.step(), d4.roi(), 0); });
  // the fill refuses a destination step below one, whatever the member checks otherwise
  EXPECT_EQ(lumiAdd_8u_C1RSfs(n8, 1, n8, 1, d8.ptr(), 0, d8.roi(), 10), lumStatusStepErr);
  EXPECT_TRUE(d8.guardsIntact() && d4.guardsIntact() && d16.guardsIntact() && s16.guardsIntact());
}

// ---- threads ------------------------------------------------------------------------------------
template <class T>
void threadsAgree() {
  Rng rng = makeRng(31);
  const int saved = threads_omp_of_n_lum;
  for (const Member<T>& m : members<T>()) {
    if (!m.forks) continue;
    SCOPED_TRACE(m.name);
    for (LumiSize roi : {LumiSize{100, 155}, LumiSize{100, 156}, LumiSize{517, 301}}) {
      Setup<T> s(m, roi, rng());
      LumStatus want;
      const int sf = randInt(rng, -3, 6);
      std::vector<T> expect = prepare(m, s, rng, sf, &want);
      const std::vector<T> start = s.d.pixels();
      threads_omp_of_n_lum = 1;
      ASSERT_EQ(s.run(m, roi, sf), want);
      const std::vector<T> one = s.d.pixels();
      s.d.fill([&](int x, int y, int c) { return start[(std::size_t(y) * roi.width + x) * m.ch + c]; });
      threads_omp_of_n_lum = 2;
      ASSERT_EQ(s.run(m, roi, sf), want);
      EXPECT_TRUE(sameElements(s.d.pixels(), one));
      EXPECT_TRUE(sameElements(one, expect));
      EXPECT_TRUE(s.d.guardsIntact());
    }
  }
  threads_omp_of_n_lum = saved;
}
TEST(ArithScaled, OneAndTwoThreadsAgree) {
  threadsAgree<Lum8u>();
  threadsAgree<Lum16s>();
}

}  // namespace
