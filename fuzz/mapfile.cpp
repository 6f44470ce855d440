// Feeds the map reader any bytes; what it makes of them is written and read back, and must then stay as it
// is.

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/error.h"
#include "mapfile/map_reader.h"
#include "mapfile/map_writer.h"
#include "require.h"

namespace {

struct FatalError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

const velk::EntityClassList& Classes() {
  static const velk::EntityClassList kClasses = [] {
    velk::EntityClassList list;
    list.scanText(
        "/*QUAKED worldspawn (0 0 0) ?\n*/\n"
        "/*QUAKED light (0 1 0) (-8 -8 -8) (8 8 8)\n*/\n"
        "/*QUAKED info_player_start (1 0 0) (-16 -16 -24) (16 16 32)\n*/\n");
    return list;
  }();
  return kClasses;
}

// The text that a save of `text` makes.
std::string Resaved(std::string_view text, bool merge) {
  const velk::Settings settings;
  velk::map m(settings, Classes());
  velk::ReadMapText(m, text, "fuzz.map", {});
  if (merge) velk::MergeMapText(m, text, "fuzz.mrg", {});
  velk::GroupExportText(m, -1);
  velk::MapFileText(m, {.comments = false, .selectedOnly = true});
  return velk::MapFileText(m, {});
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  velk::SetErrorHandler([](const std::string& message) { throw FatalError(message); });
  // The reader's warnings would drown the fuzzer's own lines.
  return std::freopen("/dev/null", "w", stdout) == nullptr;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::string saved;
  try {
    saved = Resaved(text, size % 2 == 1);
  } catch (const FatalError&) {
    return 0;
  }
  try {
    const std::string second = Resaved(saved, false);
    const std::string third = Resaved(second, false);
    const std::string fourth = Resaved(third, false);
    // Two readings turn the order of the pairs round twice.
    Require(fourth == second, "a save changes what the save before it wrote");
  } catch (const FatalError& error) {
    Require(false, error.what());
  }
  return 0;
}
