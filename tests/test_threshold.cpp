// Threshold family: clamp, replace and two-sided replace, every type, layout and form,
// against a per-sample reference; validation order of each form; NaN handling of 32f.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "lumitest.h"

using namespace lumitest;

namespace {

enum Kind { kClamp, kGT, kLT, kVal, kGTVal, kLTVal, kTwoSided };

// Every function is called through one shape: thresholds and values as arrays (element 0 is
// the scalar of C1 forms); in-place forms ignore s/ss and work on d.
template <class T>
using Call = LumStatus (*)(const T* s, int ss, T* d, int ds, LumiSize r, const T* t1,
                           const T* v1, const T* t2, const T* v2, int cmp);

template <class T>
struct Case {
  std::string name;
  Kind kind;
  Layout lay;
  bool inPlace;
  Call<T> call;
};

// The documented rule for one sample, spelled out case by case.
template <class T>
T expected(Kind kind, int cmp, T x, T t1, T v1, T t2, T v2) {
  bool nan = false;
  if constexpr (std::is_floating_point_v<T>) nan = std::isnan(x);
  bool greater = kind == kGT || kind == kGTVal || ((kind == kClamp || kind == kVal) && cmp == 4);
  switch (kind) {
    case kClamp: case kGT: case kLT:
      if (nan) return t1;
      if (greater) return x > t1 ? t1 : x;
      return x < t1 ? t1 : x;
    case kVal: case kGTVal: case kLTVal:
      if (greater) return (!nan && x > t1) ? v1 : x;
      return (nan || x < t1) ? v1 : x;
    default:
      if (nan || x < t1) return v1;
      return x > t2 ? v2 : x;
  }
}

#define S(p) (p)[0]
#define A(p) (p)
#define R_CALL(expr) [](const T* s, int ss, T* d, int ds, LumiSize r, const T* t1, const T* v1, \
                        const T* t2, const T* v2, int cmp) -> LumStatus { return expr; }

