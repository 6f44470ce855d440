#include "desktop/windows/brush_window.h"

#include <QHeaderView>
#include <QTimer>
#include <QVBoxLayout>

#include "base/text.h"
#include "commands/handlers.h"
#include "desktop/dialogs/shown_text.h"
#include "ops/face_textures.h"

namespace velk {
namespace {

constexpr int kFontHeight = 10;  // pixels
constexpr int kTabStops[] = {30, 100, 150, 200};

QColor colour(const Colour& from) { return QColor(from.red, from.green, from.blue); }

std::string ReadoutOf(const map* m, const brush* shown, int selected) {
  if (!m || !shown) return Format("[%i] Selected", selected);
  return Format("[%i] Selected   (%g %g %g) - (%g %g %g)", selected, double(shown->mins.x),
                double(shown->mins.y), double(shown->mins.z), double(shown->maxs.x), double(shown->maxs.y),
                double(shown->maxs.z));
}

}  // namespace

TSelectedBrushWindow::TSelectedBrushWindow(Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor), readout_(new QLabel), faces_(new QTreeWidget) {
  setWindowTitle(QString::fromStdString(editor.titleOf(ToolWindow::SelectedBrush)));
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
    QTimer::singleShot(0, this, [this, index] { commands::chooseFace(editor_, index); });
  });
  refresh();
}

void TSelectedBrushWindow::refresh() {
  refreshing_ = true;
  map* m = editor_.currentMap();
  const brush* shown = m ? m->firstSelected() : nullptr;
  readout_->setText(ShownText(ReadoutOf(m, shown, m ? m->totalSelected() : 0)));
  useColours();
  faces_->clear();
  if (shown) listFaces(*shown);
  refreshing_ = false;
}

void TSelectedBrushWindow::useColours() {
  const ViewColours& colours = editor_.settings().colours;
  QPalette palette = faces_->palette();
  palette.setColor(QPalette::Base, colour(colours.bgcolor));
  palette.setColor(QPalette::Text, colour(colours.fgcolor));
  faces_->setPalette(palette);
}

void TSelectedBrushWindow::listFaces(const brush& shown) {
  const ViewColours& colours = editor_.settings().colours;
  for (int i = 0; i < shown.numfaces(); ++i) {
    auto* item = new QTreeWidgetItem(faces_, ShownText(FaceListLine(shown, i)).split('\t'));
    const bool current = i == shown.currentFace();
    for (int column = 0; column < faces_->columnCount(); ++column) {
      item->setForeground(column, colour(current ? colours.color_curfacecolor : colours.color_selection));
    }
    if (current) faces_->setCurrentItem(item);
  }
}

}  // namespace velk
