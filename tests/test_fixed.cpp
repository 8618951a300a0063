// Fixed-kernel filters against direct references of their formulas: one reference applies a
// tap table (weights as they lie over the image), rounds and saturates as the destination type
// says; every export is one row of a table. Random sources with the border pixels supplied, odd
// widths, padded steps, guarded buffers, every type and layout (AC4 alpha untouched), one and
// two threads, and the checks in the family's order.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "lumi/filter_fixed.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

class ThreadCount {  // sets threads_omp_of_n_lum for one scope and puts it back
 public:
  explicit ThreadCount(int n) : saved_(threads_omp_of_n_lum) { threads_omp_of_n_lum = n; }
  ~ThreadCount() { threads_omp_of_n_lum = saved_; }

 private:
  int saved_;
};

// ---- the kernels, as documented ----------------------------------------------------------
enum K { PrewittV, PrewittH, SobelV, SobelH, SobelV2, SobelH2, SobelX, ScharrV, ScharrH, Laplace,
         Hipass, Gauss, Lowpass, Sharpen };

struct Taps {
  int k = 3;
  std::vector<int> w;
  int div = 1;  // integer results: S / div to nearest, ties to even; floats: S / div
  bool gauss5 = false;  // 32f weighs by the float quotients w / 571 instead of dividing
};

Taps outer(std::vector<int> col, std::vector<int> row, int centre = 0, int div = 1) {
  Taps t;
  t.k = static_cast<int>(col.size());
  for (int a : col)
    for (int b : row) t.w.push_back(a * b);
  t.w[t.w.size() / 2] += centre;
  t.div = div;
  return t;
}

Taps tapsOf(K f, bool five) {
  switch (f) {
    case PrewittV: return outer({1, 1, 1}, {1, 0, -1});
    case PrewittH: return outer({-1, 0, 1}, {1, 1, 1});
    case SobelV: return five ? outer({1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}) : Taps{3, {1, 0, -1, 2, 0, -2, 1, 0, -1}};
    case SobelH: return five ? outer({-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}) : Taps{3, {-1, -2, -1, 0, 0, 0, 1, 2, 1}};
    case SobelV2: return five ? outer({1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}) : outer({1, 2, 1}, {1, -2, 1});
    case SobelH2: return five ? outer({1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}) : outer({1, -2, 1}, {1, 2, 1});
    case SobelX: return five ? outer({-1, -2, 0, 2, 1}, {1, 2, 0, -2, -1}) : outer({-1, 0, 1}, {1, 0, -1});
    case ScharrV: return Taps{3, {3, 0, -3, 10, 0, -10, 3, 0, -3}};
    case ScharrH: return Taps{3, {-3, -10, -3, 0, 0, 0, 3, 10, 3}};
    case Laplace:
      if (five)
        return Taps{5, {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1}};
      return Taps{3, {-1, -1, -1, -1, 8, -1, -1, -1, -1}};
    case Hipass: {
      Taps t = tapsOf(Laplace, false);
      if (five) t = outer({1, 1, 1, 1, 1}, {-1, -1, -1, -1, -1}, 25);  // 24 at the centre
      return t;
    }
    case Gauss:
      if (five)
        return Taps{5, {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}, 571, true};
      return Taps{3, {1, 2, 1, 2, 4, 2, 1, 2, 1}, 16};
    case Lowpass: return five ? outer({1, 1, 1, 1, 1}, {1, 1, 1, 1, 1}, 0, 25) : outer({1, 1, 1}, {1, 1, 1}, 0, 9);
    case Sharpen: return Taps{3, {-1, -1, -1, -1, 16, -1, -1, -1, -1}, 8};
  }
  return {};
}

