// Type conversion and range scaling: every member against a scalar reference written from the
// rules, the rounding-mode protocol, validation order and the bit-packed conversions.
#include <xmmintrin.h>

#include <algorithm>
#include <cfloat>
#include <functional>
#include <limits>

#include "lumitest.h"

namespace {
using namespace lumitest;

constexpr unsigned kNear = 0, kDown = 0x2000, kUp = 0x4000, kZero = 0x6000;
constexpr unsigned kModes[] = {kNear, kDown, kUp, kZero};

struct CallerMode {  // sets the caller's rounding mode (and status flags) for a scope
  unsigned saved = _mm_getcsr();
  CallerMode(unsigned mode, unsigned flags = 0) { _mm_setcsr((saved & ~0x603fu) | mode | flags); }
  ~CallerMode() { _mm_setcsr(saved); }
};

double roundBy(double v, unsigned mode) {
  if (mode == kDown) return std::floor(v);
  if (mode == kUp) return std::ceil(v);
  if (mode == kZero) return std::trunc(v);
  double f = std::floor(v), d = v - f;
  return (d > 0.5 || (d == 0.5 && std::fmod(f, 2.0) != 0)) ? f + 1 : f;
}
template <class D>
D refRound(float v, unsigned mode) {  // saturating; NaN gives the type's minimum
  using L = std::numeric_limits<D>;
  if (std::isnan(v)) return L::min();
  return static_cast<D>(roundBy(std::clamp<double>(v, L::min(), L::max()), mode));
}
// (v + off) * a - b in single precision, one rounding per step, by the current mode.
template <class S>
float affine(S v, float off, float a, float b) {
  volatile float x = static_cast<float>(v);
  volatile float t = (x + off) * a;
  return t - b;
}

template <class T>
std::vector<T> specials() {
  using L = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>)
    return {NAN, INFINITY, -INFINITY, -0.0f, 0.5f, 1.5f, 2.5f, -0.5f, -1.5f, -0.4f, 127.5f,
            128.5f, 254.5f, 255.5f, 256.0f, -128.5f, -129.0f, 32767.5f, -32768.5f, 65534.5f,
            65535.5f, 1e10f, -1e10f, 1e-40f, std::nextafter(0.5f, 1.0f)};
  else
    return {L::min(), L::max(), T(0), T(1), T(L::max() / 2 + 1), T(L::min() + 1),
            T(std::min<int64_t>(L::max(), 255)), T(std::min<int64_t>(L::max(), 256))};
}

// One exported image function: a randomised comparison and an untyped call for validation.
struct Member {
  std::string name;
  std::function<void(Rng&)> check;
  std::function<LumStatus(const void*, int, void*, int, LumiSize)> call;
  int srcBytes, dstBytes, ch;
  std::function<LumStatus(float, float, const void*)> withRange;  // 32f Scale members only
};
std::vector<Member>& members() {
  static std::vector<Member> m;
  return m;
}

template <class TS, class TD, class Call, class Ref>
void compareRandom(const std::string& name, int ch, bool ac4, Call call, Ref ref, Rng& rng,
                   int rounds = 10) {
  auto extra = specials<TS>();
  for (int it = 0; it < rounds; ++it) {
    LumiSize r = it % 4 == 3 ? randomSize(rng, 300, 3) : randomSize(rng);
    int pad = it % 3 == 0 ? 0 : -1;  // unpadded rows take the single-row path
    GuardedImage<TS> src(r.width, r.height, ch, pad, pad, rng());
    GuardedImage<TD> dst(r.width, r.height, ch, pad, pad, rng());
    src.fillRandom(rng);
    src.fill([&](int x, int y, int c) {
      return randInt(rng, 0, 3) ? src.at(x, y, c) : extra[randInt(rng, 0, int(extra.size()) - 1)];
    });
    dst.fillRandom(rng);
    std::vector<TS> in = src.pixels();
    std::vector<TD> want = dst.pixels();
    {
      CallerMode nearest(kNear);  // the references' single-precision steps round to nearest
      for (std::size_t i = 0; i < want.size(); ++i)
        if (!(ac4 && i % 4 == 3)) want[i] = ref(in[i]);
    }
    ASSERT_EQ(call(src.ptr(), src.step(), dst.ptr(), dst.step(), r), lumStatusOk) << name;
    ASSERT_TRUE(dst.guardsIntact()) << name;
    ASSERT_TRUE(sameElements(dst.pixels(), want, r.width * ch)) << name << " " << r.width << "x"
                                                                << r.height;
  }
}

