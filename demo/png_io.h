// Minimal PNG reading and writing for the demo (8-bit grey or RGB).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct PngImage {
  int width = 0, height = 0, channels = 0;  // channels: 1 (grey) or 3 (RGB)
  std::vector<uint8_t> pixels;              // rows packed, width * channels bytes each
};

// Reads any PNG and converts it to 8-bit grey (if it has no colour) or RGB; false on failure
// with a message in `error`.
bool readPng(const std::string& path, PngImage& out, std::string& error);
// Writes rows of width * channels bytes that lie `step` bytes apart.
bool writePng(const std::string& path, const uint8_t* data, int step, int width, int height,
              int channels);
