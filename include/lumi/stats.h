/* Lumi: norms, sums, means, extrema and moments. */
#ifndef LUMI_STATS_H
#define LUMI_STATS_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Moment states (400 bytes, opaque): created by lumiMomentInitAlloc_* (or, for the exact
   integer kind, in caller memory by lumiMomentInit_64s), filled by lumiMoments64f_* or
   lumiMoments64s_*, queried by the lumiGet*Moment* functions. The _64s queries return their
   results as Lum64f, unscaled. src/stats/moments.cpp. */
typedef struct LumiMomentState_64f LumiMomentState_64f;
typedef struct LumiMomentState_64s LumiMomentState_64s;

/* Norms (Inf, L1, L2) of an image, of the difference of two and of that difference relative
   to the second image: one Lum64f per channel (3 for C3 and AC4, 4 for C4). src/stats/norm.cpp,
   with the row reductions of src/stats/reduce.cpp. */
LUMI_API LumStatus lumiNorm_Inf_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_Inf_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_Inf_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_Inf_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L1_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L1_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L1_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L1_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L1_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L1_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L1_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L1_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L1_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L1_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L1_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L1_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L1_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L1_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L2_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_8u_C1R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_8u_C3R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_8u_C4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_8u_AC4R(const Lum8u* pSrc1, int src1Step, const Lum8u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16s_C1R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16s_C3R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16s_C4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16s_AC4R(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16u_C1R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16u_C3R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16u_C4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormDiff_L2_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNormRel_L2_16u_AC4R(const Lum16u* pSrc1, int src1Step, const Lum16u* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue);
LUMI_API LumStatus lumiNorm_L2_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L2_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L2_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L2_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L2_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L2_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L2_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L2_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L2_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_L2_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormDiff_L2_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNormRel_L2_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, LumiSize roiSize, Lum64f* pValue, LumAccuracyHint hint);
LUMI_API LumStatus lumiNorm_Inf_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue);

/* Sums and means: one Lum64f per channel. src/stats/sum.cpp, with the row reductions of
   src/stats/reduce.cpp. */
LUMI_API LumStatus lumiSum_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum);
LUMI_API LumStatus lumiMean_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean);
LUMI_API LumStatus lumiSum_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum, LumAccuracyHint hint);
LUMI_API LumStatus lumiMean_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean, LumAccuracyHint hint);
LUMI_API LumStatus lumiSum_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum, LumAccuracyHint hint);
LUMI_API LumStatus lumiMean_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean, LumAccuracyHint hint);
LUMI_API LumStatus lumiSum_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum, LumAccuracyHint hint);
LUMI_API LumStatus lumiMean_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean, LumAccuracyHint hint);
LUMI_API LumStatus lumiSum_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum, LumAccuracyHint hint);
LUMI_API LumStatus lumiMean_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean, LumAccuracyHint hint);

/* Extrema per channel, alone or with the first position in row-major order (relative to the
   ROI origin). src/stats/minmax.cpp. */
LUMI_API LumStatus lumiMin_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin);
LUMI_API LumStatus lumiMax_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax);
LUMI_API LumStatus lumiMinMax_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, Lum8u* pMax);
LUMI_API LumStatus lumiMinIndx_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin);
LUMI_API LumStatus lumiMax_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax);
LUMI_API LumStatus lumiMinMax_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, Lum8u* pMax);
LUMI_API LumStatus lumiMinIndx_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin);
LUMI_API LumStatus lumiMax_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax);
LUMI_API LumStatus lumiMinMax_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, Lum8u* pMax);
LUMI_API LumStatus lumiMinIndx_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin);
LUMI_API LumStatus lumiMax_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax);
LUMI_API LumStatus lumiMinMax_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, Lum8u* pMax);
LUMI_API LumStatus lumiMinIndx_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum8u* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin);
LUMI_API LumStatus lumiMax_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax);
LUMI_API LumStatus lumiMinMax_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, Lum16s* pMax);
LUMI_API LumStatus lumiMinIndx_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin);
LUMI_API LumStatus lumiMax_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax);
LUMI_API LumStatus lumiMinMax_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, Lum16s* pMax);
LUMI_API LumStatus lumiMinIndx_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin);
LUMI_API LumStatus lumiMax_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax);
LUMI_API LumStatus lumiMinMax_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, Lum16s* pMax);
LUMI_API LumStatus lumiMinIndx_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin);
LUMI_API LumStatus lumiMax_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax);
LUMI_API LumStatus lumiMinMax_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, Lum16s* pMax);
LUMI_API LumStatus lumiMinIndx_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum16s* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin);
LUMI_API LumStatus lumiMax_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax);
LUMI_API LumStatus lumiMinMax_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, Lum32f* pMax);
LUMI_API LumStatus lumiMinIndx_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin);
LUMI_API LumStatus lumiMax_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax);
LUMI_API LumStatus lumiMinMax_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, Lum32f* pMax);
LUMI_API LumStatus lumiMinIndx_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin);
LUMI_API LumStatus lumiMax_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax);
LUMI_API LumStatus lumiMinMax_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, Lum32f* pMax);
LUMI_API LumStatus lumiMinIndx_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMin_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin);
LUMI_API LumStatus lumiMax_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax);
LUMI_API LumStatus lumiMinMax_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, Lum32f* pMax);
LUMI_API LumStatus lumiMinIndx_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMin, int* pIndexX, int* pIndexY);
LUMI_API LumStatus lumiMaxIndx_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32f* pMax, int* pIndexX, int* pIndexY);

