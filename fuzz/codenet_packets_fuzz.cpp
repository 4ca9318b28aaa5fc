// A network that answers a transfer with anything: the transfer ends, and never takes for confirmed what nobody
// confirmed.
#include <algorithm>
#include <array>

#include "codenet/sender.h"
#include "input.h"

namespace kelvo::fuzz {
namespace {

using std::chrono::microseconds;

// Datagrams out of the input, in made-up time: nothing waits.
class HostileLine final : public codenet::DatagramSocket, public codenet::TransferWatch {
 public:
  explicit HostileLine(Input& input) : input_(input) {}

  void Send(std::span<const std::uint8_t> datagram) override {
    Require(datagram.size() >= 4 && datagram.size() <= 8 + codenet::kMostData && datagram.size() % 2 == 0,
            "a packet has its size");
    last_ = datagram[2];
    is_answered_ = false;
    if (input_.Byte() == 255) throw codenet::NobodyListens("nobody listens");
  }

  app::Bytes Receive(microseconds wait) override {
    if (input_.IsEmpty()) return now_ += wait, app::Bytes();
    now_ += wait * input_.Below(5) / 4;
    app::Bytes datagram;
    switch (input_.Below(4)) {
      case 0:
        return {};
      case 1:  // the answer that is waited for, or a refusal
        datagram = {0xCA, 0x1F, last_, static_cast<std::uint8_t>(input_.Below(3))};
        break;
      case 2:  // an answer to another packet
        datagram = {0xCA, 0x1F, input_.Byte(), 1};
        break;
      default:
        for (int left = input_.Below(8); left > 0; --left) datagram.push_back(input_.Byte());
    }
    const auto answer = codenet::DecodeAnswer(datagram);
    if (answer && answer->sequence == last_ && answer->accepted) is_answered_ = true;
    return datagram;
  }

  Time Now() const override { return now_; }
  bool StopWanted() const override { return false; }
  // The packet that was sent last had its answer.
  bool IsAnswered() const { return is_answered_; }

 private:
  Input& input_;
  Time now_{std::chrono::hours(1)};
  std::uint8_t last_ = 0;
  bool is_answered_ = false;
};

class CountedProgress final : public app::Progress {
 public:
  void Begin(int last) override { last_ = last; }
  void Advance(int value) override {
    Require(value >= value_ && value <= last_, "a progress goes forward to its end");
    value_ = value;
  }
  void End() override {}
  bool IsWhole() const { return value_ == last_; }

 private:
  int last_ = 0, value_ = 0;
};

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  codenet::DecodeAnswer({data, size});
  fuzz::Input input(data, size);
  const std::uint8_t first = input.Byte();
  const auto address = static_cast<std::uint16_t>(input.Byte() << 8 | input.Byte());
  const std::size_t length = input.Byte() * 3U;
  const int start = input.Below(3);
  fuzz::HostileLine line(input);
  codenet::Sender sender(line, line, first);
  fuzz::CountedProgress progress;
  try {
    sender.WriteMemory(address, app::Bytes(length, 7), progress);
    fuzz::Require(address + length <= codenet::kMemorySize, "nothing is written past the memory's end");
    fuzz::Require(progress.IsWhole() && (length == 0 || line.IsAnswered()), "what is done is confirmed");
    if (start == 1) sender.Run();
    if (start == 2) sender.Jump(address);
  } catch (const codenet::TransferError&) {
  } catch (const codenet::NobodyListens&) {
  }
  return 0;
}
