// The few words in which Winsock and the sockets of other systems differ.
#pragma once

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <chrono>
#include <string>
#include <system_error>

namespace kelvo::codenet {

#ifdef _WIN32

using SocketHandle = SOCKET;
using SocketLength = int;
inline const SocketHandle kNoSocket = INVALID_SOCKET;

// Winsock wants to be started by each program that uses it.
class NetworkUse {
 public:
  NetworkUse() {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
  }
  ~NetworkUse() { WSACleanup(); }
  NetworkUse(const NetworkUse&) = delete;
  NetworkUse& operator=(const NetworkUse&) = delete;
};

inline void CloseSocket(SocketHandle socket) {
  closesocket(socket);
}
inline void NeverBlock(SocketHandle socket) {
  u_long on = 1;
  ioctlsocket(socket, static_cast<long>(FIONBIO), &on);
}
inline std::error_code SocketError() {
  return {WSAGetLastError(), std::system_category()};
}
inline bool MeansNobodyListens(const std::error_code& error) {
  return error.value() == WSAECONNREFUSED || error.value() == WSAECONNRESET;
}
inline bool MeansNotNow(const std::error_code& error) {
  return error.value() == WSAEWOULDBLOCK || error.value() == WSAENOBUFS || error.value() == WSAEINTR;
}
inline std::string LookUpText(int error) {
  return std::system_category().message(error);
}

#else

using SocketHandle = int;
using SocketLength = socklen_t;
constexpr SocketHandle kNoSocket = -1;

struct NetworkUse {};

inline void CloseSocket(SocketHandle socket) {
  close(socket);
}
inline void NeverBlock(SocketHandle socket) {
  fcntl(socket, F_SETFL, fcntl(socket, F_GETFL) | O_NONBLOCK);
}
inline std::error_code SocketError() {
  return {errno, std::generic_category()};
}
inline bool MeansNobodyListens(const std::error_code& error) {
  return error == std::errc::connection_refused;
}
inline bool MeansNotNow(const std::error_code& error) {
  return error.value() == EAGAIN || error.value() == EWOULDBLOCK || error.value() == ENOBUFS || error.value() == EINTR;
}
inline std::string LookUpText(int error) {
  return gai_strerror(error);
}

#endif

// Waits until a datagram (or an error) is there to be received; false when none came, or a signal broke the wait off.
inline bool WaitForDatagram(SocketHandle socket, std::chrono::microseconds wait) {
  constexpr auto kSecond = std::chrono::microseconds(std::chrono::seconds(1));
  fd_set readable;
  FD_ZERO(&readable);
  FD_SET(socket, &readable);
  timeval left{};
  left.tv_sec = static_cast<decltype(left.tv_sec)>(wait / kSecond);
  left.tv_usec = static_cast<decltype(left.tv_usec)>((wait % kSecond).count());
  return select(static_cast<int>(socket) + 1, &readable, nullptr, nullptr, &left) > 0;
}

}  // namespace kelvo::codenet
