// A drag: what a mouse tool does from the press to the release or to cancelling. What all drags share is
// kept here; a tool is one file that says what starts it, what a step does and how it ends.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/outcome.h"
#include "base/prompts.h"
#include "camera/renderer.h"
#include "model/history.h"
#include "mouse/pointer_event.h"
#include "planview/plan_view.h"
#include "textures/texture_choice.h"

namespace velk {

// The views by number: the plan views, then the camera view.
inline constexpr int kCameraView = kPlanViews;

// What tools ask of the camera view. Pixels are those of its window.
struct CameraPicks {
  int width = 0;  // of the window
  // The brush and face at a pixel; in the wire picture the brush with an edge near by, and no face.
  std::function<FacePick(Pixel)> pick = [](Pixel) { return FacePick{}; };
  // A point of the world far beyond what a flat or textured picture shows at the pixel.
  std::function<vec3(Pixel)> beyond;
  // The face under the press, which the tools are tried on; none in the wire picture.
  FacePick under = {};
};

// What tools work on: a map and the view that the mouse is in.
struct MouseContext {
  map& model;
  Settings& settings;
  PlanViewSet& plans;
  Prompts& prompts;
  int view = 0;
  TextureChoice* texture = nullptr;  // of the texture browser, may be none
  TextureSet* textures = nullptr;    // of the map, may be none
  int group = 0;                     // that new brushes are put in
  CameraPicks camera = {};
  // Takes the classic undo copy of the tools that want one, which is kept when they change something; may be
  // empty.
  std::function<void(const char* name, UndoMode mode, brush* working)> saveUndo = {};

  bool inCamera() const { return view == kCameraView; }
  PlanView& plan() const { return plans.views[static_cast<size_t>(view)]; }
  PlanProjection projection() const { return plans.projection(view, settings); }
};

// Where a drag has got to. View points are those of plan views, snapped where the drag snaps.
struct DragState {
  PointerEvent press;
  PointerEvent now;
  ViewPoint start;
  ViewPoint current;
  ViewPoint total;  // from the start
  ViewPoint step;   // since the step before
};

// What a drag draws over the pictures.
struct Overlay {
  struct Text {
    Pixel at;  // of the view that the drag is in
    std::string text;
  };
  std::vector<Text> texts;
  std::vector<std::pair<vec3, vec3>> lines;  // in the world, drawn in every view
};

class Drag {
 public:
  virtual ~Drag() = default;
  // Shown in the view's dragOp while the drag runs.
  virtual int code() const = 0;
  // Of its undo level.
  virtual const char* undoName() const { return ""; }
  // Whether its points go to the grid.
  virtual bool snaps() const { return false; }
  // Whether every new pixel is a step, as where the view itself moves, rather than every new point of the
  // map.
  virtual bool goesByPixels() const { return false; }
  // Whether its way is read out in the view's header strip.
  virtual bool readsOut() const { return false; }
  // Whether a press and release in one place does something, so that it is no mere click.
  virtual bool actsUnmoved(const DragState& /*state*/) const { return false; }
  // A step that moved nothing, after snapping, does not come here.
  virtual Outcome move(const MouseContext& context, const DragState& state) = 0;
  virtual Outcome finish(const MouseContext& /*context*/, const DragState& /*state*/) { return {}; }
  // What it changed outside the map goes back; the map is put back by whoever runs the drag.
  virtual void cancel(const MouseContext& /*context*/) {}

  virtual void draw(const DragState& /*state*/, Overlay& /*overlay*/) const {}
  // The copy shown in place of a brush of the map.
  virtual const brush* preview(const brush& /*of*/) const { return nullptr; }
};

// The result of trying one tool at a press.
struct ToolStart {
  bool claimed = false;        // false: the next tool is tried
  std::unique_ptr<Drag> drag;  // none: the tool is done
  const char* undoName = "";   // of the level of a tool that is done
  Outcome outcome;             // of a tool that is done
};
using StartTool = std::function<ToolStart(const MouseContext&, const PointerEvent&)>;

}  // namespace velk
