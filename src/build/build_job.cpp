#include "build/build_job.h"

#include "base/text.h"

namespace velk {
namespace {

using Kind = OutputLine::Kind;

std::string SecondsText(std::chrono::milliseconds time) {
  return Format("%.1f s", static_cast<double>(time.count()) / 1000);
}

// Why a step did not succeed.
std::string FailureText(const std::string& program, const ProgramEnd& end) {
  switch (end.how) {
    case ProgramEnd::How::NotStarted:
      return Format("Couldn't start %s: %s", program.c_str(), end.reason.c_str());
    case ProgramEnd::How::Died:
      return end.status > 0 ? Format("%s was ended by signal %i", program.c_str(), end.status)
                            : Format("%s crashed", program.c_str());
    case ProgramEnd::How::Exited:
      break;
  }
  return Format("%s ended with status %i", program.c_str(), end.status);
}

// Tabs and other control characters would break the list's rows.
std::string Printable(std::string_view text) {
  std::string line(text);
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < 32 || c == 127) c = ' ';
  }
  return line;
}

}  // namespace

void BuildJob::useRunner(ProgramRunner& runner) {
  runner_ = &runner;
  runner.output = [this](std::string_view text) { take(text); };
  runner.ended = [this](const ProgramEnd& end) { stepEnded(end); };
}

void BuildJob::clear() {
  lines_.clear();
  bytes_ = 0;
  dropped_ = 0;
  changed();
}

void BuildJob::start(std::string name, std::vector<BuildStep> steps) {
  if (running() || steps.empty()) return;
  clear();
  name_ = std::move(name);
  steps_ = std::move(steps);
  step_ = 0;
  exitStatus_ = 0;
  stopping_ = false;
  partial_.clear();
  lastLine_.clear();
  begun_ = now();
  state_ = State::Running;
  startStep();
  changed();
}

void BuildJob::startStep() {
  add({steps_[step_].title, Kind::Head, {}});
  runner_->run(steps_[step_].launch);
}

void BuildJob::stop() {
  if (!running()) return;
  stopping_ = true;
  runner_->stop();
}

bool BuildJob::wait(std::chrono::milliseconds most) {
  const auto until = now() + most;
  while (running() && now() < until) {
    runner_->wait(std::chrono::duration_cast<std::chrono::milliseconds>(until - now()));
  }
  return !running();
}

std::chrono::milliseconds BuildJob::elapsed() const {
  if (state_ == State::Idle) return {};
  return std::chrono::duration_cast<std::chrono::milliseconds>((running() ? now() : over_) - begun_);
}

std::string BuildJob::stateText() const {
  constexpr const char* kTexts[] = {"Idle", "Running", "Succeeded", "Failed", "Stopped"};
  return kTexts[static_cast<int>(state_)];
}

void BuildJob::add(OutputLine line) {
  bytes_ += line.text.size() + sizeof(OutputLine);
  lines_.push_back(std::move(line));
  while (bytes_ > kMostBytes && lines_.size() > 1) {
    bytes_ -= lines_.front().text.size() + sizeof(OutputLine);
    lines_.pop_front();
    ++dropped_;
  }
}

void BuildJob::takeLine() {
  if (partial_.ends_with('\r')) partial_.pop_back();
  // What rewrites its line with carriage returns shows how far it came.
  const size_t rewritten = partial_.rfind('\r');
  if (rewritten != std::string::npos) partial_.erase(0, rewritten + 1);
  lastLine_ = Printable(partial_);
  add(ReadOutputLine(lastLine_));
  partial_.clear();
}

void BuildJob::take(std::string_view text) {
  if (!running()) return;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    const std::string_view piece = text.substr(0, end);
    // A line without an end may not fill the memory.
    const size_t room = kLongestLine - partial_.size();
    partial_ += piece.substr(0, room);
    if (piece.size() > room) {
      takeLine();
      text.remove_prefix(room);
    } else if (end == std::string_view::npos) {
      text = {};
    } else {
      takeLine();
      text.remove_prefix(end + 1);
    }
  }
  changed();
}

void BuildJob::stepEnded(const ProgramEnd& end) {
  if (!running()) return;
  if (!partial_.empty()) takeLine();
  exitStatus_ = end.status;
  const bool good = end.how == ProgramEnd::How::Exited && end.status == 0;
  const std::string& program = steps_[step_].title;
  if (stopping_) {
    finish(State::Stopped, Kind::Warning, Format("Stopped after %s", SecondsText(elapsed()).c_str()));
  } else if (!good) {
    finish(State::Failed, Kind::Error, FailureText(program, end));
  } else if (++step_ < steps_.size()) {
    startStep();
    changed();
  } else {
    finish(State::Succeeded, Kind::Good, Format("Done in %s", SecondsText(elapsed()).c_str()));
  }
}

void BuildJob::finish(State state, Kind kind, const std::string& text) {
  over_ = now();
  state_ = state;
  if (state == State::Failed) lastLine_ = text;
  add({text, kind, {}});
  changed();
  finished();
}

}  // namespace velk
