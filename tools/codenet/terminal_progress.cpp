#include "terminal_progress.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kelvo::codenet {
namespace {

bool IsTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

TerminalProgress::TerminalProgress() : shown_(IsTerminal()) {}

void TerminalProgress::Begin(int last) {
  last_ = last;
}

void TerminalProgress::Advance(int value) {
  if (shown_) std::fprintf(stderr, "\r%d of %d bytes", value, last_);
}

void TerminalProgress::End() {
  if (shown_) std::fputc('\n', stderr);
}

}  // namespace kelvo::codenet
