// Feeds the readers of brush files, leak files, revolve profiles and compilers' output any bytes; the first
// byte chooses the reader.

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/error.h"
#include "build/build_job.h"
#include "build/leak_trail.h"
#include "mapfile/brush_file.h"
#include "mapfile/revolve_file.h"
#include "require.h"

namespace {

struct FatalError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// What was read is written, and reads back as it was written.
void Brushes(std::string_view text) {
  const velk::Settings settings;
  const velk::EntityClassList classes;
  velk::map m(settings, classes);
  m.initNew("");
  try {
    for (auto& read : velk::ReadBrushText(m, text, "fuzz.bru", {})) m.world()->addobject(std::move(read));
  } catch (const FatalError&) {
    return;
  }
  const std::string written = velk::BrushFileText(m);
  velk::map again(settings, classes);
  again.initNew("");
  try {
    for (auto& read : velk::ReadBrushText(again, written, "again.bru", {}))
      again.world()->addobject(std::move(read));
  } catch (const FatalError& error) {
    Require(false, error.what());
  }
  Require(velk::BrushFileText(again) == written, "brushes read back as others");
}

void Leaks(std::string_view text) {
  Require(velk::ReadLeakPoints(text).size() <= velk::kMostLeakPoints, "too many leak points");
}

void Revolve(std::string_view text) {
  const auto profile = velk::ReadRevolveProfile(text);
  Require(!profile || (profile->size() >= 2 && profile->size() <= 99), "a profile of another size");
}

// The bytes arrive in pieces, as from a pipe.
void Output(std::string_view text) {
  velk::NoPrograms runner;
  velk::BuildJob job(runner);
  job.start("fuzz", {{"step", {}}});
  for (size_t at = 0, piece = 1; at < text.size(); at += piece, piece = piece * 2 % 4099) {
    runner.output(text.substr(at, piece));
  }
  runner.ended({});
  Require(!job.running(), "the build goes on");
  for (const velk::OutputLine& line : job.lines()) {
    Require(line.text.size() <= velk::BuildJob::kLongestLine, "a line that is too long");
  }
  velk::PlaceOfLine(text, static_cast<int>(text.size() % 97));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  velk::SetErrorHandler([](const std::string& message) { throw FatalError(message); });
  return std::freopen("/dev/null", "w", stdout) == nullptr;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  constexpr void (*kReaders[])(std::string_view) = {Brushes, Leaks, Revolve, Output};
  kReaders[data[0] % 4](text);
  return 0;
}
