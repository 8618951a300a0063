/* Lumi: pointwise maths. */
#ifndef LUMI_MATHFN_H
#define LUMI_MATHFN_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Abs: absolute value; |-32768| of 16s saturates to 32767 (src/arith/pointwise_basic.cpp) */
LUMI_API LumStatus lumiAbs_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAbs_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);

/* Exp: e^x, scaled by 2^-scaleFactor for the integer types (src/arith/pointwise_scaled.cpp) */
LUMI_API LumStatus lumiExp_16s_C1IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_16s_C3IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiExp_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiExp_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiExp_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiExp_8u_C1IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_8u_C3IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiExp_8u_C3RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Ln: natural logarithm; a negative sample gives lumStatusDomainWarn (src/arith/pointwise_scaled.cpp) */
LUMI_API LumStatus lumiLn_16s_C1IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_16s_C3IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLn_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLn_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLn_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLn_8u_C1IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_8u_C3IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiLn_8u_C3RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* MulCScale: src x value / the type maximum, exactly (src/arith/pointwise_basic.cpp) */
LUMI_API LumStatus lumiMulCScale_16u_AC4IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C1IR(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C3IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C4IR(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_AC4IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C1IR(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C3IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C4IR(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulCScale_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);

/* MulScale: src1 x src2 / the type maximum, exactly (src/arith/pointwise_basic.cpp) */
LUMI_API LumStatus lumiMulScale_16u_AC4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C1IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C3IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_AC4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C1IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C3IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulScale_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);

/* Sqr: x^2 (32f: src/arith/pointwise_basic.cpp; 8u, 16u, 16s scaled by 2^-scaleFactor: src/arith/pointwise_scaled.cpp) */
LUMI_API LumStatus lumiSqr_16s_AC4IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C1IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C3IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C4IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16s_C4RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_AC4IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C1IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C3IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C3RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C4IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_16u_C4RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqr_8u_AC4IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C1IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C3IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C3RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C4IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqr_8u_C4RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Sqrt: square root; a negative sample gives lumStatusDomainWarn (32f: src/arith/pointwise_basic.cpp; 8u, 16u, 16s scaled by 2^-scaleFactor: src/arith/pointwise_scaled.cpp) */
LUMI_API LumStatus lumiSqrt_16s_AC4IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16s_AC4RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16s_C1IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16s_C3IRSfs(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_AC4IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_AC4RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_C1IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_C1RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_C3IRSfs(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_16u_C3RSfs(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSqrt_8u_AC4IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_8u_AC4RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_8u_C1IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_8u_C1RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_8u_C3IRSfs(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSqrt_8u_C3RSfs(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

#ifdef __cplusplus
}
#endif
#endif
