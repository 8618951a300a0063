// Fixed-kernel filters: Prewitt, Sobel, Scharr, Laplace, high-pass, Gauss, low-pass, sharpening
// and Roberts. Every filter is one entry of a small table (3x3 or 5x5 integer weights, float
// weights for 32f, what follows the sum) and one kernel applies any entry: sums in 32-bit
// integers, one rounding and one saturation at the end, so the integer results are exact.
//
// Vector kernels: integer results equal the plain kernels' bit for bit. Float rows of separable
// kernels (through a column line) and of symmetric 5x5 kernels (rows and columns folded)
// associate the sums differently from the plain kernel, which adds w x src tap by tap, top row
// first: the two agree within a few units in the last place of the sum of |w x src|, and the
// tests hold both to a double-precision reference within 1e-6 of that sum (over the divisor).
#include <cstdint>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/fixed.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "filter/fixed_kernels.h"
#include "lumi/filter_fixed.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

using fixed::FixedKernel;
using fixed::Post;

// acc + w x v, with the common weights as additions.
template <class D>
HWY_INLINE hn::Vec<D> addTimes(D d, hn::Vec<D> acc, hn::Vec<D> v, int w) {
  using T = hn::TFromD<D>;
  if (w == 1) return hn::Add(acc, v);
  if (w == -1) return hn::Sub(acc, v);
  if (w == 2) return hn::Add(acc, hn::Add(v, v));
  if (w == -2) return hn::Sub(acc, hn::Add(v, v));
  return hn::Add(acc, hn::Mul(v, hn::Set(d, static_cast<T>(w))));
}

// The float step after the sum (a scale or a division), read from the kernel once per row:
// inside the loop every destination store could alias the kernel and force a reload.
template <class D>
class FloatPost {
 public:
  FloatPost(D d, const FixedKernel& fk) : op_(fk.fpost), v_(hn::Set(d, fk.fval)) {}
  hn::Vec<D> operator()(hn::Vec<D> acc) const {
    if (op_ == fixed::FPost::Scale) return hn::Mul(acc, v_);
    if (op_ == fixed::FPost::Divide) return hn::Div(acc, v_);
    return acc;
  }

 private:
  fixed::FPost op_;
  hn::Vec<D> v_;
};

// The integer post step of finishInt on 16- or 32-bit lanes (saturation follows in the
// demotion). 16-bit nearest division only meets non-negative 8u sums.
template <class Ts, class Td, class D>
HWY_INLINE hn::Vec<D> postInt(D d, hn::Vec<D> s, const FixedKernel& fk) {
  using T = hn::TFromD<D>;
  switch (fk.post) {
    case Post::Exact: return s;
    case Post::Even4:
      return hn::ShiftRight<4>(hn::Add(hn::Add(s, hn::Set(d, T{7})), hn::And(hn::ShiftRight<4>(s), hn::Set(d, T{1}))));
    case Post::Even3:
      return hn::ShiftRight<3>(hn::Add(hn::Add(s, hn::Set(d, T{3})), hn::And(hn::ShiftRight<3>(s), hn::Set(d, T{1}))));
    case Post::Nearest: break;
  }
  if constexpr (sizeof(T) == 2) {
    const hn::RebindToUnsigned<D> du;
    const auto n = hn::BitCast(du, hn::Add(s, hn::Set(d, static_cast<T>(fk.bias16))));
    const auto q = hn::ShiftRightSame(hn::MulHigh(n, hn::Set(du, static_cast<uint16_t>(fk.m16))), fk.sh16);
    return hn::BitCast(d, q);
  } else {
    const hn::Rebind<float, D> df;
    if (std::is_same_v<Td, uint8_t> && fk.div == 9)
      return hn::ShiftRight<16>(hn::Mul(hn::Add(s, hn::Set(d, 5)), hn::Set(d, 7281)));
    if constexpr (sizeof(Ts) == 1) {
      // sums of 8-bit pixels: S / d is at most 255 x the weights' sum / d and at least 1 / 2d
      // from any half, far beyond the float product's error, so rounding it is exact
      const auto q = hn::Round(hn::Mul(hn::ConvertTo(df, s), hn::Set(df, 1.0f / static_cast<float>(fk.div))));
      return hn::ConvertTo(d, q);
    }
    // floor((2S + d) / 2d): a float estimate, then one correction either way
    const int32_t d2 = 2 * fk.div;
    const auto n = hn::Add(hn::Add(s, s), hn::Set(d, fk.div));
    auto q = hn::ConvertTo(d, hn::Floor(hn::Mul(hn::ConvertTo(df, n), hn::Set(df, 1.0f / static_cast<float>(d2)))));
    const auto r = hn::Sub(n, hn::Mul(q, hn::Set(d, d2)));
    const auto one = hn::Set(d, 1);
    q = hn::Add(q, hn::IfThenElseZero(hn::Gt(r, hn::Set(d, d2 - 1)), one));
    return hn::Sub(q, hn::IfThenElseZero(hn::Lt(r, hn::Zero(d)), one));
  }
}

template <class DD, class V>
HWY_INLINE hn::Vec<DD> toDst(DD dd, V v) {
  if constexpr (sizeof(hn::TFromD<DD>) == sizeof(hn::TFromV<V>))
    return v;
  else
    return hn::DemoteTo(dd, v);  // saturating
}

// The step from a row pass's sums to destination lanes: FloatPost for floats, postInt and a
// saturating narrowing for integers.
template <class Ts, class Td, class D>
auto rowFinish(D d, const FixedKernel& fk) {
  if constexpr (std::is_floating_point_v<Ts>) {
    return FloatPost<D>(d, fk);
  } else {
    return [d, &fk](hn::Vec<D> acc) { return toDst(hn::Rebind<Td, D>(), postInt<Ts, Td>(d, acc, fk)); };
  }
}

