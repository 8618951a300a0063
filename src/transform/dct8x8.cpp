// 8x8 block DCTs: float and 16-bit fixed point, the reduced inverses of sparse blocks and the
// zigzag scan.
//
// Float blocks: the scaled butterflies of dct8x8_aan-inl.h down the columns, then along the
// rows, then one multiplication per coefficient by the factor table (the inverse multiplies
// first). The vector kernel keeps the block in sixteen four-lane registers, one column per lane,
// and transposes between the passes; it does the same multiplications and additions in the
// same order as the plain kernel (no fused multiply-adds), so both give the same floats bit for
// bit.
//
// 16-bit blocks: separable sums with the cosine constants quantised to 14 fraction bits,
// K(u, x) = round(16384 sqrt(2) C(u) cos((2x + 1) u pi / 16)), that is +-16384, 22725, 21407,
// 19266, 12873, 8867 and 4520; F(u, v) = (sum_y K(v, y) sum_x K(u, x) f(x, y)) / 2^31 (the
// 2-D factor 1/8 and the constants' 2^28), held exactly in 64 bits between the passes (the
// even/odd symmetries of K save most products) and rounded once, ties up, then saturated to 16
// bits. The inverse is the transpose; the reduced inverses sum only the top-left 2x2 or 4x4
// coefficients. The vector kernels hold the same integer sums in double lanes, where every
// intermediate (below 2^50) is exact, so their results equal the plain kernels' bit for bit.
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/transform/dct8x8.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "lumi/dct.h"
#include "transform/dct8x8.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

#include "transform/dct8x8_aan-inl.h"

// Four-lane vectors: a block is 16 of them, rows split into columns 0-3 and 4-7.
using D4 = hn::FixedTag<float, 4>;
using V4 = hn::Vec<D4>;

HWY_INLINE void transpose4(V4& a, V4& b, V4& c, V4& e) {
  const D4 d;
  const V4 t0 = hn::InterleaveLower(d, a, b), t1 = hn::InterleaveLower(d, c, e);
  const V4 t2 = hn::InterleaveUpper(d, a, b), t3 = hn::InterleaveUpper(d, c, e);
  a = hn::ConcatLowerLower(d, t1, t0);
  b = hn::ConcatUpperUpper(d, t1, t0);
  c = hn::ConcatLowerLower(d, t3, t2);
  e = hn::ConcatUpperUpper(d, t3, t2);
}

// lo[r], hi[r]: columns 0-3 and 4-7 of row r. Afterwards lo[c], hi[c] hold rows 0-3 and 4-7 of
// column c, i.e. the transposed block in the same form.
HWY_INLINE void transpose8(V4* lo, V4* hi) {
  transpose4(lo[0], lo[1], lo[2], lo[3]);
  transpose4(lo[4], lo[5], lo[6], lo[7]);
  transpose4(hi[0], hi[1], hi[2], hi[3]);
  transpose4(hi[4], hi[5], hi[6], hi[7]);
  for (int i = 0; i < 4; ++i) {  // the off-diagonal 4x4 blocks change places
    const V4 t = hi[i];
    hi[i] = lo[4 + i];
    lo[4 + i] = t;
  }
}

template <bool kFwd>
HWY_INLINE void butterflies(V4* v) {
  const D4 d;
  if constexpr (kFwd)
    aanFwd8<V4>(v, hn::Set(d, dct::kC4), hn::Set(d, dct::kS8), hn::Set(d, dct::kK0541),
                hn::Set(d, dct::kK1306));
  else
    aanInv8<V4>(v, hn::Set(d, dct::kR2), hn::Set(d, dct::kK1847), hn::Set(d, dct::kK1082),
                hn::Set(d, dct::kK2613));
}

