# What stands beside every program: the compiler's own DLLs. Sourced by make-sdk.

finish_sdk() {
    for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
        file=$("$target-g++-posix" -print-file-name="$library")
        # Where the compiler has no such file it repeats the name.
        [ "$file" != "$library" ] || file=/usr/$target/lib/$library
        install -m 644 "$file" "$sdk/bin/$library"
    done
    "$target-strip" --strip-unneeded "$sdk"/bin/*.dll
    find "$sdk/plugins" -name '*.dll' -exec "$target-strip" --strip-unneeded '{}' +
    { qt_source && boost_source; } >"$sdk/complete"
}
