/* Lumi: resizing.
 *
 * Every member scales a source ROI by independent horizontal and vertical factors (destination
 * size over source size) into a destination region. pSrc points at the first pixel of the
 * source image (srcSize pixels, srcStep bytes per row) and srcRoi selects the part that is
 * scaled; pDst points at the first destination pixel. Types 8u, 16u and 32f; layouts C1, C3,
 * C4, AC4 (the destination's fourth channel is left as it was) and planar P3, P4 (arrays of
 * plane pointers sharing one step; every plane gives what the C1 member gives for it).
 *
 * Interpolation: lumInterpNearest, lumInterpLinear, lumInterpCubic, lumInterpLanczos, and
 * lumInterpSuper (area averaging) for Resize and ResizeCenter when both factors are at most 1.
 * Small source images lower the mode (judged on srcSize, not the ROI): width or height below 8
 * turns Lanczos into cubic, below 4 cubic into linear, below 2 any mode into nearest.
 *
 * Validation, first failure returned: pSrc or pDst null (lumStatusNullPtrErr); srcSize below
 * 1, srcRoi origin negative or srcRoi size below 1 (lumStatusSizeErr); srcRoi origin outside
 * the image (the warning lumStatusNoIntersectionWarn, nothing written); dstRoiSize below 1
 * (lumStatusSizeErr); a factor not above 0 or NaN (lumStatusResizeFactorErr); an unknown mode
 * (lumStatusInterpolationErr). Steps are not checked. The ROI is cut to the image.
 *
 * Destination count (columns; rows alike, w the cut ROI width): nx = trunc(w xFactor + 1e-7),
 * at most dstRoiSize.width; below 1 it is 1 when w xFactor + 1e-7 >= 0.5, otherwise the call
 * fails with lumStatusResizeDegenerateErr. Pixels beyond the count are never written.
 *
 * Mapping of destination column i to the source column x relative to the ROI origin (rows
 * alike): nearest x = (i + 0.5) / xFactor, read column floor(x + 1e-7); other modes
 * x = i (w - 1) / (w xFactor - 1) (0 when w xFactor <= 1), so the first and last pixels of
 * the scaled ROI fall on the first and last ROI pixels, with index floor(x + 1e-7) and
 * fraction x - index. Taps may lie outside the ROI but never outside the image:
 *  - linear: taps index, index + 1 with weights 1 - f, f; at the image's last column the taps
 *    move one left with f = 1. 8u and 16u use 14-bit weights w = trunc(f 16384 + 1e-7) and
 *    16384 - w. 8u: each row gives h = (p0 (16384 - wx) + p1 wx) >> 8 and the result is
 *    (h0 (16384 - wy) + h1 wy + 2^19) >> 20. 16u: h = p0 (16384 - wx) + p1 wx and the result
 *    is (h0 (16384 - wy) + h1 wy + 2^27) >> 28. Both round half up; no saturation is needed.
 *  - cubic: the Lagrange cubic through four taps index - 1 .. index + 2 in its Newton form, in
 *    single precision, first along each source row, then down the columns; next to the image
 *    edge the taps shift inwards (first column: taps 0..3; the column before last: the last four;
 *    the last column: the last four with the position on the last tap, reproducing it).
 *  - Lanczos: six taps index - 2 .. index + 3 with weights of the three-lobe Lanczos window read
 *    from a table of 1/100 steps with linear interpolation and normalised to sum 1; taps outside
 *    the image repeat its edge pixel.
 *  - super: the area average of the source pixels the destination pixel covers,
 *    [i / xFactor, (i + 1) / xFactor) by the same in rows.
 * Integer results of cubic, Lanczos and super: trunc(v + 0.5000001) saturated to the type;
 * 32f results are stored as computed.
 */
#ifndef LUMI_RESIZE_H
#define LUMI_RESIZE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Resize: factors are destination size over source size (src/geometry/resize.cpp). */
LUMI_API LumStatus lumiResize_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);
LUMI_API LumStatus lumiResize_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);

/* ResizeCenter: the source point (xCenter, yCenter) lands on the centre of the destination
   region, destination = (source - centre) factor + dstRoiSize / 2 (halves in real arithmetic).
   Validation: pDst null, then the sizes, the ROI origin (warning), dstRoiSize, the factors,
   then pSrc null, then the mode. When the scaled ROI misses the destination region the call
   returns lumStatusNoIntersectionWarn with nothing written (src/geometry/resize.cpp). */
LUMI_API LumStatus lumiResizeCenter_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);
LUMI_API LumStatus lumiResizeCenter_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, double xCenter, double yCenter, int interpolation);

