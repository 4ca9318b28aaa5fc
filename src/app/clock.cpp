#include "app/clock.h"

#include <array>

namespace kelvo::app {
namespace {

constexpr std::size_t kRoom = 32;

}  // namespace

std::tm SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return local;
}

std::string BackupStamp(const std::tm& time) {
  std::array<char, kRoom> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%y%m%d%H%M", &time)};
}

std::string LogStamp(const std::tm& time) {
  std::array<char, kRoom> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%y%m%d %H:%M:%S", &time)};
}

}  // namespace kelvo::app
