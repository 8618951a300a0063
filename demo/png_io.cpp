#include "png_io.h"

#include <png.h>

#include <cstdio>
#include <cstring>

bool readPng(const std::string& path, PngImage& out, std::string& error) {
  png_image img;
  std::memset(&img, 0, sizeof img);
  img.version = PNG_IMAGE_VERSION;
  if (!png_image_begin_read_from_file(&img, path.c_str())) {
    error = img.message;
    return false;
  }
  const bool colour = (img.format & PNG_FORMAT_FLAG_COLOR) != 0;
  img.format = colour ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
  out.width = static_cast<int>(img.width);
  out.height = static_cast<int>(img.height);
  out.channels = colour ? 3 : 1;
  out.pixels.resize(PNG_IMAGE_SIZE(img));
  if (!png_image_finish_read(&img, nullptr, out.pixels.data(), 0, nullptr)) {
    error = img.message;
    png_image_free(&img);
    return false;
  }
  return true;
}

bool writePng(const std::string& path, const uint8_t* data, int step, int width, int height,
              int channels) {
  png_image img;
  std::memset(&img, 0, sizeof img);
  img.version = PNG_IMAGE_VERSION;
  img.width = static_cast<png_uint_32>(width);
  img.height = static_cast<png_uint_32>(height);
  img.format = channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
  return png_image_write_to_file(&img, path.c_str(), 0, data, step, nullptr) != 0;
}
