#include "commands/files/leak_commands.h"

#include <new>

#include "base/error.h"
#include "base/text.h"
#include "camera/flight.h"

namespace velk {
namespace {

// Level, along the trail's next points; straight up or down it stays as it was.
void LookAlongTrail(camera& eye, std::span<const vec3> points, int from) {
  for (size_t i = static_cast<size_t>(from) + 1; i < points.size(); ++i) {
    const double dx = double(points[i].x) - eye.origin.x, dy = double(points[i].y) - eye.origin.y;
    if (dx * dx + dy * dy < 1) continue;
    return LookAlong(eye, {float(dx), float(dy), 0});
  }
}

}  // namespace

// Cancel, too, finds the points gone, unless the tools are careful.
Outcome LoadLeaks(Editor& editor, map&) {
  const bool careful = editor.settings().careful_tools;
  if (!careful) editor.views().leaks.clear();
  const auto path = editor.services().prompts.chooseFile({.title = "Select .pts File",
                                                          .filter = kLeakFilter,
                                                          .directory = editor.settings().map_directory,
                                                          .fileName = {}});
  if (path) return ShowLeakFile(editor, *path);
  return careful ? Outcome{} : Outcome::Drawn(Redraw::All);
}

Outcome ShowLeakFile(Editor& editor, const std::string& path) {
  LeakTrail& leaks = editor.views().leaks;
  leaks.clear();
  try {
    leaks.show(ReadLeakFile(editor.services().paths, path), path);
  } catch (const std::bad_alloc&) {
    Error("Couldn't allocate leak points...");
  }
  if (!leaks.shown()) return Outcome::Drawn(Redraw::All);
  return Outcome::Drawn(Redraw::All, Format("Leak file [%s] processed...", path.c_str()));
}

Outcome StopLeaks(Editor& editor, map&) {
  editor.views().leaks.hide();
  return Outcome::Drawn(Redraw::All);
}

bool LeaksShown(const Editor& editor) {
  return editor.documents().currentMap() && editor.views().leaks.shown();
}

Outcome StepLeak(Editor& editor, map& m, int by) {
  LeakTrail& leaks = editor.views().leaks;
  if (!leaks.shown()) return {};
  camera& eye = m.activeCamera();
  eye.origin = leaks.step(by);
  LookAlongTrail(eye, leaks.points(), leaks.current());
  Outcome outcome = Outcome::Drawn(
      Redraw::All, Format("Leak point %i of %zu...", leaks.current() + 1, leaks.points().size()));
  outcome.centre = Centre::Follow;
  return outcome;
}

}  // namespace velk
