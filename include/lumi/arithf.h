/* Lumi: floating-point and complex arithmetic. */
#ifndef LUMI_ARITHF_H
#define LUMI_ARITHF_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
