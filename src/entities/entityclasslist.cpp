#include <algorithm>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "entities/entityclass.h"

namespace velk {
namespace {

constexpr std::string_view kMark = "/*QUAKED";
constexpr size_t kMaxEntitiesText = 255;

}  // namespace

EntityClassList::EntityClassList() { unknown_.parseDefinition("/*QUAKED UNKNOWN_CLASS (1.0 1.0 0) ?"); }

void EntityClassList::loadAll(const Settings& settings, const Paths& paths, Prompts& prompts) {
  table_.clear();
  byName_.clear();
  sorted_ = settings.sort_entities;
  for (const std::string& entry : Split(settings.entities.substr(0, kMaxEntitiesText), ';')) {
    const std::string bare = FileNamePart(entry);
    const std::string path = settings.entity_qc_directory + bare;
    if (!bare.empty() && paths.exists(path)) {
      scanFile(paths, path);
      continue;
    }
    FileChooser chooser;
    chooser.title = Format("Where is .qc file:  %s?", bare.c_str());
    chooser.filter = "Entity .qc Files (*.qc)|*.qc|";
    chooser.directory = settings.entity_qc_directory;
    if (const auto chosen = prompts.chooseFile(chooser)) scanFile(paths, *chosen);
  }
}

void EntityClassList::scanFile(const Paths& paths, const std::string& shown) {
  scanText(LoadFileOr(paths, shown, Format("Error scanning %s for eclasses...", shown.c_str())));
}

void EntityClassList::scanText(std::string_view text) {
  for (size_t at = text.find(kMark); at != std::string_view::npos; at = text.find(kMark, at + 1)) {
    EntityClass found;
    found.parseDefinition(text.substr(at));
    insert(std::move(found));
  }
}

void EntityClassList::insert(EntityClass entityClass) {
  if (count() >= kMaxClasses) Error("EntityClass->insert, too many classes");
  auto place = table_.end();
  if (sorted_) {
    place = std::upper_bound(
        table_.begin(), table_.end(), entityClass.name,
        [](const std::string& name, const auto& c) { return CompareNoCase(name, c->name) < 0; });
  }
  const auto inserted = table_.insert(place, std::make_unique<EntityClass>(std::move(entityClass)));
  // Equal names come to stand after the ones before, so the first one entered stays the one found.
  byName_.emplace((*inserted)->name, inserted->get());
}

const EntityClass& EntityClassList::findByName(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? unknown_ : *found->second;
}

int EntityClassList::indexOf(const EntityClass& entityClass) const {
  for (int i = 0; i < count(); ++i) {
    if (&classAt(i) == &entityClass) return i;
  }
  return -1;
}

}  // namespace velk
