// What a fuzz target demands of the code it torments.
#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the run with the input kept when `truth` does not hold.
inline void Require(bool truth, const char* what) {
  if (truth) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}
