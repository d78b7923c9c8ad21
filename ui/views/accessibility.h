#pragma once

namespace gsm {

/// Tells assistive technology what Qt doesn't know of the forms: that they are windows, that labels
/// which can be clicked are buttons, and that the combos' names are their labels' and not what is
/// chosen in them.
void describeForms();

}  // namespace gsm
