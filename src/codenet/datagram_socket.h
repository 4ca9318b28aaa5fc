// The ports through which a transfer reaches the C64, and through which it learns of the time and of its end.
#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <stdexcept>

#include "app/bytes.h"

namespace kelvo::codenet {

// The other side lets know that no program there takes datagrams at that port.
class NobodyListens : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Datagrams to one host and port, and those that come back from there. Datagrams may get lost, late, double or in
// another order on the way. Both calls throw NobodyListens, and std::runtime_error when the network cannot be used.
class DatagramSocket {
 public:
  virtual ~DatagramSocket() = default;

  virtual void Send(std::span<const std::uint8_t> datagram) = 0;

  // The next datagram; empty when none came within `wait` (0: only one that is there already), or as soon as the wait
  // was broken off.
  virtual app::Bytes Receive(std::chrono::microseconds wait) = 0;
};

// What a transfer asks while it waits.
class TransferWatch {
 public:
  using Time = std::chrono::steady_clock::time_point;

  virtual ~TransferWatch() = default;
  virtual Time Now() const = 0;
  virtual bool StopWanted() const = 0;
};

}  // namespace kelvo::codenet
