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
}

# Only the libraries: the makefiles of Qt's tests and examples alone take minutes, and some of them do not even load.
prepare_qt() { PATH=$tools:$PATH make -C "$work/qt-build" sub-src-qmake_all; }

make_qt() { PATH=$tools:$PATH make -C "$work/qt-build/src" -j "$jobs" "$@"; }
make_qt_tools() { make_qt sub-moc sub-rcc sub-uic; }
make_qt_core() { make_qt sub-corelib; }
make_qt_gui() { make_qt sub-gui; }
make_qt_widgets() { make_qt sub-widgets; }
make_qt_test() { make_qt sub-testlib; }
make_qt_plugins() { make_qt sub-plugins; }

# Qt's CMake files ask for qmake, though nobody calls it.
install_qt() {
    make_qt first
    make_qt install
    make -C "$work/qt-build" install_mkspecs
    install -m 755 "$work/qt-build/bin/qmake" "$sdk/bin/qmake"
}
