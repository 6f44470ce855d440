#include "mapfile/map_header.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr std::string_view kGroups = "//VELKGROUPS";
constexpr std::string_view kGroupInfo = "//VELKGROUPINFO";
constexpr std::string_view kFavourites = "//VELKFAVORITES";
constexpr std::string_view kCamerasTag = "//VELKCAMERAS";
constexpr std::string_view kCameraLine = "//\"";
constexpr size_t kMaxField = 15;
constexpr double kDegree = std::numbers::pi / 180;

// The lines not read yet.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }
  // The next line without its end, which may be LF or CR LF.
  std::string_view peek() const {
    std::string_view line = rest_.substr(0, rest_.find('\n'));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }
  std::string_view take() {
    const std::string_view line = peek();
    const size_t feed = rest_.find('\n');
    rest_.remove_prefix(feed == std::string_view::npos ? rest_.size() : feed + 1);
    return line;
  }

 private:
  std::string_view rest_;
};

// The quoted field that follows, and the line goes on after it. None when no quote is left; a field
// without a closing quote goes to the end of the line.
std::optional<std::string_view> TakeQuoted(std::string_view& line) {
  const size_t open = line.find('"');
  if (open == std::string_view::npos) return std::nullopt;
  line.remove_prefix(open + 1);
  const std::string_view field = line.substr(0, line.find('"'));
  line.remove_prefix(std::min(field.size() + 1, line.size()));
  return field;
}

// Reads numbers one after the other, as scanf's "%f" and "%i" do in the C locale.
class Scan {
 public:
  explicit Scan(std::string_view text) : text_(text) {}

  bool real(float& value) {
    const std::optional<float> number = TakeFloat(text_);
    if (number) value = *number;
    return number.has_value();
  }
  bool integer(int& value) {
    const std::optional<int> number = TakeWhole(text_);
    if (number) value = *number;
    return number.has_value();
  }

 private:
  std::string_view text_;
};

// The four digits after a tag.
int CountAfter(std::string_view line, std::string_view tag) { return TextToInt(line.substr(tag.size(), 4)); }

std::optional<Colour> ReadColour(std::string_view field) {
  Scan scan(field.substr(0, kMaxField));
  Colour colour;
  if (!scan.integer(colour.red) || !scan.integer(colour.green) || !scan.integer(colour.blue))
    return std::nullopt;
  for (int* channel : {&colour.red, &colour.green, &colour.blue}) *channel = std::clamp(*channel, 0, 255);
  return colour;
}

MapHeader::Group ReadGroup(std::string_view line) {
  line.remove_prefix(kGroupInfo.size());
  MapHeader::Group group;
  group.name = TakeQuoted(line).value_or("");
  if (const auto colour = TakeQuoted(line)) group.colour = ReadColour(*colour);
  int visible = 1;
  if (const auto field = TakeQuoted(line)) Scan(field->substr(0, kMaxField)).integer(visible);
  group.visible = visible != 0;
  return group;
}

void ReadGroups(Lines& lines, MapHeader& header) {
  const int count = CountAfter(lines.take(), kGroups);
  for (int i = 0; i < count && lines.peek().starts_with(kGroupInfo); ++i)
    header.groups.push_back(ReadGroup(lines.take()));
}

void ReadFavourites(Lines& lines, MapHeader& header) {
  const int count = CountAfter(lines.take(), kFavourites);
  header.hasFavourites = true;
  // Without a name the line is empty; files cut short go on with something else.
  if (!lines.peek().starts_with("//") || lines.peek().starts_with(kCamerasTag)) return;
  for (std::string& name : Split(lines.take().substr(2), ';')) {
    if (static_cast<int>(header.favourites.size()) >= count) break;
    if (!name.empty()) header.favourites.push_back(std::move(name));
  }
}

