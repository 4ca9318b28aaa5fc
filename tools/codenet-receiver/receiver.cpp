#include "receiver.h"

#include <array>
#include <stdexcept>
#include <thread>

namespace kelvo::codenet {

Receiver::Receiver(const Network& network, std::uint16_t port) : network_(network) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  SocketLength size = sizeof(address);
  socket_ = socket(AF_INET, SOCK_DGRAM, 0);
  NeverBlock(socket_);
  auto* const plain = reinterpret_cast<sockaddr*>(&address);
  if (bind(socket_, plain, size) != 0 || getsockname(socket_, plain, &size) != 0) {
    const std::error_code error = SocketError();
    CloseSocket(socket_);
    throw std::runtime_error("no port to receive at: " + error.message());
  }
  port_ = ntohs(address.sin_port);
}

Receiver::~Receiver() {
  CloseSocket(socket_);
}

void Receiver::Serve(const Handle& handle) {
  constexpr std::chrono::milliseconds kMoment(20);
  if (!WaitForDatagram(socket_, kMoment)) return;
  std::array<char, 2048> buffer;
  sockaddr_in client{};
  auto* const plain = reinterpret_cast<sockaddr*>(&client);
  SocketLength size = sizeof(client);
  const auto length = recvfrom(socket_, buffer.data(), static_cast<SocketLength>(buffer.size()), 0, plain, &size);
  if (length < 0 || IsLost()) return;
  if (network_.answers_after.count() > 0) std::this_thread::sleep_for(network_.answers_after);
  const app::Bytes answer = handle(app::Bytes(buffer.data(), buffer.data() + length));
  if (answer.empty()) return;
  sendto(socket_, reinterpret_cast<const char*>(answer.data()), static_cast<SocketLength>(answer.size()), 0, plain,
         size);
}

}  // namespace kelvo::codenet
