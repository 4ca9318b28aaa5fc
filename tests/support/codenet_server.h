// A C64 that receives by Codenet while a test goes on: in a thread of its own.
#pragma once

#include <atomic>
#include <mutex>
#include <thread>

#include "receiver.h"

namespace kelvo::support {

class CodenetServer {
 public:
  // At a free port unless one is named. Throws std::runtime_error where that is taken.
  explicit CodenetServer(const codenet::Network& network = {}, std::uint16_t port = 0)
      : receiver_(network, port), thread_([this] {
          while (!ended_) receiver_.Serve([this](const auto& packet) { return Handle(packet); });
        }) {}
  ~CodenetServer() {
    ended_ = true;
    thread_.join();
  }
  CodenetServer(const CodenetServer&) = delete;
  CodenetServer& operator=(const CodenetServer&) = delete;

  std::uint16_t Port() const { return receiver_.Port(); }
  // The machine as it is now.
  codenet::ReceivingC64 Machine() const {
    const std::lock_guard lock(mutex_);
    return machine_;
  }

 private:
  app::Bytes Handle(codenet::ReceivingC64::Packet packet) {
    const std::lock_guard lock(mutex_);
    return machine_.Handle(packet);
  }

  codenet::Receiver receiver_;
  mutable std::mutex mutex_;  // guards machine_
  codenet::ReceivingC64 machine_;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

}  // namespace kelvo::support
