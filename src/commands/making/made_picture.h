// The small picture in the dialogs of stairs and arches: what the values make, alone, drawn by the renderer
// from all sides.
#pragma once

#include <span>

#include "app/editor.h"
#include "base/form_picture.h"
#include "makers/made.h"

namespace velk {

class MadePicture : public FormPicture {
 public:
  // Looks at the space between the bounds. Buttons are those of kPictureButtons, in an order of their own.
  // The editor must outlive it.
  MadePicture(Editor& editor, const vec3& mins, const vec3& maxs, std::span<const char* const> buttons);

  // What is drawn from now on.
  void show(Made made);
  // Written over it, from the roll, pitch and yaw of the view in degrees, 0 to 359.
  std::function<std::string(int roll, int pitch, int yaw)> readout;

  int width() const override;
  int height() const override;
  void draw(PictureImage& image) override;
  std::string caption() const override { return readout ? readout(roll_, pitch_, yaw_) : ""; }
  std::string hint() const override;
  void drag(int dx, int dy, bool shift) override;
  void wheel(int notches) override;
  std::vector<std::string> buttons() const override { return {buttons_.begin(), buttons_.end()}; }
  void press(std::size_t button) override;

 private:
  void reset();
  void turn(int roll, int pitch, int yaw);
  // Nearer by so many steps, negative farther.
  void approach(int steps);
  void aim(int pictureWidth, int pictureHeight);

  Editor& editor_;
  std::span<const char* const> buttons_;
  Settings settings_;
  map map_;
  Renderer renderer_;
  vec3 centre_;
  double radius_;
  int roll_ = 0;  // degrees
  int pitch_ = 0;
  int yaw_ = 0;
  double distance_ = 1;  // of the eye; 1 shows all of it
};

}  // namespace velk
