#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

constexpr off_t kLargestFile = off_t(1) << 30;

// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return number_; }
  bool ok() const { return number_ >= 0; }
  bool close() {
    const bool closed = number_ < 0 || ::close(number_) == 0;
    number_ = -1;
    return closed;
  }

 private:
  int number_;
};

// Reads what is there, up to `size` bytes; false when the system refuses or the file is shorter.
bool readAll(int file, std::string& contents) {
  size_t done = 0;
  while (done < contents.size()) {
    const ssize_t got = ::read(file, contents.data() + done, contents.size() - done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    done += static_cast<size_t>(got);
  }
  return true;
}

bool writeAll(int file, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t put = ::write(file, contents.data(), contents.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return false;
    contents.remove_prefix(static_cast<size_t>(put));
  }
  return true;
}

WriteResult failure(bool opened, int code) { return {false, opened, std::strerror(code)}; }

// The file behind the name: links followed, also one whose target does not exist yet.
fs::path targetOf(const fs::path& file) {
  fs::path target = file;
  std::error_code error;
  for (int hops = 0; hops < 40 && fs::is_symlink(target, error); ++hops) {
    const fs::path link = fs::read_symlink(target, error);
    if (error) break;
    target = link.is_absolute() ? link : target.parent_path() / link;
  }
  return target;
}

// Why the existing file may not be replaced; 0 when it may.
int refusal(const fs::path& target, mode_t& mode) {
  struct stat info {};
  if (::stat(target.c_str(), &info) != 0) return errno == ENOENT ? 0 : errno;
  if (S_ISDIR(info.st_mode)) return EISDIR;
  if (!S_ISREG(info.st_mode)) return EINVAL;
  mode = info.st_mode & 07777;
  return ::access(target.c_str(), W_OK) == 0 ? 0 : errno;
}

mode_t modeOfNewFiles() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

void flushFolder(const fs::path& folder) {
  const Descriptor directory(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.ok()) ::fsync(directory.get());
}

}  // namespace

std::string LoadFileOr(const Paths& paths, std::string_view name, const std::string& openFailure) {
  const fs::path native = paths.native(name);
  const Descriptor file(::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat info {};
  if (!file.ok() || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode)) Error("%s", openFailure.c_str());
  if (info.st_size > kLargestFile) Error("(Big) file read failure");
  std::string contents(static_cast<size_t>(info.st_size), '\0');
  if (!readAll(file.get(), contents)) Error("File read failure");
  return contents;
}

std::string LoadFile(const Paths& paths, std::string_view name) {
  const fs::path native = paths.native(name);
  std::string reason = fs::is_directory(native) ? std::strerror(EISDIR) : "";
  if (reason.empty() && ::access(native.c_str(), R_OK) != 0) reason = std::strerror(errno);
  return LoadFileOr(paths, name, Format("Error opening %.*s: %s", int(name.size()), name.data(), reason.c_str()));
}

WriteResult ReplaceFile(const fs::path& file, std::string_view contents) {
  const fs::path target = targetOf(file);
  mode_t mode = modeOfNewFiles();
  if (const int reason = refusal(target, mode)) return failure(false, reason);
  std::string beside = (target.parent_path() / ".velk-XXXXXX").string();
  Descriptor fresh(::mkostemp(beside.data(), O_CLOEXEC));
  if (!fresh.ok()) return failure(false, errno);
  const bool written = writeAll(fresh.get(), contents) && ::fchmod(fresh.get(), mode) == 0 &&
                       ::fsync(fresh.get()) == 0 && fresh.close() &&
                       ::rename(beside.c_str(), target.c_str()) == 0;
  if (!written) {
    const int reason = errno;
    ::unlink(beside.c_str());
    return failure(true, reason);
  }
  flushFolder(target.parent_path());
  return {};
}

}  // namespace velk
