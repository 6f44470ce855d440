#include "build/build_tools.h"

namespace velk {
namespace {

// "/kit/full.sh e1m1"
std::string TitleOf(const Launch& launch) {
  std::string title = launch.program;
  for (const std::string& argument : launch.arguments) title += ' ' + argument;
  return title;
}

}  // namespace

void BuildTools::startPrograms(bool on) {
  starts_ = on && runner_;
  job_.useRunner(starts_ ? *runner_ : none_);
}

bool BuildTools::startAlone(const Launch& launch, const BuildMap& map) {
  started_.push_back(launch);
  return !starts_ || runner_->startAlone(NativeOf(paths_, settings_, launch, map));
}

void BuildTools::build(const std::string& name, const std::vector<Launch>& launches, const BuildMap& map) {
  std::vector<BuildStep> steps;
  for (const Launch& launch : launches) {
    started_.push_back(launch);
    steps.push_back({TitleOf(launch), NativeOf(paths_, settings_, launch, map)});
  }
  builtMap_ = map.path;
  if (starts_) job_.start(name, std::move(steps));
}

}  // namespace velk
