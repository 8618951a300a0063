/* Lumi: grey-level morphology.
 *
 * Erosion writes the minimum, dilation the maximum, of the source values under a structuring
 * element, per channel; AC4 leaves the destination's fourth channel untouched. Values are copied,
 * never computed. The caller supplies the source pixels around the ROI that the element reaches.
 * Checks, in order: pointers (lumStatusNullPtrErr), steps below 1 (lumStatusStepErr), the ROI
 * (lumStatusSizeErr), for the mask forms the mask size (lumStatusMaskSizeErr), an all-zero mask
 * (lumStatusZeroMaskErr) and the anchor (lumStatusAnchorErr), then steps shorter than the rows
 * they must hold (lumStatusStepBelowRowErr); a failed scratch allocation gives
 * lumStatusMemAllocErr before anything is written. */
#ifndef LUMI_MORPHOLOGY_H
#define LUMI_MORPHOLOGY_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Erode3x3: the minimum of the 3x3 neighbourhood; the source is read from one row above and one
 * pixel left of pSrc, (roi.width + 2) x (roi.height + 2) pixels (src/filter/morphology.cpp). */
LUMI_API LumStatus lumiErode3x3_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiErode3x3_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiErode3x3_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Dilate3x3: the maximum of the 3x3 neighbourhood; the source is read from one row above and one
 * pixel left of pSrc, (roi.width + 2) x (roi.height + 2) pixels (src/filter/morphology.cpp). */
LUMI_API LumStatus lumiDilate3x3_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiDilate3x3_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDilate3x3_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Erode: the minimum over the non-zero bytes of a maskSize.width x maskSize.height 8u mask
 * (row stride maskSize.width) placed with its anchor on each pixel (src/filter/morphology.cpp). */
LUMI_API LumStatus lumiErode_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiErode_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);

/* Dilate: the maximum over the non-zero bytes of a maskSize.width x maskSize.height 8u mask
 * (row stride maskSize.width) placed with its anchor on each pixel (src/filter/morphology.cpp). */
LUMI_API LumStatus lumiDilate_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);
LUMI_API LumStatus lumiDilate_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif
#endif
