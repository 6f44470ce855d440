// Texture definitions laid on faces by their edges: fitted, aligned, turned and mirrored in place, wrapped
// round to neighbours. Shifts come out whole, as map files hold them.
#pragma once

#include <functional>
#include <string>

#include "model/map.h"

namespace velk {

struct TextureSize {
  int width = 0;  // texels, at least 1
  int height = 0;
};
// The size of the texture of that name.
using TextureSizes = std::function<TextureSize(const std::string& name)>;

enum class TextureEdge { Left, Right, Top, Bottom, Centre };

// What is done to the definition of a face, which must have a polygon.
using TextureChange = std::function<texturedef(const face& f, const TextureAxes& axes)>;

// So many repetitions across and down the face; mirrored textures stay mirrored.
TextureChange FitTextureTo(const TextureSizes& sizes, int across, int down);
// An edge of the texture, or its middle, comes to the face's.
TextureChange AlignTextureTo(const TextureSizes& sizes, TextureEdge edge);
// Round the middle of the face.
TextureChange QuarterTurnTexture();
// Mirrored across (axis 0) or down (axis 1) at the middle of the face.
TextureChange FlipTexture(int axis);

// Changes the current face of the current brush, or all faces of the selected brushes; boxes of point
// entities stay as they are. The number of faces.
int ChangeTextures(map& m, bool allFaces, const TextureChange& change);

struct WrappedTextures {
  int faces = 0;
  int inexact = 0;  // of these, where five numbers come only near
};
// The faces of the selected brushes that share an edge, or a part of one, with the current face take its
// texture, so that it runs on over the edge.
WrappedTextures WrapTexture(map& m);

}  // namespace velk
