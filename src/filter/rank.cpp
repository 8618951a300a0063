// Rank filters: median over fixed shapes and general masks, the colour (vector) median, and the
// minimum and maximum over rectangular masks.
//
// Medians are exact for every type: each kernel selects the middle value, so the vector
// networks give the value the plain sort-and-pick twin gives, bit for bit (the 5x5 square sorts
// columns once, merges neighbouring pairs once and takes the 13th value of two pairs and a
// column; its networks are odd-even merges pruned to what that value needs). The general
// median's plain kernels slide a 256-bin histogram along each row (8u) or sort each window
// (16s); its vector kernel finds each lane's middle value one bit at a time by counting the
// window's values below a candidate. The colour median's integer sums are exact, so its vector
// kernels (8u, 16s) pick the pixel the plain kernel picks.
//
// The minimum and maximum are separable: the row pass doubles the span it covers (1, 2, 4, ...
// pixels, then one overlapping step to the mask width), the column pass takes prefix and suffix
// extrema over blocks of mask-height rows, so a pixel costs a few comparisons whatever the
// mask. Both passes use the same grouping on every path, so even which of +0 and -0 a tie keeps
// is the same (NaN sources give no defined result).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/rank.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "lumi/filter_rank.h"

// The scalar kernels, once (this file is compiled once per target).
#ifndef LUMI_FILTER_RANK_SCALAR_
#define LUMI_FILTER_RANK_SCALAR_
#include <algorithm>

namespace lumi {
namespace rank {

// The fixed shapes, centred on the pixel.
enum Shape { kHoriz3, kHoriz5, kVert3, kVert5, kSquare3, kSquare5, kCross3, kCross5 };

constexpr int reachX(int s) {
  return s == kHoriz3 || s == kSquare3 || s == kCross3 ? 1
         : s == kHoriz5 || s == kSquare5 || s == kCross5 ? 2 : 0;
}
constexpr int reachY(int s) {
  return s == kVert3 || s == kSquare3 || s == kCross3 ? 1
         : s == kVert5 || s == kSquare5 || s == kCross5 ? 2 : 0;
}
// Elements of one strip of the vector 5x5 square (a multiple of every vector's lanes and of 4).
constexpr std::ptrdiff_t kStrip = 512;

constexpr bool isCross(int s) { return s == kCross3 || s == kCross5; }
constexpr int tapsOf(int s) {
  return isCross(s) ? 2 * (reachX(s) + reachY(s)) + 1 : (2 * reachX(s) + 1) * (2 * reachY(s) + 1);
}

// Sorts v[0..n) ascending (insertion sort: windows are small) and returns the middle.
template <class T>
inline T sortAndPick(T* v, int n) {
  for (int i = 1; i < n; ++i) {
    T x = v[i];
    int j = i;
    for (; j > 0 && v[j - 1] > x; --j) v[j] = v[j - 1];
    v[j] = x;
  }
  return v[n / 2];
}

// Median of one fixed shape for elements [from, elems) of a row; `centre` is element 0 of the
// source row the shape is centred on. With kAlpha every fourth element is left alone.
template <class T, int kCh, bool kAlpha, int kShape>
inline void shapeRowFrom(const T* centre, int step, T* out, std::ptrdiff_t from,
                         std::ptrdiff_t elems) {
  constexpr int rx = reachX(kShape), ry = reachY(kShape);
  for (std::ptrdiff_t e = from; e < elems; ++e) {
    if (kAlpha && (e & 3) == 3) continue;
    T v[25];
    int n = 0;
    for (int dy = -ry; dy <= ry; ++dy) {
      const T* r = rowAt(centre, step, dy) + e;
      for (int dx = -rx; dx <= rx; ++dx)
        if (!isCross(kShape) || dx == 0 || dy == 0) v[n++] = r[dx * kCh];
    }
    out[e] = sortAndPick(v, n);
  }
}

// out[e] = extremum(a[e], b[e]) for e in [from, n), in increasing e: out may be a, and b may
// run ahead of a in the same buffer. With kAlpha every fourth element is left alone.
template <class T, bool kMax, bool kAlpha>
inline void extreme2From(const T* a, const T* b, T* out, std::ptrdiff_t from, std::ptrdiff_t n) {
  for (std::ptrdiff_t e = from; e < n; ++e) {
    if (kAlpha && (e & 3) == 3) continue;
    out[e] = extreme<kMax>(a[e], b[e]);
  }
}

// General median of one row. 8u: for each channel, the histogram of the first window, then the
// window slides one pixel at a time (the leaving column out, the entering one in) and the
// median is walked to from the previous one, keeping the count of values below it. `top` is
// the top-left corner of the first window.
template <int kCh, int kUse>
void medianHistRow(const Lum8u* top, int step, Lum8u* out, int width, LumiSize ms) {
  const int rank = ms.width * ms.height / 2 + 1;
  std::uint32_t hist[256];
  for (int c = 0; c < kUse; ++c) {
    std::memset(hist, 0, sizeof(hist));
    for (int i = 0; i < ms.height; ++i) {
      const Lum8u* r = rowAt(top, step, i) + c;
      for (int j = 0; j < ms.width; ++j) ++hist[r[j * kCh]];
    }
    int med = 0, below = 0;
    for (int x = 0;; ++x) {
      while (below + static_cast<int>(hist[med]) < rank) below += hist[med++];
      while (below >= rank) below -= hist[--med];
      out[elemsOf(x, kCh) + c] = static_cast<Lum8u>(med);
      if (x + 1 == width) break;
      const std::ptrdiff_t leave = elemsOf(x, kCh) + c, enter = elemsOf(x + ms.width, kCh) + c;
      for (int i = 0; i < ms.height; ++i) {
        const Lum8u* r = rowAt(top, step, i);
        const int a = r[leave], b = r[enter];
        --hist[a];
        below -= a < med;
        ++hist[b];
        below += b < med;
      }
    }
  }
}

// 16s: each window gathered and partly sorted (`window` holds one).
template <class T, int kCh, int kUse>
void medianSortRow(const T* top, int step, T* out, int width, LumiSize ms, T* window) {
  const int n = ms.width * ms.height;
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < kUse; ++c) {
      int k = 0;
      for (int i = 0; i < ms.height; ++i) {
        const T* r = rowAt(top, step, i) + elemsOf(x, kCh) + c;
        for (int j = 0; j < ms.width; ++j) window[k++] = r[j * kCh];
      }
      std::nth_element(window, window + n / 2, window + n);
      out[elemsOf(x, kCh) + c] = window[n / 2];
    }
}

// The colour median of pixels [x0, width) of one row: the pixel of the square whose summed L1
// distance (over the three colour channels) to the others is least; the first in row order
// wins a tie. Integer sums are exact; 32f sums the float differences in double precision.
// `centre` is pixel 0 of the source row the squares are centred on.
template <class T, int kCh>
void colorRowFrom(const T* centre, int step, T* out, int x0, int width, int r) {
  using Acc = std::conditional_t<std::is_floating_point_v<T>, double, long long>;
  const int side = 2 * r + 1, n = side * side;
  const T* px[25];
  for (int x = x0; x < width; ++x) {
    int k = 0;
    for (int dy = -r; dy <= r; ++dy)
      for (int dx = -r; dx <= r; ++dx) px[k++] = rowAt(centre, step, dy) + elemsOf(x + dx, kCh);
    int best = 0;
    Acc bestSum = 0;
    for (int i = 0; i < n; ++i) {
      Acc sum = 0;
      for (int j = 0; j < n; ++j)
        for (int c = 0; c < 3; ++c) {
          const Acc d = static_cast<Acc>(px[i][c]) - static_cast<Acc>(px[j][c]);
          sum += d < 0 ? -d : d;
        }
      if (i == 0 || sum < bestSum) {
        best = i;
        bestSum = sum;
      }
    }
    for (int c = 0; c < 3; ++c) out[elemsOf(x, kCh) + c] = px[best][c];
  }
}

}  // namespace rank
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// ---- median networks on vectors of elements (each lane its own window) ----------------------------
template <class V>
HWY_INLINE V med3(V a, V b, V c) {
  return hn::Max(hn::Min(a, b), hn::Min(hn::Max(a, b), c));
}
// The median of five: e against the larger of the pair minima and the smaller of the pair maxima.
template <class V>
HWY_INLINE V med5(V a, V b, V c, V d, V e) {
  return med3(e, hn::Max(hn::Min(a, b), hn::Min(c, d)), hn::Min(hn::Max(a, b), hn::Max(c, d)));
}
template <class V>
HWY_INLINE void sort3(V& a, V& b, V& c) {
  const V lo = hn::Min(a, b), hi = hn::Max(a, b);
  a = hn::Min(lo, c);
  const V m = hn::Max(lo, c);
  b = hn::Min(m, hi);
  c = hn::Max(m, hi);
}
// The median of nine as three sorted triples: the largest minimum, the middle middle and the
// smallest maximum hold it.
template <class V>
HWY_INLINE V med9(V a0, V a1, V a2, V b0, V b1, V b2, V c0, V c1, V c2) {
  sort3(a0, a1, a2);
  sort3(b0, b1, b2);
  sort3(c0, c1, c2);
  const V lo = hn::Max(hn::Max(a0, b0), c0);
  const V hi = hn::Min(hn::Min(a2, b2), c2);
  return med3(lo, med3(a1, b1, c1), hi);
}

