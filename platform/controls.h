#pragma once

// All kinds of controls, for the headers of windows.
#include "platform/control_array.h"
#include "platform/list_controls.h"
#include "platform/option_button.h"
#include "platform/simple_controls.h"
#include "platform/slider.h"
#include "platform/tab_strip.h"
#include "platform/text_box.h"
#include "platform/timer.h"
