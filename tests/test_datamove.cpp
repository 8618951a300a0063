// Copies, fills, channel swaps and duplication against plain per-pixel loops, on every element
// type and layout, with odd widths, padded and misaligned rows and guard bytes.
#include <array>
#include <functional>
#include <tuple>

#include <sys/mman.h>
#include <unistd.h>

#include "lumitest.h"

namespace {

using namespace lumitest;

struct Layout {
  int ch, use;  // channels in memory, channels written
};
constexpr Layout kLayouts[4] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};  // C1, C3, C4, AC4
const char* const kLayoutNames[4] = {"C1", "C3", "C4", "AC4"};

template <class T>
using CopyFn = LumStatus (*)(const T*, int, T*, int, LumiSize);
template <class T>
using MaskedCopyFn = LumStatus (*)(const T*, int, T*, int, LumiSize, const Lum8u*, int);
template <class T>
using SetFn = std::function<LumStatus(const T*, T*, int, LumiSize)>;
template <class T>
using MaskedSetFn = std::function<LumStatus(const T*, T*, int, LumiSize, const Lum8u*, int)>;
template <class T>
using ChannelSetFn = LumStatus (*)(T, T*, int, LumiSize);

// Every function of one element type, by layout (C1, C3, C4, AC4).
template <class T>
struct Api;
#define LUMI_TEST_API(t)                                                                        \
  template <>                                                                                   \
  struct Api<Lum##t> {                                                                          \
    using T = Lum##t;                                                                           \
    static constexpr CopyFn<T> copy[4] = {lumiCopy_##t##_C1R, lumiCopy_##t##_C3R,               \
                                          lumiCopy_##t##_C4R, lumiCopy_##t##_AC4R};             \
    static constexpr MaskedCopyFn<T> copyMasked[4] = {lumiCopy_##t##_C1MR, lumiCopy_##t##_C3MR, \
                                                      lumiCopy_##t##_C4MR, lumiCopy_##t##_AC4MR}; \
    /* {source channels, destination channels, function} */                                    \
    static constexpr std::tuple<int, int, CopyFn<T>> strided[6] = {                            \
        {3, 1, lumiCopy_##t##_C3C1R}, {4, 1, lumiCopy_##t##_C4C1R},                            \
        {1, 3, lumiCopy_##t##_C1C3R}, {1, 4, lumiCopy_##t##_C1C4R},                            \
        {3, 3, lumiCopy_##t##_C3CR},  {4, 4, lumiCopy_##t##_C4CR}};                            \
    static SetFn<T> set(int l) {                                                                \
      switch (l) {                                                                              \
        case 0: return [](const T* v, T* d, int s, LumiSize r) { return lumiSet_##t##_C1R(*v, d, s, r); }; \
        case 1: return lumiSet_##t##_C3R;                                                       \
        case 2: return lumiSet_##t##_C4R;                                                       \
        default: return lumiSet_##t##_AC4R;                                                     \
      }                                                                                         \
    }                                                                                           \
    static MaskedSetFn<T> setMasked(int l) {                                                    \
      switch (l) {                                                                              \
        case 0:                                                                                 \
          return [](const T* v, T* d, int s, LumiSize r, const Lum8u* m, int ms) {              \
            return lumiSet_##t##_C1MR(*v, d, s, r, m, ms);                                      \
          };                                                                                    \
        case 1: return lumiSet_##t##_C3MR;                                                      \
        case 2: return lumiSet_##t##_C4MR;                                                      \
        default: return lumiSet_##t##_AC4MR;                                                    \
      }                                                                                         \
    }                                                                                           \
    static constexpr ChannelSetFn<T> setChannel[2] = {lumiSet_##t##_C3CR, lumiSet_##t##_C4CR};  \
  };
LUMI_TEST_API(8u)
LUMI_TEST_API(16u)
LUMI_TEST_API(16s)
LUMI_TEST_API(32s)
LUMI_TEST_API(32f)

// Widths up to a few vectors of the widest target, so that both the vector loops and their
// tails run; every third image has unpadded rows, which lets whole ROIs go as one row.
LumiSize caseSize(Rng& r, int rep) { return rep % 4 == 3 ? randomSize(r, 9, 3) : randomSize(r, 230, 5); }
int casePad(int rep) { return rep % 3 == 0 ? 0 : -1; }

template <class T>
std::vector<T> randomValues(Rng& r, int n) {
  std::vector<T> v(n);
  for (T& x : v) x = randomValue<T>(r);
  return v;
}

// A mask with about half its bytes zero and the others anywhere in 1..255.
GuardedImage<Lum8u> randomMask(Rng& r, LumiSize roi, int rep) {
  GuardedImage<Lum8u> m(roi.width, roi.height, 1, casePad(rep), -1, 77 + rep);
  m.fill([&](int, int, int) { return randInt(r, 0, 1) ? Lum8u(randInt(r, 1, 255)) : Lum8u(0); });
  return m;
}

// The element index of (x, y, c) in pixels() of an image with `ch` channels.
inline std::size_t idx(LumiSize r, int ch, int x, int y, int c) {
  return (static_cast<std::size_t>(y) * r.width + x) * ch + c;
}

template <class T>
class DataMove : public ::testing::Test {};
using ElementTypes = ::testing::Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>;
TYPED_TEST_SUITE(DataMove, ElementTypes);

TYPED_TEST(DataMove, CopyWholeRoiWithAndWithoutMask) {
  using T = TypeParam;
  Rng rng = makeRng(1);
  for (int l = 0; l < 4; ++l) {
    const Layout L = kLayouts[l];
    for (int rep = 0; rep < 16; ++rep) {
      SCOPED_TRACE(::testing::Message() << kLayoutNames[l] << " rep " << rep);
      const LumiSize r = caseSize(rng, rep);
      GuardedImage<T> src(r.width, r.height, L.ch, casePad(rep), -1, rep);
      GuardedImage<T> dst(r.width, r.height, L.ch, casePad(rep), -1, rep + 50);
      GuardedImage<Lum8u> mask = randomMask(rng, r, rep);
      src.fillRandom(rng);
      dst.fillRandom(rng);
      const std::vector<T> before = dst.pixels();
      std::vector<T> whole = before, masked = before;
      for (int y = 0; y < r.height; ++y)
        for (int x = 0; x < r.width; ++x)
          for (int c = 0; c < L.use; ++c) {
            whole[idx(r, L.ch, x, y, c)] = src.at(x, y, c);
            if (mask.at(x, y)) masked[idx(r, L.ch, x, y, c)] = src.at(x, y, c);
          }
      ASSERT_EQ(Api<T>::copyMasked[l](src.ptr(), src.step(), dst.ptr(), dst.step(), r, mask.ptr(),
                                      mask.step()),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), masked, r.width * L.ch));
      ASSERT_EQ(Api<T>::copy[l](src.ptr(), src.step(), dst.ptr(), dst.step(), r), lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), whole, r.width * L.ch));
      EXPECT_TRUE(dst.guardsIntact());
      EXPECT_TRUE(src.guardsIntact());
    }
  }
}

// Channel-of-interest pointers may name any channel, the last one included: the functions must
// stay inside the ROI rows although they start up to three elements into a pixel.
TYPED_TEST(DataMove, ChannelCopiesAndLayoutChanges) {
  using T = TypeParam;
  Rng rng = makeRng(2);
  for (const auto& [ks, kd, fn] : Api<T>::strided) {
    for (int rep = 0; rep < 16; ++rep) {
      SCOPED_TRACE(::testing::Message() << ks << "->" << kd << " rep " << rep);
      const LumiSize r = caseSize(rng, rep);
      const int cs = randInt(rng, 0, ks - 1), cd = rep < 2 ? kd - 1 : randInt(rng, 0, kd - 1);
      GuardedImage<T> src(r.width, r.height, ks, casePad(rep), -1, rep);
      GuardedImage<T> dst(r.width, r.height, kd, casePad(rep), -1, rep + 9);
      src.fillRandom(rng);
      dst.fillRandom(rng);
      std::vector<T> want = dst.pixels();
      for (int y = 0; y < r.height; ++y)
        for (int x = 0; x < r.width; ++x) want[idx(r, kd, x, y, cd)] = src.at(x, y, cs);
      ASSERT_EQ(fn(src.ptr() + cs, src.step(), dst.ptr() + cd, dst.step(), r), lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), want, r.width * kd));
      EXPECT_TRUE(dst.guardsIntact());
    }
  }
  // One channel into another of the same image.
  const LumiSize r{131, 3};
  GuardedImage<T> img(r.width, r.height, 3);
  img.fillRandom(rng);
  std::vector<T> want = img.pixels();
  for (int y = 0; y < r.height; ++y)
    for (int x = 0; x < r.width; ++x) want[idx(r, 3, x, y, 2)] = img.at(x, y, 0);
  ASSERT_EQ(std::get<2>(Api<T>::strided[4])(img.ptr(), img.step(), img.ptr() + 2, img.step(), r),
            lumStatusOk);
  EXPECT_TRUE(sameElements(img.pixels(), want, r.width * 3));
  EXPECT_TRUE(img.guardsIntact());
}

// A one-row image that ends right where an inaccessible page begins: a kernel that reads or
// writes even one element past the row through a channel pointer faults.
template <class T>
class RowAtPageEnd {
 public:
  explicit RowAtPageEnd(std::size_t elems) {
    page_ = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    bytes_ = (elems * sizeof(T) + page_ - 1) / page_ * page_ + page_;
    base_ = static_cast<char*>(mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    mprotect(base_ + bytes_ - page_, page_, PROT_NONE);
    data_ = reinterpret_cast<T*>(base_ + bytes_ - page_) - elems;
    std::memset(data_, 0, elems * sizeof(T));
  }
  ~RowAtPageEnd() { munmap(base_, bytes_); }
  T* data() { return data_; }

 private:
  std::size_t page_, bytes_;
  char* base_;
  T* data_;
};

TYPED_TEST(DataMove, ChannelPointersStayInsideTheRow) {
  using T = TypeParam;
  for (int w = 1; w <= 140; w += 3) {
    for (const auto& [ks, kd, fn] : Api<T>::strided) {
      RowAtPageEnd<T> src(static_cast<std::size_t>(w) * ks), dst(static_cast<std::size_t>(w) * kd);
      const int sb = w * ks * static_cast<int>(sizeof(T)), db = w * kd * static_cast<int>(sizeof(T));
      ASSERT_EQ(fn(src.data() + ks - 1, sb, dst.data() + kd - 1, db, {w, 1}), lumStatusOk);
    }
    for (int k = 0; k < 2; ++k) {
      RowAtPageEnd<T> dst(static_cast<std::size_t>(w) * (3 + k));
      ASSERT_EQ(Api<T>::setChannel[k](T(1), dst.data() + 2 + k, w * (3 + k) * static_cast<int>(sizeof(T)), {w, 1}),
                lumStatusOk);
      EXPECT_EQ(dst.data()[(w - 1) * (3 + k) + 2 + k], T(1));
    }
  }
}

TYPED_TEST(DataMove, SetWholeMaskedAndOneChannel) {
  using T = TypeParam;
  Rng rng = makeRng(3);
  for (int l = 0; l < 4; ++l) {
    const Layout L = kLayouts[l];
    for (int rep = 0; rep < 16; ++rep) {
      SCOPED_TRACE(::testing::Message() << kLayoutNames[l] << " rep " << rep);
      const LumiSize r = caseSize(rng, rep);
      GuardedImage<T> dst(r.width, r.height, L.ch, casePad(rep), -1, rep);
      GuardedImage<Lum8u> mask = randomMask(rng, r, rep);
      dst.fillRandom(rng);
      std::vector<T> value = randomValues<T>(rng, L.use);
      if (rep == 5) value.assign(L.use, T(0));  // a fill of equal bytes
      std::vector<T> masked = dst.pixels(), whole = masked;
      for (int y = 0; y < r.height; ++y)
        for (int x = 0; x < r.width; ++x)
          for (int c = 0; c < L.use; ++c) {
            whole[idx(r, L.ch, x, y, c)] = value[c];
            if (mask.at(x, y)) masked[idx(r, L.ch, x, y, c)] = value[c];
          }
      ASSERT_EQ(Api<T>::setMasked(l)(value.data(), dst.ptr(), dst.step(), r, mask.ptr(), mask.step()),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), masked, r.width * L.ch));
      ASSERT_EQ(Api<T>::set(l)(value.data(), dst.ptr(), dst.step(), r), lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), whole, r.width * L.ch));
      EXPECT_TRUE(dst.guardsIntact());
    }
  }
  for (int k = 0; k < 2; ++k) {
    const int ch = 3 + k;
    for (int rep = 0; rep < 10; ++rep) {
      const LumiSize r = caseSize(rng, rep);
      const int c = rep < 2 ? ch - 1 : randInt(rng, 0, ch - 1);
      GuardedImage<T> dst(r.width, r.height, ch, casePad(rep), -1, rep);
      dst.fillRandom(rng);
      const T v = randomValue<T>(rng);
      std::vector<T> want = dst.pixels();
      for (int y = 0; y < r.height; ++y)
        for (int x = 0; x < r.width; ++x) want[idx(r, ch, x, y, c)] = v;
      ASSERT_EQ(Api<T>::setChannel[k](v, dst.ptr() + c, dst.step(), r), lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), want, r.width * ch)) << "C" << ch << "CR channel " << c;
      EXPECT_TRUE(dst.guardsIntact());
    }
  }
}

