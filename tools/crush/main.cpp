// crush: packs a file for the C64, or unpacks it. The work is crunch/crunch.h's.
#include <cstdio>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/whole_file.h"
#include "crunch/crunch.h"

namespace {

using namespace kelvo;

constexpr std::string_view kHelp =
    "usage: crush LEVEL INPUT OUTPUT   packs a file; LEVEL 1 is the quickest, 9 packs best\n"
    "       crush -d INPUT OUTPUT      unpacks what crush has packed\n"
    "       crush --help\n"
    "\n"
    "INPUT may be any file of up to 262144 bytes. OUTPUT is written whole or not at all.\n";

// What packing can make of the largest input, with plenty to spare.
constexpr std::uintmax_t kMostPacked = 2 * crunch::kMostBytesToCrunch;

enum ExitCode { kDone, kFailed, kWrongUsage };

std::optional<int> LevelFrom(std::string_view text) {
  if (text.size() != 1 || text[0] < '0' + crunch::kFirstLevel || text[0] > '0' + crunch::kLastLevel) return {};
  return text[0] - '0';
}

void Pack(int level, const char* input, const char* output) {
  app::WriteWholeFile(output, crunch::Crunch(app::ReadWholeFile(input, crunch::kMostBytesToCrunch), level));
}

void Unpack(const char* input, const char* output) {
  const app::Bytes packed = app::ReadWholeFile(input, kMostPacked);
  app::Bytes bytes;
  try {
    bytes = crunch::Decrunch(packed);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(std::string(input) + ": " + error.what());
  }
  app::WriteWholeFile(output, bytes);
}

ExitCode Run(int argc, char** argv) {
  const std::string_view first = argc > 1 ? argv[1] : "";
  if (argc == 2 && first == "--help") {
    std::fputs(kHelp.data(), stdout);
    return kDone;
  }
  const std::optional<int> level = LevelFrom(first);
  if (argc != 4 || (!level && first != "-d")) {
    std::fputs(kHelp.data(), stderr);
    return kWrongUsage;
  }
  if (level) {
    Pack(*level, argv[2], argv[3]);
  } else {
    Unpack(argv[2], argv[3]);
  }
  return kDone;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "crush: %s\n", error.what());
    return kFailed;
  }
}
