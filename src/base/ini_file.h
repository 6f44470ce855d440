// Initialisation files: sections of key=value lines, read whole and written back with everything that
// was not changed kept as it was (comments, order, unknown keys).
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"

namespace velk {

class IniFile {
 public:
  // A missing file is an empty one. So is one that is there and cannot be read, which save() then refuses to
  // replace by what little is known of it.
  static IniFile Load(const std::filesystem::path& file);
  static IniFile Parse(std::string_view text);

  // Sections and keys are compared without regard to case; the first of equal keys counts. Blanks round
  // keys and values are dropped, one pair of quotes round a value too. Lines that start with ';' are
  // comments.
  std::optional<std::string> find(std::string_view section, std::string_view key) const;
  std::string string(std::string_view section, std::string_view key, std::string_view fallback) const;
  // Leading decimal digits after an optional sign; a missing key or a value without digits gives the
  // fallback.
  int integer(std::string_view section, std::string_view key, int fallback) const;

  // Changes the key's line where it stands; a new key goes to the end of its section, a new section to
  // the end of the file. A value ends at its first line break.
  void set(std::string_view section, std::string_view key, std::string_view value);

  // Why the file could not be read; empty when it could, or was missing.
  const std::string& unreadable() const { return unreadable_; }

  std::string text() const;
  WriteResult save(const std::filesystem::path& file) const;

 private:
  std::optional<size_t> lineOf(std::string_view section, std::string_view key) const;
  // Where a new key of the section goes; the section is added when it is missing.
  size_t endOfSection(std::string_view section);
  void insertLine(size_t index, std::string line);

  std::vector<std::string> lines_;  // with their line ends
  std::string unreadable_;
  bool crLf_ = false;  // of lines that are added
};

}  // namespace velk
