// Runs the cases of the golden folder: each holds a script, what it prints, and the files it needs beside
// small.map. A
// script that fails ends its output with "line N: why". With VELK_WRITE_GOLDEN set, what is printed is
// written as what is expected; read it before committing.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "script/script_runner.h"
#include "support/session.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

std::string FileText(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The script's file names start at the working directory.
class WorkingIn {
 public:
  explicit WorkingIn(const fs::path& folder) : before_(fs::current_path()) { fs::current_path(folder); }
  ~WorkingIn() { fs::current_path(before_); }
  WorkingIn(const WorkingIn&) = delete;
  WorkingIn& operator=(const WorkingIn&) = delete;

 private:
  fs::path before_;
};

std::string RunCase(const fs::path& folder) {
  test::Session session({folder});
  fs::copy_file(fs::path(GOLDEN_FOLDER) / "small.map", session.home.path() / "small.map",
                fs::copy_options::skip_existing);
  const WorkingIn home(session.home.path());
  std::ostringstream out;
  const ScriptResult result = ScriptRunner(session.editor, session.prompts, nullptr, out).runFile("script");
  if (!result.ok) out << "line " << result.line << ": " << result.message << '\n';
  return out.str();
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, PrintsWhatIsExpected) {
  const fs::path folder = fs::path(GOLDEN_FOLDER) / GetParam();
  if (std::getenv("VELK_WRITE_GOLDEN")) std::ofstream(folder / "expected") << RunCase(folder);
  EXPECT_EQ(RunCase(folder), FileText(folder / "expected"));
}

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(GOLDEN_FOLDER)) {
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(CaseNames()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace velk
