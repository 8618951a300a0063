/* Lumi: type conversion and scaling.
 *
 * Members check pointers (lumStatusNullPtrErr), then sizes (lumStatusSizeErr), then steps
 * (lumStatusStepErr; not the 8u1u member), and write nothing when a check fails; AC4 members
 * leave the fourth (alpha) channel of the destination as it was. */
#ifndef LUMI_CONVERT_H
#define LUMI_CONVERT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Convert: exact widening and saturating narrowing (src/convert/convert.cpp). */
LUMI_API LumStatus lumiConvert_8u16u_C1R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16u_C3R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16u_AC4R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16u_C4R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16s_C3R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16s_AC4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u16s_C4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32s_C1R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32s_C3R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32s_AC4R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32s_C4R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32f_C1R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32f_C3R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32f_AC4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8u32f_C4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32s_C1R(const Lum8s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32s_C3R(const Lum8s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32s_AC4R(const Lum8s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32s_C4R(const Lum8s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32f_C1R(const Lum8s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32f_C3R(const Lum8s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32f_AC4R(const Lum8s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_8s32f_C4R(const Lum8s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32s_C1R(const Lum16u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32s_C3R(const Lum16u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32s_AC4R(const Lum16u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32s_C4R(const Lum16u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32f_C1R(const Lum16u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32f_C3R(const Lum16u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32f_AC4R(const Lum16u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u32f_C4R(const Lum16u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s32f_C1R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s32f_C3R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s32f_AC4R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s32f_C4R(const Lum16s* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u8u_C1R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u8u_C3R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u8u_AC4R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16u8u_C4R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s8u_C1R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s8u_C3R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s8u_AC4R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_16s8u_C4R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8u_C1R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8u_C3R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8u_AC4R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8u_C4R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8s_C1R(const Lum32s* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8s_C3R(const Lum32s* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8s_AC4R(const Lum32s* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiConvert_32s8s_C4R(const Lum32s* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize);

/* Convert: float to integer with saturation; roundMode lumRndNear rounds to nearest (ties to
   even), any other value truncates toward zero (src/convert/convert.cpp). */
LUMI_API LumStatus lumiConvert_32f8u_C1R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8u_C3R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8u_AC4R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8u_C4R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8s_C1R(const Lum32f* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8s_C3R(const Lum32f* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8s_AC4R(const Lum32f* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f8s_C4R(const Lum32f* pSrc, int srcStep, Lum8s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16u_C1R(const Lum32f* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16u_C3R(const Lum32f* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16u_AC4R(const Lum32f* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16u_C4R(const Lum32f* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16s_C1R(const Lum32f* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16s_C3R(const Lum32f* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16s_AC4R(const Lum32f* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int roundMode);
LUMI_API LumStatus lumiConvert_32f16s_C4R(const Lum32f* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int roundMode);

/* Convert: bytes to bit-packed binary rows (error-diffused) and back; bits run most significant
   first, a row may start at a bit offset (src/convert/convert_bits.cpp). */
LUMI_API LumStatus lumiConvert_8u1u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, int dstBitOffset, LumiSize roiSize, Lum8u threshold);
LUMI_API LumStatus lumiConvert_1u8u_C1R(const Lum8u* pSrc, int srcStep, int srcBitOffset, Lum8u* pDst, int dstStep, LumiSize roiSize);

/* Scale: linear maps between the full ranges of two types; the 32f members map [vMin, vMax]
   and check it first (lumStatusScaleRangeErr) (src/convert/scale.cpp). */
LUMI_API LumStatus lumiScale_8u16u_C1R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16u_C3R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16u_AC4R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16u_C4R(const Lum8u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16s_C3R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16s_AC4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u16s_C4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u32s_C1R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u32s_C3R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u32s_AC4R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u32s_C4R(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiScale_8u32f_C1R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_8u32f_C3R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_8u32f_AC4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_8u32f_C4R(const Lum8u* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_16u8u_C1R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16u8u_C3R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16u8u_AC4R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16u8u_C4R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16s8u_C1R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16s8u_C3R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16s8u_AC4R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_16s8u_C4R(const Lum16s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_32s8u_C1R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_32s8u_C3R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_32s8u_AC4R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_32s8u_C4R(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, LumAccuracyHint hint);
LUMI_API LumStatus lumiScale_32f8u_C1R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_32f8u_C3R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_32f8u_AC4R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);
LUMI_API LumStatus lumiScale_32f8u_C4R(const Lum32f* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f vMin, Lum32f vMax);

#ifdef __cplusplus
}
#endif
#endif
