// Moment states: life cycle, argument checks, raw and central moments against direct sums,
// closed forms for a centred rectangle and a single pixel, Hu invariants.
#include <climits>
#include <cmath>
#include <cstring>
#include <functional>
#include <type_traits>
#include <vector>

#include "lumi.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

// A heap state of either kind, freed (successfully) at scope exit.
template <class S, LumStatus (*kAlloc)(S**, LumAccuracyHint), LumStatus (*kFree)(S*), int kHint>
struct State {
  S* p = nullptr;
  State() { EXPECT_EQ(kAlloc(&p, kHint), lumStatusOk); }
  ~State() { EXPECT_EQ(kFree(p), lumStatusOk); }
};
using State64f = State<LumiMomentState_64f, lumiMomentInitAlloc_64f, lumiMomentFree_64f, lumHintAccurate>;
using State64s = State<LumiMomentState_64s, lumiMomentInitAlloc_64s, lumiMomentFree_64s, lumHintNone>;

// The queries of either state kind under one name.
template <class S>
struct Q {
  static constexpr auto sp = lumiGetSpatialMoment_64f, nsp = lumiGetNormalizedSpatialMoment_64f;
  static constexpr auto ce = lumiGetCentralMoment_64f, nce = lumiGetNormalizedCentralMoment_64f;
  static constexpr auto hu = lumiGetHuMoments_64f;
};
template <>
struct Q<LumiMomentState_64s> {
  static constexpr auto sp = lumiGetSpatialMoment_64s, nsp = lumiGetNormalizedSpatialMoment_64s;
  static constexpr auto ce = lumiGetCentralMoment_64s, nce = lumiGetNormalizedCentralMoment_64s;
  static constexpr auto hu = lumiGetHuMoments_64s;
};

// Calls a query that writes one value; the status must be lumStatusOk.
template <class F, class... A>
Lum64f get(F fn, A... args) {
  Lum64f v = NAN;
  EXPECT_EQ(fn(args..., &v), lumStatusOk);
  return v;
}

long double ipow(long double b, int e) {
  long double r = 1;
  while (e-- > 0) r *= b;
  return r;
}

// Direct sums over the ROI: sum (x + ox)^i (y + oy)^j I(x, y, c).
template <class T>
long double directMoment(const GuardedImage<T>& im, int c, int i, int j, long double ox, long double oy) {
  long double s = 0;
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x) s += ipow(x + ox, i) * ipow(y + oy, j) * im.at(x, y, c);
  return s;
}

// Hu's seven invariants in their published order from normalised central moments n[i][j]. With
// `bound`, every difference becomes a sum of magnitudes: the size of the terms, which bounds
// the rounding a computed value may carry.
std::vector<long double> huOf(const long double n[4][4], bool bound) {
  auto sub = [&](long double x, long double y) { return bound ? std::fabs(x) + std::fabs(y) : x - y; };
  auto add = [&](long double x, long double y) { return bound ? std::fabs(x) + std::fabs(y) : x + y; };
  const long double p = sub(n[3][0], 3 * n[1][2]), q = sub(3 * n[2][1], n[0][3]), a = add(n[3][0], n[1][2]),
                    b = add(n[2][1], n[0][3]), d = sub(n[2][0], n[0][2]), n11 = n[1][1];
  return {add(n[2][0], n[0][2]), add(d * d, 4 * n11 * n11), add(p * p, q * q), add(a * a, b * b),
          add(p * a * sub(a * a, 3 * b * b), q * b * sub(3 * a * a, b * b)), add(d * sub(a * a, b * b), 4 * n11 * a * b),
          sub(q * a * sub(a * a, 3 * b * b), p * b * sub(3 * a * a, b * b))};
}

