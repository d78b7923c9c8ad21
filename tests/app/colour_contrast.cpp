#include "tests/app/colour_contrast.h"

#include <algorithm>
#include <cmath>

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

}  // namespace

double contrast(QRgb one, QRgb other) {
  const auto [darker, lighter] = std::minmax({light(one), light(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace gsm
