#include <algorithm>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "entities/entity_class.h"

namespace velk {

EntityClassList::EntityClassList() { unknown_.parseDefinition("/*QUAKED UNKNOWN_CLASS (1.0 1.0 0) ?"); }

void EntityClassList::loadAll(const Settings& settings, const Paths& paths, Prompts& prompts) {
  byName_.clear();
  table_.clear();
  sorted_ = settings.sort_entities;
  for (const std::string& entry : Split(settings.entities, ';')) {
    const std::string name = FileNamePart(Trimmed(entry));
    if (!name.empty()) loadFile(name, settings, paths, prompts);
  }
}

void EntityClassList::loadFile(const std::string& name, const Settings& settings, const Paths& paths,
                               Prompts& prompts) {
  const std::string file = settings.entity_qc_directory + name;
  if (paths.exists(file)) {
    scanFile(file, paths);
    return;
  }
  FileChooser chooser;
  chooser.title = Format("Where is .qc file:  %s?", name.c_str());
  chooser.filter = "Entity .qc Files (*.qc)|*.qc|";
  chooser.directory = settings.entity_qc_directory;
  if (const auto chosen = prompts.chooseFile(chooser)) scanFile(*chosen, paths);
}

void EntityClassList::scanFile(const std::string& file, const Paths& paths) {
  const ErrorPlace place([&] { return "reading [" + file + "]"; });
  scanText(LoadFileOr(paths, file, Format("Error scanning %s for eclasses...", file.c_str())));
}

void EntityClassList::scanText(std::string_view text) {
  for (size_t at = text.find(EntityClass::kMark); at != text.npos;
       at = text.find(EntityClass::kMark, at + 1)) {
    EntityClass found;
    found.parseDefinition(text.substr(at));
    insert(std::move(found));
  }
}

void EntityClassList::insert(EntityClass entityClass) {
  if (count() >= kMaxClasses) Error("EntityClass->insert, too many classes");
  auto place = table_.end();
  if (sorted_) {
    place = std::find_if(table_.begin(), table_.end(),
                         [&](const auto& other) { return CompareNoCase(other->name, entityClass.name) > 0; });
  }
  const auto inserted = table_.insert(place, std::make_unique<EntityClass>(std::move(entityClass)));
  const auto sameName = [&](const auto& other) { return other->name == (*inserted)->name; };
  const auto [first, isNew] = byName_.try_emplace((*inserted)->name, inserted->get());
  // A class entered after sorting was turned on may come to stand before an older one of its name.
  if (!isNew) first->second = std::find_if(table_.begin(), table_.end(), sameName)->get();
}

const EntityClass& EntityClassList::findByName(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? unknown_ : *found->second;
}

int EntityClassList::indexOf(const EntityClass& entityClass) const {
  const auto found = std::ranges::find(table_, &entityClass, &std::unique_ptr<EntityClass>::get);
  return found == table_.end() ? -1 : static_cast<int>(found - table_.begin());
}

}  // namespace velk
