#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>

#include "base/descriptor.h"
#include "base/file_stamp.h"
#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

constexpr int kMaxLinks = 40;
constexpr int kMaxAttempts = 1000;
constexpr std::time_t kLongestSave = 60;  // seconds

// What is known of the file to be replaced.
struct Target {
  fs::path path;  // links followed
  bool exists = false;
  struct stat info {};
  std::string refusal;  // why it may not be replaced, empty when it may
};

// Follows links, also to a file that does not exist yet.
fs::path BehindLinks(fs::path file) {
  std::error_code error;
  for (int links = 0; links < kMaxLinks && fs::is_symlink(file, error); ++links) {
    const fs::path next = fs::read_symlink(file, error);
    if (error) break;
    file = file.parent_path() / next;
  }
  return file;
}

std::string RefusalOf(const Target& target) {
  if (S_ISDIR(target.info.st_mode)) return std::strerror(EISDIR);
  if (!S_ISREG(target.info.st_mode)) return "Not a regular file";
  // The superuser may write everything, but whoever marked the file read-only meant it.
  if ((target.info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return std::strerror(EACCES);
  return ::faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0 ? "" : std::strerror(errno);
}

Target Examine(const fs::path& file) {
  Target target;
  target.path = BehindLinks(file);
  target.exists = ::stat(target.path.c_str(), &target.info) == 0;
  if (target.exists) {
    target.refusal = RefusalOf(target);
  } else if (errno != ENOENT) {
    target.refusal = std::strerror(errno);
  }
  return target;
}

// The process that made a new file, by the file's name; 0 when it is none of ours.
pid_t MakerOf(const std::string& name) {
  int process = 0;
  int attempt = 0;
  int end = 0;
  const bool ours = std::sscanf(name.c_str(), ".velk-%d-%d.tmp%n", &process, &attempt, &end) == 2 &&
                    end == static_cast<int>(name.size());
  return ours && process > 0 ? process : 0;
}

// A kill leaves the new file behind. Processes of other machines and containers cannot be seen from here,
// so that a young file may still be at work.
bool IsLeftBehind(const fs::directory_entry& entry) {
  const pid_t maker = MakerOf(entry.path().filename().string());
  struct stat info {};
  return maker > 0 && ::kill(maker, 0) != 0 && errno == ESRCH && ::lstat(entry.path().c_str(), &info) == 0 &&
         S_ISREG(info.st_mode) && info.st_uid == ::geteuid() &&
         std::time(nullptr) - info.st_mtim.tv_sec > kLongestSave;
}

void RemoveLeftBehind(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsLeftBehind(*entry)) ::unlink(entry->path().c_str());
  }
}

fs::path FolderOf(const Target& target) {
  const fs::path folder = target.path.parent_path();
  return folder.empty() ? "." : folder;
}

// Makes the new file in the target's folder under a name that no other editor uses. It starts out
// private when it is to take over another mode.
int CreateBeside(const Target& target, fs::path& beside) {
  const mode_t mode = target.exists ? 0600 : 0666;
  int created = -1;
  for (int attempt = 0; created < 0 && attempt < kMaxAttempts; ++attempt) {
    beside = target.path.parent_path() / Format(".velk-%ld-%i.tmp", static_cast<long>(::getpid()), attempt);
    created = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (created < 0 && errno != EEXIST) break;
  }
  return created;
}

// Owner first: changing it may clear mode bits. File systems without owners or modes refuse, which is
// no reason not to save.
void TakeOver(int file, const struct stat& info) {
  [[maybe_unused]] const bool owned = ::fchown(file, info.st_uid, info.st_gid) == 0;
  [[maybe_unused]] const bool sameMode = ::fchmod(file, info.st_mode & 07777) == 0;
}

bool WriteAll(int file, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t put = ::write(file, contents.data(), contents.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return false;
    contents.remove_prefix(static_cast<size_t>(put));
  }
  return true;
}

bool WriteAndFlush(Descriptor& file, const Target& target, std::string_view contents, FileStamp& stamp) {
  if (!WriteAll(file.get(), contents)) return false;
  if (target.exists) TakeOver(file.get(), target.info);
  struct stat written {};
  if (::fsync(file.get()) != 0 || ::fstat(file.get(), &written) != 0) return false;
  stamp = StampOf(written);
  return file.close();
}

// Makes the renaming last. The new file is in place already, so a folder that cannot be flushed (some
// network file systems) does not make the save fail.
void FlushFolder(const fs::path& folder) {
  const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (open.ok()) ::fsync(open.get());
}

}  // namespace

WriteResult ReplaceFile(const fs::path& file, std::string_view contents) {
  const Target target = Examine(file);
  if (!target.refusal.empty()) return {false, false, target.refusal};
  RemoveLeftBehind(FolderOf(target));
  fs::path beside;
  Descriptor fresh(CreateBeside(target, beside));
  if (!fresh.ok()) return {false, false, std::strerror(errno)};
  WriteResult result;
  if (!WriteAndFlush(fresh, target, contents, result.stamp) ||
      std::rename(beside.c_str(), target.path.c_str()) != 0) {
    std::string reason = std::strerror(errno);
    ::unlink(beside.c_str());
    return {false, true, std::move(reason)};
  }
  FlushFolder(FolderOf(target));
  return result;
}

}  // namespace velk
