/* Lumi: compare, logic and shifts. */
#ifndef LUMI_COMPARE_H
#define LUMI_COMPARE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Compare (src/threshold/compare.cpp): pDst, one channel of 8u, is 255 where the relation
   cmpOp holds between src1 and src2 (CompareC: between src and the constant value) on every
   processed channel, else 0; a relation with a NaN operand is false. AC4 ignores alpha. Checks
   pointers, steps, size; an operation outside lumCmpLess..lumCmpGreater then succeeds without
   writing anything. */
LUMI_API LumStatus lumiCompare_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s value, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_16s_C3R(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_16s_C4R(const Lum16s* pSrc, int srcStep, const Lum16s value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_16s_AC4R(const Lum16s* pSrc, int srcStep, const Lum16s value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompare_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);
LUMI_API LumStatus lumiCompareC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, LumCompareOp cmpOp);

/* Equality within a tolerance (src/threshold/compare.cpp): 255 where |src1 - src2| <= eps (or
   |src - value|) on every processed channel, else 0 (NaN: 0). Checks pointers, steps, size, then
   eps, which must be at least zero (lumStatusEpsilonErr, also for NaN). */
LUMI_API LumStatus lumiCompareEqualEps_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEpsC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEps_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEpsC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEps_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEpsC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEps_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);
LUMI_API LumStatus lumiCompareEqualEpsC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f eps);

/* Bitwise and of two images, or of an image and a constant (AndC) (src/threshold/logic.cpp); in
   place the srcDst image is the second operand. AC4 leaves alpha as it was. Checks pointers,
   steps, size. */
