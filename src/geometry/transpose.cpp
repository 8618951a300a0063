// Transposition of one-, three- and four-channel images, out of place and in place (square
// ROIs). Pixels are moved as opaque units of P bytes. The ROI is walked in square outer tiles
// (64 pixels out of place, 32 in place, so a tile and its destination stay in cache); inside
// a tile, pixels of 1, 2, 4 or 8 bytes go through micro tiles of K x K pixels (K = 16 / P,
// one 16-byte block per row) transposed in registers by log2(K) rounds of lane interleaves;
// 256-bit vectors carry two micro tiles side by side. Other pixel sizes, and the edges of a
// tile that do not fill a micro tile, are copied one pixel at a time.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/transpose.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "geometry/transpose_kernels.h"
#include "lumi/remap.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {

template <int P>
using Lane = hwy::UnsignedFromSize<P>;
// Rows of at most 256 bits: one micro tile per block.
template <int P>
using Tag = hn::CappedTag<Lane<P>, 32 / P>;

// One round of interleaves: b[2i], b[2i + 1] = lower and upper halves of a[i], a[i + K/2]
// zipped. log2(K) rounds transpose K x K lanes within each block.
template <int K, class D, class V>
HWY_INLINE void interleaveRound(D d, const V* a, V* b) {
#pragma GCC unroll 16
  for (int i = 0; i < K / 2; ++i) {
    b[2 * i] = hn::InterleaveLower(d, a[i], a[i + K / 2]);
    b[2 * i + 1] = hn::InterleaveUpper(d, a[i], a[i + K / 2]);
  }
}

// K rows of a micro tile (or two side by side) into registers, transposed block by block.
// Fully unrolled, so that the arrays stay in registers.
template <int P, class D, class V>
HWY_INLINE void loadTransposed(D d, const uint8_t* src, int step, V* v) {
  constexpr int K = 16 / P;
  V t[K];
#pragma GCC unroll 16
  for (int i = 0; i < K; ++i)
    t[i] = hn::LoadU(d, reinterpret_cast<const Lane<P>*>(src + static_cast<std::ptrdiff_t>(step) * i));
  if constexpr (K == 2) {
    interleaveRound<K>(d, t, v);
  } else if constexpr (K == 4) {
    V u[K];
    interleaveRound<K>(d, t, u);
    interleaveRound<K>(d, u, v);
  } else if constexpr (K == 8) {
    V u[K], w[K];
    interleaveRound<K>(d, t, u);
    interleaveRound<K>(d, u, w);
    interleaveRound<K>(d, w, v);
  } else {
    V u[K], w[K];
    interleaveRound<K>(d, t, u);
    interleaveRound<K>(d, u, w);
    interleaveRound<K>(d, w, u);
    interleaveRound<K>(d, u, v);
  }
}

// Row i of the transposed block b goes to row b * K + i of dst.
template <int P, class D, class V>
HWY_INLINE void storeTransposed(D d, const V* v, uint8_t* dst, int step) {
  constexpr int K = 16 / P;
  constexpr size_t kBlocks = hn::MaxLanes(D()) * P / 16;
  auto rowOf = [&](int r) { return reinterpret_cast<Lane<P>*>(dst + static_cast<std::ptrdiff_t>(step) * r); };
  if constexpr (kBlocks == 1) {
#pragma GCC unroll 16
    for (int i = 0; i < K; ++i) hn::StoreU(v[i], d, rowOf(i));
  } else {
    const hn::Half<D> dh;
#pragma GCC unroll 16
    for (int i = 0; i < K; ++i) {
      hn::StoreU(hn::LowerHalf(dh, v[i]), dh, rowOf(i));
      hn::StoreU(hn::UpperHalf(dh, v[i]), dh, rowOf(K + i));
    }
  }
}

