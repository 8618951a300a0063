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
  int ch, use;
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

#define THR_LAYOUT(tc, L, ch, use, X)                                                            \
  out.push_back({"Threshold_" #tc "_" #L "R", kClamp, ch, use, false,                             \
                 R_CALL(lumiThreshold_##tc##_##L##R(s, ss, d, ds, r, X(t1), cmp))});              \
  out.push_back({"Threshold_" #tc "_" #L "IR", kClamp, ch, use, true,                             \
                 R_CALL(lumiThreshold_##tc##_##L##IR(d, ds, r, X(t1), cmp))});                    \
  out.push_back({"Threshold_GT_" #tc "_" #L "R", kGT, ch, use, false,                             \
                 R_CALL(lumiThreshold_GT_##tc##_##L##R(s, ss, d, ds, r, X(t1)))});                \
  out.push_back({"Threshold_GT_" #tc "_" #L "IR", kGT, ch, use, true,                             \
                 R_CALL(lumiThreshold_GT_##tc##_##L##IR(d, ds, r, X(t1)))});                      \
  out.push_back({"Threshold_LT_" #tc "_" #L "R", kLT, ch, use, false,                             \
                 R_CALL(lumiThreshold_LT_##tc##_##L##R(s, ss, d, ds, r, X(t1)))});                \
  out.push_back({"Threshold_LT_" #tc "_" #L "IR", kLT, ch, use, true,                             \
                 R_CALL(lumiThreshold_LT_##tc##_##L##IR(d, ds, r, X(t1)))});                      \
  out.push_back({"Threshold_Val_" #tc "_" #L "R", kVal, ch, use, false,                           \
                 R_CALL(lumiThreshold_Val_##tc##_##L##R(s, ss, d, ds, r, X(t1), X(v1), cmp))});   \
  out.push_back({"Threshold_Val_" #tc "_" #L "IR", kVal, ch, use, true,                           \
                 R_CALL(lumiThreshold_Val_##tc##_##L##IR(d, ds, r, X(t1), X(v1), cmp))});         \
  out.push_back({"Threshold_GTVal_" #tc "_" #L "R", kGTVal, ch, use, false,                       \
                 R_CALL(lumiThreshold_GTVal_##tc##_##L##R(s, ss, d, ds, r, X(t1), X(v1)))});      \
  out.push_back({"Threshold_GTVal_" #tc "_" #L "IR", kGTVal, ch, use, true,                       \
                 R_CALL(lumiThreshold_GTVal_##tc##_##L##IR(d, ds, r, X(t1), X(v1)))});            \
  out.push_back({"Threshold_LTVal_" #tc "_" #L "R", kLTVal, ch, use, false,                       \
                 R_CALL(lumiThreshold_LTVal_##tc##_##L##R(s, ss, d, ds, r, X(t1), X(v1)))});      \
  out.push_back({"Threshold_LTVal_" #tc "_" #L "IR", kLTVal, ch, use, true,                       \
                 R_CALL(lumiThreshold_LTVal_##tc##_##L##IR(d, ds, r, X(t1), X(v1)))});            \
  out.push_back({"Threshold_LTValGTVal_" #tc "_" #L "R", kTwoSided, ch, use, false,               \
                 R_CALL(lumiThreshold_LTValGTVal_##tc##_##L##R(s, ss, d, ds, r, X(t1), X(v1),     \
                                                               X(t2), X(v2)))});                 \
  out.push_back({"Threshold_LTValGTVal_" #tc "_" #L "IR", kTwoSided, ch, use, true,               \
                 R_CALL(lumiThreshold_LTValGTVal_##tc##_##L##IR(d, ds, r, X(t1), X(v1), X(t2),    \
                                                                X(v2)))});

#define THR_C4(tc)                                                                                \
  out.push_back({"Threshold_GTVal_" #tc "_C4R", kGTVal, 4, 4, false,                              \
                 R_CALL(lumiThreshold_GTVal_##tc##_C4R(s, ss, d, ds, r, t1, v1))});               \
  out.push_back({"Threshold_GTVal_" #tc "_C4IR", kGTVal, 4, 4, true,                              \
                 R_CALL(lumiThreshold_GTVal_##tc##_C4IR(d, ds, r, t1, v1))});                     \
  out.push_back({"Threshold_LTVal_" #tc "_C4R", kLTVal, 4, 4, false,                              \
                 R_CALL(lumiThreshold_LTVal_##tc##_C4R(s, ss, d, ds, r, t1, v1))});               \
  out.push_back({"Threshold_LTVal_" #tc "_C4IR", kLTVal, 4, 4, true,                              \
                 R_CALL(lumiThreshold_LTVal_##tc##_C4IR(d, ds, r, t1, v1))});

#define THR_TYPE(tc)                \
  THR_LAYOUT(tc, C1, 1, 1, S)       \
  THR_LAYOUT(tc, C3, 3, 3, A)       \
  THR_LAYOUT(tc, AC4, 4, 3, A)      \
  THR_C4(tc)

template <class T>
std::vector<Case<T>> cases();
template <>
std::vector<Case<Lum8u>> cases<Lum8u>() {
  using T = Lum8u;
  std::vector<Case<T>> out;
  THR_TYPE(8u)
  return out;
}
template <>
std::vector<Case<Lum16s>> cases<Lum16s>() {
  using T = Lum16s;
  std::vector<Case<T>> out;
  THR_TYPE(16s)
  return out;
}
template <>
std::vector<Case<Lum32f>> cases<Lum32f>() {
  using T = Lum32f;
  std::vector<Case<T>> out;
  THR_TYPE(32f)
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
      GuardedImage<T> src(roi.width, roi.height, c.ch, -1, -1, salt + iter);
      GuardedImage<T> dst(roi.width, roi.height, c.ch, -1, -1, salt + iter + 99);
      src.fill([&](int, int, int ch) { return sample(rng, c.kind == kTwoSided && randInt(rng, 0, 1) ? t2 : t1, ch % 4); });
      dst.fillRandom(rng);
      if (c.inPlace)
        for (int y = 0; y < roi.height; ++y)
          for (int i = 0; i < roi.width * c.ch; ++i) dst.row(y)[i] = src.row(y)[i];
      const std::vector<T> before = dst.pixels();
      ASSERT_EQ(lumStatusOk, c.call(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, t1, v1,
                                     t2, v2, cmp))
          << c.name;
      std::vector<T> want = before;
      const std::vector<T> in = src.pixels();
      for (std::size_t i = 0; i < want.size(); ++i) {
        const int ch = static_cast<int>(i % c.ch);
        if (ch >= c.use) continue;  // alpha keeps what the destination held
        const T x = c.inPlace ? before[i] : in[i];
        want[i] = expected(c.kind, cmp, x, t1[ch], v1[ch], t2[ch], v2[ch]);
      }
      ASSERT_TRUE(sameElements(dst.pixels(), want, roi.width * c.ch))
          << c.name << " cmp " << cmp << " " << roi.width << "x" << roi.height;
      ASSERT_TRUE(dst.guardsIntact()) << c.name;
      ASSERT_TRUE(src.guardsIntact()) << c.name;
    }
  }
}

TEST(Threshold, Randomised8u) { randomised<Lum8u>(1); }
TEST(Threshold, Randomised16s) { randomised<Lum16s>(2); }
TEST(Threshold, Randomised32f) { randomised<Lum32f>(3); }

template <class T>
struct Id {
  using type = T;
};

constexpr int kDef = std::numeric_limits<int>::min();  // the image's own step

// A failing call returns `want` and leaves the destination and its surroundings alone.
template <class T>
void expectRejected(const Case<T>& c, LumStatus want, bool nullSrc, bool nullDst, LumiSize roi,
                    int srcStep, int dstStep, const typename Id<T>::type* t1,
                    const typename Id<T>::type* v1, const typename Id<T>::type* t2,
                    const typename Id<T>::type* v2, int cmp) {
  GuardedImage<T> src(5, 3, c.ch), dst(5, 3, c.ch);
  Rng rng = makeRng(5);
  src.fillRandom(rng);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  LumStatus got = c.call(nullSrc ? nullptr : src.ptr(), srcStep == kDef ? src.step() : srcStep,
                         nullDst ? nullptr : dst.ptr(), dstStep == kDef ? dst.step() : dstStep, roi, t1,
                         v1, t2, v2, cmp);
  EXPECT_EQ(want, got) << c.name;
  EXPECT_TRUE(sameElements(dst.pixels(), before)) << c.name;
  EXPECT_TRUE(dst.guardsIntact()) << c.name;
}

template <class T>
void validation() {
  const T t[4] = {1, 2, 3, 4}, v[4] = {5, 6, 7, 8}, hi[4] = {9, 9, 9, 9};
  const LumiSize ok{5, 3}, bad{0, 3};
  for (const Case<T>& c : cases<T>()) {
    const bool arrays = c.ch > 1;
    const bool fixed = c.kind != kClamp && c.kind != kVal;  // no comparison argument
    for (int nullWhich = 0; nullWhich < (c.inPlace ? 1 : 2); ++nullWhich) {
      const bool ns = !c.inPlace && nullWhich == 0, nd = c.inPlace || nullWhich == 1;
      // A bad comparison wins over null pointers only in replace mode.
      if (!fixed)
        expectRejected(c, c.kind == kVal ? lumStatusUnsupportedModeErr : lumStatusNullPtrErr,
                       ns, nd, bad, kDef, kDef, t, v, hi, v, 2);
      expectRejected(c, lumStatusNullPtrErr, ns, nd, bad, kDef, kDef, t, v, hi, v, 4);
    }
    // Size is tested before steps; steps before the arrays; the arrays before the comparison.
    expectRejected(c, lumStatusSizeErr, false, false, bad, kDef, kDef, t, v, hi, v, 4);
    expectRejected(c, lumStatusSizeErr, false, false, LumiSize{5, -1}, 0, 0, t, v, hi, v, 4);
    expectRejected(c, lumStatusStepErr, false, false, ok, 0, 0, t, v, hi, v, 4);
    if (!c.inPlace) expectRejected(c, lumStatusStepErr, false, false, ok, kDef, -3, t, v, hi, v, 4);
    if (!c.inPlace) expectRejected(c, lumStatusStepErr, false, false, ok, -3, kDef, t, v, hi, v, 4);
    if (arrays) {
      if (c.kind == kClamp) {
        expectRejected(c, lumStatusNullPtrErr, false, false, ok, kDef, kDef, nullptr, v, hi, v, 2) ;
      }
      expectRejected(c, lumStatusNullPtrErr, false, false, ok, kDef, kDef, nullptr, v, hi, v, 4);
      if (c.kind != kClamp && c.kind != kGT && c.kind != kLT)
        expectRejected(c, lumStatusNullPtrErr, false, false, ok, kDef, kDef, t, nullptr, hi, v, 4);
      if (c.kind == kTwoSided) {
        expectRejected(c, lumStatusNullPtrErr, false, false, ok, kDef, kDef, t, v, nullptr, v, 4);
        expectRejected(c, lumStatusNullPtrErr, false, false, ok, kDef, kDef, t, v, hi, nullptr, 4);
      }
    }
    if (!fixed) {
      for (int cmp : {1, 2, 3, 5, -1})
        expectRejected(c, lumStatusUnsupportedModeErr, false, false, ok, kDef, kDef, t, v, hi, v, cmp);
      // the order between the array check and the comparison
      if (arrays && c.kind == kVal)
        expectRejected(c, lumStatusUnsupportedModeErr, false, false, ok, kDef, kDef, nullptr, v, hi,
                       v, 2);
    }
    if (c.kind == kTwoSided) {
      // Every processed channel is checked; alpha takes no part.
      for (int bad = 0; bad < c.use; ++bad) {
        T lo[4] = {0, 0, 0, 0}, up[4] = {5, 5, 5, 5};
        lo[bad] = 10;
        up[bad] = 9;
        expectRejected(c, lumStatusThresholdOrderErr, false, false, ok, kDef, kDef, lo, v, up, v, 0);
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
