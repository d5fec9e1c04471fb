# Source packages through apt, with this machine's own entries and keys, without touching the system's configuration:
# the binary entries are read as source entries for our calls only, and lists and caches are ours. Sourced by make-sdk.

# One-line entries: "deb [options] place suite components".
one_line_sources() { sed -n 's/^[[:space:]]*deb\(-src\)\{0,1\}[[:space:]]/deb-src /p' "$@" | sort -u; }

# Stanzas (deb822): the field Types becomes deb-src; those that are switched off stay so.
stanza_sources() {
    awk '
        tolower($0) ~ /^types[ \t]*:/ { print "Types: deb-src"; skip = 1; next }
        skip && /^[ \t]/ { next }
        { skip = 0; print }
        END { print "" }' "$1"
}

write_sources() {
    eval "$(apt-config shell main Dir::Etc::sourcelist/f parts Dir::Etc::sourceparts/d)"
    entries=$work/apt/sources.d
    rm -rf "$entries"
    mkdir -p "$entries" "$work/apt/lists/partial" "$work/apt/cache/archives/partial"
    for file in "$main" "$parts"/*.list; do
        [ ! -f "$file" ] || one_line_sources "$file"
    done | sort -u >"$entries/all.list"
    for file in "$parts"/*.sources; do
        [ ! -f "$file" ] || stanza_sources "$file" >"$entries/$(basename "$file")"
    done
}

ours() {
    command=$1
    shift
    "$command" -q -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$work/apt/sources.d" \
        -o Dir::State::lists="$work/apt/lists" -o Dir::Cache="$work/apt/cache" -o APT::Sandbox::User= \
        -o Acquire::Languages=none -o Acquire::Retries=3 "$@"
}

# An entry without sources, or one that cannot be reached, does no harm as long as another has what we need.
fetch_lists() {
    write_sources
    ours apt-get update || true
    ours apt-cache showsrc --only-source "$(qt_source | cut -d= -f1)" | grep -q '^Package:' || {
        echo 'no source packages are reachable through the entries of this machine'
        exit 77
    }
}

# fetch NAME=VERSION: into the folder NAME. An archive that keeps only the newest revision gives that one instead.
fetch() {
    name=${1%%=*}
    mkdir -p "$work/src/$name"
    cd "$work/src/$name"
    ours apt-get source --only-source --download-only "$1" ||
        ours apt-get source --only-source --download-only "$name" || {
        echo "the source package $1 is not reachable"
        exit 77
    }
}

fetch_qt() { fetch "$(qt_source)"; }
fetch_boost() { fetch "$(boost_source)"; }
