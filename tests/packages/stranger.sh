# What a stranger types, in order, on a bare Debian 12 with the packages beside him.
set -e
apt-get -q -y install --no-install-recommends /root/packages/*.deb g++ cmake make >/root/install.log 2>&1 ||
  { tail -n 30 /root/install.log; exit 1; }
cmake -S /root/examples -B /root/build >/root/cmake.log || { cat /root/cmake.log; exit 1; }
cmake --build /root/build
QT_QPA_PLATFORM=offscreen /root/build/qt_example --quit
