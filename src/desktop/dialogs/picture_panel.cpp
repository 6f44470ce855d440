#include "desktop/dialogs/picture_panel.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kNotch = 120;  // units of a wheel's event
constexpr std::uint32_t kBlack = 0xff000000;
constexpr int kButtonsInARow = 3;
constexpr int kHintLines = 2;
constexpr int kCaptionMargin = 4;
constexpr QColor kCaptionGround(0, 0, 0, 160);

void DrawCaption(QPainter& painter, const QRect& room, const QString& text) {
  if (text.isEmpty()) return;
  const QRect inner = room.adjusted(kCaptionMargin, kCaptionMargin, -kCaptionMargin, -kCaptionMargin);
  constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
  painter.fillRect(painter.boundingRect(inner, kFlags, text).adjusted(-2, -2, 2, 2), kCaptionGround);
  painter.setPen(Qt::white);
  painter.drawText(inner, kFlags, text);
}

QLayout* ButtonRows(const std::shared_ptr<FormPicture>& picture, PictureView* view) {
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  int index = 0;
  for (const std::string& label : picture->buttons()) {
    auto* button = new QPushButton(ShownText(label));
    button->setAutoRepeat(true);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, view,
                     [picture, view, number = static_cast<size_t>(index)] {
                       picture->press(number);
                       view->update();
                     });
    grid->addWidget(button, index / kButtonsInARow, index % kButtonsInARow);
    ++index;
  }
  return grid;
}

}  // namespace

PictureView::PictureView(std::shared_ptr<FormPicture> picture) : picture_(std::move(picture)) {
  setMinimumSize(picture_->width(), picture_->height());
  setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureView::paintEvent(QPaintEvent*) {
  const double scale = devicePixelRatioF();
  PictureImage image;
  image.width = static_cast<int>(std::ceil(width() * scale));
  image.height = static_cast<int>(std::ceil(height() * scale));
  image.pixels.assign(static_cast<size_t>(image.width) * static_cast<size_t>(image.height), kBlack);
  picture_->draw(image);
  QImage shown(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
               QImage::Format_RGB32);
  shown.setDevicePixelRatio(scale);
  QPainter painter(this);
  painter.drawImage(0, 0, shown);
  DrawCaption(painter, rect(), ShownText(picture_->caption()));
}

void PictureView::mousePressEvent(QMouseEvent* event) { last_ = event->pos(); }

void PictureView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QPoint moved = event->pos() - last_;
  last_ = event->pos();
  picture_->drag(moved.x(), moved.y(), event->modifiers().testFlag(Qt::ShiftModifier));
  update();
}

// What turns finer than notches adds up.
void PictureView::wheelEvent(QWheelEvent* event) {
  turned_ += event->angleDelta().y();
  event->accept();
  if (const int notches = turned_ / kNotch) {
    turned_ -= notches * kNotch;
    picture_->wheel(notches);
    update();
  }
}

PicturePanel::PicturePanel(const std::shared_ptr<FormPicture>& picture) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  auto* view = new PictureView(picture);
  column->addWidget(view, 1);
  column->addLayout(ButtonRows(picture, view));
  if (const QString hint = ShownText(picture->hint()); !hint.isEmpty()) {
    auto* label = new QLabel(hint);
    label->setWordWrap(true);
    // The dialog's height does not follow from wrapped text.
    label->setMinimumHeight(kHintLines * label->fontMetrics().lineSpacing());
    column->addWidget(label);
  }
}

}  // namespace velk
