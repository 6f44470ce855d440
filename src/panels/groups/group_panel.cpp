#include "panels/groups/group_panel.h"

#include "base/text.h"
#include "documents/saving.h"
#include "mapfile/map_writer.h"
#include "ops/group_ops.h"

namespace velk {
namespace {

constexpr Colour kCustomColours[] = {{0, 0, 0},       {255, 255, 255}, {128, 128, 128}, {255, 0, 0},
                                     {0, 255, 0},     {0, 0, 255},     {255, 128, 0},   {128, 255, 0},
                                     {128, 0, 255},   {255, 0, 128},   {0, 255, 128},   {0, 128, 255},
                                     {255, 128, 128}, {128, 255, 128}, {128, 128, 255}, {255, 255, 255}};

ColourChooser ChooserFor(Colour colour) {
  return {"Choose Group Color", colour, {std::begin(kCustomColours), std::end(kCustomColours)}};
}

std::string NameIn(const map& m, int index) { return m.groups.at(index).name; }

void LeaveSelection(map& m) {
  if (!m.settings().multi_select) m.MSPerform(Method::Deselect);
  m.setCurrentEntity(m.world());
}

}  // namespace

void GroupPanel::followMap() {
  const int turn = context_.documents.turn();
  if (turn != turn_) current_ = 0, picked_ = -1;
  turn_ = turn;
  if (!has(current_)) current_ = 0;
  if (!has(picked_)) picked_ = -1;
}

bool GroupPanel::has(int index) {
  const map* m = currentMap();
  return m && index >= 0 && index < m->groups.count();
}

std::vector<GroupPanel::Line> GroupPanel::lines() {
  std::vector<Line> lines;
  map* m = currentMap();
  if (!m) return lines;
  CountGroupBrushes(*m);
  for (int i = 0; i < m->groups.count(); ++i) {
    const group& g = m->groups.at(i);
    lines.push_back(
        {Format(g.visible ? "[V] %s" : "[I] %s", g.name.c_str()), g.colour, g.visible, g.brushCount});
  }
  return lines;
}

int GroupPanel::current() {
  followMap();
  return current_;
}

std::string GroupPanel::currentName() { return currentMap() ? NameIn(*currentMap(), current()) : ""; }

Colour GroupPanel::currentColour() {
  return currentMap() ? currentMap()->groups.colour(current()) : Colour{255, 255, 255};
}

Outcome GroupPanel::toggleGroupMode() {
  bool& mode = context_.services.settings.groupmode;
  mode = !mode;
  if (!currentMap()) return {};
  return Outcome::Drawn(Redraw::All, mode ? "Group mode on..." : "Group mode off...");
}

Outcome GroupPanel::changed(int index) {
  current_ = index;
  Outcome outcome;
  if (showsResults_) outcome = Outcome::Drawn(Redraw::All, "Updating...");
  outcome.groups = true;
  return outcome;
}

void GroupPanel::perform(const char* name, int index, const std::function<void(map&)>& action) {
  if (!has(index)) return;
  followMap();
  context_.door.perform({.name = name, .caption = "Velk - Groups"}, [&] {
    action(*currentMap());
    return changed(index);
  });
}

bool GroupPanel::asks(const char* caption, const std::string& text, bool yesNo) {
  const Answer answer = context_.services.prompts.ask(
      {.caption = caption,
       .text = text,
       .buttons = yesNo ? MessageBox::Buttons::YesNo : MessageBox::Buttons::OkCancel,
       .icon = MessageBox::Icon::Question});
  return answer == Answer::Yes || answer == Answer::Ok;
}

// The world becomes current whether or not a colour is chosen.
void GroupPanel::add(map& m, const std::string& name) {
  const int index = m.groups.add(name);
  m.modified = true;
  m.assignGroupOfSelected(index);
  LeaveSelection(m);
  if (const auto colour = context_.services.prompts.chooseColour(ChooserFor(m.groups.colour(index)))) {
    m.groups.setColour(index, *colour);
  }
}

void GroupPanel::addGroup() {
  if (!currentMap()) return;
  const auto name = context_.services.prompts.input({"Create Group", "Group Name", "", GroupList::kMaxName});
  if (!name || name->empty() || currentMap()->groups.find(*name) >= 0) return;
  followMap();
  context_.door.perform({.name = "Add Group", .caption = "Velk - Groups"}, [&] {
    add(*currentMap(), *name);
    return changed(currentMap()->groups.count() - 1);
  });
}

void GroupPanel::toggleVisible(int index) {
  perform("Group Visibility", index, [&](map& m) {
    m.groups.setVisible(index, !m.groups.visible(index));
    m.modified = true;
  });
}

void GroupPanel::setColour(int index) {
  if (!has(index)) return;
  const auto colour = context_.services.prompts.chooseColour(ChooserFor(currentMap()->groups.colour(index)));
  if (!colour) return;
  perform("Group Color", index, [&](map& m) {
    m.groups.setColour(index, *colour);
    m.modified = true;
  });
}

void GroupPanel::rename(int index) {
  if (!has(index)) return;
  const std::string old = NameIn(*currentMap(), index);
  const auto name = context_.services.prompts.input(
      {"New Group Name", Format("Old name:  %s", old.c_str()), old, GroupList::kMaxName});
  if (name) renameTo(index, *name);
}

void GroupPanel::renameTo(int index, const std::string& name) {
  if (!has(index) || name.empty()) return;
  followMap();
  context_.door.perform({.name = "Rename Group", .classic = UndoMode::Groups}, [&] {
    currentMap()->groups.rename(index, name);
    currentMap()->modified = true;
    return changed(index);
  });
}

// With care, the default group stays while there are others: the last one would take its place.
bool GroupPanel::mayDelete(int index) {
  const bool careful = context_.services.settings.careful_tools;
  return has(index) && (index > 0 || !careful || currentMap()->groups.count() == 1);
}

void GroupPanel::remove(int index) {
  if (!mayDelete(index)) return;
  const std::string text = Format("Delete group [%s]?", NameIn(*currentMap(), index).c_str());
  if (!asks("Velk - Group Delete", text, false)) return;
  perform("Delete Group", 0, [&](map& m) { DeleteGroup(m, index); });
  pickNone();
}

void GroupPanel::moveSelected(int index) {
  perform("Move to Group", index, [&](map& m) {
    m.assignGroupOfSelected(index);
    if (!m.settings().groupmode || m.groups.visible(index)) return;
    if (!asks("Velk - Move To Group",
              "Brushes are being moved to an invisible group, make destination group visible?", true)) {
      return;
    }
    m.groups.setVisible(index, true);
    m.modified = true;
  });
}

void GroupPanel::selectAll(int index) {
  perform("Select Group", index, [&](map& m) {
    LeaveSelection(m);
    SelectAllInGroup(m, index);
  });
}

void GroupPanel::showAll() {
  perform("Group Visibility", current(), [](map& m) { ShowAllGroups(m); });
}

void GroupPanel::showDefaultOnly() {
  perform("Group Visibility", has(picked_) ? picked_ : current(), [](map& m) { ShowOnlyGroup(m, 0); });
}

void GroupPanel::isolate(int index) {
  perform("Isolate Group", index, [&](map& m) {
    context_.services.settings.groupmode = true;
    ShowOnlyGroup(m, index);
  });
}

void GroupPanel::exportGroup(int index) {
  constexpr const char* kCaption = "Velk - Group Export";
  if (!currentMap() || (index >= 0 && !has(index))) return;
  if (!asks(kCaption, index < 0 ? "Export visible groups?" : "Export current group?", false)) return;
  const auto file =
      context_.services.prompts.chooseFile({.title = "Export to Map File",
                                            .filter = "Map Files (*.map)|*.map|",
                                            .directory = context_.services.settings.map_directory,
                                            .fileName = {},
                                            .kind = FileChooser::Kind::Save});
  if (!file || !WritePlace(context_.services, *file)) return;
  context_.door.attempt(kCaption, "", [&] {
    const MapWriteResult written = ExportGroup(*currentMap(), index, context_.services.paths, *file);
    if (written.ok()) {
      context_.documents.post(Format("Exported to [%s]...", file->c_str()));
    } else {
      context_.services.tell(kCaption, Format("%s\n\n%s", file->c_str(), written.reason.c_str()));
    }
  });
}

std::vector<std::string> GroupPanel::printed() {
  std::vector<std::string> texts;
  for (const Line& line : lines()) texts.push_back(line.text);
  return texts;
}

}  // namespace velk
