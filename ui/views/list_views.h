#pragma once

#include <QComboBox>
#include <QListWidget>
#include <string>
#include <vector>

#include "controls/list_controls.h"
#include "ui/views/control_view.h"

namespace gsm {

class ComboView : public ViewOf<ComboBox, QComboBox> {
 public:
  ComboView(ComboBox& control, QComboBox& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  void takeTyping();
  void showItems();
  void showSelection();
  void showText();
  void fitOpenList();

  std::vector<std::string> shown_;
};

class ListView : public ViewOf<ListBox, QListWidget> {
 public:
  ListView(ListBox& control, QListWidget& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;

 private:
  int selected() const;  // -1: none
  void pick(int index);
  void showItems();
  void showSelection();

  std::vector<std::string> shown_;
};

}  // namespace gsm
