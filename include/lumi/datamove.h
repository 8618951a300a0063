/* Lumi: copy, set, channel swap, duplicate and border extension. */
#ifndef LUMI_DATAMOVE_H
#define LUMI_DATAMOVE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
