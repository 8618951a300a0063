// A C++ program built against the installed package through find_package(Lumi).
#include <lumi.h>

#include <cstdio>
#include <memory>

int main() {
  int step = 0;
  std::unique_ptr<Lum32f, void (*)(void*)> img(lumiMalloc_32f_C3(10, 10, &step), lumiFree);
  int cache = 0;
  bool ok = img && step == 128 && lumGetMaxCacheSizeB(&cache) == 0 &&
            lumiGetLibVersion()->versionMinor == 1;
  std::printf("C++ consumer: %s\n", ok ? "ok" : "FAILED");
  return ok ? 0 : 1;
}