// ---- channel swap and duplication ---------------------------------------------------------
template <class T>
struct SwapApi {
  using Fn = LumStatus (*)(const T*, int, T*, int, LumiSize, const int*);
  Fn c3, ac4;
};
template <class T>
void checkSwap(SwapApi<T> api, uint32_t salt) {
  Rng rng = makeRng(salt);
  for (int ch : {3, 4}) {
    for (int rep = 0; rep < 16; ++rep) {
      const LumiSize r = caseSize(rng, rep);
      int order[3];
      for (int& o : order) o = randInt(rng, 0, 2);
      if (rep == 0) order[0] = 2, order[1] = 1, order[2] = 0;
      SCOPED_TRACE(::testing::Message() << "C" << ch << " order " << order[0] << order[1] << order[2]);
      GuardedImage<T> src(r.width, r.height, ch, casePad(rep), -1, rep);
      GuardedImage<T> dst(r.width, r.height, ch, casePad(rep), -1, rep + 3);
      src.fillRandom(rng);
      dst.fillRandom(rng);
      std::vector<T> want = dst.pixels();
      for (int y = 0; y < r.height; ++y)
        for (int x = 0; x < r.width; ++x)
          for (int c = 0; c < 3; ++c) want[idx(r, ch, x, y, c)] = src.at(x, y, order[c]);
      ASSERT_EQ((ch == 3 ? api.c3 : api.ac4)(src.ptr(), src.step(), dst.ptr(), dst.step(), r, order),
                lumStatusOk);
      EXPECT_TRUE(sameElements(dst.pixels(), want, r.width * ch));
      EXPECT_TRUE(dst.guardsIntact());
    }
  }
}
TEST(SwapChannels, EveryTypeAndOrder) {
  checkSwap<Lum8u>({lumiSwapChannels_8u_C3R, lumiSwapChannels_8u_AC4R}, 10);
  checkSwap<Lum16u>({lumiSwapChannels_16u_C3R, lumiSwapChannels_16u_AC4R}, 11);
  checkSwap<Lum32s>({lumiSwapChannels_32s_C3R, lumiSwapChannels_32s_AC4R}, 12);
  checkSwap<Lum32f>({lumiSwapChannels_32f_C3R, lumiSwapChannels_32f_AC4R}, 13);
}

