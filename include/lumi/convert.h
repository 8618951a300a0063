/* Lumi: type conversion and scaling. */
#ifndef LUMI_CONVERT_H
#define LUMI_CONVERT_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
