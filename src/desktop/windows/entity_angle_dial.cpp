#include "desktop/windows/entity_angle_dial.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace velk {
namespace {

constexpr int kUp = -1;
constexpr int kDown = -2;
constexpr int kStep = 5;
constexpr int kFullTurn = 360;

}  // namespace

EntityAngleDial::EntityAngleDial(QWidget* parent) : QWidget(parent) {
  setToolTip("Turns the entity; with Ctrl by single degrees");
  setFixedSize(sizeHint());
}

void EntityAngleDial::show(std::optional<int> angle) {
  if (angle == angle_) return;
  angle_ = angle;
  update();
}

void EntityAngleDial::drawNeedle(QPainter& painter, const QRectF& ring) const {
  const std::optional<int> shown = turning_ ? turning_ : angle_;
  if (!shown) return;
  if (*shown == kUp || *shown == kDown) {
    painter.drawText(ring, Qt::AlignCenter, *shown == kUp ? "Up" : "Dn");
    return;
  }
  const double radians = *shown * std::numbers::pi / 180;
  const QPointF direction(std::cos(radians), -std::sin(radians));
  const QPointF tip = ring.center() + direction * ring.width() / 2;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawLine(ring.center(), tip);
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawEllipse(tip, 2.5, 2.5);
}

void EntityAngleDial::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF ring = QRectF(rect()).adjusted(5, 5, -5, -5);
  QColor line = palette().color(QPalette::WindowText);
  line.setAlphaF(0.45F);
  painter.setPen(QPen(line, 1.5));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawEllipse(ring);
  painter.setPen(palette().color(QPalette::Text));
  drawNeedle(painter, ring);
}

void EntityAngleDial::follow(const QMouseEvent& event) {
  const QPointF from = event.position() - QPointF(rect().center());
  const double degrees = std::atan2(-from.y(), from.x()) * 180 / std::numbers::pi;
  const int step = event.modifiers().testFlag(Qt::ControlModifier) ? 1 : kStep;
  turning_ = (static_cast<int>(std::lround(degrees / step)) * step + kFullTurn) % kFullTurn;
  update();
}

void EntityAngleDial::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) follow(*event);
}

void EntityAngleDial::mouseMoveEvent(QMouseEvent* event) {
  if (turning_) follow(*event);
}

void EntityAngleDial::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !turning_) return;
  const int degrees = *turning_;
  turning_.reset();
  Q_EMIT turned(degrees);
  update();
}

}  // namespace velk
