#include "tests/app/colour_contrast.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

namespace gsm {
namespace {

// How much light a part of a colour stands for.
double light(int part) {
  const double share = part / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double light(QRgb colour) {
  return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) +
         0.0722 * light(qBlue(colour));
}

// Most pixels of two pictures of one thing are equal, so a line is looked at as a whole.
void forEachDifference(const QImage& one, const QImage& other,
                       const std::function<void(double contrast)>& look) {
  for (int y = 0; y < one.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(one.constScanLine(y));
    const auto* end = line + one.width();
    const auto* otherLine = reinterpret_cast<const QRgb*>(other.constScanLine(y));
    for (;;) {
      std::tie(line, otherLine) = std::mismatch(line, end, otherLine);
      if (line == end) break;
      look(contrast(*line++, *otherLine++));
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
