#pragma once

#include <string>
#include <vector>

class QWidget;

namespace ui {

/// Builds the widgets of the window of that name onto `root`; false when there is no such form.
bool buildForm(const std::string& name, QWidget* root);

/// Names of all forms.
std::vector<std::string> formNames();

/// Makes the icons and the style sheet known to Qt: a static library's resources are left out of
/// the program unless someone asks for them.
void initResources();

}  // namespace ui
