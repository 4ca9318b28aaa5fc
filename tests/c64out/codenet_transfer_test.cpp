// Transfers over real sockets to a C64 behind a bad network.
#include "c64out/codenet_transfer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

#include "support/codenet_server.h"
#include "support/pictures.h"
#include "udp_socket.h"

namespace kelvo::c64out {
namespace {

using std::chrono::milliseconds;

constexpr Patience kShort{milliseconds(2), 5, milliseconds(10)};
constexpr Patience kUnhurried{milliseconds(40), 5, milliseconds(200)};  // no slow machine is taken for a deaf one
constexpr std::uint16_t kAddress = 0x2000;
constexpr std::size_t kSize = 10000;

class NeverStopped final : public TransferWatch {
 public:
  Time Now() const override { return std::chrono::steady_clock::now(); }
  bool StopWanted() const override { return false; }
};

app::Bytes RandomBytes(unsigned seed) {
  std::mt19937 random(seed);
  app::Bytes bytes(kSize);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

// True when the sender claims success.
bool Transfer(const support::CodenetServer& server, const app::Bytes& bytes, unsigned seed) {
  codenet::UdpSocket socket("127.0.0.1", server.Port());
  const NeverStopped watch;
  app::NoProgress progress;
  CodenetSender sender(socket, watch, static_cast<std::uint8_t>(seed * 89), kShort);
  try {
    sender.WriteMemory(kAddress, bytes, progress);
    return true;
  } catch (const TransferError& error) {
    EXPECT_NE(std::string(error.what()).find("does not answer"), std::string::npos) << error.what();
    return false;
  }
}

bool Holds(const support::CodenetServer& server, const app::Bytes& bytes) {
  const app::Bytes memory = server.Machine().memory;
  return std::equal(bytes.begin(), bytes.end(), memory.begin() + kAddress);
}

// The waits make up nearly all of the time, so many C64s are served side by side.
TEST(CodenetTransfer, AThousandOverABadNetworkEndRightOrWithAnError) {
  constexpr unsigned kMachines = 40, kTransfers = 25;
  std::atomic<int> successes = 0, lies = 0;
  std::vector<std::thread> senders;
  for (unsigned machine = 0; machine < kMachines; ++machine) {
    senders.emplace_back([&, machine] {
      const support::CodenetServer server({.disturbed = 0.2, .seed = machine});
      for (unsigned round = 0; round < kTransfers; ++round) {
        const unsigned seed = machine * kTransfers + round;
        const app::Bytes bytes = RandomBytes(seed);
        if (!Transfer(server, bytes, seed)) continue;
        ++successes;
        if (!Holds(server, bytes)) ++lies;
      }
    });
  }
  for (std::thread& sender : senders) sender.join();
  EXPECT_EQ(lies, 0);
  EXPECT_GE(successes, 500);
}

TEST(CodenetTransfer, AC64ThatVanishesInTheMiddleGivesAnError) {
  const support::CodenetServer server({.vanishes_after = 40});
  EXPECT_FALSE(Transfer(server, RandomBytes(1), 1));
  EXPECT_EQ(server.Machine().packets, 40);
}

// The last packet, the order to run, may have arrived: the message has to leave that open.
TEST(CodenetTransfer, AStartThatNobodyConfirmsIsNoSuccess) {
  const support::CodenetServer server({.vanishes_after = 2});
  codenet::UdpSocket socket("127.0.0.1", server.Port());
  const NeverStopped watch;
  app::NoProgress progress;
  CodenetSender sender(socket, watch, 7, kUnhurried);
  try {
    SendTransfer({kAddress, app::Bytes(200), true, std::nullopt}, sender, progress);
    ADD_FAILURE() << "a success is claimed";
  } catch (const TransferError& error) {
    EXPECT_EQ(std::string(error.what()),
              "the C64's memory is written; the order to start was sent, but the C64 does not answer any more: the "
              "program may be running");
  }
}

}  // namespace
}  // namespace kelvo::c64out
