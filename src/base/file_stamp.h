#pragma once

#include <sys/stat.h>

#include "base/files.h"

namespace velk {

inline FileStamp StampOf(const struct stat& info) {
  return {true, info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

}  // namespace velk
