#include "desktop/system/script_host.h"

#include <QGuiApplication>
#include <QImage>
#include <cstdio>
#include <iostream>

#include "commands/files/named_files.h"
#include "desktop/system/kit.h"
#include "desktop/system/picture_file.h"
#include "desktop/system/qt_programs.h"
#include "desktop/views/camera_window.h"
#include "desktop/views/plan_view_window.h"
#include "desktop/windows/texture_view.h"
#include "script/script_runner.h"

namespace velk {
namespace {

constexpr int kScriptFailed = 2;

class Pictures : public ScriptPictures {
 public:
  explicit Pictures(Editor& editor) : editor_(editor) {}

  bool savePicture(int view, const std::string& file) override {
    const QImage picture = view == kCameraView
                               ? PictureOfCamera(editor_, 1)
                               : PictureOfPlanView(editor_, view, 1, QGuiApplication::palette());
    return SavePng(picture, file);
  }

  bool saveTextures(const std::string& file) override {
    return SavePng(PictureOfTextures(editor_, 1, true), file);
  }

 private:
  Editor& editor_;
};

int Report(const std::string& file, const ScriptResult& result) {
  if (result.ok) return 0;
  if (result.line > 0) {
    std::fprintf(stderr, "%s:%i: %s\n", file.c_str(), result.line, result.message.c_str());
  } else {
    std::fprintf(stderr, "%s: %s\n", file.c_str(), result.message.c_str());
  }
  return kScriptFailed;
}

}  // namespace

int RunScriptFile(const std::string& file, const std::vector<std::string>& maps) {
  ScriptPrompts prompts;
  Observer nobody;
  Editor editor(FindEditorPlace(), prompts, nobody);
  Pictures pictures(editor);
  QtPrograms programs;
  editor.build().setRunner(&programs);
  ScriptRunner runner(editor, prompts, &pictures, std::cout);
  const ScriptResult result = runner.runFile(file, [&] {
    editor.start();
    for (const std::string& map : maps) OpenNamed(editor, map);
  });
  std::cout.flush();
  return Report(file, result);
}

}  // namespace velk
