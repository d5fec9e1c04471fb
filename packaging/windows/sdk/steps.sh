# The steps in their order; each leaves a stamp, so that a later run skips what is done. Sourced by make-sdk.

step_total=17
step_number=0

# step NAME TEXT FUNCTION: runs the function once, its output in a log file of its own.
step() {
    step_number=$((step_number + 1))
    if [ -f "$stamps/$1" ]; then
        say "[$step_number/$step_total] $2: done before"
        return 0
    fi
    say "[$step_number/$step_total] $2"
    log=$work/$1.log
    # A shell of its own: "set -e" holds in it, and a change of directory ends with it.
    set +e
    (
        set -e
        "$3"
    ) >"$log" 2>&1 </dev/null
    status=$?
    set -e
    case $status in
    0) : >"$stamps/$1" ;;
    77)
        say "make-sdk: skipped: $(tail -n 1 "$log")"
        exit 77
        ;;
    *)
        tail -n 15 "$log" >&2
        die "failed: $2 (the whole output is in $log)"
        ;;
    esac
}

run_steps() {
    step links 'naming the compilers' link_compilers
    step lists 'reading the lists of source packages' fetch_lists
    step fetch-qt "fetching $(qt_source)" fetch_qt
    step fetch-boost "fetching $(boost_source)" fetch_boost
    step unpack-qt 'unpacking Qt' unpack_qt
    step boost 'Boost.Filesystem' make_boost
    step googletest 'GoogleTest' make_googletest
    step configure-qt 'configuring Qt' configure_qt
    step prepare-qt 'preparing the libraries of Qt' prepare_qt
    step qt-tools 'Qt: its tools for this machine' make_qt_tools
    step qt-core 'Qt Core' make_qt_core
    step qt-gui 'Qt Gui' make_qt_gui
    step qt-widgets 'Qt Widgets' make_qt_widgets
    step qt-test 'Qt Test' make_qt_test
    step qt-plugins 'Qt: the plugins' make_qt_plugins
    step install-qt 'installing Qt' install_qt
    step runtime 'run-time libraries of the compiler' finish_sdk
}
