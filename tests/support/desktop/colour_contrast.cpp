#include "tests/support/desktop/colour_contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <functional>

namespace gsm {
namespace {

// How much light each part of a colour stands for.
const std::array<double, 256> kLight = [] {
  std::array<double, 256> lights{};
  for (std::size_t part = 0; part < lights.size(); ++part) {
    const double share = static_cast<double>(part) / 255.0;
    lights[part] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  }
  return lights;
}();

double light(QRgb colour) {
  const auto of = [](int part) { return kLight[static_cast<std::size_t>(part)]; };
  return 0.2126 * of(qRed(colour)) + 0.7152 * of(qGreen(colour)) + 0.0722 * of(qBlue(colour));
}

// Most lines of two pictures of one thing are equal.
void forEachDifference(const QImage& one, const QImage& other,
                       const std::function<void(double contrast)>& look) {
  for (int y = 0; y < one.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(one.constScanLine(y));
    const auto* otherLine = reinterpret_cast<const QRgb*>(other.constScanLine(y));
    if (std::memcmp(line, otherLine, static_cast<std::size_t>(one.width()) * sizeof(QRgb)) == 0) {
      continue;
    }
    for (int x = 0; x < one.width(); ++x) {
      if (line[x] != otherLine[x]) look(contrast(line[x], otherLine[x]));
    }
  }
}

}  // namespace

double contrast(QRgb one, QRgb other) {
  const auto [darker, lighter] = std::minmax({light(one), light(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

double mostContrast(const QImage& one, const QImage& other) {
  double most = 1;
  forEachDifference(one, other, [&](double each) { most = std::max(most, each); });
  return most;
}

int pixelsOfContrast(double least, const QImage& one, const QImage& other) {
  int count = 0;
  forEachDifference(one, other, [&](double each) { count += each >= least ? 1 : 0; });
  return count;
}

}  // namespace gsm
