/* Lumi: one level of a separable 2-D discrete wavelet transform with the caller's filters.
 *
 * Analysis (forward) with a filter of taps t[0..len-1] and anchor a, along either axis:
 * out(i) = sum_k t[k] src(2i + a - k), so output i reads source samples 2i - (len - a - 1) to
 * 2i + a. The four quarter-size sub-bands: Approx = vertical low, horizontal low; DetailX =
 * vertical high, horizontal low; DetailY = vertical low, horizontal high; DetailXY = vertical
 * high, horizontal high. Synthesis (inverse) up-samples each sub-band by 2 (band(i) at 2i,
 * zeros between) and filters it the same way, out(n) = sum_k t[k] up(n + a - k), summing the
 * four contributions; an orthogonal pair with its synthesis filters reversed (anchor
 * len - 1 - a) reconstructs the source exactly.
 *
 * Nothing is extended: the caller supplies the pixels around the ROI that the filters reach.
 * Forward: source rows and columns from -(largest len - a - 1) to 2 x size - 2 + largest a
 * (rows by the vertical filter in use). Inverse: sub-band rows and columns from
 * -floor((len - a - 1) / 2) to size - 1 + ceil(a / 2) of each filter. Three-channel members
 * transform each channel of pixel-interleaved images. */
#ifndef LUMI_WAVELET_H
#define LUMI_WAVELET_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Opaque records: the analysis pair (kind 46) and the synthesis pair (kind 47). Read-only
   while transforms run. */
typedef struct LumiWTFwdSpec LumiWTFwdSpec;
typedef struct LumiWTInvSpec LumiWTInvSpec;

/* Records. InitAlloc checks, in this order: ppSpec or a taps pointer null
   (lumStatusNullPtrErr), a length below 2 (lumStatusSizeErr), an anchor outside 0..len-1
   (lumStatusAnchorErr), allocation (lumStatusMemAllocErr). Free and GetBufSize check for null
   (lumStatusNullPtrErr) and the record's kind (lumStatusContextMismatchErr). Work buffer:
   forward 4 x (largest len - a - 1 + largest a - 1 + 512) bytes, inverse
   4 x (len - 1 + 256 of the low filter + the same of the high filter) bytes, each rounded up to
   a multiple of 32 (src/transform/wavelet.cpp). */
LUMI_API LumStatus lumiWTFwdInitAlloc_32f_C1R(LumiWTFwdSpec** ppSpec, const Lum32f* pTapsLow, int lenLow, int anchorLow, const Lum32f* pTapsHigh, int lenHigh, int anchorHigh);
LUMI_API LumStatus lumiWTFwdInitAlloc_32f_C3R(LumiWTFwdSpec** ppSpec, const Lum32f* pTapsLow, int lenLow, int anchorLow, const Lum32f* pTapsHigh, int lenHigh, int anchorHigh);
LUMI_API LumStatus lumiWTInvInitAlloc_32f_C1R(LumiWTInvSpec** ppSpec, const Lum32f* pTapsLow, int lenLow, int anchorLow, const Lum32f* pTapsHigh, int lenHigh, int anchorHigh);
LUMI_API LumStatus lumiWTInvInitAlloc_32f_C3R(LumiWTInvSpec** ppSpec, const Lum32f* pTapsLow, int lenLow, int anchorLow, const Lum32f* pTapsHigh, int lenHigh, int anchorHigh);
LUMI_API LumStatus lumiWTFwdFree_32f_C1R(LumiWTFwdSpec* pSpec);
LUMI_API LumStatus lumiWTFwdFree_32f_C3R(LumiWTFwdSpec* pSpec);
LUMI_API LumStatus lumiWTInvFree_32f_C1R(LumiWTInvSpec* pSpec);
LUMI_API LumStatus lumiWTInvFree_32f_C3R(LumiWTInvSpec* pSpec);
LUMI_API LumStatus lumiWTFwdGetBufSize_C1R(const LumiWTFwdSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiWTFwdGetBufSize_C3R(const LumiWTFwdSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiWTInvGetBufSize_C1R(const LumiWTInvSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiWTInvGetBufSize_C3R(const LumiWTInvSpec* pSpec, int* pSize);

/* Transforms. Checks, in this order: pSpec null (lumStatusNullPtrErr), a record of another
   kind or damaged (lumStatusContextMismatchErr), pBuffer or an image pointer null
   (lumStatusNullPtrErr), a sub-band size below 1 (lumStatusSizeErr), a step below 1
   (lumStatusStepErr). The sub-band size is the size of each of the four sub-bands; the image
   is twice as wide and high. pBuffer: at least the GetBufSize bytes, aligned as floats are
   (src/transform/wavelet.cpp). */
LUMI_API LumStatus lumiWTFwd_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pApproxDst, int approxStep, Lum32f* pDetailXDst, int detailXStep, Lum32f* pDetailYDst, int detailYStep, Lum32f* pDetailXYDst, int detailXYStep, LumiSize dstRoiSize, const LumiWTFwdSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiWTFwd_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pApproxDst, int approxStep, Lum32f* pDetailXDst, int detailXStep, Lum32f* pDetailYDst, int detailYStep, Lum32f* pDetailXYDst, int detailXYStep, LumiSize dstRoiSize, const LumiWTFwdSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiWTInv_32f_C1R(const Lum32f* pApproxSrc, int approxStep, const Lum32f* pDetailXSrc, int detailXStep, const Lum32f* pDetailYSrc, int detailYStep, const Lum32f* pDetailXYSrc, int detailXYStep, LumiSize srcRoiSize, Lum32f* pDst, int dstStep, const LumiWTInvSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiWTInv_32f_C3R(const Lum32f* pApproxSrc, int approxStep, const Lum32f* pDetailXSrc, int detailXStep, const Lum32f* pDetailYSrc, int detailYStep, const Lum32f* pDetailXYSrc, int detailXYStep, LumiSize srcRoiSize, Lum32f* pDst, int dstStep, const LumiWTInvSpec* pSpec, Lum8u* pBuffer);

#ifdef __cplusplus
}
#endif
#endif
