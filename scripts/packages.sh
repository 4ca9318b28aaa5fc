# The Debian packages that each job needs; sourced by the other scripts.
build_packages=(g++ cmake ninja-build ccache qt6-base-dev libgl-dev libqt6svg6 libcli11-dev libgif-dev cmark-gfm)
run_packages=(libqt6gui6 libqt6widgets6 libqt6svg6 libgif7 qt6-image-formats-plugins fonts-dejavu-core 64tass)
headless_packages=(xvfb xauth openbox imagemagick)
test_packages=(libgtest-dev)
end_to_end_packages=(xvfb xauth openbox xdotool)
benchmark_packages=(libbenchmark-dev xvfb xauth openbox x11-utils)
package_packages=(dpkg-dev file lintian appstream)
check_packages=(clang-format clang-tidy cppcheck)
fuzz_packages=(clang libclang-rt-14-dev)
windows_packages=(g++-mingw-w64-x86-64-posix gcc g++ cmake ninja-build make dpkg-dev qt6-base-dev qt6-base-dev-tools
  libgl-dev libqt6svg6 libcli11-dev libgif-dev cmark-gfm googletest icoutils nsis)
wine_packages=(wine wine64 xvfb xauth openbox)
