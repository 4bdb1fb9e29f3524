# The Debian packages of the project, and how they come onto the machine. Sourced, not run.

packages_to_build="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev libxcb1-dev libxcb-xtest0-dev libcups2-dev"
packages_to_run="fonts-dejavu-core xdg-utils"
packages_to_test="git libgtest-dev qt6-base-private-dev clang-format-14 xvfb openbox xdotool x11-utils poppler-utils python3 sway qt6-wayland"
packages_to_test="$packages_to_test qt6-image-formats-plugins strace appstream desktop-file-utils"
packages_to_listen="orca speech-dispatcher at-spi2-core dbus-daemon xvfb openbox xdotool procps python3"
packages_to_bench="libbenchmark-dev python3"
packages_to_compare="rednotebook cherrytree dbus-daemon python3-numpy imagemagick"
packages_to_fuzz="clang-14 libclang-rt-14-dev"
packages_to_check="clang-tidy-14 cppcheck valgrind libc6-dbg"
packages_to_image="e2fsprogs xfsprogs btrfs-progs"
packages_to_package="dpkg-dev lintian mmdebstrap xvfb openbox xdotool xclip x11-utils"
packages_to_travel="xfwm4 mutter weston kwin-wayland xwayland dbus-daemon python3-gi gir1.2-gtk-3.0 ibus ibus-libpinyin xclip"
packages_to_draw="python3 python3-numpy python3-pil librsvg2-bin"

# install_packages NAME...: installs those that are missing, with sudo where the user is not root.
install_packages() {
  missing=""
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  echo "Installing:$missing"
  as_root=""
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages as root first:$missing" >&2; exit 1; }
    as_root=sudo
  fi
  $as_root apt-get -o DPkg::Lock::Timeout=300 update -q >/dev/null || echo "The list of packages could not be renewed; trying with the old one." >&2
  # shellcheck disable=SC2086
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y -q --no-install-recommends $missing >/dev/null ||
    { echo "These packages could not be installed:$missing" >&2; exit 1; }
}
