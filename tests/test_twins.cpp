// Scalar twin against dispatched kernel on the same data, in one process: the library's
// objects are linked in directly, so the test can switch the SIMD level between two calls.
// Integer results must be equal to the bit; floating-point reductions may differ only by
// summation order.
#include <functional>
#include <vector>

#include "core/frame.h"
#include "lumitest.h"

namespace {

using lumitest::Rng;

// Runs call() at every level from the scalar twin up to what the processor supports and
// returns the bytes it wrote, one vector per level.
std::vector<std::vector<uint8_t>> atEveryLevel(const std::function<std::vector<uint8_t>()>& call) {
  std::vector<std::vector<uint8_t>> out;
  const int top = lumi::setSimdLevel(lumi::kAVX3);
  const int max = lumi::simdLevel();
  for (int level = lumi::kScalar; level <= max; ++level) {
    lumi::setSimdLevel(level);
    out.push_back(call());
  }
  lumi::setSimdLevel(top);
  return out;
}

template <class T>
std::vector<T> randomPixels(Rng& rng, std::size_t n) {
  std::vector<T> v(n);
  for (auto& x : v) x = lumitest::randomValue<T>(rng);
  return v;
}

template <class T>
std::vector<uint8_t> bytesOf(const std::vector<T>& v) {
  const auto* p = reinterpret_cast<const uint8_t*>(v.data());
  return std::vector<uint8_t>(p, p + v.size() * sizeof(T));
}

// Each case: an image function called on random pixels of a size that leaves vector tails.
TEST(Twins, ElementwiseKernelsEqualTheirScalarTwinsBitForBit) {
  Rng rng = lumitest::makeRng(11);
  const LumiSize roi{197, 5};
  const int n = roi.width * roi.height;
  const auto a8 = randomPixels<Lum8u>(rng, 4 * n), b8 = randomPixels<Lum8u>(rng, 4 * n);
  const auto a32 = randomPixels<Lum32f>(rng, 4 * n), b32 = randomPixels<Lum32f>(rng, 4 * n);
  const auto a16 = randomPixels<Lum16s>(rng, n);
  const Lum8u thr[3] = {50, 128, 200}, val[3] = {1, 2, 3};
  const int order[3] = {2, 0, 1};

  const std::vector<std::pair<const char*, std::function<std::vector<uint8_t>()>>> cases = {
      {"Add_8u_C3RSfs", [&] {
         std::vector<Lum8u> d(3 * n, 7);
         EXPECT_EQ(lumiAdd_8u_C3RSfs(a8.data(), 3 * roi.width, b8.data(), 3 * roi.width, d.data(),
                                     3 * roi.width, roi, 1), lumStatusOk);
         return bytesOf(d);
       }},
      {"Mul_32f_AC4R", [&] {
         std::vector<Lum32f> d(4 * n, 7.f);
         EXPECT_EQ(lumiMul_32f_AC4R(a32.data(), 16 * roi.width, b32.data(), 16 * roi.width,
                                    d.data(), 16 * roi.width, roi), lumStatusOk);
         return bytesOf(d);
       }},
      {"Sqrt_16s_C1RSfs", [&] {
         std::vector<Lum16s> d(n, 7);
         lumiSqrt_16s_C1RSfs(a16.data(), 2 * roi.width, d.data(), 2 * roi.width, roi, -3);
         return bytesOf(d);
       }},
      {"Convert_32f8u_C1R", [&] {
         std::vector<Lum8u> d(n, 7);
         EXPECT_EQ(lumiConvert_32f8u_C1R(a32.data(), 4 * roi.width, d.data(), roi.width, roi,
                                         lumRndNear), lumStatusOk);
         return bytesOf(d);
       }},
      {"Threshold_GTVal_8u_AC4R", [&] {
         std::vector<Lum8u> d(4 * n, 7);
         EXPECT_EQ(lumiThreshold_GTVal_8u_AC4R(a8.data(), 4 * roi.width, d.data(), 4 * roi.width,
                                               roi, thr, val), lumStatusOk);
         return bytesOf(d);
       }},
      {"Compare_8u_C1R", [&] {
         std::vector<Lum8u> d(n, 7);
         EXPECT_EQ(lumiCompare_8u_C1R(a8.data(), roi.width, b8.data(), roi.width, d.data(),
                                      roi.width, roi, lumCmpGreaterEq), lumStatusOk);
         return bytesOf(d);
       }},
      {"SwapChannels_8u_C3R", [&] {
         std::vector<Lum8u> d(3 * n, 7);
         EXPECT_EQ(lumiSwapChannels_8u_C3R(a8.data(), 3 * roi.width, d.data(), 3 * roi.width, roi,
                                           order), lumStatusOk);
         return bytesOf(d);
       }},
      {"MinMax_32f_C1R", [&] {
         std::vector<Lum32f> d(2);
         EXPECT_EQ(lumiMinMax_32f_C1R(a32.data(), 4 * roi.width, roi, &d[0], &d[1]), lumStatusOk);
         return bytesOf(d);
       }},
  };
  for (const auto& [name, call] : cases) {
    SCOPED_TRACE(name);
    const auto runs = atEveryLevel(call);
    for (std::size_t l = 1; l < runs.size(); ++l) EXPECT_EQ(runs[l], runs[0]) << "level " << l;
  }
}

// Neighbourhood kernels read a supplied border: the ROI starts 8 pixels into a larger image.
TEST(Twins, NeighbourhoodKernelsEqualTheirScalarTwinsBitForBit) {
  Rng rng = lumitest::makeRng(13);
  const int b = 8, W = 213, H = 23, step = W + 2 * b;
  const LumiSize roi{W, H};
  const auto src = randomPixels<Lum8u>(rng, static_cast<std::size_t>(step) * (H + 2 * b));
  const Lum8u* in = src.data() + b * step + b;
  auto run = [&](auto&& call) {
    return [&, call] {
      std::vector<Lum8u> d(static_cast<std::size_t>(W) * H, 7);
      EXPECT_EQ(call(d.data()), lumStatusOk);
      return bytesOf(d);
    };
  };
  const std::vector<std::pair<const char*, std::function<std::vector<uint8_t>()>>> cases = {
      {"FilterBox_8u_C1R 5x5", run([&](Lum8u* d) {
         return lumiFilterBox_8u_C1R(in, step, d, W, roi, {5, 5}, {2, 2});
       })},
      {"FilterMedian_8u_C1R 5x5", run([&](Lum8u* d) {
         return lumiFilterMedian_8u_C1R(in, step, d, W, roi, {5, 5}, {2, 2});
       })},
      {"FilterGauss_8u_C1R 5x5", run([&](Lum8u* d) {
         return lumiFilterGauss_8u_C1R(in, step, d, W, roi, lumMskSize5x5);
       })},
      {"Erode3x3_8u_C1R", run([&](Lum8u* d) { return lumiErode3x3_8u_C1R(in, step, d, W, roi); })},
  };
  for (const auto& [name, call] : cases) {
    SCOPED_TRACE(name);
    const auto runs = atEveryLevel(call);
    for (std::size_t l = 1; l < runs.size(); ++l) EXPECT_EQ(runs[l], runs[0]) << "level " << l;
  }
}

TEST(Twins, FloatReductionsAgreeWithinSummationOrder) {
  Rng rng = lumitest::makeRng(12);
  const LumiSize roi{333, 7};
  const auto a = randomPixels<Lum32f>(rng, static_cast<std::size_t>(roi.width) * roi.height);
  std::vector<double> norms;
  atEveryLevel([&] {
    Lum64f v = 0;
    EXPECT_EQ(lumiNorm_L2_32f_C1R(a.data(), 4 * roi.width, roi, &v, lumHintNone), lumStatusOk);
    norms.push_back(v);
    return std::vector<uint8_t>();
  });
  for (double v : norms) EXPECT_NEAR(v, norms[0], 1e-5 * norms[0]);
}

TEST(Twins, TheLevelCanBeLoweredAndRestoredButNotRaisedAboveTheProcessor) {
  const int top = lumi::simdLevel();
  EXPECT_EQ(lumi::setSimdLevel(lumi::kScalar), top);
  EXPECT_EQ(lumi::simdLevel(), lumi::kScalar);
  lumi::setSimdLevel(99);
  EXPECT_EQ(lumi::simdLevel(), top);
}

}  // namespace
