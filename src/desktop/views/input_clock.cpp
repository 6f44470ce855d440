#include "desktop/views/input_clock.h"

#include <QGuiApplication>
#include <algorithm>
#include <chrono>

namespace velk {
namespace {

constexpr std::chrono::milliseconds kTick{16};
constexpr double kLongest = 0.1;  // seconds; after a pause the camera does not leap

}  // namespace

InputClock::InputClock(ViewInput& input, QObject& owner) : QObject(&owner), input_(input) {
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
  input_.ticksWanted = [this] { begin(); };
}

void InputClock::begin() {
  if (timer_.isActive()) return;
  since_.start();
  timer_.start(kTick);
}

void InputClock::tick() {
  const double seconds = std::min(kLongest, double(since_.nsecsElapsed()) / 1e9);
  since_.start();
  input_.tick(seconds, QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
  if (!input_.wantsTicks()) timer_.stop();
}

}  // namespace velk