// One out-of-place and one in-place form of an operation, with the same trailing arguments.
#define THR_FORMS(OP, K, tc, L, LAY, ...)                                          \
  out.push_back({#OP "_" #tc "_" #L "R", K, LAY, false,                            \
                 R_CALL(lumi##OP##_##tc##_##L##R(s, ss, d, ds, r, __VA_ARGS__))}); \
  out.push_back({#OP "_" #tc "_" #L "IR", K, LAY, true,                            \
                 R_CALL(lumi##OP##_##tc##_##L##IR(d, ds, r, __VA_ARGS__))});

#define THR_LAYOUT(tc, L, LAY, X)                               \
  THR_FORMS(Threshold, kClamp, tc, L, LAY, X(t1), cmp)          \
  THR_FORMS(Threshold_GT, kGT, tc, L, LAY, X(t1))               \
  THR_FORMS(Threshold_LT, kLT, tc, L, LAY, X(t1))               \
  THR_FORMS(Threshold_Val, kVal, tc, L, LAY, X(t1), X(v1), cmp) \
  THR_FORMS(Threshold_GTVal, kGTVal, tc, L, LAY, X(t1), X(v1))  \
  THR_FORMS(Threshold_LTVal, kLTVal, tc, L, LAY, X(t1), X(v1))  \
  THR_FORMS(Threshold_LTValGTVal, kTwoSided, tc, L, LAY, X(t1), X(v1), X(t2), X(v2))

#define THR_TYPE(tc)                                      \
  THR_LAYOUT(tc, C1, kC1, S)                              \
  THR_LAYOUT(tc, C3, kC3, A)                              \
  THR_LAYOUT(tc, AC4, kAC4, A)                            \
  THR_FORMS(Threshold_GTVal, kGTVal, tc, C4, kC4, t1, v1) \
  THR_FORMS(Threshold_LTVal, kLTVal, tc, C4, kC4, t1, v1)

template <class T>
std::vector<Case<T>> cases() {
  std::vector<Case<T>> out;
  if constexpr (std::is_same_v<T, Lum8u>) {
    THR_TYPE(8u)
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    THR_TYPE(16s)
  } else {
    THR_TYPE(32f)
  }
  return out;
}

// Samples: random, with many equal to a threshold and (for 32f) some NaNs.
template <class T>
T sample(Rng& rng, const T* thresholds, int c) {
  int k = randInt(rng, 0, 19);
  if (k < 3) return thresholds[c];
  if constexpr (std::is_floating_point_v<T>)
    if (k == 3) return std::numeric_limits<T>::quiet_NaN();
  return randomValue<T>(rng);
}

template <class T>
void randomised(uint32_t salt) {
  Rng rng = makeRng(salt);
  for (const Case<T>& c : cases<T>()) {
    for (int iter = 0; iter < 12; ++iter) {
      LumiSize roi = iter < 2 ? LumiSize{randInt(rng, 300, 700), 2} : randomSize(rng, 150, 5);
      T t1[4], v1[4], t2[4], v2[4];
      for (int k = 0; k < 4; ++k) {
        t1[k] = randomValue<T>(rng);
        t2[k] = randomValue<T>(rng);
        if (c.kind == kTwoSided && t2[k] < t1[k]) std::swap(t1[k], t2[k]);
        v1[k] = randomValue<T>(rng);
        v2[k] = randomValue<T>(rng);
      }
      const int cmp = randInt(rng, 0, 1) ? 4 : 0;
      GuardedImage<T> src(roi.width, roi.height, c.lay.ch, -1, -1, salt + iter);
      GuardedImage<T> dst(roi.width, roi.height, c.lay.ch, -1, -1, salt + iter + 99);
      src.fill([&](int, int, int ch) { return sample(rng, c.kind == kTwoSided && randInt(rng, 0, 1) ? t2 : t1, ch % 4); });
      if (c.inPlace) dst.fill([&](int x, int y, int ch) { return src.at(x, y, ch); });
      else dst.fillRandom(rng);
      const std::vector<T> before = dst.pixels();
      ASSERT_EQ(lumStatusOk, c.call(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, t1, v1,
                                     t2, v2, cmp))
          << c.name;
      std::vector<T> want = before;
      const std::vector<T> in = src.pixels();  // equal to `before` in place
      for (std::size_t i = 0; i < want.size(); ++i) {
        const int ch = static_cast<int>(i % c.lay.ch);
        if (ch < c.lay.use)  // alpha keeps what the destination held
          want[i] = expected(c.kind, cmp, in[i], t1[ch], v1[ch], t2[ch], v2[ch]);
      }
      ASSERT_TRUE(sameElements(dst.pixels(), want, roi.width * c.lay.ch))
          << c.name << " cmp " << cmp << " " << roi.width << "x" << roi.height;
      ASSERT_TRUE(dst.guardsIntact() && src.guardsIntact()) << c.name;
    }
  }
}

TEST(Threshold, Randomised8u) { randomised<Lum8u>(1); }
TEST(Threshold, Randomised16s) { randomised<Lum16s>(2); }
TEST(Threshold, Randomised32f) { randomised<Lum32f>(3); }

constexpr int kDef = std::numeric_limits<int>::min();  // the image's own step

template <class T>
void validation() {
  const T t[4] = {1, 2, 3, 4}, v[4] = {5, 6, 7, 8}, hi[4] = {9, 9, 9, 9};
  const LumiSize ok{5, 3}, bad{0, 3};
  for (const Case<T>& c : cases<T>()) {
    // A failing call returns `want` and leaves the destination and its surroundings alone.
    auto rej = [&](LumStatus want, LumiSize roi, int ss, int ds, const T* t1, const T* v1,
                   const T* t2, const T* v2, int cmp, bool nullSrc = false, bool nullDst = false) {
      GuardedImage<T> src(5, 3, c.lay.ch), dst(5, 3, c.lay.ch);
      Rng rng = makeRng(5);
      src.fillRandom(rng);
      dst.fillRandom(rng);
      const std::vector<T> before = dst.pixels();
      EXPECT_EQ(want, c.call(nullSrc ? nullptr : src.ptr(), ss == kDef ? src.step() : ss,
                             nullDst ? nullptr : dst.ptr(), ds == kDef ? dst.step() : ds, roi, t1,
                             v1, t2, v2, cmp))
          << c.name;
      EXPECT_TRUE(sameElements(dst.pixels(), before)) << c.name;
      EXPECT_TRUE(dst.guardsIntact()) << c.name;
    };
    const bool arrays = c.lay.ch > 1;
    const bool fixed = c.kind != kClamp && c.kind != kVal;  // no comparison argument
    for (int nullWhich = 0; nullWhich < (c.inPlace ? 1 : 2); ++nullWhich) {
      const bool ns = !c.inPlace && nullWhich == 0, nd = c.inPlace || nullWhich == 1;
      // A bad comparison wins over null pointers only in replace mode.
      if (!fixed)
        rej(c.kind == kVal ? lumStatusUnsupportedModeErr : lumStatusNullPtrErr, bad, kDef, kDef, t,
            v, hi, v, 2, ns, nd);
      rej(lumStatusNullPtrErr, bad, kDef, kDef, t, v, hi, v, 4, ns, nd);
    }
    // Size is tested before steps; steps before the arrays; the arrays before the comparison.
    rej(lumStatusSizeErr, bad, kDef, kDef, t, v, hi, v, 4);
    rej(lumStatusSizeErr, LumiSize{5, -1}, 0, 0, t, v, hi, v, 4);
    rej(lumStatusStepErr, ok, 0, 0, t, v, hi, v, 4);
    if (!c.inPlace) rej(lumStatusStepErr, ok, kDef, -3, t, v, hi, v, 4);
    if (!c.inPlace) rej(lumStatusStepErr, ok, -3, kDef, t, v, hi, v, 4);
    if (arrays) {
      if (c.kind == kClamp) rej(lumStatusNullPtrErr, ok, kDef, kDef, nullptr, v, hi, v, 2);
      rej(lumStatusNullPtrErr, ok, kDef, kDef, nullptr, v, hi, v, 4);
      if (c.kind != kClamp && c.kind != kGT && c.kind != kLT)
        rej(lumStatusNullPtrErr, ok, kDef, kDef, t, nullptr, hi, v, 4);
      if (c.kind == kTwoSided) {
        rej(lumStatusNullPtrErr, ok, kDef, kDef, t, v, nullptr, v, 4);
        rej(lumStatusNullPtrErr, ok, kDef, kDef, t, v, hi, nullptr, 4);
      }
    }
    if (!fixed) {
      for (int cmp : {1, 2, 3, 5, -1}) rej(lumStatusUnsupportedModeErr, ok, kDef, kDef, t, v, hi, v, cmp);
      // the order between the array check and the comparison
      if (arrays && c.kind == kVal) rej(lumStatusUnsupportedModeErr, ok, kDef, kDef, nullptr, v, hi, v, 2);
    }
    if (c.kind == kTwoSided) {
      // Every processed channel is checked; alpha takes no part.
      for (int b = 0; b < c.lay.use; ++b) {
        T lo[4] = {0, 0, 0, 0}, up[4] = {5, 5, 5, 5};
        lo[b] = 10;
        up[b] = 9;
        rej(lumStatusThresholdOrderErr, ok, kDef, kDef, lo, v, up, v, 0);
      }
    }
  }
}

TEST(Threshold, ValidationOrder8u) { validation<Lum8u>(); }
TEST(Threshold, ValidationOrder16s) { validation<Lum16s>(); }
TEST(Threshold, ValidationOrder32f) { validation<Lum32f>(); }

TEST(Threshold, TwoSidedEqualThresholdsAndNaN) {
  Lum32f px[4] = {1.0f, 2.0f, 3.0f, std::numeric_limits<float>::quiet_NaN()};
  const LumiSize roi{4, 1};
  // Equal bounds are accepted: only the sample equal to both is kept.
  EXPECT_EQ(lumStatusOk, lumiThreshold_LTValGTVal_32f_C1IR(px, 16, roi, 2.0f, -1.0f, 2.0f, 9.0f));
  EXPECT_EQ(-1.0f, px[0]);
  EXPECT_EQ(2.0f, px[1]);
  EXPECT_EQ(9.0f, px[2]);
  EXPECT_EQ(-1.0f, px[3]);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(lumStatusThresholdOrderErr,
            lumiThreshold_LTValGTVal_32f_C1IR(px, 16, roi, nan, 0.0f, 1.0f, 0.0f));
  EXPECT_EQ(lumStatusThresholdOrderErr,
            lumiThreshold_LTValGTVal_32f_C1IR(px, 16, roi, 0.0f, 0.0f, nan, 0.0f));
  const Lum16s lt[3] = {0, 0, 10}, gt[3] = {5, 5, 9}, val[3] = {1, 1, 1};
  Lum16s img[3] = {7, 7, 7};
  EXPECT_EQ(lumStatusThresholdOrderErr,
            lumiThreshold_LTValGTVal_16s_C3R(img, 6, img, 6, LumiSize{1, 1}, lt, val, gt, val));
  EXPECT_EQ(7, img[2]);
}

}  // namespace
