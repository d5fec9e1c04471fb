# Qt 6: the same modules as of Qt 5, made with CMake. The tools for this machine are those of the distribution's package
# of the same version. Sourced by make-sdk after the files one directory up, whose functions it replaces or uses. The
# name of Qt 5's SDK depends on the files there, so they stay as they are.

qt_source() { source_of qt6-base-dev; }

# The same as of Qt 5 is left out, and DirectWrite, because Qt 6 has it only together with Direct2D. The distribution has
# Qt's CMake files in a directory for this machine's architecture. The toolchain file is copied, because an interrupted
# run may go on from another clone, and because Qt's installed CMake files name it.
configure_qt() {
    rm -rf "$work/qt-build"
    mkdir -p "$work/qt-build"
    cp "$here/sdk/qt6/toolchain.cmake" "$sdk/toolchain.cmake"
    cd "$work/qt-build"
    "$work/qt/configure" -release -shared -prefix "$sdk" -cmake-generator Ninja -qt-host-path /usr \
        -nomake examples -nomake tests -no-opengl -no-dbus -no-icu -qt-zlib -qt-libpng -qt-libjpeg -qt-pcre \
        -qt-freetype -qt-harfbuzz -qt-doubleconversion -qt-libmd4c -no-feature-system-libb2 -no-feature-zstd -no-feature-sql \
        -no-feature-network -no-feature-xml -no-feature-concurrent -no-feature-printsupport -no-feature-tabletevent \
        -no-feature-vulkan -no-feature-direct2d -no-feature-directwrite -- \
        -DCMAKE_TOOLCHAIN_FILE="$sdk/toolchain.cmake" -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_BUILD_MULTIARCH)/cmake"
}

make_qt() { cmake --build "$work/qt-build" --parallel "$jobs" ${1:+--target "$@"}; }
make_qt_core() { make_qt Core; }
make_qt_gui() { make_qt Gui; }
make_qt_widgets() { make_qt Widgets; }
make_qt_test() { make_qt Test; }
make_qt_plugins() { make_qt qt_plugins; }

install_qt() {
    make_qt
    cmake --install "$work/qt-build"
}
