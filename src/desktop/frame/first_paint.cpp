#include "desktop/frame/first_paint.h"

#include <QEvent>
#include <QTimer>
#include <cstdio>
#include <ctime>

namespace velk {
namespace {

void Report() {
  std::printf("%.1f\n", 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
  std::fflush(stdout);
}

class FirstPaint : public QObject {
 public:
  using QObject::QObject;

  // Widgets inside the window are painted after it; then the event loop has its turn.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, this, Report);
    }
    return false;
  }
};

}  // namespace

void ReportFirstPaint(QWidget& window) { window.installEventFilter(new FirstPaint(&window)); }

}  // namespace velk