TEST(SwapChannels, InPlace) {
  Rng rng = makeRng(14);
  for (int rep = 0; rep < 16; ++rep) {
    const LumiSize r = caseSize(rng, rep);
    int order[3] = {randInt(rng, 0, 2), randInt(rng, 0, 2), randInt(rng, 0, 2)};
    GuardedImage<Lum8u> img(r.width, r.height, 3, casePad(rep), -1, rep);
    img.fillRandom(rng);
    std::vector<Lum8u> want = img.pixels();
    for (int y = 0; y < r.height; ++y)
      for (int x = 0; x < r.width; ++x)
        for (int c = 0; c < 3; ++c) want[idx(r, 3, x, y, c)] = img.at(x, y, order[c]);
    ASSERT_EQ(lumiSwapChannels_8u_C3IR(img.ptr(), img.step(), r, order), lumStatusOk);
    EXPECT_TRUE(sameElements(img.pixels(), want, r.width * 3));
    EXPECT_TRUE(img.guardsIntact());
  }
}

TEST(Dup, GreyToColour) {
  Rng rng = makeRng(15);
  for (int rep = 0; rep < 16; ++rep) {
    const LumiSize r = caseSize(rng, rep);
    GuardedImage<Lum8u> src(r.width, r.height, 1, casePad(rep), -1, rep);
    GuardedImage<Lum8u> dst(r.width, r.height, 3, casePad(rep), -1, rep + 1);
    src.fillRandom(rng);
    std::vector<Lum8u> want;
    for (Lum8u v : src.pixels()) want.insert(want.end(), {v, v, v});
    ASSERT_EQ(lumiDup_8u_C1C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), r), lumStatusOk);
    EXPECT_TRUE(sameElements(dst.pixels(), want, r.width * 3));
    EXPECT_TRUE(dst.guardsIntact());
  }
}