LUMI_API LumStatus lumiAnd_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_C1IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C1IR(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_C3IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C3IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_C4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_C4IR(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_8u_AC4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_8u_AC4IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C1IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C1IR(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C3IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C3IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_C4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_C4IR(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_16u_AC4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_16u_AC4IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C1R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C1IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C1IR(Lum32s value, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C3R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C3IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C3R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C3IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_C4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C4R(const Lum32s* pSrc, int srcStep, const Lum32s value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_C4IR(const Lum32s value[4], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_AC4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAnd_32s_AC4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_AC4R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAndC_32s_AC4IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Bitwise or, as And (src/threshold/logic.cpp). */
LUMI_API LumStatus lumiOr_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_C1IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C1IR(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_C3IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C3IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_C4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_C4IR(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_8u_AC4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_8u_AC4IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C1IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C1IR(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C3IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C3IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_C4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_C4IR(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_16u_AC4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_16u_AC4IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C1R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C1IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C1IR(Lum32s value, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C3R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C3IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C3R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C3IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_C4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C4R(const Lum32s* pSrc, int srcStep, const Lum32s value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_C4IR(const Lum32s value[4], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_AC4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOr_32s_AC4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_AC4R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiOrC_32s_AC4IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Bitwise exclusive or, as And (src/threshold/logic.cpp). */
LUMI_API LumStatus lumiXor_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_C1IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C1IR(Lum8u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_C3IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C3IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_C4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_C4IR(const Lum8u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_8u_AC4IR(const Lum8u* pSrc, int srcStep, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_8u_AC4IR(const Lum8u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C1IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C1IR(Lum16u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C3IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C3IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_C4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_C4IR(const Lum16u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_16u_AC4IR(const Lum16u* pSrc, int srcStep, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_16u_AC4IR(const Lum16u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C1R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C1IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C1IR(Lum32s value, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C3R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C3IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C3R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C3IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_C4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C4R(const Lum32s* pSrc, int srcStep, const Lum32s value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_C4IR(const Lum32s value[4], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_AC4R(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXor_32s_AC4IR(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_AC4R(const Lum32s* pSrc, int srcStep, const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiXorC_32s_AC4IR(const Lum32s value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Not (src/threshold/logic.cpp): every bit of the processed channels flipped. */
LUMI_API LumStatus lumiNot_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiNot_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Left shift by a constant count per channel (src/threshold/shift.cpp): a count of at least the
   bit width gives 0. AC4 leaves alpha as it was. Checks pointers, steps, size. */
LUMI_API LumStatus lumiLShiftC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum32u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_C1IR(Lum32u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum32u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_C3IR(const Lum32u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum32u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_C4IR(const Lum32u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum32u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_8u_AC4IR(const Lum32u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C1R(const Lum16u* pSrc, int srcStep, Lum32u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C1IR(Lum32u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum32u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C3IR(const Lum32u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum32u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_C4IR(const Lum32u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum32u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_16u_AC4IR(const Lum32u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32u value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C1IR(Lum32u value, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C3R(const Lum32s* pSrc, int srcStep, const Lum32u value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C3IR(const Lum32u value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C4R(const Lum32s* pSrc, int srcStep, const Lum32u value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_C4IR(const Lum32u value[4], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_AC4R(const Lum32s* pSrc, int srcStep, const Lum32u value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiLShiftC_32s_AC4IR(const Lum32u value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Right shift by a constant count per channel (src/threshold/shift.cpp), arithmetic for the
   signed types: a count of at least the bit width gives 0, or the sign in every bit for the
   signed types. */
LUMI_API LumStatus lumiRShiftC_8u_C1R(const Lum8u* pSrc, int srcStep, Lum32u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_C1IR(Lum32u value, Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_C3R(const Lum8u* pSrc, int srcStep, const Lum32u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_C3IR(const Lum32u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_C4R(const Lum8u* pSrc, int srcStep, const Lum32u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_C4IR(const Lum32u value[4], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_AC4R(const Lum8u* pSrc, int srcStep, const Lum32u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8u_AC4IR(const Lum32u value[3], Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C1R(const Lum8s* pSrc, int srcStep, Lum32u value, Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C1IR(Lum32u value, Lum8s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C3R(const Lum8s* pSrc, int srcStep, const Lum32u value[3], Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C3IR(const Lum32u value[3], Lum8s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C4R(const Lum8s* pSrc, int srcStep, const Lum32u value[4], Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_C4IR(const Lum32u value[4], Lum8s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_AC4R(const Lum8s* pSrc, int srcStep, const Lum32u value[3], Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_8s_AC4IR(const Lum32u value[3], Lum8s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C1R(const Lum16u* pSrc, int srcStep, Lum32u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C1IR(Lum32u value, Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C3R(const Lum16u* pSrc, int srcStep, const Lum32u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C3IR(const Lum32u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C4R(const Lum16u* pSrc, int srcStep, const Lum32u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_C4IR(const Lum32u value[4], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_AC4R(const Lum16u* pSrc, int srcStep, const Lum32u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16u_AC4IR(const Lum32u value[3], Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C1R(const Lum16s* pSrc, int srcStep, Lum32u value, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C1IR(Lum32u value, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C3R(const Lum16s* pSrc, int srcStep, const Lum32u value[3], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C3IR(const Lum32u value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C4R(const Lum16s* pSrc, int srcStep, const Lum32u value[4], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_C4IR(const Lum32u value[4], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_AC4R(const Lum16s* pSrc, int srcStep, const Lum32u value[3], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_16s_AC4IR(const Lum32u value[3], Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32u value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C1IR(Lum32u value, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C3R(const Lum32s* pSrc, int srcStep, const Lum32u value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C3IR(const Lum32u value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C4R(const Lum32s* pSrc, int srcStep, const Lum32u value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_C4IR(const Lum32u value[4], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_AC4R(const Lum32s* pSrc, int srcStep, const Lum32u value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiRShiftC_32s_AC4IR(const Lum32u value[3], Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

/* Complement (src/threshold/logic.cpp): negative samples rewritten from two's complement into
   sign-and-magnitude form (the most negative value keeps its code). */
LUMI_API LumStatus lumiComplement_32s_C1IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize);

#ifdef __cplusplus
}
#endif
#endif
