#include "makers/stairs.h"

#include <algorithm>

#include "base/text.h"
#include "makers/spiral_stairs.h"

namespace velk {
namespace {

constexpr int kFewestSteps = 2;

// From here on a player must jump; from there on even jumping is of no use. The texts name numbers of their
// own.
constexpr double kJumpHeight = 18;
constexpr double kHighestJump = 40;

int ClampedGap(const StairParams& params, double stepHeight) {
  return std::max(Truncate(std::min(double(params.gap), stepHeight - 1)), 0);
}

// Where the steps of a straight flight are, along the run.
class Run {
 public:
  Run(const Seed& seed, const StairParams& params, int steps)
      : down_(params.down), last_(steps - 1), axis_(params.onX ? 0 : 1) {
    low_ = seed.mins[axis_];
    high_ = seed.maxs[axis_];
    const double length = high_ - low_;
    width_ = std::max(Truncate(std::min(double(params.width), length - last_)), 1);
    spare_ = length - width_;
  }

  int axis() const { return axis_; }

  void regular(int step, float& from, float& to) const {
    from = float(Truncate(low_ + advance(step)));
    to = float(Truncate(low_ + advance(step) + width_));
  }
  void block(int step, float& from, float& to) const {
    from = float(Truncate(down_ ? low_ : high_ - (advance(last_ - step) + width_)));
    to = float(Truncate(down_ ? low_ + advance(step) + width_ : high_));
  }

 private:
  double advance(int steps) const { return steps * spare_ / last_; }

  bool down_;
  int last_;
  int axis_;
  double low_;
  double high_;
  double spare_;
  int width_;
};

void AddFlight(Pieces& pieces, const Seed& seed, const StairParams& params, const StepLevels& levels) {
  const Run run(seed, params, levels.steps());
  const int across = 1 - run.axis();
  for (int i = 0; i < levels.steps() && !pieces.full(); ++i) {
    vec3 low{0, 0, float(levels.bottom(i))};
    vec3 high{0, 0, float(levels.top(i))};
    low[across] = float(Truncate(seed.mins[across]));
    high[across] = float(Truncate(seed.maxs[across]));
    float& from = low[run.axis()];
    float& to = high[run.axis()];
    params.type == StairType::Block ? run.block(i, from, to) : run.regular(i, from, to);
    pieces.addBox(low, high);
  }
}

}  // namespace

StepLevels::StepLevels(const Seed& seed, const StairParams& params)
    : steps_(std::max(params.steps, kFewestSteps)),
      bottom_(seed.mins.z),
      height_(double(seed.maxs.z) - seed.mins.z),
      gap_(ClampedGap(params, height_ / steps_)),
      down_(params.down) {}

int StepLevels::bottom(int step) const { return Truncate(level(place(step))); }

int StepLevels::top(int step) const { return Truncate(level(place(step) + 1) - gap_); }

StairParams Limited(const StairParams& params) {
  StairParams limited = params;
  limited.steps = std::max(params.steps, 1);
  limited.width = std::max(params.width, 1);
  limited.gap = std::max(params.gap, 0);
  limited.turns = std::max(params.turns, 0.1);
  limited.distance = std::max(params.distance, 1);
  return limited;
}

Made MakeStairs(const Seed& seed, const StairParams& params, const MakerRules& rules) {
  const StepLevels levels(seed, params);
  const bool spiral = params.type == StairType::Spiral;
  Pieces pieces(seed, rules.careful ? Keeping::Solid : spiral ? Keeping::Valid : Keeping::All);
  if (spiral) {
    AddSpiral(pieces, seed, params, levels);
  } else {
    AddFlight(pieces, seed, params, levels);
  }
  return pieces.take();
}

double StepHeight(const Seed& seed, int steps) {
  return (double(seed.maxs.z) - seed.mins.z) / std::max(steps, kFewestSteps);
}

std::optional<std::string> StepHeightQuestion(double height) {
  if (height < kJumpHeight) return std::nullopt;
  if (height < kHighestJump)
    return Format("Step of %5.1f height can be jumped (< 40),\nbut not stepped (< 20), okay to save?",
                  height);
  return Format("Step of %5.1f height cannot be jumped (< 40)\nor stepped (< 20), okay to save anyway?",
                height);
}

std::string StairsMade(double height) {
  return Format("Made selected brush into stairs, step height %i...", Truncate(height));
}

}  // namespace velk