// ---- steps the copies accept, and the order of the checks ----------------------------------
TEST(DataMoveSteps, NegativeAndZeroStepCopiesWalkTheRowsGiven) {
  Rng rng = makeRng(16);
  const LumiSize r{37, 6};
  GuardedImage<Lum8u> src(r.width, r.height, 3), dst(r.width, r.height, 3);
  src.fillRandom(rng);
  ASSERT_EQ(lumiCopy_8u_C3R(src.row(r.height - 1), -src.step(), dst.ptr(), dst.step(), r), lumStatusOk);
  for (int y = 0; y < r.height; ++y)
    EXPECT_EQ(0, std::memcmp(dst.row(y), src.row(r.height - 1 - y), r.width * 3)) << "row " << y;
  const LumiSize r1{r.width * 3, r.height};  // the same bytes as one-channel rows, both flipped
  ASSERT_EQ(lumiCopy_8u_C1R(src.ptr(), src.step(), dst.row(r.height - 1), -dst.step(), r1), lumStatusOk);
  for (int y = 0; y < r.height; ++y)
    EXPECT_EQ(0, std::memcmp(dst.row(r.height - 1 - y), src.row(y), r.width * 3)) << "row " << y;
  ASSERT_EQ(lumiCopy_8u_C3R(src.ptr(), 0, dst.ptr(), dst.step(), r), lumStatusOk);
  for (int y = 0; y < r.height; ++y) EXPECT_EQ(0, std::memcmp(dst.row(y), src.row(0), r.width * 3));
  EXPECT_TRUE(dst.guardsIntact());
}

