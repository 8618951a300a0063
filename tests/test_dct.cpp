// DCT: 8x8 float and 16-bit blocks against a double-precision transform, the reduced inverses,
// level shift and clipping, zigzag, and the general records (sizes 1 to 256, channels, the 8x8
// dispatch, checks and kinds).
#include <algorithm>
#include <cmath>
#include <map>

#include "lumi/dct.h"
#include "lumitest.h"

namespace {

using lumitest::GuardedImage;
using lumitest::Rng;

// Orthonormal DCT-II of a vector (or its inverse), in double; the matrix of each length is
// made once.
std::vector<double> dct1(const std::vector<double>& x, bool inv) {
  static std::map<int, std::vector<double>> matrices;
  const int n = static_cast<int>(x.size());
  auto& m = matrices[n];
  if (m.empty())
    for (int k = 0; k < n; ++k)
      for (int j = 0; j < n; ++j)
        m.push_back((k ? std::sqrt(2.0 / n) : std::sqrt(1.0 / n)) *
                    std::cos(M_PI * (2 * j + 1) * k / (2.0 * n)));
  std::vector<double> y(n, 0.0);
  for (int k = 0; k < n; ++k)
    for (int j = 0; j < n; ++j) {
      if (inv)
        y[j] += m[k * n + j] * x[k];
      else
        y[k] += m[k * n + j] * x[j];
    }
  return y;
}
// Rows, then columns, of a w x h row-major image.
std::vector<double> dct2(std::vector<double> a, int w, int h, bool inv) {
  for (int y = 0; y < h; ++y) {
    auto r = dct1(std::vector<double>(a.begin() + y * w, a.begin() + (y + 1) * w), inv);
    std::copy(r.begin(), r.end(), a.begin() + y * w);
  }
  for (int x = 0; x < w; ++x) {
    std::vector<double> c(h);
    for (int y = 0; y < h; ++y) c[y] = a[y * w + x];
    c = dct1(c, inv);
    for (int y = 0; y < h; ++y) a[y * w + x] = c[y];
  }
  return a;
}
template <class T>
std::vector<double> toDouble(const T* p, int n) {
  return std::vector<double>(p, p + n);
}
std::vector<Lum16s> randomBlock16s(Rng& r, int lo, int hi) {
  std::vector<Lum16s> b(64);
  for (auto& v : b) v = static_cast<Lum16s>(lumitest::randInt(r, lo, hi));
  return b;
}

// ---- float blocks ------------------------------------------------------------------------------
TEST(Dct8x8, FloatBlocksMatchTheExactTransform) {
  Rng r = lumitest::makeRng(1);
  for (int t = 0; t < 20; ++t) {
    std::vector<float> b(64), f(64), g(64), inPlace;
    for (auto& v : b) v = static_cast<float>(std::uniform_real_distribution<double>(-256, 256)(r));
    ASSERT_EQ(lumiDCT8x8Fwd_32f_C1(b.data(), f.data()), lumStatusOk);
    const auto want = dct2(toDouble(b.data(), 64), 8, 8, false);
    for (int i = 0; i < 64; ++i) ASSERT_NEAR(f[i], want[i], 2e-3) << i;
    ASSERT_EQ(lumiDCT8x8Inv_32f_C1(f.data(), g.data()), lumStatusOk);
    const auto back = dct2(toDouble(f.data(), 64), 8, 8, true);
    for (int i = 0; i < 64; ++i) ASSERT_NEAR(g[i], back[i], 2e-3) << i;
    for (int i = 0; i < 64; ++i) ASSERT_NEAR(g[i], b[i], 2e-3) << i;
    inPlace = b;  // in place: the same floats
    lumiDCT8x8Fwd_32f_C1I(inPlace.data());
    EXPECT_TRUE(lumitest::sameElements(inPlace, f));
    lumiDCT8x8Inv_32f_C1I(inPlace.data());
    EXPECT_TRUE(lumitest::sameElements(inPlace, g));
  }
  std::vector<float> c(64, 3.0f), f(64);
  lumiDCT8x8Fwd_32f_C1(c.data(), f.data());
  EXPECT_NEAR(f[0], 24.0f, 1e-5);
  for (int i = 1; i < 64; ++i) EXPECT_NEAR(f[i], 0.0f, 1e-5);
}

// ---- 16-bit blocks --------------------------------------------------------------------------
::testing::AssertionResult within(const std::vector<Lum16s>& got, const std::vector<double>& exact,
                                  int tol) {
  for (int i = 0; i < 64; ++i) {
    const double w = std::clamp(std::floor(exact[i] + 0.5), -32768.0, 32767.0);
    if (std::abs(got[i] - w) > tol)
      return ::testing::AssertionFailure() << "coefficient " << i << ": got " << got[i]
                                           << ", exact " << exact[i];
  }
  return ::testing::AssertionSuccess();
}

TEST(Dct8x8, IntegerBlocksWithinTwoOfTheExactTransform) {
  Rng r = lumitest::makeRng(2);
  for (int t = 0; t < 50; ++t) {
    const auto b = randomBlock16s(r, -256, 255);
    std::vector<Lum16s> f(64), g(64), ip = b;
    ASSERT_EQ(lumiDCT8x8Fwd_16s_C1(b.data(), f.data()), lumStatusOk);
    EXPECT_TRUE(within(f, dct2(toDouble(b.data(), 64), 8, 8, false), 2));
    lumiDCT8x8Fwd_16s_C1I(ip.data());
    EXPECT_EQ(ip, f);
    ASSERT_EQ(lumiDCT8x8Inv_16s_C1(f.data(), g.data()), lumStatusOk);
    EXPECT_TRUE(within(g, dct2(toDouble(f.data(), 64), 8, 8, true), 2));
    lumiDCT8x8Inv_16s_C1I(ip.data());
    EXPECT_EQ(ip, g);
    // the reduced inverses read only their corner and are within 1
    for (int m : {2, 4}) {
      auto sparse = f;
      for (int i = 0; i < 64; ++i)
        if (i % 8 >= m || i / 8 >= m) sparse[i] = 0;
      std::vector<Lum16s> h(64), hi = f;
      if (m == 2) {
        lumiDCT8x8Inv_2x2_16s_C1(f.data(), h.data());
        lumiDCT8x8Inv_2x2_16s_C1I(hi.data());
      } else {
        lumiDCT8x8Inv_4x4_16s_C1(f.data(), h.data());
        lumiDCT8x8Inv_4x4_16s_C1I(hi.data());
      }
      EXPECT_TRUE(within(h, dct2(toDouble(sparse.data(), 64), 8, 8, true), 1)) << m;
      EXPECT_EQ(hi, h);
    }
  }
  std::vector<Lum16s> c(64, -77), f(64), one(64, 0), g(64);
  lumiDCT8x8Fwd_16s_C1(c.data(), f.data());
  EXPECT_EQ(f[0], -616);
  for (int i = 1; i < 64; ++i) EXPECT_EQ(f[i], 0) << i;
  one[0] = 8;
  lumiDCT8x8Inv_2x2_16s_C1(one.data(), g.data());
  EXPECT_EQ(g, std::vector<Lum16s>(64, 1));
  // saturation: a full-scale block's DC does not fit 16 bits
  std::vector<Lum16s> big(64, 32767);
  lumiDCT8x8Fwd_16s_C1(big.data(), f.data());
  EXPECT_EQ(f[0], 32767);
}

TEST(Dct8x8, ImageSidesLevelShiftAndClip) {
  Rng r = lumitest::makeRng(3);
  GuardedImage<Lum8u> px(8, 8, 1, 5, 1);
  GuardedImage<Lum16s> s16(8, 8, 1, 6, 2), d16(8, 8, 1, 10, 2);
  GuardedImage<Lum8u> d8(8, 8, 1, 3, 1);
  for (int t = 0; t < 10; ++t) {
    px.fillRandom(r);
    const auto pixels = px.pixels();
    std::vector<Lum16s> plain(64), shifted(64), want(64), got(64);
    for (int i = 0; i < 64; ++i) plain[i] = pixels[i], shifted[i] = pixels[i] - 128;
    lumiDCT8x8Fwd_16s_C1(plain.data(), want.data());
    ASSERT_EQ(lumiDCT8x8Fwd_8u16s_C1R(px.ptr(), px.step(), got.data()), lumStatusOk);
    EXPECT_EQ(got, want);  // no level shift
    lumiDCT8x8Fwd_16s_C1(shifted.data(), want.data());
    ASSERT_EQ(lumiDCT8x8FwdLS_8u16s_C1R(px.ptr(), px.step(), got.data(), -128), lumStatusOk);
    EXPECT_EQ(got, want);
    for (int y = 0; y < 8; ++y) std::copy(shifted.begin() + 8 * y, shifted.begin() + 8 * y + 8, s16.row(y));
    ASSERT_EQ(lumiDCT8x8Fwd_16s_C1R(s16.ptr(), s16.step(), got.data()), lumStatusOk);
    EXPECT_EQ(got, want);
    // inverse sides: 16s image, 8u saturated, 8u shifted and clipped
    auto coef = want;
    coef[0] = static_cast<Lum16s>(coef[0] + lumitest::randInt(r, -400, 400));
    std::vector<Lum16s> inv(64);
    lumiDCT8x8Inv_16s_C1(coef.data(), inv.data());
    ASSERT_EQ(lumiDCT8x8Inv_16s_C1R(coef.data(), d16.ptr(), d16.step()), lumStatusOk);
    EXPECT_EQ(d16.pixels(), inv);
    ASSERT_EQ(lumiDCT8x8Inv_16s8u_C1R(coef.data(), d8.ptr(), d8.step()), lumStatusOk);
    for (int i = 0; i < 64; ++i) ASSERT_EQ(d8.pixels()[i], std::clamp<int>(inv[i], 0, 255));
    ASSERT_EQ(lumiDCT8x8InvLSClip_16s8u_C1R(coef.data(), d8.ptr(), d8.step(), 128, 16, 235), lumStatusOk);
    for (int i = 0; i < 64; ++i) ASSERT_EQ(d8.pixels()[i], std::clamp<int>(inv[i] + 128, 16, 235));
    ASSERT_EQ(lumiDCT8x8InvLSClip_16s8u_C1R(coef.data(), d8.ptr(), d8.step(), 128, 0, 255), lumStatusOk);
    for (int i = 0; i < 64; ++i) ASSERT_EQ(d8.pixels()[i], std::clamp<int>(inv[i] + 128, 0, 255));
  }
  EXPECT_TRUE(d16.guardsIntact());
  EXPECT_TRUE(d8.guardsIntact());
}

TEST(Dct8x8, Zigzag) {
  std::vector<Lum16s> idx(64), z(64), back(64);
  for (int i = 0; i < 64; ++i) idx[i] = static_cast<Lum16s>(i);
  ASSERT_EQ(lumiZigzagFwd8x8_16s_C1(idx.data(), z.data()), lumStatusOk);
  const int head[10] = {0, 1, 8, 16, 9, 2, 3, 10, 17, 24};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(z[i], head[i]);
  EXPECT_EQ(z[63], 63);
  ASSERT_EQ(lumiZigzagInv8x8_16s_C1(z.data(), back.data()), lumStatusOk);
  EXPECT_EQ(back, idx);
  auto sorted = z;
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(sorted, idx);  // a permutation
}

TEST(Dct8x8, NullPointersAndSteps) {
  std::vector<float> f(64);
  std::vector<Lum16s> s(64);
  std::vector<Lum8u> u(64);
  const LumStatus N = lumStatusNullPtrErr, S = lumStatusStepErr;
  EXPECT_EQ(lumiDCT8x8Fwd_32f_C1(nullptr, f.data()), N);
  EXPECT_EQ(lumiDCT8x8Inv_32f_C1(f.data(), nullptr), N);
  EXPECT_EQ(lumiDCT8x8Fwd_32f_C1I(nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_32f_C1I(nullptr), N);
  EXPECT_EQ(lumiDCT8x8Fwd_16s_C1(s.data(), nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_16s_C1(nullptr, s.data()), N);
  EXPECT_EQ(lumiDCT8x8Fwd_16s_C1I(nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_16s_C1I(nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_2x2_16s_C1(nullptr, s.data()), N);
  EXPECT_EQ(lumiDCT8x8Inv_2x2_16s_C1I(nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_4x4_16s_C1(s.data(), nullptr), N);
  EXPECT_EQ(lumiDCT8x8Inv_4x4_16s_C1I(nullptr), N);
  EXPECT_EQ(lumiZigzagFwd8x8_16s_C1(nullptr, s.data()), N);
  EXPECT_EQ(lumiZigzagInv8x8_16s_C1(s.data(), nullptr), N);
  EXPECT_EQ(lumiDCT8x8Fwd_16s_C1R(nullptr, 0, s.data()), N);  // pointers before steps
  EXPECT_EQ(lumiDCT8x8Fwd_16s_C1R(s.data(), 0, s.data()), S);
  EXPECT_EQ(lumiDCT8x8Inv_16s_C1R(s.data(), s.data(), -16), S);
  EXPECT_EQ(lumiDCT8x8Fwd_8u16s_C1R(u.data(), 0, nullptr), N);
  EXPECT_EQ(lumiDCT8x8Fwd_8u16s_C1R(u.data(), 0, s.data()), S);
  EXPECT_EQ(lumiDCT8x8Inv_16s8u_C1R(s.data(), u.data(), 0), S);
  EXPECT_EQ(lumiDCT8x8FwdLS_8u16s_C1R(nullptr, 8, s.data(), -128), N);
  EXPECT_EQ(lumiDCT8x8FwdLS_8u16s_C1R(u.data(), 0, s.data(), -128), S);
  EXPECT_EQ(lumiDCT8x8InvLSClip_16s8u_C1R(s.data(), nullptr, 8, 128, 0, 255), N);
  EXPECT_EQ(lumiDCT8x8InvLSClip_16s8u_C1R(s.data(), u.data(), 0, 128, 0, 255), S);
}

// ---- general records -----------------------------------------------------------------------
struct Record {
  LumiDCTSpec* spec = nullptr;
  bool fwd;
  Record(LumiSize size, bool f) : fwd(f) {
    EXPECT_EQ((f ? lumiDCTFwdInitAlloc_32f : lumiDCTInvInitAlloc_32f)(&spec, size, 0), lumStatusOk);
  }
  ~Record() { (fwd ? lumiDCTFwdFree_32f : lumiDCTInvFree_32f)(spec); }
  int bufSize() const {
    int n = -1;
    (fwd ? lumiDCTFwdGetBufSize_32f : lumiDCTInvGetBufSize_32f)(spec, &n);
    return n;
  }
};
using DctFn = LumStatus (*)(const Lum32f*, int, Lum32f*, int, const LumiDCTSpec*, Lum8u*);
DctFn dctFn(bool fwd, int layout) {
  static const DctFn f[2][4] = {
      {lumiDCTInv_32f_C1R, lumiDCTInv_32f_C3R, lumiDCTInv_32f_C4R, lumiDCTInv_32f_AC4R},
      {lumiDCTFwd_32f_C1R, lumiDCTFwd_32f_C3R, lumiDCTFwd_32f_C4R, lumiDCTFwd_32f_AC4R}};
  return f[fwd][layout];
}

TEST(DctGeneral, MatchesTheExactTransformAtManySizes) {
  Rng r = lumitest::makeRng(4);
  const LumiSize sizes[] = {{1, 1}, {2, 1}, {1, 2}, {2, 3}, {5, 7}, {13, 8}, {8, 13}, {16, 16},
                            {31, 2}, {64, 9}, {3, 97}, {256, 3}, {160, 130}};
  for (LumiSize sz : sizes) {
    for (bool fwd : {true, false}) {
      Record rec(sz, fwd);
      GuardedImage<Lum32f> src(sz.width, sz.height, 1), dst(sz.width, sz.height, 1, 8, 4);
      src.fill([&](int, int, int) { return static_cast<float>(std::uniform_real_distribution<double>(-100, 100)(r)); });
      std::vector<Lum8u> buf(rec.bufSize() + 3);
      ASSERT_EQ(dctFn(fwd, 0)(src.ptr(), src.step(), dst.ptr(), dst.step(), rec.spec, buf.data() + 3), lumStatusOk);
      const auto in = src.pixels();
      const auto want = dct2(std::vector<double>(in.begin(), in.end()), sz.width, sz.height, !fwd);
      double norm = 0;
      for (float v : in) norm += double(v) * v;
      const auto got = dst.pixels();
      for (std::size_t i = 0; i < got.size(); ++i)
        ASSERT_NEAR(got[i], want[i], 2e-6 * std::sqrt(norm) + 1e-5) << sz.width << "x" << sz.height << " at " << i;
      EXPECT_TRUE(dst.guardsIntact());
      // in place and without a buffer: the same floats
      ASSERT_EQ(dctFn(fwd, 0)(src.ptr(), src.step(), src.ptr(), src.step(), rec.spec, nullptr), lumStatusOk);
      EXPECT_TRUE(lumitest::sameElements(src.pixels(), got));
    }
  }
}

TEST(DctGeneral, EightByEightRecordsGiveTheBlockResults) {
  Rng r = lumitest::makeRng(5);
  for (bool fwd : {true, false}) {
    Record rec({8, 8}, fwd);
    EXPECT_EQ(rec.bufSize(), 1040);
    std::vector<float> b(64), want(64), got(64);
    for (auto& v : b) v = static_cast<float>(std::uniform_real_distribution<double>(-300, 300)(r));
    (fwd ? lumiDCT8x8Fwd_32f_C1 : lumiDCT8x8Inv_32f_C1)(b.data(), want.data());
    ASSERT_EQ(dctFn(fwd, 0)(b.data(), 32, got.data(), 32, rec.spec, nullptr), lumStatusOk);
    EXPECT_TRUE(lumitest::sameElements(got, want));
    GuardedImage<Lum32f> src(8, 8, 1, 4, 0), dst(8, 8, 1, 12, 8);  // other steps: staged
    src.fill([&](int x, int y, int) { return b[y * 8 + x]; });
    std::vector<Lum8u> buf(1040);
    ASSERT_EQ(dctFn(fwd, 0)(src.ptr(), src.step(), dst.ptr(), dst.step(), rec.spec, buf.data()), lumStatusOk);
    EXPECT_TRUE(lumitest::sameElements(dst.pixels(), want));
    EXPECT_TRUE(dst.guardsIntact());
  }
}

// Every channel as its own one-channel image; AC4 leaves the fourth channel as it was.
TEST(DctGeneral, ChannelsOneByOne) {
  Rng r = lumitest::makeRng(6);
  for (LumiSize sz : {LumiSize{8, 8}, LumiSize{11, 6}}) {
    for (bool fwd : {true, false}) {
      Record rec(sz, fwd);
      for (int l = 1; l < 4; ++l) {
        const lumitest::Layout lay = lumitest::kLayouts[l];
        GuardedImage<Lum32f> src(sz.width, sz.height, lay.ch), dst(sz.width, sz.height, lay.ch, 4, 4);
        src.fillRandom(r);
        dst.fillRandom(r);
        const auto before = dst.pixels();
        ASSERT_EQ(dctFn(fwd, l)(src.ptr(), src.step(), dst.ptr(), dst.step(), rec.spec, nullptr), lumStatusOk);
        for (int c = 0; c < lay.ch; ++c) {
          std::vector<float> plane, want(sz.width * sz.height);
          for (int y = 0; y < sz.height; ++y)
            for (int x = 0; x < sz.width; ++x) plane.push_back(src.at(x, y, c));
          dctFn(fwd, 0)(plane.data(), 4 * sz.width, want.data(), 4 * sz.width, rec.spec, nullptr);
          for (int y = 0; y < sz.height; ++y)
            for (int x = 0; x < sz.width; ++x) {
              const float w = c < lay.use ? want[y * sz.width + x] : before[(y * sz.width + x) * lay.ch + c];
              ASSERT_EQ(dst.at(x, y, c), w) << lay.name << " channel " << c;
            }
        }
        EXPECT_TRUE(dst.guardsIntact());
      }
    }
  }
}

TEST(DctGeneral, ChecksAndKinds) {
  LumiDCTSpec* f = nullptr;
  LumiDCTSpec* i = nullptr;
  EXPECT_EQ(lumiDCTFwdInitAlloc_32f(nullptr, {4, 4}, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTInvInitAlloc_32f(&i, {0, 4}, 0), lumStatusSizeErr);
  EXPECT_EQ(lumiDCTFwdInitAlloc_32f(&f, {4, -1}, 0), lumStatusSizeErr);
  ASSERT_EQ(lumiDCTFwdInitAlloc_32f(&f, {6, 5}, 0), lumStatusOk);
  ASSERT_EQ(lumiDCTInvInitAlloc_32f(&i, {6, 6}, 0), lumStatusOk);
  int n = 0;
  EXPECT_EQ(lumiDCTFwdGetBufSize_32f(f, &n), lumStatusOk);
  EXPECT_GT(n, 16 * 6 + 16);
  EXPECT_EQ(lumiDCTFwdGetBufSize_32f(nullptr, &n), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTFwdGetBufSize_32f(f, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTInvGetBufSize_32f(f, &n), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDCTFwdGetBufSize_32f(i, &n), lumStatusContextMismatchErr);
  std::vector<float> a(64), b(64);
  // order: record null, record kind, images null, steps
  EXPECT_EQ(lumiDCTFwd_32f_C1R(nullptr, 0, b.data(), 24, nullptr, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTFwd_32f_C1R(nullptr, 0, b.data(), 24, i, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDCTInv_32f_C3R(a.data(), 0, b.data(), 24, f, nullptr), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDCTFwd_32f_C1R(nullptr, 0, b.data(), 24, f, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTInv_32f_AC4R(a.data(), 0, nullptr, 0, i, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTFwd_32f_C4R(a.data(), 0, b.data(), 24, f, nullptr), lumStatusStepErr);
  EXPECT_EQ(lumiDCTInv_32f_C1R(a.data(), 24, b.data(), -24, i, nullptr), lumStatusStepErr);
  EXPECT_EQ(lumiDCTInvFree_32f(f), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDCTFwdFree_32f(i), lumStatusContextMismatchErr);
  EXPECT_EQ(lumiDCTFwdFree_32f(nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDCTFwdFree_32f(f), lumStatusOk);
  EXPECT_EQ(lumiDCTInvFree_32f(i), lumStatusOk);
}

}  // namespace
