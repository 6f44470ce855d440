#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "desktop/frame/bars.h"
#include "desktop/windows/texture_header.h"
#include "desktop/windows/texture_view.h"

namespace velk {

// The texture browser: a search box and the list of names, the numbers of the chosen texture, the rows and
// the grid.
class TTextureWindow : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TTextureWindow(Editor& editor, QWidget* parent = nullptr);

  // Takes over the textures and the choice as they are now.
  void refresh();
  // The map's contents changed: which textures are in use may be others.
  void contentsChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showPointed();
  void magnify();
  void runTimer();
  TexturePanel& panel() const { return editor_.panels().textures; }

  Editor& editor_;
  QLineEdit* search_;
  TextureList* names_;
  TextureHeader* header_;
  TextureView* view_;
  QLabel* line_;       // the label, where the header has no room for it
  QLabel* magnified_;  // over header and view
  QTimer animation_;
};

}  // namespace velk
