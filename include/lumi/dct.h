/* Lumi: discrete cosine transforms, 8x8 blocks and any size.
 *
 * Every member computes the orthonormal 2-D DCT-II or its inverse (its transpose):
 * F(u, v) = 1/4 C(u) C(v) sum_x sum_y f(x, y) cos((2x + 1) u pi / 16) cos((2y + 1) v pi / 16)
 * for an 8x8 block (x column, y row, C(0) = 1/sqrt(2), C(k) = 1 otherwise), so F(0, 0) is one
 * eighth of the block sum and forward then inverse returns the input. The general transform
 * uses the same scaling for any length N (weights sqrt(1/N) for k = 0 and sqrt(2/N) otherwise),
 * rows then columns.
 *
 * Blocks of the members without R are 64 contiguous elements in row order; R members take a
 * row step in bytes for the image side. The 8x8 members check pointers (lumStatusNullPtrErr)
 * and, for R members, steps below 1 (lumStatusStepErr); nothing else. 16-bit results are
 * rounded (ties up) and saturated. */
#ifndef LUMI_DCT_H
#define LUMI_DCT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Opaque record of the general transform, made by lumiDCTFwdInitAlloc_32f or
   lumiDCTInvInitAlloc_32f; read-only while transforms run, so several threads may share one,
   each with its own work buffer. */
typedef struct LumiDCTSpec LumiDCTSpec;

/* 8x8 float blocks (src/transform/dct8x8.cpp). */
LUMI_API LumStatus lumiDCT8x8Fwd_32f_C1(const Lum32f* pSrc, Lum32f* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_32f_C1(const Lum32f* pSrc, Lum32f* pDst);
LUMI_API LumStatus lumiDCT8x8Fwd_32f_C1I(Lum32f* pSrcDst);
LUMI_API LumStatus lumiDCT8x8Inv_32f_C1I(Lum32f* pSrcDst);

/* 8x8 16-bit fixed-point blocks: cosine constants with 14 fraction bits, results within 2 of
   the exact transform rounded. 8u16s takes pixels as they are (no level shift); FwdLS stores
   each pixel plus addVal as 16 bits (wrapping) and transforms that; 16s8u saturates to 0..255;
   InvLSClip adds addVal to each inverse value (16-bit wrapping) and clamps it to
   [clipDown, clipUp] (src/transform/dct8x8.cpp). */
LUMI_API LumStatus lumiDCT8x8Fwd_16s_C1(const Lum16s* pSrc, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_16s_C1(const Lum16s* pSrc, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Fwd_16s_C1I(Lum16s* pSrcDst);
LUMI_API LumStatus lumiDCT8x8Inv_16s_C1I(Lum16s* pSrcDst);
LUMI_API LumStatus lumiDCT8x8Fwd_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_16s_C1R(const Lum16s* pSrc, Lum16s* pDst, int dstStep);
LUMI_API LumStatus lumiDCT8x8Fwd_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_16s8u_C1R(const Lum16s* pSrc, Lum8u* pDst, int dstStep);
LUMI_API LumStatus lumiDCT8x8FwdLS_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst, Lum16s addVal);
LUMI_API LumStatus lumiDCT8x8InvLSClip_16s8u_C1R(const Lum16s* pSrc, Lum8u* pDst, int dstStep, Lum16s addVal, Lum8u clipDown, Lum8u clipUp);

/* Reduced inverses of sparse blocks: only the top-left 2x2 or 4x4 coefficients are read (the
   others are taken as zero); results within 1 of the exact inverse rounded
   (src/transform/dct8x8.cpp). */
LUMI_API LumStatus lumiDCT8x8Inv_2x2_16s_C1(const Lum16s* pSrc, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_2x2_16s_C1I(Lum16s* pSrcDst);
LUMI_API LumStatus lumiDCT8x8Inv_4x4_16s_C1(const Lum16s* pSrc, Lum16s* pDst);
LUMI_API LumStatus lumiDCT8x8Inv_4x4_16s_C1I(Lum16s* pSrcDst);

/* Zigzag scan of an 8x8 block: forward pDst[i] = pSrc[scan[i]], inverse pDst[scan[i]] =
   pSrc[i], scan = 0, 1, 8, 16, 9, 2, 3, 10, ... 63 (src/transform/dct8x8.cpp). */
LUMI_API LumStatus lumiZigzagFwd8x8_16s_C1(const Lum16s* pSrc, Lum16s* pDst);
LUMI_API LumStatus lumiZigzagInv8x8_16s_C1(const Lum16s* pSrc, Lum16s* pDst);

/* General records. InitAlloc checks ppSpec (lumStatusNullPtrErr), the size (lumStatusSizeErr),
   then allocation (lumStatusMemAllocErr). Free and GetBufSize check the record pointer (and
   pSize) for null and the record's kind (lumStatusContextMismatchErr). The work buffer holds
   16 x W x H + 16 bytes for an 8x8 record, 16 x W + the row engine's buffer + 16 when W = H,
   otherwise max(16 x W + row engine, 16 x H + column engine) + 16 (src/transform/dct.cpp). */
LUMI_API LumStatus lumiDCTFwdInitAlloc_32f(LumiDCTSpec** ppSpec, LumiSize roiSize, int hint);
LUMI_API LumStatus lumiDCTInvInitAlloc_32f(LumiDCTSpec** ppSpec, LumiSize roiSize, int hint);
LUMI_API LumStatus lumiDCTFwdFree_32f(LumiDCTSpec* pSpec);
LUMI_API LumStatus lumiDCTInvFree_32f(LumiDCTSpec* pSpec);
LUMI_API LumStatus lumiDCTFwdGetBufSize_32f(const LumiDCTSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiDCTInvGetBufSize_32f(const LumiDCTSpec* pSpec, int* pSize);

/* General transform of the record's size. Checks, in this order: pSpec null
   (lumStatusNullPtrErr), a record of the other kind (lumStatusContextMismatchErr), pSrc or
   pDst null (lumStatusNullPtrErr), a step below 1 (lumStatusStepErr). pBuffer (any alignment)
   may be null: the call then allocates the work buffer itself (lumStatusMemAllocErr when that
   fails). 8x8 records give exactly the 8x8 block results. Multi-channel members transform
   each channel; AC4 leaves the destination's fourth channel untouched
   (src/transform/dct.cpp). */
LUMI_API LumStatus lumiDCTFwd_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTFwd_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTFwd_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTFwd_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTInv_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTInv_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTInv_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDCTInv_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDCTSpec* pSpec, Lum8u* pBuffer);

#ifdef __cplusplus
}
#endif
#endif
