// Products of two packed real spectra (MulPack) and of one by the conjugate of the other
// (MulPackConj): every frequency the packed layout stores is multiplied as what it is, the real
// corners as reals, the column-0 and column-(W-1) row pairs and every row's column pairs as
// complex numbers. 32f products are formed in double and rounded once; the integer members form
// them exactly and scale by 2^-scaleFactor with ties to even, as every scaled result does.
//
// The complex products of a C1 row (interleaved Re, Im from column 1 on) have a vector kernel:
// each float product is exact in double and the two are summed in one rounding, as in the
// scalar twin, so both give the same bits.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/transform/pack_mul.cpp"
#include "hwy/foreach_target.h"  // first: it re-includes this file once per target
#include "hwy/highway.h"

#include "core/simd.h"
#include "core/widen-inl.h"
#include "lumi/fft.h"
#include "transform/pack.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// d[i] = a[i] x b[i] (conj b[i]) for `pairs` interleaved complex values; d may be a or b.
template <bool kConj>
void mulPairs(const float* a, const float* b, float* d, int pairs) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<float, decltype(dd)> df;
  const int N = static_cast<int>(hn::Lanes(dd));  // doubles per vector: N / 2 complex values
  const int n = 2 * pairs;
  // [-1, +1, ...]: Re takes -xi yi, Im +xr yi (conjugated: the other way round)
  const auto sign = hn::OddEven(hn::Set(dd, kConj ? -1.0 : 1.0), hn::Set(dd, kConj ? 1.0 : -1.0));
  int i = 0;
  for (; i + N <= n; i += N) {
    const auto x = loadAs(dd, a + i);
    const auto y = loadAs(dd, b + i);
    const auto yr = hn::DupEven(y), yi = hn::DupOdd(y);
    const auto p = hn::Mul(x, yr);                                   // xr yr, xi yr
    const auto q = hn::Mul(hn::Mul(hn::Reverse2(dd, x), yi), sign);  // -xi yi, xr yi
    hn::StoreU(hn::DemoteTo(df, hn::Add(p, q)), df, d + i);
  }
  for (; i < n; i += 2) lumi::pack::mulPair<kConj>(a + i, b + i, d + i);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace pack {
namespace {

using MulPairsFn = void (*)(const float*, const float*, float*, int);

template <bool kConj>
void mulPairsScalar(const float* a, const float* b, float* d, int pairs) {
  for (int i = 0; i < 2 * pairs; i += 2) mulPair<kConj>(a + i, b + i, d + i);
}
template <bool kConj>
MulPairsFn pickMulPairs() {
  LUMI_SIMD_TABLE(MulPairsFn, table, mulPairs<kConj>);
  return pick(table, &mulPairsScalar<kConj>);
}

// The product rules: real(a, b) and cplx(a, b) for a = ar + i ai, b = br + i bi (conjugated
// when kConj).
template <class T, bool kConj>
struct FloatMul {
  MulPairsFn row = pickMulPairs<kConj>();  // the C1 row pairs
  static void real(const T* a, const T* b, T* d) {
    *d = static_cast<T>(static_cast<double>(*a) * *b);
  }
  static void cplx(T ar, T ai, T br, T bi, T* dr, T* di) {
    const double xr = ar, xi = ai, yr = br, yi = kConj ? -static_cast<double>(bi) : bi;
    *dr = static_cast<T>(xr * yr - xi * yi);
    *di = static_cast<T>(xr * yi + xi * yr);
  }
};

template <class T>
struct IntMul {
  ScaleFactor sf;
  void real(const T* a, const T* b, T* d) const {
    *d = scaleExact<T>(static_cast<int64_t>(*a) * *b, sf);
  }
  void cplx(T ar, T ai, T br, T bi, T* dr, T* di) const {
    const int64_t xr = ar, xi = ai, yr = br, yi = bi;
    *dr = scaleExactDiff<T>(xr * yr, xi * yi, sf);
    *di = scaleExactSum<T>(xr * yi, xi * yr, sf);
  }
};

// The walk over one image; the destination may be either source (the elements of one complex
// value are read before either is written).
template <class T, class L, class Op>
void mulPackImage(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                  const Op& op) {
  constexpr int kCh = L::kCh, kUse = L::kUse;
  const int W = roi.width, H = roi.height;
  const int pairs = (W - 1) / 2;
  const bool evenW = W % 2 == 0, evenH = H % 2 == 0;
  auto rowPairs = [&](int r) {
    const T* a = rowAt(s1, st1, r);
    const T* b = rowAt(s2, st2, r);
    T* o = rowAt(d, dst, r);
    if constexpr (kCh == 1 && std::is_same_v<Op, FloatMul<float, true>>) {
      op.row(a + 1, b + 1, o + 1, pairs);
      return;
    }
    if constexpr (kCh == 1 && std::is_same_v<Op, FloatMul<float, false>>) {
      op.row(a + 1, b + 1, o + 1, pairs);
      return;
    }
    for (int j = 1; j <= pairs; ++j) {
      const std::ptrdiff_t re = elemsOf(2 * j - 1, kCh), im = elemsOf(2 * j, kCh);
      for (int c = 0; c < kUse; ++c)
        op.cplx(a[re + c], a[im + c], b[re + c], b[im + c], &o[re + c], &o[im + c]);
    }
  };
  auto realAt = [&](int r, int col) {
    const std::ptrdiff_t x = elemsOf(col, kCh);
    for (int c = 0; c < kUse; ++c)
      op.real(rowAt(s1, st1, r) + x + c, rowAt(s2, st2, r) + x + c, rowAt(d, dst, r) + x + c);
  };
  auto columnPair = [&](int r, int col) {  // Re in row r, Im in row r + 1
    const std::ptrdiff_t x = elemsOf(col, kCh);
    for (int c = 0; c < kUse; ++c)
      op.cplx(rowAt(s1, st1, r)[x + c], rowAt(s1, st1, r + 1)[x + c], rowAt(s2, st2, r)[x + c],
              rowAt(s2, st2, r + 1)[x + c], rowAt(d, dst, r) + x + c, rowAt(d, dst, r + 1) + x + c);
  };
  auto edgeRow = [&](int r) {  // row 0, and row H-1 for even H: real at columns 0 and W-1
    realAt(r, 0);
    if (evenW) realAt(r, W - 1);
    rowPairs(r);
  };
  edgeRow(0);
  for (int r = 1; r + 1 < H; r += 2) {
    columnPair(r, 0);
    if (evenW) columnPair(r, W - 1);
    rowPairs(r);
    rowPairs(r + 1);
  }
  if (evenH) edgeRow(H - 1);
}

template <class T>
LumStatus checkMul(const T* s1, int st1, const T* s2, int st2, const T* d, int dst, LumiSize roi) {
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badStep(st1, st2, dst)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  return lumStatusOk;
}

template <class L, bool kConj>
LumStatus mulPackFloat(const Lum32f* s1, int st1, const Lum32f* s2, int st2, Lum32f* d, int dst,
                       LumiSize roi) {
  if (LumStatus s = checkMul(s1, st1, s2, st2, d, dst, roi)) return s;
  mulPackImage<Lum32f, L>(s1, st1, s2, st2, d, dst, roi, FloatMul<Lum32f, kConj>());
  return lumStatusOk;
}

template <class T, class L>
LumStatus mulPackInt(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                     int scaleFactor) {
  if (LumStatus s = checkMul(s1, st1, s2, st2, d, dst, roi)) return s;
  mulPackImage<T, L>(s1, st1, s2, st2, d, dst, roi, IntMul<T>{resolveScale(scaleFactor)});
  return lumStatusOk;
}

}  // namespace
}  // namespace pack
}  // namespace lumi