// ---- the exports, one row each -------------------------------------------------------------
template <class Ts, class Td>
struct Entry {
  const char* name;
  Layout layout;
  K filter;
  LumStatus (*fn)(const Ts*, int, Td*, int, LumiSize);        // 3x3 only
  LumStatus (*fnm)(const Ts*, int, Td*, int, LumiSize, int);  // with a mask code
  LumStatus call(const Ts* s, int ss, Td* d, int ds, LumiSize roi, int mask) const {
    return fn ? fn(s, ss, d, ds, roi) : fnm(s, ss, d, ds, roi, mask);
  }
};
#define E3(F, N, T, L) {#N "_" #T "_" #L "R", k##L, F, lumiFilter##N##_##T##_##L##R, nullptr}
#define EM(F, N, T, L) {#N "_" #T "_" #L "R", k##L, F, nullptr, lumiFilter##N##_##T##_##L##R}
#define E3X4(F, N, T) E3(F, N, T, C1), E3(F, N, T, C3), E3(F, N, T, C4), E3(F, N, T, AC4)
#define EMX4(F, N, T) EM(F, N, T, C1), EM(F, N, T, C3), EM(F, N, T, C4), EM(F, N, T, AC4)
#define EMX3(F, N, T) EM(F, N, T, C1), EM(F, N, T, C3), EM(F, N, T, AC4)
#define SAME_TYPE(T)                                                                          \
  E3X4(PrewittV, PrewittVert, T), E3X4(PrewittH, PrewittHoriz, T), E3X4(SobelV, SobelVert, T), \
      E3X4(SobelH, SobelHoriz, T), EMX4(Laplace, Laplace, T), EMX4(Hipass, Hipass, T),         \
      EMX4(Gauss, Gauss, T), EMX3(Lowpass, Lowpass, T), E3X4(Sharpen, Sharpen, T)
#define TO_16S(T)                                                                             \
  EM(SobelV, SobelVert, T, C1), EM(SobelH, SobelHoriz, T, C1), EM(SobelV2, SobelVertSecond, T, C1), \
      EM(SobelH2, SobelHorizSecond, T, C1), EM(SobelX, SobelCross, T, C1),                     \
      E3(ScharrV, ScharrVert, T, C1), E3(ScharrH, ScharrHoriz, T, C1), EM(Laplace, Laplace, T, C1)

const std::vector<Entry<Lum8u, Lum8u>> k8u = {SAME_TYPE(8u)};
const std::vector<Entry<Lum16s, Lum16s>> k16s = {SAME_TYPE(16s)};
const std::vector<Entry<Lum32f, Lum32f>> k32f = {
    SAME_TYPE(32f), EM(SobelV2, SobelVertSecond, 32f, C1), EM(SobelH2, SobelHorizSecond, 32f, C1),
    EM(SobelX, SobelCross, 32f, C1), E3(ScharrV, ScharrVert, 32f, C1), E3(ScharrH, ScharrHoriz, 32f, C1)};
const std::vector<Entry<Lum8u, Lum16s>> k8u16s = {TO_16S(8u16s)};
const std::vector<Entry<Lum8s, Lum16s>> k8s16s = {TO_16S(8s16s)};

// ---- the reference and the whole-image check ---------------------------------------------------
template <class Td>
double expected(const Taps& t, double sum) {
  if constexpr (std::is_floating_point_v<Td>) {
    return t.gauss5 ? sum : sum / t.div;
  } else {
    // to nearest, ties to even (none occur for odd divisors), whatever the caller's mode
    const double q = std::floor(sum / t.div), r = sum / t.div - q;
    const double v = r > 0.5 || (r == 0.5 && std::fmod(q, 2.0) != 0) ? q + 1 : q;
    return std::min<double>(std::numeric_limits<Td>::max(), std::max<double>(std::numeric_limits<Td>::min(), v));
  }
}

// Random values (mode 0), only the type's two ends (1), or its maximum everywhere (2): the
// last two drive the sums to their limits.
template <class Ts>
void fillSource(GuardedImage<Ts>& src, Rng& rng, int mode = 0) {
  using Lim = std::numeric_limits<Ts>;
  if (mode != 0 && !std::is_floating_point_v<Ts>)
    src.fill([&](int, int, int) { return mode == 2 || randInt(rng, 0, 1) ? Lim::max() : Lim::min(); });
  else if constexpr (std::is_floating_point_v<Ts>)
    src.fill([&](int, int, int) { return static_cast<Ts>(randInt(rng, -100000, 100000) / 100.0); });
  else
    src.fillRandom(rng);
}

