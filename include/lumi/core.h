/* Lumi: the core library (liblumcore), aligned allocation and the version record. */
#ifndef LUMI_CORE_H
#define LUMI_CORE_H

#include "lumi/types.h"

#if defined(LUMI_BUILDING_CORE) || defined(LUMI_BUILDING_LIBRARY)
#define LUMCORE_API __attribute__((visibility("default")))
#else
#define LUMCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- liblumcore (src/core/lumcore.c) ------------------------------------------------ */
/* Number of threads every parallel region asks for; defaults to the processors online. */
extern LUMCORE_API int threads_omp_of_n_lum;
/* Writes the size in bytes of the largest processor cache; returns 0, or nonzero if unknown. */
LUMCORE_API int lumGetMaxCacheSizeB(int* pSizeBytes);
/* Sets the rounding-control bits (mask 0x6000) of the SSE control/status register and
   returns the previous whole register value. */
LUMCORE_API unsigned int lum_set_rc_ssx(unsigned int roundingBits);
/* Writes a whole SSE control/status register value back. */
LUMCORE_API void lum_set_cw_ssx(unsigned int value);
/* Returns the SSE control/status register. */
LUMCORE_API unsigned int ps_get_ssx(void);
/* Replaces the register bits selected by mask with those of value. */
LUMCORE_API void ps_set_ssx(unsigned int value, unsigned int mask);

/* ---- aligned allocation (src/core/malloc.cpp) ---------------------------------------- */
LUMI_API Lum8u* lumsMalloc_8u(int len);
LUMI_API Lum8s* lumsMalloc_8s(int len);
LUMI_API Lum16u* lumsMalloc_16u(int len);
LUMI_API Lum16s* lumsMalloc_16s(int len);
LUMI_API Lum32u* lumsMalloc_32u(int len);
LUMI_API Lum32s* lumsMalloc_32s(int len);
LUMI_API Lum32f* lumsMalloc_32f(int len);
LUMI_API Lum16sc* lumsMalloc_16sc(int len);
LUMI_API Lum64s* lumsMalloc_64s(int len);
LUMI_API Lum32sc* lumsMalloc_32sc(int len);
LUMI_API Lum32fc* lumsMalloc_32fc(int len);
LUMI_API Lum64fc* lumsMalloc_64fc(int len);
LUMI_API void lumsFree(void* ptr);

LUMI_API Lum8u* lumiMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum8u* lumiMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum8u* lumiMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum8u* lumiMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum8u* lumiMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16u* lumiMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16u* lumiMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16u* lumiMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16u* lumiMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16u* lumiMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16s* lumiMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16s* lumiMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16s* lumiMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16s* lumiMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum16s* lumiMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32s* lumiMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32s* lumiMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32s* lumiMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32s* lumiMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32s* lumiMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32f* lumiMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32f* lumiMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32f* lumiMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32f* lumiMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32f* lumiMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32sc* lumiMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32sc* lumiMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32sc* lumiMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32sc* lumiMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32sc* lumiMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32fc* lumiMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32fc* lumiMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32fc* lumiMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32fc* lumiMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API Lum32fc* lumiMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
LUMI_API void lumiFree(void* ptr);

/* ---- version record (src/core/malloc.cpp) -------------------------------------------- */
LUMI_API const LumLibraryVersion* lumiGetLibVersion(void);

#ifdef __cplusplus
}
#endif
#endif
