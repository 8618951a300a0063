/* Lumi: two-dimensional FFT and DFT of images and the operations on the packed real spectrum.
 *
 * Forward transforms compute A(v, u) = sum_y sum_x f(y, x) e^(-2 pi i (vy/H + ux/W)) over a
 * W x H image (rows first, then columns); inverse transforms use e^(+...). The FFT family takes
 * power-of-two sizes 2^orderX x 2^orderY, the DFT family any size. The normalisation flag of the
 * specification (lumFftDivFwdByN 1, lumFftDivInvByN 2, lumFftDivBySqrtN 4, lumFftNoDivByAny 8)
 * scales the forward or inverse result by 1/(W H) or both by 1/sqrt(W H); any other value fails
 * with lumStatusFftFlagErr.
 *
 * The spectrum of a real image is stored in a W x H real image P of the same size (the packed
 * layout every spectrum function reads and writes). A(H-v mod H, W-u mod W) = conj A(v, u), and
 * only u = 0 .. W/2 is kept:
 *   - column 0 holds the packed column spectrum of u = 0: P(0,0) = A(0,0); P(2i-1,0), P(2i,0) =
 *     Re, Im A(i,0) for i = 1 .. (H-1)/2; for even H, P(H-1,0) = A(H/2,0), real;
 *   - for even W, column W-1 holds u = W/2 the same way;
 *   - every other column pair (2j-1, 2j), j = 1 .. (W-1)/2, holds Re, Im A(r, j) in every row r
 *     (for odd W the last pair is (W-2, W-1)).
 * The complex members use plain interleaved Lum32fc images.
 *
 * Specifications: InitAlloc creates one (lumStatusMemAllocErr when memory runs out or the work
 * buffer would pass INT_MAX bytes), Free releases it, GetBufSize reports the work-buffer bytes
 * a transform needs. A specification is read-only while in use, so one may serve several
 * threads, each with its own work buffer.
 * Every use checks the record's kind (lumStatusContextMismatchErr for a record of another kind).
 * Transforms take a work buffer of GetBufSize bytes at any address, or allocate one themselves
 * when pBuffer is null. Multi-channel members transform each channel on its own; AC4 leaves
 * the destination's fourth channel untouched. Integer members (Sfs) scale by 2^-scaleFactor,
 * round ties to even and saturate. */
#ifndef LUMI_FFT_H
#define LUMI_FFT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

/* Opaque specification records of the FFT (power-of-two sizes) and DFT (any size) families. */
typedef struct LumiFFTSpec LumiFFTSpec;
typedef struct LumiDFTSpec LumiDFTSpec;