// Columns, then rows (as the columns of the transposed block); the forward transform scales
// after, the inverse before (the factor table is symmetric).
template <bool kFwd>
HWY_INLINE void block(const float* src, float* dst) {  // src == dst allowed
  const D4 d;
  const float* sc = kFwd ? dct::kScale.fwd : dct::kScale.inv;
  V4 lo[8], hi[8];
  for (int r = 0; r < 8; ++r) {
    lo[r] = hn::LoadU(d, src + 8 * r);
    hi[r] = hn::LoadU(d, src + 8 * r + 4);
    if constexpr (!kFwd) {
      lo[r] = hn::Mul(lo[r], hn::LoadU(d, sc + 8 * r));
      hi[r] = hn::Mul(hi[r], hn::LoadU(d, sc + 8 * r + 4));
    }
  }
  butterflies<kFwd>(lo);
  butterflies<kFwd>(hi);
  transpose8(lo, hi);
  butterflies<kFwd>(lo);
  butterflies<kFwd>(hi);
  if constexpr (kFwd)
    for (int c = 0; c < 8; ++c) {
      lo[c] = hn::Mul(lo[c], hn::LoadU(d, sc + 8 * c));
      hi[c] = hn::Mul(hi[c], hn::LoadU(d, sc + 8 * c + 4));
    }
  transpose8(lo, hi);
  for (int r = 0; r < 8; ++r) {
    hn::StoreU(lo[r], d, dst + 8 * r);
    hn::StoreU(hi[r], d, dst + 8 * r + 4);
  }
}

void blockFwd(const float* src, float* dst) { block<true>(src, dst); }
void blockInv(const float* src, float* dst) { block<false>(src, dst); }

// ---- 16-bit blocks: the exact integer sums in double lanes -------------------------------------
// Every intermediate is an integer below 2^50, so double arithmetic is exact and the results
// equal the plain 64-bit kernel's bit for bit (whatever the order of the passes).
using DD = hn::CappedTag<double, 4>;
using VD = hn::Vec<DD>;

HWY_INLINE VD kd(int u, int x) { return hn::Set(DD(), static_cast<double>(dct::kInt.k[u][x])); }

HWY_INLINE void sums8v(const VD* x, VD* y) {
  VD s[4], d[4];
  for (int i = 0; i < 4; ++i) s[i] = hn::Add(x[i], x[7 - i]), d[i] = hn::Sub(x[i], x[7 - i]);
  const VD ee0 = hn::Add(s[0], s[3]), ee1 = hn::Add(s[1], s[2]);
  const VD eo0 = hn::Sub(s[0], s[3]), eo1 = hn::Sub(s[1], s[2]);
  y[0] = hn::Add(hn::Mul(kd(0, 0), ee0), hn::Mul(kd(0, 1), ee1));
  y[4] = hn::Add(hn::Mul(kd(4, 0), ee0), hn::Mul(kd(4, 1), ee1));
  y[2] = hn::Add(hn::Mul(kd(2, 0), eo0), hn::Mul(kd(2, 1), eo1));
  y[6] = hn::Add(hn::Mul(kd(6, 0), eo0), hn::Mul(kd(6, 1), eo1));
  for (int u = 1; u < 8; u += 2)
    y[u] = hn::Add(hn::Add(hn::Mul(kd(u, 0), d[0]), hn::Mul(kd(u, 1), d[1])),
                   hn::Add(hn::Mul(kd(u, 2), d[2]), hn::Mul(kd(u, 3), d[3])));
}
HWY_INLINE void sumsT8v(const VD* y, VD* x) {
  const VD a0 = hn::Add(hn::Mul(kd(0, 0), y[0]), hn::Mul(kd(4, 0), y[4]));
  const VD a1 = hn::Add(hn::Mul(kd(0, 1), y[0]), hn::Mul(kd(4, 1), y[4]));
  const VD b0 = hn::Add(hn::Mul(kd(2, 0), y[2]), hn::Mul(kd(6, 0), y[6]));
  const VD b1 = hn::Add(hn::Mul(kd(2, 1), y[2]), hn::Mul(kd(6, 1), y[6]));
  const VD e[4] = {hn::Add(a0, b0), hn::Add(a1, b1), hn::Sub(a1, b1), hn::Sub(a0, b0)};
  for (int n = 0; n < 4; ++n) {
    const VD o = hn::Add(hn::Add(hn::Mul(kd(1, n), y[1]), hn::Mul(kd(3, n), y[3])),
                         hn::Add(hn::Mul(kd(5, n), y[5]), hn::Mul(kd(7, n), y[7])));
    x[n] = hn::Add(e[n], o);
    x[7 - n] = hn::Sub(e[n], o);
  }
}

