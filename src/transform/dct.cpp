// The general 2-D DCT of any size through a record: every row by the 1-D engine, then the
// columns, gathered four at a time into the work buffer, transformed there as contiguous
// vectors and written back. 8x8 records run the 8x8 block kernel (the same floats as
// lumiDCT8x8Fwd_32f_C1 and lumiDCT8x8Inv_32f_C1). Multi-channel images go channel by
// channel; AC4 leaves the fourth channel alone. Large images share the rows, then the column
// groups, among threads, each thread with a work buffer of its own.
#include <algorithm>
#include <cstring>

#include "core/frame.h"
#include "lumi/dct.h"
#include "signal/dct.h"
#include "transform/dct8x8.h"

namespace lumi {
namespace dct {
constexpr int32_t kFwdTag = 31, kInvTag = 32;
}  // namespace dct
}  // namespace lumi

struct LumiDCTSpec {
  int32_t tag;
  int width, height, hint, bufSize;
  int is8x8;
  lumi::signal::Dct* row;  // row length
  lumi::signal::Dct* col;  // column length; null when the row engine serves both
};

namespace lumi {
namespace dct {
namespace {

constexpr int kGroup = 4;                  // columns gathered at a time
constexpr long long kForkArea = 128 * 128;  // images from this area on share out their work

const signal::Dct& colEngine(const LumiDCTSpec& s) { return s.col ? *s.col : *s.row; }

void freeRecord(LumiDCTSpec* s) {
  signal::Dct::destroy(s->row);
  signal::Dct::destroy(s->col);
  s->tag = 0;
  lumsFree(s);
}

LumStatus initImpl(LumiDCTSpec** pp, LumiSize roi, int hint, int32_t tag) {
  if (!pp) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  auto* s = reinterpret_cast<LumiDCTSpec*>(lumsMalloc_8u(static_cast<int>(sizeof(LumiDCTSpec))));
  if (!s) return lumStatusMemAllocErr;
  std::memset(s, 0, sizeof *s);
  s->tag = tag;
  s->width = roi.width;
  s->height = roi.height;
  s->hint = hint;
  long long bytes;
  if (roi.width == 8 && roi.height == 8) {
    s->is8x8 = 1;
    bytes = 16LL * 8 * 8 + 16;
  } else {
    s->row = signal::Dct::create(roi.width);
    if (s->row && roi.height != roi.width) s->col = signal::Dct::create(roi.height);
    if (!s->row || (roi.height != roi.width && !s->col)) {
      freeRecord(s);
      return lumStatusMemAllocErr;
    }
    const long long r = 16LL * roi.width + static_cast<long long>(s->row->workBytes());
    if (s->col)
      bytes = std::max(r, 16LL * roi.height + static_cast<long long>(s->col->workBytes())) + 16;
    else
      bytes = r + 16;
  }
  if (bytes > INT32_MAX) {
    freeRecord(s);
    return lumStatusMemAllocErr;
  }
  s->bufSize = static_cast<int>(bytes);
  *pp = s;
  return lumStatusOk;
}

LumStatus freeImpl(LumiDCTSpec* s, int32_t tag) {
  if (!s) return lumStatusNullPtrErr;
  if (s->tag != tag) return lumStatusContextMismatchErr;
  freeRecord(s);
  return lumStatusOk;
}

LumStatus bufSizeImpl(const LumiDCTSpec* s, int* pSize, int32_t tag) {
  if (anyNull(s, pSize)) return lumStatusNullPtrErr;
  if (s->tag != tag) return lumStatusContextMismatchErr;
  *pSize = s->bufSize;
  return lumStatusOk;
}

inline float* align16(Lum8u* p) {
  return reinterpret_cast<float*>((reinterpret_cast<std::uintptr_t>(p) + 15) & ~std::uintptr_t{15});
}

// 8x8 records: the block kernel straight on the images when both are contiguous one-channel
// blocks, otherwise through a staging block per channel.
template <class L>
void run8x8(const float* src, int srcStep, float* dst, int dstStep, BlockFn f, float* stage) {
  if (L::kCh == 1 && srcStep == 32 && dstStep == 32) {
    f(src, dst);
    return;
  }
  for (int c = 0; c < L::kUse; ++c) {
    for (int y = 0; y < 8; ++y)
      for (int x = 0; x < 8; ++x) stage[y * 8 + x] = rowAt(src, srcStep, y)[x * L::kCh + c];
    f(stage, stage);
    for (int y = 0; y < 8; ++y)
      for (int x = 0; x < 8; ++x) rowAt(dst, dstStep, y)[x * L::kCh + c] = stage[y * 8 + x];
  }
}

// Rows [y0, y1) of channel c from src to dst by the row engine; work: 16 W bytes then the
// engine's.
template <bool kFwd, class L>
void rowPass(const LumiDCTSpec& s, const float* src, int srcStep, float* dst, int dstStep, int c,
             int y0, int y1, float* work) {
  const signal::Dct& e = *s.row;
  const int w = s.width;
  void* ew = work + 4 * static_cast<std::ptrdiff_t>(w);
  for (int y = y0; y < y1; ++y) {
    const float* in = rowAt(src, srcStep, y);
    float* out = rowAt(dst, dstStep, y);
    if (L::kCh == 1) {
      kFwd ? e.forward(in, out, ew) : e.inverse(in, out, ew);
      continue;
    }
    for (int x = 0; x < w; ++x) work[x] = in[x * L::kCh + c];
    kFwd ? e.forward(work, work, ew) : e.inverse(work, work, ew);
    for (int x = 0; x < w; ++x) out[x * L::kCh + c] = work[x];
  }
}

// Column groups [g0, g1) (kGroup columns each, the last possibly fewer) of channel c of dst,
// in place; work: 16 H bytes (kGroup gathered columns) then the engine's.
template <bool kFwd, class L>
void colPass(const LumiDCTSpec& s, float* dst, int dstStep, int c, int g0, int g1,
             float* work) {
  const signal::Dct& e = colEngine(s);
  const int h = s.height;
  void* ew = work + kGroup * static_cast<std::ptrdiff_t>(h);
  for (int g = g0; g < g1; ++g) {
    const int x0 = g * kGroup, n = std::min(kGroup, s.width - x0);
    for (int y = 0; y < h; ++y) {
      const float* p = rowAt(dst, dstStep, y) + elemsOf(x0, L::kCh) + c;
      for (int i = 0; i < n; ++i) work[i * h + y] = p[i * L::kCh];
    }
    for (int i = 0; i < n; ++i) {
      float* v = work + static_cast<std::ptrdiff_t>(i) * h;
      kFwd ? e.forward(v, v, ew) : e.inverse(v, v, ew);
    }
    for (int y = 0; y < h; ++y) {
      float* p = rowAt(dst, dstStep, y) + elemsOf(x0, L::kCh) + c;
      for (int i = 0; i < n; ++i) p[i * L::kCh] = work[i * h + y];
    }
  }
}

template <bool kFwd, class L>
LumStatus dctImpl(const float* src, int srcStep, float* dst, int dstStep, const LumiDCTSpec* s,
                  Lum8u* pBuffer) {
  if (!s) return lumStatusNullPtrErr;
  if (s->tag != (kFwd ? kFwdTag : kInvTag)) return lumStatusContextMismatchErr;
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  const int groups = (s->width + kGroup - 1) / kGroup;
  const bool fork = !s->is8x8 && static_cast<long long>(s->width) * s->height >= kForkArea &&
                    regionThreads() > 1;
  // Every thread its own buffer (the caller's serves one thread only); when they cannot be had,
  // the calling thread does it all.
  const int n = std::min(regionThreads(), s->height);
  const std::size_t slice = (static_cast<std::size_t>(s->bufSize) + 63) & ~std::size_t{63};
  Lum8u* all = nullptr;
  if (fork && slice * n <= 0x7fffffffu) all = lumsMalloc_8u(static_cast<int>(slice * n));
  if (all) {
    // one region: rows in bands, a barrier, then column groups in bands
#pragma omp parallel num_threads(n)
    {
      const int t = omp_get_thread_num(), nt = omp_get_num_threads();
      float* work = align16(all + slice * t);
      int a0, a1, g0, g1;
      rowBand(s->height, t, nt, &a0, &a1);
      rowBand(groups, t, nt, &g0, &g1);
      for (int c = 0; c < L::kUse; ++c) {
        rowPass<kFwd, L>(*s, src, srcStep, dst, dstStep, c, a0, a1, work);
#pragma omp barrier
        colPass<kFwd, L>(*s, dst, dstStep, c, g0, g1, work);
#pragma omp barrier
      }
    }
    lumsFree(all);
    return lumStatusOk;
  }
  Lum8u* own = nullptr;
  if (!pBuffer) {
    own = lumsMalloc_8u(s->bufSize);
    if (!own) return lumStatusMemAllocErr;
    pBuffer = own;
  }
  float* work = align16(pBuffer);
  if (s->is8x8) {
    run8x8<L>(src, srcStep, dst, dstStep, kFwd ? pickBlockFwd() : pickBlockInv(), work);
  } else {
    for (int c = 0; c < L::kUse; ++c) {
      rowPass<kFwd, L>(*s, src, srcStep, dst, dstStep, c, 0, s->height, work);
      colPass<kFwd, L>(*s, dst, dstStep, c, 0, groups, work);
    }
  }
  lumsFree(own);
  return lumStatusOk;
}

}  // namespace
}  // namespace dct
}  // namespace lumi

