// Turning, mirroring and scaling the selection: plane points move; texture definitions stay, or with
// texture_lock change so that textures move along.
#pragma once

#include <memory>
#include <vector>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kMustHaveSelected[] = "Must have at least one selected brush...";
inline constexpr const char* kMirrored[] = {
    "Selection flipped on X axis...", "Selection flipped on Y axis...", "Selection flipped on Z axis..."};
inline constexpr const char* kQuarterTurned[] = {"Selection rotated 90 degrees on X axis..",
                                                 "Selection rotated 90 degrees on Y axis..",
                                                 "Selection rotated 90 degrees on Z axis.."};
inline constexpr char kRotateTitle[] = "Rotate Brush";  // of the dialog, and of the undo copy
inline constexpr char kRotateFields[][24] = {"Roll (deg.) (X axis)", "Pitch (deg.) (Y axis)",
                                             "Yaw (deg.) (Z axis)"};
inline constexpr char kScaleTitle[] = "Scale Brush...";
inline constexpr char kScaled[] = "Scaled selected brush...";
inline constexpr char kTooThinToTransform[] = " %i kept as they were";  // added to a status
inline constexpr char kScaleCancelled[] = "Couldn't scale brush...";

// Row by row.
struct Matrix {
  float m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};
Matrix MirrorMatrix(int axis);
Matrix QuarterTurnMatrix(int axis);
// A turn about one axis, clockwise as seen from its positive end.
Matrix TurnMatrix(int axis, double degrees);
// By the fields of the dialog: pitch about x, then yaw about z, then roll about y.
Matrix RotationMatrix(double roll, double pitch, double yaw);
// A factor nearer to 0 than 0.01 counts as 1.
Matrix ScaleMatrix(double x, double y, double z);

// What happens to each brush: p becomes m (p - centre) + centre.
struct Transform {
  Matrix matrix;
  vec3 centre;
  bool whole = false;     // points are rounded to whole numbers
  bool reverse = false;   // faces are turned round afterwards, so that a mirrored brush is solid again
  bool keepThin = false;  // brushes that would come out invalid stay as they are
};
// Fits the matrix into a whole-numbered transform; careful: a matrix that mirrors reverses faces, and
// brushes that would come out invalid stay.
Transform RoundedTransform(const Matrix& matrix, const vec3& centre, bool careful);

// Moves the points of a brush and rebuilds it. Good for copies that a view draws. Returns how many faces
// could not carry their texture along.
int TransformBrush(brush& b, const Transform& transform);
// The same for the box of a point entity: only its middle follows, by whole numbers.
void MoveBox(brush& b, const Transform& transform);

// Middle of the bounds of the selected brushes of visible groups, on the grid.
vec3 SelectionPivot(map& m);

// Mirror or turn the selection by 90 degrees; `axis` is 0 to 2. While a point entity is current nothing
// happens. Careful: boxes of point entities are moved to their new place, whatever is current.
Outcome MirrorSelection(map& m, int axis, bool careful);
Outcome QuarterTurnSelection(map& m, int axis, bool careful);

// The status text after faces that could not carry their texture along; without any the text as it is.
std::string WithTexturesLeft(std::string status, int faces);

// Applies a whole-numbered transform to every selected brush, those of hidden groups too. Boxes of point
// entities are moved; brushes that come out invalid are destroyed, or kept and counted. The status says how
// many, and how many faces could not carry their texture along.
Outcome ApplyToSelection(map& m, const Transform& transform, std::string status);
// Copies of the selected brushes as that would leave them, for ghosts in the views; they are in no list.
std::vector<std::unique_ptr<brush>> TransformedCopies(map& m, const Transform& transform);

// Angles in degrees. Without a selection says so.
Outcome RotateSelection(map& m, int roll, int pitch, int yaw, bool careful);
Outcome ScaleSelection(map& m, double x, double y, double z, bool careful);

}  // namespace velk
