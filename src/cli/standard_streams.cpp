#include "cli/standard_streams.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

#include "app/whole_file.h"

namespace kelvo::cli {
namespace {

constexpr std::size_t kChunk = 65536;

[[noreturn]] void FailToWrite(int error) {
  if (MeansClosed(error)) throw OutputClosed();
  throw app::FileError("standard output: it cannot be written: " + std::generic_category().message(error));
}

void WriteChecked(const void* data, std::size_t size) {
  errno = 0;
  if (std::fwrite(data, 1, size, stdout) != size || std::fflush(stdout) != 0) FailToWrite(errno);
}

}  // namespace

app::Bytes ReadStandardInput(std::size_t most) {
  app::Bytes bytes;
  for (std::size_t read = kChunk; read == kChunk && bytes.size() <= most;) {
    const std::size_t before = bytes.size();
    bytes.resize(before + kChunk);
    read = std::fread(bytes.data() + before, 1, kChunk, stdin);
    bytes.resize(before + read);
  }
  if (std::ferror(stdin) != 0) throw app::FileError("standard input: it cannot be read");
  if (bytes.size() <= most) return bytes;
  throw app::FileError("standard input: at most " + std::to_string(most) + " bytes are read");
}

void WriteStandardOutput(std::span<const std::uint8_t> bytes) {
  WriteChecked(bytes.data(), bytes.size());
}

void Print(std::string_view text) {
  WriteChecked(text.data(), text.size());
}

void Complain(std::string_view line) {
  if (line.empty()) return;
  std::fputs(("kelvo-cli: " + std::string(line) + "\n").c_str(), stderr);
}

void ShowProgress(std::size_t done, std::size_t all) {
  if (!IsTerminalWatching()) return;
  std::fputs((std::to_string(done) + " of " + std::to_string(all) + (done < all ? "\r" : "\n")).c_str(), stderr);
}

}  // namespace kelvo::cli
