#include "mapfile/brush_file.h"

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "base/tokenizer.h"
#include "mapfile/face_text.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

constexpr FaceMessages kMessages{"parsing brush file, ( expected", "parsing brush file, ) expected"};

// The faces up to the closing brace; false when the text ends before it.
bool ReadFaces(Tokenizer& tokens, brush& b) {
  while (tokens.GetScriptToken(true)) {
    if (tokens.isMark('}')) return true;
    if (!tokens.isMark('(')) Error("%s", kMessages.noOpen);
    if (b.numfaces() == MAX_FACES) Error("Line %i: brush with more than %i faces", tokens.line(), MAX_FACES);
    ReadFace(tokens, b.editFaces().emplace_back(), kMessages);
  }
  return false;
}

}  // namespace

std::string BrushFileText(const map& m) {
  TextOut out;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      if (b.selected()) Write(b, out, true);
    }
  }
  return out.take();
}

std::vector<std::unique_ptr<brush>> ReadBrushFile(map& m, const Paths& paths, const std::string& name,
                                                  const BrushReadOptions& options) {
  const std::string text =
      LoadFileOr(paths, name, Format("ReadBrushFile:  Couldn't read [%s]...", name.c_str()));
  return ReadBrushText(m, text, name, options);
}

std::vector<std::unique_ptr<brush>> ReadBrushText(map& m, std::string_view text, const std::string& name,
                                                  const BrushReadOptions& options) {
  Tokenizer tokens(text);
  const ErrorPlace place([&] { return Format("reading [%s], line %i", name.c_str(), tokens.line()); });
  std::vector<std::unique_ptr<brush>> brushes;
  while (tokens.GetScriptToken(true)) {
    auto read = std::make_unique<brush>(m.counters());
    read->owner = m.world();
    read->setGroup(options.group);
    if (!ReadFaces(tokens, *read) && options.whole) Error("[%s] ends inside a brush", name.c_str());
    read->buildWindings();
    if (read->invalid) continue;
    read->setColor(ClassColour(*m.world()));
    read->select();
    brushes.push_back(std::move(read));
  }
  return brushes;
}

}  // namespace velk
