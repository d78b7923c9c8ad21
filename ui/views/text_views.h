#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "controls/text_box.h"
#include "ui/views/control_view.h"

namespace gsm {

/// What the views of text boxes share. The caret belongs to the user: where the panel has it is not
/// shown.
class TextView : public ControlView {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  TextView(TextBox& control, QWidget& widget, const UserActions& actions);

  void show(PropertyId property) override;

  /// Queues the taking over of what the widget holds by the time the event runs: keys typed
  /// meanwhile are in it, and none is undone by the showing of an older text.
  void take();

  // The widget's text, in Qt's form and in the panel's.
  virtual QString shownText() const = 0;
  virtual QString forWidget(const std::string& text) const = 0;
  virtual std::string forPanel(const QString& text) const = 0;

  // Leaves the caret where it is, as far as the new text goes.
  virtual void setShownText(const QString& text) = 0;
  virtual void insert(const QString& text) = 0;
  virtual int caret() const = 0;            // in characters of the panel's form
  virtual void setCaret(int position) = 0;  // in those of Qt's
  virtual void setLimit(int length) = 0;    // 0: none

 private:
  bool takeNow();
  void showText(const std::string& text);
  bool filter(const QString& typed);

  TextBox& control_;
};

class LineView : public TextView {
 public:
  LineView(TextBox& control, QLineEdit& widget, const UserActions& actions);

 protected:
  QString shownText() const override;
  QString forWidget(const std::string& text) const override;
  std::string forPanel(const QString& text) const override;
  void setShownText(const QString& text) override;
  void insert(const QString& text) override;
  int caret() const override;
  void setCaret(int position) override;
  void setLimit(int length) override;

 private:
  QLineEdit& widget_;
};

/// A box of several lines, which end in CR LF on the panel's side.
class LinesView : public TextView {
 public:
  LinesView(TextBox& control, QPlainTextEdit& widget, const UserActions& actions);

 protected:
  QString shownText() const override;
  QString forWidget(const std::string& text) const override;
  std::string forPanel(const QString& text) const override;
  void setShownText(const QString& text) override;
  void insert(const QString& text) override;
  int caret() const override;
  void setCaret(int position) override;
  void setLimit(int) override {}  // the control cuts what is taken, and shows it cut

 private:
  QPlainTextEdit& widget_;
};

}  // namespace gsm