using namespace lumi;
using namespace lumi::pack;

#define LUMI_MULPACK(NAME, L, CONJ)                                                             \
  LUMI_API LumStatus NAME(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, \
                          Lum32f* pDst, int dstStep, LumiSize roiSize) {                        \
    return mulPackFloat<L, CONJ>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);     \
  }
#define LUMI_MULPACK_I(NAME, L, CONJ)                                                       \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, \
                          LumiSize roiSize) {                                               \
    return mulPackFloat<L, CONJ>(pSrcDst, srcDstStep, pSrc, srcStep, pSrcDst, srcDstStep,   \
                                 roiSize);                                                  \
  }
#define LUMI_MULPACK_SFS(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, \
                          int dstStep, LumiSize roiSize, int scaleFactor) {                    \
    return mulPackInt<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize,          \
                            scaleFactor);                                                      \
  }
#define LUMI_MULPACK_ISFS(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep,             \
                          LumiSize roiSize, int scaleFactor) {                                \
    return mulPackInt<T, L>(pSrcDst, srcDstStep, pSrc, srcStep, pSrcDst, srcDstStep, roiSize, \
                            scaleFactor);                                                     \
  }

LUMI_MULPACK(lumiMulPack_32f_C1R, C1, false)
LUMI_MULPACK(lumiMulPack_32f_C3R, C3, false)
LUMI_MULPACK(lumiMulPack_32f_C4R, C4, false)
LUMI_MULPACK(lumiMulPack_32f_AC4R, AC4, false)
LUMI_MULPACK_I(lumiMulPack_32f_C1IR, C1, false)
LUMI_MULPACK_I(lumiMulPack_32f_C3IR, C3, false)
LUMI_MULPACK_I(lumiMulPack_32f_C4IR, C4, false)
LUMI_MULPACK_I(lumiMulPack_32f_AC4IR, AC4, false)
LUMI_MULPACK(lumiMulPackConj_32f_C1R, C1, true)
LUMI_MULPACK(lumiMulPackConj_32f_C3R, C3, true)
LUMI_MULPACK(lumiMulPackConj_32f_C4R, C4, true)
LUMI_MULPACK(lumiMulPackConj_32f_AC4R, AC4, true)
LUMI_MULPACK_I(lumiMulPackConj_32f_C1IR, C1, true)
LUMI_MULPACK_I(lumiMulPackConj_32f_C3IR, C3, true)
LUMI_MULPACK_I(lumiMulPackConj_32f_C4IR, C4, true)
LUMI_MULPACK_I(lumiMulPackConj_32f_AC4IR, AC4, true)
LUMI_MULPACK_SFS(lumiMulPack_16s_C1RSfs, Lum16s, C1)
LUMI_MULPACK_SFS(lumiMulPack_16s_C3RSfs, Lum16s, C3)
LUMI_MULPACK_SFS(lumiMulPack_16s_C4RSfs, Lum16s, C4)
LUMI_MULPACK_SFS(lumiMulPack_16s_AC4RSfs, Lum16s, AC4)
LUMI_MULPACK_ISFS(lumiMulPack_16s_C1IRSfs, Lum16s, C1)
LUMI_MULPACK_ISFS(lumiMulPack_16s_C3IRSfs, Lum16s, C3)
LUMI_MULPACK_ISFS(lumiMulPack_16s_C4IRSfs, Lum16s, C4)
LUMI_MULPACK_ISFS(lumiMulPack_16s_AC4IRSfs, Lum16s, AC4)
LUMI_MULPACK_SFS(lumiMulPack_32s_C1RSfs, Lum32s, C1)
LUMI_MULPACK_SFS(lumiMulPack_32s_C3RSfs, Lum32s, C3)
LUMI_MULPACK_SFS(lumiMulPack_32s_C4RSfs, Lum32s, C4)
LUMI_MULPACK_SFS(lumiMulPack_32s_AC4RSfs, Lum32s, AC4)
LUMI_MULPACK_ISFS(lumiMulPack_32s_C1IRSfs, Lum32s, C1)
LUMI_MULPACK_ISFS(lumiMulPack_32s_C3IRSfs, Lum32s, C3)
LUMI_MULPACK_ISFS(lumiMulPack_32s_C4IRSfs, Lum32s, C4)
LUMI_MULPACK_ISFS(lumiMulPack_32s_AC4IRSfs, Lum32s, AC4)
#endif  // HWY_ONCE
