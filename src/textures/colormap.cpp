#include "textures/colormap.h"

#include <algorithm>
#include <optional>

#include "base/error.h"
#include "base/files.h"

namespace velk {
namespace {

std::string AskForColormap(const std::string& directory, const WadServices& services) {
  FileChooser chooser;
  chooser.title = "Where is the colormap.lmp file?";
  chooser.filter = "Lumps (*.lmp)|*.lmp|";
  chooser.directory = directory;
  const std::optional<std::string> chosen = services.prompts.chooseFile(chooser);
  if (!chosen) Error("You must select a valid colormap.lmp file.");
  return *chosen;
}

}  // namespace

std::unique_ptr<ColormapTable> loadColormap(const WadServices& services) {
  const std::string directory = WithSeparator(services.settings.entity_qc_directory);
  std::string path = directory + "colormap.lmp";
  if (!services.paths.exists(path)) path = AskForColormap(directory, services);
  if (!services.paths.exists(path)) Error("Invalid colormap.lmp file.");

  auto table = std::make_unique<ColormapTable>();
  const std::string bytes = ReadFile(services.paths.native(path)).contents;
  if (bytes.size() < table->size()) return nullptr;
  std::copy_n(bytes.begin(), table->size(), table->begin());
  return table;
}

}  // namespace velk
