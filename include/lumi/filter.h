/* Lumi: neighbourhood filters. The caller supplies every source pixel a mask reaches around
 * the ROI; the library never extends borders itself. */
#ifndef LUMI_FILTER_H
#define LUMI_FILTER_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Box filter: every destination pixel is the mean of the maskSize pixels of the source that the
   anchor places around it (8u truncates after an integer multiply and shift, 16s rounds ties to
   even and saturates). Checks pointers, steps, ROI, mask size (lumStatusMaskSizeErr), anchor
   (lumStatusAnchorErr), in that order. AC4 leaves alpha untouched. src/filter/box.cpp. */
LUMI_API LumStatus lumiFilterBox_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiFilterBox_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize, LumiPoint anchor);

/* Window sums as 32-bit floats, without division: along the row (Row) or down the column
   (Column), maskSize pixels per channel starting anchor pixels before the destination pixel.
   A ROI height below 1 returns lumStatusOk at once; width and steps are not checked.
   src/filter/window_sum.cpp. */
LUMI_API LumStatus lumiSumWindowRow_8u32f_C1R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowRow_8u32f_C3R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowRow_8u32f_C4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowRow_16s32f_C1R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowRow_16s32f_C3R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowRow_16s32f_C4R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_8u32f_C1R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_8u32f_C3R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_8u32f_C4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_16s32f_C1R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_16s32f_C3R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);
LUMI_API LumStatus lumiSumWindowColumn_16s32f_C4R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int maskSize, int anchor);

#ifdef __cplusplus
}
#endif
#endif
