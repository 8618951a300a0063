// 2-D FFT and DFT of real images: forward to the packed spectrum and inverse from it, 32f in
// every layout (each channel on its own; AC4 leaves the fourth alone) and the 8u <-> 32s
// members, which run one channel at a time through a float plane in the work buffer and scale
// the result by 2^-scaleFactor, ties to even, saturated.
#include "transform/fft_records.h"
#include "transform/pack.h"

namespace lumi {
namespace fft2d {
namespace {

// Checks of every transform: the record, its kind, the images, the steps.
template <class SpecT, class... P>
LumStatus checkTransform(const SpecT* spec, int tag, int s1, int s2, const P*... p) {
  if (!spec) return lumStatusNullPtrErr;
  if (spec->rec.tag != tag) return lumStatusContextMismatchErr;
  if (anyNull(p...)) return lumStatusNullPtrErr;
  if (badStep(s1, s2)) return lumStatusStepErr;
  return lumStatusOk;
}

template <int kTag, class L, bool kInv, class SpecT>
LumStatus real32f(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, const SpecT* spec,
                  Lum8u* buffer) {
  if (LumStatus s = checkTransform(spec, kTag, srcStep, dstStep, src, dst)) return s;
  const Record& R = spec->rec;
  return withScratch(R, buffer, [&](const Scratch& s) {
    for (int c = 0; c < L::kUse; ++c) {
      if (kInv)
        inverseReal(R, src + c, srcStep, L::kCh, dst + c, dstStep, L::kCh, s);
      else
        forwardReal<float>(R, src + c, srcStep, L::kCh, dst + c, dstStep, L::kCh, s);
    }
  });
}

// The 8u <-> 32s members: one channel at a time through the float plane of the work buffer,
// the integer side scaled by 2^-scaleFactor on the way out.
template <int kTag, class L, bool kInv, class S, class D, class SpecT>
LumStatus viaPlane(const S* src, int srcStep, D* dst, int dstStep, const SpecT* spec,
                   Lum8u* buffer, int scaleFactor) {
  if (LumStatus s = checkTransform(spec, kTag, srcStep, dstStep, src, dst)) return s;
  const Record& R = spec->rec;
  const ScaleFactor sf = pack::resolveScale(scaleFactor);
  const int W = R.width, H = R.height, planeStep = W * static_cast<int>(sizeof(float));
  return withScratch(R, buffer, [&](const Scratch& s) {
    for (int c = 0; c < L::kUse; ++c) {
      if constexpr (kInv) {
        for (int y = 0; y < H; ++y) {
          const S* p = rowAt(src, srcStep, y) + c;
          float* o = rowAt(s.plane, planeStep, y);
          for (int x = 0; x < W; ++x) o[x] = static_cast<float>(p[elemsOf(x, L::kCh)]);
        }
        inverseReal(R, s.plane, planeStep, 1, s.plane, planeStep, 1, s);
      } else {
        forwardReal<S>(R, src + c, srcStep, L::kCh, s.plane, planeStep, 1, s);
      }
      for (int y = 0; y < H; ++y) {
        const float* p = rowAt(s.plane, planeStep, y);
        D* o = rowAt(dst, dstStep, y) + c;
        for (int x = 0; x < W; ++x) o[elemsOf(x, L::kCh)] = pack::scaleRound<D>(p[x], sf);
      }
    }
  });
}

}  // namespace
}  // namespace fft2d
}  // namespace lumi

using namespace lumi;
using namespace lumi::fft2d;

#define LUMI_REAL_32F(NAME, SPEC, TAG, L, INV)                                        \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, \
                          const SPEC* pSpec, Lum8u* pBuffer) {                        \
    return real32f<TAG, L, INV>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);        \
  }
#define LUMI_REAL_32F_I(NAME, SPEC, TAG, L, INV)                                                \
  LUMI_API LumStatus NAME(Lum32f* pSrcDst, int srcDstStep, const SPEC* pSpec, Lum8u* pBuffer) { \
    return real32f<TAG, L, INV>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec, pBuffer);      \
  }
#define LUMI_REAL_SFS(NAME, SPEC, TAG, L, S, D, INV)                                         \
  LUMI_API LumStatus NAME(const S* pSrc, int srcStep, D* pDst, int dstStep, const SPEC* pSpec, \
                          Lum8u* pBuffer, int scaleFactor) {                                   \
    return viaPlane<TAG, L, INV>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer, scaleFactor);   \
  }

