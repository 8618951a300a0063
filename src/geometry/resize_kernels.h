// Resize internals: the per-axis coordinate tables (built once per call) and the plain row
// kernels every mode is defined by. The vector kernels in resize.cpp follow these exactly:
// integer results agree bit for bit, 32f results within the tolerance stated there.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/frame.h"
#include "geometry/cubic.h"

namespace lumi {
namespace resize {

enum Mode : int { kNearest = 1, kLinear = 2, kCubic = 4, kSuper = 8, kLanczos = 16 };
constexpr int kOne = 16384;  // 1.0 of the 14-bit fixed-point weights

// One axis of a mapping. Destination pixel i (0 <= i < count) comes from the source position
// start + (i + 0.5) step (centred: nearest) or start + i step (other modes), relative to the
// source ROI origin; super-sampling covers [start + i step, start + (i + 1) step). The source
// holds absolute positions [0, extent), the ROI origin sits at absolute `origin`.
struct Axis {
  int count = 0;
  double start = 0, step = 0;
  int origin = 0, extent = 1;
};

// ---- per-axis tables ------------------------------------------------------------------------
// Every array holds one entry per destination position (pixel-order columns: per element, the
// channels of a pixel in a row). Offsets are in elements from the ROI origin's first element
// (columns) or in rows from the ROI origin's row; they may be negative (taps left of or above
// the ROI, still inside the image).
struct Taps {
  int32_t* off = nullptr;   // nearest: the pixel; linear: tap 0; cubic: tap b - 1; lanczos: 6 per entry
  int16_t* wq = nullptr;    // linear 8u/16u: pairs (16384 - w, w)
  float* wf = nullptr;      // linear: pairs (1 - f, f); cubic: (a, b, c) per entry; lanczos: 6 per entry
  int32_t* key = nullptr;   // rows of lanczos: the unclamped first tap (row-buffer tags)
  // super-sampling: first tap, tap count, `maxTaps` weights per entry
  int32_t* cnt = nullptr;
  int maxTaps = 0;
};

inline double posOf(const Axis& a, int i, bool centred) {
  return a.start + (centred ? i + 0.5 : static_cast<double>(i)) * a.step;
}
// floor(x + 1e-7) with x first kept inside the source, as a relative index.
inline int indexOf(const Axis& a, double* x) {
  const double lo = -a.origin, hi = a.extent - 1 - a.origin;
  if (!(*x >= lo)) *x = lo;  // NaN too
  if (*x > hi) *x = hi;
  return static_cast<int>(std::floor(*x + 1e-7));
}

// Bytes of one axis's tables for n entries (elements) of a mode; maxTaps for super.
inline std::size_t tableBytes(int mode, std::ptrdiff_t n, int maxTaps) {
  std::size_t e = static_cast<std::size_t>(n) + 16, b = 0;
  auto add = [&](std::size_t bytes) { b += (bytes + 63) & ~static_cast<std::size_t>(63); };
  switch (mode) {
    case kNearest: add(e * 4); break;
    case kLinear: add(e * 4); add(e * 4); add(e * 8); break;
    case kCubic: add(e * 4); add(e * 12); break;
    case kLanczos: add(e * 24); add(e * 24); add(e * 4); break;
    default: add(e * 4); add(e * 4); add(e * 4 * static_cast<std::size_t>(maxTaps)); break;
  }
  return b;
}
inline int superTaps(const Axis& a) {  // an interval of length step touches at most this many pixels
  double s = std::fabs(a.step);
  if (!(s < 1e6)) s = 1e6;
  return static_cast<int>(std::ceil(s)) + 1;
}

// The Lanczos window L(x) = 3 sin(pi x) sin(pi x / 3) / (pi x)^2 at x = k / 100 (k = 0..300)
// and a zero guard entry.
inline const float* lanczosTable() {
  static const struct T {
    float v[302];
    T() {
      const double pi = 3.14159265358979323846;
      v[0] = 1.0f;
      for (int k = 1; k <= 300; ++k) {
        double x = k / 100.0;
        v[k] = static_cast<float>(3.0 * std::sin(pi * x) * std::sin(pi * x / 3.0) / (pi * pi * x * x));
      }
      v[100] = v[200] = v[300] = 0.0f;  // whole x: exactly zero
      v[301] = 0.0f;
    }
  } t;
  return t.v;
}

// Fills the tables of one axis into `mem` (tableBytes(mode, count * ch, maxTaps) bytes). ch is
// the number of interleaved elements per pixel (1 for rows and planes).
inline void buildTaps(const Axis& a, int mode, int ch, Lum8u* mem, Taps* t) {
  const std::ptrdiff_t n = elemsOf(a.count, ch);
  const std::size_t e = static_cast<std::size_t>(n) + 16;
  auto take = [&](std::size_t bytes) {
    Lum8u* p = mem;
    mem += (bytes + 63) & ~static_cast<std::size_t>(63);
    return p;
  };
  const int first = -a.origin, last = a.extent - 1 - a.origin;  // relative index range
  switch (mode) {
    case kNearest: {
      t->off = reinterpret_cast<int32_t*>(take(e * 4));
      for (int i = 0; i < a.count; ++i) {
        double x = posOf(a, i, true);
        t->off[i] = indexOf(a, &x) * ch;
      }
      break;
    }
    case kLinear: {
      t->off = reinterpret_cast<int32_t*>(take(e * 4));
      t->wq = reinterpret_cast<int16_t*>(take(e * 4));
      t->wf = reinterpret_cast<float*>(take(e * 8));
      for (int i = 0; i < a.count; ++i) {
        double x = posOf(a, i, false);
        int idx = indexOf(a, &x);
        double f = x - idx;
        if (idx == last) {  // the last column: taps one to the left, all weight on the second
          idx -= 1;
          f = 1.0;
        }
        const int w = static_cast<int>(f * kOne + 1e-7);
        const float ff = static_cast<float>(f);
        for (int c = 0; c < ch; ++c) {
          const std::ptrdiff_t k = elemsOf(i, ch) + c;
          t->off[k] = idx * ch + c;
          t->wq[2 * k] = static_cast<int16_t>(kOne - w);
          t->wq[2 * k + 1] = static_cast<int16_t>(w);
          t->wf[2 * k] = 1.0f - ff;
          t->wf[2 * k + 1] = ff;
        }
      }
      break;
    }
    case kCubic: {
      t->off = reinterpret_cast<int32_t*>(take(e * 4));
      t->wf = reinterpret_cast<float*>(take(e * 12));
      for (int i = 0; i < a.count; ++i) {
        double x = posOf(a, i, false);
        const int idx = indexOf(a, &x);
        int b = idx;
        double tt = x - idx;
        if (idx == first) {
          b = idx + 1;
          tt = x - b;
        } else if (idx == last - 1) {
          b = idx - 1;
          tt = x - b;
        } else if (idx == last) {
          b = idx - 2;
          tt = 2.0;
        }
        const geometry::CubicCoeffs<float> k = geometry::cubicCoeffs(static_cast<float>(tt));
        for (int c = 0; c < ch; ++c) {
          const std::ptrdiff_t j = elemsOf(i, ch) + c;
          t->off[j] = (b - 1) * ch + c;
          t->wf[3 * j] = k.a;
          t->wf[3 * j + 1] = k.b;
          t->wf[3 * j + 2] = k.c;
        }
      }
      break;
    }
    case kLanczos: {
      t->off = reinterpret_cast<int32_t*>(take(e * 24));
      t->wf = reinterpret_cast<float*>(take(e * 24));
      t->key = reinterpret_cast<int32_t*>(take(e * 4));
      const float* tbl = lanczosTable();
      for (int i = 0; i < a.count; ++i) {
        double x = posOf(a, i, false);
        const int idx = indexOf(a, &x);
        const float f = static_cast<float>(x - idx);
        float w[6], sum = 0;
        for (int k = 0; k < 6; ++k) {
          float d = std::fabs(f + 2.0f - static_cast<float>(k));
          if (d > 3.0f) d = 3.0f;
          const float u = d * 100.0f;
          const int j = static_cast<int>(u);
          w[k] = tbl[j] + (u - static_cast<float>(j)) * (tbl[j + 1] - tbl[j]);
          sum += w[k];
        }
        for (int k = 0; k < 6; ++k) {
          const int src = std::min(std::max(idx - 2 + k, first), last);
          t->off[6 * i + k] = src * ch;
          t->wf[6 * i + k] = w[k] / sum;
        }
        t->key[i] = idx - 2;
      }
      break;
    }
    default: {  // super: the pixels [start + i step, start + (i + 1) step) overlaps, by overlap
      const int m = superTaps(a);
      t->maxTaps = m;
      t->off = reinterpret_cast<int32_t*>(take(e * 4));
      t->cnt = reinterpret_cast<int32_t*>(take(e * 4));
      t->wf = reinterpret_cast<float*>(take(e * 4 * static_cast<std::size_t>(m)));
      for (int i = 0; i < a.count; ++i) {
        double x0 = a.start + i * a.step, x1 = x0 + a.step;
        x0 = std::min(std::max(x0, static_cast<double>(first)), static_cast<double>(last + 1));
        x1 = std::min(std::max(x1, static_cast<double>(first)), static_cast<double>(last + 1));
        float* w = t->wf + static_cast<std::ptrdiff_t>(i) * m;
        if (!(x1 - x0 > 1e-9)) {  // nothing covered inside the source: its nearest pixel
          int k = static_cast<int>(std::floor(x0));
          k = std::min(std::max(k, first), last);
          t->off[i] = k * ch;
          t->cnt[i] = 1;
          w[0] = 1.0f;
          continue;
        }
        int k0 = static_cast<int>(std::floor(x0 + 1e-9));
        int k1 = static_cast<int>(std::ceil(x1 - 1e-9));  // exclusive
        k0 = std::max(k0, first);
        k1 = std::min(std::max(k1, k0 + 1), last + 1);
        if (k1 - k0 > m) k1 = k0 + m;
        const double len = x1 - x0;
        t->off[i] = k0 * ch;
        t->cnt[i] = k1 - k0;
        for (int k = k0; k < k1; ++k) {
          const double ov = std::min(x1, k + 1.0) - std::max(x0, static_cast<double>(k));
          w[k - k0] = static_cast<float>(ov > 0 ? ov / len : 0.0);
        }
      }
      break;
    }
  }
}

// The first element whose vector read [off, off + span) would pass `limit` (elements from the ROI
// origin to the end of the image row), or n.
inline int safePrefix(const int32_t* off, int n, int span, std::ptrdiff_t limit) {
  if (span == 0) return n;
  for (int e = 0; e < n; ++e)
    if (off[e] + span > limit) return e;
  return n;
}

// Windows of the horizontal passes: per block of 16 elements, the first element `base` of a
// window of `size` elements of the source row that holds every tap of the block (kNoWindow if
// none does, or the window would pass `limit`), and each tap's place in it, tap by tap (16
// places of tap 0, then 16 of tap 1, ...; interleaved: the taps of element 0, of element 1,
// ...). The AVX-512 kernels fetch such blocks with two
// loads and a permute instead of gathers.
constexpr int kBlock = 16;
constexpr int32_t kNoWindow = INT32_MIN;
struct Windows {
  int32_t* base = nullptr;
  uint16_t* idx = nullptr;
  uint8_t* same = nullptr;  // places 0, 1, 2, ...: the window as it stands
  // Linear reductions of one-channel rows by about one half: elements [0, run) (a multiple of 64)
  // take the pairs (off[0] + 2k, off[0] + 2k + 1) with a second weight below one, which the
  // AVX-512 kernels read straight from the rows; w2: 2 w per element (8u), wf0, wf1: the float
  // weights apart.
  int run = 0;
  int16_t* w2 = nullptr;
  float *wf0 = nullptr, *wf1 = nullptr;
};
// Fills run and the weights apart (8u: wq given, 2n bytes; 32f: wf given, 8n bytes of `mem`).
inline void buildPairs(const int32_t* off, const int16_t* wq, const float* wf, int n, Lum8u* mem,
                       Windows* w) {
  int run = 0;
  while (run < n && off[run] == off[0] + 2 * run && (wq == nullptr || wq[2 * run + 1] < kOne)) ++run;
  w->run = run & ~63;
  if (w->run == 0) return;
  if (wq != nullptr) {
    w->w2 = reinterpret_cast<int16_t*>(mem);
    for (int e = 0; e < w->run; ++e) w->w2[e] = static_cast<int16_t>(2 * wq[2 * e + 1]);
  } else {
    w->wf0 = reinterpret_cast<float*>(mem);
    w->wf1 = w->wf0 + w->run;
    for (int e = 0; e < w->run; ++e) w->wf0[e] = wf[2 * e], w->wf1[e] = wf[2 * e + 1];
  }
}
// Bytes: about n / 16 x (5 + 32 taps) + 128, which the row-buffer slots reserved for them hold.
inline void buildWindows(const int32_t* off, int n, int taps, int pitch, int size,
                         std::ptrdiff_t limit, Lum8u* mem, Windows* w, bool interleaved = false) {
  const int blocks = n / kBlock;
  w->base = reinterpret_cast<int32_t*>(mem);
  const std::size_t baseBytes = (static_cast<std::size_t>(blocks) * 4 + 63) & ~std::size_t{63};
  w->same = mem + baseBytes;
  w->idx = reinterpret_cast<uint16_t*>(mem + baseBytes + ((static_cast<std::size_t>(blocks) + 63) & ~std::size_t{63}));
  for (int b = 0; b < blocks; ++b) {
    w->same[b] = 0;
    const int32_t* o = off + b * kBlock;
    int32_t lo = o[0], hi = o[0];
    for (int k = 1; k < kBlock; ++k) lo = std::min(lo, o[k]), hi = std::max(hi, o[k]);
    hi += (taps - 1) * pitch;
    if (hi - lo >= size || lo + size > limit) {
      w->base[b] = kNoWindow;
      continue;
    }
    w->base[b] = lo;
    uint16_t* ix = w->idx + static_cast<std::ptrdiff_t>(b) * kBlock * taps;
    for (int k = 0; k < kBlock; ++k)
      for (int t = 0; t < taps; ++t)
        ix[interleaved ? k * taps + t : t * kBlock + k] = static_cast<uint16_t>(o[k] + t * pitch - lo);
    bool same = true;
    for (int j = 0; j < kBlock * taps; ++j) same = same && ix[j] == j;
    w->same[b] = same ? 1 : 0;
  }
}

// ---- rounding of the float modes ----------------------------------------------------------------
// trunc(v + 0.5000001) saturated to T; the clamp comes first, so huge values convert safely.
template <class T>
inline T roundStore(float v) {
  if constexpr (std::is_floating_point_v<T>) {
    return v;
  } else {
    float r = v + 0.5000001f;
    const float hi = static_cast<float>(std::numeric_limits<T>::max());
    if (!(r > 0.0f)) r = 0.0f;
    if (r > hi) r = hi;
    return static_cast<T>(static_cast<int32_t>(r));
  }
}

// ---- plain row kernels ----------------------------------------------------------------------
// n elements per row; pitch = elements between horizontally neighbouring pixels; keepAlpha skips
// every fourth element on the store (AC4). `safe`: the vector kernels of 8u rows read a few
// bytes past a tap; elements from `safe` on are done one by one (see safePrefix).

// Nearest along a row, per element (offE: the element each destination element copies).
template <class T>
inline void nearestRowScalar(const T* s, const int32_t* offE, int n, int /*safe*/,
                             const Windows* /*win*/, T* d, bool keepAlpha) {
  for (int e = 0; e < n; ++e)
    if (!(keepAlpha && (e & 3) == 3)) d[e] = s[offE[e]];
}

// Linear 8u along a row: h = (p0 (16384 - w) + p1 w) >> 8.
inline void linH8Scalar(const Lum8u* s, const int32_t* off, const int16_t* wq, int n, int pitch,
                        int /*safe*/, const Windows* /*win*/, int16_t* h) {
  for (int e = 0; e < n; ++e) {
    const Lum8u* p = s + off[e];
    h[e] = static_cast<int16_t>((p[0] * wq[2 * e] + p[pitch] * wq[2 * e + 1]) >> 8);
  }
}
// Linear 8u down the columns: (h0 (16384 - wy) + h1 wy + 2^19) >> 20.
inline void linV8Scalar(const int16_t* h0, const int16_t* h1, int wy, int n, Lum8u* d,
                        bool keepAlpha) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    d[e] = static_cast<Lum8u>((h0[e] * (kOne - wy) + h1[e] * wy + (1 << 19)) >> 20);
  }
}
// Linear 16u: h = p0 (16384 - w) + p1 w exactly; (h0 (16384 - wy) + h1 wy + 2^27) >> 28.
inline void linH16Scalar(const Lum16u* s, const int32_t* off, const int16_t* wq, int n, int pitch,
                         uint32_t* h) {
  for (int e = 0; e < n; ++e) {
    const Lum16u* p = s + off[e];
    h[e] = static_cast<uint32_t>(p[0]) * static_cast<uint32_t>(wq[2 * e]) +
           static_cast<uint32_t>(p[pitch]) * static_cast<uint32_t>(wq[2 * e + 1]);
  }
}
inline void linV16Scalar(const uint32_t* h0, const uint32_t* h1, int wy, int n, Lum16u* d,
                         bool keepAlpha) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    const uint64_t v = static_cast<uint64_t>(h0[e]) * static_cast<uint64_t>(kOne - wy) +
                       static_cast<uint64_t>(h1[e]) * static_cast<uint64_t>(wy) + (1u << 27);
    d[e] = static_cast<Lum16u>(v >> 28);
  }
}
// Linear 32f: h = p0 (1 - f) + p1 f, then h0 (1 - fy) + h1 fy.
inline void linHfScalar(const float* s, const int32_t* off, const float* wf, int n, int pitch,
                        int /*safe*/, const Windows* /*win*/, float* h) {
  for (int e = 0; e < n; ++e) {
    const float* p = s + off[e];
    h[e] = p[0] * wf[2 * e] + p[pitch] * wf[2 * e + 1];
  }
}
inline void linVfScalar(const float* h0, const float* h1, float w0, float w1, int n, float* d,
                        bool keepAlpha, bool /*stream*/ = false) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    d[e] = h0[e] * w0 + h1[e] * w1;
  }
}

