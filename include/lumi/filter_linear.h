/* Lumi: general linear filters with a caller-supplied kernel, applied mirrored (a true
 * convolution): dst(x, y) = sum over i, j of K[i][j] x src(x + anchor.x - j, y + anchor.y - i).
 * The caller supplies every source pixel the kernel reaches around the ROI. Integer kernels come
 * with a divisor: 1 takes the sum as it is, a power of two 2^k shifts it right by k with halves
 * rounded up, anything else multiplies it by 1/divisor in single precision and rounds ties to
 * even; the result saturates. 32f kernels on 8u and 16s data sum in single precision and round
 * ties to even before saturating. Checks: pointers (lumStatusNullPtrErr), ROI and kernel sizes
 * (lumStatusSizeErr), divisor 0 (lumStatusFilterDivisorErr), steps (lumStatusStepErr: the source
 * row must hold roi.width + kernel width - 1 pixels, the destination row roi.width pixels), in
 * that order. Anchors are not checked. AC4 leaves alpha untouched. */
#ifndef LUMI_FILTER_LINEAR_H
#define LUMI_FILTER_LINEAR_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* 2-D kernels of kernelSize.width x kernelSize.height (src/filter/linear.cpp). */
LUMI_API LumStatus lumiFilter_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor, int divisor);
LUMI_API LumStatus lumiFilter_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilter32f_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor);

/* Row kernels of kernelSize taps along the row, anchored at tap xAnchor (src/filter/linear.cpp). */
LUMI_API LumStatus lumiFilterRow_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor);
LUMI_API LumStatus lumiFilterRow_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);
LUMI_API LumStatus lumiFilterRow32f_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int xAnchor);

/* Column kernels of kernelSize taps down the column, anchored at tap yAnchor; the source row
   must hold roi.width pixels (src/filter/linear.cpp). */
LUMI_API LumStatus lumiFilterColumn_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor);
LUMI_API LumStatus lumiFilterColumn_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);
LUMI_API LumStatus lumiFilterColumn32f_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, const Lum32f* pKernel, int kernelSize, int yAnchor);

#ifdef __cplusplus
}
#endif
#endif
