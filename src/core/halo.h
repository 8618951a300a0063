// Source rows of neighbourhood operations (filters, morphology, correlation). Destination row y
// reads source rows y - top .. y + bottom and, in each, columns x - left .. x + right; the caller
// supplies the pixels around the ROI, the library never invents them.
//
// Out of place, rows are read where they stand. In place, a band of rows [y0, y1) overwrites
// source rows that it and the neighbouring bands still read, so it works from copies kept in its
// slice of the scratch region (forRowsWithScratch with a prepare step):
//   - prepare(): before the team's second barrier, the `top` rows just above the band and the
//     `bottom` rows just below it (which the other bands will overwrite) are copied;
//   - keep(y): before destination row y is written, source row y goes into a ring of top + 1
//     rows, so rows y - top .. y stay readable after they are overwritten.
// row(y) then gives column 0 of source row y wherever its intact copy is.
#pragma once

#include "core/frame.h"

namespace lumi {

template <class T>
class HaloRows {
 public:
  HaloRows(ImageView<const T> src, int top, int bottom, int left, int right, bool inPlace)
      : src_(src), top_(top), bottom_(bottom), left_(left), inPlace_(inPlace),
        rowElems_(elemsOf(left + src.size.width + right, src.channels)) {}

  // Scratch bytes a band needs (none out of place).
  std::size_t scratchBytes() const {
    if (!inPlace_) return 0;
    return static_cast<std::size_t>(2 * top_ + 1 + bottom_) * static_cast<std::size_t>(rowElems_) *
           sizeof(T);
  }

  // The band [y0, y1) this object serves and its slice of the scratch region.
  void bind(int y0, int y1, Lum8u* scratch) {
    y0_ = y0;
    y1_ = y1;
    kept_ = y0 - 1;
    ring_ = reinterpret_cast<T*>(scratch);
    above_ = ring_ + static_cast<std::ptrdiff_t>(top_ + 1) * rowElems_;
    below_ = above_ + static_cast<std::ptrdiff_t>(top_) * rowElems_;
  }

  void prepare() {
    if (!inPlace_) return;
    for (int i = 0; i < top_; ++i) copyRow(y0_ - top_ + i, slot(above_, i));
    for (int i = 0; i < bottom_; ++i) copyRow(y1_ + i, slot(below_, i));
  }

  void keep(int y) {
    if (!inPlace_) return;
    copyRow(y, slot(ring_, y % (top_ + 1)));
    kept_ = y;
  }

  const T* row(int y) const {
    const std::ptrdiff_t left = elemsOf(left_, src_.channels);
    if (!inPlace_ || (y > kept_ && y < y1_)) return src_.row(y);
    if (y >= y1_) return slot(below_, y - y1_) + left;
    if (y < y0_) return slot(above_, y - (y0_ - top_)) + left;
    return slot(ring_, y % (top_ + 1)) + left;
  }

 private:
  T* slot(T* base, int i) const { return base + static_cast<std::ptrdiff_t>(i) * rowElems_; }
  void copyRow(int y, T* to) const {
    std::memcpy(to, src_.row(y) - elemsOf(left_, src_.channels),
                static_cast<std::size_t>(rowElems_) * sizeof(T));
  }

  ImageView<const T> src_;
  int top_, bottom_, left_;
  bool inPlace_;
  std::ptrdiff_t rowElems_;
  int y0_ = 0, y1_ = 0, kept_ = -1;
  T *ring_ = nullptr, *above_ = nullptr, *below_ = nullptr;
};

}  // namespace lumi
