// The texture browser: favourites, frequents and the grid of thumbnails, what the mouse does in them, the
// five numbers of the chosen texture, animation and the context menu.
#pragma once

#include <functional>

#include "panels/panel.h"
#include "panels/textures/texture_fields.h"
#include "panels/textures/texture_layout.h"

namespace velk {

class TexturePanel : public Panel {
 public:
  explicit TexturePanel(const PanelContext& context);

  // Whether the window is shrunk to an icon; nothing moves then.
  std::function<bool()> minimised = [] { return false; };

  // The size of the window's contents, header included.
  void resize(int width, int height);
  int width() const { return width_; }
  int height() const { return height_; }

  // "[Texture - <path>]" of the wad loaded last; its name before the first one.
  std::string caption() const;

  // What is shown: the textures of the current map, without one those of all wads.
  TextureSet& set();
  // Brings what follows up to date with map, settings, search and choice. To be called before drawing.
  const TextureLayout& layout();
  const std::vector<int>& shown() const { return shown_; }  // the grid, as places in the set
  // The texture of a thumbnail as a place in the set; -1 when there is none.
  int textureAt(const TexturePlace& place);
  // Whether a face of the map uses the texture of that place in the set.
  bool isUsed(int place) const;
  // The place in the set of the chosen texture; -1 when the set does not have it.
  int currentPlace();
  // The map's contents changed: what is used is counted anew when it is asked for.
  void contentsChanged() { usesStale_ = true; }

  int scroll() const { return scroll_; }
  void setScroll(int pixels);
  // Rows of the grid; away from the user, negative towards.
  void wheel(int notches);

  // The mouse. A press in the header or beside the thumbnails does nothing.
  void press(Pixel at, bool shift, bool ctrl);
  void move(Pixel at);  // with or without a button
  void release(Pixel at);
  void leave();  // the pointer left the window
  // The drag ends elsewhere, or not at all.
  void cancel() { drag_ = {}; }
  enum class Drag { None, Grid, Frequents, Favourites, Magnifier };
  // None once another map is current, or a wad was read again.
  Drag drag() const { return isStale(drag_) ? Drag::None : drag_.kind; }
  // What is dragged or magnified, as a place in the set; -1 without.
  int dragged() const { return drag() == Drag::None ? -1 : drag_.texture; }
  double magnification() const { return drag_.magnification; }
  // What lies under the pointer.
  const TexturePlace& over() const { return over_; }
  // "NAME 64x64" of what is under the pointer.
  const std::string& label() const { return label_; }

  // Makes the texture of that place in the set current and shows it.
  void selectTexture(int place);
  bool chooseName(const std::string& name);
  // Gives the chosen texture to all selected brushes, in the way of Set Brush Texture.
  void applyToSelection();

  void step(TextureField field, int direction);
  void setField(TextureField field, double value);
  const TextureChoice& choice() const { return context_.texture; }

  const std::string& search() const { return search_; }
  void setSearch(const std::string& words);

  // Counts the uses and fills the row of frequents.
  void recalculateFrequents();

  // A tick of the animation timer, which runs while the setting `animate` is on. Whether a picture changed.
  bool tick();

  Menu contextMenu() override;
  // The thumbnail of that number in the grid is clicked.
  bool pick(int line) override;
  bool control(const std::string& name, const std::string& value) override;
  std::vector<std::string> printed() override;

 private:
  struct DragState {
    Drag kind = Drag::None;
    int texture = -1;
    bool apply = false;
    Pixel from;
    double magnification = 1;
    const MapDocument* of = nullptr;  // the map whose place it is, and the wads as they were then
    int generation = 0;
  };
  bool isStale(const DragState& drag) const;

  Settings& settings() const { return context_.services.settings; }
  void followSettings();
  void followChoice();
  void countUses();
  void tell();
  std::string labelOf(const TexturePlace& place);
  void magnify(Pixel at);
  void dropOn(const TexturePlace& place, const DragState& drag);
  std::vector<int> movingPlaces();
  bool advance(SetTexture& texture);
  std::string rowLine(const char* title, TexturePlace::Kind kind, int cells);

  // The items of the menu.
  void reset();
  void askSize();
  void resizeThumbnails(int step);
  void toggleSmall();
  void toggle(bool Settings::*setting);
  MenuItem check(const char* label, bool Settings::*setting);

  int width_ = 256;
  int height_ = 400;
  int scroll_ = 0;
  TextureLayout layout_;
  std::vector<int> shown_;
  std::string search_;
  std::string label_;
  TexturePlace over_;
  DragState drag_;

  // Without a map.
  TextureSet loose_;
  int looseGeneration_ = -1;

  // Thumbnails: the size in use, and the settings it came from.
  int thumbnailWidth_ = 0;
  int thumbnailHeight_ = 0;
  int normalWidth_ = 0;
  int normalHeight_ = 0;
  bool small_ = false;
  bool namesBefore_ = false;  // small thumbnails were turned on

  std::string followed_;  // the chosen name that the grid was scrolled to
  std::vector<int> uses_;
  const MapDocument* usesOf_ = nullptr;
  int usesGeneration_ = -1;  // of the wads
  bool usesStale_ = true;
};

}  // namespace velk
