/* Lumi: affine, perspective and bilinear warps, rotation and shear.
 *
 * pSrc and pDst point at the first pixel of the whole source and destination images; srcRoi and
 * dstRoi are rectangles in them, and coordinates are absolute (x to the right, y down, pixel (i, j)
 * at integer coordinates). The inclusive corners of the source ROI are mapped forward; the
 * quadrangle they form is clipped to the destination ROI, and every destination pixel inside it
 * (one span of columns per row; spans and rows widened by 1e-14 toward the next whole coordinate)
 * takes the source value at its position through the inverse mapping. Destination pixels outside
 * the quadrangle, and the fourth channel of AC4 images, are never written. Types 8u, 16u, 32f;
 * layouts C1, C3, C4, AC4 (three channels computed) and planar P3, P4 (arrays of plane pointers
 * sharing one step; every plane takes the same positions).
 *
 * interpolation: lumInterpNearest, lumInterpLinear or lumInterpCubic, optionally ORed with
 * lumSmoothEdge. Source positions are computed in double precision: from (x, y) directly at the
 * first column of a span and at every multiple of 128 columns, then that position plus k steps (no
 * running sum, so a row is the same whatever thread computes it); the perspective warps divide per
 * pixel. Nearest reads the pixel at (trunc(x + 0.5), trunc(y + 0.5)), i.e. it rounds half up, in
 * every warp (perspective and bilinear too). Linear reads the pixels at trunc(x), trunc(x) + 1
 * (moved one column left at the last image column, weight then 1) and likewise for rows; integer
 * types weigh them with 14-bit weights round(f x 16384) (half up): each row (w0 p0 + w1 p1) >> 8,
 * then (h0 w0' + h1 w1' + 2^19) >> 20, rounded half up (16u in 64 bits); 32f in single precision as
 * (1 - f) p0 + f p1. Cubic is the 4-point cubic of the resize engine through 4x4 pixels, separable
 * and in single precision, its taps kept inside the source image as the resize engine keeps them;
 * integer results are trunc(v + 0.5000001) saturated, 32f results are stored as computed. Positions
 * outside the source image are clamped to it. A source image one pixel wide or high is read with
 * nearest; cubic on an image narrower or lower than 4 pixels runs linear.
 *
 * lumSmoothEdge: a written pixel whose source position lies less than half a pixel inside the
 * source ROI (d = distance to the nearest ROI side, in source pixels) is blended with the value the
 * destination held: new a + old (1 - a) with a = 0.5 + d, so a pixel centred on the border gets
 * half of each; integer results round half up. Sides where the quadrangle was clipped by the
 * destination ROI are not blended.
 *
 * Status, in this order (the first failure returns, nothing written): a null srcQuad or dstQuad
 * (Quad members), then a null pSrc or pDst (lumStatusNullPtrErr); srcSize not positive, srcRoi or
 * dstRoi with an origin below zero or a side below one (lumStatusSizeErr); srcStep or dstStep below
 * one (lumStatusStepErr); the mode, its top bit cleared, not 1, 2 or 4 (lumStatusInterpolationErr);
 * a null plane pointer (lumStatusNullPtrErr); singular coefficients (lumStatusCoeffErr; for the
 * Quad members a degenerate quadrangle instead, lumStatusQuadErr); the srcRoi origin outside the
 * source image (lumStatusNoIntersectionWarn, nothing written); the ROI cut to the image one pixel
 * wide or high (lumStatusRectErr); a degenerate mapped quadrangle (lumStatusCoeffErr); no
 * destination pixel covered (lumStatusQuadOutsideWarn, nothing written). Scratch memory that cannot
 * be allocated gives lumStatusMemAllocErr.
 *
 * Singular: with p = c00 c11, |(p - c01 c10)/p| <= 1e-12 when |p| > 1e-200, else |c01 c10| <=
 * 1e-12, on the linear part of the coefficients as given (for perspective also |c22| <= 1e-200 or
 * NaN; for bilinear the linear part is the Jacobian at the origin of the ROI the coefficients take
 * points from: {c00 y + c01, c00 x + c02; c10 y + c11, c10 x + c12}). A degenerate quadrangle has a
 * zero or collinear edge, a turn against the others (crossed or folded) or a coordinate that is not
 * finite. */
