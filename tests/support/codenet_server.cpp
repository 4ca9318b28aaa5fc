#include "support/codenet_server.h"

#include <array>
#include <stdexcept>

namespace kelvo::support {

CodenetServer::CodenetServer(const Network& network, std::uint16_t port) : network_(network) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  codenet::SocketLength size = sizeof(address);
  socket_ = socket(AF_INET, SOCK_DGRAM, 0);
  codenet::NeverBlock(socket_);
  auto* const plain = reinterpret_cast<sockaddr*>(&address);
  if (bind(socket_, plain, size) != 0 || getsockname(socket_, plain, &size) != 0) {
    throw std::runtime_error("no port for the server: " + codenet::SocketError().message());
  }
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

CodenetServer::~CodenetServer() {
  ended_ = true;
  thread_.join();
  codenet::CloseSocket(socket_);
}

CodenetMachine CodenetServer::Machine() const {
  const std::lock_guard lock(mutex_);
  return machine_;
}

void CodenetServer::Serve() {
  std::array<char, 2048> buffer;
  while (!ended_) {
    if (!codenet::WaitForDatagram(socket_, std::chrono::milliseconds(20))) continue;
    sockaddr_in client{};
    auto* const plain = reinterpret_cast<sockaddr*>(&client);
    codenet::SocketLength size = sizeof(client);
    const auto length =
        recvfrom(socket_, buffer.data(), static_cast<codenet::SocketLength>(buffer.size()), 0, plain, &size);
    if (length < 0) continue;
    const app::Bytes answer = AnswerTo(app::Bytes(buffer.data(), buffer.data() + length));
    if (answer.empty()) continue;
    sendto(socket_, reinterpret_cast<const char*>(answer.data()), static_cast<codenet::SocketLength>(answer.size()), 0,
           plain, size);
  }
}

app::Bytes CodenetServer::AnswerTo(CodenetMachine::Packet packet) {
  if (arrived_++ >= network_.vanishes_after || arrived_ % network_.loses_every == 0) return {};
  if (network_.answers_after.count() > 0) std::this_thread::sleep_for(network_.answers_after);
  const std::lock_guard lock(mutex_);
  return machine_.Handle(packet);
}

}  // namespace kelvo::support
