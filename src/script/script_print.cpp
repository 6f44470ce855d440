#include "script/script_print.h"

#include <array>
#include <charconv>
#include <utility>

#include "base/text.h"
#include "commands/context_menus.h"
#include "commands/dispatch.h"
#include "mapfile/map_writer.h"
#include "mouse/operations.h"

namespace velk {
namespace {

using Lines = std::vector<std::string>;

map& OpenMap(Editor& editor) {
  if (!editor.documents().currentMap()) throw ScriptFailure("no map is open");
  return *editor.documents().currentMap();
}

brush& CurrentBrush(Editor& editor) {
  brush* current = OpenMap(editor).firstSelected();
  if (!current) throw ScriptFailure("no brush is selected");
  return *current;
}

std::string VectorText(const vec3& v) { return Format("(%g %g %g)", v.x, v.y, v.z); }

std::string TextureText(const texturedef& t) {
  return Format("%s %g %g %g %g %g", t.name.c_str(), t.shift[0], t.shift[1], t.rotate, t.scale[0],
                t.scale[1]);
}

std::string CountsText(const map& m) {
  int faces = 0;
  int invalid = 0;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      faces += b.numfaces();
      invalid += b.invalid ? 1 : 0;
    }
  }
  return Format("entities %d brushes %d faces %d invalid %d selected %d", m.numentities(), m.brushCount(),
                faces, invalid, m.totalSelected());
}

std::string CurrentText(map& m) {
  const entity* current = m.currentEntity();
  return current ? Format("%d %s", m.indexOf(current), current->valueOfKey("classname").c_str()) : "none";
}

Lines SelectionLines(const map& m) {
  Lines lines;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      if (!b.selected()) continue;
      lines.push_back(Format("%d %d %s %s %d %s", m.indexOf(&e), e.indexOf(&b), VectorText(b.mins).c_str(),
                             VectorText(b.maxs).c_str(), b.numfaces(), b.brushTexture().name.c_str()));
    }
  }
  return lines;
}

std::string EyeText(const map& m) {
  const camera& eye = m.activeCamera();
  return Format("%d %s %g %g %g", m.currentCamera, VectorText(eye.origin).c_str(), eye.roll, eye.pitch,
                eye.yaw);
}

std::string FaceText(const brush& b) {
  if (b.currentFace() < 0 || b.currentFace() >= b.numfaces())
    throw ScriptFailure("the brush has no current face");
  return Format("%d %s", b.currentFace(),
                TextureText(b.faces()[static_cast<size_t>(b.currentFace())].texture).c_str());
}

std::string FaceOf(const map& m, const FacePick& pick) {
  if (!pick.hit) return "none";
  return Format("%d %d %d", m.indexOf(pick.hit->owner), pick.hit->owner->indexOf(pick.hit), pick.face);
}

std::string PickText(Editor& editor, Pixel at) {
  const map& m = OpenMap(editor);
  return FaceOf(m, editor.views().pickInCamera(at));
}

std::string SettingText(const Editor& editor, const std::string& key) {
  const auto text = SettingText(editor.settings(), key);
  if (!text) throw ScriptFailure("no such setting: " + key);
  return *text;
}

std::string ViewText(const Editor& editor, int view) {
  const int plan = static_cast<int>(ToolWindow::Plan1) + view;
  return WindowTitle(editor, view == kCameraView ? ToolWindow::Camera : static_cast<ToolWindow>(plan));
}

const char* OrDash(bool is, const char* word) { return is ? word : "-"; }

std::string MenuLine(const Editor& editor, const Command& command) {
  const char* check = !command.checked ? "-" : IsChecked(editor, command) ? "checked" : "unchecked";
  const std::string path = (*command.menu ? command.menu + std::string("|") : "") + LabelOf(editor, command);
  return Format("%d %s %s %s %s %s %s", command.id, OrDash(*command.name, command.name),
                IsEnabled(editor, command) ? "enabled" : "disabled", check, ScriptQuoted(path).c_str(),
                ScriptQuoted(command.keyText).c_str(), ScriptQuoted(command.keys).c_str());
}

// Rows without a menu item stand last in the table.
Lines MenuLines(Editor& editor) {
  Lines lines;
  for (const Command& command : Commands()) {
    if (!IsHidden(editor, command)) lines.push_back(MenuLine(editor, command));
  }
  return lines;
}

const char* StateText(ShowState state) {
  if (state == ShowState::Minimised) return "minimised";
  return state == ShowState::Maximised ? "maximised" : "normal";
}

