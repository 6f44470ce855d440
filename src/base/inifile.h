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
  // An unreadable or missing file is an empty one.
  static IniFile Load(const std::filesystem::path& file);
  static IniFile Parse(std::string_view text);

  // Sections and keys are compared without regard to case; the first of equal keys counts. Blanks round
  // keys and values are dropped, one pair of quotes round a value too.
  std::optional<std::string> find(std::string_view section, std::string_view key) const;
  std::string string(std::string_view section, std::string_view key, std::string_view fallback) const;
  // Leading decimal digits after an optional sign; a key that is missing gives the fallback, a value
  // without digits 0.
  int integer(std::string_view section, std::string_view key, int fallback) const;

  // Changes the key's line where it stands; a new key goes to the end of its section, a new section to
  // the end of the file.
  void set(std::string_view section, std::string_view key, std::string_view value);

  std::string text() const;
  WriteResult save(const std::filesystem::path& file) const;

 private:
  std::vector<std::string> lines_;
  bool crLf_ = false;
};

}  // namespace velk
