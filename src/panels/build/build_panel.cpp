#include "panels/build/build_panel.h"

#include <algorithm>

#include "base/files.h"
#include "base/text.h"
#include "build/leak_trail.h"
#include "documents/opening.h"

namespace velk {
namespace {

// The brush as a file counts it: those that are not valid are not in it, nor are boxes of point entities.
brush* WrittenBrush(const entity& e, int number) {
  if (!e.isModel) return e.at(0);
  for (brush& b : e.brushes()) {
    if (!b.invalid && number-- == 0) return &b;
  }
  return nullptr;
}

bool Holds(const brush& b, const vec3& point) {
  for (int axis = 0; axis < 3; ++axis) {
    if (point[axis] < b.mins[axis] - 1 || point[axis] > b.maxs[axis] + 1) return false;
  }
  return !b.invalid;
}

vec3 MiddleOf(const brush& b) { return scale(add(b.mins, b.maxs), 0.5); }

// What the finding is of, while that is there. A brush may have moved to another entity since.
entity& OwnerOf(const CheckFinding& finding) {
  return finding.found ? *finding.found->owner : *finding.owner;
}

std::string KindText(OutputLine::Kind kind) {
  constexpr const char* kTexts[] = {"plain", "head", "good", "warning", "error", "leak"};
  return kTexts[static_cast<int>(kind)];
}

}  // namespace

BuildPanel::BuildPanel(const PanelContext& context, BuildTools& tools) : Panel(context), tools_(tools) {
  tools_.job().changed = [this] { changed(); };
  tools_.job().finished = [this] { buildEnded(); };
}

void BuildPanel::showPage(Page page) {
  page_ = page;
  changed();
}

int BuildPanel::lineCount() const {
  return static_cast<int>(page_ == Page::Output ? tools_.job().lines().size() : findings_.size());
}

OutputLine BuildPanel::lineAt(int line) const {
  const auto index = static_cast<size_t>(line);
  if (page_ == Page::Output) return tools_.job().lines()[index];
  OutputLine shown;
  const CheckFinding& finding = findings_[index];
  shown.text = finding.text + (finding.stillThere() ? "" : " (gone)");
  shown.kind = finding.stillThere() ? OutputLine::Kind::Warning : OutputLine::Kind::Plain;
  return shown;
}

bool BuildPanel::isLink(int line) const {
  if (line < 0 || line >= lineCount()) return false;
  if (page_ == Page::Output) return tools_.job().lines()[static_cast<size_t>(line)].place.any();
  const CheckFinding& finding = findings_[static_cast<size_t>(line)];
  return finding.entityNumber >= 0 && finding.stillThere();
}

std::string BuildPanel::headline() const {
  if (page_ == Page::Check) return checked_ ? Format("%zu findings", findings_.size()) : "Not checked yet";
  const BuildJob& job = tools_.job();
  if (job.state() == BuildJob::State::Idle) return "Nothing was built yet";
  return Format("%s: %s, %.1f s", job.name().c_str(), LowerCase(job.stateText()).c_str(),
                static_cast<double>(job.elapsed().count()) / 1000);
}

void BuildPanel::build(const std::string& name, const std::vector<Launch>& launches, const BuildMap& map) {
  page_ = Page::Output;
  // Leak files that stand there already are old.
  leakWatch_ = {};
  leakWatch_.changed(context_.services.paths, map.path);
  tools_.build(name, launches, map);
}

void BuildPanel::buildEnded() {
  const BuildJob& job = tools_.job();
  const Services& services = context_.services;
  const auto file = leakWatch_.changed(services.paths, tools_.builtMap());
  // The watch of the map's own file has nothing more to tell.
  if (MapDocument* built = context_.documents.at(context_.documents.indexOfFile(tools_.builtMap()))) {
    built->leakFiles.changed(services.paths, built->model.name);
  }
  std::vector<vec3> points = file ? ReadLeakFile(services.paths, *file) : std::vector<vec3>();
  Outcome outcome =
      Outcome::Said(Format("Build %s: %s...", job.name().c_str(), job.lines().back().text.c_str()));
  if (!points.empty()) {
    showLeaks(std::move(points), *file);
    outcome =
        Outcome::Drawn(Redraw::All, Format("The map leaks. Leak file [%s] processed...", file->c_str()));
  }
  context_.door.show(outcome);
  changed();
}

int BuildPanel::check() {
  MapDocument* document = context_.documents.current();
  findings_ = document ? CheckMap(document->model, document->textures) : std::vector<CheckFinding>();
  checked_ = document != nullptr;
  checkedMap_ = document;
  showPage(Page::Check);
  return static_cast<int>(findings_.size());
}

void BuildPanel::historyMoved() {
  if (page_ != Page::Check || context_.documents.current() != checkedMap_) return;
  if (!std::ranges::all_of(findings_, &CheckFinding::stillThere)) check();
}

bool BuildPanel::mend(int line) {
  if (line < 0 || line >= static_cast<int>(findings_.size())) return false;
  const CheckFinding finding = findings_[static_cast<size_t>(line)];
  if (finding.mend == CheckFinding::Mend::None || !finding.stillThere()) return false;
  map& own = OwnerOf(finding).parent();
  showMap(own);
  if (currentMap() != &own) return false;
  // The map may have changed since it was looked at.
  const auto stands = [&finding](const CheckFinding& f) {
    return f.owner == finding.owner && f.found == finding.found && f.mend == finding.mend;
  };
  if (std::ranges::none_of(CheckMap(own, context_.documents.current()->textures), stands)) {
    check();
    return false;
  }
  context_.door.perform({.name = "Mend"}, [&] {
    MendFinding(own, finding);
    return Outcome::Drawn(Redraw::All, "Mended: " + finding.text);
  });
  check();
  return true;
}

void BuildPanel::showMap(const map& m) {
  for (int i = 0; i < context_.documents.count() && currentMap() != &m; ++i) {
    if (&context_.documents.at(i)->model != &m) continue;
    context_.door.perform({.name = "Map"}, [&] { return SwitchTo(context_.documents, i); });
  }
}

// The map that was built, made current; none when it is not open any more.
map* BuildPanel::builtMap() {
  const MapDocument* built = context_.documents.at(context_.documents.indexOfFile(tools_.builtMap()));
  if (!built) return nullptr;
  showMap(built->model);
  return currentMap();
}

Outcome BuildPanel::select(map& m, entity& e, brush* one) {
  m.MGPerform(Method::Deselect);
  std::optional<vec3> at;
  for (brush& b : e.brushes()) {
    if (one ? &b != one : b.invalid) continue;
    b.select();
    if (!b.invalid) at = MiddleOf(b);
  }
  m.setCurrentEntity(&e);
  if (at) centreOn(*at);
  return Outcome::Drawn(
      Redraw::All, Format("Entity %i (%s) selected...", m.indexOf(&e), e.valueOfKey("classname").c_str()));
}

// A finding of the world as a whole selects none of its brushes.
Outcome BuildPanel::select(map& m, const CheckFinding& finding) {
  entity& owner = OwnerOf(finding);
  if (!finding.found && owner.isWorld()) {
    m.MGPerform(Method::Deselect);
    m.setCurrentEntity(&owner);
    return Outcome::Drawn(Redraw::All, finding.text);
  }
  Outcome outcome = select(m, owner, finding.found);
  if (finding.found && finding.face >= 0) finding.found->setCurrentFace(finding.face);
  return outcome;
}

Outcome BuildPanel::goTo(map& m, const MapPlace& place) {
  entity* e = m.at(place.entity);
  if (e && place.brush >= 0) {
    if (brush* b = WrittenBrush(*e, place.brush)) return select(m, *e, b);
  }
  if (place.point) {
    for (entity& owner : m.entities()) {
      for (brush& b : owner.brushes()) {
        if (!Holds(b, *place.point)) continue;
        Outcome outcome = select(m, owner, &b);
        centreOn(*place.point);
        return outcome;
      }
    }
    centreOn(*place.point);
    return Outcome::Drawn(Redraw::All, "Centering view...");
  }
  if (e && !e->isWorld()) return select(m, *e, nullptr);
  return Outcome::Said("Nothing there any more...");
}

bool BuildPanel::follow(const MapPlace& place) {
  map* m = builtMap();
  if (!m || !place.any()) return false;
  MapPlace named = place;
  if (place.line > 0) {
    const ReadResult read = ReadFile(context_.services.paths.native(tools_.builtMap()));
    const MapPlace inText = PlaceOfLine(read.contents, place.line);
    if (inText.entity >= 0) named = inText;
  }
  context_.door.perform({.name = "Find"}, [&] { return goTo(*m, named); });
  return true;
}

bool BuildPanel::pick(int line) {
  if (line < 0 || line >= lineCount()) return false;
  if (!isLink(line)) return true;
  if (page_ == Page::Output) return follow(lineAt(line).place), true;
  const CheckFinding finding = findings_[static_cast<size_t>(line)];
  map& own = OwnerOf(finding).parent();
  showMap(own);
  if (currentMap() != &own) return true;
  context_.door.perform({.name = "Find"}, [&] { return select(own, finding); });
  return true;
}

Menu BuildPanel::contextMenu() {
  MenuItem clear;
  clear.label = "Clear";
  clear.enabled = (page_ == Page::Check || !tools_.job().running()) && lineCount() > 0;
  clear.run = [this] { control("clear", ""); };
  MenuItem stop;
  stop.label = "Stop";
  stop.enabled = tools_.job().running();
  stop.run = [this] { control("stop", ""); };
  return {stop, clear};
}

bool BuildPanel::control(const std::string& name, const std::string& value) {
  if (EqualNoCase(name, "page")) {
    const bool known = EqualNoCase(value, "output") || EqualNoCase(value, "check");
    if (known) showPage(EqualNoCase(value, "check") ? Page::Check : Page::Output);
    return known;
  }
  if (EqualNoCase(name, "mend")) return mend(LeadingInt(value).value_or(-1));
  if (EqualNoCase(name, "stop")) return tools_.job().stop(), true;
  return EqualNoCase(name, "clear") && clearPage();
}

// The page shown.
bool BuildPanel::clearPage() {
  if (page_ == Page::Check) {
    findings_.clear();
    checked_ = false;
    changed();
    return true;
  }
  if (tools_.job().running()) return false;
  tools_.job().clear();
  return true;
}

std::vector<std::string> BuildPanel::printed() {
  std::vector<std::string> lines{headline()};
  for (int i = 0; i < lineCount(); ++i) {
    const OutputLine line = lineAt(i);
    lines.push_back(KindText(line.kind) + (isLink(i) ? " link " : " - ") + line.text);
  }
  return lines;
}

}  // namespace velk