// Columns of the block (lanes across columns) into t, stored transposed: t[x * 8 + v].
template <bool kFwd>
HWY_INLINE void intColumns(const Lum16s* in, double* t) {
  const DD d;
  constexpr size_t N = hn::MaxLanes(d);
  HWY_ALIGN double lane[N];
  for (size_t g = 0; g < 8; g += N) {
    VD x[8], y[8];
    for (int r = 0; r < 8; ++r)
      x[r] = loadAs(d, in + 8 * r + g);
    if constexpr (kFwd)
      sums8v(x, y);
    else
      sumsT8v(x, y);
    for (int v = 0; v < 8; ++v) {
      hn::Store(y[v], d, lane);
      for (size_t i = 0; i < N; ++i) t[(g + i) * 8 + v] = lane[i];
    }
  }
}
// Rows (the columns of t, lanes across rows), rounded ties up and saturated into out.
template <bool kFwd>
HWY_INLINE void intRows(const double* t, Lum16s* out) {
  const DD d;
  const hn::Rebind<int32_t, DD> d32;
  constexpr size_t N = hn::MaxLanes(d);
  HWY_ALIGN int32_t lane[N];
  const VD half = hn::Set(d, 1073741824.0), scale = hn::Set(d, 1.0 / 2147483648.0);
  const VD lo = hn::Set(d, -32768.0), hi = hn::Set(d, 32767.0);
  for (size_t g = 0; g < 8; g += N) {
    VD x[8], y[8];
    for (int c = 0; c < 8; ++c) x[c] = hn::LoadU(d, t + c * 8 + g);
    if constexpr (kFwd)
      sums8v(x, y);
    else
      sumsT8v(x, y);
    for (int u = 0; u < 8; ++u) {
      const VD q = hn::Min(hn::Max(hn::Floor(hn::Mul(hn::Add(y[u], half), scale)), lo), hi);
      hn::Store(hn::DemoteTo(d32, q), d32, lane);
      for (size_t i = 0; i < N; ++i) out[(g + i) * 8 + u] = static_cast<Lum16s>(lane[i]);
    }
  }
}

