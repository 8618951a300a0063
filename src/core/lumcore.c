/* liblumcore: the thread count of parallel regions, the cache-size query and the SSE
   control/status register helpers. */
#include "lumi/core.h"

#include <stdio.h>
#include <unistd.h>
#include <xmmintrin.h>

LUMCORE_API int threads_omp_of_n_lum = 1;

__attribute__((constructor)) static void lumcore_init(void) {
  long n = sysconf(_SC_NPROCESSORS_ONLN);
  threads_omp_of_n_lum = n > 0 ? (int)n : 1;
}

/* Reads "64K"-style sizes from the kernel's cache description. */
static long read_cache_size(const char* path) {
  FILE* f = fopen(path, "r");
  if (!f) return -1;
  long v = -1;
  char unit = 0;
  int got = fscanf(f, "%ld%c", &v, &unit);
  fclose(f);
  if (got < 1 || v < 0) return -1;
  if (got == 2 && (unit == 'K' || unit == 'k')) v *= 1024;
  if (got == 2 && (unit == 'M' || unit == 'm')) v *= 1024 * 1024;
  return v;
}

LUMCORE_API int lumGetMaxCacheSizeB(int* pSizeBytes) {
  if (!pSizeBytes) return 1;
  long best = -1;
  char path[96];
  for (int i = 0; i < 16; ++i) {
    snprintf(path, sizeof path, "/sys/devices/system/cpu/cpu0/cache/index%d/size", i);
    long v = read_cache_size(path);
    if (v < 0) {
      if (i > 0) break;
      continue;
    }
    if (v > best) best = v;
  }
#ifdef _SC_LEVEL3_CACHE_SIZE
  if (best <= 0) {
    long levels[3] = {sysconf(_SC_LEVEL1_DCACHE_SIZE), sysconf(_SC_LEVEL2_CACHE_SIZE),
                      sysconf(_SC_LEVEL3_CACHE_SIZE)};
    for (int i = 0; i < 3; ++i)
      if (levels[i] > best) best = levels[i];
  }
#endif
  if (best <= 0) return 1;
  *pSizeBytes = best > 0x7fffffffL ? 0x7fffffff : (int)best;
  return 0;
}

#define RC_MASK 0x6000u

LUMCORE_API unsigned int lum_set_rc_ssx(unsigned int roundingBits) {
  unsigned int old = _mm_getcsr();
  _mm_setcsr((old & ~RC_MASK) | (roundingBits & RC_MASK));
  return old;
}

LUMCORE_API void lum_set_cw_ssx(unsigned int value) { _mm_setcsr(value); }

LUMCORE_API unsigned int ps_get_ssx(void) { return _mm_getcsr(); }

LUMCORE_API void ps_set_ssx(unsigned int value, unsigned int mask) {
  _mm_setcsr((_mm_getcsr() & ~mask) | (value & mask));
}
