#include "script/script_runner.h"

#include <fstream>
#include <utility>

#include "app/texture_drop.h"
#include "base/error.h"
#include "base/text.h"
#include "base/tokenizer.h"
#include "commands/context_menus.h"
#include "commands/dispatch.h"
#include "commands/key_stroke.h"
#include "commands/views/view_keys.h"
#include "documents/opening.h"
#include "script/script_print.h"

namespace velk {
namespace {

// Larger than any script; keeps a device that never ends from filling the memory.
constexpr size_t kMaxScript = size_t{16} << 20;

struct ScriptLine {
  int number = 0;
  std::vector<ScriptWord> words;
};

// Adds the lines read to `lines`, also when the text turns out to be malformed.
void ReadLines(Tokenizer& tokens, std::vector<ScriptLine>& lines) {
  while (tokens.GetScriptToken(true)) {
    if (lines.empty() || lines.back().number != tokens.line()) lines.push_back({tokens.line(), {}});
    lines.back().words.push_back({std::string(tokens.token()), tokens.quoted()});
  }
}

MouseButton Button(const ScriptWord& word) {
  if (EqualNoCase(word.text, "LEFT")) return MouseButton::Left;
  if (EqualNoCase(word.text, "MIDDLE")) return MouseButton::Middle;
  if (EqualNoCase(word.text, "RIGHT")) return MouseButton::Right;
  throw ScriptFailure("no such mouse button: " + word.text);
}

void SetModifier(PointerEvent& event, const ScriptWord& word) {
  if (EqualNoCase(word.text, "SHIFT")) {
    event.shift = true;
  } else if (EqualNoCase(word.text, "CTRL")) {
    event.ctrl = true;
  } else if (EqualNoCase(word.text, "ALT")) {
    event.alt = true;
  } else {
    throw ScriptFailure("no such modifier: " + word.text);
  }
}

// The texture browser takes part in what views do.
bool IsTextures(const ScriptWord& view) { return EqualNoCase(view.text, "TEXTURES"); }

ScriptFailure NoLine(const std::vector<ScriptWord>& words) {
  return ScriptFailure(words[0].text + " has no line " + words[1].text);
}

void RunEnabled(Editor& editor, const Command& command, const std::string& asked, bool byKey) {
  if (RunCommand(editor, command, byKey)) return;
  if (editor.door().dragRuns()) throw ScriptFailure(asked + " is refused while a drag runs");
  std::string message = asked + " is disabled";
  if (*command.reason) message += std::string(" (") + command.reason + ")";
  throw ScriptFailure(message);
}

}  // namespace

struct ScriptRunner::Instruction {
  const char* word;
  size_t least;  // words after it
  size_t most;
  const char* usage;
  void (ScriptRunner::*perform)(const Words&);
};

const std::vector<ScriptRunner::Instruction>& ScriptRunner::instructions() {
  static const std::vector<Instruction> kAll{
      {"answer", 1, 99, "answer TEXT", &ScriptRunner::answer},
      {"set", 2, 99, "set FIELD VALUE", &ScriptRunner::set},
      {"key", 1, 1, "key TEXT", &ScriptRunner::key},
      {"hold", 1, 8, "hold MILLISECONDS [SHIFT] [KEY...]", &ScriptRunner::hold},
      {"map", 1, 1, "map N", &ScriptRunner::showMap},
      {"size", 3, 3, "size VIEW W H", &ScriptRunner::size},
      {"press", 4, 7, "press VIEW BUTTON X Y [SHIFT] [CTRL] [ALT]", &ScriptRunner::press},
      {"move", 3, 6, "move VIEW X Y [SHIFT] [CTRL] [ALT]", &ScriptRunner::move},
      {"release", 3, 6, "release VIEW X Y [SHIFT] [CTRL] [ALT]", &ScriptRunner::release},
      {"wheel", 4, 4, "wheel VIEW STEPS X Y", &ScriptRunner::wheel},
      {"print", 1, 3, "print WHAT", &ScriptRunner::print},
      {"menu", 2, 2, "menu WINDOW LABEL", &ScriptRunner::menu},
      {"checkdisk", 0, 0, "checkdisk", &ScriptRunner::checkDisk},
      {"start", 1, 1, "start on|off", &ScriptRunner::startPrograms},
      {"wait", 2, 2, "wait build SECONDS", &ScriptRunner::waitFor},
      {"image", 2, 2, "image VIEW FILE", &ScriptRunner::image},
      {"pick", 2, 2, "pick WINDOW N", &ScriptRunner::pick},
      {"double", 2, 2, "double WINDOW N", &ScriptRunner::doubleClick},
      {"control", 2, 3, "control WINDOW NAME [VALUE]", &ScriptRunner::control},
      {"timer", 2, 2, "timer TEXTURES N", &ScriptRunner::timer},
      {"offer", 0, 0, "offer", &ScriptRunner::offer},
      {"tick", 0, 0, "tick", &ScriptRunner::tick},
      {"rescue", 0, 0, "rescue", &ScriptRunner::rescue},
  };
  return kAll;
}

ScriptResult ScriptRunner::run(std::string_view text, const Start& start) {
  std::vector<ScriptLine> lines;
  Tokenizer tokens(text);
  // What is wrong with a script's words is the script's failure, not the editor's.
  const auto wrong = editor_.door().trapped([&] { ReadLines(tokens, lines); });
  if (wrong) return {false, tokens.line(), *wrong};
  auto line = lines.begin();
  int number = 0;
  const auto take = [&] {
    number = line->number;
    perform((line++)->words);
  };
  const auto isAnswer = [](const ScriptLine& l) { return EqualNoCase(l.words[0].text, "answer"); };
  try {
    for (; start && line != lines.end() && isAnswer(*line);) take();
    number = 0;
    if (start) start();
    for (; line != lines.end() && !editor_.exiting();) take();
  } catch (const ScriptFailure& failure) {
    return {false, number, failure.what()};
  }
  return {};
}

// By a stream, so that a script may also come through a pipe.
ScriptResult ScriptRunner::runFile(const std::filesystem::path& file, const Start& start) {
  std::ifstream in(file, std::ios::binary);
  std::string text(kMaxScript, '\0');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (!in.eof() || in.bad()) return {false, 0, "couldn't read the script " + file.string()};
  text.resize(static_cast<size_t>(in.gcount()));
  return run(text, start);
}

void ScriptRunner::perform(const Words& words) {
  for (const Instruction& instruction : instructions()) {
    if (!EqualNoCase(words[0].text, instruction.word)) continue;
    const size_t given = words.size() - 1;
    if (given < instruction.least || given > instruction.most) {
      throw ScriptFailure(std::string("to be written as: ") + instruction.usage);
    }
    (this->*instruction.perform)({words.begin() + 1, words.end()});
    return;
  }
  runCommand(words);
}

void ScriptRunner::runCommand(const Words& words) {
  const Command* command = FindCommand(words[0].text);
  if (!command) throw ScriptFailure("no such instruction or command: " + words[0].text);
  if (words.size() > 1) throw ScriptFailure("a command stands alone on its line");
  RunEnabled(editor_, *command, words[0].text, false);
}

void ScriptRunner::answer(const Words& words) {
  std::vector<std::string> texts;
  for (const ScriptWord& word : words) texts.push_back(word.text);
  prompts_.queue(std::move(texts), words[0].quoted);
}

void ScriptRunner::set(const Words& words) {
  std::string value = words[1].text;
  for (size_t i = 2; i < words.size(); ++i) value += ' ' + words[i].text;
  prompts_.set(words[0].text, value);
}

void ScriptRunner::key(const Words& words) {
  const KeyStroke stroke = ParseKeyStroke(words[0].text);
  if (GiveKeyToDrag(editor_, stroke)) return;
  const Command* command = CommandForStroke(stroke);
  if (!command) throw ScriptFailure("no command on the key " + words[0].text);
  RunEnabled(editor_, *command, words[0].text, true);
}

// In steps as long as a window's.
void ScriptRunner::hold(const Words& words) {
  constexpr int kLongest = 60000;
  constexpr int kTicksASecond = 60;
  const int time = ScriptNumber(words[0]);
  if (time < 0 || time > kLongest) throw ScriptFailure("held for 0 to 60000 milliseconds");
  bool fast = false;
  std::vector<KeyStroke> held;
  for (size_t i = 1; i < words.size(); ++i) {
    if (EqualNoCase(words[i].text, "SHIFT")) {
      fast = true;
      continue;
    }
    held.push_back(ParseKeyStroke(words[i].text));
    if (!GiveKeyToViews(editor_, held.back())) throw ScriptFailure(words[i].text + " does nothing when held");
  }
  for (int i = time * kTicksASecond / 1000; i > 0 && editor_.input().wantsTicks(); --i) {
    editor_.input().tick(1.0 / kTicksASecond, fast);
  }
  for (const KeyStroke& stroke : held) LetGoInViews(editor_, stroke);
}

void ScriptRunner::showMap(const Words& words) {
  const int number = ScriptNumber(words[0]);
  if (!editor_.documents().at(number)) throw ScriptFailure("no open map has the number " + words[0].text);
  editor_.door().perform({.name = "Map"}, [&] { return SwitchTo(editor_.documents(), number); });
}

void ScriptRunner::size(const Words& words) {
  constexpr int kLargest = 16384;
  const int width = ScriptNumber(words[1]);
  const int height = ScriptNumber(words[2]);
  if (width < 1 || height < 1 || width > kLargest || height > kLargest) {
    throw ScriptFailure("a view is 1 to 16384 pixels wide and high");
  }
  if (IsTextures(words[0])) return editor_.panels().textures.resize(width, height);
  editor_.views().resize(ScriptViewNamed(words[0].text), width, height);
}

void ScriptRunner::press(const Words& words) {
  held_ = {};
  held_.button = Button(words[1]);
  held_.at = {ScriptNumber(words[2]), ScriptNumber(words[3])};
  for (size_t i = 4; i < words.size(); ++i) SetModifier(held_, words[i]);
  if (!IsTextures(words[0])) return editor_.input().press(ScriptViewNamed(words[0].text), held_);
  if (held_.button == MouseButton::Left) editor_.panels().textures.press(held_.at, held_.shift, held_.ctrl);
}

// Modifiers besides those of the press.
void ScriptRunner::moveTo(const Words& words) {
  held_.at = {ScriptNumber(words[1]), ScriptNumber(words[2])};
  for (size_t i = 3; i < words.size(); ++i) SetModifier(held_, words[i]);
}

void ScriptRunner::move(const Words& words) {
  moveTo(words);
  if (IsTextures(words[0])) return editor_.panels().textures.move(held_.at);
  editor_.input().move(ScriptViewNamed(words[0].text), held_);
}

void ScriptRunner::release(const Words& words) {
  moveTo(words);
  if (IsTextures(words[0])) {
    editor_.panels().textures.release(held_.at);
  } else {
    releaseInView(ScriptViewNamed(words[0].text));
  }
  held_ = {};
}

// A texture that is dragged out of the browser is dropped.
void ScriptRunner::releaseInView(int view) {
  if (editor_.panels().textures.drag() == TexturePanel::Drag::None) {
    editor_.input().release(view, held_);
  } else if (view == kCameraView) {
    DropTexture(editor_, held_.at, held_.ctrl || held_.shift);
  } else {
    editor_.panels().textures.cancel();
  }
}

void ScriptRunner::wheel(const Words& words) {
  if (IsTextures(words[0])) return editor_.panels().textures.wheel(ScriptNumber(words[1]));
  const int view = ScriptViewNamed(words[0].text);
  PointerEvent event;
  event.at = {ScriptNumber(words[2]), ScriptNumber(words[3])};
  editor_.input().wheel(view, event, ScriptNumber(words[1]));
}

void ScriptRunner::print(const Words& words) {
  for (const std::string& line : ScriptPrint(editor_, prompts_, words)) out_ << line << '\n';
  out_.flush();
}

void ScriptRunner::checkDisk(const Words&) { editor_.checkDisk(); }

void ScriptRunner::startPrograms(const Words& words) {
  const bool on = EqualNoCase(words[0].text, "on");
  if (!on && !EqualNoCase(words[0].text, "off")) throw ScriptFailure("to be written as: start on|off");
  if (on && !editor_.build().hasRunner()) throw ScriptFailure("nothing here can start programs");
  if (editor_.build().job().running()) throw ScriptFailure("a build is running");
  editor_.build().startPrograms(on);
}

void ScriptRunner::waitFor(const Words& words) {
  if (!EqualNoCase(words[0].text, "build")) throw ScriptFailure("to be written as: wait build SECONDS");
  if (!editor_.build().job().wait(std::chrono::seconds(ScriptNumber(words[1])))) {
    throw ScriptFailure("the build still runs after " + words[1].text + " seconds");
  }
}

void ScriptRunner::image(const Words& words) {
  if (!pictures_) throw ScriptFailure("nothing here can draw pictures");
  const bool saved = IsTextures(words[0])
                         ? pictures_->saveTextures(words[1].text)
                         : pictures_->savePicture(ScriptViewNamed(words[0].text), words[1].text);
  if (!saved) {
    throw ScriptFailure("couldn't write the picture " + words[1].text);
  }
}

// The text before a tab names the item; of several alike "Paste#2" names the second.
void ScriptRunner::menu(const Words& words) {
  const auto shown = ContextMenu(editor_, words[0].text);
  if (!shown) throw ScriptFailure("no such menu: " + words[0].text);
  const MenuItem* item = FindMenuItem(*shown, words[1].text);
  if (!item) throw ScriptFailure("the menu has no item " + words[1].text);
  if (!item->enabled || !item->run) throw ScriptFailure(words[1].text + " is disabled");
  item->run();
}

void ScriptRunner::pick(const Words& words) {
  if (!ScriptPanelNamed(editor_, words[0].text).pick(ScriptNumber(words[1]))) throw NoLine(words);
}

void ScriptRunner::doubleClick(const Words& words) {
  if (!ScriptPanelNamed(editor_, words[0].text).doubleClick(ScriptNumber(words[1]))) throw NoLine(words);
}

void ScriptRunner::control(const Words& words) {
  const std::string value = words.size() > 2 ? words[2].text : "";
  if (ScriptPanelNamed(editor_, words[0].text).control(words[1].text, value)) return;
  throw ScriptFailure(words[0].text + " has no control " + words[1].text + " that takes this");
}

void ScriptRunner::timer(const Words& words) {
  if (!IsTextures(words[0])) throw ScriptFailure("no such timer: " + words[0].text);
  for (int n = ScriptNumber(words[1]); n > 0; --n) editor_.panels().textures.tick();
}

void ScriptRunner::offer(const Words&) { editor_.rescue().offer(); }

void ScriptRunner::tick(const Words&) { editor_.rescue().tick(); }

void ScriptRunner::rescue(const Words&) { out_ << editor_.rescue().writeCopies() << std::endl; }

}  // namespace velk
