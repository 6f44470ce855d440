#include "mapfile/map_writer.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "mapfile/map_header.h"

namespace velk {
namespace {

constexpr size_t kFaceLength = 12 * (kIntegerLength + 1) + 2 * (kSixDecimalsLength + 1) + 16;

void WriteGroup(int group, TextOut& out) {
  char text[] = "//\"0000\"";
  group = std::clamp(group, 0, 9999);
  for (int digit = 6; digit > 2; --digit, group /= 10) text[digit] = static_cast<char>('0' + group % 10);
  out.line(text);
}

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= 32; }

// The format has no way to write a quote inside a quoted text, and ends at a zero byte.
char Quotable(char c) { return c == '"' ? '\'' : c == '\0' ? ' ' : c; }

char* PutQuoted(char* at, std::string_view text) {
  *at++ = '"';
  at = std::transform(text.begin(), text.end(), at, Quotable);
  *at++ = '"';
  return at;
}

// Texture names stand as they are, unless they would read back as something else.
bool NeedsQuotes(std::string_view name) {
  return name.empty() || name.front() == '"' || name.starts_with("//") ||
         std::any_of(name.begin(), name.end(), IsBlank);
}

char* PutPoint(char* at, const vec3& point) {
  at = PutText(at, "( ");
  for (const float c : {point.x, point.y, point.z}) {
    at = PutInteger(at, Truncate(c));
    *at++ = ' ';
  }
  return PutText(at, ") ");
}

void WriteFace(const face& f, TextOut& out) {
  const texturedef& texture = f.texture;
  char* at = out.room(kFaceLength + texture.name.size());
  for (const vec3& point : f.planepts) at = PutPoint(at, point);
  at = NeedsQuotes(texture.name) ? PutQuoted(at, texture.name) : PutText(at, texture.name);
  for (const float number : {texture.shift[0], texture.shift[1], texture.rotate}) {
    *at++ = ' ';
    at = PutInteger(at, Truncate(number));
  }
  for (const float number : {texture.scale[0], texture.scale[1]}) {
    *at++ = ' ';
    at = PutSixDecimals(at, number);
  }
  out.taken(PutText(at, "\r\n"));
}

void WritePair(std::string_view key, std::string_view value, TextOut& out) {
  char* at = out.room(key.size() + value.size() + 7);
  at = PutQuoted(at, key);
  *at++ = '\t';
  at = PutQuoted(at, value);
  out.taken(PutText(at, "\r\n"));
}

void WritePairs(const entity& e, TextOut& out) {
  const std::optional<std::string> origin = e.originText();
  if (origin && !e.hasKey("origin")) WritePair("origin", *origin, out);
  for (const KeyPair& pair : e.pairs()) {
    WritePair(pair.key, origin && pair.key == "origin" ? *origin : pair.value, out);
  }
}

// The box of a fixed-size entity; none for others.
const brush* BoxOf(const entity& e) { return e.isModel ? nullptr : e.at(0); }

template <typename Wanted>
bool AnyBrush(const entity& e, Wanted&& wanted) {
  return std::ranges::any_of(e.brushes(), wanted);
}

template <typename Wanted>
void WriteBrushes(const entity& e, TextOut& out, bool withGroup, Wanted&& wanted) {
  if (!e.isModel) return;
  for (const brush& b : e.brushes()) {
    if (!b.invalid && wanted(b)) Write(b, out, withGroup);
  }
}

bool InGroup(const map& m, const brush& b, int group) {
  return group < 0 ? m.groups.passes(b.group()) : b.group() == group;
}

void ExportEntity(const entity& e, int group, TextOut& out) {
  out.line("{");
  WritePairs(e, out);
  WriteBrushes(e, out, false, [&](const brush& b) { return InGroup(e.parent(), b, group); });
  out.line("}");
}

bool IsPlayerStart(const entity& e) { return e.valueOfKey("classname") == "info_player_start"; }

MapWriteResult Replace(const Paths& paths, const std::string& name, const std::string& text) {
  const WriteResult written = ReplaceFile(paths.forWriting(name), text);
  if (!written.opened) Error("Couldn't write map file, unable to open %s", name.c_str());
  if (!written.ok) return {MapWriteResult::Outcome::Failed, written.reason};
  return {};
}

}  // namespace

void Write(const brush& b, TextOut& out, bool withGroup) {
  out.line("{");
  if (withGroup) WriteGroup(b.group(), out);
  for (const face& f : b.faces()) WriteFace(f, out);
  out.line("}");
}

void Write(const entity& e, TextOut& out, const MapWriteOptions& options) {
  const auto wanted = [&](const brush& b) { return !options.selectedOnly || b.selected(); };
  if (options.selectedOnly && !AnyBrush(e, wanted)) {
    if (e.isWorld()) out.add("{\r\n}\r\n");
    return;
  }
  out.line("{");
  if (const brush* box = BoxOf(e); box != nullptr && options.comments) WriteGroup(box->group(), out);
  if (options.comments || !e.isWorld()) WritePairs(e, out);
  WriteBrushes(e, out, options.comments, wanted);
  out.line("}");
}

std::string MapFileText(const map& m, const MapWriteOptions& options) {
  TextOut out;
  if (options.comments) WriteMapHeader(m, out);
  for (const entity& e : m.entities()) Write(e, out, options);
  return out.take();
}

std::string GroupExportText(const map& m, int group) {
  TextOut out;
  const entity* missingStart = nullptr;
  bool startWritten = false;
  for (const entity& e : m.entities()) {
    const bool wanted = e.isWorld() || AnyBrush(e, [&](const brush& b) { return InGroup(m, b, group); });
    if (wanted) ExportEntity(e, group, out);
    if (!IsPlayerStart(e)) continue;
    startWritten |= wanted;
    if (missingStart == nullptr) missingStart = &e;
  }
  if (!startWritten && missingStart != nullptr) {
    Write(*missingStart, out, {.comments = false, .selectedOnly = false});
  }
  return out.take();
}

MapWriteResult WriteMapFile(map& m, const Paths& paths, const std::string& name,
                            const MapWriteOptions& options) {
  if (m.world() == nullptr || (options.needsWorldBrush && m.world()->numbrushes() == 0))
    return {MapWriteResult::Outcome::NothingToSave, {}};
  MapWriteResult result = Replace(paths, name, MapFileText(m, options));
  if (result.ok()) {
    m.modified = false;
    ++m.saves;
  }
  return result;
}

MapWriteResult ExportGroup(const map& m, int group, const Paths& paths, const std::string& name) {
  return Replace(paths, name, GroupExportText(m, group));
}

}  // namespace velk
