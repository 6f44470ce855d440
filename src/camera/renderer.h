// The software renderer of the camera view: the flat and textured pictures of a map in palette indices.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "camera/movement.h"
#include "geometry/texture_ref.h"
#include "model/map.h"
#include "model/still_brushes.h"
#include "settings/settings.h"

namespace velk {

// Everything a picture needs besides map and settings. Without a colormap nothing is shaded; without a
// palette entity boxes are index 255.
struct RenderAssets {
  // The texture a face names, to be kept with the face; none when the map has no textures at all.
  std::function<std::unique_ptr<TextureRef>(const std::string& name)> makeTextureRef;
  const unsigned char* palette = nullptr;   // 256 times red, green, blue
  const unsigned char* colormap = nullptr;  // 64 rows of 256 palette indices, brightest first
  int brushOutline = 255;                   // palette indices of the outlines
  int selectionOutline = 255;
  int faceOutline = 255;
};

// What is to be drawn. The map changes only in its faces' texture caches.
struct RenderScene {
  map& model;
  const Settings& settings;
  const RenderAssets& assets;
  WireLens lens;
  // What to draw in place of a selected brush: itself, another that is valid until the next call, or none for
  // nothing. May be empty.
  std::function<const brush*(const brush&)> preview;
  // While pictures are drawn that differ in a few brushes only: what stays, seen just now. Of two pictures
  // alike in everything else the second is kept, and into those after it only the moving brushes are drawn.
  // The textures of the map must stay meanwhile.
  const StillBrushes* still = nullptr;
};

struct RenderSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const RenderSize&, const RenderSize&) = default;
};

// The size of the picture: the quality chosen, or the window's own size.
RenderSize RenderSizeFor(const Settings& settings, int windowWidth, int windowHeight);

// How a face is outlined and in which colour.
enum class FaceState { Plain = 0, Selected = 1, CurrentFace = 2 };

struct FacePick {
  brush* hit = nullptr;
  int face = -1;
};

struct RenderStatistics {
  long pixelsWritten = 0;  // shown at the end
  long pixelsTested = 0;   // depth tests
  int brushesDrawn = 0;
  int facesDrawn = 0;
};

struct Kernels;

class Renderer {
 public:
  Renderer();
  // With the inner loops of a certain instruction set; they must outlive the renderer.
  explicit Renderer(const Kernels& kernels);
  ~Renderer();
  Renderer(Renderer&&) noexcept;
  Renderer& operator=(Renderer&&) noexcept;

  // Draws the map from its active camera, flat when settings.drawmode is 1 and textured otherwise. Sizes
  // below 1 or above 16384 are brought into that range. No memory for the buffers is fatal "Couldn't
  // allocate zbuffer (2)" or "Couldn't allocate frame buffer (2)".
  void renderFrame(const RenderScene& scene, RenderSize size);

  // Draws one brush, or one face of it, into the picture as it stands, from the eye of the last frame.
  // Those the scene leaves out are not drawn.
  void renderBrush(const RenderScene& scene, brush& b);
  void renderFace(const RenderScene& scene, brush& b, int face, FaceState state);
  void clearBuffers();

  // While set, brushes and faces are drawn over whatever stands nearer.
  bool noDepthTest = false;

  // The face nearest to the eye at a pixel of a picture of that size; draws nothing.
  FacePick pickFace(const RenderScene& scene, RenderSize size, int px, int py);

  // The last picture, row 0 at the top. Empty before the first frame.
  int width() const;
  int height() const;
  std::span<const unsigned char> frameBuffer() const;  // palette indices, width * height
  // Reciprocal depths (half the width over the view depth); 0 where nothing is drawn; larger is nearer.
  std::span<const float> depthBuffer() const;

  const RenderStatistics& statistics() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace velk
