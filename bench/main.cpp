// Runs every registered row with 1 and 2 threads and prints OpenCV's median time, ours and
// the ratio (OpenCV / ours: above 1 means we are faster), plus memcpy of the same bytes for
// streaming rows. Usage: lumi-bench [substring-filter] [--reps N]
#include <opencv2/core.hpp>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

#include "bench.h"

namespace bench {
namespace {

struct Row {
  std::string family, name;
  double bytes;
  std::function<void()> opencv, ours;
};
std::vector<Row>& rows() {
  static std::vector<Row> r;
  return r;
}

double median(std::vector<double> t) {
  std::sort(t.begin(), t.end());
  return t[t.size() / 2];
}

// Median times of two functions over reps runs each, the runs taken in turn (a, b, a, b, ...),
// so that load from other processes on a shared machine falls on both alike and the ratio stays
// meaningful.
std::pair<double, double> medianSeconds(const std::function<void()>& fa, const std::function<void()>& fb,
                                        int reps) {
  fa();  // warm caches and lazy initialisation
  fb();
  std::vector<double> ta, tb;
  auto time = [](const std::function<void()>& f) {
    // A pause first: the other library's idle worker threads stop spinning and sleep, as they
    // would between the calls of an application, instead of holding the second core.
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    auto a = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - a).count();
  };
  for (int i = 0; i < reps; ++i) {
    ta.push_back(time(fa));
    tb.push_back(time(fb));
  }
  return {median(ta), median(tb)};
}

}  // namespace

void row(const std::string& family, const std::string& name, double bytes,
         std::function<void()> opencv, std::function<void()> ours) {
  rows().push_back(Row{family, name, bytes, std::move(opencv), std::move(ours)});
}

std::shared_ptr<Images> images(int cvType, int width, int height) {
  auto im = std::make_shared<Images>();
  im->src.create(height, width, cvType);
  im->src2.create(height, width, cvType);
  im->dst.create(height, width, cvType);
  cv::RNG rng(12345);
  int depth = CV_MAT_DEPTH(cvType);
  double lo = 0, hi = 256;
  if (depth == CV_16U) hi = 65536;
  if (depth == CV_16S) lo = -32768, hi = 32768;
  if (depth == CV_32S) lo = -2147483648.0, hi = 2147483647.0;
  if (depth == CV_32F || depth == CV_64F) lo = -1000, hi = 1000;
  rng.fill(im->src, cv::RNG::UNIFORM, lo, hi);
  rng.fill(im->src2, cv::RNG::UNIFORM, lo, hi);
  im->dst.setTo(0);
  return im;
}

}  // namespace bench

int main(int argc, char** argv) {
  const char* filter = nullptr;
  int reps = 31;
  for (int i = 1; i < argc; ++i) {
    if (!std::strcmp(argv[i], "--reps") && i + 1 < argc) reps = std::atoi(argv[++i]);
    else filter = argv[i];
  }
  auto& all = bench::rows();
  std::vector<char> a(64 << 20), b(64 << 20);
  std::printf("Lumi vs OpenCV %s, %dx%d, median of %d runs taken in turn; ratio = OpenCV time / Lumi time\n",
              CV_VERSION, bench::kWidth, bench::kHeight, reps);
  for (int threads : {1, 2}) {
    cv::setNumThreads(threads);
    threads_omp_of_n_lum = threads;
    std::printf("\n%d thread%s\n", threads, threads > 1 ? "s" : "");
    std::printf("%-14s %-28s %11s %11s %7s %9s %9s\n", "family", "row", "OpenCV ms", "Lumi ms",
                "ratio", "cv/memcpy", "us/memcpy");
    double logSum = 0;
    int n = 0;
    for (auto& r : all) {
      std::string label = r.family + " " + r.name;
      if (filter && label.find(filter) == std::string::npos) continue;
      auto [tc, tl] = bench::medianSeconds(r.opencv, r.ours, reps);
      double ratio = tc / tl;
      logSum += std::log(ratio);
      ++n;
      std::printf("%-14s %-28s %11.3f %11.3f %7.2f", r.family.c_str(), r.name.c_str(), tc * 1e3,
                  tl * 1e3, ratio);
      if (r.bytes > 0) {
        // memcpy of the same bytes (half read, half written), single-threaded
        std::size_t half = std::min<std::size_t>(static_cast<std::size_t>(r.bytes / 2), a.size());
        double tm = bench::medianSeconds([&] { std::memcpy(b.data(), a.data(), half); }, [] {}, reps).first;
        std::printf(" %9.2f %9.2f", tm / tc, tm / tl);
      }
      std::printf("\n");
    }
    if (n) std::printf("geometric mean of ratios: %.2f over %d rows\n", std::exp(logSum / n), n);
  }
  return 0;
}
