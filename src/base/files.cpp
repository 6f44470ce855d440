#include "base/files.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>

#include "base/descriptor.h"
#include "base/error.h"
#include "base/file_stamp.h"

namespace velk {
namespace {

constexpr off_t kLargestFile = off_t(1) << 30;
constexpr size_t kChunk = 16384;

ReadResult Unopened(std::string reason) { return {false, false, std::move(reason), {}}; }

// Why the open file is not read; empty when it is.
std::string Refusal(const struct stat& info) {
  if (S_ISDIR(info.st_mode)) return std::strerror(EISDIR);
  if (!S_ISREG(info.st_mode)) return "Not a regular file";
  return info.st_size > kLargestFile ? std::strerror(EFBIG) : "";
}

// Bytes read into `contents`: fewer than its size when the file has shrunk or the system refuses.
size_t Fill(int file, std::string& contents) {
  size_t done = 0;
  while (done < contents.size()) {
    const ssize_t got = ::read(file, contents.data() + done, contents.size() - done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    done += static_cast<size_t>(got);
  }
  return done;
}

}  // namespace

FileStamp StampOf(const std::filesystem::path& file) {
  struct stat info {};
  return ::stat(file.c_str(), &info) == 0 ? StampOf(info) : FileStamp{};
}

ReadResult ReadFile(const std::filesystem::path& file) {
  // Without blocking, so that a named pipe nobody writes to does not hang the editor.
  const Descriptor source(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat info {};
  if (!source.ok() || ::fstat(source.get(), &info) != 0) return Unopened(std::strerror(errno));
  if (std::string reason = Refusal(info); !reason.empty()) return Unopened(std::move(reason));

  ReadResult result;
  result.contents.resize(static_cast<size_t>(info.st_size));
  const size_t got = Fill(source.get(), result.contents);
  if (got == result.contents.size()) return result;
  const size_t fullChunks = result.contents.size() / kChunk * kChunk;
  return {false, true, got < fullChunks ? "(Big) file read failure" : "File read failure", {}};
}

std::string LoadFileOr(const Paths& paths, std::string_view name, const std::string& openFailure) {
  ReadResult result = ReadFile(paths.native(name));
  const ErrorPlace place([&] { return "reading [" + std::string(name) + "]"; });
  if (!result.opened) Error("%s", openFailure.c_str());
  if (!result.ok) Error("%s", result.reason.c_str());
  return std::move(result.contents);
}

std::string LoadFile(const Paths& paths, std::string_view name) {
  ReadResult result = ReadFile(paths.native(name));
  if (!result.opened) Error("Error opening %s: %s", std::string(name).c_str(), result.reason.c_str());
  const ErrorPlace place([&] { return "reading [" + std::string(name) + "]"; });
  if (!result.ok) Error("%s", result.reason.c_str());
  return std::move(result.contents);
}

}  // namespace velk