void intFwd(const Lum16s* in, Lum16s* out) {
  HWY_ALIGN double t[64];
  intColumns<true>(in, t);
  intRows<true>(t, out);
}
void intInv(const Lum16s* in, Lum16s* out) {
  HWY_ALIGN double t[64];
  intColumns<false>(in, t);
  intRows<false>(t, out);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace dct {
namespace {

#include "transform/dct8x8_aan-inl.h"

// ---- float: the plain twins ---------------------------------------------------------------
template <bool kFwd>
void butterflies(float* v) {
  if constexpr (kFwd)
    aanFwd8<float>(v, kC4, kS8, kK0541, kK1306);
  else
    aanInv8<float>(v, kR2, kK1847, kK1082, kK2613);
}
// Columns then rows of b, in place.
template <bool kFwd>
void separable(float* b) {
  float v[8];
  for (int c = 0; c < 8; ++c) {
    for (int r = 0; r < 8; ++r) v[r] = b[r * 8 + c];
    butterflies<kFwd>(v);
    for (int r = 0; r < 8; ++r) b[r * 8 + c] = v[r];
  }
  for (int r = 0; r < 8; ++r) butterflies<kFwd>(b + r * 8);
}
void blockFwdScalar(const float* src, float* dst) {
  float b[64];
  std::memcpy(b, src, sizeof b);
  separable<true>(b);
  for (int i = 0; i < 64; ++i) dst[i] = b[i] * kScale.fwd[i];
}
void blockInvScalar(const float* src, float* dst) {
  float b[64];
  for (int i = 0; i < 64; ++i) b[i] = src[i] * kScale.inv[i];
  separable<false>(b);
  std::memcpy(dst, b, sizeof b);
}

// ---- 16-bit fixed point -----------------------------------------------------------------------

inline Lum16s roundShift31(int64_t s) {
  return saturate<Lum16s>((s + (int64_t{1} << 30)) >> 31);
}

// y(u) = sum_x K(u, x) x(x), through the symmetries of K: K(u, 7 - x) = (-1)^u K(u, x), and for
// even u the same again within the first half. Exact in 64 bits, so equal to the plain sums.
inline void sums8(const int64_t* x, int64_t* y) {
  const auto& k = kInt.k;
  int64_t s[4], d[4];
  for (int i = 0; i < 4; ++i) s[i] = x[i] + x[7 - i], d[i] = x[i] - x[7 - i];
  const int64_t ee0 = s[0] + s[3], ee1 = s[1] + s[2], eo0 = s[0] - s[3], eo1 = s[1] - s[2];
  y[0] = k[0][0] * ee0 + k[0][1] * ee1;
  y[4] = k[4][0] * ee0 + k[4][1] * ee1;
  y[2] = k[2][0] * eo0 + k[2][1] * eo1;
  y[6] = k[6][0] * eo0 + k[6][1] * eo1;
  for (int u = 1; u < 8; u += 2) y[u] = k[u][0] * d[0] + k[u][1] * d[1] + k[u][2] * d[2] + k[u][3] * d[3];
}
// The transpose: x(n) = sum_u K(u, n) y(u).
inline void sumsT8(const int64_t* y, int64_t* x) {
  const auto& k = kInt.k;
  const int64_t a0 = k[0][0] * y[0] + k[4][0] * y[4], a1 = k[0][1] * y[0] + k[4][1] * y[4];
  const int64_t b0 = k[2][0] * y[2] + k[6][0] * y[6], b1 = k[2][1] * y[2] + k[6][1] * y[6];
  const int64_t e[4] = {a0 + b0, a1 + b1, a1 - b1, a0 - b0};
  for (int n = 0; n < 4; ++n) {
    const int64_t o = k[1][n] * y[1] + k[3][n] * y[3] + k[5][n] * y[5] + k[7][n] * y[7];
    x[n] = e[n] + o;
    x[7 - n] = e[n] - o;
  }
}

// One 8x8 block of 64 contiguous values in row order; in == out allowed. The inverse of the
// reduced members runs on the block with the other coefficients set to zero (exact sums, so the
// same results as summing the corner alone).
template <bool kFwd>
void intBlockScalar(const Lum16s* in, Lum16s* out) {
  // r[u][y]: row sums, transposed (forward; the inverse runs from v to x the same way)
  int64_t r[8][8], c[8], t[8];
  auto sums = [](const int64_t* a, int64_t* b) {
    if constexpr (kFwd) sums8(a, b); else sumsT8(a, b);
  };
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) c[x] = in[y * 8 + x];
    sums(c, t);
    for (int u = 0; u < 8; ++u) r[u][y] = t[u];
  }
  for (int u = 0; u < 8; ++u) {
    sums(r[u], t);
    for (int v = 0; v < 8; ++v) out[v * 8 + u] = roundShift31(t[v]);
  }
}

using IntBlockFn = void (*)(const Lum16s*, Lum16s*);
IntBlockFn pickIntFwd() {
  LUMI_SIMD_TABLE(IntBlockFn, table, intFwd);
  return pick(table, &intBlockScalar<true>);
}
IntBlockFn pickIntInv() {
  LUMI_SIMD_TABLE(IntBlockFn, table, intInv);
  return pick(table, &intBlockScalar<false>);
}

// Inverse of the top-left m x m coefficients (m = 8, 4 or 2).
template <int m>
LumStatus inv16s(const Lum16s* src, Lum16s* dst) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  Lum16s in[64] = {};
  for (int v = 0; v < m; ++v) std::memcpy(in + 8 * v, src + 8 * v, sizeof(Lum16s) * m);
  pickIntInv()(in, dst);
  return lumStatusOk;
}

