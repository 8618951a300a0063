/* Lumi: lookup tables and histograms. */
#ifndef LUMI_LUT_H
#define LUMI_LUT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Step lookup tables (src/threshold/lut.cpp): a sample in [pLevels[i], pLevels[i+1]) is replaced
   by pValues[i]; the Linear and Cubic forms below interpolate between the values. Samples below
   the first level or at or above the last one are copied unchanged. Multi-channel forms take one
   values array, one levels array and one level count per channel; AC4 leaves the destination
   alpha as it was. */
LUMI_API LumStatus lumiLUT_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_16u_C1IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16u_C3IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_16u_C4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_16u_AC4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);

/* Linear lookup tables (src/threshold/lut.cpp): the value interpolated linearly between
   pValues[i] and pValues[i+1] over the interval; integer results add one half, truncate toward
   zero and saturate. */
LUMI_API LumStatus lumiLUT_Linear_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_16u_C1IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16u_C3IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_16u_C4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_16u_AC4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Linear_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Linear_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Linear_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);

/* Cubic lookup tables (src/threshold/lut.cpp): the cubic through four neighbouring levels and
   values (integer results as for Linear); fewer than four levels, or four that determine no
   cubic, interpolate linearly. */
LUMI_API LumStatus lumiLUT_Cubic_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_16u_C1IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* pValues, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16u_C3IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_16u_C4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_16u_AC4IR(Lum16u* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32s* const pValues[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* pValues, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiLUT_Cubic_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiLUT_Cubic_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiLUT_Cubic_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum32f* const pValues[3], const Lum32f* const pLevels[3], const int nLevels[3]);

/* Histograms over level lists (src/threshold/histogram.cpp): pHist[i] counts the samples in
   [pLevels[i], pLevels[i+1]), i < nLevels - 1; the counters are cleared first. HistogramEven
   writes nLevels evenly spaced levels from lowerLevel to upperLevel to pLevels and then counts
   with them. AC4 ignores alpha. */
LUMI_API LumStatus lumiHistogramRange_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiHistogramRange_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiHistogramRange_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiHistogramRange_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiHistogramRange_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, const Lum32s* pLevels, int nLevels);
LUMI_API LumStatus lumiHistogramRange_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], const Lum32s* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiHistogramRange_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32s* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, const Lum32f* pLevels, int nLevels);
LUMI_API LumStatus lumiHistogramRange_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32f* const pLevels[3], const int nLevels[3]);
LUMI_API LumStatus lumiHistogramRange_32f_C4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], const Lum32f* const pLevels[4], const int nLevels[4]);
LUMI_API LumStatus lumiHistogramRange_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], const Lum32f* const pLevels[3], const int nLevels[3]);

/* Histograms over evenly spaced levels (src/threshold/histogram.cpp): the levels are written to
   pLevels first, as described above. */
LUMI_API LumStatus lumiHistogramEven_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, Lum32s* pLevels, int nLevels, Lum32s lowerLevel, Lum32s upperLevel);
LUMI_API LumStatus lumiHistogramEven_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);
LUMI_API LumStatus lumiHistogramEven_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], Lum32s* const pLevels[4], const int nLevels[4], const Lum32s lowerLevel[4], const Lum32s upperLevel[4]);
LUMI_API LumStatus lumiHistogramEven_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);
LUMI_API LumStatus lumiHistogramEven_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, Lum32s* pLevels, int nLevels, Lum32s lowerLevel, Lum32s upperLevel);
LUMI_API LumStatus lumiHistogramEven_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);
LUMI_API LumStatus lumiHistogramEven_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], Lum32s* const pLevels[4], const int nLevels[4], const Lum32s lowerLevel[4], const Lum32s upperLevel[4]);
LUMI_API LumStatus lumiHistogramEven_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);
LUMI_API LumStatus lumiHistogramEven_16u_C1R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* pHist, Lum32s* pLevels, int nLevels, Lum32s lowerLevel, Lum32s upperLevel);
LUMI_API LumStatus lumiHistogramEven_16u_C3R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);
LUMI_API LumStatus lumiHistogramEven_16u_C4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[4], Lum32s* const pLevels[4], const int nLevels[4], const Lum32s lowerLevel[4], const Lum32s upperLevel[4]);
LUMI_API LumStatus lumiHistogramEven_16u_AC4R(const Lum16u* pSrc, int srcStep, LumiSize roiSize, Lum32s* const pHist[3], Lum32s* const pLevels[3], const int nLevels[3], const Lum32s lowerLevel[3], const Lum32s upperLevel[3]);

/* Palettes (src/threshold/lut_palette.cpp): pDst = pTable[pSrc & (2^nBitSize - 1)]. A 24u table
   holds 3 bytes per entry and a 24u destination pixel is those 3 bytes. */
LUMI_API LumStatus lumiLUTPalette_8u24u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pTable, int nBitSize);
LUMI_API LumStatus lumiLUTPalette_8u32u_C1R(const Lum8u* pSrc, int srcStep, Lum32u* pDst, int dstStep, LumiSize roiSize, const Lum32u* pTable, int nBitSize);
LUMI_API LumStatus lumiLUTPalette_16u8u_C1R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pTable, int nBitSize);
LUMI_API LumStatus lumiLUTPalette_16u24u_C1R(const Lum16u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pTable, int nBitSize);
LUMI_API LumStatus lumiLUTPalette_16u32u_C1R(const Lum16u* pSrc, int srcStep, Lum32u* pDst, int dstStep, LumiSize roiSize, const Lum32u* pTable, int nBitSize);

#ifdef __cplusplus
}
#endif
#endif
