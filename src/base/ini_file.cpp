#include "base/ini_file.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// The name in a [section] line; none for any other line.
std::optional<std::string_view> SectionName(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
  line = Trimmed(line);
  if (!line.starts_with('[')) return std::nullopt;
  return Trimmed(line.substr(1, std::min(line.find(']'), line.size()) - 1));
}

bool IsSection(std::string_view line, std::string_view section) {
  const auto name = SectionName(line);
  return name && EqualNoCase(*name, section);
}

bool HasKey(std::string_view line, std::string_view key) {
  const size_t equals = line.find('=');
  return equals != line.npos && !Trimmed(line).starts_with(';') &&
         EqualNoCase(Trimmed(line.substr(0, equals)), key);
}

// The value as it has to stand in the file to be read back the same: on one line, quoted where blanks or
// quotes at its ends would be lost.
std::string FileForm(std::string_view value) {
  value = value.substr(0, value.find_first_of("\r\n"));
  const bool plain = WithoutQuotes(Trimmed(value)) == value;
  return plain ? std::string(value) : '"' + std::string(value) + '"';
}

// The line with another value, its blanks and its line end kept.
std::string WithValue(std::string_view line, std::string_view value) {
  const size_t afterEquals = line.find('=') + 1;
  const size_t begin = std::min(line.find_first_not_of(" \t", afterEquals), line.size());
  const size_t lineEnd = std::min(line.find_last_not_of("\r\n") + 1, line.size());
  return std::string(line.substr(0, std::min(begin, lineEnd))) + FileForm(value) +
         std::string(line.substr(lineEnd));
}

}  // namespace

IniFile IniFile::Load(const std::filesystem::path& file) {
  const ReadResult read = ReadFile(file);
  IniFile ini = Parse(read.contents);
  if (!read.ok && StampOf(file).exists) ini.unreadable_ = read.reason;
  return ini;
}

IniFile IniFile::Parse(std::string_view text) {
  IniFile ini;
  while (!text.empty()) {
    const size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    ini.lines_.emplace_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  ini.crLf_ = !ini.lines_.empty() && ini.lines_.front().ends_with("\r\n");
  return ini;
}

std::optional<size_t> IniFile::lineOf(std::string_view section, std::string_view key) const {
  bool inside = false;
  for (size_t i = 0; i < lines_.size(); ++i) {
    if (SectionName(lines_[i])) {
      inside = IsSection(lines_[i], section);
    } else if (inside && HasKey(lines_[i], key)) {
      return i;
    }
  }
  return std::nullopt;
}

std::optional<std::string> IniFile::find(std::string_view section, std::string_view key) const {
  const auto line = lineOf(section, key);
  if (!line) return std::nullopt;
  const std::string_view text = lines_[*line];
  return std::string(WithoutQuotes(Trimmed(text.substr(text.find('=') + 1))));
}

std::string IniFile::string(std::string_view section, std::string_view key, std::string_view fallback) const {
  return find(section, key).value_or(std::string(fallback));
}

int IniFile::integer(std::string_view section, std::string_view key, int fallback) const {
  return LeadingInt(find(section, key).value_or("")).value_or(fallback);
}

void IniFile::set(std::string_view section, std::string_view key, std::string_view value) {
  if (const auto line = lineOf(section, key)) {
    lines_[*line] = WithValue(lines_[*line], value);
  } else {
    insertLine(endOfSection(section), std::string(key) + '=' + FileForm(value));
  }
}

size_t IniFile::endOfSection(std::string_view section) {
  const auto header =
      std::find_if(lines_.begin(), lines_.end(), [&](const auto& line) { return IsSection(line, section); });
  if (header == lines_.end()) {
    if (!lines_.empty()) insertLine(lines_.size(), "");
    insertLine(lines_.size(), '[' + std::string(section) + ']');
    return lines_.size();
  }
  auto end =
      std::find_if(header + 1, lines_.end(), [](const auto& line) { return SectionName(line).has_value(); });
  while (Trimmed(*(end - 1)).empty()) --end;
  return static_cast<size_t>(end - lines_.begin());
}

void IniFile::insertLine(size_t index, std::string line) {
  const char* lineEnd = crLf_ ? "\r\n" : "\n";
  if (index > 0 && !lines_[index - 1].ends_with('\n')) lines_[index - 1] += lineEnd;
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(index), std::move(line) + lineEnd);
}

std::string IniFile::text() const {
  std::string text;
  for (const std::string& line : lines_) text += line;
  return text;
}

WriteResult IniFile::save(const std::filesystem::path& file) const {
  if (!unreadable_.empty()) return {false, false, "it could not be read: " + unreadable_};
  return ReplaceFile(file, text());
}

}  // namespace velk
