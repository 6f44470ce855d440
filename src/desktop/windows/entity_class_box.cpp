#include "desktop/windows/entity_class_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kMark = 12;  // pixels

QColor ColourOf(const EntityClass& shown) {
  const auto channel = [](float c) { return std::clamp(static_cast<int>(c * 255), 0, 255); };
  return {channel(shown.color[0]), channel(shown.color[1]), channel(shown.color[2])};
}

// A dot for points, a block for what is built of brushes.
QPixmap MarkOf(const EntityClass& shown) {
  QPixmap mark(2 * kMark, 2 * kMark);
  mark.setDevicePixelRatio(2);
  mark.fill(Qt::transparent);
  QPainter painter(&mark);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(128, 128, 128), 1));
  painter.setBrush(ColourOf(shown));
  const QRectF box(1.5, 1.5, kMark - 3, kMark - 3);
  shown.fixedSize ? painter.drawEllipse(box) : painter.drawRect(box);
  return mark;
}

}  // namespace

int EntityClassModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : classes_.count();
}

QVariant EntityClassModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= classes_.count()) return {};
  const EntityClass& shown = classes_.classAt(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return ShownText(shown.name);
    case Qt::DecorationRole:
      return MarkOf(shown);
    case Qt::ToolTipRole:
      return shown.fixedSize ? "A point of fixed size" : "Built of brushes";
    default:
      return {};
  }
}

void EntityClassModel::reload() {
  beginResetModel();
  endResetModel();
}

EntityClassBox::EntityClassBox(const EntityClassList& classes, QWidget* parent)
    : QComboBox(parent), model_(new EntityClassModel(classes, this)) {
  setModel(model_);
  setEditable(true);
  setInsertPolicy(NoInsert);
  setMinimumContentsLength(10);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setFocusPolicy(Qt::ClickFocus);
  setMaxVisibleItems(24);
  auto* narrowed = new QCompleter(model_, this);
  narrowed->setCaseSensitivity(Qt::CaseInsensitive);
  narrowed->setFilterMode(Qt::MatchContains);
  narrowed->setCompletionMode(QCompleter::PopupCompletion);
  narrowed->setMaxVisibleItems(16);
  setCompleter(narrowed);
  connect(this, &QComboBox::activated, this, &EntityClassBox::choose);
  connect(lineEdit(), &QLineEdit::returnPressed, this, &EntityClassBox::takeTyped);
  connect(lineEdit(), &QLineEdit::editingFinished, this, [this] {
    if (!completer()->popup()->isVisible()) setEditText(shown_);
  });
}

void EntityClassBox::show(int index, const QString& text) {
  if (index == currentIndex() && text == shown_ && currentText() == text) return;
  const QSignalBlocker blocker(this);
  shown_ = text;
  setCurrentIndex(index);
  setEditText(text);
  lineEdit()->setCursorPosition(0);
}

void EntityClassBox::reload() {
  const QSignalBlocker blocker(this);
  model_->reload();
}

void EntityClassBox::choose(int index) {
  shown_ = itemText(index);
  lineEdit()->clearFocus();
  Q_EMIT chosen(index);
}

void EntityClassBox::takePending() {
  if (lineEdit()->text() != shown_) takeTyped();
}

// Enter takes the class of that name, otherwise the first one whose name holds the text.
void EntityClassBox::takeTyped() {
  const QString typed = lineEdit()->text();
  int index = findText(typed, Qt::MatchFixedString);
  if (index < 0 && !typed.isEmpty()) {
    completer()->setCompletionPrefix(typed);
    index = findText(completer()->currentCompletion());
  }
  if (index >= 0) {
    setCurrentIndex(index);
    choose(index);
  } else {
    setEditText(shown_);
  }
}

// The window may be scrolled over without choosing something.
void EntityClassBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace velk