LumStatus fwd16s(const Lum16s* src, int srcStep, Lum16s* dst) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep)) return lumStatusStepErr;
  Lum16s in[64];
  for (int y = 0; y < 8; ++y) std::memcpy(in + 8 * y, rowAt(src, srcStep, y), 16);
  pickIntFwd()(in, dst);
  return lumStatusOk;
}

LumStatus inv16sR(const Lum16s* src, Lum16s* dst, int dstStep) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(dstStep)) return lumStatusStepErr;
  Lum16s out[64];
  pickIntInv()(src, out);
  for (int y = 0; y < 8; ++y) std::memcpy(rowAt(dst, dstStep, y), out + 8 * y, 16);
  return lumStatusOk;
}

// 8-bit pixels plus addVal (16-bit wrapping), then the forward transform.
LumStatus fwd8u(const Lum8u* src, int srcStep, Lum16s* dst, Lum16s addVal) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep)) return lumStatusStepErr;
  Lum16s in[64];
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      in[y * 8 + x] = static_cast<Lum16s>(static_cast<uint16_t>(rowAt(src, srcStep, y)[x] + addVal));
  pickIntFwd()(in, dst);
  return lumStatusOk;
}

// The inverse, plus addVal (16-bit wrapping), clamped to [lo, hi] (a value below lo becomes
// lo, then one above hi becomes hi).
LumStatus inv8u(const Lum16s* src, Lum8u* dst, int dstStep, Lum16s addVal, int lo, int hi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(dstStep)) return lumStatusStepErr;
  Lum16s out[64];
  pickIntInv()(src, out);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) {
      int s = static_cast<Lum16s>(static_cast<uint16_t>(out[y * 8 + x] + addVal));
      s = s < lo ? lo : s;
      s = s > hi ? hi : s;
      rowAt(dst, dstStep, y)[x] = static_cast<Lum8u>(s);
    }
  return lumStatusOk;
}

// ---- zigzag -------------------------------------------------------------------------------
constexpr uint8_t kScan[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                               12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                               35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                               58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};
template <bool kFwd>
LumStatus zigzag(const Lum16s* src, Lum16s* dst) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  Lum16s out[64];
  for (int i = 0; i < 64; ++i) {
    if (kFwd)
      out[i] = src[kScan[i]];
    else
      out[kScan[i]] = src[i];
  }
  std::memcpy(dst, out, sizeof out);
  return lumStatusOk;
}

template <bool kFwd>
LumStatus block32f(const float* src, float* dst) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  (kFwd ? pickBlockFwd() : pickBlockInv())(src, dst);
  return lumStatusOk;
}

}  // namespace

BlockFn pickBlockFwd() {
  LUMI_SIMD_TABLE(BlockFn, table, blockFwd);
  return pick(table, &blockFwdScalar);
}
BlockFn pickBlockInv() {
  LUMI_SIMD_TABLE(BlockFn, table, blockInv);
  return pick(table, &blockInvScalar);
}

}  // namespace dct
}  // namespace lumi

#define LUMI_DCT8_32F(NAME, FWD) \
  LUMI_API LumStatus NAME(const Lum32f* s, Lum32f* d) { return lumi::dct::block32f<FWD>(s, d); }
#define LUMI_DCT8_32F_I(NAME, FWD) \
  LUMI_API LumStatus NAME(Lum32f* sd) { return lumi::dct::block32f<FWD>(sd, sd); }
#define LUMI_DCT8_16S_FWD(NAME) \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum16s* d) { return lumi::dct::fwd16s(s, 16, d); }
#define LUMI_DCT8_16S_FWD_I(NAME) \
  LUMI_API LumStatus NAME(Lum16s* sd) { return lumi::dct::fwd16s(sd, 16, sd); }
