// Feeds any bytes to the reader of entity classes, as the text of one .qc file.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/error.h"
#include "entities/entity_class.h"
#include "require.h"

namespace {

struct Handled {};

void RequireSound(const velk::EntityClassList& list) {
  Require(list.count() <= velk::EntityClassList::kMaxClasses, "more classes than there may be");
  for (int i = 0; i < list.count(); ++i) {
    const velk::EntityClass& entityClass = list.classAt(i);
    Require(list.indexOf(entityClass) == i, "a class is not found where it stands");
    Require(list.findByName(entityClass.name).name == entityClass.name, "a class is not found by its name");
    for (const std::string& flag : entityClass.flagNames)
      Require(flag.size() <= 31, "a flag's name is too long");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  velk::SetErrorHandler([](const std::string&) { throw Handled(); });
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  velk::EntityClassList list;
  list.setSorted(size % 2 == 0);
  try {
    list.scanText(text);
    const int count = list.count();
    list.scanText(text);  // a second file of the same classes
    Require(list.count() == 2 * count, "the same text gave other classes");
  } catch (const Handled&) {
  }
  RequireSound(list);
  return 0;
}
