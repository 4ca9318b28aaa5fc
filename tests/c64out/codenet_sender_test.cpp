// Transfers over a network in made-up time: what is sent, when it is sent again, and what may be claimed.
#include "c64out/codenet_sender.h"

#include <gtest/gtest.h>

#include <random>

#include "support/pictures.h"
#include "support/simulated_line.h"

namespace kelvo::c64out {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using support::SimulatedLine;
using Fate = SimulatedLine::Fate;

const Fate kLost{{}, {}};
const Fate kAnswerLost{{microseconds(10)}, {}};

class CodenetSenderTest : public testing::Test {
 protected:
  void Write(std::uint16_t address, const app::Bytes& bytes) { sender_.WriteMemory(address, bytes, progress_); }

  // The message of the error that `work` ends with; empty when it ends well.
  template <typename Work>
  static std::string ErrorOf(const Work& work) {
    try {
      work();
    } catch (const TransferError& error) {
      return error.what();
    }
    return "";
  }

  static bool IsService(const app::Bytes& packet, CodenetService service) {
    return packet[3] == static_cast<std::uint8_t>(service);
  }

  app::Bytes MemoryAt(std::size_t address, std::size_t size) const {
    const auto begin = line_.machine.memory.begin() + static_cast<std::ptrdiff_t>(address);
    return {begin, begin + static_cast<std::ptrdiff_t>(size)};
  }

