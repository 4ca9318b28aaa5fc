// codenet: sends files to a C64 on the local network. `codenet --help` tells how.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>
#include <random>
#include <string>
#include <vector>

#include "arguments/program_arguments.h"
#include "codenet/transfer.h"
#include "terminal_progress.h"
#include "udp_socket.h"

namespace kelvo::codenet {
namespace {

enum ExitCode { kConfirmed = 0, kFailed = 1, kUsage = 2 };

std::atomic<bool> stop_wanted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set it");

extern "C" void WantStop(int) {
  stop_wanted = true;
}

class SystemWatch final : public TransferWatch {
 public:
  Time Now() const override { return std::chrono::steady_clock::now(); }
  bool StopWanted() const override { return stop_wanted; }
};

void Complain(const std::string& text) {
  std::fprintf(stderr, "codenet: %s\n", text.c_str());
}

void Send(const Arguments& arguments, const Transfer& transfer) {
  UdpSocket socket(arguments.host, arguments.port);
  const SystemWatch watch;
  Sender sender(socket, watch, static_cast<std::uint8_t>(std::random_device()()));
  TerminalProgress progress;
  SendTransfer(transfer, sender, progress);
}

ExitCode Perform(const Arguments& arguments) {
  const Transfer transfer = PrepareTransfer(arguments);
  try {
    Send(arguments, transfer);
  } catch (const std::exception& error) {
    Complain(arguments.host + " port " + std::to_string(arguments.port) + ": " + error.what());
    return kFailed;
  }
  return kConfirmed;
}

ExitCode Main(const std::vector<std::string>& words) {
  try {
    const Arguments arguments = ParseArguments(words);
    if (!arguments.help) return Perform(arguments);
    std::fwrite(kHelp.data(), 1, kHelp.size(), stdout);
    return kConfirmed;
  } catch (const UsageError& error) {
    Complain(std::string(error.what()) + "\nTry codenet --help.");
    return kUsage;
  } catch (const std::exception& error) {
    Complain(error.what());
    return kFailed;
  }
}

}  // namespace
}  // namespace kelvo::codenet

int main(int argc, char** argv) {
  std::signal(SIGINT, kelvo::codenet::WantStop);
  std::signal(SIGTERM, kelvo::codenet::WantStop);
  return kelvo::codenet::Main(kelvo::ProgramArguments(argc, argv));
}
