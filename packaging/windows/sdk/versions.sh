# Which versions go into the SDK, and the name that follows from them. Sourced by make-sdk.

require_packages() {
    command -v dpkg-query >/dev/null || die 'this needs a Debian or Ubuntu machine'
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] ||
            die "a package is missing: $package (all of them: $(cd "$here" && ./make-sdk --packages))"
    done
}

# source_of PACKAGE: the source package of an installed package, as NAME=VERSION.
source_of() { dpkg-query -W -f='${source:Package}=${source:Version}\n' "$1" | head -n 1; }

qt_source() { source_of qtbase5-dev; }
boost_source() { source_of "$(dpkg -S /usr/include/boost/version.hpp | cut -d: -f1)"; }

# Files beside this one are the recipe: a change of theirs gives an SDK of its own.
sdk_key() {
    qt=$(qt_source)
    boost=$(boost_source)
    hash=$({
        dpkg-query -W -f='${Package}=${Version}\n' g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev googletest
        printf '%s\n' "$qt" "$boost"
        cat "$here"/sdk/*.sh
    } | sha256sum | cut -c1-12)
    printf 'qt%s-%s-%s\n' "${qt#*=}" "${boost%%=*}" "$hash" | tr -c 'A-Za-z0-9.\n-' _
}
