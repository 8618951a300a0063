/* Lumi: element types, geometry records, status codes and enumerations. */
#ifndef LUMI_TYPES_H
#define LUMI_TYPES_H

#include <stdint.h>

#if defined(LUMI_BUILDING_LIBRARY)
#define LUMI_API __attribute__((visibility("default")))
#else
#define LUMI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef uint8_t Lum8u;
typedef int8_t Lum8s;
typedef uint16_t Lum16u;
typedef int16_t Lum16s;
typedef uint32_t Lum32u;
typedef int32_t Lum32s;
typedef float Lum32f;
typedef int64_t Lum64s;
typedef double Lum64f;

typedef struct { Lum16s re; Lum16s im; } Lum16sc;
typedef struct { Lum32s re; Lum32s im; } Lum32sc;
typedef struct { Lum32f re; Lum32f im; } Lum32fc;
typedef struct { Lum64f re; Lum64f im; } Lum64fc;

typedef struct { int width; int height; } LumiSize;
typedef struct { int x; int y; } LumiPoint;
typedef struct { int x; int y; int width; int height; } LumiRect;

/* 0 success, negative error (nothing written), positive warning (result written). */
typedef int LumStatus;

enum {
  lumStatusOk = 0,
  lumStatusOutOfMemoryErr = -4,
  lumStatusBadArgErr = -5,
  lumStatusSizeErr = -6,
  lumStatusInvertedRangeErr = -7,
  lumStatusNullPtrErr = -8,
  lumStatusMemAllocErr = -9,
  lumStatusDivisorZeroErr = -10,
  lumStatusBitCountErr = -11,
  lumStatusScaleRangeErr = -13,
  lumStatusStepErr = -14,
  lumStatusFftOrderErr = -15,
  lumStatusFftFlagErr = -16,
  lumStatusContextMismatchErr = -17,
  lumStatusThresholdOrderErr = -18,
  lumStatusMomentZeroErr = -20,
  lumStatusFlipAxisErr = -21,
  lumStatusInterpolationErr = -22,
  lumStatusResizeFactorErr = -23,
  lumStatusMaskSizeErr = -33,
  lumStatusAnchorErr = -34,
  lumStatusEpsilonErr = -36,
  lumStatusStepBelowRowErr = -37,
  lumStatusChannelIndexErr = -47,
  lumStatusFilterDivisorErr = -51,
  lumStatusChannelCountErr = -53,
  lumStatusCoeffErr = -56,
  lumStatusRectErr = -57,
  lumStatusQuadErr = -58,
  lumStatusZeroMaskErr = -59,
  lumStatusChannelOrderErr = -60,
  lumStatusLutLevelsErr = -106,
  lumStatusHistLevelsErr = -107,
  lumStatusStepAlignErr = -108,
  lumStatusNoiseRangeErr = -125,
  lumStatusResizeDegenerateErr = -201,
  lumStatusUnsupportedModeErr = -9999,
  lumStatusDomainWarn = 3,
  lumStatusDivByZeroWarn = 6,
  lumStatusAffineQuadChangedWarn = 28,
  lumStatusNoIntersectionWarn = 29,
  lumStatusQuadOutsideWarn = 30
};

typedef int LumCompareOp;
enum { lumCmpLess = 0, lumCmpLessEq = 1, lumCmpEq = 2, lumCmpGreaterEq = 3, lumCmpGreater = 4 };

typedef int LumAccuracyHint;
enum { lumHintNone = 0, lumHintFast = 1, lumHintAccurate = 2 };

enum {
  lumMskSize1x3 = 13, lumMskSize1x5 = 15, lumMskSize3x1 = 31, lumMskSize5x1 = 51,
  lumMskSize3x3 = 33, lumMskSize5x5 = 55
};

enum {
  lumInterpNearest = 1, lumInterpLinear = 2, lumInterpCubic = 4, lumInterpSuper = 8,
  lumInterpLanczos = 16
};
#define lumSmoothEdge ((int)0x80000000u)

enum { lumFftDivFwdByN = 1, lumFftDivInvByN = 2, lumFftDivBySqrtN = 4, lumFftNoDivByAny = 8 };

/* Rounding selector of the float-to-integer conversions: 1 rounds to nearest (ties to even),
   any other value truncates toward zero. */
enum { lumRndZero = 0, lumRndNear = 1 };

typedef struct {
  int versionMajor;
  int versionMinor;
  int buildMajor;
  int buildNumber;
  char cpuCode[4];
  const char* libName;
  const char* versionText;
  const char* buildDateText;
} LumLibraryVersion;

#ifdef __cplusplus
}
#endif
#endif
