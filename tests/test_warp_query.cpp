// Geometric queries: corner quadrangles, bounds and coefficients of the affine, rotation,
// shear, perspective and bilinear maps, with OpenCV's solvers as an oracle where they agree.
#include <cmath>

#include "lumitest.h"
#include "lumi/warp_query.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/imgproc.hpp>
#endif

namespace {

const LumiRect kRoi{3, 5, 11, 7};  // corners (3, 5) .. (13, 11)
const double kCorners[4][2] = {{3, 5}, {13, 5}, {13, 11}, {3, 11}};

void applyPerspective(const double c[3][3], double x, double y, double* u, double* v) {
  const double d = c[2][0] * x + c[2][1] * y + c[2][2];
  *u = (c[0][0] * x + c[0][1] * y + c[0][2]) / d;
  *v = (c[1][0] * x + c[1][1] * y + c[1][2]) / d;
}

TEST(WarpQuery, PointersBeforeRoi) {
  double q[4][2], b[2][2], a[2][3] = {{1, 0, 0}, {0, 1, 0}}, p[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  double bl[2][4] = {{0, 1, 0, 0}, {0, 0, 1, 0}}, xs, ys;
  const LumiRect bad{-1, 0, 0, 0};
  EXPECT_EQ(lumiGetAffineQuad(bad, nullptr, a), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetAffineQuad(bad, q, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetAffineBound(bad, nullptr, a), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetAffineTransform(bad, nullptr, a), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetAffineTransform(bad, q, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetRotateShift(1, 2, 30, nullptr, &ys), lumStatusNullPtrErr);
  EXPECT_EQ(lumiAddRotateShift(1, 2, 30, &xs, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetRotateQuad(bad, nullptr, 30, 0, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetRotateBound(bad, nullptr, 30, 0, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetShearQuad(bad, nullptr, 1, 0, 0, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetShearBound(bad, nullptr, 1, 0, 0, 0), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetPerspectiveQuad(bad, q, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetPerspectiveBound(bad, nullptr, p), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetPerspectiveTransform(bad, q, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetBilinearQuad(bad, nullptr, bl), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetBilinearBound(bad, b, nullptr), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetBilinearTransform(bad, nullptr, bl), lumStatusNullPtrErr);
  const LumiRect bads[4] = {{-1, 0, 4, 4}, {0, -1, 4, 4}, {0, 0, 0, 4}, {0, 0, 4, 0}};
  for (const LumiRect& r : bads) {
    EXPECT_EQ(lumiGetAffineQuad(r, q, a), lumStatusSizeErr);
    EXPECT_EQ(lumiGetAffineBound(r, b, a), lumStatusSizeErr);
    EXPECT_EQ(lumiGetAffineTransform(r, kCorners, a), lumStatusSizeErr);
    EXPECT_EQ(lumiGetRotateQuad(r, q, 30, 0, 0), lumStatusSizeErr);
    EXPECT_EQ(lumiGetRotateBound(r, b, 30, 0, 0), lumStatusSizeErr);
    EXPECT_EQ(lumiGetShearQuad(r, q, 1, 0, 0, 0), lumStatusSizeErr);
    EXPECT_EQ(lumiGetShearBound(r, b, 1, 0, 0, 0), lumStatusSizeErr);
    EXPECT_EQ(lumiGetPerspectiveQuad(r, q, p), lumStatusSizeErr);
    EXPECT_EQ(lumiGetPerspectiveBound(r, b, p), lumStatusSizeErr);
    EXPECT_EQ(lumiGetPerspectiveTransform(r, kCorners, p), lumStatusSizeErr);
    EXPECT_EQ(lumiGetBilinearQuad(r, q, bl), lumStatusSizeErr);
    EXPECT_EQ(lumiGetBilinearBound(r, b, bl), lumStatusSizeErr);
    EXPECT_EQ(lumiGetBilinearTransform(r, kCorners, bl), lumStatusSizeErr);
  }
}

TEST(WarpQuery, AffineQuadBoundAndTransformRoundTrip) {
  const double c[2][3] = {{0.8, -0.35, 12.5}, {0.4, 1.1, -3.25}};
  double q[4][2], b[2][2], back[2][3];
  ASSERT_EQ(lumiGetAffineQuad(kRoi, q, c), lumStatusOk);
  for (int i = 0; i < 4; ++i) {
    const double x = kCorners[i][0], y = kCorners[i][1];
    EXPECT_DOUBLE_EQ(q[i][0], 0.8 * x - 0.35 * y + 12.5);
    EXPECT_DOUBLE_EQ(q[i][1], 0.4 * x + 1.1 * y - 3.25);
  }
  ASSERT_EQ(lumiGetAffineBound(kRoi, b, c), lumStatusOk);
  EXPECT_DOUBLE_EQ(b[0][0], std::fmin(std::fmin(q[0][0], q[1][0]), std::fmin(q[2][0], q[3][0])));
  EXPECT_DOUBLE_EQ(b[1][1], std::fmax(std::fmax(q[0][1], q[1][1]), std::fmax(q[2][1], q[3][1])));
  ASSERT_EQ(lumiGetAffineTransform(kRoi, q, back), lumStatusOk);
  for (int i = 0; i < 2; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_NEAR(back[i][j], c[i][j], 1e-12);
#ifdef LUMI_HAVE_OPENCV
  const cv::Point2f src[3] = {{3, 5}, {13, 5}, {13, 11}};
  const cv::Point2f dst[3] = {{float(q[0][0]), float(q[0][1])}, {float(q[1][0]), float(q[1][1])},
                              {float(q[2][0]), float(q[2][1])}};
  const cv::Mat m = cv::getAffineTransform(src, dst);
  for (int i = 0; i < 2; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_NEAR(back[i][j], m.at<double>(i, j), 1e-4);
#endif
}

TEST(WarpQuery, AffineDegenerateAndChangedQuads) {
  double q[4][2], c[2][3];
  const double flat[2][3] = {{0, 0, 4}, {1, 2, 0}};  // c00 = c01 = 0: every corner on x = 4
  q[0][0] = -99;
  EXPECT_EQ(lumiGetAffineQuad(kRoi, q, flat), lumStatusCoeffErr);
  EXPECT_EQ(q[0][0], 4.0);  // still filled
  double b[2][2];
  EXPECT_EQ(lumiGetAffineBound(kRoi, b, flat), lumStatusCoeffErr);
  EXPECT_EQ(b[0][0], 4.0);
  EXPECT_EQ(b[1][0], 4.0);
  // A trapezoid: coefficients from three corners and the warning.
  const double trap[4][2] = {{0, 0}, {10, 0}, {8, 6}, {2, 6}};
  EXPECT_EQ(lumiGetAffineTransform(kRoi, trap, c), lumStatusAffineQuadChangedWarn);
  EXPECT_NEAR(c[0][0] * 13 + c[0][1] * 11 + c[0][2], 8, 1e-12);
  EXPECT_NEAR(c[1][0] * 3 + c[1][1] * 5 + c[1][2], 0, 1e-12);
  // Crossed corners are a quad error, checked before a one-pixel ROI.
  const double bow[4][2] = {{0, 0}, {10, 0}, {0, 6}, {10, 6}};
  EXPECT_EQ(lumiGetAffineTransform(kRoi, bow, c), lumStatusQuadErr);
  EXPECT_EQ(lumiGetAffineTransform(LumiRect{0, 0, 1, 5}, bow, c), lumStatusQuadErr);
  EXPECT_EQ(lumiGetAffineTransform(LumiRect{0, 0, 1, 5}, kCorners, c), lumStatusRectErr);
  EXPECT_EQ(lumiGetAffineTransform(LumiRect{0, 0, 5, 1}, kCorners, c), lumStatusRectErr);
  // A one-pixel ROI maps to a segment.
  EXPECT_EQ(lumiGetAffineQuad(LumiRect{2, 2, 1, 9}, q, flat), lumStatusCoeffErr);
}

TEST(WarpQuery, RotateShiftExactAndGeneral) {
  struct Case { double angle, xs, ys; };
  const double xc = 7.25, yc = -3.5;
  const Case exact[] = {{90, xc - yc, yc + xc}, {-270, xc - yc, yc + xc}, {450, xc - yc, yc + xc},
                        {180, 2 * xc, 2 * yc}, {-180, 2 * xc, 2 * yc}, {270, xc + yc, yc - xc},
                        {-90, xc + yc, yc - xc}, {0, 0, 0}, {720, 0, 0}, {-360, 0, 0}};
  for (const Case& k : exact) {
    double xs = -1, ys = -1;
    ASSERT_EQ(lumiGetRotateShift(xc, yc, k.angle, &xs, &ys), lumStatusOk);
    EXPECT_EQ(xs, k.xs) << k.angle;
    EXPECT_EQ(ys, k.ys) << k.angle;
  }
  // Any angle: the rotation with these shifts keeps the centre in place.
  for (double angle : {13.0, -47.5, 200.0, 1000.0}) {
    double xs, ys, q[4][2];
    ASSERT_EQ(lumiGetRotateShift(10, 20, angle, &xs, &ys), lumStatusOk);
    ASSERT_EQ(lumiGetRotateQuad(LumiRect{10, 20, 5, 5}, q, angle, xs, ys), lumStatusOk);
    EXPECT_NEAR(q[0][0], 10, 1e-12);
    EXPECT_NEAR(q[0][1], 20, 1e-12);
    double ax = 1.5, ay = -2;
    ASSERT_EQ(lumiAddRotateShift(10, 20, angle, &ax, &ay), lumStatusOk);
    EXPECT_EQ(ax, 1.5 + xs);
    EXPECT_EQ(ay, -2 + ys);
  }
}

TEST(WarpQuery, RotateAndShearQuads) {
  double q[4][2], b[2][2];
  // 90 degrees: (x, y) -> (y, -x) exactly.
  ASSERT_EQ(lumiGetRotateQuad(kRoi, q, 90, 1, 2), lumStatusOk);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(q[i][0], kCorners[i][1] + 1);
    EXPECT_EQ(q[i][1], -kCorners[i][0] + 2);
  }
  const double a = 30 * 3.14159265358979323846 / 180;
  ASSERT_EQ(lumiGetRotateQuad(kRoi, q, 30, 0, 0), lumStatusOk);
  EXPECT_NEAR(q[2][0], std::cos(a) * 13 + std::sin(a) * 11, 1e-12);
  EXPECT_NEAR(q[2][1], -std::sin(a) * 13 + std::cos(a) * 11, 1e-12);
  ASSERT_EQ(lumiGetRotateBound(kRoi, b, 180, 0, 0), lumStatusOk);
  EXPECT_EQ(b[0][0], -13);
  EXPECT_EQ(b[0][1], -11);
  EXPECT_EQ(b[1][0], -3);
  EXPECT_EQ(b[1][1], -5);
  ASSERT_EQ(lumiGetShearQuad(kRoi, q, 0.5, 0.25, 1, -1), lumStatusOk);
  EXPECT_EQ(q[3][0], 3 + 0.5 * 11 + 1);
  EXPECT_EQ(q[3][1], 0.25 * 3 + 11 - 1);
  ASSERT_EQ(lumiGetShearBound(kRoi, b, 0.5, 0.25, 1, -1), lumStatusOk);
  EXPECT_EQ(b[0][0], 3 + 0.5 * 5 + 1);
  EXPECT_EQ(b[1][1], 0.25 * 13 + 11 - 1);
  // xShear * yShear = 1 folds the plane onto a line.
  EXPECT_EQ(lumiGetShearQuad(kRoi, q, 2, 0.5, 0, 0), lumStatusCoeffErr);
  EXPECT_EQ(lumiGetShearBound(kRoi, b, 2, 0.5, 0, 0), lumStatusCoeffErr);
}

TEST(WarpQuery, PerspectiveRoundTrip) {
  const double quads[2][4][2] = {{{1, 2}, {40, -3}, {35, 30}, {-4, 22}},
                                 {{0, 0}, {10, 0}, {10, 6}, {0, 6}}};
  for (const auto& quad : quads) {
    double c[3][3], q[4][2], b[2][2];
    ASSERT_EQ(lumiGetPerspectiveTransform(kRoi, quad, c), lumStatusOk);
    EXPECT_EQ(c[2][2], 1.0);
    for (int i = 0; i < 4; ++i) {
      double u, v;
      applyPerspective(c, kCorners[i][0], kCorners[i][1], &u, &v);
      EXPECT_NEAR(u, quad[i][0], 1e-9);
      EXPECT_NEAR(v, quad[i][1], 1e-9);
    }
    ASSERT_EQ(lumiGetPerspectiveQuad(kRoi, q, c), lumStatusOk);
    EXPECT_NEAR(q[2][0], quad[2][0], 1e-9);
    ASSERT_EQ(lumiGetPerspectiveBound(kRoi, b, c), lumStatusOk);
    EXPECT_NEAR(b[0][0], std::fmin(std::fmin(q[0][0], q[1][0]), std::fmin(q[2][0], q[3][0])), 0);
#ifdef LUMI_HAVE_OPENCV
    cv::Point2f s[4], d[4];
    for (int i = 0; i < 4; ++i) {
      s[i] = cv::Point2f(float(kCorners[i][0]), float(kCorners[i][1]));
      d[i] = cv::Point2f(float(quad[i][0]), float(quad[i][1]));
    }
    const cv::Mat m = cv::getPerspectiveTransform(s, d);
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 3; ++j) EXPECT_NEAR(c[i][j], m.at<double>(i, j), 1e-6 * (1 + std::fabs(c[i][j])));
#endif
  }
}

TEST(WarpQuery, PerspectiveFailures) {
  double q[4][2], c[3][3], b[2][2];
  const double zero22[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 0}};  // corner (0, 0) at infinity
  EXPECT_EQ(lumiGetPerspectiveQuad(LumiRect{0, 0, 4, 4}, q, zero22), lumStatusCoeffErr);
  EXPECT_EQ(lumiGetPerspectiveBound(LumiRect{0, 0, 4, 4}, b, zero22), lumStatusCoeffErr);
  const double bow[4][2] = {{0, 0}, {10, 0}, {0, 6}, {10, 6}};
  EXPECT_EQ(lumiGetPerspectiveTransform(kRoi, bow, c), lumStatusQuadErr);
  const double dented[4][2] = {{0, 0}, {10, 0}, {3, 3}, {0, 10}};  // concave at corner 2
  EXPECT_EQ(lumiGetPerspectiveTransform(kRoi, dented, c), lumStatusQuadErr);
  EXPECT_EQ(lumiGetPerspectiveTransform(LumiRect{0, 0, 4, 1}, kCorners, c), lumStatusRectErr);
}

TEST(WarpQuery, BilinearRoundTrip) {
  const double quad[4][2] = {{1, 2}, {40, -3}, {35, 30}, {-4, 22}};
  double c[2][4], q[4][2], b[2][2];
  ASSERT_EQ(lumiGetBilinearTransform(kRoi, quad, c), lumStatusOk);
  ASSERT_EQ(lumiGetBilinearQuad(kRoi, q, c), lumStatusOk);
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(q[i][0], quad[i][0], 1e-12);
    EXPECT_NEAR(q[i][1], quad[i][1], 1e-12);
  }
  // The centre of the ROI goes to the mean of the corners.
  EXPECT_NEAR(c[0][0] * 8 * 8 + c[0][1] * 8 + c[0][2] * 8 + c[0][3], (1 + 40 + 35 - 4) / 4.0, 1e-12);
  ASSERT_EQ(lumiGetBilinearBound(kRoi, b, c), lumStatusOk);
  EXPECT_NEAR(b[0][1], -3, 1e-12);
  EXPECT_NEAR(b[1][0], 40, 1e-12);
  EXPECT_EQ(lumiGetBilinearTransform(LumiRect{0, 0, 1, 4}, quad, c), lumStatusRectErr);
  const double flat[2][4] = {{0, 1, 0, 0}, {0, 1, 0, 0}};  // y' = x': a segment
  EXPECT_EQ(lumiGetBilinearQuad(kRoi, q, flat), lumStatusCoeffErr);
}

}  // namespace