template <class TS, class TD, class Fn, class Ref>
void add(const std::string& name, int ch, bool ac4, Fn fn, Ref ref) {
  Member m{name, {}, {}, int(sizeof(TS)), int(sizeof(TD)), ch, {}};
  m.check = [=](Rng& rng) { compareRandom<TS, TD>(name, ch, ac4, fn, ref, rng); };
  m.call = [=](const void* s, int ss, void* d, int ds, LumiSize r) {
    return fn(static_cast<const TS*>(s), ss, static_cast<TD*>(d), ds, r);
  };
  members().push_back(m);
}

#define EACH_LAYOUT(ADD, op, ts, td, TS, TD, ...)                                          \
  ADD(#op "_" #ts #td "_C1R", 1, false, lumi##op##_##ts##td##_C1R, TS, TD, __VA_ARGS__);  \
  ADD(#op "_" #ts #td "_C3R", 3, false, lumi##op##_##ts##td##_C3R, TS, TD, __VA_ARGS__);  \
  ADD(#op "_" #ts #td "_AC4R", 4, true, lumi##op##_##ts##td##_AC4R, TS, TD, __VA_ARGS__); \
  ADD(#op "_" #ts #td "_C4R", 4, false, lumi##op##_##ts##td##_C4R, TS, TD, __VA_ARGS__)

#define PLAIN(name, ch, ac4, fn, TS, TD, ref) add<TS, TD>(name, ch, ac4, fn, ref)
// Float to integer: the random check runs every selector (1 nearest, anything else zero).
#define ROUNDED(name, ch, ac4, fn, TS, TD, unused)                                           \
  for (int sel : {0, 1, 2, -1})                                                             \
    add<TS, TD>(name, ch, ac4,                                                              \
                [sel](const TS* s, int ss, TD* d, int ds, LumiSize r) { return fn(s, ss, d, ds, r, sel); }, \
                [sel](TS v) { return refRound<TD>(v, sel == 1 ? kNear : kZero); })
#define HINTED(name, ch, ac4, fn, TS, TD, off, inv)                                          \
  for (int hint : {lumHintAccurate, lumHintFast, lumHintNone})                              \
    add<TS, TD>(name, ch, ac4,                                                              \
                [hint](const TS* s, int ss, TD* d, int ds, LumiSize r) { return fn(s, ss, d, ds, r, hint); }, \
                [](TS v) { return refRound<TD>(affine(v, off, inv, 0.0f), kNear); })
#define RANGED(name, ch, ac4, fn, TS, TD, lo, hi, ref)                                       \
  {                                                                                         \
    add<TS, TD>(name, ch, ac4,                                                              \
                [](const TS* s, int ss, TD* d, int ds, LumiSize r) { return fn(s, ss, d, ds, r, lo, hi); }, \
                ref);                                                                       \
    members().back().withRange = [](float a, float b, const void* s) {                      \
      return fn(static_cast<const TS*>(s), 4, nullptr, 4, LumiSize{0, 0}, a, b);            \
    };                                                                                      \
  }

const float kInv257 = 0.0038910505827516317f, kInv32 = float(1.0 / 16843009.0);
const float kLo = -3.25f, kHi = 200.5f;  // a range whose factors are inexact

bool registerAll() {
  EACH_LAYOUT(PLAIN, Convert, 8u, 16u, Lum8u, Lum16u, [](Lum8u v) { return Lum16u(v); });
  EACH_LAYOUT(PLAIN, Convert, 8u, 16s, Lum8u, Lum16s, [](Lum8u v) { return Lum16s(v); });
  EACH_LAYOUT(PLAIN, Convert, 8u, 32s, Lum8u, Lum32s, [](Lum8u v) { return Lum32s(v); });
  EACH_LAYOUT(PLAIN, Convert, 8u, 32f, Lum8u, Lum32f, [](Lum8u v) { return Lum32f(v); });
  EACH_LAYOUT(PLAIN, Convert, 8s, 32s, Lum8s, Lum32s, [](Lum8s v) { return Lum32s(v); });
  EACH_LAYOUT(PLAIN, Convert, 8s, 32f, Lum8s, Lum32f, [](Lum8s v) { return Lum32f(v); });
  EACH_LAYOUT(PLAIN, Convert, 16u, 32s, Lum16u, Lum32s, [](Lum16u v) { return Lum32s(v); });
  EACH_LAYOUT(PLAIN, Convert, 16u, 32f, Lum16u, Lum32f, [](Lum16u v) { return Lum32f(v); });
  EACH_LAYOUT(PLAIN, Convert, 16s, 32f, Lum16s, Lum32f, [](Lum16s v) { return Lum32f(v); });
  EACH_LAYOUT(PLAIN, Convert, 16u, 8u, Lum16u, Lum8u, [](Lum16u v) { return Lum8u(std::min(int(v), 255)); });
  EACH_LAYOUT(PLAIN, Convert, 16s, 8u, Lum16s, Lum8u, [](Lum16s v) { return Lum8u(std::clamp(int(v), 0, 255)); });
  EACH_LAYOUT(PLAIN, Convert, 32s, 8u, Lum32s, Lum8u, [](Lum32s v) { return Lum8u(std::clamp(v, 0, 255)); });
  EACH_LAYOUT(PLAIN, Convert, 32s, 8s, Lum32s, Lum8s, [](Lum32s v) { return Lum8s(std::clamp(v, -128, 127)); });
  EACH_LAYOUT(ROUNDED, Convert, 32f, 8u, Lum32f, Lum8u, 0);
  EACH_LAYOUT(ROUNDED, Convert, 32f, 8s, Lum32f, Lum8s, 0);
  EACH_LAYOUT(ROUNDED, Convert, 32f, 16u, Lum32f, Lum16u, 0);
  EACH_LAYOUT(ROUNDED, Convert, 32f, 16s, Lum32f, Lum16s, 0);
  EACH_LAYOUT(PLAIN, Scale, 8u, 16u, Lum8u, Lum16u, [](Lum8u v) { return Lum16u(v * 65535 / 255); });
  EACH_LAYOUT(PLAIN, Scale, 8u, 16s, Lum8u, Lum16s, [](Lum8u v) { return Lum16s(v * 65535 / 255 - 32768); });
  EACH_LAYOUT(PLAIN, Scale, 8u, 32s, Lum8u, Lum32s, [](Lum8u v) { return Lum32s(v * int64_t{4294967295} / 255 - 2147483648LL); });
  EACH_LAYOUT(HINTED, Scale, 16u, 8u, Lum16u, Lum8u, 0.0f, kInv257);
  EACH_LAYOUT(HINTED, Scale, 16s, 8u, Lum16s, Lum8u, 32768.0f, kInv257);
  EACH_LAYOUT(HINTED, Scale, 32s, 8u, Lum32s, Lum8u, 2147483648.0f, kInv32);
  EACH_LAYOUT(RANGED, Scale, 8u, 32f, Lum8u, Lum32f, kLo, kHi, [](Lum8u v) {
    volatile float t = float(v) * ((kHi - kLo) / 255.0f);
    return t + kLo;
  });
  EACH_LAYOUT(RANGED, Scale, 32f, 8u, Lum32f, Lum8u, kLo, kHi, [](Lum32f v) {
    volatile float a = 255.0f / (kHi - kLo);
    return refRound<Lum8u>(affine(v, 0.0f, a, kLo * a), kNear);
  });
  return true;
}
const bool registered = registerAll();

TEST(Convert, EveryMemberMatchesTheReference) {
  Rng rng = makeRng(1);
  for (auto& m : members()) {
    SCOPED_TRACE(m.name);
    m.check(rng);
  }
}

TEST(Convert, ValidationOrderAndNothingWrittenOnError) {
  for (auto& m : members()) {
    SCOPED_TRACE(m.name);
    GuardedImage<uint8_t> src(8 * m.srcBytes * m.ch, 2, 1), dst(8 * m.dstBytes * m.ch, 2, 1);
    auto before = dst.pixels();
    const LumiSize ok{8, 2};
    EXPECT_EQ(m.call(nullptr, src.step(), dst.ptr(), dst.step(), LumiSize{0, 0}), lumStatusNullPtrErr);
    EXPECT_EQ(m.call(src.ptr(), src.step(), nullptr, dst.step(), ok), lumStatusNullPtrErr);
    EXPECT_EQ(m.call(src.ptr(), 0, dst.ptr(), 0, LumiSize{0, 2}), lumStatusSizeErr);
    EXPECT_EQ(m.call(src.ptr(), src.step(), dst.ptr(), dst.step(), LumiSize{8, -1}), lumStatusSizeErr);
    EXPECT_EQ(m.call(src.ptr(), 0, dst.ptr(), dst.step(), ok), lumStatusStepErr);
    EXPECT_EQ(m.call(src.ptr(), src.step(), dst.ptr(), -dst.step(), ok), lumStatusStepErr);
    EXPECT_TRUE(sameElements(dst.pixels(), before));
    EXPECT_TRUE(dst.guardsIntact());
    if (m.withRange) {  // the range is tested before anything else, even a null pointer
      EXPECT_EQ(m.withRange(1.0f, 1.0f, nullptr), lumStatusScaleRangeErr);
      EXPECT_EQ(m.withRange(2.0f, -1.0f, src.ptr()), lumStatusScaleRangeErr);
      EXPECT_EQ(m.withRange(0.0f, NAN, src.ptr()), lumStatusScaleRangeErr);
      EXPECT_EQ(m.withRange(0.0f, 1.0f, nullptr), lumStatusNullPtrErr);
    }
  }
}

// Float to integer under every caller mode (and the scaling from 32f, which always rounds to
// nearest, its factors included): the selector alone decides the rounding, and the
// caller's register comes back exactly (all flags preset, so none can newly appear; with flags
// clear and a differing mode the whole saved register is written back).
TEST(Convert, RoundingModeIsTheSelectorsAndTheCallersRegisterIsRestored) {
  Rng rng = makeRng(2);
  for (auto& m : members()) {
    if (m.name.rfind("Convert_32f", 0) != 0 && m.name.rfind("Scale_32f", 0) != 0) continue;
    SCOPED_TRACE(m.name);
    for (unsigned mode : kModes)
      for (unsigned flags : {0x3fu, 0u}) {
        CallerMode caller(mode, flags);
        const unsigned before = _mm_getcsr();
        m.check(rng);
        const unsigned after = _mm_getcsr();
        EXPECT_EQ(flags ? after : after & ~0x3fu, flags ? before : before & ~0x3fu);
      }
  }
  const float in[5] = {2.5f, 3.5f, -0.4f, 300.0f, -1.7f};
  Lum8u out[5];
  for (unsigned mode : kModes)
    for (int sel : {lumRndNear, lumRndZero}) {
      CallerMode caller(mode);
      const unsigned before = _mm_getcsr();
      ASSERT_EQ(lumiConvert_32f8u_C1R(in, 20, out, 5, LumiSize{5, 1}, sel), lumStatusOk);
      const unsigned after = _mm_getcsr();
      const bool differs = (sel == lumRndNear ? kNear : kZero) != mode;
      EXPECT_EQ(differs ? after : after & ~0x3fu, differs ? before : before & ~0x3fu);
      EXPECT_TRUE(sameElements(std::vector<Lum8u>(out, out + 5), {2, Lum8u(sel == lumRndNear ? 4 : 3), 0, 255, 0}));
    }
}

// The accurate scalings to bytes round to nearest whatever the caller's mode; the fast ones
// follow the caller's mode in every step.
TEST(Scale, AccuratePathIgnoresTheCallersModeAndFastPathFollowsIt) {
  Rng rng = makeRng(3);
  auto run = [&](auto fn, auto tag, float off, float inv) {
    using TS = decltype(tag);
    GuardedImage<TS> src(61, 3, 1);
    GuardedImage<Lum8u> dst(61, 3, 1);
    src.fillRandom(rng);
    for (unsigned mode : kModes)
      for (int hint : {lumHintAccurate, lumHintFast}) {
        CallerMode caller(mode, 0x3f);
        const unsigned before = _mm_getcsr();
        ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), src.roi(), hint), lumStatusOk);
        EXPECT_EQ(_mm_getcsr(), before);
        unsigned used = hint == lumHintAccurate ? kNear : mode;
        std::vector<Lum8u> want;
        {
          CallerMode inner(used);
          for (TS v : src.pixels()) want.push_back(refRound<Lum8u>(affine(v, off, inv, 0.0f), used));
        }
        EXPECT_TRUE(sameElements(dst.pixels(), want)) << "mode " << mode << " hint " << hint;
      }
  };
  run(lumiScale_16u8u_C1R, Lum16u{}, 0.0f, kInv257);
  run(lumiScale_16s8u_C1R, Lum16s{}, 32768.0f, kInv257);
  run(lumiScale_32s8u_C1R, Lum32s{}, 2147483648.0f, kInv32);
}

TEST(Scale, FloatRangeKnownValues) {
  const Lum32f f[4] = {-1.0f, 0.0f, 0.5f, 2.0f};
  Lum8u b[4];
  ASSERT_EQ(lumiScale_32f8u_C1R(f, 16, b, 4, LumiSize{4, 1}, 0.0f, 1.0f), lumStatusOk);
  EXPECT_TRUE(sameElements(std::vector<Lum8u>(b, b + 4), {0, 0, 128, 255}));  // 127.5 -> 128
  // The factors round to nearest whatever the caller's mode: with 255 / 203.75 rounded toward
  // zero these inputs would land below a half.
  const float onEdge[4] = {0x1.99191cp-2f, 0x1.32d2d2p+0f, 0x1.ff5f62p+0f, 0x1.65f5f6p+1f};
  for (unsigned mode : kModes) {
    CallerMode caller(mode);
    ASSERT_EQ(lumiScale_32f8u_C1R(onEdge, 16, b, 4, LumiSize{4, 1}, 0.0f, 203.75f), lumStatusOk);
    EXPECT_TRUE(sameElements(std::vector<Lum8u>(b, b + 4), {1, 2, 3, 4})) << "mode " << mode;
  }
}

// ---- bit-packed images ----------------------------------------------------------------------
// Error diffusion written out with a whole padded error plane per image.
std::vector<int> refDither(const GuardedImage<Lum8u>& src, int threshold) {
  int w = src.width(), h = src.height();
  std::vector<int> e((h + 2) * (w + 4), 0), bits;
  auto E = [&](int x, int y) -> int& { return e[(y + 2) * (w + 4) + x + 2]; };
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      int s = E(x - 2, y - 2) + 2 * E(x - 1, y - 2) + 4 * E(x, y - 2) + 2 * E(x + 1, y - 2) +
              E(x + 2, y - 2) + 2 * E(x - 2, y - 1) + 4 * E(x - 1, y - 1) + 8 * E(x, y - 1) +
              4 * E(x + 1, y - 1) + 2 * E(x + 2, y - 1) + 4 * E(x - 2, y) + 8 * E(x - 1, y);
      int v = src.at(x, y) * 8192 + 23 * s;
      bits.push_back(v > threshold * 8192);
      E(x, y) = (v >> 10) - (bits.back() ? 2047 : 0);
    }
  return bits;
}

