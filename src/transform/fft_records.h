// The 2-D FFT/DFT specification record and the row/column passes every transform member runs.
//
// A transform runs the 1-D engines of src/signal/fft.h over the rows, then over the columns
// (the inverse real transform the other way round). Columns are never transformed with a
// stride: groups of up to kGroup complex columns are gathered row by row into the work buffer,
// side by side, transformed there as one batch and written back in the sweep that gathers the
// next group.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/frame.h"
#include "lumi/fft.h"
#include "signal/fft.h"

namespace lumi {
namespace fft2d {

// Record kinds: every use checks the tag of the record it is given.
enum Tag : int32_t {
  kTagFftC = 25,     // complex FFT
  kTagFftR = 26,     // real FFT
  kTagDftC = 27,     // complex DFT
  kTagDftR = 28,     // real DFT
  kTagFftR32s = 29,  // real FFT of the integer members
  kTagDftR32s = 30,  // real DFT of the integer members
};

constexpr int kGroup = 32;  // complex columns per batch (four 64-byte lines of a C1 row)

// The work buffer, carved from one block at 64-byte boundaries.
struct Scratch {
  Lum32fc* cols[2];  // two blocks of kGroup complex columns side by side (H x kGroup each)
  float* real;       // columns 0 and W-1 of the packed layout (2 x H)
  float* row;        // one row of one channel (W floats)
  float* plane;      // integer members: one channel of the image in float (W x H)
  void* work;        // the engines' work area
};

struct Record {
  int32_t tag;
  int32_t sizeX;    // FFT: orderX; DFT: width
  int32_t sizeY;    // FFT: orderY; DFT: height
  int32_t hint;     // kept, not used
  int32_t bufSize;  // work-buffer bytes a transform needs (63 bytes of alignment slack included)
  int32_t flag;
  int32_t width, height;
  signal::ComplexFft* colC;  // columns of the complex and real records
  signal::ComplexFft* rowC;  // rows of the complex record (null when rows and columns match)
  signal::RealFft* rowR;     // rows of the real records
  signal::RealFft* colR;     // columns 0 and W-1 of the real records (null when they match)
  std::size_t colsOff, realOff, rowOff, planeOff, workOff;  // offsets in the aligned buffer

  const signal::ComplexFft& rowsComplex() const { return rowC ? *rowC : *colC; }
  const signal::RealFft& colsReal() const { return colR ? *colR : *rowR; }
  bool isReal() const { return rowR != nullptr; }
  Scratch carve(Lum8u* buffer) const {
    auto base = reinterpret_cast<std::uintptr_t>(buffer);
    base = (base + 63) & ~static_cast<std::uintptr_t>(63);
    Lum8u* b = reinterpret_cast<Lum8u*>(base);
    return Scratch{{reinterpret_cast<Lum32fc*>(b), reinterpret_cast<Lum32fc*>(b + colsOff)},
                   reinterpret_cast<float*>(b + realOff),
                   reinterpret_cast<float*>(b + rowOff),
                   reinterpret_cast<float*>(b + planeOff),
                   b + workOff};
  }
  // The normalisation of the forward and the inverse transform.
  float forwardScale() const;
  float inverseScale() const;
};

// Builds a record (the caller has checked the pointer, the sizes and the flag).
LumStatus createRecord(Record** out, int tag, int width, int height, int sizeX, int sizeY, int flag,
                       int hint);
void destroyRecord(Record* r);

// Real forward of one channel: src (element type S, channels sch apart) to the packed
// spectrum in dst (channels dch apart); src == dst allowed.
template <class S>
void forwardReal(const Record& R, const S* src, int srcStep, int sch, float* dst, int dstStep,
                 int dch, const Scratch& s);
// Real inverse of one channel from the packed spectrum; src == dst allowed.
void inverseReal(const Record& R, const float* src, int srcStep, int sch, float* dst, int dstStep,
                 int dch, const Scratch& s);
// Complex forward (inverse when `inv`) of a C1 image; src == dst allowed.
void transformComplex(const Record& R, const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                      bool inv, const Scratch& s);

// Runs body(scratch) on the caller's buffer, or on one allocated for the call (freed on every
// exit; lumStatusMemAllocErr when it cannot be had).
template <class Body>
LumStatus withScratch(const Record& R, Lum8u* buffer, Body&& body) {
  Lum8u* own = nullptr;
  if (!buffer) {
    own = lumsMalloc_8u(R.bufSize);
    if (!own) return lumStatusMemAllocErr;
    buffer = own;
  }
  body(R.carve(buffer));
  lumsFree(own);
  return lumStatusOk;
}

}  // namespace fft2d
}  // namespace lumi

// The opaque records of the public header: one record type under two names.
struct LumiFFTSpec {
  lumi::fft2d::Record rec;
};
struct LumiDFTSpec {
  lumi::fft2d::Record rec;
};
