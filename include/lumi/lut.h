/* Lumi: lookup tables and histograms. */
#ifndef LUMI_LUT_H
#define LUMI_LUT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
