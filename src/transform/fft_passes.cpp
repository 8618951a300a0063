// The row and column passes of the 2-D transforms (see fft_spec.h). Rows go straight through
// the 1-D engine when they are contiguous single-channel rows; otherwise one channel of the row
// is gathered into the work buffer first. Columns 0 and W-1 (even W) of the packed layout are
// real columns; the column pairs between them are complex columns, gathered kGroup at a time.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "transform/fft_spec.h"

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

// One sweep over the rows of a column group: `count` complex columns from column x0 (Re at
// x0 + 2c, Im at x0 + 2c + 1) into cols, side by side (element r of column c at
// cols[r * count + c]), and the real columns the group carries (col0: column 0, colLast:
// column W-1, when not null) into their own vectors.
struct Group {
  int x0, count;
  float* col0;
  float* colLast;
  int xLast;
};

void gather(const float* src, int step, int ch, int H, const Group& g, Lum32fc* cols) {
  const std::ptrdiff_t off = elemsOf(g.x0, ch), offLast = elemsOf(g.xLast, ch);
  for (int r = 0; r < H; ++r) {
    const float* row = rowAt(src, step, r);
    __builtin_prefetch(rowAt(src, step, r + kAhead) + off);
    const float* p = row + off;
    Lum32fc* o = cols + static_cast<std::ptrdiff_t>(r) * g.count;
    if (ch == 1 && g.count == kGroup) {
      float* of = reinterpret_cast<float*>(o);
      for (int i = 0; i < 2 * kGroup; ++i) of[i] = p[i];
    } else {
      for (int c = 0; c < g.count; ++c) o[c] = Lum32fc{p[2 * c * ch], p[(2 * c + 1) * ch]};
    }
    if (g.col0) g.col0[r] = row[0];
    if (g.colLast) g.colLast[r] = row[offLast];
  }
}
void scatter(const Lum32fc* cols, float* dst, int step, int ch, int H, const Group& g, float k) {
  const std::ptrdiff_t off = elemsOf(g.x0, ch), offLast = elemsOf(g.xLast, ch);
  for (int r = 0; r < H; ++r) {
    float* row = rowAt(dst, step, r);
    __builtin_prefetch(rowAt(dst, step, r + kAhead) + off, 1);
    float* p = row + off;
    const Lum32fc* in = cols + static_cast<std::ptrdiff_t>(r) * g.count;
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
    if (g.colLast) row[offLast] = g.colLast[r] * k;
  }
}

// The column pass of the packed layout: from src (read only) into dst, scaled by k. Column 0
// rides along with the first group, column W-1 (even W) with the last.
void packedColumns(const Record& R, const float* src, int srcStep, int sch, float* dst,
                   int dstStep, int dch, bool inv, float k, const Scratch& s) {
  const int W = R.width, H = R.height;
  const signal::RealFft& real = R.colsReal();
  const int pairs = (W - 1) / 2;
  const int groups = pairs > 0 ? (pairs + kGroup - 1) / kGroup : 1;
  for (int gi = 0; gi < groups; ++gi) {
    const int j = gi * kGroup;
    Group g{2 * j + 1, std::min(kGroup, pairs - j), gi == 0 ? s.real : nullptr,
            gi == groups - 1 && W % 2 == 0 ? s.real + H : nullptr, W - 1};
    gather(src, srcStep, sch, H, g, s.cols);
    for (float* col : {g.col0, g.colLast}) {
      if (!col) continue;
      if (inv)
        real.inverse(col, col, s.work);
      else
        real.forward(col, col, s.work);
    }
    if (g.count > 0) {
      if (inv)
        R.colC->inverseBatch(s.cols, g.count, s.work);
      else
        R.colC->forwardBatch(s.cols, g.count, s.work);
    }
    scatter(s.cols, dst, dstStep, dch, H, g, k);
  }
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
  for (int j = 0; j < W; j += kGroup) {
    const int n = std::min(kGroup, W - j);
    const Group g{2 * j, n, nullptr, nullptr, 0};
    gather(d, dstStep, 1, H, g, s.cols);
    if (inv)
      R.colC->inverseBatch(s.cols, n, s.work);
    else
      R.colC->forwardBatch(s.cols, n, s.work);
    scatter(s.cols, d, dstStep, 1, H, g, k);
  }
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

LumStatus createRecord(Record** out, int tag, int width, int height, int sizeX, int sizeY,
                       int flag, int hint) {
  const bool real = tag != kTagFftC && tag != kTagDftC;
  const bool plane = tag == kTagFftR32s || tag == kTagDftR32s;
  // In 64 bits: on 32-bit targets W x H and the column block overflow size_t.
  const uint64_t W = static_cast<uint64_t>(width), H = static_cast<uint64_t>(height);
  const uint64_t limit = 0x7fffffff;
  // Sizes whose work buffer no int can describe fail before any engine is built.
  if (H > limit / 256 || W > limit / 8 || (plane && W * H > limit / 4)) return lumStatusMemAllocErr;
  const uint64_t colsBytes = round64(H * kGroup * sizeof(Lum32fc)) + round64(2 * H * sizeof(float));
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
  r->realOff = static_cast<std::size_t>(round64(H * kGroup * sizeof(Lum32fc)));
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
