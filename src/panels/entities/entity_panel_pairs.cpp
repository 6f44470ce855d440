// The list of pairs: its context menu, the dialog for a pair, what scripts do with it.
#include <algorithm>

#include "base/text.h"
#include "ops/entity_ops.h"
#include "panels/entities/entity_panel.h"

namespace velk {
namespace {

constexpr size_t kKeptLength = 63;  // of a value in the pair clipboard

std::string MenuText(const char* verb, const KeyPair& pair) {
  return Format("%s\t\"%s\" - \"%s\"", verb, pair.key.c_str(), pair.value.c_str());
}

MenuItem Item(std::string label, std::function<void()> run) {
  MenuItem item;
  item.label = std::move(label);
  item.enabled = static_cast<bool>(run);
  item.run = std::move(run);
  return item;
}

std::string WithoutQuotes(std::string text) {
  std::ranges::replace(text, '"', '\'');
  return text;
}

std::optional<int> AngleNamed(const std::string& name) {
  if (EqualNoCase(name, "Up")) return -1;
  if (EqualNoCase(name, "Dn")) return -2;
  return LeadingInt(name);
}

}  // namespace

bool EntityPanel::pick(int line) {
  const std::vector<SharedPair> all = pairs();
  if (line < 0 || line >= int(all.size())) return false;
  const SharedPair& pair = all[size_t(line)];
  picked_ = pair.key;
  key_ = pair.key;
  value_ = pair.differs ? "" : pair.value;
  return true;
}

bool EntityPanel::doubleClick(int line) {
  if (!pick(line)) return false;
  askPair({key_, value_});
  return true;
}

// As the edited entities have it now.
std::optional<SharedPair> EntityPanel::pickedPair() {
  if (picked_.empty()) return std::nullopt;
  for (const SharedPair& pair : pairs()) {
    if (pair.key == picked_) return pair;
  }
  return std::nullopt;
}

MenuItem EntityPanel::pasteItem(const std::optional<KeyPair>& pair, const char* otherwise) {
  if (!pair) return Item(otherwise, {});
  return Item(MenuText("Paste", *pair), [this, pair = *pair] { set(pair.key, pair.value); });
}

void EntityPanel::copy(const KeyPair& pair) {
  const bool whole = context_.services.settings.careful_tools;
  clipboard_ = {pair.key, whole ? pair.value : pair.value.substr(0, kKeptLength)};
}

void EntityPanel::cut(const KeyPair& pair) {
  copy(pair);
  change("Cut " + pair.key, [&](entity& e) { RemovePair(e, pair.key); });
}

Menu EntityPanel::contextMenu() {
  if (!shown()) return {};
  Menu menu{Item("Add Keypair...", [this] { addPair(); })};
  const std::optional<SharedPair> picked = pickedPair();
  if (picked && !picked->differs) {
    const KeyPair pair{picked->key, picked->value};
    menu.push_back(Item(MenuText("Edit", pair), [this, pair] { askPair(pair); }));
    menu.push_back(Item(MenuText("Cut", pair), [this, pair] { cut(pair); }));
    menu.push_back(Item(MenuText("Copy", pair), [this, pair] { copy(pair); }));
  } else {
    if (picked) {
      menu.push_back(Item("Edit\t" + PairText(*picked), [this, key = picked->key] { askPair({key, ""}); }));
    }
    menu.push_back(Item("Cut", {}));
    menu.push_back(Item("Copy", {}));
  }
  menu.push_back(pasteItem(clipboard_, "Paste"));
  menu.push_back(clipboard_ ? Item(MenuText("Clear", *clipboard_), [this] { clipboard_.reset(); })
                            : Item("Clear", {}));
  menu.push_back(pasteItem(last_, "Last"));
  return menu;
}

bool EntityPanel::isTooLong(const KeyPair& pair) const {
  return pair.key.size() >= MAX_KEY || pair.value.size() >= MAX_VALUE;
}

void EntityPanel::askPair(const KeyPair& filled) {
  if (!shown()) return;
  constexpr size_t kTyped = 255;  // more than a pair holds
  Form form{.title = "Key Pair Entry",
            .fields = {TextField("key", "Key", filled.key), TextField("value", "Value", filled.value)}};
  for (FormField& field : form.fields) field.maxLength = kTyped;
  form.fields[0].choices = KeysNamedBy(flagClass());
  if (context_.services.settings.careful_tools) {
    form.check = [](Form& typed) -> std::optional<FormRefusal> {
      if (typed.text("key").size() >= MAX_KEY) return FormRefusal{"A key has at most 63 characters.", "key"};
      if (typed.text("value").size() >= MAX_VALUE) {
        return FormRefusal{"A value has at most 127 characters.", "value"};
      }
      return std::nullopt;
    };
  }
  if (context_.services.prompts.fill(form) == FormAnswer::Cancel) return;
  const KeyPair pair{WithoutQuotes(form.text("key")), WithoutQuotes(form.text("value"))};
  clearFields();
  if (pair.key.empty() || pair.value.empty()) return;
  last_ = pair;
  set(pair.key, pair.value);
}

void EntityPanel::editPair(const std::string& oldKey, const std::string& key, std::string value) {
  const KeyPair pair{WithoutQuotes(std::string(WithoutLeadingBlanks(key))), WithoutQuotes(std::move(value))};
  if (pair.key.empty() || pair.value.empty() || isTooLong(pair)) return;
  const bool unchanged = pair.key == oldKey && std::ranges::any_of(pairs(), [&](const SharedPair& now) {
                           return !now.differs && now.key == pair.key && now.value == pair.value;
                         });
  if (unchanged) return;
  clearFields();
  change("Set " + pair.key, [&](entity& e) {
    if (pair.key != oldKey) RemovePair(e, oldKey);
    SetPair(e, pair.key, pair.value);
  });
}

bool EntityPanel::useFlag(const std::string& value) {
  const int bit = LeadingInt(value).value_or(-1);
  if (bit < 0 || bit >= kFlags) return false;
  toggleFlag(bit);
  return true;
}

bool EntityPanel::useAngle(const std::string& value) {
  const std::optional<int> angle = AngleNamed(value);
  if (angle) setAngle(*angle);
  return angle.has_value();
}

bool EntityPanel::useClass(const std::string& value) {
  const EntityClass& found = context_.classes.findByName(value);
  if (!context_.classes.isKnown(found)) return false;
  chooseClass(context_.classes.indexOf(found));
  return true;
}

bool EntityPanel::useLink(const std::string& value) {
  const int index = LeadingInt(value).value_or(-1);
  if (index < 0 || index >= int(links().size())) return false;
  followLink(index);
  return true;
}

bool EntityPanel::useAll(const std::string& value) {
  const std::optional<int> all = LeadingInt(value);
  if (!all || !canEditAll()) return false;
  setEditsAll(*all != 0);
  return true;
}

bool EntityPanel::control(const std::string& name, const std::string& value) {
  using Use = bool (*)(EntityPanel&, const std::string&);
  static constexpr std::pair<const char*, Use> kControls[] = {
      {"class", [](EntityPanel& p, const std::string& v) { return p.useClass(v); }},
      {"flag", [](EntityPanel& p, const std::string& v) { return p.useFlag(v); }},
      {"angle", [](EntityPanel& p, const std::string& v) { return p.useAngle(v); }},
      {"+", [](EntityPanel& p, const std::string&) { return p.addPair(), true; }},
      {"-", [](EntityPanel& p, const std::string&) { return p.deleteKey(), true; }},
      {"make", [](EntityPanel& p, const std::string&) { return p.makeButton(), true; }},
      {"key", [](EntityPanel& p, const std::string& v) { return p.setKeyField(v), true; }},
      {"value", [](EntityPanel& p, const std::string& v) { return p.setValueField(v), true; }},
      {"color", [](EntityPanel& p, const std::string&) { return p.askColour(), true; }},
      {"link", [](EntityPanel& p, const std::string& v) { return p.useLink(v); }},
      {"all", [](EntityPanel& p, const std::string& v) { return p.useAll(v); }},
  };
  if (!shown()) return false;
  for (const auto& [known, use] : kControls) {
    if (EqualNoCase(name, known)) return use(*this, value);
  }
  return false;
}

std::vector<std::string> EntityPanel::printed() {
  std::vector<std::string> lines{"label " + label(), "class " + classText()};
  for (const SharedPair& pair : pairs()) {
    lines.push_back(pair.differs ? Format("pair \"%s\" differs", pair.key.c_str())
                                 : Format("pair \"%s\" \"%s\"", pair.key.c_str(), pair.value.c_str()));
  }
  int bit = 0;
  for (const Flag& flag : flags()) {
    lines.push_back(
        Format("flag %d \"%s\" %d", bit++, flag.label.c_str(), flag.state == FlagState::On ? 1 : 0));
  }
  for (const Link& link : links()) lines.push_back("link " + link.text);
  return lines;
}

}  // namespace velk
