// The row and column passes of the 2-D transforms (see fft_records.h). Rows go straight through
// the 1-D engine when they are contiguous single-channel rows; otherwise one channel of the row
// is gathered into the work buffer first. Columns 0 and W-1 (even W) of the packed layout are
// real columns; the column pairs between them are complex columns, gathered kGroup at a time.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "transform/fft_records.h"

namespace lumi {
namespace fft2d {

float Record::forwardScale() const {
  const double n = static_cast<double>(width) * height;
  if (flag == lumFftDivFwdByN) return static_cast<float>(1.0 / n);
  if (flag == lumFftDivBySqrtN) return static_cast<float>(1.0 / std::sqrt(n));
  return 1.0f;
}
float Record::inverseScale() const {
  const double n = static_cast<double>(width) * height;
  if (flag == lumFftDivInvByN) return static_cast<float>(1.0 / n);
  if (flag == lumFftDivBySqrtN) return static_cast<float>(1.0 / std::sqrt(n));
  return 1.0f;
}

namespace {

inline void scaleRow(float* p, int n, float k) {
  if (k != 1.0f)
    for (int i = 0; i < n; ++i) p[i] *= k;
}

constexpr int kAhead = 8;  // rows prefetched ahead: column sweeps stride by whole rows

// A column group: `count` complex columns from column x0 (Re at x0 + 2c, Im at x0 + 2c + 1),
// held side by side in cols (element r of column c at cols[r * count + c]), and the real
// columns the group carries (col0: column 0, colLast: column xLast = W-1), when not null.
struct Group {
  int x0, count;
  Lum32fc* cols;
  float* col0;
  float* colLast;
  int xLast;
};

inline void gatherRow(const float* row, int ch, int r, const Group& g) {
  const float* p = row + elemsOf(g.x0, ch);
  Lum32fc* o = g.cols + static_cast<std::ptrdiff_t>(r) * g.count;
  if (ch == 1 && g.count == kGroup) {
    float* of = reinterpret_cast<float*>(o);
    for (int i = 0; i < 2 * kGroup; ++i) of[i] = p[i];
  } else {
    for (int c = 0; c < g.count; ++c) o[c] = Lum32fc{p[2 * c * ch], p[(2 * c + 1) * ch]};
  }
  if (g.col0) g.col0[r] = row[0];
  if (g.colLast) g.colLast[r] = row[elemsOf(g.xLast, ch)];
}
inline void scatterRow(float* row, int ch, int r, const Group& g, float k) {
  float* p = row + elemsOf(g.x0, ch);
  const Lum32fc* in = g.cols + static_cast<std::ptrdiff_t>(r) * g.count;
  if (ch == 1 && g.count == kGroup) {
    const float* f = reinterpret_cast<const float*>(in);
    for (int i = 0; i < 2 * kGroup; ++i) p[i] = f[i] * k;
  } else {
    for (int c = 0; c < g.count; ++c) {
      p[2 * c * ch] = in[c].re * k;
      p[(2 * c + 1) * ch] = in[c].im * k;
    }
  }
  if (g.col0) row[0] = g.col0[r] * k;
  if (g.colLast) row[elemsOf(g.xLast, ch)] = g.colLast[r] * k;
}

// One sweep down the rows: gathers `take` from src and writes `put` (scaled by k) back to dst,
// either may be null. Fusing the write-back of one group with the gathering of the next halves
// the sweeps, each of which misses the cache once per row.
void sweep(const float* src, int srcStep, int sch, float* dst, int dstStep, int dch, int H,
           const Group* take, const Group* put, float k) {
  for (int r = 0; r < H; ++r) {
    if (take) {
      const float* ahead = rowAt(src, srcStep, r + kAhead) + elemsOf(take->x0, sch);
      __builtin_prefetch(ahead);
      __builtin_prefetch(ahead + 2 * kGroup * sch - 1);
      gatherRow(rowAt(src, srcStep, r), sch, r, *take);
    }
    if (put) {
      float* ahead = rowAt(dst, dstStep, r + kAhead) + elemsOf(put->x0, dch);
      __builtin_prefetch(ahead, 1);
      __builtin_prefetch(ahead + 2 * kGroup * dch - 1, 1);
      scatterRow(rowAt(dst, dstStep, r), dch, r, *put, k);
    }
  }
}

// Every group of a column pass through `transform`, from src into dst: one sweep per group
// plus one, the two column buffers taking turns.
template <class GroupAt, class Transform>
void columnGroups(int groups, const GroupAt& groupAt, const Transform& transform, const float* src,
                  int srcStep, int sch, float* dst, int dstStep, int dch, int H, float k) {
  Group cur = groupAt(0);
  sweep(src, srcStep, sch, dst, dstStep, dch, H, &cur, nullptr, k);
  for (int gi = 0; gi < groups; ++gi) {
    transform(cur);
    if (gi + 1 < groups) {
      const Group next = groupAt(gi + 1);
      sweep(src, srcStep, sch, dst, dstStep, dch, H, &next, &cur, k);
      cur = next;
    } else {
      sweep(src, srcStep, sch, dst, dstStep, dch, H, nullptr, &cur, k);
    }
  }
}

// The column pass of the packed layout: from src (read only) into dst, scaled by k. Column 0
// rides along with the first group, column W-1 (even W) with the last.
void packedColumns(const Record& R, const float* src, int srcStep, int sch, float* dst, int dstStep,
                   int dch, bool inv, float k, const Scratch& s) {
  const int W = R.width, H = R.height;
  const signal::RealFft& real = R.colsReal();
  const int pairs = (W - 1) / 2;
  const int groups = pairs > 0 ? (pairs + kGroup - 1) / kGroup : 1;
  auto groupAt = [&](int gi) {
    const int j = gi * kGroup;
    return Group{2 * j + 1,
                 std::min(kGroup, pairs - j),
                 s.cols[gi % 2],
                 gi == 0 ? s.real : nullptr,
                 gi == groups - 1 && W % 2 == 0 ? s.real + H : nullptr,
                 W - 1};
  };
  auto transform = [&](const Group& g) {
    for (float* col : {g.col0, g.colLast}) {
      if (!col) continue;
      if (inv)
        real.inverse(col, col, s.work);
      else
        real.forward(col, col, s.work);
    }
    if (g.count > 0) {
      if (inv)
        R.colC->inverseBatch(g.cols, g.count, s.work);
      else
        R.colC->forwardBatch(g.cols, g.count, s.work);
    }
  };
  columnGroups(groups, groupAt, transform, src, srcStep, sch, dst, dstStep, dch, H, k);
}

}  // namespace

template <class S>
void forwardReal(const Record& R, const S* src, int srcStep, int sch, float* dst, int dstStep,
                 int dch, const Scratch& s) {
  const int W = R.width, H = R.height;
  const float k = R.forwardScale();
  const float rowK = H == 1 ? k : 1.0f;
  const signal::RealFft& rows = *R.rowR;
  for (int r = 0; r < H; ++r) {
    const S* in = rowAt(src, srcStep, r);
    float* out = rowAt(dst, dstStep, r);
    if constexpr (std::is_same_v<S, float>) {
      if (sch == 1 && dch == 1) {
        rows.forward(in, out, s.work);
        scaleRow(out, W, rowK);
        continue;
      }
    }
    for (int x = 0; x < W; ++x) s.row[x] = static_cast<float>(in[elemsOf(x, sch)]);
    rows.forward(s.row, s.row, s.work);
    for (int x = 0; x < W; ++x) out[elemsOf(x, dch)] = s.row[x] * rowK;
  }
  if (H > 1) packedColumns(R, dst, dstStep, dch, dst, dstStep, dch, false, k, s);
}
template void forwardReal<float>(const Record&, const float*, int, int, float*, int, int,
                                 const Scratch&);
template void forwardReal<Lum8u>(const Record&, const Lum8u*, int, int, float*, int, int,
                                 const Scratch&);

void inverseReal(const Record& R, const float* src, int srcStep, int sch, float* dst, int dstStep,
                 int dch, const Scratch& s) {
  const int W = R.width, H = R.height;
  const float k = R.inverseScale();
  const float* in = src;
  int inStep = srcStep, inCh = sch;
  if (H > 1) {  // columns first, from the source into the destination
    packedColumns(R, src, srcStep, sch, dst, dstStep, dch, true, 1.0f, s);
    in = dst;
    inStep = dstStep;
    inCh = dch;
  }
  const signal::RealFft& rows = *R.rowR;
  for (int r = 0; r < H; ++r) {
    const float* p = rowAt(in, inStep, r);
    float* out = rowAt(dst, dstStep, r);
    if (inCh == 1 && dch == 1) {
      rows.inverse(p, out, s.work);
      scaleRow(out, W, k);
      continue;
    }
    for (int x = 0; x < W; ++x) s.row[x] = p[elemsOf(x, inCh)];
    rows.inverse(s.row, s.row, s.work);
    for (int x = 0; x < W; ++x) out[elemsOf(x, dch)] = s.row[x] * k;
  }
}

void transformComplex(const Record& R, const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                      bool inv, const Scratch& s) {
  const int W = R.width, H = R.height;
  const float k = inv ? R.inverseScale() : R.forwardScale();
  const signal::ComplexFft& rows = R.rowsComplex();
  for (int r = 0; r < H; ++r) {
    Lum32fc* out = rowAt(dst, dstStep, r);
    rows.transform(rowAt(src, srcStep, r), out, inv, s.work);
    if (H == 1) scaleRow(reinterpret_cast<float*>(out), 2 * W, k);
  }
  if (H == 1) return;
  float* d = reinterpret_cast<float*>(dst);
  auto groupAt = [&](int gi) {
    const int j = gi * kGroup;
    return Group{2 * j, std::min(kGroup, W - j), s.cols[gi % 2], nullptr, nullptr, 0};
  };
  auto transform = [&](const Group& g) {
    if (inv)
      R.colC->inverseBatch(g.cols, g.count, s.work);
    else
      R.colC->forwardBatch(g.cols, g.count, s.work);
  };
  columnGroups((W + kGroup - 1) / kGroup, groupAt, transform, d, dstStep, 1, d, dstStep, 1, H, k);
}

// ---- records ---------------------------------------------------------------------------------

namespace {
uint64_t round64(uint64_t n) { return (n + 63) & ~static_cast<uint64_t>(63); }
}  // namespace

void destroyRecord(Record* r) {
  if (!r) return;
  if (r->colC) signal::ComplexFft::destroy(r->colC);
  if (r->rowC) signal::ComplexFft::destroy(r->rowC);
  if (r->rowR) signal::RealFft::destroy(r->rowR);
  if (r->colR) signal::RealFft::destroy(r->colR);
  lumsFree(reinterpret_cast<Lum8u*>(r));
}

LumStatus createRecord(Record** out, int tag, int width, int height, int sizeX, int sizeY, int flag,
                       int hint) {
  const bool real = tag != kTagFftC && tag != kTagDftC;
  const bool plane = tag == kTagFftR32s || tag == kTagDftR32s;
  // In 64 bits: on 32-bit targets W x H and the column block overflow size_t.
  const uint64_t W = static_cast<uint64_t>(width), H = static_cast<uint64_t>(height);
  const uint64_t limit = 0x7fffffff;
  // Sizes whose work buffer no int can describe fail before any engine is built.
  if (H > limit / 256 || W > limit / 8 || (plane && W * H > limit / 4)) return lumStatusMemAllocErr;
  const uint64_t groupBytes = round64(H * kGroup * sizeof(Lum32fc));
  const uint64_t colsBytes = 2 * groupBytes + round64(2 * H * sizeof(float));
  const uint64_t rowBytes = real ? round64(W * sizeof(float)) : 0;
  const uint64_t planeBytes = plane ? round64(W * H * sizeof(float)) : 0;
  if (colsBytes + rowBytes + planeBytes > limit) return lumStatusMemAllocErr;

  Record* r = reinterpret_cast<Record*>(lumsMalloc_8u(static_cast<int>(sizeof(LumiFFTSpec))));
  if (!r) return lumStatusMemAllocErr;
  std::memset(static_cast<void*>(r), 0, sizeof(LumiFFTSpec));
  r->tag = tag;
  r->sizeX = sizeX;
  r->sizeY = sizeY;
  r->hint = hint;
  r->flag = flag;
  r->width = width;
  r->height = height;
  bool ok;
  if (real) {
    r->rowR = signal::RealFft::create(width);
    if (height != width) r->colR = signal::RealFft::create(height);
    r->colC = signal::ComplexFft::create(height);
    ok = r->rowR && (height == width || r->colR) && r->colC;
  } else {
    r->colC = signal::ComplexFft::create(height);
    if (height != width) r->rowC = signal::ComplexFft::create(width);
    ok = r->colC && (height == width || r->rowC);
  }
  if (!ok) {
    destroyRecord(r);
    return lumStatusMemAllocErr;
  }
  uint64_t work = 0;
  for (int n = 1; n <= kGroup; ++n) work = std::max<uint64_t>(work, r->colC->batchWorkBytes(n));
  work = std::max<uint64_t>(work, r->colC->workBytes());
  if (r->rowC) work = std::max<uint64_t>(work, r->rowC->workBytes());
  if (r->rowR) work = std::max<uint64_t>(work, r->rowR->workBytes());
  if (r->colR) work = std::max<uint64_t>(work, r->colR->workBytes());
  r->colsOff = static_cast<std::size_t>(groupBytes);
  r->realOff = static_cast<std::size_t>(2 * groupBytes);
  r->rowOff = static_cast<std::size_t>(colsBytes);
  r->planeOff = static_cast<std::size_t>(colsBytes + rowBytes);
  r->workOff = static_cast<std::size_t>(colsBytes + rowBytes + planeBytes);
  const uint64_t total = 63 + colsBytes + rowBytes + planeBytes + round64(work);
  if (total > limit) {
    destroyRecord(r);
    return lumStatusMemAllocErr;
  }
  r->bufSize = static_cast<int32_t>(total);
  *out = r;
  return lumStatusOk;
}

}  // namespace fft2d
}  // namespace lumi
