/* Lumi: rank filters (median, minimum, maximum).
 *
 * Each destination element is an order statistic of the source elements of the same channel under
 * a rectangular (or cross-shaped) mask; values are selected, never computed, so every result is
 * one of the source values. AC4 leaves the destination's fourth channel untouched. The caller
 * supplies the source pixels around the ROI that the mask reaches.
 *
 * Checks, in order: pointers (lumStatusNullPtrErr), the ROI (lumStatusSizeErr), steps below 1
 * (lumStatusStepErr), then the mask: for lumiFilterMedian a width or height below 1 or even, for
 * lumiFilterMin/Max below 1 (lumStatusMaskSizeErr), and the anchor outside the mask
 * (lumStatusAnchorErr); the fixed shapes return lumStatusMaskSizeErr for a code not listed for
 * them. lumiFilterMedian and lumiFilterMin/Max return lumStatusMemAllocErr when their scratch
 * cannot be allocated, before writing anything; lumiFilterMedianCross and lumiFilterMedianColor
 * return lumStatusOk once their checks pass. */
#ifndef LUMI_FILTER_RANK_H
#define LUMI_FILTER_RANK_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Median over a maskSize mask (odd width and height) placed by its anchor: the middle of the
 * width x height values. 3x1, 5x1, 1x3 and 1x5 masks give the row and column medians below, 1x1
 * copies the ROI (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMedian_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMedian_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);

/* Median of three or five pixels of one row, centred on the pixel: mask lumMskSize3x1 or
 * lumMskSize5x1 (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMedianHoriz_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianHoriz_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Median of three or five pixels of one column, centred on the pixel: mask lumMskSize1x3 or
 * lumMskSize1x5 (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMedianVert_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianVert_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Median over a centred cross (the pixel's row and column within the square): lumMskSize3x3 gives
 * five values, lumMskSize5x5 nine (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMedianCross_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianCross_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianCross_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianCross_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianCross_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianCross_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Vector median over the centred lumMskSize3x3 or lumMskSize5x5 square: the destination pixel is
 * the neighbourhood pixel (all three colour channels together) whose sum of L1 distances to the
 * other pixels of the neighbourhood is smallest, the first in row order on a tie
 * (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMedianColor_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianColor_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianColor_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianColor_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianColor_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);
LUMI_API LumStatus lumiFilterMedianColor_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int mask);

/* Minimum over a maskSize mask (any width and height) placed by its anchor
 * (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMin_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMin_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);

/* Maximum over a maskSize mask (any width and height) placed by its anchor
 * (src/filter/rank.cpp). */
LUMI_API LumStatus lumiFilterMax_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterMax_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif
#endif
