// Notices that files of open maps, or wads, were changed by others.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

#include "app/editor.h"

namespace velk {

// Lets the editor check the disk, and read wads that changed again, a moment after a file or its folder
// changed, so that whoever writes it can finish, and when the user comes back to the frame. While the user is
// elsewhere, in a dialog or dragging, the check waits.
class FileWatch : public QObject {
  Q_OBJECT
 public:
  // Both must outlive the watch.
  FileWatch(Editor& editor, QWidget& frame);

  // The list of open maps or a path changed.
  void follow();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void check();

  Editor& editor_;
  QWidget& frame_;
  QFileSystemWatcher watcher_;
  QTimer delay_;
};

}  // namespace velk
