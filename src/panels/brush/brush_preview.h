// The picture of the current brush alone, which the selected-brush window turns and zooms.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/canvas.h"
#include "camera/renderer.h"
#include "model/map.h"

namespace velk {

class BrushPreview {
 public:
  // Both must outlive it.
  BrushPreview(const Settings& settings, const EntityClassList& classes);

  // Shows a copy of the brush as it is now; none for nothing.
  void show(const brush* shown);
  bool empty() const { return !brush_; }

  // Turns it by steps, of which settings.camera_steps make a full turn: to the right, and towards the user.
  void turn(int right, int down);
  // Notches of the wheel, nearer when positive.
  void zoom(int notches);
  // "turn 30  tilt 20  zoom 1.0"
  std::string readout() const;

  // Draws the picture with settings.camera_mode: 0 nothing but edges, 1 flat, 2 textured.
  void render(const RenderAssets& assets, RenderSize size);
  // Whether the picture is drawn by the renderer; otherwise its edges are all there is.
  bool isSolid() const { return settings_.drawmode != kWireMode; }
  const Renderer& renderer() const { return renderer_; }

  // The edges of the current face, and in the wire picture those of all faces, on a picture of that size.
  struct Edge {
    Pixel from;
    Pixel to;
    bool current = false;
  };
  std::vector<Edge> edges(RenderSize size) const;

  // The face at a pixel of a picture of that size; -1 for none.
  int faceAt(const RenderAssets& assets, RenderSize size, Pixel at);

 private:
  void takeSettings();
  void placeCamera(RenderSize size) const;
  RenderScene scene(const RenderAssets& assets);

  const Settings& wanted_;
  Settings settings_;  // of this picture
  mutable map model_;  // holds the copy; its camera goes round it
  brush* brush_ = nullptr;
  Renderer renderer_;
  double turn_ = 30;  // degrees
  double tilt_ = 25;
  double zoom_ = 1;
};

}  // namespace velk
