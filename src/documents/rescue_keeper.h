// Nothing is lost: the backup of the current map, and rescue copies of all that is not saved.
#pragma once

#include <memory>

#include "documents/door.h"
#include "documents/rescue.h"

namespace velk {

class RescueKeeper {
 public:
  RescueKeeper(const Services& services, Documents& documents, Door& door)
      : services_(services), documents_(documents), door_(door) {}

  // One tick of ten seconds: from the seventh on, the current map goes to "c:\\backup.map", or for a second
  // editor at work to a file beside it. The map does not count as saved.
  void tick();
  // A new map counts anew.
  void restart() { ticks_ = 0; }
  // Opens the copies that an editor left which did not end in peace, or puts them aside, as the user says.
  void offer();
  // Writes every map with unsaved changes to a file beside the backup; how many were written. For fatal
  // errors and crashes, too.
  int writeCopies();

 private:
  void takePlace();
  std::filesystem::path freeFile() const;
  void open(const RescueCopy& copy);

  const Services& services_;
  Documents& documents_;
  Door& door_;
  std::unique_ptr<RescueFolder> folder_;
  int ticks_ = 0;
};

}  // namespace velk
