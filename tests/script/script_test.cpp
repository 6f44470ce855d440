#include <sstream>

#include "script/script_runner.h"
#include "support/session.h"

namespace velk {
namespace {

struct Failure {
  const char* script;
  int line;
  const char* message;
};

TEST(Script, FailuresNameLineAndReason) {
  const std::vector<Failure> cases{
      {"CM_FILENEW\n\n// a comment\nCM_NOTHING\n", 4, "no such instruction or command: CM_NOTHING"},
      {"CM_FILESAVE", 1, "CM_FILESAVE is disabled"},
      {"24337", 1, "24337 is disabled (printing is not offered)"},
      {"CM_FILENEW now", 1, "a command stands alone on its line"},
      {"key Ctrl+F11", 1, "no command on the key Ctrl+F11"},
      {"CM_FILEOPEN", 1, R"(no answer for the prompt: "Select MAP File" "Map Files (*.map)|*.map|")"},
      {"answer maybe\nCM_ABOUT", 2, "the answer is none of the buttons of"},
      {"press XY LEFT 1", 1, "to be written as: press VIEW BUTTON X Y [SHIFT] [CTRL] [ALT]"},
      {"press ZZ LEFT 1 2", 1, "no such view: ZZ"},
      {"press XY WHEEL 1 2", 1, "no such mouse button: WHEEL"},
      {"press XY LEFT 1 2 HYPER", 1, "no such modifier: HYPER"},
      {"size XY 0 100", 1, "a view is 1 to 16384 pixels wide and high"},
      {"size XY 5-3 100", 1, "not a whole number: 5-3"},
      {"size XY 100 99999999999", 1, "not a whole number: 99999999999"},
      {"print counts", 1, "no map is open"},
      {"map 0", 1, "no open map has the number 0"},
      {"tick 3", 1, "to be written as: tick"},
      {"print nonsense", 1, "nothing to print by that name: nonsense"},
      {"print setting nonsense", 1, "no such setting: nonsense"},
      {"CM_FILENEW\nprint face", 2, "no brush is selected"},
      {"image XY a.png", 1, "nothing here can draw pictures"},
      {"CM_FILENEW\nanswer \"open", 2, "EOF inside quoted token"},
  };
  for (const Failure& c : cases) {
    test::Session session;
    std::ostringstream out;
    const ScriptResult result = ScriptRunner(session.editor, session.prompts, nullptr, out).run(c.script);
    EXPECT_FALSE(result.ok) << c.script;
    EXPECT_EQ(result.line, c.line) << c.script;
    EXPECT_TRUE(result.message.starts_with(c.message)) << c.script << ": " << result.message;
  }
}

TEST(Script, MalformedScriptRunsNothing) {
  test::Session session;
  std::ostringstream out;
  ScriptRunner(session.editor, session.prompts, nullptr, out).run("CM_FILENEW\nanswer \"open");
  EXPECT_EQ(session.editor.documents().count(), 0);
}

TEST(Script, FatalErrorsPassThrough) {
  test::Session session;
  std::ostringstream out;
  ScriptRunner runner(session.editor, session.prompts, nullptr, out);
  EXPECT_NE(test::FatalMessage([&] { runner.run("answer /nowhere/no.map\nCM_FILEOPEN"); }), "");
}

TEST(Script, ExitEndsIt) {
  test::Session session;
  std::ostringstream out;
  EXPECT_TRUE(ScriptRunner(session.editor, session.prompts, nullptr, out).run("CM_FILEEXIT\nnonsense").ok);
  EXPECT_TRUE(session.observer.exiting);
}

TEST(Script, FilesThatCannotBeRead) {
  test::Session session;
  std::ostringstream out;
  for (const std::string file : {"/nowhere/script", "/", "/dev/zero"}) {
    const ScriptResult result = ScriptRunner(session.editor, session.prompts, nullptr, out).runFile(file);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.message, "couldn't read the script " + file);
  }
}

TEST(Script, PrintsWhatTheMouseRestsOn) {
  test::Session session;
  session.home.write("velkmouse.ini", "1 1\n{ Test\n{ NEWBRUSH LEFT }\n}\n");
  session.editor.settings().hover_pick = session.editor.settings().tool_cursors = true;
  session.open();
  session.current().setCurrentEntity(session.current().world());
  session.editor.views().plans.planCenter = {};
  std::ostringstream out;
  ScriptRunner(session.editor, session.prompts, nullptr, out)
      .run(
          "size XY 400 300\nprint hover XY\nmove XY 210 100\nprint hover XY\nprint cursor XY\n"
          "move XY 20 290\nprint hover XY\nprint cursor 3D\n");
  EXPECT_EQ(out.str(), "none\n0 0 4\ndraw\nnone\nidle\n");
}

struct RecordedPictures : ScriptPictures {
  bool savePicture(int view, const std::string& file) override {
    saved = std::to_string(view) + " " + file;
    return file != "bad.png";
  }
  std::string saved;
};

TEST(Script, Pictures) {
  test::Session session;
  std::ostringstream out;
  RecordedPictures pictures;
  ScriptRunner runner(session.editor, session.prompts, &pictures, out);
  EXPECT_TRUE(runner.run("image yz out.png").ok);
  EXPECT_EQ(pictures.saved, "2 out.png");
  EXPECT_EQ(runner.run("image 3D bad.png").message, "couldn't write the picture bad.png");
}

TEST(ScriptPrompts, AnswersByKind) {
  ScriptPrompts prompts;
  prompts.queue({"1", "300", "-5"}, false);
  EXPECT_EQ(prompts.chooseColour({"Colour", {}, {}}), (Colour{1, 255, 0}));
  prompts.queue({"cancel"}, true);
  EXPECT_EQ(prompts.input({"Name", "New name:", ""}), "cancel");
  prompts.queue({"cancel"}, false);
  EXPECT_EQ(prompts.input({"Name", "New name:", ""}), std::nullopt);
  prompts.queue({"two", "words"}, false);
  EXPECT_EQ(prompts.input({"Name", "New name:", "", 5}), "two w");
  prompts.queue({"a", "b"}, false);
  EXPECT_THROW(
      prompts.chooseFile(
          {.title = "Save", .filter = {}, .directory = {}, .fileName = {}, .kind = FileChooser::Kind::Save}),
      ScriptFailure);
}

// A number that is out of its limits is taken as typed; the check refuses it.
TEST(ScriptPrompts, FormsTakeWhatAUserCouldGive) {
  const auto form = [] {
    Form made;
    made.title = "Stairs";
    made.fields = {WholeField("steps", "Steps", 12, {.low = 2}),
                   RadioField("type", "Type", 0, {"Up", "2", "1"}), RealField("turns", "Turns", 2, {})};
    made.changed = [](Form& f) { f.fields[2].enabled = f.whole("type") == 2; };
    made.check = [](Form& f) {
      return f.whole("steps") < 2 ? std::optional(FormRefusal{"too few", "steps"}) : std::nullopt;
    };
    return made;
  };
  const struct {
    std::vector<std::pair<const char*, const char*>> sets;
    const char* values;  // after OK
    const char* failure = nullptr;
  } cases[] = {
      {{{"STEPS", "7"}, {"type", "up"}}, "7 0 2"},
      {{{"type", "1"}, {"turns", "4.5"}}, "12 2 4.5"},  // the entry "1" is the third
      {{{"type", "0"}}, "12 0 2"},
      {{{"turns", "4"}}, "", "the field is disabled in: \"Stairs\" \"turns\""},
      {{{"type", "3"}}, "", "no such choice of a field of: \"Stairs\" \"3\""},
      {{{"depth", "3"}}, "", "no such field in: \"Stairs\" \"depth\""},
      {{{"steps", "1"}}, "", "no answer for the prompt: \"Stairs\" \"too few\""},
  };
  for (const auto& [sets, values, failure] : cases) {
    ScriptPrompts prompts;
    Form filled = form();
    for (const auto& [field, value] : sets) prompts.set(field, value);
    prompts.queue({"ok"}, false);
    try {
      EXPECT_EQ(prompts.fill(filled), FormAnswer::Ok);
      EXPECT_FALSE(failure) << failure;
      EXPECT_EQ(filled.text("steps") + ' ' + filled.text("type") + ' ' + filled.text("turns"), values);
    } catch (const ScriptFailure& failed) {
      EXPECT_STREQ(failed.what(), failure);
    }
  }
}

TEST(ScriptPrompts, ARefusedFormTakesTheNextAnswerAndCancelTakesAllBack) {
  ScriptPrompts prompts;
  Form form;
  form.fields = {TextField("name", "Name", "old")};
  form.check = [](Form&) { return std::optional(FormRefusal{"never", ""}); };
  prompts.set("name", "new");
  prompts.queue({"ok"}, false);
  prompts.queue({"cancel"}, false);
  EXPECT_EQ(prompts.fill(form), FormAnswer::Cancel);
  EXPECT_EQ(form.text("name"), "old");
  EXPECT_EQ(prompts.log().back(), "form \"\" \"never\" cancel");
}

}  // namespace
}  // namespace velk
