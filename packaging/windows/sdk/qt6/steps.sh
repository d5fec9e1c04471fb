# The steps for Qt 6 in their order. Sourced by make-sdk, after the steps for Qt 5.

step_total=14

run_steps() {
    step lists 'reading the lists of source packages' fetch_lists
    step fetch-qt "fetching $(qt_source)" fetch_qt
    step fetch-boost "fetching $(boost_source)" fetch_boost
    step unpack-qt 'unpacking Qt' unpack_qt
    step boost 'Boost.Filesystem' make_boost
    step googletest 'GoogleTest' make_googletest
    step configure-qt 'configuring Qt' configure_qt
    step qt-core 'Qt Core' make_qt_core
    step qt-gui 'Qt Gui' make_qt_gui
    step qt-widgets 'Qt Widgets' make_qt_widgets
    step qt-test 'Qt Test' make_qt_test
    step qt-plugins 'Qt: the plugins' make_qt_plugins
    step install-qt 'installing Qt' install_qt
    step runtime 'run-time libraries of the compiler' finish_sdk
}