// Float data moves as bit patterns: signalling NaNs and negative zero come through unchanged.
TEST(DataMoveBits, FloatPatternsSurviveEveryPath) {
  const uint32_t patterns[] = {0x7f800001u, 0xffa00000u, 0x80000000u, 0x7fc00001u, 0x00000001u};
  const LumiSize r{70, 2};
  GuardedImage<Lum32f> src(r.width, r.height, 3), dst(r.width, r.height, 3), grey(r.width, r.height, 1);
  for (int y = 0, k = 0; y < r.height; ++y)  // stored as bits: no float value is ever loaded
    for (int i = 0; i < r.width * 3; ++i, ++k) std::memcpy(src.row(y) + i, &patterns[k % 5], 4);
  const std::vector<Lum32f> want = src.pixels();
  const auto sameBits = [&](const std::vector<Lum32f>& got) {
    return std::memcmp(got.data(), want.data(), want.size() * 4) == 0;
  };
  const int order[3] = {0, 1, 2};
  ASSERT_EQ(lumiCopy_32f_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), r), lumStatusOk);
  EXPECT_TRUE(sameBits(dst.pixels()));
  dst.fill([](int, int, int) { return 0.0f; });
  ASSERT_EQ(lumiSwapChannels_32f_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), r, order), lumStatusOk);
  EXPECT_TRUE(sameBits(dst.pixels()));
  for (int c = 0; c < 3; ++c) {
    ASSERT_EQ(lumiCopy_32f_C3C1R(src.ptr() + c, src.step(), grey.ptr(), grey.step(), r), lumStatusOk);
    ASSERT_EQ(lumiCopy_32f_C1C3R(grey.ptr(), grey.step(), dst.ptr() + (2 - c), dst.step(), r), lumStatusOk);
  }
  for (int y = 0; y < r.height; ++y)
    for (int x = 0; x < r.width; ++x)
      for (int c = 0; c < 3; ++c)
        EXPECT_EQ(0, std::memcmp(&dst.at(x, y, c), &src.at(x, y, 2 - c), 4)) << x << "," << y << "," << c;
  float nan;
  std::memcpy(&nan, &patterns[0], 4);
  ASSERT_EQ(lumiSet_32f_C1R(nan, grey.ptr(), grey.step(), r), lumStatusOk);
  EXPECT_EQ(0, std::memcmp(&grey.at(r.width - 1, 1), &patterns[0], 4));
}

