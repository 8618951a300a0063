/* Lumi: thresholds. */
#ifndef LUMI_THRESHOLD_H
#define LUMI_THRESHOLD_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
