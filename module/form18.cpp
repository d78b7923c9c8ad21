#include "module/form18.h"

namespace gsm {

Form18::Form18(Panel& panel) : ModuleWindow(panel, "Form18", "GSM-SIM TOOl KIT SETTINGS") {}

}  // namespace gsm
