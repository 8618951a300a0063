// lumi-demo: runs the library on a picture and writes every step as a PNG into demo-out/.
//
//   lumi-demo              makes its own input: a Jaehne test pattern and a ramp
//   lumi-demo photo.png    uses the given picture (grey or RGB) instead
//
// Each step prints one line with its time.
#include <sys/stat.h>

#include <chrono>
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

  if (g_failures) std::printf("%d step(s) failed\n", g_failures);
  return g_failures ? 1 : 0;
}
