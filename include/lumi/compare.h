/* Lumi: compare, logic and shifts. */
#ifndef LUMI_COMPARE_H
#define LUMI_COMPARE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