// Sorts five vectors ascending (nine exchanges).
template <class V>
HWY_INLINE void sort5(V& v0, V& v1, V& v2, V& v3, V& v4) {
  const V t0 = hn::Min(v0, v1);
  const V t1 = hn::Max(v0, v1);
  const V t2 = hn::Min(v3, v4);
  const V t3 = hn::Max(v3, v4);
  const V t4 = hn::Min(v2, t3);
  const V t5 = hn::Max(v2, t3);
  const V t6 = hn::Min(t4, t2);
  const V t7 = hn::Max(t4, t2);
  const V t8 = hn::Min(t0, t7);
  const V t9 = hn::Max(t0, t7);
  const V t10 = hn::Min(t8, t6);
  const V t11 = hn::Max(t8, t6);
  const V t12 = hn::Min(t1, t5);
  const V t13 = hn::Max(t1, t5);
  const V t14 = hn::Min(t12, t9);
  const V t15 = hn::Max(t12, t9);
  const V t16 = hn::Min(t14, t11);
  const V t17 = hn::Max(t14, t11);
  v0 = t10; v1 = t16; v2 = t17; v3 = t15; v4 = t13;
}

// Merges two ascending runs of five into out[0..9] (odd-even merge, pruned).
// a(k) and b(k) load rank k of each run, out(k, v) stores rank k of the result.
template <class V, class A, class B, class Out>
HWY_INLINE void merge5x5(A a, B b, Out out) {
  const V t0 = hn::Min(a(0), b(0));
  const V t1 = hn::Max(a(0), b(0));
  const V t2 = hn::Min(a(4), b(4));
  const V t3 = hn::Max(a(4), b(4));
  const V t4 = hn::Min(t2, t1);
  const V t5 = hn::Max(t2, t1);
  const V t6 = hn::Min(a(2), b(2));
  const V t7 = hn::Max(a(2), b(2));
  const V t8 = hn::Min(t6, t4);
  const V t9 = hn::Max(t6, t4);
  const V t10 = hn::Min(t7, t5);
  const V t11 = hn::Max(t7, t5);
  const V t12 = hn::Min(a(1), b(1));
  const V t13 = hn::Max(a(1), b(1));
  const V t14 = hn::Min(a(3), b(3));
  const V t15 = hn::Max(a(3), b(3));
  const V t16 = hn::Min(t14, t13);
  const V t17 = hn::Max(t14, t13);
  const V t18 = hn::Min(t12, t8);
  const V t19 = hn::Max(t12, t8);
  const V t20 = hn::Min(t16, t9);
  const V t21 = hn::Max(t16, t9);
  const V t22 = hn::Min(t17, t10);
  const V t23 = hn::Max(t17, t10);
  const V t24 = hn::Min(t15, t11);
  const V t25 = hn::Max(t15, t11);
  out(0, t0);
  out(1, t18);
  out(2, t19);
  out(3, t20);
  out(4, t21);
  out(5, t22);
  out(6, t23);
  out(7, t24);
  out(8, t25);
  out(9, t3);
}

