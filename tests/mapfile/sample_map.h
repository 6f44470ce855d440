// Maps read from texts, and texts of cubes.
#pragma once

#include <string>

#include "base/text.h"
#include "mapfile/map_reader.h"
#include "mapfile/map_writer.h"
#include "support/builders.h"
#include "support/cube_text.h"

namespace velk::test {

struct SampleMap : TestMap {
  SampleMap() = default;
  explicit SampleMap(std::string_view text) { read(text); }

  MapReadResult read(std::string_view text, const MapReadOptions& options = {}) {
    return ReadMapText(m, text, "test.map", options);
  }
  std::string text(bool comments = true, bool selectedOnly = false) {
    return MapFileText(m, {.comments = comments, .selectedOnly = selectedOnly});
  }
};

inline std::string WithCrLf(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? "\r\n" : std::string(1, c);
  return result;
}

}  // namespace velk::test
