#include "terminal_progress.h"

#include <cstdio>
#include <cstdlib>

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

TerminalProgress::TerminalProgress()
    : is_terminal_(IsTerminal()), is_shown_(is_terminal_ || std::getenv("KELVO_TOOL") != nullptr) {}

void TerminalProgress::Begin(int last) {
  last_ = last;
}

void TerminalProgress::Advance(int value) {
  if (!is_shown_) return;
  std::fprintf(stderr, "%d of %d bytes\r", value, last_);
  std::fflush(stderr);  // not every system does so by itself
}

// On a terminal the last line stays; for Kelvo it is replaced by what is wrong.
void TerminalProgress::End() {
  if (is_terminal_) std::fputc('\n', stderr);
}

}  // namespace kelvo::codenet
