// The place for a picture in a form: a preview of what its values make.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velk {

struct PictureImage {
  int width = 0;  // pixels of the screen
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0xffRRGGBB, row by row from the top
};

// Asked for a new image after every change of the form and after each call that moves it.
class FormPicture {
 public:
  virtual ~FormPicture() = default;
  // In pixels of a screen that is not scaled.
  virtual int width() const = 0;
  virtual int height() const = 0;
  // Gets an image of the size to fill, black so far.
  virtual void draw(PictureImage& image) = 0;
  // Written over the picture's top left corner; may have several lines.
  virtual std::string caption() const { return {}; }
  // Below the picture: how it is turned.
  virtual std::string hint() const { return {}; }

  // The mouse was dragged with its left button down, y downwards, unscaled pixels.
  virtual void drag(int dx, int dy, bool shift) = 0;
  // Notches of the wheel, away from the user positive.
  virtual void wheel(int notches) = 0;
  // Labels of the buttons below the picture; a press repeats while the button is held.
  virtual std::vector<std::string> buttons() const { return {}; }
  virtual void press(std::size_t /*button*/) {}
};

}  // namespace velk
