/* Lumi: norms, sums, means, extrema and moments. */
#ifndef LUMI_STATS_H
#define LUMI_STATS_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
