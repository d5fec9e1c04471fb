// The owner of the dialog, and what ends a run from outside.
#include "WidgetShellRunTest.h"

#include <QTimer>

namespace morvane::test {

namespace {

using namespace morvane::ui;

TEST_F(WidgetShellRun, theOwnerIsFoundByItsHandle)
{
    QWidget owner;
    owner.show();
    show(
        [&owner](QFileDialog& window) {
            EXPECT_EQ(window.parentWidget(), &owner);
            window.reject();
        },
        reinterpret_cast<HWND>(owner.winId()));
}

TEST_F(WidgetShellRun, aHandleOfNoWindowMeansNoOwner)
{
    show(
        [](QFileDialog& window) {
            EXPECT_EQ(window.parentWidget(), nullptr);
            window.reject();
        },
        reinterpret_cast<HWND>(static_cast<WId>(0x7FFF1234)));
}

TEST_F(WidgetShellRun, anOwnerThatGoesEndsTheRun)
{
    customize->AddPushButton(1, text("Button").c_str());
    auto owner = std::make_unique<QWidget>();
    EXPECT_EQ(show([&owner](QFileDialog&) { owner.reset(); }, reinterpret_cast<HWND>(owner->winId())), cancelled);
    EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled);
}

TEST_F(WidgetShellRun, anOwnerThatGoesDuringACallbackEndsTheRun)
{
    customize->AddPushButton(1, text("Leave").c_str());
    setTypes({{QStringLiteral("T"), QStringLiteral("*.txt")}, {QStringLiteral("D"), QStringLiteral("*.dat")}});
    dialog->SetFileName(text("a.txt").c_str());
    const std::pair<const char*, std::function<void(WidgetUser&)>> ways[] = {
        {"OnButtonClicked", [](WidgetUser& user) { user.clickButton(1, QStringLiteral("Leave")); }},
        {"OnFileOk", [](WidgetUser& user) { user.pressAccept(); }},
        {"OnFolderChange", [](WidgetUser&) {}},
        {"OnFolderChanging", [](WidgetUser&) {}},
    };
    for (const auto& [callback, act] : ways) {
        auto owner = std::make_unique<QWidget>();
        const HWND handle = reinterpret_cast<HWND>(owner->winId());
        sink.on.clear();
        sink.on[callback] = [&owner] {
            owner.reset();
            return S_OK;
        };
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&poll, act = act] {
            if (auto* const window = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                poll.stop();
                WidgetUser user(*window);
                act(user);
            }
        });
        poll.start(1);
        EXPECT_NE(dialog->Show(handle), E_FAIL) << callback;
    }
}

TEST_F(WidgetShellRun, quittingTheApplicationEndsTheRun)
{
    HRESULT hr = S_OK;
    QTimer::singleShot(0, [&] { hr = show([](QFileDialog&) { QCoreApplication::quit(); }); });
    QApplication::exec();
    EXPECT_EQ(hr, cancelled);
}

} // namespace

} // namespace morvane::test
