// Entity classes, as defined by the /*QUAKED comments of QuakeC files.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/paths.h"
#include "base/prompts.h"
#include "settings/settings.h"

namespace velk {

struct EntityClass {
  // What every definition starts with.
  static constexpr std::string_view kMark = "/*QUAKED";

  std::string name;
  bool fixedSize = true;        // a point with the box mins..maxs; false: built of brushes
  std::array<float, 3> mins{};  // relative to the entity's origin, world units
  std::array<float, 3> maxs{};
  std::array<float, 3> color{};          // red, green, blue, nominally 0..1
  std::optional<std::string> comments;   // free text, absent when the definition is malformed
  std::array<std::string, 8> flagNames;  // spawnflag bits 0..7, at most 31 characters each

  // Name of a spawnflag bit; a bit outside 0..7 is fatal "EntityClass flagName: bad number".
  const std::string& flagName(int bit) const;

  // Fills the record from a text that starts at the "/*QUAKED" of one definition; stops at the first
  // failure and keeps what was read before it.
  void parseDefinition(std::string_view text);
};

// All classes of all configured files. Rebuilt as a whole by loadAll, so nothing may hold a class across
// a reload.
class EntityClassList {
 public:
  static constexpr int kMaxClasses = 1024;

  EntityClassList();

  // Reads the files of settings.entities in settings.entity_qc_directory, replacing what was there. A
  // missing file is asked for; Cancel skips it. An unreadable file is fatal "Error scanning %s for
  // eclasses...".
  void loadAll(const Settings& settings, const Paths& paths, Prompts& prompts);

  // Adds every definition in the text of one file.
  void scanText(std::string_view text);

  // Sorted without regard to case (after equal names), or appended when sorting is off. A 1025th class
  // is fatal "EntityClass->insert, too many classes".
  void insert(EntityClass entityClass);
  void setSorted(bool sorted) { sorted_ = sorted; }

  int count() const { return static_cast<int>(table_.size()); }
  const EntityClass& classAt(int index) const { return *table_[static_cast<size_t>(index)]; }
  // The first class of exactly that name, otherwise the unknown class (yellow, built of brushes).
  const EntityClass& findByName(std::string_view name) const;
  const EntityClass& unknownClass() const { return unknown_; }
  bool isKnown(const EntityClass& entityClass) const { return &entityClass != &unknown_; }
  // Position in the table, -1 when it is not there.
  int indexOf(const EntityClass& entityClass) const;

 private:
  void loadFile(const std::string& name, const Settings& settings, const Paths& paths, Prompts& prompts);
  void scanFile(const std::string& file, const Paths& paths);

  std::vector<std::unique_ptr<EntityClass>> table_;
  std::unordered_map<std::string_view, const EntityClass*> byName_;  // the first of each name in the table
  EntityClass unknown_;
  bool sorted_ = true;
};

}  // namespace velk