#define LUMI_DCT_INIT(NAME, TAG)                                            \
  LUMI_API LumStatus NAME(LumiDCTSpec** pp, LumiSize roi, int hint) {       \
    return lumi::dct::initImpl(pp, roi, hint, TAG);                         \
  }
#define LUMI_DCT_FREE(NAME, TAG) \
  LUMI_API LumStatus NAME(LumiDCTSpec* s) { return lumi::dct::freeImpl(s, TAG); }
#define LUMI_DCT_BUFSIZE(NAME, TAG)                              \
  LUMI_API LumStatus NAME(const LumiDCTSpec* s, int* pSize) {    \
    return lumi::dct::bufSizeImpl(s, pSize, TAG);                \
  }
#define LUMI_DCT(NAME, FWD, L)                                                                \
  LUMI_API LumStatus NAME(const Lum32f* s, int ss, Lum32f* d, int ds, const LumiDCTSpec* p, \
                          Lum8u* b) {                                                       \
    return lumi::dct::dctImpl<FWD, lumi::L>(s, ss, d, ds, p, b);                            \
  }

LUMI_DCT_INIT(lumiDCTFwdInitAlloc_32f, lumi::dct::kFwdTag)
LUMI_DCT_INIT(lumiDCTInvInitAlloc_32f, lumi::dct::kInvTag)
LUMI_DCT_FREE(lumiDCTFwdFree_32f, lumi::dct::kFwdTag)
LUMI_DCT_FREE(lumiDCTInvFree_32f, lumi::dct::kInvTag)
LUMI_DCT_BUFSIZE(lumiDCTFwdGetBufSize_32f, lumi::dct::kFwdTag)
LUMI_DCT_BUFSIZE(lumiDCTInvGetBufSize_32f, lumi::dct::kInvTag)
LUMI_DCT(lumiDCTFwd_32f_C1R, true, C1)
LUMI_DCT(lumiDCTFwd_32f_C3R, true, C3)
LUMI_DCT(lumiDCTFwd_32f_C4R, true, C4)
LUMI_DCT(lumiDCTFwd_32f_AC4R, true, AC4)
LUMI_DCT(lumiDCTInv_32f_C1R, false, C1)
LUMI_DCT(lumiDCTInv_32f_C3R, false, C3)
LUMI_DCT(lumiDCTInv_32f_C4R, false, C4)
LUMI_DCT(lumiDCTInv_32f_AC4R, false, AC4)
