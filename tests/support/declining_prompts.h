// Prompts that decline whatever is asked, but for files that were named before.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "base/prompts.h"

namespace velk::test {

class DecliningPrompts : public Prompts {
 public:
  // The file that the next chooser gives; "" cancels it.
  DecliningPrompts& answer(std::string file) {
    files_.push_back(std::move(file));
    return *this;
  }

  Answer ask(const MessageBox& box) override {
    return box.buttons == MessageBox::Buttons::Ok ? Answer::Ok : Answer::Cancel;
  }
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override {
    choosers.push_back(chooser);
    if (files_.empty()) return {};
    std::string file = std::move(files_.front());
    files_.pop_front();
    return file.empty() ? std::vector<std::string>() : std::vector{std::move(file)};
  }
  std::optional<std::string> input(const TextInput&) override { return std::nullopt; }
  std::optional<Colour> chooseColour(const ColourChooser&) override { return std::nullopt; }
  FormAnswer fill(Form&) override { return FormAnswer::Cancel; }
  void show(ModelessForm) override {}

  std::vector<FileChooser> choosers;  // so far

 private:
  std::deque<std::string> files_;
};

}  // namespace velk::test
