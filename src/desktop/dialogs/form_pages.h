#pragma once

#include <QTabWidget>
#include <QVBoxLayout>
#include <vector>

#include "desktop/dialogs/field_editors.h"

namespace velk {

// The fields of a form laid out: a tab a page, on each the check boxes beside the other fields, colours in a
// grid of buttons.
class FormPages : public QWidget {
  Q_OBJECT
 public:
  // One editor a field.
  FormPages(const Form& form, std::vector<FieldEditor> editors);

  // Shows every field as it is now.
  void refresh(const Form& form);
  // Brings the field's page to the front, and the field to where typing goes.
  void focus(size_t field);

 private:
  QWidget* page(const Form& form, const std::string& name);

  std::vector<FieldEditor> editors_;
  QTabWidget* tabs_ = nullptr;  // none without pages
};

}  // namespace velk
