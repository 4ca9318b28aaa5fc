// A transfer by Codenet over loopback, and the whole tool against the bare round trips that a real C64 sets the pace
// of.
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <stdexcept>

#include "codenet/sender.h"
#include "goals.h"
#include "support/codenet_server.h"
#include "support/files.h"
#include "support/run_tool.h"
#include "udp_socket.h"

namespace kelvo::codenet {
namespace {

const bench::GoalRegistration kGoals{
    {"Transfer", "", 0, 100000},
    {"CodenetTool", "CodenetRoundTrips", 1.05, 0},
};

constexpr std::size_t kSize = 10000;
constexpr std::uint16_t kAddress = 0x0801;

// A C64 takes at least 16 cycles to fetch a byte from its network adapter and to store it: 2 ms for a packet.
const Network kC64Pace{.answers_after = std::chrono::milliseconds(2)};

class SteadyWatch final : public TransferWatch {
 public:
  Time Now() const override { return std::chrono::steady_clock::now(); }
  bool StopWanted() const override { return false; }
};

// The least that a round trip needs: one datagram there, one back.
class BareSocket {
 public:
  explicit BareSocket(std::uint16_t port) : socket_(socket(AF_INET, SOCK_DGRAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    if (connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
      throw std::runtime_error("no way to the server");
    }
  }
  ~BareSocket() { codenet::CloseSocket(socket_); }
  BareSocket(const BareSocket&) = delete;
  BareSocket& operator=(const BareSocket&) = delete;

  void RoundTrip(const app::Bytes& packet) {
    std::array<char, 64> answer;
    send(socket_, reinterpret_cast<const char*>(packet.data()), static_cast<codenet::SocketLength>(packet.size()), 0);
    recv(socket_, answer.data(), static_cast<codenet::SocketLength>(answer.size()), 0);
  }

 private:
  codenet::NetworkUse network_;
  codenet::SocketHandle socket_;
};

void CodenetRoundTrips(benchmark::State& state) {
  const support::CodenetServer server(kC64Pace);
  BareSocket socket(server.Port());
  const app::Bytes packet = EncodeData(1, kAddress, support::CountingBytes(kMostData));
  for (auto _ : state) {
    for (std::size_t done = 0; done < kSize; done += kMostData) socket.RoundTrip(packet);
  }
}
BENCHMARK(CodenetRoundTrips)->UseRealTime();

void Transfer(benchmark::State& state) {
  const support::CodenetServer server;
  codenet::UdpSocket socket("127.0.0.1", server.Port());
  const SteadyWatch watch;
  const app::Bytes bytes = support::CountingBytes(kSize);
  app::NoProgress progress;
  for (auto _ : state) Sender(socket, watch, 0).WriteMemory(kAddress, bytes, progress);
}
BENCHMARK(Transfer)->UseRealTime();

// The whole program, from its start to its end.
void CodenetTool(benchmark::State& state) {
  const support::CodenetServer server(kC64Pace);
  const support::TempFolder folder;
  support::WriteFile(folder / "file", support::CountingBytes(kSize));
  const std::vector<std::string> arguments{
      "-n", "127.0.0.1", "-p", std::to_string(server.Port()), "-wb", (folder / "file").string(), "$0801"};
  for (auto _ : state) {
    if (support::RunTool(KELVO_CODENET, arguments).exit_code != 0) state.SkipWithError("the transfer failed");
  }
}
BENCHMARK(CodenetTool)->UseRealTime();

}  // namespace
}  // namespace kelvo::codenet
