// Bytes to bit-packed binary rows with error diffusion, and bit-packed rows back to bytes.
// Bits run most significant first; a row may start inside a byte (the bit offset), and the
// bits of a shared first or last byte that lie outside the row keep their values.
#include "core/frame.h"

#include <cstdint>
#include <cstring>

namespace lumi {
namespace {

// Error diffusion with the Stucki weights, pulled from the already visited neighbours: two
// rows up 1 2 4 2 1, one row up 2 4 8 4 2, this row 4 8 to the left (sum 42). Errors are kept
// in eighths of a grey level; 23/1024 on errors in eighths approximates 1/42 of a grey level,
// a set pixel stands for 2047 eighths, and the threshold is compared in units of 1/8192.
LumStatus convert8u1u(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset,
                      LumiSize roi, Lum8u threshold) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi) || dstBitOffset < 0) return lumStatusSizeErr;
  const int w = roi.width;
  // Each error row has two zero guard entries on either side.
  const std::int64_t inner = (static_cast<std::int64_t>(w) + 4) & ~std::int64_t{4};
  const std::int64_t stride = inner + 4;
  const std::int64_t entries = 3 * inner + 12;
  if (entries > 0x7fffffff) return lumStatusMemAllocErr;
  Lum32s* scratch = lumsMalloc_32s(static_cast<int>(entries));
  if (!scratch) return lumStatusMemAllocErr;
  std::memset(scratch, 0, static_cast<std::size_t>(entries) * sizeof(Lum32s));
  Lum32s* e2 = scratch + 2;           // two rows up
  Lum32s* e1 = scratch + 2 + stride;  // the row above
  Lum32s* e0 = scratch + 2 + 2 * stride;
  const std::int32_t limit = static_cast<std::int32_t>(threshold) * 8192;
  dst += dstBitOffset >> 3;
  const int firstBit = dstBitOffset & 7;

  for (int y = 0; y < roi.height; ++y) {
    const Lum8u* s = rowAt(src, srcStep, y);
    Lum8u* out = rowAt(dst, dstStep, y);
    int pos = firstBit;
    unsigned cur = firstBit ? (*out & (0xff00u >> firstBit) & 0xffu) : 0u;  // bits before the row
    for (int x = 0; x < w; ++x) {
      const std::int32_t sum = e2[x - 2] + 2 * e2[x - 1] + 4 * e2[x] + 2 * e2[x + 1] + e2[x + 2] +
                               2 * e1[x - 2] + 4 * e1[x - 1] + 8 * e1[x] + 4 * e1[x + 1] +
                               2 * e1[x + 2] + 4 * e0[x - 2] + 8 * e0[x - 1];
      const std::int32_t v = static_cast<std::int32_t>(s[x]) * 8192 + 23 * sum;
      std::int32_t err = v >> 10;
      if (v > limit) {
        err -= 2047;
        cur |= 0x80u >> pos;
      }
      e0[x] = err;
      if (++pos == 8) {
        *out++ = static_cast<Lum8u>(cur);
        cur = 0;
        pos = 0;
      }
    }
    if (pos) *out = static_cast<Lum8u>(cur | (*out & (0xffu >> pos)));  // bits after the row
    Lum32s* oldest = e2;
    e2 = e1;
    e1 = e0;
    e0 = oldest;
  }
  lumsFree(scratch);
  return lumStatusOk;
}

// Nibble n as four bytes, 255 for each set bit, most significant first.
struct NibbleBytes {
  Lum8u b[16][4];
  constexpr NibbleBytes() : b() {
    for (int n = 0; n < 16; ++n)
      for (int k = 0; k < 4; ++k) b[n][k] = (n >> (3 - k)) & 1 ? 255 : 0;
  }
};
constexpr NibbleBytes kNibbles;

LumStatus convert1u8u(const Lum8u* src, int srcStep, int srcBitOffset, Lum8u* dst, int dstStep,
                      LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (srcBitOffset < 0) return lumStatusSizeErr;
  src += srcBitOffset >> 3;
  const int shift = srcBitOffset & 7;
  const int w = roi.width;
  for (int y = 0; y < roi.height; ++y) {
    const Lum8u* s = rowAt(src, srcStep, y);
    Lum8u* d = rowAt(dst, dstStep, y);
    int x = 0;
    for (; x <= w - 8; x += 8) {
      const int i = x >> 3;
      // the eight bits of the row at x; with a shift they straddle two source bytes, both in
      // the row
      const unsigned b = shift ? ((s[i] << shift) | (s[i + 1] >> (8 - shift))) & 0xffu : s[i];
      std::memcpy(d + x, kNibbles.b[b >> 4], 4);
      std::memcpy(d + x + 4, kNibbles.b[b & 15], 4);
    }
    for (; x < w; ++x) {
      const std::ptrdiff_t bit = shift + static_cast<std::ptrdiff_t>(x);  // may pass INT_MAX
      d[x] = (s[bit >> 3] >> (7 - (bit & 7))) & 1 ? 255 : 0;
    }
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

LUMI_API LumStatus lumiConvert_8u1u_C1R(const Lum8u* pSrc, int srcStep, Lum8u* pDst,
                                        int dstStep, int dstBitOffset, LumiSize roiSize,
                                        Lum8u threshold) {
  return lumi::convert8u1u(pSrc, srcStep, pDst, dstStep, dstBitOffset, roiSize, threshold);
}
LUMI_API LumStatus lumiConvert_1u8u_C1R(const Lum8u* pSrc, int srcStep, int srcBitOffset,
                                        Lum8u* pDst, int dstStep, LumiSize roiSize) {
  return lumi::convert1u8u(pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize);
}
