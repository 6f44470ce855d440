#include "base/files.h"

#include <chrono>
#include <csignal>
#include <cstdlib>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

class FilesTest : public testing::Test {
 protected:
  std::string shown(const std::string& name) const { return (folder_.path() / name).string(); }
  static mode_t modeOf(const fs::path& file) {
    struct stat info {};
    return ::stat(file.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
  }

  test::TempFolder folder_;
  Paths paths_{folder_.path()};
};
using FilesDeathTest = FilesTest;

TEST_F(FilesTest, LoadsAnyBytes) {
  const std::string bytes("a\0\xFF\r\n\0", 6);
  for (const std::string& contents : {std::string(), bytes, std::string(16384 * 3 + 1, 'x')}) {
    folder_.write("d/File.map", contents);
    EXPECT_EQ(LoadFile(paths_, "D:\\file.MAP"), contents);
  }
}

TEST_F(FilesTest, RefusesWhatCannotBeReadOrReplaced) {
  fs::create_directory(folder_.path() / "folder");
  ::mkfifo(shown("pipe").c_str(), 0600);
  fs::create_symlink("loop", folder_.path() / "loop");
  folder_.write("huge", "");
  fs::resize_file(folder_.path() / "huge", (std::uintmax_t(1) << 30) + 1);
  folder_.write("readonly", "old");
  ::chmod(shown("readonly").c_str(), 0444);
  const struct {
    std::string name, reading, writing;  // the reasons; "" is not tried
  } cases[] = {{shown("folder"), "Is a directory", "Is a directory"},
               {shown("pipe"), "Not a regular file", "Not a regular file"},
               {"/dev/zero", "Not a regular file", ""},
               {shown("loop"), "Too many levels of symbolic links", "Too many levels of symbolic links"},
               {shown("missing/x"), "No such file or directory", "No such file or directory"},
               {shown("readonly/x"), "Not a directory", "Not a directory"},
               {shown(std::string(300, 'x')), "File name too long", "File name too long"},
               {shown("huge"), "File too large", ""},
               {shown("readonly"), "", "Permission denied"}};
  const auto before = folder_.entries();
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    if (!c.reading.empty()) {
      EXPECT_FATAL(LoadFile(paths_, c.name), "Error opening " + c.name + ": " + c.reading);
      EXPECT_FATAL(LoadFileOr(paths_, c.name, "100% Couldn't read"), "100% Couldn't read");
      EXPECT_FALSE(ReadFile(c.name).opened);
    }
    if (c.writing.empty()) continue;
    const WriteResult result = ReplaceFile(c.name, "new");
    EXPECT_FALSE(result.ok || result.opened);
    EXPECT_EQ(result.reason, c.writing);
  }
  EXPECT_FALSE(ReplaceFile("", "new").ok);
  EXPECT_EQ(folder_.read("readonly"), "old");
  EXPECT_EQ(folder_.entries(), before);
}

TEST_F(FilesTest, ReplacesAndKeepsTheMode) {
  const fs::path file = folder_.path() / "a.map";
  const mode_t mask = ::umask(027);
  EXPECT_TRUE(ReplaceFile(file, "new").ok);
  ::umask(mask);
  EXPECT_EQ(modeOf(file), 0640u);
  for (const mode_t mode : {0600u, 0664u, 0755u}) {
    ::chmod(file.c_str(), mode);
    const std::string contents(100000 + mode, '\0');
    EXPECT_TRUE(ReplaceFile(file, contents).ok);
    EXPECT_EQ(folder_.read("a.map"), contents);
    EXPECT_EQ(modeOf(file), mode);
  }
  EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(FilesTest, RemovesWhatKilledEditorsLeft) {
  const struct {
    std::string name;
    int age;  // seconds
    bool stays;
  } cases[] = {{".velk-2147483647-0.tmp", 100, false},  // no process has this number
               {".velk-2147483647-1.tmp", 0, true},
               {".velk-" + std::to_string(::getppid()) + "-0.tmp", 100, true},
               {".velk-2147483647-2.tmp2", 100, true},
               {".velk--1-2.tmp", 100, true}};
  for (const auto& c : cases) {
    fs::last_write_time(folder_.write(c.name, "x"),
                        fs::file_time_type::clock::now() - std::chrono::seconds(c.age));
  }
  EXPECT_TRUE(ReplaceFile(folder_.path() / "a.map", "new").ok);
  for (const auto& c : cases) EXPECT_EQ(fs::exists(folder_.path() / c.name), c.stays) << c.name;
}

TEST_F(FilesTest, WritesThroughLinks) {
  folder_.write("real/a.map", "old");
  fs::create_symlink("real/a.map", folder_.path() / "link");
  fs::create_symlink(folder_.path() / "link", folder_.path() / "second");
  fs::create_symlink("real/new.map", folder_.path() / "dangling");
  EXPECT_TRUE(ReplaceFile(folder_.path() / "second", "one").ok);
  EXPECT_TRUE(ReplaceFile(folder_.path() / "dangling", "two").ok);
  EXPECT_EQ(folder_.read("real/a.map"), "one");
  EXPECT_EQ(folder_.read("real/new.map"), "two");
  for (const char* link : {"link", "second", "dangling"})
    EXPECT_TRUE(fs::is_symlink(folder_.path() / link)) << link;
}

TEST_F(FilesTest, NeverTouchesAnotherEditorsNewFile) {
  const std::string foreign = ".velk-" + std::to_string(::getpid()) + "-0.tmp";
  folder_.write(foreign, "theirs");
  EXPECT_TRUE(ReplaceFile(folder_.path() / "a.map", "ours").ok);
  EXPECT_EQ(folder_.read(foreign), "theirs");
  EXPECT_EQ(folder_.read("a.map"), "ours");
}

// Ends a child process: 0 when the outcome is the one expected.
[[noreturn]] void EndWith(const WriteResult& result, bool opened, const char* reason) {
  std::_Exit(!result.ok && result.opened == opened && result.reason == reason ? 0 : 1);
}

// A limit on file sizes stands in for a full disk: the system takes a part of the data, then no more.
TEST_F(FilesDeathTest, FullDiskLeavesTheOldFile) {
  const fs::path file = folder_.write("a.map", "old");
  const auto save = [&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{50000, 50000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    EndWith(ReplaceFile(file, std::string(200000, 'x')), true, "File too large");
  };
  EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
  EXPECT_EQ(folder_.read("a.map"), "old");
  EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(FilesDeathTest, ReadOnlyFolderLeavesTheOldFile) {
  const fs::path file = folder_.write("a.map", "old");
  ::chmod(file.c_str(), 0666);
  ::chmod(folder_.path().c_str(), 0555);
  const auto save = [&] {
    // The superuser may write to any folder; nobody may not.
    if (::geteuid() == 0 && ::setuid(65534) != 0) std::_Exit(2);
    EndWith(ReplaceFile(file, "new"), false, "Permission denied");
  };
  EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
  EXPECT_EQ(folder_.read("a.map"), "old");
  EXPECT_EQ(folder_.entries(), 1);
}

}  // namespace
}  // namespace velk
