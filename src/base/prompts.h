// The questions the editor asks its user. The desktop answers with dialogs, scripts and tests from a
// queue.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/form.h"

namespace velk {

enum class Answer { Yes, No, Ok, Cancel };

struct MessageBox {
  enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
  enum class Icon { None, Information, Warning, Question, Error, Program };  // Program: Velk's own
  std::string caption;
  std::string text;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  bool risky = false;  // Yes may lose something: Enter alone does not mean it
};

struct FileChooser {
  enum class Kind { Open, OpenMany, Save };
  std::string title;
  std::string filter;     // "Map Files (*.map)|*.map|"
  std::string directory;  // where to start, an editor path
  std::string fileName;   // preset, may be empty
  Kind kind = Kind::Open;
};

struct TextInput {
  std::string title;
  std::string prompt;
  std::string text;  // preset
  int maxLength = 127;
  // Called when the box opens and after every change of its text; may be empty.
  std::function<void(const std::string&)> changed{};
};

struct ColourChooser {
  std::string title;
  Colour colour;               // the one to start from
  std::vector<Colour> custom;  // up to 16 custom colours
};

class Prompts {
 public:
  virtual ~Prompts() = default;
  virtual Answer ask(const MessageBox& box) = 0;
  // The chosen paths; empty on Cancel. Only Kind::OpenMany gives more than one.
  virtual std::vector<std::string> chooseFiles(const FileChooser& chooser) = 0;
  virtual std::optional<std::string> input(const TextInput& input) = 0;
  virtual std::optional<Colour> chooseColour(const ColourChooser& chooser) = 0;
  // Has the form filled in, calling its `changed` and `check`; after Cancel its fields and note are as
  // before.
  virtual FormAnswer fill(Form& form) = 0;
  // Opens a form beside the windows and returns, most likely before one of its buttons is pressed; what
  // `pressed` refers to must live as long as the prompts' windows. One with the same title that is open
  // already comes to the front instead.
  virtual void show(ModelessForm form) = 0;

  // Whether the answer to a question is Yes.
  bool agrees(const char* caption, std::string text) {
    return ask({.caption = caption,
                .text = std::move(text),
                .buttons = MessageBox::Buttons::YesNo,
                .icon = MessageBox::Icon::Question}) == Answer::Yes;
  }
  // The one chosen path, or none.
  std::optional<std::string> chooseFile(const FileChooser& chooser) {
    std::vector<std::string> files = chooseFiles(chooser);
    return files.empty() ? std::nullopt : std::optional(files.front());
  }
};

}  // namespace velk
