// Validation and row walking shared by the conversions and the data moves of src/convert/.
// candidate for src/core: coalesceBoth (coalesceRows for images of different pixel sizes) and
// checkPointersSize (the first two checks of nearly every family).
#pragma once

#include "core/frame.h"

namespace lumi {

// The checks nearly every call makes first, in this order: pointers, then the ROI size.
template <class... P>
inline LumStatus checkPointersSize(LumiSize roi, const P*... p) {
  if (anyNull(p...)) return lumStatusNullPtrErr;
  return badSize(roi) ? lumStatusSizeErr : lumStatusOk;
}

// coalesceRows for two groups of images whose pixels differ in size (a source and a
// destination of other element types or layouts, or images and a byte mask): a and b are what
// coalesceRows gives for each group, and the ROI is one long row only when both are.
inline LumiSize coalesceBoth(LumiSize roi, LumiSize a, LumiSize b) {
  return a.height == b.height ? a : roi;
}

}  // namespace lumi