// Out of place: rows x cols pixels of src to cols x rows of dst.
template <int P>
void transposeTile(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int rows, int cols) {
  if constexpr (P == 1 || P == 2 || P == 4 || P == 8) {
    const Tag<P> d;
    constexpr int K = 16 / P;
    constexpr int W = static_cast<int>(hn::MaxLanes(d));  // pixels per row of a step
    // Two blocks of wider pixels: the micro tiles of rows 0..K-1 and K..2K-1 are joined block
    // by block into whole 2K x 2K rows (8u keeps K x 2K steps: 32 rows would not fit the
    // registers).
    constexpr bool kWide = W * P == 32 && P >= 2;
    constexpr int R = kWide ? 2 * K : K;
    using V = hn::Vec<decltype(d)>;
    const int fullRows = rows / R * R, fullCols = cols / W * W;
    for (int y = 0; y < fullRows; y += R)
      for (int x = 0; x < fullCols; x += W) {
        const uint8_t* s = src + static_cast<std::ptrdiff_t>(srcStep) * y + static_cast<std::ptrdiff_t>(x) * P;
        uint8_t* o = dst + static_cast<std::ptrdiff_t>(dstStep) * x + static_cast<std::ptrdiff_t>(y) * P;
        if constexpr (kWide) {
          V v[K], w[K];
          loadTransposed<P>(d, s, srcStep, v);
          loadTransposed<P>(d, s + static_cast<std::ptrdiff_t>(srcStep) * K, srcStep, w);
#pragma GCC unroll 16
          for (int j = 0; j < K; ++j) {
            hn::StoreU(hn::ConcatLowerLower(d, w[j], v[j]), d, reinterpret_cast<Lane<P>*>(o + static_cast<std::ptrdiff_t>(dstStep) * j));
            hn::StoreU(hn::ConcatUpperUpper(d, w[j], v[j]), d, reinterpret_cast<Lane<P>*>(o + static_cast<std::ptrdiff_t>(dstStep) * (K + j)));
          }
        } else {
          V v[K];
          loadTransposed<P>(d, s, srcStep, v);
          storeTransposed<P>(d, v, o, dstStep);
        }
      }
    // The right strip (all rows) and the bottom strip (full columns only).
    transpose::tileScalar<P>(src + static_cast<std::ptrdiff_t>(fullCols) * P, srcStep,
                             dst + static_cast<std::ptrdiff_t>(dstStep) * fullCols, dstStep, rows, cols - fullCols);
    transpose::tileScalar<P>(src + static_cast<std::ptrdiff_t>(srcStep) * fullRows, srcStep,
                             dst + static_cast<std::ptrdiff_t>(fullRows) * P, dstStep, rows - fullRows, fullCols);
  } else {
    transpose::tileScalar<P>(src, srcStep, dst, dstStep, rows, cols);
  }
}