// Source with a two-pixel border (random), destination prefilled (random); checks every ROI
// element against the reference, AC4 alpha and the guards.
template <class Ts, class Td>
void checkEntry(const Entry<Ts, Td>& e, bool five, int w, int h, uint32_t seed, int mode = 0) {
  const Layout L = e.layout;
  const Taps t = tapsOf(e.filter, five);
  const int c = t.k / 2;
  Rng rng = makeRng(seed);
  GuardedImage<Ts> src(w + 4, h + 4, L.ch, -1, -1, seed);
  GuardedImage<Td> dst(w, h, L.ch, -1, -1, seed + 1);
  fillSource(src, rng, mode);
  dst.fillRandom(rng);
  const std::vector<Td> before = dst.pixels();
  ASSERT_EQ(e.call(&src.at(2, 2), src.step(), dst.ptr(), dst.step(), dst.roi(), five ? 55 : 33), lumStatusOk)
      << e.name;
  ASSERT_TRUE(dst.guardsIntact()) << e.name;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      for (int ch = 0; ch < L.ch; ++ch) {
        const Td got = dst.at(x, y, ch);
        if (ch >= L.use) {
          ASSERT_EQ(got, before[(static_cast<size_t>(y) * w + x) * L.ch + ch]) << e.name << " alpha";
          continue;
        }
        double sum = 0, mag = 0;
        for (int i = 0; i < t.k; ++i)
          for (int j = 0; j < t.k; ++j) {
            double wt = t.w[i * t.k + j];
            if (std::is_floating_point_v<Ts> && t.gauss5) wt = static_cast<float>(wt) / 571.0f;
            const double v = wt * src.at(x + 2 + j - c, y + 2 + i - c, ch);
            sum += v;
            mag += std::fabs(v);
          }
        const double want = expected<Td>(t, sum);
        if constexpr (std::is_floating_point_v<Td>)
          ASSERT_NEAR(got, want, 1e-6 * mag / (t.gauss5 ? 1 : t.div) + 1e-6)
              << e.name << (five ? " 5x5 " : " 3x3 ") << x << "," << y << "," << ch;
        else
          ASSERT_EQ(+got, want) << e.name << (five ? " 5x5 " : " 3x3 ") << x << "," << y << "," << ch;
      }
}

struct Shape {
  int w, h, threads;
};
const Shape kShapes[] = {{1, 1, 1}, {37, 5, 1}, {67, 9, 1}, {3, 40, 2}, {203, 151, 2}};

template <class Ts, class Td>
void checkAll(const std::vector<Entry<Ts, Td>>& table) {
  uint32_t seed = 1;
  for (const auto& e : table)
    for (bool five : {false, true}) {
      if (five && e.fn) continue;
      for (const Shape& s : kShapes) {
        ThreadCount tc(s.threads);
        checkEntry(e, five, s.w, s.h, seed++);
        if (s.w == 67) checkEntry(e, five, s.w, s.h, seed++, 1);
        if (s.w == 37) checkEntry(e, five, s.w, s.h, seed++, 2);
        if (::testing::Test::HasFatalFailure()) return;
      }
    }
}

TEST(Fixed, Kernels8u) { checkAll(k8u); }
TEST(Fixed, Kernels16s) { checkAll(k16s); }
TEST(Fixed, Kernels32f) { checkAll(k32f); }
TEST(Fixed, Kernels8u16s) { checkAll(k8u16s); }
TEST(Fixed, Kernels8s16s) { checkAll(k8s16s); }

TEST(Fixed, ExportCount) {
  EXPECT_EQ(k8u.size() + k16s.size() + k32f.size() + k8u16s.size() + k8s16s.size() + 18, 144u);
}

