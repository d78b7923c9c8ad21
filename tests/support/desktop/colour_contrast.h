#pragma once

#include <QImage>
#include <QRgb>

namespace gsm {

/// How much the two colours differ in light, from 1 (not at all) to 21 (black and white): the
/// measure of the Web Content Accessibility Guidelines.
double contrast(QRgb one, QRgb other);

/// The most contrast that a pixel of `one` has to the same pixel of `other`, which is of one size
/// with it.
double mostContrast(const QImage& one, const QImage& other);

/// How many pixels of `one` have so much contrast at least to the same pixels of `other`.
int pixelsOfContrast(double least, const QImage& one, const QImage& other);

}  // namespace gsm
