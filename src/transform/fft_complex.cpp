// 2-D FFT and DFT of complex images (interleaved Lum32fc), forward and inverse: every row
// through the complex row engine, then the columns in groups through the column engine.
#include "transform/fft_records.h"

namespace lumi {
namespace fft2d {
namespace {

template <int kTag, bool kInv, class SpecT>
LumStatus complex32fc(const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep, const SpecT* spec,
                      Lum8u* buffer) {
  if (!spec) return lumStatusNullPtrErr;
  if (spec->rec.tag != kTag) return lumStatusContextMismatchErr;
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  const Record& R = spec->rec;
  return withScratch(R, buffer, [&](const Scratch& s) {
    transformComplex(R, src, srcStep, dst, dstStep, kInv, s);
  });
}

}  // namespace
}  // namespace fft2d
}  // namespace lumi

using namespace lumi;
using namespace lumi::fft2d;

#define LUMI_CPLX(NAME, SPEC, TAG, INV)                                                 \
  LUMI_API LumStatus NAME(const Lum32fc* pSrc, int srcStep, Lum32fc* pDst, int dstStep, \
                          const SPEC* pSpec, Lum8u* pBuffer) {                          \
    return complex32fc<TAG, INV>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);         \
  }
#define LUMI_CPLX_I(NAME, SPEC, TAG, INV)                                                        \
  LUMI_API LumStatus NAME(Lum32fc* pSrcDst, int srcDstStep, const SPEC* pSpec, Lum8u* pBuffer) { \
    return complex32fc<TAG, INV>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pSpec, pBuffer);      \
  }

LUMI_CPLX(lumiFFTFwd_CToC_32fc_C1R, LumiFFTSpec, kTagFftC, false)
LUMI_CPLX_I(lumiFFTFwd_CToC_32fc_C1IR, LumiFFTSpec, kTagFftC, false)
LUMI_CPLX(lumiFFTInv_CToC_32fc_C1R, LumiFFTSpec, kTagFftC, true)
LUMI_CPLX_I(lumiFFTInv_CToC_32fc_C1IR, LumiFFTSpec, kTagFftC, true)
LUMI_CPLX(lumiDFTFwd_CToC_32fc_C1R, LumiDFTSpec, kTagDftC, false)
LUMI_CPLX_I(lumiDFTFwd_CToC_32fc_C1IR, LumiDFTSpec, kTagDftC, false)
LUMI_CPLX(lumiDFTInv_CToC_32fc_C1R, LumiDFTSpec, kTagDftC, true)
LUMI_CPLX_I(lumiDFTInv_CToC_32fc_C1IR, LumiDFTSpec, kTagDftC, true)
