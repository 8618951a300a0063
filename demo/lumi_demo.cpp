// lumi-demo: runs the library on a picture and writes every step as a PNG into demo-out/.
//
//   lumi-demo              makes its own input: a Jaehne test pattern and a ramp
//   lumi-demo photo.png    uses the given picture (grey or RGB) instead
//
// Each step prints one line with its time.
#include <sys/stat.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "lumi.h"
#include "png_io.h"

namespace {

const char* kOutDir = "demo-out";

// An 8-bit image owned by the demo, allocated with the library's own allocator.
struct Image {
  Lum8u* data = nullptr;
  int step = 0, width = 0, height = 0, channels = 1;
  Image() = default;
  Image(int w, int h, int ch) : width(w), height(h), channels(ch) {
    data = ch == 3 ? lumiMalloc_8u_C3(w, h, &step) : lumiMalloc_8u_C1(w, h, &step);
  }
  Image(Image&& o) noexcept { *this = std::move(o); }
  Image& operator=(Image&& o) noexcept {
    std::swap(data, o.data);
    step = o.step, width = o.width, height = o.height, channels = o.channels;
    return *this;
  }
  ~Image() { lumiFree(data); }
  LumiSize roi() const { return LumiSize{width, height}; }
};

int g_failures = 0;

// Times one step, reports its status, and writes its result when there is one.
void step(const std::string& name, const std::function<LumStatus()>& run, const Image* out = nullptr,
          const std::string& note = "") {
  auto t0 = std::chrono::steady_clock::now();
  LumStatus st = run();
  double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0).count();
  std::string file;
  if (out && st >= 0) {
    file = std::string(kOutDir) + "/" + name + ".png";
    if (!writePng(file, out->data, out->step, out->width, out->height, out->channels)) {
      std::printf("%-22s could not write %s\n", name.c_str(), file.c_str());
      ++g_failures;
      return;
    }
  }
  if (st < 0) ++g_failures;
  std::printf("%-22s %8.3f ms  status %-3d %s%s\n", name.c_str(), ms, st,
              file.empty() ? "" : file.c_str(), note.empty() ? "" : ("  " + note).c_str());
}

}  // namespace