// The weights of a kernel as the vector kernels read them: from the table entry at run time,
// or, for the common kernels, as constants, so that their loops carry no tests on the weights.
struct RunTaps {
  const FixedKernel& fk;
  int k() const { return fk.k; }
  int col(int i) const { return fk.col[i]; }
  int row(int j) const { return fk.row[j]; }
  int centre() const { return fk.centre; }
  int w(int i) const { return fk.w[i]; }
};
template <int K, int C0, int C1, int C2, int R0, int R1, int R2, int CE>
struct SepTaps3 {
  static constexpr int k() { return K; }
  static constexpr int col(int i) { return i == 0 ? C0 : i == 1 ? C1 : i == 2 ? C2 : 0; }
  static constexpr int row(int j) { return j == 0 ? R0 : j == 1 ? R1 : j == 2 ? R2 : 0; }
  static constexpr int centre() { return CE; }
};
// The upper-left quarter of a 5x5 kernel symmetric about both axes: w(i x 5 + j), i, j < 3.
template <int A0, int A1, int A2, int B0, int B1, int B2, int M0, int M1, int M2>
struct SymTaps5 {
  static constexpr int w(int i) {
    return i == 0 ? A0 : i == 1 ? A1 : i == 2 ? A2 : i == 5 ? B0 : i == 6 ? B1 : i == 7 ? B2
         : i == 10 ? M0 : i == 11 ? M1 : i == 12 ? M2 : 0;
  }
};

// Separable kernels: the column pass fills one line over width + k - 1 pixels, the row pass
// combines it, adds the centre weight and finishes. 8-bit sources run in 16-bit lanes (every
// sum of these kernels fits), 16s sources in 32-bit lanes, 32f in float lanes, where the sums
// associate differently from the plain kernel's; Lane is the line's element type.
template <class Ts, class Td, class L, class Lane, class W>
void sepRow(const Ts* const* rows, Td* HWY_RESTRICT dst, int width, const FixedKernel& fk,
            Lane* HWY_RESTRICT line, W tw) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  using Acc = std::conditional_t<std::is_floating_point_v<Lane>, float, int32_t>;
  const hn::ScalableTag<Lane> d;
  const hn::Rebind<Td, decltype(d)> dd;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const int k = tw.k(), c = k / 2;
  const std::ptrdiff_t lead = elemsOf(c, kCh), ext = elemsOf(width + k - 1, kCh), n = elemsOf(width, kCh);
  std::ptrdiff_t e = 0;
  for (; e + N <= ext; e += N) {
    auto acc = hn::Zero(d);
#pragma GCC unroll 5
    for (int r = 0; r < k; ++r)
      if (tw.col(r)) acc = addTimes(d, acc, loadAs(d, rows[r] - lead + e), tw.col(r));
    hn::StoreU(acc, d, line + e);
  }
  for (; e < ext; ++e) {
    Acc a = 0;
    for (int r = 0; r < k; ++r) a += static_cast<Acc>(tw.col(r)) * static_cast<Acc>(rows[r][e - lead]);
    line[e] = static_cast<Lane>(a);
  }
  const auto colour = colourLanes(dd);
  const auto finish = rowFinish<Ts, Td>(d, fk);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    auto acc = hn::Zero(d);
#pragma GCC unroll 5
    for (int j = 0; j < k; ++j)
      if (tw.row(j)) acc = addTimes(d, acc, hn::LoadU(d, line + i + elemsOf(j, kCh)), tw.row(j));
    if (tw.centre()) acc = addTimes(d, acc, loadAs(d, rows[c] + i), tw.centre());
    storeColour(dd, finish(acc), dst + i, kAlpha, colour);
  }
  fixed::fixedFrom<Ts, Td, L>(rows, dst, i, n, fk);
}