Lines WindowLines(Editor& editor) {
  Lines lines;
  for (int i = 0; i < kToolWindows; ++i) {
    const auto window = static_cast<ToolWindow>(i);
    const WindowPlacement placement = editor.windows().windows().placement(window);
    const auto& [left, top, right, bottom] = placement.normal;
    lines.push_back(Format("%s %s (%d %d %d %d) %s", ScriptQuoted(WindowTitle(editor, window)).c_str(),
                           StateText(placement.state), left, top, right, bottom,
                           OrDash(editor.windows().windows().hasFocus(window), "focus")));
  }
  return lines;
}

Lines UndoLines(Editor& editor) {
  OpenMap(editor);
  const History& history = editor.documents().current()->history;
  Lines lines;
  for (const std::string& name : history.undoNames()) lines.push_back("undo " + ScriptQuoted(name));
  for (const std::string& name : history.redoNames()) lines.push_back("redo " + ScriptQuoted(name));
  return lines;
}

Lines GroupLines(const map& m) {
  struct Count {
    int brushes = 0;
    int selected = 0;
  };
  std::vector<Count> counts(static_cast<size_t>(m.groups.count()));
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      if (b.group() < 0 || b.group() >= m.groups.count()) continue;
      Count& count = counts[static_cast<size_t>(b.group())];
      ++count.brushes;
      count.selected += b.selected() ? 1 : 0;
    }
  }
  Lines lines;
  for (int i = 0; i < m.groups.count(); ++i) {
    const group& g = m.groups.at(i);
    const Count& count = counts[static_cast<size_t>(i)];
    lines.push_back(Format("%d %s %s (%d %d %d) brushes %d selected %d", i, ScriptQuoted(g.name).c_str(),
                           g.visible ? "visible" : "invisible", g.colour.red, g.colour.green, g.colour.blue,
                           count.brushes, count.selected));
  }
  return lines;
}

Lines OpenMapLines(Editor& editor) {
  Lines lines;
  for (int i = 0; i < editor.documents().count(); ++i) {
    const map& m = editor.documents().at(i)->model;
    lines.push_back(Format("%d %s %s %s", i, ScriptQuoted(m.name).c_str(), OrDash(m.modified, "modified"),
                           OrDash(i == editor.documents().currentIndex(), "current")));
  }
  return lines;
}

// The map as it would be saved, with plain line ends.
Lines MapLines(map& m) {
  Lines lines = Split(MapFileText(m, {}), '\n');
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (std::string& line : lines) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
  }
  return lines;
}

// The operation that runs.
std::string DragText(const Editor& editor) {
  if (!editor.input().pointer().drag()) return "none";
  const MouseOperation* running = editor.input().runningOperation();
  return running ? running->name : "view";
}

Lines HitLines(const map& m) {
  Lines lines{Format("current %d", m.hits.current)};
  for (int i = 0; i < m.hits.count; ++i) {
    const brush* hit = m.hits.brushes[static_cast<size_t>(i)];
    if (!hit) continue;
    lines.push_back(Format("%d %d %s", m.indexOf(hit->owner), hit->owner->indexOf(hit),
                           OrDash(hit->selected(), "selected")));
  }
  return lines;
}

Lines PointLines(const clipper& clip) {
  Lines lines{Format("count %d current %d", clip.count, clip.current)};
  for (int i = 0; i < clip.count; ++i) lines.push_back(VectorText(clip.points[i]));
  return lines;
}

Lines LeakLines(Editor& editor) {
  const LeakTrail& leaks = editor.views().leaks;
  Lines lines{Format("%s count %zu current %d", leaks.shown() ? "shown" : "hidden", leaks.points().size(),
                     leaks.current())};
  for (const vec3& point : leaks.points()) lines.push_back(VectorText(point));
  return lines;
}

Lines StartedLines(Editor& editor) {
  Lines lines;
  for (const Launch& launch : editor.build().started()) lines.push_back(LaunchText(launch));
  return lines;
}

Lines CheckLines(Editor& editor) {
  OpenMap(editor);
  editor.panels().build.check();
  Lines lines;
  for (const CheckFinding& finding : editor.panels().build.findings()) {
    lines.push_back((finding.mend == CheckFinding::Mend::None ? "- " : "mend ") + finding.text);
  }
  return lines;
}

std::string BuildText(const Editor& editor) {
  const BuildJob& job = editor.build().job();
  return Format("%s %d %s", LowerCase(job.stateText()).c_str(), job.exitStatus(),
                ScriptQuoted(job.lastLine()).c_str());
}