// Linear rows of reductions, where destination rows share no source rows: both source rows
// along the row and down the column in one pass, the same integers and floats as above.
inline void linF8Scalar(const Lum8u* s0, const Lum8u* s1, const int32_t* off, const int16_t* wq,
                        int n, int pitch, int /*safe*/, const Windows* /*win*/, int wy, Lum8u* d,
                        bool keepAlpha) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    const Lum8u *p = s0 + off[e], *q = s1 + off[e];
    const int h0 = (p[0] * wq[2 * e] + p[pitch] * wq[2 * e + 1]) >> 8;
    const int h1 = (q[0] * wq[2 * e] + q[pitch] * wq[2 * e + 1]) >> 8;
    d[e] = static_cast<Lum8u>((h0 * (kOne - wy) + h1 * wy + (1 << 19)) >> 20);
  }
}
inline void linFfScalar(const float* s0, const float* s1, const int32_t* off, const float* wf,
                        int n, int pitch, int /*safe*/, const Windows* /*win*/, float w0, float w1,
                        float* d, bool keepAlpha) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    const float *p = s0 + off[e], *q = s1 + off[e];
    const float h0 = p[0] * wf[2 * e] + p[pitch] * wf[2 * e + 1];
    const float h1 = q[0] * wf[2 * e] + q[pitch] * wf[2 * e + 1];
    d[e] = h0 * w0 + h1 * w1;
  }
}

