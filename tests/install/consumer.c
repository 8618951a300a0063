/* A plain C program built against the installed package through pkg-config. */
#include <lumi.h>
#include <stdio.h>

int main(void) {
  const LumLibraryVersion* v = lumiGetLibVersion();
  int step = 0;
  Lum8u* p = lumiMalloc_8u_C1(33, 2, &step);
  int ok = v && v->versionMajor == 5 && p && step == 64 && threads_omp_of_n_lum >= 1;
  lumiFree(p);
  printf("C consumer: %s %s\n", v ? v->libName : "?", ok ? "ok" : "FAILED");
  return ok ? 0 : 1;
}