// The 13th smallest of two ascending runs of ten (p, q) and one of five (c): the runs p and q
// merged as far as the rank needs, then the rank taken against c.
// p(k), q(k) and c(k) load rank k of each run where it is used, so the operands come from
// memory rather than from registers spilled to the stack.
template <class V, class P, class Q, class C>
HWY_INLINE V select13(P p, Q q, C c) {
  const V t1 = hn::Max(p(0), q(0));
  const V t2 = hn::Min(p(8), q(8));
  const V t4 = hn::Min(t2, t1);
  const V t5 = hn::Max(t2, t1);
  const V t6 = hn::Min(p(4), q(4));
  const V t7 = hn::Max(p(4), q(4));
  const V t9 = hn::Max(t6, t4);
  const V t10 = hn::Min(t7, t5);
  const V t13 = hn::Max(p(2), q(2));
  const V t14 = hn::Min(p(6), q(6));
  const V t16 = hn::Min(t14, t13);
  const V t17 = hn::Max(t14, t13);
  const V t21 = hn::Max(t16, t9);
  const V t22 = hn::Min(t17, t10);
  const V t23 = hn::Max(t17, t10);
  const V t27 = hn::Max(p(1), q(1));
  const V t28 = hn::Min(p(9), q(9));
  const V t30 = hn::Min(t28, t27);
  const V t31 = hn::Max(t28, t27);
  const V t32 = hn::Min(p(5), q(5));
  const V t33 = hn::Max(p(5), q(5));
  const V t35 = hn::Max(t32, t30);
  const V t36 = hn::Min(t33, t31);
  const V t39 = hn::Max(p(3), q(3));
  const V t40 = hn::Min(p(7), q(7));
  const V t42 = hn::Min(t40, t39);
  const V t43 = hn::Max(t40, t39);
  const V t46 = hn::Min(t42, t35);
  const V t47 = hn::Max(t42, t35);
  const V t48 = hn::Min(t43, t36);
  const V t58 = hn::Min(t46, t21);
  const V t59 = hn::Max(t46, t21);
  const V t60 = hn::Min(t47, t22);
  const V t61 = hn::Max(t47, t22);
  const V t62 = hn::Min(t48, t23);
  const V t63 = hn::Max(t48, t23);
  const V t70 = hn::Max(t62, c(0));
  const V t71 = hn::Max(t61, c(1));
  const V t72 = hn::Max(t60, c(2));
  const V t73 = hn::Max(t59, c(3));
  const V t74 = hn::Max(t58, c(4));
  const V t75 = hn::Min(t63, t70);
  const V t76 = hn::Min(t75, t71);
  const V t77 = hn::Min(t76, t72);
  const V t78 = hn::Min(t77, t73);
  const V t79 = hn::Min(t78, t74);
  return t79;
}

// A fixed shape whose taps are loaded directly: rows 3 and 5 wide, columns, crosses, the 3x3
// square. The last partial vector is redone as a whole vector ending at the row's end; rows
// shorter than a vector take the scalar kernel.
template <class T, int kCh, bool kAlpha, int kShape>
void shapeRow(const T* HWY_RESTRICT centre, int step, T* HWY_RESTRICT out, std::ptrdiff_t elems,
              T* scratch) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  if (elems < N) {
    rank::shapeRowFrom<T, kCh, kAlpha, kShape>(centre, step, out, 0, elems);
    return;
  }
  const auto colour = colourLanes(d);
  const T* up2 = rowAt(centre, step, -2);
  const T* up1 = rowAt(centre, step, -1);
  const T* dn1 = rowAt(centre, step, 1);
  const T* dn2 = rowAt(centre, step, 2);
  constexpr std::ptrdiff_t c1 = kCh, c2 = 2 * kCh;
  if constexpr (kShape == rank::kSquare5) {
    // Columns sorted once, merged in neighbouring pairs once, then each pixel takes the 13th
    // value of its two pairs and its fifth column. The row goes in strips of kStrip elements so
    // that the fifteen buffer rows stay in the first-level cache; a last strip shorter than a
    // vector starts earlier and redoes a few pixels. Column i of a strip's buffers is source
    // element e0 + i - 2 kCh; sorted rank k is s + k * kSpan, pair rank k is pr + k * kSpan.
    constexpr std::ptrdiff_t kSpan = rank::kStrip + 4 * kCh;
    T* s = scratch;
    T* pr = scratch + 5 * kSpan;
    for (std::ptrdiff_t e0 = 0; e0 < elems; e0 += rank::kStrip) {
      std::ptrdiff_t n = elems - e0 < rank::kStrip ? elems - e0 : rank::kStrip;
      if (n < N) {
        e0 = elems - N;
        n = N;
      }
      const std::ptrdiff_t span = n + 4 * kCh;
      auto sortColumns = [&](std::ptrdiff_t i) {
        const std::ptrdiff_t e = e0 + i - c2;
        V v0 = hn::LoadU(d, up2 + e), v1 = hn::LoadU(d, up1 + e), v2 = hn::LoadU(d, centre + e),
          v3 = hn::LoadU(d, dn1 + e), v4 = hn::LoadU(d, dn2 + e);
        sort5(v0, v1, v2, v3, v4);
        hn::StoreU(v0, d, s + i);
        hn::StoreU(v1, d, s + kSpan + i);
        hn::StoreU(v2, d, s + 2 * kSpan + i);
        hn::StoreU(v3, d, s + 3 * kSpan + i);
        hn::StoreU(v4, d, s + 4 * kSpan + i);
      };
      auto mergePairs = [&](std::ptrdiff_t i) {
        merge5x5<V>([&](int k) { return hn::LoadU(d, s + k * kSpan + i); },
                    [&](int k) { return hn::LoadU(d, s + k * kSpan + i + c1); },
                    [&](int k, V v) { hn::StoreU(v, d, pr + k * kSpan + i); });
      };
      auto select = [&](std::ptrdiff_t i) {
        const V m = select13<V>([&](int k) { return hn::LoadU(d, pr + k * kSpan + i); },
                                [&](int k) { return hn::LoadU(d, pr + k * kSpan + i + c2); },
                                [&](int k) { return hn::LoadU(d, s + k * kSpan + i + 2 * c2); });
        storeColour(d, m, out + e0 + i, kAlpha, colour);
      };
      auto sweep = [&](std::ptrdiff_t len, auto&& f) {
        std::ptrdiff_t i = 0;
        for (; i + N <= len; i += N) f(i);
        if (i < len) f(len - N);
      };
      sweep(span, sortColumns);
      sweep(span - c1, mergePairs);
      sweep(n, select);
    }
    return;
  }
  auto at = [&](const T* r, std::ptrdiff_t e) { return hn::LoadU(d, r + e); };
  auto one = [&](std::ptrdiff_t e) {
    V m;
    if constexpr (kShape == rank::kHoriz3) {
      m = med3(at(centre, e - c1), at(centre, e), at(centre, e + c1));
    } else if constexpr (kShape == rank::kHoriz5) {
      m = med5(at(centre, e - c2), at(centre, e - c1), at(centre, e + c1), at(centre, e + c2),
               at(centre, e));
    } else if constexpr (kShape == rank::kVert3) {
      m = med3(at(up1, e), at(centre, e), at(dn1, e));
    } else if constexpr (kShape == rank::kVert5) {
      m = med5(at(up2, e), at(up1, e), at(dn1, e), at(dn2, e), at(centre, e));
    } else if constexpr (kShape == rank::kCross3) {
      m = med5(at(up1, e), at(dn1, e), at(centre, e - c1), at(centre, e + c1), at(centre, e));
    } else if constexpr (kShape == rank::kCross5) {
      m = med9(at(up2, e), at(up1, e), at(dn1, e), at(dn2, e), at(centre, e), at(centre, e - c2),
               at(centre, e - c1), at(centre, e + c1), at(centre, e + c2));
    } else {  // the 3x3 square, by columns
      m = med9(at(up1, e - c1), at(centre, e - c1), at(dn1, e - c1), at(up1, e), at(centre, e),
               at(dn1, e), at(up1, e + c1), at(centre, e + c1), at(dn1, e + c1));
    }
    storeColour(d, m, out + e, kAlpha, colour);
  };
  std::ptrdiff_t e = 0;
  for (; e + N <= elems; e += N) one(e);
  if (e < elems) one(elems - N);  // a pixel boundary: N and elems are multiples of 4 for AC4
  (void)scratch;
}

