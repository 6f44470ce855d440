#pragma once

#include <QDialog>
#include <QFormLayout>
#include <functional>
#include <vector>

#include "base/form.h"
#include "base/paths.h"

namespace velk {

// A form as a dialog: texts and choices in one column, check boxes in another, colours in a grid of buttons.
class FormDialog : public QDialog {
  Q_OBJECT
 public:
  // The form must outlive the dialog; paths (may be none) turn its folders into native ones.
  FormDialog(Form& form, const Paths* paths, QWidget* parent);

  // Shows the dialog; unless it is cancelled, the values are in the form.
  FormAnswer run();

 private:
  QWidget* column(bool flags);
  QWidget* colourGrid();
  QWidget* editorFor(FormField& field);
  QWidget* textEditor(FormField& field);
  QWidget* flagEditor(FormField& field);
  QWidget* choiceEditor(FormField& field);
  QWidget* colourEditor(FormField& field);
  QWidget* pathEditor(FormField& field);
  QWidget* buttons();

  Form& form_;
  const Paths* paths_;
  std::vector<std::function<void()>> collect_;  // take the editors' values into the form
  FormAnswer answer_ = FormAnswer::Cancel;
};

}  // namespace velk
