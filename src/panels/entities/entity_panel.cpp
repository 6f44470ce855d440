#include "panels/entities/entity_panel.h"

#include <algorithm>

#include "base/text.h"
#include "ops/entity_ops.h"
#include "ops/make_entity.h"

namespace velk {
namespace {

constexpr const char* kSkillFlags[] = {"!easy", "!norm", "!hard", "!dm"};
constexpr int kNamedFlags = 8;

bool HasFlag(const entity& e, int bit) { return (TextToInt(e.valueOfKey("spawnflags")) & 1 << bit) != 0; }

}  // namespace

entity* EntityPanel::shown() {
  map* m = currentMap();
  entity* current = m ? m->currentEntity() : nullptr;
  if (!current) return nullptr;
  const auto id = current->identity().lock();
  if (id == shownId_.lock()) return current;
  shownId_ = id;
  pickNone();
  if (!current->isWorld()) showClassOf(*current);
  return current;
}

void EntityPanel::showClassOf(const entity& e) {
  const std::string& name = e.valueOfKey("classname");
  const int index = context_.classes.indexOf(context_.classes.findByName(name));
  classIndex_ = std::max(index, 0);
  unknownClass_ = index < 0 ? name : "";
}

int EntityPanel::classIndex() {
  shown();
  return std::clamp(classIndex_, 0, std::max(0, context_.classes.count() - 1));
}

std::string EntityPanel::classText() {
  shown();
  return unknownClass_.empty() ? chosenClass().name : unknownClass_;
}

const EntityClass& EntityPanel::chosenClass() {
  const int index = classIndex();
  if (!unknownClass_.empty() || index >= context_.classes.count()) return context_.classes.unknownClass();
  return context_.classes.classAt(index);
}

std::string EntityPanel::comment() { return chosenClass().comments.value_or(""); }

void EntityPanel::chooseClass(int index) {
  if (!shown() || index < 0 || index >= context_.classes.count()) return;
  classIndex_ = index;
  unknownClass_.clear();
}

void EntityPanel::classesReloaded() {
  classIndex_ = 0;
  unknownClass_.clear();
  shownId_.reset();
}

std::string EntityPanel::label() {
  const entity* e = shown();
  const std::string name = e ? e->valueOfKey("classname") : "";
  if (!name.empty()) label_ = Format("Current:  %s", name.c_str());
  return label_;
}

bool EntityPanel::canEditAll() {
  const entity* current = shown();
  if (!current || current->isWorld()) return false;
  return std::ranges::any_of(currentMap()->entities(), [&](const entity& e) {
    return &e != current && !e.isWorld() && std::ranges::any_of(e.brushes(), &brush::selected);
  });
}

bool EntityPanel::editsAll() {
  return editsAll_.value_or(context_.services.settings.careful_tools) && canEditAll();
}

std::vector<entity*> EntityPanel::edited() {
  entity* current = shown();
  if (!current) return {};
  std::vector<entity*> all{current};
  if (!editsAll()) return all;
  for (entity& e : currentMap()->entities()) {
    const bool selected = std::ranges::any_of(e.brushes(), &brush::selected);
    if (&e != current && !e.isWorld() && selected) all.push_back(&e);
  }
  return all;
}

std::vector<SharedPair> EntityPanel::pairs() { return SharedPairs(edited()); }

// The current entity's own class, which its flags are of; for the world the one chosen.
const EntityClass& EntityPanel::flagClass() {
  const entity* e = shown();
  return e && !e->isWorld() ? e->entityClass() : chosenClass();
}

std::array<EntityPanel::Flag, EntityPanel::kFlags> EntityPanel::flags() {
  std::array<Flag, kFlags> flags;
  const std::vector<entity*> all = edited();
  const EntityClass& labels = flagClass();
  for (int bit = 0; bit < kFlags; ++bit) {
    Flag& flag = flags[size_t(bit)];
    flag.label = bit < kNamedFlags ? labels.flagName(bit) : kSkillFlags[bit - kNamedFlags];
    const auto set = std::ranges::count_if(all, [&](const entity* e) { return HasFlag(*e, bit); });
    if (set > 0) flag.state = size_t(set) == all.size() ? FlagState::On : FlagState::Differs;
  }
  return flags;
}

// Bits without a box are lost, unless care is taken.
void EntityPanel::setFlags(entity& e, int bit, bool on) const {
  constexpr int kBoxes = (1 << kFlags) - 1;
  int flags = TextToInt(e.valueOfKey("spawnflags"));
  if (!context_.services.settings.careful_tools) flags &= kBoxes;
  flags = on ? flags | 1 << bit : flags & ~(1 << bit);
  if (flags == 0) {
    RemovePair(e, "spawnflags");
  } else {
    SetPair(e, "spawnflags", Format("%i", flags));
  }
}

void EntityPanel::toggleFlag(int bit) {
  if (bit < 0 || bit >= kFlags) return;
  const bool on = flags()[size_t(bit)].state != FlagState::On;
  change("Set spawnflags", [&](entity& e) { setFlags(e, bit, on); });
}

void EntityPanel::change(const std::string& name, const Change& action) {
  if (!shown()) return;
  context_.door.perform({.name = name}, [&]() -> Outcome {
    for (entity* e : edited()) action(*e);
    return Outcome::Drawn(Redraw::All);
  });
}

void EntityPanel::set(const std::string& key, const std::string& value) {
  if (shown() && KeepsItsClass(*shown(), key)) return context_.door.show(Outcome::Said(kWorldKeepsClass));
  change("Set " + key, [&](entity& e) { SetPair(e, key, value); });
}

std::optional<std::string> EntityPanel::sharedValue(const std::string& key) {
  const std::vector<entity*> all = edited();
  if (all.empty()) return std::nullopt;
  const std::string value = all.front()->valueOfKey(key);
  const bool shared = std::ranges::all_of(all, [&](const entity* e) { return e->valueOfKey(key) == value; });
  return shared ? std::optional(value) : std::nullopt;
}

std::optional<int> EntityPanel::angle() {
  const std::optional<std::string> value = sharedValue("angle");
  return value ? LeadingInt(*value) : std::nullopt;
}

void EntityPanel::setAngle(int degrees) {
  clearFields();
  set("angle", Format("%d", degrees));
}

std::optional<Colour> EntityPanel::colour() {
  const std::optional<std::string> value = sharedValue("_color");
  return value ? ColourOfValue(*value) : std::nullopt;
}

void EntityPanel::askColour() {
  const entity* e = shown();
  if (!e) return;
  const std::string old = e->valueOfKey("_color");
  const auto chosen = context_.services.prompts.chooseColour(
      {"Choose Entity Color", colour().value_or(Colour{255, 255, 255}), {}});
  if (chosen) set("_color", ValueOfColour(*chosen, old));
}

void EntityPanel::deleteKey() {
  const std::string key = key_.substr(0, MAX_KEY - 1);
  if (key.empty()) return;
  if (shown() && KeepsItsClass(*shown(), key)) return context_.door.show(Outcome::Said(kWorldKeepsClass));
  clearFields();
  change("Remove " + key, [&](entity& e) {
    if (KeepsItsClass(e, key)) return;
    e.parent().modified = true;
    e.removeKeyPair(key);
  });
}

void EntityPanel::clearFields() {
  key_.clear();
  value_.clear();
}

std::vector<EntityPanel::Link> EntityPanel::links() {
  std::vector<Link> lines;
  const entity* e = shown();
  if (!e || e->isWorld()) return lines;
  for (const EntityLink& link : LinksOf(*e)) {
    const std::string& other = link.other->valueOfKey("classname");
    lines.push_back({Format(link.pointsTo ? "points to %s (%s)" : "pointed at by %s (%s)", other.c_str(),
                            link.name.c_str()),
                     link.pointsTo});
  }
  return lines;
}

void EntityPanel::followLink(int index) {
  entity* e = shown();
  if (!e) return;
  const std::vector<EntityLink> links = LinksOf(*e);
  if (index < 0 || index >= int(links.size())) return;
  context_.door.perform({.name = "Select"}, [&]() -> Outcome {
    SelectEntity(*currentMap(), *links[size_t(index)].other);
    return Outcome::Drawn(Redraw::All);
  });
}

Outcome EntityPanel::makeEntity() {
  map* m = currentMap();
  if (!m) return {};
  const MadeEntity made = MakeEntity(*m, classText(), std::nullopt, currentGroup());
  if (made.outcome == EntityMaking::NeedsSeed) {
    context_.services.tell("Velk - Make Entity",
                           "Cannot create variable sized entities without seed brush(es)...",
                           MessageBox::Icon::Warning);
  }
  if (made.outcome != EntityMaking::Made) return {};
  return Outcome::Drawn(Redraw::All, "Entity made from brush");
}

void EntityPanel::makeButton() {
  context_.door.perform({.name = "Make Entity", .caption = "Velk - Make Entity"},
                        [&] { return makeEntity(); });
}

}  // namespace velk
