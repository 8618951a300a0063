// Core frame: allocators, the version record, the core library's helpers.
#include <omp.h>
#include <unistd.h>
#include <xmmintrin.h>

#include <cstdint>

#include "lumitest.h"

namespace {

bool aligned32(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 31u) == 0; }

TEST(Alloc, ImageStepsRoundUpTo32Bytes) {
  struct Case {
    void* (*alloc)(int, int, int*);
    int w, h, step;
  };
  auto a8c1 = [](int w, int h, int* s) -> void* { return lumiMalloc_8u_C1(w, h, s); };
  auto a32fc3 = [](int w, int h, int* s) -> void* { return lumiMalloc_32fc_C3(w, h, s); };
  auto a8ac4 = [](int w, int h, int* s) -> void* { return lumiMalloc_8u_AC4(w, h, s); };
  auto a16sc2 = [](int w, int h, int* s) -> void* { return lumiMalloc_16s_C2(w, h, s); };
  const Case cases[] = {{a8c1, 1, 1, 32}, {a32fc3, 1, 1, 32}, {a8ac4, 8, 1, 32},
                        {a8c1, 33, 2, 64}, {a16sc2, 17, 3, 96}, {a8c1, 1920, 1080, 1920}};
  for (const Case& c : cases) {
    int step = -1;
    void* p = c.alloc(c.w, c.h, &step);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(step, c.step) << c.w << "x" << c.h;
    EXPECT_TRUE(aligned32(p));
    std::memset(p, 0x5a, static_cast<std::size_t>(step) * c.h);  // the whole block is usable
    lumiFree(p);
  }
}

TEST(Alloc, BadImageSizesGiveNullAndStepZero) {
  int step = 77;
  EXPECT_EQ(lumiMalloc_8u_C1(0, 5, &step), nullptr);
  EXPECT_EQ(step, 0);
  step = 77;
  EXPECT_EQ(lumiMalloc_32f_C4(5, -1, &step), nullptr);
  EXPECT_EQ(step, 0);
  EXPECT_EQ(lumiMalloc_8u_C1(5, 5, nullptr), nullptr);
  // a step times height that is not a positive int gives null but keeps the step
  step = 0;
  EXPECT_EQ(lumiMalloc_8u_C1(65536, 65536, &step), nullptr);
  EXPECT_EQ(step, 65536);
}

TEST(Alloc, VectorBlocksAreAlignedAndUsable) {
  for (int len : {1, 2, 31, 32, 33, 1000, 4097}) {
    Lum8u* a = lumsMalloc_8u(len);
    Lum64fc* b = lumsMalloc_64fc(len);
    Lum32fc* c = lumsMalloc_32fc(len);
    ASSERT_TRUE(a && b && c);
    EXPECT_TRUE(aligned32(a) && aligned32(b) && aligned32(c));
    std::memset(a, 1, len);
    std::memset(b, 2, sizeof(Lum64fc) * len);
    std::memset(c, 3, sizeof(Lum32fc) * len);
    lumsFree(a);
    lumiFree(b);
    lumsFree(c);
  }
  EXPECT_EQ(lumsMalloc_8u(0), nullptr);
  EXPECT_EQ(lumsMalloc_32f(-1), nullptr);
  lumsFree(nullptr);
  lumiFree(nullptr);
}

TEST(Version, StaticRecordWithFixedValues) {
  const LumLibraryVersion* v = lumiGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, lumiGetLibVersion());
  EXPECT_EQ(v->versionMajor, 5);
  EXPECT_EQ(v->versionMinor, 1);
  EXPECT_EQ(v->buildMajor, 133);
  EXPECT_EQ(v->buildNumber, 272);
  EXPECT_EQ(std::memcmp(v->cpuCode, "t7\0\0", 4), 0);
  EXPECT_STREQ(v->libName, "liblumit7.so.5.1");
  EXPECT_STREQ(v->versionText, "5.1.1");
  EXPECT_STREQ(v->buildDateText, "Jun 17 2006");
}

TEST(CoreLibrary, ThreadCountDefaultsToProcessorsOnline) {
  EXPECT_EQ(threads_omp_of_n_lum, static_cast<int>(sysconf(_SC_NPROCESSORS_ONLN)));
}

TEST(CoreLibrary, CacheSizeIsPlausible) {
  int size = 0;
  ASSERT_EQ(lumGetMaxCacheSizeB(&size), 0);
  EXPECT_GE(size, 32 * 1024);
  EXPECT_LE(size, 1 << 30);
  EXPECT_NE(lumGetMaxCacheSizeB(nullptr), 0);
}

TEST(CoreLibrary, RoundingControlHelpers) {
  const unsigned saved = _mm_getcsr();
  unsigned old = lum_set_rc_ssx(0x6000);
  EXPECT_EQ(old, saved);
  EXPECT_EQ(ps_get_ssx() & 0x6000u, 0x6000u);
  EXPECT_EQ(ps_get_ssx() & ~0x6000u, saved & ~0x6000u);  // only the rounding bits changed
  ps_set_ssx(0x2000, 0x6000);
  EXPECT_EQ(_mm_getcsr() & 0x6000u, 0x2000u);
  lum_set_cw_ssx(old);
  EXPECT_EQ(_mm_getcsr(), saved);
}

}  // namespace