// out[e] = extremum(a[e], b[e]) in increasing e (out may be a, b may run ahead in the same
// buffer, so the tail is finished by the scalar loop, never redone).
template <class T, bool kMax, bool kAlpha>
void extreme2(const T* a, const T* b, T* out, std::ptrdiff_t n) {
  const hn::ScalableTag<T> d;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const auto colour = colourLanes(d);
  std::ptrdiff_t e = 0;
  for (; e + 2 * N <= n; e += 2 * N) {
    const auto a0 = hn::LoadU(d, a + e), a1 = hn::LoadU(d, a + e + N);
    const auto b0 = hn::LoadU(d, b + e), b1 = hn::LoadU(d, b + e + N);
    if constexpr (kMax) {
      storeColour(d, hn::Max(a0, b0), out + e, kAlpha, colour);
      storeColour(d, hn::Max(a1, b1), out + e + N, kAlpha, colour);
    } else {
      storeColour(d, hn::Min(a0, b0), out + e, kAlpha, colour);
      storeColour(d, hn::Min(a1, b1), out + e + N, kAlpha, colour);
    }
  }
  rank::extreme2From<T, kMax, kAlpha>(a, b, out, e, n);
}

// General median by bits: each lane finds its window's middle value one bit at a time, from
// the top, keeping a bit when fewer than rank values lie below the candidate. Counts are kept
// in lanes of T, so windows of up to 255 (8u) or 32767 (16s) values take this kernel. Signed
// values are searched in the order of their sign-flipped bits.
template <class T, int kCh, bool kAlpha, int kUse>
void medianBitsRow(const T* HWY_RESTRICT top, int step, T* HWY_RESTRICT out, int width,
                   LumiSize ms, T* window) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const std::ptrdiff_t elems = elemsOf(width, kCh);
  const int n = ms.width * ms.height;
  if (elems < N || n > static_cast<int>(std::numeric_limits<T>::max())) {
    if constexpr (sizeof(T) == 1)
      rank::medianHistRow<kCh, kUse>(top, step, out, width, ms);
    else
      rank::medianSortRow<T, kCh, kUse>(top, step, out, width, ms, window);
    return;
  }
  constexpr int kBits = 8 * sizeof(T);
  using U = hwy::MakeUnsigned<T>;
  const V flip = hn::BitCast(d, hn::Set(hn::RebindToUnsigned<decltype(d)>(),
                                        static_cast<U>(std::is_signed_v<T> ? U(1) << (kBits - 1) : 0)));
  const V rank = hn::Set(d, static_cast<T>(n / 2 + 1));
  const V one = hn::Set(d, T{1});
  const auto colour = colourLanes(d);
  // count + (v < candidate): with mask registers (AVX-512) 8u takes the saturated difference
  // clipped to 1, which stays out of them; otherwise the comparison in the values' own order.
  auto below = [&](V count, V v, V t, V ts) {
    if constexpr (sizeof(T) == 1 && HWY_TARGET == HWY_AVX3) {
      (void)ts;
      return hn::Add(count, hn::Min(hn::SaturatedSub(t, v), one));
    } else {
      (void)t;
      return hn::Sub(count, hn::VecFromMask(d, hn::Lt(v, ts)));
    }
  };
  auto one_vector = [&](std::ptrdiff_t e) {
    V r = hn::Zero(d);  // in the flipped order
    for (int b = kBits - 1; b >= 0; --b) {
      const V t = hn::Or(r, hn::ShiftLeftSame(one, b));
      const V ts = hn::Xor(t, flip);
      V count = hn::Zero(d);
      for (int i = 0; i < ms.height; ++i) {
        const T* row = rowAt(top, step, i) + e;
        for (int j = 0; j < ms.width; ++j)
          count = below(count, hn::LoadU(d, row + j * kCh), t, ts);
      }
      r = hn::IfThenElse(hn::Lt(count, rank), t, r);
    }
    storeColour(d, hn::Xor(r, flip), out + e, kAlpha, colour);
  };
  std::ptrdiff_t e = 0;
  for (; e + N <= elems; e += N) one_vector(e);
  if (e < elems) one_vector(elems - N);
}

