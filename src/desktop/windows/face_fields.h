#pragma once

#include <QLineEdit>
#include <QWidget>
#include <array>

#include "panels/brush/brush_panel.h"

namespace velk {

// The texture definition of the current face as fields: name, shifts, rotation, scales.
class FaceFields : public QWidget {
  Q_OBJECT
 public:
  // The panel must outlive the widget.
  explicit FaceFields(BrushPanel& panel, QWidget* parent = nullptr);

  void refresh();

 private:
  void take();

  BrushPanel& panel_;
  QLineEdit* name_;
  std::array<QLineEdit*, 5> numbers_{};  // s, t, rotation, scale s, scale t
};

}  // namespace velk