// Both directions on the same random geometry: a bit offset into the first byte, any width.
TEST(ConvertBits, BytesToBitsByDitheringAndBack) {
  Rng rng = makeRng(4);
  for (int it = 0; it < 40; ++it) {
    LumiSize r = randomSize(rng, 90, 7);
    int off = randInt(rng, 0, 19), thr = it == 0 ? 127 : randInt(rng, 0, 255);
    int bytes = (off + r.width + 7) / 8;
    SCOPED_TRACE(::testing::Message() << "offset " << off << " width " << r.width);
    GuardedImage<Lum8u> bytes8(r.width, r.height, 1, -1, -1, rng()), bits(bytes, r.height, 1, -1, -1, rng());
    bytes8.fillRandom(rng);
    if (it < 2) bytes8.fill([&](int, int, int) { return Lum8u(it ? 255 : 0); });
    bits.fillRandom(rng);
    std::vector<Lum8u> want = bits.pixels();
    std::vector<int> dithered = refDither(bytes8, thr);
    for (int y = 0; y < r.height; ++y)
      for (int x = 0; x < r.width; ++x) {
        int b = off + x, i = y * bytes + b / 8, mask = 0x80 >> (b % 8);
        want[i] = dithered[y * r.width + x] ? (want[i] | mask) : (want[i] & ~mask);
        if (it < 2) {
          ASSERT_EQ(dithered[y * r.width + x], it);  // flat 0: no bits; flat 255: all
        }
      }
    ASSERT_EQ(lumiConvert_8u1u_C1R(bytes8.ptr(), bytes8.step(), bits.ptr(), bits.step(), off, r, Lum8u(thr)), 0);
    ASSERT_TRUE(bits.guardsIntact());
    ASSERT_TRUE(sameElements(bits.pixels(), want));
    bits.fillRandom(rng);
    want.clear();
    for (int y = 0; y < r.height; ++y)
      for (int x = 0; x < r.width; ++x)
        want.push_back((bits.at((off + x) / 8, y) << ((off + x) % 8)) & 0x80 ? 255 : 0);
    ASSERT_EQ(lumiConvert_1u8u_C1R(bits.ptr(), bits.step(), off, bytes8.ptr(), bytes8.step(), r), 0);
    ASSERT_TRUE(bytes8.guardsIntact());
    ASSERT_TRUE(sameElements(bytes8.pixels(), want));
  }
  Lum8u a = 0xA0, d[4] = {7, 7, 7, 7};
  ASSERT_EQ(lumiConvert_1u8u_C1R(&a, 1, 0, d, 4, LumiSize{4, 1}), 0);
  EXPECT_TRUE(sameElements(std::vector<Lum8u>(d, d + 4), {255, 0, 255, 0}));
}

