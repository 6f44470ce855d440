#include "desktop/windows/entity_pair_list.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"

namespace velk {
namespace {

bool Same(const std::vector<SharedPair>& a, const std::vector<SharedPair>& b) {
  return std::ranges::equal(a, b, [](const SharedPair& x, const SharedPair& y) {
    return x.key == y.key && x.value == y.value && x.differs == y.differs;
  });
}

QLineEdit* PartOf(const QWidget* editor, const char* name) { return editor->findChild<QLineEdit*>(name); }

}  // namespace

void EntityPairModel::show(const std::vector<SharedPair>& pairs) {
  if (Same(pairs, pairs_)) return;
  if (pairs.size() == pairs_.size()) {
    pairs_ = pairs;
    if (!pairs_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    return;
  }
  beginResetModel();
  pairs_ = pairs;
  endResetModel();
}

int EntityPairModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(pairs_.size());
}

QVariant EntityPairModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= rowCount()) return {};
  const SharedPair& pair = at(index.row());
  if (role == Qt::DisplayRole) return ShownText(PairText(pair));
  if (role == Qt::ToolTipRole) {
    return pair.differs ? "Differs between the selected entities" : ShownText(PairText(pair));
  }
  if (role == Qt::ForegroundRole && pair.differs)
    return QApplication::palette().brush(QPalette::PlaceholderText);
  return {};
}

Qt::ItemFlags EntityPairModel::flags(const QModelIndex& index) const {
  return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

QWidget* EntityPairDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& /*index*/) const {
  auto* editor = new QWidget(parent);
  editor->setAutoFillBackground(true);
  auto* row = new QHBoxLayout(editor);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (const char* name : {"key", "value"}) {
    auto* part = new QLineEdit(editor);
    part->setObjectName(name);
    part->setFont(option.font);
    part->setFrame(false);
    part->setMaxLength(name == std::string_view("key") ? MAX_KEY - 1 : MAX_VALUE - 1);
    part->installEventFilter(const_cast<EntityPairDelegate*>(this));
    row->addWidget(part, 1);
  }
  editor->setFocusProxy(PartOf(editor, "value"));
  return editor;
}

void EntityPairDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const SharedPair& pair = model_.at(index.row());
  PartOf(editor, "key")->setText(ShownText(pair.key));
  PartOf(editor, "value")->setText(pair.differs ? QString() : ShownText(pair.value));
  PartOf(editor, "value")->selectAll();
}

void EntityPairDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                      const QModelIndex& index) const {
  const std::string old = model_.at(index.row()).key;
  panel_.editPair(old, GivenText(PartOf(editor, "key")->text()), GivenText(PartOf(editor, "value")->text()));
}

// Closing takes the focus from the parts: they are not left a second time.
void EntityPairDelegate::finish(QWidget* editor, bool take) {
  for (const char* name : {"key", "value"}) PartOf(editor, name)->removeEventFilter(this);
  if (take) Q_EMIT commitData(editor);
  Q_EMIT closeEditor(editor, NoHint);
}

// Enter takes what was typed, and so does leaving both parts, at once: a click elsewhere may begin a drag,
// during which nothing is changed. Esc does not.
bool EntityPairDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QWidget*>(watched->parent());
  if (!qobject_cast<QLineEdit*>(watched) || !editor) return QStyledItemDelegate::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool take = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!take && key != Qt::Key_Escape) return false;
    finish(editor, take);
    return true;
  }
  if (event->type() == QEvent::FocusOut && !editor->isAncestorOf(QApplication::focusWidget())) {
    finish(editor, true);
  }
  return false;
}

EntityPairList::EntityPairList(EntityPanel& panel, QWidget* parent)
    : QListView(parent), panel_(panel), pairs_(new EntityPairModel(this)) {
  setModel(pairs_);
  setItemDelegate(new EntityPairDelegate(panel, *pairs_, this));
  setEditTriggers(EditKeyPressed);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& line) {
    panel_.pick(line.row());
    Q_EMIT picked();
  });
  connect(this, &QListView::doubleClicked, this, [this](const QModelIndex& line) {
    panel_.doubleClick(line.row());
    Q_EMIT picked();
  });
  connect(this, &QListView::customContextMenuRequested, this, &EntityPairList::openMenu);
}

void EntityPairList::openMenu(const QPoint& at) {
  if (!panel_.pick(indexAt(at).row())) panel_.pickNone();
  Q_EMIT picked();
  ShowMenu(panel_.contextMenu(), *viewport(), at);
  Q_EMIT picked();
}

void EntityPairList::refresh() { pairs_->show(panel_.pairs()); }

}  // namespace velk
