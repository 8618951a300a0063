/* Lumi: remapping through coordinate maps, mirroring and transposition.
 *
 * Remap: for every destination pixel the maps (two Lum32f images of the destination ROI size,
 * each with its own step) give its source position (x, y) in whole-image coordinates. The
 * source ROI is cut to the image and read as the inclusive rectangle [x0, x1] x [y0, y1]; a
 * position outside it (compared in float; NaN counts as outside) leaves the destination pixel
 * as it was. Checks, in order: pointers (planar members: every plane pointer too,
 * lumStatusNullPtrErr), sizes (lumStatusSizeErr), interpolation exactly lumInterpNearest,
 * lumInterpLinear or lumInterpCubic (lumStatusInterpolationErr: flags are refused), steps
 * (lumStatusStepErr), then a ROI origin outside the image gives lumStatusNoIntersectionWarn
 * with nothing written. A source ROI one pixel wide or high is sampled nearest; cubic on one
 * narrower or lower than four pixels is sampled linear.
 *  - Nearest reads (rint(x), rint(y)), ties to even.
 *  - Linear reads the pixel pairs at ix = trunc(x) and ix + 1 (ix moved back one column when
 *    it is x1, so that x1 gets weight 1; rows likewise). Integer types use 14-bit weights
 *    wx = rint((x - ix) 16384), wy likewise: h = ((16384 - wx) p0 + wx p1) >> 8 per row and
 *    (h0 (16384 - wy) + h1 wy + 33) >> 20 for the result, which is thereby truncated rather
 *    than rounded. 8u computes this in 32-bit integers; 16u computes the rows in 32-bit
 *    integers (at most 2^30) and the column step in 64-bit integers (up to 2^36), with no
 *    saturation anywhere. 32f interpolates in float: h = p0 (1 - fx) + p1 fx per row, then
 *    h0 (1 - fy) + h1 fy.
 *  - Cubic: the 4-point cubic through rows and columns ix - 1 .. ix + 2 (iy likewise, neither
 *    moved back), neighbours clamped to the ROI, rows first, in float; integer results are
 *    rounded to nearest (ties up) and saturated.
 *
 * Mirror: flip 0 reverses the rows (top to bottom), 1 reverses each row (left to right), 2
 * both; checks pointers, then the size, then the axis (lumStatusFlipAxisErr); steps are not
 * checked. AC4 leaves the destination's alpha as it was (in place: as it was at that pixel).
 *
 * Transpose: the destination is roiSize.height x roiSize.width; checks pointers, then sizes
 * (lumStatusSizeErr, also for an in-place ROI that is not square); steps are not checked. */
#ifndef LUMI_REMAP_H
#define LUMI_REMAP_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Remap: pSrc is the first pixel of the whole source image of srcSize; planar members take
   arrays of plane pointers sharing one step (src/geometry/remap.cpp). */
LUMI_API LumStatus lumiRemap_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* const pDst[3], int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum8u* const pDst[4], int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* const pDst[3], int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum16u* const pDst[4], int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* const pDst[3], int dstStep, LumiSize dstRoiSize, int interpolation);
LUMI_API LumStatus lumiRemap_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep, Lum32f* const pDst[4], int dstStep, LumiSize dstRoiSize, int interpolation);

/* Mirror about the horizontal axis (0), the vertical axis (1) or both (2), out of place and in
   place (src/geometry/mirror.cpp). */
LUMI_API LumStatus lumiMirror_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C1IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C3IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_C4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_16u_AC4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C1IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C3R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C3IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_C4IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_AC4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, int flip);
LUMI_API LumStatus lumiMirror_32s_AC4IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int flip);

/* Transpose: roiSize is the source size; in place needs a square ROI
   (src/geometry/transpose.cpp). */
LUMI_API LumStatus lumiTranspose_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C1IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C3IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_16u_C4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C1IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C3R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C3IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiTranspose_32s_C4IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

#ifdef __cplusplus
}
#endif
#endif
