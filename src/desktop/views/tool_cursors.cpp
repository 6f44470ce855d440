#include "desktop/views/tool_cursors.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cmath>

namespace velk {
namespace {

constexpr int kSize = 24;  // of a drawn cursor, pixels
constexpr QPoint kMiddle(11, 11);

// A cross with a mark to its lower right, white with a dark edge so that it stands out from any picture.
QCursor Drawn(const QPainterPath& path, double devicePixelRatio) {
  const int side = static_cast<int>(std::lround(kSize * devicePixelRatio));
  QPixmap picture(side, side);
  picture.setDevicePixelRatio(devicePixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(0.5, 0.5);
  for (const auto& [colour, width] : {std::pair{QColor(0, 0, 0), 3.5}, {QColor(255, 255, 255), 1.5}}) {
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
  }
  painter.end();
  return QCursor(picture, kMiddle.x(), kMiddle.y());
}

QPainterPath Cross() {
  QPainterPath path;
  for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
    path.moveTo(kMiddle + way * 3);
    path.lineTo(kMiddle + way * 9);
  }
  return path;
}

QPainterPath DrawPath() {
  QPainterPath path = Cross();
  path.addRect(15, 15, 7, 7);
  return path;
}

QPainterPath VertexPath() {
  QPainterPath path;
  path.addRect(8, 8, 6, 6);
  for (const QPointF way : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
    path.moveTo(kMiddle + way * 4);
    path.lineTo(kMiddle + way * 9);
  }
  return path;
}

QPainterPath TurnPath() {
  QPainterPath path;
  path.arcMoveTo(3, 3, 16, 16, 60);
  path.arcTo(3, 3, 16, 16, 60, 280);
  const QPointF end = path.currentPosition();
  path.moveTo(end + QPointF(-4, 3));
  path.lineTo(end);
  path.lineTo(end + QPointF(1.5, 5));
  path.addEllipse(QPointF(kMiddle), 1, 1);
  return path;
}

QPainterPath ClipPath() {
  QPainterPath path = Cross();
  path.moveTo(14, 20);
  path.lineTo(20, 14);
  path.addRect(13, 19, 2, 2);
  path.addRect(19, 13, 2, 2);
  return path;
}

}  // namespace

QCursor QtCursorOf(CursorShape shape, bool crossWhenIdle, double devicePixelRatio) {
  switch (shape) {
    case CursorShape::Draw:
      return Drawn(DrawPath(), devicePixelRatio);
    case CursorShape::Move:
      return Qt::SizeAllCursor;
    case CursorShape::Resize:
      return Qt::SizeFDiagCursor;
    case CursorShape::Vertex:
      return Drawn(VertexPath(), devicePixelRatio);
    case CursorShape::Turn:
      return Drawn(TurnPath(), devicePixelRatio);
    case CursorShape::Clip:
      return Drawn(ClipPath(), devicePixelRatio);
    case CursorShape::Pan:
      return Qt::ClosedHandCursor;
    case CursorShape::Refused:
      return Qt::ForbiddenCursor;
    case CursorShape::Idle:
      break;
  }
  return crossWhenIdle ? Qt::CrossCursor : Qt::ArrowCursor;
}

}  // namespace velk
