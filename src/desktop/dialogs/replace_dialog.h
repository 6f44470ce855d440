#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "app/editor.h"

namespace velk {

// Replaces one texture by another in the current map. Stays open beside the editor's windows.
class ReplaceDialog : public QDialog {
  Q_OBJECT
 public:
  // The editor must outlive the dialog.
  explicit ReplaceDialog(Editor& editor, QWidget* parent = nullptr);

  // Shows the dialog, ready for a name to be typed.
  void present();

 private:
  void replace();
  void enableButtons();

  Editor& editor_;
  QLineEdit* find_;
  QLineEdit* with_;
  QPushButton* replace_;
  QPushButton* replaceAll_;
};

}  // namespace velk
