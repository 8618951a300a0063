/* Lumi: thresholds. */
#ifndef LUMI_THRESHOLD_H
#define LUMI_THRESHOLD_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Clamp (src/threshold/threshold.cpp): with cmpOp lumCmpGreater every processed sample becomes
   min(sample, threshold), with lumCmpLess max(sample, threshold); a NaN sample yields the
   threshold. C1 takes the threshold by value, C3 and AC4 one per channel; AC4 leaves alpha as it
   was. Checks pointers, size, steps, the threshold array, then cmpOp (any other operation:
   lumStatusUnsupportedModeErr). */
LUMI_API LumStatus lumiThreshold_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], LumCompareOp cmpOp);

/* Clamp in a fixed direction (src/threshold/threshold.cpp): _GT_ is the clamp with
   lumCmpGreater, _LT_ the clamp with lumCmpLess. */
LUMI_API LumStatus lumiThreshold_GT_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold);
LUMI_API LumStatus lumiThreshold_GT_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold);
LUMI_API LumStatus lumiThreshold_LT_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold);
LUMI_API LumStatus lumiThreshold_LT_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold);
LUMI_API LumStatus lumiThreshold_GT_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold);
LUMI_API LumStatus lumiThreshold_GT_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold);
LUMI_API LumStatus lumiThreshold_LT_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold);
LUMI_API LumStatus lumiThreshold_LT_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold);
LUMI_API LumStatus lumiThreshold_GT_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold);
LUMI_API LumStatus lumiThreshold_GT_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold);
LUMI_API LumStatus lumiThreshold_LT_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold);
LUMI_API LumStatus lumiThreshold_LT_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold);
LUMI_API LumStatus lumiThreshold_GT_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_GT_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3]);
LUMI_API LumStatus lumiThreshold_LT_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3]);

/* Replace (src/threshold/threshold.cpp): with cmpOp lumCmpGreater a sample above threshold
   becomes value (a NaN sample is kept); with lumCmpLess a sample below threshold becomes value (a
   NaN sample is replaced). cmpOp is checked first (lumStatusUnsupportedModeErr), then pointers,
   size, steps and the arrays. */
LUMI_API LumStatus lumiThreshold_Val_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold, Lum8u value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold, Lum8u value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold, Lum16s value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold, Lum16s value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold, Lum32f value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold, Lum32f value, LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3], LumCompareOp cmpOp);
LUMI_API LumStatus lumiThreshold_Val_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3], LumCompareOp cmpOp);

/* Replace in a fixed direction (src/threshold/threshold.cpp): _GTVal_ is the replace with
   lumCmpGreater, _LTVal_ with lumCmpLess. The C4 forms process all four channels. */
LUMI_API LumStatus lumiThreshold_GTVal_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold, Lum8u value);
LUMI_API LumStatus lumiThreshold_GTVal_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold, Lum8u value);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u threshold, Lum8u value);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u threshold, Lum8u value);
LUMI_API LumStatus lumiThreshold_GTVal_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[3], const Lum8u value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[4], const Lum8u value[4]);
LUMI_API LumStatus lumiThreshold_GTVal_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[4], const Lum8u value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u threshold[4], const Lum8u value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u threshold[4], const Lum8u value[4]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold, Lum16s value);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold, Lum16s value);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s threshold, Lum16s value);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s threshold, Lum16s value);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[3], const Lum16s value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[4], const Lum16s value[4]);
LUMI_API LumStatus lumiThreshold_GTVal_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[4], const Lum16s value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s threshold[4], const Lum16s value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s threshold[4], const Lum16s value[4]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold, Lum32f value);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold, Lum32f value);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f threshold, Lum32f value);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f threshold, Lum32f value);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[3], const Lum32f value[3]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[4], const Lum32f value[4]);
LUMI_API LumStatus lumiThreshold_GTVal_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[4], const Lum32f value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f threshold[4], const Lum32f value[4]);
LUMI_API LumStatus lumiThreshold_LTVal_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f threshold[4], const Lum32f value[4]);

/* Two-sided replace (src/threshold/threshold.cpp): a sample below thresholdLT becomes valueLT,
   one above thresholdGT becomes valueGT, the lower test deciding first. Every channel's
   thresholdGT must be at least its thresholdLT (lumStatusThresholdOrderErr, also for a NaN
   threshold). */
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, Lum8u thresholdLT, Lum8u valueLT, Lum8u thresholdGT, Lum8u valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u thresholdLT, Lum8u valueLT, Lum8u thresholdGT, Lum8u valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u thresholdLT[3], const Lum8u valueLT[3], const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u thresholdLT[3], const Lum8u valueLT[3], const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u thresholdLT[3], const Lum8u valueLT[3], const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u thresholdLT[3], const Lum8u valueLT[3], const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, Lum16s thresholdLT, Lum16s valueLT, Lum16s thresholdGT, Lum16s valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s thresholdLT, Lum16s valueLT, Lum16s thresholdGT, Lum16s valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s thresholdLT[3], const Lum16s valueLT[3], const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s thresholdLT[3], const Lum16s valueLT[3], const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum16s thresholdLT[3], const Lum16s valueLT[3], const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum16s thresholdLT[3], const Lum16s valueLT[3], const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f thresholdLT, Lum32f valueLT, Lum32f thresholdGT, Lum32f valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f thresholdLT, Lum32f valueLT, Lum32f thresholdGT, Lum32f valueGT);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f thresholdLT[3], const Lum32f valueLT[3], const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f thresholdLT[3], const Lum32f valueLT[3], const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f thresholdLT[3], const Lum32f valueLT[3], const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LUMI_API LumStatus lumiThreshold_LTValGTVal_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f thresholdLT[3], const Lum32f valueLT[3], const Lum32f thresholdGT[3], const Lum32f valueGT[3]);

#ifdef __cplusplus
}
#endif
#endif