// Colour median of integer pixels, one destination pixel per lane of twice the element's width:
// the channels of the square are widened, each pair's distance is added to both its pixels'
// sums (at most 24 x 3 x 255 for 8u, 24 x 3 x 65535 for 16s, so the wide lanes hold them),
// and the first least sum wins as in the plain kernel.
template <class T, int kCh>
void colorRowInt(const T* HWY_RESTRICT centre, int step, T* HWY_RESTRICT out, int width, int r) {
  using W = std::conditional_t<sizeof(T) == 1, uint16_t, int32_t>;
  const hn::ScalableTag<W> d;
  const hn::Rebind<T, decltype(d)> dn;
  const hn::RebindToSigned<decltype(d)> di;
  using V = hn::Vec<decltype(d)>;
  using VN = hn::Vec<decltype(dn)>;
  const int N = static_cast<int>(hn::Lanes(d));
  if (width < N) {
    rank::colorRowFrom<T, kCh>(centre, step, out, 0, width, r);
    return;
  }
  const int side = 2 * r + 1, n = side * side;
  auto one = [&](int x) {
    V ch[3][25], sum[25];
    int k = 0;
    for (int dy = -r; dy <= r; ++dy)
      for (int dx = -r; dx <= r; ++dx, ++k) {
        const T* p = rowAt(centre, step, dy) + elemsOf(x + dx, kCh);
        VN c0, c1, c2, c3;
        if constexpr (kCh == 3) {
          hn::LoadInterleaved3(dn, p, c0, c1, c2);
        } else {
          hn::LoadInterleaved4(dn, p, c0, c1, c2, c3);
        }
        ch[0][k] = hn::PromoteTo(d, c0);
        ch[1][k] = hn::PromoteTo(d, c1);
        ch[2][k] = hn::PromoteTo(d, c2);
        sum[k] = hn::Zero(d);
      }
    for (int i = 0; i < n; ++i)
      for (int j = i + 1; j < n; ++j) {
        V dist = hn::Zero(d);
        for (int c = 0; c < 3; ++c)
          dist = hn::Add(dist, hn::Sub(hn::Max(ch[c][i], ch[c][j]), hn::Min(ch[c][i], ch[c][j])));
        sum[i] = hn::Add(sum[i], dist);
        sum[j] = hn::Add(sum[j], dist);
      }
    V best = sum[0], b0 = ch[0][0], b1 = ch[1][0], b2 = ch[2][0];
    for (int i = 1; i < n; ++i) {
      const auto less = hn::Lt(sum[i], best);
      best = hn::IfThenElse(less, sum[i], best);
      b0 = hn::IfThenElse(less, ch[0][i], b0);
      b1 = hn::IfThenElse(less, ch[1][i], b1);
      b2 = hn::IfThenElse(less, ch[2][i], b2);
    }
    T* o = out + elemsOf(x, kCh);
    // Values are the source's own, so narrowing never saturates.
    const VN o0 = hn::DemoteTo(dn, hn::BitCast(di, b0)), o1 = hn::DemoteTo(dn, hn::BitCast(di, b1)),
             o2 = hn::DemoteTo(dn, hn::BitCast(di, b2));
    if constexpr (kCh == 3) {
      hn::StoreInterleaved3(o0, o1, o2, dn, o);
    } else {  // the alpha of the destination goes back as it was
      VN a0, a1, a2, alpha;
      hn::LoadInterleaved4(dn, o, a0, a1, a2, alpha);
      hn::StoreInterleaved4(o0, o1, o2, alpha, dn, o);
    }
  };
  int x = 0;
  for (; x + N <= width; x += N) one(x);
  if (x < width) one(width - N);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace rank {
namespace {

// Rows go to threads when pixels x reads reach this.
constexpr long long kForkWork = 1LL << 20;

// ---- kernel choosers ---------------------------------------------------------------------------
// A fixed-shape median row: centre row, source step, destination, elements, scratch elements.
template <class T>
using ShapeRowFn = void (*)(const T*, int, T*, std::ptrdiff_t, T*);

template <class T, int kCh, bool kAlpha, int kShape>
void shapeRowScalar(const T* centre, int step, T* out, std::ptrdiff_t elems, T*) {
  shapeRowFrom<T, kCh, kAlpha, kShape>(centre, step, out, 0, elems);
}

template <class T, int kCh, bool kAlpha, int kShape>
ShapeRowFn<T> pickShapeRow() {
  LUMI_SIMD_TABLE(ShapeRowFn<T>, table, shapeRow<T, kCh, kAlpha, kShape>);
  return pick(table, &shapeRowScalar<T, kCh, kAlpha, kShape>);
}

// Scratch elements a fixed-shape row kernel needs: the vector 5x5 square keeps five rows of
// sorted columns and ten of merged pairs, for one strip and four pixels more.
inline std::ptrdiff_t shapeScratch(int shape, int kCh) {
  return shape == kSquare5 ? 15 * (kStrip + 4 * kCh) : 0;
}

template <class T>
using Extreme2Fn = void (*)(const T*, const T*, T*, std::ptrdiff_t);

template <class T, bool kMax, bool kAlpha>
void extreme2Scalar(const T* a, const T* b, T* out, std::ptrdiff_t n) {
  extreme2From<T, kMax, kAlpha>(a, b, out, 0, n);
}

template <class T, bool kMax, bool kAlpha>
Extreme2Fn<T> pickExtreme2() {
  LUMI_SIMD_TABLE(Extreme2Fn<T>, table, extreme2<T, kMax, kAlpha>);
  return pick(table, &extreme2Scalar<T, kMax, kAlpha>);
}

// ---- copies (1x1 masks) ------------------------------------------------------------------------
template <class T, class L>
LumStatus copyRoi(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  const std::ptrdiff_t elems = elemsOf(roi.width, L::kCh);
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if constexpr (L::kUse == L::kCh) {
      std::memcpy(d, s, static_cast<std::size_t>(elems) * sizeof(T));
    } else {
      for (std::ptrdiff_t e = 0; e < elems; ++e)
        if ((e & 3) != 3) d[e] = s[e];
    }
  }
  return lumStatusOk;
}

// ---- fixed shapes ----------------------------------------------------------------------------
// src points at the centre of the first destination pixel's shape.
template <class T, class L, int kShape>
LumStatus runShape(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  constexpr bool kAlpha = L::kUse < L::kCh;
  const auto kernel = pickShapeRow<T, L::kCh, kAlpha, kShape>();
  const std::ptrdiff_t elems = elemsOf(roi.width, L::kCh);
  const std::ptrdiff_t scratch = shapeScratch(kShape, L::kCh);
  const bool parallel = forkByWork(roi, tapsOf(kShape), kForkWork);
  if (scratch == 0) {
    forRows(roi.height, parallel, [&](int y0, int y1) {
      for (int y = y0; y < y1; ++y)
        kernel(rowAt(src, srcStep, y), srcStep, rowAt(dst, dstStep, y), elems, nullptr);
    });
    return lumStatusOk;
  }
  return forRowsWithScratch(roi.height, parallel,
                            static_cast<std::size_t>(scratch) * sizeof(T),
                            [&](int y0, int y1, Lum8u* s) {
                              T* mine = reinterpret_cast<T*>(s);
                              for (int y = y0; y < y1; ++y)
                                kernel(rowAt(src, srcStep, y), srcStep, rowAt(dst, dstStep, y),
                                       elems, mine);
                            });
}

template <class T, class L>
LumStatus runShapeCode(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int shape) {
  switch (shape) {
    case kHoriz3: return runShape<T, L, kHoriz3>(src, srcStep, dst, dstStep, roi);
    case kHoriz5: return runShape<T, L, kHoriz5>(src, srcStep, dst, dstStep, roi);
    case kVert3: return runShape<T, L, kVert3>(src, srcStep, dst, dstStep, roi);
    case kVert5: return runShape<T, L, kVert5>(src, srcStep, dst, dstStep, roi);
    case kSquare3: return runShape<T, L, kSquare3>(src, srcStep, dst, dstStep, roi);
    case kSquare5: return runShape<T, L, kSquare5>(src, srcStep, dst, dstStep, roi);
    case kCross3: return runShape<T, L, kCross3>(src, srcStep, dst, dstStep, roi);
    default: return runShape<T, L, kCross5>(src, srcStep, dst, dstStep, roi);
  }
}

// A general median row: top-left of the first window, step, destination, width, mask, and a
// window's worth of scratch.
template <class T>
using GeneralRowFn = void (*)(const T*, int, T*, int, LumiSize, T*);

template <class T, int kCh, bool kAlpha, int kUse>
void generalRowScalar(const T* top, int step, T* out, int width, LumiSize ms, T* window) {
  if constexpr (sizeof(T) == 1)
    medianHistRow<kCh, kUse>(top, step, out, width, ms);
  else
    medianSortRow<T, kCh, kUse>(top, step, out, width, ms, window);
}

template <class T, int kCh, bool kAlpha, int kUse>
GeneralRowFn<T> pickGeneralRow() {
  LUMI_SIMD_TABLE(GeneralRowFn<T>, table, medianBitsRow<T, kCh, kAlpha, kUse>);
  return pick(table, &generalRowScalar<T, kCh, kAlpha, kUse>);
}

template <class T, class L>
LumStatus medianGeneral(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                        LumiSize ms) {
  const auto kernel = pickGeneralRow<T, L::kCh, (L::kUse < L::kCh), L::kUse>();
  const long long taps = static_cast<long long>(ms.width) * ms.height;
  const long long bytes = taps * static_cast<long long>(sizeof(T));
  if (bytes > INT_MAX / 2) return lumStatusMemAllocErr;
  return forRowsWithScratch(roi.height, forkByWork(roi, taps, kForkWork),
                            static_cast<std::size_t>(bytes), [&](int y0, int y1, Lum8u* s) {
                              for (int y = y0; y < y1; ++y)
                                kernel(rowAt(src, srcStep, y), srcStep, rowAt(dst, dstStep, y),
                                       roi.width, ms, reinterpret_cast<T*>(s));
                            });
}

// ---- checks --------------------------------------------------------------------------------------
template <class T>
inline LumStatus checkImages(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  return lumStatusOk;
}

inline LumStatus checkMask(LumiSize ms, LumiPoint anchor, bool oddOnly) {
  if (badSize(ms) || (oddOnly && (ms.width % 2 == 0 || ms.height % 2 == 0)))
    return lumStatusMaskSizeErr;
  if (anchor.x < 0 || anchor.x >= ms.width || anchor.y < 0 || anchor.y >= ms.height)
    return lumStatusAnchorErr;
  return lumStatusOk;
}

// ---- the exports' bodies -------------------------------------------------------------------------
template <class T, class L>
LumStatus median(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize ms,
                 LumiPoint anchor) {
  if (LumStatus s = checkImages(src, srcStep, dst, dstStep, roi)) return s;
  if (LumStatus s = checkMask(ms, anchor, true)) return s;
  // Centre the mask on the source pointer.
  const T* c = rowAt(src, srcStep, ms.height / 2 - anchor.y) + elemsOf(ms.width / 2 - anchor.x, L::kCh);
  const int w = ms.width, h = ms.height;
  int shape = -1;
  if (w == 3 && h == 3) shape = kSquare3;
  else if (w == 5 && h == 5) shape = kSquare5;
  else if (w == 3 && h == 1) shape = kHoriz3;
  else if (w == 5 && h == 1) shape = kHoriz5;
  else if (w == 1 && h == 3) shape = kVert3;
  else if (w == 1 && h == 5) shape = kVert5;
  if (shape >= 0) return runShapeCode<T, L>(c, srcStep, dst, dstStep, roi, shape);
  if (w == 1 && h == 1) return copyRoi<T, L>(c, srcStep, dst, dstStep, roi);
  const T* corner = rowAt(c, srcStep, -(h / 2)) - elemsOf(w / 2, L::kCh);
  return medianGeneral<T, L>(corner, srcStep, dst, dstStep, roi, ms);
}

// A fixed-shape entry point: its mask codes and the shapes they select.
template <class T, class L>
LumStatus medianFixed(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mask,
                      int code3, int shape3, int code5, int shape5, bool statusOfWorker) {
  if (LumStatus s = checkImages(src, srcStep, dst, dstStep, roi)) return s;
  if (mask != code3 && mask != code5) return lumStatusMaskSizeErr;
  const LumStatus s =
      runShapeCode<T, L>(src, srcStep, dst, dstStep, roi, mask == code3 ? shape3 : shape5);
  return statusOfWorker ? s : lumStatusOk;
}

template <class T, class L>
LumStatus medianHoriz(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mask) {
  return medianFixed<T, L>(src, srcStep, dst, dstStep, roi, mask, lumMskSize3x1, kHoriz3,
                           lumMskSize5x1, kHoriz5, true);
}
template <class T, class L>
LumStatus medianVert(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mask) {
  return medianFixed<T, L>(src, srcStep, dst, dstStep, roi, mask, lumMskSize1x3, kVert3,
                           lumMskSize1x5, kVert5, true);
}
template <class T, class L>
LumStatus medianCross(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mask) {
  return medianFixed<T, L>(src, srcStep, dst, dstStep, roi, mask, lumMskSize3x3, kCross3,
                           lumMskSize5x5, kCross5, false);
}

// ---- colour median -----------------------------------------------------------------------------
template <class T>
using ColorRowFn = void (*)(const T*, int, T*, int, int);

template <class T, int kCh>
void colorRowScalar(const T* centre, int step, T* out, int width, int r) {
  colorRowFrom<T, kCh>(centre, step, out, 0, width, r);
}

// Vector kernels for 8u and 16s; 32f keeps the plain one, whose double sums a vector kernel
// would have to add in the same order to pick the same pixel.
template <class T, int kCh>
ColorRowFn<T> pickColorRow() {
  if constexpr (!std::is_floating_point_v<T>) {
    LUMI_SIMD_TABLE(ColorRowFn<T>, table, colorRowInt<T, kCh>);
    return pick(table, &colorRowScalar<T, kCh>);
  } else {
    return &colorRowScalar<T, kCh>;
  }
}

template <class T, class L>
LumStatus medianColor(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mask) {
  if (LumStatus s = checkImages(src, srcStep, dst, dstStep, roi)) return s;
  if (mask != lumMskSize3x3 && mask != lumMskSize5x5) return lumStatusMaskSizeErr;
  const int r = mask == lumMskSize3x3 ? 1 : 2;
  const long long side = 2 * r + 1;
  const auto kernel = pickColorRow<T, L::kCh>();
  forRows(roi.height, forkByWork(roi, side * side * side * side, kForkWork), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y)
      kernel(rowAt(src, srcStep, y), srcStep, rowAt(dst, dstStep, y), roi.width, r);
  });
  return lumStatusOk;
}

