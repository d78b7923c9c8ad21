#include "ui/views/control_view.h"

#include "ui/views/button_views.h"
#include "ui/views/label_views.h"
#include "ui/views/list_views.h"
#include "ui/views/range_views.h"
#include "ui/views/text_views.h"

namespace gsm {
namespace {

template <class View, class Kind, class Widget>
std::unique_ptr<ControlView> make(Control& control, QWidget& widget, const UserActions& actions) {
  auto* kind = dynamic_cast<Kind*>(&control);
  auto* fitting = qobject_cast<Widget*>(&widget);
  if (kind == nullptr || fitting == nullptr) return nullptr;
  return std::make_unique<View>(*kind, *fitting, actions);
}

// Which kind of widget shows which kind of control.
constexpr decltype(&make<LabelView, Label, QLabel>) kMakers[] = {
    make<LabelView, Label, QLabel>,
    make<PictureView, Picture, QWidget>,
    make<ShapeView, Shape, QWidget>,
    make<FrameView, Frame, QWidget>,
    make<ButtonView, CommandButton, QPushButton>,
    make<OptionView, OptionButton, QRadioButton>,
    make<LineView, TextBox, QLineEdit>,
    make<LinesView, TextBox, QPlainTextEdit>,
    make<ComboView, ComboBox, QComboBox>,
    make<ListView, ListBox, QListWidget>,
    make<SliderView, Slider, QSlider>,
    make<TabView, TabStrip, QTabBar>,
};

}  // namespace

ControlView::ControlView(Control& control, QWidget& widget, const UserActions& actions)
    : base_(control), baseWidget_(widget), actions_(actions) {
  control.attach(this);
}

void ControlView::changed(PropertyId property) {
  switch (property) {
    case PropertyId::Visible: baseWidget_.setVisible(base_.Visible.peek()); break;
    case PropertyId::Enabled: baseWidget_.setEnabled(base_.Enabled.peek()); break;
    default: show(property); break;
  }
}

void ControlView::showAll() {
  for (const PropertyBase* property : base_.properties()) changed(property->id());
}

std::unique_ptr<ControlView> makeControlView(Control& control, QWidget& widget,
                                             const UserActions& actions) {
  for (const auto maker : kMakers) {
    if (auto view = maker(control, widget, actions)) {
      view->showAll();
      return view;
    }
  }
  return nullptr;
}

}  // namespace gsm