/* Count of samples inside [lowerBound, upperBound], per channel. src/stats/minmax.cpp. */
LUMI_API LumStatus lumiCountInRange_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, int* pCounts, Lum8u lowerBound, Lum8u upperBound);
LUMI_API LumStatus lumiCountInRange_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, int pCounts[3], const Lum8u lowerBound[3], const Lum8u upperBound[3]);
LUMI_API LumStatus lumiCountInRange_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, int pCounts[3], const Lum8u lowerBound[3], const Lum8u upperBound[3]);
LUMI_API LumStatus lumiCountInRange_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, int* pCounts, Lum32f lowerBound, Lum32f upperBound);
LUMI_API LumStatus lumiCountInRange_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, int pCounts[3], const Lum32f lowerBound[3], const Lum32f upperBound[3]);
LUMI_API LumStatus lumiCountInRange_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, int pCounts[3], const Lum32f lowerBound[3], const Lum32f upperBound[3]);

/* Image moments up to order 3 (states, filling, queries). src/stats/moments.cpp. */
LUMI_API LumStatus lumiMomentInitAlloc_64f(LumiMomentState_64f** ppState, LumAccuracyHint hint);
LUMI_API LumStatus lumiMomentFree_64f(LumiMomentState_64f* pState);
LUMI_API LumStatus lumiMomentInitAlloc_64s(LumiMomentState_64s** ppState, LumAccuracyHint hint);
LUMI_API LumStatus lumiMomentFree_64s(LumiMomentState_64s* pState);
LUMI_API LumStatus lumiMomentGetStateSize_64s(LumAccuracyHint hint, int* pSize);
LUMI_API LumStatus lumiMomentInit_64s(LumiMomentState_64s* pState, LumAccuracyHint hint);
LUMI_API LumStatus lumiMoments64f_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64f_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64f_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64f_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64f_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64f_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64f* pCtx);
LUMI_API LumStatus lumiMoments64s_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64s* pCtx);
LUMI_API LumStatus lumiMoments64s_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64s* pCtx);
LUMI_API LumStatus lumiMoments64s_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, LumiMomentState_64s* pCtx);
LUMI_API LumStatus lumiGetSpatialMoment_64f(const LumiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, LumiPoint roiOffset, Lum64f* pValue);
LUMI_API LumStatus lumiGetCentralMoment_64f(const LumiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, Lum64f* pValue);
LUMI_API LumStatus lumiGetNormalizedSpatialMoment_64f(const LumiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, LumiPoint roiOffset, Lum64f* pValue);
LUMI_API LumStatus lumiGetNormalizedCentralMoment_64f(const LumiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, Lum64f* pValue);
LUMI_API LumStatus lumiGetHuMoments_64f(const LumiMomentState_64f* pState, int nChannel, Lum64f pHm[7]);
LUMI_API LumStatus lumiGetSpatialMoment_64s(const LumiMomentState_64s* pState, int mOrd, int nOrd, int nChannel, LumiPoint roiOffset, Lum64f* pValue);
LUMI_API LumStatus lumiGetCentralMoment_64s(const LumiMomentState_64s* pState, int mOrd, int nOrd, int nChannel, Lum64f* pValue);
LUMI_API LumStatus lumiGetNormalizedSpatialMoment_64s(const LumiMomentState_64s* pState, int mOrd, int nOrd, int nChannel, LumiPoint roiOffset, Lum64f* pValue);
LUMI_API LumStatus lumiGetNormalizedCentralMoment_64s(const LumiMomentState_64s* pState, int mOrd, int nOrd, int nChannel, Lum64f* pValue);
LUMI_API LumStatus lumiGetHuMoments_64s(const LumiMomentState_64s* pState, int nChannel, Lum64f pHm[7]);

#ifdef __cplusplus
}
#endif
#endif
