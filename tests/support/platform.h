// The platform that tests run on. Files of tests whose names end in _posix or _win32 are for one of them alone.
#pragma once

namespace kelvo::support {

#ifdef _WIN32
inline constexpr bool kIsWindows = true;
#else
inline constexpr bool kIsWindows = false;
#endif

}  // namespace kelvo::support
