// A C64 with Codenet for tests: UDP on 127.0.0.1 alone, in a thread of its own.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <limits>
#include <mutex>
#include <thread>

#include "sockets.h"
#include "support/codenet_machine.h"

namespace kelvo::support {

// The network in front of it, and its pace.
struct Network {
  static constexpr int kNever = std::numeric_limits<int>::max();

  std::chrono::microseconds answers_after{0};  // what the machine takes for a packet
  int vanishes_after = kNever;                 // packets, of which the server then hears no more
  int loses_every = kNever;                    // so many packets, one does not arrive
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
  void Serve();
  app::Bytes AnswerTo(CodenetMachine::Packet packet);

  codenet::NetworkUse network_use_;
  Network network_;
  codenet::SocketHandle socket_ = codenet::kNoSocket;
  std::uint16_t port_ = 0;
  int arrived_ = 0;
  mutable std::mutex mutex_;  // guards machine_
  CodenetMachine machine_;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

}  // namespace kelvo::support
