#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <array>
#include <vector>

#include "app/editor.h"
#include "desktop/windows/entity_angle_dial.h"
#include "desktop/windows/entity_class_box.h"
#include "desktop/windows/entity_pair_list.h"

class QBoxLayout;

namespace velk {

// The entity window: classes to choose from, and the pairs, flags, angle and links of the current entity.
class EntityView : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit EntityView(Editor& editor, QWidget* parent = nullptr);

  // Shows the current entity as it is now.
  void refresh();
  // The classes were read anew.
  void reloadClasses();

 private:
  EntityPanel& panel() { return editor_.panels().entities; }
  QToolButton* button(const QString& text, const QString& hint);
  QLineEdit* field(void (EntityPanel::*typed)(std::string_view));
  QBoxLayout* classRow();
  QBoxLayout* labelRow();
  QBoxLayout* fieldRow();
  QLayout* flagGrid();
  QBoxLayout* angleRow();
  void buildLinks();
  void showFields();
  void showFlags();
  void showAngle();
  void showLinks();
  void showColour();

  struct AngleButton {
    int angle;
    QToolButton* button;
  };

  Editor& editor_;
  EntityClassBox* classes_;
  QPushButton* make_;
  QPlainTextEdit* comment_;
  QLabel* label_;
  QCheckBox* all_;
  EntityPairList* pairs_;
  QLineEdit* key_;
  QLineEdit* value_;
  QToolButton* colour_;
  std::array<QCheckBox*, EntityPanel::kFlags> flags_{};
  EntityAngleDial* dial_;
  std::vector<AngleButton> angles_;
  QListWidget* links_;
};

}  // namespace velk
