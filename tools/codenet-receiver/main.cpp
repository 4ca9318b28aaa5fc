// codenet-receiver: takes transfers by Codenet as a C64 would. `codenet-receiver --help` tells how.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/text.h"
#include "app/whole_file.h"
#include "codenet/arguments.h"
#include "receiver.h"

namespace kelvo::codenet {
namespace {

constexpr std::string_view kReceiverHelp =
    "usage: codenet-receiver [-p PORT] [-l COUNT] [-1] [MEMORY]\n"
    "Takes transfers by Codenet from this machine as a C64 in its receive state would, and prints what it gets.\n"
    "\n"
    "  -p PORT   the UDP port to listen at (default 6462; 0: a free one, which is printed)\n"
    "  -l COUNT  every COUNT-th packet is lost on its way (1 or more)\n"
    "  -1        ends at the first order to start a program, else when it is interrupted\n"
    "  MEMORY    is written at the end with all 65536 bytes\n"
    "\n"
    "Exit code: 0 it has ended as it should, 1 it cannot listen or write, 2 the command line is wrong.\n";

enum ExitCode { kDone, kFailed, kWrongUsage };

std::atomic<bool> stop_wanted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set it");

extern "C" void WantStop(int) {
  stop_wanted = true;
}

struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Wishes {
  std::uint16_t port = Arguments().port;
  Network network;
  bool until_start = false;
  std::string memory_file;
};

int NumberFrom(const char* text, int least, int most) {
  const auto number = text == nullptr ? std::nullopt : app::WholeNumber<int>(text);
  if (!number || *number < least || *number > most) throw UsageError("a number is missing or wrong");
  return *number;
}

Wishes WishesFrom(int argc, char** argv) {
  Wishes wishes;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "-p") {
      wishes.port = static_cast<std::uint16_t>(NumberFrom(argv[++i], 0, 0xFFFF));
    } else if (word == "-l") {
      wishes.network.loses_every = NumberFrom(argv[++i], 1, Network::kNever);
    } else if (word == "-1") {
      wishes.until_start = true;
    } else if (word.starts_with('-') || !wishes.memory_file.empty()) {
      throw UsageError("\"" + std::string(word) + "\" is not understood");
    } else {
      wishes.memory_file = word;
    }
  }
  return wishes;
}

// A line at once, for whoever reads along.
void Print(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

void Receive(const Wishes& wishes) {
  Receiver receiver(wishes.network, wishes.port);
  Print("listening at 127.0.0.1 port " + std::to_string(receiver.Port()));
  ReceivingC64 c64;
  const auto take = [&c64](ReceivingC64::Packet packet) {
    app::Bytes answer = c64.Handle(packet);
    Print(answer.empty() ? "no packet: " + std::to_string(packet.size()) + " bytes" : Told(packet));
    return answer;
  };
  while (!stop_wanted && !(wishes.until_start && (c64.runs > 0 || !c64.jumps.empty()))) receiver.Serve(take);
  if (!wishes.memory_file.empty()) app::WriteWholeFile(wishes.memory_file, c64.memory);
}

ExitCode Main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::fputs(kReceiverHelp.data(), stdout);
    return kDone;
  }
  try {
    Receive(WishesFrom(argc, argv));
    return kDone;
  } catch (const UsageError& error) {
    std::fprintf(stderr, "codenet-receiver: %s\n%s", error.what(), kReceiverHelp.data());
    return kWrongUsage;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "codenet-receiver: %s\n", error.what());
    return kFailed;
  }
}

}  // namespace
}  // namespace kelvo::codenet

int main(int argc, char** argv) {
  std::signal(SIGINT, kelvo::codenet::WantStop);
  std::signal(SIGTERM, kelvo::codenet::WantStop);
  return kelvo::codenet::Main(argc, argv);
}
