#include "panels/entities/entity_facts.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr int kWholeColour = 255;

bool Contains(const std::vector<SharedPair>& pairs, std::string_view key) {
  return std::ranges::find(pairs, key, &SharedPair::key) != pairs.end();
}

// Whether every one has the key with that value.
bool AllHave(const std::vector<entity*>& edited, const KeyPair& pair) {
  return std::ranges::all_of(
      edited, [&](const entity* e) { return e->hasKey(pair.key) && e->valueOfKey(pair.key) == pair.value; });
}

std::optional<std::array<double, 3>> ThreeNumbers(std::string_view text) {
  std::array<double, 3> numbers{};
  for (double& number : numbers) {
    const std::optional<double> read = TakeNumber(text);
    if (!read) return std::nullopt;
    number = *read;
  }
  return numbers;
}

bool IsFraction(const std::array<double, 3>& numbers) {
  return std::ranges::all_of(numbers, [](double n) { return n <= 1; });
}

constexpr const char* kTargetKeys[] = {"target", "killtarget"};

bool PointsTo(const entity& from, const std::string& name) {
  return std::ranges::any_of(kTargetKeys, [&](const char* key) { return from.valueOfKey(key) == name; });
}

}  // namespace

std::vector<SharedPair> SharedPairs(const std::vector<entity*>& edited) {
  std::vector<SharedPair> pairs;
  for (const entity* e : edited) {
    for (const KeyPair& pair : e->pairs()) {
      if (Contains(pairs, pair.key)) continue;
      const KeyPair shown{pair.key, e->valueOfKey(pair.key)};
      pairs.push_back({shown.key, shown.value, edited.size() > 1 && !AllHave(edited, shown)});
    }
  }
  return pairs;
}

std::string PairText(const SharedPair& pair) {
  if (pair.differs) return Format("\"%s\" - ...", pair.key.c_str());
  return Format("\"%s\" - \"%s\"", pair.key.c_str(), pair.value.c_str());
}

// What they take is all of printable ASCII but the double quote.
std::string FieldText(std::string_view text) {
  std::string kept;
  std::ranges::copy_if(text, std::back_inserter(kept),
                       [](char c) { return c >= ' ' && c <= '~' && c != '"'; });
  return kept;
}

std::vector<std::string> KeysNamedBy(const EntityClass& entityClass) {
  std::vector<std::string> keys;
  const std::string text = entityClass.comments.value_or("");
  for (size_t open = text.find('"'); open != text.npos;) {
    const size_t close = text.find('"', open + 1);
    if (close == text.npos) break;
    std::string key = text.substr(open + 1, close - open - 1);
    const bool isKey = !key.empty() && key.size() < MAX_KEY && key.find_first_of(" \r\n\t") == key.npos;
    if (isKey && std::ranges::find(keys, key) == keys.end()) keys.push_back(std::move(key));
    open = text.find('"', close + 1);
  }
  return keys;
}

std::vector<EntityLink> LinksOf(const entity& e) {
  std::vector<EntityLink> links;
  const std::string own = e.valueOfKey("targetname");
  for (entity& other : e.parent().entities()) {
    if (&other == &e) continue;
    const std::string name = other.valueOfKey("targetname");
    if (!name.empty() && PointsTo(e, name)) links.push_back({&other, true, name});
    if (!own.empty() && PointsTo(other, own)) links.push_back({&other, false, own});
  }
  std::ranges::stable_partition(links, &EntityLink::pointsTo);
  return links;
}

std::optional<Colour> ColourOfValue(std::string_view value) {
  const auto numbers = ThreeNumbers(value);
  if (!numbers) return std::nullopt;
  const double whole = IsFraction(*numbers) ? kWholeColour : 1;
  const auto channel = [&](double n) {
    return std::clamp(Truncate(RoundHalfAway(n * whole)), 0, kWholeColour);
  };
  return Colour{channel((*numbers)[0]), channel((*numbers)[1]), channel((*numbers)[2])};
}

std::string ValueOfColour(Colour colour, std::string_view old) {
  const auto numbers = ThreeNumbers(old);
  if (numbers && !IsFraction(*numbers)) return Format("%i %i %i", colour.red, colour.green, colour.blue);
  constexpr double kWhole = kWholeColour;
  return Format("%.3g %.3g %.3g", colour.red / kWhole, colour.green / kWhole, colour.blue / kWhole);
}

}  // namespace velk