LUMI_REAL_32F(lumiFFTFwd_RToPack_32f_C1R, LumiFFTSpec, kTagFftR, C1, false)
LUMI_REAL_32F(lumiFFTFwd_RToPack_32f_C3R, LumiFFTSpec, kTagFftR, C3, false)
LUMI_REAL_32F(lumiFFTFwd_RToPack_32f_C4R, LumiFFTSpec, kTagFftR, C4, false)
LUMI_REAL_32F(lumiFFTFwd_RToPack_32f_AC4R, LumiFFTSpec, kTagFftR, AC4, false)
LUMI_REAL_32F_I(lumiFFTFwd_RToPack_32f_C1IR, LumiFFTSpec, kTagFftR, C1, false)
LUMI_REAL_32F_I(lumiFFTFwd_RToPack_32f_C3IR, LumiFFTSpec, kTagFftR, C3, false)
LUMI_REAL_32F_I(lumiFFTFwd_RToPack_32f_C4IR, LumiFFTSpec, kTagFftR, C4, false)
LUMI_REAL_32F_I(lumiFFTFwd_RToPack_32f_AC4IR, LumiFFTSpec, kTagFftR, AC4, false)
LUMI_REAL_32F(lumiFFTInv_PackToR_32f_C1R, LumiFFTSpec, kTagFftR, C1, true)
LUMI_REAL_32F(lumiFFTInv_PackToR_32f_C3R, LumiFFTSpec, kTagFftR, C3, true)
LUMI_REAL_32F(lumiFFTInv_PackToR_32f_C4R, LumiFFTSpec, kTagFftR, C4, true)
LUMI_REAL_32F(lumiFFTInv_PackToR_32f_AC4R, LumiFFTSpec, kTagFftR, AC4, true)
LUMI_REAL_32F_I(lumiFFTInv_PackToR_32f_C1IR, LumiFFTSpec, kTagFftR, C1, true)
LUMI_REAL_32F_I(lumiFFTInv_PackToR_32f_C3IR, LumiFFTSpec, kTagFftR, C3, true)
LUMI_REAL_32F_I(lumiFFTInv_PackToR_32f_C4IR, LumiFFTSpec, kTagFftR, C4, true)
LUMI_REAL_32F_I(lumiFFTInv_PackToR_32f_AC4IR, LumiFFTSpec, kTagFftR, AC4, true)
LUMI_REAL_32F(lumiDFTFwd_RToPack_32f_C1R, LumiDFTSpec, kTagDftR, C1, false)
LUMI_REAL_32F(lumiDFTFwd_RToPack_32f_C3R, LumiDFTSpec, kTagDftR, C3, false)
LUMI_REAL_32F(lumiDFTFwd_RToPack_32f_C4R, LumiDFTSpec, kTagDftR, C4, false)
LUMI_REAL_32F(lumiDFTFwd_RToPack_32f_AC4R, LumiDFTSpec, kTagDftR, AC4, false)
LUMI_REAL_32F_I(lumiDFTFwd_RToPack_32f_C1IR, LumiDFTSpec, kTagDftR, C1, false)
LUMI_REAL_32F_I(lumiDFTFwd_RToPack_32f_C3IR, LumiDFTSpec, kTagDftR, C3, false)
LUMI_REAL_32F_I(lumiDFTFwd_RToPack_32f_C4IR, LumiDFTSpec, kTagDftR, C4, false)
LUMI_REAL_32F_I(lumiDFTFwd_RToPack_32f_AC4IR, LumiDFTSpec, kTagDftR, AC4, false)
LUMI_REAL_32F(lumiDFTInv_PackToR_32f_C1R, LumiDFTSpec, kTagDftR, C1, true)
LUMI_REAL_32F(lumiDFTInv_PackToR_32f_C3R, LumiDFTSpec, kTagDftR, C3, true)
LUMI_REAL_32F(lumiDFTInv_PackToR_32f_C4R, LumiDFTSpec, kTagDftR, C4, true)
LUMI_REAL_32F(lumiDFTInv_PackToR_32f_AC4R, LumiDFTSpec, kTagDftR, AC4, true)
LUMI_REAL_32F_I(lumiDFTInv_PackToR_32f_C1IR, LumiDFTSpec, kTagDftR, C1, true)
LUMI_REAL_32F_I(lumiDFTInv_PackToR_32f_C3IR, LumiDFTSpec, kTagDftR, C3, true)
LUMI_REAL_32F_I(lumiDFTInv_PackToR_32f_C4IR, LumiDFTSpec, kTagDftR, C4, true)
LUMI_REAL_32F_I(lumiDFTInv_PackToR_32f_AC4IR, LumiDFTSpec, kTagDftR, AC4, true)
LUMI_REAL_SFS(lumiFFTFwd_RToPack_8u32s_C1RSfs, LumiFFTSpec, kTagFftR32s, C1, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiFFTFwd_RToPack_8u32s_C3RSfs, LumiFFTSpec, kTagFftR32s, C3, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiFFTFwd_RToPack_8u32s_C4RSfs, LumiFFTSpec, kTagFftR32s, C4, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiFFTFwd_RToPack_8u32s_AC4RSfs, LumiFFTSpec, kTagFftR32s, AC4, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiFFTInv_PackToR_32s8u_C1RSfs, LumiFFTSpec, kTagFftR32s, C1, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiFFTInv_PackToR_32s8u_C3RSfs, LumiFFTSpec, kTagFftR32s, C3, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiFFTInv_PackToR_32s8u_C4RSfs, LumiFFTSpec, kTagFftR32s, C4, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiFFTInv_PackToR_32s8u_AC4RSfs, LumiFFTSpec, kTagFftR32s, AC4, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiDFTFwd_RToPack_8u32s_C1RSfs, LumiDFTSpec, kTagDftR32s, C1, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiDFTFwd_RToPack_8u32s_C3RSfs, LumiDFTSpec, kTagDftR32s, C3, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiDFTFwd_RToPack_8u32s_C4RSfs, LumiDFTSpec, kTagDftR32s, C4, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiDFTFwd_RToPack_8u32s_AC4RSfs, LumiDFTSpec, kTagDftR32s, AC4, Lum8u, Lum32s, false)
LUMI_REAL_SFS(lumiDFTInv_PackToR_32s8u_C1RSfs, LumiDFTSpec, kTagDftR32s, C1, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiDFTInv_PackToR_32s8u_C3RSfs, LumiDFTSpec, kTagDftR32s, C3, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiDFTInv_PackToR_32s8u_C4RSfs, LumiDFTSpec, kTagDftR32s, C4, Lum32s, Lum8u, true)
LUMI_REAL_SFS(lumiDFTInv_PackToR_32s8u_AC4RSfs, LumiDFTSpec, kTagDftR32s, AC4, Lum32s, Lum8u, true)
