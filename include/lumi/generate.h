/* Lumi: test images and noise. */
#ifndef LUMI_GENERATE_H
#define LUMI_GENERATE_H
#include "lumi/types.h"
#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif
#endif
