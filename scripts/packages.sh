# The Debian packages that each job needs, for sourcing.
build_packages=(g++ cmake ninja-build nlohmann-json3-dev libgtest-dev libbenchmark-dev
                libsqlite3-dev mdbtools-dev pkg-config)
desktop_packages=(qt6-base-dev qt6-serialport-dev qt6-svg-dev libqt6svg6 fonts-dejavu-core)
screen_packages=(xvfb xauth)
client_packages=(gnokii-cli gammu)
check_packages=(clang clang-format clang-tidy libclang-rt-dev git)
package_packages=(cmark-gfm dpkg-dev lintian desktop-file-utils appstream man-db git)
picture_packages=("${screen_packages[@]}" pngquant)
access_packages=("${screen_packages[@]}" at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi)
acting_packages=("${access_packages[@]}" openbox)
desktop_check_packages=("${screen_packages[@]}" qt6-wayland weston)