// Checks every query of every channel of a filled state against direct sums (the exact integer
// state must give the unshifted spatial moments exactly), and the Hu invariants against the
// state's own normalised central moments.
template <class T, class S>
void checkAgainstDirect(const GuardedImage<T>& im, int use, const S* st) {
  constexpr bool exact = std::is_same_v<S, LumiMomentState_64s>;
  const LumiPoint off{3, -7};
  for (int c = 0; c < use; ++c) {
    long double m00 = directMoment(im, c, 0, 0, 0, 0);
    long double xb = directMoment(im, c, 1, 0, 0, 0) / m00, yb = directMoment(im, c, 0, 1, 0, 0) / m00;
    long double nce[4][4] = {};  // the state's normalised central moments, once checked
    for (int j = 0; j <= 3; ++j)
      for (int i = 0; i + j <= 3; ++i) {
        SCOPED_TRACE(::testing::Message() << "channel " << c << " order (" << i << ", " << j << ")");
        long double sp = directMoment(im, c, i, j, 0, 0), spo = directMoment(im, c, i, j, off.x, off.y);
        long double ce = directMoment(im, c, i, j, -xb, -yb), tolCe = 1e-7L * std::fabs(sp) + 1e-6L;
        long double norm = std::pow(static_cast<double>(m00), -(i + j + 2) / 2.0);
        auto close = [](double got, long double want) { EXPECT_LE(std::fabs(got - want), 1e-9L * std::fabs(want) + 1e-6L); };
        Lum64f v = get(Q<S>::sp, st, i, j, c, LumiPoint{0, 0});
        if (exact) EXPECT_EQ(v, static_cast<double>(sp));
        else close(v, sp);
        close(get(Q<S>::sp, st, i, j, c, off), spo);
        close(get(Q<S>::nsp, st, i, j, c, off), spo * norm);
        EXPECT_LE(std::fabs(get(Q<S>::ce, st, i, j, c) - ce), tolCe) << "central";
        nce[i][j] = get(Q<S>::nce, st, i, j, c);
        EXPECT_LE(std::fabs(nce[i][j] - ce * norm), tolCe * norm) << "normalised central";
      }
    Lum64f hu[7];
    ASSERT_EQ(Q<S>::hu(st, c, hu), lumStatusOk);
    auto want = huOf(nce, false), size = huOf(nce, true);
    for (int k = 0; k < 7; ++k) EXPECT_LE(std::fabs(hu[k] - want[k]), 1e-9L * size[k]) << "Hu " << k << " channel " << c;
  }
}

TEST(Moments, RandomImagesMatchDirectSums) {
  Rng r = makeRng(17);
  for (int iter = 0; iter < 8; ++iter) {
    LumiSize sz = randomSize(r, 90, iter % 3 == 2 ? 300 : 40);  // some span several row blocks
    GuardedImage<Lum8u> a1(sz.width, sz.height, 1), a3(sz.width, sz.height, 3), a4(sz.width, sz.height, 4);
    GuardedImage<float> f1(sz.width, sz.height, 1), f3(sz.width, sz.height, 3), f4(sz.width, sz.height, 4);
    for (auto* im : {&a1, &a3, &a4}) im->fillRandom(r);
    for (auto* im : {&f1, &f3, &f4}) im->fill([&](int, int, int) { return float(randInt(r, 0, 4000)) / 16; });
    State64f s;
    State64s e;
    auto run = [&](auto fn, auto& im, int use, auto* state) {
      ASSERT_EQ(fn(im.ptr(), im.step(), sz, state), lumStatusOk);
      checkAgainstDirect(im, use, state);
      EXPECT_TRUE(im.guardsIntact());
    };
    run(lumiMoments64f_8u_C1R, a1, 1, s.p);
    run(lumiMoments64f_8u_C3R, a3, 3, s.p);
    run(lumiMoments64f_8u_AC4R, a4, 3, s.p);
    run(lumiMoments64f_32f_C1R, f1, 1, s.p);
    run(lumiMoments64f_32f_C3R, f3, 3, s.p);
    run(lumiMoments64f_32f_AC4R, f4, 3, s.p);
    run(lumiMoments64s_8u_C1R, a1, 1, e.p);
    run(lumiMoments64s_8u_C3R, a3, 3, e.p);
    run(lumiMoments64s_8u_AC4R, a4, 3, e.p);
    Lum64f v;
    EXPECT_EQ(lumiGetSpatialMoment_64s(e.p, 0, 0, 3, LumiPoint{0, 0}, &v), lumStatusChannelIndexErr);
  }
}

// A large bright image: the exact state keeps every bit of the third-order sums.
TEST(Moments, ExactStateOnLargeImage) {
  const int w = 1500, h = 1200;
  std::vector<Lum8u> buf(static_cast<std::size_t>(w) * h, 255);
  State64s e;
  ASSERT_EQ(lumiMoments64s_8u_C1R(buf.data(), w, LumiSize{w, h}, e.p), lumStatusOk);
  // sum x^3 over [0, w) = (w (w - 1) / 2)^2; all values below 2^63
  const int64_t sx = int64_t(w) * (w - 1) / 2, sy2 = int64_t(h - 1) * h * (2 * h - 1) / 6;
  EXPECT_EQ(get(lumiGetSpatialMoment_64s, e.p, 3, 0, 0, LumiPoint{0, 0}), static_cast<double>(sx * sx * h * 255));
  EXPECT_EQ(get(lumiGetSpatialMoment_64s, e.p, 1, 2, 0, LumiPoint{0, 0}), static_cast<double>(sx * sy2 * 255));
}