// Cubic along a row into floats (Newton form, coefficients per element).
template <class T>
inline void cubHScalar(const T* s, const int32_t* off, const float* k, int n, int pitch,
                       int /*safe*/, const Windows* /*win*/, float* r) {
  for (int e = 0; e < n; ++e) {
    const T* p = s + off[e];
    const geometry::CubicCoeffs<float> c{k[3 * e], k[3 * e + 1], k[3 * e + 2]};
    r[e] = geometry::cubicNewton(static_cast<float>(p[0]), static_cast<float>(p[pitch]),
                                 static_cast<float>(p[2 * pitch]), static_cast<float>(p[3 * pitch]), c);
  }
}
// Cubic down the columns of four row buffers.
template <class T>
inline void cubVScalar(const float* const* rows, const float* k, int n, T* d, bool keepAlpha,
                       bool /*stream*/ = false) {
  const geometry::CubicCoeffs<float> c{k[0], k[1], k[2]};
  const float *r0 = rows[0], *r1 = rows[1], *r2 = rows[2], *r3 = rows[3];
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    d[e] = roundStore<T>(geometry::cubicNewton(r0[e], r1[e], r2[e], r3[e], c));
  }
}

// Lanczos along a row (per pixel: six clamped taps and weights; ch interleaved channels).
template <class T>
inline void lanHScalar(const T* s, const int32_t* off, const float* w, int count, int ch,
                       float* r) {
  for (int i = 0; i < count; ++i) {
    const int32_t* o = off + 6 * i;
    const float* wi = w + 6 * i;
    for (int c = 0; c < ch; ++c) {
      float v = 0;
      for (int k = 0; k < 6; ++k) v += wi[k] * static_cast<float>(s[o[k] + c]);
      r[i * ch + c] = v;
    }
  }
}
template <class T>
inline void lanVScalar(const float* const* rows, const float* w, int n, T* d, bool keepAlpha) {
  for (int e = 0; e < n; ++e) {
    if (keepAlpha && (e & 3) == 3) continue;
    float v = 0;
    for (int k = 0; k < 6; ++k) v += w[k] * rows[k][e];
    d[e] = roundStore<T>(v);
  }
}

