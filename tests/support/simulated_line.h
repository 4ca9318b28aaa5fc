// A network in made-up time between a sender and a C64: nothing waits, and each delay is exactly what a test says.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "c64out/datagram_socket.h"
#include "support/codenet_machine.h"

namespace kelvo::support {

class SimulatedLine final : public c64out::DatagramSocket, public c64out::TransferWatch {
 public:
  using Microseconds = std::chrono::microseconds;

  // What becomes of one packet and its answers. Delays count from the moment of sending.
  struct Fate {
    std::vector<Microseconds> copies{Microseconds(10)};   // when each copy reaches the C64
    std::vector<Microseconds> answers{Microseconds(10)};  // when each copy of each answer is back, after that
  };

  void Send(std::span<const std::uint8_t> datagram) override {
    const app::Bytes packet(datagram.begin(), datagram.end());
    sent.push_back(packet);
    sent_at.push_back(Elapsed());
    const Fate fate = fate_of(static_cast<int>(sent.size()) - 1, packet);
    for (const Microseconds delay : fate.copies) At(delay, [=, this] { return Reach(packet, fate.answers); });
  }

  app::Bytes Receive(Microseconds wait) override {
    const Time end = now_ + wait;
    app::Bytes received;
    while (received.empty() && !events_.empty() && events_.begin()->first <= end) {
      const auto event = events_.extract(events_.begin());
      now_ = std::max(now_, event.key());
      received = event.mapped()();
    }
    if (received.empty()) now_ = end;
    return received;
  }

  Time Now() const override { return now_; }
  bool StopWanted() const override { return Elapsed() >= stop_at; }
  Microseconds Elapsed() const { return std::chrono::duration_cast<Microseconds>(now_ - kStart); }

  // Lets everything arrive that is still on its way.
  void RunOut() {
    while (!events_.empty()) Receive(std::chrono::hours(1));
  }

  std::function<Fate(int number, const app::Bytes& packet)> fate_of = [](int, const app::Bytes&) { return Fate(); };
  Microseconds stop_at = Microseconds::max();
  CodenetMachine machine;
  std::vector<app::Bytes> sent;
  std::vector<Microseconds> sent_at;

 private:
  using Event = std::function<app::Bytes()>;  // gives what reaches the sender then

  static constexpr Time kStart = Time(std::chrono::hours(1));

  void At(Microseconds delay, Event event) { events_.emplace(now_ + delay, std::move(event)); }

  app::Bytes Reach(const app::Bytes& packet, const std::vector<Microseconds>& delays) {
    const app::Bytes answer = machine.Handle(packet);
    if (!answer.empty()) {
      for (const Microseconds delay : delays) At(delay, [answer] { return answer; });
    }
    return {};
  }

  Time now_ = kStart;
  std::multimap<Time, Event> events_;
};

}  // namespace kelvo::support
