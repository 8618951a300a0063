/* Lumi: image-processing primitives with a C ABI.
   The one header to include; it pulls in every subsystem's declarations. */
#ifndef LUMI_H
#define LUMI_H

#include "lumi/types.h"
#include "lumi/core.h"
#include "lumi/arith.h"
#include "lumi/arithf.h"
#include "lumi/mathfn.h"
#include "lumi/convert.h"
#include "lumi/datamove.h"
#include "lumi/threshold.h"
#include "lumi/compare.h"
#include "lumi/lut.h"
#include "lumi/stats.h"
#include "lumi/generate.h"
#include "lumi/filter.h"
#include "lumi/filter_fixed.h"
#include "lumi/filter_linear.h"
#include "lumi/filter_rank.h"
#include "lumi/morphology.h"
#include "lumi/filter_wiener.h"
#include "lumi/correlation.h"
#include "lumi/resize.h"
#include "lumi/warp_query.h"
#include "lumi/warp.h"
#include "lumi/remap.h"
#include "lumi/fft.h"
#include "lumi/dct.h"
#include "lumi/wavelet.h"

#endif
