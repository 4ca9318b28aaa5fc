#include "app/whole_file.h"

#include <fstream>
#include <random>
#include <string>
#include <system_error>

#include "app/durable_file.h"
#include "app/path_text.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostToCopy = 64U << 20;

[[noreturn]] void Fail(const fs::path& file, const std::string& what) {
  throw FileError(TextFromPath(file) + ": " + what);
}

// The place that a chain of links names in the end, so that saving does not replace a link by a file.
fs::path BehindLinks(const fs::path& file) {
  std::error_code error;
  const fs::path target = fs::is_symlink(file, error) ? fs::weakly_canonical(file, error) : file;
  return error ? file : target;
}

}  // namespace

std::uintmax_t FileSize(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) Fail(file, "there is no such file");
  if (error) Fail(file, error.message());
  if (fs::is_directory(status)) Fail(file, "this is a folder, not a file");
  if (!fs::is_regular_file(status)) Fail(file, "this is not an ordinary file");
  const std::uintmax_t size = fs::file_size(file, error);
  if (error) Fail(file, error.message());
  return size;
}

Bytes ReadWholeFile(const fs::path& file, std::uintmax_t most) {
  const std::uintmax_t size = FileSize(file);
  if (size > most) {
    Fail(file, "it has " + std::to_string(size) + " bytes, at most " + std::to_string(most) + " are read");
  }
  std::ifstream stream(file, std::ios::binary);
  Bytes bytes(static_cast<std::size_t>(size));
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!stream || stream.gcount() != static_cast<std::streamsize>(bytes.size())) Fail(file, "it cannot be read");
  return bytes;
}

void WriteWholeFile(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  const fs::path target = BehindLinks(file);
  std::error_code error;
  if (fs::is_directory(target, error)) Fail(file, "this is a folder, not a file");
  const fs::path temporary = target.parent_path() / (".kelvo-" + std::to_string(std::random_device()()) + ".tmp");
  error = WriteBytes(temporary, bytes, flush);
  if (!error) error = RenameOver(temporary, target, flush);
  if (error) {
    std::error_code ignored;
    fs::remove(temporary, ignored);
    Fail(file, "it cannot be written: " + error.message());
  }
}

void CopyWholeFile(const fs::path& from, const fs::path& to) {
  WriteWholeFile(to, ReadWholeFile(from, kMostToCopy), Flush::kLater);
}

}  // namespace kelvo::app
