#include "app/whole_file.h"

#include <fstream>
#include <string>
#include <system_error>

#include "app/durable_file.h"
#include "app/path_text.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& file, const std::string& what) {
  throw FileError(TextFromPath(file) + ": " + what);
}

// The place that a chain of links names in the end, there or not, so that saving does not replace a link by a file.
fs::path BehindLinks(const fs::path& file) {
  constexpr int kMostLinks = 40;
  fs::path target = file;
  std::error_code ignored;
  for (int links = 0; links < kMostLinks && fs::is_symlink(target, ignored); ++links) {
    target = target.parent_path() / fs::read_symlink(target, ignored);
  }
  return target;
}

void RequireNoFolder(const fs::path& file) {
  std::error_code ignored;
  if (fs::is_directory(fs::symlink_status(file, ignored))) Fail(file, "this is a folder, not a file");
}

void Require(const std::error_code& error, const fs::path& file) {
  if (error) Fail(file, "it cannot be written: " + error.message());
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
  RequireNoFolder(target);
  Require(PlaceFile(target, bytes, {.flush = flush}), file);
}

void WriteOwnFile(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  RequireNoFolder(file);
  Require(PlaceFile(file, bytes, {.flush = flush, .is_private = true}), file);
}

bool MakeOwnFile(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  const std::error_code error = PlaceFile(file, bytes, {.flush = flush, .is_private = true, .must_be_new = true});
  if (error == std::errc::file_exists) return false;
  Require(error, file);
  return true;
}

void CopyWholeFile(const fs::path& from, const fs::path& to) {
  WriteWholeFile(to, ReadWholeFile(from, kMostBytesToCopy), Flush::kLater);
}

}  // namespace kelvo::app
