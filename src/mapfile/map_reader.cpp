#include "mapfile/map_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <utility>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "mapfile/face_text.h"
#include "mapfile/map_header.h"

namespace velk {
namespace {

constexpr size_t kFacesOfABox = 6;

// The next token on any line; comments before it are examined for a group.
bool NextToken(Tokenizer& tokens) {
  tokens.setCapture(true);
  const bool found = tokens.GetScriptToken(true);
  tokens.setCapture(false);
  return found;
}

int CapturedGroup(const MapText& text, const map& m) {
  return std::clamp(text.tokens.capturedGroup(), 0, m.groups.count() - 1);
}

// Some tools end face lines with flags, which mean nothing to the game; those that are 0 say nothing.
bool IsZeroAfterFace(const Tokenizer& tokens, int faceLine) {
  return tokens.line() == faceLine && tokens.token() == "0";
}

void ReadBrush(entity& e, MapText& text) {
  auto added = std::make_unique<brush>(e.parent().counters());
  initFromTokens(*added, e, text);
  MapReadResult& result = text.result;
  if (++result.brushes % 5 == 0 && !text.progressName.empty()) {
    text.options.progress(Format("Loading %s, [e%ld/b%ld]...  ", text.progressName.c_str(),
                                 result.entities + 1, result.brushes));
  }
  if (added->invalid) {
    ++result.invalidBrushes;
  } else {
    e.addobject(std::move(added));
  }
}

// A box of 16 units a side at the origin.
void AddBox(entity& e, const vec3& origin, MapText& text) {
  auto box = std::make_unique<brush>(e.parent().counters());
  const vec3 half{8, 8, 8};
  box->initBox(e, subtract(origin, half), add(origin, half), text.options.currentTexture);
  e.addobject(std::move(box));
}

// Gives the entity the brushes that its class wants.
void FitToClass(entity& e, MapText& text) {
  const EntityClass& entityClass = e.entityClass();
  const vec3 origin = e.vectorOfKey("origin");
  if (e.numbrushes() > 0 && entityClass.fixedSize) {
    std::fputs("WARNING:Entity with brushes and wrong model type\n", stdout);
    text.result.brushesOfFixedSize += e.numbrushes();
    e.destroyBrushes();
  }
  if (e.numbrushes() == 0 && !entityClass.fixedSize) {
    std::fputs("WARNING:Entity with no brushes and esize_model\n", stdout);
    text.fixedUp = true;
    AddBox(e, origin, text);
  }
  if (entityClass.fixedSize) {
    e.makeClassBox(origin);
    e.at(0)->setGroup(CapturedGroup(text, e.parent()));
  } else {
    e.isModel = true;
  }
  for (brush& b : e.brushes()) b.setColor({entityClass.color[0], entityClass.color[1], entityClass.color[2]});
}

// Nothing of a file may go unnoticed: text ends at its first NUL byte, so only NULs may follow it.
void RefuseBinary(std::string_view text, const std::string& name) {
  const size_t nul = text.find('\0');
  if (nul != std::string_view::npos && text.find_first_not_of('\0', nul) != std::string_view::npos) {
    Error("[%s] is not a text file, line %i holds a zero byte", name.c_str(),
          static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(nul), '\n')) +
              1);
  }
}

// Some tools mark text as UTF-8 with three bytes in front.
std::string_view WithoutMark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

// Some tools end lines with CR alone, which would make a single comment of a file that starts with one.
std::string_view WithLineFeeds(std::string_view text, std::string& changed) {
  if (text.find('\n') != std::string_view::npos || text.find('\r') == std::string_view::npos) return text;
  changed = text;
  std::ranges::replace(changed, '\r', '\n');
  return changed;
}

void Warn(const MapReadResult& result, const std::string& name) {
  if (result.cutPoints > 0) {
    std::printf("WARNING: [%s] plane points whose fractions were cut off: %i\n", name.c_str(),
                result.cutPoints);
  }
  if (result.invalidBrushes > 0) {
    std::printf("WARNING: [%s] invalid brushes left out: %i\n", name.c_str(), result.invalidBrushes);
  }
  if (!result.complete) std::printf("WARNING: [%s] ends inside an entity\n", name.c_str());
}

