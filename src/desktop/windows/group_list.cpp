#include "desktop/windows/group_list.h"

#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>

#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"
#include "desktop/windows/selection_handle.h"

namespace velk {
namespace {

constexpr size_t kMark = 4;  // characters of "[V] " before a name
constexpr int kCountRoom = 44;

QPixmap SwatchOf(Colour colour) {
  constexpr int kSide = 20;
  QPixmap swatch(kSide, kSide);
  swatch.setDevicePixelRatio(2);
  swatch.fill(QtColour(colour));
  QPainter painter(&swatch);
  painter.setPen(QColor(128, 128, 128));
  painter.drawRect(QRectF(0, 0, kSide / 2.0 - 0.5, kSide / 2.0 - 0.5));
  return swatch;
}

// The number of brushes stands at the right end of the line.
class GroupDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setOpacity(0.65);
    painter->drawText(option.rect.adjusted(0, 0, -4, 0), Qt::AlignRight | Qt::AlignVCenter,
                      index.data(GroupModel::kBrushesRole).toString());
    painter->restore();
  }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* text = qobject_cast<QLineEdit*>(editor)) text->setMaxLength(GroupList::kMaxName);
    return editor;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int room = option->rect.width() - kCountRoom - 2 * option->decorationSize.width();
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, std::max(20, room));
  }
};

}  // namespace

void GroupModel::refresh() {
  std::vector<GroupPanel::Line> now = panel_.lines();
  if (now.size() == lines_.size()) {
    lines_ = std::move(now);
    if (!lines_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    return;
  }
  beginResetModel();
  lines_ = std::move(now);
  endResetModel();
}

int GroupModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant GroupModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= rowCount()) return {};
  const GroupPanel::Line& line = lines_[static_cast<size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return ShownText(line.text);
    case Qt::EditRole:
      return ShownText(line.text.substr(kMark));
    case Qt::ToolTipRole:
      return ShownText(line.text) + QString(": %1 brushes").arg(line.brushes);
    case Qt::CheckStateRole:
      return line.visible ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
      return SwatchOf(line.colour);
    case kBrushesRole:
      return QString::number(line.brushes);
    default:
      return {};
  }
}

// What is done fills the list anew: not while the view is still at it. A name is taken at once, since a click
// elsewhere may begin a drag, during which nothing is changed.
bool GroupModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const int row = index.row();
  if (role == Qt::CheckStateRole) {
    QTimer::singleShot(0, this, [this, row] { panel_.toggleVisible(row); });
  } else if (role == Qt::EditRole) {
    panel_.renameTo(row, GivenText(value.toString()));
  }
  return true;
}

Qt::ItemFlags GroupModel::flags(const QModelIndex& index) const {
  return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable | Qt::ItemIsEditable |
         Qt::ItemIsDropEnabled;
}

QStringList GroupModel::mimeTypes() const { return {kSelectionMime}; }

bool GroupModel::dropMimeData(const QMimeData* dropped, Qt::DropAction, int, int, const QModelIndex& onto) {
  if (!dropped->hasFormat(kSelectionMime) || !onto.isValid()) return false;
  QTimer::singleShot(0, this, [this, row = onto.row()] { panel_.moveSelected(row); });
  return true;
}

TVelkGroupListBox::TVelkGroupListBox(GroupPanel& panel, QWidget* parent)
    : QListView(parent), panel_(panel), groups_(new GroupModel(panel, this)) {
  setModel(groups_);
  setItemDelegate(new GroupDelegate(this));
  setEditTriggers(EditKeyPressed);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAcceptDrops(true);
  setDragDropMode(DropOnly);
  setDropIndicatorShown(true);
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& line) { panel_.pick(line.row()); });
  connect(this, &QListView::doubleClicked, this,
          [this](const QModelIndex& line) { panel_.doubleClick(line.row()); });
  connect(this, &QListView::customContextMenuRequested, this, &TVelkGroupListBox::openMenu);
}

void TVelkGroupListBox::openMenu(const QPoint& at) {
  panel_.pickForMenu(indexAt(at).row());
  ShowMenu(panel_.contextMenu(), *viewport(), at);
  refresh();
}

void TVelkGroupListBox::refresh() {
  groups_->refresh();
  setCurrentIndex(groups_->index(panel_.current()));
}

}  // namespace velk
