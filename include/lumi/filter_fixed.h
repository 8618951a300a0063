/* Lumi: fixed-kernel filters (edge detectors, Laplace and high-pass, Gaussian and low-pass
 * smoothing, sharpening). Kernels are written as they lie over the image: the first row is the
 * row above the pixel, the first column the column to its left. The caller supplies every
 * source pixel a kernel reaches around the ROI (one pixel for 3x3, two for 5x5). All check
 * pointers, ROI size, steps, then the mask code where there is one, in that order. */
#ifndef LUMI_FILTER_FIXED_H
#define LUMI_FILTER_FIXED_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Prewitt 3x3, no divisor. Kernels as they lie over the image (top row first):
     PrewittVert   1 0 -1 / 1 0 -1 / 1 0 -1   (vertical edges: left minus right)
     PrewittHoriz -1 -1 -1 / 0 0 0 / 1 1 1   (horizontal edges: bottom minus top)
   8u and 16s saturate (negative 8u responses become 0), 32f is the plain sum. Reads one pixel
   beyond every side of the ROI. Checks pointers (lumStatusNullPtrErr), ROI size
   (lumStatusSizeErr), then steps (lumStatusStepErr). AC4 leaves alpha untouched.
   src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterPrewittVert_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittVert_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterPrewittHoriz_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);

/* Sobel 3x3, no divisor and no mask argument (the 8u16s and 8s16s members take one):
     SobelVert   1 0 -1 / 2 0 -2 / 1 0 -1     (column smoothing 1 2 1, then left minus right)
     SobelHoriz -1 -2 -1 / 0 0 0 / 1 2 1      (bottom minus top, then row smoothing 1 2 1)
   8u and 16s saturate, 8u16s and 8s16s are exact, 32f is the plain sum. With mask
   lumMskSize5x5 the 8u16s/8s16s members use the column pass 1 4 6 4 1 and the row difference
   1 2 0 -2 -1 (Vert), or the column difference -1 -2 0 2 1 and the row pass 1 4 6 4 1 (Horiz);
   any mask other than lumMskSize3x3 or lumMskSize5x5 gives lumStatusMaskSizeErr after the
   pointer, size and step checks. src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterSobelVert_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelVert_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelVert_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelHoriz_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSobelHoriz_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelHoriz_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Second and cross Sobel derivatives, exact (8u16s, 8s16s) or plain float sums (32f), mask
   lumMskSize3x3 or lumMskSize5x5. Column taps (top to bottom) times row taps (left to right):
                       3x3                       5x5
     SobelVertSecond   1 2 1  x  1 -2 1          1 4 6 4 1  x  1 0 -2 0 1
     SobelHorizSecond  1 -2 1 x  1 2 1           1 0 -2 0 1 x  1 4 6 4 1
     SobelCross        -1 0 1 x  1 0 -1          -1 -2 0 2 1 x 1 2 0 -2 -1
   Checks pointers, ROI size, steps, then the mask (lumStatusMaskSizeErr). src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterSobelVertSecond_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelVertSecond_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelVertSecond_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelHorizSecond_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelHorizSecond_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelHorizSecond_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelCross_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelCross_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterSobelCross_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Scharr 3x3, exact (8u16s, 8s16s) or plain float sums (32f):
     ScharrVert   3 0 -3 / 10 0 -10 / 3 0 -3  (column smoothing 3 10 3, then left minus right)
     ScharrHoriz -3 -10 -3 / 0 0 0 / 3 10 3   (bottom minus top, then row smoothing 3 10 3)
   src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterScharrVert_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterScharrVert_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterScharrVert_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterScharrHoriz_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterScharrHoriz_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterScharrHoriz_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);

/* Laplace, divisor 1: 8u and 16s saturate, 8u16s and 8s16s are exact, 32f is the plain sum.
     lumMskSize3x3: -1 -1 -1 / -1 8 -1 / -1 -1 -1 (9 x centre minus the 3x3 block; the same filter
                    as Hipass 3x3)
     lumMskSize5x5: -1 -3 -4 -3 -1 / -3 0 6 0 -3 / -4 6 20 6 -4 / -3 0 6 0 -3 / -1 -3 -4 -3 -1
   A constant image gives 0. Checks pointers, ROI size, steps, then the mask
   (lumStatusMaskSizeErr). src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterLaplace_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLaplace_8s16s_C1R(const Lum8s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* High-pass, divisor 1 (8u and 16s saturate, 32f plain sums): lumMskSize3x3 is the Laplace
   3x3 filter (9 x centre minus the 3x3 block), lumMskSize5x5 is 25 x centre minus the 5x5 block.
   src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterHipass_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterHipass_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Gaussian smoothing.
     lumMskSize3x3: 1 2 1 / 2 4 2 / 1 2 1, divided by 16; 8u and 16s round ties to even,
                    (S + 7 + ((S >> 4) & 1)) >> 4; 32f multiplies by 1/16.
     lumMskSize5x5: 2 7 12 7 2 / 7 31 52 31 7 / 12 52 127 52 12 / 7 31 52 31 7 / 2 7 12 7 2,
                    divided by 571 and rounded to nearest for 8u and 16s (an odd divisor leaves
                    no ties); 32f weighs by the single-precision quotients w / 571.
   16s saturates. src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterGauss_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterGauss_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Low-pass (mean) filters: all weights 1.
     lumMskSize3x3: divided by 9 and rounded to nearest: 8u ((S + 5) x 7281) >> 16, 16s the
                    nearest integer (no ties can occur); 32f divides by 9.
     lumMskSize5x5: divided by 25 and rounded to nearest (8u, 16s); 32f divides by 25.
   src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterLowpass_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterLowpass_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Sharpening: -1 -1 -1 / -1 16 -1 / -1 -1 -1 divided by 8 (17 x centre minus the 3x3 block);
   8u and 16s round ties to even, (S + 3 + ((S >> 3) & 1)) >> 3, and saturate; 32f multiplies
   by 1/8. src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterSharpen_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterSharpen_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);

/* Roberts cross differences, no division: RobertsDown writes src(x, y) - src(x - 1, y - 1),
   RobertsUp src(x, y) - src(x + 1, y - 1). 8u saturates at 0 (only rises survive), 16s at the
   16s range, 32f is the float difference. Reads the row above the ROI and one column to the
   left (Down) or right (Up); the 16s and 32f rows above lie the step rounded down to a whole
   element before. src/filter/fixed.cpp. */
LUMI_API LumStatus lumiFilterRobertsDown_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsDown_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiFilterRobertsUp_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);

#ifdef __cplusplus
}
#endif
#endif
