#pragma once

#include <QTextBrowser>

namespace velk {

// The manual in a window of its own, which Esc closes. Its page of keys is made from the command table.
class HelpWindow : public QTextBrowser {
  Q_OBJECT
 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  // Shows the contents page.
  void showContents();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QVariant loadResource(int type, const QUrl& name) override;
};

}  // namespace velk
