// The time of the views: ticks while keys move the camera or a drag scrolls its view, and none otherwise.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "app/view_input.h"

namespace velk {

class InputClock : public QObject {
  Q_OBJECT
 public:
  // The input must outlive it.
  InputClock(ViewInput& input, QObject& owner);

 private:
  void begin();
  void tick();

  ViewInput& input_;
  QTimer timer_;
  QElapsedTimer since_;  // the last tick
};

}  // namespace velk
