// Light or dark, as the desktop wants it.
#pragma once

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QObject>

namespace velk {

// Follows the desktop portal's colour scheme where Qt's platform theme brings no colours of its own. Without
// a session bus or a portal the program stays light. Never waits.
class ColourScheme : public QObject {
  Q_OBJECT
 public:
  // The application must exist, with its palette as Qt made it.
  explicit ColourScheme(QObject* parent = nullptr);

  // Takes over an answer that has already come, so that the first window is not painted light for nothing.
  void takeAnswer();

 private Q_SLOTS:
  // A whole message: Qt may not know the types of its parts yet when the slot is connected.
  void settingChanged(const QDBusMessage& message);

 private:
  QDBusPendingCallWatcher* question_ = nullptr;
};

}  // namespace velk
