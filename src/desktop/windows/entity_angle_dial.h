#pragma once

#include <QWidget>
#include <optional>

namespace velk {

// Shows an entity's angle as a needle and turns it by mouse: 0 to the right, 90 up, as plan views show them;
// a mark for up and down. Steps of 5 degrees, single ones with CTRL.
class EntityAngleDial : public QWidget {
  Q_OBJECT
 public:
  explicit EntityAngleDial(QWidget* parent = nullptr);

  // Degrees, -1 up, -2 down; none for no angle.
  void show(std::optional<int> angle);
  QSize sizeHint() const override { return {44, 44}; }

 Q_SIGNALS:
  // At the release of the button.
  void turned(int degrees);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void follow(const QMouseEvent& event);
  void drawNeedle(QPainter& painter, const QRectF& ring) const;

  std::optional<int> angle_;
  std::optional<int> turning_;  // while the button is held
};

}  // namespace velk
