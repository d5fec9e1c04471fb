# Qt: the modules that Morvane and its tests use, as DLLs. Sourced by make-sdk.

target=x86_64-w64-mingw32

# Qt looks for the compilers under their plain names, which need not mean the variant with C++ threads.
link_compilers() {
    mkdir -p "$tools"
    for tool in gcc g++ cpp gcc-ar gcc-nm gcc-ranlib; do
        ln -sf "$(command -v "$target-$tool-posix")" "$tools/$target-$tool"
    done
}

unpack_qt() {
    rm -rf "$work/qt"
    dpkg-source -x "$work/src/$(qt_source | cut -d= -f1)"/*.dsc "$work/qt"
}

# Left out: what Morvane does not use, and tablets, whose header the distribution removed from the sources.
configure_qt() {
    mkdir -p "$work/qt-build"
    cd "$work/qt-build"
    PATH=$tools:$PATH "$work/qt/configure" -opensource -confirm-license -release -shared -prefix "$sdk" \
        -xplatform win32-g++ -device-option CROSS_COMPILE=$target- -nomake examples -nomake tests \
        -no-opengl -no-dbus -no-icu -no-openssl -qt-zlib -qt-libpng -qt-libjpeg -qt-pcre -qt-freetype -qt-harfbuzz \
        -qt-doubleconversion -no-feature-sql -no-feature-network -no-feature-xml -no-feature-concurrent \
        -no-feature-printer -no-feature-tabletevent -no-direct2d
    PATH=$tools:$PATH make qmake_all
}

make_qt() { PATH=$tools:$PATH make -C "$work/qt-build${2:-}" -j "$jobs" "$1"; }
make_qt_tools() { make_qt sub-tools /src; }
make_qt_core() { make_qt sub-corelib /src; }
make_qt_gui() { make_qt sub-gui /src; }
make_qt_widgets() { make_qt sub-widgets /src; }
make_qt_test() { make_qt sub-testlib /src; }
make_qt_rest() { make_qt first; }
install_qt() { make_qt install; }