// Kernels symmetric about both axes (the 5x5 Gauss and Laplace) over 8-bit sources: the column
// pass folds rows 0 and 4, 1 and 3, and keeps one 16-bit line per distinct column of weights
// (columns 0 = 4, 1 = 3, 2); the row pass adds five line elements in 32-bit lanes. The Gauss
// lines stay below 2^16 and are read as unsigned, the Laplace lines as signed.
template <class Ts, class Td, class L, class W>
void symRow5(const Ts* const* rows, Td* HWY_RESTRICT dst, int width, const FixedKernel& fk,
             int16_t* HWY_RESTRICT line, W tw) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<int16_t> d;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const std::ptrdiff_t lead = elemsOf(2, kCh), ext = elemsOf(width + 4, kCh), n = elemsOf(width, kCh);
  const std::ptrdiff_t ls = (ext + N) & ~(N - 1);
  int16_t* HWY_RESTRICT c0 = line;
  int16_t* HWY_RESTRICT c1 = line + ls;
  int16_t* HWY_RESTRICT c2 = line + 2 * ls;
  std::ptrdiff_t e = 0;
  for (; e + N <= ext; e += N) {
    const auto a = hn::Add(loadAs(d, rows[0] - lead + e), loadAs(d, rows[4] - lead + e));
    const auto b = hn::Add(loadAs(d, rows[1] - lead + e), loadAs(d, rows[3] - lead + e));
    const auto m = loadAs(d, rows[2] - lead + e);
    int16_t* outs[3] = {c0, c1, c2};
#pragma GCC unroll 3
    for (int j = 0; j < 3; ++j) {
      auto acc = hn::Zero(d);
      if (tw.w(j)) acc = addTimes(d, acc, a, tw.w(j));
      if (tw.w(5 + j)) acc = addTimes(d, acc, b, tw.w(5 + j));
      if (tw.w(10 + j)) acc = addTimes(d, acc, m, tw.w(10 + j));
      hn::StoreU(acc, d, outs[j] + e);
    }
  }
  const int* w = fk.w;
  for (; e < ext; ++e) {
    const int a = rows[0][e - lead] + rows[4][e - lead], b = rows[1][e - lead] + rows[3][e - lead];
    const int m = rows[2][e - lead];
    c0[e] = static_cast<int16_t>(static_cast<uint16_t>(w[0] * a + w[5] * b + w[10] * m));
    c1[e] = static_cast<int16_t>(static_cast<uint16_t>(w[1] * a + w[6] * b + w[11] * m));
    c2[e] = static_cast<int16_t>(static_cast<uint16_t>(w[2] * a + w[7] * b + w[12] * m));
  }
  std::ptrdiff_t i = 0;
  if (fk.post == Post::Exact || (fk.post == Post::Nearest && fk.symUnsigned)) {
    // Row pass in 16-bit lanes. Exact sums (Laplace) fit. Sums that do not (Gauss, up to
    // 571 x 255) are known modulo 2^16; a quotient from the lines shifted right by 3 is at most
    // 1.2 below S / div, so S - div x quotient, taken modulo 2^16, is the true remainder (0 to
    // about 1.2 div), and two comparisons round it to nearest.
    const hn::RebindToUnsigned<decltype(d)> du;
    const hn::Rebind<Td, decltype(d)> dd;
    const auto colour = colourLanes(dd);
    const bool divide = fk.post == Post::Nearest;
    const auto m = hn::Set(du, static_cast<uint16_t>(fk.m5));
    const auto dv = hn::Set(du, static_cast<uint16_t>(fk.div));
    const auto half = hn::Set(d, static_cast<int16_t>(fk.div / 2));
    const auto half3 = hn::Set(d, static_cast<int16_t>(fk.div + fk.div / 2));
    for (; i + N <= n; i += N) {
      const auto a0 = hn::LoadU(du, reinterpret_cast<const uint16_t*>(c0 + i));
      const auto a4 = hn::LoadU(du, reinterpret_cast<const uint16_t*>(c0 + i + 4 * kCh));
      const auto a1 = hn::LoadU(du, reinterpret_cast<const uint16_t*>(c1 + i + kCh));
      const auto a3 = hn::LoadU(du, reinterpret_cast<const uint16_t*>(c1 + i + 3 * kCh));
      const auto a2 = hn::LoadU(du, reinterpret_cast<const uint16_t*>(c2 + i + 2 * kCh));
      const auto sum = hn::Add(hn::Add(hn::Add(a0, a4), hn::Add(a1, a3)), a2);
      auto v = hn::BitCast(d, sum);
      if (divide) {
        const auto sa = hn::Add(hn::Add(hn::Add(hn::ShiftRight<3>(a0), hn::ShiftRight<3>(a4)),
                                        hn::Add(hn::ShiftRight<3>(a1), hn::ShiftRight<3>(a3))),
                                hn::ShiftRight<3>(a2));
        const auto q = hn::MulHigh(sa, m);
        const auto r = hn::BitCast(d, hn::Sub(sum, hn::Mul(q, dv)));
        v = hn::BitCast(d, q);
        v = hn::Sub(v, hn::VecFromMask(d, hn::Gt(r, half)));  // true lanes are -1
        v = hn::Sub(v, hn::VecFromMask(d, hn::Gt(r, half3)));
      }
      storeColour(dd, toDst(dd, v), dst + i, kAlpha, colour);
    }
  } else {
    const hn::ScalableTag<int32_t> d32;
    const hn::Rebind<Td, decltype(d32)> dd;
    const std::ptrdiff_t N32 = static_cast<std::ptrdiff_t>(hn::Lanes(d32));
    const bool unsig = fk.symUnsigned;
    auto ld = [&](const int16_t* p) {
      return unsig ? loadAs(d32, reinterpret_cast<const uint16_t*>(p)) : loadAs(d32, p);
    };
    const auto colour = colourLanes(dd);
    for (; i + N32 <= n; i += N32) {
      auto s = hn::Add(hn::Add(ld(c0 + i), ld(c0 + i + 4 * kCh)), hn::Add(ld(c1 + i + kCh), ld(c1 + i + 3 * kCh)));
      s = hn::Add(s, ld(c2 + i + 2 * kCh));
      storeColour(dd, toDst(dd, postInt<Ts, Td>(d32, s, fk)), dst + i, kAlpha, colour);
    }
  }
  fixed::fixedFrom<Ts, Td, L>(rows, dst, i, n, fk);
}

// Any kernel over integer sources, tap by tap in 32-bit lanes.
template <class Ts, class Td, class L>
void directRow32(const Ts* const* rows, Td* HWY_RESTRICT dst, int width, const FixedKernel& fk) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<int32_t> d;
  const hn::Rebind<Td, decltype(d)> dd;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d)), n = elemsOf(width, kCh);
  const auto colour = colourLanes(dd);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    auto acc = hn::Zero(d);
    for (int t = 0; t < fk.nTaps; ++t) {
      const fixed::Tap& p = fk.taps[t];
      acc = addTimes(d, acc, loadAs(d, rows[p.r] + i + elemsOf(p.dx, kCh)), p.w);
    }
    storeColour(dd, toDst(dd, postInt<Ts, Td>(d, acc, fk)), dst + i, kAlpha, colour);
  }
  fixed::fixedFrom<Ts, Td, L>(rows, dst, i, n, fk);
}

