// Draws the Windows metafile that is named on the command line and writes the picture to the
// standard output, as a portable pixmap. A program of its own: a broken metafile may crash it, and
// the caller ends it when it takes too long. Any failure is exit status 1.

#include <libwmf/api.h>
#include <libwmf/gd.h>
#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr size_t largestFile = 64 << 20;
constexpr size_t zerosBehind = 64;  // the parser reads beyond a file that is cut short
constexpr double dotsPerInch = 96;
constexpr double longerSide = 480;  // of a file that doesn't tell its size
constexpr double mostPixels = 64 << 20;

struct Size {
  double width = 0;
  double height = 0;
};

[[noreturn]] void End(int status) {
  std::fflush(stdout);
  std::_Exit(status);  // nothing is tidied up that a broken file may have spoilt
}

std::vector<unsigned char> Content(const char *path) {
  std::vector<unsigned char> bytes;
  std::FILE *file = std::fopen(path, "rb");
  if (!file) return bytes;
  constexpr size_t block = 1 << 16;
  size_t read = block;
  while (read == block && bytes.size() < largestFile) {
    bytes.resize(bytes.size() + block);
    read = std::fread(bytes.data() + bytes.size() - block, 1, block, file);
    bytes.resize(bytes.size() - block + read);
  }
  std::fclose(file);
  return bytes;
}

// From the placeable header, in pixels; nothing without one.
Size ToldSize(const std::vector<unsigned char> &bytes) {
  constexpr size_t headerLength = 22;
  if (bytes.size() < headerLength || bytes[0] != 0xD7 || bytes[1] != 0xCD || bytes[2] != 0xC6 ||
      bytes[3] != 0x9A) {
    return {};
  }
  const auto word = [&bytes](size_t at) { return int(bytes[at]) | int(bytes[at + 1]) << 8; };
  const auto signedWord = [&word](size_t at) { return double(short(word(at))); };
  const double unitsPerInch = word(14);
  if (unitsPerInch == 0) return {};
  const double scale = dotsPerInch / unitsPerInch;
  return {std::abs(signedWord(10) - signedWord(6)) * scale,
          std::abs(signedWord(12) - signedWord(8)) * scale};
}

Size DrawnSize(const wmfD_Rect &box) {
  const Size size{std::abs(double(box.BR.x) - box.TL.x), std::abs(double(box.BR.y) - box.TL.y)};
  const double scale = longerSide / std::max(size.width, size.height);
  return {size.width * scale, size.height * scale};
}

void WritePixels(const int *pixels, unsigned width, unsigned height) {
  std::printf("P6\n%u %u\n255\n", width, height);
  std::vector<char> row(size_t(width) * 3);
  for (unsigned y = 0; y < height; ++y) {
    for (unsigned x = 0; x < width; ++x) {
      const int pixel = *pixels++;
      row[3 * x] = char(pixel >> 16 & 0xFF);
      row[3 * x + 1] = char(pixel >> 8 & 0xFF);
      row[3 * x + 2] = char(pixel & 0xFF);
    }
    if (std::fwrite(row.data(), 1, row.size(), stdout) != row.size()) End(1);
  }
}

void Limit(int resource, rlim_t most) {
  const rlimit limit{most, most};
  setrlimit(resource, &limit);
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) return 1;
  Limit(RLIMIT_CORE, 0);
  Limit(RLIMIT_CPU, 5);
#ifndef __SANITIZE_ADDRESS__
  Limit(RLIMIT_AS, rlim_t(1) << 30);
#endif
  std::vector<unsigned char> bytes = Content(argv[1]);
  if (bytes.empty()) return 1;
  const Size told = ToldSize(bytes);
  bytes.resize(bytes.size() + zerosBehind);

  wmfAPI_Options options{};
  options.function = wmf_gd_function;
  wmfAPI *api = nullptr;
  if (wmf_api_create(
          &api, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG,
          &options) != wmf_E_None) {
    End(1);
  }
  wmf_gd_t *device = WMF_GD_GetData(api);
  device->type = wmf_gd_image;
  wmfD_Rect box{};
  if (wmf_mem_open(api, bytes.data(), long(bytes.size())) != wmf_E_None ||
      wmf_scan(api, 0, &box) != wmf_E_None) {
    End(1);
  }
  const Size size = told.width > 0 && told.height > 0 ? told : DrawnSize(box);
  // The box is that of what is drawn; a file that tells its size has a rim of its own around it.
  if (told.width > 0 && told.height > 0) {
    constexpr double pointsPerInch = 72;  // of the library's drawings
    box.TL = {0, 0};
    box.BR = {float(told.width / dotsPerInch * pointsPerInch),
              float(told.height / dotsPerInch * pointsPerInch)};
  }
  const double width = std::max(1.0, std::round(size.width));
  const double height = std::max(1.0, std::round(size.height));
  if (!(width * height <= mostPixels)) End(1);
  device->bbox = box;
  device->width = unsigned(width);
  device->height = unsigned(height);
  if (wmf_play(api, 0, &box) != wmf_E_None || !device->gd_image) End(1);
  const int *pixels = wmf_gd_image_pixels(device->gd_image);
  if (!pixels) End(1);
  WritePixels(pixels, device->width, device->height);
  End(0);
}
