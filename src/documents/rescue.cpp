#include "documents/rescue.h"

#include <ctime>
#include <string_view>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

constexpr int kMaxEditors = 64;
constexpr int kMaxCopies = 64;
constexpr std::string_view kHeader = "//VELKRESCUE ";

fs::path LockFile(const fs::path& folder, int number) { return folder / Format("editor%i.lock", number); }

fs::path CopyName(const fs::path& folder, int editor, int index) {
  return folder / Format("rescue%i-%i.map", editor, index);
}

// The lock of a place; -1 when another editor holds it or there can be none.
int TakeLock(const fs::path& file) {
  const int lock = ::open(file.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
  if (lock < 0) return -1;
  if (::flock(lock, LOCK_EX | LOCK_NB) == 0) return lock;
  ::close(lock);
  return -1;
}

bool Present(const fs::path& file) {
  std::error_code ignored;
  return fs::exists(file, ignored);
}

}  // namespace

RescueFolder::RescueFolder(const fs::path& folder) : folder_(folder) {
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  for (int number = 1; number <= kMaxEditors && !held(); ++number) hold(number);
}

RescueFolder::~RescueFolder() {
  if (held()) ::close(lock_);
}

bool RescueFolder::hold(int number) {
  lock_ = TakeLock(LockFile(folder_, number));
  number_ = number;
  return held();
}

fs::path RescueFolder::backupFile() const {
  return folder_ / (number_ == 1 ? std::string("backup.map") : Format("backup%i.map", number_));
}

fs::path RescueFolder::copyFile(int index) const { return CopyName(folder_, number_, index); }

std::vector<RescueCopy> RescueFolder::claim() {
  std::vector<RescueCopy> found;
  if (!held()) return found;
  adopt(number_, found);
  for (int other = 1; other <= kMaxEditors; ++other) {
    if (other == number_ || !Present(LockFile(folder_, other))) continue;
    const int lock = TakeLock(LockFile(folder_, other));
    if (lock < 0) continue;
    adopt(other, found);
    ::close(lock);
  }
  return found;
}

// Copies of this editor's own place stay where they are; others move to free names of it.
void RescueFolder::adopt(int from, std::vector<RescueCopy>& found) const {
  for (int index = 0; index < kMaxCopies; ++index) {
    fs::path file = CopyName(folder_, from, index);
    if (!Present(file)) continue;
    if (from != number_) {
      int free = 0;
      while (free < kMaxCopies && Present(copyFile(free))) ++free;
      if (free == kMaxCopies) return;  // another start has room for the rest
      std::error_code failed;
      fs::rename(file, copyFile(free), failed);
      if (failed) continue;
      file = copyFile(free);
    }
    found.push_back({file, originalOf(file)});
  }
}

// With the editor's number, so that two editors that do it at once do not take one name.
fs::path RescueFolder::putAside(const RescueCopy& copy) const {
  for (int number = 1;; ++number) {
    const fs::path aside = folder_ / Format("rescued-%lld-%i-%i.map",
                                            static_cast<long long>(std::time(nullptr)), number_, number);
    if (Present(aside)) continue;
    std::error_code failed;
    fs::rename(copy.file, aside, failed);
    return failed ? copy.file : aside;
  }
}

std::string RescueFolder::header(const std::string& original) {
  return std::string(kHeader) + original.substr(0, original.find_first_of("\r\n")) + "\r\n";
}

std::string RescueFolder::originalOf(const fs::path& file) {
  const std::string contents = ReadFile(file).contents;
  std::string_view line = std::string_view(contents).substr(0, contents.find('\n'));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line.starts_with(kHeader) ? std::string(line.substr(kHeader.size())) : file.string();
}

}  // namespace velk
