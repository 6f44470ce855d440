// Prompts answered from a queue. An empty queue answers Cancel, as an empty text does.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "base/prompts.h"

namespace velk::test {

struct QueuedPrompts : Prompts {
  std::deque<std::string> answers;
  std::vector<FileChooser> choosers;  // those shown so far

  Answer ask(const MessageBox&) override { return next() == "yes" ? Answer::Yes : Answer::Cancel; }
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override {
    choosers.push_back(chooser);
    const std::string file = next();
    return file.empty() ? std::vector<std::string>() : std::vector{file};
  }
  std::optional<std::string> input(const TextInput&) override {
    const std::string text = next();
    return text.empty() ? std::nullopt : std::optional(text);
  }
  std::optional<Colour> chooseColour(const ColourChooser&) override { return std::nullopt; }

 private:
  std::string next() {
    if (answers.empty()) return "";
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace velk::test
