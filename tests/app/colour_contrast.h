#pragma once

#include <QRgb>

namespace gsm {

/// How much the two colours differ in light, from 1 (not at all) to 21 (black and white): the
/// measure of the Web Content Accessibility Guidelines.
double contrast(QRgb one, QRgb other);

}  // namespace gsm
