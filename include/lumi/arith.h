/* Lumi: integer arithmetic with scale factors.
 *
 * Every function computes the exact integer result, multiplies it by 2^-scaleFactor, rounds
 * ties to even and saturates to the pixel type. The integer members check pointers
 * (lumStatusNullPtrErr) and sizes (lumStatusSizeErr); only some of them check steps. */
#ifndef LUMI_ARITH_H
#define LUMI_ARITH_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Add: src1 + src2; in place the srcDst image is src2 (src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiAdd_8u_C1RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_C3RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_AC4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_C4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_C1IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_C3IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_AC4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_8u_C4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C1RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C3RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_AC4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C1IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C3IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_AC4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16u_C4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C1RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C3RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_AC4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C1IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C3IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_AC4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16s_C4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* Sub: src2 - src1; in place the srcDst image is src2 (src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiSub_8u_C1RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_C3RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_AC4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_C4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_C1IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_C3IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_AC4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_8u_C4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C1RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C3RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_AC4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C1IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C3IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_AC4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16u_C4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C1RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C3RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_AC4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C1IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C3IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_AC4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16s_C4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* Mul: src1 x src2; in place the srcDst image is src2 (src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiMul_8u_C1RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_C3RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_AC4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_C4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_C1IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_C3IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_AC4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_8u_C4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C1RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C3RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_AC4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C1IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C3IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_AC4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16u_C4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C1RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C3RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_AC4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C1IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C3IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_AC4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16s_C4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* Div: src2 / src1; a zero divisor gives lumStatusDivByZeroWarn; in place the srcDst image is src2 (src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiDiv_8u_C1RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_C3RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_AC4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_C4RSfs(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_C1IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_C3IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_AC4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_8u_C4IRSfs(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C1RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C3RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_AC4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C4RSfs(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C1IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C3IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_AC4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16u_C4IRSfs(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C1RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C3RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_AC4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C1IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C3IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_AC4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16s_C4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* AddC: src + value (C3 and AC4 take 3 channel values, C4 takes 4; src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiAddC_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_C3RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_C4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_C1IRSfs(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_C3IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_8u_C4IRSfs(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C3RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C1IRSfs(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C3IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16u_C4IRSfs(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C3RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C1IRSfs(Lum16s value, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C3IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16s_C4IRSfs(const Lum16s value[4], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* SubC: src - value (C3 and AC4 take 3 channel values, C4 takes 4; src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiSubC_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_C3RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_C4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_C1IRSfs(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_C3IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_8u_C4IRSfs(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C3RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C1IRSfs(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C3IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16u_C4IRSfs(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C3RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C1IRSfs(Lum16s value, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C3IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16s_C4IRSfs(const Lum16s value[4], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* MulC: src x value (C3 and AC4 take 3 channel values, C4 takes 4; src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiMulC_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_C3RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_C4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_C1IRSfs(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_C3IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_8u_C4IRSfs(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C3RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C1IRSfs(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C3IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16u_C4IRSfs(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C3RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C1IRSfs(Lum16s value, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C3IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16s_C4IRSfs(const Lum16s value[4], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

/* DivC: src / value; any zero channel of value gives lumStatusDivisorZeroErr (C3 and AC4 take 3 channel values, C4 takes 4; src/arith/scaled_arith.cpp). */
LUMI_API LumStatus lumiDivC_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_C3RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_C4RSfs(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_C1IRSfs(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_C3IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_8u_C4IRSfs(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C3RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C4RSfs(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C1IRSfs(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C3IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16u_C4IRSfs(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C3RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C4RSfs(const Lum16s* pSrc, int srcStep, const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C1IRSfs(Lum16s value, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C3IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16s_C4IRSfs(const Lum16s value[4], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);

#ifdef __cplusplus
}
#endif
#endif
