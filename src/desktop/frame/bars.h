// The button bars of the frame.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QMainWindow>
#include <QToolBar>
#include <vector>

#include "app/editor.h"
#include "commands/bars.h"

namespace velk {

// The names of the textures; follows the texture browser's current texture, and sets it when one is chosen.
class TextureList : public QComboBox {
  Q_OBJECT
 public:
  explicit TextureList(Editor& editor);
  // After the textures or the current one changed.
  void refresh();

 private:
  Editor& editor_;
  std::vector<std::string> names_;
};

// "Velk Bar %i": can be docked on all sides, or float.
class TVelkControlBar : public QToolBar {
  Q_OBJECT
 public:
  TVelkControlBar(int number, const ButtonBar& gadgets, Editor& editor);
  // What the buttons and lists show; see Observer.
  void commandsChanged();
  void texturesChanged();

 private:
  struct Button {
    QAction* action;
    const Command* command;
  };

  void addButton(const Command& command);
  void fitOrientation();

  Editor& editor_;
  std::vector<Button> buttons_;
  std::vector<TextureList*> lists_;
};

// The bars of velkbars.ini, docked at the top of the frame, a row each. A missing or broken file is fatal.
std::vector<TVelkControlBar*> BuildBars(QMainWindow& frame, Editor& editor);

}  // namespace velk