// Every failing call must leave the destination exactly as it was.
template <class T>
struct Untouched {
  GuardedImage<T>& img;
  std::vector<T> before = img.pixels();
  ::testing::AssertionResult check() const {
    if (img.pixels() != before) return ::testing::AssertionFailure() << "destination written";
    return img.guardsIntact();
  }
};

TEST(DataMoveChecks, CopyAndDupTestPointersThenSizesButNoSteps) {
  GuardedImage<Lum8u> src(5, 3, 4), dst(5, 3, 4), mask(5, 3, 1);
  Untouched<Lum8u> u{dst};
  const LumiSize ok{5, 3}, zero{0, 3}, flat{5, 0};
  EXPECT_EQ(lumiCopy_8u_C1R(nullptr, 5, dst.ptr(), 5, zero), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopy_16s_C4R(nullptr, 5, nullptr, 5, ok), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopy_8u_C1R(src.ptr(), -5, dst.ptr(), 0, flat), lumStatusSizeErr);
  EXPECT_EQ(lumiCopy_32f_C3C1R(nullptr, 1, nullptr, 1, zero), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopy_8u_C4CR(src.ptr(), 1, dst.ptr(), 1, zero), lumStatusSizeErr);
  EXPECT_EQ(lumiCopy_8u_C1C4R(src.ptr(), 1, dst.ptr(), 1, flat), lumStatusSizeErr);
  EXPECT_EQ(lumiCopy_8u_AC4MR(src.ptr(), 20, dst.ptr(), 20, zero, nullptr, 5), lumStatusNullPtrErr);
  EXPECT_EQ(lumiCopy_8u_C4MR(src.ptr(), 20, dst.ptr(), 20, zero, mask.ptr(), 0), lumStatusSizeErr);
  EXPECT_EQ(lumiDup_8u_C1C3R(src.ptr(), 5, nullptr, 15, ok), lumStatusNullPtrErr);
  EXPECT_EQ(lumiDup_8u_C1C3R(src.ptr(), 5, dst.ptr(), 15, zero), lumStatusSizeErr);
  EXPECT_TRUE(u.check());
  // A mask step of 0 is not an error: every row reads the first mask row.
  mask.fill([](int x, int, int) { return Lum8u(x & 1); });
  EXPECT_EQ(lumiCopy_8u_C4MR(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, mask.ptr(), 0), lumStatusOk);
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 5; ++x)
      for (int c = 0; c < 4; ++c)
        EXPECT_EQ(dst.at(x, y, c), (x & 1) ? src.at(x, y, c) : u.before[idx(ok, 4, x, y, c)]);
}

