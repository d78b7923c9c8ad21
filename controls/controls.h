#pragma once

// All kinds of controls, for the headers of windows.
#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/slider.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "controls/timer.h"
