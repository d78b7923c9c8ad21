#include "ui/views/letters.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontInfo>
#include <QGridLayout>
#include <QRegularExpression>

namespace gsm {
namespace {

QSize grownMaximum(const QSize& size, double growth) {
  const auto grown = [growth](int length) {
    return length == QWIDGETSIZE_MAX ? length : qRound(length * growth);
  };
  return {grown(size.width()), grown(size.height())};
}

void growColumns(QGridLayout& grid, double growth) {
  for (int column = 0; column < grid.columnCount(); ++column) {
    grid.setColumnMinimumWidth(column, qRound(grid.columnMinimumWidth(column) * growth));
  }
}

}  // namespace

// Desktops come with letters of 9 to 11 points, for which the windows are made. Who has chosen
// larger ones needs them here too.
double growthOfLetters() {
  constexpr double kLargestUsual = 11;
  constexpr double kMadeFor = 10;
  const QFont font = QApplication::font();
  // Where it is given in pixels; that of the drawn letters is rounded to whole ones.
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  return points > kLargestUsual ? points / kMadeFor : 1;
}

// A margin is that of a group, above which its caption stands.
QString grownWithLetters(QString sheet, double growth) {
  static const QRegularExpression length(R"((?:font-size|margin-top): (\d+))");
  for (auto found = length.match(sheet); found.hasMatch();) {
    const QString grown = QString::number(qRound(found.captured(1).toInt() * growth));
    sheet.replace(found.capturedStart(1), found.capturedLength(1), grown);
    found = length.match(sheet, found.capturedStart(1) + grown.size());
  }
  return sheet;
}

void growWithLetters(QWidget& form, double growth) {
  if (growth == 1) return;
  form.resize(form.size() * growth);
  QList<QWidget*> all = form.findChildren<QWidget*>();
  all.append(&form);
  for (QWidget* each : all) {
    each->setMaximumSize(grownMaximum(each->maximumSize(), growth));
    each->setMinimumSize(each->minimumSize() * growth);
    if (auto* button = qobject_cast<QAbstractButton*>(each)) {
      button->setIconSize(button->iconSize() * growth);
    }
  }
  for (QGridLayout* grid : form.findChildren<QGridLayout*>()) growColumns(*grid, growth);
}

}  // namespace gsm
