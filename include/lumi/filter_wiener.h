/* Lumi: the Wiener filter, adaptive noise removal.
 *
 * Every destination pixel is pulled towards the mean m of the mask the anchor places around it,
 * in proportion to how little the local variance exceeds the noise: with S and Q the sum and the
 * sum of squares over the n = maskSize.width x maskSize.height pixels, V = Q - S^2/n (raised to
 * the noise power P when smaller), dst = m + (src - m) (V - P) / V, and dst = m where V = P = 0.
 * P = noise x R^2 x n, where R is the range (maximum - minimum) of the whole source area read,
 * per channel. A noise value below 1.1920929e-7 (0 or -0) asks for an estimate: P is then the
 * mean of V over the ROI, and noise[] receives P / n / R^2 (0 when R is 0). 8u and 16s results
 * round ties to even and saturate. AC4 reads and writes three noise values and leaves the
 * destination's fourth channel untouched. The caller supplies the source pixels around the ROI
 * that the mask reaches, and a work buffer of the size lumiFilterWienerGetBufferSize reports
 * (no alignment needed); nothing is allocated. */
#ifndef LUMI_FILTER_WIENER_H
#define LUMI_FILTER_WIENER_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Work-buffer size in bytes for a ROI, mask and channel count (1, 3 or 4; 4 for AC4), for a team
   of omp_get_max_threads() threads. Checks pBufferSize (lumStatusNullPtrErr), the ROI
   (lumStatusSizeErr), the channel count (lumStatusChannelCountErr), the mask, both sides at
   least 2 (lumStatusMaskSizeErr), in that order; a size beyond INT_MAX gives
   lumStatusMemAllocErr. The filters: checks pointers (lumStatusNullPtrErr), the ROI
   (lumStatusSizeErr), the mask (lumStatusMaskSizeErr), the anchor (lumStatusAnchorErr), steps
   below 1 (lumStatusStepErr), then each noise value used: negative, not below 1 or NaN gives
   lumStatusNoiseRangeErr. src/filter/wiener.cpp. */
LUMI_API LumStatus lumiFilterWienerGetBufferSize(LumiSize dstRoiSize, LumiSize maskSize, int channels, int* pBufferSize);
LUMI_API LumStatus lumiFilterWiener_8u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_8u_C3R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_8u_C4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_8u_AC4R(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_16s_C1R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_16s_C3R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_16s_C4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_16s_AC4R(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);
LUMI_API LumStatus lumiFilterWiener_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer);

#ifdef __cplusplus
}
#endif
#endif
