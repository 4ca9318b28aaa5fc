// codenet-receiver: takes transfers by Codenet as a C64 would. `codenet-receiver --help` tells how.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "app/text.h"
#include "app/whole_file.h"
#include "arguments/tool_main.h"
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

std::atomic<bool> stop_wanted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set it");

extern "C" void WantStop(int) {
  stop_wanted = true;
}

struct Wishes {
  std::uint16_t port = Arguments().port;
  Network network;
  bool until_start = false;
  std::string memory_file;
};

int NumberFrom(const char* text, int least, int most) {
  const auto number = text == nullptr ? std::nullopt : app::WholeNumber<int>(text);
  if (!number || *number < least || *number > most) throw WrongUsage("a number is missing or wrong");
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
      RefuseWord(word);
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

ToolExit Receive(const Wishes& wishes) {
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
  return kToolDone;
}

}  // namespace
}  // namespace kelvo::codenet

int main(int argc, char** argv) {
  using namespace kelvo;
  std::signal(SIGINT, codenet::WantStop);
  std::signal(SIGTERM, codenet::WantStop);
  return ToolMain({"codenet-receiver", codenet::kReceiverHelp}, argc, argv,
                  [=] { return codenet::Receive(codenet::WishesFrom(argc, argv)); });
}
