#include <unistd.h>

#include <cerrno>

#include "cli/standard_streams.h"

namespace kelvo::cli {

void MakeStreamsBinary() {}

bool IsTerminalWatching() {
  return isatty(STDERR_FILENO) != 0;
}

bool MeansClosed(int error) {
  return error == EPIPE;
}

}  // namespace kelvo::cli
