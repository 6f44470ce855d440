// The entity window: the classes to choose from, and the current entity's pairs, flags and angle.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/outcome.h"
#include "panels/entities/entity_facts.h"
#include "panels/panel.h"

namespace velk {

// Follows the current entity of the current map. Without a map there is nothing to show and nothing is done.
class EntityPanel : public Panel {
 public:
  using Panel::Panel;

  // The class chooser: its place in the list of classes and the text it shows, which is the class's name or,
  // at place 0, one that no class has.
  int classIndex();
  std::string classText();
  // The text of the class chosen.
  std::string comment();
  // As the user chooses it; the entity stays what it is.
  void chooseClass(int index);
  // The classes were read anew: the first one is chosen, then that of the current entity.
  void classesReloaded();

  // "Current:  %s", the class of the current entity.
  std::string label();
  // The entities that changes go to: the current one, or with editsAll all of which something is selected.
  std::vector<entity*> edited();
  bool canEditAll();
  bool editsAll();
  void setEditsAll(bool all) { editsAll_ = all; }

  std::vector<SharedPair> pairs();
  // The fields below the list, which show the pair that was picked last.
  const std::string& keyField() const { return key_; }
  const std::string& valueField() const { return value_; }
  void setKeyField(std::string_view text) { key_ = FieldText(text); }
  void setValueField(std::string_view text) { value_ = FieldText(text); }
  // No pair is picked any more.
  void pickNone() { picked_.clear(); }

  static constexpr int kFlags = 12;
  enum class FlagState { Off, On, Differs };
  struct Flag {
    std::string label;
    FlagState state = FlagState::Off;
  };
  std::array<Flag, kFlags> flags();
  void toggleFlag(int bit);

  // "angle" in degrees, -1 up, -2 down; none when it is not set or the edited entities disagree.
  std::optional<int> angle();
  void setAngle(int degrees);
  // "_color"; none when it is not set or the edited entities disagree.
  std::optional<Colour> colour();
  void askColour();

  // The "+" and "-" buttons.
  void addPair() { askPair({}); }
  void deleteKey();
  // A pair changed in place. A changed key takes the old one's place; an empty text, a key of blanks, or one
  // too long changes nothing.
  void editPair(const std::string& oldKey, const std::string& key, std::string value);

  struct Link {
    std::string text;
    bool pointsTo = false;
  };
  std::vector<Link> links();
  // Selects the entity at the other end.
  void followLink(int index);

  // Which group new brushes join, asked when an entity is made of nothing.
  std::function<int()> currentGroup = [] { return 0; };
  // An entity of the class in the chooser out of the selection. For use within the door.
  Outcome makeEntity();
  // The same through the door.
  void makeButton();

  // Add, Edit, Cut, Copy, Paste, Clear, and the pair last entered.
  Menu contextMenu() override;
  bool pick(int line) override;
  bool doubleClick(int line) override;
  bool control(const std::string& name, const std::string& value) override;
  std::vector<std::string> printed() override;

 private:
  using Change = std::function<void(entity&)>;

  // The entity that is shown: the current one. Takes notice when it is another than before.
  entity* shown();
  void showClassOf(const entity& e);
  const EntityClass& chosenClass();
  const EntityClass& flagClass();
  void change(const std::string& name, const Change& action);
  void set(const std::string& key, const std::string& value);
  void setFlags(entity& e, int bit, bool on) const;
  void clearFields();
  std::optional<SharedPair> pickedPair();
  // What all that are edited have; none when they disagree.
  std::optional<std::string> sharedValue(const std::string& key);
  bool isTooLong(const KeyPair& pair) const;
  void askPair(const KeyPair& filled);
  bool useFlag(const std::string& value);
  bool useAngle(const std::string& value);
  bool useClass(const std::string& value);
  bool useLink(const std::string& value);
  bool useAll(const std::string& value);
  void cut(const KeyPair& pair);
  void copy(const KeyPair& pair);
  MenuItem pasteItem(const std::optional<KeyPair>& pair, const char* otherwise);

  int classIndex_ = 0;
  std::string unknownClass_;           // shown in the chooser while it is not empty
  std::weak_ptr<const void> shownId_;  // of the entity last shown
  std::string label_;
  std::string key_;
  std::string value_;
  std::string picked_;  // key; empty for none
  std::optional<KeyPair> clipboard_;
  std::optional<KeyPair> last_;
  std::optional<bool> editsAll_;  // none: as careful_tools says
};

}  // namespace velk