// The writer truncates to whole degrees, so the float must not fall short of them.
float Radians(int degrees) {
  float angle = static_cast<float>(degrees * kDegree);
  if (Truncate(angle / kDegree) != degrees) angle = std::nextafter(angle, degrees < 0 ? -INFINITY : INFINITY);
  return angle;
}

bool ReadCamera(std::string_view line, camera& result) {
  if (!line.starts_with(kCameraLine)) return false;
  line.remove_prefix(kCameraLine.size());
  Scan scan(line.substr(0, line.find('"')));
  int degrees[3];
  for (int axis = 0; axis < 3; ++axis) {
    if (!scan.real(result.origin[axis])) return false;
  }
  for (int& angle : degrees) {
    if (!scan.integer(angle)) return false;
  }
  result.roll = Radians(degrees[0]);
  result.pitch = Radians(degrees[1]);
  result.yaw = Radians(degrees[2]);
  return true;
}

void ReadCameras(Lines& lines, MapHeader& header) {
  const int count = std::min(CountAfter(lines.take(), kCamerasTag), kCameras);
  header.cameras.clear();
  header.camerasComplete = false;
  for (int i = 0; i < count && !lines.peek().empty(); ++i) {
    camera next;
    if (!ReadCamera(lines.peek(), next)) return;
    header.cameras.push_back(next);
    lines.take();
  }
  header.camerasComplete = !header.cameras.empty();
}

bool IsBlank(std::string_view line) {
  return std::all_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) <= 32; });
}

// A text that stands between quotes and on one line.
std::string Quotable(std::string text) {
  for (char& c : text) {
    if (c == '"') c = '\'';
    if (static_cast<unsigned char>(c) < 32) c = ' ';
  }
  return text;
}

void WriteFavourites(const map& m, TextOut& out) {
  out.line(Format("//VELKFAVORITES%04i", std::clamp(m.settings().numfav, 0, 9999)));
  const char* separator = "//";
  for (const std::string& name : m.favourites) {
    if (name.empty()) continue;
    out.add(separator);
    out.add(Quotable(name));
    separator = ";";
  }
  out.line("");
}

int WholeDegrees(float radians) { return Truncate(radians / kDegree); }

// As printf's "%3.1f" in the C locale.
std::string OneDecimal(float value) {
  char text[48];
  return {
      text,
      std::to_chars(text, std::end(text), std::isfinite(value) ? value : 0, std::chars_format::fixed, 1).ptr};
}

}  // namespace

MapHeader ReadMapHeader(std::string_view text) {
  MapHeader header;
  Lines lines(text);
  while (!lines.atEnd()) {
    const std::string_view line = lines.peek();
    if (line.starts_with(kGroups)) {
      ReadGroups(lines, header);
    } else if (line.starts_with(kFavourites)) {
      ReadFavourites(lines, header);
    } else if (line.starts_with(kCamerasTag)) {
      ReadCameras(lines, header);
    } else if (line.starts_with("//") || IsBlank(line)) {
      lines.take();
    } else {
      break;
    }
  }
  return header;
}

void WriteMapHeader(const map& m, TextOut& out) {
  out.line(Format("//VELKGROUPS%04i", m.groups.count()));
  for (int i = 0; i < m.groups.count(); ++i) {
    const group& g = m.groups.at(i);
    out.line(Format("//VELKGROUPINFO\"%s\" \"%i %i %i\" \"%i\"", Quotable(g.name).c_str(), g.colour.red,
                    g.colour.green, g.colour.blue, g.visible ? 1 : 0));
  }
  if (!m.favourites.empty()) WriteFavourites(m, out);
  out.line(Format("//VELKCAMERAS%04i", kCameras));
  for (const camera& c : m.cameras) {
    out.line(Format("//\"%s %s %s %i %i %i\"", OneDecimal(c.origin.x).c_str(), OneDecimal(c.origin.y).c_str(),
                    OneDecimal(c.origin.z).c_str(), WholeDegrees(c.roll), WholeDegrees(c.pitch),
                    WholeDegrees(c.yaw)));
  }
}

}  // namespace velk