// Pointers, ROI size, steps, then the mask, each failure leaving the destination alone.
template <class Ts, class Td>
void checkOrder(const std::vector<Entry<Ts, Td>>& table) {
  for (const auto& e : table) {
    GuardedImage<Ts> src(9, 9, e.layout.ch);
    GuardedImage<Td> dst(5, 5, e.layout.ch);
    const Ts* s = &src.at(2, 2);
    const int ss = src.step(), ds = dst.step();
    const int bad = e.fn ? 33 : 35;  // 3x3-only members have no mask to get wrong
    EXPECT_EQ(e.call(nullptr, ss, dst.ptr(), ds, {5, 5}, bad), lumStatusNullPtrErr) << e.name;
    EXPECT_EQ(e.call(s, ss, nullptr, ds, {0, 0}, bad), lumStatusNullPtrErr) << e.name;
    EXPECT_EQ(e.call(s, 0, dst.ptr(), ds, {0, 5}, bad), lumStatusSizeErr) << e.name;
    EXPECT_EQ(e.call(s, ss, dst.ptr(), 0, {5, -1}, bad), lumStatusSizeErr) << e.name;
    EXPECT_EQ(e.call(s, 0, dst.ptr(), ds, {5, 5}, bad), lumStatusStepErr) << e.name;
    EXPECT_EQ(e.call(s, ss, dst.ptr(), -4, {5, 5}, bad), lumStatusStepErr) << e.name;
    if (!e.fn) {
      for (int m : {35, 0, 13, 31, 51, 15, 54})
        EXPECT_EQ(e.call(s, ss, dst.ptr(), ds, {5, 5}, m), lumStatusMaskSizeErr) << e.name << " " << m;
    }
    EXPECT_TRUE(dst.guardsIntact());
    GuardedImage<Td> fresh(5, 5, e.layout.ch);
    EXPECT_EQ(dst.pixels(), fresh.pixels()) << e.name << " wrote on an error";
  }
}

TEST(Fixed, ChecksInOrder) {
  checkOrder(k8u);
  checkOrder(k16s);
  checkOrder(k32f);
  checkOrder(k8u16s);
  checkOrder(k8s16s);
}

// ---- Roberts -----------------------------------------------------------------------------------
template <class T>
struct RobertsEntry {
  const char* name;
  Layout layout;
  int dx;  // -1: Down, src(x, y) - src(x - 1, y - 1); +1: Up, src(x, y) - src(x + 1, y - 1)
  LumStatus (*fn)(const T*, int, T*, int, LumiSize);
};
#define ER(N, D, T, L) {#N "_" #T "_" #L "R", k##L, D, lumiFilter##N##_##T##_##L##R}
#define ERX(T)                                                                              \
  {ER(RobertsDown, -1, T, C1), ER(RobertsDown, -1, T, C3), ER(RobertsDown, -1, T, AC4),      \
   ER(RobertsUp, 1, T, C1), ER(RobertsUp, 1, T, C3), ER(RobertsUp, 1, T, AC4)}
const std::vector<RobertsEntry<Lum8u>> kR8u = ERX(8u);
const std::vector<RobertsEntry<Lum16s>> kR16s = ERX(16s);
const std::vector<RobertsEntry<Lum32f>> kR32f = ERX(32f);

