// Everything that starts programs: whether any are started at all, what was, and the build that runs.
#pragma once

#include <string>
#include <vector>

#include "build/build_job.h"
#include "build/launch.h"
#include "build/program_runner.h"

namespace velk {

class BuildTools {
 public:
  // Both must outlive it. No program is started before a runner comes; what would be is noted.
  BuildTools(const Paths& paths, const Settings& settings)
      : paths_(paths), settings_(settings), job_(none_) {}

  // Who can start programs, and outlives this; none takes it back.
  void setRunner(ProgramRunner* runner) { runner_ = runner; }
  bool hasRunner() const { return runner_ != nullptr; }
  // Whether programs are started from now on. Nothing may run.
  void startPrograms(bool on);

  // Starts a program and forgets it; false when it cannot be started.
  bool startAlone(const Launch& launch, const BuildMap& map);
  // Starts a build; the map's path is kept for what its output says.
  void build(const std::string& name, const std::vector<Launch>& launches, const BuildMap& map);

  BuildJob& job() { return job_; }
  const BuildJob& job() const { return job_; }
  const std::string& builtMap() const { return builtMap_; }
  // What was started, or would have been.
  const std::vector<Launch>& started() const { return started_; }

 private:
  const Paths& paths_;
  const Settings& settings_;
  NoPrograms none_;
  ProgramRunner* runner_ = nullptr;
  bool starts_ = false;
  BuildJob job_;
  std::string builtMap_;
  std::vector<Launch> started_;
};

}  // namespace velk
