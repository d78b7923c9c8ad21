#pragma once

#include <QSize>
#include <QWidget>

namespace gsm {

/// Has what is on `form` scroll where it can't be made as small as `room`, which is what a screen
/// has for a window: at a large scale or with large letters nothing is out of reach. Done once, it
/// stays.
void fitInto(QWidget& form, const QSize& room);

}  // namespace gsm