template <class T>
void checkRoberts(const std::vector<RobertsEntry<T>>& table) {
  uint32_t seed = 100;
  for (const auto& e : table)
    for (const Shape& sh : kShapes) {
      ThreadCount tc(sh.threads);
      const Layout L = e.layout;
      Rng rng = makeRng(seed);
      GuardedImage<T> src(sh.w + 2, sh.h + 1, L.ch, -1, -1, seed++);
      GuardedImage<T> dst(sh.w, sh.h, L.ch, -1, -1, seed++);
      fillSource(src, rng);
      dst.fillRandom(rng);
      const std::vector<T> before = dst.pixels();
      ASSERT_EQ(e.fn(&src.at(1, 1), src.step(), dst.ptr(), dst.step(), dst.roi()), lumStatusOk) << e.name;
      ASSERT_TRUE(dst.guardsIntact()) << e.name;
      for (int y = 0; y < sh.h; ++y)
        for (int x = 0; x < sh.w; ++x)
          for (int ch = 0; ch < L.ch; ++ch) {
            const T got = dst.at(x, y, ch);
            double want = before[(static_cast<size_t>(y) * sh.w + x) * L.ch + ch];
            if (ch < L.use) {
              const double d = static_cast<double>(src.at(x + 1, y + 1, ch)) - src.at(x + 1 + e.dx, y, ch);
              want = std::is_floating_point_v<T>
                         ? static_cast<double>(static_cast<T>(d))
                         : std::min<double>(std::numeric_limits<T>::max(), std::max<double>(std::numeric_limits<T>::min(), d));
            }
            ASSERT_EQ(+got, static_cast<T>(want)) << e.name << " " << x << "," << y << "," << ch;
          }
    }
  for (const auto& e : table) {  // pointers, size, steps
    GuardedImage<T> src(6, 6, e.layout.ch), dst(4, 4, e.layout.ch);
    const T* s = &src.at(1, 1);
    EXPECT_EQ(e.fn(nullptr, src.step(), dst.ptr(), dst.step(), {4, 4}), lumStatusNullPtrErr);
    EXPECT_EQ(e.fn(s, src.step(), nullptr, dst.step(), {0, 4}), lumStatusNullPtrErr);
    EXPECT_EQ(e.fn(s, 0, dst.ptr(), dst.step(), {4, 0}), lumStatusSizeErr);
    EXPECT_EQ(e.fn(s, src.step(), dst.ptr(), 0, {4, 4}), lumStatusStepErr);
    EXPECT_TRUE(dst.guardsIntact());
  }
}

TEST(Fixed, Roberts) {
  checkRoberts(kR8u);
  checkRoberts(kR16s);
  checkRoberts(kR32f);
}

// ---- documented cases -------------------------------------------------------------------------
TEST(Fixed, RisingEdgeAndSharedLaplace) {
  // a rise from left to right: 8u SobelVert writes 0, 8u16s keeps the negative response
  GuardedImage<Lum8u> src(20, 5, 1);
  src.fill([](int x, int, int) { return static_cast<Lum8u>(x < 10 ? 10 : 200); });
  GuardedImage<Lum8u> d8(18, 3, 1), h8(18, 3, 1);
  GuardedImage<Lum16s> d16(18, 3, 1);
  ASSERT_EQ(lumiFilterSobelVert_8u_C1R(&src.at(1, 1), src.step(), d8.ptr(), d8.step(), d8.roi()), lumStatusOk);
  ASSERT_EQ(lumiFilterSobelVert_8u16s_C1R(&src.at(1, 1), src.step(), d16.ptr(), d16.step(), d16.roi(), 33),
            lumStatusOk);
  EXPECT_EQ(d8.at(8, 1), 0);
  EXPECT_EQ(d16.at(8, 1), -760);
  // Hipass 3x3 and Laplace 3x3 are the same filter
  ASSERT_EQ(lumiFilterHipass_8u_C1R(&src.at(1, 1), src.step(), h8.ptr(), h8.step(), h8.roi(), 33), lumStatusOk);
  ASSERT_EQ(lumiFilterLaplace_8u_C1R(&src.at(1, 1), src.step(), d8.ptr(), d8.step(), d8.roi(), 33), lumStatusOk);
  EXPECT_EQ(h8.pixels(), d8.pixels());
}

// The caller's rounding mode does not change the divided results.
TEST(Fixed, CallersRoundingMode) {
  const unsigned saved = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(_MM_ROUND_TOWARD_ZERO);
  checkEntry(k16s[std::find_if(k16s.begin(), k16s.end(), [](auto& e) { return e.filter == Lowpass; }) - k16s.begin()],
             false, 61, 7, 5);
  checkEntry(k8u[std::find_if(k8u.begin(), k8u.end(), [](auto& e) { return e.filter == Gauss; }) - k8u.begin()],
             true, 61, 7, 6);
  const unsigned now = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(saved);
  EXPECT_EQ(now, static_cast<unsigned>(_MM_ROUND_TOWARD_ZERO));
}

}  // namespace
