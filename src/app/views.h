// The plan views and the camera view: what their pictures are drawn from.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "build/leak_trail.h"
#include "camera/live/wire_layer.h"
#include "camera/movement.h"
#include "camera/renderer.h"
#include "documents/documents.h"
#include "mouse/pointer.h"
#include "ops/clip_preview.h"
#include "planview/draw_plan_view.h"

namespace velk {

class Views {
 public:
  // All must outlive it.
  Views(Settings& settings, Documents& documents, TextureManager& textures)
      : settings_(settings), documents_(documents), textures_(textures) {}

  PlanViewSet plans;
  WireLens lens;
  LeakTrail leaks;
  // What an open dialog would make: drawn over the map, and no part of it.
  std::vector<std::unique_ptr<brush>> ghosts;
  // Of the group that new brushes join; shown in the plan views' strips.
  std::function<std::string()> groupName = [] { return std::string(); };
  // The mouse, whose drags are drawn; none until it is known.
  const Pointer* mouse = nullptr;
  Renderer renderer;
  // The camera view's window, in the editor's pixels, and device pixels a side of one of them.
  int cameraWidth = 320;
  int cameraHeight = 200;
  double deviceScale = 1;

  // In a view (0..2, kCameraView) the editor's pixels. Sizes outside 1..16384 are the caller's fault.
  void resize(int view, int width, int height);

  // What the picture of a plan view is drawn from, until the map changes.
  PlanScene planScene(const StripColours& strip);
  // Draws a plan view. While a drag runs, what stays is drawn once.
  void drawPlan(RasterCanvas& canvas, int view, const StripColours& strip);
  // The same for the camera view's picture, until the next call; a map must be open.
  RenderScene cameraScene();
  // The same of a map beside the open ones, with settings of its own.
  RenderScene sceneOf(map& m, const Settings& settings);
  // What pictures of the current map's faces need, until the next call.
  const RenderAssets& currentAssets() {
    refreshAssets();
    return assets_;
  }
  // The picture's size in the camera view as it is.
  RenderSize renderSize() const;
  // Draws the picture of the flat and textured modes. Without a map nothing happens.
  void renderCamera();
  // Draws the wire picture; a map must be open.
  void drawWire(RasterCanvas& canvas);
  // The brush and face at a pixel of the camera view as the flat and textured modes draw it; none without a
  // map.
  FacePick pickInCamera(Pixel at);
  // In the mode as it is: in the wire picture the brush with an edge near by, and no face.
  FacePick pick(Pixel at);
  // A point of the world far beyond what the flat or textured picture shows at a pixel; a map must be open.
  vec3 beyondInCamera(Pixel at) const;
  // The wad whose palette the views are drawn in; none when nothing was loaded.
  const Wad* paletteWad() const;

  // The plan views go to the active camera; Follow: unless cameras are locked. Whether they moved.
  bool centre(Centre how);

 private:
  void refreshAssets();
  bool dragRuns() const { return mouse && mouse->drag(); }
  // None when brushes are shown as they are.
  std::function<const brush*(const brush&)> standIns();
  const brush* standInFor(const brush& b);

  Settings& settings_;
  Documents& documents_;
  TextureManager& textures_;
  RenderAssets assets_;
  ClipPreview clip_;
  StillBrushes still_;  // while a drag runs
  std::array<PlanLayer, kPlanViews> layers_;
  WireLayer wire_;
};

}  // namespace velk