// ---- minimum and maximum ---------------------------------------------------------------------------
// Row pass of one source row into `buf` (span = width + mask width - 1 pixels): buf[x] becomes
// the extremum of pixels x .. x + w - 1, first by doubling (pairs, fours, ...) and then by one
// overlapping step. Every step reads ahead of what it writes, so it works in place.
template <class T>
void rowPass(const T* srcRow, T* buf, std::ptrdiff_t span, int w, int kCh, Extreme2Fn<T> ext) {
  if (w == 1) {
    std::memcpy(buf, srcRow, static_cast<std::size_t>(span) * sizeof(T));
    return;
  }
  int p = 1;
  const T* from = srcRow;
  while (2 * p <= w) {
    const std::ptrdiff_t d = elemsOf(p, kCh);
    ext(from, from + d, buf, span - elemsOf(2 * p - 1, kCh));
    from = buf;
    p *= 2;
  }
  if (p < w) ext(buf, buf + elemsOf(w - p, kCh), buf, span - elemsOf(w - 1, kCh));
}

// The column pass over blocks of h rows: for block k (rows kh .. kh + h - 1 of the band's
// source rows) the suffix extrema S; the destination row whose window starts at row kh + m is
// S[m] when m = 0, else the extremum of S[m] and the prefix extremum of block k + 1 up to row
// (k + 1)h + m - 1. Scratch: two blocks of rows and one prefix row.
template <class T, class L, bool kMax>
LumStatus minMax(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize ms,
                 LumiPoint anchor) {
  if (LumStatus s = checkImages(src, srcStep, dst, dstStep, roi)) return s;
  if (LumStatus s = checkMask(ms, anchor, false)) return s;
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse < L::kCh;
  const auto ext = pickExtreme2<T, kMax, false>();
  const auto extOut = pickExtreme2<T, kMax, kAlpha>();
  const int w = ms.width, h = ms.height;
  const std::ptrdiff_t span = elemsOf(roi.width + w - 1, kCh);  // at most 2^31 pixels x 4
  const std::ptrdiff_t elems = elemsOf(roi.width, kCh);
  const std::ptrdiff_t rowStride = (span + 15) & ~std::ptrdiff_t{15};
  const long double bytes = static_cast<long double>(rowStride) * (2.0L * h + 1) * sizeof(T);
  if (bytes > static_cast<long double>(INT_MAX / 2)) return lumStatusMemAllocErr;
  const T* corner = rowAt(src, srcStep, -anchor.y) - elemsOf(anchor.x, kCh);
  int levels = 1;
  for (int p = 1; 2 * p <= w; p *= 2) ++levels;
  const bool parallel = forkByWork(roi, levels + 3, kForkWork);
  auto body = [&](int y0, int y1, Lum8u* scratch) {
    T* blocks[2] = {reinterpret_cast<T*>(scratch),
                    reinterpret_cast<T*>(scratch) + rowStride * h};
    T* prefix = blocks[1] + rowStride * h;
    auto slot = [&](int b, int m) { return blocks[b] + rowStride * m; };
    auto pass = [&](int j, T* to) {  // row j of the band's source rows
      rowPass(rowAt(corner, srcStep, y0 + j), to, span, w, kCh, ext);
    };
    auto suffix = [&](int b) {
      for (int m = h - 2; m >= 0; --m) ext(slot(b, m), slot(b, m + 1), slot(b, m), elems);
    };
    const int n = y1 - y0;
    int cur = 0;
    for (int m = 0; m < h; ++m) pass(m, slot(cur, m));
    suffix(cur);
    for (int k = 0; k * h < n; ++k) {
      const int base = k * h;
      T* out = rowAt(dst, dstStep, y0 + base);
      extOut(slot(cur, 0), slot(cur, 0), out, elems);
      int done = 0;  // rows of block k + 1 already passed
      for (int m = 1; m < h && base + m < n; ++m) {
        T* row = slot(1 - cur, m - 1);
        pass(base + h + m - 1, row);
        done = m;
        const T* p = row;
        if (m >= 2) {
          ext(m == 2 ? slot(1 - cur, 0) : prefix, row, prefix, elems);
          p = prefix;
        }
        extOut(slot(cur, m), p, rowAt(dst, dstStep, y0 + base + m), elems);
      }
      if (base + h >= n) break;
      for (int m = done; m < h; ++m) pass(base + h + m, slot(1 - cur, m));
      cur = 1 - cur;
      suffix(cur);
    }
  };
  return forRowsWithScratch(roi.height, parallel, static_cast<std::size_t>(bytes), body);
}

}  // namespace
}  // namespace rank
}  // namespace lumi