int main(int argc, char** argv) {
  ::mkdir(kOutDir, 0755);
  const LumLibraryVersion* v = lumiGetLibVersion();
  std::printf("%s %s, %d threads\n", v->libName, v->versionText, threads_omp_of_n_lum);

  Image clean;
  if (argc > 1) {
    PngImage png;
    std::string err;
    if (!readPng(argv[1], png, err)) {
      std::fprintf(stderr, "lumi-demo: cannot read %s: %s\n", argv[1], err.c_str());
      return 1;
    }
    clean = Image(png.width, png.height, png.channels);
    const int rowBytes = png.width * png.channels;
    step("input", [&] {
      return png.channels == 3
                 ? lumiCopy_8u_C3R(png.pixels.data(), rowBytes, clean.data, clean.step, clean.roi())
                 : lumiCopy_8u_C1R(png.pixels.data(), rowBytes, clean.data, clean.step, clean.roi());
    }, &clean, argv[1]);
  } else {
    clean = Image(640, 480, 1);
    step("jaehne", [&] { return lumiImageJaehne_8u_C1R(clean.data, clean.step, clean.roi()); },
         &clean, "640x480 test pattern");
    Image ramp(640, 480, 1);
    step("ramp", [&] {
      return lumiImageRamp_8u_C1R(ramp.data, ramp.step, ramp.roi(), 0.0f, 255.0f / 639.0f, 0);
    }, &ramp, "horizontal ramp 0..255");
  }
  const bool rgb = clean.channels == 3;
  const LumiSize roi = clean.roi();

  Image noisy(clean.width, clean.height, clean.channels);
  unsigned int seed = 2026;
  step("noisy", [&] {
    LumStatus st = rgb ? lumiCopy_8u_C3R(clean.data, clean.step, noisy.data, noisy.step, roi)
                       : lumiCopy_8u_C1R(clean.data, clean.step, noisy.data, noisy.step, roi);
    if (st) return st;
    return rgb ? lumiAddRandGauss_Direct_8u_C3IR(noisy.data, noisy.step, roi, 0, 12, &seed)
               : lumiAddRandGauss_Direct_8u_C1IR(noisy.data, noisy.step, roi, 0, 12, &seed);
  }, &noisy, "Gaussian noise, sigma 12");

  const int border = 32;
  Image bordered(clean.width + 2 * border, clean.height + 2 * border, clean.channels);
  step("bordered", [&] {
    return rgb ? lumiCopyReplicateBorder_8u_C3R(noisy.data, noisy.step, roi, bordered.data,
                                                bordered.step, bordered.roi(), border, border)
               : lumiCopyReplicateBorder_8u_C1R(noisy.data, noisy.step, roi, bordered.data,
                                                bordered.step, bordered.roi(), border, border);
  }, &bordered, "replicated 32-pixel border");

  // The analysis steps work on one grey channel (the green one of a colour picture).
  Image grey(clean.width, clean.height, 1), noisyGrey(clean.width, clean.height, 1);
  if (rgb) {
    step("grey", [&] {
      LumStatus st = lumiCopy_8u_C3C1R(clean.data + 1, clean.step, grey.data, grey.step, roi);
      return st ? st : lumiCopy_8u_C3C1R(noisy.data + 1, noisy.step, noisyGrey.data, noisyGrey.step, roi);
    }, &grey, "green channel");
  } else {
    lumiCopy_8u_C1R(clean.data, clean.step, grey.data, grey.step, roi);
    lumiCopy_8u_C1R(noisy.data, noisy.step, noisyGrey.data, noisyGrey.step, roi);
  }

  // Arithmetic: |noisy - clean| x 4 as a visible error map (saturating differences both
  // ways, then a sum with scale factor -2).
  Image up(grey.width, grey.height, 1), down(grey.width, grey.height, 1), err(grey.width, grey.height, 1);
  step("error-map", [&] {
    LumStatus st = lumiSub_8u_C1RSfs(grey.data, grey.step, noisyGrey.data, noisyGrey.step, up.data, up.step, roi, 0);
    if (!st) st = lumiSub_8u_C1RSfs(noisyGrey.data, noisyGrey.step, grey.data, grey.step, down.data, down.step, roi, 0);
    if (!st) st = lumiAdd_8u_C1RSfs(up.data, up.step, down.data, down.step, err.data, err.step, roi, -2);
    return st;
  }, &err, "|noisy - clean| x 4");

  // Floating point: the square root of the picture in 32f, scaled back to 8u for display.
  int fstep = 0;
  Lum32f* f = lumiMalloc_32f_C1(grey.width, grey.height, &fstep);
  Image sqrtImg(grey.width, grey.height, 1);
  step("sqrt-scaled", [&] {
    LumStatus st = lumiConvert_8u32f_C1R(grey.data, grey.step, f, fstep, roi);
    if (!st) st = lumiSqrt_32f_C1IR(f, fstep, roi);
    if (!st) st = lumiScale_32f8u_C1R(f, fstep, sqrtImg.data, sqrtImg.step, roi, 0.0f, 15.97f);
    return st;
  }, &sqrtImg, "8u -> 32f, sqrt, scaled 0..15.97 -> 0..255");
  lumiFree(f);

  Image mask(grey.width, grey.height, 1);
  step("threshold-mask", [&] {
    // below 128 -> 0, then everything above 127 (what is left) -> 255
    LumStatus st = lumiThreshold_LTVal_8u_C1R(noisyGrey.data, noisyGrey.step, mask.data, mask.step,
                                              roi, 128, 0);
    return st ? st : lumiThreshold_GTVal_8u_C1IR(mask.data, mask.step, roi, 127, 255);
  }, &mask, "noisy >= 128 -> 255, else 0");

  Image contrast(grey.width, grey.height, 1);
  step("contrast-lut", [&] {
    const Lum32s levels[4] = {0, 64, 192, 255}, values[4] = {0, 16, 240, 255};
    return lumiLUT_Linear_8u_C1R(grey.data, grey.step, contrast.data, contrast.step, roi, values,
                                 levels, 4);
  }, &contrast, "piecewise-linear S curve");

  // Neighbourhood filters read the pixels around the ROI: they work on a grey copy of the noisy
  // picture with a replicated border, starting at its inner corner.
  const int gb = 8;
  Image greyB(grey.width + 2 * gb, grey.height + 2 * gb, 1), maskB(grey.width + 2 * gb, grey.height + 2 * gb, 1);
  lumiCopyReplicateBorder_8u_C1R(noisyGrey.data, noisyGrey.step, roi, greyB.data, greyB.step, greyB.roi(), gb, gb);
  lumiCopyReplicateBorder_8u_C1R(mask.data, mask.step, roi, maskB.data, maskB.step, maskB.roi(), gb, gb);
  const Lum8u* inner = greyB.data + gb * greyB.step + gb;

  Image blurred(grey.width, grey.height, 1);
  step("box-blur", [&] {
    return lumiFilterBox_8u_C1R(inner, greyB.step, blurred.data, blurred.step, roi, LumiSize{7, 7},
                                LumiPoint{3, 3});
  }, &blurred, "7x7 box filter of the noisy picture");

  Image median(grey.width, grey.height, 1);
  step("median", [&] {
    return lumiFilterMedian_8u_C1R(inner, greyB.step, median.data, median.step, roi, LumiSize{5, 5},
                                   LumiPoint{2, 2});
  }, &median, "5x5 median of the noisy picture");

  // Edge map: |horizontal| + |vertical| Sobel responses of the blurred picture, halved.
  Image edges(grey.width, grey.height, 1), blurredB(grey.width + 2 * gb, grey.height + 2 * gb, 1);
  int gstep = 0, vstep = 0;
  Lum16s* gh = lumiMalloc_16s_C1(grey.width, grey.height, &gstep);
  Lum16s* gv = lumiMalloc_16s_C1(grey.width, grey.height, &vstep);
  step("edges", [&] {
    LumStatus st = lumiCopyReplicateBorder_8u_C1R(blurred.data, blurred.step, roi, blurredB.data,
                                                  blurredB.step, blurredB.roi(), gb, gb);
    const Lum8u* in = blurredB.data + gb * blurredB.step + gb;
    if (!st) st = lumiFilterSobelHoriz_8u16s_C1R(in, blurredB.step, gh, gstep, roi, lumMskSize3x3);
    if (!st) st = lumiFilterSobelVert_8u16s_C1R(in, blurredB.step, gv, vstep, roi, lumMskSize3x3);
    if (!st) st = lumiAbs_16s_C1IR(gh, gstep, roi);
    if (!st) st = lumiAbs_16s_C1IR(gv, vstep, roi);
    if (!st) st = lumiAdd_16s_C1IRSfs(gv, vstep, gh, gstep, roi, 1);
    if (!st) st = lumiConvert_16s8u_C1R(gh, gstep, edges.data, edges.step, roi);
    return st;
  }, &edges, "Sobel magnitude |gx| + |gy| of the blurred picture");
  lumiFree(gh);
  lumiFree(gv);

  // Morphological opening of the threshold mask: erosion then dilation, in place.
  Image opened(grey.width, grey.height, 1);
  step("opened-mask", [&] {
    Lum8u* in = maskB.data + gb * maskB.step + gb;
    LumStatus st = lumiErode3x3_8u_C1IR(in, maskB.step, roi);
    if (!st) st = lumiDilate3x3_8u_C1IR(in, maskB.step, roi);
    if (!st) st = lumiCopy_8u_C1R(in, maskB.step, opened.data, opened.step, roi);
    return st;
  }, &opened, "3x3 opening of the threshold mask (erode, dilate)");

  // Geometry on the clean picture: half and double size, a rotation about the centre and a
  // perspective tilt (pixels the mapped picture does not cover stay mid grey).
  const Lum8u greyValue[3] = {128, 128, 128};
  auto fill = [&](Image& im) {
    return im.channels == 3 ? lumiSet_8u_C3R(greyValue, im.data, im.step, im.roi())
                            : lumiSet_8u_C1R(128, im.data, im.step, im.roi());
  };
  const LumiRect whole{0, 0, clean.width, clean.height};
  Image half(clean.width / 2, clean.height / 2, clean.channels);
  step("resized-half", [&] {
    return rgb ? lumiResize_8u_C3R(clean.data, roi, clean.step, whole, half.data, half.step, half.roi(), 0.5, 0.5, lumInterpSuper)
               : lumiResize_8u_C1R(clean.data, roi, clean.step, whole, half.data, half.step, half.roi(), 0.5, 0.5, lumInterpSuper);
  }, &half, "1/2 size, super-sampling");
  Image twice(clean.width * 2, clean.height * 2, clean.channels);
  step("resized-double", [&] {
    return rgb ? lumiResize_8u_C3R(clean.data, roi, clean.step, whole, twice.data, twice.step, twice.roi(), 2.0, 2.0, lumInterpCubic)
               : lumiResize_8u_C1R(clean.data, roi, clean.step, whole, twice.data, twice.step, twice.roi(), 2.0, 2.0, lumInterpCubic);
  }, &twice, "2x size, cubic");
  Image rotated(clean.width, clean.height, clean.channels);
  step("rotated", [&] {
    LumStatus st = fill(rotated);
    const LumiRect out{0, 0, rotated.width, rotated.height};
    const double cx = (clean.width - 1) / 2.0, cy = (clean.height - 1) / 2.0;
    if (!st)
      st = rgb ? lumiRotateCenter_8u_C3R(clean.data, roi, clean.step, whole, rotated.data, rotated.step, out, 30.0, cx, cy, lumInterpLinear)
               : lumiRotateCenter_8u_C1R(clean.data, roi, clean.step, whole, rotated.data, rotated.step, out, 30.0, cx, cy, lumInterpLinear);
    return st;
  }, &rotated, "30 degrees about the centre, linear");
  Image tilted(clean.width, clean.height, clean.channels);
  step("perspective", [&] {
    LumStatus st = fill(tilted);
    const double w = clean.width - 1, h = clean.height - 1;
    const double quad[4][2] = {{0.2 * w, 0.05 * h}, {0.8 * w, 0.05 * h}, {w, h}, {0, h}};
    double coeffs[3][3];
    if (!st) st = lumiGetPerspectiveTransform(whole, quad, coeffs);
    const LumiRect out{0, 0, tilted.width, tilted.height};
    if (!st)
      st = rgb ? lumiWarpPerspective_8u_C3R(clean.data, roi, clean.step, whole, tilted.data, tilted.step, out, coeffs, lumInterpLinear)
               : lumiWarpPerspective_8u_C1R(clean.data, roi, clean.step, whole, tilted.data, tilted.step, out, coeffs, lumInterpLinear);
    return st;
  }, &tilted, "the picture tilted back, linear");

  // Frequency domain: the log-magnitude spectrum of the grey picture (zero frequency in the
  // middle), and the energy of the AC coefficients of every 8x8 block's DCT.
  Image spectrum(grey.width, grey.height, 1);
  step("spectrum", [&] {
    int fs = 0, ms = 0, bufSize = 0;
    Lum32f* pf = lumiMalloc_32f_C1(grey.width, grey.height, &fs);
    Lum32f* pm = lumiMalloc_32f_C1(grey.width, grey.height, &ms);
    Image logMag(grey.width, grey.height, 1);
    LumiDFTSpec* spec = nullptr;
    LumStatus st = pf && pm ? lumiDFTInitAlloc_R_32f(&spec, roi, lumFftNoDivByAny, lumHintNone) : lumStatusMemAllocErr;
    if (!st) st = lumiDFTGetBufSize_R_32f(spec, &bufSize);
    Lum8u* buffer = st ? nullptr : lumsMalloc_8u(bufSize > 0 ? bufSize : 1);
    if (!st && !buffer) st = lumStatusMemAllocErr;
    if (!st) st = lumiConvert_8u32f_C1R(grey.data, grey.step, pf, fs, roi);
    if (!st) st = lumiDFTFwd_RToPack_32f_C1R(pf, fs, pf, fs, spec, buffer);
    if (!st) st = lumiMagnitudePack_32f_C1R(pf, fs, pm, ms, roi);
    if (!st) st = lumiAddC_32f_C1IR(1.0f, pm, ms, roi);
    if (!st) st = lumiLn_32f_C1IR(pm, ms, roi);
    Lum32f lo = 0, hi = 1;
    if (!st) st = lumiMinMax_32f_C1R(pm, ms, roi, &lo, &hi);
    if (!st) st = lumiScale_32f8u_C1R(pm, ms, logMag.data, logMag.step, roi, lo, hi > lo ? hi : lo + 1);
    // swap the quadrants so that the zero frequency sits in the middle
    const int hw = grey.width / 2, hh = grey.height / 2;
    for (int q = 0; q < 4 && !st; ++q) {
      const int sx = q & 1 ? hw : 0, sy = q & 2 ? hh : 0;
      const int w = q & 1 ? grey.width - hw : hw, h = q & 2 ? grey.height - hh : hh;
      const int dx = q & 1 ? 0 : grey.width - hw, dy = q & 2 ? 0 : grey.height - hh;
      st = lumiCopy_8u_C1R(logMag.data + sy * logMag.step + sx, logMag.step,
                           spectrum.data + dy * spectrum.step + dx, spectrum.step, LumiSize{w, h});
    }
    lumsFree(buffer);
    lumiDFTFree_R_32f(spec);
    lumiFree(pf);
    lumiFree(pm);
    return st;
  }, &spectrum, "log(1 + |DFT|), zero frequency in the middle");

  const int bw = grey.width / 8, bh = grey.height / 8;
  Image energy(bw * 8, bh * 8, 1);
  step("dct-energy", [&] {
    int es = 0;
    Lum32f* e = lumiMalloc_32f_C1(bw, bh, &es);
    Image small(bw, bh, 1);
    LumStatus st = e ? lumStatusOk : lumStatusMemAllocErr;
    Lum16s coeffs[64];
    for (int by = 0; by < bh && !st; ++by)
      for (int bx = 0; bx < bw && !st; ++bx) {
        st = lumiDCT8x8Fwd_8u16s_C1R(grey.data + 8 * by * grey.step + 8 * bx, grey.step, coeffs);
        double sum = 0;
        for (int k = 1; k < 64; ++k) sum += static_cast<double>(coeffs[k]) * coeffs[k];
        reinterpret_cast<Lum32f*>(reinterpret_cast<Lum8u*>(e) + by * es)[bx] = static_cast<Lum32f>(std::log1p(sum));
      }
    const LumiSize sr{bw, bh};
    Lum32f lo = 0, hi = 1;
    if (!st) st = lumiMinMax_32f_C1R(e, es, sr, &lo, &hi);
    if (!st) st = lumiScale_32f8u_C1R(e, es, small.data, small.step, sr, lo, hi > lo ? hi : lo + 1);
    if (!st)
      st = lumiResize_8u_C1R(small.data, sr, small.step, LumiRect{0, 0, bw, bh}, energy.data, energy.step,
                             energy.roi(), 8.0, 8.0, lumInterpNearest);
    lumiFree(e);
    return st;
  }, &energy, "log energy of the AC coefficients of each 8x8 block");

  // Template matching: a 48x48 patch of the clean picture found in the noisy one.
  const int tw = 48, tx = grey.width * 3 / 5, ty = grey.height / 3;
  Image found(grey.width, grey.height, 1);
  int fx = -1, fy = -1;
  step("template-match", [&] {
    const LumiSize ts{tw, tw}, rs{grey.width - tw + 1, grey.height - tw + 1};
    int cs = 0;
    Lum32f* score = lumiMalloc_32f_C1(rs.width, rs.height, &cs);
    LumStatus st = score ? lumStatusOk : lumStatusMemAllocErr;
    if (!st)
      st = lumiCrossCorrValid_NormLevel_8u32f_C1R(noisyGrey.data, noisyGrey.step, roi, grey.data + ty * grey.step + tx,
                                                 grey.step, ts, score, cs);
    Lum32f best = 0;
    if (!st) st = lumiMaxIndx_32f_C1R(score, cs, rs, &best, &fx, &fy);
    if (!st) st = lumiCopy_8u_C1R(noisyGrey.data, noisyGrey.step, found.data, found.step, roi);
    // a white frame around the match
    for (int t = 0; t < 2 && !st; ++t) {
      Lum8u* corner = found.data + (fy + t) * found.step + fx + t;
      const int side = tw - 2 * t;
      st = lumiSet_8u_C1R(255, corner, found.step, LumiSize{side, 1});
      if (!st) st = lumiSet_8u_C1R(255, corner + (side - 1) * found.step, found.step, LumiSize{side, 1});
      if (!st) st = lumiSet_8u_C1R(255, corner, found.step, LumiSize{1, side});
      if (!st) st = lumiSet_8u_C1R(255, corner + side - 1, found.step, LumiSize{1, side});
    }
    lumiFree(score);
    return st;
  }, &found, "48x48 patch of the clean picture, found in the noisy one");
  std::printf("  template cut at (%d, %d), best match at (%d, %d)\n", tx, ty, fx, fy);

  // Histogram of the noisy picture, drawn as 64 bars.
  const int bins = 64, barW = 4, chartH = 128;
  Image chart(bins * barW, chartH, 1);
  step("histogram", [&] {
    Lum32s hist[bins], levels[bins + 1];
    LumStatus st = lumiHistogramEven_8u_C1R(noisyGrey.data, noisyGrey.step, roi, hist, levels,
                                            bins + 1, 0, 256);
    if (st) return st;
    st = lumiSet_8u_C1R(255, chart.data, chart.step, chart.roi());
    Lum32s top = 1;
    for (int b = 0; b < bins; ++b) top = hist[b] > top ? hist[b] : top;
    for (int b = 0; b < bins && !st; ++b) {
      int h = static_cast<int>(static_cast<int64_t>(hist[b]) * (chartH - 1) / top);
      if (h > 0)
        st = lumiSet_8u_C1R(40, chart.data + (chartH - h) * chart.step + b * barW + 1, chart.step,
                            LumiSize{barW - 1, h});
    }
    return st;
  }, &chart, "64 bins of the noisy picture");

  // Statistics, printed.
  Lum64f mean = 0, noiseL2 = 0;
  Lum8u mn = 0, mx = 0;
  int mnx = 0, mny = 0, mxx = 0, mxy = 0;
  Lum64f hu[7] = {0};
  step("statistics", [&] {
    LumStatus st = lumiMean_8u_C1R(noisyGrey.data, noisyGrey.step, roi, &mean);
    if (!st) st = lumiMinIndx_8u_C1R(noisyGrey.data, noisyGrey.step, roi, &mn, &mnx, &mny);
    if (!st) st = lumiMaxIndx_8u_C1R(noisyGrey.data, noisyGrey.step, roi, &mx, &mxx, &mxy);
    if (!st) st = lumiNormDiff_L2_8u_C1R(noisyGrey.data, noisyGrey.step, grey.data, grey.step, roi, &noiseL2);
    LumiMomentState_64f* state = nullptr;
    if (!st) st = lumiMomentInitAlloc_64f(&state, lumHintAccurate);
    if (!st) st = lumiMoments64f_8u_C1R(mask.data, mask.step, roi, state);
    if (!st) st = lumiGetHuMoments_64f(state, 0, hu);
    lumiMomentFree_64f(state);
    return st;
  });
  std::printf("  noisy picture: mean %.3f, min %d at (%d, %d), max %d at (%d, %d)\n", mean, mn, mnx,
              mny, mx, mxx, mxy);
  std::printf("  L2 norm of the noise %.1f (rms %.3f per pixel)\n", noiseL2,
              noiseL2 / std::sqrt(static_cast<double>(roi.width) * roi.height));
  std::printf("  Hu moments of the mask:");
  for (double h : hu) std::printf(" %.4g", h);
  std::printf("\n");

  if (g_failures) std::printf("%d step(s) failed\n", g_failures);
  return g_failures ? 1 : 0;
}
