#include "desktop/frame/status_bar.h"

namespace velk {

TVelkStatusBar::TVelkStatusBar(QWidget* parent) : QStatusBar(parent), message_(new QLabel(this)) {
  message_->setTextFormat(Qt::PlainText);
  // A long message must not make the frame wider.
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  addWidget(message_, 1);
}

void TVelkStatusBar::post(const QString& message) {
  clearMessage();
  message_->setText(message);
  // What takes long tells how far it is.
  message_->repaint();
}

}  // namespace velk