// 32f 5x5 kernels symmetric about both axes: the column pass folds rows 0 and 4, 1 and 3 and
// keeps one line per distinct column of weights (columns 0 = 4, 1 = 3, 2), so each source
// element is loaded once; the row pass adds five line elements.
template <class L>
void symRowF(const float* const* rows, float* HWY_RESTRICT dst, int width, const FixedKernel& fk,
             float* HWY_RESTRICT line) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<float> d;
  using V = hn::Vec<decltype(d)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const std::ptrdiff_t lead = elemsOf(2, kCh), ext = elemsOf(width + 4, kCh), n = elemsOf(width, kCh);
  const std::ptrdiff_t ls = (ext + N) & ~(N - 1);
  float fw[25] = {};  // the float weights by position
  for (int t = 0; t < fk.nTaps; ++t) fw[fk.taps[t].r * 5 + fk.taps[t].dx + 2] = fk.taps[t].fw;
  float* HWY_RESTRICT c0 = line;
  float* HWY_RESTRICT c1 = line + ls;
  float* HWY_RESTRICT c2 = line + 2 * ls;
  const float *r0 = rows[0] - lead, *r1 = rows[1] - lead, *r2 = rows[2] - lead, *r3 = rows[3] - lead,
              *r4 = rows[4] - lead;
  V w[9];
  for (int j = 0; j < 3; ++j)
    for (int r = 0; r < 3; ++r) w[3 * j + r] = hn::Set(d, fw[5 * r + j]);
  // the row the next output row brings in, fetched ahead: the column pass is bound by its loads
  const float* next = r4 + (r4 - r3);
  std::ptrdiff_t e = 0;
  for (; e + N <= ext; e += N) {
    __builtin_prefetch(next + e);
    const V a = hn::Add(hn::LoadU(d, r0 + e), hn::LoadU(d, r4 + e));
    const V b = hn::Add(hn::LoadU(d, r1 + e), hn::LoadU(d, r3 + e));
    const V m = hn::LoadU(d, r2 + e);
    hn::StoreU(hn::MulAdd(w[0], a, hn::MulAdd(w[1], b, hn::Mul(w[2], m))), d, c0 + e);
    hn::StoreU(hn::MulAdd(w[3], a, hn::MulAdd(w[4], b, hn::Mul(w[5], m))), d, c1 + e);
    hn::StoreU(hn::MulAdd(w[6], a, hn::MulAdd(w[7], b, hn::Mul(w[8], m))), d, c2 + e);
  }
  for (; e < ext; ++e) {
    const float a = r0[e] + r4[e], b = r1[e] + r3[e], m = r2[e];
    c0[e] = fw[0] * a + fw[5] * b + fw[10] * m;
    c1[e] = fw[1] * a + fw[6] * b + fw[11] * m;
    c2[e] = fw[2] * a + fw[7] * b + fw[12] * m;
  }
  const auto colour = colourLanes(d);
  const FloatPost<decltype(d)> post(d, fk);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    V acc = hn::Add(hn::Add(hn::LoadU(d, c0 + i), hn::LoadU(d, c0 + i + 4 * kCh)),
                    hn::Add(hn::LoadU(d, c1 + i + kCh), hn::LoadU(d, c1 + i + 3 * kCh)));
    acc = hn::Add(acc, hn::LoadU(d, c2 + i + 2 * kCh));
    acc = post(acc);
    storeColour(d, acc, dst + i, kAlpha, colour);
  }
  fixed::fixedFrom<float, float, L>(rows, dst, i, n, fk);
}

// 32f kernels of any shape: the same products added in the same order as the plain kernel.
template <class L>
void directRowF(const float* const* rows, float* HWY_RESTRICT dst, int width, const FixedKernel& fk) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<float> d;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d)), n = elemsOf(width, kCh);
  const auto colour = colourLanes(d);
  const FloatPost<decltype(d)> post(d, fk);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    auto acc = hn::Zero(d);
    for (int t = 0; t < fk.nTaps; ++t) {
      const fixed::Tap& p = fk.taps[t];
      acc = hn::Add(acc, hn::Mul(hn::Set(d, p.fw), hn::LoadU(d, rows[p.r] + i + elemsOf(p.dx, kCh))));
    }
    acc = post(acc);
    storeColour(d, acc, dst + i, kAlpha, colour);
  }
  fixed::fixedFrom<float, float, L>(rows, dst, i, n, fk);
}

// The column-line kernels: with constant weights for the common kernels, else from the table.
template <class Ts, class Td, class L, class Line>
bool lineRow(const Ts* const* rows, Td* HWY_RESTRICT dst, int width, const FixedKernel& fk, Line* l) {
  auto sep = [&](auto tw) {
    sepRow<Ts, Td, L>(rows, dst, width, fk, l, tw);
    return true;
  };
  auto sym = [&](auto tw) {
    if constexpr (std::is_floating_point_v<Ts>) {
      symRowF<L>(rows, dst, width, fk, l);
      return true;
    } else if constexpr (sizeof(Ts) == 1) {
      symRow5<Ts, Td, L>(rows, dst, width, fk, l, tw);
      return true;
    }
    return false;  // 16s: tap by tap
  };
  switch (fk.hot) {
    case fixed::Hot::Gauss3: return sep(SepTaps3<3, 1, 2, 1, 1, 2, 1, 0>());
    case fixed::Hot::SobelVert3: return sep(SepTaps3<3, 1, 2, 1, 1, 0, -1, 0>());
    case fixed::Hot::SobelHoriz3: return sep(SepTaps3<3, -1, 0, 1, 1, 2, 1, 0>());
    case fixed::Hot::ScharrVert: return sep(SepTaps3<3, 3, 10, 3, 1, 0, -1, 0>());
    case fixed::Hot::ScharrHoriz: return sep(SepTaps3<3, -1, 0, 1, 3, 10, 3, 0>());
    case fixed::Hot::Laplace3: return sep(SepTaps3<3, 1, 1, 1, -1, -1, -1, 9>());
    case fixed::Hot::Gauss5: return sym(SymTaps5<2, 7, 12, 7, 31, 52, 12, 52, 127>());
    case fixed::Hot::Laplace5: return sym(SymTaps5<-1, -3, -4, -3, 0, 6, -4, 6, 20>());
    case fixed::Hot::None: break;
  }
  if (fk.sep) return sep(RunTaps{fk});
  if (fk.sym) return sym(RunTaps{fk});
  return false;
}

