// The internal frame every family builds on: row bands, both threading patterns and the
// rounding-mode guards. The frame is header-only, so the test compiles it directly.
#include "core/frame.h"

#include <xmmintrin.h>

#include <atomic>
#include <set>
#include <vector>

#include "lumitest.h"

namespace {

class ThreadCount {  // sets threads_omp_of_n_lum for one test and puts it back
 public:
  explicit ThreadCount(int n) : saved_(threads_omp_of_n_lum) { threads_omp_of_n_lum = n; }
  ~ThreadCount() { threads_omp_of_n_lum = saved_; }

 private:
  int saved_;
};

TEST(Frame, RowBandsCoverEveryRowOnceInContiguousBlocks) {
  for (int height : {1, 2, 3, 7, 100, 1081})
    for (int n : {1, 2, 3, 8}) {
      int expectNext = 0;
      for (int t = 0; t < n; ++t) {
        int y0, y1;
        lumi::rowBand(height, t, n, &y0, &y1);
        EXPECT_EQ(y0, expectNext);
        EXPECT_LE(y1 - y0, height / n + 1);
        EXPECT_GE(y1 - y0, height / n);
        expectNext = y1;
      }
      EXPECT_EQ(expectNext, height);
    }
}

TEST(Frame, ForRowsVisitsEveryRowOnceWithTheRequestedTeam) {
  for (int threads : {1, 2, 3}) {
    ThreadCount tc(threads);
    for (bool parallel : {false, true}) {
      std::vector<std::atomic<int>> seen(301);
      std::set<int> tids;
      std::atomic<int> bands{0};
#pragma omp critical
      tids.clear();
      lumi::forRows(301, parallel, [&](int y0, int y1) {
        ++bands;
        for (int y = y0; y < y1; ++y) ++seen[y];
#pragma omp critical
        tids.insert(omp_get_thread_num());
      });
      for (auto& s : seen) EXPECT_EQ(s.load(), 1);
      EXPECT_EQ(bands.load(), parallel ? threads : 1);
      EXPECT_EQ(static_cast<int>(tids.size()), parallel ? threads : 1);
    }
  }
}

TEST(Frame, ForkRuleIsASumOfTheDimensions) {
  EXPECT_FALSE(lumi::forkBySum(LumiSize{100, 155}));
  EXPECT_TRUE(lumi::forkBySum(LumiSize{100, 156}));
  EXPECT_FALSE(lumi::forkBySum(LumiSize{4000, 1}, 4096));
}

TEST(Frame, ScratchRegionGivesEachThreadItsOwnAlignedSlice) {
  ThreadCount tc(2);
  std::vector<std::atomic<int>> seen(64);
  std::set<const void*> slices;
  LumStatus st = lumi::forRowsWithScratch(64, true, 100, [&](int y0, int y1, Lum8u* scratch) {
    EXPECT_EQ(reinterpret_cast<uintptr_t>(scratch) % 32, 0u);
    std::memset(scratch, omp_get_thread_num(), 100);  // a slice is private to its thread
    for (int y = y0; y < y1; ++y) ++seen[y];
#pragma omp barrier
    for (int i = 0; i < 100; ++i) EXPECT_EQ(scratch[i], omp_get_thread_num());
#pragma omp critical
    slices.insert(scratch);
  });
  EXPECT_EQ(st, lumStatusOk);
  EXPECT_EQ(slices.size(), 2u);
  for (auto& s : seen) EXPECT_EQ(s.load(), 1);
}

TEST(Frame, ScratchFailureMeansNoBodyRunsAndMemAllocErr) {
  ThreadCount tc(2);
  std::atomic<int> calls{0};
  LumStatus st = lumi::forRowsWithScratch(10, true, std::size_t(1) << 31,
                                          [&](int, int, Lum8u*) { ++calls; });
  EXPECT_EQ(st, lumStatusMemAllocErr);
  EXPECT_EQ(calls.load(), 0);
}

TEST(Frame, ConversionRoundingRestoresOnlyWhenItChangedTheMode) {
  const unsigned saved = _mm_getcsr();
  for (unsigned callerMode : {0x0000u, 0x2000u, 0x4000u, 0x6000u})
    for (int selector : {0, 1, 7}) {
      _mm_setcsr((saved & ~0x6000u) | callerMode);
      const unsigned before = _mm_getcsr();
      {
        lumi::ConversionRounding guard(selector);
        EXPECT_EQ(_mm_getcsr() & 0x6000u, selector == 1 ? 0u : 0x6000u);
        volatile float x = -2.7f;  // volatile: the conversion must happen at run time
        EXPECT_EQ(_mm_cvtss_si32(_mm_set_ss(x)), selector == 1 ? -3 : -2);
      }
      // control bits exactly as before; the sticky exception flags (low six bits) may be set
      EXPECT_EQ(_mm_getcsr() & ~0x3Fu, before & ~0x3Fu);
    }
  _mm_setcsr(saved);
}

TEST(Frame, NearestRoundingSwitchesOnlyWhenNeeded) {
  const unsigned saved = _mm_getcsr();
  for (unsigned callerMode : {0x0000u, 0x2000u, 0x6000u}) {
    _mm_setcsr((saved & ~0x6000u) | callerMode);
    const unsigned before = _mm_getcsr();
    {
      lumi::NearestRounding guard;
      EXPECT_EQ(_mm_getcsr() & 0x6000u, 0u);
    }
    EXPECT_EQ(_mm_getcsr(), before);
  }
  _mm_setcsr(saved);
}

TEST(Frame, RowAddressingFollowsAnyStep) {
  Lum16s buf[64];
  Lum16s* base = buf + 32;
  EXPECT_EQ(lumi::rowAt(base, 6, 2), base + 6);
  EXPECT_EQ(lumi::rowAt(base, -4, 3), base - 6);
  EXPECT_EQ(lumi::rowAt(static_cast<const Lum16s*>(base), 0, 9), base);
  EXPECT_EQ(lumi::saturate<Lum8u>(300), 255);
  EXPECT_EQ(lumi::saturate<Lum16s>(-40000), -32768);
  EXPECT_EQ(lumi::saturate<Lum8u>(-1), 0);
}

}  // namespace
