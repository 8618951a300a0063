/* Lumi: test images and noise. */
#ifndef LUMI_GENERATE_H
#define LUMI_GENERATE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Jaehne test pattern: sin(2*pi*r^2 / (4*height)) around the ROI centre, scaled to the
   type's range (32f: 0 to 1). Every channel of a pixel gets the same value; AC4 keeps alpha.
   src/generate/jaehne.cpp. */
LUMI_API LumStatus lumiImageJaehne_8u_C1R(Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8u_C3R(Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8u_C4R(Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8u_AC4R(Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8s_C1R(Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8s_C3R(Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8s_C4R(Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_8s_AC4R(Lum8s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16u_C1R(Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16u_C3R(Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16u_C4R(Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16u_AC4R(Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16s_C1R(Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16s_C3R(Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16s_C4R(Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_16s_AC4R(Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32s_C1R(Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32s_C3R(Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32s_C4R(Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32s_AC4R(Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32f_C1R(Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32f_C3R(Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32f_C4R(Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiImageJaehne_32f_AC4R(Lum32f* pDst, int dstStep, LumiSize roiSize);

/* Ramp: offset + slope * t with t the column (axis 0), the row (axis 1) or their product
   (axis 2); any other axis writes nothing and succeeds. src/generate/ramp.cpp. */
LUMI_API LumStatus lumiImageRamp_8u_C1R(Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8u_C3R(Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8u_C4R(Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8u_AC4R(Lum8u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8s_C1R(Lum8s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8s_C3R(Lum8s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8s_C4R(Lum8s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_8s_AC4R(Lum8s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16u_C1R(Lum16u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16u_C3R(Lum16u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16u_C4R(Lum16u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16u_AC4R(Lum16u* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16s_C1R(Lum16s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16s_C3R(Lum16s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16s_C4R(Lum16s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_16s_AC4R(Lum16s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32s_C1R(Lum32s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32s_C3R(Lum32s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32s_C4R(Lum32s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32s_AC4R(Lum32s* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32f_C1R(Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32f_C3R(Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32f_C4R(Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);
LUMI_API LumStatus lumiImageRamp_32f_AC4R(Lum32f* pDst, int dstStep, LumiSize roiSize, Lum32f offset, Lum32f slope, int axis);

/* Additive uniform noise in [low, high], in place. *pSeed is read at the start and receives
   the generator's last state word, so consecutive calls continue one stream.
   src/generate/noise.cpp. */
LUMI_API LumStatus lumiAddRandUniform_Direct_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u low, Lum8u high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u low, Lum8u high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u low, Lum8u high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u low, Lum8u high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s low, Lum16s high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s low, Lum16s high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s low, Lum16s high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s low, Lum16s high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f low, Lum32f high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f low, Lum32f high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f low, Lum32f high, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandUniform_Direct_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f low, Lum32f high, unsigned int* pSeed);

/* Additive Gaussian noise of the given mean and standard deviation, in place; the seed as
   for the uniform noise. src/generate/noise.cpp. */
LUMI_API LumStatus lumiAddRandGauss_Direct_8u_C1IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u mean, Lum8u stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u mean, Lum8u stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_8u_C4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u mean, Lum8u stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_8u_AC4IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, Lum8u mean, Lum8u stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_16s_C1IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s mean, Lum16s stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_16s_C3IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s mean, Lum16s stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_16s_C4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s mean, Lum16s stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_16s_AC4IR(Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, Lum16s mean, Lum16s stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f mean, Lum32f stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f mean, Lum32f stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f mean, Lum32f stdDev, unsigned int* pSeed);
LUMI_API LumStatus lumiAddRandGauss_Direct_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize, Lum32f mean, Lum32f stdDev, unsigned int* pSeed);

#ifdef __cplusplus
}
#endif
#endif
