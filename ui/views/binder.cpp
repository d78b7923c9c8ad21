#include "ui/views/binder.h"

#include <algorithm>
#include <utility>

#include "ui/forms.h"

namespace gsm {

void Binder::bind(Window& window) {
  bind(window, [&window] {
    auto form = std::make_unique<QWidget>();
    ui::buildForm(window.name(), form.get());
    return form;
  });
}

void Binder::bind(const std::vector<Window*>& windows) {
  for (Window* window : windows) bind(*window);
}

void Binder::bind(Window& window, std::unique_ptr<QWidget> form) {
  const auto given = std::make_shared<std::unique_ptr<QWidget>>(std::move(form));
  bind(window, [given] { return std::move(*given); });
  widget(window);
}

void Binder::bind(Window& window, WindowView::MakeForm makeForm) {
  bound_.push_back({&window, std::make_unique<WindowView>(window, std::move(makeForm), loop_,
                                                          order_, pointer_)});
}

QWidget* Binder::widget(const Window& window) const {
  const auto found = std::find_if(bound_.begin(), bound_.end(),
                                  [&](const Bound& bound) { return bound.window == &window; });
  return found == bound_.end() ? nullptr : &found->view->form();
}

QWidget* Binder::widget(const Control& control) const {
  const QWidget* form = widget(control.window());
  return form == nullptr ? nullptr : form->findChild<QWidget*>(widgetName(control));
}

}  // namespace gsm