template <class Ts, class Td, class L>
void fixedRow(const Ts* const* rows, Td* HWY_RESTRICT dst, int width, const FixedKernel& fk, void* line) {
  if constexpr (std::is_floating_point_v<Ts>) {
    if (!lineRow<Ts, Td, L>(rows, dst, width, fk, static_cast<float*>(line))) directRowF<L>(rows, dst, width, fk);
  } else if constexpr (sizeof(Ts) == 1) {
    if (!lineRow<Ts, Td, L>(rows, dst, width, fk, static_cast<int16_t*>(line)))
      directRow32<Ts, Td, L>(rows, dst, width, fk);
  } else {
    if (!lineRow<Ts, Td, L>(rows, dst, width, fk, static_cast<int32_t*>(line)))
      directRow32<Ts, Td, L>(rows, dst, width, fk);
  }
}

template <class T, class L>
void robertsRow(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, T* HWY_RESTRICT dst, int width) {
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<T> d;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d)), n = elemsOf(width, L::kCh);
  const auto colour = colourLanes(d);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto va = hn::LoadU(d, a + i), vb = hn::LoadU(d, b + i);
    if constexpr (std::is_floating_point_v<T>)
      storeColour(d, hn::Sub(va, vb), dst + i, kAlpha, colour);
    else
      storeColour(d, hn::SaturatedSub(va, vb), dst + i, kAlpha, colour);
  }
  fixed::robertsFrom<T, L>(a, b, dst, i, n);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace fixed {

namespace {

// The kernels the vector code has with constant weights (which must match the tables there).
Hot hotOf(const FixedKernel& fk) {
  struct Known {
    Hot hot;
    int k;
    int w[25];
  };
  static const Known known[] = {
      {Hot::Gauss3, 3, {1, 2, 1, 2, 4, 2, 1, 2, 1}},
      {Hot::SobelVert3, 3, {1, 0, -1, 2, 0, -2, 1, 0, -1}},
      {Hot::SobelHoriz3, 3, {-1, -2, -1, 0, 0, 0, 1, 2, 1}},
      {Hot::ScharrVert, 3, {3, 0, -3, 10, 0, -10, 3, 0, -3}},
      {Hot::ScharrHoriz, 3, {-3, -10, -3, 0, 0, 0, 3, 10, 3}},
      {Hot::Laplace3, 3, {-1, -1, -1, -1, 8, -1, -1, -1, -1}},
      {Hot::Gauss5, 5, {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}},
      {Hot::Laplace5, 5, {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1}},
  };
  for (const Known& h : known) {
    bool same = h.k == fk.k && fk.sep == (h.k == 3);
    for (int i = 0; same && i < fk.k * fk.k; ++i) same = h.w[i] == fk.w[i];
    if (same) return h.hot;
  }
  return Hot::None;
}

FixedKernel finish(FixedKernel fk) {
  const int c = fk.k / 2;
  if (fk.sep) {
    for (int i = 0; i < fk.k; ++i)
      for (int j = 0; j < fk.k; ++j) fk.w[i * fk.k + j] = fk.col[i] * fk.row[j];
    fk.w[c * fk.k + c] += fk.centre;
  }
  fk.nTaps = 0;
  for (int i = 0; i < fk.k; ++i)
    for (int j = 0; j < fk.k; ++j) {
      const int w = fk.w[i * fk.k + j];
      if (w == 0) continue;
      // 32f Gauss 5x5 weighs by the single-precision quotients, the others by the weights
      const float fw = fk.k == 5 && fk.post == Post::Nearest && fk.div == 571
                           ? static_cast<float>(w) / 571.0f
                           : static_cast<float>(w);
      fk.taps[fk.nTaps++] = Tap{i, j - c, w, fw};
    }
  if (fk.k == 5 && !fk.sep) {  // symmetric about both axes?
    fk.sym = true;
    fk.symUnsigned = true;
    for (int i = 0; i < 5; ++i)
      for (int j = 0; j < 5; ++j) {
        const int v = fk.w[i * 5 + j];
        fk.sym = fk.sym && v == fk.w[(4 - i) * 5 + j] && v == fk.w[i * 5 + 4 - j];
        fk.symUnsigned = fk.symUnsigned && v >= 0;
      }
  }
  fk.hot = hotOf(fk);
  if (fk.sym && fk.post == Post::Nearest)  // the quotient estimate of the 16-bit 5x5 row pass
    fk.m5 = static_cast<int>(65536.0 * 8 / fk.div);  // rounded down: the estimate stays below
  if (fk.post == Post::Nearest) {  // the 16-bit division of non-negative 8u sums
    if (fk.div == 9) {
      fk.bias16 = 5, fk.m16 = 7281, fk.sh16 = 0;
    } else {
      // the largest shift whose multiplier ceil(2^(16 + sh) / div) stays below 2^16 (25: 4, 41944)
      fk.bias16 = fk.div / 2;
      fk.sh16 = 0;
      while ((((1 << (17 + fk.sh16)) + fk.div - 1) / fk.div) < 65536) ++fk.sh16;
      fk.m16 = ((1 << (16 + fk.sh16)) + fk.div - 1) / fk.div;
    }
  }
  return fk;
}

// A separable kernel: column taps (top to bottom) times row taps (left to right), plus a
// centre weight.
FixedKernel sepK(int k, std::initializer_list<int> col, std::initializer_list<int> row, int centre = 0,
                 Post post = Post::Exact, int div = 1, FPost fpost = FPost::None, float fval = 1.0f) {
  FixedKernel fk;
  fk.k = k;
  fk.sep = true;
  int i = 0;
  for (int v : col) fk.col[i++] = v;
  i = 0;
  for (int v : row) fk.row[i++] = v;
  fk.centre = centre;
  fk.post = post;
  fk.div = div;
  fk.fpost = fpost;
  fk.fval = fval;
  return finish(fk);
}
FixedKernel fullK(const int (&w)[25], Post post, int div) {
  FixedKernel fk;
  fk.k = 5;
  for (int i = 0; i < 25; ++i) fk.w[i] = w[i];
  fk.post = post;
  fk.div = div;
  return finish(fk);
}

struct Table {
  FixedKernel three[static_cast<int>(Kind::kCount)], five[static_cast<int>(Kind::kCount)];
};

Table makeTable() {
  Table t;
  auto set = [&](Kind k, FixedKernel a, FixedKernel b) {
    t.three[static_cast<int>(k)] = a;
    t.five[static_cast<int>(k)] = b;
  };
  const FixedKernel prewittV = sepK(3, {1, 1, 1}, {1, 0, -1});
  const FixedKernel prewittH = sepK(3, {-1, 0, 1}, {1, 1, 1});
  set(Kind::PrewittVert, prewittV, prewittV);
  set(Kind::PrewittHoriz, prewittH, prewittH);
  set(Kind::SobelVert, sepK(3, {1, 2, 1}, {1, 0, -1}), sepK(5, {1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}));
  set(Kind::SobelHoriz, sepK(3, {-1, 0, 1}, {1, 2, 1}), sepK(5, {-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}));
  set(Kind::SobelVertSecond, sepK(3, {1, 2, 1}, {1, -2, 1}),
      sepK(5, {1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}));
  set(Kind::SobelHorizSecond, sepK(3, {1, -2, 1}, {1, 2, 1}),
      sepK(5, {1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}));
  set(Kind::SobelCross, sepK(3, {-1, 0, 1}, {1, 0, -1}), sepK(5, {-1, -2, 0, 2, 1}, {1, 2, 0, -2, -1}));
  const FixedKernel scharrV = sepK(3, {3, 10, 3}, {1, 0, -1});
  const FixedKernel scharrH = sepK(3, {-1, 0, 1}, {3, 10, 3});
  set(Kind::ScharrVert, scharrV, scharrV);
  set(Kind::ScharrHoriz, scharrH, scharrH);
  // 9 x centre minus the block; the 5x5 Laplace weights 1, 3, 4, 6 and 20 sum to zero
  const FixedKernel lap3 = sepK(3, {1, 1, 1}, {-1, -1, -1}, 9);
  const int lap5[25] = {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4,
                        -3, 0, 6, 0, -3, -1, -3, -4, -3, -1};
  set(Kind::Laplace, lap3, fullK(lap5, Post::Exact, 1));
  set(Kind::Hipass, lap3, sepK(5, {1, 1, 1, 1, 1}, {-1, -1, -1, -1, -1}, 25));
  const int gauss5[25] = {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12,
                          7, 31, 52, 31, 7, 2, 7, 12, 7, 2};
  set(Kind::Gauss, sepK(3, {1, 2, 1}, {1, 2, 1}, 0, Post::Even4, 16, FPost::Scale, 1.0f / 16),
      fullK(gauss5, Post::Nearest, 571));
  set(Kind::Lowpass, sepK(3, {1, 1, 1}, {1, 1, 1}, 0, Post::Nearest, 9, FPost::Divide, 9.0f),
      sepK(5, {1, 1, 1, 1, 1}, {1, 1, 1, 1, 1}, 0, Post::Nearest, 25, FPost::Divide, 25.0f));
  const FixedKernel sharpen = sepK(3, {1, 1, 1}, {-1, -1, -1}, 17, Post::Even3, 8, FPost::Scale, 0.125f);
  set(Kind::Sharpen, sharpen, sharpen);
  return t;
}

}  // namespace

const FixedKernel& kernelOf(Kind kind, bool five) {
  static const Table table = makeTable();
  return five ? table.five[static_cast<int>(kind)] : table.three[static_cast<int>(kind)];
}

namespace {

// Above this many pixel-taps the rows are shared among the threads.
constexpr long long kForkWork = 1LL << 18;

template <class Ts, class Td>
using FixedRowFn = void (*)(const Ts* const*, Td*, int, const FixedKernel&, void*);
template <class T>
using RobertsRowFn = void (*)(const T*, const T*, T*, int);

template <class Ts, class Td, class L>
void fixedRowScalar(const Ts* const* rows, Td* dst, int width, const FixedKernel& fk, void*) {
  fixedFrom<Ts, Td, L>(rows, dst, 0, elemsOf(width, L::kCh), fk);
}
template <class T, class L>
void robertsRowScalar(const T* a, const T* b, T* dst, int width) {
  robertsFrom<T, L>(a, b, dst, 0, elemsOf(width, L::kCh));
}

template <class Ts, class Td, class L>
FixedRowFn<Ts, Td> pickFixedRow() {
  using Fn = FixedRowFn<Ts, Td>;
  LUMI_SIMD_TABLE(Fn, table, fixedRow<Ts, Td, L>);
  return pick(table, &fixedRowScalar<Ts, Td, L>);
}
template <class T, class L>
RobertsRowFn<T> pickRobertsRow() {
  LUMI_SIMD_TABLE(RobertsRowFn<T>, table, robertsRow<T, L>);
  return pick(table, &robertsRowScalar<T, L>);
}

template <class Ts, class Td, class L>
LumStatus fixedImpl(Kind kind, const Ts* src, int srcStep, Td* dst, int dstStep, LumiSize roi,
                    int mask) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (mask != lumMskSize3x3 && mask != lumMskSize5x5) return lumStatusMaskSizeErr;
  const FixedKernel& fk = kernelOf(kind, mask == lumMskSize5x5);
  const FixedRowFn<Ts, Td> rowFn = pickFixedRow<Ts, Td, L>();
  const int c = fk.k / 2;
  // lines of column sums per thread for the vector kernels (16-bit for 8-bit sources, else 32-bit
  // integers or floats): one for the separable kernels, three for the symmetric 5x5 ones
  const std::size_t line = 3 * static_cast<std::size_t>(bytesOf(roi.width + fk.k + 16, L::kCh, sizeof(Ts) == 1 ? 2 : 4)) + 256;
  return forRowsWithScratch(
      roi.height, forkByWork(roi, fk.k * fk.k, kForkWork), line, [&](int y0, int y1, Lum8u* scratch) {
        auto band = [&] {
          const Ts* rows[5];
          for (int y = y0; y < y1; ++y) {
            for (int r = 0; r < fk.k; ++r) rows[r] = rowAt(src, srcStep, y - c + r);
            rowFn(rows, rowAt(dst, dstStep, y), roi.width, fk, scratch);
          }
        };
        // 16s sums divided to nearest (low-pass, Gauss 5x5) run in round-to-nearest mode, each
        // thread under its own guard; their integer arithmetic gives the same in any mode
        if (std::is_same_v<Ts, Lum16s> && fk.post == Post::Nearest) {
          NearestRounding nearest;
          band();
        } else {
          band();
        }
      });
}

// kDx: -1 for the pixel up and to the left (Down), +1 up and to the right (Up). The row above
// lies the step, rounded down to whole elements, before the current one.
template <class T, class L, int kDx>
LumStatus robertsImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  const RobertsRowFn<T> rowFn = pickRobertsRow<T, L>();
  const std::ptrdiff_t up = srcStep - srcStep % static_cast<int>(sizeof(T));
  forRows(roi.height, forkByWork(roi, 2, kForkWork), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      const T* a = rowAt(src, srcStep, y);
      rowFn(a, byteOffset(a, -up) + kDx * L::kCh, rowAt(dst, dstStep, y), roi.width);
    }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace fixed
}  // namespace lumi

