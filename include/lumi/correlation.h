/* Lumi: template matching by normalised cross-correlation and squared distance.
 *
 * For every placement of the template over the source one value is written: Valid places it
 * wholly inside the source ((W-w+1) x (H-h+1) values), Full at every offset where the two
 * overlap ((W+w-1) x (H+h-1) values, the Valid ones at (w-1, h-1)), Same once per source pixel
 * (W x H values, the template's cell ((w-1)/2, (h-1)/2) over the pixel). The source is zero
 * outside its ROI. Multi-channel members match each channel on its own; AC4 leaves the
 * destination's fourth channel alone. The 8u members with Sfs multiply the result by
 * 2^-scaleFactor, round ties to even and saturate.
 *
 * Checks, in this order: pSrc, pTpl, pDst null (lumStatusNullPtrErr); a source or template
 * size below 1 or a template larger than the source (lumStatusSizeErr); a step below 1
 * (lumStatusStepErr). The correlation runs through the 2-D real FFT (templates of at most 25
 * pixels are correlated directly); its failures and failed allocations (lumStatusMemAllocErr)
 * are returned as they are. The NormLevel and SqrDistance members share their tiles among
 * threads_omp_of_n_lum threads. */
#ifndef LUMI_CORRELATION_H
#define LUMI_CORRELATION_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* CrossCorr{Full,Same,Valid}_Norm: normalised cross-correlation, sum(src x tpl) /
   (max(|tpl|, eps) x sqrt(max(E, eps))) with E the window's energy sum(src^2) and eps = 0.0005
   (src/correlation/crosscorr_norm.cpp). */
LUMI_API LumStatus lumiCrossCorrFull_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiCrossCorrSame_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiCrossCorrValid_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

/* CrossCorr{Full,Same,Valid}_NormLevel: the correlation coefficient, sum((tpl - tplMean) x
   (src - winMean)) / sqrt(max(sum (tpl - tplMean)^2, eps) x max(sum (src - winMean)^2, eps)),
   winMean the window's mean (src/correlation/crosscorr_level.cpp). */
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrFull_NormLevel_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiCrossCorrSame_NormLevel_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrSame_NormLevel_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiCrossCorrValid_NormLevel_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiCrossCorrValid_NormLevel_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

/* SqrDistance{Full,Same,Valid}_Norm: normalised squared distance, sum((src - tpl)^2) /
   (max(|tpl|, eps) x sqrt(max(E, eps))) (src/correlation/sqrdistance.cpp). */
LUMI_API LumStatus lumiSqrDistanceFull_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceFull_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiSqrDistanceSame_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceSame_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

LUMI_API LumStatus lumiSqrDistanceValid_Norm_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize srcRoiSize, const Lum32f* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u32f_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u32f_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u32f_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u32f_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8s32f_C1R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8s32f_C3R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8s32f_C4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8s32f_AC4R(const Lum8s* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8s* pTpl, int tplStep, LumiSize tplRoiSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u_C1RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u_C3RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u_C4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);
LUMI_API LumStatus lumiSqrDistanceValid_Norm_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep, int scaleFactor);

#ifdef __cplusplus
}
#endif
#endif
