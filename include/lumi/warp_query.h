/* Lumi: geometric queries of the warps (corner quadrangles, bounding boxes, coefficients).
 *
 * A quadrangle is the image of the inclusive corners of a ROI, in the order top-left,
 * top-right, bottom-right, bottom-left: (x0, y0), (x1, y0), (x1, y1), (x0, y1) with
 * x1 = x + width - 1 and y1 = y + height - 1. A bound is {minX, minY; maxX, maxY} of such a
 * quadrangle. Affine coefficients map (x, y) to (c00 x + c01 y + c02, c10 x + c11 y + c12);
 * perspective ones divide the first two rows by c20 x + c21 y + c22; bilinear ones give
 * x' = c00 xy + c01 x + c02 y + c03 and y' likewise from the second row.
 *
 * Every query checks its pointers first (lumStatusNullPtrErr), then the ROI (origin below zero
 * or a side below one: lumStatusSizeErr). A quadrangle whose corner test finds a zero-length
 * or collinear edge, a turn against the others (crossed or folded) or a coordinate that is
 * not finite is degenerate: the Quad and Bound queries then return lumStatusCoeffErr with
 * their result still filled. Angles are in degrees; rotations by a multiple of 90 degrees use
 * exact sines and cosines. */
#ifndef LUMI_WARP_QUERY_H
#define LUMI_WARP_QUERY_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Affine: the quadrangle and bound of a ROI under coeffs; the coefficients that take the ROI
   corners to quad (lumStatusQuadErr for a degenerate quad, then lumStatusRectErr for a ROI one
   pixel wide or high; lumStatusAffineQuadChangedWarn when opposite sides of quad are not
   parallel, the coefficients then coming from its first three corners)
   (src/geometry/warp_query.cpp). */
LUMI_API LumStatus lumiGetAffineQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[2][3]);
LUMI_API LumStatus lumiGetAffineBound(LumiRect srcRoi, double bound[2][2], const double coeffs[2][3]);
LUMI_API LumStatus lumiGetAffineTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[2][3]);

/* Rotation by angle about the origin followed by (xShift, yShift): coefficients
   {cos a, sin a, xShift; -sin a, cos a, yShift}. GetRotateShift gives the shifts that keep
   (xCenter, yCenter) in place; AddRotateShift adds them to the shifts given
   (src/geometry/warp_query.cpp). */
LUMI_API LumStatus lumiGetRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift);
LUMI_API LumStatus lumiAddRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift);
LUMI_API LumStatus lumiGetRotateQuad(LumiRect srcRoi, double quad[4][2], double angle, double xShift, double yShift);
LUMI_API LumStatus lumiGetRotateBound(LumiRect srcRoi, double bound[2][2], double angle, double xShift, double yShift);

/* Shear: coefficients {1, xShear, xShift; yShear, 1, yShift} (src/geometry/warp_query.cpp). */
LUMI_API LumStatus lumiGetShearQuad(LumiRect srcRoi, double quad[4][2], double xShear, double yShear, double xShift, double yShift);
LUMI_API LumStatus lumiGetShearBound(LumiRect srcRoi, double bound[2][2], double xShear, double yShear, double xShift, double yShift);

/* Perspective: quadrangle, bound, and the coefficients (c22 scaled to 1 where it is not zero)
   that take the ROI corners to quad (lumStatusQuadErr for a degenerate quad, then
   lumStatusRectErr for a ROI one pixel wide or high) (src/geometry/warp_query.cpp). */
LUMI_API LumStatus lumiGetPerspectiveQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[3][3]);
LUMI_API LumStatus lumiGetPerspectiveBound(LumiRect srcRoi, double bound[2][2], const double coeffs[3][3]);
LUMI_API LumStatus lumiGetPerspectiveTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[3][3]);

/* Bilinear: quadrangle, bound, and the coefficients that take the ROI corners to quad (any
   quad, degenerate ones included; lumStatusRectErr for a ROI one pixel wide or high, where no
   bilinear map is determined) (src/geometry/warp_query.cpp). */
LUMI_API LumStatus lumiGetBilinearQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[2][4]);
LUMI_API LumStatus lumiGetBilinearBound(LumiRect srcRoi, double bound[2][2], const double coeffs[2][4]);
LUMI_API LumStatus lumiGetBilinearTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[2][4]);

#ifdef __cplusplus
}
#endif
#endif
