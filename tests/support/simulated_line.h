// A network in made-up time between a sender and a C64: nothing waits, and each delay is exactly what a test says.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <vector>

#include "codenet/datagram_socket.h"
#include "receiving_c64.h"

namespace kelvo::support {

class SimulatedLine final : public codenet::DatagramSocket, public codenet::TransferWatch {
 public:
  using Microseconds = std::chrono::microseconds;

  // What becomes of a datagram on its way: when each copy of it is there, and what it has turned into.
  struct Way {
    std::vector<Microseconds> delays{Microseconds(10)};
    std::function<void(app::Bytes& copy)> damage = [](app::Bytes&) {};
  };
  // What becomes of a packet, and then of each answer to it.
  struct Fate {
    Way there{}, back{};
  };

  void Send(std::span<const std::uint8_t> datagram) override {
    const app::Bytes packet(datagram.begin(), datagram.end());
    sent.push_back(packet);
    sent_at.push_back(Elapsed());
    const Fate fate = fate_of(static_cast<int>(sent.size()) - 1, packet);
    Pass(fate.there, packet, [this, back = fate.back](const app::Bytes& copy) {
      const app::Bytes answer = machine.Handle(copy);
      if (!answer.empty()) Pass(back, answer, [](const app::Bytes& bytes) { return bytes; });
      return app::Bytes();
    });
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
  codenet::ReceivingC64 machine;
  std::vector<app::Bytes> sent;
  std::vector<Microseconds> sent_at;

 private:
  using Arrival = std::function<app::Bytes(const app::Bytes&)>;  // gives what reaches the sender by it

  static constexpr Time kStart = Time(std::chrono::hours(1));

  void Pass(const Way& way, const app::Bytes& datagram, const Arrival& arrival) {
    for (const Microseconds delay : way.delays) {
      app::Bytes copy = datagram;
      way.damage(copy);
      events_.emplace(now_ + delay, [=] { return arrival(copy); });
    }
  }

  Time now_ = kStart;
  std::multimap<Time, std::function<app::Bytes()>> events_;
};

}  // namespace kelvo::support
