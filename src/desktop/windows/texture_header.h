#pragma once

#include <QDoubleSpinBox>
#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <array>

#include "app/editor.h"

namespace velk {

// A number of the chosen texture: shows it as the browser does, takes any that is typed; its arrow keys step
// as its buttons do.
class TextureNumber : public QDoubleSpinBox {
  Q_OBJECT
 public:
  TextureNumber(TexturePanel& panel, TextureField field, QWidget* parent);

  // Takes the number as it is now, unless it is being typed.
  void refresh();
  void stepBy(int steps) override;
  QString textFromValue(double value) const override;
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& cursor) const override;

 private:
  void take(double number);

  TexturePanel& panel_;
  TextureField field_;
  bool typed_ = false;  // what is shown; otherwise it is rounded and means nothing
};

// A button that steps while it is held; see HeldTextureButton.
class TextureStepButton : public QToolButton {
  Q_OBJECT
 public:
  TextureStepButton(TexturePanel& panel, TextureField field, int direction, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void tick();

  TexturePanel& panel_;
  TextureField field_;
  int direction_;
  HeldTextureButton held_;
  QTimer timer_;
};

// The header of the texture browser: what is under the pointer, the five numbers of the chosen texture and
// their ten buttons. Where it is too narrow for both, it leaves the label to the window and shares its width
// among the numbers.
class TextureHeader : public QWidget {
  Q_OBJECT
 public:
  explicit TextureHeader(Editor& editor, QWidget* parent = nullptr);

  void refresh();
  void showLabel();
  bool hasLabel() const;
  // Where the numbers begin, and a magnified texture.
  int fieldsLeft() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  struct Unit {
    QLabel* name;
    TextureNumber* number;
    TextureStepButton* plus;
    TextureStepButton* minus;
  };
  void layOut();

  Editor& editor_;
  QLabel* label_;
  std::array<Unit, kTextureFields> units_{};
};

}  // namespace velk
