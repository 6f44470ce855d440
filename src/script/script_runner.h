// Scripts: the editor driven without a user, one instruction a line. docs/scripting.md describes them.
#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/editor.h"
#include "script/script_prompts.h"

namespace velk {

// Draws views into picture files; the desktop's work.
class ScriptPictures {
 public:
  virtual ~ScriptPictures() = default;
  // `view` as the editor counts them. False when the file could not be written.
  virtual bool savePicture(int view, const std::string& file) = 0;
  // The texture browser's contents.
  virtual bool saveTextures(const std::string& /*file*/) { return false; }
};

struct ScriptResult {
  bool ok = true;
  int line = 0;         // of the instruction that failed, 0 when the script itself could not be read
  std::string message;  // why
};

// One word of a script's line.
struct ScriptWord {
  std::string text;
  bool quoted = false;
};

class ScriptRunner {
 public:
  // The prompts must be the ones the editor asks. Without pictures, instructions that draw fail. Printed
  // lines go to `out`. All must outlive the runner.
  ScriptRunner(Editor& editor, ScriptPrompts& prompts, ScriptPictures* pictures, std::ostream& out)
      : editor_(editor), prompts_(prompts), pictures_(pictures), out_(out) {}

  // What comes between the script's leading answers and the rest: starting the editor.
  using Start = std::function<void()>;

  // Stops when the editor exits, and at the first instruction that fails. Fatal errors of the editor pass
  // through.
  ScriptResult run(std::string_view text, const Start& start = {});
  ScriptResult runFile(const std::filesystem::path& file, const Start& start = {});

 private:
  using Words = std::vector<ScriptWord>;
  struct Instruction;
  static const std::vector<Instruction>& instructions();

  void perform(const Words& words);
  void runCommand(const Words& words);
  void answer(const Words& words);
  void set(const Words& words);
  void key(const Words& words);
  void hold(const Words& words);
  void showMap(const Words& words);
  void size(const Words& words);
  void press(const Words& words);
  void moveTo(const Words& words);
  void move(const Words& words);
  void release(const Words& words);
  void releaseInView(int view);
  void wheel(const Words& words);
  void print(const Words& words);
  void checkDisk(const Words& words);
  void startPrograms(const Words& words);
  void waitFor(const Words& words);
  void image(const Words& words);
  void menu(const Words& words);
  void pick(const Words& words);
  void doubleClick(const Words& words);
  void control(const Words& words);
  void timer(const Words& words);
  void offer(const Words& words);
  void tick(const Words& words);
  void rescue(const Words& words);

  Editor& editor_;
  ScriptPrompts& prompts_;
  ScriptPictures* pictures_;
  std::ostream& out_;
  PointerEvent held_;  // button and modifiers of the last press
};

}  // namespace velk
