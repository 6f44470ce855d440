#include "desktop/windows/texture_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kLineFont = 11;  // pixels

QFont SmallFont(const QWidget& widget) {
  QFont font = widget.font();
  font.setPixelSize(kLineFont);
  return font;
}

}  // namespace

TTextureWindow::TTextureWindow(Editor& editor, QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      search_(new QLineEdit),
      names_(new TextureList(editor)),
      header_(new TextureHeader(editor)),
      view_(new TextureView(editor)),
      line_(new QLabel),
      magnified_(new QLabel(this)) {
  setWindowTitle(ShownText(panel().caption()));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* finding = new QHBoxLayout;
  finding->setContentsMargins(2, 2, 2, 2);
  finding->setSpacing(2);
  finding->addWidget(search_, 1);
  finding->addWidget(names_, 1);
  column->addLayout(finding);
  column->addWidget(header_);
  column->addWidget(view_, 1);
  column->addWidget(line_);
  search_->setPlaceholderText(tr("Search"));
  search_->setClearButtonEnabled(true);
  search_->setFont(SmallFont(*this));
  search_->setMinimumWidth(40);
  search_->setToolTip(tr("Words in any order; #used, #wad:NAME"));
  search_->setStatusTip(search_->toolTip());
  search_->installEventFilter(this);
  // Keys stay the editor's until the box is clicked.
  search_->setFocusPolicy(Qt::ClickFocus);
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(view_);
  names_->setFont(SmallFont(*this));
  names_->setMinimumWidth(40);
  names_->setMaximumWidth(QWIDGETSIZE_MAX);
  line_->setFont(SmallFont(*this));
  line_->setMargin(1);
  line_->setMinimumWidth(1);
  magnified_->setAttribute(Qt::WA_TransparentForMouseEvents);
  magnified_->hide();
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (GivenText(text) != panel().search()) panel().setSearch(GivenText(text));
  });
  connect(view_, &TextureView::pointed, this, &TTextureWindow::showPointed);
  connect(&animation_, &QTimer::timeout, this, [this] {
    if (panel().tick()) view_->viewport()->update();
  });
  refresh();
}

// Enter takes the first texture found, Esc shows all again.
bool TTextureWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != search_ || event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Escape) {
    search_->clear();
    view_->setFocus();
    return true;
  }
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  if (panel().pick(0)) view_->setFocus();
  return true;
}

void TTextureWindow::runTimer() {
  const Settings& settings = editor_.settings();
  const int delay = std::max(1, settings.timerdelay);
  if (!settings.animate) {
    animation_.stop();
  } else if (!animation_.isActive() || animation_.interval() != delay) {
    animation_.start(delay);
  }
}

void TTextureWindow::refresh() {
  setWindowTitle(ShownText(panel().caption()));
  if (ShownText(panel().search()) != search_->text()) search_->setText(ShownText(panel().search()));
  names_->refresh();
  header_->refresh();
  view_->refresh();
  runTimer();
  showPointed();
}

void TTextureWindow::contentsChanged() {
  panel().contentsChanged();
  view_->viewport()->update();
}

void TTextureWindow::showPointed() {
  header_->showLabel();
  line_->setVisible(!header_->hasLabel());
  const std::string& label = panel().label();
  const auto& shown = panel().shown();
  line_->setText(label.empty() ? tr("%1 textures").arg(shown.size()) : ShownText(label));
  magnify();
}

void TTextureWindow::magnify() {
  const bool shown = panel().drag() == TexturePanel::Drag::Magnifier;
  if (shown) {
    const QPixmap picture = QPixmap::fromImage(PictureOfMagnified(editor_, devicePixelRatioF()));
    const QSize size = picture.deviceIndependentSize().toSize();
    const int left = header_->hasLabel() ? header_->fieldsLeft() : 0;
    magnified_->setPixmap(picture);
    magnified_->setGeometry(left, header_->y(), size.width(), size.height());
    magnified_->raise();
  }
  magnified_->setVisible(shown);
}

}  // namespace velk
