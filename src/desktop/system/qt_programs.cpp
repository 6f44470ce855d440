#include "desktop/system/qt_programs.h"

#include <QPointer>
#include <csignal>

#include <unistd.h>

#include "desktop/system/path_text.h"

namespace velk {
namespace {

constexpr std::chrono::seconds kPatience{2};

QStringList TextsOf(const std::vector<std::string>& texts) {
  QStringList list;
  for (const std::string& text : texts) list << PathText(text);
  return list;
}

void Prepare(QProcess& process, const NativeLaunch& launch) {
  process.setProgram(PathText(launch.program));
  process.setArguments(TextsOf(launch.arguments));
  if (!launch.directory.empty()) process.setWorkingDirectory(PathText(launch.directory));
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto& [name, value] : launch.variables) environment.insert(PathText(name), PathText(value));
  process.setProcessEnvironment(environment);
  process.setStandardInputFile(QProcess::nullDevice());
}

}  // namespace

QtPrograms::QtPrograms(QObject* parent) : QObject(parent) {
  force_.setSingleShot(true);
  force_.setInterval(kPatience);
  connect(&force_, &QTimer::timeout, this, [this] { signalGroup(SIGKILL); });
}

QtPrograms::~QtPrograms() {
  if (!process_) return;
  process_->disconnect(this);
  signalGroup(SIGKILL);
  process_->waitForFinished(1000);
  delete process_;
}

bool QtPrograms::startAlone(const NativeLaunch& launch) {
  QProcess process;
  Prepare(process, launch);
  return process.startDetached();
}

void QtPrograms::run(const NativeLaunch& launch) {
  process_ = new QProcess;
  Prepare(*process_, launch);
  process_->setProcessChannelMode(QProcess::MergedChannels);
  process_->setChildProcessModifier([] { setsid(); });
  connect(process_, &QProcess::readyRead, this, &QtPrograms::readOutput);
  connect(process_, &QProcess::started, this, [this] { group_ = process_->processId(); });
  connect(process_, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
    readOutput();
    tell({how == QProcess::NormalExit ? ProgramEnd::How::Exited : ProgramEnd::How::Died, status, {}});
  });
  // What cannot be started says so at once; whoever asked is told later, as of any other end.
  connect(
      process_, &QProcess::errorOccurred, this,
      [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart || !process_) return;
        tell({ProgramEnd::How::NotStarted, 0, PathBytes(process_->errorString())});
      },
      Qt::QueuedConnection);
  group_ = 0;
  process_->start();
  // Known at once, so that no end of the editor leaves it behind.
  group_ = process_->processId();
}

void QtPrograms::stop() {
  if (!process_) return;
  signalGroup(SIGTERM);
  force_.start();
}

void QtPrograms::wait(std::chrono::milliseconds most) {
  QEventLoop loop;
  waiting_ = &loop;
  QTimer::singleShot(most, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  waiting_ = nullptr;
}

void QtPrograms::readOutput() {
  if (!process_) return;
  const QByteArray bytes = process_->readAll();
  if (!bytes.isEmpty()) output({bytes.constData(), static_cast<size_t>(bytes.size())});
  if (waiting_) waiting_->quit();
}

void QtPrograms::tell(const ProgramEnd& end) {
  QProcess* over = process_;
  process_ = nullptr;
  force_.stop();
  over->deleteLater();
  ended(end);
  if (waiting_) waiting_->quit();
}

void QtPrograms::signalGroup(int signal) const {
  if (group_ > 0 && process_) ::kill(static_cast<pid_t>(-group_), signal);
}

}  // namespace velk
