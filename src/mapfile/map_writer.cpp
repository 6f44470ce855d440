#include "mapfile/map_writer.h"

#include <algorithm>
#include <cmath>

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

void WritePairs(const entity& e, TextOut& out) {
  for (const KeyPair& pair : e.pairs()) {
    char* at = out.room(pair.key.size() + pair.value.size() + 7);
    at = PutQuoted(at, pair.key);
    *at++ = '\t';
    at = PutQuoted(at, pair.value);
    out.taken(PutText(at, "\r\n"));
  }
}

// The box of a fixed-size entity; none for others.
brush* BoxOf(entity& e) { return e.isModel ? nullptr : e.at(0); }

// A box beyond the model's range has lost its place; the key still tells it.
void UpdateOrigin(entity& e) {
  if (const brush* box = BoxOf(e); box != nullptr && !box->invalid) e.updateOriginFromBox();
}

template <typename Wanted>
bool AnyBrush(entity& e, Wanted&& wanted) {
  return std::ranges::any_of(e.brushes(), wanted);
}

template <typename Wanted>
void WriteBrushes(entity& e, TextOut& out, bool withGroup, Wanted&& wanted) {
  if (!e.isModel) return;
  for (const brush& b : e.brushes()) {
    if (!b.invalid && wanted(b)) write(b, out, withGroup);
  }
}

bool InGroup(const map& m, const brush& b, int group) {
  return group < 0 ? m.groups.passes(b.group()) : b.group() == group;
}

void ExportEntity(entity& e, int group, TextOut& out) {
  out.line("{");
  UpdateOrigin(e);
  WritePairs(e, out);
  WriteBrushes(e, out, false, [&](const brush& b) { return InGroup(e.parent(), b, group); });
  out.line("}");
}

bool IsPlayerStart(const entity& e) { return e.valueOfKey("classname") == "info_player_start"; }

MapWriteResult Replace(const Paths& paths, const std::string& name, const std::string& text) {
  const WriteResult written = ReplaceFile(paths.native(name), text);
  if (!written.opened) Error("Couldn't write map file, unable to open %s", name.c_str());
  if (!written.ok) return {MapWriteResult::Outcome::Failed, written.reason};
  return {};
}

}  // namespace

void write(const brush& b, TextOut& out, bool withGroup) {
  out.line("{");
  if (withGroup) WriteGroup(b.group(), out);
  for (const face& f : b.faces()) WriteFace(f, out);
  out.line("}");
}

void write(entity& e, TextOut& out, const MapWriteOptions& options) {
  const auto wanted = [&](const brush& b) { return !options.selectedOnly || b.selected(); };
  if (options.selectedOnly && !AnyBrush(e, wanted)) {
    if (e.isWorld()) out.add("{\r\n}\r\n");
    return;
  }
  out.line("{");
  if (const brush* box = BoxOf(e); box != nullptr && options.comments) WriteGroup(box->group(), out);
  UpdateOrigin(e);
  if (options.comments || !e.isWorld()) WritePairs(e, out);
  WriteBrushes(e, out, options.comments, wanted);
  out.line("}");
}

std::string MapFileText(map& m, const MapWriteOptions& options) {
  TextOut out;
  if (options.comments) WriteMapHeader(m, out);
  for (entity& e : m.entities()) write(e, out, options);
  return out.take();
}

std::string GroupExportText(map& m, int group) {
  TextOut out;
  entity* missingStart = nullptr;
  bool startWritten = false;
  for (entity& e : m.entities()) {
    const bool wanted = e.isWorld() || AnyBrush(e, [&](const brush& b) { return InGroup(m, b, group); });
    if (wanted) ExportEntity(e, group, out);
    if (!IsPlayerStart(e)) continue;
    startWritten |= wanted;
    if (missingStart == nullptr) missingStart = &e;
  }
  if (!startWritten && missingStart != nullptr) {
    write(*missingStart, out, {.comments = false, .selectedOnly = false});
  }
  return out.take();
}

MapWriteResult WriteMapFile(map& m, const Paths& paths, const std::string& name,
                            const MapWriteOptions& options) {
  if (m.world() == nullptr || m.world()->numbrushes() == 0)
    return {MapWriteResult::Outcome::NothingToSave, {}};
  MapWriteResult result = Replace(paths, name, MapFileText(m, options));
  if (result.ok()) {
    m.modified = false;
    ++m.saves;
  }
  return result;
}

MapWriteResult ExportGroup(map& m, int group, const Paths& paths, const std::string& name) {
  return Replace(paths, name, GroupExportText(m, group));
}

}  // namespace velk
