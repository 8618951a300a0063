/* Lumi: integer arithmetic with scale factors. */
#ifndef LUMI_ARITH_H
#define LUMI_ARITH_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
