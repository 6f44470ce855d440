#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <optional>
#include <vector>

#include "base/form.h"
#include "base/paths.h"
#include "desktop/dialogs/form_pages.h"

namespace velk {

// A form as a dialog.
class FormDialog : public QDialog {
  Q_OBJECT
 public:
  // One that is filled in before anything else goes on. The form must outlive the dialog; paths (may be none)
  // turn its folders into native ones.
  FormDialog(Form& form, const Paths* paths, QWidget* parent);
  // One that stays open beside the windows, and deletes itself when it is closed.
  FormDialog(ModelessForm form, const Paths* paths, QWidget* parent);

  // Shows the dialog; after Cancel the form's fields and note are as before.
  FormAnswer run();
  // Brings the dialog to the front, ready for typing into its first field.
  void present();

 private:
  void build(const Paths* paths, QDialogButtonBox* buttons);
  QWidget* refusalRow();
  QDialogButtonBox* modalButtons();
  QDialogButtonBox* modelessButtons();
  void change(size_t field, const std::string& value);
  void tellChanged();
  bool isAccepted();
  void showRefusal(const FormRefusal& refusal);
  void finish(FormAnswer answer);
  void press(size_t button);

  std::optional<ModelessForm> modeless_;
  Form& form_;
  const std::vector<FormField> fieldsBefore_;
  const std::string noteBefore_;
  FormPages* pages_ = nullptr;
  QLabel* note_ = nullptr;
  QWidget* refusal_ = nullptr;  // shown after a check that failed
  QLabel* reason_ = nullptr;    // within it
  QWidget* picture_ = nullptr;  // none without one
  std::vector<QPushButton*> accepting_;
  FormAnswer answer_ = FormAnswer::Cancel;
};

}  // namespace velk