/* ResizeShift: xFr, yFr are source steps per destination pixel (as lumiGetResizeFract gives
   them) and xShift, yShift a source offset added to every position: nearest x = xShift +
   (i + 0.5) xFr, other modes x = xShift + i xFr. Count: q = trunc(w / xFr + 1e-7) for nearest
   and the count is min(q, dstRoiSize.width), at least 1; other modes q = trunc((w - 1) / xFr +
   1e-7), the count is q + 1 when q < dstRoiSize.width - 1, else dstRoiSize.width. A step of 0
   (what lumiGetResizeFract gives when the scaled ROI is at most one pixel) writes one pixel;
   a negative or NaN step is lumStatusResizeFactorErr and lumInterpSuper is not accepted.
   Positions outside the image take its edge pixels. With the steps of lumiGetResizeFract and
   no shift the result is that of lumiResize; src/geometry/resize.cpp. */
LUMI_API LumStatus lumiResizeShift_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);
LUMI_API LumStatus lumiResizeShift_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiSize dstRoiSize, double xFr, double yFr, double xShift, double yShift, int interpolation);

/* GetResizeFract: the steps that make lumiResizeShift reproduce lumiResize, after the same
   lowering of the mode for small images: nearest 1 / factor, other modes (w - 1) /
   (w factor - 1), or 0 when w factor <= 1. Validation: sizes, ROI origin (warning), factors,
   null outputs, mode (src/geometry/resize.cpp). */
LUMI_API LumStatus lumiGetResizeFract(LumiSize srcSize, LumiRect srcRoi, double xFactor, double yFactor, double* xFr, double* yFr, int interpolation);

/* ResizeSqrPixel: square-pixel geometry. The centre of destination pixel x (x + 0.5) comes
   from the source position (x + 0.5 - xShift) / xFactor - 0.5, both in whole-image
   coordinates (pSrc and pDst point at the images' first pixels), rows alike. Only the
   source ROI is read: taps beyond it repeat its edge pixels, and a destination pixel inside
   dstRoi is written only when its centre maps inside the ROI's area [x, x + width) x
   [y, y + height) (edge coordinates). All five modes, super for factors at most 1. The ROI
   is cut to the image and the mode lowered for small ROIs like lumiResize does for small
   images. pBuffer holds at least lumiResizeSqrPixelGetBufSize bytes for dstRoi's size, the
   channel count (1, 3 or 4; planar: 1) and the mode: the coordinate tables go there (those of
   super-sampling, sized by the factors, and the row buffers are taken per call). Validation: pointers (pBuffer too),
   sizes (srcSize, srcRoi, dstRoi: negative origin or size below 1), ROI origin outside the
   image (warning), factors, mode; no destination pixel mapping into the ROI returns
   lumStatusNoIntersectionWarn (src/geometry/resize_sqr.cpp). */
LUMI_API LumStatus lumiResizeSqrPixelGetBufSize(LumiSize dstSize, int nChannel, int interpolation, int* pBufSize);
LUMI_API LumStatus lumiResizeSqrPixel_8u_C1R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_8u_C3R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_8u_C4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_8u_AC4R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_8u_P3R(const Lum8u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[3], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_8u_P4R(const Lum8u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* const pDst[4], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_C1R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_C3R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_C4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_AC4R(const Lum16u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_P3R(const Lum16u* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[3], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_16u_P4R(const Lum16u* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum16u* const pDst[4], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_C3R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_C4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_AC4R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* pDst, int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_P3R(const Lum32f* const pSrc[3], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[3], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);
LUMI_API LumStatus lumiResizeSqrPixel_32f_P4R(const Lum32f* const pSrc[4], LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum32f* const pDst[4], int dstStep, LumiRect dstRoi, double xFactor, double yFactor, double xShift, double yShift, int interpolation, Lum8u* pBuffer);

/* ResizeYUV422: two-channel 4:2:2 pixels Y0 U Y1 V: luma is resized at full and chroma (U and
   V as half-width images) at half horizontal resolution, with lumiResize's counts, mapping
   and rules, except that taps stay inside the source ROI (cut to the image) and small ROIs
   lower the mode; nearest, linear and cubic. The destination count is rounded down to an even
   number of pixels (at least 2). An odd source ROI width or x, or a destination narrower than
   2 pixels, is lumStatusSizeErr (src/geometry/resize_sqr.cpp). */
LUMI_API LumStatus lumiResizeYUV422_8u_C2R(const Lum8u* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, double xFactor, double yFactor, int interpolation);

#ifdef __cplusplus
}
#endif
#endif