#define LUMI_DCT8_16S_FWD_R(NAME)                         \
  LUMI_API LumStatus NAME(const Lum16s* s, int ss, Lum16s* d) { \
    return lumi::dct::fwd16s(s, ss, d);                   \
  }
#define LUMI_DCT8_16S_INV(NAME, M) \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum16s* d) { return lumi::dct::inv16s<M>(s, d); }
#define LUMI_DCT8_16S_INV_I(NAME, M) \
  LUMI_API LumStatus NAME(Lum16s* sd) { return lumi::dct::inv16s<M>(sd, sd); }
#define LUMI_DCT8_16S_INV_R(NAME)                         \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum16s* d, int ds) { \
    return lumi::dct::inv16sR(s, d, ds);                  \
  }
#define LUMI_DCT8_8U_FWD(NAME)                                   \
  LUMI_API LumStatus NAME(const Lum8u* s, int ss, Lum16s* d) {   \
    return lumi::dct::fwd8u(s, ss, d, 0);                        \
  }
#define LUMI_DCT8_8U_FWD_LS(NAME)                                          \
  LUMI_API LumStatus NAME(const Lum8u* s, int ss, Lum16s* d, Lum16s add) { \
    return lumi::dct::fwd8u(s, ss, d, add);                                \
  }
#define LUMI_DCT8_8U_INV(NAME)                                 \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum8u* d, int ds) { \
    return lumi::dct::inv8u(s, d, ds, 0, 0, 255);              \
  }
#define LUMI_DCT8_8U_INV_LS(NAME)                                                        \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum8u* d, int ds, Lum16s add, Lum8u lo,      \
                          Lum8u hi) {                                                  \
    return lumi::dct::inv8u(s, d, ds, add, lo, hi);                                      \
  }
#define LUMI_ZIGZAG(NAME, FWD) \
  LUMI_API LumStatus NAME(const Lum16s* s, Lum16s* d) { return lumi::dct::zigzag<FWD>(s, d); }

LUMI_DCT8_32F(lumiDCT8x8Fwd_32f_C1, true)
LUMI_DCT8_32F(lumiDCT8x8Inv_32f_C1, false)
LUMI_DCT8_32F_I(lumiDCT8x8Fwd_32f_C1I, true)
LUMI_DCT8_32F_I(lumiDCT8x8Inv_32f_C1I, false)
LUMI_DCT8_16S_FWD(lumiDCT8x8Fwd_16s_C1)
LUMI_DCT8_16S_FWD_I(lumiDCT8x8Fwd_16s_C1I)
LUMI_DCT8_16S_FWD_R(lumiDCT8x8Fwd_16s_C1R)
LUMI_DCT8_16S_INV(lumiDCT8x8Inv_16s_C1, 8)
LUMI_DCT8_16S_INV_I(lumiDCT8x8Inv_16s_C1I, 8)
LUMI_DCT8_16S_INV_R(lumiDCT8x8Inv_16s_C1R)
LUMI_DCT8_16S_INV(lumiDCT8x8Inv_2x2_16s_C1, 2)
LUMI_DCT8_16S_INV_I(lumiDCT8x8Inv_2x2_16s_C1I, 2)
LUMI_DCT8_16S_INV(lumiDCT8x8Inv_4x4_16s_C1, 4)
LUMI_DCT8_16S_INV_I(lumiDCT8x8Inv_4x4_16s_C1I, 4)
LUMI_DCT8_8U_FWD(lumiDCT8x8Fwd_8u16s_C1R)
LUMI_DCT8_8U_FWD_LS(lumiDCT8x8FwdLS_8u16s_C1R)
LUMI_DCT8_8U_INV(lumiDCT8x8Inv_16s8u_C1R)
LUMI_DCT8_8U_INV_LS(lumiDCT8x8InvLSClip_16s8u_C1R)
LUMI_ZIGZAG(lumiZigzagFwd8x8_16s_C1, true)
LUMI_ZIGZAG(lumiZigzagInv8x8_16s_C1, false)
#endif  // HWY_ONCE