/* FFT specifications: real (R_32f), complex (C_32fc) and the real record of the integer
   members (R_32s). InitAlloc checks ppSpec (lumStatusNullPtrErr), the orders, 0 to 30
   (lumStatusFftOrderErr), the flag (lumStatusFftFlagErr), in that order.
   Free and GetBufSize check the pointers (lumStatusNullPtrErr), then the kind
   (lumStatusContextMismatchErr). src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiFFTInitAlloc_R_32f(LumiFFTSpec** ppSpec, int orderX, int orderY, int flag, int hint);
LUMI_API LumStatus lumiFFTInitAlloc_C_32fc(LumiFFTSpec** ppSpec, int orderX, int orderY, int flag, int hint);
LUMI_API LumStatus lumiFFTInitAlloc_R_32s(LumiFFTSpec** ppSpec, int orderX, int orderY, int flag, int hint);
LUMI_API LumStatus lumiFFTFree_R_32f(LumiFFTSpec* pSpec);
LUMI_API LumStatus lumiFFTFree_C_32fc(LumiFFTSpec* pSpec);
LUMI_API LumStatus lumiFFTFree_R_32s(LumiFFTSpec* pSpec);
LUMI_API LumStatus lumiFFTGetBufSize_R_32f(const LumiFFTSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiFFTGetBufSize_C_32fc(const LumiFFTSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiFFTGetBufSize_R_32s(const LumiFFTSpec* pSpec, int* pSize);

/* FFT of real images (R_32f specification): forward to the packed spectrum, inverse from it.
   Checks pSpec (lumStatusNullPtrErr), its kind (lumStatusContextMismatchErr), the image
   pointers (lumStatusNullPtrErr), steps below 1 (lumStatusStepErr), in that order; a buffer
   it has to allocate and cannot gives lumStatusMemAllocErr. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_RToPack_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_PackToR_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);

/* FFT of 8u images to a 32s packed spectrum and back (R_32s specification), computed in
   single precision: the result x 2^-scaleFactor, ties to even, saturated. Checks as the
   32f members. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiFFTFwd_RToPack_8u32s_C1RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTFwd_RToPack_8u32s_C3RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTFwd_RToPack_8u32s_C4RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTFwd_RToPack_8u32s_AC4RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTInv_PackToR_32s8u_C1RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTInv_PackToR_32s8u_C3RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTInv_PackToR_32s8u_C4RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiFFTInv_PackToR_32s8u_AC4RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);

/* FFT of complex images (C_32fc specification), forward and inverse. Checks as the real
   members. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiFFTFwd_CToC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTFwd_CToC_32fc_C1IR(Lum32fc* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_CToC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc* pDst, int dstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiFFTInv_CToC_32fc_C1IR(Lum32fc* pSrcDst, int srcDstStep, const LumiFFTSpec* pSpec, Lum8u* pBuffer);

/* DFT specifications: real (R_32f), complex (C_32fc) and the real record of the integer
   members (R_32s). InitAlloc checks ppSpec (lumStatusNullPtrErr), the size, both sides at least 1
   (lumStatusSizeErr), the flag (lumStatusFftFlagErr), in that order.
   Free and GetBufSize check the pointers (lumStatusNullPtrErr), then the kind
   (lumStatusContextMismatchErr). src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiDFTInitAlloc_R_32f(LumiDFTSpec** ppSpec, LumiSize roiSize, int flag, int hint);
LUMI_API LumStatus lumiDFTInitAlloc_C_32fc(LumiDFTSpec** ppSpec, LumiSize roiSize, int flag, int hint);
LUMI_API LumStatus lumiDFTInitAlloc_R_32s(LumiDFTSpec** ppSpec, LumiSize roiSize, int flag, int hint);
LUMI_API LumStatus lumiDFTFree_R_32f(LumiDFTSpec* pSpec);
LUMI_API LumStatus lumiDFTFree_C_32fc(LumiDFTSpec* pSpec);
LUMI_API LumStatus lumiDFTFree_R_32s(LumiDFTSpec* pSpec);
LUMI_API LumStatus lumiDFTGetBufSize_R_32f(const LumiDFTSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiDFTGetBufSize_C_32fc(const LumiDFTSpec* pSpec, int* pSize);
LUMI_API LumStatus lumiDFTGetBufSize_R_32s(const LumiDFTSpec* pSpec, int* pSize);

/* DFT of real images (R_32f specification): forward to the packed spectrum, inverse from it.
   Checks pSpec (lumStatusNullPtrErr), its kind (lumStatusContextMismatchErr), the image
   pointers (lumStatusNullPtrErr), steps below 1 (lumStatusStepErr), in that order; a buffer
   it has to allocate and cannot gives lumStatusMemAllocErr. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_RToPack_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_AC4R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C1IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C3IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_C4IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_PackToR_32f_AC4IR(Lum32f* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);

/* DFT of 8u images to a 32s packed spectrum and back (R_32s specification), computed in
   single precision: the result x 2^-scaleFactor, ties to even, saturated. Checks as the
   32f members. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiDFTFwd_RToPack_8u32s_C1RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTFwd_RToPack_8u32s_C3RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTFwd_RToPack_8u32s_C4RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTFwd_RToPack_8u32s_AC4RSfs(const Lum8u* pSrc, int srcStep, Lum32s* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTInv_PackToR_32s8u_C1RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTInv_PackToR_32s8u_C3RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTInv_PackToR_32s8u_C4RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);
LUMI_API LumStatus lumiDFTInv_PackToR_32s8u_AC4RSfs(const Lum32s* pSrc, int srcStep, Lum8u* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer, int scaleFactor);

/* DFT of complex images (C_32fc specification), forward and inverse. Checks as the real
   members. src/transform/fft_records.cpp, fft_real.cpp, fft_complex.cpp. */
