#include "textures/colormap.h"

#include <fstream>
#include <optional>

#include "base/error.h"

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
  std::ifstream file(services.paths.native(path), std::ios::binary);
  std::array<char, std::tuple_size_v<ColormapTable>> bytes{};
  if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return nullptr;
  std::copy(bytes.begin(), bytes.end(), table->begin());
  return table;
}

}  // namespace velk
