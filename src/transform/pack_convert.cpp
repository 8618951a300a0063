// The packed real spectrum unfolded: magnitude and phase of every element of the full W x H
// spectrum (MagnitudePack, PhasePack), the full complex spectrum (PackToCplxExtend), and the
// stored half of a full complex spectrum folded back (CplxExtendToPack). The unstored half is
// the conjugate of its mirror, A(H-v mod H, W-u mod W). Nothing is allocated.
#include <cmath>

#include "lumi/fft.h"
#include "transform/pack.h"

namespace lumi {
namespace pack {
namespace {

constexpr double kPi = 3.14159265358979323846;

// Reads channel c of a packed image.
template <class T>
struct PackedChannel {
  const T* p;
  int step, ch, c;
  T operator()(int r, int col) const { return rowAt(p, step, r)[elemsOf(col, ch) + c]; }
};

template <class T>
LumStatus checkUnfold(const void* s, int sst, const void* d, int dst, LumiSize roi) {
  if (anyNull(s, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sst, dst)) return lumStatusStepErr;
  return lumStatusOk;
}

// Phase in (-pi, pi]: atan2 gives -pi for a negative real with a negative zero imaginary part.
inline double phaseOf(double re, double im) {
  double ph = std::atan2(im, re);
  if (ph <= -kPi) ph = kPi;
  if (ph == 0) ph = 0;  // no negative zero
  return ph;
}

// Walks every element of the full spectrum of each channel: out(x, r, c, re, im). Columns 0
// and W/2 unfold their packed column; the other frequencies of row r are a column pair of row
// r (u < W/2) or the conjugate of one of the mirror row H-r mod H (u > W/2).
template <class T, class V, class Out>
void unfold(const T* src, int sst, LumiSize roi, int ch, const Out& out) {
  const int W = roi.width, H = roi.height, half = (W - 1) / 2;
  for (int c = 0; c < ch; ++c) {
    const PackedChannel<T> get{src, sst, ch, c};
    for (int r = 0; r < H; ++r) {
      const T* row = rowAt(src, sst, r) + c;
      const T* mirror = rowAt(src, sst, r == 0 ? 0 : H - r) + c;
      auto packedColumn = [&](int u) {
        V re, im;
        spectrumAt<V>(get, W, H, r, u, &re, &im);
        out(u, r, c, re, im);
      };
      packedColumn(0);
      if (W % 2 == 0) packedColumn(W / 2);
      for (int u = 1; u <= half; ++u)
        out(u, r, c, static_cast<V>(row[elemsOf(2 * u - 1, ch)]),
            static_cast<V>(row[elemsOf(2 * u, ch)]));
      for (int u = W - half; u < W; ++u) {
        const int m = W - u;
        out(u, r, c, static_cast<V>(mirror[elemsOf(2 * m - 1, ch)]),
            -static_cast<V>(mirror[elemsOf(2 * m, ch)]));
      }
    }
  }
}

enum class What { kMagnitude, kPhase };

template <What kWhat, class T, int kCh>
LumStatus unfoldReal(const T* src, int sst, T* dst, int dstStep, LumiSize roi, int scaleFactor) {
  if (LumStatus s = checkUnfold<T>(src, sst, dst, dstStep, roi)) return s;
  const ScaleFactor sf = resolveScale(scaleFactor);
  unfold<T, double>(src, sst, roi, kCh, [&](int u, int r, int c, double re, double im) {
    const double v = kWhat == What::kMagnitude ? std::sqrt(re * re + im * im) : phaseOf(re, im);
    T* o = rowAt(dst, dstStep, r) + elemsOf(u, kCh) + c;
    if constexpr (std::is_floating_point_v<T>)
      *o = static_cast<T>(v);
    else
      *o = scaleRound<T>(v, sf);
  });
  return lumStatusOk;
}

template <class T, class TC>
LumStatus packToCplx(const T* src, LumiSize roi, int sst, TC* dst, int dstStep) {
  if (LumStatus s = checkUnfold<T>(src, sst, dst, dstStep, roi)) return s;
  using V = std::conditional_t<std::is_floating_point_v<T>, T, int64_t>;
  unfold<T, V>(src, sst, roi, 1, [&](int u, int r, int, V re, V im) {
    TC* o = rowAt(dst, dstStep, r) + u;
    o->re = saturate<T>(re);
    o->im = saturate<T>(im);
  });
  return lumStatusOk;
}

template <class TC, class T, int kCh>
LumStatus cplxToPack(const TC* src, int sst, LumiSize roi, T* dst, int dstStep) {
  if (LumStatus s = checkUnfold<T>(src, sst, dst, dstStep, roi)) return s;
  const int W = roi.width, H = roi.height;
  auto A = [&](int v, int u, int c) -> const TC& {
    return rowAt(src, sst, v)[elemsOf(u, kCh) + c];
  };
  auto P = [&](int r, int col, int c) -> T& {
    return rowAt(dst, dstStep, r)[elemsOf(col, kCh) + c];
  };
  for (int c = 0; c < kCh; ++c) {
    auto column = [&](int col, int u) {  // the packed column form of frequency u
      P(0, col, c) = A(0, u, c).re;
      for (int i = 1; 2 * i < H; ++i) {
        P(2 * i - 1, col, c) = A(i, u, c).re;
        P(2 * i, col, c) = A(i, u, c).im;
      }
      if (H % 2 == 0) P(H - 1, col, c) = A(H / 2, u, c).re;
    };
    column(0, 0);
    if (W % 2 == 0) column(W - 1, W / 2);
    for (int r = 0; r < H; ++r)
      for (int j = 1; 2 * j < W; ++j) {
        P(r, 2 * j - 1, c) = A(r, j, c).re;
        P(r, 2 * j, c) = A(r, j, c).im;
      }
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace pack
}  // namespace lumi

using namespace lumi;
using namespace lumi::pack;

#define LUMI_UNFOLD_32F(NAME, WHAT, CH)                                                     \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep,       \
                          LumiSize dstRoiSize) {                                            \
    return unfoldReal<What::WHAT, Lum32f, CH>(pSrc, srcStep, pDst, dstStep, dstRoiSize, 0); \
  }
#define LUMI_UNFOLD_SFS(NAME, WHAT, T, CH)                                                       \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          int scaleFactor) {                                                     \
    return unfoldReal<What::WHAT, T, CH>(pSrc, srcStep, pDst, dstStep, dstRoiSize, scaleFactor); \
  }
#define LUMI_PACK_TO_CPLX(NAME, T, TC)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, TC* pDst, int dstStep) { \
    return packToCplx<T, TC>(pSrc, srcSize, srcStep, pDst, dstStep);                             \
  }
#define LUMI_CPLX_TO_PACK(NAME, TC, T, CH)                                                       \
  LUMI_API LumStatus NAME(const TC* pSrc, int srcStep, LumiSize srcSize, T* pDst, int dstStep) { \
    return cplxToPack<TC, T, CH>(pSrc, srcStep, srcSize, pDst, dstStep);                         \
  }

LUMI_UNFOLD_32F(lumiMagnitudePack_32f_C1R, kMagnitude, 1)
LUMI_UNFOLD_32F(lumiMagnitudePack_32f_C3R, kMagnitude, 3)
LUMI_UNFOLD_SFS(lumiMagnitudePack_16s_C1RSfs, kMagnitude, Lum16s, 1)
LUMI_UNFOLD_SFS(lumiMagnitudePack_16s_C3RSfs, kMagnitude, Lum16s, 3)
LUMI_UNFOLD_SFS(lumiMagnitudePack_32s_C1RSfs, kMagnitude, Lum32s, 1)
LUMI_UNFOLD_SFS(lumiMagnitudePack_32s_C3RSfs, kMagnitude, Lum32s, 3)
LUMI_UNFOLD_32F(lumiPhasePack_32f_C1R, kPhase, 1)
LUMI_UNFOLD_32F(lumiPhasePack_32f_C3R, kPhase, 3)
LUMI_UNFOLD_SFS(lumiPhasePack_16s_C1RSfs, kPhase, Lum16s, 1)
LUMI_UNFOLD_SFS(lumiPhasePack_16s_C3RSfs, kPhase, Lum16s, 3)
LUMI_UNFOLD_SFS(lumiPhasePack_32s_C1RSfs, kPhase, Lum32s, 1)
LUMI_UNFOLD_SFS(lumiPhasePack_32s_C3RSfs, kPhase, Lum32s, 3)
LUMI_PACK_TO_CPLX(lumiPackToCplxExtend_32f32fc_C1R, Lum32f, Lum32fc)
LUMI_PACK_TO_CPLX(lumiPackToCplxExtend_32s32sc_C1R, Lum32s, Lum32sc)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_32fc32f_C1R, Lum32fc, Lum32f, 1)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_32fc32f_C3R, Lum32fc, Lum32f, 3)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_32sc32s_C1R, Lum32sc, Lum32s, 1)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_32sc32s_C3R, Lum32sc, Lum32s, 3)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_16sc16s_C1R, Lum16sc, Lum16s, 1)
LUMI_CPLX_TO_PACK(lumiCplxExtendToPack_16sc16s_C3R, Lum16sc, Lum16s, 3)
