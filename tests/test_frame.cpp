// The internal frame every family builds on: row bands, both threading patterns and the
// rounding-mode guards. The frame is header-only, so the test compiles it directly.
#include "core/frame.h"
#include "core/halo.h"

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

TEST(Frame, ForkByWorkWeighsTapsAndCoalescingNeedsEveryStepTight) {
  EXPECT_FALSE(lumi::forkByWork({64, 64}, 1, 1 << 16));  // a copy of 64x64 stays serial
  EXPECT_TRUE(lumi::forkByWork({64, 64}, 225, 1 << 16));  // a 15x15 median of it forks
  EXPECT_TRUE(lumi::forkByWork({1 << 30, 1 << 30}, 1 << 30, 1LL << 62));  // no overflow
  EXPECT_FALSE(lumi::forkByWork({1 << 20, 1 << 20}, 1 << 20, 1LL << 62));
  EXPECT_EQ(lumi::coalesceRows({5, 3}, 12, 60, 60).width, 15);
  EXPECT_EQ(lumi::coalesceRows({5, 3}, 12, 60, 64).width, 5);
  EXPECT_EQ(lumi::coalesceRows({1 << 16, 1 << 15}, 4, 1 << 18).height, 1 << 15);  // > INT_MAX bytes
}

// A 3x5 window sum (rows y-1..y+1, columns x-2..x+2) in place must equal the same sum out of
// place, whatever the bands: the halo rows keep the source rows the bands overwrite.
TEST(Frame, InPlaceHaloRowsMatchOutOfPlace) {
  constexpr int kTop = 1, kBottom = 1, kLeft = 2, kRight = 2;
  for (int threads : {1, 2, 3}) {
    ThreadCount tc(threads);
    for (int h : {1, 2, 5, 17}) {
      const int w = 13, full = w + kLeft + kRight, step = full * 2;  // padded rows
      lumitest::Rng rng = lumitest::makeRng(h);
      std::vector<int16_t> img((h + kTop + kBottom) * full * 2);
      for (auto& v : img) v = static_cast<int16_t>(lumitest::randInt(rng, -999, 999));
      std::vector<int16_t> inPlace = img;
      auto origin = [&](std::vector<int16_t>& b) { return b.data() + kTop * (step / 2) + kLeft; };
      const lumi::ImageView<const int16_t> src{origin(img), step, {w, h}, 1};
      std::vector<int> want(w * h);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          for (int dy = -kTop; dy <= kBottom; ++dy)
            for (int dx = -kLeft; dx <= kRight; ++dx) want[y * w + x] += src.row(y + dy)[x + dx];

      const lumi::ImageView<const int16_t> io{origin(inPlace), step, {w, h}, 1};
      lumi::HaloRows<int16_t> halo(io, kTop, kBottom, kLeft, kRight, true);
      // Each step binds its own copy to the band and slice; only the prepare step copies the
      // edge rows, before any band writes.
      ASSERT_EQ(lumi::forRowsWithScratch(
                    h, true, halo.scratchBytes(),
                    [&](int y0, int y1, Lum8u* s) {
                      lumi::HaloRows<int16_t> mine = halo;
                      mine.bind(y0, y1, s);
                      for (int y = y0; y < y1; ++y) {
                        mine.keep(y);
                        int16_t* out = const_cast<int16_t*>(io.row(y));
                        for (int x = 0; x < w; ++x) {
                          int sum = 0;
                          for (int dy = -kTop; dy <= kBottom; ++dy)
                            for (int dx = -kLeft; dx <= kRight; ++dx) sum += mine.row(y + dy)[x + dx];
                          out[x] = static_cast<int16_t>(sum);
                        }
                      }
                    },
                    [&](int y0, int y1, Lum8u* s) {
                      lumi::HaloRows<int16_t> mine = halo;
                      mine.bind(y0, y1, s);
                      mine.prepare();
                    }),
                lumStatusOk);
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
          ASSERT_EQ(io.row(y)[x], static_cast<int16_t>(want[y * w + x])) << threads << " " << h << " " << x << "," << y;
    }
  }
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
