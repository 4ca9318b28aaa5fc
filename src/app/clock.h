// The wall clock, and the time stamps that the program writes.
#pragma once

#include <ctime>
#include <string>

namespace kelvo::app {

// Local time, broken down.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::tm Now() const = 0;
};

class SystemClock final : public Clock {
 public:
  std::tm Now() const override;
};

// "YYMMDDHHMM", for the names of backups.
std::string BackupStamp(const std::tm& time);

// "YYMMDD HH:MM:SS", for the error log.
std::string LogStamp(const std::tm& time);

}  // namespace kelvo::app
