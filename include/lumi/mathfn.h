/* Lumi: pointwise maths. */
#ifndef LUMI_MATHFN_H
#define LUMI_MATHFN_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
