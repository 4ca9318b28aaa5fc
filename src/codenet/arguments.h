// The command line of `codenet`, the tool that sends files to a C64.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "codenet/protocol.h"

namespace kelvo::codenet {

// How the file is to be written.
enum class FileMode {
  kNone,        // nothing is written
  kRunProgram,  // -x: to the load address in the file, then RUN
  kProgram,     // -w: to the load address in the file
  kProgramAt,   // -wa: without its load address, to `address`
  kBytesAt,     // -wb: every byte, to `address`
};

struct Arguments {
  std::string host;
  std::uint16_t port = kPort;
  FileMode mode = FileMode::kNone;
  std::string file;
  std::uint16_t address = 0;
  std::optional<std::uint16_t> execute;  // -e: jump there in the end
  bool help = false;                     // nothing else counts then

  friend bool operator==(const Arguments&, const Arguments&) = default;
};

// A command line that the tool does not take. The message says what is wrong with which option.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What --help prints.
extern const std::string_view kHelp;

// `arguments` without the program's own name, in any order. Throws UsageError for an option that is unknown, given
// twice or without its value, an address or a port that does not parse, a host that is none, and for a line without a
// host or without anything to do.
Arguments ParseArguments(std::span<const std::string> arguments);

// "$" and one to four hexadecimal digits, as a number; empty for anything else.
std::optional<std::uint16_t> ParseC64Address(std::string_view text);

// True for a text that can be a host's name or numeric address: letters, digits, ".", ":" and "-", which it does not
// begin with.
bool IsHostText(std::string_view text);

}  // namespace kelvo::codenet