// One stamp per export: the 3x3-only filters pass lumMskSize3x3 for the mask.
#define LUMI_FIXED(NAME, KIND, TS, TD, L)                                                     \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep, LumiSize dstRoiSize) { \
    return fixedImpl<TS, TD, L>(Kind::KIND, pSrc, srcStep, pDst, dstStep, dstRoiSize,          \
                                lumMskSize3x3);                                                \
  }
#define LUMI_FIXED_MASK(NAME, KIND, TS, TD, L)                                                \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep, LumiSize dstRoiSize, \
                          int mask) {                                                          \
    return fixedImpl<TS, TD, L>(Kind::KIND, pSrc, srcStep, pDst, dstStep, dstRoiSize, mask);   \
  }
#define LUMI_ROBERTS(NAME, DIR, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize) { \
    return robertsImpl<T, L, kRoberts##DIR>(pSrc, srcStep, pDst, dstStep, dstRoiSize);          \
  }

using namespace lumi;
using namespace lumi::fixed;

namespace {
constexpr int kRobertsDown = -1, kRobertsUp = 1;
}

LUMI_FIXED(lumiFilterPrewittVert_8u_C1R, PrewittVert, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterPrewittVert_8u_C3R, PrewittVert, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterPrewittVert_8u_C4R, PrewittVert, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterPrewittVert_8u_AC4R, PrewittVert, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterPrewittVert_16s_C1R, PrewittVert, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterPrewittVert_16s_C3R, PrewittVert, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterPrewittVert_16s_C4R, PrewittVert, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterPrewittVert_16s_AC4R, PrewittVert, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterPrewittVert_32f_C1R, PrewittVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterPrewittVert_32f_C3R, PrewittVert, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterPrewittVert_32f_C4R, PrewittVert, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterPrewittVert_32f_AC4R, PrewittVert, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C1R, PrewittHoriz, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C3R, PrewittHoriz, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_C4R, PrewittHoriz, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_8u_AC4R, PrewittHoriz, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C1R, PrewittHoriz, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C3R, PrewittHoriz, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_C4R, PrewittHoriz, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_16s_AC4R, PrewittHoriz, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C1R, PrewittHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C3R, PrewittHoriz, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_C4R, PrewittHoriz, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterPrewittHoriz_32f_AC4R, PrewittHoriz, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterSobelVert_8u_C1R, SobelVert, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSobelVert_8u_C3R, SobelVert, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSobelVert_8u_C4R, SobelVert, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSobelVert_8u_AC4R, SobelVert, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSobelVert_16s_C1R, SobelVert, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelVert_16s_C3R, SobelVert, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSobelVert_16s_C4R, SobelVert, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSobelVert_16s_AC4R, SobelVert, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSobelVert_32f_C1R, SobelVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSobelVert_32f_C3R, SobelVert, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSobelVert_32f_C4R, SobelVert, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSobelVert_32f_AC4R, SobelVert, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterSobelVert_8u16s_C1R, SobelVert, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVert_8s16s_C1R, SobelVert, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C1R, SobelHoriz, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C3R, SobelHoriz, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSobelHoriz_8u_C4R, SobelHoriz, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSobelHoriz_8u_AC4R, SobelHoriz, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C1R, SobelHoriz, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C3R, SobelHoriz, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSobelHoriz_16s_C4R, SobelHoriz, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSobelHoriz_16s_AC4R, SobelHoriz, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C1R, SobelHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C3R, SobelHoriz, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSobelHoriz_32f_C4R, SobelHoriz, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSobelHoriz_32f_AC4R, SobelHoriz, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterSobelHoriz_8u16s_C1R, SobelHoriz, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHoriz_8s16s_C1R, SobelHoriz, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_32f_C1R, SobelVertSecond, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_8u16s_C1R, SobelVertSecond, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelVertSecond_8s16s_C1R, SobelVertSecond, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_32f_C1R, SobelHorizSecond, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_8u16s_C1R, SobelHorizSecond, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelHorizSecond_8s16s_C1R, SobelHorizSecond, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_32f_C1R, SobelCross, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_8u16s_C1R, SobelCross, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterSobelCross_8s16s_C1R, SobelCross, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrVert_32f_C1R, ScharrVert, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterScharrVert_8u16s_C1R, ScharrVert, Lum8u, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrVert_8s16s_C1R, ScharrVert, Lum8s, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrHoriz_32f_C1R, ScharrHoriz, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterScharrHoriz_8u16s_C1R, ScharrHoriz, Lum8u, Lum16s, C1)
LUMI_FIXED(lumiFilterScharrHoriz_8s16s_C1R, ScharrHoriz, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C1R, Laplace, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C3R, Laplace, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_C4R, Laplace, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_8u_AC4R, Laplace, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C1R, Laplace, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C3R, Laplace, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_C4R, Laplace, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_16s_AC4R, Laplace, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C1R, Laplace, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C3R, Laplace, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_C4R, Laplace, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterLaplace_32f_AC4R, Laplace, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterLaplace_8u16s_C1R, Laplace, Lum8u, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLaplace_8s16s_C1R, Laplace, Lum8s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C1R, Hipass, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C3R, Hipass, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterHipass_8u_C4R, Hipass, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterHipass_8u_AC4R, Hipass, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C1R, Hipass, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C3R, Hipass, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterHipass_16s_C4R, Hipass, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterHipass_16s_AC4R, Hipass, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C1R, Hipass, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C3R, Hipass, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterHipass_32f_C4R, Hipass, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterHipass_32f_AC4R, Hipass, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C1R, Gauss, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C3R, Gauss, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterGauss_8u_C4R, Gauss, Lum8u, Lum8u, C4)
LUMI_FIXED_MASK(lumiFilterGauss_8u_AC4R, Gauss, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C1R, Gauss, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C3R, Gauss, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterGauss_16s_C4R, Gauss, Lum16s, Lum16s, C4)
LUMI_FIXED_MASK(lumiFilterGauss_16s_AC4R, Gauss, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C1R, Gauss, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C3R, Gauss, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterGauss_32f_C4R, Gauss, Lum32f, Lum32f, C4)
LUMI_FIXED_MASK(lumiFilterGauss_32f_AC4R, Gauss, Lum32f, Lum32f, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_C1R, Lowpass, Lum8u, Lum8u, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_C3R, Lowpass, Lum8u, Lum8u, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_8u_AC4R, Lowpass, Lum8u, Lum8u, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_C1R, Lowpass, Lum16s, Lum16s, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_C3R, Lowpass, Lum16s, Lum16s, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_16s_AC4R, Lowpass, Lum16s, Lum16s, AC4)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_C1R, Lowpass, Lum32f, Lum32f, C1)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_C3R, Lowpass, Lum32f, Lum32f, C3)
LUMI_FIXED_MASK(lumiFilterLowpass_32f_AC4R, Lowpass, Lum32f, Lum32f, AC4)
LUMI_FIXED(lumiFilterSharpen_8u_C1R, Sharpen, Lum8u, Lum8u, C1)
LUMI_FIXED(lumiFilterSharpen_8u_C3R, Sharpen, Lum8u, Lum8u, C3)
LUMI_FIXED(lumiFilterSharpen_8u_C4R, Sharpen, Lum8u, Lum8u, C4)
LUMI_FIXED(lumiFilterSharpen_8u_AC4R, Sharpen, Lum8u, Lum8u, AC4)
LUMI_FIXED(lumiFilterSharpen_16s_C1R, Sharpen, Lum16s, Lum16s, C1)
LUMI_FIXED(lumiFilterSharpen_16s_C3R, Sharpen, Lum16s, Lum16s, C3)
LUMI_FIXED(lumiFilterSharpen_16s_C4R, Sharpen, Lum16s, Lum16s, C4)
LUMI_FIXED(lumiFilterSharpen_16s_AC4R, Sharpen, Lum16s, Lum16s, AC4)
LUMI_FIXED(lumiFilterSharpen_32f_C1R, Sharpen, Lum32f, Lum32f, C1)
LUMI_FIXED(lumiFilterSharpen_32f_C3R, Sharpen, Lum32f, Lum32f, C3)
LUMI_FIXED(lumiFilterSharpen_32f_C4R, Sharpen, Lum32f, Lum32f, C4)
LUMI_FIXED(lumiFilterSharpen_32f_AC4R, Sharpen, Lum32f, Lum32f, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_C1R, Down, Lum8u, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_C3R, Down, Lum8u, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_8u_AC4R, Down, Lum8u, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_C1R, Down, Lum16s, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_C3R, Down, Lum16s, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_16s_AC4R, Down, Lum16s, AC4)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_C1R, Down, Lum32f, C1)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_C3R, Down, Lum32f, C3)
LUMI_ROBERTS(lumiFilterRobertsDown_32f_AC4R, Down, Lum32f, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_C1R, Up, Lum8u, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_C3R, Up, Lum8u, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_8u_AC4R, Up, Lum8u, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_C1R, Up, Lum16s, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_C3R, Up, Lum16s, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_16s_AC4R, Up, Lum16s, AC4)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_C1R, Up, Lum32f, C1)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_C3R, Up, Lum32f, C3)
LUMI_ROBERTS(lumiFilterRobertsUp_32f_AC4R, Up, Lum32f, AC4)

#endif  // HWY_ONCE
