#include "module/form19.h"

namespace gsm {

Form19::Form19(Panel& panel) : ModuleWindow(panel, "Form19", "GSM-GPRS SETTINGS") {}

}  // namespace gsm
