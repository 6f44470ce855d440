#pragma once

#include <unistd.h>

namespace velk {

// A file descriptor of the system that closes itself; negative when opening failed.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int get() const { return number_; }
  bool ok() const { return number_ >= 0; }
  // False when the system reports a write error that it had kept back.
  bool close() {
    const int number = number_;
    number_ = -1;
    return number < 0 || ::close(number) == 0;
  }

 private:
  int number_;
};

}  // namespace velk
