/* Lumi: floating-point and complex arithmetic. */
#ifndef LUMI_ARITHF_H
#define LUMI_ARITHF_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* AddC: src + value; C3 and AC4 take 3 channel values, C4 takes 4 (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiAddC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16sc_AC4RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16sc_C1IRSfs(Lum16sc value, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16sc_C1RSfs(const Lum16sc* pSrc, int srcStep, Lum16sc value, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_16sc_C3RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32f_AC4IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C1IR(Lum32f value, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C3IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C4IR(const Lum32f value[4], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_AC4R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_C1IR(Lum32fc value, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc value, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_C3IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32fc_C3R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAddC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32sc_AC4RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32sc_C1IRSfs(Lum32sc value, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32sc_C1RSfs(const Lum32sc* pSrc, int srcStep, Lum32sc value, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAddC_32sc_C3RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Add: src1 + src2; in place the srcDst image is src2 (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiAdd_16sc_AC4IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16sc_AC4RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16sc_C1IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16sc_C1RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16sc_C3IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_16sc_C3RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_AC4IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_AC4R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_C1IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_C1R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_C3IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32fc_C3R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiAdd_32sc_AC4IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32sc_AC4RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32sc_C1IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32sc_C1RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32sc_C3IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiAdd_32sc_C3RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* DivC: src / value; a zero channel value gives lumStatusDivisorZeroErr (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiDivC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16sc_AC4RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16sc_C1IRSfs(Lum16sc value, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16sc_C1RSfs(const Lum16sc* pSrc, int srcStep, Lum16sc value, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_16sc_C3RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32f_AC4IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C1IR(Lum32f value, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C3IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C4IR(const Lum32f value[4], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_AC4R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_C1IR(Lum32fc value, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc value, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_C3IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32fc_C3R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDivC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32sc_AC4RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32sc_C1IRSfs(Lum32sc value, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32sc_C1RSfs(const Lum32sc* pSrc, int srcStep, Lum32sc value, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDivC_32sc_C3RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Div: src2 / src1; a zero divisor gives lumStatusDivByZeroWarn (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiDiv_16sc_AC4IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16sc_AC4RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16sc_C1IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16sc_C1RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16sc_C3IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_16sc_C3RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_AC4IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_AC4R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_C1IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_C1R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_C3IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32fc_C3R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiDiv_32sc_AC4IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32sc_AC4RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32sc_C1IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32sc_C1RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32sc_C3IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiDiv_32sc_C3RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* MulC: src x value, complex products for the complex types (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiMulC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16sc_AC4RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16sc_C1IRSfs(Lum16sc value, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16sc_C1RSfs(const Lum16sc* pSrc, int srcStep, Lum16sc value, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_16sc_C3RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32f_AC4IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C1IR(Lum32f value, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C3IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C4IR(const Lum32f value[4], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_AC4R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_C1IR(Lum32fc value, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc value, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_C3IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32fc_C3R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32sc_AC4RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32sc_C1IRSfs(Lum32sc value, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32sc_C1RSfs(const Lum32sc* pSrc, int srcStep, Lum32sc value, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulC_32sc_C3RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Mul: src1 x src2, complex products for the complex types (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiMul_16sc_AC4IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16sc_AC4RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16sc_C1IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16sc_C1RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16sc_C3IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_16sc_C3RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_AC4IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_AC4R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_C1IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_C1R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_C3IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32fc_C3R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMul_32sc_AC4IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32sc_AC4RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32sc_C1IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32sc_C1RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32sc_C3IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMul_32sc_C3RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* SubC: src - value (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiSubC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16sc_AC4RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16sc_C1IRSfs(Lum16sc value, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16sc_C1RSfs(const Lum16sc* pSrc, int srcStep, Lum16sc value, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_16sc_C3RSfs(const Lum16sc* pSrc, int srcStep, const Lum16sc value[3], Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32f_AC4IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_AC4R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C1IR(Lum32f value, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C3IR(const Lum32f value[3], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C3R(const Lum32f* pSrc, int srcStep, const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C4IR(const Lum32f value[4], Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32f_C4R(const Lum32f* pSrc, int srcStep, const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_AC4R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_C1IR(Lum32fc value, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc value, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_C3IR(const Lum32fc value[3], Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32fc_C3R(const Lum32fc* pSrc, int srcStep, const Lum32fc value[3], Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSubC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32sc_AC4RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32sc_C1IRSfs(Lum32sc value, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32sc_C1RSfs(const Lum32sc* pSrc, int srcStep, Lum32sc value, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSubC_32sc_C3RSfs(const Lum32sc* pSrc, int srcStep, const Lum32sc value[3], Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

/* Sub: src2 - src1; in place the srcDst image is src2 (32f: src/arith/float_arith.cpp; 32fc, 16sc, 32sc: src/arith/complex_arith.cpp) */
LUMI_API LumStatus lumiSub_16sc_AC4IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16sc_AC4RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16sc_C1IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16sc_C1RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16sc_C3IRSfs(const Lum16sc* pSrc, int srcStep, Lum16sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_16sc_C3RSfs(const Lum16sc* pSrc1, int src1Step, const Lum16sc* pSrc2, int src2Step, Lum16sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_AC4IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_AC4R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_C1IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_C1R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_C3IR(const Lum32fc* pSrc, int srcStep, Lum32fc* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32fc_C3R(const Lum32fc* pSrc1, int src1Step, const Lum32fc* pSrc2, int src2Step, Lum32fc* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSub_32sc_AC4IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32sc_AC4RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32sc_C1IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32sc_C1RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32sc_C3IRSfs(const Lum32sc* pSrc, int srcStep, Lum32sc* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiSub_32sc_C3RSfs(const Lum32sc* pSrc1, int src1Step, const Lum32sc* pSrc2, int src2Step, Lum32sc* pDst, int dstStep, LumiSize roiSize, int scaleFactor);

#ifdef __cplusplus
}
#endif
#endif
