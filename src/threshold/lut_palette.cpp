// Palettes: each sample, masked to its low bits, indexes a table of 1-, 3- or 4-byte entries.
#include "core/frame.h"

namespace lumi {
namespace {

// D is the destination element (Lum8u or Lum32u); a 24u entry is Bytes = 3 consecutive bytes.
template <class S, class D, int Bytes>
void paletteRows(const S* src, int sstep, D* dst, int dstep, LumiSize roi, const D* table,
                 unsigned mask) {
  for (int y = 0; y < roi.height; ++y) {
    const S* s = rowAt(src, sstep, y);
    D* d = rowAt(dst, dstep, y);
    if constexpr (Bytes == 3) {
      for (int x = 0; x < roi.width; ++x) {
        const D* e = table + 3 * (s[x] & mask);
        D* o = d + elemsOf(x, 3);
        o[0] = e[0];
        o[1] = e[1];
        o[2] = e[2];
      }
    } else {
      int x = 0;
      for (; x + 4 <= roi.width; x += 4) {
        D a = table[s[x] & mask], b = table[s[x + 1] & mask];
        D c = table[s[x + 2] & mask], e = table[s[x + 3] & mask];
        d[x] = a;
        d[x + 1] = b;
        d[x + 2] = c;
        d[x + 3] = e;
      }
      for (; x < roi.width; ++x) d[x] = table[s[x] & mask];
    }
  }
}

// Pointers, then steps, then the ROI (steps first in this family), then the bit count.
template <class S, class D, int Bytes>
LumStatus palette(const S* src, int sstep, D* dst, int dstep, LumiSize roi, const D* table,
                  int bits) {
  if (anyNull(src, dst, table)) return lumStatusNullPtrErr;
  if (badStep(sstep, dstep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (bits < 1 || bits > static_cast<int>(8 * sizeof(S))) return lumStatusBitCountErr;
  paletteRows<S, D, Bytes>(src, sstep, dst, dstep, roi, table, (1u << bits) - 1);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// S the sample type, D the destination element, BYTES the bytes of one table entry.
#define LUMI_PALETTE(NAME, S, D, BYTES)                                                         \
  LUMI_API LumStatus NAME(const S* pSrc, int srcStep, D* pDst, int dstStep, LumiSize roi,       \
                          const D* pTable, int nBitSize) {                                      \
    return lumi::palette<S, D, BYTES>(pSrc, srcStep, pDst, dstStep, roi, pTable, nBitSize);     \
  }

LUMI_PALETTE(lumiLUTPalette_8u24u_C1R, Lum8u, Lum8u, 3)
LUMI_PALETTE(lumiLUTPalette_8u32u_C1R, Lum8u, Lum32u, 4)
LUMI_PALETTE(lumiLUTPalette_16u8u_C1R, Lum16u, Lum8u, 1)
LUMI_PALETTE(lumiLUTPalette_16u24u_C1R, Lum16u, Lum8u, 3)
LUMI_PALETTE(lumiLUTPalette_16u32u_C1R, Lum16u, Lum32u, 4)
