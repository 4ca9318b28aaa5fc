// A C64 with Codenet for tests: UDP on 127.0.0.1 alone, in a thread of its own.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <limits>
#include <mutex>
#include <random>
#include <thread>
#include <vector>

#include "sockets.h"
#include "support/codenet_machine.h"

namespace kelvo::support {

// How bad the network in front of it is. Of the packets, both ways, that share is lost, held back until up to four
// later ones have passed, doubled, reordered, damaged (lost by its checksum, or with damage that shows), or given the
// sequence number of an earlier packet.
struct Network {
  double disturbed = 0;
  unsigned seed = 1;
  std::chrono::microseconds answers_after{0};            // what the machine takes for a packet
  int vanishes_after = std::numeric_limits<int>::max();  // packets, of which the server then hears no more
};

class CodenetServer {
 public:
  // At a free port unless one is named. Throws std::runtime_error where that is taken.
  explicit CodenetServer(const Network& network = {}, std::uint16_t port = 0);
  ~CodenetServer();
  CodenetServer(const CodenetServer&) = delete;
  CodenetServer& operator=(const CodenetServer&) = delete;

  std::uint16_t Port() const { return port_; }

  // The machine as it is now.
  CodenetMachine Machine() const;

 private:
  enum class Way { kToMachine, kToClient };

  // A packet that waits until `overtakers` later ones have come, or until the network is quiet.
  struct Held {
    Way way;
    app::Bytes packet;
    int overtakers;
  };

  void Serve();
  void Arrive(const app::Bytes& packet, const sockaddr_in& client);
  void Pass(Way way, app::Bytes packet);
  void Disturb(Way way, app::Bytes packet);
  void Damage(app::Bytes& packet);
  void Deliver(Way way, const app::Bytes& packet);
  void LetGo(int overtakers);
  int Random(int below);

  codenet::NetworkUse network_use_;
  Network network_;
  std::mt19937 random_;
  codenet::SocketHandle socket_ = codenet::kNoSocket;
  std::uint16_t port_ = 0;
  sockaddr_in client_{};
  std::vector<Held> held_;
  int arrived_ = 0;
  mutable std::mutex mutex_;  // guards machine_
  CodenetMachine machine_;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

}  // namespace kelvo::support