// Tall images: row numbers in the tens of thousands make the row sums of order 3 exceed 64-bit
// integers; the double-precision state still holds them to double rounding.
TEST(Moments, TallImagesKeepHighOrderRowSums) {
  for (int h : {70001, 200000}) {
    const int w = 3;
    std::vector<Lum8u> b8(static_cast<std::size_t>(w) * h, 255);
    std::vector<float> bf(static_cast<std::size_t>(w) * h, 255.0f);
    long double sy[4] = {0, 0, 0, 0};
    for (int y = 0; y < h; ++y) sy[0] += 1, sy[1] += y, sy[2] += ipow(y, 2), sy[3] += ipow(y, 3);
    State64f s;
    for (int pass = 0; pass < 2; ++pass) {
      if (pass == 0) ASSERT_EQ(lumiMoments64f_8u_C1R(b8.data(), w, LumiSize{w, h}, s.p), lumStatusOk);
      else ASSERT_EQ(lumiMoments64f_32f_C1R(bf.data(), 4 * w, LumiSize{w, h}, s.p), lumStatusOk);
      for (int j = 0; j <= 3; ++j)
        for (int i = 0; i + j <= 3; ++i) {
          long double want = 255.0L * (ipow(0, i) + ipow(1, i) + ipow(2, i)) * sy[j];
          EXPECT_LE(std::fabs(get(lumiGetSpatialMoment_64f, s.p, i, j, 0, LumiPoint{0, 0}) - want), 1e-13L * want)
              << "h " << h << " pass " << pass << " (" << i << ", " << j << ")";
        }
    }
  }
}

TEST(Moments, CentredRectangleAndSinglePixel) {
  // a 9 x 5 block of ones centred in a 21 x 15 image
  GuardedImage<Lum8u> im(21, 15, 1);
  im.fill([](int x, int y, int) { return Lum8u(x >= 6 && x < 15 && y >= 5 && y < 10 ? 1 : 0); });
  State64f s;
  ASSERT_EQ(lumiMoments64f_8u_C1R(im.ptr(), im.step(), im.roi(), s.p), lumStatusOk);
  const LumiPoint o{0, 0};
  const double a = 9, b = 5, m00 = a * b, mu20 = b * a * (a * a - 1) / 12, mu02 = a * b * (b * b - 1) / 12;
  EXPECT_EQ(get(lumiGetSpatialMoment_64f, s.p, 0, 0, 0, o), m00);
  EXPECT_EQ(get(lumiGetSpatialMoment_64f, s.p, 1, 0, 0, o), 10 * m00);  // centre x = 10
  EXPECT_EQ(get(lumiGetSpatialMoment_64f, s.p, 0, 1, 0, o), 7 * m00);   // centre y = 7
  EXPECT_NEAR(get(lumiGetCentralMoment_64f, s.p, 2, 0, 0), mu20, 1e-9);
  EXPECT_NEAR(get(lumiGetCentralMoment_64f, s.p, 0, 2, 0), mu02, 1e-9);
  for (auto ij : {std::pair{1, 1}, std::pair{3, 0}, std::pair{2, 1}, std::pair{1, 2}, std::pair{0, 3}, std::pair{1, 0}})
    EXPECT_NEAR(get(lumiGetCentralMoment_64f, s.p, ij.first, ij.second, 0), 0.0, 1e-8);
  EXPECT_NEAR(get(lumiGetNormalizedCentralMoment_64f, s.p, 2, 0, 0), mu20 / (m00 * m00), 1e-12);
  Lum64f hu[7];
  ASSERT_EQ(lumiGetHuMoments_64f(s.p, 0, hu), lumStatusOk);
  EXPECT_NEAR(hu[0], (mu20 + mu02) / (m00 * m00), 1e-12);
  EXPECT_NEAR(hu[1], (mu20 - mu02) * (mu20 - mu02) / (m00 * m00 * m00 * m00), 1e-12);
  for (int k = 2; k < 7; ++k) EXPECT_NEAR(hu[k], 0.0, 1e-12);
  // the spatial moment seen from an offset: the block's centre moves to (10 + 4, 7 - 2)
  EXPECT_NEAR(get(lumiGetSpatialMoment_64f, s.p, 1, 1, 0, LumiPoint{4, -2}), 14.0 * 5.0 * m00, 1e-9);

  // one pixel of 200 at (4, 3): m(i, j) = 200 * 4^i * 3^j, every central moment beyond 0 is 0
  GuardedImage<float> one(7, 6, 3);
  one.fill([](int x, int y, int c) { return x == 4 && y == 3 && c == 2 ? 200.0f : 0.0f; });
  ASSERT_EQ(lumiMoments64f_32f_C3R(one.ptr(), one.step(), one.roi(), s.p), lumStatusOk);
  for (int j = 0; j <= 3; ++j)
    for (int i = 0; i + j <= 3; ++i) {
      EXPECT_EQ(get(lumiGetSpatialMoment_64f, s.p, i, j, 2, o), 200.0 * std::pow(4.0, i) * std::pow(3.0, j));
      EXPECT_EQ(get(lumiGetCentralMoment_64f, s.p, i, j, 2), i + j == 0 ? 200.0 : 0.0);
    }
  ASSERT_EQ(lumiGetHuMoments_64f(s.p, 2, hu), lumStatusOk);
  for (double h : hu) EXPECT_EQ(h, 0.0);
  EXPECT_EQ(lumiGetHuMoments_64f(s.p, 0, hu), lumStatusMomentZeroErr);  // channel 0 is empty
  EXPECT_TRUE(im.guardsIntact() && one.guardsIntact());
}

