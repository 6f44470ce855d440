#include "desktop/windows/brush_window.h"

#include <QHeaderView>
#include <QTimer>
#include <QVBoxLayout>

#include "base/text.h"
#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"
#include "ops/face_textures.h"

namespace velk {
namespace {

constexpr int kFontHeight = 10;  // pixels
constexpr int kTabStops[] = {30, 100, 150, 200};
constexpr int kFewestLines = 8;  // that the list always shows
constexpr int kLineHeight = 15;

// A quarter of the way from one to the other.
QColor Between(const QColor& from, const QColor& to) {
  return {(3 * from.red() + to.red()) / 4, (3 * from.green() + to.green()) / 4,
          (3 * from.blue() + to.blue()) / 4};
}

}  // namespace

TSelectedBrushWindow::TSelectedBrushWindow(Editor& editor, QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      readout_(new SelectionHandle),
      details_(new QLabel),
      preview_(new BrushPreviewView(editor)),
      fields_(new FaceFields(editor.panels().brush)),
      faces_(new QTreeWidget) {
  setWindowTitle(QString::fromStdString(WindowTitle(editor, ToolWindow::SelectedBrush)));
  QFont small = font();
  small.setPixelSize(kFontHeight);
  setFont(small);
  setFocusPolicy(Qt::ClickFocus);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 2, 0, 0);
  column->setSpacing(2);
  for (QLabel* line : {static_cast<QLabel*>(readout_), details_}) {
    line->setContentsMargins(4, 0, 4, 0);
    line->setMinimumWidth(1);
    line->setTextFormat(Qt::PlainText);
    column->addWidget(line);
  }
  column->addWidget(preview_, 3, Qt::AlignHCenter);
  column->addWidget(fields_);
  buildFaces();
  column->addWidget(faces_, 2);
  refresh();
}

void TSelectedBrushWindow::buildFaces() {
  faces_->setRootIsDecorated(false);
  faces_->setUniformRowHeights(true);
  faces_->setHeaderLabels(ShownText(FACE_LIST_HEADING).split('\t'));
  faces_->header()->setMinimumSectionSize(20);
  int left = 0;
  for (int i = 0; i < 4; ++i) {
    faces_->setColumnWidth(i, kTabStops[i] - left);
    left = kTabStops[i];
  }
  faces_->setFont(font());
  faces_->header()->setFont(font());
  faces_->setMinimumHeight(kFewestLines * kLineHeight + faces_->header()->sizeHint().height() + 4);
  faces_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Not at once: the list is filled anew when the face has changed.
  connect(faces_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (refreshing_ || !item) return;
    const int index = faces_->indexOfTopLevelItem(item);
    QTimer::singleShot(0, this, [this, index] { choose(index); });
  });
}

void TSelectedBrushWindow::refresh() {
  refreshing_ = true;
  BrushPanel& panel = editor_.panels().brush;
  readout_->setText(ShownText(panel.readout()));
  readout_->setLoaded(panel.faces().current >= 0);
  details_->setText(ShownText(panel.details()));
  useColours();
  listFaces(panel.faces());
  fields_->refresh();
  preview_->refresh();
  refreshing_ = false;
}

void TSelectedBrushWindow::useColours() {
  const ViewColours& colours = editor_.settings().colours;
  QPalette palette = faces_->palette();
  if (palette.color(QPalette::Base) == QtColour(colours.bgcolor) &&
      palette.color(QPalette::Text) == QtColour(colours.fgcolor) &&
      palette.color(QPalette::HighlightedText) == QtColour(colours.color_curfacecolor)) {
    return;
  }
  palette.setColor(QPalette::Base, QtColour(colours.bgcolor));
  palette.setColor(QPalette::Text, QtColour(colours.fgcolor));
  // The line chosen is the current face's.
  palette.setColor(QPalette::HighlightedText, QtColour(colours.color_curfacecolor));
  palette.setColor(QPalette::Highlight, Between(QtColour(colours.bgcolor), QtColour(colours.fgcolor)));
  faces_->setPalette(palette);
  QPalette heading = faces_->header()->palette();
  heading.setColor(QPalette::Button, QtColour(colours.bgcolor));
  heading.setColor(QPalette::ButtonText, QtColour(colours.fgcolor));
  faces_->header()->setPalette(heading);
}

void TSelectedBrushWindow::choose(int index) { editor_.panels().brush.pick(index); }

void TSelectedBrushWindow::listFaces(const FaceLines& shown) {
  if (shown.lines != listed_.lines) {
    faces_->clear();
    for (const std::string& line : shown.lines) new QTreeWidgetItem(faces_, ShownText(line).split('\t'));
  }
  listed_ = shown;
  markCurrent(shown.current);
}

void TSelectedBrushWindow::markCurrent(int current) {
  const ViewColours& colours = editor_.settings().colours;
  for (int i = 0; i < faces_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = faces_->topLevelItem(i);
    const QColor colour = QtColour(i == current ? colours.color_curfacecolor : colours.color_selection);
    for (int column = 0; column < faces_->columnCount(); ++column) item->setForeground(column, colour);
    if (i == current) faces_->setCurrentItem(item);
  }
}

}  // namespace velk