  SimulatedLine line_;
  app::NoProgress progress_;
  CodenetSender sender_{line_, line_, 254};
};

TEST_F(CodenetSenderTest, CountsUpItsPacketsAndKeepsThemEven) {
  Write(0x0801, support::CountingBytes(257));
  sender_.Jump(0xCF00);
  sender_.Run();
  ASSERT_EQ(line_.sent.size(), 5U);
  const app::Bytes last_data{0xCA, 0x1F, 0, 4, 0x09, 0x01, 0, 1, support::CountingBytes(257)[256], 0};
  EXPECT_EQ(line_.sent[2], last_data);
  EXPECT_EQ(line_.sent[3], (app::Bytes{0xCA, 0x1F, 1, 6, 0xCF, 0x00}));
  EXPECT_EQ(line_.sent[4], (app::Bytes{0xCA, 0x1F, 2, 7}));
  EXPECT_EQ(MemoryAt(0x0801, 257), support::CountingBytes(257));
}

TEST(CodenetProtocol, TakesOnlyAnswersForAnswers) {
  EXPECT_TRUE(DecodeAnswer(app::Bytes{0xCA, 0x1F, 7, 1})->accepted);
  EXPECT_FALSE(DecodeAnswer(app::Bytes{0xCA, 0x1F, 7, 0, 0, 0})->accepted);
  for (const app::Bytes& packet : {app::Bytes{}, app::Bytes{0xCA, 0x1F, 7}, app::Bytes{0xCA, 0x1E, 7, 1},
                                   app::Bytes{0xCB, 0x1F, 7, 1}, app::Bytes{0xCA, 0x1F, 7, 2}}) {
    EXPECT_FALSE(DecodeAnswer(packet));
  }
}

TEST_F(CodenetSenderTest, WaitsLongerEachTimeAndGivesUpAfterFiveTries) {
  line_.fate_of = [](int number, const app::Bytes&) { return number == 0 ? Fate() : kLost; };
  const std::string error = ErrorOf([this] { Write(0x2000, support::CountingBytes(300)); });
  EXPECT_EQ(error, "the C64 does not answer; 128 of 300 bytes are confirmed");
  ASSERT_EQ(line_.sent.size(), 6U);
  for (std::size_t again = 2; again < line_.sent.size(); ++again) {
    EXPECT_EQ(line_.sent[again], line_.sent[1]);
    EXPECT_EQ(line_.sent_at[again] - line_.sent_at[again - 1], milliseconds(250 << (again - 2)));
  }
}

TEST_F(CodenetSenderTest, RefusesToRunPastTheEndOfMemory) {
  EXPECT_EQ(ErrorOf([this] { Write(0xFFFF, {1, 2}); }), "2 bytes at $FFFF run past $FFFF");
  EXPECT_TRUE(line_.sent.empty());
  Write(0xFFFE, {1, 2});
  EXPECT_EQ(line_.machine.memory[0xFFFF], 2);
}

TEST_F(CodenetSenderTest, StopsInTheMiddleOfAWait) {
  line_.fate_of = [](int number, const app::Bytes&) { return number < 3 ? Fate() : kLost; };
  line_.stop_at = milliseconds(5000);
  EXPECT_NE(ErrorOf([this] { Write(0x2000, support::CountingBytes(1000)); }), "");
  EXPECT_LE(line_.Elapsed(), milliseconds(5050));
}

// The numbers come round after 256 packets, here within a few milliseconds: the second answer to an early packet may
// not count for a later, lost one of the same number.
TEST_F(CodenetSenderTest, TakesNoLateAnswerForALaterPacketOfTheSameNumber) {
  line_.fate_of = [](int number, const app::Bytes&) {
    if (number == 3) return Fate{{microseconds(10)}, {microseconds(10), milliseconds(40)}};
    return number == 3 + 256 ? kLost : Fate();
  };
  Write(0, support::CountingBytes(0x10000));
  EXPECT_TRUE(line_.machine.memory == support::CountingBytes(0x10000));
}

TEST_F(CodenetSenderTest, LeavesNoLateCopyThatOverwritesTheNextTransfer) {
  line_.fate_of = [](int number, const app::Bytes&) {
    return number == 0 ? Fate{{milliseconds(400)}, {microseconds(10)}} : Fate();
  };
  Write(0x2000, app::Bytes(100, 1));
  Write(0x2000, app::Bytes(100, 2));
  line_.RunOut();
  EXPECT_EQ(MemoryAt(0x2000, 100), app::Bytes(100, 2));
}

// Losses, delays and doubles of all kinds, each in time for a packet's life: whatever is claimed is true.
TEST_F(CodenetSenderTest, ClaimsNothingWrongOverAnyNetwork) {
  std::mt19937 random(20260301);
  const auto late = [&random] { return microseconds(10 + random() % 200000); };
  line_.fate_of = [&](int, const app::Bytes&) {
    switch (random() % 12) {
      case 0:
        return kLost;
      case 1:
        return kAnswerLost;
      case 2:
        return Fate{{late()}, {late()}};
      case 3:
        return Fate{{microseconds(10)}, {microseconds(10), late()}};
      default:
        return Fate();
    }
  };
  int claims = 0;
  for (int round = 0; round < 30; ++round) {
    app::Bytes bytes(0xA000);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    if (ErrorOf([&] { Write(0x0801, bytes); }) != "") continue;
    ++claims;
    ASSERT_TRUE(MemoryAt(0x0801, bytes.size()) == bytes);
  }
  EXPECT_GE(claims, 20);
}

struct StartCase {
  const char* what;
  std::vector<Fate> order_fates;  // of each copy of the order; later ones are lost
  bool busy;                      // whether the C64 answers nothing any more once it was told to jump
  const char* error;              // how the message begins; "" for success
  std::size_t jumps;
};

TEST(CodenetStart, NeverStartsAProgramTwice) {
  const Fate slow_answer{{microseconds(10)}, {milliseconds(300)}};
  for (const StartCase& start : {
           StartCase{"nothing goes wrong", {Fate()}, true, "", 1},
           StartCase{"the order is lost", {kLost, kLost, Fate()}, true, "", 1},
           StartCase{"the answer is lost", {kAnswerLost}, true, "the order to start was sent, but", 1},
           StartCase{"the answer is slower than the ping's", {slow_answer}, false, "", 1},
           StartCase{"every order is lost", {}, true, "the C64 answers, but does not confirm", 0},
       }) {
    SCOPED_TRACE(start.what);
    SimulatedLine line;
    std::size_t orders = 0;
    line.fate_of = [&](int, const app::Bytes& packet) {
      if (packet[3] != static_cast<std::uint8_t>(CodenetService::kJump)) {
        return start.busy && !line.machine.jumps.empty() ? kLost : Fate();
      }
      return orders < start.order_fates.size() ? start.order_fates[orders++] : kLost;
    };
    CodenetSender sender(line, line, 0);
    std::string error;
    try {
      sender.Jump(0xCF00);
    } catch (const TransferError& caught) {
      error = caught.what();
    }
    EXPECT_EQ(error.substr(0, std::string(start.error).size()), start.error);
    EXPECT_EQ(error.empty(), std::string(start.error).empty());
    EXPECT_EQ(line.machine.jumps, std::vector<int>(start.jumps, 0xCF00));
  }
}

using Answers = std::vector<app::Bytes>;

// Answers to each packet at once with what a test says.
class ScriptedSocket final : public DatagramSocket, public TransferWatch {
 public:
  void Send(std::span<const std::uint8_t> datagram) override {
    const Answers answers = answers_to(datagram[2]);
    waiting_.insert(waiting_.end(), answers.begin(), answers.end());
  }
  app::Bytes Receive(microseconds wait) override {
    if (waiting_.empty()) {
      now_ += wait;
      return {};
    }
    const app::Bytes next = waiting_.front();
    waiting_.erase(waiting_.begin());
    return next;
  }
  Time Now() const override { return now_; }
  bool StopWanted() const override { return false; }

  std::function<Answers(std::uint8_t sequence)> answers_to;

 private:
  Answers waiting_;
  Time now_ = Time(std::chrono::hours(1));
};

app::Bytes Answer(int sequence, std::uint8_t service) {
  return {0xCA, 0x1F, static_cast<std::uint8_t>(sequence), service};
}

TEST(CodenetAnswers, ARefusalEndsTheTransferAtOnce) {
  ScriptedSocket socket;
  socket.answers_to = [](std::uint8_t sequence) { return Answers{Answer(sequence, 0)}; };
  app::NoProgress progress;
  CodenetSender sender(socket, socket, 0);
  EXPECT_THROW(sender.WriteMemory(0x2000, app::Bytes(10), progress), TransferError);
  EXPECT_THROW(sender.Run(), TransferError);
}

TEST(CodenetAnswers, NoneCountsThatWasThereBeforeItsPacket) {
  ScriptedSocket socket;
  socket.answers_to = [](std::uint8_t sequence) {
    return sequence == 0 ? Answers{Answer(0, 1), Answer(1, 1)} : Answers();
  };
  app::NoProgress progress;
  CodenetSender sender(socket, socket, 0);
  EXPECT_THROW(sender.WriteMemory(0x2000, app::Bytes(200), progress), TransferError);
}

}  // namespace
}  // namespace kelvo::c64out
