// Starts programs as processes of the system.
#pragma once

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include "build/program_runner.h"

namespace velk {

// Each program runs in a process group of its own, so that a script's children can be stopped with it. The
// one that runs is stopped when this goes.
class QtPrograms : public QObject, public ProgramRunner {
  Q_OBJECT
 public:
  explicit QtPrograms(QObject* parent = nullptr);
  ~QtPrograms() override;

  bool startAlone(const NativeLaunch& launch) override;
  void run(const NativeLaunch& launch) override;
  void stop() override;
  void wait(std::chrono::milliseconds most) override;

 private:
  void readOutput();
  void tell(const ProgramEnd& end);
  void signalGroup(int signal) const;

  QProcess* process_ = nullptr;  // while one runs
  qint64 group_ = 0;
  QTimer force_;
  QEventLoop* waiting_ = nullptr;
};

}  // namespace velk
