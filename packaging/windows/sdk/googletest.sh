# GoogleTest and GoogleMock, static, from the sources that the package installs. Sourced by make-sdk.

make_googletest() {
    cmake -G Ninja -S /usr/src/googletest -B "$work/googletest" -DCMAKE_SYSTEM_NAME=Windows \
        -DCMAKE_C_COMPILER="$target-gcc-posix" -DCMAKE_CXX_COMPILER="$target-g++-posix" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$sdk"
    cmake --build "$work/googletest" --parallel "$jobs"
    cmake --install "$work/googletest"
}
