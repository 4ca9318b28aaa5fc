#include <fcntl.h>
#include <io.h>

#include <cerrno>
#include <cstdio>

#include "cli/standard_streams.h"

namespace kelvo::cli {

void MakeStreamsBinary() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
}

bool IsTerminalWatching() {
  return _isatty(_fileno(stderr)) != 0;
}

// The C library there has no word for it.
bool MeansClosed(int error) {
  return error == EPIPE || error == EINVAL;
}

}  // namespace kelvo::cli
