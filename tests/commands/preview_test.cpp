// What the views show while a dialog is open: ghosts of what it would make, its picture, the pair it asks
// about.
#include <algorithm>

#include "base/form_picture.h"
#include "commands/dispatch.h"
#include "mapfile/map_writer.h"
#include "support/session.h"

namespace velk {
namespace {

// Looks at the editor whenever it is asked something, and cancels.
struct LookingPrompts : ScriptPrompts {
  Editor* editor = nullptr;
  size_t ghosts = 0;
  std::shared_ptr<FormPicture> picture;
  vec3 centre;
  int selected = 0;
  std::string set, to;  // a field of the form
  bool accept = false;

  FormAnswer fill(Form& form) override {
    if (FormField* field = form.find(set)) field->value = to;
    form.changed(form);
    ghosts = editor->views().ghosts.size();
    picture = form.picture;
    return accept ? FormAnswer::Ok : FormAnswer::Cancel;
  }
  std::optional<std::string> input(const TextInput& input) override {
    input.changed(input.text);
    ghosts = editor->views().ghosts.size();
    return std::nullopt;
  }
  Answer ask(const MessageBox& box) override {
    centre = editor->views().plans.planCenter;
    selected = editor->documents().currentMap()->totalSelected();
    return box.text.starts_with("Conform") ? Answer::Cancel : Answer::No;
  }
};

struct PreviewTest : testing::Test {
  PreviewTest() {
    prompts.editor = &editor;
    editor.start();
    editor.settings().preview_results = true;
    run("CM_FILENEW");
    prompts.accept = true;
    prompts.set = "dz", prompts.to = "128";
    run("CM_MAKE_BRUSH");
    prompts.accept = false;
    prompts.set = "";
  }
  void run(const char* command) { RunCommand(editor, *FindCommand(command)); }
  map& m() { return *editor.documents().currentMap(); }

  test::TempFolder home;
  LookingPrompts prompts;
  test::RecordingObserver observer;
  Editor editor{EditorPlace{(test::FurnishHome(home), home.path()), home.path() / "drives"}, prompts,
                observer};
};

TEST_F(PreviewTest, DialogsShowGhostsAndChangeNothing) {
  const std::pair<const char*, size_t> cases[] = {
      {"CM_MAKE_BRUSH", 1},   {"CM_MAKE_N_SIDED", 1}, {"CM_MAKE_PYRAMID", 1},    {"CM_MAKE_CYLINDER", 30},
      {"CM_MAKE_LIGHTS", 8},  {"CM_MAKE_SPHERE", 25}, {"CM_EDITMAKESTAIRS", 12}, {"CM_MAKE_ARCH", 10},
      {"CM_ROTATE_BRUSH", 1}, {"CM_EDIT_SCALE", 1},   {"CM_COPY_MOVE", 1},       {"CM_HEIGHT_BRUSH", 1},
      {"CM_MAKE_ROOM", 6},    {"CM_EXTRUDE", 6},      {"CM_HOLLOW", 6},
  };
  const std::string before = MapFileText(m(), {});
  for (const auto& [command, count] : cases) {
    for (const bool on : {true, false}) {
      editor.settings().preview_results = on;
      run(command);
      EXPECT_EQ(prompts.ghosts, on ? count : 0) << command;
      EXPECT_TRUE(editor.views().ghosts.empty());
    }
  }
  EXPECT_EQ(MapFileText(m(), {}), before);
}

TEST_F(PreviewTest, PicturesOfStairsAndArches) {
  run("CM_EDITMAKESTAIRS");
  FormPicture& stairs = *prompts.picture;
  EXPECT_EQ(stairs.caption(), " Step Height: 10.67 R(0) P(25) Y(30) ");
  PictureImage image{64, 48, std::vector<std::uint32_t>(64 * 48, 0xff000000)};
  stairs.draw(image);
  const auto ground = std::ranges::count(image.pixels, image.pixels.front());
  EXPECT_TRUE(ground > 300 && ground < 2700) << ground;
  for (const size_t button : {1, 5, 5, 8}) stairs.press(button);
  stairs.drag(3, -4, false);
  EXPECT_EQ(stairs.caption(), " Step Height: 10.67 R(355) P(31) Y(38) ");
  stairs.wheel(3);
  PictureImage nearer = image;
  stairs.draw(nearer);
  EXPECT_LT(std::ranges::count(nearer.pixels, image.pixels.front()), ground);
  stairs.press(0);
  EXPECT_EQ(stairs.caption(), " Step Height: 10.67 R(0) P(25) Y(30) ");

  run("CM_MAKE_ARCH");
  EXPECT_EQ(prompts.picture->caption(), "R(0) P(25) Y(30)");
  EXPECT_EQ(prompts.picture->buttons()[1], "Pitch +");
  m().firstSelected()->setBox({0, 0, 0}, {64, 64, 16}, {});
  run("CM_MAKE_ARCH");
  EXPECT_EQ(
      prompts.picture->caption(),
      "Brush is too short to create requested arch,\ntry resizing seed brush or, possibly, changing the "
      "axis...");
}

TEST_F(PreviewTest, TheLeakSearchShowsThePairItAsksAbout) {
  brush& lone = *m().firstSelected();
  lone.setBox({0, 0, 0}, {64, 640, 640}, {});
  lone.select(false);
  auto leaning = std::make_unique<brush>();
  leaning->initBox(*m().world(), {64, 0, 0}, {128, 640, 640}, {});
  leaning->editFaces()[0].planepts[0] = {75, 640, 640};
  leaning->editFaces()[0].planepts[1] = {75, 0, 640};
  leaning->buildWindings();
  m().world()->addobject(std::move(leaning));
  run("299");
  EXPECT_TRUE(VecEqual(prompts.centre, {64, 320, 320}));
  EXPECT_EQ(prompts.selected, 2);
  EXPECT_EQ(m().totalSelected(), 0);
  EXPECT_TRUE(VecEqual(editor.views().plans.planCenter, {0, 0, 0}));
  EXPECT_EQ(editor.documents().status(), "Leaks sealed...");
}

}  // namespace
}  // namespace velk