#ifndef LUMI_WARP_H
#define LUMI_WARP_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Affine warp: coeffs {c00, c01, c02; c10, c11, c12} take a source point (x, y) to
   (c00 x + c01 y + c02, c10 x + c11 y + c12) (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiWarpAffine_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffine_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);

/* Affine warp given the inverse: coeffs take a destination point to its source position; the
   quadrangle comes from the coefficients inverted (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiWarpAffineBack_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);
LUMI_API LumStatus lumiWarpAffineBack_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][3], int interpolation);

/* Affine warp that takes srcQuad to dstQuad (the transform comes from their first three
   corners; lumStatusAffineQuadChangedWarn, with the warp written, when the fourth corners do not
   correspond within 1e-9 of the quadrangle's size). Only pixels inside dstQuad too are written.
   A degenerate srcQuad or dstQuad gives lumStatusQuadErr (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiWarpAffineQuad_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpAffineQuad_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);

/* Rotation by angle degrees about the origin, then the shift: coefficients
   {cos a, sin a, xShift; -sin a, cos a, yShift}. The angle is reduced to [0, 360); exactly 90,
   180 or 270 with whole-number shifts copies pixels by index whatever the mode and flag
   (pointers, sizes and steps checked as above, then a null plane pointer; an srcRoi origin
   outside the image, or a rotated ROI that misses the destination ROI, returns
   lumStatusNoIntersectionWarn, not lumStatusQuadOutsideWarn, and a ROI one pixel wide is
   turned, not refused). Every other angle
   goes through the affine warp (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiRotate_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiRotate_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xShift, double yShift, int interpolation);

/* Rotation about (xCenter, yCenter): Rotate with the shifts of lumiGetRotateShift
   (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiRotateCenter_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiRotateCenter_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, double angle, double xCenter, double yCenter, int interpolation);

/* Shear: coefficients {1, xShear, xShift; yShear, 1, yShift} (src/geometry/warp_affine.cpp). */
LUMI_API LumStatus lumiShear_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiShear_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, double xShear, double yShear, double xShift, double yShift, int interpolation);

/* Perspective warp: (x, y) goes to ((c00 x + c01 y + c02)/d, (c10 x + c11 y + c12)/d) with
   d = c20 x + c21 y + c22 (src/geometry/warp_perspective.cpp). */
LUMI_API LumStatus lumiWarpPerspective_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspective_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);

/* Perspective warp given the inverse (destination to source) coefficients
   (src/geometry/warp_perspective.cpp). */
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveBack_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[3][3], int interpolation);

/* Perspective warp that takes srcQuad to dstQuad; only pixels inside dstQuad too are
   written; a degenerate srcQuad or dstQuad gives lumStatusQuadErr
   (src/geometry/warp_perspective.cpp). */
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpPerspectiveQuad_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);

/* Bilinear warp: (x, y) goes to (c00 xy + c01 x + c02 y + c03, c10 xy + c11 x + c12 y + c13);
   each destination pixel's source position solves that quadratic (the root inside the source
   ROI) (src/geometry/warp_bilinear.cpp). */
LUMI_API LumStatus lumiWarpBilinear_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinear_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);

/* Bilinear warp given destination-to-source coefficients, which sample directly; the
   covered quadrangle joins the destination points of the four source ROI corners (found by
   solving the quadratic), so near strongly curved sides it may differ from the exact preimage
   by a pixel (src/geometry/warp_bilinear.cpp). */
LUMI_API LumStatus lumiWarpBilinearBack_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);
LUMI_API LumStatus lumiWarpBilinearBack_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double coeffs[2][4], int interpolation);

/* Bilinear warp that takes the corners of srcQuad to those of dstQuad (the bilinear map in
   source coordinates through the four corner pairs; lumStatusQuadErr when a quadrangle is
   degenerate or no such map exists); only pixels inside dstQuad too are written
   (src/geometry/warp_bilinear.cpp). */
LUMI_API LumStatus lumiWarpBilinearQuad_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* pDst, int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);
LUMI_API LumStatus lumiWarpBilinearQuad_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, const double srcQuad[4][2], Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, const double dstQuad[4][2], int interpolation);

#ifdef __cplusplus
}
#endif
#endif