TEST(Moments, StateLifeCycleAndTags) {
  int size = 0;
  EXPECT_EQ(lumiMomentGetStateSize_64s(lumHintNone, nullptr), lumStatusNullPtrErr);
  ASSERT_EQ(lumiMomentGetStateSize_64s(lumHintNone, &size), lumStatusOk);
  EXPECT_EQ(size, 400);
  // a state in caller memory: nothing beyond its 400 bytes is touched
  std::vector<unsigned char> mem(400 + 64, 0xCD);
  auto* st = reinterpret_cast<LumiMomentState_64s*>(mem.data());
  auto head = [&](int k) {
    int32_t h[3];
    std::memcpy(h, mem.data(), 12);
    return h[k];
  };
  EXPECT_EQ(lumiMomentInit_64s(nullptr, lumHintFast), lumStatusNullPtrErr);
  ASSERT_EQ(lumiMomentInit_64s(st, lumHintFast), lumStatusOk);
  EXPECT_EQ(head(0), 34);
  EXPECT_EQ(head(1), lumHintFast);
  EXPECT_EQ(head(2), -1);
  Lum64f v = 5;
  EXPECT_EQ(lumiGetSpatialMoment_64s(st, 0, 0, 0, LumiPoint{0, 0}, &v), lumStatusChannelIndexErr);
  Lum8u px[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  ASSERT_EQ(lumiMoments64s_8u_C3R(px, 12, LumiSize{4, 1}, st), lumStatusOk);
  EXPECT_EQ(head(2), 3);
  for (std::size_t i = 400; i < mem.size(); ++i) EXPECT_EQ(mem[i], 0xCD);
  EXPECT_EQ(get(lumiGetSpatialMoment_64s, st, 1, 0, 1, LumiPoint{0, 0}), 0 * 2 + 1 * 5 + 2 * 8 + 3 * 11);
  // a state of the other kind is refused everywhere
  auto* wrong = reinterpret_cast<LumiMomentState_64f*>(st);
  EXPECT_EQ(lumiMoments64f_8u_C1R(px, 12, LumiSize{0, 0}, wrong), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiGetCentralMoment_64f(wrong, 0, 0, 0, &v), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiGetHuMoments_64f(wrong, 9, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMomentFree_64f(wrong), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiMomentFree_64s(nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMomentInitAlloc_64f(nullptr, 0), lumStatusNullPtrErr);
}

// Orders whose sum overflows an int are refused like any order above 3, by all eight queries.
TEST(Moments, OrdersNearIntMax) {
  State64f s;
  State64s e;
  Lum8u px[4] = {1, 2, 3, 4};
  ASSERT_EQ(lumiMoments64f_8u_C1R(px, 4, LumiSize{4, 1}, s.p), lumStatusOk);
  ASSERT_EQ(lumiMoments64s_8u_C1R(px, 4, LumiSize{4, 1}, e.p), lumStatusOk);
  const LumiPoint o{0, 0};
  using Query = std::function<LumStatus(int, int, Lum64f*)>;
  const std::pair<const char*, Query> queries[8] = {
      {"spatial 64f", [&](int i, int j, Lum64f* v) { return lumiGetSpatialMoment_64f(s.p, i, j, 0, o, v); }},
      {"central 64f", [&](int i, int j, Lum64f* v) { return lumiGetCentralMoment_64f(s.p, i, j, 0, v); }},
      {"normalised spatial 64f", [&](int i, int j, Lum64f* v) { return lumiGetNormalizedSpatialMoment_64f(s.p, i, j, 0, o, v); }},
      {"normalised central 64f", [&](int i, int j, Lum64f* v) { return lumiGetNormalizedCentralMoment_64f(s.p, i, j, 0, v); }},
      {"spatial 64s", [&](int i, int j, Lum64f* v) { return lumiGetSpatialMoment_64s(e.p, i, j, 0, o, v); }},
      {"central 64s", [&](int i, int j, Lum64f* v) { return lumiGetCentralMoment_64s(e.p, i, j, 0, v); }},
      {"normalised spatial 64s", [&](int i, int j, Lum64f* v) { return lumiGetNormalizedSpatialMoment_64s(e.p, i, j, 0, o, v); }},
      {"normalised central 64s", [&](int i, int j, Lum64f* v) { return lumiGetNormalizedCentralMoment_64s(e.p, i, j, 0, v); }},
  };
  for (const auto& [name, query] : queries)
    for (auto ij : {std::pair{2, INT_MAX - 1}, std::pair{INT_MAX - 1, 2}, std::pair{INT_MAX, INT_MAX}}) {
      Lum64f v = 5;
      EXPECT_EQ(query(ij.first, ij.second, &v), lumStatusSizeErr) << name << " (" << ij.first << ", " << ij.second << ")";
      EXPECT_EQ(v, 5.0) << name;
    }
}

TEST(Moments, ValidationOrder) {
  State64f s;
  Lum8u px[64] = {};
  float fx[16] = {};
  Lum64f v = 5, hu[7];
  const LumiPoint o{0, 0};
  EXPECT_EQ(lumiGetSpatialMoment_64f(s.p, 0, 0, 0, o, &v), lumStatusChannelIndexErr);
  EXPECT_EQ(lumiMoments64f_8u_C1R(nullptr, 0, LumiSize{0, 0}, s.p), lumStatusNullPtrErr);
  EXPECT_EQ(lumiMoments64f_8u_C1R(px, 0, LumiSize{0, 0}, s.p), lumStatusStepErr);  // steps first
  EXPECT_EQ(lumiMoments64f_8u_C1R(px, 5, LumiSize{0, 1}, s.p), lumStatusSizeErr);
  EXPECT_EQ(lumiMoments64f_8u_C1R(px, 9, LumiSize{10, 1}, s.p), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiMoments64f_8u_C3R(px, 29, LumiSize{10, 1}, s.p), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiMoments64f_8u_AC4R(px, 39, LumiSize{10, 1}, s.p), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiMoments64f_32f_C1R(fx, 39, LumiSize{10, 1}, s.p), lumStatusStepBelowRowErr);
  EXPECT_EQ(lumiGetSpatialMoment_64f(s.p, 0, 0, 0, o, &v), lumStatusChannelIndexErr);
  ASSERT_EQ(lumiMoments64f_8u_C1R(px, 10, LumiSize{10, 1}, s.p), lumStatusOk);  // an all-zero image
  EXPECT_EQ(get(lumiGetSpatialMoment_64f, s.p, 0, 0, 0, o), 0.0);
  EXPECT_EQ(lumiGetSpatialMoment_64f(s.p, 2, 2, 0, o, &v), lumStatusSizeErr);
  EXPECT_EQ(lumiGetCentralMoment_64f(s.p, -1, 1, 5, &v), lumStatusSizeErr);  // order before channel
  EXPECT_EQ(lumiGetCentralMoment_64f(s.p, 1, 1, 1, &v), lumStatusChannelIndexErr);
  EXPECT_EQ(lumiGetCentralMoment_64f(s.p, 1, 1, -1, &v), lumStatusChannelIndexErr);
  EXPECT_EQ(lumiGetCentralMoment_64f(s.p, 1, 1, 0, &v), lumStatusMomentZeroErr);
  EXPECT_EQ(lumiGetNormalizedSpatialMoment_64f(s.p, 1, 1, 0, o, &v), lumStatusMomentZeroErr);
  EXPECT_EQ(lumiGetNormalizedCentralMoment_64f(s.p, 0, 0, 0, &v), lumStatusMomentZeroErr);
  EXPECT_EQ(lumiGetHuMoments_64f(s.p, 0, hu), lumStatusMomentZeroErr);
  EXPECT_EQ(lumiGetHuMoments_64f(s.p, 0, nullptr), lumStatusNullPtrErr);
}

}  // namespace
