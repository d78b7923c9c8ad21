#include "module/form17.h"

namespace gsm {

Form17::Form17(Panel& panel) : ModuleWindow(panel, "Form17", "GSM-Wavecom Features") {}

}  // namespace gsm