LUMI_API LumStatus lumiDFTFwd_CToC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTFwd_CToC_32fc_C1IR(Lum32fc* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_CToC_32fc_C1R(const Lum32fc* pSrc, int srcStep, Lum32fc* pDst, int dstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);
LUMI_API LumStatus lumiDFTInv_CToC_32fc_C1IR(Lum32fc* pSrcDst, int srcDstStep, const LumiDFTSpec* pSpec, Lum8u* pBuffer);

/* MulPack: the product of two packed spectra, element by element of the full spectrum; the
   products are formed in double precision (32f) or exactly (16s, 32s: then x 2^-scaleFactor,
   ties to even, saturated). MulPackConj: the first times the conjugate of the second. In place
   the srcDst image is the first factor: srcDst = srcDst x src (conj src). Checks pointers
   (lumStatusNullPtrErr), steps below 1 (lumStatusStepErr), the size (lumStatusSizeErr), in
   that order. src/transform/pack_mul.cpp. */
LUMI_API LumStatus lumiMulPack_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPack_16s_C1RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_C3RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_C4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_AC4RSfs(const Lum16s* pSrc1, int src1Step, const Lum16s* pSrc2, int src2Step, Lum16s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_C1IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_C3IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_C4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_16s_AC4IRSfs(const Lum16s* pSrc, int srcStep, Lum16s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C1RSfs(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C3RSfs(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C4RSfs(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_AC4RSfs(const Lum32s* pSrc1, int src1Step, const Lum32s* pSrc2, int src2Step, Lum32s* pDst, int dstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C1IRSfs(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C3IRSfs(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_C4IRSfs(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPack_32s_AC4IRSfs(const Lum32s* pSrc, int srcStep, Lum32s* pSrcDst, int srcDstStep, LumiSize roiSize, int scaleFactor);
LUMI_API LumStatus lumiMulPackConj_32f_C1R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_C3R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_C4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_AC4R(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2, int src2Step, Lum32f* pDst, int dstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_C1IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_C3IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_C4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);
LUMI_API LumStatus lumiMulPackConj_32f_AC4IR(const Lum32f* pSrc, int srcStep, Lum32f* pSrcDst, int srcDstStep, LumiSize roiSize);

/* MagnitudePack, PhasePack: |A| and arg A, in (-pi, pi], of every element of the full W x H
   spectrum a packed image holds (the unstored half from the symmetry). Integer members:
   x 2^-scaleFactor, ties to even, saturated. Checks pointers (lumStatusNullPtrErr), the size
   (lumStatusSizeErr), steps below 1 (lumStatusStepErr), in that order.
   src/transform/pack_convert.cpp. */
LUMI_API LumStatus lumiMagnitudePack_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiMagnitudePack_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiMagnitudePack_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiMagnitudePack_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiMagnitudePack_32s_C1RSfs(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiMagnitudePack_32s_C3RSfs(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiPhasePack_32f_C1R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiPhasePack_32f_C3R(const Lum32f* pSrc, int srcStep, Lum32f* pDst, int dstStep, LumiSize dstRoiSize);
LUMI_API LumStatus lumiPhasePack_16s_C1RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiPhasePack_16s_C3RSfs(const Lum16s* pSrc, int srcStep, Lum16s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiPhasePack_32s_C1RSfs(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);
LUMI_API LumStatus lumiPhasePack_32s_C3RSfs(const Lum32s* pSrc, int srcStep, Lum32s* pDst, int dstStep, LumiSize dstRoiSize, int scaleFactor);

/* PackToCplxExtend: the full W x H complex spectrum of a packed image (the unstored half from
   the symmetry; for 32s the negated most negative value saturates). CplxExtendToPack: the
   stored half of a full complex spectrum back in packed form. Checks pointers
   (lumStatusNullPtrErr), the size (lumStatusSizeErr), steps below 1 (lumStatusStepErr), in
   that order. src/transform/pack_convert.cpp. */
LUMI_API LumStatus lumiPackToCplxExtend_32f32fc_C1R(const Lum32f* pSrc, LumiSize srcSize, int srcStep, Lum32fc* pDst, int dstStep);
LUMI_API LumStatus lumiPackToCplxExtend_32s32sc_C1R(const Lum32s* pSrc, LumiSize srcSize, int srcStep, Lum32sc* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_32fc32f_C1R(const Lum32fc* pSrc, int srcStep, LumiSize srcSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_32fc32f_C3R(const Lum32fc* pSrc, int srcStep, LumiSize srcSize, Lum32f* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_32sc32s_C1R(const Lum32sc* pSrc, int srcStep, LumiSize srcSize, Lum32s* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_32sc32s_C3R(const Lum32sc* pSrc, int srcStep, LumiSize srcSize, Lum32s* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_16sc16s_C1R(const Lum16sc* pSrc, int srcStep, LumiSize srcSize, Lum16s* pDst, int dstStep);
LUMI_API LumStatus lumiCplxExtendToPack_16sc16s_C3R(const Lum16sc* pSrc, int srcStep, LumiSize srcSize, Lum16s* pDst, int dstStep);

#ifdef __cplusplus
}
#endif
#endif
