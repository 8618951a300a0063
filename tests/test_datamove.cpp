// Copies, fills, channel swaps and duplication against plain per-pixel loops, on every element
// type and layout, with odd widths, padded and misaligned rows and guard bytes.
#include <tuple>

#include <sys/mman.h>
#include <unistd.h>

#include "lumitest.h"

namespace {

using namespace lumitest;

template <class T>
using CopyFn = LumStatus (*)(const T*, int, T*, int, LumiSize);
template <class T>
using MaskedCopyFn = LumStatus (*)(const T*, int, T*, int, LumiSize, const Lum8u*, int);
template <class T>
using SetFn = LumStatus (*)(const T*, T*, int, LumiSize);
template <class T>
using MaskedSetFn = LumStatus (*)(const T*, T*, int, LumiSize, const Lum8u*, int);
template <class T>
using ChannelSetFn = LumStatus (*)(T, T*, int, LumiSize);
// The one-channel fills take their value by value; these give them the others' signature.
template <class T, ChannelSetFn<T> F>
LumStatus setC1(const T* v, T* d, int s, LumiSize r) { return F(*v, d, s, r); }
template <class T, LumStatus (*F)(T, T*, int, LumiSize, const Lum8u*, int)>
LumStatus setC1M(const T* v, T* d, int s, LumiSize r, const Lum8u* m, int ms) { return F(*v, d, s, r, m, ms); }

// Every function of one element type, by layout (C1, C3, C4, AC4).
#define BY_LAYOUT(pre, post) {pre##C1##post, pre##C3##post, pre##C4##post, pre##AC4##post}
template <class T>
struct Api;
#define LUMI_TEST_API(t)                                                                        \
  template <>                                                                                   \
  struct Api<Lum##t> {                                                                          \
    using T = Lum##t;                                                                           \
    static constexpr CopyFn<T> copy[4] = BY_LAYOUT(lumiCopy_##t##_, R);                          \
    static constexpr MaskedCopyFn<T> copyMasked[4] = BY_LAYOUT(lumiCopy_##t##_, MR);             \
    /* {source channels, destination channels, function} */                                    \
    static constexpr std::tuple<int, int, CopyFn<T>> strided[6] = {                            \
        {3, 1, lumiCopy_##t##_C3C1R}, {4, 1, lumiCopy_##t##_C4C1R},                            \
        {1, 3, lumiCopy_##t##_C1C3R}, {1, 4, lumiCopy_##t##_C1C4R},                            \
        {3, 3, lumiCopy_##t##_C3CR},  {4, 4, lumiCopy_##t##_C4CR}};                            \
    static constexpr SetFn<T> set[4] = {setC1<T, lumiSet_##t##_C1R>, lumiSet_##t##_C3R,        \
                                        lumiSet_##t##_C4R, lumiSet_##t##_AC4R};                 \
    static constexpr MaskedSetFn<T> setMasked[4] = {setC1M<T, lumiSet_##t##_C1MR>,             \
                                                    lumiSet_##t##_C3MR, lumiSet_##t##_C4MR,     \
                                                    lumiSet_##t##_AC4MR};                       \
    static constexpr ChannelSetFn<T> setChannel[2] = {lumiSet_##t##_C3CR, lumiSet_##t##_C4CR};  \
  };
LUMI_TEST_API(8u)
LUMI_TEST_API(16u)
LUMI_TEST_API(16s)
LUMI_TEST_API(32s)
LUMI_TEST_API(32f)

// Widths up to a few vectors of the widest target, so that both the vector loops and their
// tails run; every third image has unpadded rows, which lets whole ROIs go as one row.
template <class T>
GuardedImage<T> randomImage(Rng& r, LumiSize roi, int ch, int rep) {
  GuardedImage<T> im(roi.width, roi.height, ch, rep % 3 == 0 ? 0 : -1, -1, r());
  im.fillRandom(r);
  return im;
}

// The image's elements as they should be after a call: f(x, y, c, element) may overwrite each.
template <class T, class F>
std::vector<T> expected(const GuardedImage<T>& im, F f) {
  std::vector<T> v = im.pixels();
  const int ch = im.channels();
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x)
      for (int c = 0; c < ch; ++c) f(x, y, c, v[(static_cast<std::size_t>(y) * im.width() + x) * ch + c]);
  return v;
}
template <class T>
::testing::AssertionResult holds(const GuardedImage<T>& im, const std::vector<T>& want) {
  if (!im.guardsIntact()) return im.guardsIntact();
  return sameElements(im.pixels(), want, im.width() * im.channels());
}

// One random case: a source with ks channels, a destination with kd, a mask with about half
// its bytes zero and the others anywhere in 1..255, a source and a destination channel, and a
// channel order (2, 1, 0 in the first case). Fills take their values from the first source
// pixel, which is all zero in one case (a fill of equal bytes).
template <class T>
struct Case {
  LumiSize r;
  GuardedImage<T> src, dst;
  GuardedImage<Lum8u> mask;
  int cs, cd, order[3];
  const T* value() const { return src.ptr(); }
};

// Runs call(case) on 16 cases and compares the destination (the source if inPlace) with its
// previous contents as want(case, x, y, c, element) changes them.
template <class T, class Call, class Want>
void eachCase(Rng& rng, int ks, int kd, Call call, Want want, bool inPlace = false) {
  for (int rep = 0; rep < 16; ++rep) {
    SCOPED_TRACE(::testing::Message() << "C" << ks << " to C" << kd << ", case " << rep);
    const LumiSize r = rep % 4 == 3 ? randomSize(rng, 9, 3) : randomSize(rng, 230, 5);
    Case<T> k{r, randomImage<T>(rng, r, ks, rep), randomImage<T>(rng, r, kd, rep),
              randomImage<Lum8u>(rng, r, 1, rep), randInt(rng, 0, ks - 1),
              rep < 2 ? kd - 1 : randInt(rng, 0, kd - 1), {2, 1, 0}};
    k.mask.fill([&](int, int, int) { return randInt(rng, 0, 1) ? Lum8u(randInt(rng, 1, 255)) : Lum8u(0); });
    if (rep > 0)
      for (int& o : k.order) o = randInt(rng, 0, 2);
    if (rep == 5)
      for (int c = 0; c < ks; ++c) k.src.at(0, 0, c) = T(0);
    GuardedImage<T>& out = inPlace ? k.src : k.dst;
    const auto w = expected(out, [&](int x, int y, int c, T& e) { want(k, x, y, c, e); });
    ASSERT_EQ(call(k), lumStatusOk);
    EXPECT_TRUE(holds(out, w));
    EXPECT_TRUE(k.src.guardsIntact());
  }
}
#define DST(k) k.dst.ptr(), k.dst.step()
#define MASK(k) k.mask.ptr(), k.mask.step()
#define ARGS(k) k.src.ptr(), k.src.step(), DST(k), k.r

template <class T>
class DataMove : public ::testing::Test {};
using ElementTypes = ::testing::Types<Lum8u, Lum16u, Lum16s, Lum32s, Lum32f>;
TYPED_TEST_SUITE(DataMove, ElementTypes);

// Channel-of-interest pointers may name any channel, the last one included: the functions must
// stay inside the ROI rows although they start up to three elements into a pixel.
TYPED_TEST(DataMove, CopiesAndFillsWholeMaskedAndByChannel) {
  using T = TypeParam;
  using K = Case<T>;
  Rng rng = makeRng(1);
  for (int l = 0; l < 4; ++l) {
    const Layout L = kLayouts[l];
    SCOPED_TRACE(kLayouts[l].name);
    eachCase<T>(rng, L.ch, L.ch, [&](K& k) { return Api<T>::copy[l](ARGS(k)); },
                [&](K& k, int x, int y, int c, T& e) { if (c < L.use) e = k.src.at(x, y, c); });
    eachCase<T>(rng, L.ch, L.ch, [&](K& k) { return Api<T>::copyMasked[l](ARGS(k), MASK(k)); },
                [&](K& k, int x, int y, int c, T& e) {
                  if (c < L.use && k.mask.at(x, y)) e = k.src.at(x, y, c);
                });
    eachCase<T>(rng, L.ch, L.ch, [&](K& k) { return Api<T>::set[l](k.value(), DST(k), k.r); },
                [&](K& k, int, int, int c, T& e) { if (c < L.use) e = k.value()[c]; });
    eachCase<T>(rng, L.ch, L.ch, [&](K& k) { return Api<T>::setMasked[l](k.value(), DST(k), k.r, MASK(k)); },
                [&](K& k, int x, int y, int c, T& e) { if (c < L.use && k.mask.at(x, y)) e = k.value()[c]; });
  }
  for (const auto& [ks, kd, fn] : Api<T>::strided) {
    eachCase<T>(rng, ks, kd,
                [&](K& k) { return fn(k.src.ptr() + k.cs, k.src.step(), k.dst.ptr() + k.cd, k.dst.step(), k.r); },
                [&](K& k, int x, int y, int c, T& e) { if (c == k.cd) e = k.src.at(x, y, k.cs); });
    if (kd == 1) continue;
    const auto setChannel = Api<T>::setChannel[kd - 3];
    eachCase<T>(rng, 1, kd, [&](K& k) { return setChannel(*k.value(), k.dst.ptr() + k.cd, k.dst.step(), k.r); },
                [&](K& k, int, int, int c, T& e) { if (c == k.cd) e = *k.value(); });
  }
  // One channel into another of the same image.
  GuardedImage<T> img = randomImage<T>(rng, {131, 3}, 3, 1);
  const auto want = expected(img, [&](int x, int y, int c, T& e) { if (c == 2) e = img.at(x, y, 0); });
  ASSERT_EQ(std::get<2>(Api<T>::strided[4])(img.ptr(), img.step(), img.ptr() + 2, img.step(), img.roi()),
            lumStatusOk);
  EXPECT_TRUE(holds(img, want));
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
      if (kd == 1) continue;
      ASSERT_EQ(Api<T>::setChannel[kd - 3](T(1), dst.data() + kd - 1, db, {w, 1}), lumStatusOk);
      EXPECT_EQ(dst.data()[w * kd - 1], T(1));
    }
  }
}

// ---- channel swap and duplication ---------------------------------------------------------
template <class T>
using SwapFn = LumStatus (*)(const T*, int, T*, int, LumiSize, const int*);
template <class T>
void checkSwap(SwapFn<T> c3, SwapFn<T> ac4) {
  Rng rng = makeRng(10);
  const auto want = [](Case<T>& k, int x, int y, int c, T& e) { if (c < 3) e = k.src.at(x, y, k.order[c]); };
  eachCase<T>(rng, 3, 3, [&](Case<T>& k) { return c3(ARGS(k), k.order); }, want);
  eachCase<T>(rng, 4, 4, [&](Case<T>& k) { return ac4(ARGS(k), k.order); }, want);
  if constexpr (std::is_same_v<T, Lum8u>)
    eachCase<T>(rng, 3, 3, [&](Case<T>& k) { return lumiSwapChannels_8u_C3IR(k.src.ptr(), k.src.step(), k.r, k.order); },
                want, true);
}
TEST(SwapChannels, EveryTypeAndOrderAndInPlace) {
  checkSwap<Lum8u>(lumiSwapChannels_8u_C3R, lumiSwapChannels_8u_AC4R);
  checkSwap<Lum16u>(lumiSwapChannels_16u_C3R, lumiSwapChannels_16u_AC4R);
  checkSwap<Lum32s>(lumiSwapChannels_32s_C3R, lumiSwapChannels_32s_AC4R);
  checkSwap<Lum32f>(lumiSwapChannels_32f_C3R, lumiSwapChannels_32f_AC4R);
}

TEST(Dup, GreyToColour) {
  Rng rng = makeRng(15);
  eachCase<Lum8u>(rng, 1, 3, [](Case<Lum8u>& k) { return lumiDup_8u_C1C3R(ARGS(k)); },
                  [](Case<Lum8u>& k, int x, int y, int, Lum8u& e) { e = k.src.at(x, y); });
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
  const auto reversed =
      expected(src, [&](int x, int y, int c, Lum32f& e) { std::memcpy(&e, &src.at(x, y, 2 - c), 4); });
  EXPECT_EQ(0, std::memcmp(dst.pixels().data(), reversed.data(), reversed.size() * 4));
  float nan;
  std::memcpy(&nan, &patterns[0], 4);
  ASSERT_EQ(lumiSet_32f_C1R(nan, grey.ptr(), grey.step(), r), lumStatusOk);
  EXPECT_EQ(0, std::memcmp(&grey.at(r.width - 1, 1), &patterns[0], 4));
}

// Every failing call must leave the destination exactly as it was.
TEST(DataMoveChecks, CopyAndDupTestPointersThenSizesButNoSteps) {
  GuardedImage<Lum8u> src(5, 3, 4), dst(5, 3, 4), mask(5, 3, 1);
  const std::vector<Lum8u> before = dst.pixels();
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
  EXPECT_TRUE(holds(dst, before));
  // A mask step of 0 is not an error: every row reads the first mask row.
  mask.fill([](int x, int, int) { return Lum8u(x & 1); });
  const auto want = expected(dst, [&](int x, int y, int c, Lum8u& e) { if (x & 1) e = src.at(x, y, c); });
  EXPECT_EQ(lumiCopy_8u_C4MR(src.ptr(), src.step(), dst.ptr(), dst.step(), ok, mask.ptr(), 0), lumStatusOk);
  EXPECT_TRUE(holds(dst, want));
}

// Fills test pointers, sizes, then steps; swaps test the channel order last.
TEST(DataMoveChecks, SetAndSwapTestStepsTooAndTheOrderLast) {
  GuardedImage<Lum8u> src(5, 3, 4), dst(5, 3, 4), mask(5, 3, 1);
  const std::vector<Lum8u> before = dst.pixels();
  const Lum8u v[4] = {1, 2, 3, 4};
  const LumiSize ok{5, 3}, zero{0, 3}, flat{5, 0};
  EXPECT_EQ(lumiSet_8u_C1R(7, nullptr, 0, flat), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C3R(nullptr, dst.ptr(), dst.step(), ok), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C1R(7, dst.ptr(), 0, flat), lumStatusSizeErr);
  EXPECT_EQ(lumiSet_8u_C1R(7, dst.ptr(), 0, ok), lumStatusStepErr);
  const Lum16s v16[4] = {1, 2, 3, 4};
  EXPECT_EQ(lumiSet_16s_C4R(v16, reinterpret_cast<Lum16s*>(dst.ptr()), -2, ok), lumStatusStepErr);
  EXPECT_EQ(lumiSet_8u_C3CR(7, dst.ptr(), 0, ok), lumStatusStepErr);
  EXPECT_EQ(lumiSet_8u_C4CR(7, nullptr, 0, flat), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_C4MR(v, dst.ptr(), dst.step(), ok, nullptr, 5), lumStatusNullPtrErr);
  EXPECT_EQ(lumiSet_8u_AC4MR(v, dst.ptr(), 0, flat, mask.ptr(), 0), lumStatusSizeErr);
  EXPECT_EQ(lumiSet_8u_C1MR(7, dst.ptr(), dst.step(), ok, mask.ptr(), 0), lumStatusStepErr);
  EXPECT_EQ(lumiSet_32f_C1MR(7, reinterpret_cast<Lum32f*>(dst.ptr()), 0, ok, mask.ptr(), 5),
            lumStatusStepErr);
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
  EXPECT_TRUE(holds(dst, before));
}

}  // namespace