// In place: the tile at (r0, c0) of rows x cols pixels trades with its mirror; a tile on the
// diagonal (r0 == c0) is transposed in itself.
template <int P>
void pairTiles(uint8_t* a, int step, int r0, int c0, int rows, int cols) {
  if constexpr (P == 1 || P == 2 || P == 4 || P == 8) {
    const hn::Full128<Lane<P>> d;
    constexpr int K = 16 / P;
    using V = hn::Vec<decltype(d)>;
    auto at = [&](int i, int j) { return a + static_cast<std::ptrdiff_t>(step) * i + static_cast<std::ptrdiff_t>(j) * P; };
    const bool diag = r0 == c0;
    const int mr = rows / K * K, mc = cols / K * K;
    for (int u = 0; u < mr; u += K)
      for (int v = diag ? u : 0; v < mc; v += K) {
        const int i = r0 + u, j = c0 + v;
        V x[K], y[K];
        loadTransposed<P>(d, at(i, j), step, x);
        if (i == j) {
          storeTransposed<P>(d, x, at(i, j), step);
        } else {
          loadTransposed<P>(d, at(j, i), step, y);
          storeTransposed<P>(d, x, at(j, i), step);
          storeTransposed<P>(d, y, at(i, j), step);
        }
      }
    // What the micro tiles left: columns from mc on, and rows from mr on.
    for (int u = 0; u < rows; ++u)
      for (int v = u < mr ? mc : 0; v < cols; ++v)
        if (!diag || v > u) transpose::swapPx<P>(at(r0 + u, c0 + v), at(c0 + v, r0 + u));
  } else {
    transpose::pairTilesScalar<P>(a, step, r0, c0, rows, cols);
  }
}

}  // namespace
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace transpose {
namespace {

using TileFn = void (*)(const uint8_t*, int, uint8_t*, int, int, int);
using PairFn = void (*)(uint8_t*, int, int, int, int, int);

template <int P>
TileFn pickTile() {
  LUMI_SIMD_TABLE(TileFn, table, transposeTile<P>);
  return pick(table, &tileScalar<P>);
}
template <int P>
PairFn pickPair() {
  LUMI_SIMD_TABLE(PairFn, table, pairTiles<P>);
  return pick(table, &pairTilesScalar<P>);
}

constexpr int kTile = 64, kPairTile = 32;

// Memory-bound, with scattered writes: a second thread pays off from about 128 KB.
bool forkTranspose(LumiSize roi, int pixelBytes) { return forkByWork(roi, pixelBytes, 1 << 17); }

// Bands of destination rows (source columns), whole tiles each.
template <int P>
LumStatus transposeImpl(const void* src, int srcStep, void* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  const TileFn f = pickTile<P>();
  const auto* s = static_cast<const uint8_t*>(src);
  auto* d = static_cast<uint8_t*>(dst);
  const int colTiles = (roi.width + kTile - 1) / kTile;
  forRows(colTiles, forkTranspose(roi, P), [&](int t0, int t1) {
    const int x0 = t0 * kTile, x1 = t1 * kTile < roi.width ? t1 * kTile : roi.width;
    for (int y = 0; y < roi.height; y += kTile) {
      const int rows = roi.height - y < kTile ? roi.height - y : kTile;
      for (int x = x0; x < x1; x += kTile) {
        const int cols = x1 - x < kTile ? x1 - x : kTile;
        f(s + static_cast<std::ptrdiff_t>(srcStep) * y + static_cast<std::ptrdiff_t>(x) * P, srcStep,
          d + static_cast<std::ptrdiff_t>(dstStep) * x + static_cast<std::ptrdiff_t>(y) * P, dstStep, rows, cols);
      }
    }
  });
  return lumStatusOk;
}

// Square, in place: tile row b pairs tiles b..n-1 with their mirrors. Tile rows are dealt out
// short and long alternately (0, n-1, 1, n-2, ...) so that contiguous bands carry about equal
// work.
template <int P>
LumStatus transposeInPlaceImpl(void* img, int step, LumiSize roi) {
  if (img == nullptr) return lumStatusNullPtrErr;
  if (badSize(roi) || roi.width != roi.height) return lumStatusSizeErr;
  const PairFn f = pickPair<P>();
  auto* a = static_cast<uint8_t*>(img);
  const int n = roi.width, nt = (n + kPairTile - 1) / kPairTile;
  forRows(nt, forkTranspose(roi, P), [&](int k0, int k1) {
    for (int k = k0; k < k1; ++k) {
      const int b = k % 2 == 0 ? k / 2 : nt - 1 - k / 2;
      const int r0 = b * kPairTile, rows = n - r0 < kPairTile ? n - r0 : kPairTile;
      for (int c0 = r0; c0 < n; c0 += kPairTile) f(a, step, r0, c0, rows, n - c0 < kPairTile ? n - c0 : kPairTile);
    }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace transpose
}  // namespace lumi

using namespace lumi;

#define LUMI_TRANSPOSE(NAME, T, L)                                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roiSize) {    \
    return transpose::transposeImpl<sizeof(T) * L::kCh>(pSrc, srcStep, pDst, dstStep, roiSize);   \
  }
#define LUMI_TRANSPOSE_I(NAME, T, L)                                                     \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize) {                \
    return transpose::transposeInPlaceImpl<sizeof(T) * L::kCh>(pSrcDst, srcDstStep, roiSize); \
  }

LUMI_TRANSPOSE(lumiTranspose_8u_C1R, Lum8u, C1)
LUMI_TRANSPOSE(lumiTranspose_8u_C3R, Lum8u, C3)
LUMI_TRANSPOSE(lumiTranspose_8u_C4R, Lum8u, C4)
LUMI_TRANSPOSE(lumiTranspose_16u_C1R, Lum16u, C1)
LUMI_TRANSPOSE(lumiTranspose_16u_C3R, Lum16u, C3)
LUMI_TRANSPOSE(lumiTranspose_16u_C4R, Lum16u, C4)
LUMI_TRANSPOSE(lumiTranspose_32s_C1R, Lum32s, C1)
LUMI_TRANSPOSE(lumiTranspose_32s_C3R, Lum32s, C3)
LUMI_TRANSPOSE(lumiTranspose_32s_C4R, Lum32s, C4)
LUMI_TRANSPOSE_I(lumiTranspose_8u_C1IR, Lum8u, C1)
LUMI_TRANSPOSE_I(lumiTranspose_8u_C3IR, Lum8u, C3)
LUMI_TRANSPOSE_I(lumiTranspose_8u_C4IR, Lum8u, C4)
LUMI_TRANSPOSE_I(lumiTranspose_16u_C1IR, Lum16u, C1)
LUMI_TRANSPOSE_I(lumiTranspose_16u_C3IR, Lum16u, C3)
LUMI_TRANSPOSE_I(lumiTranspose_16u_C4IR, Lum16u, C4)
LUMI_TRANSPOSE_I(lumiTranspose_32s_C1IR, Lum32s, C1)
LUMI_TRANSPOSE_I(lumiTranspose_32s_C3IR, Lum32s, C3)
LUMI_TRANSPOSE_I(lumiTranspose_32s_C4IR, Lum32s, C4)
#endif  // HWY_ONCE