entity& WorldOf(map& m) {
  if (m.world() != nullptr) return *m.world();
  auto world = std::make_unique<entity>(m);
  world->isModel = true;
  world->setKey("classname", "worldspawn");
  return m.addobject(std::move(world));
}

// Most messages about a map's text do not say which map it is, some not even the line.
std::string PlaceIn(const MapText& text, const std::string& name) {
  return Format("reading [%s], line %i", name.c_str(), text.tokens.line());
}

void TakeGroups(map& m, const MapHeader& header, const MapReadOptions& options) {
  m.groups.clear();
  for (size_t i = 0; i < header.groups.size(); ++i) {
    const MapHeader::Group& read = header.groups[i];
    const std::string name = read.name.substr(0, static_cast<size_t>(options.groupNameLength));
    const int index = i == 0 ? 0 : m.groups.add(name);
    if (i == 0) m.groups.rename(0, name);
    m.groups.setColour(index, read.colour.value_or(options.groupColour));
    m.groups.setVisible(index, read.visible);
  }
}

// All cameras look out of the first player start.
void CamerasToPlayerStart(map& m) {
  for (int i = 1; i < m.numentities(); ++i) {
    const entity& e = *m.at(i);
    if (!EqualNoCase(e.valueOfKey("classname"), "info_player_start")) continue;
    const double degrees = std::clamp(TextToDouble(e.valueOfKey("angle")), -1e6, 1e6);
    camera start;
    start.origin = e.vectorOfKey("origin");
    start.yaw = static_cast<float>(degrees * std::numbers::pi / 180 + std::numbers::pi / 2);
    m.cameras.fill(start);
    return;
  }
}

void ReadEntities(map& m, MapText& text, const std::string& name) {
  const auto& progress = text.options.progress;
  if (progress) text.progressName = name;
  for (;;) {
    MapReadResult& result = text.result;
    auto next = std::make_unique<entity>(m);
    if (progress && result.entities == 0)
      progress(Format("Loading %s, World Entity, [b%ld]...  ", name.c_str(), result.brushes));
    if (progress && result.entities > 0) {
      progress(Format("Loading %s, [e%ld/b%ld]...  ", name.c_str(), result.entities + 1, result.brushes));
    }
    if (!initFromTokens(*next, text)) return;
    ++result.entities;
    m.addobject(std::move(next));
  }
}

void SelectBrushes(entity& e) {
  for (brush& b : e.brushes()) b.select(true);
}

// Moves the brushes of a merged file's world into the map's, in their order.
void MoveBrushes(entity& from, entity& world) {
  std::vector<brush*> order;
  for (brush& b : from.brushes()) order.push_back(&b);
  const EntityClass& worldClass = world.entityClass();
  for (brush* b : order) {
    std::unique_ptr<brush> moved = from.removeObject(b, nullptr);
    moved->owner = &world;
    moved->setColor({worldClass.color[0], worldClass.color[1], worldClass.color[2]});
    world.addobject(std::move(moved));
  }
}

// The entities of a merged file, belonging to the map but not in it yet.
struct MergedEntities {
  std::unique_ptr<entity> world;  // the file's; none when it has no brushes of its own
  std::vector<std::unique_ptr<entity>> others;
};

MergedEntities ReadMerged(map& m, MapText& text, const std::string& name) {
  MergedEntities merged;
  for (;;) {
    auto next = std::make_unique<entity>(m);
    text.fixedUp = false;
    if (!initFromTokens(*next, text)) return merged;
    const bool first = text.result.entities++ == 0;
    if (text.options.progress) {
      text.options.progress(
          Format("Merging %s, [e%ld/b%ld]...  ", name.c_str(), text.result.entities, text.result.brushes));
    }
    if (first && text.fixedUp) continue;
    SelectBrushes(*next);
    if (first) {
      merged.world = std::move(next);
    } else {
      merged.others.push_back(std::move(next));
      m.requireRoom(static_cast<int>(merged.others.size()));
    }
  }
}

// All or nothing: what has no room is found out before.
void AddMerged(map& m, MergedEntities merged) {
  entity& world = WorldOf(m);
  m.requireRoom(static_cast<int>(merged.others.size()));
  if (merged.world) world.requireRoom(merged.world->numbrushes());
  for (auto& other : merged.others) m.addobject(std::move(other));
  if (merged.world) MoveBrushes(*merged.world, world);
  m.setCurrentEntity(&world);
  m.modified = true;
}

