#include "base/inifile.h"

#include <fstream>
#include <iterator>

#include "base/text.h"

namespace velk {
namespace {

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return static_cast<unsigned char>(c) <= 32; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view withoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

bool isHeader(std::string_view line) { return trimmed(line).starts_with('['); }

bool isHeaderOf(std::string_view line, std::string_view section) {
  line = trimmed(line);
  if (!line.starts_with('[')) return false;
  const size_t end = line.find(']');
  return EqualNoCase(trimmed(line.substr(1, end == std::string_view::npos ? end : end - 1)), section);
}

bool isComment(std::string_view line) { return trimmed(line).starts_with(';') || trimmed(line).starts_with('#'); }

std::optional<std::string_view> valueIn(std::string_view line, std::string_view key) {
  const size_t equals = line.find('=');
  if (equals == std::string_view::npos || isComment(line)) return std::nullopt;
  if (!EqualNoCase(trimmed(line.substr(0, equals)), key)) return std::nullopt;
  return withoutQuotes(trimmed(line.substr(equals + 1)));
}

struct Lines {
  size_t header;  // index of the section's header line, or the number of lines
  size_t end;     // after its last line
};

Lines sectionLines(const std::vector<std::string>& lines, std::string_view section) {
  size_t header = 0;
  while (header < lines.size() && !isHeaderOf(lines[header], section)) ++header;
  size_t end = header < lines.size() ? header + 1 : header;
  while (end < lines.size() && !isHeader(lines[end])) ++end;
  return {header, end};
}

}  // namespace

IniFile IniFile::Load(const std::filesystem::path& file) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(file, ignored)) return {};
  std::ifstream in(file, std::ios::binary);
  return Parse(std::string(std::istreambuf_iterator<char>(in), {}));
}

IniFile IniFile::Parse(std::string_view text) {
  IniFile ini;
  ini.crLf_ = text.find("\r\n") != std::string_view::npos;
  for (std::string& line : Split(text, '\n')) {
    if (line.ends_with('\r')) line.pop_back();
    ini.lines_.push_back(std::move(line));
  }
  if (!ini.lines_.empty() && ini.lines_.back().empty()) ini.lines_.pop_back();
  return ini;
}

std::optional<std::string> IniFile::find(std::string_view section, std::string_view key) const {
  const Lines range = sectionLines(lines_, section);
  for (size_t i = range.header + 1; i < range.end; ++i) {
    if (const auto value = valueIn(lines_[i], key)) return std::string(*value);
  }
  return std::nullopt;
}

std::string IniFile::string(std::string_view section, std::string_view key, std::string_view fallback) const {
  return find(section, key).value_or(std::string(fallback));
}

int IniFile::integer(std::string_view section, std::string_view key, int fallback) const {
  const auto value = find(section, key);
  return value ? TextToInt(*value) : fallback;
}

void IniFile::set(std::string_view section, std::string_view key, std::string_view value) {
  const std::string line = std::string(key) + "=" + std::string(value);
  const Lines range = sectionLines(lines_, section);
  for (size_t i = range.header + 1; i < range.end; ++i) {
    if (valueIn(lines_[i], key)) {
      lines_[i] = line;
      return;
    }
  }
  size_t at = range.end;
  if (range.header == lines_.size()) {
    if (!lines_.empty()) lines_.emplace_back();
    lines_.push_back("[" + std::string(section) + "]");
    at = lines_.size();
  }
  while (at > range.header + 1 && at <= lines_.size() && trimmed(lines_[at - 1]).empty()) --at;
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), line);
}

std::string IniFile::text() const {
  std::string text;
  for (const std::string& line : lines_) text += line + (crLf_ ? "\r\n" : "\n");
  return text;
}

WriteResult IniFile::save(const std::filesystem::path& file) const { return ReplaceFile(file, text()); }

}  // namespace velk