TEST(ConvertBits, ValidationOrder) {
  Lum8u a = 0xA0, b[2] = {1, 2}, d[4] = {9, 9, 9, 9};
  EXPECT_EQ(lumiConvert_8u1u_C1R(nullptr, 1, d, 1, -1, LumiSize{0, 0}, 1), lumStatusNullPtrErr);
  EXPECT_EQ(lumiConvert_8u1u_C1R(b, 0, d, 0, -1, LumiSize{1, 1}, 1), lumStatusSizeErr);
  EXPECT_EQ(lumiConvert_8u1u_C1R(b, 0, d, 0, 0, LumiSize{1, 0}, 1), lumStatusSizeErr);
  EXPECT_EQ(lumiConvert_1u8u_C1R(&a, 1, 0, nullptr, 4, LumiSize{0, 1}), lumStatusNullPtrErr);
  EXPECT_EQ(lumiConvert_1u8u_C1R(&a, 0, -1, d, 4, LumiSize{0, 1}), lumStatusSizeErr);
  EXPECT_EQ(lumiConvert_1u8u_C1R(&a, 0, -1, d, 4, LumiSize{4, 1}), lumStatusStepErr);
  EXPECT_EQ(lumiConvert_1u8u_C1R(&a, 1, -1, d, 4, LumiSize{4, 1}), lumStatusSizeErr);
  EXPECT_TRUE(sameElements(std::vector<Lum8u>(d, d + 4), {9, 9, 9, 9}));
  EXPECT_EQ(lumiConvert_8u1u_C1R(b, 0, d, 0, 0, LumiSize{2, 2}, 1), 0);  // steps are not tested
}

#ifdef LUMI_HAVE_OPENCV
}  // namespace
#include <opencv2/core.hpp>
namespace {
TEST(Convert, AgreesWithOpenCVRounding) {
  cv::Mat f(37, 101, CV_32F), a, b(37, 101, CV_8U), c, d(37, 101, CV_16S);
  cv::randu(f, -400.0, 700.0);
  for (int i = 0; i < f.rows; ++i) f.at<float>(i, i) = float(i) - 0.5f;
  cv::Mat f100 = f * 100.0;
  f.convertTo(a, CV_8U);
  f100.convertTo(c, CV_16S);
  LumiSize r{101, 37};
  ASSERT_EQ(lumiConvert_32f8u_C1R(f.ptr<float>(), int(f.step), b.ptr(), int(b.step), r, lumRndNear), 0);
  ASSERT_EQ(lumiConvert_32f16s_C1R(f100.ptr<float>(), int(f100.step), d.ptr<Lum16s>(), int(d.step), r, lumRndNear), 0);
  EXPECT_EQ(cv::norm(a, b, cv::NORM_INF), 0.0);
  EXPECT_EQ(cv::norm(c, d, cv::NORM_INF), 0.0);
}
#endif

}  // namespace