TEST(DataMoveChecks, SetTestsPointersSizesThenSteps) {
  GuardedImage<Lum8u> dst(5, 3, 4), mask(5, 3, 1);
  Untouched<Lum8u> u{dst};
  const Lum8u v[4] = {1, 2, 3, 4};
  const LumiSize ok{5, 3}, zero{5, 0};
  EXPECT_EQ(lumiSet_8u_C1R(7, nullptr, 0, zero), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C3R(nullptr, dst.ptr(), dst.step(), ok), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C1R(7, dst.ptr(), 0, zero), lumStatusSizeErr);
  EXPECT_EQ(lumiSet_8u_C1R(7, dst.ptr(), 0, ok), lumStatusStepErr);
  const Lum16s v16[4] = {1, 2, 3, 4};
  EXPECT_EQ(lumiSet_16s_C4R(v16, reinterpret_cast<Lum16s*>(dst.ptr()), -2, ok), lumStatusStepErr);
  EXPECT_EQ(lumiSet_8u_C3CR(7, dst.ptr(), 0, ok), lumStatusStepErr);
  EXPECT_EQ(lumiSet_8u_C4CR(7, nullptr, 0, zero), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C4MR(v, dst.ptr(), dst.step(), ok, nullptr, 5), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_AC4MR(v, dst.ptr(), 0, zero, mask.ptr(), 0), lumStatusSizeErr);
  EXPECT_EQ(lumiSet_8u_C1MR(7, dst.ptr(), dst.step(), ok, mask.ptr(), 0), lumStatusStepErr);
  EXPECT_EQ(lumiSet_32f_C1MR(7, reinterpret_cast<Lum32f*>(dst.ptr()), 0, ok, mask.ptr(), 5),
            lumStatusStepErr);
  EXPECT_TRUE(u.check());
}

TEST(DataMoveChecks, SwapTestsOrderLast) {
  GuardedImage<Lum8u> src(6, 2, 4), dst(6, 2, 4);
  Untouched<Lum8u> u{dst};
  const LumiSize ok{6, 2}, zero{0, 2};
  const int good[3] = {2, 1, 0}, bad[3] = {0, 1, 3}, negative[3] = {-1, 0, 1};
  EXPECT_EQ(lumiSwapChannels_8u_C3R(src.ptr(), 0, dst.ptr(), 0, zero, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSwapChannels_16u_AC4R(nullptr, 8, nullptr, 8, ok, good), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3R(src.ptr(), 0, dst.ptr(), 0, zero, bad), lumStatusSizeErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3R(src.ptr(), 0, dst.ptr(), dst.step(), ok, bad), lumStatusStepErr);
  EXPECT_EQ(lumiSwapChannels_8u_AC4R(src.ptr(), src.step(), dst.ptr(), -1, ok, bad), lumStatusStepErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, bad),
            lumStatusChannelOrderErr);
  EXPECT_EQ(lumiSwapChannels_32f_AC4R(reinterpret_cast<Lum32f*>(src.ptr()), src.step(),
                                      reinterpret_cast<Lum32f*>(dst.ptr()), dst.step(), {1, 2}, negative),
            lumStatusChannelOrderErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3IR(dst.ptr(), 0, ok, bad), lumStatusStepErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3IR(dst.ptr(), dst.step(), ok, bad), lumStatusChannelOrderErr);
  EXPECT_EQ(lumiSwapChannels_8u_C3IR(nullptr, dst.step(), zero, good), lumStatusNullPtrErr);
  EXPECT_TRUE(u.check());
}

}  // namespace