// One stamp per export.
#define LUMI_MEDIAN(NAME, T, L)                                                                   \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          LumiSize maskSize, LumiPoint anchor) {                                  \
    return median<T, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);              \
  }
#define LUMI_MEDIAN_CODE(NAME, T, L, IMPL)                                                        \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          int mask) {                                                             \
    return IMPL<T, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, mask);                            \
  }
#define LUMI_MINMAX(NAME, T, L, MAX)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          LumiSize maskSize, LumiPoint anchor) {                                  \
    return minMax<T, L, MAX>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);         \
  }

using namespace lumi;
using namespace lumi::rank;

LUMI_MEDIAN(lumiFilterMedian_8u_C1R, Lum8u, C1)
LUMI_MEDIAN(lumiFilterMedian_8u_C3R, Lum8u, C3)
LUMI_MEDIAN(lumiFilterMedian_8u_C4R, Lum8u, C4)
LUMI_MEDIAN(lumiFilterMedian_8u_AC4R, Lum8u, AC4)
LUMI_MEDIAN(lumiFilterMedian_16s_C1R, Lum16s, C1)
LUMI_MEDIAN(lumiFilterMedian_16s_C3R, Lum16s, C3)
LUMI_MEDIAN(lumiFilterMedian_16s_C4R, Lum16s, C4)
LUMI_MEDIAN(lumiFilterMedian_16s_AC4R, Lum16s, AC4)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_8u_C1R, Lum8u, C1, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_8u_C3R, Lum8u, C3, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_8u_C4R, Lum8u, C4, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_8u_AC4R, Lum8u, AC4, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_16s_C1R, Lum16s, C1, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_16s_C3R, Lum16s, C3, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_16s_C4R, Lum16s, C4, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianHoriz_16s_AC4R, Lum16s, AC4, medianHoriz)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_8u_C1R, Lum8u, C1, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_8u_C3R, Lum8u, C3, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_8u_C4R, Lum8u, C4, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_8u_AC4R, Lum8u, AC4, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_16s_C1R, Lum16s, C1, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_16s_C3R, Lum16s, C3, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_16s_C4R, Lum16s, C4, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianVert_16s_AC4R, Lum16s, AC4, medianVert)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_8u_C1R, Lum8u, C1, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_8u_C3R, Lum8u, C3, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_8u_AC4R, Lum8u, AC4, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_16s_C1R, Lum16s, C1, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_16s_C3R, Lum16s, C3, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianCross_16s_AC4R, Lum16s, AC4, medianCross)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_8u_C3R, Lum8u, C3, medianColor)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_8u_AC4R, Lum8u, AC4, medianColor)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_16s_C3R, Lum16s, C3, medianColor)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_16s_AC4R, Lum16s, AC4, medianColor)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_32f_C3R, Lum32f, C3, medianColor)
LUMI_MEDIAN_CODE(lumiFilterMedianColor_32f_AC4R, Lum32f, AC4, medianColor)
LUMI_MINMAX(lumiFilterMin_8u_C1R, Lum8u, C1, false)
LUMI_MINMAX(lumiFilterMin_8u_C3R, Lum8u, C3, false)
LUMI_MINMAX(lumiFilterMin_8u_C4R, Lum8u, C4, false)
LUMI_MINMAX(lumiFilterMin_8u_AC4R, Lum8u, AC4, false)
LUMI_MINMAX(lumiFilterMin_16s_C1R, Lum16s, C1, false)
LUMI_MINMAX(lumiFilterMin_16s_C3R, Lum16s, C3, false)
LUMI_MINMAX(lumiFilterMin_16s_C4R, Lum16s, C4, false)
LUMI_MINMAX(lumiFilterMin_16s_AC4R, Lum16s, AC4, false)
LUMI_MINMAX(lumiFilterMin_32f_C1R, Lum32f, C1, false)
LUMI_MINMAX(lumiFilterMin_32f_C3R, Lum32f, C3, false)
LUMI_MINMAX(lumiFilterMin_32f_C4R, Lum32f, C4, false)
LUMI_MINMAX(lumiFilterMin_32f_AC4R, Lum32f, AC4, false)
LUMI_MINMAX(lumiFilterMax_8u_C1R, Lum8u, C1, true)
LUMI_MINMAX(lumiFilterMax_8u_C3R, Lum8u, C3, true)
LUMI_MINMAX(lumiFilterMax_8u_C4R, Lum8u, C4, true)
LUMI_MINMAX(lumiFilterMax_8u_AC4R, Lum8u, AC4, true)
LUMI_MINMAX(lumiFilterMax_16s_C1R, Lum16s, C1, true)
LUMI_MINMAX(lumiFilterMax_16s_C3R, Lum16s, C3, true)
LUMI_MINMAX(lumiFilterMax_16s_C4R, Lum16s, C4, true)
LUMI_MINMAX(lumiFilterMax_16s_AC4R, Lum16s, AC4, true)
LUMI_MINMAX(lumiFilterMax_32f_C1R, Lum32f, C1, true)
LUMI_MINMAX(lumiFilterMax_32f_C3R, Lum32f, C3, true)
LUMI_MINMAX(lumiFilterMax_32f_C4R, Lum32f, C4, true)
LUMI_MINMAX(lumiFilterMax_32f_AC4R, Lum32f, AC4, true)
#endif
