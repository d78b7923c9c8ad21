#include "module/module_window.h"

#include "module/form16.h"
#include "panel/panel.h"

namespace gsm {

ModuleWindow::ModuleWindow(Panel& panel, std::string name, std::string title)
    : FeatureWindow(panel, std::move(name), {.Caption = std::move(title)}) {}

void ModuleWindow::Form_Unload() {
  Hide();
  panel_.form16.Show();
}

}  // namespace gsm