// Super-sampling along a row: the weighted sum of the pixels each destination pixel covers.
template <class T>
inline void supHScalar(const T* s, const Taps& t, int count, int ch, float* r) {
  for (int i = 0; i < count; ++i) {
    const float* w = t.wf + static_cast<std::ptrdiff_t>(i) * t.maxTaps;
    const T* p = s + t.off[i];
    for (int c = 0; c < ch; ++c) {
      float v = 0;
      for (int k = 0; k < t.cnt[i]; ++k) v += w[k] * static_cast<float>(p[k * ch + c]);
      r[i * ch + c] = v;
    }
  }
}

// Super-sampling by exactly one half with every 2x2 block inside the source: the general
// kernel's arithmetic for weights of 1/2 (integers: (a + b + c + d + 2) >> 2, which is what
// trunc(v + 0.5000001) gives for the exact quarter sums; floats: the same products and sums).
inline bool halves(const Axis& a) {
  return a.step == 2.0 && a.start == std::floor(a.start) && a.start >= -a.origin &&
         a.start + 2.0 * a.count <= a.extent - a.origin;
}
template <class T, int kCh, int kUse>
inline void half2Scalar(const T* r0, const T* r1, int count, T* d) {
  for (int i = 0; i < count; ++i)
    for (int c = 0; c < kUse; ++c) {
      const std::ptrdiff_t a = elemsOf(2 * i, kCh) + c, b = a + kCh;
      if constexpr (std::is_floating_point_v<T>) {
        float h0 = 0.0f, h1 = 0.0f;
        h0 += 0.5f * r0[a];
        h0 += 0.5f * r0[b];
        h1 += 0.5f * r1[a];
        h1 += 0.5f * r1[b];
        d[elemsOf(i, kCh) + c] = h0 * 0.5f + 0.5f * h1;
      } else {
        d[elemsOf(i, kCh) + c] = static_cast<T>((r0[a] + r0[b] + r1[a] + r1[b] + 2) >> 2);
      }
    }
}

}  // namespace resize
}  // namespace lumi