using Printer = Lines (*)(Editor&);
constexpr std::array<std::pair<std::string_view, Printer>, 21> kPrinters{{
    {"status", [](Editor& e) { return Lines{e.documents().status()}; }},
    {"title", [](Editor& e) { return Lines{FrameTitle(e)}; }},
    {"counts", [](Editor& e) { return Lines{CountsText(OpenMap(e))}; }},
    {"current", [](Editor& e) { return Lines{CurrentText(OpenMap(e))}; }},
    {"selection", [](Editor& e) { return SelectionLines(OpenMap(e)); }},
    {"camera", [](Editor& e) { return Lines{EyeText(OpenMap(e))}; }},
    {"textures",
     [](Editor& e) { return OpenMap(e), Lines{Format("%d", e.documents().current()->textures.count())}; }},
    {"face", [](Editor& e) { return Lines{FaceText(CurrentBrush(e))}; }},
    {"groups", [](Editor& e) { return GroupLines(OpenMap(e)); }},
    {"undo", UndoLines},
    {"maps", OpenMapLines},
    {"menu", MenuLines},
    {"windows", WindowLines},
    {"map", [](Editor& e) { return MapLines(OpenMap(e)); }},
    {"drag", [](Editor& e) { return Lines{DragText(e)}; }},
    {"hits", [](Editor& e) { return HitLines(OpenMap(e)); }},
    {"leaks", LeakLines},
    {"started", StartedLines},
    {"check", CheckLines},
    {"build", [](Editor& e) { return Lines{BuildText(e)}; }},
    {"points", [](Editor& e) { return PointLines(OpenMap(e).clip); }},
}};

std::string TextBeforeTab(const std::string& label) { return label.substr(0, label.find('\t')); }

Lines ContextMenuLines(Editor& editor, const std::string& name) {
  const auto menu = ContextMenu(editor, name);
  if (!menu) throw ScriptFailure("no such menu: " + name);
  constexpr const char* kChecks[] = {"-", "unchecked", "checked"};
  Lines lines;
  for (const MenuItem& item : *menu) {
    if (item.separator) continue;
    lines.push_back(Format("%s %s %s", item.enabled ? "enabled" : "disabled",
                           kChecks[static_cast<int>(item.check)],
                           ScriptQuoted(TextBeforeTab(item.label)).c_str()));
  }
  return lines;
}

Lines PrintPlain(Editor& editor, const ScriptPrompts& prompts, const std::string& what) {
  for (const auto& [word, printer] : kPrinters) {
    if (EqualNoCase(word, what)) return printer(editor);
  }
  if (EqualNoCase(what, "prompts")) return prompts.log();
  throw ScriptFailure("nothing to print by that name: " + what);
}

}  // namespace

int ScriptViewNamed(const std::string& name) {
  for (int i = 0; i <= kCameraView; ++i) {
    if (EqualNoCase(name, kViewNames[i])) return i;
  }
  throw ScriptFailure("no such view: " + name);
}

Panel& ScriptPanelNamed(Editor& editor, const std::string& name) {
  if (Panel* panel = editor.panels().named(name)) return *panel;
  throw ScriptFailure("no such window: " + name);
}

const MenuItem* FindMenuItem(const Menu& menu, const std::string& name) {
  const size_t mark = name.rfind('#');
  const std::string label = name.substr(0, mark);
  int left = mark == std::string::npos ? 1 : TextToInt(name.substr(mark + 1));
  for (const MenuItem& item : menu) {
    if (!item.separator && TextBeforeTab(item.label) == label && --left == 0) return &item;
  }
  return nullptr;
}

int ScriptNumber(const ScriptWord& word) {
  const char* end = word.text.data() + word.text.size();
  int value = 0;
  const auto [stop, error] = std::from_chars(word.text.data(), end, value);
  if (error != std::errc{} || stop != end) throw ScriptFailure("not a whole number: " + word.text);
  return value;
}

Lines ScriptPrint(Editor& editor, const ScriptPrompts& prompts, const std::vector<ScriptWord>& what) {
  const std::string& word = what[0].text;
  if (what.size() == 1) return PrintPlain(editor, prompts, word);
  if (what.size() == 2 && EqualNoCase(word, "setting")) return {SettingText(editor, what[1].text)};
  if (what.size() == 2 && EqualNoCase(word, "view")) {
    return {ViewText(editor, ScriptViewNamed(what[1].text))};
  }
  if (what.size() == 2 && EqualNoCase(word, "menu")) return ContextMenuLines(editor, what[1].text);
  if (what.size() == 2 && EqualNoCase(word, "window")) {
    return ScriptPanelNamed(editor, what[1].text).printed();
  }
  if (what.size() == 2 && EqualNoCase(word, "cursor")) {
    return {CursorName(editor.input().cursor(ScriptViewNamed(what[1].text)))};
  }
  if (what.size() == 2 && EqualNoCase(word, "hover")) {
    return {FaceOf(OpenMap(editor), editor.input().hovered(ScriptViewNamed(what[1].text)))};
  }
  if (what.size() == 3 && EqualNoCase(word, "pick")) {
    return {PickText(editor, {ScriptNumber(what[1]), ScriptNumber(what[2])})};
  }
  throw ScriptFailure("nothing to print by that name: " + word);
}

}  // namespace velk
