/* Lumi: copy, set, channel swap, duplicate and border extension.
 *
 * Members check pointers (lumStatusNullPtrErr) and sizes (lumStatusSizeErr); which of them
 * check steps (lumStatusStepErr), and in what order, is said per group. AC4 members leave the
 * fourth (alpha) channel of the destination as it was. */
#ifndef LUMI_DATAMOVE_H
#define LUMI_DATAMOVE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Copy: whole ROI (C1R..AC4R), one channel to or from a one-channel image (C3C1R, C4C1R,
   C1C3R, C1C4R), one channel of interest (C3CR, C4CR: the pointers point at that channel), and
   masked (..MR: pixels whose mask byte is nonzero). Steps are not checked: any step walks the
   rows it describes (src/convert/copy.cpp). */
LUMI_API LumStatus lumiCopy_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C3C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C4C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C1C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C1C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C3CR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C4CR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_8u_C1MR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_8u_C3MR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_8u_C4MR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_8u_AC4MR(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16u_C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C3C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C4C1R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C1C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C1C4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C3CR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C4CR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16u_C1MR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16u_C3MR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16u_C4MR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16u_AC4MR(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C3C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C4C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C1C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C1C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C3CR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C4CR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_16s_C1MR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16s_C3MR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16s_C4MR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_16s_AC4MR(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32s_C1R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C3R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_AC4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C3C1R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C4C1R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C1C3R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C1C4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C3CR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C4CR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32s_C1MR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32s_C3MR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32s_C4MR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32s_AC4MR(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C3C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C4C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C1C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C1C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C3CR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C4CR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiCopy_32f_C1MR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32f_C3MR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32f_C4MR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiCopy_32f_AC4MR(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);

/* Set: constant fills; C1 takes the value itself, C3 and AC4 three channel values, C4 four;
   C3CR and C4CR set one channel of interest; ..MR fills the pixels whose mask byte is nonzero.
   Steps are checked after sizes (src/convert/set.cpp). */
LUMI_API LumStatus lumiSet_8u_C1R(Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_C3R(const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_C4R(const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_AC4R(const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_C3CR(Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_C4CR(Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_8u_C1MR(Lum8u value, Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_8u_C3MR(const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_8u_C4MR(const Lum8u value[4], Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_8u_AC4MR(const Lum8u value[3], Lum8u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16u_C1R(Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_C3R(const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_C4R(const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_AC4R(const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_C3CR(Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_C4CR(Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16u_C1MR(Lum16u value, Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16u_C3MR(const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16u_C4MR(const Lum16u value[4], Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16u_AC4MR(const Lum16u value[3], Lum16u* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16s_C1R(Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_C3R(const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_C4R(const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_AC4R(const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_C3CR(Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_C4CR(Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_16s_C1MR(Lum16s value, Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16s_C3MR(const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16s_C4MR(const Lum16s value[4], Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_16s_AC4MR(const Lum16s value[3], Lum16s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32s_C1R(Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_C3R(const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_C4R(const Lum32s value[4], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_AC4R(const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_C3CR(Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_C4CR(Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32s_C1MR(Lum32s value, Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32s_C3MR(const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32s_C4MR(const Lum32s value[4], Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32s_AC4MR(const Lum32s value[3], Lum32s* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32f_C1R(Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_C3R(const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_C4R(const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_AC4R(const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_C3CR(Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_C4CR(Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiSet_32f_C1MR(Lum32f value, Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32f_C3MR(const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32f_C4MR(const Lum32f value[4], Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);
LUMI_API LumStatus lumiSet_32f_AC4MR(const Lum32f value[3], Lum32f* pDst, int dstStep, LumiSize roiSize, const Lum8u* pMask, int maskStep);

/* SwapChannels: destination channel i receives source channel dstOrder[i] (each 0..2, else
   lumStatusChannelOrderErr); steps are checked after sizes (src/convert/swap.cpp). */
LUMI_API LumStatus lumiSwapChannels_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_16u_C3R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_16u_AC4R(const Lum16u* pSrc, int srcStep, Lum16u* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_32s_C3R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_32s_AC4R(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize roiSize, const int dstOrder[3]);
LUMI_API LumStatus lumiSwapChannels_8u_C3IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roiSize, const int dstOrder[3]);

/* Dup: grey to colour, each byte to all three channels (src/convert/swap.cpp). */
LUMI_API LumStatus lumiDup_8u_C1C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize roiSize);

/* CopyConstBorder: the source lands at (leftBorderWidth, topBorderHeight) of the destination
   and the frame around it takes the value; steps are checked before sizes
   (src/convert/border.cpp). */
LUMI_API LumStatus lumiCopyConstBorder_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Lum8u value);
LUMI_API LumStatus lumiCopyConstBorder_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum8u value[3]);
LUMI_API LumStatus lumiCopyConstBorder_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum8u value[4]);
LUMI_API LumStatus lumiCopyConstBorder_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum8u value[3]);
LUMI_API LumStatus lumiCopyConstBorder_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Lum16s value);
LUMI_API LumStatus lumiCopyConstBorder_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum16s value[3]);
LUMI_API LumStatus lumiCopyConstBorder_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum16s value[4]);
LUMI_API LumStatus lumiCopyConstBorder_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum16s value[3]);
LUMI_API LumStatus lumiCopyConstBorder_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Lum32s value);
LUMI_API LumStatus lumiCopyConstBorder_32s_C3R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum32s value[3]);
LUMI_API LumStatus lumiCopyConstBorder_32s_C4R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum32s value[4]);
LUMI_API LumStatus lumiCopyConstBorder_32s_AC4R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Lum32s value[3]);

/* CopyReplicateBorder: as CopyConstBorder, the frame repeating the nearest edge pixel; the
   in-place forms (..IR) take the source inside the destination and one step
   (src/convert/border.cpp). */
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C1IR(const Lum8u* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C3IR(const Lum8u* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_C4IR(const Lum8u* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_8u_AC4IR(const Lum8u* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C1R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C3R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C4R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_AC4R(const Lum16s* pSrc, int srcStep, LumiSize srcRoiSize, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C1IR(const Lum16s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C3IR(const Lum16s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_C4IR(const Lum16s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_16s_AC4IR(const Lum16s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C3R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C4R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_AC4R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C1IR(const Lum32s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C3IR(const Lum32s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_C4IR(const Lum32s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyReplicateBorder_32s_AC4IR(const Lum32s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* CopyWrapBorder: as CopyReplicateBorder, the frame continuing the source periodically
   (src/convert/border.cpp). */
LUMI_API LumStatus lumiCopyWrapBorder_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize srcRoiSize, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
LUMI_API LumStatus lumiCopyWrapBorder_32s_C1IR(const Lum32s* pSrc, int srcDstStep, LumiSize srcRoiSize, LumiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

#ifdef __cplusplus
}
#endif
#endif
