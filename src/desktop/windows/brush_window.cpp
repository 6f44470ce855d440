#include "desktop/windows/brush_window.h"

#include <QHeaderView>
#include <QTimer>
#include <QVBoxLayout>

#include "base/text.h"
#include "desktop/dialogs/shown_text.h"
#include "ops/face_textures.h"
#include "panels/brush/brush_panel.h"

namespace velk {
namespace {

constexpr int kFontHeight = 10;  // pixels
constexpr int kTabStops[] = {30, 100, 150, 200};

QColor QtColour(const Colour& from) { return QColor(from.red, from.green, from.blue); }

}  // namespace

TSelectedBrushWindow::TSelectedBrushWindow(Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor), readout_(new QLabel), faces_(new QTreeWidget) {
  setWindowTitle(QString::fromStdString(WindowTitle(editor, ToolWindow::SelectedBrush)));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  readout_->setMargin(3);
  readout_->setMinimumWidth(1);
  column->addWidget(readout_);
  column->addWidget(faces_, 1);
  faces_->setRootIsDecorated(false);
  faces_->setHeaderLabels(ShownText(FACE_LIST_HEADING).split('\t'));
  faces_->header()->setMinimumSectionSize(20);
  int left = 0;
  for (int i = 0; i < 4; ++i) {
    faces_->setColumnWidth(i, kTabStops[i] - left);
    left = kTabStops[i];
  }
  QFont small = font();
  small.setPixelSize(kFontHeight);
  faces_->setFont(small);
  faces_->header()->setFont(small);
  readout_->setFont(small);
  // Not at once: the list is filled anew when the face has changed.
  connect(faces_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (refreshing_ || !item) return;
    const int index = faces_->indexOfTopLevelItem(item);
    QTimer::singleShot(0, this, [this, index] { choose(index); });
  });
  refresh();
}

void TSelectedBrushWindow::refresh() {
  refreshing_ = true;
  readout_->setText(ShownText(editor_.panels().brush.readout()));
  useColours();
  faces_->clear();
  listFaces(editor_.panels().brush.faces());
  refreshing_ = false;
}

void TSelectedBrushWindow::useColours() {
  const ViewColours& colours = editor_.settings().colours;
  QPalette palette = faces_->palette();
  palette.setColor(QPalette::Base, QtColour(colours.bgcolor));
  palette.setColor(QPalette::Text, QtColour(colours.fgcolor));
  faces_->setPalette(palette);
}

void TSelectedBrushWindow::choose(int index) { editor_.panels().brush.pick(index); }

void TSelectedBrushWindow::listFaces(const FaceLines& shown) {
  const ViewColours& colours = editor_.settings().colours;
  for (int i = 0; i < static_cast<int>(shown.lines.size()); ++i) {
    auto* item = new QTreeWidgetItem(faces_, ShownText(shown.lines[static_cast<size_t>(i)]).split('\t'));
    const bool current = i == shown.current;
    for (int column = 0; column < faces_->columnCount(); ++column) {
      item->setForeground(column, QtColour(current ? colours.color_curfacecolor : colours.color_selection));
    }
    if (current) faces_->setCurrentItem(item);
  }
}

}  // namespace velk
