#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace velk {

// Looks for Esc while something long runs that does not return to the event loop. Short work never sees
// it; in the course of longer one all other input of the user is thrown away.
class EscapeWatch : public QObject {
  Q_OBJECT
 public:
  // The work begins.
  void begin();
  // Whether it is time to show how far the work is, and to look for Esc: some thirty times a second.
  bool due() const;
  // Looks when it is time; true from the press on.
  bool pressed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QElapsedTimer begun_;
  QElapsedTimer looked_;
  bool pressed_ = false;
};

}  // namespace velk
