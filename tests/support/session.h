// An editor at work in a folder of its own, with a few entity classes, a wad and answers from a queue.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/editor.h"
#include "base/files.h"
#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "script/script_prompts.h"
#include "support/cube_text.h"
#include "support/fatal.h"
#include "support/temp_folder.h"
#include "support/wad_builder.h"

namespace velk::test {

struct RecordingObserver : Observer {
  std::vector<std::string> statuses;
  int cameraRedraws = 0;
  int planRedraws = 0;
  int brushRedraws = 0;
  bool exiting = false;

  void statusChanged(const std::string& text) override { statuses.push_back(text); }
  void changed(const Changes& what) override {
    cameraRedraws += what.camera ? 1 : 0;
    planRedraws += what.planViews ? 1 : 0;
    brushRedraws += what.selectedBrush ? 1 : 0;
  }
  void exitRequested() override { exiting = true; }
};

// Two boxes and a light: 2 entities, 3 brushes.
inline std::string SmallMapText() {
  return "{\n\"classname\" \"worldspawn\"\n\"wad\" \"test.wad\"\n" + Cube(0, "wall1 0 0 0 1 1") +
         Cube(2, "floor1 0 0 0 1 1") + "}\n{\n\"classname\" \"light\"\n\"origin\" \"32 32 128\"\n}\n";
}

// What Velk needs to start, in the folder.
inline void FurnishHome(const TempFolder& home) {
  home.write("velk.ini",
             "[Velk]\nentity_qc_directory=.\\\nwad_directory=.\\\nmap_directory=.\\\ndefault_wad=test.wad\n");
  home.write("badtex.bmp", "BM");
  home.write("velkmouse.ini", "1 1\n{ Test\n}\n");
  home.write("velkmou3D.ini", "1 1\n{ Test\n}\n");
  home.write("colormap.lmp", "");
  home.write("ents.qc",
             "/*QUAKED worldspawn (0 0 0) ?\nThe world.\n*/\n"
             "/*QUAKED func_wall (0 .5 .8) ?\nA wall.\n*/\n"
             "/*QUAKED info_player_start (1 0 0) (-16 -16 -24) (16 16 24)\nThe start.\n*/\n"
             "/*QUAKED light (0 1 0) (-8 -8 -8) (8 8 8) START_OFF\nA light.\n*/\n");
  home.write("test.wad",
             WadBuilder().palette().texture("wall1").texture("floor1").texture("sky1", 4, 2).bytes());
}

class Session {
 public:
  // The files of the folders go to the editor's own, over those that every session has.
  explicit Session(const std::vector<std::filesystem::path>& folders = {})
      : editor(EditorPlace{(FurnishHome(home), home.path()), home.path() / "drives"}, prompts, observer) {
    using Copy = std::filesystem::copy_options;
    for (const auto& folder : folders) {
      std::filesystem::copy(folder, home.path(), Copy::overwrite_existing | Copy::recursive);
    }
    editor.start();
  }

  void answer(const std::string& words) { prompts.queue({words}, false); }
  // Runs a command by its name or number; false when it is disabled.
  bool run(const char* command) { return RunCommand(editor, *FindCommand(command)); }
  // Writes the small map and opens it.
  std::string open(const std::string& name = "small.map") {
    std::string path = home.write(name, SmallMapText());
    OpenNamed(editor, path);
    return path;
  }
  map& current() { return *editor.documents().currentMap(); }
  std::string contents(const std::string& path) const { return LoadFile(editor.services().paths, path); }

  TempFolder home;
  ScriptPrompts prompts;
  RecordingObserver observer;
  Editor editor;
};

}  // namespace velk::test
