// The sixteen numbered methods that the map's dispatchers apply to brushes.
#pragma once

#include <functional>
#include <utility>

#include "geometry/vec3.h"

namespace velk {

class entity;
struct brush;

enum class Method {
  Deselect = 0,
  WidenBounds = 1,
  Transform = 2,
  ReverseFaces = 3,
  MoveToTarget = 4,
  Delete = 5,
  SelectInside = 6,
  SelectTouching = 7,
  Cut = 8,
  Translate = 9,
  FloorSearch = 10,
  Select = 11,
  Draw = 12,
  Split = 13,
  SetHidden = 14,
  Pick = 15,
};

// A method with its arguments.
class BrushMethod {
 public:
  using Action = std::function<void(brush&)>;

  // Of a method without arguments. One that lacks its arguments does nothing.
  BrushMethod(Method number);

  // Widens the box, which must outlive the method, by brushes of more than 3 faces.
  static BrushMethod widenBounds(vec3& mins, vec3& maxs);
  // p becomes m (p - centre) + centre, m row by row.
  static BrushMethod transform(const float m[3][3], const vec3& centre);
  static BrushMethod moveTo(entity& target);
  // Brushes that lie inside the box; those that overlap it, for which touching does not count.
  static BrushMethod selectInside(const vec3& mins, const vec3& maxs);
  static BrushMethod selectTouching(const vec3& mins, const vec3& maxs);
  static BrushMethod translate(const vec3& offset);
  // Work carried out elsewhere, which leaves its brush in its entity; what Cut and Split leave invalid is
  // destroyed.
  static BrushMethod carriedOut(Method number, Action by);

  bool isKnown() const { return number_ >= Method::Deselect && number_ <= Method::Pick; }
  void operator()(brush& b) const {
    if (action_) action_(b);
  }

 private:
  BrushMethod(Method number, Action action) : number_(number), action_(std::move(action)) {}

  Method number_;
  Action action_;
};

// Widens a box by the bounds of a brush.
void WidenBounds(vec3& mins, vec3& maxs, const brush& by);

}  // namespace velk
