#include "desktop/windows/build_lines.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

using Kind = OutputLine::Kind;

// Readable on a light and on a dark ground.
QVariant ColourOf(Kind kind) {
  const bool dark = QApplication::palette().color(QPalette::Base).lightness() < 128;
  switch (kind) {
    case Kind::Good:
      return QColor(dark ? "#6fd08c" : "#1b7a3a");
    case Kind::Warning:
      return QColor(dark ? "#e5b567" : "#8a5a00");
    case Kind::Error:
      return QColor(dark ? "#ff7b72" : "#b3261e");
    case Kind::Leak:
      return QColor(dark ? "#ff8fd8" : "#a3127f");
    case Kind::Plain:
    case Kind::Head:
      break;
  }
  return {};
}

}  // namespace

void BuildLines::refresh(size_t dropped) {
  const int now = panel_.lineCount();
  // The list follows what is added behind; anything else is shown anew. What was chosen stays so.
  if (panel_.page() != page_ || dropped != dropped_ || now < count_) {
    beginResetModel();
    page_ = panel_.page();
    dropped_ = dropped;
    count_ = now;
    endResetModel();
  } else if (now > count_) {
    beginInsertRows({}, count_, now - 1);
    count_ = now;
    endInsertRows();
  }
  // Another check, or what a line found is gone.
  if (page_ == BuildPanel::Page::Check && count_ > 0) Q_EMIT dataChanged(index(0), index(count_ - 1));
}

QVariant BuildLines::data(const QModelIndex& index, int role) const {
  // Between a change and its refresh there may be fewer lines.
  if (!index.isValid() || index.row() >= panel_.lineCount()) return {};
  const OutputLine line = panel_.lineAt(index.row());
  if (role == Qt::DisplayRole) return ShownText(line.text);
  if (role == Qt::ForegroundRole) return ColourOf(line.kind);
  if (role != Qt::FontRole) return {};
  QFont font = QApplication::font();
  font.setBold(line.kind == Kind::Head);
  font.setUnderline(panel_.isLink(index.row()));
  return font;
}

}  // namespace velk
