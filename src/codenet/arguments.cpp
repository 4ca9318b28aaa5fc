#include "codenet/arguments.h"

#include <algorithm>
#include <set>

#include "app/text.h"

namespace kelvo::codenet {
namespace {

// Takes the values of its option, one after the other.
class Values {
 public:
  explicit Values(std::span<const std::string> arguments) : rest_(arguments) {}

  bool AtEnd() const { return rest_.empty(); }
  const std::string& Next() {
    const std::string& next = rest_.front();
    rest_ = rest_.subspan(1);
    return next;
  }
  const std::string& ValueOf(std::string_view option, std::string_view what);

 private:
  std::span<const std::string> rest_;
};

struct Option {
  std::string_view name;
  void (*read)(const Option& option, Values& values, Arguments& arguments);
  FileMode mode = FileMode::kNone;
};

[[noreturn]] void Fail(std::string_view subject, std::string_view what) {
  throw UsageError(std::string(subject) + ": " + std::string(what));
}

std::uint16_t ReadAddress(const Option& option, Values& values) {
  const std::string& text = values.ValueOf(option.name, "an address such as $0801");
  const auto address = ParseC64Address(text);
  if (!address) Fail(option.name, "\"" + text + "\" is no address; one looks like $0801");
  return *address;
}

void ReadHost(const Option& option, Values& values, Arguments& arguments) {
  arguments.host = values.ValueOf(option.name, "the C64's address");
  if (!IsHostText(arguments.host)) Fail(option.name, "\"" + arguments.host + "\" is no host's address or name");
}

void ReadPort(const Option& option, Values& values, Arguments& arguments) {
  const std::string& text = values.ValueOf(option.name, "a port");
  const auto port = app::WholeNumber<std::uint16_t>(text);
  if (!port || *port == 0) Fail(option.name, "\"" + text + "\" is no port; one is a number from 1 to 65535");
  arguments.port = *port;
}

void ReadFile(const Option& option, Values& values, Arguments& arguments) {
  if (arguments.mode != FileMode::kNone) Fail(option.name, "only one file can be sent");
  arguments.mode = option.mode;
  arguments.file = values.ValueOf(option.name, "a file");
}

void ReadFileAndAddress(const Option& option, Values& values, Arguments& arguments) {
  ReadFile(option, values, arguments);
  arguments.address = ReadAddress(option, values);
}

void ReadExecute(const Option& option, Values& values, Arguments& arguments) {
  arguments.execute = ReadAddress(option, values);
}

void ReadHelp(const Option&, Values&, Arguments& arguments) {
  arguments.help = true;
}

constexpr Option kOptions[] = {
    {"-n", ReadHost},
    {"-p", ReadPort},
    {"-x", ReadFile, FileMode::kRunProgram},
    {"-w", ReadFile, FileMode::kProgram},
    {"-wa", ReadFileAndAddress, FileMode::kProgramAt},
    {"-wb", ReadFileAndAddress, FileMode::kBytesAt},
    {"-e", ReadExecute},
    {"--help", ReadHelp},
};

const Option* FindOption(std::string_view name) {
  const auto* option = std::find_if(std::begin(kOptions), std::end(kOptions),
                                    [&](const Option& candidate) { return candidate.name == name; });
  return option == std::end(kOptions) ? nullptr : option;
}

// An option where its value should stand means that the value was forgotten.
const std::string& Values::ValueOf(std::string_view option, std::string_view what) {
  if (AtEnd() || rest_.front().empty() || FindOption(rest_.front()) != nullptr) {
    Fail(option, std::string(what) + " must follow");
  }
  return Next();
}

void CheckWhole(const Arguments& arguments) {
  if (arguments.host.empty()) throw UsageError("the C64's address is missing: -n ADDRESS");
  if (arguments.mode == FileMode::kNone && !arguments.execute) throw UsageError("there is nothing to send or to start");
  if (arguments.mode == FileMode::kRunProgram && arguments.execute) Fail("-e", "-x starts the program already");
}

}  // namespace

const std::string_view kHelp =
    "Usage: codenet -n ADDRESS [-p PORT] [FILE OPTION] [-e $ADDR]\n"
    "Sends a file into the memory of a C64 that waits in Codenet's receive state, and starts it.\n"
    "\n"
    "  -n ADDRESS      the C64: its numeric address or its name\n"
    "  -p PORT         its UDP port, 1 to 65535 (default 6462)\n"
    "\n"
    "  -x FILE         write a PRG to its load address and RUN it\n"
    "  -w FILE         write a PRG to its load address\n"
    "  -wa FILE $ADDR  write a PRG to $ADDR, without its load address\n"
    "  -wb FILE $ADDR  write all bytes of a file to $ADDR\n"
    "  -e $ADDR        jump to $ADDR, after the file if there is one\n"
    "  --help          show this text\n"
    "\n"
    "Addresses have one to four hexadecimal digits. A shell may want them in quotes: '$c000'.\n"
    "Exit code: 0 the C64 has confirmed everything, 1 it has not, 2 the command line is wrong.\n";

Arguments ParseArguments(std::span<const std::string> arguments) {
  Arguments parsed;
  std::set<std::string_view> seen;
  for (Values values(arguments); !values.AtEnd();) {
    const std::string& name = values.Next();
    const Option* option = FindOption(name);
    if (option == nullptr) throw UsageError("\"" + name + "\" is no option");
    if (!seen.insert(option->name).second) Fail(name, "this option is given twice");
    option->read(*option, values, parsed);
    if (parsed.help) return parsed;
  }
  CheckWhole(parsed);
  return parsed;
}

std::optional<std::uint16_t> ParseC64Address(std::string_view text) {
  constexpr std::size_t kLongest = 5;
  if (text.size() > kLongest || !text.starts_with('$')) return std::nullopt;
  return app::WholeNumber<std::uint16_t>(text.substr(1), 16);
}

bool IsHostText(std::string_view text) {
  constexpr std::string_view kAllowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.:-";
  return !text.empty() && !text.starts_with('-') && text.find_first_not_of(kAllowed) == std::string_view::npos;
}

}  // namespace kelvo::codenet
