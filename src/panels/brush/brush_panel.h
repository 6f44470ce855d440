// The selected-brush window: what is selected, and the faces of the current brush.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/outcome.h"
#include "panels/brush/brush_preview.h"
#include "panels/panel.h"

namespace velk {

// One line a face of the current brush, columns parted by tabs; empty without one.
struct FaceLines {
  std::vector<std::string> lines;
  int current = -1;
  friend bool operator==(const FaceLines&, const FaceLines&) = default;
};

class BrushPanel : public Panel {
 public:
  explicit BrushPanel(const PanelContext& context)
      : Panel(context), preview_(context.services.settings, context.classes) {}

  // "[%i] Selected" and the bounds of the current brush or, with several selected, of all of them.
  std::string readout() const;
  // Size, class and group of the current brush; of several, their common size and how many of what they are.
  // Empty with nothing selected.
  std::string details() const;
  FaceLines faces() const;

  // The texture definition of the current face, and another one for it; none without a current brush, or
  // where textures are not the user's.
  std::optional<texturedef> faceTexture() const;
  void setFaceTexture(const texturedef& definition);

  // Takes over the current brush as it is.
  BrushPreview& updatedPreview();
  BrushPreview& preview() { return preview_; }

  // Makes a face of the current brush the current one.
  bool pick(int line) override;
  bool control(const std::string& name, const std::string& value) override;
  // The readout, then the faces' lines.
  std::vector<std::string> printed() override;

 private:
  const brush* currentBrush() const { return currentMap() ? currentMap()->firstSelected() : nullptr; }
  void chooseFace(int index);

  BrushPreview preview_;
};

}  // namespace velk
