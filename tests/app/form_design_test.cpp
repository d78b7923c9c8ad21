// The design stands with the controls, and once more in the forms, so that Designer shows the
// windows as they are. A machine holds them against each other.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>

#include "app/windows.h"
#include "controls/controls.h"
#include "controls/window.h"
#include "platform/qt/text_codec.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/forms.h"
#include "ui/views/window_view.h"

namespace gsm {
namespace {

class FormDesignTest : public DesktopTest {
 protected:
  // Calls `look` with each control and its widget of the kinds asked for, on a form that nobody has
  // bound.
  template <class Kind, class Widget, class Look>
  void forEach(const Look& look) {
    int seen = 0;
    for (const std::string& name : ui::formNames()) {
      const Window* window = windowNamed(platform(), name);
      QWidget form;
      ui::buildForm(name, &form);
      for (const Control* control : window->controls()) {
        const auto* kind = dynamic_cast<const Kind*>(control);
        const auto* widget = form.findChild<Widget*>(widgetName(*control));
        if (kind == nullptr || widget == nullptr) continue;
        SCOPED_TRACE(name + "." + control->fullName());
        look(*kind, *widget);
        ++seen;
      }
    }
    EXPECT_GT(seen, 0);
  }

  // The same text in both.
  template <class Kind, class Widget>
  void compareCaptions() {
    forEach<Kind, Widget>([](const Kind& control, const Widget& widget) {
      EXPECT_EQ(fromQt(widget.text()), control.Caption.peek());
    });
  }

  Windows windows_{platform()};
};

TEST_F(FormDesignTest, Captions) {
  compareCaptions<Label, QLabel>();
  compareCaptions<CommandButton, QPushButton>();
  compareCaptions<OptionButton, QRadioButton>();
}

TEST_F(FormDesignTest, TitlesOfGroups) {
  forEach<Frame, QGroupBox>([](const Frame& control, const QGroupBox& widget) {
    EXPECT_EQ(fromQt(QString(widget.title()).replace("&&", "&")), control.Caption.peek());
  });
}

TEST_F(FormDesignTest, TitlesOfWindows) {
  for (const std::string& name : ui::formNames()) {
    QWidget form;
    ui::buildForm(name, &form);
    EXPECT_EQ(fromQt(form.windowTitle()), windowNamed(platform(), name)->Caption.peek()) << name;
  }
}

TEST_F(FormDesignTest, TextsAndLengthsOfLines) {
  forEach<TextBox, QLineEdit>([](const TextBox& control, const QLineEdit& widget) {
    constexpr int kNoLimit = 32767;  // Qt's own
    const int length = widget.maxLength() == kNoLimit ? 0 : widget.maxLength();
    EXPECT_EQ(fromQt(widget.text()), control.Text.peek());
    EXPECT_EQ(length, control.MaxLength.peek());
    EXPECT_EQ(widget.echoMode() == QLineEdit::Password, control.isMasked());
  });
}

TEST_F(FormDesignTest, OptionsThatAreSet) {
  forEach<OptionButton, QRadioButton>([](const OptionButton& control, const QRadioButton& widget) {
    EXPECT_EQ(widget.isChecked(), control.Value.peek());
  });
}

TEST_F(FormDesignTest, WhatIsEnabled) {
  forEach<Control, QWidget>([](const Control& control, const QWidget& widget) {
    EXPECT_EQ(widget.isEnabledTo(widget.parentWidget()), control.Enabled.peek());
  });
}

}  // namespace
}  // namespace gsm
