// Specification records of the 2-D FFT (power-of-two sizes) and DFT (any size): creation,
// release and the work-buffer size. A record owns its 1-D engines; the real records build a
// row engine, a real column engine when the lengths differ and a complex column engine.
#include "transform/fft_records.h"

namespace lumi {
namespace fft2d {
namespace {

bool badFlag(int flag) {
  return flag != lumFftDivFwdByN && flag != lumFftDivInvByN && flag != lumFftDivBySqrtN &&
         flag != lumFftNoDivByAny;
}

template <class SpecT>
LumStatus create(SpecT** pp, int tag, int width, int height, int sizeX, int sizeY, int flag,
                 int hint) {
  Record* r = nullptr;
  const LumStatus s = createRecord(&r, tag, width, height, sizeX, sizeY, flag, hint);
  if (s == lumStatusOk) *pp = reinterpret_cast<SpecT*>(r);
  return s;
}

template <int kTag>
LumStatus initFft(LumiFFTSpec** pp, int orderX, int orderY, int flag, int hint) {
  if (!pp) return lumStatusNullPtrErr;
  if (orderX < 0 || orderX > 30 || orderY < 0 || orderY > 30) return lumStatusFftOrderErr;
  if (badFlag(flag)) return lumStatusFftFlagErr;
  return create(pp, kTag, 1 << orderX, 1 << orderY, orderX, orderY, flag, hint);
}

template <int kTag>
LumStatus initDft(LumiDFTSpec** pp, LumiSize roi, int flag, int hint) {
  if (!pp) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badFlag(flag)) return lumStatusFftFlagErr;
  return create(pp, kTag, roi.width, roi.height, roi.width, roi.height, flag, hint);
}

template <int kTag, class SpecT>
LumStatus freeSpec(SpecT* p) {
  if (!p) return lumStatusNullPtrErr;
  if (p->rec.tag != kTag) return lumStatusContextMismatchErr;
  destroyRecord(&p->rec);
  return lumStatusOk;
}

template <int kTag, class SpecT>
LumStatus bufSize(const SpecT* p, int* size) {
  if (!p || !size) return lumStatusNullPtrErr;
  if (p->rec.tag != kTag) return lumStatusContextMismatchErr;
  *size = p->rec.bufSize;
  return lumStatusOk;
}

}  // namespace
}  // namespace fft2d
}  // namespace lumi

using namespace lumi;
using namespace lumi::fft2d;

#define LUMI_FFT_INIT(NAME, TAG)                                                              \
  LUMI_API LumStatus NAME(LumiFFTSpec** ppSpec, int orderX, int orderY, int flag, int hint) { \
    return initFft<TAG>(ppSpec, orderX, orderY, flag, hint);                                  \
  }
#define LUMI_DFT_INIT(NAME, TAG)                                                        \
  LUMI_API LumStatus NAME(LumiDFTSpec** ppSpec, LumiSize roiSize, int flag, int hint) { \
    return initDft<TAG>(ppSpec, roiSize, flag, hint);                                   \
  }
#define LUMI_SPEC_FREE(NAME, SPEC, TAG) \
  LUMI_API LumStatus NAME(SPEC* pSpec) { return freeSpec<TAG>(pSpec); }
#define LUMI_SPEC_BUFSIZE(NAME, SPEC, TAG) \
  LUMI_API LumStatus NAME(const SPEC* pSpec, int* pSize) { return bufSize<TAG>(pSpec, pSize); }

LUMI_FFT_INIT(lumiFFTInitAlloc_R_32f, kTagFftR)
LUMI_FFT_INIT(lumiFFTInitAlloc_C_32fc, kTagFftC)
LUMI_FFT_INIT(lumiFFTInitAlloc_R_32s, kTagFftR32s)
LUMI_SPEC_FREE(lumiFFTFree_R_32f, LumiFFTSpec, kTagFftR)
LUMI_SPEC_FREE(lumiFFTFree_C_32fc, LumiFFTSpec, kTagFftC)
LUMI_SPEC_FREE(lumiFFTFree_R_32s, LumiFFTSpec, kTagFftR32s)
LUMI_SPEC_BUFSIZE(lumiFFTGetBufSize_R_32f, LumiFFTSpec, kTagFftR)
LUMI_SPEC_BUFSIZE(lumiFFTGetBufSize_C_32fc, LumiFFTSpec, kTagFftC)
LUMI_SPEC_BUFSIZE(lumiFFTGetBufSize_R_32s, LumiFFTSpec, kTagFftR32s)
LUMI_DFT_INIT(lumiDFTInitAlloc_R_32f, kTagDftR)
LUMI_DFT_INIT(lumiDFTInitAlloc_C_32fc, kTagDftC)
LUMI_DFT_INIT(lumiDFTInitAlloc_R_32s, kTagDftR32s)
LUMI_SPEC_FREE(lumiDFTFree_R_32f, LumiDFTSpec, kTagDftR)
LUMI_SPEC_FREE(lumiDFTFree_C_32fc, LumiDFTSpec, kTagDftC)
LUMI_SPEC_FREE(lumiDFTFree_R_32s, LumiDFTSpec, kTagDftR32s)
LUMI_SPEC_BUFSIZE(lumiDFTGetBufSize_R_32f, LumiDFTSpec, kTagDftR)
LUMI_SPEC_BUFSIZE(lumiDFTGetBufSize_C_32fc, LumiDFTSpec, kTagDftC)
LUMI_SPEC_BUFSIZE(lumiDFTGetBufSize_R_32s, LumiDFTSpec, kTagDftR32s)
