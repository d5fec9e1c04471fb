# Boost.Filesystem, static; all else that Morvane uses of Boost is headers. Sourced by make-sdk.

# Only a link to the Boost headers: the machine's whole include directory would hide the compiler's own headers.
link_boost_headers() {
    mkdir -p "$sdk/include"
    ln -sfn /usr/include/boost "$sdk/include/boost"
}

unpack_boost_filesystem() {
    rm -rf "$work/boost"
    mkdir -p "$work/boost"
    tar -C "$work/boost" --strip-components=1 --wildcards -xf "$1" '*/libs/filesystem/src'
}

make_boost() {
    link_boost_headers
    unpack_boost_filesystem "$work/src/$(boost_source | cut -d= -f1)"/*.orig.tar.*
    cd "$work/boost/libs/filesystem/src"
    printf '%s\n' *.cpp | xargs -n 1 -P "$jobs" "$target-g++-posix" -std=c++17 -O2 -DNDEBUG \
        -DBOOST_FILESYSTEM_STATIC_LINK=1 -DBOOST_ALL_NO_LIB -D_WIN32_WINNT=0x0601 -isystem "$sdk/include" -c
    mkdir -p "$sdk/lib"
    rm -f "$sdk/lib/libboost_filesystem.a"
    "$target-ar" rcs "$sdk/lib/libboost_filesystem.a" ./*.o
}
