// Test support: guarded images (canary bytes around the ROI catch any write outside it),
// random sizes and steps, and image comparison with the first mismatch reported.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "lumi.h"

namespace lumitest {

// True when this process runs the plain scalar kernels (LUMI_SCALAR=1); every test binary is
// registered twice with CTest, once on each path.
inline bool scalarPath() {
  const char* v = std::getenv("LUMI_SCALAR");
  return v && *v && std::strcmp(v, "0") != 0;
}

// A channel layout: elements per pixel in memory and leading elements written (AC4 leaves
// the fourth, alpha, as it was).
struct Layout {
  const char* name;
  int ch, use;
};
constexpr Layout kC1{"C1", 1, 1}, kC3{"C3", 3, 3}, kC4{"C4", 4, 4}, kAC4{"AC4", 4, 3};
constexpr Layout kLayouts[4] = {kC1, kC3, kC4, kAC4};

using Rng = std::mt19937;
inline Rng makeRng(uint32_t salt = 0) { return Rng(0x1234567u ^ salt); }

inline int randInt(Rng& r, int lo, int hi) {  // inclusive
  return std::uniform_int_distribution<int>(lo, hi)(r);
}

// A random ROI: odd widths are common, one-pixel rows and columns occur.
inline LumiSize randomSize(Rng& r, int maxW = 67, int maxH = 9) {
  int w = randInt(r, 1, maxW) | (randInt(r, 0, 2) ? 1 : 0);
  if (w > maxW) w = maxW;
  return LumiSize{w, randInt(r, 1, maxH)};
}

template <class T>
T randomValue(Rng& r) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(std::uniform_real_distribution<double>(-1000.0, 1000.0)(r));
  } else if constexpr (sizeof(T) == 1 || sizeof(T) == 2) {
    return static_cast<T>(std::uniform_int_distribution<int>(std::numeric_limits<T>::min(),
                                                             std::numeric_limits<T>::max())(r));
  } else {
    return static_cast<T>(std::uniform_int_distribution<int64_t>(std::numeric_limits<T>::min(),
                                                                 std::numeric_limits<T>::max())(r));
  }
}

// An image of width x height pixels with `channels` interleaved elements of T per pixel, whose
// rows sit inside a larger buffer: guard bytes before the first row, between rows (the step
// padding) and after the last row all hold a canary pattern. The first pixel is deliberately
// not 16-byte aligned unless asked.
template <class T>
class GuardedImage {
 public:
  static constexpr int kGuard = 64;

  GuardedImage(int width, int height, int channels, int padBytes = -1, int misalign = -1,
               uint32_t seed = 7)
      : w_(width), h_(height), ch_(channels) {
    Rng r(seed);
    if (padBytes < 0) padBytes = randInt(r, 0, 5) * static_cast<int>(sizeof(T));
    if (misalign < 0) misalign = randInt(r, 0, 3) * static_cast<int>(sizeof(T));
    rowBytes_ = w_ * ch_ * static_cast<int>(sizeof(T));
    step_ = rowBytes_ + padBytes;
    std::size_t total = kGuard * 2 + 32 + static_cast<std::size_t>(step_) * (h_ > 0 ? h_ : 1);
    buf_.assign(total, 0);
    for (std::size_t i = 0; i < total; ++i) buf_[i] = canary(i);
    base_ = static_cast<std::size_t>(kGuard + misalign);
    // keep element alignment: the buffer's own storage is at least 16-byte aligned
  }

  T* ptr() { return reinterpret_cast<T*>(buf_.data() + base_); }
  const T* ptr() const { return reinterpret_cast<const T*>(buf_.data() + base_); }
  int step() const { return step_; }
  LumiSize roi() const { return LumiSize{w_, h_}; }
  int width() const { return w_; }
  int height() const { return h_; }
  int channels() const { return ch_; }

  T* row(int y) { return reinterpret_cast<T*>(buf_.data() + base_ + static_cast<std::size_t>(y) * step_); }
  const T* row(int y) const {
    return reinterpret_cast<const T*>(buf_.data() + base_ + static_cast<std::size_t>(y) * step_);
  }
  T& at(int x, int y, int c = 0) { return row(y)[x * ch_ + c]; }
  T at(int x, int y, int c = 0) const { return row(y)[x * ch_ + c]; }

  void fillRandom(Rng& r) {
    for (int y = 0; y < h_; ++y)
      for (int i = 0; i < w_ * ch_; ++i) row(y)[i] = randomValue<T>(r);
  }
  template <class F>
  void fill(F f) {  // f(x, y, c)
    for (int y = 0; y < h_; ++y)
      for (int x = 0; x < w_; ++x)
        for (int c = 0; c < ch_; ++c) at(x, y, c) = f(x, y, c);
  }

  // All ROI elements in row-major order.
  std::vector<T> pixels() const {
    std::vector<T> v;
    v.reserve(static_cast<std::size_t>(w_) * h_ * ch_);
    for (int y = 0; y < h_; ++y) v.insert(v.end(), row(y), row(y) + w_ * ch_);
    return v;
  }

  // True when no byte outside the ROI rows has changed.
  ::testing::AssertionResult guardsIntact() const {
    for (std::size_t i = 0; i < buf_.size(); ++i) {
      if (insideRoi(i)) continue;
      if (buf_[i] != canary(i))
        return ::testing::AssertionFailure() << "byte " << static_cast<long>(i - base_)
                                             << " relative to the ROI origin was overwritten";
    }
    return ::testing::AssertionSuccess();
  }

 private:
  static uint8_t canary(std::size_t i) { return static_cast<uint8_t>(0xA5 ^ (i * 29)); }
  bool insideRoi(std::size_t i) const {
    if (i < base_) return false;
    std::size_t off = i - base_;
    std::size_t y = off / step_;
    return y < static_cast<std::size_t>(h_) && off % step_ < static_cast<std::size_t>(rowBytes_);
  }

  int w_, h_, ch_, rowBytes_ = 0, step_ = 0;
  std::size_t base_ = 0;
  std::vector<uint8_t> buf_;
};

// Compares two element sequences exactly (floats by bit pattern unless both are NaN) and
// reports the first difference.
template <class T>
::testing::AssertionResult sameElements(const std::vector<T>& got, const std::vector<T>& want,
                                        int rowElems = 0) {
  if (got.size() != want.size())
    return ::testing::AssertionFailure() << "sizes differ: " << got.size() << " vs " << want.size();
  for (std::size_t i = 0; i < got.size(); ++i) {
    bool same;
    if constexpr (std::is_floating_point_v<T>)
      same = (std::isnan(got[i]) && std::isnan(want[i])) ||
             std::memcmp(&got[i], &want[i], sizeof(T)) == 0;
    else
      same = got[i] == want[i];
    if (!same) {
      auto f = ::testing::AssertionFailure();
      f << "element " << i;
      if (rowElems > 0) f << " (row " << i / rowElems << ", index " << i % rowElems << ")";
      f << ": got " << +got[i] << ", want " << +want[i];
      return f;
    }
  }
  return ::testing::AssertionSuccess();
}

}  // namespace lumitest
