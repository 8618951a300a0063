// Wavelets: the forward transform against a direct double sum, perfect reconstruction with
// orthogonal pairs, the 256/257-column strips, three channels, records and checks.
#include <cmath>

#include "lumi/wavelet.h"
#include "lumitest.h"

namespace {

using lumitest::Rng;

struct Taps {
  std::vector<float> t;
  int anchor;
  int len() const { return static_cast<int>(t.size()); }
  Taps reversed() const { return {std::vector<float>(t.rbegin(), t.rend()), len() - 1 - anchor}; }
};
// Orthogonal pairs: the high-pass g[k] = (-1)^k h[L - 1 - k], same anchor.
Taps highOf(const Taps& h) {
  Taps g{h.t, h.anchor};
  for (int k = 0; k < h.len(); ++k) g.t[k] = (k % 2 ? -1.f : 1.f) * h.t[h.len() - 1 - k];
  return g;
}
const float kR = 0.70710678f;
const Taps kHaar{{kR, kR}, 1};
const Taps kD4{{0.48296291f, 0.83651630f, 0.22414387f, -0.12940952f}, 1};

// A float image of w x h pixels (ch per pixel) with a border of kB pixels on every side, all
// holding values; origin() is the ROI's first pixel.
struct Padded {
  static constexpr int kB = 8;
  int w, h, ch, stride;
  std::vector<float> v;
  Padded(int w_, int h_, int ch_) : w(w_), h(h_), ch(ch_), stride((w_ + 2 * kB) * ch_ + 3), v(static_cast<std::size_t>(stride) * (h_ + 2 * kB), 0.f) {}
  float* origin() { return v.data() + kB * stride + kB * ch; }
  int step() const { return stride * 4; }
  float& at(int x, int y, int c = 0) { return origin()[y * stride + x * ch + c]; }
  void fillRandom(Rng& r) {
    for (auto& x : v) x = static_cast<float>(std::uniform_real_distribution<double>(-10, 10)(r));
  }
};

struct Fwd {
  LumiWTFwdSpec* s = nullptr;
  Fwd(const Taps& lo, const Taps& hi) {
    EXPECT_EQ(lumiWTFwdInitAlloc_32f_C1R(&s, lo.t.data(), lo.len(), lo.anchor, hi.t.data(), hi.len(), hi.anchor), lumStatusOk);
  }
  ~Fwd() { lumiWTFwdFree_32f_C1R(s); }
  std::vector<Lum8u> buffer() const {
    int n = 0;
    lumiWTFwdGetBufSize_C1R(s, &n);
    return std::vector<Lum8u>(n);
  }
};
struct Inv {
  LumiWTInvSpec* s = nullptr;
  Inv(const Taps& lo, const Taps& hi) {
    EXPECT_EQ(lumiWTInvInitAlloc_32f_C3R(&s, lo.t.data(), lo.len(), lo.anchor, hi.t.data(), hi.len(), hi.anchor), lumStatusOk);
  }
  ~Inv() { lumiWTInvFree_32f_C3R(s); }
  std::vector<Lum8u> buffer() const {
    int n = 0;
    lumiWTInvGetBufSize_C3R(s, &n);
    return std::vector<Lum8u>(n);
  }
};

// The four sub-bands (Approx, DetailX, DetailY, DetailXY) of one size.
struct Bands {
  Padded b[4];
  Bands(int w, int h, int ch) : b{Padded(w, h, ch), Padded(w, h, ch), Padded(w, h, ch), Padded(w, h, ch)} {}
};
LumStatus forward(Padded& src, Bands& d, LumiSize size, const Fwd& f, int ch) {
  auto buf = f.buffer();
  auto fn = ch == 1 ? lumiWTFwd_32f_C1R : lumiWTFwd_32f_C3R;
  return fn(src.origin(), src.step(), d.b[0].origin(), d.b[0].step(), d.b[1].origin(), d.b[1].step(),
            d.b[2].origin(), d.b[2].step(), d.b[3].origin(), d.b[3].step(), size, f.s, buf.data());
}

// out(i, j) = sum_kv sum_kh v[kv] h[kh] src(2j + ah - kh, 2i + av - kv), in double.
double direct(Padded& src, const Taps& v, const Taps& h, int x, int y, int c) {
  double s = 0;
  for (int kv = 0; kv < v.len(); ++kv)
    for (int kh = 0; kh < h.len(); ++kh)
      s += double(v.t[kv]) * h.t[kh] * src.at(2 * x + h.anchor - kh, 2 * y + v.anchor - kv, c);
  return s;
}

TEST(Wavelet, ForwardMatchesTheDirectSum) {
  Rng r = lumitest::makeRng(1);
  const Taps lo53{{-0.125f, 0.25f, 0.75f, 0.25f, -0.125f}, 2}, hi53{{-0.5f, 1.f, -0.5f}, 1};
  const Taps anchor0{{0.6f, 0.3f, 0.1f}, 0};
  const std::pair<Taps, Taps> pairs[] = {{kHaar, highOf(kHaar)}, {kD4, highOf(kD4)}, {lo53, hi53}, {anchor0, hi53}};
  for (const auto& [lo, hi] : pairs) {
    for (LumiSize sz : {LumiSize{1, 1}, LumiSize{7, 3}, LumiSize{257, 2}}) {
      Fwd f(lo, hi);
      Padded src(2 * sz.width, 2 * sz.height, 1);
      src.fillRandom(r);
      Bands d(sz.width, sz.height, 1);
      ASSERT_EQ(forward(src, d, sz, f, 1), lumStatusOk);
      const Taps* vh[4][2] = {{&lo, &lo}, {&hi, &lo}, {&lo, &hi}, {&hi, &hi}};  // (vertical, horizontal)
      for (int b = 0; b < 4; ++b)
        for (int y = 0; y < sz.height; ++y)
          for (int x = 0; x < sz.width; ++x)
            ASSERT_NEAR(d.b[b].at(x, y), direct(src, *vh[b][0], *vh[b][1], x, y, 0), 1e-4)
                << "band " << b << " at " << x << "," << y << " of " << sz.width;
    }
  }
}

// A 257-column sub-band (one strip and a one-column rest) equals two narrow calls of 256 and 1.
TEST(Wavelet, StripsEqualTheNarrowRoutine) {
  Rng r = lumitest::makeRng(2);
  Fwd f(kD4, highOf(kD4));
  Padded src(514, 4, 1);
  src.fillRandom(r);
  Bands whole(257, 2, 1), parts(257, 2, 1);
  ASSERT_EQ(forward(src, whole, {257, 2}, f, 1), lumStatusOk);
  ASSERT_EQ(forward(src, parts, {256, 2}, f, 1), lumStatusOk);
  // the second part starts 512 source columns (256 sub-band columns) on
  auto buf = f.buffer();
  Lum32f* p[4];
  for (int b = 0; b < 4; ++b) p[b] = &parts.b[b].at(256, 0);
  ASSERT_EQ(lumiWTFwd_32f_C1R(&src.at(512, 0), src.step(), p[0], parts.b[0].step(), p[1], parts.b[1].step(), p[2],
                              parts.b[2].step(), p[3], parts.b[3].step(), {1, 2}, f.s, buf.data()),
            lumStatusOk);
  for (int b = 0; b < 4; ++b) EXPECT_TRUE(lumitest::sameElements(whole.b[b].v, parts.b[b].v)) << b;
}

// Large images share their rows among threads: the same floats as on one thread.
TEST(Wavelet, ThreadsGiveTheSameFloats) {
  Rng r = lumitest::makeRng(4);
  Fwd f(kD4, highOf(kD4));
  Inv inv(kD4.reversed(), highOf(kD4).reversed());
  const LumiSize sz{300, 220};
  Padded src(600, 440, 1);
  src.fillRandom(r);
  std::vector<float> got[2][5];
  const int saved = threads_omp_of_n_lum;
  for (int t = 0; t < 2; ++t) {
    threads_omp_of_n_lum = t + 1;
    Bands d(sz.width, sz.height, 1);
    ASSERT_EQ(forward(src, d, sz, f, 1), lumStatusOk);
    Padded out(600, 440, 1);
    auto ib = inv.buffer();
    ASSERT_EQ(lumiWTInv_32f_C1R(d.b[0].origin(), d.b[0].step(), d.b[1].origin(), d.b[1].step(), d.b[2].origin(),
                                d.b[2].step(), d.b[3].origin(), d.b[3].step(), sz, out.origin(), out.step(), inv.s,
                                ib.data()),
              lumStatusOk);
    for (int b = 0; b < 4; ++b) got[t][b] = d.b[b].v;
    got[t][4] = out.v;
  }
  threads_omp_of_n_lum = saved;
  for (int b = 0; b < 5; ++b) EXPECT_TRUE(lumitest::sameElements(got[0][b], got[1][b])) << b;
}

// Forward over a margin of sub-band pixels, then the inverse of the inner part gives back the
// source; three channels equal three one-channel transforms.
TEST(Wavelet, PerfectReconstructionOneAndThreeChannels) {
  Rng r = lumitest::makeRng(3);
  const int m = 3;  // sub-band margin the synthesis reads
  for (const Taps& h : {kHaar, kD4}) {
    const Taps g = highOf(h);
    Fwd f(h, g);
    LumiWTFwdSpec* f3 = nullptr;
    ASSERT_EQ(lumiWTFwdInitAlloc_32f_C3R(&f3, h.t.data(), h.len(), h.anchor, g.t.data(), g.len(), g.anchor), lumStatusOk);
    Inv inv(h.reversed(), g.reversed());
    for (LumiSize sz : {LumiSize{1, 1}, LumiSize{9, 2}, LumiSize{256, 1}, LumiSize{257, 2}}) {
      for (int ch : {1, 3}) {
        const LumiSize big{sz.width + 2 * m, sz.height + 2 * m};
        Padded src(2 * big.width, 2 * big.height, ch);
        src.fillRandom(r);
        Bands d(big.width, big.height, ch);
        auto fb = f.buffer();
        auto fn = ch == 1 ? lumiWTFwd_32f_C1R : lumiWTFwd_32f_C3R;
        ASSERT_EQ(fn(src.origin(), src.step(), d.b[0].origin(), d.b[0].step(), d.b[1].origin(), d.b[1].step(),
                     d.b[2].origin(), d.b[2].step(), d.b[3].origin(), d.b[3].step(), big, ch == 1 ? f.s : f3,
                     fb.data()),
                  lumStatusOk);
        if (ch == 3) {  // each channel as a one-channel image: the same floats
          for (int c = 0; c < 3; ++c) {
            Padded plane(2 * big.width, 2 * big.height, 1);
            for (int y = -Padded::kB; y < 2 * big.height + Padded::kB; ++y)
              for (int x = -Padded::kB; x < 2 * big.width + Padded::kB; ++x) plane.at(x, y) = src.at(x, y, c);
            Bands d1(big.width, big.height, 1);
            ASSERT_EQ(forward(plane, d1, big, f, 1), lumStatusOk);
            for (int b = 0; b < 4; ++b)
              for (int y = 0; y < big.height; ++y)
                for (int x = 0; x < big.width; ++x) ASSERT_EQ(d.b[b].at(x, y, c), d1.b[b].at(x, y));
          }
        }
        Padded out(2 * sz.width, 2 * sz.height, ch);
        auto ib = inv.buffer();
        auto in = ch == 1 ? lumiWTInv_32f_C1R : lumiWTInv_32f_C3R;
        ASSERT_EQ(in(&d.b[0].at(m, m), d.b[0].step(), &d.b[1].at(m, m), d.b[1].step(), &d.b[2].at(m, m),
                     d.b[2].step(), &d.b[3].at(m, m), d.b[3].step(), sz, out.origin(), out.step(), inv.s,
                     ib.data()),
                  lumStatusOk);
        for (int y = 0; y < 2 * sz.height; ++y)
          for (int x = 0; x < 2 * sz.width * ch; ++x)
            ASSERT_NEAR(out.origin()[y * out.stride + x], src.origin()[(2 * m + y) * src.stride + 2 * m * ch + x], 1e-4)
                << "h len " << h.len() << " width " << sz.width << " ch " << ch << " at " << x << "," << y;
        // nothing written outside the output: the border stays zero
        for (int x = -Padded::kB; x < 0; ++x) ASSERT_EQ(out.at(x, 0), 0.f);
        for (int x = 0; x < 2 * sz.width * ch; ++x) ASSERT_EQ(out.origin()[2 * sz.height * out.stride + x], 0.f);
      }
    }
    lumiWTFwdFree_32f_C3R(f3);
  }
}

TEST(Wavelet, RecordsAndChecks) {
  const float t[4] = {0.5f, 0.5f, 0.25f, 0.25f};
  LumiWTFwdSpec* f = nullptr;
  LumiWTInvSpec* i = nullptr;
  EXPECT_EQ(lumiWTFwdInitAlloc_32f_C1R(nullptr, t, 2, 0, t, 2, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiWTFwdInitAlloc_32f_C1R(&f, t, 2, 0, nullptr, 2, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiWTInvInitAlloc_32f_C1R(&i, t, 1, 5, t, 2, 0), lumStatusSizeErr);  // length before anchor
  EXPECT_EQ(lumiWTFwdInitAlloc_32f_C3R(&f, t, 2, 0, t, 1, 0), lumStatusSizeErr);
  EXPECT_EQ(lumiWTFwdInitAlloc_32f_C1R(&f, t, 2, 2, t, 2, 0), lumStatusAnchorErr);
  EXPECT_EQ(lumiWTInvInitAlloc_32f_C3R(&i, t, 2, 0, t, 3, -1), lumStatusAnchorErr);
  ASSERT_EQ(lumiWTFwdInitAlloc_32f_C1R(&f, t, 4, 1, t, 3, 0), lumStatusOk);
  ASSERT_EQ(lumiWTInvInitAlloc_32f_C1R(&i, t, 4, 2, t, 2, 1), lumStatusOk);
  int n = 0;
  EXPECT_EQ(lumiWTFwdGetBufSize_C1R(f, &n), lumStatusOk);
  EXPECT_EQ(n, 2080);  // 4 x (2 + 0 + 512) rounded up to 32
  EXPECT_EQ(lumiWTInvGetBufSize_C3R(i, &n), lumStatusOk);
  EXPECT_EQ(n, 2080);  // 4 x (3 + 256 + 1 + 256) rounded up to 32
  EXPECT_EQ(lumiWTFwdGetBufSize_C3R(nullptr, &n), lumStatusNullPtrErr);
  EXPECT_EQ(lumiWTInvGetBufSize_C1R(i, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiWTInvGetBufSize_C1R(reinterpret_cast<LumiWTInvSpec*>(f), &n), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiWTFwdGetBufSize_C1R(reinterpret_cast<LumiWTFwdSpec*>(i), &n), lumStatusContextMismatchErr);

  std::vector<float> img(64 * 64);
  std::vector<Lum8u> buf(4096);
  float* p = img.data() + 16 * 64 + 16;
  const int s = 64 * 4;
  auto fwd = [&](const LumiWTFwdSpec* r, Lum32f* src, Lum32f* a, int sz, int st, Lum8u* b) {
    return lumiWTFwd_32f_C1R(src, s, a, st, p, s, p, s, p, s, {sz, 2}, r, b);
  };
  // order: record null, record kind, buffer and images null, size, steps
  EXPECT_EQ(fwd(nullptr, nullptr, p, 0, 0, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(fwd(reinterpret_cast<LumiWTFwdSpec*>(i), nullptr, p, 0, 0, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(fwd(f, p, p, 0, 0, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(fwd(f, nullptr, p, 0, 0, buf.data()), lumStatusNullPtrErr);
  EXPECT_EQ(fwd(f, p, nullptr, 0, 0, buf.data()), lumStatusNullPtrErr);
  EXPECT_EQ(fwd(f, p, p, 0, 0, buf.data()), lumStatusSizeErr);
  EXPECT_EQ(fwd(f, p, p, 4, 0, buf.data()), lumStatusStepErr);
  EXPECT_EQ(fwd(f, p, p, 4, s, buf.data()), lumStatusOk);
  auto inv = [&](const LumiWTInvSpec* r, const Lum32f* xy, Lum32f* d, int sz, int st, Lum8u* b) {
    return lumiWTInv_32f_C3R(p, s, p, s, p, s, xy, st, {1, sz}, d, s, r, b);
  };
  EXPECT_EQ(inv(nullptr, p, p, 0, 0, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(inv(reinterpret_cast<LumiWTInvSpec*>(f), p, p, 0, 0, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(inv(i, p, p, 0, 0, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(inv(i, nullptr, p, 0, 0, buf.data()), lumStatusNullPtrErr);
  EXPECT_EQ(inv(i, p, nullptr, 0, 0, buf.data()), lumStatusNullPtrErr);
  EXPECT_EQ(inv(i, p, p, -1, 0, buf.data()), lumStatusSizeErr);
  EXPECT_EQ(inv(i, p, p, 2, 0, buf.data()), lumStatusStepErr);
  EXPECT_EQ(inv(i, p, img.data() + 40 * 64 + 16, 2, s, buf.data()), lumStatusOk);

  EXPECT_EQ(lumiWTInvFree_32f_C1R(reinterpret_cast<LumiWTInvSpec*>(f)), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiWTFwdFree_32f_C3R(nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiWTFwdFree_32f_C1R(f), lumStatusOk);
  EXPECT_EQ(lumiWTInvFree_32f_C3R(i), lumStatusOk);
}

}  // namespace