void Report(const MapReadOptions& options, const char* format, const std::string& name) {
  if (options.progress) options.progress(format + (" [" + name + "]"));
}

}  // namespace

void initFromTokens(brush& b, entity& owner, MapText& text) {
  b.owner = &owner;
  b.editFaces().clear();
  b.editFaces().reserve(kFacesOfABox);
  Tokenizer& tokens = text.tokens;
  int faceLine = 0;
  for (;;) {
    if (!NextToken(tokens)) {
      text.result.complete = false;
      break;
    }
    if (tokens.isMark('}')) break;
    if (IsZeroAfterFace(tokens, faceLine)) continue;
    b.setGroup(CapturedGroup(text, owner.parent()));
    if (!tokens.isMark('(')) Error("parsing map file");
    if (b.numfaces() == MAX_FACES) Error("Line %i: brush with more than %i faces", tokens.line(), MAX_FACES);
    text.result.cutPoints += ReadFace(tokens, b.editFaces().emplace_back());
    faceLine = tokens.line();
  }
  if (text.options.build) b.buildWindings();
}

bool initFromTokens(entity& e, MapText& text) {
  Tokenizer& tokens = text.tokens;
  if (!tokens.GetScriptToken(true)) return false;
  if (!tokens.isMark('{'))
    Error("initFromTokens: { not found, %s instead", std::string(tokens.token()).c_str());
  for (;;) {
    if (!NextToken(tokens)) {
      text.result.complete = false;
      break;
    }
    if (tokens.isMark('}')) break;
    if (tokens.isMark('{')) {
      ReadBrush(e, text);
      continue;
    }
    const std::string_view key = tokens.token();
    tokens.GetScriptToken(false);
    e.setKey(key, tokens.token());
  }
  if (text.options.build) FitToClass(e, text);
  return true;
}

MapReadResult ReadMapFile(map& m, const std::string& name, const MapReadOptions& options) {
  Report(options, "Loading", name);
  const std::string text =
      LoadFileOr(options.paths, name, Format("ReadMapFile:  Couldn't read [%s]...", name.c_str()));
  return ReadMapText(m, text, name, options);
}

MapReadResult ReadMapText(map& m, std::string_view text, const std::string& name,
                          const MapReadOptions& options) {
  std::string changed;
  text = WithLineFeeds(WithoutMark(text), changed);
  RefuseBinary(text, name);
  MapHeader header = ReadMapHeader(text);
  m.clearEntities();
  TakeGroups(m, header, options);
  std::copy(header.cameras.begin(), header.cameras.end(), m.cameras.begin());

  MapText reading(text, options);
  const ErrorPlace place([&] { return PlaceIn(reading, name); });
  ReadEntities(m, reading, name);
  m.setCurrentEntity(&WorldOf(m));
  if (!header.camerasComplete) CamerasToPlayerStart(m);
  m.modified = false;

  Warn(reading.result, name);
  if (header.hasFavourites) header.favourites.resize(static_cast<size_t>(std::max(0, m.settings().numfav)));
  reading.result.favourites = std::move(header.favourites);
  reading.result.camerasRead = header.camerasComplete;
  return std::move(reading.result);
}

MapReadResult MergeMapFile(map& m, const std::string& name, const MapReadOptions& options) {
  Report(options, "Merging", name);
  const std::string text =
      LoadFileOr(options.paths, name, Format("MergeMapFile:  Couldn't read [%s]...", name.c_str()));
  return MergeMapText(m, text, name, options);
}

MapReadResult MergeMapText(map& m, std::string_view text, const std::string& name,
                           const MapReadOptions& options) {
  std::string changed;
  text = WithLineFeeds(WithoutMark(text), changed);
  RefuseBinary(text, name);
  MapText reading(text, options);
  const ErrorPlace place([&] { return PlaceIn(reading, name); });
  MergedEntities merged = ReadMerged(m, reading, name);
  if (options.whole && !reading.result.complete) Error("[%s] ends inside an entity", name.c_str());
  AddMerged(m, std::move(merged));
  Warn(reading.result, name);
  return std::move(reading.result);
}

}  // namespace velk
